#include <lmwidgets/groupboxcollapsebutton.h>

#include "toolbuttonrelease_p.h"

#include <QMouseEvent>

GroupBoxCollapseButton::GroupBoxCollapseButton(QWidget *parent) : QToolButton(parent) {}

GroupBoxCollapseButton::~GroupBoxCollapseButton() = default;

bool GroupBoxCollapseButton::altDown() const
{
    return m_altDown;
}

void GroupBoxCollapseButton::setAltDown(bool altDown)
{
    m_altDown = altDown;
}

bool GroupBoxCollapseButton::shiftDown() const
{
    return m_shiftDown;
}

void GroupBoxCollapseButton::setShiftDown(bool shiftDown)
{
    m_shiftDown = shiftDown;
}

void GroupBoxCollapseButton::mouseReleaseEvent(QMouseEvent *event)
{
    m_altDown = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    m_shiftDown = event->modifiers() & Qt::ShiftModifier;
    // A listener of the box may destroy the box and this button with it.
    LM::Widgets::releaseToolButton(
        this, event, [=] { QAbstractButton::mouseReleaseEvent(event); },
        [=] { QToolButton::mouseReleaseEvent(event); });
}
