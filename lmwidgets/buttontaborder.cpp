#include "buttontaborder_p.h"

#include <QWidget>

#include <algorithm>

namespace LM {
namespace Widgets {

namespace {

/** Whether Tab goes through @p buttons one after the other. */
bool followEachOther(const QVector<QWidget *> &buttons)
{
    for (int i = 1; i < buttons.size(); ++i) {
        if (buttons.at(i - 1)->nextInFocusChain() != buttons.at(i)) {
            return false;
        }
    }
    return true;
}

/** The last widget that takes the focus behind @p buttons, not in @p buttonRow; may be null. */
QWidget *lastOfContent(const QWidget *dialog, const QWidget *buttonRow,
                       const QVector<QWidget *> &buttons)
{
    QWidget *last = nullptr;
    for (QWidget *widget = buttons.last()->nextInFocusChain();
         widget != dialog && widget != buttons.first(); widget = widget->nextInFocusChain()) {
        if (widget->focusPolicy() != Qt::NoFocus && !buttonRow->isAncestorOf(widget)) {
            last = widget;
        }
    }
    return last;
}

} // namespace

void putButtonsLastInTabOrder(const QWidget *dialog, const QWidget *buttonRow,
                              const QVector<QWidget *> &asMade, const QVector<QWidget *> &asSeen)
{
    if (!buttonRow || asMade.isEmpty() || asMade.contains(nullptr)) {
        return;
    }
    // A message box has buttons of its own in this row. Moving the hidden ones behind the content
    // would give the keyboard to its leftmost button in place of the one that accepts.
    const bool allHidden = std::all_of(asMade.begin(), asMade.end(),
                                       [](const QWidget *button) { return button->isHidden(); });
    if (allHidden || !followEachOther(asMade)) {
        return;
    }
    QWidget *before = lastOfContent(dialog, buttonRow, asMade);
    if (!before) {
        return;
    }
    for (QWidget *button : asSeen) {
        QWidget::setTabOrder(before, button);
        before = button;
    }
    // Qt takes the chain for a ring and leaves the last one where it is if only the dialog itself
    // stands between it and the one before. That is the very first place: the dialog would open
    // with the focus on this button.
    const int count = asSeen.size();
    if (count > 2 && asSeen.at(count - 2)->nextInFocusChain() != asSeen.last()) {
        QWidget::setTabOrder(asSeen.at(count - 3), asSeen.last());
        QWidget::setTabOrder(asSeen.at(count - 3), asSeen.at(count - 2));
    }
}

} // namespace Widgets
} // namespace LM
