#include "commissioning/CConfigurationCheck.h"
#include "commissioning/CConfigurationItems.h"
#include "commissioning/CDeviceManifest.h"
#include "configfile/CDeviceConfigurationFile10.h"
#include "support/AllocationCounter.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/MessageCatcher.h"
#include "support/OrdinaryUser.h"
#include "support/Threads.h"

#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

namespace {

QString dataDirectory(const QString &name)
{
    return QStringLiteral(VRN_TEST_DATA_DIR "/check/") + name;
}

QString validFile(const QString &name)
{
    return dataDirectory(u"valid/"_s) + name;
}

QString invalidFile(const QString &name)
{
    return dataDirectory(u"invalid/%1.3deco"_s.arg(name));
}

/** "line:column rule item" */
QString told(const SConfigurationFinding &finding)
{
    return u"%1:%2 %3 %4"_s
        .arg(QString::number(finding.position.line), QString::number(finding.position.column),
             finding.rule, finding.item)
        .trimmed();
}

QStringList told(const CConfigurationCheck &check)
{
    QStringList result;
    for (const SConfigurationFinding &finding : check.findings()) {
        result << told(finding);
    }
    return result;
}

QStringList rules(const CConfigurationCheck &check)
{
    QStringList result;
    for (const SConfigurationFinding &finding : check.findings()) {
        result << finding.rule;
    }
    return result;
}

struct SInvalid {
    const char *name;
    QList<const char *> findings;
};

/** The files in tests/data/check/invalid, and everything that is wrong with them. */
const QList<SInvalid> InvalidFiles = {
    {"version-missing", {"2:1 version-missing"}},
    {"version-empty", {"2:1 version-missing"}},
    {"version-no-revision", {"2:1 version-invalid"}},
    {"version-later", {"2:1 version-other"}},
    {"version-previous", {"2:1 version-other"}},
    {"element-unknown", {"81:4 element-unknown device"}},
    {"element-in-other-case", {"114:4 element-unknown drive[0]"}},
    {"element-in-a-text", {"18:13 element-unknown device.class"}},
    {"element-unknown-in-a-list", {"96:5 element-unknown device.plugins"}},
    {"element-misplaced", {"22:3 element-misplaced device"}},
    {"parameter-file-with-directory",
     {"26:29 element-misplaced device.parameterFiles[UnitParams]"}},
    {"root-in-root", {"9:2 element-misplaced"}},
    {"device-twice", {"164:2 element-repeated"}},
    {"dictionary-with-two-files", {"45:5 element-repeated device.dictionary"}},
    {"three-names", {"126:22 element-repeated drive[254]", "126:36 element-repeated drive[254]"}},
    {"attribute-unknown", {"22:3 attribute-unknown device"}},
    {"attribute-in-other-case",
     {"109:3 attribute-unknown drive[0]", "109:3 drive-type-missing drive[0].type"}},
    {"text-between-elements", {"22:3 text-unexpected device"}},
    {"text-in-section", {"81:4 text-unexpected files"}},
    {"head-date", {"5:3 date-invalid"}},
    {"creation-date", {"13:3 date-invalid description.creationDate"}},
    {"revision-date", {"14:3 date-invalid description.revisionDate"}},
    {"revised-before-created", {"14:3 date-order description.revisionDate"}},
    {"device-missing", {"2:1 device-missing"}},
    {"class-missing", {"16:2 device-class-missing device.class"}},
    {"class-empty", {"18:3 device-class-missing device.class"}},
    {"class-undefined", {"18:3 device-class-undefined device.class"}},
    {"class-unknown", {"18:3 device-class-unknown device.class"}},
    {"class-in-capitals", {"18:3 device-class-unknown device.class"}},
    {"device-name-missing", {"16:2 device-name-missing device.name"}},
    {"config-missing", {"16:2 config-missing device"}},
    {"configuration-name-missing", {"16:2 configuration-name-missing device.configurationName"}},
    {"configuration-name-empty", {"21:3 configuration-name-empty device.configurationName"}},
    {"configuration-name-setup", {"21:3 configuration-name-reserved device.configurationName"}},
    {"configuration-name-mount-error",
     {"21:3 configuration-name-reserved device.configurationName"}},
    {"configuration-name-failsafe", {"21:3 configuration-name-reserved device.configurationName"}},
    {"configuration-name-with-umlaut",
     {"21:3 configuration-name-invalid device.configurationName"}},
    {"configuration-name-with-number-inside",
     {"21:3 configuration-name-invalid device.configurationName"}},
    {"configuration-name-too-long", {"21:3 configuration-name-invalid device.configurationName"}},
    {"hardware-id-of-device", {"17:3 hardware-id-invalid device.hardwareId"}},
    {"hardware-id-of-drive", {"110:4 hardware-id-invalid drive[0].hardwareId"}},
    {"hardware-id-other-prefix", {"110:4 hardware-id-mismatch drive[0].hardwareId"}},
    {"hardware-id-other-name", {"110:4 hardware-id-mismatch drive[0].hardwareId"}},
    {"hardware-id-other-platform", {"110:4 hardware-id-mismatch drive[0].hardwareId"}},
    {"option-without-hyphen", {"23:4 option-invalid device.options[trace]"}},
    {"option-without-name", {"23:4 option-invalid device.options[-]"}},
    {"options-on-lines", {"23:4 option-invalid device.options"}},
    {"option-twice", {"23:4 option-twice device.options[-trace][2]"}},
    {"opc-ua-flag-in-capitals", {"63:5 opc-ua-flag-invalid device.opcUaEnabled"}},
    {"opc-ua-flag-number", {"63:5 opc-ua-flag-invalid device.opcUaEnabled"}},
    {"opc-ua-option-missing", {"63:5 opc-ua-mismatch device.opcUaEnabled"}},
    {"opc-ua-option-surplus", {"23:4 opc-ua-mismatch device.options[-opc]"}},
    {"opc-ua-option-without-flag", {"23:4 opc-ua-mismatch device.options[-opc]"}},
    {"parameter-type-missing",
     {"25:5 parameter-type-missing device.parameterFiles[UnitParams].type"}},
    {"parameter-type-undefined",
     {"25:5 parameter-type-undefined device.parameterFiles[UnitParams].type"}},
    {"parameter-type-unknown",
     {"25:5 parameter-type-unknown device.parameterFiles[UnitParams].type"}},
    {"parameter-type-in-other-case",
     {"25:5 parameter-type-unknown device.parameterFiles[UnitParams].type"}},
    {"parameter-file-twice", {"38:6 parameter-file-twice device.parameterFiles[Machine][3]"}},
    {"parameter-files-overwrite-each-other", {"37:5 file-twice device.parameterFiles[Machine][3]"}},
    {"parameter-file-without-name", {"26:6 file-name-missing device.parameterFiles[]"}},
    {"fpga-file-twice", {"59:6 fpga-file-twice device.fpgaFiles[main.bit][2]"}},
    {"fpga-file-without-name", {"58:5 file-name-missing device.fpgaFiles[]"}},
    {"fpga-file-with-directory", {"59:6 file-name-invalid device.fpgaFiles[old/spare.bit]"}},
    {"plugin-without-name", {"102:6 plugin-name-missing device.plugins[]"}},
    {"plugin-without-version", {"101:5 plugin-version-missing device.plugins[motion].version"}},
    {"plugin-version-with-letter",
     {"98:6 plugin-version-invalid device.plugins[CECatMaster].version"}},
    {"plugin-version-with-dot-at-end",
     {"98:6 plugin-version-invalid device.plugins[CECatMaster].version"}},
    {"plugin-twice", {"107:6 plugin-twice device.plugins[motion][2]"}},
    {"plugin-with-directory", {"102:6 file-name-invalid device.plugins[lib/motion]"}},
    {"plugins-of-one-file", {"106:5 file-twice device.plugins[pi_motion]"}},
    {"priority-no-number", {"99:6 priority-invalid device.plugins[CECatMaster].priority"}},
    {"priority-too-high", {"99:6 priority-invalid device.plugins[CECatMaster].priority"}},
    {"execution-plugin-unknown", {"107:4 execution-plugin-unknown device.executionPlugin"}},
    {"ethercat-file-missing", {"88:5 ethercat-file-missing device.plugins[CECatMaster]"}},
    {"ethercat-plugin-missing", {"73:4 ethercat-plugin-missing device.etherCatMasterFile"}},
    {"drive-type-missing", {"109:3 drive-type-missing drive[0].type"}},
    {"drive-type-undefined", {"109:3 drive-type-undefined drive[0].type"}},
    {"drive-type-unknown", {"109:3 drive-type-unknown drive[0].type"}},
    {"drive-type-in-lower-case", {"124:3 drive-type-unknown drive[254].type"}},
    {"kd3-drive-with-kd2-files",
     {"138:4 drive-type-mismatch drive[254]", "146:4 drive-type-mismatch drive[254]",
      "154:4 drive-type-mismatch drive[254]"}},
    {"drive-number-missing", {"109:3 drive-number-missing drive[].driveNo"}},
    {"drive-number-empty", {"113:4 drive-number-missing drive[].driveNo"}},
    {"drive-number-no-number", {"113:4 drive-number-invalid drive[first].driveNo"}},
    {"drive-number-negative", {"113:4 drive-number-invalid drive[-1].driveNo"}},
    {"drive-number-fraction", {"113:4 drive-number-invalid drive[1.0].driveNo"}},
    {"drive-number-unassigned", {"113:4 drive-number-invalid drive[255].driveNo"}},
    {"drive-number-too-high", {"113:4 drive-number-invalid drive[256].driveNo"}},
    {"drive-number-much-too-high", {"113:4 drive-number-invalid drive[4294967296].driveNo"}},
    {"drive-number-twice", {"128:4 drive-number-twice drive[0][2].driveNo"}},
    {"drive-name-missing", {"111:4 drive-name-missing drive[0].name"}},
    {"drive-name-twice", {"126:4 drive-name-twice drive[254].name"}},
    {"bus-id-no-number", {"114:4 bus-id-invalid drive[0].busId"}},
    {"bus-id-too-high", {"114:4 bus-id-invalid drive[0].busId"}},
    {"bus-id-twice", {"129:4 bus-id-twice drive[254].busId"}},
    {"file-without-name", {"82:5 file-name-missing files[]"}},
    {"file-entry-empty", {"82:5 file-name-missing files[]"}},
    {"file-name-with-slash", {"83:6 file-name-invalid files[a/recipes.csv]"}},
    {"file-name-with-backslash", {"83:6 file-name-invalid files[a\\\\recipes\\].csv]"}},
    {"file-name-with-line-break", {"83:6 file-name-invalid files[recipes.csv\n     ]"}},
    {"file-name-dots", {"83:6 file-name-invalid files[..]"}},
    {"file-twice", {"88:5 file-twice files[recipes.csv][2]"}},
    {"two-files-in-one-place", {"88:5 device-file-conflict files[recipes.csv][2]"}},
    {"file-in-place-of-configuration",
     {"82:5 device-file-conflict files[DeviceConfiguration.3deco]"}},
    {"file-in-place-of-parameters", {"82:5 device-file-conflict files[UnitParams.3pdef]"}},
    {"file-in-place-of-fpga-image", {"82:5 device-file-conflict files[main.bit]"}},
    {"plugin-in-place-of-file", {"101:5 device-file-conflict device.plugins[motion]"}},
    {"drives-share-a-place", {"131:5 device-file-conflict drive[254].param"}},
    {"device-path-missing", {"85:6 device-path-missing files[recipes.csv].deviceDir"}},
    {"device-path-absent", {"82:5 device-path-missing files[recipes.csv].deviceDir"}},
    {"device-path-without-slash", {"85:6 device-path-relative files[recipes.csv].deviceDir"}},
    {"device-path-with-dots", {"85:6 device-path-climbs files[recipes.csv].deviceDir"}},
    {"device-path-out-with-dots", {"85:6 device-path-climbs files[recipes.csv].deviceDir"}},
    {"device-path-outside-elsewhere", {"85:6 device-path-outside files[recipes.csv].deviceDir"}},
    {"device-path-outside-root", {"85:6 device-path-outside files[recipes.csv].deviceDir"}},
    {"device-path-outside-other-company",
     {"85:6 device-path-outside files[recipes.csv].deviceDir"}},
    {"device-path-outside-opt", {"85:6 device-path-outside files[recipes.csv].deviceDir"}},
    {"device-path-outside-relative", {"85:6 device-path-outside files[recipes.csv].deviceDir"}},
    {"device-path-of-other-configuration",
     {"85:6 device-path-other-configuration files[recipes.csv].deviceDir"}},
    {"device-path-of-other-configuration-opt",
     {"85:6 device-path-other-configuration files[recipes.csv].deviceDir"}},
    {"project-path-absolute", {"86:6 project-path-absolute files[recipes.csv].projectDir"}},
    {"project-path-with-drive-letter",
     {"86:6 project-path-absolute files[recipes.csv].projectDir"}},
    {"project-path-outside", {"86:6 project-path-outside files[recipes.csv].projectDir"}},
    {"project-path-parent", {"86:6 project-path-outside files[recipes.csv].projectDir"}},
    {"dictionary-outside-device-directory",
     {"43:6 project-path-ignored device.dictionary.projectDir"}},
    {"fault-texts-outside-device-directory",
     {"51:6 project-path-ignored device.faultTextFile.projectDir"}},
    {"many-faults",
     {"14:3 date-order description.revisionDate", "18:3 device-class-unknown device.class",
      "23:4 option-invalid device.options[x]", "23:4 option-twice device.options[-opc][2]",
      "59:6 fpga-file-twice device.fpgaFiles[main.bit][2]",
      "85:6 device-path-outside files[recipes.csv].deviceDir",
      "86:6 project-path-absolute files[recipes.csv].projectDir",
      "109:3 attribute-unknown drive[0]", "109:3 drive-type-unknown drive[0].type",
      "128:4 drive-number-invalid drive[256].driveNo", "164:2 element-unknown"}},
};

struct SProjectFault {
    const char *name;
    /** What happens to the project of the valid document "complete". */
    std::function<bool(const QDir &)> spoil;
    QList<const char *> findings;
};

bool resize(const QDir &project, const QString &path, const QByteArray &content)
{
    return Files::write(project.filePath(path), content);
}

bool rename(const QDir &project, const QString &from, const QString &to)
{
    return QDir(project).rename(from, to);
}

bool replaceByLink(const QDir &project, const QString &path, const QString &target)
{
    return QFile::remove(project.filePath(path)) && QFile::link(target, project.filePath(path));
}

/** The manifest that tells the project as it is. */
bool writeManifest(const QDir &project, const QStringList &paths)
{
    QList<CDeviceManifest::SEntry> entries;
    for (const QString &path : paths) {
        CDeviceManifest::SEntry entry;
        entry.devicePath = u"velkor/"_s + path;
        entry.projectPath = path;
        QString errorText;
        if (!CDeviceManifest::measure(project.filePath(path), entry.size, entry.sha256,
                                      errorText)) {
            return false;
        }
        entries.append(entry);
    }
    CDeviceManifest manifest;
    manifest.setEntries(entries);
    return Files::write(project.filePath(CDeviceManifest::fileName()), manifest.toJson());
}

const QString Recipes = u"Common/recipes/recipes.csv"_s;
const QString Infeed = u"Press/0/param/Infeed.3param"_s;

const QList<SProjectFault> ProjectFaults = {
    {"nothing", [](const QDir &) { return true; }, {}},
    {"additional file missing",
     [](const QDir &p) { return QFile::remove(p.filePath(Recipes)); },
     {"82:5 project-file-missing files[recipes.csv]"}},
    {"drive's file missing",
     [](const QDir &p) { return QFile::remove(p.filePath(Infeed)); },
     {"116:5 project-file-missing drive[0].param"}},
    {"dictionary missing",
     [](const QDir &p) { return QFile::remove(p.filePath(u"Press/opt/conf/Dictionary.xml"_s)); },
     {"39:5 project-file-missing device.dictionary"}},
    {"both parameter files missing",
     [](const QDir &p) {
         return QFile::remove(p.filePath(u"Press/opt/velkor/etc/conf/UnitParams.3param"_s))
             && QFile::remove(p.filePath(u"Press/opt/velkor/etc/conf/UnitParams.3pdef"_s));
     },
     {"25:5 project-file-missing device.parameterFiles[UnitParams]",
      "25:5 project-file-missing device.parameterFiles[UnitParams]"}},
    {"file of the old series missing",
     [](const QDir &p) { return QFile::remove(p.filePath(u"Press/velkor/param/Machine.xml"_s)); },
     {"33:5 project-file-missing device.parameterFiles[Machine][2]"}},
    {"FPGA image missing",
     [](const QDir &p) {
         return QFile::remove(p.filePath(u"Press/opt/velkor/etc/conf/spare.bit"_s));
     },
     {"58:5 project-file-missing device.fpgaFiles[spare.bit]"}},
    {"plug-in missing",
     [](const QDir &p) {
         return QFile::remove(p.filePath(u"Press/opt/velkor/plugins/app/pi_motion.so.2"_s));
     },
     {"101:5 project-file-missing device.plugins[motion]"}},
    {"directory missing",
     [](const QDir &p) { return QDir(p.filePath(u"Common"_s)).removeRecursively(); },
     {"82:5 project-file-missing files[recipes.csv]",
      "88:5 project-file-missing files[limits.csv]"}},
    {"link to nothing",
     [](const QDir &p) { return replaceByLink(p, Recipes, u"nowhere.csv"_s); },
     {"82:5 project-file-missing files[recipes.csv]"}},
    {"link in a circle",
     [](const QDir &p) { return replaceByLink(p, Recipes, u"recipes.csv"_s); },
     {"82:5 project-file-missing files[recipes.csv]"}},
    {"file where a directory is looked for",
     [](const QDir &p) {
         return QDir(p.filePath(u"Common/recipes"_s)).removeRecursively()
             && Files::write(p.filePath(u"Common/recipes"_s), "x");
     },
     {"82:5 project-file-missing files[recipes.csv]",
      "88:5 project-file-missing files[limits.csv]"}},
    {"name in other case",
     [](const QDir &p) { return rename(p, Recipes, u"Common/recipes/Recipes.CSV"_s); },
     {"82:5 project-file-other-case files[recipes.csv]"}},
    {"directory in other case",
     [](const QDir &p) { return rename(p, u"Common"_s, u"COMMON"_s); },
     {"82:5 project-file-other-case files[recipes.csv]",
      "88:5 project-file-other-case files[limits.csv]"}},
    {"both cases there",
     [](const QDir &p) { return Files::write(p.filePath(u"Common/recipes/RECIPES.csv"_s), "x"); },
     {}},
    {"empty file",
     [](const QDir &p) { return resize(p, Recipes, QByteArray()); },
     {"82:5 project-file-empty files[recipes.csv]"}},
    {"directory of that name",
     [](const QDir &p) { return QFile::remove(p.filePath(Recipes)) && QDir(p).mkpath(Recipes); },
     {"82:5 project-file-not-regular files[recipes.csv]"}},
    {"pipe of that name",
     [](const QDir &p) {
         const QByteArray path = QFile::encodeName(p.filePath(Recipes));
         return QFile::remove(p.filePath(Recipes)) && mkfifo(path.constData(), 0600) == 0;
     },
     {"82:5 project-file-not-regular files[recipes.csv]"}},
    {"link inside the project",
     [](const QDir &p) { return replaceByLink(p, Recipes, u"limits.csv"_s); },
     {}},
    {"link out of the project",
     [](const QDir &p) { return replaceByLink(p, Recipes, u"/etc/passwd"_s); },
     {"82:5 project-file-outside files[recipes.csv]"}},
    {"directory linked out of the project",
     [](const QDir &p) {
         return rename(p, u"Common/recipes"_s, u"../recipes"_s)
             && QFile::link(u"../../recipes"_s, p.filePath(u"Common/recipes"_s));
     },
     {"82:5 project-file-outside files[recipes.csv]",
      "88:5 project-file-outside files[limits.csv]"}},
    {"beside a directory whose name begins alike",
     [](const QDir &p) {
         return QDir(p).mkdir(u"../project2"_s) && rename(p, Recipes, u"../project2/recipes.csv"_s)
             && QFile::link(u"../../../project2/recipes.csv"_s, p.filePath(Recipes));
     },
     {"82:5 project-file-outside files[recipes.csv]"}},
    {"as the manifest tells",
     [](const QDir &p) {
         return writeManifest(p, {Recipes, Infeed});
     },
     {}},
    {"larger than the manifest tells",
     [](const QDir &p) { return writeManifest(p, {Recipes}) && resize(p, Recipes, "xyz"); },
     {"82:5 project-file-changed files[recipes.csv]"}},
    {"other content of the same size",
     [](const QDir &p) { return writeManifest(p, {Recipes}) && resize(p, Recipes, "y"); },
     {"82:5 project-file-changed files[recipes.csv]"}},
    {"changed file that the manifest does not tell",
     [](const QDir &p) { return writeManifest(p, {Infeed}) && resize(p, Recipes, "y"); },
     {}},
    {"no manifest, but something of that name",
     [](const QDir &p) { return Files::write(p.filePath(CDeviceManifest::fileName()), "{]"); },
     {"0:0 manifest-invalid"}},
    {"directory in place of the manifest",
     [](const QDir &p) { return QDir(p).mkdir(CDeviceManifest::fileName()); },
     {"0:0 manifest-invalid"}},
    {"manifest that is a link to nothing",
     [](const QDir &p) {
         return QFile::link(u"nowhere"_s, p.filePath(CDeviceManifest::fileName()));
     },
     {"0:0 manifest-invalid"}},
    {"several at once",
     [](const QDir &p) {
         return writeManifest(p, {Recipes}) && resize(p, Recipes, "y")
             && QFile::remove(p.filePath(Infeed)) && resize(p, u"Press/conf/nodes.xml"_s, "");
     },
     {"65:6 project-file-empty device.opcUaFiles[nodes.xml]",
      "82:5 project-file-changed files[recipes.csv]", "116:5 project-file-missing drive[0].param"}},
};

/** Creates every file that the valid document "complete" refers to, with one byte in it. */
bool createProject(const QDir &project)
{
    CDeviceConfigurationFile10 file(nullptr);
    CDeviceElement device;
    if (!file.open(validFile(u"complete.3deco"_s)) || !file.configuration(device)) {
        return false;
    }
    const QList<CFileElement> files = device.allFiles(NvrnDeviceCore::DEVICE_FILE_ALL);
    return files.size() == 20
        && std::all_of(files.cbegin(), files.cend(), [&project](const CFileElement &element) {
               return project.mkpath(element.projectPath())
                   && Files::write(project.filePath(element.projectFilePath()), "x");
           });
}

QByteArray document(const QByteArray &config)
{
    return "<VornDeviceConfig version=\"1.0\"><Device><Class>kd3</Class><Name>N</Name>"
           "<ConfigurationName>STD</ConfigurationName><Config>"
        + config + "</Config></Device></VornDeviceConfig>";
}

QStringList rulesIn(const QList<const char *> &findings)
{
    QStringList rules;
    for (const char *finding : findings) {
        rules << QString::fromUtf8(finding).section(QLatin1Char(' '), 1, 1);
    }
    return rules;
}

QStringList texts(const QList<const char *> &findings)
{
    QStringList result;
    for (const char *finding : findings) {
        result << QString::fromUtf8(finding);
    }
    return result;
}

} // namespace

/** Each rule finds what it is there for, where it stands, and nothing else. */
class tst_CConfigurationCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void validFiles_data();
    void validFiles();
    void exampleIsValid();
    void invalidFiles_data();
    void invalidFiles();
    void everyInvalidFileIsListed();
    void project_data();
    void project();
    void unreadableFileInTheProject();
    void unreadableDirectoryInTheProject();
    void projectDirectory();
    void everyRuleHasAnExample();
    void rulesAreWellFormed();
    void severities_data();
    void severities();
    void documentsOfTheRules();
    void itemsAreThoseOfTheDocument();
    void texts_data();
    void texts();
    void unreadable_data();
    void unreadable();
    void failuresArePosted();
    void versionsAreNotPosted();
    void oneObjectForManyDocuments();
    void longTextsAreShortened();
    void manyFindings();
    void endlessFindings();
    void deepDocument();
    void longReservedName();
    void namelessDeviceInAProject();
    void nothingIsKept();
    void severalThreads();
};

void tst_CConfigurationCheck::validFiles_data()
{
    QTest::addColumn<QString>("path");
    const QDir directory(dataDirectory(u"valid"_s));
    for (const QString &name : directory.entryList({u"*.3deco"_s}, QDir::Files, QDir::Name)) {
        QTest::newRow(qPrintable(name)) << directory.filePath(name);
    }
}

void tst_CConfigurationCheck::validFiles()
{
    QFETCH(QString, path);
    CConfigurationCheck check;
    QVERIFY2(check.open(path), qPrintable(check.errorText()));
    QCOMPARE(told(check), QStringList());
}

void tst_CConfigurationCheck::exampleIsValid()
{
    const QString directory = QStringLiteral(VRN_SOURCE_DIR "/examples/packaging-line");
    CConfigurationCheck check;
    QVERIFY(check.open(directory + u"/DeviceConfiguration.3deco"_s));
    QCOMPARE(told(check), QStringList());
    QVERIFY(check.setProjectDirectory(directory));
    QVERIFY(check.open(directory + u"/DeviceConfiguration.3deco"_s));
    QCOMPARE(told(check), QStringList());
}

void tst_CConfigurationCheck::invalidFiles_data()
{
    QTest::addColumn<QStringList>("findings");
    for (const SInvalid &invalid : InvalidFiles) {
        QTest::newRow(invalid.name) << ::texts(invalid.findings);
    }
}

void tst_CConfigurationCheck::invalidFiles()
{
    QFETCH(QStringList, findings);
    const QString path = invalidFile(QString::fromUtf8(QTest::currentDataTag()));
    CConfigurationCheck check;
    QVERIFY2(check.open(path), qPrintable(check.errorText()));
    QCOMPARE(told(check), findings);
    CConfigurationCheck fromMemory;
    QVERIFY(fromMemory.load(Files::read(path)));
    QCOMPARE(told(fromMemory), findings);
}

void tst_CConfigurationCheck::everyInvalidFileIsListed()
{
    QStringList listed;
    for (const SInvalid &invalid : InvalidFiles) {
        listed << QString::fromUtf8(invalid.name) + u".3deco"_s;
    }
    listed.sort();
    QStringList present = Files::names(dataDirectory(u"invalid"_s));
    present.sort();
    QCOMPARE(listed, present);
}

void tst_CConfigurationCheck::project_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < ProjectFaults.size(); ++i) {
        QTest::newRow(ProjectFaults.at(i).name) << i;
    }
}

void tst_CConfigurationCheck::project()
{
    QFETCH(int, index);
    const SProjectFault &fault = ProjectFaults.at(index);
    const QTemporaryDir directory;
    const QDir project(directory.filePath(u"project"_s));
    QVERIFY(createProject(project));
    QVERIFY(fault.spoil(project));
    CConfigurationCheck check;
    QVERIFY(check.setProjectDirectory(project.path()));
    QVERIFY(check.open(validFile(u"complete.3deco"_s)));
    QCOMPARE(told(check), ::texts(fault.findings));
}

void tst_CConfigurationCheck::unreadableFileInTheProject()
{
    const QTemporaryDir directory;
    QVERIFY(createProject(directory.path()));
    const QString path = directory.filePath(Recipes);
    QVERIFY(QFile::setPermissions(path, QFileDevice::Permissions()));
    QVERIFY(QFile::setPermissions(directory.path(), QFileDevice::Permissions(0x7755)));
    const OrdinaryUser user;
    QVERIFY(user.isOk());
    CConfigurationCheck check;
    QVERIFY(check.setProjectDirectory(directory.path()));
    QVERIFY(check.open(validFile(u"complete.3deco"_s)));
    QCOMPARE(told(check), {u"82:5 project-file-unreadable files[recipes.csv]"_s});
}

void tst_CConfigurationCheck::unreadableDirectoryInTheProject()
{
    const QTemporaryDir directory;
    QVERIFY(createProject(directory.path()));
    QVERIFY(QFile::remove(directory.filePath(Recipes)));
    const QString recipes = directory.filePath(u"Common/recipes"_s);
    QVERIFY(QFile::setPermissions(directory.path(), QFileDevice::Permissions(0x7755)));
    // Nobody may list it, but who knows a name may use it.
    QVERIFY(QFile::setPermissions(recipes, QFileDevice::Permissions(0x1111)));
    {
        const OrdinaryUser user;
        QVERIFY(user.isOk());
        CConfigurationCheck check;
        QVERIFY(check.setProjectDirectory(directory.path()));
        QVERIFY(check.open(validFile(u"complete.3deco"_s)));
        QCOMPARE(told(check), {u"82:5 project-file-missing files[recipes.csv]"_s});
        QVERIFY(!check.setProjectDirectory(recipes));
        QCOMPARE(check.errorText(), recipes + u": The directory cannot be read."_s);
    }
    QVERIFY(QFile::setPermissions(recipes, QFileDevice::Permissions(0x7777)));
}

void tst_CConfigurationCheck::projectDirectory()
{
    const QTemporaryDir directory;
    CConfigurationCheck check;
    QCOMPARE(check.projectDirectory(), QString());
    QVERIFY(!check.setProjectDirectory(directory.filePath(u"none"_s)));
    QCOMPARE(check.errorText(),
             directory.filePath(u"none"_s) + u": The directory does not exist."_s);
    QVERIFY(!check.setProjectDirectory(validFile(u"complete.3deco"_s)));
    QCOMPARE(check.projectDirectory(), QString());
    QVERIFY(check.setProjectDirectory(directory.path()));
    QCOMPARE(check.errorText(), QString());
    QCOMPARE(check.projectDirectory(), directory.path());

    // Of what is not there, everything is missing; without a directory nobody looks.
    QVERIFY(check.open(validFile(u"complete.3deco"_s)));
    QCOMPARE(check.findings().size(), 20);
    QVERIFY(check.setProjectDirectory(QString()));
    QVERIFY(check.open(validFile(u"complete.3deco"_s)));
    QCOMPARE(check.findings().size(), 0);
}

void tst_CConfigurationCheck::everyRuleHasAnExample()
{
    // The two that need more than a table.
    QSet<QString> shown = {u"project-file-unreadable"_s, u"findings-left-out"_s};
    for (const SInvalid &invalid : InvalidFiles) {
        for (const QString &rule : rulesIn(invalid.findings)) {
            shown.insert(rule);
        }
    }
    for (const SProjectFault &fault : ProjectFaults) {
        for (const QString &rule : rulesIn(fault.findings)) {
            shown.insert(rule);
        }
    }
    QStringList listed;
    for (const CConfigurationCheck::SRule &rule : CConfigurationCheck::rules()) {
        listed << rule.id;
    }
    listed.sort();
    QStringList sortedShown = shown.values();
    sortedShown.sort();
    QCOMPARE(sortedShown, listed);
}

void tst_CConfigurationCheck::rulesAreWellFormed()
{
    static const QRegularExpression words(u"\\A[a-z0-9]+(-[a-z0-9]+)+\\z"_s);
    const QList<CConfigurationCheck::SRule> rules = CConfigurationCheck::rules();
    QVERIFY(rules.size() > 60);
    QSet<QString> ids;
    QSet<QString> descriptions;
    for (const CConfigurationCheck::SRule &rule : rules) {
        QVERIFY2(words.match(rule.id).hasMatch(), qPrintable(rule.id));
        QVERIFY2(rule.description.endsWith(QLatin1Char('.')), qPrintable(rule.description));
        QVERIFY2(!rule.hint.isEmpty(), qPrintable(rule.id));
        ids.insert(rule.id);
        descriptions.insert(rule.description);
    }
    QCOMPARE(ids.size(), rules.size());
    QCOMPARE(descriptions.size(), rules.size());
}

void tst_CConfigurationCheck::severities_data()
{
    QTest::addColumn<QString>("rule");
    const QSet<QString> warnings = {
        u"version-other"_s,
        u"date-order"_s,
        u"configuration-name-missing"_s,
        u"ethercat-file-missing"_s,
        u"ethercat-plugin-missing"_s,
        u"drive-name-missing"_s,
        u"bus-id-twice"_s,
        u"device-path-missing"_s,
        u"device-path-relative"_s,
        u"device-path-other-configuration"_s,
    };
    QTest::addColumn<bool>("isWarning");
    for (const CConfigurationCheck::SRule &rule : CConfigurationCheck::rules()) {
        QTest::newRow(qPrintable(rule.id)) << rule.id << warnings.contains(rule.id);
    }
}

void tst_CConfigurationCheck::severities()
{
    QFETCH(QString, rule);
    QFETCH(bool, isWarning);
    const auto expected = isWarning ? SConfigurationFinding::WARNING : SConfigurationFinding::ERROR;
    for (const CConfigurationCheck::SRule &candidate : CConfigurationCheck::rules()) {
        if (candidate.id == rule) {
            QCOMPARE(candidate.severity, expected);
        }
    }
    // The findings tell the same.
    for (const SInvalid &invalid : InvalidFiles) {
        if (rulesIn(invalid.findings).contains(rule)) {
            CConfigurationCheck check;
            QVERIFY(check.open(invalidFile(QString::fromUtf8(invalid.name))));
            for (const SConfigurationFinding &finding : check.findings()) {
                QVERIFY(finding.rule != rule || finding.severity == expected);
            }
        }
    }
}

void tst_CConfigurationCheck::documentsOfTheRules()
{
    const QString page =
        QString::fromUtf8(Files::read(QStringLiteral(VRN_SOURCE_DIR "/docs/rules.md")));
    static const QRegularExpression heading(
        u"^### ([a-z0-9-]+)\\n\\n(Error|Warning)\\. ([^\\n]+(?:\\n[^\\n]+)*)\\n\\n"
        u"```xml\\n[^`]+```\\n\\n\\*\\*Hint:\\*\\* "
        u"([^\\n]+(?:\\n[^\\n]+)*)\\n"_s,
        QRegularExpression::MultilineOption);
    QStringList documented;
    auto matches = heading.globalMatch(page);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        documented << u"%1 %2 %3 %4"_s.arg(
            match.captured(1), match.captured(2), match.captured(3).simplified(),
            match.captured(4).simplified().replace(QLatin1Char('`'), QLatin1Char('\'')));
    }
    QStringList expected;
    for (const CConfigurationCheck::SRule &rule : CConfigurationCheck::rules()) {
        const bool isError = rule.severity == SConfigurationFinding::ERROR;
        expected << u"%1 %2 %3 %4"_s.arg(rule.id, isError ? u"Error"_s : u"Warning"_s,
                                         rule.description, rule.hint);
    }
    QCOMPARE(documented, expected);
    QCOMPARE(page.count(u"\n### "_s), expected.size());
}

void tst_CConfigurationCheck::itemsAreThoseOfTheDocument()
{
    for (const SInvalid &invalid : InvalidFiles) {
        CDeviceConfigurationFile10 file(nullptr);
        const MessageCatcher catcher;
        QVERIFY(file.open(invalidFile(QString::fromUtf8(invalid.name))));
        const CConfigurationItems items(file);
        const QStringList lists = {u"device"_s, u"device.options"_s, u"device.plugins"_s,
                                   u"files"_s, u"device.class"_s};
        for (const QString &finding : ::texts(invalid.findings)) {
            const QString item = finding.section(QLatin1Char(' '), 2);
            const QString entry = item.section(QLatin1Char('.'), 0, -2);
            // An item that is missing is one that its entry can have.
            QVERIFY2(item.isEmpty() || lists.contains(item) || items.contains(item)
                         || items.contains(entry) || item.startsWith(u"device."_s)
                         || item.contains(u"[]"_s),
                     qPrintable(u"%1: %2"_s.arg(QString::fromUtf8(invalid.name), item)));
        }
    }
}

void tst_CConfigurationCheck::texts_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("found");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("hint");
    const auto row = [](const char *name, const QString &message, const QString &found,
                        const QString &expected, const QString &hint) {
        QTest::newRow(name) << message << found << expected << hint;
    };
    row("drive-type-in-lower-case",
        u"Unknown drive type 'kd2_drive'; the drive is read as 'KD3_drive'."_s, u"kd2_drive"_s,
        u"KD2_drive, KD3_drive"_s, u"Write 'KD2_drive'; upper and lower case are distinguished."_s);
    row("drive-type-undefined",
        u"The type of the drive is 'Undefined'; it is read as 'KD3_drive'."_s, u"UNKNOWN_drive"_s,
        u"KD2_drive, KD3_drive"_s,
        u"Write 'KD2_drive' or 'KD3_drive'; the drive is read as 'KD3_drive'."_s);
    row("drive-number-too-high", u"'256' is not a valid drive number."_s, u"256"_s,
        u"a number from 0 to 254"_s, u"The drive is read with the next free number."_s);
    row("drive-number-unassigned", u"'255' is not a valid drive number."_s, u"255"_s,
        u"a number from 0 to 254"_s, u"This number means that no number is assigned."_s);
    row("drive-number-twice", u"The drive number 0 is already used by drive[0]."_s, u"00"_s,
        u"a unique number"_s, u"The drive is read with the next free number."_s);
    row("class-in-capitals", u"Unknown device class 'KD3'; it is read as 'Undefined'."_s, u"KD3"_s,
        u"kc2, kd3"_s, u"Write 'kd3'; upper and lower case are distinguished."_s);
    row("class-unknown", u"Unknown device class 'kd4'; it is read as 'Undefined'."_s, u"kd4"_s,
        u"kc2, kd3"_s,
        u"Write 'kc2' or 'kd3' in lower case; anything else is read as 'Undefined'."_s);
    row("version-later", u"The document was created with a later version."_s, u"1.10"_s, u"1.0"_s,
        u"The document is read as version 1.0; save it again with this version."_s);
    row("version-previous", u"The document was created with a previous version."_s, u"0.9"_s,
        u"1.0"_s, u"The document is read as version 1.0; save it again with this version."_s);
    row("element-in-other-case", u"Unknown element 'busId'; it is ignored."_s, u"busId"_s,
        u"HardwareId, Name, Comment, DriveNo, BusId, Param, KD2Param, KD2Logic, KD2Firmware"_s,
        u"Write 'BusId'; upper and lower case are distinguished."_s);
    row("element-in-a-text", u"Unknown element 'b'; it is ignored."_s, u"b"_s, u"only text"_s,
        u"Remove the element, or correct its name."_s);
    row("element-misplaced", u"'Options' does not belong in 'Device'; it is ignored."_s,
        u"Options"_s, u"in Config"_s, u"Move the element to where it belongs, or remove it."_s);
    row("root-in-root",
        u"'VornDeviceConfig' does not belong in 'VornDeviceConfig'; it is ignored."_s,
        u"VornDeviceConfig"_s, u"at the top of the document"_s,
        u"Move the element to where it belongs, or remove it."_s);
    row("text-between-elements", u"'Config' contains text, which is ignored."_s, u"-trace"_s,
        u"only elements"_s,
        u"Remove the text, or move it into the element for which it is meant."_s);
    row("attribute-unknown", u"Unknown attribute 'mode' of the element 'Config'; it is ignored."_s,
        u"mode=\"fast\""_s, u""_s, u"Remove the attribute."_s);
    row("opc-ua-flag-in-capitals", u"'TRUE' is neither true nor false; it is read as false."_s,
        u"TRUE"_s, u"true, false"_s, u"Write 'true'; upper and lower case are distinguished."_s);
    row("plugin-without-version", u"The plug-in 'motion' has no version."_s, u""_s,
        u"numbers separated by dots, such as 1.3"_s,
        u"The file name of the plug-in would be 'pi_motion.so.'."_s);
    row("device-path-without-slash",
        u"The directory 'velkor/recipes/' does not begin with a slash."_s, u"velkor/recipes/"_s,
        u"/velkor/recipes/"_s, u"It is read as '/velkor/recipes/'."_s);
    row("device-path-of-other-configuration",
        u"The directory '/velkor/configurations/production/conf/' belongs to the configuration "
        "'production'."_s,
        u"/velkor/configurations/production/conf/"_s, u"a directory of 'production(2)'"_s,
        u"If the configuration was renamed, change the directory accordingly."_s);
    row("two-files-in-one-place",
        u"The file 'recipes.csv' has the same place on the device as the file of "
        u"files[recipes.csv]."_s,
        u"/velkor/recipes/recipes.csv"_s, u"a unique place"_s,
        u"The file that is transferred last overwrites the other one."_s);
    row("hardware-id-other-platform",
        u"The hardware identity 'KD3:Controller 8A:4:7:9' does not match that of the device."_s,
        u"KD3:Controller 8A:4:7:9"_s, u"prefix, name and platform of 'KD3:Controller 8A:3:2:1'"_s,
        u"A drive must have the prefix, name and platform of its device; version and revision "
        u"may differ. Check whether the drive was copied from another device."_s);
    row("options-on-lines", u"Options are separated by something other than a space."_s, u"\n"_s,
        u"options such as -trace, separated by single spaces"_s,
        u"The device reads this as one word."_s);
}

void tst_CConfigurationCheck::texts()
{
    CConfigurationCheck check;
    QVERIFY(check.open(invalidFile(QString::fromUtf8(QTest::currentDataTag()))));
    QCOMPARE(check.findings().size(), 1);
    const SConfigurationFinding finding = check.findings().constFirst();
    QTEST(finding.message, "message");
    QTEST(finding.found, "found");
    QTEST(finding.expected, "expected");
    QTEST(finding.hint, "hint");
}

void tst_CConfigurationCheck::unreadable_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("errorText");
    QTest::newRow("not well-formed")
        << QByteArray("<VornDeviceConfig>\n <Device>\n</VornDeviceConfig>") << u":3:3: "_s;
    QTest::newRow("empty") << QByteArray() << u":1:1: "_s;
    QTest::newRow("other document type")
        << QByteArray("<VornDeviceSettings version=\"1.0\"/>")
        << u": The document type is 'VornDeviceSettings', but 'VornDeviceConfig' is required."_s;
}

void tst_CConfigurationCheck::unreadable()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, errorText);
    const MessageCatcher catcher;
    const QTemporaryDir directory;
    const QString path = directory.filePath(u"a.3deco"_s);
    QVERIFY(Files::write(path, content));
    CConfigurationCheck check;
    QVERIFY(check.open(invalidFile(u"many-faults"_s)));
    QVERIFY(!check.findings().isEmpty());
    QVERIFY(!check.open(path));
    QVERIFY2(check.errorText().startsWith(path + errorText), qPrintable(check.errorText()));
    QVERIFY(check.findings().isEmpty());

    QVERIFY(!check.load(content));
    const QString withoutName = errorText.mid(errorText.startsWith(u": "_s) ? 2 : 1);
    QVERIFY2(check.errorText().startsWith(withoutName), qPrintable(check.errorText()));

    QVERIFY(!check.open(directory.filePath(u"none"_s)));
    QVERIFY(check.errorText().startsWith(directory.filePath(u"none: "_s)));
    QVERIFY(!check.open(directory.path()));
    QVERIFY(!check.open(QString()));
    QVERIFY(!check.errorText().isEmpty());
    QVERIFY(check.open(validFile(u"minimal.3deco"_s)));
    QCOMPARE(check.errorText(), QString());
}

void tst_CConfigurationCheck::failuresArePosted()
{
    const MessageCatcher catcher;
    CConfigurationCheck check;
    QVERIFY(!check.load("<a/>"));
    QCOMPARE(catcher.criticals(), QStringList(check.errorText()));
    QVERIFY(catcher.warnings().isEmpty());
}

void tst_CConfigurationCheck::versionsAreNotPosted()
{
    const MessageCatcher catcher;
    CConfigurationCheck check;
    for (const QString &name : {u"version-later"_s, u"version-previous"_s, u"version-missing"_s,
                                u"many-faults"_s, u"dictionary-outside-device-directory"_s}) {
        QVERIFY(check.open(invalidFile(name)));
    }
    QVERIFY(catcher.messages().isEmpty());
}

void tst_CConfigurationCheck::oneObjectForManyDocuments()
{
    CConfigurationCheck check;
    for (const SInvalid &invalid : InvalidFiles) {
        QVERIFY(check.open(invalidFile(QString::fromUtf8(invalid.name))));
        QCOMPARE(told(check), ::texts(invalid.findings));
    }
    QVERIFY(check.open(validFile(u"complete.3deco"_s)));
    QCOMPARE(told(check), QStringList());
}

void tst_CConfigurationCheck::longTextsAreShortened()
{
    const QByteArray name(1000000, 'x');
    CConfigurationCheck check;
    QVERIFY(check.load(document("<Files><File mode=\"" + name + "\"><Name>" + name
                                + "/</Name><Nmae/></File></Files><Options>" + name
                                + "</Options><ExecutionPlugin>" + name + "</ExecutionPlugin>")));
    QCOMPARE(check.findings().size(), 5);
    for (const SConfigurationFinding &finding : check.findings()) {
        QVERIFY2(finding.message.size() < 400, qPrintable(finding.message));
        QVERIFY(finding.found.size() < 400);
        QVERIFY(finding.item.size() < 1100);
    }
}

void tst_CConfigurationCheck::manyFindings()
{
    const int count = 20000;
    CConfigurationCheck check;
    QVERIFY(check.load(document(
        "<Files>"
        + QByteArray("<File><Name>a</Name><DeviceDir>/velkor/</DeviceDir></File>").repeated(count)
        + "</Files><Options>" + QByteArray("-a ").repeated(count) + "</Options>")));
    QCOMPARE(check.findings().size(), 2 * (count - 1));
    QCOMPARE(check.findings().constFirst().item, u"files[a][2]"_s);
    QCOMPARE(check.findings().at(count - 2).item, u"files[a][%1]"_s.arg(count));
}

void tst_CConfigurationCheck::endlessFindings()
{
    const int most = 100000;
    CConfigurationCheck check;
    QVERIFY(check.load(document(QByteArray("<a/>").repeated(most))));
    QCOMPARE(check.findings().size(), most);
    QCOMPARE(check.findings().constLast().rule, u"element-unknown"_s);
    QVERIFY(check.load(document(QByteArray("<a/>").repeated(most + 2))));
    QCOMPARE(check.findings().size(), most + 1);
    QCOMPARE(check.findings().constLast().rule, u"findings-left-out"_s);
    QCOMPARE(check.findings().at(most - 1).rule, u"element-unknown"_s);
}

void tst_CConfigurationCheck::longReservedName()
{
    // No directory has such a name: it is not even looked whether it is reserved.
    for (const int size : {256, 1000000}) {
        QByteArray bytes = document(QByteArray());
        bytes.replace("STD", "setup" + QByteArray(size, 'x'));
        CConfigurationCheck check;
        QVERIFY(check.load(bytes));
        QCOMPARE(check.findings().size(), 1);
        QCOMPARE(check.findings().constFirst().rule, u"configuration-name-invalid"_s);
    }
}

void tst_CConfigurationCheck::namelessDeviceInAProject()
{
    // Where files lie that have no directories of their own follows from both names.
    const QByteArray config = "<ParameterFiles><File type=\"VornParameters\"><Name>P</Name></File>"
                              "</ParameterFiles><FPGA_FileNames><File><Name>F</Name></File>"
                              "</FPGA_FileNames>";
    const QTemporaryDir project;
    CConfigurationCheck check;
    QVERIFY(check.setProjectDirectory(project.path()));
    QVERIFY(check.load(document(config)));
    QCOMPARE(check.findings().size(), 3);
    QVERIFY(check.load(document(config).replace("<Name>N</Name>", "")));
    QCOMPARE(check.findings().size(), 1);
    QCOMPARE(check.findings().constFirst().rule, u"device-name-missing"_s);
    QVERIFY(check.load(document(config).replace("STD", "")));
    QCOMPARE(rules(check), QStringList({u"configuration-name-empty"_s, u"project-file-missing"_s}));
    QCOMPARE(check.findings().constLast().item, u"device.fpgaFiles[F]"_s);
}

void tst_CConfigurationCheck::deepDocument()
{
    const int depth = 200;
    CConfigurationCheck check;
    QVERIFY(check.load(document("<Plugins>" + QByteArray("<x>").repeated(depth)
                                + "<Plugin><Name>p</Name><Version>1</Version></Plugin>"
                                + QByteArray("</x>").repeated(depth)
                                + "</Plugins><ExecutionPlugin>p</ExecutionPlugin>")));
    QCOMPARE(check.findings().size(), 1);
    QCOMPARE(check.findings().constFirst().rule, u"element-unknown"_s);
}

void tst_CConfigurationCheck::nothingIsKept()
{
    if (!AllocationCounter::isAvailable()) {
        QSKIP("A sanitizer brings its own heap.", 0);
    }
    CConfigurationCheck check;
    const QString path = invalidFile(u"many-faults"_s);
    QVERIFY(check.open(path));
    AllocationCounter::start();
    QVERIFY(check.open(path));
    const qint64 peakOfOne = AllocationCounter::counts().peakBytes;
    for (int i = 0; i < 50; ++i) {
        QVERIFY(check.open(path));
    }
    QVERIFY2(AllocationCounter::counts().peakBytes < 2 * peakOfOne,
             qPrintable(QString::number(AllocationCounter::counts().peakBytes)));
}

void tst_CConfigurationCheck::severalThreads()
{
    QVERIFY(Threads::run([](int i) {
        CConfigurationCheck check;
        const SInvalid &invalid = InvalidFiles.at(i);
        bool ok = true;
        for (int n = 0; n < 20; ++n) {
            ok = ok && check.open(invalidFile(QString::fromUtf8(invalid.name)))
                && told(check) == ::texts(invalid.findings)
                && check.open(invalidFile(u"configuration-name-setup"_s))
                && check.findings().size() == 1;
        }
        return ok;
    }));
}

QTEST_GUILESS_MAIN(tst_CConfigurationCheck)

#include "tst_cconfigurationcheck.moc"
