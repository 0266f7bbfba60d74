#pragma once

#include "settings/CDeviceSettings.h"
#include "settings/CDeviceSettingsFile.h"
#include "support/Literals.h"
#include "support/MessageCatcher.h"
#include "support/Places.h"
#include "support/RecordingLog.h"
#include "support/SampleSettings.h"
#include "vocabulary/NvrnGlobal.h"

#include <QString>
#include <QStringList>

/** Settings and the documents that hold them. */
namespace SettingsDocuments {

using NvrnGlobal::EFileResult;
using NvrnGlobal::FILE_RESULT_FAILURE;
using NvrnGlobal::FILE_RESULT_SUCCESS;
using SampleSettings::settings;
const QString Version = QStringLiteral("1.0");

inline QString dataPath(const QString &name)
{
    return Places::data("settings/%1.3conf").arg(name);
}

/** What the file "full" of the directory "valid" holds. */
inline CDeviceSettings fullSettings()
{
    return settings(u"Press <3> & Größe"_s,
                    {{10, u""_s}, {255, u" spare "_s}, {0, u"Feed"_s}, {7, u"軸 <7>"_s}});
}

const CDeviceSettings Previous =
    settings(QStringLiteral("previous"), {{3, QStringLiteral("previous")}});

/** A file that holds Previous, and what it tells while it works. */
class WatchedFile
{
public:
    WatchedFile() { m_file.setDeviceSettings(Previous); }

    CDeviceSettingsFile *operator->() { return &m_file; }

    /** Whether the last operation, the first one so far, failed as it should, and said so once. */
    bool hasFailedOnce() const
    {
        return m_file.deviceSettings() == Previous && m_catcher.messages().size() == 1
            && m_catcher.criticals().size() == 1 && !m_catcher.criticals().constFirst().isEmpty()
            && m_catcher.messages().constFirst().log == &m_log && m_log.entries().size() == 1;
    }

    /** Whether nothing was said so far. */
    bool isSilent() const { return m_catcher.messages().isEmpty() && m_log.entries().isEmpty(); }

    QStringList criticals() const { return m_catcher.criticals(); }

private:
    // Its author is not that of the documents.
    RecordingLog m_log{QStringLiteral("A. Engineer")};
    MessageCatcher m_catcher;
    CDeviceSettingsFile m_file{&m_log};
};

} // namespace SettingsDocuments
