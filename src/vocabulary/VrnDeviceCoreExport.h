#pragma once

#include <QtGlobal>

/** Marks what libvrnDeviceCore exports; everything else in the library is hidden. */
#if defined(VRNDEVICECORE_BUILD)
#define VRNDEVICECORE_EXPORT Q_DECL_EXPORT
#else
#define VRNDEVICECORE_EXPORT Q_DECL_IMPORT
#endif
