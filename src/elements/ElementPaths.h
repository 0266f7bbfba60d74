#pragma once

#include <QString>

class CBaseElement;

/** The rules for directories of files that several element classes share. */
namespace ElementPaths {

/**
 * A directory on the device as it is stored: forward slashes, one at the start and one at the end;
 * null when empty.
 */
QString deviceDirectory(const QString &path);

/** A directory in the project as it is stored: forward slashes, one at the end; null when empty. */
QString projectDirectory(const QString &path);

/**
 * Moves the directories of files when the device gets a new name. Nothing is moved when the old or
 * the new name is empty: an empty name names no directory.
 *
 * A project path that begins with the device's directory stays below it; in any other, the last
 * component equal to the old name is replaced.
 */
class DeviceRenaming
{
public:
    DeviceRenaming(const CBaseElement &element, const QString &oldName, const QString &newName);

    template <typename File>
    void apply(File &file) const
    {
        const QString moved = projectPath(file.projectPath());
        if (moved != file.projectPath()) {
            file.setProjectPath(moved);
        }
    }

private:
    QString projectPath(const QString &path) const;

    const CBaseElement &m_element;
    const QString m_oldName;
    const QString m_newName;
};

/**
 * Moves the directories of files when the configuration gets a new name. Nothing is moved when the
 * old or the new name is empty.
 *
 * On the device, what lies in the configuration's directory of the sm or the opt tree moves. In a
 * project path, the last component equal to the old name is replaced; the device's own directory
 * at its start is left alone, also when it bears the same name.
 */
class ConfigurationRenaming
{
public:
    ConfigurationRenaming(const CBaseElement &element, const QString &deviceName,
                          const QString &newName);

    template <typename File>
    void apply(File &file) const
    {
        const QString inProject = projectPath(file.projectPath());
        if (inProject != file.projectPath()) {
            file.setProjectPath(inProject);
        }
        const QString onDevice = devicePath(file.devicePath());
        if (onDevice != file.devicePath()) {
            file.setDevicePath(onDevice);
        }
    }

private:
    QString projectPath(const QString &path) const;
    QString devicePath(const QString &path) const;

    const CBaseElement &m_element;
    const QString m_deviceName;
    const QString m_oldName;
    const QString m_newName;
};

} // namespace ElementPaths
