#include <lmwidgets/vantoroframelessdialog.h>

#include "buttontaborder_p.h"
#include "dropshadow_p.h"
#include "owntext_p.h"
#include "vantoroframelessdialog_p.h"

#include <lmwidgets/framelesshelper.h>
#include <lmwidgets/titlebar.h>

#include <QCoreApplication>
#include <QEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVariant>

namespace LM {
namespace Widgets {

namespace {

constexpr int SideMargin = 24;
constexpr int TitleBarHeight = 48;
constexpr int BottomHeight = 64;
constexpr int BottomSpacing = 16;
constexpr int ButtonMinimumWidth = 85;

constexpr Qt::WindowFlags DialogFlags = Qt::Dialog | Qt::FramelessWindowHint |
                                        Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint;

const char ContentFrameStyle[] = "QFrame#m_pContentHoderFrame { border: 1px solid #585858; }";
const char ContentStyle[] = "QWidget{background-color:#363636;}";
const char TitleLabelStyle[] = "background-color:transparent;";
const char TransparentWidgetProperty[] = "transparentbackgroundwidget";

} // namespace

VantoroFramelessDialogPrivate::VantoroFramelessDialogPrivate(VantoroFramelessDialog *dialog)
    : owner(dialog), keyboardActivation(dialog)
{
    dialog->installEventFilter(this);
}

void VantoroFramelessDialogPrivate::createWidgets(QFrame *contentFrame)
{
    outerLayout = new QVBoxLayout(contentFrame);
    outerLayout->setContentsMargins(0, 0, 0, 0);
    outerLayout->setSpacing(0);
    mainLayout = new QVBoxLayout;
    mainLayout->setContentsMargins(SideMargin, 0, SideMargin, 0);
    mainLayout->setSpacing(0);
    createTitleBar(contentFrame);
    createCenter();
    createBottomRow(contentFrame);
    createHelper();
    setButtonLooks();
    outerLayout->addLayout(titleLayout);
    outerLayout->addLayout(mainLayout);
}

void VantoroFramelessDialogPrivate::createTitleBar(QFrame *contentFrame)
{
    titleBar = new TitleBar(contentFrame);
    titleBar->setProperty("isFramelessDialogTitleBar", true);
    titleBar->setTitleAlignment(Qt::AlignLeft);
    titleLayout = new QHBoxLayout;
    titleLayout->setContentsMargins(0, 0, 0, 0);
    titleLayout->setSpacing(0);
    titleLayout->addWidget(titleBar);
    titleBar->setTitleButtonVisible(TitleBar::CloseButton, true);
    titleBar->setFixedHeight(TitleBarHeight);
    titleBar->setProperty(TransparentWidgetProperty, true);
    titleBar->titleButton(TitleBar::CloseButton)->setProperty("transparentbackgroundbutton", true);
    titleBar->titleLabel()->setStyleSheet(QLatin1String(TitleLabelStyle));
    titleBar->titleLabel()->setProperty("vantorotitlecontent", true);
    titleBar->topLeftWidget()->setProperty(TransparentWidgetProperty, true);
    for (const int button : {TitleBar::MaxButton, TitleBar::LogoButton, TitleBar::RestoreButton,
                             TitleBar::MinButton}) {
        titleBar->setTitleButtonVisible(button, false);
    }
    titleBar->show();
}

void VantoroFramelessDialogPrivate::createCenter()
{
    centerLayout = new QHBoxLayout;
    centerLayout->setContentsMargins(0, 0, 0, 0);
    centerLayout->setSpacing(0);
    contentHolder = new QFrame;
    contentHolder->setProperty("centercontentgrayframe", true);
    centerLayout->addWidget(contentHolder);
    mainLayout->addLayout(centerLayout);
}

void VantoroFramelessDialogPrivate::createBottomRow(QFrame *contentFrame)
{
    // Below the dialog from the start: a button tells only the dialog that it has at that moment
    // that it is the default one.
    bottomWidget = new QWidget(contentFrame);
    bottomWidget->setFixedHeight(BottomHeight);
    bottomWidget->setProperty(TransparentWidgetProperty, true);
    bottomLayout = new QHBoxLayout(bottomWidget);
    bottomLayout->setContentsMargins(0, BottomSpacing, 0, BottomSpacing);
    bottomLayout->setSpacing(BottomSpacing);
    bottomLayout->addStretch();

    okButton = new QPushButton(bottomWidget);
    okButton->setDefault(true);
    applyButton = new QPushButton(bottomWidget);
    setOwnCaption(applyButton.data(), [] { return tr("Apply"); });
    cancelButton = new QPushButton(bottomWidget);
    bottomLayout->addWidget(cancelButton);
    bottomLayout->addWidget(applyButton);
    bottomLayout->addWidget(okButton);
    mainLayout->addWidget(bottomWidget);
    applyButton->hide();
}

void VantoroFramelessDialogPrivate::createHelper()
{
    helper = new FramelessHelper(owner);
    helper->activateOn(owner);
    helper->setTitleHeight(static_cast<unsigned int>(titleBar->height()));
    helper->setWidgetResizable(false);
    helper->setRubberBandOnResize(false);
}

void VantoroFramelessDialogPrivate::setButtonLooks()
{
    okButton->setMinimumWidth(ButtonMinimumWidth);
    cancelButton->setMinimumWidth(ButtonMinimumWidth);
    okButton->setProperty("vantorookbutton", true);
    // Apply looks like Cancel: style sheets of hosts select both by the one property.
    cancelButton->setProperty("vantorcancelbbutton", true);
    applyButton->setProperty("vantorcancelbbutton", true);
}

bool VantoroFramelessDialogPrivate::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == owner && event->type() == QEvent::Show && !event->spontaneous()) {
        owner->removeEventFilter(this);
        putButtonsLastInTabOrder(owner, bottomWidget, {okButton, applyButton, cancelButton},
                                 {cancelButton, applyButton, okButton});
    }
    return false;
}

VantoroFramelessDialog::VantoroFramelessDialog(QWidget *parent, Qt::WindowFlags flags)
    : TalvoDialogBase(parent, flags | Qt::BypassWindowManagerHint),
      d(new VantoroFramelessDialogPrivate(this)),
      m_contentFrame(new QFrame)
{
    setWindowFlags(DialogFlags);

    auto *layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_contentFrame->setObjectName(QStringLiteral("m_pContentHoderFrame"));
    m_contentFrame->setProperty("framehoderbackground", true);
    m_contentFrame->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_contentFrame->setStyleSheet(QLatin1String(ContentFrameStyle));
    layout->addWidget(m_contentFrame);
    QWidget::setLayout(layout);

    installDialogShadow(this);
    d->createWidgets(m_contentFrame);
    connect(d->titleBar, &TitleBar::closed, this, &VantoroFramelessDialog::slotUIButtonCancel);
    connect(d->okButton, &QPushButton::clicked, this, &VantoroFramelessDialog::slotUIButtonOk);
    connect(d->cancelButton, &QPushButton::clicked, this,
            &VantoroFramelessDialog::slotUIButtonCancel);
    connect(d->applyButton, &QPushButton::clicked, this,
            &VantoroFramelessDialog::slotUIButtonApply);
    setOwnCaption(d->okButton.data(),
                  [] { return QCoreApplication::translate("vantorolframelessdialog", "OK"); });
    setOwnCaption(d->cancelButton.data(),
                  [] { return QCoreApplication::translate("vantorolframelessdialog", "Cancel"); });
}

VantoroFramelessDialog::~VantoroFramelessDialog()
{
    delete d;
}

void VantoroFramelessDialog::initStyleSheet() {}

TitleBar *VantoroFramelessDialog::getTitleBar()
{
    return d->titleBar;
}

FramelessHelper *VantoroFramelessDialog::getFramelessHelper()
{
    return d->helper;
}

QPushButton *VantoroFramelessDialog::getOKButton()
{
    return d->okButton;
}

QPushButton *VantoroFramelessDialog::getCancelButton()
{
    return d->cancelButton;
}

QPushButton *VantoroFramelessDialog::getApplyButton()
{
    return d->applyButton;
}

QToolButton *VantoroFramelessDialog::getWindowTitleCloseButton()
{
    return d->titleBar ? d->titleBar->titleButton(TitleBar::CloseButton) : nullptr;
}

QToolButton *VantoroFramelessDialog::getWindowTitleMaxButton()
{
    if (!d->titleBar) {
        return nullptr;
    }
    d->titleBar->setTitleButtonVisible(TitleBar::MaxButton, true);
    return d->titleBar->titleButton(TitleBar::MaxButton);
}

QWidget *VantoroFramelessDialog::getContentHolder()
{
    return d->contentHolder;
}

QWidget *VantoroFramelessDialog::bottomWidget()
{
    return d->bottomWidget;
}

QFrame *VantoroFramelessDialog::getCenterMainFrame()
{
    return m_contentFrame;
}

QLayout *VantoroFramelessDialog::mainLayout()
{
    return d->mainLayout;
}

QHBoxLayout *VantoroFramelessDialog::bottomLayout()
{
    return d->bottomLayout;
}

QHBoxLayout *VantoroFramelessDialog::getCenterHoderLayout()
{
    return d->centerLayout;
}

QLayout *VantoroFramelessDialog::getContentHolderLayout()
{
    return layout();
}

QLayout *VantoroFramelessDialog::getTilteBarLayout()
{
    return d->titleLayout;
}

void VantoroFramelessDialog::setLayout(QLayout *layout)
{
    if (!layout || !d->contentHolder || layout == QWidget::layout()) {
        return;
    }
    // A layout that was constructed with the dialog as its parent is meant for it, yet stands
    // nowhere: the frame's own layout is in its place. All others with a parent are in use, and
    // QWidget would take one away from another widget, even the frame's own.
    if (layout->parent() == this) {
        layout->setParent(nullptr);
    } else if (layout->parent() && layout->parent() != d->contentHolder) {
        return;
    }
    d->contentHolder->setLayout(layout);
    d->contentHolder->setObjectName(QStringLiteral("m_pCentreContentWidget"));
    d->contentHolder->setStyleSheet(QLatin1String(ContentStyle));
}

QLayout *VantoroFramelessDialog::layout() const
{
    return d->contentHolder ? d->contentHolder->layout() : nullptr;
}

void VantoroFramelessDialog::setWindowTitle(const QString &title)
{
    if (d->titleBar) {
        // The window itself has no title, so what reads the screen to somebody is told here.
        if (accessibleName() == d->titleBar->title()) {
            setAccessibleName(title);
        }
        d->titleBar->setTitle(title);
    }
}

void VantoroFramelessDialog::slotUIButtonOk()
{
    QDialog::accept();
}

void VantoroFramelessDialog::slotUIButtonCancel()
{
    QDialog::reject();
}

void VantoroFramelessDialog::slotUIButtonApply() {}

void VantoroFramelessDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape) {
        TalvoDialogBase::keyPressEvent(event);
    }
}

} // namespace Widgets
} // namespace LM
