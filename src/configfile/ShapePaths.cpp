#include "configfile/ShapePaths.h"

#include <QHash>

#include <algorithm>

using namespace ConfigurationShape;

namespace {

using Nodes = QVector<const SNode *>;

struct SIndex {
    Nodes top;
    QHash<QString, const SNode *> byPath;
    QHash<int, const SNode *> byFile;
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
            result.byFile.insert(node->file, node);
        }
        if (node->isList()) {
            result.lists.append(nodePath);
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

const SNode *ShapePaths::find(NvrnDeviceCore::EDeviceFile kind)
{
    return index().byFile.value(kind);
}
