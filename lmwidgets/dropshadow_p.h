#ifndef DROPSHADOW_P_H
#define DROPSHADOW_P_H

#include <QColor>
#include <QGraphicsDropShadowEffect>

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

} // namespace Widgets
} // namespace LM

#endif
