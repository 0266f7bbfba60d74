#include "devicefiles/CDeviceOSReleaseFile.h"
#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/Literals.h"
#include "support/MessageCatcher.h"
#include "support/OrdinaryUser.h"
#include "support/RecordingLog.h"
#include "support/ReleaseTexts.h"

#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <sys/stat.h>

using namespace ReleaseTexts;

namespace {

const int WriteFailure = 5;

} // namespace

/** What is written, and what stays when it cannot be. */
class tst_cdeviceosreleasefile_saving : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void saves_data();
    void saves();
    void savedFileIsOneLine();
    void saveToBufferReplaces();
    void saveFails_data();
    void saveFails();
    void saveReadOnlyFile();
    void saveIntoReadOnlyDirectory();
    void saveOnFullDisk();

private:
    QString path(const QString &name = u"os-release"_s) const
    {
        return m_directory->filePath(name);
    }
    QStringList names() const { return Files::names(m_directory->path()); }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_cdeviceosreleasefile_saving::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void tst_cdeviceosreleasefile_saving::saves_data()
{
    QTest::addColumn<QByteArray>("old");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("expected");

    const QByteArray longer(100000, 'x');
    QTest::newRow("new file") << QByteArray() << Content << SavedContent;
    QTest::newRow("in place of a longer one") << longer << Content << SavedContent;
    QTest::newRow("in place of a shorter one") << QByteArray("x") << Content << SavedContent;
    QTest::newRow("no keys") << longer << QByteArray() << QByteArray();
    QTest::newRow("one pair") << longer << QByteArray("A=1\n") << QByteArray("A=1");
    QTest::newRow("empty key and value") << longer << QByteArray("=\nA=\n") << QByteArray("=A=");
    QTest::newRow("quotes do not come back")
        << longer << QByteArray("A=\"b (c)\"\nB=2\n") << QByteArray("A=b cB=2");
}

void tst_cdeviceosreleasefile_saving::saves()
{
    QFETCH(QByteArray, old);
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, expected);

    if (!old.isEmpty()) {
        QVERIFY(Files::write(path(), old));
    }
    const MessageCatcher catcher;
    RecordingLog log;
    CDeviceOSReleaseFile file(content, &log);
    QCOMPARE(static_cast<int>(file.save(path())), Success);
    QCOMPARE(Files::read(path()), expected);
    QCOMPARE(names(), QStringList(u"os-release"_s));
    QCOMPARE(saved(file), expected);
    QVERIFY(catcher.messages().isEmpty());
    QVERIFY(log.entries().isEmpty());

    // Saving again gives the same, not more.
    QCOMPARE(static_cast<int>(file.save(path())), Success);
    QCOMPARE(Files::read(path()), expected);
}

void tst_cdeviceosreleasefile_saving::savedFileIsOneLine()
{
    CDeviceOSReleaseFile file(QByteArray("PRODUCT=\"a\"\nPLATFORM=b\nQT_VERSION=c\n"), nullptr);
    QCOMPARE(static_cast<int>(file.save(path())), Success);
    CDeviceOSReleaseFile again(path(), nullptr);
    QCOMPARE(again.product(), u"aPLATFORM"_s);
    QCOMPARE(again.platform(), QString());
    QCOMPARE(again.qtVersion(), QString());
    QCOMPARE(saved(again), QByteArray("PRODUCT=aPLATFORM"));

    CDeviceOSReleaseFile one(QByteArray("PRODUCT=\"a\"\n"), nullptr);
    QCOMPARE(static_cast<int>(one.save(path())), Success);
    QCOMPARE(CDeviceOSReleaseFile(path(), nullptr).product(), u"a"_s);
}

void tst_cdeviceosreleasefile_saving::saveToBufferReplaces()
{
    CDeviceOSReleaseFile file(Content, nullptr);
    QByteArray buffer(1000, 'x');
    const QByteArray copy = buffer;
    QCOMPARE(static_cast<int>(file.saveToBuffer(buffer)), Success);
    QCOMPARE(buffer, SavedContent);
    QCOMPARE(copy, QByteArray(1000, 'x'));
    QCOMPARE(static_cast<int>(file.saveToBuffer(buffer)), Success);
    QCOMPARE(buffer, SavedContent);

    CDeviceOSReleaseFile empty;
    QCOMPARE(static_cast<int>(empty.saveToBuffer(buffer)), Success);
    QCOMPARE(buffer, QByteArray());
}

void tst_cdeviceosreleasefile_saving::saveFails_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("missing directory") << u"missing/os-release"_s;
    QTest::newRow("directory") << u"."_s;
    QTest::newRow("file as directory") << u"file/os-release"_s;
    QTest::newRow("link to a missing directory") << u"dangling"_s;
    QTest::newRow("pipe that nobody reads") << u"pipe"_s;
    QTest::newRow("device without space") << u"/dev/full"_s;
    QTest::newRow("null character in the name") << u"file\0"_s;
    QTest::newRow("name that is too long") << QString(300, QLatin1Char('x'));
    QTest::newRow("no name") << QString();
}

void tst_cdeviceosreleasefile_saving::saveFails()
{
    QFETCH(QString, name);

    QVERIFY(Files::write(path(u"file"_s), "old"));
    QVERIFY(QFile::link(path(u"missing/os-release"_s), path(u"dangling"_s)));
    QCOMPARE(mkfifo(QFile::encodeName(path(u"pipe"_s)).constData(), 0600), 0);
    const QStringList before = names();

    const MessageCatcher catcher;
    RecordingLog log;
    CDeviceOSReleaseFile file(Content, &log);
    const QString fileName = name.isEmpty() ? name : QDir(m_directory->path()).filePath(name);
    QCOMPARE(static_cast<int>(file.save(fileName)), WriteFailure);
    QCOMPARE(saved(file), SavedContent);
    QVERIFY(catcher.messages().isEmpty());
    QVERIFY(log.entries().isEmpty());
    QCOMPARE(names(), before);
    QCOMPARE(Files::read(path(u"file"_s)), QByteArray("old"));
}

void tst_cdeviceosreleasefile_saving::saveReadOnlyFile()
{
    QVERIFY(Files::write(path(), "old"));
    const OrdinaryUser user(m_directory->path(), {u"os-release"_s});
    QVERIFY(user.isOk());
    QVERIFY(QFile::setPermissions(path(), QFileDevice::ReadOwner));
    CDeviceOSReleaseFile file(Content, nullptr);
    QCOMPARE(static_cast<int>(file.save(path())), WriteFailure);
    QCOMPARE(saved(file), SavedContent);
    QCOMPARE(Files::read(path()), QByteArray("old"));
    QCOMPARE(names(), QStringList(u"os-release"_s));
}

void tst_cdeviceosreleasefile_saving::saveIntoReadOnlyDirectory()
{
    QVERIFY(Files::write(path(), QByteArray(1000, 'x')));
    const OrdinaryUser user(m_directory->path(), {u"os-release"_s});
    QVERIFY(user.isOk());
    const QFileDevice::Permissions all = QFile::permissions(m_directory->path());
    QVERIFY(
        QFile::setPermissions(m_directory->path(), QFileDevice::ReadOwner | QFileDevice::ExeOwner));
    CDeviceOSReleaseFile file(Content, nullptr);
    const int old = file.save(path());
    const int added = file.save(path(u"new"_s));
    QVERIFY(QFile::setPermissions(m_directory->path(), all));

    QCOMPARE(old, Success);
    QCOMPARE(Files::read(path()), SavedContent);
    QCOMPARE(added, WriteFailure);
    QCOMPARE(saved(file), SavedContent);
    QCOMPARE(names(), QStringList(u"os-release"_s));
}

void tst_cdeviceosreleasefile_saving::saveOnFullDisk()
{
    QVERIFY(Files::write(path(), "old"));
    const MessageCatcher catcher;
    RecordingLog log;
    CDeviceOSReleaseFile file(&log);
    file.setProduct(QString(100000, QLatin1Char('x')));
    int old = Success;
    int added = Success;
    {
        const FullDisk fullDisk(50000);
        old = file.save(path());
        added = file.save(path(u"new"_s));
    }
    QCOMPARE(old, WriteFailure);
    QCOMPARE(added, WriteFailure);
    QCOMPARE(Files::read(path()), QByteArray("old"));
    QCOMPARE(names(), QStringList(u"os-release"_s));
    QCOMPARE(file.product().size(), 100000);
    QVERIFY(catcher.messages().isEmpty());
    QVERIFY(log.entries().isEmpty());
}

QTEST_APPLESS_MAIN(tst_cdeviceosreleasefile_saving)
#include "tst_cdeviceosreleasefile_saving.moc"
