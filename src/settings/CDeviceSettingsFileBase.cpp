#include "settings/CDeviceSettingsFileBase.h"

#include "imported/CMessageBoardHelper.h"
#include "imported/CStr.h"
#include "vocabulary/NVornXmlTags.h"
#include "vocabulary/Texts.h"

using NvrnGlobal::EFileResult;

namespace {

using DeviceSettingsFileBaseTexts::Texts;

} // namespace

CDeviceSettingsFileBase::CDeviceSettingsFileBase(ICLogfile *logfile) : CXmlAbstractVornFile(logfile)
{
}

CDeviceSettingsFileBase::~CDeviceSettingsFileBase() = default;

bool CDeviceSettingsFileBase::handleVersionError(const QString &required, const QString &existing)
{
    bool isRevision = false;
    const quint32 requiredRevision = CStr::stringToRevision(required);
    const quint32 existingRevision = CStr::stringToRevision(existing, &isRevision);
    CMessageBoardHelper::setDebugCritical(
        Texts::tr("Device settings file version error: required %1, existing %2")
            .arg(QString::number(requiredRevision), QString::number(existingRevision)),
        logfile());
    m_openResult =
        isRevision ? NvrnGlobal::FILE_RESULT_VERSION_MISMATCH : NvrnGlobal::FILE_RESULT_FAILURE;
    m_fileVersion = existing;
    return false;
}

EFileResult CDeviceSettingsFileBase::open(const QString &fileName, const QString &version)
{
    return openFile(fileName, version);
}

EFileResult CDeviceSettingsFileBase::save(const QString &fileName, const QString &version)
{
    return saveFile(fileName, version);
}

void CDeviceSettingsFileBase::setDeviceSettings(const CDeviceSettings &) { }

CDeviceSettings CDeviceSettingsFileBase::deviceSettings() const
{
    return CDeviceSettings();
}

EFileResult CDeviceSettingsFileBase::openFromBuffer(const QByteArray &buffer,
                                                    const QString &version)
{
    return openBuffer(buffer, version);
}

EFileResult CDeviceSettingsFileBase::saveToBuffer(QByteArray &buffer, const QString &version)
{
    return saveBuffer(buffer, version);
}

EFileResult CDeviceSettingsFileBase::openResult() const
{
    return m_openResult;
}

QString CDeviceSettingsFileBase::fileVersion() const
{
    return m_fileVersion;
}

EFileResult CDeviceSettingsFileBase::openDocument(const QString &fileName,
                                                  const QString &requiredVersion)
{
    return openSource(fileName, requiredVersion);
}

EFileResult CDeviceSettingsFileBase::openDocument(const QByteArray &buffer,
                                                  const QString &requiredVersion)
{
    return openSource(buffer, requiredVersion);
}

template <typename Source>
EFileResult CDeviceSettingsFileBase::openSource(const Source &source,
                                                const QString &requiredVersion)
{
    // Stays so unless the document is opened, or handleVersionError() says more.
    m_openResult = NvrnGlobal::FILE_RESULT_FAILURE;
    m_fileVersion.clear();
    QString errorText;
    if (CXmlAbstractVornFile::open(source, NVornXmlTags::TAG_ROOT_DEVICESETTINGS, requiredVersion,
                                   errorText)) {
        m_openResult = NvrnGlobal::FILE_RESULT_SUCCESS;
        m_fileVersion = requiredVersion;
    }
    return m_openResult;
}
