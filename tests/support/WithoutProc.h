#pragma once

#include "support/Tool.h"

#include <thread>

#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

/**
 * Runs something where nothing is mounted at /proc, as on a small device. Only the super-user, or
 * who may be one in a namespace, can have that.
 */
namespace WithoutProc {

/** Hides /proc from the calling thread alone, for good. */
inline bool hide()
{
    return unshare(CLONE_NEWNS) == 0
        && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0
        && mount("none", "/proc", "tmpfs", 0, nullptr) == 0 && access("/proc/self", F_OK) != 0;
}

/** Calls @p function in a thread of its own. @return false, without a call, when it cannot be */
template <typename Function>
bool call(Function function)
{
    bool isHidden = false;
    std::thread([&function, &isHidden] {
        isHidden = hide();
        if (isHidden) {
            function();
        }
    }).join();
    return isHidden;
}

/** Runs the tool there. */
inline Tool::SResult run(const QString &directory, const QStringList &arguments)
{
    QStringList command = {QStringLiteral("unshare"), QStringLiteral("--mount")};
    if (geteuid() != 0) {
        command << QStringLiteral("--user") << QStringLiteral("--map-root-user");
    }
    command << QStringLiteral("sh") << QStringLiteral("-c")
            << QStringLiteral("mount -t tmpfs none /proc && exec \"$0\" \"$@\"") << Tool::program();
    return Tool::runCommand(directory, command + arguments);
}

} // namespace WithoutProc
