#include "devicefiles/CDeviceOSReleaseFile.h"

#include "devicefiles/CHashMap.h"
#include "storage/FileStorage.h"

#include <QHash>
#include <QRegularExpression>
#include <QTextStream>

using namespace NvrnGlobal;

class CDeviceOSReleaseFilePrivate
{
public:
    CDeviceOSReleaseFilePrivate(CDeviceOSReleaseFile *file, ICLogfile *log) : q(file), logfile(log)
    {
    }

    void read(const QByteArray &content);
    void write(QTextStream &stream) const;

    static const QString mTAG_PRODUCT;
    static const QString mTAG_PLATFORM;
    static const QString mTAG_PTXDIST_VERSION;
    static const QString mTAG_PTXDIST_BSP;
    static const QString mTAG_BUILD_DATE;
    static const QString mTAG_TOOLCHAIN_VERSION;
    static const QString mTAG_KERNEL_IMAGE;
    static const QString mTAG_QT_VERSION;

    CDeviceOSReleaseFile *const q;
    ICLogfile *logfile;
    QString errorText;
    CHashMap<QString, QString> map;
};

const QString CDeviceOSReleaseFilePrivate::mTAG_PRODUCT = QStringLiteral("PRODUCT");
const QString CDeviceOSReleaseFilePrivate::mTAG_PLATFORM = QStringLiteral("PLATFORM");
const QString CDeviceOSReleaseFilePrivate::mTAG_PTXDIST_VERSION = QStringLiteral("PTXDIST_VERSION");
const QString CDeviceOSReleaseFilePrivate::mTAG_PTXDIST_BSP = QStringLiteral("PTXDIST_BSP");
const QString CDeviceOSReleaseFilePrivate::mTAG_BUILD_DATE = QStringLiteral("BUILD_DATE");
const QString CDeviceOSReleaseFilePrivate::mTAG_TOOLCHAIN_VERSION =
    QStringLiteral("TOOLCHAIN_VERSION");
const QString CDeviceOSReleaseFilePrivate::mTAG_KERNEL_IMAGE = QStringLiteral("KERNEL_IMAGE");
const QString CDeviceOSReleaseFilePrivate::mTAG_QT_VERSION = QStringLiteral("QT_VERSION");

void CDeviceOSReleaseFilePrivate::read(const QByteArray &content)
{
    // A class of characters, though it looks like two alternatives: it strips each of them wherever
    // it stands, not only the quotes around a value.
    static const QRegularExpression stripped(QStringLiteral("[(^\")(\"$)]"));
    const QLatin1Char separator('=');
    QTextStream stream(content);
    stream.setCodec("UTF-8");
    QList<QString> keys;
    QList<QString> values;
    // The map compares one key after the other: with that, a file of many keys would take minutes.
    QHash<QString, int> indices;
    for (QString line; stream.readLineInto(&line);) {
        if (!line.contains(separator)) {
            continue;
        }
        const QString key = line.section(separator, 0, 0);
        const QString value = line.section(separator, 1, 1).remove(stripped);
        const auto known = indices.constFind(key);
        if (known != indices.constEnd()) {
            values[known.value()] = value;
            continue;
        }
        indices.insert(key, keys.size());
        keys.append(key);
        values.append(value);
    }
    map = CHashMap<QString, QString>(keys, values);
}

void CDeviceOSReleaseFilePrivate::write(QTextStream &stream) const
{
    const QList<QString> keys = map.keys();
    const QList<QString> values = map.values();
    for (int i = 0; i < keys.size(); ++i) {
        // Nothing stands between two pairs on purpose; see the header.
        stream << keys.at(i) << '=' << values.at(i);
    }
}

CDeviceOSReleaseFile::CDeviceOSReleaseFile(ICLogfile *log)
    : d(std::make_unique<CDeviceOSReleaseFilePrivate>(this, log))
{
}

CDeviceOSReleaseFile::CDeviceOSReleaseFile(const QString &fileName, ICLogfile *log)
    : CDeviceOSReleaseFile(log)
{
    open(fileName);
}

CDeviceOSReleaseFile::CDeviceOSReleaseFile(const QByteArray &buffer, ICLogfile *log)
    : CDeviceOSReleaseFile(log)
{
    openFromBuffer(buffer);
}

CDeviceOSReleaseFile::~CDeviceOSReleaseFile() = default;

void CDeviceOSReleaseFile::setLogfile(ICLogfile *log)
{
    d->logfile = log;
}

ICLogfile *CDeviceOSReleaseFile::logfile() const
{
    return d->logfile;
}

EFileResult CDeviceOSReleaseFile::open(const QString &fileName)
{
    d->map.clear();
    QByteArray content;
    const FileStorage::SResult read = FileStorage::read(fileName, content, MaximumSize);
    if (!read) {
        d->errorText = read.reason;
        return FILE_RESULT_READ_FAILURE;
    }
    return openFromBuffer(content);
}

EFileResult CDeviceOSReleaseFile::openFromBuffer(const QByteArray &buffer)
{
    d->map.clear();
    const bool isTooLarge = buffer.size() > MaximumSize;
    d->errorText = isTooLarge ? FileStorage::tooLarge(MaximumSize) : QString();
    if (isTooLarge) {
        return FILE_RESULT_READ_FAILURE;
    }
    d->read(buffer);
    return FILE_RESULT_SUCCESS;
}

EFileResult CDeviceOSReleaseFile::save(const QString &fileName)
{
    QByteArray content;
    saveToBuffer(content);
    const FileStorage::SResult saved = FileStorage::replace(fileName, content);
    d->errorText = saved.reason;
    return saved ? FILE_RESULT_SUCCESS : FILE_RESULT_WRITE_FAILURE;
}

QString CDeviceOSReleaseFile::errorText() const
{
    return d->errorText;
}

EFileResult CDeviceOSReleaseFile::saveToBuffer(QByteArray &buffer)
{
    buffer.clear();
    QTextStream stream(&buffer, QIODevice::WriteOnly);
    stream.setCodec("UTF-8");
    d->write(stream);
    return FILE_RESULT_SUCCESS;
}

bool CDeviceOSReleaseFile::isNull() const
{
    return d->map.isEmpty();
}

bool CDeviceOSReleaseFile::isValid() const
{
    return !d->map.keys().contains(QString()) && !d->map.values().contains(QString());
}

QString CDeviceOSReleaseFile::product() const
{
    return d->map.value(CDeviceOSReleaseFilePrivate::mTAG_PRODUCT);
}

void CDeviceOSReleaseFile::setProduct(const QString &value)
{
    d->map.insert(CDeviceOSReleaseFilePrivate::mTAG_PRODUCT, value);
}

QString CDeviceOSReleaseFile::platform() const
{
    return d->map.value(CDeviceOSReleaseFilePrivate::mTAG_PLATFORM);
}

void CDeviceOSReleaseFile::setPlatform(const QString &value)
{
    d->map.insert(CDeviceOSReleaseFilePrivate::mTAG_PLATFORM, value);
}

QString CDeviceOSReleaseFile::ptxdistVersion() const
{
    return d->map.value(CDeviceOSReleaseFilePrivate::mTAG_PTXDIST_VERSION);
}

void CDeviceOSReleaseFile::setPtxdistVersion(const QString &value)
{
    d->map.insert(CDeviceOSReleaseFilePrivate::mTAG_PTXDIST_VERSION, value);
}

QString CDeviceOSReleaseFile::ptxdistBsp() const
{
    return d->map.value(CDeviceOSReleaseFilePrivate::mTAG_PTXDIST_BSP);
}

void CDeviceOSReleaseFile::setPtxdistBsp(const QString &value)
{
    d->map.insert(CDeviceOSReleaseFilePrivate::mTAG_PTXDIST_BSP, value);
}

QString CDeviceOSReleaseFile::buildDate() const
{
    return d->map.value(CDeviceOSReleaseFilePrivate::mTAG_BUILD_DATE);
}

void CDeviceOSReleaseFile::setBuildDate(const QString &value)
{
    d->map.insert(CDeviceOSReleaseFilePrivate::mTAG_BUILD_DATE, value);
}

QString CDeviceOSReleaseFile::toolchainVersion() const
{
    return d->map.value(CDeviceOSReleaseFilePrivate::mTAG_TOOLCHAIN_VERSION);
}

void CDeviceOSReleaseFile::setToolchainVersion(const QString &value)
{
    d->map.insert(CDeviceOSReleaseFilePrivate::mTAG_TOOLCHAIN_VERSION, value);
}

QString CDeviceOSReleaseFile::kernelImage() const
{
    return d->map.value(CDeviceOSReleaseFilePrivate::mTAG_KERNEL_IMAGE);
}

void CDeviceOSReleaseFile::setKernelImage(const QString &value)
{
    d->map.insert(CDeviceOSReleaseFilePrivate::mTAG_KERNEL_IMAGE, value);
}

QString CDeviceOSReleaseFile::qtVersion() const
{
    return d->map.value(CDeviceOSReleaseFilePrivate::mTAG_QT_VERSION);
}

void CDeviceOSReleaseFile::setQtVersion(const QString &value)
{
    d->map.insert(CDeviceOSReleaseFilePrivate::mTAG_QT_VERSION, value);
}
