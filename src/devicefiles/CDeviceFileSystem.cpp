#include "devicefiles/CDeviceFileSystem.h"

#include "imported/CFTPath.h"
#include "imported/CPath.h"

#include <QRegExp>

namespace {

const QLatin1Char Separator('/');

// The number under which the opt tree is transferred.
const auto OptEntryPoint = static_cast<CFTPath::EEntryPoint>(4);

QString belowDevice(const CDeviceBaseElement &device, const QString &path)
{
    QString below = device.name() + Separator + path;
    return below.replace(QRegExp(QStringLiteral(R"([\\/]{2,})")), QString(Separator));
}

} // namespace

CDeviceFileSystem::CDeviceFileSystem(const CDeviceBaseElement &device) : m_device(device) { }

CDeviceFileSystem::~CDeviceFileSystem() = default;

QString CDeviceFileSystem::smPath()
{
    return Separator + CPath::CPATH_COMPANY;
}

QString CDeviceFileSystem::smConfPath()
{
    return smPath() + CPath::CPATH_CONF;
}

QString CDeviceFileSystem::smLogPath()
{
    return smPath() + CPath::CPATH_LOG;
}

QString CDeviceFileSystem::smConfigurationsPath()
{
    return smPath() + CFTPath::PATH_CONFIGURATIONS;
}

QString CDeviceFileSystem::smDevicePath(const QString &name)
{
    return name.isEmpty() ? QString() : smConfigurationsPath() + name + Separator;
}

QString CDeviceFileSystem::smDevicePath() const
{
    return smDevicePath(m_device.configurationName());
}

QString CDeviceFileSystem::smDeviceConfPath(const QString &name)
{
    return smDevicePath(name) + CFTPath::PATH_CONF;
}

QString CDeviceFileSystem::smDeviceConfPath() const
{
    return smDeviceConfPath(m_device.configurationName());
}

QString CDeviceFileSystem::smRelDeviceParamPath()
{
    return CFTPath::PATH_PARAM;
}

QString CDeviceFileSystem::smDeviceParamPath(const QString &name)
{
    return smDevicePath(name) + smRelDeviceParamPath();
}

QString CDeviceFileSystem::smDeviceParamPath() const
{
    return smDeviceParamPath(m_device.configurationName());
}

QString CDeviceFileSystem::smSubDevicesPath(const QString &name)
{
    return smDevicePath(name) + CFTPath::PATH_SUBDEVICES;
}

QString CDeviceFileSystem::smSubDevicesPath() const
{
    return smSubDevicesPath(m_device.configurationName());
}

QString CDeviceFileSystem::smRelSubDevicePath(int n)
{
    return CFTPath::PATH_SUBDEVICES + QString::number(n) + Separator;
}

QString CDeviceFileSystem::smSubDevicePath(const QString &name, int n)
{
    return smDevicePath(name) + smRelSubDevicePath(n);
}

QString CDeviceFileSystem::smSubDevicePath(int n) const
{
    return smSubDevicePath(m_device.configurationName(), n);
}

QString CDeviceFileSystem::smSubDeviceFirmwarePath(const QString &name, int n)
{
    return smSubDevicePath(name, n) + CFTPath::PATH_FIRMWARE;
}

QString CDeviceFileSystem::smSubDeviceFirmwarePath(int n) const
{
    return smSubDeviceFirmwarePath(m_device.configurationName(), n);
}

QString CDeviceFileSystem::smSubDeviceLogicPath(const QString &name, int n)
{
    return smSubDevicePath(name, n) + CFTPath::PATH_LOGIC;
}

QString CDeviceFileSystem::smSubDeviceLogicPath(int n) const
{
    return smSubDeviceLogicPath(m_device.configurationName(), n);
}

QString CDeviceFileSystem::smRelSubDeviceParamPath(int n)
{
    return smRelSubDevicePath(n) + CFTPath::PATH_PARAM;
}

QString CDeviceFileSystem::smSubDeviceParamPath(const QString &name, int n)
{
    return smSubDevicePath(name, n) + CFTPath::PATH_PARAM;
}

QString CDeviceFileSystem::smSubDeviceParamPath(int n) const
{
    return smSubDeviceParamPath(m_device.configurationName(), n);
}

QString CDeviceFileSystem::optSMPath()
{
    return QStringLiteral("/opt/%1").arg(CPath::CPATH_COMPANY);
}

QString CDeviceFileSystem::optSMEtcConfPath()
{
    return QStringLiteral("/opt/%1%2").arg(CPath::CPATH_COMPANY, CPath::CPATH_CCONF);
}

QString CDeviceFileSystem::optSMPluginsBasePath()
{
    return optSMPath() + CPath::CPATH_PLUGINS;
}

QString CDeviceFileSystem::optSMPluginsPath()
{
    return optSMPluginsBasePath() + QStringLiteral("app/");
}

QString CDeviceFileSystem::optSMConfigurationsPath()
{
    return optSMPath() + CFTPath::PATH_CONFIGURATIONS;
}

QString CDeviceFileSystem::optSMDevicePath(const QString &name)
{
    return name.isEmpty() ? QString() : optSMConfigurationsPath() + name + Separator;
}

QString CDeviceFileSystem::optSMDevicePath() const
{
    return optSMDevicePath(m_device.configurationName());
}

QString CDeviceFileSystem::optSMDeviceAutostartPath(const QString &name)
{
    return optSMDevicePath(name) + CFTPath::PATH_AUTOSTART;
}

QString CDeviceFileSystem::optSMDeviceAutostartPath() const
{
    return optSMDeviceAutostartPath(m_device.configurationName());
}

QString CDeviceFileSystem::optSMDeviceBinPath(const QString &name)
{
    return optSMDevicePath(name) + CFTPath::PATH_BIN;
}

QString CDeviceFileSystem::optSMDeviceBinPath() const
{
    return optSMDeviceBinPath(m_device.configurationName());
}

QString CDeviceFileSystem::optSMDeviceConfPath(const QString &name)
{
    return optSMDevicePath(name) + CFTPath::PATH_CONF;
}

QString CDeviceFileSystem::optSMDeviceConfPath() const
{
    return optSMDeviceConfPath(m_device.configurationName());
}

QString CDeviceFileSystem::stdObjectDictionaryPath(const QString &name)
{
    return optSMDeviceConfPath(name);
}

QString CDeviceFileSystem::stdObjectDictionaryPath() const
{
    return stdObjectDictionaryPath(m_device.configurationName());
}

QString CDeviceFileSystem::stdFaultTextFilePath(const QString &name)
{
    return optSMDeviceConfPath(name);
}

QString CDeviceFileSystem::stdFaultTextFilePath() const
{
    return stdFaultTextFilePath(m_device.configurationName());
}

QString CDeviceFileSystem::stdParamFilePath(NvrnGlobal::EParamFileType type, const QString &name)
{
    switch (type) {
    case NvrnGlobal::PARAM_FILE_DEVICE_DATABASE:
    case NvrnGlobal::PARAM_FILE_FIRMWARE_DATABASE:
    case NvrnGlobal::PARAM_FILE_LOGIC_DATABASE:
    case NvrnGlobal::PARAM_FILE_OPTION_MODULE_DATABASE:
        return optSMEtcConfPath();
    default:
        return smDeviceParamPath(name);
    }
}

QString CDeviceFileSystem::stdParamFilePath(NvrnGlobal::EParamFileType type) const
{
    return stdParamFilePath(type, m_device.configurationName());
}

QString CDeviceFileSystem::stdFpgaPath()
{
    return optSMEtcConfPath();
}

QString CDeviceFileSystem::stdPluginPath()
{
    return optSMPluginsPath();
}

QString CDeviceFileSystem::stdOpcUaFilePath(const QString &name)
{
    return smDeviceConfPath(name);
}

QString CDeviceFileSystem::stdOpcUaFilePath() const
{
    return stdOpcUaFilePath(m_device.configurationName());
}

QString CDeviceFileSystem::stdEtherCatMasterFilePath(const QString &name)
{
    return smDeviceParamPath(name);
}

QString CDeviceFileSystem::stdEtherCatMasterFilePath() const
{
    return stdEtherCatMasterFilePath(m_device.configurationName());
}

QStringList CDeviceFileSystem::smPathList(const QString &name, unsigned int subDeviceCount)
{
    if (name.isEmpty()) {
        return QStringList();
    }
    QStringList paths = {smPath(),
                         smLogPath(),
                         smConfigurationsPath(),
                         smDevicePath(name),
                         smDeviceConfPath(name),
                         smDeviceParamPath(name),
                         smSubDevicesPath(name)};
    for (unsigned int i = 0; i < subDeviceCount; ++i) {
        const int n = static_cast<int>(i);
        paths << smSubDevicePath(name, n) << smSubDeviceFirmwarePath(name, n)
              << smSubDeviceLogicPath(name, n) << smSubDeviceParamPath(name, n);
    }
    return paths;
}

QStringList CDeviceFileSystem::smPathList() const
{
    return m_device.isNull() ? QStringList()
                             : smPathList(m_device.configurationName(),
                                          static_cast<unsigned int>(m_device.subDeviceCount()));
}

QStringList CDeviceFileSystem::optSMPathList(const QString &name)
{
    if (name.isEmpty()) {
        return QStringList();
    }
    return {optSMPath(),
            optSMConfigurationsPath(),
            optSMDevicePath(name),
            optSMDeviceAutostartPath(name),
            optSMDeviceBinPath(name),
            optSMDeviceConfPath(name)};
}

QStringList CDeviceFileSystem::optSMPathList() const
{
    return m_device.isNull() ? QStringList() : optSMPathList(m_device.configurationName());
}

QString CDeviceFileSystem::toRelativeProjectPath(const QString &path,
                                                 const CDeviceBaseElement &device)
{
    const QString configuration = device.configurationName();
    if (!configuration.isEmpty() && path.contains(configuration)) {
        const QString rootWord = smPath().remove(QRegExp(QStringLiteral(R"([\\/]+)")));
        if (device.isNull() || !path.contains(rootWord)) {
            return QString();
        }
        return belowDevice(
            device, QString(path).remove(CFTPath::PATH_CONFIGURATIONS).remove(configuration));
    }
    if (!path.contains(CFTPath::toPath(OptEntryPoint))) {
        return QString();
    }
    return belowDevice(device, CPath::removePathSeparatorAtStart(path));
}

QString CDeviceFileSystem::toRelativeProjectPath(const QString &path) const
{
    return toRelativeProjectPath(path, m_device);
}
