#ifndef LMWIDGETS_BUTTONLEFTHAVEGREENDOTS_H
#define LMWIDGETS_BUTTONLEFTHAVEGREENDOTS_H

#include <lmwidgets/lmwidgets_global.h>

#include <QColor>
#include <QToolButton>

/**
 * @class ButtonLeftHaveGreenDots buttonlefthavegreendots.h <lmwidgets/buttonlefthavegreendots.h>
 *
 * @brief A tool button with a ring on its left.
 *
 * @image html buttonlefthavegreendots.png
 *
 * Before the button paints itself it paints a ring of 10 px with a line of 2 px, whose centre lies
 * 13 px to the left of the button's left edge, half way down. On the screen the ring is clipped
 * away with everything else outside the button, which then looks like a QToolButton.
 *
 * @code
 * auto *run = new ButtonLeftHaveGreenDots(toolBar);
 * run->setText(tr("Run"));
 * run->setShowDotColor(Qt::red);
 * @endcode
 *
 * A slot may destroy the button when it is clicked.
 */
class LMWIDGETS_EXPORT ButtonLeftHaveGreenDots : public QToolButton
{
    Q_OBJECT

public:
    /** Constructs a button with a ring in Qt::green. */
    explicit ButtonLeftHaveGreenDots(QWidget *parent = nullptr);
    ~ButtonLeftHaveGreenDots() override;

    /**
     * Makes @p color that of the ring, from the next time on that the button is painted; call
     * update() where that matters. An invalid colour paints black.
     */
    void setShowDotColor(const QColor &color);

protected:
    /** Paints the ring, and over it what a QToolButton paints. */
    void paintEvent(QPaintEvent *event) override;
    /** Clicks as a QToolButton does; the click may destroy the button. */
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    Q_DISABLE_COPY(ButtonLeftHaveGreenDots)

    QColor m_dotColor = Qt::green;
};

#endif
