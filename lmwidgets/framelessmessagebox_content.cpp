/** @file
 * What a message box shows: texts, icon, check box and details, their layout and the size of the
 * box.
 */

#include "detailbutton_p.h"
#include "dropshadow_p.h"
#include "framelessmessagebox_p.h"
#include "themepictures_p.h"

#include <lmwidgets/framelessmessagebox.h>
#include <lmwidgets/titlebar.h>

#include <QCoreApplication>
#include <QCursor>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QRegion>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>
#include <QWindow>

namespace LM {
namespace Widgets {

namespace {

constexpr int BoxWidth = 444;
// What the box is higher than its label, and how much more with a check box.
constexpr int ChromeHeight = 110;
constexpr int CheckBoxExtraHeight = 15;
constexpr int LabelMinimumHeight = 60;
constexpr int SpacerWidth = 25;
constexpr int ButtonSpacing = 16;
constexpr int DetailsGap = 8;
constexpr int IconExtent = 16;

const char FirstLabelStyle[] = "QLabel{background-color:transparent;font-size:14px;}";
const char LabelStyle[] = "font-size:14px;";
// The blanks inside "background - color" make Qt skip that one declaration; hosts compare the text.
const char SpacerStyle[] = "QLabel{background:#2B2B2B;background - color:transparent;}";
const char ButtonBoxStyle[] = "QDialogButtonBox{button-layout:3;}";
const char CheckBoxStyle[] = "font-size: 13px;padding: 0px 0px 0px 10px;";

/** Setting a style sheet restyles all children and is announced to the widget: only for a change.
 */
void ensureStyleSheet(QWidget *widget, const char *styleSheet)
{
    const QString wanted = QLatin1String(styleSheet);
    if (widget->styleSheet() != wanted) {
        widget->setStyleSheet(wanted);
    }
}

/** The image of @p icon below the application's folder; several icons share one. */
QString imageOf(QMessageBox::Icon icon)
{
    switch (icon) {
    case QMessageBox::Information:
        return QStringLiteral("/theme/qssimage/success.png");
    case QMessageBox::Warning:
    case QMessageBox::Question:
        return QStringLiteral("/theme/qssimage/ask.png");
    case QMessageBox::Critical:
        return QStringLiteral("/theme/qssimage/warning.png");
    case QMessageBox::NoIcon:
        break;
    }
    return QString();
}

QRect availableGeometryAtCursor()
{
    const QScreen *screen = QGuiApplication::screenAt(QCursor::pos());
    if (!screen) {
        screen = QGuiApplication::primaryScreen();
    }
    return screen ? screen->availableGeometry() : QRect(0, 0, QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

} // namespace

MessageLabelItem::MessageLabelItem(FramelessMessageBoxPrivate *box)
    : QWidgetItem(box->label), m_box(box)
{
}

QSize MessageLabelItem::sizeHint() const
{
    const QSize size = QWidgetItem::sizeHint();
    return QSize(size.width(), qMax(0, size.height() - overlap()));
}

QSize MessageLabelItem::minimumSize() const
{
    const QSize size = QWidgetItem::minimumSize();
    return QSize(size.width(), qMax(0, size.height() - overlap()));
}

int MessageLabelItem::heightForWidth(int width) const
{
    return qMax(0, QWidgetItem::heightForWidth(width) - overlap());
}

void MessageLabelItem::setGeometry(const QRect &rect)
{
    QWidgetItem::setGeometry(rect.adjusted(0, 0, 0, overlap()));
    // Nothing is to be seen of the label behind the button row. With a mask the repaint of a button
    // leaves the label alone.
    const QRegion seen =
        overlap() > 0 ? QRegion(0, 0, widget()->width(), rect.height()) : QRegion();
    if (widget()->mask() != seen) {
        widget()->setMask(seen);
    }
}

int MessageLabelItem::overlap() const
{
    return m_box ? m_box->labelOverlap : 0;
}

void FramelessMessageBoxPrivate::init(const QString &title, const QString &text)
{
    q->setOKButtonVisible(false);
    q->setCancelButtonVisible(false);
    // A hidden default button would keep Enter from the buttons of the box.
    q->setOKButtonDefault(false);
    q->GetOKButton()->setAutoDefault(false);
    q->bottomWidget()->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);

    createLabels();
    createButtonBox();
    setupLayout();
    if (!title.isEmpty() || !text.isEmpty()) {
        q->setWindowTitle(title);
        q->setWindowTitleAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        q->setText(text);
    }
    q->setModal(true);
    icon = QMessageBox::NoIcon;
}

void FramelessMessageBoxPrivate::createLabels()
{
    label = new QLabel(q);
    label->setObjectName(QStringLiteral("qt_msgbox_label"));
    label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    label->setTextInteractionFlags(styleInteractionFlags());
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setOpenExternalLinks(true);
    label->setStyleSheet(QLatin1String(FirstLabelStyle));
    label->setMinimumHeight(LabelMinimumHeight);

    iconLabel = new QLabel(q);
    iconLabel->setObjectName(QStringLiteral("qt_msgboxex_icon_label"));
    iconLabel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);

    leftSpacer = new QLabel(q);
    rightSpacer = new QLabel(q);
    for (QLabel *spacer : {leftSpacer, rightSpacer}) {
        spacer->setFixedWidth(SpacerWidth);
        spacer->setStyleSheet(QLatin1String(SpacerStyle));
    }
}

void FramelessMessageBoxPrivate::createButtonBox()
{
    buttonBox = new QDialogButtonBox(q);
    buttonBox->setObjectName(QStringLiteral("qt_msgbox_buttonbox"));
    buttonBox->setCenterButtons(
        q->style()->styleHint(QStyle::SH_MessageBox_CenterButtons, nullptr, q) != 0);
    buttonBox->setStyleSheet(QLatin1String(ButtonBoxStyle));
    buttonBox->layout()->setSpacing(ButtonSpacing);
    connect(buttonBox, &QDialogButtonBox::clicked, q, &FramelessMessageBox::slot_buttonClicked);
}

void FramelessMessageBoxPrivate::setupLayout()
{
    delete q->layout();

    auto *content = new QVBoxLayout;
    content->setSpacing(0);
    content->setContentsMargins(0, 0, 0, 0);
    // The icon stands in the title bar.
    iconLabel->hide();

    auto *row = new QHBoxLayout;
    row->setSpacing(0);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(leftSpacer);
    leftSpacer->show();
    auto *column = new QVBoxLayout;
    column->setSpacing(0);
    row->addLayout(column);
    column->setContentsMargins(0, 0, 0, 0);
    column->addItem(new MessageLabelItem(this));
    column->setStretch(0, 1);
    row->addWidget(rightSpacer);
    rightSpacer->show();
    content->addLayout(row);
    ensureStyleSheet(label, LabelStyle);

    setupBottomRow();
    q->setLayout(content);
    ensureStyleSheet(q, MessageBoxStyle);
    installShadow();
    updateDetailsCaption();
    updateSize();
}

void FramelessMessageBoxPrivate::setupBottomRow()
{
    QHBoxLayout *row = q->bottomLayout();
    if (checkbox) {
        ensureStyleSheet(checkbox, CheckBoxStyle);
        row->removeWidget(checkbox);
        row->addWidget(checkbox, 1);
    }
    q->setObjectName(QStringLiteral("globa_pMessageBox"));
    row->removeWidget(buttonBox);
    row->addWidget(buttonBox);
    settleTabOrder();
}

/**
 * Lets Tab reach the check box before the buttons, as they are seen. Behind the button box it would
 * never be reached: the button box hands the focus to its first button, past the check box.
 */
void FramelessMessageBoxPrivate::settleTabOrder()
{
    if (checkbox && q->GetApplyButton()) {
        QWidget::setTabOrder(q->GetApplyButton(), checkbox);
    }
}

void FramelessMessageBoxPrivate::installShadow()
{
    if (shadow && q->graphicsEffect() == shadow) {
        return;
    }
    shadow = installDialogShadow(q);
}

/**
 * The width is fixed, so the height follows from what the label needs in it. The frame around the
 * label takes more than the box is higher than the label: the difference is the part of the label
 * that lies behind the button row, where no text comes.
 */
void FramelessMessageBoxPrivate::updateSize()
{
    if (!q->isVisible()) {
        return;
    }
    updateInformativeLabel();
    label->setWordWrap(true);
    label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);

    const int chrome = ChromeHeight + (checkbox ? CheckBoxExtraHeight : 0);
    labelOverlap = frameHeight() - chrome;
    const int height = labelHeight(availableGeometryAtCursor().height() - chrome);
    label->updateGeometry();
    q->setFixedSize(BoxWidth, height + chrome);
    keepOnScreen();
    q->setMessageboxStyleSheet();

    q->getMainLayout()->activate();
    label->lower();
    placeDetails();
    // They come from this rule itself, which must not run for ever.
    QCoreApplication::removePostedEvents(q, QEvent::LayoutRequest);
}

/**
 * Moves a box that has grown on the screen, by its details or another text, back into its screen. No
 * window manager does that for a window which bypasses it.
 */
void FramelessMessageBoxPrivate::keepOnScreen()
{
    const QWindow *window = q->windowHandle();
    if (!window || !window->isVisible() || !window->screen()) {
        return;
    }
    const QRect available = window->screen()->availableGeometry();
    const QRect frame = q->frameGeometry();
    if (frame.bottom() > available.bottom()) {
        q->move(q->x(), qMax(available.top(), available.bottom() + 1 - frame.height()));
    }
}

void FramelessMessageBoxPrivate::updateInformativeLabel()
{
    if (informativeLabel) {
        QSizePolicy policy(QSizePolicy::Minimum, QSizePolicy::Preferred);
        policy.setHeightForWidth(true);
        informativeLabel->setSizePolicy(policy);
    }
}

/** The height of everything above and below the content. */
int FramelessMessageBoxPrivate::frameHeight() const
{
    const QVBoxLayout *main = q->getMainLayout();
    const QMargins margins = main->contentsMargins();
    int height = margins.top() + margins.bottom();
    for (int i = 0; i < main->count(); ++i) {
        QLayoutItem *item = main->itemAt(i);
        if (item->layout() != q->layout()) {
            height += item->sizeHint().height();
        }
    }
    return height;
}

/** The height that the label needs, up to @p available. */
int FramelessMessageBoxPrivate::labelHeight(int available) const
{
    const QMargins margins = q->getMainLayout()->contentsMargins();
    const int width = BoxWidth - margins.left() - margins.right() - 2 * SpacerWidth;
    label->ensurePolished();
    // A label with a minimum height counts it into what its text needs.
    label->setMinimumHeight(0);
    const int textHeight = label->heightForWidth(width);
    label->setMinimumHeight(LabelMinimumHeight);

    int height = qMax(textHeight + qMax(0, labelOverlap), LabelMinimumHeight);
    if (detailsText && !detailsText->isHidden()) {
        height += DetailsGap + detailsText->sizeHint().height();
    }
    // A box that is higher than the screen would have its buttons out of reach.
    return qMax(LabelMinimumHeight, qMin(height, available));
}

/** The details stand in no layout; they cover the lower part of the label, which is made for them.
 */
void FramelessMessageBoxPrivate::placeDetails()
{
    if (!detailsText) {
        return;
    }
    const int height = detailsText->sizeHint().height();
    const QRect place = label->geometry().adjusted(0, 0, 0, -labelOverlap);
    detailsText->setGeometry(place.x(), place.bottom() + 1 - height, place.width(), height);
    detailsText->raise();
}

QPixmap FramelessMessageBoxPrivate::standardIcon(QMessageBox::Icon which) const
{
    const QString image = imageOf(which);
    if (image.isEmpty()) {
        return QPixmap();
    }
    QWindow *window = q->windowHandle();
    if (!window) {
        if (const QWidget *nativeParent = q->nativeParentWidget()) {
            window = nativeParent->windowHandle();
        }
    }
    return keptIcon(QCoreApplication::applicationDirPath() + image)
        .pixmap(window, QSize(IconExtent, IconExtent));
}

void FramelessMessageBoxPrivate::updateWordWrap()
{
    const Qt::TextFormat format = label->textFormat();
    label->setWordWrap(format == Qt::RichText ||
                       (format == Qt::AutoText && Qt::mightBeRichText(label->text())));
}

void FramelessMessageBoxPrivate::updateDetailsCaption()
{
    if (detailsButton) {
        const bool shown = detailsText && !detailsText->isHidden();
        detailsButton->setText(shown ? hideDetailsCaption() : showDetailsCaption());
    }
}

Qt::TextInteractionFlags FramelessMessageBoxPrivate::styleInteractionFlags() const
{
    return Qt::TextInteractionFlags(
        q->style()->styleHint(QStyle::SH_MessageBox_TextInteractionFlags, nullptr, q));
}

QString FramelessMessageBox::text() const
{
    return d->label->text();
}

void FramelessMessageBox::setText(const QString &text)
{
    d->label->setText(text);
    d->updateWordWrap();
    d->updateSize();
}

QMessageBox::Icon FramelessMessageBox::icon() const
{
    return d->icon;
}

void FramelessMessageBox::setIcon(QMessageBox::Icon icon)
{
    const QPixmap pixmap = d->standardIcon(icon);
    d->iconLabel->setPixmap(pixmap);
    d->setupLayout();
    setWindowIcon(QIcon(pixmap));
    d->icon = icon;
}

QPixmap FramelessMessageBox::iconPixmap() const
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
    return d->iconLabel->pixmap(Qt::ReturnByValue);
#else
    const QPixmap *pixmap = d->iconLabel->pixmap();
    return pixmap ? *pixmap : QPixmap();
#endif
}

void FramelessMessageBox::setIconPixmap(const QPixmap &pixmap)
{
    d->iconLabel->setPixmap(pixmap);
    d->icon = QMessageBox::NoIcon;
    d->setupLayout();
}

Qt::TextFormat FramelessMessageBox::textFormat() const
{
    return d->label->textFormat();
}

void FramelessMessageBox::setTextFormat(Qt::TextFormat format)
{
    d->label->setTextFormat(format);
    d->updateWordWrap();
    d->updateSize();
}

Qt::TextInteractionFlags FramelessMessageBox::textInteractionFlags() const
{
    return d->label->textInteractionFlags();
}

void FramelessMessageBox::setTextInteractionFlags(Qt::TextInteractionFlags flags)
{
    d->label->setTextInteractionFlags(flags);
}

QCheckBox *FramelessMessageBox::checkBox() const
{
    return d->checkbox;
}

void FramelessMessageBox::setCheckBox(QCheckBox *checkBox)
{
    if (checkBox == d->checkbox) {
        return;
    }
    if (QCheckBox *former = d->checkbox) {
        former->hide();
        bottomLayout()->removeWidget(former);
        // In the button row it is a child of the box's own bottom widget.
        if (isAncestorOf(former)) {
            former->setParent(nullptr);
            former->deleteLater();
        }
    }
    d->checkbox = checkBox;
    if (checkBox) {
        QSizePolicy policy = checkBox->sizePolicy();
        policy.setHorizontalPolicy(QSizePolicy::MinimumExpanding);
        checkBox->setSizePolicy(policy);
    }
    d->setupLayout();
}

QString FramelessMessageBox::informativeText() const
{
    return d->informativeLabel ? d->informativeLabel->text() : QString();
}

void FramelessMessageBox::setInformativeText(const QString &text)
{
    if (text.isEmpty()) {
        delete d->informativeLabel;
        d->informativeLabel = nullptr;
    } else {
        if (!d->informativeLabel) {
            auto *informative = new QLabel;
            informative->setObjectName(QStringLiteral("qt_msgbox_informativelabel"));
            informative->setTextInteractionFlags(d->styleInteractionFlags());
            informative->setAlignment(Qt::AlignLeft | Qt::AlignTop);
            informative->setOpenExternalLinks(true);
            informative->setWordWrap(true);
            d->informativeLabel = informative;
        }
        d->informativeLabel->setText(text);
    }
    d->setupLayout();
}

QString FramelessMessageBox::detailedText() const
{
    return d->detailsText ? d->detailsText->text() : QString();
}

void FramelessMessageBox::setDetailedText(const QString &text)
{
    if (text.isEmpty()) {
        // Later, because the click that leads here may come from one of the two.
        if (d->detailsText) {
            d->detailsText->hide();
            d->detailsText->deleteLater();
            d->detailsText.clear();
        }
        if (DetailButton *button = d->detailsButton) {
            d->detailsButton.clear();
            removeButton(button);
            button->setParent(this);
            button->hide();
            button->deleteLater();
        }
    } else {
        if (!d->detailsText) {
            d->detailsText = new QMessageBoxDetailsText(this);
            d->detailsText->hide();
        }
        if (!d->detailsButton) {
            // It alone does not answer the message: the box still gets its OK button.
            const bool autoAddOkButton = d->autoAddOkButton;
            d->detailsButton = new DetailButton(this);
            addButton(d->detailsButton, QMessageBox::ActionRole);
            d->autoAddOkButton = autoAddOkButton;
        }
        d->detailsText->setText(text);
    }
    d->setupLayout();
}

void FramelessMessageBox::setWindowTitle(const QString &title)
{
    FramelessDialog::setWindowTitle(title);
}

} // namespace Widgets
} // namespace LM
