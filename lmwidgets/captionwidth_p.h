#ifndef LMWIDGETS_CAPTIONWIDTH_P_H
#define LMWIDGETS_CAPTIONWIDTH_P_H

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QAbstractButton;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

/**
 * Makes room for a caption that does not fit the 80 px which the styles of the dialogs' buttons give
 * them, as those of other languages are. No English one is. A shorter caption takes the room
 * back; a minimum width that the host has set meanwhile stays.
 */
void widenForCaption(QAbstractButton *button);

} // namespace Widgets
} // namespace LM

#endif
