#include "commissioning/CStagedTree.h"
#include "tools/Command.h"
#include "tools/Input.h"
#include "tools/Output.h"
#include "tools/Progress.h"

#include <QJsonArray>

namespace {

using EKind = CStagedTree::SDifference::EKind;

QString nameOf(EKind kind)
{
    switch (kind) {
    case EKind::MISSING:
        return QStringLiteral("missing");
    case EKind::SURPLUS:
        return QStringLiteral("surplus");
    case EKind::CHANGED:
        return QStringLiteral("changed");
    case EKind::WRONG_KIND:
        return QStringLiteral("wrong-kind");
    case EKind::UNREADABLE:
        return QStringLiteral("unreadable");
    case EKind::NO_MANIFEST:
        return QStringLiteral("no-manifest");
    case EKind::BROKEN:
        break;
    }
    return QStringLiteral("broken");
}

QJsonObject toJson(const QString &path, const CStagedTree &tree)
{
    QJsonArray differences;
    for (const CStagedTree::SDifference &difference : tree.differences()) {
        differences.append(QJsonObject{{QStringLiteral("kind"), nameOf(difference.kind)},
                                       {QStringLiteral("path"), difference.path},
                                       {QStringLiteral("message"), difference.message}});
    }
    return {{QStringLiteral("path"), path},
            {QStringLiteral("files"), tree.manifest().entries().size()},
            {QStringLiteral("differences"), differences}};
}

void print(const QString &path, const CStagedTree &tree, Output &out)
{
    for (const CStagedTree::SDifference &difference : tree.differences()) {
        out.text() << path << ": " << difference.message << '\n';
    }
    if (tree.differences().isEmpty()) {
        out.text() << Texts::tr("%1: All %2 files match the manifest.")
                          .arg(path, QString::number(tree.manifest().entries().size()))
                   << '\n';
    }
}

void describe(CommandLine &line)
{
    line.addArguments(QStringLiteral("TREE"),
                      Texts::tr("A staged directory, or an archive of one."));
    line.addExample(QStringLiteral("device"));
    line.addExample(QStringLiteral("device.tar.gz /media/usb/device"));
}

int run(const CommandLine &line)
{
    int exitCode = EXIT_DONE;
    QJsonArray trees;
    Output out;
    for (const QString &path : line.arguments(0)) {
        CStagedTree tree;
        bool isVerified = false;
        {
            Progress progress(Texts::tr("Verifying"));
            tree.setProgress([&](qint64 done, qint64 total) {
                progress.show(done, total);
                return true;
            });
            isVerified = tree.verify(path);
        }
        if (!isVerified) {
            exitCode = reportUnreadable(path, tree.errorText());
            continue;
        }
        if (!tree.differences().isEmpty()) {
            exitCode = qMax<int>(exitCode, EXIT_FINDINGS);
        }
        if (line.wantsJson()) {
            trees.append(toJson(path, tree));
        } else {
            print(path, tree, out);
        }
    }
    if (line.wantsJson()) {
        out.print({{QStringLiteral("trees"), trees}});
    }
    const int written = out.finish();
    return exitCode != EXIT_DONE ? exitCode : written;
}

const CommandRegistration Registration(
    "verify",
    QT_TRANSLATE_NOOP("vrndevice", "Report missing, surplus and changed files of a staged tree."),
    describe, run);

} // namespace
