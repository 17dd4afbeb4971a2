/** @file
 * The captions and the look of a message box's buttons.
 */

#include "buttonstyles_p.h"
#include "captionwidth_p.h"
#include "framelessmessagebox_p.h"

#include <lmwidgets/framelessmessagebox.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QVariant>

#include <algorithm>
#include <iterator>

namespace LM {
namespace Widgets {

namespace {

struct UsualButton
{
    QMessageBox::StandardButton which;
    const char *caption;
};

const UsualButton UsualButtons[] = {
    {QMessageBox::Ok, QT_TRANSLATE_NOOP("LM::Widgets::FramelessMessageBox", "OK")},
    {QMessageBox::Save, QT_TRANSLATE_NOOP("LM::Widgets::FramelessMessageBox", "&Save")},
    {QMessageBox::SaveAll, QT_TRANSLATE_NOOP("LM::Widgets::FramelessMessageBox", "Save All")},
    {QMessageBox::Open, QT_TRANSLATE_NOOP("LM::Widgets::FramelessMessageBox", "Open")},
    {QMessageBox::Yes, QT_TRANSLATE_NOOP("LM::Widgets::FramelessMessageBox", "&Yes")},
    {QMessageBox::YesToAll, QT_TRANSLATE_NOOP("LM::Widgets::FramelessMessageBox", "Yes to &All")},
    {QMessageBox::No, QT_TRANSLATE_NOOP("LM::Widgets::FramelessMessageBox", "&No")},
    {QMessageBox::NoToAll, QT_TRANSLATE_NOOP("LM::Widgets::FramelessMessageBox", "N&o to All")},
    {QMessageBox::Abort, QT_TRANSLATE_NOOP("LM::Widgets::FramelessMessageBox", "Abort")},
    {QMessageBox::Retry, QT_TRANSLATE_NOOP("LM::Widgets::FramelessMessageBox", "Retry")},
    {QMessageBox::Ignore, QT_TRANSLATE_NOOP("LM::Widgets::FramelessMessageBox", "Ignore")},
    {QMessageBox::Close, QT_TRANSLATE_NOOP("LM::Widgets::FramelessMessageBox", "Close")},
    {QMessageBox::Cancel, QT_TRANSLATE_NOOP("LM::Widgets::FramelessMessageBox", "&Cancel")},
    {QMessageBox::Discard, QT_TRANSLATE_NOOP("LM::Widgets::FramelessMessageBox", "Discard")},
    {QMessageBox::Help, QT_TRANSLATE_NOOP("LM::Widgets::FramelessMessageBox", "Help")},
    {QMessageBox::Apply, QT_TRANSLATE_NOOP("LM::Widgets::FramelessMessageBox", "Apply")},
    {QMessageBox::Reset, QT_TRANSLATE_NOOP("LM::Widgets::FramelessMessageBox", "Reset")},
};

struct FixedButton
{
    QMessageBox::StandardButton which;
    const char *caption;
    const char *styleSheet;
};

// Close, Save, YesToAll and Abort are what the hosts use for leaving the program, for saving before
// it, for switching a project and for closing one: their captions say that.
const FixedButton FixedButtons[] = {
    {QMessageBox::Ok, QT_TRANSLATE_NOOP("FramelessMessageBox", "OK"), PrimaryButtonStyle},
    {QMessageBox::Yes, QT_TRANSLATE_NOOP("FramelessMessageBox", "Yes"), PrimaryButtonStyle},
    {QMessageBox::Cancel, QT_TRANSLATE_NOOP("FramelessMessageBox", "Cancel"), SecondaryButtonStyle},
    {QMessageBox::No, QT_TRANSLATE_NOOP("FramelessMessageBox", "No"), SecondaryButtonStyle},
    {QMessageBox::Close, QT_TRANSLATE_NOOP("FramelessMessageBox", "Exit"), PrimaryButtonStyle},
    {QMessageBox::Retry, QT_TRANSLATE_NOOP("FramelessMessageBox", "Retry"), SecondaryButtonStyle},
    {QMessageBox::Save, QT_TRANSLATE_NOOP("FramelessMessageBox", "Save and Exit"),
     PrimaryButtonStyle},
    {QMessageBox::YesToAll, QT_TRANSLATE_NOOP("FramelessMessageBox", "Switch"), PrimaryButtonStyle},
    {QMessageBox::Abort, QT_TRANSLATE_NOOP("FramelessMessageBox", "Close"), SecondaryButtonStyle},
};

template <typename Table>
auto findButton(const Table &table, QMessageBox::StandardButton which)
    -> decltype(std::begin(table))
{
    const auto found = std::find_if(std::begin(table), std::end(table),
                                    [which](const auto &entry) { return entry.which == which; });
    return found == std::end(table) ? nullptr : found;
}

const char CaptionProperty[] = "_lm_caption";
const char CaptionSourceProperty[] = "_lm_captionSource";

} // namespace

/** Sets @p caption and remembers whose it is, for the next change of the language. */
void FramelessMessageBoxPrivate::setCaption(QAbstractButton *button, const QString &caption,
                                            CaptionSource source)
{
    button->setText(caption);
    button->setProperty(CaptionProperty, caption);
    button->setProperty(CaptionSourceProperty, static_cast<int>(source));
}

bool FramelessMessageBoxPrivate::setUsualCaption(QMessageBox::StandardButton which)
{
    QPushButton *button = pushButton(which);
    const UsualButton *usual = findButton(UsualButtons, which);
    if (!button || !usual) {
        return false;
    }
    setCaption(button, FramelessMessageBox::tr(usual->caption), UsualCaption);
    return true;
}

bool FramelessMessageBoxPrivate::setFixedCaption(QMessageBox::StandardButton which)
{
    QPushButton *button = pushButton(which);
    const FixedButton *fixed = findButton(FixedButtons, which);
    if (!button || !fixed) {
        return false;
    }
    const QString caption = QCoreApplication::translate("FramelessMessageBox", fixed->caption);
    setCaption(button, caption, FixedCaption);
    if (which == QMessageBox::Save) {
        button->setFixedWidth(QFontMetrics(QApplication::font()).horizontalAdvance(caption));
    } else {
        widenForCaption(button);
    }
    return true;
}

QHash<QAbstractButton *, QString> FramelessMessageBoxPrivate::captions() const
{
    QHash<QAbstractButton *, QString> texts;
    const QList<QAbstractButton *> buttons = buttonBox->buttons();
    for (QAbstractButton *button : buttons) {
        if (buttonBox->standardButton(button) != QDialogButtonBox::NoButton) {
            texts.insert(button, button->text());
        }
    }
    return texts;
}

/** Translates the captions that the box gave, and puts those back that the host gave since. */
void FramelessMessageBoxPrivate::restoreCaptions(const QHash<QAbstractButton *, QString> &former)
{
    const QList<QAbstractButton *> buttons = buttonBox->buttons();
    for (QAbstractButton *button : buttons) {
        const int source = button->property(CaptionSourceProperty).toInt();
        if (source == NoCaption || !former.contains(button)) {
            continue;
        }
        const auto which =
            static_cast<QMessageBox::StandardButton>(buttonBox->standardButton(button));
        const bool unchanged = former.value(button) == button->property(CaptionProperty).toString();
        if (unchanged && source == UsualCaption) {
            setUsualCaption(which);
        } else if (unchanged && source == FixedCaption) {
            setFixedCaption(which);
        } else {
            button->setText(former.value(button));
        }
    }
}

void FramelessMessageBox::setDefaultOKButton()
{
    for (const FixedButton &fixed : FixedButtons) {
        if (d->setFixedCaption(fixed.which)) {
            d->pushButton(fixed.which)->setStyleSheet(QLatin1String(fixed.styleSheet));
        }
    }
}

void FramelessMessageBox::changeButtonText(QDialogButtonBox::StandardButton which, QString text)
{
    if (QPushButton *button = d->buttonBox->button(which)) {
        d->setCaption(button, text, FramelessMessageBoxPrivate::ForeignCaption);
    }
}

void FramelessMessageBox::setButtonIsVisiable(QDialogButtonBox::StandardButton which, bool visible)
{
    if (QPushButton *button = d->buttonBox->button(which)) {
        button->setVisible(visible);
    }
}

void FramelessMessageBox::retranslateButtonUi(QMessageBox::StandardButton which)
{
    d->setUsualCaption(which);
}

} // namespace Widgets
} // namespace LM
