#ifndef LMWIDGETS_LMWIDGETS_H
#define LMWIDGETS_LMWIDGETS_H

/** @file
 * Includes every public header of the library.
 */

/** @namespace LM
 * What comes from the makers of lmwidgets.
 */

/** @namespace LM::Widgets
 * Most of the library. The collapsible boxes, VantoroToolButton, ButtonLeftHaveGreenDots, the Talvo
 * utilities and dialogs and the two item delegates for numbers and lines of text are in no namespace.
 */

#include <lmwidgets/buttonlefthavegreendots.h>
#include <lmwidgets/checkboxheaderview.h>
#include <lmwidgets/collapsiblegroupbox.h>
#include <lmwidgets/collapsiblegroupboxbasic.h>
#include <lmwidgets/customdelegate.h>
#include <lmwidgets/customlayertablewidget.h>
#include <lmwidgets/customlayertoolbutton.h>
#include <lmwidgets/customspinbox.h>
#include <lmwidgets/detailbutton.h>
#include <lmwidgets/editcombobox.h>
#include <lmwidgets/flowlayout.h>
#include <lmwidgets/framelessdialog.h>
#include <lmwidgets/framelessfiledialog.h>
#include <lmwidgets/framelesshelper.h>
#include <lmwidgets/framelessmessagebox.h>
#include <lmwidgets/framelessprocessdialog.h>
#include <lmwidgets/framelesswaitingdialog.h>
#include <lmwidgets/frameline.h>
#include <lmwidgets/groupboxcollapsebutton.h>
#include <lmwidgets/hyperlinklabel.h>
#include <lmwidgets/kvitemdoublespinboxdelegate.h>
#include <lmwidgets/kvitemlineeditdelegate.h>
#include <lmwidgets/linetypecombobox.h>
#include <lmwidgets/lmwidgets_global.h>
#include <lmwidgets/qcustomtabbar.h>
#include <lmwidgets/qcustomtabwidget.h>
#include <lmwidgets/qmessageboxdetailstext.h>
#include <lmwidgets/roundcheckbox.h>
#include <lmwidgets/talvoanimatedicon.h>
#include <lmwidgets/talvobasicutil.h>
#include <lmwidgets/talvodialogbase.h>
#include <lmwidgets/talvodoubleinputdlg.h>
#include <lmwidgets/talvodoubleslider.h>
#include <lmwidgets/talvosplashscreen.h>
#include <lmwidgets/talvostylemanager.h>
#include <lmwidgets/talvotriangledlg.h>
#include <lmwidgets/titlebar.h>
#include <lmwidgets/toggleswitch.h>
#include <lmwidgets/translations.h>
#include <lmwidgets/vantoroframelessdialog.h>
#include <lmwidgets/vantorotoolbutton.h>

#endif
