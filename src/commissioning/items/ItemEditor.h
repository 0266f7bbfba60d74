#pragma once

#include "commissioning/items/ItemReader.h"

/** Reads and changes the items of a document, for CConfigurationItems. */
class ItemEditor : public ItemReader
{
public:
    /** @p file outlives the object. */
    explicit ItemEditor(CDeviceConfigurationFile10 &file);

    bool setValue(const QString &path, const QString &value);
    bool add(const QString &path);
    bool remove(const QString &path);

private:
    bool accepts(const SItemPlace &place, const QString &value);
    bool acceptsValue(ConfigurationShape::EValue kind, const QString &path, const QString &value);
    bool isKeyFree(const SItemPlace &place, const QString &key);

    QDomElement created(const SItemPlace &place);
    QDomElement child(const QDomElement &parent, const QString &tag);
    QDomElement createdDescription(QDomElement root);
    void setOption(const SItemPlace &place, const QString &value);
    void addEntry(const SItemPlace &place);
    void addDrive(quint8 number);
    void removeOption(const SItemPlace &place);
    void removeElement(const SItemPlace &place);

    CDeviceConfigurationFile10 &m_file;
};
