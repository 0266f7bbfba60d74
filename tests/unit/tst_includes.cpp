#include "support/TestProgram.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

namespace {

// From the ground up: a folder may include itself and those before it.
const QStringList Folders = {
    QStringLiteral("storage"),     QStringLiteral("imported"),      QStringLiteral("vocabulary"),
    QStringLiteral("elements"),    QStringLiteral("configfile"),    QStringLiteral("settings"),
    QStringLiteral("devicefiles"), QStringLiteral("commissioning"), QStringLiteral("tools"),
};

// The device element asks the directory layout, which is built from a device element. The headers
// stay one-way, the knot is in these sources alone.
const QStringList Knots = {QStringLiteral("elements/CDeviceBaseElement.cpp"),
                           QStringLiteral("elements/ElementPaths.cpp")};

QString folderOf(const QString &path)
{
    return path.section(QLatin1Char('/'), 0, 0);
}

bool isAllowed(const QString &file, const QString &included)
{
    if (Knots.contains(file) && included == QLatin1String("devicefiles/CDeviceFileSystem.h")) {
        return true;
    }
    return Folders.indexOf(folderOf(included)) <= Folders.indexOf(folderOf(file));
}

} // namespace

/** Includes point downwards only, and nothing looks into the imported libraries. */
class tst_Includes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void directions_data();
    void directions();
    void ruleSeesWrongDirections();
};

void tst_Includes::directions_data()
{
    QTest::addColumn<QString>("file");
    const QDir root(QStringLiteral(VRN_SOURCE_DIR "/src"));
    int count = 0;
    for (const QString &folder : Folders) {
        QDirIterator files(root.filePath(folder), {QStringLiteral("*.h"), QStringLiteral("*.cpp")},
                           QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = root.relativeFilePath(files.next());
            QTest::newRow(qPrintable(file)) << file;
            ++count;
        }
    }
    QVERIFY(count > 80);
}

void tst_Includes::directions()
{
    QFETCH(QString, file);
    QFile source(QStringLiteral(VRN_SOURCE_DIR "/src/") + file);
    QVERIFY(source.open(QIODevice::ReadOnly));
    static const QRegularExpression include(QStringLiteral("^#include \"([^\"]+)\""),
                                            QRegularExpression::MultilineOption);
    auto matches = include.globalMatch(QString::fromUtf8(source.readAll()));
    while (matches.hasNext()) {
        const QString included = matches.next().captured(1);
        QVERIFY2(Folders.contains(folderOf(included)),
                 qPrintable(QStringLiteral("'%1' is not written from the root").arg(included)));
        QVERIFY2(isAllowed(file, included),
                 qPrintable(QStringLiteral("'%1' points upwards").arg(included)));
        const bool looksInside =
            included.count(QLatin1Char('/')) > 1 && folderOf(included) == QLatin1String("imported");
        QVERIFY2(!looksInside || folderOf(file) == QLatin1String("imported"),
                 qPrintable(QStringLiteral("'%1' is not declared by imported/").arg(included)));
    }
}

void tst_Includes::ruleSeesWrongDirections()
{
    const QString header = QStringLiteral("devicefiles/CDeviceFileSystem.h");
    QVERIFY(!isAllowed(QStringLiteral("elements/CDeviceBaseElement.h"), header));
    QVERIFY(!isAllowed(QStringLiteral("elements/CFileElement.cpp"), header));
    QVERIFY(isAllowed(QStringLiteral("elements/CDeviceBaseElement.cpp"), header));
}

REGISTER_APPLESS_TEST(tst_Includes)
#include "tst_includes.moc"
