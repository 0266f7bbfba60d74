#pragma once

#include <QtGlobal>

/** Mark what libvrnCore, libvrnLogfiles and libvrnXml export; everything else in them is hidden. */
#if defined(VRNCORE_BUILD)
#define VRNCORE_EXPORT Q_DECL_EXPORT
#else
#define VRNCORE_EXPORT Q_DECL_IMPORT
#endif

#if defined(VRNLOGFILES_BUILD)
#define VRNLOGFILES_EXPORT Q_DECL_EXPORT
#else
#define VRNLOGFILES_EXPORT Q_DECL_IMPORT
#endif

#if defined(VRNXML_BUILD)
#define VRNXML_EXPORT Q_DECL_EXPORT
#else
#define VRNXML_EXPORT Q_DECL_IMPORT
#endif
