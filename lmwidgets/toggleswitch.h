#ifndef LMWIDGETS_TOGGLESWITCH_H
#define LMWIDGETS_TOGGLESWITCH_H

#include <lmwidgets/lmwidgets_global.h>

#include <QString>
#include <QTimer>
#include <QWidget>

namespace LM {
namespace Widgets {

/**
 * @class ToggleSwitch toggleswitch.h <lmwidgets/toggleswitch.h>
 *
 * @brief A pill-shaped switch whose knob slides, with a text at its right.
 *
 * @image html toggleswitch.png
 *
 * A press of the left mouse button on the switch turns it over; a press on the text does nothing.
 * The state changes, and toggled() is emitted, at once; the knob follows in about a quarter of a
 * second, and turns round where it is when the state changes again meanwhile. The colours are
 * fixed: the accent yellow (254, 200, 4) and a dark grey, with a white text.
 *
 * @code
 * auto *ground = new LM::Widgets::ToggleSwitch;
 * ground->setText(tr("Show ground points"));
 * connect(ground, &LM::Widgets::ToggleSwitch::toggled, view, &View::setGroundVisible);
 * @endcode
 *
 * To assistive technology it is a check box with the text as its name, which can be toggled.
 */
class LMWIDGETS_EXPORT ToggleSwitch : public QWidget
{
    Q_OBJECT

public:
    /**
     * Constructs a switch that is off, with the text "ToggleSwitch". Its size is fixed: 30 px high
     * and 78 px wider than the text in the application's font.
     */
    explicit ToggleSwitch(QWidget *parent = nullptr);

    /** Returns whether the switch is on; false at start. */
    bool isChecked() const;

public Q_SLOTS:
    /** Turns the switch on or off. The state that it has already is ignored. */
    void setChecked(bool checked);
    /**
     * Sets the text and makes the switch as wide as it needs; the height stays. Measured and drawn
     * in the application's font, whatever font the switch itself has.
     */
    void setText(const QString &text);

Q_SIGNALS:
    /** The switch was turned over, by the mouse or by setChecked(): not for the same state again. */
    void toggled(bool checked);

protected:
    /** Turns the switch over on a press of the left button within its 42 by 24 px from (0, 3). */
    void mousePressEvent(QMouseEvent *event) override;
    /** Paints the switch with the knob where it has arrived, and the text. */
    void paintEvent(QPaintEvent *event) override;

private Q_SLOTS:
    void animate();

private:
    Q_DISABLE_COPY(ToggleSwitch)
    friend class AccessibleToggleSwitch;

    void fitToText(int height);
    void change(bool on);

    bool m_checked = false;
    double m_position = 0.0;
    double m_target = 0.0;
    QTimer m_timer;
    QString m_text;
};

} // namespace Widgets
} // namespace LM

#endif
