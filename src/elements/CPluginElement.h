#pragma once

#include "vocabulary/VrnDeviceCoreExport.h"

#include <QDataStream>
#include <QSharedDataPointer>
#include <QString>

class CPluginElementData;

/**
 * A plug-in that the device loads: a shared library, with name, version and load priority.
 *
 * Null means as default-constructed. Copies share their data until one of them is changed.
 * Thread-safe as every value: see docs/architecture.md.
 *
 * The virtual operations stand in the order that binary compatibility demands.
 */
class VRNDEVICECORE_EXPORT CPluginElement
{
public:
    /** A null element: name and version empty, priority not set. */
    CPluginElement();
    CPluginElement(const CPluginElement &other);
    virtual ~CPluginElement();

    virtual QString name() const;
    virtual void setName(const QString &name);

    /**
     * Load priority; the smallest 32-bit integer when none is set. What the order means is decided
     * by the program that loads the plug-ins.
     */
    virtual int priority() const;
    virtual void setPriority(int priority);

    /** Version text, the suffix of the library's file name. */
    virtual QString version() const;
    virtual void setVersion(const QString &version);

    /**
     * File name of the library, "pi_NAME.so.VERSION"; a name that begins with "pi_" gets no second
     * prefix. Without a version the name ends in the dot.
     */
    virtual QString fileName() const;

    CPluginElement &operator=(const CPluginElement &other);

    bool operator==(const CPluginElement &other) const;
    bool operator!=(const CPluginElement &other) const;

    bool isNull() const;
    void clear();

private:
    QSharedDataPointer<CPluginElementData> d;

    friend VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream,
                                                        const CPluginElement &plugin);
    friend VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream,
                                                        CPluginElement &plugin);
};

/** Stream form: name (QString), priority (signed 32 bit), version (QString). */
VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream, const CPluginElement &plugin);
VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream, CPluginElement &plugin);
