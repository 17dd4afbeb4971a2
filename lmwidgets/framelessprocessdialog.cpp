#include <lmwidgets/framelessprocessdialog.h>

#include "dialogdone_p.h"
#include "framelessprocessdialog_p.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyle>

#include <limits>

namespace LM {
namespace Widgets {

namespace {

constexpr int BarHeight = 24;

// The places of the children, in px.
constexpr int Margin = 24;
constexpr int ContentTop = 48;
constexpr int PercentWidth = 38;
constexpr int PercentRight = 62; // its left edge from the dialog's right one
constexpr int BarNarrowing = 94;
constexpr int FixedHeight = 78; // with two spacings: what is above and below the label
constexpr QPoint TitlePosition(15, 13);
constexpr int TitleNarrowing = 20;
constexpr int TitleHeight = 30;
constexpr int LayoutAttempts = 5;
constexpr int MinimumPartHeight = 4;

// What the size hint adds to the hints of the children.
constexpr int HintHeight = 96;
constexpr int HintButtonHeight = 30;
constexpr int HintWidth = 30;
constexpr int MinimumHintWidth = 200;

const QColor BorderColor(112, 112, 112, 255);

// An operation is not estimated before it has run so long, in ms.
constexpr int MinimumWait = 50;

// Values that a worker posts faster than the dialog takes them would run events within events until
// the stack ends. At this depth the events that are already being run do for the rest.
constexpr int MaximumPumping = 8;

constexpr int MaximumPercent = 100;

/**
 * The dialog's own label. Its hint lets the longest word fit: the dialog takes less for the label
 * from its own width than the label asks for, which a text that wraps makes good in height only.
 */
class TextLabel : public QLabel
{
public:
    using QLabel::QLabel;

    QSize sizeHint() const override
    {
        const QSize hint = QLabel::sizeHint();
        const int room = qMax(hint.width() + HintWidth, MinimumHintWidth) - 2 * Margin;
        const int longestWord = minimumSizeHint().width();
        if (longestWord <= room) {
            return hint;
        }
        return {longestWord + 2 * Margin - HintWidth, hint.height()};
    }
};

bool isInside(const QWidget *widget, const QWidget *ancestor)
{
    while (widget && widget != ancestor) {
        widget = widget->parentWidget();
    }
    return widget && ancestor;
}

} // namespace

void FramelessProcessDialogPrivate::init(const QString &labelText, const QString &cancelText,
                                         int minimum, int maximum)
{
    titleLabel = new QLabel(QString(), q);
    titleLabel->setObjectName(QStringLiteral("processdialogtitlelabel"));
    label = new TextLabel(labelText, q);
    label->setWordWrap(true);
    percentLabel = new QLabel(QString(), q);
    bar = new QProgressBar(q);
    bar->setFixedHeight(BarHeight);
    bar->setRange(minimum, maximum);
    bar->setTextVisible(false);
    label->setAlignment(Qt::Alignment(
        q->style()->styleHint(QStyle::SH_ProgressDialog_TextLabelAlignment, nullptr, q)));
    QObject::connect(q, &FramelessProcessDialog::canceled, q, &FramelessProcessDialog::cancel);
    forceTimer = new QTimer(q);
    QObject::connect(forceTimer, &QTimer::timeout, q, &FramelessProcessDialog::forceShow);
    if (useDefaultCancelText) {
        q->setCancelButtonText(FramelessProcessDialog::tr("Cancel"));
        useDefaultCancelText = true;
    } else {
        q->setCancelButtonText(cancelText);
    }
    starttime.start();
    forceTimer->start(showTime);
}

void FramelessProcessDialogPrivate::layout()
{
    const QStyle *style = q->style();
    int sp = style->pixelMetric(QStyle::PM_LayoutVerticalSpacing, nullptr, q);
    int mb = Margin;
    QSize cb = cancel ? cancel->sizeHint() : QSize(0, 0);
    QSize bh = bar ? bar->sizeHint() : QSize(0, 0);
    const bool centered =
        style->styleHint(QStyle::SH_ProgressDialog_CenterCancelButton, nullptr, q) != 0;
    int lh = 0;

    // A dialog that is too low gives up spacing and then the heights of bar and button for its
    // label.
    for (int attempt = 0; attempt < LayoutAttempts; ++attempt) {
        const int cbspc = cancel ? cb.height() + sp : 0;
        lh = qMax(0, q->height() - (2 * sp + FixedHeight) - cbspc - mb - bh.height());
        if (lh >= q->height() / 4) {
            break;
        }
        sp /= 2;
        mb /= 2;
        if (cancel) {
            cb.setHeight(qMax(MinimumPartHeight, cb.height() - sp - 2));
        }
        bh.setHeight(qMax(MinimumPartHeight, bh.height() - sp - 1));
    }

    const int width = q->width();
    if (cancel) {
        cancel->setGeometry(centered ? width / 2 - cb.width() / 2 : width - Margin - cb.width(),
                            q->height() - mb - cb.height(), cb.width(), cb.height());
        cancel->setFocusPolicy(Qt::NoFocus);
    }
    if (label) {
        label->setGeometry(Margin, ContentTop, width - 2 * Margin, lh);
    }
    const int barTop = lh + sp + ContentTop;
    if (bar) {
        bar->setGeometry(Margin, barTop, width - BarNarrowing, bh.height());
    }
    if (percentLabel) {
        percentLabel->setGeometry(width - PercentRight, barTop, PercentWidth, bh.height());
    }
    if (titleLabel) {
        titleLabel->setGeometry(TitlePosition.x(), TitlePosition.y(), width - TitleNarrowing,
                                TitleHeight);
    }
}

void FramelessProcessDialogPrivate::ensureSizeIsAtLeastSizeHint()
{
    QSize size = q->sizeHint();
    if (q->isVisible()) {
        size = size.expandedTo(q->size());
    }
    q->resize(size);
}

void FramelessProcessDialogPrivate::adopt(QWidget *widget)
{
    if (widget) {
        if (widget->parentWidget() == q) {
            widget->hide();
        } else {
            widget->setParent(q, Qt::WindowFlags());
        }
    }
    ensureSizeIsAtLeastSizeHint();
    // The hint is often that of the previous widget, and then no resize places the new one.
    layout();
    if (widget) {
        widget->show();
    }
}

template <typename Widget>
void FramelessProcessDialogPrivate::replace(QPointer<Widget> *place, Widget *widget)
{
    const QPointer<FramelessProcessDialog> guard(q);
    const QPointer<Widget> replacement(widget);
    const QPointer<Widget> previous(*place);
    if (isInside(widget, previous)) {
        widget->setParent(q, Qt::WindowFlags());
    }
    *place = widget;
    if (previous) {
        // As a child it would be deleted twice if a receiver of its destroyed() deletes the dialog.
        previous->setParent(nullptr);
        delete previous;
    }
    if (guard && *place == replacement) {
        adopt(replacement);
    }
}

bool FramelessProcessDialogPrivate::setBarValue(int progress)
{
    const QPointer<FramelessProcessDialog> guard(q);
    if (bar) {
        const QPointer<QProgressBar> current(bar);
        const int previous = current->value();
        {
            // QProgressBar looks at itself after its signal, whose receiver may destroy it.
            const QSignalBlocker blocker(current);
            current->setValue(progress);
        }
        if (current && current->value() != previous && !current->signalsBlocked()) {
            Q_EMIT current->valueChanged(current->value());
        }
        if (guard && current && !ownBar) {
            current->repaint();
        }
    }
    if (guard) {
        setPercent(percentOf(progress));
    }
    return guard;
}

int FramelessProcessDialogPrivate::percentOf(int progress) const
{
    const double low = q->minimum();
    const double ratio = (double(progress) - low) / (double(q->maximum()) - low);
    // In this order and cut off, not rounded: 29 of 100 is 28.999... and reads 28%. A range without
    // length gives no number for its only value, which fails the first comparison.
    const double percentage = ratio * MaximumPercent;
    if (!(percentage > 0.0)) {
        return 0;
    }
    return percentage < MaximumPercent ? int(percentage) : MaximumPercent;
}

void FramelessProcessDialogPrivate::setPercent(int newPercent)
{
    if (percent != newPercent) {
        percent = newPercent;
        percentText = QString::number(percent) + QLatin1Char('%');
    }
    if (percentLabel && percentLabel->text() != percentText) {
        percentLabel->setText(percentText);
    }
}

void FramelessProcessDialogPrivate::pumpEvents()
{
    if (pumping >= MaximumPumping) {
        return;
    }
    const QPointer<FramelessProcessDialog> guard(q);
    ++pumping;
    QCoreApplication::processEvents();
    if (guard) {
        --pumping;
    }
}

bool FramelessProcessDialogPrivate::isDue(int progress) const
{
    const qint64 elapsed = starttime.elapsed();
    if (elapsed >= showTime) {
        return true;
    }
    if (elapsed <= MinimumWait) {
        return false;
    }
    constexpr qint64 limit = std::numeric_limits<int>::max();
    const qint64 low = q->minimum();
    const qint64 steps = progress == low ? 1 : progress - low;
    const qint64 remaining = q->maximum() - low - steps;
    if (remaining < limit / elapsed) {
        return remaining * elapsed / steps >= showTime;
    }
    // No duration is longer than the limit, so that a cut off factor does not change the answer.
    return qBound(-limit, remaining / steps, limit) * elapsed >= showTime;
}

FramelessProcessDialog::FramelessProcessDialog(QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags), d(new FramelessProcessDialogPrivate(this))
{
    d->useDefaultCancelText = true;
    d->init(QString(), QString(), 0, 100);
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
}

FramelessProcessDialog::FramelessProcessDialog(const QString &labelText,
                                               const QString &cancelButtonText, int minimum,
                                               int maximum, QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags), d(new FramelessProcessDialogPrivate(this))
{
    d->init(labelText, cancelButtonText, minimum, maximum);
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
}

FramelessProcessDialog::~FramelessProcessDialog()
{
    delete d;
}

void FramelessProcessDialog::setLabel(QLabel *label)
{
    if (label == d->label) {
        if (label) {
            qWarning("FramelessProcessDialog::setLabel: Attempt to set the same label again");
        }
        return;
    }
    if (label && isInside(this, label)) {
        return;
    }
    d->replace(&d->label, label);
}

void FramelessProcessDialog::setCancelButton(QPushButton *cancelButton)
{
    if (cancelButton == d->cancel) {
        if (cancelButton) {
            qWarning(
                "FramelessProcessDialog::setCancelButton: Attempt to set the same button again");
        }
        return;
    }
    if (cancelButton && isInside(this, cancelButton)) {
        return;
    }
    if (cancelButton) {
        connect(cancelButton, &QPushButton::clicked, this, &FramelessProcessDialog::canceled);
    }
    d->replace(&d->cancel, cancelButton);
}

void FramelessProcessDialog::setBar(QProgressBar *bar)
{
    if (!bar) {
        qWarning("FramelessProcessDialog::setBar: Cannot set a null progress bar");
        return;
    }
    if (bar == d->bar) {
        qWarning("FramelessProcessDialog::setBar: Attempt to set the same progress bar again");
        return;
    }
    if (isInside(this, bar)) {
        return;
    }
    d->ownBar = false;
    d->replace(&d->bar, bar);
}

bool FramelessProcessDialog::wasCanceled() const
{
    return d->cancellationFlag;
}

int FramelessProcessDialog::minimum() const
{
    return d->bar ? d->bar->minimum() : 0;
}

void FramelessProcessDialog::setMinimum(int minimum)
{
    if (d->bar) {
        d->bar->setMinimum(minimum);
    }
}

int FramelessProcessDialog::maximum() const
{
    return d->bar ? d->bar->maximum() : 0;
}

void FramelessProcessDialog::setMaximum(int maximum)
{
    if (d->bar) {
        d->bar->setMaximum(maximum);
    }
}

void FramelessProcessDialog::setRange(int minimum, int maximum)
{
    if (d->bar) {
        d->bar->setRange(minimum, maximum);
    }
}

int FramelessProcessDialog::value() const
{
    return d->bar ? d->bar->value() : 0;
}

void FramelessProcessDialog::setValue(int progress)
{
    if (d->setValueCalled && progress == value()) {
        return;
    }
    const QPointer<FramelessProcessDialog> guard(this);
    if (!d->setBarValue(progress)) {
        return;
    }
    if (d->shownOnce) {
        if (isModal()) {
            d->pumpEvents();
        }
    } else {
        if ((!d->setValueCalled && progress == 0) || progress == minimum()) {
            d->starttime.start();
            d->forceTimer->start(qMax(0, d->showTime));
            d->setValueCalled = true;
            return;
        }
        d->setValueCalled = true;
        if (d->isDue(progress)) {
            d->ensureSizeIsAtLeastSizeHint();
            show();
            if (guard) {
                d->shownOnce = true;
            }
        }
    }
    if (guard && progress == maximum() && d->autoReset) {
        reset();
    }
}

QString FramelessProcessDialog::labelText() const
{
    return d->label ? d->label->text() : QString();
}

void FramelessProcessDialog::setLabelText(const QString &text)
{
    if (d->label) {
        d->label->setText(text);
        d->ensureSizeIsAtLeastSizeHint();
    }
}

void FramelessProcessDialog::setCancelButtonText(const QString &text)
{
    d->useDefaultCancelText = false;
    const QPointer<FramelessProcessDialog> guard(this);
    if (text.isNull()) {
        setCancelButton(nullptr);
    } else if (d->cancel) {
        d->cancel->setText(text);
    } else {
        setCancelButton(new QPushButton(text, this));
    }
    if (guard) {
        d->ensureSizeIsAtLeastSizeHint();
        // The button has a width of its own, whatever becomes of the dialog's.
        d->layout();
    }
}

bool FramelessProcessDialog::autoReset() const
{
    return d->autoReset;
}

void FramelessProcessDialog::setAutoReset(bool reset)
{
    d->autoReset = reset;
}

bool FramelessProcessDialog::autoClose() const
{
    return d->autoClose;
}

void FramelessProcessDialog::setAutoClose(bool close)
{
    d->autoClose = close;
}

int FramelessProcessDialog::minimumDuration() const
{
    return d->showTime;
}

void FramelessProcessDialog::setMinimumDuration(int ms)
{
    d->showTime = ms;
    if (value() == minimum()) {
        d->forceTimer->start(qMax(0, ms));
    }
}

void FramelessProcessDialog::setWindowTitle(const QString &title)
{
    if (d->titleLabel) {
        d->titleLabel->setText(title);
    }
}

QSize FramelessProcessDialog::sizeHint() const
{
    const int sp = style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing, nullptr, this);
    const QSize labelHint = d->label ? d->label->sizeHint() : QSize(0, 0);
    const int barHeight = d->bar ? d->bar->sizeHint().height() : 0;
    int height = sp + barHeight + labelHint.height() + HintHeight;
    if (d->cancel) {
        height += d->cancel->sizeHint().height() + sp + HintButtonHeight;
    }
    return {qMax(labelHint.width() + HintWidth, MinimumHintWidth), height};
}

void FramelessProcessDialog::cancel()
{
    const QPointer<FramelessProcessDialog> guard(this);
    d->forceHide = true;
    reset();
    if (guard) {
        d->forceHide = false;
        d->cancellationFlag = true;
    }
}

void FramelessProcessDialog::reset()
{
    if (d->autoClose || d->forceHide) {
        const QPointer<FramelessProcessDialog> guard(this);
        hide();
        if (!guard) {
            return;
        }
    }
    if (d->bar) {
        d->bar->reset();
    }
    d->setPercent(0);
    d->shownOnce = false;
    d->cancellationFlag = false;
    d->setValueCalled = false;
    d->forceTimer->stop();
    if (d->receiverToDisconnectOnClose) {
        // Later, so that the receiver still gets a canceled() that is on its way.
        QMetaObject::invokeMethod(this, "_q_disconnectOnClose", Qt::QueuedConnection);
    }
}

void FramelessProcessDialog::forceShow()
{
    d->forceTimer->stop();
    if (d->shownOnce || d->cancellationFlag) {
        return;
    }
    const QPointer<FramelessProcessDialog> guard(this);
    show();
    if (guard) {
        d->shownOnce = true;
    }
}

void FramelessProcessDialog::open(QObject *receiver, const char *member)
{
    if (receiver && member) {
        connect(this, SIGNAL(canceled()), receiver, member);
        d->receiverToDisconnectOnClose = receiver;
        d->memberToDisconnectOnClose = member;
    }
    QDialog::open();
}

void FramelessProcessDialog::_q_disconnectOnClose()
{
    if (d->receiverToDisconnectOnClose) {
        disconnect(this, SIGNAL(canceled()), d->receiverToDisconnectOnClose,
                   d->memberToDisconnectOnClose);
        d->receiverToDisconnectOnClose = nullptr;
    }
    d->memberToDisconnectOnClose.clear();
}

void FramelessProcessDialog::done(int result)
{
    finishDialog(this, result);
}

void FramelessProcessDialog::resizeEvent(QResizeEvent *event)
{
    d->layout();
    QDialog::resizeEvent(event);
}

void FramelessProcessDialog::closeEvent(QCloseEvent *event)
{
    const QPointer<FramelessProcessDialog> guard(this);
    Q_EMIT canceled();
    if (guard) {
        QDialog::closeEvent(event);
    }
}

void FramelessProcessDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::StyleChange) {
        d->layout();
    } else if (event->type() == QEvent::LanguageChange && d->useDefaultCancelText && d->cancel) {
        d->cancel->setText(tr("Cancel"));
        d->ensureSizeIsAtLeastSizeHint();
        d->layout();
    }
    QDialog::changeEvent(event);
}

void FramelessProcessDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    d->ensureSizeIsAtLeastSizeHint();
    d->forceTimer->stop();
}

void FramelessProcessDialog::paintEvent(QPaintEvent *event)
{
    QDialog::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(BorderColor, 1));
    painter.drawRect(0, 0, width(), height());
}

void FramelessProcessDialog::keyPressEvent(QKeyEvent *event)
{
    // A key that is pressed once too often must not end an operation of minutes.
    if (event->key() == Qt::Key_Escape) {
        event->ignore();
        return;
    }
    QDialog::keyPressEvent(event);
}

} // namespace Widgets
} // namespace LM
