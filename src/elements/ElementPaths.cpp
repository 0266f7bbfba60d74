#include "elements/ElementPaths.h"

#include "devicefiles/CDeviceFileSystem.h"
#include "elements/CBaseElement.h"
#include "imported/CPath.h"

#include <QDir>
#include <QRegExp>

namespace {

const QLatin1Char Separator('/');

QString withForwardSlashes(const QString &path)
{
    // On Linux fromNativeSeparators() leaves backslashes, but projects also come from Windows.
    return QDir::fromNativeSeparators(path).replace(QLatin1Char('\\'), Separator);
}

} // namespace

namespace ElementPaths {

QString projectDirectory(const QString &path)
{
    return path.isEmpty() ? QString() : CPath::ensurePathSeparatorAtEnd(withForwardSlashes(path));
}

QString deviceDirectory(const QString &path)
{
    return path.isEmpty() ? QString() : CPath::ensurePathSeparatorAtStart(projectDirectory(path));
}

DeviceRenaming::DeviceRenaming(const CBaseElement &element, const QString &oldName,
                               const QString &newName)
    : m_element(element), m_oldName(oldName), m_newName(newName)
{
}

QString DeviceRenaming::projectPath(const QString &path) const
{
    if (path.isEmpty() || m_oldName.isEmpty() || m_newName.isEmpty()) {
        return path;
    }
    if (path.startsWith(m_oldName + Separator)) {
        return m_newName + path.mid(m_oldName.size());
    }
    // The name is meant literally, the replacement takes a pattern.
    return m_element.adaptFilePathToDeviceName(CPath::ensurePathSeparatorAtEnd(path),
                                               QRegExp::escape(m_oldName), m_newName);
}

ConfigurationRenaming::ConfigurationRenaming(const CBaseElement &element, const QString &deviceName,
                                             const QString &newName)
    : m_element(element), m_deviceName(deviceName), m_oldName(element.configurationName()),
      m_newName(newName)
{
}

QString ConfigurationRenaming::projectPath(const QString &path) const
{
    if (path.isEmpty() || m_oldName.isEmpty() || m_newName.isEmpty()) {
        return path;
    }
    const bool startsWithDevice =
        !m_deviceName.isEmpty() && path.startsWith(m_deviceName + Separator);
    const int ownSize = startsWithDevice ? m_deviceName.size() + 1 : 0;
    if (ownSize == path.size()) {
        return path;
    }
    return path.left(ownSize)
        + m_element.adaptFilePathToConfigurationName(
            CPath::ensurePathSeparatorAtEnd(path.mid(ownSize)), QRegExp::escape(m_oldName),
            m_newName);
}

QString ConfigurationRenaming::devicePath(const QString &path) const
{
    if (m_oldName.isEmpty() || m_newName.isEmpty()) {
        return path;
    }
    const QString oldInSm = CDeviceFileSystem::smDevicePath(m_oldName);
    if (path.startsWith(oldInSm)) {
        return CDeviceFileSystem::smDevicePath(m_newName) + path.mid(oldInSm.size());
    }
    const QString oldInOpt = CDeviceFileSystem::optSMDevicePath(m_oldName);
    if (path.startsWith(oldInOpt)) {
        return CDeviceFileSystem::optSMDevicePath(m_newName) + path.mid(oldInOpt.size());
    }
    return path;
}

} // namespace ElementPaths
