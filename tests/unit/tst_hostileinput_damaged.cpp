#include "configfile/CDeviceConfigurationFile10.h"
#include "devicefiles/CDeviceOSReleaseFile.h"
#include "settings/CDeviceSettingsFile.h"
#include "settings/CNetworkSettingsFile.h"
#include "support/AllocationCounter.h"
#include "support/Files.h"
#include "support/HostileDocuments.h"
#include "support/MessageCatcher.h"
#include "support/Places.h"
#include "support/SampleConfiguration.h"
#include "support/SampleSettings.h"
#include "support/TestProgram.h"

#include <QTemporaryDir>
#include <QtTest>

#include <functional>
#include <memory>

using namespace HostileDocuments;

/** Content that is made only when its row runs: some of it is large. */
using Maker = std::function<QByteArray()>;

Q_DECLARE_METATYPE(Maker)

namespace {

/** The same for the small files: what is kept of a short line outweighs it. */
const int SmallFileFactor = 20;

/** Settings behind each of the small files, as far as a text can be written and read again. */
bool isPlain(const CNetworkSettingsFile &file)
{
    for (const QString &key : CNetworkSettingsFile::keys()) {
        const QString value = file.value(key);
        if (value != value.trimmed()
            || value.contains(QRegularExpression(u"[\\\\\",;=@%\\x00-\\x1f]"_s))) {
            return false;
        }
    }
    return true;
}

/** How damaged each byte of a sample is in turn; 0 cuts the sample there. */
const int Damages[] = {0, 0xff, 0x20, 0x01};

QByteArray damaged(const QByteArray &bytes, int at, int damage)
{
    if (damage == 0) {
        return bytes.left(at);
    }
    QByteArray result = bytes;
    result[at] = static_cast<char>(result.at(at) ^ damage);
    return result;
}

void addDamages()
{
    QTest::addColumn<int>("damage");
    for (const int damage : Damages) {
        const QByteArray name = damage == 0
            ? QByteArray("cut")
            : "bits " + QByteArray::number(damage, 16).rightJustified(2, '0') + " flipped";
        QTest::newRow(name.constData()) << damage;
    }
}

/** Every element of a configuration document, each as short as it can be. */
QByteArray smallConfiguration()
{
    using namespace SampleConfiguration;
    CDeviceElement device;
    device.setHardwareId(u"KD3:S:3:2:1"_s);
    device.setDeviceClass(NDeviceConf::DEVICE_CLASS_KD3);
    device.setName(u"P"_s);
    device.setComment(u"\u00fc & \U0001F600"_s);
    device.setOpcUaEnabled(true);
    device.setParameterFiles({paramFile(u"M"_s, NvrnGlobal::PARAM_FILE_PARAMETERS, u"c"_s)});
    device.setOdictFile(file(u"o"_s, u"c"_s, u"/d/"_s, u"P/o/"_s));
    device.setFaultTextFile(file(u"f"_s, QString(), u"/"_s, u"P/"_s));
    device.setFpgaFiles({u"b"_s});
    device.setOpcUaFiles({file(u"u"_s, QString(), u"/u/"_s, QString())});
    device.setEtherCatMasterFile(file(u"e"_s, QString(), u"/e/"_s, QString()));
    device.setAdditionalFiles({file(u"a"_s, u"\r\n"_s, QString(), QString())});
    device.setPlugins({plugin(u"m"_s, u"1"_s, 10)});
    device.setExecutionPlugin(u"m"_s);
    CSubDeviceKD2Element kd2;
    kd2.setHardwareId(u"KD2:F:1:0:2"_s);
    kd2.setName(u"F"_s);
    kd2.setDriveId(0);
    kd2.setBusId(17);
    kd2.setParameterFile(file(u"p"_s, QString(), QString(), QString()));
    kd2.setKd2ParameterFile(file(u"q"_s, QString(), QString(), QString()));
    kd2.setKd2LogicFile(file(u"l"_s, QString(), QString(), QString()));
    kd2.setKd2FirmwareFile(file(u"w"_s, QString(), QString(), QString()));
    device.setSubDevices({kd2});
    CDeviceConfigurationFile10 document(nullptr);
    document.createNewDocument();
    document.setMetaData(metaData());
    document.setDescription(description());
    document.setConfiguration(device);
    QByteArray bytes;
    QString error;
    document.save(bytes, error);
    return bytes;
}

} // namespace

/** Files with bytes that were changed or cut off. */
class tst_hostileinput_damaged : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void damagedConfiguration_data() { addDamages(); }
    void damagedConfiguration();
    void damagedSettings_data() { addDamages(); }
    void damagedSettings();
    void damagedNetworkSettings_data() { addDamages(); }
    void damagedNetworkSettings();
    void damagedReleaseFile_data() { addDamages(); }
    void damagedReleaseFile();
    void hostileSmallFiles_data();
    void hostileSmallFiles();

private:
    QString path(const QString &name = u"a"_s) const { return m_directory->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_hostileinput_damaged::initTestCase()
{
    if (!AllocationCounter::isAvailable()) {
        qInfo("The heap cannot be watched here: how much memory is taken is not tested.");
    }
}

void tst_hostileinput_damaged::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void tst_hostileinput_damaged::damagedConfiguration()
{
    QFETCH(int, damage);

    const QByteArray sample = smallConfiguration();
    const MessageCatcher catcher;
    int readCount = 0;
    for (int at = 0; at < sample.size(); ++at) {
        const QByteArray where = "byte " + QByteArray::number(at);
        CDeviceConfigurationFile10 file(nullptr);
        QString error;
        const QByteArray bytes = damaged(sample, at, damage);
        if (!file.open(bytes, Type, Version, error)) {
            const bool isPlaced = placeIn(error).line > 0;
            QVERIFY2(isPlaced || error.contains(u"document type"_s),
                     qPrintable(QString::fromLatin1(where) + error));
            QVERIFY2(file.domDocument().isNull(), where);
            continue;
        }
        ++readCount;
        QByteArray saved;
        QVERIFY2(file.save(saved, error), qPrintable(QString::fromLatin1(where) + error));
        CDeviceConfigurationFile10 other(nullptr);
        QVERIFY2(other.open(saved, Type, Version, error),
                 qPrintable(QString::fromLatin1(where) + error));
        QVERIFY2(ConfigurationItems::read(other) == ConfigurationItems::read(file), where);
        QVERIFY2(other.metaData() == file.metaData(), where);
        QByteArray again;
        QVERIFY2(other.save(again, error), where);
        QCOMPARE(again, saved);
    }
    // A cut document lacks its end tag; of the others many have only another text.
    QVERIFY(damage == 0 ? readCount <= 1 : readCount < sample.size() / 2);
    QVERIFY(damage == 0 || damage == 0xff || readCount > sample.size() / 10);
}

void tst_hostileinput_damaged::damagedSettings()
{
    QFETCH(int, damage);

    QByteArray sample;
    CDeviceSettingsFile file(nullptr);
    file.setDeviceSettings(SampleSettings::settings(u"P & \u00fc"_s, {{0, u"a"_s}, {255, u""_s}}));
    QCOMPARE(file.saveToBuffer(sample, Version), NvrnGlobal::FILE_RESULT_SUCCESS);
    const MessageCatcher catcher;
    for (int at = 0; at < sample.size(); ++at) {
        const QByteArray where = "byte " + QByteArray::number(at);
        const int criticals = catcher.criticals().size();
        const CDeviceSettings before = file.deviceSettings();
        const NvrnGlobal::EFileResult result =
            file.openFromBuffer(damaged(sample, at, damage), Version);
        if (result != NvrnGlobal::FILE_RESULT_SUCCESS) {
            QVERIFY2(result == NvrnGlobal::FILE_RESULT_FAILURE
                         || result == NvrnGlobal::FILE_RESULT_VERSION_MISMATCH,
                     where);
            QVERIFY2(catcher.criticals().size() == criticals + 1, where);
            QVERIFY2(file.deviceSettings() == before, where);
            continue;
        }
        QByteArray saved;
        QVERIFY2(file.saveToBuffer(saved, Version) == NvrnGlobal::FILE_RESULT_SUCCESS, where);
        CDeviceSettingsFile other(nullptr);
        QVERIFY2(other.openFromBuffer(saved, Version) == NvrnGlobal::FILE_RESULT_SUCCESS, where);
        QVERIFY2(other.deviceSettings() == file.deviceSettings(), where);
    }
}

void tst_hostileinput_damaged::damagedNetworkSettings()
{
    QFETCH(int, damage);

    const QByteArray sample = "# Mode\n"
                              "MODE=STATIC\n"
                              "ADDRESS=192.168.001.010\n"
                              "SUBNETMASK=255.255.255.000\n"
                              "\n"
                              "NTP_TIMESERVER=\n"
                              "NTP_MODE=NTP_DAEMON\n"
                              "NETCON_PORT=51234\n"
                              "KERNEL_LOGLEVEL=7\n";
    int plain = 0;
    for (int at = 0; at < sample.size(); ++at) {
        const QByteArray where = "byte " + QByteArray::number(at);
        QVERIFY(Files::write(path(), damaged(sample, at, damage)));
        CNetworkSettingsFile file;
        QVERIFY2(file.open(path()) == NvrnGlobal::FILE_RESULT_SUCCESS, where);
        QByteArray saved;
        QVERIFY2(file.saveToBuffer(saved) == NvrnGlobal::FILE_RESULT_SUCCESS, where);
        QVERIFY(Files::write(path(), saved));
        CNetworkSettingsFile other;
        QVERIFY2(other.open(path()) == NvrnGlobal::FILE_RESULT_SUCCESS, where);
        if (isPlain(file)) {
            ++plain;
            QVERIFY2(other.networkSettings() == file.networkSettings(), where);
            QByteArray again;
            other.saveToBuffer(again);
            QCOMPARE(again, saved);
        }
    }
    QVERIFY(plain > sample.size() / 2);
}

void tst_hostileinput_damaged::damagedReleaseFile()
{
    QFETCH(int, damage);

    const QByteArray sample = Files::read(Places::data("os-release/os-release"));
    QVERIFY(!sample.isEmpty());
    for (int at = 0; at < sample.size(); ++at) {
        const QByteArray bytes = damaged(sample, at, damage);
        CDeviceOSReleaseFile file;
        QCOMPARE(file.openFromBuffer(bytes), NvrnGlobal::FILE_RESULT_SUCCESS);
        QByteArray saved;
        QCOMPARE(file.saveToBuffer(saved), NvrnGlobal::FILE_RESULT_SUCCESS);
        QVERIFY(!saved.contains('\n'));
        // The same bytes mean the same, from memory and from a file.
        QVERIFY(Files::write(path(), bytes));
        CDeviceOSReleaseFile other;
        QCOMPARE(other.open(path()), NvrnGlobal::FILE_RESULT_SUCCESS);
        QByteArray savedToo;
        QCOMPARE(other.saveToBuffer(savedToo), NvrnGlobal::FILE_RESULT_SUCCESS);
        QCOMPARE(savedToo, saved);
        // All keys follow one another in one line, which keeps what stands before the second "=".
        QCOMPARE(other.openFromBuffer(saved), NvrnGlobal::FILE_RESULT_SUCCESS);
        QCOMPARE(other.isNull(), !saved.contains('='));
    }
}

void tst_hostileinput_damaged::hostileSmallFiles_data()
{
    QTest::addColumn<Maker>("make");

    const auto row = [](const char *name, const Maker &make) { QTest::newRow(name) << make; };
    row("empty", []() { return QByteArray(); });
    row("only a byte order mark", []() { return QByteArray("\xEF\xBB\xBF"); });
    row("10 MB of zeros", []() { return QByteArray(10 * Megabyte, '\0'); });
    row("10 MB of line feeds", []() { return QByteArray(10 * Megabyte, '\n'); });
    row("10 MB in one line", []() { return "MODE=" + QByteArray(10 * Megabyte, 'a'); });
    row("10 MB of keys", []() { return QByteArray("MODE=STATIC\n").repeated(Megabyte); });
    row("many keys", []() {
        QByteArray bytes;
        for (int i = 0; i < 100000; ++i) {
            bytes += "KEY" + QByteArray::number(i) + "=a\n";
        }
        return bytes;
    });
    row("invalid UTF-8", []() { return QByteArray("MODE=\xC0\x80\xED\xA0\x80\xFF\n"); });
    row("UTF-16", []() {
        return utf16(QChar(QChar::ByteOrderMark) + u"MODE=STATIC\n"_s, ByteOrder::Little);
    });
}

void tst_hostileinput_damaged::hostileSmallFiles()
{
    QFETCH(Maker, make);
    const QByteArray bytes = make();

    QVERIFY(Files::write(path(), bytes));
    CNetworkSettingsFile network;
    AllocationCounter::start();
    QCOMPARE(network.open(path()), NvrnGlobal::FILE_RESULT_SUCCESS);
    const qint64 networkPeak = AllocationCounter::counts().peakBytes;
    QVERIFY(networkPeak <= qint64(SmallFileFactor) * bytes.size() + SmallChange);
    QByteArray saved;
    QCOMPARE(network.saveToBuffer(saved), NvrnGlobal::FILE_RESULT_SUCCESS);

    CDeviceOSReleaseFile release;
    AllocationCounter::start();
    QCOMPARE(release.openFromBuffer(bytes), NvrnGlobal::FILE_RESULT_SUCCESS);
    const qint64 releasePeak = AllocationCounter::counts().peakBytes;
    QVERIFY(releasePeak <= qint64(SmallFileFactor) * bytes.size() + SmallChange);
    QCOMPARE(release.saveToBuffer(saved), NvrnGlobal::FILE_RESULT_SUCCESS);
    qDebug("%d bytes: %lld and %lld bytes of heap", bytes.size(), networkPeak, releasePeak);
}

REGISTER_GUILESS_TEST(tst_hostileinput_damaged)
#include "tst_hostileinput_damaged.moc"
