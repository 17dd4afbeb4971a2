#include "frameparts.h"
#include "page.h"
#include "pageparts.h"
#include "signallog.h"

#include <lmwidgets/framelesshelper.h>
#include <lmwidgets/titlebar.h>
#include <lmwidgets/vantoroframelessdialog.h>

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSharedPointer>
#include <QToolButton>
#include <QVBoxLayout>

namespace gallery {

using LM::Widgets::FramelessHelper;
using LM::Widgets::TitleBar;
using LM::Widgets::VantoroFramelessDialog;

namespace {

constexpr int SwitchColumns = 4;
constexpr int FormMargin = 24;
constexpr int FormSpacing = 12;
constexpr int FieldWidth = 240;

/** What the switches of the page say; at first as a new dialog has it. */
struct FrameSetup
{
    QString title = QStringLiteral("Export");
    bool movable = true;
    bool resizable = false;
    bool rubberBandOnMove = false;
    bool rubberBandOnResize = false;
    bool minimize = false;
    bool maximize = false;
    bool close = true;
    bool ok = true;
    bool cancel = true;
    bool apply = false;
};

/** A dialog of a host in the second frame: a form, and title buttons that it connects itself. */
class ExportDialog : public VantoroFramelessDialog
{
public:
    ExportDialog(const FrameSetup &setup, const QString &note, QWidget *parent)
        : VantoroFramelessDialog(parent)
    {
        auto *form = new QFormLayout;
        form->setContentsMargins(FormMargin, FormMargin, FormMargin, FormMargin);
        form->setSpacing(FormSpacing);
        auto *name = new QLineEdit(QStringLiteral("survey_07.las"));
        name->setMinimumWidth(FieldWidth);
        form->addRow(QStringLiteral("File"), name);
        auto *format = new QComboBox;
        format->addItems({QStringLiteral("LAS 1.4"), QStringLiteral("LAZ"), QStringLiteral("E57")});
        form->addRow(QStringLiteral("Format"), format);
        form->addRow(QString(), new QCheckBox(QStringLiteral("Ground points only")));
        if (!note.isEmpty()) {
            auto *label = new QLabel(note);
            label->setWordWrap(true);
            form->addRow(label);
        }
        setLayout(form);

        TitleBar *bar = getTitleBar();
        connect(bar, &TitleBar::minimuned, this, &QWidget::showMinimized);
        connect(bar, &TitleBar::maximumed, this, &QWidget::showMaximized);
        connect(bar, &TitleBar::normaled, this, &QWidget::showNormal);
        apply(setup);
    }

    void initStyleSheet() override { reloadTitleImages(getTitleBar()); }

    /** Brings the dialog into the state of @p setup, whether it is open or not. */
    void apply(const FrameSetup &setup)
    {
        setWindowTitle(setup.title);
        FramelessHelper *helper = getFramelessHelper();
        helper->setWidgetMovable(setup.movable);
        helper->setWidgetResizable(setup.resizable);
        helper->setRubberBandOnMove(setup.rubberBandOnMove);
        helper->setRubberBandOnResize(setup.rubberBandOnResize);
        TitleBar *bar = getTitleBar();
        bar->setTitleButtonVisible(TitleBar::MinButton, setup.minimize);
        bar->setTitleButtonVisible(TitleBar::MaxButton, setup.maximize);
        bar->setTitleButtonVisible(TitleBar::RestoreButton, setup.maximize);
        bar->setMaximized(isMaximized());
        bar->setTitleButtonVisible(TitleBar::CloseButton, setup.close);
        getOKButton()->setVisible(setup.ok);
        getCancelButton()->setVisible(setup.cancel);
        getApplyButton()->setVisible(setup.apply);
    }
};

struct FrameBench
{
    FrameSetup setup;
    QPointer<ExportDialog> dialog;

    void apply()
    {
        if (dialog) {
            dialog->apply(setup);
        }
    }
};

using BenchPointer = QSharedPointer<FrameBench>;

QWidget *switches(const BenchPointer &bench)
{
    const auto make = [&bench](const char *text, bool FrameSetup::*member) {
        return check(QString::fromLatin1(text), bench->setup.*member, [bench, member](bool on) {
            bench->setup.*member = on;
            bench->apply();
        });
    };
    return grid(SwitchColumns,
                {make("Movable", &FrameSetup::movable), make("Resizable", &FrameSetup::resizable),
                 make("Rubber band on move", &FrameSetup::rubberBandOnMove),
                 make("Rubber band on resize", &FrameSetup::rubberBandOnResize),
                 make("Minimise button", &FrameSetup::minimize),
                 make("Maximise button", &FrameSetup::maximize),
                 make("Close button", &FrameSetup::close), make("OK", &FrameSetup::ok),
                 make("Cancel", &FrameSetup::cancel), make("Apply", &FrameSetup::apply)});
}

void openDialog(const BenchPointer &bench, QWidget *parent, SignalLog &log)
{
    if (bench->dialog) {
        bench->dialog->raise();
        bench->dialog->activateWindow();
        return;
    }
    bench->dialog = new ExportDialog(bench->setup, QString(), parent);
    log.watch(bench->dialog, QStringLiteral("VantoroFramelessDialog"));
    log.watch(bench->dialog->getTitleBar(), QStringLiteral("its TitleBar"));
    QObject::connect(bench->dialog->getApplyButton(), &QPushButton::clicked, bench->dialog, [&log] {
        log.note(QStringLiteral("getApplyButton()"), QStringLiteral("clicked"));
    });
    QObject::connect(bench->dialog, &QDialog::finished, bench->dialog, &QObject::deleteLater);
    bench->dialog->show();
}

QWidget *createContent(SignalLog &log)
{
    auto *content = new QWidget;
    QVBoxLayout *layout = contentLayout(content);
    const BenchPointer bench(new FrameBench);
    QVBoxLayout *body = addSection(
        layout, QStringLiteral("A host's dialog in the frame"),
        QStringLiteral("The switches take effect at once on an open dialog. Escape leaves it open; "
                       "the close button rejects it. What the minimise and maximise buttons do is "
                       "connected by the host's own class."));
    body->addWidget(switches(bench));
    auto *title = new QLineEdit(bench->setup.title);
    QObject::connect(title, &QLineEdit::textChanged, title, [bench](const QString &text) {
        bench->setup.title = text;
        bench->apply();
    });
    body->addWidget(row({new QLabel(QStringLiteral("Title")), title}));
    body->addWidget(row({button(QStringLiteral("Open the dialog"), [bench, content, &log] {
        openDialog(bench, content->window(), log);
    })}));
    // The dialog is the window's child, the page may go before it does.
    QObject::connect(content, &QObject::destroyed, content,
                     [bench] { delete bench->dialog.data(); });
    return content;
}

QWidget *openSample(const FrameSetup &setup, const QString &note = QString())
{
    auto *dialog = new ExportDialog(setup, note, nullptr);
    dialog->show();
    return dialog;
}

QWidget *openFull()
{
    FrameSetup setup;
    setup.minimize = setup.maximize = setup.apply = true;
    return openSample(setup);
}

QWidget *openLong()
{
    FrameSetup setup;
    setup.title =
        QStringLiteral("Exportieren der Punktwolkenklassifizierungsergebnisse des Projekts");
    return openSample(
        setup, QStringLiteral("The coordinates are written in the system of the project. Points "
                              "that lie outside of its bounds are left out; a list of them is "
                              "written beside the file."));
}

} // namespace

Page secondframePage()
{
    return Page(QStringLiteral("secondframe"), QStringLiteral("Second frame"),
                QStringLiteral("VantoroFramelessDialog is the frame for larger dialogs of the "
                               "host's own: a border, a grey area for the content and a tall row "
                               "of buttons."),
                createContent)
        .shot(QStringLiteral("dialog"), [] { return openSample(FrameSetup()); })
        .shot(QStringLiteral("full"), openFull)
        .shot(QStringLiteral("long"), openLong);
}

} // namespace gallery
