#ifndef LMWIDGETS_FRAMELESSHELPER_P_H
#define LMWIDGETS_FRAMELESSHELPER_P_H

#include <QHash>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QEvent;
class QHoverEvent;
class QMouseEvent;
class QRubberBand;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

class HelperWidgetData;

/** Where a point lies in relation to the edges of a rectangle. */
struct CursorRegion
{
    bool onEdges = false;
    bool onLeftEdge = false;
    bool onRightEdge = false;
    bool onTopEdge = false;
    bool onBottomEdge = false;
    bool onTopLeftEdge = false;
    bool onBottomLeftEdge = false;
    bool onTopRightEdge = false;
    bool onBottomRightEdge = false;

    void reset() { *this = CursorRegion(); }

    /** Tests @p globalPos against the edges of @p frame, @p borderWidth px deep. */
    static CursorRegion at(const QPoint &globalPos, const QRect &frame, unsigned int borderWidth);
};

class FramelessHelperPrivate
{
public:
    FramelessHelperPrivate() = default;

    QHash<QWidget *, HelperWidgetData *> widgets;
    bool widgetMovable = true;
    bool widgetResizable = true;
    bool rubberBandOnResize = false;
    bool rubberBandOnMove = false;

    // Shared by all helpers of the process; hosts set them once, through any helper.
    static unsigned int borderWidth;
    static unsigned int titleHeight;

private:
    Q_DISABLE_COPY(FramelessHelperPrivate)
};

/** What the helper knows of one widget, from its registration to its removal. */
class HelperWidgetData
{
public:
    HelperWidgetData(FramelessHelperPrivate *owner, QWidget *widget);

    /** Frees the rubber band; the widget is left as it is. */
    ~HelperWidgetData();

    /** Returns the widget; null when it is gone. */
    QWidget *widget() const { return m_widget; }

    /** Turns off what the registration turned on, if the widget is alive. */
    void restoreWidget();

    void updateRubberBand();

    /**
     * Follows the mouse. Moving or resizing the widget runs host code, which may remove or destroy
     * the widget and this record with it: nothing of the record is touched after that.
     */
    void handleEvent(QEvent *event);

    /** The helper's own connection to the widget's destroyed(). */
    QMetaObject::Connection destroyedConnection;

private:
    Q_DISABLE_COPY(HelperWidgetData)

    void handleMousePress(const QMouseEvent *event);
    void handleMouseRelease(const QMouseEvent *event);
    void handleMouseMove(const QMouseEvent *event);
    void handleLeave();
    void handleHoverMove(const QHoverEvent *event);

    bool handOverToWindowSystem();
    void endGesture();
    void resizeTo(const QPoint &globalPos);
    void moveTo(const QPoint &globalPos);
    void updateCursorShape(const QPoint &globalPos);
    void showRubberBand(const QRect &geometry);

    FramelessHelperPrivate *m_owner;
    QRubberBand *m_rubberBand = nullptr;
    QPointer<QWidget> m_widget;
    QPoint m_dragOffset;
    CursorRegion m_pressedRegion;
    CursorRegion m_moveRegion;
    bool m_leftButtonPressed = false;
    bool m_cursorShapeChanged = false;
    bool m_leftButtonTitlePressed = false;
    Qt::WindowFlags m_savedWindowFlags;
    int m_titleTopOffset = 10;
};

} // namespace Widgets
} // namespace LM

#endif
