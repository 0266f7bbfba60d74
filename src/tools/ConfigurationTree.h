#pragma once

#include "commissioning/CConfigurationOverview.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

/** A line of the tree in which a configuration is printed, with what stands below it. */
struct STreeNode {
    QString text;
    /** The items that the line shows; see CConfigurationItems. */
    QStringList items;
    /** The files that the line names, in their directories. */
    QList<CFileElement> files;
    QList<STreeNode> children;
};

/** The tree of a whole configuration. Its root is the description, which has the device below it.
 */
STreeNode configurationTree(const CConfigurationOverview &overview);

/**
 * Calls @p print for each node, with what stands before its text and with what stands before any
 * further lines of that node.
 */
void visitTree(const STreeNode &root,
               const std::function<void(const STreeNode &node, const QString &before,
                                        const QString &beforeFurtherLines)> &print);
