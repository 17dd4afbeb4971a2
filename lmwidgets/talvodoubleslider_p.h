#ifndef LMWIDGETS_TALVODOUBLESLIDER_P_H
#define LMWIDGETS_TALVODOUBLESLIDER_P_H

#include <QPoint>
#include <QRect>

namespace LM {
namespace Widgets {

class TalvoDoubleSlider;

class TalvoDoubleSliderPrivate
{
public:
    enum Handle : int { NoHandle = 0, FirstHandle = 1, SecondHandle = 2 };

    /** Returns the x coordinate of @p value, which may lie outside the widget. */
    double position(double value) const;
    /** Returns the value at the x coordinate @p x; not a finite number if there is no bar. */
    double value(int x) const;

    /** Returns the part of the bar between the handles, as it is painted. Needs updatePos(). */
    QRect span() const;
    /** Returns where the picture of the left or the right handle begins, given the span. */
    static QPoint leftPicture(const QRect &span);
    static QPoint rightPicture(const QRect &span);

    /** The smaller and the larger value; the first handle's if they are equal. */
    double smaller() const { return upper < lower ? upper : lower; }
    double larger() const { return lower < upper ? upper : lower; }

    /** Repaints, tells assistive technology what changed, and emits the signal for one handle. */
    void finishMove(Handle handle, double smallerBefore, double largerBefore);
    /** Repaints and tells assistive technology what changed. */
    void showValues(double smallerBefore, double largerBefore);

    double lower = 0.0;
    double upper = 0.0;
    double lowerPos = 0.0;
    double upperPos = 0.0;
    double minimum = 0.0;
    double maximum = 99.0;
    int pressedHandle = NoHandle;
    TalvoDoubleSlider *q = nullptr;
};

} // namespace Widgets
} // namespace LM

#endif
