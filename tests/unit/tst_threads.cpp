#include "configfile/ICDeviceConfigurationFile.h"
#include "devicefiles/CDeviceCommData.h"
#include "devicefiles/CDeviceFileSystem.h"
#include "devicefiles/CDeviceOSReleaseFile.h"
#include "devicefiles/CDeviceSystemMessage.h"
#include "devicefiles/COptionModuleFileName.h"
#include "imported/CMessageBoardHelper.h"
#include "imported/CStr.h"
#include "settings/CDeviceSettingsFile.h"
#include "settings/CNetworkSettingsCheck.h"
#include "settings/CNetworkSettingsFile.h"
#include "support/Files.h"
#include "support/Places.h"
#include "support/RecordingLog.h"
#include "support/SampleConfiguration.h"
#include "support/SampleSettings.h"
#include "support/StreamBytes.h"
#include "support/TestProgram.h"
#include "support/Threads.h"
#include "vocabulary/NDeviceConf.h"

#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <memory>
#include <mutex>

// What may be done from several threads at once is done from several threads at once. The results
// are checked, but what this is for is the build with the thread sanitizer.

/** What one thread does, told its number; whether all went well. */
using Work = std::function<bool(int)>;
Q_DECLARE_METATYPE(Work)

namespace {

const int Rounds = 100;

QString text(int thread, int round)
{
    return u"thread %1, round %2"_s.arg(thread).arg(round);
}

/** A place where the threads leave their values for others to take. */
template <typename T>
class Exchange
{
public:
    void swap(T &value)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        std::swap(m_value, value);
    }

private:
    std::mutex m_mutex;
    T m_value;
};

/** Copies, changes, compares and streams values that share their data with @p original. */
template <typename T, typename Change>
Work sharing(const T &original, Change change)
{
    const auto exchange = std::make_shared<Exchange<T>>();
    return [=, bytes = StreamBytes::toBytes(original)](int thread) {
        for (int round = 0; round < Rounds; ++round) {
            const T shared = original;
            T own = shared;
            if (!(own == original) || own != shared) {
                return false;
            }
            change(own, text(thread, round));
            if (own == original || !(shared == original)
                || !(StreamBytes::fromBytes<T>(StreamBytes::toBytes(own)) == own)
                || StreamBytes::toBytes(shared) != bytes) {
                return false;
            }
            T given = own;
            exchange->swap(given);
            change(given, text(thread, -1 - round));
            if (own == original || given == own) {
                return false;
            }
        }
        return true;
    };
}

template <typename T>
Work sharingNamed(const T &original)
{
    return sharing(original, [](T &element, const QString &name) { element.setName(name); });
}

CDeviceElement deviceNamed(const QString &name)
{
    CDeviceElement device = SampleConfiguration::device();
    device.setNameAndAdaptProjectPaths(name);
    return device;
}

using FilePointer = std::unique_ptr<ICDeviceConfigurationFile>;

/** A document that holds @p device. */
FilePointer documentOf(const CDeviceElement &device)
{
    FilePointer file(ICDeviceConfigurationFile::instance(nullptr));
    file->createNewDocument();
    file->setConfiguration(device);
    return file;
}

bool holds(const ICDeviceConfigurationFile &file, const CDeviceElement &device)
{
    CDeviceElement read;
    return file.configuration(read) && read == device;
}

bool configurationInMemory(const QString &name, const QString &)
{
    const CDeviceElement device = deviceNamed(name);
    const FilePointer written = documentOf(device);
    QByteArray bytes;
    QString errorText;
    const FilePointer read(ICDeviceConfigurationFile::instance(nullptr));
    return written->save(bytes, errorText) && read->load(bytes) && holds(*read, device);
}

bool configurationInFile(const QString &name, const QString &path)
{
    const CDeviceElement device = deviceNamed(name);
    const FilePointer read(ICDeviceConfigurationFile::instance(nullptr));
    read->keepPositions(true);
    return documentOf(device)->save(path) && read->open(path) && holds(*read, device)
        && read->position(read->findDeviceElement()).isKnown();
}

bool refusedConfiguration(const QString &name, const QString &)
{
    RecordingLog log(name);
    const FilePointer file(ICDeviceConfigurationFile::instance(&log));
    return !file->load("<VornDeviceConfig><Device>&none;</Device></VornDeviceConfig>")
        && log.entries().constFirst().second.startsWith(u"1:27: "_s);
}

bool deviceSettings(const QString &name, const QString &path)
{
    const CDeviceSettings settings = SampleSettings::settings(name, {{1, name}, {7, u"x"_s}});
    CDeviceSettingsFile file(nullptr);
    file.setDeviceSettings(settings);
    CDeviceSettingsFile read(nullptr);
    return file.save(path, u"1.0"_s) == NvrnGlobal::FILE_RESULT_SUCCESS
        && read.open(path, u"1.0"_s) == NvrnGlobal::FILE_RESULT_SUCCESS
        && read.deviceSettings() == settings;
}

bool networkSettings(const QString &, const QString &path)
{
    CNetworkSettings settings;
    settings.setMode(CNetworkSettings::NETWORK_MODE_STATIC);
    settings.setAddress(u"192.168.1.7"_s);
    CNetworkSettingsFile file;
    file.setNetworkSettings(settings);
    CNetworkSettingsFile read;
    return file.save(path) == NvrnGlobal::FILE_RESULT_SUCCESS
        && read.open(path) == NvrnGlobal::FILE_RESULT_SUCCESS
        && read.networkSettings().address() == settings.address()
        && !CNetworkSettingsCheck::problem(u"NETCON_PORT"_s, u"no number"_s).isEmpty();
}

bool releaseFile(const QString &name, const QString &path)
{
    const QString delivered = Places::data("os-release/os-release");
    CDeviceOSReleaseFile file;
    if (file.open(delivered) != NvrnGlobal::FILE_RESULT_SUCCESS || file.isNull()) {
        return false;
    }
    file.setProduct(name);
    return file.save(path) == NvrnGlobal::FILE_RESULT_SUCCESS && Files::read(path).contains('=')
        && file.product() == name;
}

/** What is set up at its first use, or looked up in common tables. */
bool staticOperations(const QString &, const QString &)
{
    bool isRevision = false;
    QRegExp reserved(NDeviceConf::NAME_CHECK_PATTERN);
    return CStr::stringToRevision(u"1.2.3"_s, &isRevision) == 1002003 && isRevision
        && reserved.exactMatch(u"my setup"_s) && !reserved.exactMatch(u"mine"_s)
        && CDeviceSystemMessage::message(1125) == u"Signal 32: SIGRTMIN+6"_s
        && COptionModuleFileName::isValid(u"OM1_EC_H2_V1_3.bin"_s)
        && CFTPath::fromPath(CFTPath::toPath(CFTPath::fromPath(CDeviceFileSystem::smPath())))
        == CFTPath::fromPath(CDeviceFileSystem::smPath())
        && CDeviceBaseElement::deviceClassString(NDeviceConf::DEVICE_CLASS_KD3) == u"kd3"_s;
}

} // namespace

class tst_threads : public QObject
{
    Q_OBJECT

private slots:
    void ownObjects_data();
    void ownObjects();
    void sharedData_data();
    void sharedData();
    void readingOneObject();
    void handlersComeAndGo();
    void oneLog();
};

// First, so that what is set up at its first use is not there yet.
void tst_threads::ownObjects_data()
{
    QTest::addColumn<Work>("work");

    const auto directory = std::make_shared<QTemporaryDir>();
    const auto row = [=](const char *name, bool (*operation)(const QString &, const QString &)) {
        QTest::newRow(name) << Work([=](int thread) {
            const QString path = directory->filePath(QString::number(thread));
            for (int round = 0; round < Rounds / 10; ++round) {
                if (!operation(text(thread, round), path)) {
                    return false;
                }
            }
            return true;
        });
    };
    row("static operations", staticOperations);
    row("configuration in memory", configurationInMemory);
    row("configuration in a file", configurationInFile);
    row("configuration that is refused", refusedConfiguration);
    row("device settings", deviceSettings);
    row("network settings", networkSettings);
    row("release file", releaseFile);
}

void tst_threads::ownObjects()
{
    QFETCH(Work, work);
    const CMessageBoardHelper::Handler previous = CMessageBoardHelper::installHandler(
        [](CMessageBoardHelper::ESeverity, const QString &, ICLogfile *) {});
    const bool ok = Threads::run(work);
    CMessageBoardHelper::installHandler(previous);
    QVERIFY(ok);
}

void tst_threads::sharedData_data()
{
    using namespace SampleConfiguration;

    QTest::addColumn<Work>("work");
    QTest::newRow("device") << sharingNamed(device());
    QTest::newRow("files of a device")
        << sharing(device(), [](CDeviceElement &element, const QString &name) {
               element.appendAdditionalFile(file(name, name, name, name));
               element.setNameAndAdaptProjectPaths(name);
           });
    QTest::newRow("sub-devices of a device")
        << sharing(device(), [](CDeviceElement &element, const QString &name) {
               CSubDeviceElement subDevice = element.subDevice(7);
               subDevice.setName(name);
               element.insertSubDevice(subDevice, 7);
           });
    QTest::newRow("file") << sharing(
        odictFile(), [](CFileElement &element, const QString &name) { element.setFileName(name); });
    QTest::newRow("parameter file") << sharingNamed(paramFiles().constFirst());
    QTest::newRow("plug-in") << sharingNamed(plugins().constFirst());
    QTest::newRow("description") << sharingNamed(description());
    QTest::newRow("KD2 sub-device") << sharingNamed(kd2SubDevice());
    QTest::newRow("KD3 sub-device") << sharingNamed(kd3SubDevice());
    QTest::newRow("sub-device") << sharingNamed(CSubDeviceElement(kd2SubDevice()));
    QTest::newRow("hardware identity")
        << sharing(CDeviceHardwareId(u"KD3:Servo:1:2:3"_s),
                   [](CDeviceHardwareId &id, const QString &name) { id.setName(name); });
    QTest::newRow("device settings") << sharing(
        SampleSettings::settings(u"Press"_s, {{1, u"Feed"_s}}),
        [](CDeviceSettings &settings, const QString &name) { settings.setSubDeviceName(name, 1); });
    QTest::newRow("network settings")
        << sharing(CNetworkSettings(), [](CNetworkSettings &settings, const QString &name) {
               settings.setAddress(name);
           });
}

void tst_threads::sharedData()
{
    QFETCH(Work, work);
    QVERIFY(Threads::run(work));
}

void tst_threads::readingOneObject()
{
    const CDeviceElement device = SampleConfiguration::device();
    const CDeviceElement same = SampleConfiguration::device();
    QVERIFY(Threads::run([&](int) {
        for (int round = 0; round < Rounds; ++round) {
            if (device != same || device.allFiles() != same.allFiles() || device.isNull()
                || device.subDevice(7).toKD3() != SampleConfiguration::device().subDevice(7).toKD3()
                || device.additionalFile(0).deviceFilePath()
                    != same.additionalFiles().constFirst().deviceFilePath()) {
                return false;
            }
        }
        return true;
    }));
}

void tst_threads::handlersComeAndGo()
{
    std::atomic<int> received{0};
    const CMessageBoardHelper::Handler previous = CMessageBoardHelper::installHandler(
        [&](CMessageBoardHelper::ESeverity, const QString &, ICLogfile *) { ++received; });
    const bool ok = Threads::run([&](int thread) {
        for (int round = 0; round < Rounds; ++round) {
            if (thread == 0) {
                const auto counter = std::make_shared<int>(round);
                CMessageBoardHelper::installHandler(
                    [&received, counter](CMessageBoardHelper::ESeverity, const QString &,
                                         ICLogfile *) { received += *counter >= 0 ? 1 : 0; });
            } else if (round % 2 == 0) {
                CMessageBoardHelper::setDebugWarning(text(thread, round), nullptr);
            } else {
                CMessageBoardHelper::setDebugCritical(text(thread, round), nullptr);
            }
        }
        return true;
    });
    CMessageBoardHelper::installHandler(previous);
    QVERIFY(ok);
    QCOMPARE(received.load(), (Threads::Count - 1) * Rounds);
}

void tst_threads::oneLog()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(u"log"_s);
    {
        const std::unique_ptr<ICLogfile> log(ICLogfile::instance(path, u"author"_s));
        QVERIFY(Threads::run([&](int thread) {
            for (int round = 0; round < Rounds; ++round) {
                log->write(ICLogfile::LEVEL_INFO, text(thread, round));
            }
            return log->author() == u"author"_s;
        }));
    }
    const QByteArray content = Files::read(path);
    for (int thread = 0; thread < Threads::Count; ++thread) {
        for (int round = 0; round < Rounds; ++round) {
            QVERIFY(content.contains(text(thread, round).toUtf8() + '\n'));
        }
    }
}

REGISTER_GUILESS_TEST(tst_threads)
#include "tst_threads.moc"
