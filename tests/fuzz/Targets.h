#pragma once

#include "devicefiles/CDeviceCommData.h"
#include "elements/CDeviceElement.h"
#include "fuzz/targets/Archive.h"
#include "fuzz/targets/Configuration.h"
#include "fuzz/targets/HardwareId.h"
#include "fuzz/targets/Manifest.h"
#include "fuzz/targets/ModuleName.h"
#include "fuzz/targets/Network.h"
#include "fuzz/targets/OSRelease.h"
#include "fuzz/targets/Patch.h"
#include "fuzz/targets/Revision.h"
#include "fuzz/targets/Settings.h"
#include "fuzz/targets/Stream.h"
#include "imported/CMessageBoardHelper.h"
#include "settings/CDeviceSettings.h"

namespace Fuzz {

/** A reader, and what has to hold for any bytes that it is given; see FUZZ_CHECK(). */
struct STarget {
    /** Also the name of its folder in fuzz/corpus. */
    const char *name;
    void (*run)(const QByteArray &bytes);
};

/** Every target; a new one is a row here and a folder in fuzz/corpus. */
inline const STarget Targets[] = {
    {"archive", fuzzArchive},
    {"configuration", fuzzConfiguration},
    {"hardware-id", fuzzHardwareId},
    {"manifest", fuzzManifest},
    {"module-name", fuzzModuleName},
    {"network", fuzzNetwork},
    {"os-release", fuzzOSRelease},
    {"patch", fuzzPatch},
    {"revision", fuzzRevision},
    {"settings", fuzzSettings},
    {"stream-base", fuzzStream<CBaseElement>},
    {"stream-comm-data", fuzzStream<CDeviceCommData>},
    {"stream-description", fuzzStream<CDescriptionElement>},
    {"stream-device", fuzzStream<CDeviceElement>},
    {"stream-device-base", fuzzStream<CDeviceBaseElement>},
    {"stream-file", fuzzStream<CFileElement>},
    {"stream-hardware-id", fuzzStream<CDeviceHardwareId>},
    {"stream-kd2", fuzzStream<CSubDeviceKD2Element>},
    {"stream-kd3", fuzzStream<CSubDeviceKD3Element>},
    {"stream-module-name", fuzzStream<COptionModuleFileName>},
    {"stream-network", fuzzStream<CNetworkSettings>},
    {"stream-param-file", fuzzStream<CParamFileElement>},
    {"stream-plugin", fuzzStream<CPluginElement>},
    {"stream-settings", fuzzStream<CDeviceSettings>},
    {"stream-sub-device", fuzzStream<CSubDeviceElement>},
    {"stream-sub-device-base", fuzzStream<CSubDeviceBaseElement>},
};

/** Broken input is all there is here: nobody wants to be told of it. */
inline void silenceMessageBoard()
{
    CMessageBoardHelper::installHandler(
        [](CMessageBoardHelper::ESeverity, const QString &, ICLogfile *) {});
}

} // namespace Fuzz
