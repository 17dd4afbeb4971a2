#include <lmwidgets/framelesshelper.h>

#include "framelesshelper_p.h"
#include "systemmoveresize_p.h"

#include <lmwidgets/framelessdialog.h>

#include <QHoverEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QRubberBand>
#include <QWidget>

namespace LM {
namespace Widgets {

namespace {

// How far a rubber band that moves is inset at its left and top, so that it does not hide the
// frame.
constexpr int MoveBandInset = 10;

} // namespace

unsigned int FramelessHelperPrivate::borderWidth = 5;
unsigned int FramelessHelperPrivate::titleHeight = 30;

CursorRegion CursorRegion::at(const QPoint &globalPos, const QRect &frame, unsigned int borderWidth)
{
    // Both ends count, and the far edges are the ones just outside the rectangle: hosts rely on a
    // press exactly at x + width still finding the edge. 64 bits, since the width is any unsigned
    // number.
    const auto within = [](qint64 value, qint64 from, qint64 to) {
        return from <= value && value <= to;
    };
    const qint64 x = frame.x();
    const qint64 y = frame.y();
    const qint64 endX = x + frame.width();
    const qint64 endY = y + frame.height();

    CursorRegion region;
    region.onLeftEdge = within(globalPos.x(), x, x + borderWidth);
    region.onRightEdge = within(globalPos.x(), endX - borderWidth, endX);
    region.onTopEdge = within(globalPos.y(), y, y + borderWidth);
    region.onBottomEdge = within(globalPos.y(), endY - borderWidth, endY);
    region.onTopLeftEdge = region.onTopEdge && region.onLeftEdge;
    region.onBottomLeftEdge = region.onBottomEdge && region.onLeftEdge;
    region.onTopRightEdge = region.onTopEdge && region.onRightEdge;
    region.onBottomRightEdge = region.onBottomEdge && region.onRightEdge;
    region.onEdges =
        region.onLeftEdge || region.onRightEdge || region.onTopEdge || region.onBottomEdge;
    return region;
}

HelperWidgetData::HelperWidgetData(FramelessHelperPrivate *owner, QWidget *widget)
    : m_owner(owner), m_widget(widget), m_savedWindowFlags(widget->windowFlags())
{
}

HelperWidgetData::~HelperWidgetData()
{
    delete m_rubberBand;
}

void HelperWidgetData::restoreWidget()
{
    const QPointer<QWidget> widget = m_widget;
    if (!widget) {
        return;
    }
    widget->setAttribute(Qt::WA_MouseTracking, false);
    widget->setWindowFlags(m_savedWindowFlags);
    if (widget) {
        widget->setAttribute(Qt::WA_Hover, false);
    }
}

void HelperWidgetData::updateRubberBand()
{
    if (!m_owner->rubberBandOnMove && !m_owner->rubberBandOnResize) {
        delete m_rubberBand;
        m_rubberBand = nullptr;
    } else if (!m_rubberBand) {
        m_rubberBand = new QRubberBand(QRubberBand::Rectangle);
    }
}

void HelperWidgetData::handleEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        handleMousePress(static_cast<QMouseEvent *>(event));
        break;
    case QEvent::MouseButtonRelease:
        handleMouseRelease(static_cast<QMouseEvent *>(event));
        break;
    case QEvent::MouseMove:
        handleMouseMove(static_cast<QMouseEvent *>(event));
        break;
    case QEvent::Leave:
        handleLeave();
        break;
    case QEvent::HoverMove:
        handleHoverMove(static_cast<QHoverEvent *>(event));
        break;
    case QEvent::Hide:
        // A dialog that a key closes in the middle of a drag gets no release.
        endGesture();
        break;
    default:
        break;
    }
}

void HelperWidgetData::handleMousePress(const QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        return;
    }
    m_leftButtonPressed = true;
    m_leftButtonTitlePressed =
        event->pos().y() < qint64(m_titleTopOffset) + FramelessHelperPrivate::titleHeight;

    QRect frame = m_widget->frameGeometry();
    m_pressedRegion =
        CursorRegion::at(event->globalPos(), frame, FramelessHelperPrivate::borderWidth);
    m_dragOffset = event->globalPos() - frame.topLeft();

    if (m_pressedRegion.onEdges) {
        if (m_owner->rubberBandOnResize) {
            showRubberBand(frame);
        }
    } else if (m_owner->rubberBandOnMove && m_leftButtonTitlePressed) {
        frame.setX(frame.x() + MoveBandInset);
        frame.setY(frame.y() + MoveBandInset);
        showRubberBand(frame);
    }
}

void HelperWidgetData::handleMouseRelease(const QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        return;
    }
    const QPointer<QWidget> widget = m_widget;
    const bool bandShown = m_rubberBand && m_rubberBand->isVisible();
    const QRect bandGeometry = bandShown ? m_rubberBand->geometry() : QRect();
    endGesture();
    if (bandShown && widget) {
        widget->setGeometry(bandGeometry);
    }
}

void HelperWidgetData::handleMouseMove(const QMouseEvent *event)
{
    if (m_leftButtonPressed) {
        if (handOverToWindowSystem()) {
            return;
        }
        if (m_owner->widgetResizable && m_pressedRegion.onEdges) {
            resizeTo(event->globalPos());
        } else if (m_owner->widgetMovable && m_leftButtonTitlePressed) {
            moveTo(event->globalPos());
        }
    } else if (event->buttons() == Qt::NoButton && m_owner->widgetResizable) {
        updateCursorShape(event->globalPos());
    }
}

void HelperWidgetData::handleLeave()
{
    if (!m_leftButtonPressed) {
        m_widget->unsetCursor();
    }
}

void HelperWidgetData::handleHoverMove(const QHoverEvent *event)
{
    if (m_owner->widgetResizable) {
        updateCursorShape(m_widget->mapToGlobal(event->pos()));
    }
}

/**
 * Where windows cannot place themselves, lets the window system carry out the gesture. It takes the
 * pointer until the button is up, so the release never arrives here: the press is over at once.
 */
bool HelperWidgetData::handOverToWindowSystem()
{
    if (!windowSystemPlacesWindows()) {
        return false;
    }
    bool started = false;
    if (m_owner->widgetResizable && m_pressedRegion.onEdges) {
        Qt::Edges edges;
        edges.setFlag(Qt::LeftEdge, m_pressedRegion.onLeftEdge);
        edges.setFlag(Qt::RightEdge, m_pressedRegion.onRightEdge && !m_pressedRegion.onLeftEdge);
        edges.setFlag(Qt::TopEdge, m_pressedRegion.onTopEdge);
        edges.setFlag(Qt::BottomEdge, m_pressedRegion.onBottomEdge && !m_pressedRegion.onTopEdge);
        started = startSystemResize(m_widget, edges);
    } else if (m_owner->widgetMovable && m_leftButtonTitlePressed) {
        started = startSystemMove(m_widget);
    }
    if (started) {
        endGesture();
    }
    return started;
}

void HelperWidgetData::endGesture()
{
    m_leftButtonPressed = false;
    m_leftButtonTitlePressed = false;
    m_pressedRegion.reset();
    if (m_rubberBand) {
        m_rubberBand->hide();
    }
}

void HelperWidgetData::resizeTo(const QPoint &globalPos)
{
    const bool toBand = m_owner->rubberBandOnResize && m_rubberBand;
    const QRect source = toBand ? m_rubberBand->frameGeometry() : m_widget->frameGeometry();
    QRect target = source;

    if (m_pressedRegion.onTopLeftEdge) {
        target.setTopLeft(globalPos);
    } else if (m_pressedRegion.onBottomLeftEdge) {
        target.setBottomLeft(globalPos);
    } else if (m_pressedRegion.onTopRightEdge) {
        target.setTopRight(globalPos);
    } else if (m_pressedRegion.onBottomRightEdge) {
        target.setBottomRight(globalPos);
    } else if (m_pressedRegion.onLeftEdge) {
        target.setLeft(globalPos.x());
    } else if (m_pressedRegion.onRightEdge) {
        target.setRight(globalPos.x());
    } else if (m_pressedRegion.onTopEdge) {
        target.setTop(globalPos.y());
    } else if (m_pressedRegion.onBottomEdge) {
        target.setBottom(globalPos.y());
    }
    if (!target.isValid()) {
        return;
    }

    // A dimension that would become too small stays as it was; it does not stop at the minimum.
    if (target.width() < m_widget->minimumWidth()) {
        if (target.left() == source.left()) {
            target.setRight(source.right());
        } else {
            target.setLeft(source.left());
        }
    }
    if (target.height() < m_widget->minimumHeight()) {
        if (target.top() == source.top()) {
            target.setBottom(source.bottom());
        } else {
            target.setTop(source.top());
        }
    }

    if (toBand) {
        m_rubberBand->setGeometry(target);
    } else {
        m_widget->setGeometry(target);
    }
}

void HelperWidgetData::moveTo(const QPoint &globalPos)
{
    const QPoint position = globalPos - m_dragOffset;
    if (m_owner->rubberBandOnMove && m_rubberBand) {
        m_rubberBand->move(position);
        return;
    }
    const QPointer<QWidget> widget = m_widget;
    widget->move(position);
    if (auto *dialog = qobject_cast<FramelessDialog *>(widget.data())) {
        dialog->updateMoveEvent();
    }
}

void HelperWidgetData::updateCursorShape(const QPoint &globalPos)
{
    if (m_widget->isFullScreen() || m_widget->isMaximized()) {
        if (m_cursorShapeChanged) {
            m_widget->unsetCursor();
        }
        return;
    }

    m_moveRegion =
        CursorRegion::at(globalPos, m_widget->frameGeometry(), FramelessHelperPrivate::borderWidth);
    Qt::CursorShape shape;
    if (m_moveRegion.onTopLeftEdge || m_moveRegion.onBottomRightEdge) {
        shape = Qt::SizeFDiagCursor;
    } else if (m_moveRegion.onTopRightEdge || m_moveRegion.onBottomLeftEdge) {
        shape = Qt::SizeBDiagCursor;
    } else if (m_moveRegion.onLeftEdge || m_moveRegion.onRightEdge) {
        shape = Qt::SizeHorCursor;
    } else if (m_moveRegion.onTopEdge || m_moveRegion.onBottomEdge) {
        shape = Qt::SizeVerCursor;
    } else {
        if (m_cursorShapeChanged) {
            m_cursorShapeChanged = false;
            m_widget->unsetCursor();
        }
        return;
    }
    m_cursorShapeChanged = true;
    m_widget->setCursor(shape);
}

void HelperWidgetData::showRubberBand(const QRect &geometry)
{
    if (m_rubberBand) {
        m_rubberBand->setGeometry(geometry);
        m_rubberBand->show();
    }
}

FramelessHelper::FramelessHelper(QObject *parent) : QObject(parent), d(new FramelessHelperPrivate)
{
}

FramelessHelper::~FramelessHelper()
{
    while (!d->widgets.isEmpty()) {
        HelperWidgetData *data = d->widgets.take(d->widgets.begin().key());
        data->restoreWidget();
        delete data;
    }
    delete d;
}

void FramelessHelper::activateOn(QWidget *widget)
{
    if (!widget) {
        return;
    }
    if (HelperWidgetData *known = d->widgets.value(widget)) {
        if (known->widget()) {
            return;
        }
        // Left over from a widget that had this address before.
        delete d->widgets.take(widget);
    }
    auto *data = new HelperWidgetData(d, widget);
    widget->setAttribute(Qt::WA_MouseTracking, true);
    widget->setAttribute(Qt::WA_Hover, true);
    data->updateRubberBand();
    d->widgets.insert(widget, data);
    widget->installEventFilter(this);

    // QWidget says that it goes before it deletes its children, so that a helper which is a child
    // of its widget has forgotten it by the time of its own destruction, and no longer tries to
    // restore it. A host that drops all connections of its widget drops this one too; the record
    // notices then.
    data->destroyedConnection = connect(widget, &QObject::destroyed, this,
                                        [this, widget] { delete d->widgets.take(widget); });
}

void FramelessHelper::removeFrom(QWidget *widget)
{
    HelperWidgetData *data = d->widgets.take(widget);
    if (!data) {
        return;
    }
    disconnect(data->destroyedConnection);
    if (data->widget()) {
        widget->removeEventFilter(this);
        data->restoreWidget();
    }
    delete data;
}

void FramelessHelper::setWidgetMovable(bool movable)
{
    d->widgetMovable = movable;
}

bool FramelessHelper::widgetMovable()
{
    return d->widgetMovable;
}

void FramelessHelper::setWidgetResizable(bool resizable)
{
    d->widgetResizable = resizable;
}

bool FramelessHelper::widgetResizable()
{
    return d->widgetResizable;
}

void FramelessHelper::setRubberBandOnMove(bool rubberBand)
{
    d->rubberBandOnMove = rubberBand;
    for (HelperWidgetData *data : qAsConst(d->widgets)) {
        data->updateRubberBand();
    }
}

bool FramelessHelper::rubberBandOnMove()
{
    return d->rubberBandOnMove;
}

void FramelessHelper::setRubberBandOnResize(bool rubberBand)
{
    d->rubberBandOnResize = rubberBand;
    for (HelperWidgetData *data : qAsConst(d->widgets)) {
        data->updateRubberBand();
    }
}

bool FramelessHelper::rubberBandOnResisze()
{
    return d->rubberBandOnResize;
}

void FramelessHelper::setBorderWidth(unsigned int width)
{
    if (width > 0) {
        FramelessHelperPrivate::borderWidth = width;
    }
}

unsigned int FramelessHelper::borderWidth()
{
    return FramelessHelperPrivate::borderWidth;
}

void FramelessHelper::setTitleHeight(unsigned int height)
{
    if (height > 0) {
        FramelessHelperPrivate::titleHeight = height;
    }
}

unsigned int FramelessHelper::titleHeight()
{
    return FramelessHelperPrivate::titleHeight;
}

bool FramelessHelper::eventFilter(QObject *watched, QEvent *event)
{
    // Only widgets are ever watched, and the table is asked by address alone.
    HelperWidgetData *data = d->widgets.value(static_cast<QWidget *>(watched));
    if (!data) {
        return QObject::eventFilter(watched, event);
    }
    const QPointer<QObject> guard(watched);
    data->handleEvent(event);
    // Host code that ran meanwhile may have destroyed the widget, and this helper as its child.
    // Only then is the event stopped, so that Qt does not deliver it to what is gone.
    return guard.isNull();
}

} // namespace Widgets
} // namespace LM
