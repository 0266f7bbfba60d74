#include "settings/CNetworkSettingsFile.h"
#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/Literals.h"
#include "support/NetworkTexts.h"
#include "support/OrdinaryUser.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>

using namespace NetworkTexts;

Q_DECLARE_METATYPE(CNetworkSettings)

namespace {

QByteArray defaultText()
{
    return fileText({"UNKNOWN", "000.000.000.000", "255.255.000.000", "000.000.000.000",
                     "000.000.000.000", "", "UNKNOWN", "000.000.000.000", "6666", "4"});
}

} // namespace

/** What is written, and which name is remembered. */
class tst_cnetworksettingsfile_saving : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void openFails_data();
    void openFails();
    void openUnreadable();
    void constructorOpens();

    void writes_data();
    void writes();
    void writesWhateverTheStreamIsSetTo_data();
    void writesWhateverTheStreamIsSetTo();
    void bufferIsReplaced_data();
    void bufferIsReplaced();
    void saves_data();
    void saves();
    void saveRemembersTheName();
    void openRemembersTheName();
    void saveWithoutName();
    void failedSaveIsNotRemembered_data();
    void failedSaveIsNotRemembered();
    void roundTrip_data();
    void roundTrip();

private:
    QString path(const QString &name = u"network.conf"_s) const
    {
        return m_directory->filePath(name);
    }

    /** What a file with this content gives; a default value when it cannot be read. */
    S read(const QByteArray &content) const
    {
        CNetworkSettingsFile file;
        return Files::write(path(), content) && file.open(path()) == 0 ? file.networkSettings()
                                                                       : S();
    }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_cnetworksettingsfile_saving::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void tst_cnetworksettingsfile_saving::openFails_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("missing file") << u"missing"_s;
    QTest::newRow("missing directory") << u"missing/network.conf"_s;
    QTest::newRow("directory") << u"directory"_s;
    QTest::newRow("the directory itself") << u"."_s;
    QTest::newRow("pipe") << u"pipe"_s;
    QTest::newRow("link to nothing") << u"dangling"_s;
    QTest::newRow("link to itself") << u"loop"_s;
    QTest::newRow("link to a directory") << u"to-directory"_s;
    QTest::newRow("file in place of directory") << u"network.conf/network.conf"_s;
    QTest::newRow("null character behind a name") << u"network.conf\u0000"_s;
    QTest::newRow("too long") << QString(256, QLatin1Char('x'));
}

void tst_cnetworksettingsfile_saving::openFails()
{
    QFETCH(QString, name);

    QVERIFY(Files::write(path(), "MODE=DHCP\n"));
    QVERIFY(QDir(m_directory->path()).mkdir(u"directory"_s));
    QCOMPARE(mkfifo(QFile::encodeName(path(u"pipe"_s)).constData(), 0666), 0);
    QVERIFY(QFile::link(u"missing"_s, path(u"dangling"_s)));
    QVERIFY(QFile::link(u"loop"_s, path(u"loop"_s)));
    QVERIFY(QFile::link(u"directory"_s, path(u"to-directory"_s)));
    const QStringList names = Files::names(m_directory->path());

    CNetworkSettingsFile file(path());
    file.setNetworkSettings(full());
    QCOMPARE(int(file.open(m_directory->path() + u"/"_s + name)), 1);
    QVERIFY(file.networkSettings() == full());
    QCOMPARE(Files::names(m_directory->path()), names);
    // The name remembered is still that of the file read before.
    QCOMPARE(int(file.save()), 0);
    QCOMPARE(Files::read(path()), fullText());
    QCOMPARE(Files::names(m_directory->path()), names);
}

void tst_cnetworksettingsfile_saving::openUnreadable()
{
    QVERIFY(Files::write(path(), "MODE=DHCP\n"));
    const OrdinaryUser user(m_directory->path(), {u"network.conf"_s});
    QVERIFY(user.isOk());
    QVERIFY(QFile::setPermissions(path(), QFileDevice::WriteOwner));
    CNetworkSettingsFile file;
    file.setNetworkSettings(full());
    QCOMPARE(int(file.open(path())), 1);
    QVERIFY(file.networkSettings() == full());
    QCOMPARE(int(file.save()), 1);
}

void tst_cnetworksettingsfile_saving::constructorOpens()
{
    QVERIFY(Files::write(path(), reference(u"full.conf"_s)));
    CNetworkSettingsFile file(path());
    QVERIFY(file.networkSettings() == full());
    QVERIFY(QFile::remove(path()));
    QCOMPARE(int(file.save()), 0);
    QCOMPARE(Files::read(path()), fullText());

    CNetworkSettingsFile failed(path(u"missing"_s));
    QVERIFY(failed.networkSettings() == S());
    QCOMPARE(int(failed.save()), 1);
    QCOMPARE(Files::names(m_directory->path()), QStringList{u"network.conf"_s});
}

void tst_cnetworksettingsfile_saving::writes_data()
{
    QTest::addColumn<CNetworkSettings>("settings");
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("default") << S() << defaultText();
    QTest::newRow("full") << full() << fullText();
    QTest::newRow("missing") << missing()
                             << fileText({"DISABLED", "0.0.0.0", "255.255.0.0", "0.0.0.0",
                                          "0.0.0.0", "0.0.0.0", "UNKNOWN", "0.0.0.0", "6666", "4"});
    S odd;
    odd.setMode(static_cast<S::ENetworkMode>(9));
    odd.setNtpMode(static_cast<S::ENtpMode>(-1));
    odd.setNtpAddress(u"gr\u00f6\u00dfe.\u8ef8"_s);
    odd.setNetConsolePort(4294967295u);
    odd.setKernelLogLevel(u"007"_s);
    QTest::newRow("odd values") << odd
                                << fileText({"UNKNOWN", "000.000.000.000", "255.255.000.000",
                                             "000.000.000.000", "000.000.000.000",
                                             "gr\xC3\xB6\xC3\x9F"
                                             "e.\xE8\xBB\xB8",
                                             "UNKNOWN", "000.000.000.000", "4294967295", "007"});
}

void tst_cnetworksettingsfile_saving::writes()
{
    QFETCH(CNetworkSettings, settings);
    QFETCH(QByteArray, text);

    CNetworkSettingsFile file;
    file.setNetworkSettings(settings);
    QByteArray buffer;
    QCOMPARE(int(file.saveToBuffer(buffer)), 0);
    QCOMPARE(buffer, text);
    QCOMPARE(int(file.save(path())), 0);
    QCOMPARE(Files::read(path()), text);

    QString written;
    QTextStream stream(&written);
    static_cast<const CNetworkSettingsFile &>(file).write(stream);
    QCOMPARE(written, QString::fromUtf8(text));
    QVERIFY(file.networkSettings() == settings);
}

void tst_cnetworksettingsfile_saving::writesWhateverTheStreamIsSetTo_data()
{
    QTest::addColumn<int>("base");
    QTest::addColumn<int>("width");

    QTest::newRow("hexadecimal") << 16 << 0;
    QTest::newRow("octal") << 8 << 0;
    QTest::newRow("field width") << 10 << 12;
    QTest::newRow("hexadecimal with field width") << 16 << 100;
}

void tst_cnetworksettingsfile_saving::writesWhateverTheStreamIsSetTo()
{
    QFETCH(int, base);
    QFETCH(int, width);

    CNetworkSettingsFile file;
    file.setNetworkSettings(full());
    QByteArray written;
    QTextStream stream(&written);
    stream.setIntegerBase(base);
    stream.setNumberFlags(QTextStream::ShowBase | QTextStream::ForceSign);
    stream.setFieldWidth(width);
    stream.setPadChar(QLatin1Char('_'));
    file.write(stream);
    stream.flush();
    QCOMPARE(written, fullText());
}

void tst_cnetworksettingsfile_saving::bufferIsReplaced_data()
{
    QTest::addColumn<QByteArray>("old");

    QTest::newRow("null") << QByteArray();
    QTest::newRow("shorter") << QByteArray("old");
    QTest::newRow("longer") << QByteArray(100000, 'x');
    QTest::newRow("the same") << fullText();
}

void tst_cnetworksettingsfile_saving::bufferIsReplaced()
{
    QFETCH(QByteArray, old);

    CNetworkSettingsFile file;
    file.setNetworkSettings(full());
    QByteArray buffer = old;
    const QByteArray copy = buffer;
    QCOMPARE(int(file.saveToBuffer(buffer)), 0);
    QCOMPARE(buffer, fullText());
    QCOMPARE(copy, old);
    // No name comes of it.
    QCOMPARE(int(file.save()), 1);
}

void tst_cnetworksettingsfile_saving::saves_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("default") << u"default.conf"_s << defaultText();
    QTest::newRow("full") << u"full.conf"_s << fullText();
}

void tst_cnetworksettingsfile_saving::saves()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, text);

    QCOMPARE(text.count('\n'), 31);
    QCOMPARE(reference(name), text);
    QVERIFY(Files::write(path(), reference(name) + QByteArray(5000, '#')));
    CNetworkSettingsFile file(path());
    QCOMPARE(int(file.save(path())), 0);
    QCOMPARE(Files::read(path()), text);
    QCOMPARE(int(file.save(path(u"new.conf"_s))), 0);
    QCOMPARE(Files::read(path(u"new.conf"_s)), text);
    QCOMPARE(Files::names(m_directory->path()), (QStringList{u"network.conf"_s, u"new.conf"_s}));
}

void tst_cnetworksettingsfile_saving::saveRemembersTheName()
{
    QVERIFY(Files::write(path(u"read.conf"_s), "MODE=DHCP\n"));
    CNetworkSettingsFile file(path(u"read.conf"_s));
    QCOMPARE(int(file.save(path(u"first.conf"_s))), 0);
    QCOMPARE(int(file.save(path(u"second.conf"_s))), 0);
    file.setNetworkSettings(full());
    QCOMPARE(int(file.save()), 0);
    QCOMPARE(Files::read(path(u"second.conf"_s)), fullText());
    QVERIFY(Files::read(path(u"first.conf"_s)) != fullText());
    QCOMPARE(Files::read(path(u"read.conf"_s)), QByteArray("MODE=DHCP\n"));
}

void tst_cnetworksettingsfile_saving::openRemembersTheName()
{
    QVERIFY(Files::write(path(u"first.conf"_s), "MODE=DHCP\n"));
    QVERIFY(Files::write(path(u"second.conf"_s), "MODE=STATIC\n"));
    CNetworkSettingsFile file(path(u"first.conf"_s));
    QCOMPARE(int(file.open(path(u"second.conf"_s))), 0);
    file.setNetworkSettings(full());
    QCOMPARE(int(file.save()), 0);
    QCOMPARE(Files::read(path(u"first.conf"_s)), QByteArray("MODE=DHCP\n"));
    QCOMPARE(Files::read(path(u"second.conf"_s)), fullText());
}

void tst_cnetworksettingsfile_saving::saveWithoutName()
{
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_directory->path()));
    CNetworkSettingsFile file;
    const int result = file.save();
    const int resultOfEmpty = file.save(u""_s);
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(result, 1);
    QCOMPARE(resultOfEmpty, 1);
    QCOMPARE(Files::names(m_directory->path()), QStringList());
}

void tst_cnetworksettingsfile_saving::failedSaveIsNotRemembered_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("hasSpace");
    QTest::addColumn<int>("result");

    QTest::newRow("missing directory") << u"missing/network.conf"_s << true << 1;
    QTest::newRow("directory") << u"."_s << true << 1;
    QTest::newRow("full disk") << u"other.conf"_s << false << 5;
}

void tst_cnetworksettingsfile_saving::failedSaveIsNotRemembered()
{
    QFETCH(QString, name);
    QFETCH(bool, hasSpace);

    QVERIFY(Files::write(path(), "MODE=DHCP\n"));
    CNetworkSettingsFile file(path());
    file.setNetworkSettings(full());
    int result = 0;
    {
        const FullDisk disk(hasSpace ? RLIM_INFINITY : 10);
        result = file.save(path(name));
    }
    QTEST(result, "result");
    QVERIFY(file.networkSettings() == full());
    QCOMPARE(Files::names(m_directory->path()), QStringList{u"network.conf"_s});
    QCOMPARE(Files::read(path()), QByteArray("MODE=DHCP\n"));
    QCOMPARE(int(file.save()), 0);
    QCOMPARE(Files::read(path()), fullText());
}

void tst_cnetworksettingsfile_saving::roundTrip_data()
{
    QTest::addColumn<CNetworkSettings>("settings");

    QTest::newRow("full") << full();
    for (int mode = 0; mode <= 4; ++mode) {
        S settings = full();
        settings.setMode(static_cast<S::ENetworkMode>(mode));
        QTest::addRow("mode %d", mode) << settings;
    }
    for (int mode = 0; mode <= 3; ++mode) {
        S settings = full();
        settings.setNtpMode(static_cast<S::ENtpMode>(mode));
        QTest::addRow("NTP mode %d", mode) << settings;
    }
    S settings = full();
    settings.setNetConsolePort(4294967295u);
    settings.setNtpAddress(u"zeit.gr\u00f6\u00dfe,@x"_s);
    settings.setKernelLogLevel(u"00"_s);
    QTest::newRow("odd values") << settings;
}

void tst_cnetworksettingsfile_saving::roundTrip()
{
    QFETCH(CNetworkSettings, settings);

    CNetworkSettingsFile file;
    file.setNetworkSettings(settings);
    QCOMPARE(int(file.save(path())), 0);
    QVERIFY(CNetworkSettingsFile(path()).networkSettings() == settings);
}

QTEST_GUILESS_MAIN(tst_cnetworksettingsfile_saving)
#include "tst_cnetworksettingsfile_saving.moc"
