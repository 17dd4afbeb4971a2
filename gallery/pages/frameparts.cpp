#include "frameparts.h"

#include "pageparts.h"
#include "themes.h"

#include <lmwidgets/framelesshelper.h>
#include <lmwidgets/titlebar.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

namespace gallery {

using LM::Widgets::FramelessHelper;
using LM::Widgets::TitleBar;

namespace {

constexpr int FormMargin = 24;
constexpr int FormSpacing = 12;
constexpr int FieldWidth = 220;
constexpr QSize ExtraButtonSize(20, 20);
constexpr QSize ExtraIconSize(16, 16);
constexpr QSize NoLimit(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);

// The topmost 10 px of a window belong to the title area whatever its height is.
constexpr int TitleInset = 10;
constexpr int WindowMargin = 20;
constexpr QSize HelperWindowSize(460, 250);

} // namespace

SampleDialog::SampleDialog(const DialogSetup &setup, QWidget *parent) : FramelessDialog(parent)
{
    createForm();
    createExtraButtons();
    setWindowIcon(glyphIcon(Glyph::Logo));
    apply(setup);
}

void SampleDialog::createForm()
{
    auto *name = new QLineEdit(QStringLiteral("Ground points"));
    name->setMinimumWidth(FieldWidth);
    auto *color = new QComboBox;
    color->addItems(
        {QStringLiteral("By class"), QStringLiteral("By height"), QStringLiteral("By intensity")});
    auto *size = new QSpinBox;
    size->setRange(1, 10);
    size->setValue(3);
    size->setSuffix(QStringLiteral(" px"));
    auto *visible = new QCheckBox(QStringLiteral("Visible in all views"));
    visible->setChecked(true);

    auto *form = new QFormLayout;
    form->setSpacing(FormSpacing);
    form->addRow(QStringLiteral("Name"), name);
    form->addRow(QStringLiteral("Colour"), color);
    form->addRow(QStringLiteral("Point size"), size);
    form->addRow(QString(), visible);
    // Room that the mouse adds goes below the form, and not into the row of buttons.
    auto *content = new QVBoxLayout;
    content->setContentsMargins(FormMargin, FormMargin, FormMargin, FormMargin);
    content->addLayout(form);
    content->addStretch();
    setLayout(content);
    name->setFocus();
}

void SampleDialog::createExtraButtons()
{
    for (const Glyph glyph : {Glyph::Pin, Glyph::Menu}) {
        auto *action = new QAction(glyphIcon(glyph), QString(), this);
        action->setToolTip(glyph == Glyph::Pin ? QStringLiteral("Keep on top")
                                               : QStringLiteral("More"));
        m_extraButtons.append(
            getTitleBar()->appendExtendTitleButton(action, ExtraButtonSize, ExtraIconSize));
    }
}

void SampleDialog::apply(const DialogSetup &setup)
{
    setWindowTitle(setup.title);
    setWindowTitleAlignment(setup.titleAlignment);
    setHorizontalLineHeight(setup.lineHeight);
    setDialogMovable(setup.movable);
    setRubberBandOnMove(setup.rubberBandOnMove);
    setRubberBandOnResize(setup.rubberBandOnResize);
    getTitleBar()->setTitleButtonVisible(TitleBar::LogoButton, setup.logo);
    for (QToolButton *extra : qAsConst(m_extraButtons)) {
        extra->setVisible(setup.extraButtons);
    }
    setMinButtonVisible(setup.minimize);
    setMaxButtonVisible(setup.maximize);
    // Hiding the maximise button ends the resizing, so this comes after it.
    setDialogResizable(setup.resizable);
    setCloseButtonVisible(setup.close);
    setOKButtonVisible(setup.ok);
    setCancelButtonVisible(setup.cancel);
    setApplyButtonVisible(setup.apply);
    applySize(setup);
}

void SampleDialog::applySize(const DialogSetup &setup)
{
    if (!isVisible()) {
        return;
    }
    // The dialog has frozen its size when it was shown; one that shall grow needs its limits back.
    if (setup.resizable || setup.maximize) {
        setMinimumSize(sizeHint());
        setMaximumSize(NoLimit);
    } else {
        setFixedSize(size());
    }
}

void SampleDialog::open(const DialogSetup &setup)
{
    setMaximumSize(NoLimit);
    resize(sizeHint());
    show();
    applySize(setup);
}

void SampleDialog::initStyleSheet()
{
    reloadTitleImages(getTitleBar());
}

HelperWindow::HelperWindow(QWidget *parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint),
      m_helper(new FramelessHelper(this)),
      m_geometry(new QLabel)
{
    m_helper->activateOn(this);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
    layout->addSpacing(TitleInset + int(m_helper->titleHeight()));
    layout->addWidget(m_geometry);
    layout->addWidget(createSwitches());
    layout->addStretch();
    layout->addWidget(row({button(QStringLiteral("Close"), [this] { close(); })}));
    resize(HelperWindowSize);
}

QWidget *HelperWindow::createSwitches()
{
    return grid(2, {check(QStringLiteral("Movable"), true,
                          [this](bool on) { m_helper->setWidgetMovable(on); }),
                    check(QStringLiteral("Resizable"), true,
                          [this](bool on) { m_helper->setWidgetResizable(on); }),
                    check(QStringLiteral("Rubber band on move"), false,
                          [this](bool on) { m_helper->setRubberBandOnMove(on); }),
                    check(QStringLiteral("Rubber band on resize"), false,
                          [this](bool on) { m_helper->setRubberBandOnResize(on); })});
}

void HelperWindow::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    QPainter painter(this);
    const QRect title(0, 0, width(), TitleInset + int(m_helper->titleHeight()));
    painter.fillRect(title, palette().color(QPalette::Button));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(
        title, Qt::AlignCenter,
        QStringLiteral("Drag here; %1 px along the edges resize").arg(m_helper->borderWidth()));
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void HelperWindow::moveEvent(QMoveEvent *event)
{
    QWidget::moveEvent(event);
    showGeometry();
}

void HelperWindow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    showGeometry();
}

void HelperWindow::showGeometry()
{
    m_geometry->setText(
        QStringLiteral("%1 x %2 px at %3, %4").arg(width()).arg(height()).arg(x()).arg(y()));
}

void reloadTitleImages(TitleBar *bar)
{
    // The minimise button has its picture from the style sheet.
    bar->setTitleButtonIcon(TitleBar::MaxButton,
                            QIcon(themeImage(QStringLiteral("systembuttonmaximize"))));
    bar->setTitleButtonIcon(TitleBar::RestoreButton,
                            QIcon(themeImage(QStringLiteral("smallwindowmaxicon"))));
    bar->setTitleButtonIcon(TitleBar::CloseButton,
                            QIcon(themeImage(QStringLiteral("smallwindowcloseicon"))));
}

} // namespace gallery
