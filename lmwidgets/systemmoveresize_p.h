#ifndef LMWIDGETS_SYSTEMMOVERESIZE_P_H
#define LMWIDGETS_SYSTEMMOVERESIZE_P_H

#include <QtCore/qnamespace.h>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

/**
 * Whether windows cannot place themselves, so that moving and resizing by the mouse must be left to
 * the window system. True on Wayland with Qt 5.15 or later, which has the calls for it.
 */
bool windowSystemPlacesWindows();

/** Lets the window system move @p widget's window until the button is released. */
bool startSystemMove(QWidget *widget);

/** Lets the window system resize @p widget's window by @p edges until the button is released. */
bool startSystemResize(QWidget *widget, Qt::Edges edges);

} // namespace Widgets
} // namespace LM

#endif
