#pragma once

#include "devicefiles/CDeviceOSReleaseFile.h"
#include "imported/CXmlAbstractVornFile.h"
#include "settings/CNetworkSettingsFile.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/MessageCatcher.h"

#include <QByteArray>
#include <QDomElement>
#include <QFile>
#include <QObject>
#include <QString>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

/** The classes that replace files, and their files. */
namespace FileSavers {

class XmlFile : public CXmlAbstractVornFile
{
public:
    XmlFile() : CXmlAbstractVornFile(nullptr)
    {
        createNewDocument(u"Document"_s, u"1.0"_s);
        setNodeValue(u"Name"_s, QString(800, QLatin1Char('x')), QDomElement());
    }

    bool handleVersionError(const QString &, const QString &) override { return true; }
};

inline int saveNetwork(const QString &path)
{
    return CNetworkSettingsFile().save(path);
}

inline QByteArray networkText()
{
    QByteArray buffer;
    CNetworkSettingsFile().saveToBuffer(buffer);
    return buffer;
}

inline void fill(CDeviceOSReleaseFile &file)
{
    file.setProduct(QString(800, QLatin1Char('x')));
}

inline int saveRelease(const QString &path)
{
    CDeviceOSReleaseFile file;
    fill(file);
    return file.save(path);
}

inline QByteArray releaseText()
{
    CDeviceOSReleaseFile file;
    fill(file);
    QByteArray buffer;
    file.saveToBuffer(buffer);
    return buffer;
}

inline int saveXml(const QString &path)
{
    const MessageCatcher catcher;
    QString error;
    const bool saved = XmlFile().save(path, error);
    return saved && catcher.messages().isEmpty() && error.isEmpty() ? 0 : 1;
}

inline QByteArray xmlText()
{
    QByteArray buffer;
    QString error;
    XmlFile().save(buffer, error);
    return buffer;
}

struct SSaver {
    const char *name;
    /** 0 is success. */
    int (*save)(const QString &path);
    /** What is saved; longer than MaxFileSize. */
    QByteArray (*text)();
    /** The result when the file cannot be opened for writing; when writing fails on the way. */
    int notOpened;
    int notFinished;
};

const SSaver Savers[] = {
    {"network.conf", saveNetwork, networkText, 1, 5},
    {"os-release", saveRelease, releaseText, 5, 5},
    {"XML", saveXml, xmlText, 1, 1},
};

/** The size that files may have on a disk that is full. */
const int MaxFileSize = 100;

inline QByteArray native(const QString &path)
{
    return QFile::encodeName(path);
}

inline struct stat statusOf(const QString &path)
{
    struct stat status = {};
    lstat(native(path).constData(), &status);
    return status;
}

inline int modeOf(const QString &path)
{
    return static_cast<int>(statusOf(path).st_mode & ALLPERMS);
}

inline bool setMode(const QString &path, int mode)
{
    return chmod(native(path).constData(), static_cast<mode_t>(mode)) == 0;
}

/** Where a link leads, as it stands there; empty when it is none. */
inline QByteArray linkTarget(const QString &path)
{
    char target[1000];
    const ssize_t size = readlink(native(path).constData(), target, sizeof target);
    return size < 0 ? QByteArray() : QByteArray(target, static_cast<int>(size));
}

/** A directory for the files. */
class FileSaverTest : public QObject
{
protected:
    /** Called before each test. */
    void prepare()
    {
        m_directory = std::make_unique<QTemporaryDir>();
        QVERIFY(m_directory->isValid());
    }

    static void addSavers()
    {
        QTest::addColumn<SSaver>("saver");
        for (const SSaver &saver : Savers) {
            QTest::newRow(saver.name) << saver;
        }
    }

    QString path(const QString &name = u"file"_s) const
    {
        return m_directory->path() + u"/"_s + name;
    }

    QStringList entries(const QString &name = u"."_s) const { return Files::names(path(name)); }

    std::unique_ptr<QTemporaryDir> m_directory;
};

} // namespace FileSavers
