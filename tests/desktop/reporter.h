#ifndef REPORTER_H
#define REPORTER_H

#include <QObject>
#include <QSet>

QT_BEGIN_NAMESPACE
class QComboBox;
class QDialog;
class QLineEdit;
class QAbstractButton;
class QWidget;
QT_END_NAMESPACE

/**
 * Tells the driver on standard output what happens in the host, one line for each event, and
 * answers the questions that it asks on standard input. Widgets are called by their object names,
 * rubber bands "band".
 *
 *     painted NAME X Y W H       a window stands on the screen
 *     geometry NAME X Y W H      a window was moved or resized
 *     active|inactive NAME       a window received or lost the keyboard
 *     state NAME STATE           a window became normal, maximized or minimized
 *     hidden NAME                a window was hidden
 *     focus NAME                 a widget received the keyboard focus
 *     text|choice NAME TEXT      a line edit or a combo box has a new text
 *     clicked NAME               a button was clicked
 *     finished NAME CODE         a dialog ended
 *
 * The questions are "where NAME", answered by "where NAME X Y W H" in global coordinates ("none"
 * for a widget that is not visible), "popup", answered in the same way for the popup that is open,
 * and "activate NAME", "close NAME", "delete NAME" (answered by "deleted NAME"), "move NAME" (to 20,20) and
 * "quit", which are orders.
 */
class Reporter : public QObject
{
    Q_OBJECT

public:
    explicit Reporter(QObject *parent = nullptr);

    static void say(const QString &line);

    /** Reports the signals of a widget from now on. */
    static void follow(QLineEdit *edit);
    static void follow(QComboBox *box);
    static void follow(QAbstractButton *button);
    static void follow(QDialog *dialog);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void readOrders();
    void obey(const QString &order, const QString &name);

    QSet<QWidget *> m_painted;
};

#endif
