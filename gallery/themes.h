#ifndef LMGALLERY_THEMES_H
#define LMGALLERY_THEMES_H

#include <lmwidgets/talvostylemanager.h>

#include <QString>
#include <QStringList>

#include <functional>

QT_BEGIN_NAMESPACE
class QObject;
QT_END_NAMESPACE

namespace gallery {

using Theme = LM::Widgets::TalvoStyleManager::ThemeStyleType;

/** The names of the three themes, as on the command line and in file names. */
QStringList themeNames();
QString themeName(Theme theme);
/** Returns the theme called @p name, which must be one of themeNames(). */
Theme themeFromName(const QString &name);

/**
 * Gives the whole application the colours and the style sheet of the current theme, now and on each
 * switch of the theme manager's, as long as the application lives.
 */
void followTheme();

/** Calls @p function now and on each theme switch, as long as @p context lives. */
void onTheme(QObject *context, const std::function<void()> &function);

/** Returns the path of the image @p name in the current theme. */
QString themeImage(const QString &name);

} // namespace gallery

#endif
