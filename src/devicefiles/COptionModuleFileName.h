#pragma once

#include "vocabulary/VrnDeviceCoreExport.h"

#include <QDataStream>
#include <QRegExp>
#include <QString>

/**
 * The file name of a firmware image for an option module, which states what it is for:
 * SLOT_INTERFACE_HARDWARE_SOFTWARE[_TEXT].SUFFIX, for example "OM1_EC_H2_V1_3.bin" or
 * "OM2_AI_H1_V10_0_special.bin".
 *
 * Null and empty mean that all parts are empty. Thread-safe as every value: see
 * docs/architecture.md.
 */
class VRNDEVICECORE_EXPORT COptionModuleFileName
{
public:
    /** An empty name. */
    COptionModuleFileName();
    /** As setFileName(). */
    explicit COptionModuleFileName(const QString &path);
    COptionModuleFileName(const COptionModuleFileName &other);
    virtual ~COptionModuleFileName();

    COptionModuleFileName &operator=(const COptionModuleFileName &other);
    /** As setFileName(). */
    COptionModuleFileName &operator=(const QString &path);

    /** Compares all six parts exactly; a missing suffix differs from the standard one. */
    bool operator==(const COptionModuleFileName &other) const;
    bool operator!=(const COptionModuleFileName &other) const;

    // The parts

    /** "OM" and a number, such as "OM1". */
    QString slot() const;
    /**
     * @return false, and nothing changes, if @p slot is not a valid slot; the next three do the
     * same
     */
    bool setSlot(const QString &slot);
    /** Two letters or more, such as "EC". */
    QString interface() const;
    bool setInterface(const QString &interface);
    /** "H" and a number, such as "H2". */
    QString hardwareVersion() const;
    bool setHardwareVersion(const QString &version);
    /** "V" and two numbers, such as "V1_3". */
    QString softwareVersion() const;
    bool setSoftwareVersion(const QString &version);
    /** Free text after the versions; stored unchecked, but only letters, digits and "_" are valid.
     */
    QString text() const;
    void setText(const QString &text);
    /** Extension without its dot; empty stands for standardSuffix() in fileName(). */
    QString suffix() const;
    /** Of a @p suffix with dots only the part after the last one counts. */
    void setSuffix(const QString &suffix);

    /** The number in the hardware version; -1 when it is empty or too large for an int. */
    int hardwareVersionAsInt() const;
    /** The first number in the software version; -1 if it is empty or too large. */
    int softwareMajorVersionAsInt() const;
    /** The last number in the software version; -1 if it is empty or too large. */
    int softwareMinorVersionAsInt() const;

    // Descriptions for the user, translated in the context "COptionModuleFileName". The texts are
    // the keys of the catalogues: with "Option Modul slot %1" or "Expansion IO modul" spelt better,
    // every translation of them would be lost.

    /** "Option Modul slot %1" with the number in @p slot, "OM" before it or not; else "Unknown". */
    static QString descriptionForSlot(const QString &slot);
    /** What the two letters stand for, in any case; "Unknown interface" for any other text. */
    static QString descriptionForInterface(const QString &interface);
    /** As descriptionForSlot(); empty if @p slot is not a valid slot. */
    static QString slotDescription(const QString &slot);
    /** As descriptionForInterface(); empty if @p interface is not a valid interface. */
    static QString interfaceDescription(const QString &interface);
    /** Of the own slot, also when it is empty. */
    QString slotDescription() const;
    /** Of the own interface, also when it is empty. */
    QString interfaceDescription() const;

    // The whole name

    /** What a valid name looks like; to be matched exactly, case-sensitive. */
    static QRegExp fullRegExp();
    /** "bin" */
    static QString standardSuffix();
    /** The name made from its parts; empty when all are. It is valid only if isValid(). */
    QString fileName() const;
    operator QString() const;
    /**
     * Takes the name at the end of @p path apart; the directories before it do not matter. All
     * parts are empty when the name is not valid, and also when memory is short, which throws
     * std::bad_alloc.
     */
    void setFileName(const QString &path);
    bool isValid() const;
    /** Whether the name at the end of @p path is valid. */
    static bool isValid(const QString &path);

    void clear();
    bool isEmpty() const;
    /** The same as isEmpty(). */
    bool isNull() const;

private:
    struct SOMFileName {
        ~SOMFileName();

        QString slot;
        QString interface;
        QString hardwareVersion;
        QString softwareVersion;
        QString text;
        QString suffix;

        template <typename Self>
        static auto fields(Self &self);
    };

    SOMFileName m_name;

    friend VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream,
                                                        const COptionModuleFileName &name);
    friend VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream,
                                                        COptionModuleFileName &name);
};

/**
 * Stream form: slot, interface, hardware version, software version, text, suffix (QString each).
 * Reading takes them as they come.
 */
VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream,
                                             const COptionModuleFileName &name);
VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream, COptionModuleFileName &name);
