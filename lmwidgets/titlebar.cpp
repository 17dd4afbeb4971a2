#include <lmwidgets/titlebar.h>

#include "themepictures_p.h"
#include "titlebar_p.h"
#include "toolbuttonrelease_p.h"

#include <lmwidgets/talvostylemanager.h>

#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPointer>
#include <QToolButton>
#include <QVariant>

namespace LM {
namespace Widgets {

namespace {

constexpr int TitleBarHeight = 48;
constexpr int ButtonCount = 5;
constexpr QSize ButtonIconSize(16, 16);
constexpr QSize ButtonSize(20, 20);
constexpr int LogoButtonWidth = 42;
constexpr int ExtraButtonSpacing = 2;

// Owners that fill the placeholder lay out against exactly these two stretch factors.
constexpr int PlaceholderStretch = 65;
constexpr int LogoStretch = 64;

const char WindowButtonStyle[] =
    "QToolButton{background-color:transparent;border: 0px solid #585858;border-radius: 0px;}\n"
    "QToolButton:hover{background-color:#333333;}\n"
    "QToolButton:pressed{background-color:#333333;padding:0px 0px 0px 0px;}";

/** A tool button whose click may destroy it: the click of a title button closes windows. */
class TitleButton : public QToolButton
{
public:
    using QToolButton::QToolButton;

protected:
    void mouseReleaseEvent(QMouseEvent *event) override
    {
        releaseToolButton(
            this, event, [=] { QAbstractButton::mouseReleaseEvent(event); },
            [=] { QToolButton::mouseReleaseEvent(event); });
    }
};

QString themeImage(const char *name)
{
    return TalvoStyleManager::instance()->currentThemePath() + QLatin1String("qssimage/") +
           QLatin1String(name) + QLatin1String(".png");
}

} // namespace

TitleBarPrivate::TitleBarPrivate(TitleBar *titleBar)
{
    titleLabel = new QLabel(titleBar);
    // A window's title is text: the name of a file must not turn into markup.
    titleLabel->setTextFormat(Qt::PlainText);
    titleLabel->setProperty("isTitleBarTitle", true);
    createButtons(titleBar);
    styleButtons();
    topLayout = new QHBoxLayout;
    topLayout->setContentsMargins(0, 0, 0, 0);
    topLayout->setSpacing(ExtraButtonSpacing);
}

void TitleBarPrivate::createButtons(TitleBar *titleBar)
{
    for (int type = 0; type < ButtonCount; ++type) {
        auto *button = new TitleButton(titleBar);
        button->setIconSize(ButtonIconSize);
        button->setAutoRaise(true);
        button->setAutoFillBackground(true);
        button->setFocusPolicy(Qt::NoFocus);
        button->setCheckable(false);
        button->setFixedSize(ButtonSize);
        buttons.append(button);
        buttonEnabled.append(true);
    }
}

void TitleBarPrivate::styleButtons()
{
    buttons[TitleBar::MinButton]->setProperty("isTitleBarMinButton", true);
    buttons[TitleBar::MaxButton]->setProperty("isTitleBarMaxButton", true);
    buttons[TitleBar::RestoreButton]->setProperty("isTitleBarRestoreButton", true);
    buttons[TitleBar::CloseButton]->setProperty("isTitleBarCloseButton", true);

    QIcon closeIcon = keptIcon(themeImage("smallwindowcloseicon"));
    // The two parts are joined without a separator, and hosts' installations are made for exactly
    // that file name. Where there is no such file the theme's image serves for all modes.
    const QPixmap hostPixmap = keptPixmap(QCoreApplication::applicationDirPath() +
                                          QLatin1String("qssimage/smallwindowcloseicon.png"));
    closeIcon.addPixmap(hostPixmap, QIcon::Active, QIcon::Off);
    closeIcon.addPixmap(hostPixmap, QIcon::Disabled, QIcon::Off);
    buttons[TitleBar::CloseButton]->setIcon(closeIcon);

    const QString style = QLatin1String(WindowButtonStyle);
    buttons[TitleBar::CloseButton]->setStyleSheet(style);
    buttons[TitleBar::MinButton]->setStyleSheet(style);
    buttons[TitleBar::MaxButton]->setStyleSheet(style);
    buttons[TitleBar::RestoreButton]->setStyleSheet(style);

    buttons[TitleBar::MaxButton]->setIcon(keptIcon(themeImage("systembuttonmaximize")));
    buttons[TitleBar::RestoreButton]->setIcon(keptIcon(themeImage("smallwindowmaxicon")));

    buttons[TitleBar::LogoButton]->setProperty("isTitleBarLogoButton", true);
    buttons[TitleBar::LogoButton]->setEnabled(true);
    buttons[TitleBar::LogoButton]->setFixedWidth(LogoButtonWidth);
}

void TitleBarPrivate::layOut(TitleBar *titleBar)
{
    mainLayout = new QHBoxLayout;
    topLeftWidget = new QWidget(titleBar);
    topLeftWidget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    topLeftWidget->hide();

    mainLayout->addWidget(topLeftWidget, PlaceholderStretch);
    mainLayout->addWidget(buttons[TitleBar::LogoButton], LogoStretch);
    mainLayout->addWidget(titleLabel, 0);
    titleLabel->setObjectName(QStringLiteral("zrqfctitleLabel"));
    mainLayout->addLayout(topLayout);
    mainLayout->addWidget(buttons[TitleBar::MinButton], 0, Qt::AlignBottom);
    mainLayout->addWidget(buttons[TitleBar::MaxButton], 0, Qt::AlignBottom);
    mainLayout->addWidget(buttons[TitleBar::RestoreButton], 0, Qt::AlignBottom);
    mainLayout->addWidget(buttons[TitleBar::CloseButton], 0, Qt::AlignBottom);
    mainLayout->setContentsMargins(0, 11, 24, 11);
    mainLayout->setSpacing(0);
    titleBar->setLayout(mainLayout);
    titleBar->installEventFilter(this);
    mirrorMargins(titleBar);
}

/** Qt mirrors the order of a layout for languages that run from right to left, not its margins. */
void TitleBarPrivate::mirrorMargins(const TitleBar *titleBar)
{
    if (titleBar->isRightToLeft() != isMirrored) {
        isMirrored = !isMirrored;
        const QMargins margins = mainLayout->contentsMargins();
        mainLayout->setContentsMargins(margins.right(), margins.top(), margins.left(),
                                       margins.bottom());
    }
}

bool TitleBarPrivate::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange) {
        mirrorMargins(static_cast<TitleBar *>(watched));
    }
    return false;
}

bool TitleBarPrivate::isButton(int type) const
{
    return static_cast<unsigned int>(type) < static_cast<unsigned int>(buttons.size());
}

void TitleBarPrivate::showStateButtons(bool showMaximize, bool showRestore)
{
    if (buttonEnabled[TitleBar::MaxButton]) {
        buttons[TitleBar::MaxButton]->setVisible(showMaximize);
    }
    if (buttonEnabled[TitleBar::RestoreButton]) {
        buttons[TitleBar::RestoreButton]->setVisible(showRestore);
    }
}

TitleBar::TitleBar(QWidget *parent) : QFrame(parent), d(new TitleBarPrivate(this))
{
    setFixedHeight(TitleBarHeight);
    setProperty("isTitleBar", true);
    setProperty("isForeground", true);
    d->layOut(this);

    connect(d->buttons[CloseButton], &QToolButton::clicked, this, &TitleBar::closed);
    connect(d->buttons[MinButton], &QToolButton::clicked, this, &TitleBar::minimuned);
    connect(d->buttons[MaxButton], &QToolButton::clicked, this, &TitleBar::switchMaxMin);
    connect(d->buttons[RestoreButton], &QToolButton::clicked, this, &TitleBar::switchMaxMin);
}

TitleBar::~TitleBar()
{
    delete d;
}

void TitleBar::setTitle(const QString &title)
{
    d->titleLabel->setText(title);
    d->titleLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

QString TitleBar::title()
{
    return d->titleLabel->text();
}

void TitleBar::setTitleAlignment(Qt::Alignment alignment)
{
    d->titleLabel->setAlignment(alignment);
}

void TitleBar::setTitleVisible(bool visible)
{
    d->titleLabel->setVisible(visible);
}

bool TitleBar::isTitleVisible()
{
    return d->titleLabel->isVisible();
}

QLabel *TitleBar::titleLabel()
{
    return d->titleLabel;
}

QToolButton *TitleBar::titleButton(int type)
{
    return d->isButton(type) ? d->buttons[type] : nullptr;
}

QToolButton *TitleBar::getButtonByType(int type)
{
    return d->buttons[type];
}

void TitleBar::setTitleButtonVisible(int type, bool visible)
{
    if (d->isButton(type)) {
        d->buttons[type]->setVisible(visible);
        d->buttonEnabled[type] = visible;
    }
}

bool TitleBar::isTitleButtonVisible(int type)
{
    return d->isButton(type) && d->buttons[type]->isVisible();
}

void TitleBar::setTitleButtonIcon(int type, const QIcon &icon)
{
    if (d->isButton(type)) {
        d->buttons[type]->setIcon(icon);
    }
}

QIcon TitleBar::titleButtonIcon(int type)
{
    return d->isButton(type) ? d->buttons[type]->icon() : QIcon();
}

void TitleBar::setTitleButtonToolTip(int type, const QString &toolTip)
{
    if (d->isButton(type)) {
        d->buttons[type]->setToolTip(toolTip);
    }
}

QString TitleBar::titleButtonToolTip(int type)
{
    return d->isButton(type) ? d->buttons[type]->toolTip() : QString();
}

void TitleBar::setMaximized(bool maximized)
{
    d->maximized = maximized;
    d->showStateButtons(!maximized, maximized);
}

QToolButton *TitleBar::insertExtendTitleButton(int index, QAction *action, QSize buttonSize,
                                               QSize iconSize)
{
    if (!action) {
        return nullptr;
    }
    auto *button = new TitleButton(this);
    button->setIcon(action->icon());
    button->setIconSize(iconSize);
    button->setFixedSize(buttonSize);
    button->setToolTip(action->toolTip());
    button->setDefaultAction(action);
    d->topLayout->insertWidget(qMin(index, d->topLayout->count()), button);
    return button;
}

QToolButton *TitleBar::appendExtendTitleButton(QAction *action, QSize buttonSize, QSize iconSize)
{
    return insertExtendTitleButton(d->topLayout->count(), action, buttonSize, iconSize);
}

QHBoxLayout *TitleBar::topLayout()
{
    return d->topLayout;
}

QHBoxLayout *TitleBar::titleBarMainLayout()
{
    return d->mainLayout;
}

QWidget *TitleBar::topLeftWidget()
{
    return d->topLeftWidget;
}

void TitleBar::switchMaxMin()
{
    const QPointer<TitleBar> guard(this);
    const bool wasMaximized = d->maximized;
    d->showStateButtons(wasMaximized, !wasMaximized);
    if (wasMaximized) {
        Q_EMIT normaled();
    } else {
        Q_EMIT maximumed();
    }
    if (guard) {
        d->maximized = !wasMaximized;
    }
}

} // namespace Widgets
} // namespace LM
