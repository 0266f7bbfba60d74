#include "configfile/ShapePaths.h"

#include <QHash>

#include <algorithm>

using namespace ConfigurationShape;

namespace {

using Nodes = QVector<const SNode *>;

struct SIndex {
    Nodes top;
    QHash<QString, const SNode *> byPath;
    QHash<quint32, QString> byFile;
    QHash<int, QString> byEntry;
    QHash<int, QString> words;
    QStringList lists;
};

/** Those of @p first in their order, then the others in theirs. */
Nodes sorted(const Nodes &nodes, const QStringList &first)
{
    const auto rank = [&first](const SNode *node) {
        const int index = first.indexOf(node->word);
        return index < 0 ? first.size() : index;
    };
    Nodes result = nodes;
    std::stable_sort(result.begin(), result.end(), [&rank](const SNode *left, const SNode *right) {
        return rank(left) < rank(right);
    });
    return result;
}

/** Groups without a word give their children. */
void collect(const SNode &node, bool isAtTop, Nodes &result)
{
    for (const SNode &child : node.children) {
        if (child.word.isEmpty()) {
            collect(child, isAtTop, result);
        } else if (child.isAtTop == isAtTop) {
            result.append(&child);
        }
    }
}

/** What begins a path of its own, at any depth below @p node. */
void collectTop(const SNode &node, Nodes &result)
{
    collect(node, true, result);
    for (const SNode &child : node.children) {
        if (!child.word.isEmpty()) {
            collectTop(child, result);
        }
    }
}

void index(const Nodes &nodes, const QString &path, SIndex &result)
{
    for (const SNode *const node : nodes) {
        const QString nodePath = path.isEmpty() ? node->word : path + QLatin1Char('.') + node->word;
        result.byPath.insert(nodePath, node);
        if (node->file != NvrnDeviceCore::DEVICE_FILE_NONE) {
            result.byFile.insert(node->file, nodePath);
        }
        if (node->isList()) {
            result.lists.append(nodePath);
            result.byEntry.insert(static_cast<int>(node->entry), nodePath);
        }
        if (node->isItem()) {
            result.words.insert(static_cast<int>(node->item.value), node->word);
        }
        index(ShapePaths::below(*node), nodePath, result);
    }
}

const SIndex &index()
{
    static const SIndex result = [] {
        SIndex all;
        collect(root(), false, all.top);
        collectTop(root(), all.top);
        all.top = sorted(all.top, root().listedFirst);
        index(all.top, QString(), all);
        return all;
    }();
    return result;
}

} // namespace

const QVector<const SNode *> &ShapePaths::top()
{
    return index().top;
}

QVector<const SNode *> ShapePaths::below(const SNode &node)
{
    Nodes result;
    collect(node, false, result);
    return sorted(result, node.listedFirst);
}

const SNode *ShapePaths::find(const QString &path)
{
    return index().byPath.value(path);
}

const QStringList &ShapePaths::lists()
{
    return index().lists;
}

QString ShapePaths::list(EEntry entry)
{
    return index().byEntry.value(static_cast<int>(entry));
}

QString ShapePaths::word(EValue value)
{
    return index().words.value(static_cast<int>(value));
}

QString ShapePaths::path(NvrnDeviceCore::EDeviceFile kind)
{
    return index().byFile.value(kind);
}

QString ShapePaths::noun(NvrnDeviceCore::EDeviceFile kind)
{
    const SNode *const node = find(path(kind));
    if (node == nullptr) {
        return QString();
    }
    // The text of a list has a place for the key of an entry.
    return node->isList() ? label(node->text).remove(QLatin1String("%1")).trimmed()
                          : label(node->text);
}
