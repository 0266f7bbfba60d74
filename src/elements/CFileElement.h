#pragma once

#include "imported/CFTPath.h"
#include "vocabulary/VrnDeviceCoreExport.h"

#include <QDataStream>
#include <QSharedDataPointer>
#include <QString>

class CFileElementData;

/**
 * A file that belongs to a configuration: its name, the directory that holds it on the device, and
 * the directory that holds it in the project.
 *
 * Null means that all four texts are empty. Copies share their data until one of them is changed.
 * Thread-safe as every value: see docs/architecture.md.
 *
 * The virtual operations stand in the order that binary compatibility demands; those that compose
 * a path call the accessors through their virtual operations.
 */
class VRNDEVICECORE_EXPORT CFileElement
{
public:
    CFileElement();
    CFileElement(const CFileElement &other);
    virtual ~CFileElement();

    /** File name without directory. */
    virtual QString fileName() const;
    virtual void setFileName(const QString &fileName);

    /** The area of the device's file system in which the device directory lies. */
    virtual CFTPath::EEntryPoint deviceEntryPoint() const;

    /**
     * Directory on the device. Backslashes are stored as forward slashes, and one stands at the
     * start and at the end; an empty directory is stored as null.
     */
    virtual QString devicePath() const;
    virtual void setDevicePath(const QString &devicePath);

    /**
     * Directory in the project, relative or absolute. Backslashes are stored as forward slashes,
     * and one stands at the end; an empty directory is stored as null.
     */
    virtual QString projectPath() const;
    virtual void setProjectPath(const QString &projectPath);

    /** Directory and name in the project; empty without a file name. */
    virtual QString projectFilePath() const;
    /** Directory and name on the device; the directory alone without a file name. */
    virtual QString deviceFilePath() const;
    /**
     * deviceFilePath() relative to the root of @p entryPoint; with an unknown entry point as it
     * is.
     */
    virtual QString relativeDeviceFilePath(CFTPath::EEntryPoint entryPoint) const;

    /** Free comment. */
    virtual QString comment() const;
    virtual void setComment(const QString &comment);

    CFileElement &operator=(const CFileElement &other);

    /** Compares all four texts, the comment included. */
    bool operator==(const CFileElement &other) const;
    bool operator!=(const CFileElement &other) const;

    bool isNull() const;
    void clear();

private:
    QSharedDataPointer<CFileElementData> d;

    friend VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream,
                                                        const CFileElement &file);
    friend VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream, CFileElement &file);
};

/**
 * Stream form: file name, device directory, project directory, comment (QString each). Reading
 * stores the directories as they come and does not check the stream's status.
 */
VRNDEVICECORE_EXPORT QDataStream &operator<<(QDataStream &stream, const CFileElement &file);
VRNDEVICECORE_EXPORT QDataStream &operator>>(QDataStream &stream, CFileElement &file);
