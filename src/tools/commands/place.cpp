#include "tools/Command.h"
#include "tools/ConfigurationJson.h"
#include "tools/Input.h"
#include "tools/Output.h"

namespace {

struct SPlacedFile {
    /** Untranslated, as the JSON form has it. */
    const char *kind;
    CFileElement file;
};

struct SKind {
    NvrnDeviceCore::EDeviceFile file;
    const char *name;
};

const SKind Kinds[] = {
    {NvrnDeviceCore::DEVICE_FILE_PARAMETER_VALUES,
     QT_TRANSLATE_NOOP("vrndevice", "parameter values")},
    {NvrnDeviceCore::DEVICE_FILE_PARAMETER_DEFINITION,
     QT_TRANSLATE_NOOP("vrndevice", "parameter definition")},
    {NvrnDeviceCore::DEVICE_FILE_OBJECT_DICTIONARY,
     QT_TRANSLATE_NOOP("vrndevice", "object dictionary")},
    {NvrnDeviceCore::DEVICE_FILE_FAULT_TEXTS, QT_TRANSLATE_NOOP("vrndevice", "fault texts")},
    {NvrnDeviceCore::DEVICE_FILE_ADDITIONAL, QT_TRANSLATE_NOOP("vrndevice", "additional file")},
    {NvrnDeviceCore::DEVICE_FILE_PLUGIN, QT_TRANSLATE_NOOP("vrndevice", "plug-in")},
    {NvrnDeviceCore::DEVICE_FILE_FPGA, QT_TRANSLATE_NOOP("vrndevice", "FPGA image")},
    {NvrnDeviceCore::DEVICE_FILE_OPC_UA, QT_TRANSLATE_NOOP("vrndevice", "OPC UA model")},
    {NvrnDeviceCore::DEVICE_FILE_ETHERCAT_MASTER,
     QT_TRANSLATE_NOOP("vrndevice", "EtherCAT master")},
    {NvrnDeviceCore::DEVICE_FILE_SUB_DEVICE_PARAMETERS,
     QT_TRANSLATE_NOOP("vrndevice", "drive parameters")},
    {NvrnDeviceCore::DEVICE_FILE_KD2_FIRMWARE, QT_TRANSLATE_NOOP("vrndevice", "KD2 firmware")},
    {NvrnDeviceCore::DEVICE_FILE_KD2_LOGIC, QT_TRANSLATE_NOOP("vrndevice", "KD2 logic")},
    {NvrnDeviceCore::DEVICE_FILE_KD2_PARAMETERS, QT_TRANSLATE_NOOP("vrndevice", "KD2 parameters")},
};

QList<SPlacedFile> placedFiles(const CDeviceElement &device)
{
    QList<SPlacedFile> placed = {
        {QT_TRANSLATE_NOOP("vrndevice", "configuration"), device.configurationFile()}};
    for (const SKind &kind : Kinds) {
        for (const CFileElement &file : device.allFiles(kind.file)) {
            placed.append({kind.name, file});
        }
    }
    return placed;
}

/** A directory that the configuration leaves open is shown as a hyphen. */
QString shown(const QString &directory)
{
    return directory.isEmpty() ? QStringLiteral("-") : directory;
}

void print(const QList<SPlacedFile> &files, Output &out)
{
    QList<QStringList> rows = {{Texts::tr("KIND"), Texts::tr("FILE"), Texts::tr("ON THE DEVICE"),
                                Texts::tr("IN THE PROJECT")}};
    for (const SPlacedFile &placed : files) {
        rows.append({Texts::tr(placed.kind), placed.file.fileName(),
                     shown(placed.file.devicePath()), shown(placed.file.projectPath())});
    }
    out.printColumns(rows);
}

void describe(CommandLine &line)
{
    line.addArgument(QStringLiteral("FILE"), Texts::tr("The configuration to read."));
    line.setFileNames({QStringLiteral("*.3deco")});
    line.addExample(QStringLiteral("DeviceConfiguration.3deco"));
}

int run(const CommandLine &line)
{
    CDeviceConfigurationFile10 file(nullptr);
    CDeviceElement device;
    if (!readDevice(line.argument(0), file, device)) {
        return EXIT_UNREADABLE_INPUT;
    }
    const QList<SPlacedFile> files = placedFiles(device);
    Output out;
    if (line.wantsJson()) {
        QJsonArray array;
        for (const SPlacedFile &placed : files) {
            QJsonObject object = toJson(placed.file);
            object.insert(QStringLiteral("kind"), QString::fromLatin1(placed.kind));
            array.append(object);
        }
        out.print({{QStringLiteral("files"), array}});
    } else {
        print(files, out);
    }
    return out.finish();
}

const CommandRegistration Registration(
    "place",
    QT_TRANSLATE_NOOP("vrndevice",
                      "List every file with its directories on the device and in the project."),
    describe, run);

} // namespace
