#include "tools/Command.h"
#include "tools/ConfigurationJson.h"
#include "tools/Input.h"
#include "tools/Output.h"

namespace {

struct SPlacedFile {
    QString kind;
    CFileElement file;
};

QList<SPlacedFile> placedFiles(const CDeviceElement &device)
{
    using namespace NvrnDeviceCore;
    const QList<QPair<EDeviceFile, QString>> kinds = {
        {DEVICE_FILE_PARAMETER_VALUES, QStringLiteral("parameter values")},
        {DEVICE_FILE_PARAMETER_DEFINITION, QStringLiteral("parameter definition")},
        {DEVICE_FILE_OBJECT_DICTIONARY, QStringLiteral("object dictionary")},
        {DEVICE_FILE_FAULT_TEXTS, QStringLiteral("fault texts")},
        {DEVICE_FILE_ADDITIONAL, QStringLiteral("additional file")},
        {DEVICE_FILE_PLUGIN, QStringLiteral("plug-in")},
        {DEVICE_FILE_FPGA, QStringLiteral("FPGA image")},
        {DEVICE_FILE_OPC_UA, QStringLiteral("OPC UA model")},
        {DEVICE_FILE_ETHERCAT_MASTER, QStringLiteral("EtherCAT master")},
        {DEVICE_FILE_SUB_DEVICE_PARAMETERS, QStringLiteral("drive parameters")},
        {DEVICE_FILE_KD2_FIRMWARE, QStringLiteral("KD2 firmware")},
        {DEVICE_FILE_KD2_LOGIC, QStringLiteral("KD2 logic")},
        {DEVICE_FILE_KD2_PARAMETERS, QStringLiteral("KD2 parameters")},
    };
    QList<SPlacedFile> placed = {{QStringLiteral("configuration"), device.configurationFile()}};
    for (const auto &kind : kinds) {
        for (const CFileElement &file : device.allFiles(kind.first)) {
            placed.append({kind.second, file});
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
    QList<QStringList> rows = {{QStringLiteral("KIND"), QStringLiteral("FILE"),
                                QStringLiteral("ON THE DEVICE"), QStringLiteral("IN THE PROJECT")}};
    for (const SPlacedFile &placed : files) {
        rows.append({placed.kind, placed.file.fileName(), shown(placed.file.devicePath()),
                     shown(placed.file.projectPath())});
    }
    out.printColumns(rows);
}

void describe(CommandLine &line)
{
    line.addArgument(QStringLiteral("FILE"), QStringLiteral("The configuration to read."));
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
            object.insert(QStringLiteral("kind"), placed.kind);
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
