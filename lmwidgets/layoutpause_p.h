#ifndef LMWIDGETS_LAYOUTPAUSE_P_H
#define LMWIDGETS_LAYOUTPAUSE_P_H

#include <QObject>
#include <QPointer>

QT_BEGIN_NAMESPACE
class QLayout;
class QWidget;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

/**
 * Keeps the layout of a widget from being carried out for as long as it lives.
 *
 * QWidget::show() carries out the layouts of all widgets around the one that is shown, at once and
 * each time. For one that has many children to show and is itself one of a thousand in its parent,
 * that is almost all of the time it takes. What the layout misses meanwhile it does later: widgets
 * that are destroyed are removed from it without delay, the rest by an event.
 */
class LayoutPause : public QObject
{
public:
    /** Pauses the layout of @p widget, which may be null or have none. */
    explicit LayoutPause(QWidget *widget);
    ~LayoutPause() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Q_DISABLE_COPY(LayoutPause)

    QPointer<QWidget> m_widget;
    QPointer<QLayout> m_layout; // null if there was nothing to pause
    bool m_hasMissedEvent = false;
};

} // namespace Widgets
} // namespace LM

#endif
