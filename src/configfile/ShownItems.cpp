#include "configfile/ShownItems.h"

#include "configfile/ShapePaths.h"

using namespace ConfigurationShape;

QVector<SShownItem> ShownItems::ofDevice(const CDeviceElement &device, const QStringList &others)
{
    const QString path = QStringLiteral("device");
    const QVector<SShownItem> items =
        of(deviceItems() + configItems() + opcUaItems(), device, path, others);
    QVector<SShownItem> result;
    for (const SNode *const node : ShapePaths::below(*ShapePaths::find(path))) {
        for (const SShownItem &item : items) {
            if (node->isItem() && item.word == node->word) {
                result.append(item);
            }
        }
    }
    return result;
}
