#ifndef LMWIDGETS_GLOBAL_H
#define LMWIDGETS_GLOBAL_H

#include <lmwidgets/lmwidgets_version.h>

#include <QtCore/qglobal.h>

/**
 * Marks what the shared library exports. The build of the library defines
 * LMWIDGETS_BUILDING_LIBRARY; a host that links it defines nothing.
 */
#if defined(LMWIDGETS_BUILDING_LIBRARY)
#define LMWIDGETS_EXPORT Q_DECL_EXPORT
#else
#define LMWIDGETS_EXPORT Q_DECL_IMPORT
#endif

#endif
