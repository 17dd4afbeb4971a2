#include "frameparts.h"
#include "page.h"
#include "pageparts.h"
#include "signallog.h"
#include "themes.h"

#include <lmwidgets/frameline.h>
#include <lmwidgets/titlebar.h>

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSharedPointer>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

namespace gallery {

using LM::Widgets::FrameLine;
using LM::Widgets::TitleBar;

namespace {

constexpr int SwitchColumns = 4;
constexpr int MaximumLineHeight = 12;
constexpr int LineSampleHeight = 48;

/** What the switches of the page say, and the dialog that follows them while it is open. */
struct DialogBench
{
    DialogSetup setup;
    QPointer<SampleDialog> dialog;

    void apply()
    {
        if (dialog) {
            dialog->apply(setup);
        }
    }
};

using BenchPointer = QSharedPointer<DialogBench>;

QCheckBox *setupSwitch(const QString &text, const BenchPointer &bench, bool DialogSetup::*member)
{
    return check(text, bench->setup.*member, [bench, member](bool on) {
        bench->setup.*member = on;
        bench->apply();
    });
}

QWidget *dialogSwitches(const BenchPointer &bench)
{
    const auto make = [&bench](const char *text, bool DialogSetup::*member) {
        return setupSwitch(QString::fromLatin1(text), bench, member);
    };
    return grid(SwitchColumns,
                {make("Movable", &DialogSetup::movable), make("Resizable", &DialogSetup::resizable),
                 make("Rubber band on move", &DialogSetup::rubberBandOnMove),
                 make("Rubber band on resize", &DialogSetup::rubberBandOnResize),
                 make("Logo", &DialogSetup::logo),
                 make("Extra title buttons", &DialogSetup::extraButtons),
                 make("Minimise button", &DialogSetup::minimize),
                 make("Maximise button", &DialogSetup::maximize),
                 make("Close button", &DialogSetup::close), make("OK", &DialogSetup::ok),
                 make("Cancel", &DialogSetup::cancel), make("Apply", &DialogSetup::apply)});
}

QSpinBox *lineHeightBox(const BenchPointer &bench)
{
    auto *box = new QSpinBox;
    box->setRange(0, MaximumLineHeight);
    box->setSuffix(QStringLiteral(" px"));
    box->setValue(bench->setup.lineHeight);
    QObject::connect(box, QOverload<int>::of(&QSpinBox::valueChanged), box, [bench](int height) {
        bench->setup.lineHeight = height;
        bench->apply();
    });
    return box;
}

QComboBox *alignmentBox(const BenchPointer &bench)
{
    auto *box = new QComboBox;
    box->addItem(QStringLiteral("Left"), int(Qt::AlignLeft | Qt::AlignVCenter));
    box->addItem(QStringLiteral("Centre"), int(Qt::AlignCenter));
    box->addItem(QStringLiteral("Right"), int(Qt::AlignRight | Qt::AlignVCenter));
    QObject::connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), box,
                     [bench, box](int index) {
                         bench->setup.titleAlignment = Qt::Alignment(box->itemData(index).toInt());
                         bench->apply();
                     });
    return box;
}

QLineEdit *titleEdit(const BenchPointer &bench)
{
    auto *edit = new QLineEdit(bench->setup.title);
    QObject::connect(edit, &QLineEdit::textChanged, edit, [bench](const QString &title) {
        bench->setup.title = title;
        bench->apply();
    });
    return edit;
}

void openDialog(const BenchPointer &bench, QWidget *parent, SignalLog &log)
{
    if (bench->dialog) {
        bench->dialog->raise();
        bench->dialog->activateWindow();
        return;
    }
    bench->dialog = new SampleDialog(bench->setup, parent);
    bench->dialog->setAttribute(Qt::WA_DeleteOnClose);
    log.watch(bench->dialog, QStringLiteral("FramelessDialog"));
    log.watch(bench->dialog->getTitleBar(), QStringLiteral("its TitleBar"));
    QObject::connect(bench->dialog->GetApplyButton(), &QPushButton::clicked, bench->dialog, [&log] {
        log.note(QStringLiteral("GetApplyButton()"), QStringLiteral("clicked"));
    });
    bench->dialog->open(bench->setup);
}

void addDialogSection(QVBoxLayout *layout, SignalLog &log)
{
    const BenchPointer bench(new DialogBench);
    QVBoxLayout *body = addSection(
        layout, QStringLiteral("FramelessDialog"),
        QStringLiteral("The switches take effect at once on an open dialog. Drag it by its title, "
                       "and a resizable one by its edges, which lie 10 px outside the frame."));
    body->addWidget(dialogSwitches(bench));
    body->addWidget(row({new QLabel(QStringLiteral("Title")), titleEdit(bench), alignmentBox(bench),
                         new QLabel(QStringLiteral("Line height")), lineHeightBox(bench)}));
    QWidget *parent = layout->parentWidget();
    body->addWidget(row({button(QStringLiteral("Open the dialog"), [bench, parent, &log] {
        openDialog(bench, parent->window(), log);
    })}));
    // The dialog is the window's child, the page may go before it does.
    QObject::connect(parent, &QObject::destroyed, parent, [bench] { delete bench->dialog.data(); });
}

void addTitleBarSection(QVBoxLayout *layout, SignalLog &log)
{
    QVBoxLayout *body = addSection(
        layout, QStringLiteral("TitleBar"),
        QStringLiteral("Standing alone it acts on no window: its four signals appear in the log."));
    auto *bar = new TitleBar;
    bar->setTitle(QStringLiteral("A title bar without a dialog"));
    bar->setTitleButtonIcon(TitleBar::LogoButton, glyphIcon(Glyph::Logo));
    bar->setMaximized(false);
    onTheme(bar, [bar] { reloadTitleImages(bar); });
    log.watch(bar, QStringLiteral("TitleBar"));
    body->addWidget(framed(bar));
    body->addWidget(
        row({check(QStringLiteral("Maximised"), false, [bar](bool on) { bar->setMaximized(on); }),
             check(QStringLiteral("Title"), true, [bar](bool on) { bar->setTitleVisible(on); }),
             check(QStringLiteral("Logo"), true,
                   [bar](bool on) { bar->setTitleButtonVisible(TitleBar::LogoButton, on); }),
             check(QStringLiteral("Close button"), true,
                   [bar](bool on) { bar->setTitleButtonVisible(TitleBar::CloseButton, on); })}));
}

void addLineSection(QVBoxLayout *layout)
{
    const QString property = QStringLiteral("isBackgroundSeparator");
    QVBoxLayout *body = addSection(
        layout, QStringLiteral("FrameLine"),
        QStringLiteral("Separators of 1, 2 and 4 px, coloured by the theme's style sheet."));
    for (const unsigned int width : {1U, 2U, 4U}) {
        body->addWidget(FrameLine::createHorizontalLine(property, nullptr, width, 0, 0));
    }
    auto *uprights = new QWidget;
    uprights->setFixedHeight(LineSampleHeight);
    auto *uprightLayout = new QHBoxLayout(uprights);
    uprightLayout->setContentsMargins(0, 0, 0, 0);
    for (const unsigned int width : {1U, 2U, 4U}) {
        uprightLayout->addWidget(new QLabel(QStringLiteral("%1 px").arg(width)));
        uprightLayout->addWidget(FrameLine::createVerticalLine(property, nullptr, width, 0, 0));
    }
    uprightLayout->addStretch();
    body->addWidget(uprights);
}

void addHelperSection(QVBoxLayout *layout)
{
    QVBoxLayout *body = addSection(
        layout, QStringLiteral("FramelessHelper"),
        QStringLiteral(
            "Moves and resizes any window without a system frame, here a plain QWidget."));
    QWidget *parent = layout->parentWidget();
    body->addWidget(row({button(QStringLiteral("Open a plain window"), [parent] {
        auto *window = new HelperWindow(parent->window());
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->show();
    })}));
}

QWidget *createContent(SignalLog &log)
{
    auto *content = new QWidget;
    QVBoxLayout *layout = contentLayout(content);
    addDialogSection(layout, log);
    addTitleBarSection(layout, log);
    addLineSection(layout);
    addHelperSection(layout);
    return content;
}

QWidget *openSample(const DialogSetup &setup)
{
    auto *dialog = new SampleDialog(setup, nullptr);
    dialog->open(setup);
    return dialog;
}

QWidget *openFullSample()
{
    DialogSetup setup;
    setup.logo = setup.extraButtons = setup.minimize = setup.maximize = setup.apply = true;
    setup.resizable = true;
    return openSample(setup);
}

QWidget *openBareSample()
{
    DialogSetup setup;
    setup.ok = setup.cancel = setup.close = false;
    setup.titleAlignment = Qt::AlignCenter;
    setup.lineHeight = 4;
    return openSample(setup);
}

QWidget *openHelperWindow()
{
    auto *window = new HelperWindow(nullptr);
    window->show();
    return window;
}

} // namespace

Page framePage()
{
    return Page(QStringLiteral("frame"), QStringLiteral("Frameless windows"),
                QStringLiteral("FramelessDialog draws its own frame with a TitleBar, FrameLine "
                               "separators and a row "
                               "of buttons; a FramelessHelper lets the mouse move and resize it."),
                createContent)
        .shot(QStringLiteral("dialog"), [] { return openSample(DialogSetup()); })
        .shot(QStringLiteral("full"), openFullSample)
        .shot(QStringLiteral("bare"), openBareSample)
        .shot(QStringLiteral("helper"), openHelperWindow);
}

} // namespace gallery
