#include <lmwidgets/framelessmessagebox.h>

#include "detailbutton_p.h"
#include "framelessmessagebox_p.h"

#include <QAccessible>
#include <QClipboard>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QStyle>

#include <cstring>

namespace LM {
namespace Widgets {

namespace {

constexpr int BoxWidth = 444;
constexpr int BoxHeight = 220;

constexpr Qt::WindowFlags FrameFlags = Qt::MSWindowsFixedSizeDialogHint | Qt::WindowTitleHint |
                                       Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

constexpr int KeyClickTime = 100;

// Hosts parse what users paste into reports, so the layout of this text is fixed.
const char ClipboardSeparator[] = "---------------------------\n";
const char ClipboardCaptionGap[] = "   ";

bool isButtonRole(QMessageBox::ButtonRole role)
{
    return role > QMessageBox::InvalidRole && role < QMessageBox::NRoles;
}

/** Whether @p button is one standard button: not none, not several, not the mask of a flag. */
bool isStandardButton(QMessageBox::StandardButton button)
{
    const auto bits = static_cast<unsigned int>(button);
    const bool oneBit = bits != 0 && (bits & (bits - 1)) == 0;
    return oneBit && bits >= QMessageBox::FirstButton && bits <= QMessageBox::LastButton;
}

QDialogButtonBox::StandardButton toBoxButton(QMessageBox::StandardButton button)
{
    return static_cast<QDialogButtonBox::StandardButton>(button);
}

/** Returns the one button with @p role; null where none has it, or more than one. */
QAbstractButton *onlyButtonWithRole(const QDialogButtonBox *box, QDialogButtonBox::ButtonRole role)
{
    QAbstractButton *found = nullptr;
    const QList<QAbstractButton *> buttons = box->buttons();
    for (QAbstractButton *button : buttons) {
        if (box->buttonRole(button) == role) {
            if (found) {
                return nullptr;
            }
            found = button;
        }
    }
    return found;
}

} // namespace

FramelessMessageBoxPrivate::FramelessMessageBoxPrivate(FramelessMessageBox *box) : q(box) {}

FramelessMessageBoxPrivate::~FramelessMessageBoxPrivate()
{
    // It is nobody's child, because it is never shown.
    delete informativeLabel;
}

QPushButton *FramelessMessageBoxPrivate::pushButton(QMessageBox::StandardButton which) const
{
    return buttonBox->button(toBoxButton(which));
}

void FramelessMessageBoxPrivate::takeButton(QAbstractButton *button)
{
    customButtonList.removeAll(button);
    if (escapeButton == button) {
        escapeButton.clear();
    }
    if (defaultButton == button) {
        defaultButton.clear();
    }
    buttonBox->removeButton(button);
}

void FramelessMessageBoxPrivate::makeOkDefault()
{
    if (QPushButton *ok = pushButton(QMessageBox::Ok)) {
        q->setDefaultButton(ok);
    }
}

void FramelessMessageBoxPrivate::detectEscapeButton()
{
    if (escapeButton) {
        detectedEscapeButton = escapeButton;
        return;
    }
    detectedEscapeButton = pushButton(QMessageBox::Cancel);
    if (detectedEscapeButton) {
        return;
    }
    const QList<QAbstractButton *> buttons = buttonBox->buttons();
    if (buttons.count() == 1) {
        detectedEscapeButton = buttons.first();
        return;
    }
    detectedEscapeButton = onlyButtonWithRole(buttonBox, QDialogButtonBox::RejectRole);
    if (!detectedEscapeButton) {
        detectedEscapeButton = onlyButtonWithRole(buttonBox, QDialogButtonBox::NoRole);
    }
}

void FramelessMessageBoxPrivate::replaceLostEscapeButton(bool hadEscapeButton)
{
    // A box on the screen that could be left with Escape stays so when its buttons are exchanged.
    if (hadEscapeButton && q->isVisible() && !buttonBox->buttons().contains(detectedEscapeButton)) {
        detectEscapeButton();
        settleCloseButton();
    }
}

/** Shows the close button only where a button stands for Escape, and only if the host wants it. */
void FramelessMessageBoxPrivate::settleCloseButton()
{
    const bool wanted = q->getCloseButtonVisible() || closeButtonTakenAway;
    const bool possible = detectedEscapeButton;
    closeButtonTakenAway = wanted && !possible;
    q->setCloseButtonVisible(wanted && possible);
}

/**
 * Gives the focus to the button that answers positively where nobody has given it away. Otherwise
 * the leftmost button would have it and be pressed by Enter: No before Yes, or even the details.
 */
void FramelessMessageBoxPrivate::settleFirstFocus()
{
    if (q->focusWidget()) {
        return;
    }
    const QList<QAbstractButton *> buttons = buttonBox->buttons();
    for (const QDialogButtonBox::ButtonRole role :
         {QDialogButtonBox::AcceptRole, QDialogButtonBox::YesRole, QDialogButtonBox::ApplyRole,
          QDialogButtonBox::DestructiveRole, QDialogButtonBox::RejectRole, QDialogButtonBox::NoRole,
          QDialogButtonBox::ResetRole}) {
        for (QAbstractButton *button : buttons) {
            if (buttonBox->buttonRole(button) == role && !button->isHidden()) {
                button->setFocus(Qt::OtherFocusReason);
                return;
            }
        }
    }
}

int FramelessMessageBoxPrivate::returnCode(QAbstractButton *button)
{
    const QDialogButtonBox::StandardButton standard = buttonBox->standardButton(button);
    if (standard != QDialogButtonBox::NoButton) {
        return standard;
    }
    customButtonList.removeAll(nullptr);
    return button ? customButtonList.indexOf(button) : -1;
}

void FramelessMessageBoxPrivate::disconnectReceiver()
{
    if (receiverToDisconnectOnClose) {
        QObject::disconnect(q, signalToDisconnectOnClose.constData(), receiverToDisconnectOnClose,
                            memberToDisconnectOnClose.constData());
    }
    receiverToDisconnectOnClose.clear();
    memberToDisconnectOnClose.clear();
    signalToDisconnectOnClose.clear();
}

QString FramelessMessageBoxPrivate::clipboardText() const
{
    const QString separator = QLatin1String(ClipboardSeparator);
    const QChar newLine = QLatin1Char('\n');

    QString copied = separator + q->windowTitle() + newLine;
    copied += separator + label->text() + newLine + separator;
    if (informativeLabel) {
        copied += informativeLabel->text() + newLine + separator;
    }
    const QList<QAbstractButton *> buttons = buttonBox->buttons();
    for (const QAbstractButton *button : buttons) {
        copied += button->text() + QLatin1String(ClipboardCaptionGap);
    }
    copied += newLine + separator;
    if (detailsText) {
        copied += detailsText->text() + newLine + separator;
    }
    return copied;
}

bool FramelessMessageBoxPrivate::copyOrSelectDetails(QKeyEvent *event)
{
    if (!detailsText || !detailsText->isVisible()) {
        return false;
    }
    if (event->matches(QKeySequence::Copy)) {
        return detailsText->copy();
    }
    if (event->matches(QKeySequence::SelectAll)) {
        detailsText->selectAll();
        return true;
    }
    return false;
}

QAbstractButton *FramelessMessageBoxPrivate::buttonForKey(const QKeyEvent *event) const
{
    if (event->modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier)) {
        return nullptr;
    }
    const int key = event->key() & ~static_cast<int>(Qt::MODIFIER_MASK);
    if (!key) {
        return nullptr;
    }
    const QList<QAbstractButton *> buttons = buttonBox->buttons();
    for (QAbstractButton *button : buttons) {
        const QKeySequence shortcut = button->shortcut();
        // A button that the host has hidden must not answer.
        if (!shortcut.isEmpty() && !button->isHidden() &&
            key == (shortcut[0] & ~static_cast<int>(Qt::MODIFIER_MASK))) {
            return button;
        }
    }
    return nullptr;
}

FramelessMessageBox::FramelessMessageBox(QWidget *parent)
    : FramelessDialog(QLatin1String(MessageBoxStyle), parent, FrameFlags),
      d(new FramelessMessageBoxPrivate(this))
{
    setMinimumWidth(BoxWidth);
    d->init(QString(), QString());
    setDefaultOKButton();
}

FramelessMessageBox::FramelessMessageBox(QMessageBox::Icon icon, const QString &title,
                                         const QString &text, QMessageBox::StandardButtons buttons,
                                         QWidget *parent, Qt::WindowFlags f)
    : FramelessDialog(QLatin1String(MessageBoxStyle), parent,
                      f | FrameFlags | Qt::BypassWindowManagerHint),
      d(new FramelessMessageBoxPrivate(this))
{
    setMinimumSize(BoxWidth, BoxHeight);
    d->init(title, text);
    setIcon(icon);
    if (buttons != QMessageBox::NoButton) {
        setStandardButtons(buttons);
    }
    setDefaultOKButton();
}

FramelessMessageBox::~FramelessMessageBox()
{
    delete d;
}

void FramelessMessageBox::addButton(QAbstractButton *button, QMessageBox::ButtonRole role)
{
    if (!button || !isButtonRole(role)) {
        return;
    }
    const bool hadEscapeButton = d->detectedEscapeButton;
    if (d->buttonBox->buttons().contains(button)) {
        d->takeButton(button);
    }
    d->buttonBox->addButton(button, static_cast<QDialogButtonBox::ButtonRole>(role));
    d->customButtonList.append(button);
    d->autoAddOkButton = false;
    d->replaceLostEscapeButton(hadEscapeButton);
}

QPushButton *FramelessMessageBox::addButton(const QString &text, QMessageBox::ButtonRole role)
{
    if (!isButtonRole(role)) {
        return nullptr;
    }
    auto *button = new QPushButton(text);
    addButton(button, role);
    d->updateSize();
    return button;
}

QPushButton *FramelessMessageBox::addButton(QMessageBox::StandardButton button)
{
    QPushButton *added =
        isStandardButton(button) ? d->buttonBox->addButton(toBoxButton(button)) : nullptr;
    if (added) {
        d->autoAddOkButton = false;
        retranslateButtonUi(button);
    }
    return added;
}

void FramelessMessageBox::removeButton(QAbstractButton *button)
{
    if (!d->buttonBox->buttons().contains(button)) {
        return;
    }
    const bool hadEscapeButton = d->detectedEscapeButton;
    d->takeButton(button);
    d->replaceLostEscapeButton(hadEscapeButton);
    d->updateSize();
}

void FramelessMessageBox::open(QObject *receiver, const char *member)
{
    d->disconnectReceiver();
    if (receiver && member) {
        const char *signal = std::strchr(member, '*') ? SIGNAL(buttonClicked(QAbstractButton *))
                                                      : SIGNAL(finished(int));
        if (connect(this, signal, receiver, member)) {
            d->receiverToDisconnectOnClose = receiver;
            d->memberToDisconnectOnClose = member;
            d->signalToDisconnectOnClose = signal;
        }
    }
    QDialog::open();
}

QList<QAbstractButton *> FramelessMessageBox::buttons() const
{
    return d->buttonBox->buttons();
}

QMessageBox::ButtonRole FramelessMessageBox::buttonRole(QAbstractButton *button) const
{
    return static_cast<QMessageBox::ButtonRole>(d->buttonBox->buttonRole(button));
}

void FramelessMessageBox::setStandardButtons(QMessageBox::StandardButtons buttons)
{
    const bool hadEscapeButton = d->detectedEscapeButton;
    d->buttonBox->setStandardButtons(
        QDialogButtonBox::StandardButtons(static_cast<QDialogButtonBox::StandardButtons::Int>(
            static_cast<QMessageBox::StandardButtons::Int>(buttons))));

    const QList<QAbstractButton *> present = d->buttonBox->buttons();
    if (!present.contains(d->escapeButton)) {
        d->escapeButton.clear();
    }
    if (!present.contains(d->defaultButton)) {
        d->defaultButton.clear();
    }
    d->autoAddOkButton = false;
    d->replaceLostEscapeButton(hadEscapeButton);
    d->updateSize();
}

QMessageBox::StandardButtons FramelessMessageBox::standardButtons() const
{
    return QMessageBox::StandardButtons(static_cast<QMessageBox::StandardButtons::Int>(
        static_cast<QDialogButtonBox::StandardButtons::Int>(d->buttonBox->standardButtons())));
}

QMessageBox::StandardButton FramelessMessageBox::standardButton(QAbstractButton *button) const
{
    return static_cast<QMessageBox::StandardButton>(d->buttonBox->standardButton(button));
}

QAbstractButton *FramelessMessageBox::button(QMessageBox::StandardButton which) const
{
    return d->pushButton(which);
}

QPushButton *FramelessMessageBox::defaultButton() const
{
    return d->defaultButton;
}

void FramelessMessageBox::setDefaultButton(QPushButton *button)
{
    if (!button || !d->buttonBox->buttons().contains(button)) {
        return;
    }
    d->defaultButton = button;
    button->setDefault(true);
    button->setFocus(Qt::OtherFocusReason);
}

void FramelessMessageBox::setDefaultButton(QMessageBox::StandardButton button)
{
    setDefaultButton(d->pushButton(button));
    // The users of the hosts confirm with Enter whatever else a box offers.
    d->makeOkDefault();
}

QAbstractButton *FramelessMessageBox::escapeButton() const
{
    return d->escapeButton;
}

void FramelessMessageBox::setEscapeButton(QAbstractButton *button)
{
    if (button && d->buttonBox->buttons().contains(button)) {
        d->escapeButton = button;
    }
}

void FramelessMessageBox::setEscapeButton(QMessageBox::StandardButton button)
{
    setEscapeButton(d->pushButton(button));
}

QAbstractButton *FramelessMessageBox::clickedButton() const
{
    return d->clickedButton;
}

void FramelessMessageBox::setWindowModality(Qt::WindowModality modality)
{
    QDialog::setWindowModality(modality);
    // Only the type changes: without the other flags the system would draw a frame around this one.
    const bool sheet = modality == Qt::WindowModal && parentWidget();
    const Qt::WindowFlags hints = windowFlags() & ~Qt::WindowFlags(Qt::WindowType_Mask);
    setParent(parentWidget(), hints | (sheet ? Qt::Sheet : Qt::Dialog));
    d->makeOkDefault();
}

void FramelessMessageBox::slot_buttonClicked(QAbstractButton *button)
{
    if (button && button == d->detailsButton && d->detailsText) {
        const bool wasHidden = d->detailsText->isHidden();
        d->detailsText->setHidden(!wasHidden);
        d->updateDetailsCaption();
        d->updateSize();
        return;
    }

    const QPointer<FramelessMessageBox> guard(this);
    const QPointer<QAbstractButton> clicked(button);
    d->clickedButton = button;
    done(d->returnCode(button));
    if (guard && clicked) {
        Q_EMIT buttonClicked(clicked);
    }
    if (guard) {
        d->disconnectReceiver();
    }
}

void FramelessMessageBox::slot_clicked(QMessageBox::StandardButton button,
                                       QMessageBox::ButtonRole role)
{
    Q_UNUSED(role)
    done(button);
}

bool FramelessMessageBox::event(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        // The button box gives its standard buttons Qt's captions back when it hears of it.
        const QHash<QAbstractButton *, QString> former = d->captions();
        const QPointer<FramelessMessageBox> guard(this);
        const bool handled = FramelessDialog::event(event);
        if (guard) {
            d->restoreCaptions(former);
            d->updateDetailsCaption();
        }
        return handled;
    }
    const bool handled = FramelessDialog::event(event);
    if (event->type() == QEvent::LayoutRequest) {
        d->updateSize();
    }
    return handled;
}

void FramelessMessageBox::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
}

void FramelessMessageBox::showEvent(QShowEvent *event)
{
    if (d->autoAddOkButton) {
        addButton(QMessageBox::Ok);
    }
    if (d->detailsButton) {
        // It is added again to stand behind the buttons that came after it.
        addButton(d->detailsButton, QMessageBox::ActionRole);
    }
    d->detectEscapeButton();
    d->updateSize();
#ifndef QT_NO_ACCESSIBILITY
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
#endif
    d->settleCloseButton();
    d->settleTabOrder();
    FramelessDialog::showEvent(event);
    d->settleFirstFocus();
}

void FramelessMessageBox::closeEvent(QCloseEvent *event)
{
    if (!d->detectedEscapeButton) {
        event->ignore();
        return;
    }
    const QPointer<FramelessMessageBox> guard(this);
    FramelessDialog::closeEvent(event);
    if (!guard || isVisible()) {
        return;
    }
    d->clickedButton = d->detectedEscapeButton;
    setResult(d->returnCode(d->detectedEscapeButton));
}

void FramelessMessageBox::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Cancel)) {
        event->accept();
        if (d->detectedEscapeButton) {
            d->detectedEscapeButton->click();
        }
        return;
    }
    if (d->copyOrSelectDetails(event)) {
        event->accept();
        return;
    }
    if (event->matches(QKeySequence::Copy)) {
        QGuiApplication::clipboard()->setText(d->clipboardText());
        event->accept();
        return;
    }
    if (QAbstractButton *button = d->buttonForKey(event)) {
        button->animateClick(KeyClickTime);
        return;
    }
    FramelessDialog::keyPressEvent(event);
}

void FramelessMessageBox::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::StyleChange) {
        if (d->icon != QMessageBox::NoIcon) {
            setIcon(d->icon);
        }
        const Qt::TextInteractionFlags flags = d->styleInteractionFlags();
        d->label->setTextInteractionFlags(flags);
        d->buttonBox->setCenterButtons(
            style()->styleHint(QStyle::SH_MessageBox_CenterButtons, nullptr, this) != 0);
        if (d->informativeLabel) {
            d->informativeLabel->setTextInteractionFlags(flags);
        }
    }
    FramelessDialog::changeEvent(event);
}

} // namespace Widgets
} // namespace LM
