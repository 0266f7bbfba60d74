#pragma once

#include "imported/ICXmlSettings.h"

/** The settings in an element that ICXmlSettings::instance() gives. */
class CXmlSettings : public ICXmlSettings
{
public:
    explicit CXmlSettings(const QDomElement &element);
    ~CXmlSettings() override;

    QStringList names() const override;
    QVariant value(const QString &name) const override;
    bool setValue(const QString &name, const QVariant &value) override;
    QString unit(const QString &name) const override;
    void setUnit(const QString &name, const QString &unit) override;
    QString comment(const QString &name) const override;
    void setComment(const QString &name, const QString &comment) override;
    bool remove(const QString &name) override;

private:
    QDomElement find(const QString &name) const;

    QDomElement m_element;
};
