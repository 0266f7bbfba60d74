#include "configfile/CDeviceConfigurationFile10.h"
#include "tools/Command.h"
#include "tools/ConfigurationJson.h"
#include "tools/Output.h"

#include <QFileInfo>

namespace {

const QString ClassOption = QStringLiteral("class");
const QString NameOption = QStringLiteral("name");

void describe(CommandLine &line)
{
    line.addArgument(QStringLiteral("FILE"), QStringLiteral("The configuration to create."));
    line.addOption(ClassOption, QStringLiteral("Class of the device: kc2 or kd3."),
                   QStringLiteral("CLASS"));
    line.addOption(NameOption, QStringLiteral("Name of the device."), QStringLiteral("NAME"));
    line.addExample(QStringLiteral("DeviceConfiguration.3deco --class kd3 --name Wrapper"));
}

int run(const CommandLine &line)
{
    const QString path = line.argument(0);
    const QString name = line.value(NameOption);
    CDeviceConfigurationFile10 file(nullptr);
    const NDeviceConf::EDeviceClass deviceClass = file.strToDeviceClass(line.value(ClassOption));
    if (deviceClass == NDeviceConf::DEVICE_CLASS_UNDEFINED) {
        return line.badUsage(QStringLiteral("--class must be kc2 or kd3."));
    }
    if (name.isEmpty()) {
        return line.badUsage(QStringLiteral("--name is missing."));
    }
    if (QFileInfo::exists(path)) {
        printError(QStringLiteral("%1 exists already and is left as it is.").arg(path));
        return EXIT_NOT_DONE;
    }

    CDescriptionElement description;
    description.setName(name);
    CDeviceElement device;
    device.setDeviceClass(deviceClass);
    device.setName(name);
    const bool saved = file.createNewDocument() && file.setDescription(description)
        && file.setConfiguration(device) && file.save(path);
    if (!saved) {
        return EXIT_NOT_DONE;
    }
    Output out;
    if (line.wantsJson()) {
        out.print(toJson(file));
    } else {
        out.stream() << "Created " << path << ": device " << name << '\n';
    }
    return out.finish();
}

const CommandRegistration
    Registration("new", QT_TRANSLATE_NOOP("vrndevice", "Create a configuration with one device."),
                 describe, run);

} // namespace
