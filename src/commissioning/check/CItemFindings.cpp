#include "commissioning/CItemFindings.h"

#include <QSet>

#include <algorithm>

namespace {

/** Where each step of a path ends; what stands in brackets is a part of the step, whatever it is.
 */
QList<int> ends(const QString &path)
{
    QList<int> result;
    bool isKey = false;
    for (int i = 0; i < path.size(); ++i) {
        const QChar c = path.at(i);
        if (isKey && c == QLatin1Char('\\')) {
            ++i;
        } else if (isKey) {
            isKey = c != QLatin1Char(']');
        } else if (c == QLatin1Char('.') || c == QLatin1Char('[')) {
            result.append(i);
            isKey = c == QLatin1Char('[');
        }
    }
    return result;
}

} // namespace

CItemFindings::CItemFindings(const QList<SConfigurationFinding> &findings,
                             const QStringList &shownItems)
    : m_findings(findings)
{
    const QSet<QString> shown(shownItems.begin(), shownItems.end());
    for (int i = 0; i < findings.size(); ++i) {
        QString place = findings.at(i).item;
        while (!place.isEmpty() && !shown.contains(place)) {
            place = above(place);
        }
        m_places.append(place);
        m_at[place].append(i);
    }
}

int CItemFindings::count(SConfigurationFinding::ESeverity severity) const
{
    return static_cast<int>(std::count_if(
        m_findings.begin(), m_findings.end(),
        [severity](const SConfigurationFinding &finding) { return finding.severity == severity; }));
}

QString CItemFindings::above(const QString &path)
{
    const QList<int> all = ends(path);
    return all.isEmpty() ? QString() : path.left(all.last());
}
