#include "commissioning/CConfigurationComparison.h"

#include "commissioning/compare/ConfigurationChanges.h"
#include "configfile/ShapePaths.h"

using namespace ConfigurationChanges;

namespace {

void compareList(const QString &list, const ConfigurationSnapshot &before,
                 const ConfigurationSnapshot &after, QList<SChange> &changes)
{
    const QVector<SSnapshotEntry> left = before.entries(list);
    const QVector<SSnapshotEntry> right = after.entries(list);
    const QVector<int> counterparts = ConfigurationSnapshot::match(left, right);
    QVector<bool> isNew(right.size(), true);
    ListChanges whole(left);
    for (int i = 0; i < left.size(); ++i) {
        const int counterpart = counterparts.at(i);
        if (counterpart < 0) {
            whole.remove(i);
        } else {
            isNew[counterpart] = false;
            appendDifferences(left.at(i), right.at(counterpart), changes);
        }
    }
    for (int i = 0; i < right.size(); ++i) {
        if (isNew.at(i)) {
            whole.add(right.at(i));
        }
    }
    whole.appendTo(list, before.device, after.device.value(activeFpgaItem()), changes);
}

} // namespace

CConfigurationPatch CConfigurationComparison::compare(const CDeviceConfigurationFile10 &before,
                                                      const CDeviceConfigurationFile10 &after)
{
    const ConfigurationSnapshot left(before);
    const ConfigurationSnapshot right(after);
    QList<SChange> changes;
    appendDifferences(left.description, right.description, changes);
    appendDifferences(left.device, right.device, changes);
    for (const QString &list : ShapePaths::lists()) {
        compareList(list, left, right, changes);
    }
    CConfigurationPatch patch;
    patch.setChanges(changes);
    return patch;
}

CConfigurationPatch CConfigurationComparison::compare(CDeviceConfigurationFile10 &before,
                                                      CDeviceConfigurationFile10 &after)
{
    return compare(qAsConst(before), qAsConst(after));
}
