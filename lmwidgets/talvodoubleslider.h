#ifndef LMWIDGETS_TALVODOUBLESLIDER_H
#define LMWIDGETS_TALVODOUBLESLIDER_H

#include <lmwidgets/lmwidgets_global.h>

#include <QWidget>

namespace LM {
namespace Widgets {

class TalvoDoubleSliderPrivate;

/**
 * @class TalvoDoubleSlider talvodoubleslider.h <lmwidgets/talvodoubleslider.h>
 *
 * @brief A horizontal slider with two handles that mark a span of floating-point values.
 *
 * @image html talvodoubleslider.png
 *
 * The bar runs from 5 px inside the left edge, which is the minimum, to 5 px inside the right edge,
 * which is the maximum. The part between the handles is yellow, the parts outside are grey, and
 * each handle is the picture "movebutton" of the current theme. Values are of type double
 * throughout: nothing is rounded to steps or decimals, and one px of the bar is as fine as a drag
 * can be.
 *
 * The user may drag the handles past each other. The getters and the signals always speak of the
 * smaller and the larger of the two values, whichever handle has it: a handle that passes the other
 * one reports through the other signal from there on.
 *
 * @code
 * auto *slider = new LM::Widgets::TalvoDoubleSlider(this);
 * slider->setFixedHeight(20);
 * slider->setQxtSpanRange(0.0, 255.0);
 * slider->setSpan(20.0, 180.0);
 * connect(slider, &LM::Widgets::TalvoDoubleSlider::lowerValueChanged, cloud, &Cloud::setFloor);
 * connect(slider, &LM::Widgets::TalvoDoubleSlider::upperValueChanged, cloud, &Cloud::setCeiling);
 * @endcode
 *
 * A handle can be grabbed less than 6 px above or below the middle of the widget and less than 5 px
 * to the left or right of its value. A press elsewhere on the bar moves nothing, and there are no
 * keys. A handle that cannot be dragged further keeps the last value that it had. A widget that is
 * 10 px wide or narrower has no bar to drag along; both handles are at its left end.
 *
 * Assistive technology finds a group with two sliders in it, the lower and the upper value, and can
 * set them.
 *
 * A slot may delete the slider in answer to any of its signals.
 */
class LMWIDGETS_EXPORT TalvoDoubleSlider : public QWidget
{
    Q_OBJECT

public:
    /** Constructs a slider with the range 0 to 99 and both values 0. */
    explicit TalvoDoubleSlider(QWidget *parent = nullptr);
    ~TalvoDoubleSlider() override;

    /** Returns the smaller of the two values. */
    double lowerValue();
    /** Returns the larger of the two values. */
    double upperValue();

    /**
     * Makes @p min the value at the left end and @p max the value at the right end. The values stay
     * as they are, even outside the new range, where their handles are drawn outside the bar;
     * nothing is repainted and no signal is emitted, so a host calls setSpan() afterwards. Where
     * both are equal, the handles are drawn at the left end. A range without an end cannot be
     * dragged in. If either is not a number, the call is ignored.
     */
    void setQxtSpanRange(double min, double max);

    /** Finds again where the handles are in the present size. The slider does so by itself. */
    void updatePos();

    /** Returns the size that shows both handles with some way between them. */
    QSize sizeHint() const override;
    /** Returns the least size that shows both handles whole. */
    QSize minimumSizeHint() const override;

    // Hosts look these up by index in the meta-object: new ones go to the end.
public Q_SLOTS:
    /**
     * Gives the first handle the value @p lower, or the minimum if that is larger; there is no
     * limit at the top. Emits upperValueChanged() if the first handle then has the larger value,
     * otherwise lowerValueChanged(), also when the value is the same as before. What is not a
     * number is ignored.
     */
    void setLowerValue(double lower);

    /**
     * Gives the second handle the value @p upper, or the maximum if that is smaller; there is no
     * limit at the bottom. Emits lowerValueChanged() if the second handle then has the smaller
     * value, otherwise upperValueChanged(), also when the value is the same as before. What is not
     * a number is ignored.
     */
    void setUpperValue(double upper);

    /**
     * Gives the first handle the value @p lower and the second one the value @p upper, in any order
     * and without any limit. Emits lowerValueChanged() with the smaller and then upperValueChanged()
     * with the larger value, both also when nothing changed. If either is not a number, the call is
     * ignored.
     */
    void setSpan(double lower, double upper);

Q_SIGNALS:
    /**
     * The smaller of the two values was set to @p lower, by a setter or by the user. Emitted on
     * every move of a drag along the bar, also when the value is the same as before.
     */
    void lowerValueChanged(double lower);
    /** The same for the larger of the two values. */
    void upperValueChanged(double upper);

protected:
    /** Ends a drag when the slider is disabled, hidden or blocked by a modal window. */
    bool event(QEvent *event) override;
    /**
     * Grabs the handle under a press of the left button. Any other press is ignored, for the
     * parent.
     */
    void mousePressEvent(QMouseEvent *event) override;
    /** Drags the grabbed handle along the bar; positions beside the bar are passed over. */
    void mouseMoveEvent(QMouseEvent *event) override;
    /** Lets go of the handle. */
    void mouseReleaseEvent(QMouseEvent *event) override;
    /** Paints the span in the accent colour, what is outside it in grey, and the handles. */
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(TalvoDoubleSlider)
    Q_DECLARE_PRIVATE_D(d, TalvoDoubleSlider)
    friend class AccessibleSliderHandle;

    TalvoDoubleSliderPrivate *d;
};

} // namespace Widgets
} // namespace LM

#endif
