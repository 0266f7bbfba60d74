#include "configfile/ICDeviceConfigurationFile.h"
#include "settings/CDeviceSettings.h"
#include "settings/CNetworkSettings.h"
#include "support/AllocationCounter.h"
#include "support/LargeConfiguration.h"
#include "support/SampleConfiguration.h"
#include "support/SampleSettings.h"
#include "support/TestProgram.h"
#include "vocabulary/NDeviceConf.h"

#include <QDomDocument>
#include <QFile>
#include <QRegExp>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

#include <dlfcn.h>

using Operation = std::function<void()>;
Q_DECLARE_METATYPE(Operation)

namespace {

using File = ICDeviceConfigurationFile;
using FilePointer = std::unique_ptr<File>;

const int ManyFiles = 10000;

template <typename Run>
qint64 allocationsOf(Run run)
{
    AllocationCounter::start();
    run();
    return AllocationCounter::counts().allocations;
}

void row(const QByteArray &name, const Operation &operation)
{
    QTest::newRow(name.constData()) << operation;
}

/** What any value can do without taking memory. */
template <typename T>
void addValueRows(const QByteArray &name, const T &value)
{
    row(name + ": copy", [=] { T copy(value); });
    row(name + ": assign", [value, other = value]() mutable { other = value; });
    row(name + ": compare with a copy", [value, copy = value] {
        if (value != copy || !(value == copy)) {
            qFatal("A copy differs.");
        }
    });
}

/** Reads @p value through each of @p getters, which are named in @p names. */
template <typename T, typename... Getter>
void addGetterRows(const QByteArray &name, const T &value,
                   std::initializer_list<const char *> names, Getter... getters)
{
    auto getterName = names.begin();
    (row(name + ": " + *getterName++, [=] { (value.*getters)(); }), ...);
}

void addElementRows(const QByteArray &name, const CBaseElement &element)
{
    addGetterRows(name, element,
                  {"name", "comment", "hardwareId", "configurationName", "driveId", "productName"},
                  &CBaseElement::name, &CBaseElement::comment, &CBaseElement::hardwareId,
                  &CBaseElement::configurationName, &CBaseElement::driveId,
                  &CBaseElement::productName);
}

void addDeviceRows(const CDeviceElement &device)
{
    using Device = CDeviceBaseElement;

    addValueRows("device", device);
    addElementRows("device", device);
    addGetterRows("device", device,
                  {"options", "parameterFiles", "odictFile", "faultTextFile", "fpgaFiles",
                   "activeFpgaFile", "opcUaFiles", "etherCatMasterFile", "additionalFiles",
                   "additionalFileCount", "plugins", "executionPlugin", "isOpcUaEnabled", "serial",
                   "deviceClass", "hostAddress", "port", "subDeviceCount", "isNull"},
                  qOverload<>(&Device::options), qOverload<>(&Device::parameterFiles),
                  &Device::odictFile, &Device::faultTextFile, qOverload<>(&Device::fpgaFiles),
                  &Device::activeFpgaFile, &Device::opcUaFiles, &Device::etherCatMasterFile,
                  &Device::additionalFiles, &Device::additionalFileCount, &Device::plugins,
                  &Device::executionPlugin, &Device::isOpcUaEnabled, &Device::serial,
                  &Device::deviceClass, &Device::hostAddress, &Device::port,
                  &Device::subDeviceCount, &Device::isNull);
    row("device: additionalFile", [=] { device.additionalFile(0); });
}

void addFileRows()
{
    const CFileElement file = SampleConfiguration::odictFile();
    addValueRows("file", file);
    addGetterRows("file", file, {"fileName", "comment", "devicePath", "projectPath", "isNull"},
                  &CFileElement::fileName, &CFileElement::comment, &CFileElement::devicePath,
                  &CFileElement::projectPath, &CFileElement::isNull);

    const CParamFileElement paramFile = SampleConfiguration::paramFiles().constFirst();
    addValueRows("parameter file", paramFile);
    addGetterRows("parameter file", paramFile, {"name", "type", "comment"},
                  &CParamFileElement::name, &CParamFileElement::type, &CParamFileElement::comment);

    const CPluginElement plugin = SampleConfiguration::plugins().constFirst();
    addValueRows("plug-in", plugin);
    addGetterRows("plug-in", plugin, {"name", "version", "priority"}, &CPluginElement::name,
                  &CPluginElement::version, &CPluginElement::priority);
}

void addSubDeviceRows()
{
    using SubDevice = CSubDeviceKD2Element;

    const SubDevice subDevice = SampleConfiguration::kd2SubDevice();
    addValueRows("sub-device", subDevice);
    addElementRows("sub-device", subDevice);
    addGetterRows("sub-device", subDevice,
                  {"deviceName", "busId", "parameterFile", "kd2ParameterFile", "kd2LogicFile",
                   "kd2FirmwareFile"},
                  &SubDevice::deviceName, &SubDevice::busId, &SubDevice::parameterFile,
                  &SubDevice::kd2ParameterFile, &SubDevice::kd2LogicFile,
                  &SubDevice::kd2FirmwareFile);
}

FilePointer newFile()
{
    return FilePointer(File::instance(nullptr));
}

/** The document of a device with @p fileCount files. */
QByteArray documentBytes(int fileCount)
{
    return LargeConfiguration::bytes(
        *LargeConfiguration::document(LargeConfiguration::device(fileCount)));
}

qint64 allocationsOfOpening(int fileCount)
{
    const QByteArray bytes = documentBytes(fileCount);
    const FilePointer file = newFile();
    return allocationsOf([&] { file->load(bytes); });
}

qint64 allocationsOfConfiguration(int fileCount)
{
    const FilePointer file = LargeConfiguration::document(LargeConfiguration::device(fileCount));
    CDeviceElement device;
    return allocationsOf([&] { file->configuration(device); });
}

qint64 allocationsOfSetConfiguration(int fileCount)
{
    const CDeviceElement device = LargeConfiguration::device(fileCount);
    const FilePointer file = newFile();
    file->createNewDocument();
    return allocationsOf([&] { file->setConfiguration(device); });
}

qint64 allocationsOfSaving(int fileCount)
{
    const FilePointer file = LargeConfiguration::document(LargeConfiguration::device(fileCount));
    QByteArray bytes;
    QString errorText;
    return allocationsOf([&] { file->save(bytes, errorText); });
}

qint64 allocationsOfAppending(int number)
{
    const FilePointer file = LargeConfiguration::document(LargeConfiguration::device(number - 1));
    const CFileElement appended = LargeConfiguration::file(number - 1);
    // Something may be prepared once for all.
    file->appendAdditionalFile(LargeConfiguration::file(number));
    return allocationsOf([&] { file->appendAdditionalFile(appended); });
}

} // namespace

class tst_allocations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void none_data();
    void none();
    void growth_data();
    void growth();
    void appending();
    void memoryOfOpenDocument();
    void loading();
    void expressionsAreNotCompiledWhileLoading_data();
    void expressionsAreNotCompiledWhileLoading();
};

void tst_allocations::initTestCase()
{
    if (!AllocationCounter::isAvailable()) {
        QSKIP("A sanitizer has its own heap.", 0);
    }
}

void tst_allocations::none_data()
{
    QTest::addColumn<Operation>("operation");

    addDeviceRows(SampleConfiguration::device());
    addFileRows();
    addSubDeviceRows();
    addValueRows("description", SampleConfiguration::description());
    addValueRows("hardware identity", CDeviceHardwareId(u"KD3:Servo:1:2:3"_s));
    addValueRows("device settings", SampleSettings::settings(u"Press"_s, {{1, u"Feed"_s}}));
    addValueRows("network settings", CNetworkSettings());
}

void tst_allocations::none()
{
    QFETCH(Operation, operation);
    operation();
    QCOMPARE(allocationsOf(operation), qint64(0));
}

void tst_allocations::growth_data()
{
    QTest::addColumn<qint64>("few");
    QTest::addColumn<qint64>("many");

    const auto growthRow = [](const char *name, qint64 (*allocations)(int)) {
        QTest::newRow(name) << allocations(ManyFiles / 10) << allocations(ManyFiles);
    };
    growthRow("open", allocationsOfOpening);
    growthRow("configuration", allocationsOfConfiguration);
    growthRow("setConfiguration", allocationsOfSetConfiguration);
    growthRow("save", allocationsOfSaving);
}

void tst_allocations::growth()
{
    QFETCH(qint64, few);
    QFETCH(qint64, many);
    QVERIFY(few > 0);
    QVERIFY2(2 * many <= 21 * few, qPrintable(u"%1, then %2"_s.arg(few).arg(many)));
}

void tst_allocations::appending()
{
    const qint64 second = allocationsOfAppending(2);
    const qint64 last = allocationsOfAppending(ManyFiles);
    QVERIFY2(last <= second + 5, qPrintable(u"%1, then %2"_s.arg(second).arg(last)));
}

void tst_allocations::memoryOfOpenDocument()
{
    const QByteArray bytes = documentBytes(ManyFiles);

    AllocationCounter::start();
    const FilePointer file = newFile();
    QVERIFY(file->load(bytes));
    const qint64 ours = AllocationCounter::counts().currentBytes;

    AllocationCounter::start();
    QDomDocument document;
    QVERIFY(document.setContent(bytes));
    const qint64 theirs = AllocationCounter::counts().currentBytes;

    QVERIFY2(10 * ours <= 8 * theirs, qPrintable(u"%1 instead of %2"_s.arg(ours).arg(theirs)));
}

void tst_allocations::loading()
{
    // A function, because a program has its own copy of a constant.
    Dl_info library = {};
    QVERIFY(dladdr(reinterpret_cast<void *>(&File::instance), &library) != 0);
    const QTemporaryDir directory;
    const QString copy = directory.filePath(u"copy.so"_s);
    QVERIFY(QFile::copy(QFile::decodeName(library.dli_fname), copy));

    // The library is there already, but a copy of its file counts as another one, and gets
    // constants of its own when it looks for them in itself first.
    const QByteArray path = QFile::encodeName(copy);
    void *loaded = nullptr;
    const qint64 allocations =
        allocationsOf([&] { loaded = dlopen(path.constData(), RTLD_NOW | RTLD_DEEPBIND); });
    QVERIFY2(loaded != nullptr, dlerror());
    QVERIFY2(allocations > 0 && allocations <= 50, qPrintable(QString::number(allocations)));
}

void tst_allocations::expressionsAreNotCompiledWhileLoading_data()
{
    QTest::addColumn<QString>("pattern");

    QTest::newRow("factory") << NDeviceConf::FACTORY_CONFIGURATION_PATTERN;
    QTest::newRow("failsafe") << NDeviceConf::FAILSAFE_CONFIGURATION_PATTERN;
    QTest::newRow("mount error") << NDeviceConf::MOUNTERROR_CONFIGURATION_PATTERN;
    QTest::newRow("name check") << NDeviceConf::NAME_CHECK_PATTERN;
}

void tst_allocations::expressionsAreNotCompiledWhileLoading()
{
    QFETCH(QString, pattern);

    // Qt compiles a pattern only when no expression that is in use has it compiled already.
    const qint64 first = allocationsOf([&] { QRegExp expression(pattern); });
    const QRegExp inUse(pattern);
    const qint64 again = allocationsOf([&] { QRegExp expression(pattern); });
    QVERIFY2(first > 5 * again, qPrintable(u"%1, then %2"_s.arg(first).arg(again)));
}

REGISTER_GUILESS_TEST(tst_allocations)
#include "tst_allocations.moc"
