#include <lmwidgets/vantoroframelessdialog.h>

#include "buttontaborder_p.h"
#include "dropshadow_p.h"
#include "vantoroframelessdialog_p.h"

#include <lmwidgets/framelesshelper.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QToolButton>
#include <QVariant>

namespace LM {
namespace Widgets {

namespace {

constexpr int TitleHeight = 48;
constexpr int BottomHeight = 64;
constexpr int SideMargin = 24;
constexpr int ButtonMargin = 16;
constexpr int ButtonSpacing = 16;
constexpr int ButtonMinimumWidth = 85;

constexpr Qt::WindowFlags FrameFlags = Qt::Dialog | Qt::FramelessWindowHint |
                                       Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint;

const char FrameStyle[] = "QFrame#m_pContentHoderFrame { border: 1px solid #585858; }";
const char ContentStyle[] = "QWidget{background-color:#363636;}";
const char TitleLabelStyle[] = "background-color:transparent;";

const char TransparentWidgetProperty[] = "transparentbackgroundwidget";

/** A layout without margins and spacing. */
template <typename Layout>
Layout *bareLayout()
{
    auto *layout = new Layout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

} // namespace

VantoroFramelessDialogPrivate::VantoroFramelessDialogPrivate(VantoroFramelessDialog *dialog)
    : q(dialog), keyboardActivation(dialog)
{
    dialog->installEventFilter(this);
}

bool VantoroFramelessDialogPrivate::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == q && event->type() == QEvent::Show && !tabOrderSettled) {
        tabOrderSettled = true;
        putButtonsLastInTabOrder(q, bottomWidget, {okButton, applyButton, cancelButton},
                                 {cancelButton, applyButton, okButton});
    }
    return QObject::eventFilter(watched, event);
}

void VantoroFramelessDialogPrivate::createParts(QFrame *frame)
{
    contentFrame = frame;
    outerLayout = bareLayout<QVBoxLayout>();
    frame->setLayout(outerLayout);
    mainLayout = bareLayout<QVBoxLayout>();
    mainLayout->setContentsMargins(SideMargin, 0, SideMargin, 0);

    createTitleBar();
    createCentre();
    createBottomRow();
    createHelper();

    okButton->setMinimumWidth(ButtonMinimumWidth);
    cancelButton->setMinimumWidth(ButtonMinimumWidth);
    okButton->setProperty("vantorookbutton", true);
    // Apply looks like Cancel: style sheets of hosts select both by the one property.
    cancelButton->setProperty("vantorcancelbbutton", true);
    applyButton->setProperty("vantorcancelbbutton", true);

    outerLayout->addLayout(titleLayout);
    outerLayout->addLayout(mainLayout);
}

void VantoroFramelessDialogPrivate::createTitleBar()
{
    titleBar = new TitleBar(q);
    titleBar->setProperty("isFramelessDialogTitleBar", true);
    titleBar->setTitleAlignment(Qt::AlignLeft);
    titleLayout = bareLayout<QHBoxLayout>();
    titleLayout->addWidget(titleBar);

    titleBar->setTitleButtonVisible(TitleBar::CloseButton, true);
    titleBar->setFixedHeight(TitleHeight);
    titleBar->setProperty(TransparentWidgetProperty, true);
    titleBar->titleButton(TitleBar::CloseButton)->setProperty("transparentbackgroundbutton", true);
    titleBar->titleLabel()->setStyleSheet(QLatin1String(TitleLabelStyle));
    titleBar->titleLabel()->setProperty("vantorotitlecontent", true);
    titleBar->topLeftWidget()->setProperty(TransparentWidgetProperty, true);
    for (const int type : {TitleBar::MaxButton, TitleBar::LogoButton, TitleBar::RestoreButton,
                           TitleBar::MinButton}) {
        titleBar->setTitleButtonVisible(type, false);
    }
    titleBar->show();
}

void VantoroFramelessDialogPrivate::createCentre()
{
    contentHolder = new QFrame;
    contentHolder->setProperty("centercontentgrayframe", true);
    centreLayout = bareLayout<QHBoxLayout>();
    centreLayout->addWidget(contentHolder);
    mainLayout->addLayout(centreLayout);
}

void VantoroFramelessDialogPrivate::createBottomRow()
{
    bottomWidget = new QWidget;
    bottomWidget->setFixedHeight(BottomHeight);
    bottomWidget->setProperty(TransparentWidgetProperty, true);
    bottomLayout = new QHBoxLayout(bottomWidget);
    bottomLayout->setContentsMargins(0, ButtonMargin, 0, ButtonMargin);
    bottomLayout->setSpacing(ButtonSpacing);
    bottomLayout->addStretch();

    okButton = new QPushButton(bottomWidget);
    okButton->setDefault(true);
    applyButton = new QPushButton(tr("Apply"), bottomWidget);
    cancelButton = new QPushButton(bottomWidget);
    bottomLayout->addWidget(cancelButton);
    bottomLayout->addWidget(applyButton);
    bottomLayout->addWidget(okButton);
    mainLayout->addWidget(bottomWidget);
    applyButton->hide();
}

void VantoroFramelessDialogPrivate::createHelper()
{
    helper = new FramelessHelper(q);
    helper->activateOn(q);
    helper->setTitleHeight(static_cast<unsigned int>(titleBar->height()));
    helper->setWidgetResizable(false);
    helper->setRubberBandOnResize(false);
}

VantoroFramelessDialog::VantoroFramelessDialog(QWidget *parent, Qt::WindowFlags flags)
    : TalvoDialogBase(parent, flags | Qt::BypassWindowManagerHint),
      d(new VantoroFramelessDialogPrivate(this))
{
    setWindowFlags(FrameFlags);
    createFrame();
    connectParts();
    d->okButton->setText(QCoreApplication::translate("vantorolframelessdialog", "OK"));
    d->cancelButton->setText(QCoreApplication::translate("vantorolframelessdialog", "Cancel"));
}

VantoroFramelessDialog::~VantoroFramelessDialog()
{
    delete d;
}

void VantoroFramelessDialog::createFrame()
{
    auto *windowLayout = bareLayout<QVBoxLayout>();
    auto *frame = new QFrame;
    frame->setObjectName(QStringLiteral("m_pContentHoderFrame"));
    frame->setProperty("framehoderbackground", true);
    frame->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    frame->setStyleSheet(QLatin1String(FrameStyle));
    windowLayout->addWidget(frame);
    QWidget::setLayout(windowLayout);

    installDialogShadow(this);
    d->createParts(frame);
}

void VantoroFramelessDialog::connectParts()
{
    // Through the dialog each time, so that the overrides of a subclass run.
    connect(d->titleBar, &TitleBar::closed, this, [this] { slotUIButtonCancel(); });
    connect(d->okButton, &QPushButton::clicked, this, [this] { slotUIButtonOk(); });
    connect(d->cancelButton, &QPushButton::clicked, this, [this] { slotUIButtonCancel(); });
    connect(d->applyButton, &QPushButton::clicked, this, [this] { slotUIButtonApply(); });
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
    return d->contentFrame;
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
    return d->centreLayout;
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
    if (!layout || !d->contentHolder || d->contentHolder->layout()) {
        return;
    }
    // A layout that was constructed with the dialog as its parent is meant for it, yet stands
    // nowhere: the frame's own layout is in its place. All others with a parent are in use.
    if (layout->parent() == this && layout != QWidget::layout()) {
        layout->setParent(nullptr);
    } else if (layout->parent()) {
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
    if (!d->titleBar) {
        return;
    }
    // The window itself has no title, so what reads the screen to somebody is told here.
    if (accessibleName() == d->titleBar->title()) {
        setAccessibleName(title);
    }
    d->titleBar->setTitle(title);
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
    if (event->key() == Qt::Key_Escape) {
        return;
    }
    QDialog::keyPressEvent(event);
}

} // namespace Widgets
} // namespace LM
