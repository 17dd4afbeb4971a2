#ifndef LMWIDGETS_FRAMELESSHELPER_H
#define LMWIDGETS_FRAMELESSHELPER_H

#include <lmwidgets/lmwidgets_global.h>

#include <QObject>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

class FramelessHelperPrivate;

/**
 * @class FramelessHelper framelesshelper.h <lmwidgets/framelesshelper.h>
 *
 * @brief Lets the mouse move and resize top-level widgets that have no system frame.
 *
 * The helper watches the widgets that are registered with activateOn(). A press of the left button
 * in the title area, the topmost 10 px plus titleHeight(), drags the widget; a press within
 * borderWidth() of an edge or corner resizes it; near an edge the widget shows the resize cursor.
 * The helper draws nothing, sets no window flag and consumes no event. It serves any number of
 * widgets.
 *
 * @code
 * window->setWindowFlag(Qt::FramelessWindowHint);
 * auto *helper = new LM::Widgets::FramelessHelper(window);
 * helper->activateOn(window);
 * helper->setTitleHeight(32);
 * @endcode
 *
 * Where the window system places windows itself (Wayland, Qt 5.15 or later) a drag is handed to it.
 */
class LMWIDGETS_EXPORT FramelessHelper : public QObject
{
    Q_OBJECT

public:
    /** Constructs a helper that serves no widget yet; movable and resizable, without rubber bands.
     */
    explicit FramelessHelper(QObject *parent = nullptr);

    /**
     * Unregisters every widget and restores it as removeFrom() does. A widget that is itself being
     * destroyed is left alone.
     */
    ~FramelessHelper() override;

    /**
     * Registers @p widget, which stays the caller's: turns on mouse tracking and hover events for
     * it and watches its events. Null, or a widget that is registered already, is ignored. A widget
     * that is destroyed is forgotten by itself.
     */
    void activateOn(QWidget *widget);

    /**
     * Stops serving @p widget: mouse tracking and hover events are turned off and the window flags
     * that it had in activateOn() are set again, which hides it if they have changed since (as
     * QWidget::setWindowFlags() does). An unknown widget is ignored.
     */
    void removeFrom(QWidget *widget);

    /** Whether dragging by the title area moves the widgets; true at start. */
    void setWidgetMovable(bool movable);
    /** Returns whether dragging by the title area moves the widgets. */
    bool widgetMovable();

    /** Whether edges and corners resize the widgets and show resize cursors; true at start. */
    void setWidgetResizable(bool resizable);
    /** Returns whether edges and corners resize the widgets. */
    bool widgetResizable();

    /**
     * Whether a drag moves a rubber band first and the widget only when the button is released;
     * false at start. The band begins 10 px inside the widget's left and top edges, and the widget
     * takes the band's geometry, that inset included.
     */
    void setRubberBandOnMove(bool rubberBand);
    /** Returns whether a drag moves a rubber band first. */
    bool rubberBandOnMove();

    /** Whether resizing stretches a rubber band and the widget only at release; false at start. */
    void setRubberBandOnResize(bool rubberBand);
    /** Returns whether resizing stretches a rubber band first. Hosts call it by this spelling. */
    bool rubberBandOnResisze();

    /**
     * Width in px of the band along each edge in which a press resizes; 5 at start, both ends
     * included. One value for all helpers of the process. 0 is ignored.
     */
    void setBorderWidth(unsigned int width);
    /** Returns the width in px of the band along each edge. */
    unsigned int borderWidth();

    /**
     * Height in px of the title area, counted from 10 px below the widget's top, all of which
     * drags; 30 at start. One value for all helpers of the process: each FramelessDialog sets it to
     * its own title bar's 48 when it is built. 0 is ignored.
     */
    void setTitleHeight(unsigned int height);
    /** Returns the height in px of the title area below its first 10 px. */
    unsigned int titleHeight();

protected:
    /**
     * Follows the mouse on the registered widgets. Consumes no event, but stops one whose widget
     * was destroyed by what it set off.
     */
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Q_DISABLE_COPY(FramelessHelper)

    FramelessHelperPrivate *d;
};

} // namespace Widgets
} // namespace LM

#endif
