#pragma once

#include "commissioning/CConfigurationCheck.h"
#include "commissioning/CDeviceManifest.h"
#include "commissioning/SConfigurationFinding.h"
#include "support/BrokenDocuments.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/Places.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

#include <sys/stat.h>

/** Documents and projects with faults, and all that the check finds in them. */
namespace CheckedDocuments {

inline QString dataDirectory(const QString &name)
{
    return Places::data("check/") + name;
}

inline QString validFile(const QString &name)
{
    return dataDirectory(u"valid/"_s) + name;
}

/** "line:column rule item" */
inline QString told(const SConfigurationFinding &finding)
{
    return u"%1:%2 %3 %4"_s
        .arg(QString::number(finding.position.line), QString::number(finding.position.column),
             finding.rule, finding.item)
        .trimmed();
}

inline QStringList told(const CConfigurationCheck &check)
{
    QStringList result;
    for (const SConfigurationFinding &finding : check.findings()) {
        result << told(finding);
    }
    return result;
}

inline QStringList rules(const CConfigurationCheck &check)
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

/** The broken documents, and everything that is wrong with them. */
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
    {"file-entry-empty", {"82:5 file-name-missing files"}},
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

inline bool resize(const QDir &project, const QString &path, const QByteArray &content)
{
    return Files::write(project.filePath(path), content);
}

inline bool rename(const QDir &project, const QString &from, const QString &to)
{
    return QDir(project).rename(from, to);
}

inline bool replaceByLink(const QDir &project, const QString &path, const QString &target)
{
    return QFile::remove(project.filePath(path)) && QFile::link(target, project.filePath(path));
}

/** The manifest that tells the project as it is. */
inline bool writeManifest(const QDir &project, const QStringList &paths)
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

inline QByteArray document(const QByteArray &config)
{
    return "<VornDeviceConfig version=\"1.0\"><Device><Class>kd3</Class><Name>N</Name>"
           "<ConfigurationName>STD</ConfigurationName><Config>"
        + config + "</Config></Device></VornDeviceConfig>";
}

inline QStringList texts(const QList<const char *> &findings)
{
    QStringList result;
    for (const char *finding : findings) {
        result << QString::fromUtf8(finding);
    }
    return result;
}

} // namespace CheckedDocuments
