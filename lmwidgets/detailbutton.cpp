#include <lmwidgets/detailbutton.h>

#include "detailbutton_p.h"

#include <QApplication>
#include <QFontMetrics>
#include <QStyle>
#include <QStyleOptionButton>

namespace LM {
namespace Widgets {

namespace {

/** The smallest size that the host lets a control have. */
QSize smallestControl()
{
    // Qt 5.15 gives it up without a replacement; hosts that still set it expect it to be heeded.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    return QApplication::globalStrut();
    QT_WARNING_POP
}

} // namespace

QString showDetailsCaption()
{
    return DetailButton::tr("Show Details...");
}

QString hideDetailsCaption()
{
    return DetailButton::tr("Hide Details...");
}

DetailButton::DetailButton(QWidget *parent) : QPushButton(showDetailsCaption(), parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

DetailButton::~DetailButton() = default;

QSize DetailButton::sizeHint() const
{
    ensurePolished();

    QStyleOptionButton option;
    initStyleOption(&option);
    const QFontMetrics metrics = fontMetrics();

    QSize hint;
    for (const QString &caption : {showDetailsCaption(), hideDetailsCaption()}) {
        option.text = caption;
        const QSize textSize = metrics.size(Qt::TextShowMnemonic, caption);
        const QSize size =
            style()->sizeFromContents(QStyle::CT_PushButton, &option, textSize, this);
        hint = hint.expandedTo(size.expandedTo(smallestControl()));
    }
    return hint;
}

} // namespace Widgets
} // namespace LM
