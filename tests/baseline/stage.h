#ifndef BASELINE_STAGE_H
#define BASELINE_STAGE_H

/** @file
 * Where the pictures are taken: an application whose look depends on nothing of this machine.
 */

#include "sheet.h"
#include "subject.h"

#include <lmwidgets/talvostylemanager.h>

#include <QString>
#include <QVector>

namespace baseline {

using Theme = LM::Widgets::TalvoStyleManager::ThemeStyleType;

/** Under which circumstances a sheet is made. The scale is that of the process. */
struct Setting
{
    Theme theme;
    Qt::LayoutDirection direction;
};

/** The settings in which every class is pictured at @p scale. */
QVector<Setting> settings(int scale);

/** "Black, scale 1, left to right" */
QString settingText(const Setting &setting, int scale);

/** "ToggleSwitch.Black.rtl@2x" */
QString sheetName(const QString &className, const Setting &setting, int scale);

/** Sets the environment that Qt reads when the application object is made. */
void prepareEnvironment(int scale, const QString &fontConfig);

/** Sets style, font, effects and the host's look. */
void prepareStage();

/** Switches the theme and the direction; the host's style sheet follows. */
void apply(const Setting &setting);

/** Takes the pictures of all states of @p subject, as things are set now. */
Sheet takeSheet(const Subject &subject, int scale);

} // namespace baseline

#endif
