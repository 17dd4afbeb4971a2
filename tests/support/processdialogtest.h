#ifndef PROCESSDIALOGTEST_H
#define PROCESSDIALOGTEST_H

/** @file
 * What the tests of the progress dialog share: ways to its children.
 */

#include "lmtest.h"

#include <lmwidgets/framelessprocessdialog.h>

#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>

namespace processdialogtest {

class Dialog : public LM::Widgets::FramelessProcessDialog
{
public:
    using FramelessProcessDialog::forceShow;
    using FramelessProcessDialog::FramelessProcessDialog;

    QLabel *title() const { return findChild<QLabel *>(QStringLiteral("processdialogtitlelabel")); }
    /** The labels in the order in which they were made: title, text, percentage. */
    QLabel *label() const { return directLabels().value(1); }
    QLabel *percent() const { return directLabels().value(2); }
    QProgressBar *bar() const { return findChild<QProgressBar *>(); }
    QPushButton *button() const { return findChild<QPushButton *>(); }
    QTimer *timer() const { return findChild<QTimer *>(); }

private:
    QList<QLabel *> directLabels() const
    {
        return findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
    }
};

/** Counts the events of a type that an object gets. */
class EventCounter : public QObject
{
public:
    EventCounter(QObject *watched, QEvent::Type type) : m_type(type)
    {
        watched->installEventFilter(this);
    }
    int count = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == m_type ? 1 : 0;
        return false;
    }

private:
    QEvent::Type m_type;
};

/** Shows @p dialog as an operation that takes long does. */
inline void showByProgress(Dialog *dialog, int first = 1)
{
    dialog->setMinimumDuration(0);
    dialog->setValue(first);
    QVERIFY(dialog->isVisible());
}

} // namespace processdialogtest

#endif
