#ifndef LMWIDGETS_TRANSLATIONS_H
#define LMWIDGETS_TRANSLATIONS_H

#include <lmwidgets/lmwidgets_global.h>

#include <QLocale>

namespace LM {
namespace Widgets {

/**
 * @file translations.h <lmwidgets/translations.h>
 * The language of the texts that the library itself puts on its widgets.
 */

/**
 * Gives the texts of the library in the language of @p locale, from this moment on.
 *
 * The library carries German and Simplified Chinese within itself; a file `lmwidgets_<locale>.qm` in
 * the folder `translations` beside the executable comes before these, so that a host can ship
 * further languages or its own wording. Dialogs that are open change at once, but for texts that
 * the host has replaced. A later call takes the place of an earlier one.
 *
 * @code
 * QApplication application(argc, argv);
 * LM::Widgets::loadTranslations();
 * @endcode
 *
 * Only the library's own texts are meant. Those of the stock dialogs within its frames, such as the
 * file browser, come from Qt's `qtbase` translation, which the host loads as for any Qt program.
 *
 * Returns whether the library speaks the language now. English is what the texts are written in
 * and always there. Of a language that is not there, and without an application object or outside
 * its thread, false is returned; in the first case the texts are English afterwards, in the others
 * nothing changes.
 */
LMWIDGETS_EXPORT bool loadTranslations(const QLocale &locale = QLocale());

} // namespace Widgets
} // namespace LM

#endif
