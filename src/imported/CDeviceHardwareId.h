#pragma once

#include "imported/VrnImportedExport.h"

#include <QDataStream>
#include <QString>

/**
 * Hardware identity of a device: which product, in which version, stands in front of you.
 *
 * The text form is "PREFIX:NAME:PLATFORM:VERSION:REVISION", for example "KD3:Servo Drive 8A:3:2:1".
 * The three numbers are decimal. In prefix and name a "%" followed by four hexadecimal digits
 * stands for one UTF-16 code unit; written so are ":" and "%", control characters, U+FFFE, U+FFFF
 * and surrogates without their partner, so that any value survives the round trip and its text can
 * stand in an XML document. The text of a null identity is empty, and the empty text is the null
 * identity.
 *
 * Thread-safe as every value: see docs/architecture.md. Copies share their strings.
 */
class VRNCORE_EXPORT CDeviceHardwareId
{
public:
    /** A null identity: empty texts and zeros. */
    CDeviceHardwareId() = default;
    /** The identity that @p text contains, see operator=(const QString &). */
    explicit CDeviceHardwareId(const QString &text);

    /**
     * Parses the text form. Text that does not parse (also a number above 65535, or text behind
     * the last number) gives a null identity, never one that is filled in part.
     */
    CDeviceHardwareId &operator=(const QString &text);

    /** The text form. */
    QString hardwareId() const;

    /** Product family, for example "KD3". */
    QString prefix() const;
    void setPrefix(const QString &prefix);

    /** Product name. */
    QString name() const;
    void setName(const QString &name);

    /** Number of the hardware platform; the product id of a configuration element. */
    quint16 platform() const;
    void setPlatform(quint16 platform);

    quint16 version() const;
    void setVersion(quint16 version);

    quint16 revision() const;
    void setRevision(quint16 revision);

    /** True when all five parts are as default-constructed. */
    bool isNull() const;
    void clear();

    /** Compares all five parts, texts exactly. */
    bool operator==(const CDeviceHardwareId &other) const;
    bool operator!=(const CDeviceHardwareId &other) const;

private:
    QString m_prefix;
    QString m_name;
    quint16 m_platform = 0;
    quint16 m_version = 0;
    quint16 m_revision = 0;
};

/** Stream form: prefix, name (QString), platform, version, revision (unsigned 16 bit). */
VRNCORE_EXPORT QDataStream &operator<<(QDataStream &stream, const CDeviceHardwareId &id);
VRNCORE_EXPORT QDataStream &operator>>(QDataStream &stream, CDeviceHardwareId &id);
