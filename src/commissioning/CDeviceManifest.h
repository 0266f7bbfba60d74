#pragma once

#include "commissioning/VrnCommissioningExport.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

/**
 * What a device tree consists of: its directories, and the size and the SHA-256 sum of every file,
 * so that what is missing, surplus or changed can be found later, on the device or in the project.
 *
 * Thread-safe as every value: see docs/architecture.md.
 */
class VRNCOMMISSIONING_EXPORT CDeviceManifest
{
    Q_DECLARE_TR_FUNCTIONS(CDeviceManifest)

public:
    struct SEntry {
        /** Relative to the root of the device, with forward slashes: "velkor/conf/a.xml". */
        QString devicePath;
        /** Relative to the project's directory; empty when it does not come from there. */
        QString projectPath;
        /** Bytes. */
        qint64 size = 0;
        /** 64 lower-case hexadecimal digits. */
        QByteArray sha256;
    };

    /** "manifest.json": its name in the root of a staged tree, and in a project's directory. */
    static QString fileName();

    /** In the order of their device paths, by UTF-16 units. */
    QList<SEntry> entries() const;
    /** Takes them in any order; what isDevicePath() and the rest of readJson() refuse comes out. */
    void setEntries(const QList<SEntry> &entries);

    /**
     * Directories, relative to the root of the device and without a slash at the end, in the same
     * order: those that hold no file must stand here, the parents of a file or directory may.
     */
    QStringList directories() const;
    void setDirectories(const QStringList &directories);

    /** The manifest as JSON, the same bytes for the same entries and directories. */
    QByteArray toJson() const;
    /**
     * Reads what toJson() wrote, with any white space between the tokens; anything else is refused,
     * and so are paths that are absolute, lead out of the root, appear twice, or are those of both
     * a file and a directory. On failure this manifest is unchanged.
     * @param errorText why it was refused, for the user
     */
    bool readJson(const QByteArray &json, QString &errorText);

    /** Bytes; a longer manifest is refused. Tens of thousands of files fit in. */
    static qint64 maximumSize();

    /**
     * Whether @p path can be that of a file or directory of the device: relative, with names that
     * are not empty, "." or "..", that fit in a file system, and of which the first is not that of
     * the manifest itself.
     */
    static bool isDevicePath(const QString &path);

    /**
     * Reads the regular file @p path for its size and sum, in small memory.
     * @param errorText why it cannot be read, for the user
     */
    static bool measure(const QString &path, qint64 &size, QByteArray &sha256, QString &errorText);

private:
    QList<SEntry> m_entries;
    QStringList m_directories;
};
