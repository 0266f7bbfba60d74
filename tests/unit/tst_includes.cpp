#include "support/Places.h"
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
const QStringList Knots = {QStringLiteral("elements/CDeviceBaseElementFiles.cpp"),
                           QStringLiteral("elements/ElementPaths.cpp")};

// The same for the rooms inside commissioning/.
const QStringList Rooms = {
    QStringLiteral("items"), QStringLiteral("compare"), QStringLiteral("rules"),
    QStringLiteral("stage"), QStringLiteral("check"),   QStringLiteral("report"),
};

QString sourcePath(const QString &file)
{
    return Places::source("src/") + file;
}

QString read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString folderOf(const QString &path)
{
    return path.section(QLatin1Char('/'), 0, 0);
}

/** Name and folders without what tells a header from its source. */
QString withoutSuffix(const QString &file)
{
    return file.section(QLatin1Char('.'), 0, -2);
}

/** What stands behind a public header of commissioning/ stands in one of the rooms. */
QString roomOf(const QString &file)
{
    const QStringList parts = file.split(QLatin1Char('/'));
    if (parts.constFirst() != QLatin1String("commissioning")) {
        return QString();
    }
    if (parts.size() > 2) {
        return parts.at(1);
    }
    for (const QString &room : Rooms) {
        const QString source =
            QStringLiteral("commissioning/%1/%2.cpp").arg(room, withoutSuffix(parts.constLast()));
        if (QFile::exists(sourcePath(source))) {
            return room;
        }
    }
    return QString();
}

/** A header with nothing behind it, as that of a plain structure, belongs to all rooms. */
bool isAllowedInRoom(const QString &file, const QString &included)
{
    return Rooms.indexOf(roomOf(included)) <= Rooms.indexOf(roomOf(file)) || roomOf(file).isEmpty();
}

QString libraryOf(const QString &file)
{
    static const QStringList ofTheirOwn = {QStringLiteral("storage"), QStringLiteral("imported"),
                                           QStringLiteral("commissioning"),
                                           QStringLiteral("tools")};
    return ofTheirOwn.contains(folderOf(file)) ? folderOf(file) : QStringLiteral("vrnDeviceCore");
}

QStringList capturedBy(const QRegularExpression &expression, const QString &text)
{
    QStringList result;
    auto matches = expression.globalMatch(text);
    while (matches.hasNext()) {
        result << matches.next().captured(1);
    }
    return result;
}

/** Sources that are built into several libraries: object libraries, and what the tool borrows. */
QStringList sharedSources()
{
    static const QRegularExpression objects(QStringLiteral("^add_library\\(\\w+ OBJECT([^)]*)\\)"),
                                            QRegularExpression::MultilineOption);
    static const QRegularExpression borrowed(QStringLiteral("^ +\\.\\./(\\S+\\.cpp)$"),
                                             QRegularExpression::MultilineOption);
    static const QRegularExpression space(QStringLiteral("\\s+"));
    QStringList sources =
        capturedBy(borrowed, read(sourcePath(QStringLiteral("tools/CMakeLists.txt"))));
    for (const QString &list :
         capturedBy(objects, read(sourcePath(QStringLiteral("CMakeLists.txt"))))) {
        sources += list.split(space, Qt::SkipEmptyParts);
    }
    return sources;
}

QStringList publicHeaders()
{
    static const QRegularExpression header(QStringLiteral("^ +(\\w+/\\w+\\.h)$"),
                                           QRegularExpression::MultilineOption);
    return capturedBy(header, read(Places::source("cmake/VrnInstall.cmake")));
}

/** Whether a library may include it: what is private there is hidden, and cannot be linked. */
bool isVisible(const QString &file, const QString &included)
{
    static const QStringList headers = publicHeaders();
    static const QStringList shared = sharedSources();
    const QString source = withoutSuffix(included) + QStringLiteral(".cpp");
    return libraryOf(file) == libraryOf(included) || headers.contains(included)
        || shared.contains(source) || !QFile::exists(sourcePath(source));
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
class tst_includes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void directions_data();
    void directions();
    void roomsAreKnown();
    void ruleSeesWrongDirections();
    void ruleSeesWrongRooms();
    void ruleSeesPrivateHeaders();
};

void tst_includes::directions_data()
{
    QTest::addColumn<QString>("file");
    const QDir root(Places::source("src"));
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

void tst_includes::directions()
{
    QFETCH(QString, file);
    const QString source = read(sourcePath(file));
    QVERIFY(!source.isEmpty());
    static const QRegularExpression include(QStringLiteral("^#include \"([^\"]+)\""),
                                            QRegularExpression::MultilineOption);
    for (const QString &included : capturedBy(include, source)) {
        QVERIFY2(Folders.contains(folderOf(included)),
                 qPrintable(QStringLiteral("'%1' is not written from src/").arg(included)));
        QVERIFY2(isAllowed(file, included),
                 qPrintable(QStringLiteral("'%1' points upwards").arg(included)));
        QVERIFY2(isAllowedInRoom(file, included),
                 qPrintable(QStringLiteral("'%1' points to a room above").arg(included)));
        QVERIFY2(isVisible(file, included),
                 qPrintable(QStringLiteral("'%1' is private to another library").arg(included)));
        const bool looksInside =
            included.count(QLatin1Char('/')) > 1 && folderOf(included) == QLatin1String("imported");
        QVERIFY2(!looksInside || folderOf(file) == QLatin1String("imported"),
                 qPrintable(QStringLiteral("'%1' is not declared by imported/").arg(included)));
    }
}

/** A new room needs its place in the order. */
void tst_includes::roomsAreKnown()
{
    QStringList present = QDir(sourcePath(QStringLiteral("commissioning")))
                              .entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    QStringList known = Rooms;
    known.sort();
    QCOMPARE(present, known);
    present = QDir(sourcePath(QString())).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    known = Folders;
    known.sort();
    QCOMPARE(present, known);
}

void tst_includes::ruleSeesWrongDirections()
{
    const QString header = QStringLiteral("devicefiles/CDeviceFileSystem.h");
    QVERIFY(!isAllowed(QStringLiteral("elements/CDeviceBaseElement.h"), header));
    QVERIFY(!isAllowed(QStringLiteral("elements/CFileElement.cpp"), header));
    QVERIFY(isAllowed(QStringLiteral("elements/CDeviceBaseElementFiles.cpp"), header));
}

void tst_includes::ruleSeesWrongRooms()
{
    const QString check = QStringLiteral("commissioning/check/CConfigurationCheck.cpp");
    QVERIFY(isAllowedInRoom(check, QStringLiteral("commissioning/CConfigurationItems.h")));
    QVERIFY(isAllowedInRoom(check, QStringLiteral("commissioning/SConfigurationFinding.h")));
    QVERIFY(isAllowedInRoom(check, QStringLiteral("commissioning/check/DocumentCheck.h")));
    QVERIFY(!isAllowedInRoom(check, QStringLiteral("commissioning/CConfigurationReport.h")));
    QVERIFY(!isAllowedInRoom(check, QStringLiteral("commissioning/report/HtmlWriter.h")));
    QVERIFY(!isAllowedInRoom(QStringLiteral("commissioning/CConfigurationItems.h"),
                             QStringLiteral("commissioning/CConfigurationPatch.h")));
}

void tst_includes::ruleSeesPrivateHeaders()
{
    const QString tool = QStringLiteral("tools/main.cpp");
    QVERIFY(!isVisible(tool, QStringLiteral("commissioning/report/HtmlWriter.h")));
    QVERIFY(!isVisible(tool, QStringLiteral("elements/ElementPaths.h")));
    QVERIFY(isVisible(tool, QStringLiteral("commissioning/CConfigurationReport.h")));
    QVERIFY(isVisible(tool, QStringLiteral("storage/FileStorage.h")));
    QVERIFY(isVisible(QStringLiteral("elements/CDeviceElement.cpp"),
                      QStringLiteral("elements/ElementPaths.h")));
}

REGISTER_APPLESS_TEST(tst_includes)
#include "tst_includes.moc"
