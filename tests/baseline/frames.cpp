#include "subject.h"

#include <lmwidgets/framelessdialog.h>
#include <lmwidgets/frameline.h>
#include <lmwidgets/talvodialogbase.h>
#include <lmwidgets/titlebar.h>
#include <lmwidgets/vantoroframelessdialog.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>

namespace baseline {

using LM::Widgets::FramelessDialog;
using LM::Widgets::FrameLine;
using LM::Widgets::TalvoDialogBase;
using LM::Widgets::TitleBar;
using LM::Widgets::VantoroFramelessDialog;

namespace {

constexpr int BarWidth = 360;
constexpr int FormMargin = 20;
constexpr int FormSpacing = 10;
constexpr QSize ButtonSize(20, 20);
constexpr QSize ButtonIconSize(16, 16);
constexpr QSize LinesSize(120, 40);
const QString LongTitle =
    QStringLiteral("Exportieren der Punktwolkenklassifizierungsergebnisse des Projekts");

QFormLayout *form()
{
    auto *color = new QComboBox;
    color->addItems({QStringLiteral("By class"), QStringLiteral("By height")});
    auto *size = new QSpinBox;
    size->setSuffix(QStringLiteral(" px"));
    auto *visible = new QCheckBox(QStringLiteral("Visible in all views"));
    visible->setChecked(true);
    auto *form = new QFormLayout;
    form->setContentsMargins(FormMargin, FormMargin, FormMargin, FormMargin);
    form->setSpacing(FormSpacing);
    form->addRow(QStringLiteral("Name"), new QLineEdit(QStringLiteral("Ground points")));
    form->addRow(QStringLiteral("Colour"), color);
    form->addRow(QStringLiteral("Point size"), size);
    form->addRow(QString(), visible);
    return form;
}

TitleBar *titleBar()
{
    auto *bar = new TitleBar;
    bar->setTitle(QStringLiteral("Layer"));
    bar->setMaximized(false);
    bar->setTitleButtonIcon(TitleBar::LogoButton, QIcon(themeImage(QStringLiteral("layer_view"))));
    bar->setFixedWidth(BarWidth);
    return bar;
}

Arrange hoverTitleButton(int type)
{
    return [type](QWidget *shown) {
        hover(static_cast<TitleBar *>(shown)->titleButton(type));
        return shown;
    };
}

Subject titleBars()
{
    const auto create = [](void (*change)(TitleBar *)) {
        return [change] {
            TitleBar *bar = titleBar();
            change(bar);
            return bar;
        };
    };
    return {QStringLiteral("TitleBar"),
            {{QStringLiteral("normal"), titleBar, nullptr},
             {QStringLiteral("maximised"), create([](TitleBar *bar) { bar->setMaximized(true); }),
              nullptr},
             {QStringLiteral("minimise hovered"), titleBar, hoverTitleButton(TitleBar::MinButton)},
             {QStringLiteral("maximise hovered"), titleBar, hoverTitleButton(TitleBar::MaxButton)},
             {QStringLiteral("close hovered"), titleBar, hoverTitleButton(TitleBar::CloseButton)},
             {QStringLiteral("close pressed"), titleBar,
              [](QWidget *shown) {
                  hoverTitleButton(TitleBar::CloseButton)(shown);
                  static_cast<TitleBar *>(shown)->titleButton(TitleBar::CloseButton)->setDown(true);
                  return shown;
              }},
             {QStringLiteral("disabled"), disabled(titleBar), nullptr},
             {QStringLiteral("close only"), create([](TitleBar *bar) {
                  for (const int type :
                       {TitleBar::LogoButton, TitleBar::MinButton, TitleBar::MaxButton}) {
                      bar->setTitleButtonVisible(type, false);
                  }
              }),
              nullptr},
             {QStringLiteral("centred title"),
              create([](TitleBar *bar) { bar->setTitleAlignment(Qt::AlignCenter); }), nullptr},
             {QStringLiteral("no title"),
              create([](TitleBar *bar) { bar->setTitleVisible(false); }), nullptr},
             {QStringLiteral("long title"), create([](TitleBar *bar) { bar->setTitle(LongTitle); }),
              nullptr},
             {QStringLiteral("extra button"), create([](TitleBar *bar) {
                  auto *action = new QAction(QIcon(themeImage(QStringLiteral("layer_edit"))),
                                             QStringLiteral("Edit"), bar);
                  bar->appendExtendTitleButton(action, ButtonSize, ButtonIconSize);
              }),
              nullptr}}};
}

Subject lines()
{
    const QString property = QStringLiteral("isBackgroundSeparator");
    Subject subject{QStringLiteral("FrameLine"), {}};
    for (const unsigned int width : {1U, 2U, 4U}) {
        subject.states += {
            {QStringLiteral("horizontal %1").arg(width),
             [property, width] {
                 auto *content = new QWidget;
                 content->setFixedSize(LinesSize);
                 auto *layout = new QHBoxLayout(content);
                 layout->addWidget(FrameLine::createHorizontalLine(property, nullptr, width, 0, 0));
                 return content;
             },
             nullptr},
            {QStringLiteral("vertical %1").arg(width),
             [property, width] {
                 auto *content = new QWidget;
                 content->setFixedSize(LinesSize);
                 auto *layout = new QHBoxLayout(content);
                 layout->addWidget(FrameLine::createVerticalLine(property, nullptr, width, 0, 0));
                 return content;
             },
             nullptr}};
    }
    return subject;
}

/** The smallest class that a host derives. */
class PlainDialog : public TalvoDialogBase
{
public:
    using TalvoDialogBase::TalvoDialogBase;
    void initStyleSheet() override {}
};

Subject plainDialogs()
{
    return {QStringLiteral("TalvoDialogBase"),
            {{QStringLiteral("normal"),
              [] {
                  auto *dialog = new PlainDialog;
                  dialog->setLayout(form());
                  return dialog;
              },
              nullptr}}};
}

FramelessDialog *framelessDialog()
{
    auto *dialog = new FramelessDialog;
    dialog->setWindowTitle(QStringLiteral("Layer"));
    dialog->setLayout(form());
    return dialog;
}

/** A function that hovers what @p find returns. */
template <typename Dialog, typename Function>
Arrange hoverPart(Function find)
{
    return [find](QWidget *shown) {
        hover((static_cast<Dialog *>(shown)->*find)());
        return shown;
    };
}

Subject framelessDialogs()
{
    const auto create = [](void (*change)(FramelessDialog *)) {
        return [change] {
            FramelessDialog *dialog = framelessDialog();
            change(dialog);
            return dialog;
        };
    };
    const Create all = create([](FramelessDialog *dialog) {
        dialog->setWindowIcon(QIcon(themeImage(QStringLiteral("layer_view"))));
        dialog->setMinButtonVisible(true);
        dialog->setMaxButtonVisible(true);
        dialog->setApplyButtonVisible(true);
    });
    return {QStringLiteral("FramelessDialog"),
            {{QStringLiteral("normal"), framelessDialog, nullptr},
             {QStringLiteral("all buttons"), all, nullptr},
             {QStringLiteral("bare"), create([](FramelessDialog *dialog) {
                  dialog->setOKButtonVisible(false);
                  dialog->setCancelButtonVisible(false);
                  dialog->setCloseButtonVisible(false);
                  dialog->setWindowTitleAlignment(Qt::AlignCenter);
              }),
              nullptr},
             {QStringLiteral("OK hovered"), framelessDialog,
              hoverPart<FramelessDialog>(&FramelessDialog::GetOKButton)},
             {QStringLiteral("Cancel hovered"), framelessDialog,
              hoverPart<FramelessDialog>(&FramelessDialog::GetCancelButton)},
             {QStringLiteral("Cancel focused"), framelessDialog,
              [](QWidget *shown) {
                  focus(static_cast<FramelessDialog *>(shown)->GetCancelButton());
                  return shown;
              }},
             {QStringLiteral("OK disabled"),
              create([](FramelessDialog *dialog) { dialog->GetOKButton()->setEnabled(false); }),
              nullptr},
             {QStringLiteral("OK default"),
              create([](FramelessDialog *dialog) { dialog->setOKButtonDefault(true); }), nullptr},
             {QStringLiteral("thick line"),
              create([](FramelessDialog *dialog) { dialog->setHorizontalLineHeight(4); }), nullptr},
             {QStringLiteral("long title"),
              create([](FramelessDialog *dialog) { dialog->setWindowTitle(LongTitle); }), nullptr},
             {QStringLiteral("disabled"), disabled(framelessDialog), nullptr}}};
}

VantoroFramelessDialog *secondDialog()
{
    auto *dialog = new VantoroFramelessDialog;
    dialog->setWindowTitle(QStringLiteral("Export"));
    dialog->setLayout(form());
    return dialog;
}

Subject secondDialogs()
{
    const auto create = [](void (*change)(VantoroFramelessDialog *)) {
        return [change] {
            VantoroFramelessDialog *dialog = secondDialog();
            change(dialog);
            return dialog;
        };
    };
    return {QStringLiteral("VantoroFramelessDialog"),
            {{QStringLiteral("normal"), secondDialog, nullptr},
             {QStringLiteral("all buttons"), create([](VantoroFramelessDialog *dialog) {
                  dialog->getTitleBar()->setTitleButtonVisible(TitleBar::MinButton, true);
                  dialog->getTitleBar()->setTitleButtonVisible(TitleBar::MaxButton, true);
                  dialog->getTitleBar()->setMaximized(false);
                  dialog->getApplyButton()->show();
              }),
              nullptr},
             {QStringLiteral("OK hovered"), secondDialog,
              hoverPart<VantoroFramelessDialog>(&VantoroFramelessDialog::getOKButton)},
             {QStringLiteral("Cancel hovered"), secondDialog,
              hoverPart<VantoroFramelessDialog>(&VantoroFramelessDialog::getCancelButton)},
             {QStringLiteral("OK disabled"), create([](VantoroFramelessDialog *dialog) {
                  dialog->getOKButton()->setEnabled(false);
              }),
              nullptr},
             {QStringLiteral("long title"),
              create([](VantoroFramelessDialog *dialog) { dialog->setWindowTitle(LongTitle); }),
              nullptr},
             {QStringLiteral("disabled"), disabled(secondDialog), nullptr}}};
}

} // namespace

QVector<Subject> frameSubjects()
{
    return {titleBars(), lines(), plainDialogs(), framelessDialogs(), secondDialogs()};
}

} // namespace baseline
