#include "devicefiles/CDeviceOSReleaseFile.h"
#include "tools/Command.h"
#include "tools/Input.h"
#include "tools/Output.h"

namespace {

struct SItem {
    QString title;
    QString jsonName;
    QString (CDeviceOSReleaseFile::*value)() const;
};

QList<SItem> items()
{
    using File = CDeviceOSReleaseFile;
    return {
        {Texts::tr("Product"), QStringLiteral("product"), &File::product},
        {Texts::tr("Platform"), QStringLiteral("platform"), &File::platform},
        {QStringLiteral("PTXdist"), QStringLiteral("ptxdistVersion"), &File::ptxdistVersion},
        {Texts::tr("Board support"), QStringLiteral("ptxdistBsp"), &File::ptxdistBsp},
        {Texts::tr("Built"), QStringLiteral("buildDate"), &File::buildDate},
        {Texts::tr("Toolchain"), QStringLiteral("toolchainVersion"), &File::toolchainVersion},
        {Texts::tr("Kernel"), QStringLiteral("kernelImage"), &File::kernelImage},
        {QStringLiteral("Qt"), QStringLiteral("qtVersion"), &File::qtVersion},
    };
}

void describe(CommandLine &line)
{
    line.addArgument(QStringLiteral("FILE"), Texts::tr("The os-release to show."));
    line.setFileNames({QStringLiteral("os-release")});
    line.addExample(QStringLiteral("os-release"));
}

int run(const CommandLine &line)
{
    const QString path = line.argument(0);
    QByteArray content;
    QString reason;
    if (!readFile(path, EAccess::READ, CDeviceOSReleaseFile::MaximumSize, content, reason)) {
        return reportUnreadable(path, reason);
    }
    const CDeviceOSReleaseFile file(content, nullptr);
    QJsonObject object = {{QStringLiteral("valid"), file.isValid()}};
    QList<QStringList> rows;
    for (const SItem &item : items()) {
        const QString value = (file.*item.value)();
        object.insert(item.jsonName, value);
        rows.append({item.title, value});
    }
    Output out;
    if (line.wantsJson()) {
        out.print(object);
    } else {
        out.printColumns(rows);
    }
    return out.finish();
}

const CommandRegistration Registration(
    "os-release show",
    QT_TRANSLATE_NOOP("vrndevice", "Show product and versions of a device's operating system."),
    describe, run);

} // namespace
