#include <lmwidgets/framelessdialog.h>

#include "buttontaborder_p.h"
#include "framelessdialog_p.h"
#include "owntext_p.h"

#include <lmwidgets/framelesshelper.h>
#include <lmwidgets/frameline.h>
#include <lmwidgets/titlebar.h>

#include <QCoreApplication>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QScreen>
#include <QToolButton>
#include <QVariant>
#include <QVBoxLayout>

namespace LM {
namespace Widgets {

namespace {

// Content stands between the two separators.
constexpr int ContentIndex = 2;
constexpr int FrameMargin = 10;

constexpr unsigned int SeparatorWidth = 1;
const char SeparatorProperty[] = "isBackgroundSeparator";

const QColor FillColor(0x45, 0x45, 0x45);
const QColor ShadowBorderColor(112, 112, 112, 255);
const QColor SolidBorderColor(0x38, 0x38, 0x38);

const char TitleBarStyle[] = "color:#F2F2F2;font-size:16px;background-color:#2B2B2B;";
const char MessageBoxLogoStyle[] =
    "background-color: transparent;border:none;padding: 6px 0px 0px 20px;";
// Qt cannot read a sheet that begins with "background - color" and drops all of it, so the title
// keeps the title bar's own look. Hosts compare the text as it is, blanks included.
const char MessageBoxTitleStyle[] =
    "background - color: #1C1C1C; border:none; font-size: 16px;color: #ffffff;"
    "padding: -10px 0px 5px 0px; ";

} // namespace

FramelessDialogPrivate::FramelessDialogPrivate(FramelessDialog *dialog)
    : q(dialog), keyboardActivation(dialog), unmanagedWindowState(dialog), stockDialogsAbove(dialog)
{
}

void FramelessDialogPrivate::createTitleBar()
{
    titleBar = new TitleBar(q);
    titleBar->setProperty("isFramelessDialogTitleBar", true);
    titleBar->setTitleAlignment(Qt::AlignCenter);

    titleLayout = new QHBoxLayout;
    titleLayout->setSpacing(0);
    titleLayout->setContentsMargins(0, 0, 0, 0);
    titleLayout->addWidget(titleBar);
}

void FramelessDialogPrivate::createMainLayout()
{
    mainLayout = new QVBoxLayout;
    mainLayout->setSpacing(0);
    mainLayout->setContentsMargins(FrameMargin, FrameMargin, FrameMargin, FrameMargin);
    mainLayout->addLayout(titleLayout);

    const QString property = QLatin1String(SeparatorProperty);
    const auto crossMargin = static_cast<unsigned int>(lineHeight);
    topSeparator = FrameLine::createHorizontalLine(property, q, SeparatorWidth, crossMargin, 0);
    mainLayout->addWidget(topSeparator);
    bottomSeparator = FrameLine::createHorizontalLine(property, q, SeparatorWidth, crossMargin, 0);
    mainLayout->addWidget(bottomSeparator);
}

void FramelessDialogPrivate::createBottomRow()
{
    bottomWidget = new QWidget(q);
    bottomLayout = new QHBoxLayout(bottomWidget);
    bottomLayout->setSpacing(16);
    bottomLayout->setContentsMargins(16, 16, 24, 16);
    bottomLayout->addStretch();

    okButton = new QPushButton(bottomWidget);
    okButton->setDefault(true);
    okButton->setProperty("vantorookbutton", true);

    cancelButton = new QPushButton(bottomWidget);
    cancelButton->setProperty("vantorcancelbbutton", true);

    // Apply looks like Cancel: style sheets of hosts select both by the one property.
    applyButton = new QPushButton(bottomWidget);
    applyButton->setProperty("vantorcancelbbutton", true);
    applyButton->hide();

    setOwnCaption(okButton.data(),
                  [] { return QCoreApplication::translate("FramelessDialog", "OK"); });
    setOwnCaption(cancelButton.data(),
                  [] { return QCoreApplication::translate("FramelessDialog", "Cancel"); });
    setOwnCaption(applyButton.data(),
                  [] { return QCoreApplication::translate("FramelessDialog", "Apply"); });

    bottomLayout->addWidget(cancelButton);
    bottomLayout->addWidget(applyButton);
    bottomLayout->addWidget(okButton);
}

void FramelessDialogPrivate::putButtonsLastInTabOrder()
{
    if (tabOrderSettled) {
        return;
    }
    tabOrderSettled = true;
    LM::Widgets::putButtonsLastInTabOrder(q, bottomWidget, {okButton, cancelButton, applyButton},
                                          {cancelButton, applyButton, okButton});
}

void FramelessDialogPrivate::createHelper()
{
    helper = new FramelessHelper(q);
    helper->activateOn(q);
    helper->setTitleHeight(static_cast<unsigned int>(titleBar->height()));

    titleBar->setTitleButtonVisible(TitleBar::MinButton, false);
    titleBar->setTitleButtonVisible(TitleBar::MaxButton, false);
    titleBar->setTitleButtonVisible(TitleBar::RestoreButton, false);
    helper->setWidgetResizable(false);
    titleBar->setTitleButtonVisible(TitleBar::LogoButton, false);
}

FramelessDialog::FramelessDialog(QWidget *parent, Qt::WindowFlags flags)
    : FramelessDialog(QString(), parent, flags)
{
}

FramelessDialog::FramelessDialog(const QString &styleSheet, QWidget *parent, Qt::WindowFlags flags)
    : TalvoDialogBase(parent, flags | Qt::BypassWindowManagerHint),
      d(new FramelessDialogPrivate(this))
{
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setProperty("isFramelessDialog", true);
    if (!styleSheet.isEmpty()) {
        setStyleSheet(styleSheet);
    }

    d->createTitleBar();
    if (const QScreen *screen = QGuiApplication::primaryScreen()) {
        setMaximumSize(screen->availableGeometry().size());
    }
    setContentsMargins(0, 0, 0, 0);
    installEventFilter(d->titleBar);
    d->createMainLayout();
    d->createBottomRow();
    connect(d->okButton, &QPushButton::clicked, this, [this] { onOk(); });
    connect(d->cancelButton, &QPushButton::clicked, this, [this] { onCancel(); });
    d->mainLayout->addWidget(d->bottomWidget);
    QWidget::setLayout(d->mainLayout);
    d->createHelper();

    connect(d->titleBar, &TitleBar::closed, this, &QWidget::close);
    connect(d->titleBar, &TitleBar::minimuned, this, &QWidget::showMinimized);
    connect(d->titleBar, &TitleBar::maximumed, this, &FramelessDialog::swithMaxNormal);
    connect(d->titleBar, &TitleBar::normaled, this, &FramelessDialog::swithMaxNormal);
}

FramelessDialog::~FramelessDialog()
{
    delete d;
}

void FramelessDialog::initStyleSheet() {}

void FramelessDialog::updateMoveEvent() {}

void FramelessDialog::onOk()
{
    accept();
}

void FramelessDialog::onCancel()
{
    reject();
}

QWidget *FramelessDialog::getContentHolder()
{
    if (!d->contentHolder) {
        d->contentHolder = new QWidget(this);
        d->contentHolder->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        d->mainLayout->insertWidget(ContentIndex, d->contentHolder);
    }
    return d->contentHolder;
}

void FramelessDialog::SetContentHolder(QWidget *widget)
{
    if (!widget || d->contentHolder) {
        return;
    }
    d->mainLayout->insertWidget(ContentIndex, widget);
}

void FramelessDialog::setLayout(QLayout *layout)
{
    if (!layout || layout == d->mainLayout) {
        return;
    }
    // A layout that was constructed with the dialog as its parent is meant for it, yet stands
    // nowhere: the frame's own layout is in its place. All others with a parent are in use.
    if (layout->parent() == this) {
        layout->setParent(nullptr);
    } else if (layout->parent()) {
        return;
    }
    // Inside another layout a layout has no margins but those that were set on it.
    const QMargins margins = layout->contentsMargins();
    d->contentLayout = layout;
    d->mainLayout->insertLayout(ContentIndex, layout);
    layout->setContentsMargins(margins);
}

QLayout *FramelessDialog::layout() const
{
    if (d->contentLayout) {
        return d->contentLayout;
    }
    return d->contentHolder ? d->contentHolder->layout() : nullptr;
}

QVBoxLayout *FramelessDialog::getMainLayout()
{
    return d->mainLayout;
}

QHBoxLayout *FramelessDialog::bottomLayout()
{
    return d->bottomLayout;
}

QWidget *FramelessDialog::bottomWidget()
{
    return d->bottomWidget;
}

TitleBar *FramelessDialog::getTitleBar()
{
    return d->titleBar;
}

QPushButton *FramelessDialog::GetOKButton()
{
    return d->okButton;
}

QPushButton *FramelessDialog::GetCancelButton()
{
    return d->cancelButton;
}

QPushButton *FramelessDialog::GetApplyButton()
{
    return d->applyButton;
}

void FramelessDialog::setOKButtonVisible(bool visible)
{
    if (d->okButton) {
        d->okButton->setVisible(visible);
    }
}

void FramelessDialog::setCancelButtonVisible(bool visible)
{
    if (d->cancelButton) {
        d->cancelButton->setVisible(visible);
    }
}

void FramelessDialog::setApplyButtonVisible(bool visible)
{
    if (d->applyButton) {
        d->applyButton->setVisible(visible);
    }
}

void FramelessDialog::setOKButtonDefault(bool isDefault)
{
    if (d->okButton) {
        d->okButton->setDefault(isDefault);
    }
}

void FramelessDialog::setCloseButtonVisible(bool visible)
{
    if (d->titleBar) {
        d->titleBar->setTitleButtonVisible(TitleBar::CloseButton, visible);
    }
}

bool FramelessDialog::getCloseButtonVisible() const
{
    return d->titleBar && d->titleBar->isTitleButtonVisible(TitleBar::CloseButton);
}

void FramelessDialog::setMinButtonVisible(bool visible)
{
    if (d->titleBar) {
        d->titleBar->setTitleButtonVisible(TitleBar::MinButton, visible);
    }
}

void FramelessDialog::setMaxButtonVisible(bool visible)
{
    if (d->titleBar) {
        d->titleBar->setTitleButtonVisible(TitleBar::MaxButton, visible);
        d->titleBar->setTitleButtonVisible(TitleBar::RestoreButton, visible);
        if (visible) {
            d->titleBar->setMaximized(isMaximized());
        }
    }
    if (!visible) {
        d->helper->setWidgetResizable(false);
    }
}

void FramelessDialog::hideTitleIcon()
{
    if (d->titleBar) {
        d->titleBar->setTitleButtonVisible(TitleBar::LogoButton, false);
    }
}

void FramelessDialog::setWindowIcon(const QIcon &icon)
{
    if (d->titleBar) {
        d->titleBar->setTitleButtonIcon(TitleBar::LogoButton, icon);
    }
    QWidget::setWindowIcon(icon);
}

QIcon FramelessDialog::windowIcon()
{
    return d->titleBar ? d->titleBar->titleButtonIcon(TitleBar::LogoButton) : QIcon();
}

void FramelessDialog::setWindowTitle(const QString &title)
{
    if (d->titleBar) {
        // The window itself has no title, so what reads the screen to somebody is told here.
        if (accessibleName() == d->titleBar->title()) {
            setAccessibleName(title);
        }
        d->titleBar->setTitle(title);
        d->titleBar->setStyleSheet(QLatin1String(TitleBarStyle));
    }
}

QString FramelessDialog::windowTitle()
{
    return d->titleBar ? d->titleBar->title() : QString();
}

void FramelessDialog::setWindowTitleAlignment(Qt::Alignment alignment)
{
    if (d->titleBar) {
        d->titleBar->setTitleAlignment(alignment);
    }
}

void FramelessDialog::setTitleBarLabelStyleSheet(QString styleSheet)
{
    if (d->titleBar) {
        d->titleBar->titleLabel()->setStyleSheet(styleSheet);
    }
}

void FramelessDialog::setTitleButtonIcon(const int &type, const QIcon &icon)
{
    if (d->titleBar) {
        d->titleBar->setTitleButtonIcon(type, icon);
    }
}

void FramelessDialog::setTtitleBarButtonSize(const int &type, QSize size)
{
    if (d->titleBar && d->titleBar->titleButton(type)) {
        d->titleBar->titleButton(type)->setFixedSize(size);
    }
}

void FramelessDialog::setTtitleBarButtonStyle(const int &type, QString styleSheet)
{
    if (d->titleBar && d->titleBar->titleButton(type)) {
        d->titleBar->titleButton(type)->setStyleSheet(styleSheet);
    }
}

void FramelessDialog::appendExtendTitleButton(QAction *action, QSize buttonSize, QSize iconSize)
{
    if (d->titleBar) {
        d->titleBar->appendExtendTitleButton(action, buttonSize, iconSize);
    }
}

void FramelessDialog::insertExtendTitleButton(int index, QAction *action, QSize buttonSize,
                                              QSize iconSize)
{
    if (d->titleBar) {
        d->titleBar->insertExtendTitleButton(index, action, buttonSize, iconSize);
    }
}

void FramelessDialog::setDialogMovable(bool movable)
{
    d->helper->setWidgetMovable(movable);
}

void FramelessDialog::setDialogtMovable(bool movable)
{
    setDialogMovable(movable);
}

void FramelessDialog::setDialogResizable(bool resizable)
{
    d->helper->setWidgetResizable(resizable);
}

void FramelessDialog::setRubberBandOnMove(bool rubberBand)
{
    d->helper->setRubberBandOnMove(rubberBand);
}

void FramelessDialog::setRubberBandOnResize(bool rubberBand)
{
    d->helper->setRubberBandOnResize(rubberBand);
}

void FramelessDialog::setHorizontalLineHeight(int height)
{
    if (height < 0) {
        return;
    }
    if (d->topSeparator) {
        d->topSeparator->setFixedHeight(height);
    }
    if (d->bottomSeparator) {
        d->bottomSeparator->setFixedHeight(height);
    }
}

void FramelessDialog::setMessageboxStyleSheet()
{
    if (!d->titleBar) {
        return;
    }
    QToolButton *logo = d->titleBar->getButtonByType(TitleBar::LogoButton);
    QLabel *title = d->titleBar->titleLabel();
    // A message box calls this from within its layout. Each setStyleSheet(), also with the same
    // text, asks for another layout; without the comparison that would never end.
    if (logo->styleSheet() != QLatin1String(MessageBoxLogoStyle)) {
        logo->setStyleSheet(QLatin1String(MessageBoxLogoStyle));
    }
    title->setObjectName(QStringLiteral("Messageboxtitlelabel"));
    if (title->styleSheet() != QLatin1String(MessageBoxTitleStyle)) {
        title->setStyleSheet(QLatin1String(MessageBoxTitleStyle));
    }
    d->titleBar->setTitleButtonVisible(TitleBar::LogoButton, true);
}

// A host that learns of its dialog's state change may delete the dialog, so each of these asks the
// title bar, the dialog's child, and not the dialog whether it is still there.

void FramelessDialog::show()
{
    const QPointer<TitleBar> titleBar = d->titleBar;
    QWidget::show();
    if (titleBar) {
        titleBar->setMaximized(isMaximized());
    }
}

void FramelessDialog::showMaximized()
{
    const QPointer<TitleBar> titleBar = d->titleBar;
    QWidget::showMaximized();
    if (titleBar) {
        titleBar->setMaximized(true);
    }
}

void FramelessDialog::showNormal()
{
    const QPointer<TitleBar> titleBar = d->titleBar;
    QWidget::showNormal();
    if (titleBar) {
        titleBar->setMaximized(false);
    }
}

void FramelessDialog::swithMaxNormal()
{
    const QPointer<TitleBar> titleBar = d->titleBar;
    const bool wasMaximized = isMaximized();
    if (wasMaximized) {
        QWidget::showNormal();
    } else {
        QWidget::showMaximized();
    }
    if (titleBar) {
        titleBar->setMaximized(!wasMaximized);
    }
}

void FramelessDialog::drawShadowBorder(QPaintEvent *event)
{
    Q_UNUSED(event)
    const QRect frame(FrameMargin, FrameMargin, width() - 2 * FrameMargin,
                      height() - 2 * FrameMargin);
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addRect(frame);

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.fillPath(path, FillColor);
    painter.setPen(QPen(ShadowBorderColor, 1));
    painter.drawRect(frame);
}

void FramelessDialog::drawSolidBorder(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addRect(1, 1, width() - 2, height() - 2);

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.fillPath(path, FillColor);
    painter.setPen(QPen(SolidBorderColor, 1));
    painter.drawRect(0, 0, width(), height());
}

void FramelessDialog::paintEvent(QPaintEvent *event)
{
    drawShadowBorder(event);
}

void FramelessDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    setFixedSize(size());
    d->putButtonsLastInTabOrder();
}

} // namespace Widgets
} // namespace LM
