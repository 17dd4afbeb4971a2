#ifndef LMWIDGETS_DROPSHADOW_P_H
#define LMWIDGETS_DROPSHADOW_P_H

#include <QColor>
#include <QGraphicsDropShadowEffect>
#include <QWidget>

namespace LM {
namespace Widgets {

/**
 * The shadow of a dialog. Hosts find the stock effect by its class and may give it a colour of their
 * own; while the colour is fully transparent there is nothing to see, and the dialog is painted as it
 * is. The stock effect would render the whole dialog into a picture and blur it for every repaint of
 * one button.
 *
 * No meta-object of its own: to a host it is a QGraphicsDropShadowEffect.
 */
class DropShadow : public QGraphicsDropShadowEffect
{
public:
    using QGraphicsDropShadowEffect::QGraphicsDropShadowEffect;

protected:
    void draw(QPainter *painter) override
    {
        if (color().alpha() == 0) {
            drawSource(painter);
            return;
        }
        QGraphicsDropShadowEffect::draw(painter);
    }
};

/** Gives @p dialog the shadow that message boxes and dialogs carry, and returns it. */
inline DropShadow *installDialogShadow(QWidget *dialog)
{
    auto *shadow = new DropShadow(dialog);
    shadow->setBlurRadius(24.0);
    shadow->setOffset(0.0, 4.0);
    // Fully transparent: hosts lay their own shadow around a dialog, and the effect keeps its place.
    shadow->setColor(QColor(0, 0, 0, 0));
    dialog->setGraphicsEffect(shadow);
    return shadow;
}

} // namespace Widgets
} // namespace LM

#endif
