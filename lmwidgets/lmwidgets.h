#ifndef LMWIDGETS_LMWIDGETS_H
#define LMWIDGETS_LMWIDGETS_H

/** @file
 * Includes every public header of the library.
 */

#include <lmwidgets/customlayertablewidget.h>
#include <lmwidgets/customlayertoolbutton.h>
#include <lmwidgets/framelessdialog.h>
#include <lmwidgets/framelesshelper.h>
#include <lmwidgets/frameline.h>
#include <lmwidgets/lmwidgets_global.h>
#include <lmwidgets/talvodialogbase.h>
#include <lmwidgets/talvostylemanager.h>
#include <lmwidgets/titlebar.h>

#endif
