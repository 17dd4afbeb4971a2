#include "captionwidth_p.h"

#include <QAbstractButton>
#include <QFont>
#include <QFontMetrics>
#include <QVariant>

namespace LM {
namespace Widgets {

namespace {

constexpr int StyledWidth = 80;
constexpr int StyledFontSize = 14;
constexpr int CaptionMargin = 8;
constexpr int LeastMargin = 4;

// What it is now, if we have set it, and what it was before.
const char WidthProperty[] = "_lm_captionWidth";
const char FormerWidthProperty[] = "_lm_formerWidth";

} // namespace

void widenForCaption(QAbstractButton *button)
{
    QFont font = button->font();
    font.setPixelSize(StyledFontSize);
    const int width = QFontMetrics(font).size(Qt::TextShowMnemonic, button->text()).width();
    const QVariant ours = button->property(WidthProperty);
    const bool isWidened = ours.isValid() && ours.toInt() == button->minimumWidth();
    if (width + 2 * LeastMargin > StyledWidth) {
        if (!isWidened) {
            button->setProperty(FormerWidthProperty, button->minimumWidth());
        }
        const int former = button->property(FormerWidthProperty).toInt();
        button->setMinimumWidth(qMax(former, width + 2 * CaptionMargin));
        button->setProperty(WidthProperty, button->minimumWidth());
    } else if (isWidened) {
        button->setMinimumWidth(button->property(FormerWidthProperty).toInt());
        button->setProperty(WidthProperty, QVariant());
    }
}

} // namespace Widgets
} // namespace LM
