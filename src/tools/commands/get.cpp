#include "tools/ConfigurationEdit.h"
#include "tools/Input.h"
#include "tools/Terminal.h"

namespace {

void describe(CommandLine &line)
{
    line.addArgument(QStringLiteral("FILE"), Texts::tr("The configuration to read."));
    line.addOptionalArgument(QStringLiteral("PATH"),
                             Texts::tr("What to print: one item, or all items of a path such as "
                                       "device, files or drive[0]; by default everything."));
    line.addExample(QStringLiteral("DeviceConfiguration.3deco device.name"));
    line.addExample(QStringLiteral("DeviceConfiguration.3deco 'drive[2]'"));
}

int run(const CommandLine &line)
{
    const QString path = line.argument(0);
    CDeviceConfigurationFile10 file(nullptr);
    if (!openConfiguration(path, file)) {
        return EXIT_UNREADABLE_INPUT;
    }
    const CConfigurationItems items(file);
    const bool isWhole = line.arguments(1).isEmpty();
    const QString wanted = line.argument(1);
    const QList<CConfigurationItems::SItem> found = isWhole ? items.items() : items.items(wanted);
    if (!items.errorText().isEmpty()) {
        return reportFailure(path, items);
    }
    Output out;
    QString value;
    if (line.wantsJson()) {
        out.print({{QStringLiteral("items"), toJson(found)}});
    } else if (!isWhole && items.value(wanted, value)) {
        if (Terminal::isTerminal(stdout)) {
            out.text() << value << '\n';
        } else {
            // A script gets the value as the document contains it.
            out.exact() << value << '\n';
        }
    } else {
        print(found, out.text());
    }
    return out.finish();
}

const CommandRegistration
    Registration("get", QT_TRANSLATE_NOOP("vrndevice", "Print items of a configuration."), describe,
                 run);

} // namespace
