#include "commissioning/CConfigurationItems.h"

#include "commissioning/items/ItemEditor.h"

class CConfigurationItemsPrivate
{
public:
    explicit CConfigurationItemsPrivate(CDeviceConfigurationFile10 &file) : editor(file) { }

    ItemEditor editor;
};

CConfigurationItems::CConfigurationItems(CDeviceConfigurationFile10 &file)
    : d(std::make_unique<CConfigurationItemsPrivate>(file))
{
}

CConfigurationItems::~CConfigurationItems() = default;

QList<CConfigurationItems::SItem> CConfigurationItems::items() const
{
    return d->editor.items();
}

QList<CConfigurationItems::SItem> CConfigurationItems::items(const QString &path) const
{
    return d->editor.items(path);
}

QStringList CConfigurationItems::entries() const
{
    return d->editor.entries();
}

bool CConfigurationItems::contains(const QString &path) const
{
    return d->editor.contains(path);
}

bool CConfigurationItems::value(const QString &path, QString &value) const
{
    return d->editor.value(path, value);
}

bool CConfigurationItems::setValue(const QString &path, const QString &value)
{
    return d->editor.setValue(path, value);
}

bool CConfigurationItems::add(const QString &path)
{
    return d->editor.add(path);
}

bool CConfigurationItems::remove(const QString &path)
{
    return d->editor.remove(path);
}

QDomElement CConfigurationItems::element(const QString &path) const
{
    return d->editor.element(path);
}

QString CConfigurationItems::errorText() const
{
    return d->editor.errorText();
}

QString CConfigurationItems::entryPath(const QString &list, const QString &key, int occurrence)
{
    return SItemPathStep{list, key, occurrence, true}.text();
}
