#pragma once

#include <QtGlobal>

/** Marks what libvrnCommissioning exports; everything else in the library is hidden. */
#if defined(VRNCOMMISSIONING_BUILD)
#define VRNCOMMISSIONING_EXPORT Q_DECL_EXPORT
#else
#define VRNCOMMISSIONING_EXPORT Q_DECL_IMPORT
#endif
