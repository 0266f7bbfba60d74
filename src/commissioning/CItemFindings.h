#pragma once

#include "commissioning/SConfigurationFinding.h"
#include "commissioning/VrnCommissioningExport.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

/**
 * Findings by the place where they are shown. A finding belongs to the item that it concerns or, if
 * that is not shown, to the nearest one above it: "drive[2].param.name" to "drive[2].param", else
 * to "drive[2]", else to "drive", and at last to the whole document, whose path is empty.
 *
 * Thread-safe as every value: see docs/architecture.md.
 */
class VRNCOMMISSIONING_EXPORT CItemFindings
{
public:
    /** @param shownItems the paths of the items that are shown, in any order */
    CItemFindings(const QList<SConfigurationFinding> &findings, const QStringList &shownItems);

    /** All findings, as they were given. */
    QList<SConfigurationFinding> all() const { return m_findings; }
    SConfigurationFinding at(int index) const { return m_findings.value(index); }
    /** Positions in all() of those that belong to @p item itself, in their order. */
    QList<int> at(const QString &item) const { return m_at.value(item); }
    /** The item to which the finding at the position @p index in all() belongs. */
    QString place(int index) const { return m_places.value(index); }

    /** How many of all() are of that severity. */
    int count(SConfigurationFinding::ESeverity severity) const;

    /** "drive[2].param" for "drive[2].param.name"; empty for a path that has nothing above it. */
    static QString above(const QString &path);

private:
    QList<SConfigurationFinding> m_findings;
    QStringList m_places;
    QHash<QString, QList<int>> m_at;
};
