#ifndef LMWIDGETS_DETAILBUTTON_P_H
#define LMWIDGETS_DETAILBUTTON_P_H

#include <QString>

namespace LM {
namespace Widgets {

/** The caption while the details are hidden, in the current language. */
QString showDetailsCaption();
/** The caption while the details are shown. */
QString hideDetailsCaption();

} // namespace Widgets
} // namespace LM

#endif
