#ifndef BASELINE_SUBJECT_H
#define BASELINE_SUBJECT_H

/** @file
 * What is pictured: the classes of the library, each in all the states that a user can see.
 */

#include <QPoint>
#include <QSize>
#include <QString>
#include <QVector>
#include <QWidget>

#include <functional>

QT_BEGIN_NAMESPACE
class QAbstractButton;
QT_END_NAMESPACE

namespace baseline {

using Create = std::function<QWidget *()>;
/** Brings what was shown into its state, and returns what the picture is taken of. */
using Arrange = std::function<QWidget *(QWidget *shown)>;

/** A state of a class. */
struct State
{
    /** Without a comma or semicolon. */
    QString name;
    /** Makes the widget. One that is no window is shown on a stage of the host's colour. */
    Create create;
    /** Is called when the widget is shown and still. May be empty. */
    Arrange arrange;
};

/** A class of the library and its states. */
struct Subject
{
    QString className;
    QVector<State> states;
};

/** The kinds of subjects, each in a file of its own. */
QVector<Subject> buttonSubjects();
QVector<Subject> containerSubjects();
QVector<Subject> dialogSubjects();
QVector<Subject> fieldSubjects();
QVector<Subject> fileDialogSubjects();
QVector<Subject> frameSubjects();
QVector<Subject> itemSubjects();
QVector<Subject> messageBoxSubjects();

/** All of them. */
QVector<Subject> subjects();

/** Moves the mouse onto @p widget, to its centre unless @p position is given. */
QWidget *hover(QWidget *widget, const QPoint &position = QPoint(-1, -1));

/** Gives @p widget the focus, as the Tab key does. */
QWidget *focus(QWidget *widget);

/** Waits until what slides into its place in @p widget has arrived there. */
QWidget *waitUntilStill(QWidget *widget);

/** The states that every button has: normal, hovered, pressed, focused and disabled. */
QVector<State> buttonStates(const std::function<QAbstractButton *()> &create);

/** The states that every widget has: normal, hovered, focused and disabled. */
QVector<State> widgetStates(const Create &create);

/** @p create with its widget disabled. */
Create disabled(const Create &create);

/** The path of a picture of the current theme. */
QString themeImage(const QString &name);

} // namespace baseline

#endif
