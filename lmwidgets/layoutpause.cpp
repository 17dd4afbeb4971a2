#include "layoutpause_p.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLayout>
#include <QWidget>

namespace LM {
namespace Widgets {

namespace {

/** Makes the function that QApplication calls for every event of a widget with a layout callable.
 */
struct EventAccess : QLayout
{
    using QLayout::widgetEvent;
};

} // namespace

LayoutPause::LayoutPause(QWidget *widget) : m_widget(widget)
{
    QLayout *layout = widget ? widget->layout() : nullptr;
    if (layout && layout->isEnabled()) {
        m_layout = layout;
        layout->setEnabled(false);
        widget->installEventFilter(this);
    }
}

LayoutPause::~LayoutPause()
{
    if (!m_layout) {
        return;
    }
    m_layout->setEnabled(true);
    if (m_widget && m_hasMissedEvent) {
        QCoreApplication::postEvent(m_widget, new QEvent(QEvent::LayoutRequest));
    }
}

bool LayoutPause::eventFilter(QObject *watched, QEvent *event)
{
    Q_UNUSED(watched)
    if (!m_layout || m_layout->isEnabled()) {
        return false;
    }
    if (event->type() == QEvent::ChildRemoved) {
        // The layout has just ignored it and would keep an item of a widget that is gone.
        m_layout->setEnabled(true);
        (m_layout->*&EventAccess::widgetEvent)(event);
        m_layout->setEnabled(false);
    } else if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) {
        m_hasMissedEvent = true;
    }
    return false;
}

} // namespace Widgets
} // namespace LM
