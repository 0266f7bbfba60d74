#include "configfile/ICDeviceConfigurationFile.h"
#include "devicefiles/CDeviceOSReleaseFile.h"
#include "settings/CDeviceSettingsFileV10.h"
#include "settings/CNetworkSettingsFile.h"
#include "support/Literals.h"
#include "support/MessageCatcher.h"
#include "support/OrdinaryUser.h"
#include "support/SampleConfiguration.h"
#include "support/SampleSettings.h"
#include "vocabulary/NVornXmlTags.h"

#include <iostream>
#include <memory>
#include <string>

#include <sched.h>

// Saves and opens files at the word of run-faults, which makes its system calls fail. With the
// argument "ordinary" it has the rights of an ordinary user.
//
// A line on the standard input is a command, a line on the standard output its answer; the parts of
// both are separated by tabs:
//
//   save KIND PATH TEXT [permissions]   the result, 0 is success, and all texts that tell why
//   open KIND PATH                      the text in the file; empty when it cannot be opened

namespace {

/** run-faults expects mode 0604. */
const QFileDevice::Permissions Permissions =
    QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadOther;

struct SResult {
    int code = 0;
    QStringList texts;
};

SResult told(int code, const QString &text)
{
    return {code, code == 0 && text.isEmpty() ? QStringList() : QStringList{text}};
}

/** A call that no library makes: what lies between two of them is the save. */
void mark()
{
    sched_yield();
}

template <typename Save>
SResult marked(Save save)
{
    const MessageCatcher catcher;
    mark();
    const SResult result = save();
    mark();
    return {result.code, result.texts + catcher.criticals() + catcher.warnings()};
}

SResult saveConfiguration(const QString &path, const QString &text,
                          QFileDevice::Permissions permissions)
{
    const std::unique_ptr<ICDeviceConfigurationFile> file(
        ICDeviceConfigurationFile::instance(nullptr));
    file->createNewDocument();
    // With a date of its own, for today's may be another one before the test is over.
    file->setMetaData(SampleConfiguration::metaData());
    CDescriptionElement description = SampleConfiguration::description();
    description.setName(text);
    file->setDescription(description);
    file->setConfiguration(SampleConfiguration::device());
    file->setPermissions(permissions);
    return marked([&] {
        QString error;
        const int code = file->save(path, error) ? 0 : 1;
        return told(code, error);
    });
}

QString openConfiguration(const QString &path)
{
    const std::unique_ptr<ICDeviceConfigurationFile> file(
        ICDeviceConfigurationFile::instance(nullptr));
    CDeviceElement device;
    return file->open(path) && file->configuration(device)
            && device == SampleConfiguration::device()
        ? file->description().name()
        : QString();
}

SResult saveSettings(const QString &path, const QString &text, QFileDevice::Permissions permissions)
{
    const QString version = CDeviceSettingsFileV10::fileVersionText();
    CDeviceSettingsFileV10 file(nullptr);
    file.createNewDocument(NVornXmlTags::TAG_ROOT_DEVICESETTINGS, version);
    file.setDeviceSettings(SampleSettings::settings(text, {{quint8(3), u"Cutter"_s}}));
    file.setPermissions(permissions);
    return marked([&] { return SResult{file.saveFile(path, version), {}}; });
}

QString openSettings(const QString &path)
{
    CDeviceSettingsFileV10 file(nullptr);
    return file.openFile(path, CDeviceSettingsFileV10::fileVersionText())
            == NvrnGlobal::FILE_RESULT_SUCCESS
        ? file.deviceSettings().deviceName()
        : QString();
}

SResult saveNetwork(const QString &path, const QString &text, QFileDevice::Permissions)
{
    CNetworkSettingsFile file;
    file.setValue(u"MODE"_s, text);
    return marked([&] {
        const int code = file.save(path);
        return told(code, file.errorText());
    });
}

QString openNetwork(const QString &path)
{
    return CNetworkSettingsFile(path).value(u"MODE"_s);
}

SResult saveRelease(const QString &path, const QString &text, QFileDevice::Permissions)
{
    CDeviceOSReleaseFile file;
    file.setProduct(text);
    return marked([&] {
        const int code = file.save(path);
        return told(code, file.errorText());
    });
}

QString openRelease(const QString &path)
{
    return CDeviceOSReleaseFile(path, nullptr).product();
}

struct SKind {
    const char *name;
    SResult (*save)(const QString &path, const QString &text, QFileDevice::Permissions permissions);
    QString (*open)(const QString &path);
};

const SKind Kinds[] = {
    {"configuration", saveConfiguration, openConfiguration},
    {"settings", saveSettings, openSettings},
    {"network.conf", saveNetwork, openNetwork},
    {"os-release", saveRelease, openRelease},
};

QString answer(const SKind &kind, const QStringList &parts)
{
    if (parts.at(0) == u"open"_s) {
        const MessageCatcher catcher;
        return kind.open(parts.at(2));
    }
    const bool hasPermissions = parts.value(4) == u"permissions"_s;
    SResult result = kind.save(parts.at(2), parts.value(3),
                               hasPermissions ? Permissions : QFileDevice::Permissions());
    result.texts.prepend(QString::number(result.code));
    return result.texts.join(u'\t');
}

} // namespace

int main(int argc, char **argv)
{
    std::unique_ptr<OrdinaryUser> user;
    if (argc > 1 && argv[1] == std::string("ordinary")) {
        user = std::make_unique<OrdinaryUser>();
        if (!user->isOk()) {
            return 1;
        }
    }
    for (std::string line; std::getline(std::cin, line);) {
        const QStringList parts = QString::fromStdString(line).split(u'\t');
        for (const SKind &kind : Kinds) {
            if (parts.value(1) == QLatin1String(kind.name)) {
                std::cout << answer(kind, parts).toStdString() << std::endl;
            }
        }
    }
}
