#include "settings/CNetworkSettingsFile.h"

#include "settings/NetworkText.h"
#include "storage/FileStorage.h"
#include "vocabulary/NvrFileNames.h"

#include <cerrno>

using namespace NvrnGlobal;

CNetworkSettingsFile::CNetworkSettingsFile() = default;

CNetworkSettingsFile::CNetworkSettingsFile(const QString &fileName)
{
    open(fileName);
}

CNetworkSettingsFile::~CNetworkSettingsFile() = default;

QString CNetworkSettingsFile::defaultFileName() const
{
    return NvrFileNames::DEFAULT_DEVICE_NETWORK_CONF;
}

CNetworkSettings CNetworkSettingsFile::networkSettings() const
{
    return m_settings;
}

void CNetworkSettingsFile::setNetworkSettings(const CNetworkSettings &settings)
{
    m_settings = settings;
}

QStringList CNetworkSettingsFile::keys()
{
    return NetworkText::keyNames();
}

QString CNetworkSettingsFile::value(const QString &key) const
{
    const NetworkText::SKey *const found = NetworkText::findKey(key);
    return found == nullptr ? QString() : found->get(m_settings);
}

bool CNetworkSettingsFile::setValue(const QString &key, const QString &value)
{
    const NetworkText::SKey *const found = NetworkText::findKey(key);
    if (found != nullptr) {
        found->set(m_settings, value);
    }
    return found != nullptr;
}

EFileResult CNetworkSettingsFile::open(const QString &fileName)
{
    QByteArray content;
    QHash<QString, QString> values;
    const FileStorage::SResult read = FileStorage::read(fileName, content, MaximumSize);
    const bool isRead = read && NetworkText::readValues(content, values);
    m_errorText = read && !isRead ? qt_error_string(ENOMEM) : read.reason;
    if (!isRead) {
        return FILE_RESULT_FAILURE;
    }
    for (const NetworkText::SKey &key : NetworkText::keys()) {
        key.set(m_settings, values.value(key.name, key.missingValue));
    }
    m_fileName = fileName;
    return FILE_RESULT_SUCCESS;
}

EFileResult CNetworkSettingsFile::save(const QString &fileName)
{
    QByteArray content;
    saveToBuffer(content);
    const FileStorage::SResult saved = FileStorage::replace(fileName, content);
    m_errorText = saved.reason;
    if (!saved) {
        return saved.outcome == FileStorage::NOT_OPENED ? FILE_RESULT_FAILURE
                                                        : FILE_RESULT_WRITE_FAILURE;
    }
    m_fileName = fileName;
    return FILE_RESULT_SUCCESS;
}

EFileResult CNetworkSettingsFile::save()
{
    return save(m_fileName);
}

QString CNetworkSettingsFile::errorText() const
{
    return m_errorText;
}

// Programs are compiled against the signature without "const".
// NOLINTNEXTLINE(readability-make-member-function-const)
EFileResult CNetworkSettingsFile::saveToBuffer(QByteArray &buffer)
{
    buffer.clear();
    QTextStream stream(&buffer, QIODevice::ReadWrite);
    stream.setCodec("UTF-8");
    write(stream);
    return FILE_RESULT_SUCCESS;
}

void CNetworkSettingsFile::write(QTextStream &stream) const
{
    QString text;
    for (const NetworkText::SKey &key : NetworkText::keys()) {
        text += key.preface + key.name + QLatin1Char('=') + key.get(m_settings) + QLatin1Char('\n');
    }
    // At once, so that a field width of the stream pads nothing in between.
    stream << text + QLatin1Char('\n');
}
