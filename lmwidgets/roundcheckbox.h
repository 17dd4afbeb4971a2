#ifndef LMWIDGETS_ROUNDCHECKBOX_H
#define LMWIDGETS_ROUNDCHECKBOX_H

#include <lmwidgets/lmwidgets_global.h>

#include <QWidget>

namespace LM {
namespace Widgets {

/**
 * @class RoundCheckBox roundcheckbox.h <lmwidgets/roundcheckbox.h>
 *
 * @brief A yellow pill, 60 by 30 px, with a black knob that jumps from side to side.
 *
 * @image html roundcheckbox.png
 *
 * The knob stands at the left when the box is checked and at the right when it is not: what the
 * knob leaves free is what counts, the reverse of most switches. Any mouse button that is released
 * on it turns it over. It has no text: set QWidget::accessibleName() so that assistive technology,
 * for which it is a check box that can be toggled, has a name for it.
 *
 * @code
 * auto *lock = new LM::Widgets::RoundCheckBox;
 * lock->setAccessibleName(tr("Lock the layer"));
 * connect(lock, &LM::Widgets::RoundCheckBox::toggled, layer, &Layer::setLocked);
 * @endcode
 */
class LMWIDGETS_EXPORT RoundCheckBox : public QWidget
{
    Q_OBJECT

public:
    /** Constructs a box of 60 by 30 px that is not checked. */
    explicit RoundCheckBox(QWidget *parent = nullptr);

    /** Returns whether the box is checked; false at start. */
    bool isChecked() const;

public Q_SLOTS:
    /** Sets the state, emits toggled() and repaints, each time. */
    void setChecked(bool check);

Q_SIGNALS:
    /**
     * The box was turned over by the mouse, or setChecked() was called: then also with the state
     * that the box had already.
     */
    void toggled(bool check);

protected:
    /** Turns the box over on the release of any button inside it. */
    void mouseReleaseEvent(QMouseEvent *event) override;
    /** Paints the box in yellow and the knob in the half that stands for the state. */
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(RoundCheckBox)

    bool m_checked = false;
};

} // namespace Widgets
} // namespace LM

#endif
