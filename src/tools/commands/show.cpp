#include "tools/Command.h"
#include "tools/ConfigurationJson.h"
#include "tools/ConfigurationTree.h"
#include "tools/Input.h"
#include "tools/Output.h"

namespace {

void describe(CommandLine &line)
{
    line.addArgument(QStringLiteral("FILE"), Texts::tr("The configuration to show."));
    line.addExample(QStringLiteral("DeviceConfiguration.3deco"));
}

int run(const CommandLine &line)
{
    CDeviceConfigurationFile10 file(nullptr);
    if (!openConfiguration(line.argument(0), file)) {
        return EXIT_UNREADABLE_INPUT;
    }
    Output out;
    if (line.wantsJson()) {
        out.print(toJson(file));
        return out.finish();
    }
    visitTree(configurationTree(CConfigurationOverview(file)),
              [&out](const STreeNode &node, const QString &before, const QString &) {
                  out.text() << before << node.text << '\n';
              });
    return out.finish();
}

const CommandRegistration
    Registration("show", QT_TRANSLATE_NOOP("vrndevice", "Show a configuration as a tree."),
                 describe, run);

} // namespace
