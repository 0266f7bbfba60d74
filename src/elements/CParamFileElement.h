#pragma once

#include "elements/CFileElement.h"
#include "vocabulary/NvrnGlobal.h"
#include "vocabulary/VrnDeviceCoreExport.h"

#include <QDataStream>
#include <QSharedDataPointer>
#include <QString>

class CParamFileElementData;

/**
 * A parameter file of a configuration: a pair of a value file and a definition file that share a
 * base name.
 *
 * Copies share their data until one of them is changed. Thread-safe as every value: see
 * docs/architecture.md.
 */
class VRNDEVICECORE_EXPORT CParamFileElement
{
public:
    /** A null element: type PARAM_FILE_UNDEFINED, drive number -1, everything else empty. */
    CParamFileElement();
    CParamFileElement(const CParamFileElement &other);
    ~CParamFileElement();

    /** Base name of the pair, without extension. */
    QString name() const;
    void setName(const QString &name);

    /** Free comment. */
    QString comment() const;
    void setComment(const QString &comment);

    /** Kind of parameter file. */
    NvrnGlobal::EParamFileType type() const;
    void setType(NvrnGlobal::EParamFileType type);

    /** Number of the drive that the file belongs to; -1 when it belongs to none. */
    int driveId() const;
    void setDriveId(int driveId);

    /** The same number as driveId(), under the name that sub-devices use for it. */
    int subDeviceId() const;
    void setSubDeviceId(int subDeviceId);

    /** Directory on the device; stored as CFileElement::setDevicePath() stores it. */
    QString devicePath() const;
    void setDevicePath(const QString &devicePath);

    /** Directory in the project; stored as CFileElement::setProjectPath() stores it. */
    QString projectPath() const;
    void setProjectPath(const QString &projectPath);

    /** Name of the value file: with the extension ".xml" for KC2 parameters, none for KC2
     *  compensation, ".3param" for every other type. */
    QString valueFileName() const;
    /** Name of the definition file, with the extension ".3pdef"; empty for the two KC2 types, which
     *  have none. */
    QString defFileName() const;

    /** The value file in the element's directories, without comment. */
    CFileElement valueFile() const;
    /** The definition file in the element's directories, without comment. */
    CFileElement defFile() const;

    /**
     * Whether definition file and value file both exist in the project. Always false for the two
     * KC2 types: they have no definition file.
     */
    bool exits() const;

    /**
     * Whether the element has a name and its type is not below PARAM_FILE_UNDEFINED; in effect, a
     * parameter file is valid as soon as it has a name.
     */
    bool isValid() const;

    /** Whether type, name and comment are as by default; drive number and directories may differ.
     */
    bool isNull() const;
    void clear();

    CParamFileElement &operator=(const CParamFileElement &other);

    /** Compares everything but the comment: the same file may be described in different words. */
    bool operator==(const CParamFileElement &other) const;
    bool operator!=(const CParamFileElement &other) const;

private:
    QSharedDataPointer<CParamFileElementData> d;

    friend VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream,
                                                        const CParamFileElement &file);
    friend VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream,
                                                        CParamFileElement &file);
};

/**
 * Stream form: name, comment (QString), type, drive number (signed 32 bit), device directory,
 * project directory (QString). Reading stores everything as it comes, also unknown types, and does
 * not check the stream's status.
 */
VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream, const CParamFileElement &file);
VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream, CParamFileElement &file);
