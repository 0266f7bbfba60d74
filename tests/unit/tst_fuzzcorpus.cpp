#include "fuzz/Targets.h"
#include "support/Files.h"
#include "support/Places.h"
#include "support/TestProgram.h"

#include <QTest>

namespace {

QDir seeds()
{
    return QDir(Places::source("tests/fuzz/corpus"));
}

QDir findings()
{
    return QDir(Places::data("findings"));
}

QStringList targetNames()
{
    QStringList names;
    for (const Fuzz::STarget &target : Fuzz::Targets) {
        names << QLatin1String(target.name);
    }
    return names;
}

} // namespace

Q_DECLARE_METATYPE(const Fuzz::STarget *)

/** The fuzz targets, on known bytes alone: what they demand holds in every build. */
class tst_fuzzcorpus : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyTargetHasSeeds();
    void everyFolderHasTarget();
    void file_data();
    void file();
    void beginningOfFile_data();
    void beginningOfFile();
};

void tst_fuzzcorpus::initTestCase()
{
    Fuzz::silenceMessageBoard();
}

void tst_fuzzcorpus::everyTargetHasSeeds()
{
    for (const QString &name : targetNames()) {
        QVERIFY2(!Files::names(seeds().filePath(name)).isEmpty(), qUtf8Printable(name));
    }
}

void tst_fuzzcorpus::everyFolderHasTarget()
{
    for (const QDir &folders : {seeds(), findings()}) {
        for (const QString &name : Files::names(folders.path())) {
            QVERIFY2(targetNames().contains(name), qUtf8Printable(folders.filePath(name)));
        }
    }
}

void tst_fuzzcorpus::file_data()
{
    QTest::addColumn<const Fuzz::STarget *>("target");
    QTest::addColumn<QString>("path");

    for (const Fuzz::STarget &target : Fuzz::Targets) {
        for (const QDir &folders : {seeds(), findings()}) {
            const QDir folder(folders.filePath(QLatin1String(target.name)));
            for (const QString &name : Files::names(folder.path())) {
                QTest::addRow("%s, %s: %s", target.name, qPrintable(folders.dirName()),
                              qPrintable(name))
                    << &target << folder.filePath(name);
            }
        }
    }
}

void tst_fuzzcorpus::file()
{
    QFETCH(const Fuzz::STarget *, target);
    QFETCH(QString, path);

    QVERIFY(QFileInfo(path).isReadable());
    target->run(Files::read(path));
}

void tst_fuzzcorpus::beginningOfFile_data()
{
    file_data();
}

void tst_fuzzcorpus::beginningOfFile()
{
    QFETCH(const Fuzz::STarget *, target);
    QFETCH(QString, path);

    const int steps = 16;
    const QByteArray bytes = Files::read(path);
    for (int step = 0; step < steps; ++step) {
        target->run(bytes.left(bytes.size() * step / steps));
    }
}

REGISTER_GUILESS_TEST(tst_fuzzcorpus)
#include "tst_fuzzcorpus.moc"
