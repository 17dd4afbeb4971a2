/** @file
 * A small host application for tests on a real desktop. It opens the windows of the scenario that
 * is named on its command line and tells the driver what happens to them, see Reporter.
 */

#include "containersscenario.h"
#include "editcomboscenario.h"
#include "filesscenario.h"
#include "layerscenario.h"
#include "progressscenario.h"
#include "reporter.h"
#include "shapesscenario.h"
#include "sliderscenario.h"
#include "smallwidgetsscenario.h"
#include "stackingscenario.h"
#include "waitingscenario.h"

#include <lmwidgets/framelessdialog.h>
#include <lmwidgets/framelessmessagebox.h>
#include <lmwidgets/titlebar.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedPointer>
#include <QStyleFactory>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <functional>

using LM::Widgets::FramelessDialog;
using LM::Widgets::FramelessMessageBox;
using LM::Widgets::TitleBar;

namespace {

constexpr QRect MainGeometry(60, 60, 360, 260);
constexpr QPoint DialogPosition(300, 150);
constexpr QSize DialogSize(420, 300);

QLineEdit *makeEdit(const QString &name)
{
    auto *edit = new QLineEdit;
    edit->setObjectName(name);
    Reporter::follow(edit);
    return edit;
}

/** A window that the window manager manages: it has a line edit and a button. */
QWidget *makeMain(const QString &name)
{
    auto *window = new QWidget;
    window->setObjectName(name);
    window->setWindowTitle(name);
    auto *layout = new QVBoxLayout(window);
    layout->addWidget(makeEdit(name + QLatin1String("-edit")));
    auto *button = new QPushButton(QStringLiteral("Open"));
    button->setObjectName(name + QLatin1String("-button"));
    Reporter::follow(button);
    layout->addWidget(button);
    layout->addStretch();
    window->setGeometry(MainGeometry);
    return window;
}

/** A frameless dialog with a line edit, a combo box and a second line edit. */
FramelessDialog *makeDialog(QWidget *parent)
{
    auto *dialog = new FramelessDialog(parent);
    dialog->setObjectName(QStringLiteral("dialog"));
    dialog->setWindowTitle(QStringLiteral("Layer"));

    QLineEdit *edit = makeEdit(QStringLiteral("edit"));
    auto *box = new QComboBox;
    box->setObjectName(QStringLiteral("box"));
    box->addItems({QStringLiteral("red"), QStringLiteral("green"), QStringLiteral("blue")});
    Reporter::follow(box);

    auto *layout = new QVBoxLayout;
    layout->setContentsMargins(16, 16, 16, 16);
    layout->addWidget(edit);
    layout->addWidget(box);
    layout->addWidget(makeEdit(QStringLiteral("second")));
    layout->addStretch();
    dialog->setLayout(layout);

    TitleBar *titleBar = dialog->getTitleBar();
    titleBar->titleButton(TitleBar::MinButton)->setObjectName(QStringLiteral("minimize"));
    titleBar->titleButton(TitleBar::MaxButton)->setObjectName(QStringLiteral("maximize"));
    titleBar->titleButton(TitleBar::RestoreButton)->setObjectName(QStringLiteral("restore"));
    titleBar->titleButton(TitleBar::CloseButton)->setObjectName(QStringLiteral("close"));
    dialog->GetOKButton()->setObjectName(QStringLiteral("ok"));
    dialog->GetCancelButton()->setObjectName(QStringLiteral("cancel"));
    Reporter::follow(dialog->GetOKButton());
    Reporter::follow(dialog->GetCancelButton());
    Reporter::follow(dialog);

    dialog->move(DialogPosition);
    dialog->resize(DialogSize);
    edit->setFocus();
    return dialog;
}

void runDialog()
{
    makeDialog(nullptr)->show();
}

void runResizable(bool rubberBand)
{
    FramelessDialog *dialog = makeDialog(nullptr);
    dialog->setDialogResizable(true);
    dialog->setRubberBandOnResize(rubberBand);
    dialog->setRubberBandOnMove(rubberBand);
    dialog->show();
    // Each show freezes the size.
    dialog->setMinimumSize(360, 280);
    dialog->setMaximumSize(900, 700);
}

/** A window with one label for each cursor that a resizable dialog shows, for comparison. */
void runCursors()
{
    const struct
    {
        const char *name;
        Qt::CursorShape shape;
    } cursors[] = {{"arrow", Qt::ArrowCursor},
                   {"hor", Qt::SizeHorCursor},
                   {"ver", Qt::SizeVerCursor},
                   {"fdiag", Qt::SizeFDiagCursor},
                   {"bdiag", Qt::SizeBDiagCursor}};

    auto *window = new QWidget;
    window->setObjectName(QStringLiteral("cursors"));
    auto *layout = new QVBoxLayout(window);
    for (const auto &cursor : cursors) {
        auto *label = new QLabel(QLatin1String(cursor.name));
        label->setObjectName(QLatin1String(cursor.name));
        label->setCursor(cursor.shape);
        layout->addWidget(label);
    }
    window->setGeometry(MainGeometry);
    window->show();
}

void runOther()
{
    QWidget *window = makeMain(QStringLiteral("other"));
    window->move(700, 60);
    window->show();
}

/** A window whose button shows the dialog, which is its child or has no parent. */
FramelessDialog *runWithMain(bool isChild)
{
    QWidget *main = makeMain(QStringLiteral("main"));
    main->show();
    FramelessDialog *dialog = makeDialog(isChild ? main : nullptr);
    QObject::connect(main->findChild<QPushButton *>(), &QPushButton::clicked, dialog,
                     [dialog] { dialog->show(); });
    return dialog;
}

/** A window whose button runs the dialog as hosts do: on the stack of a slot, until it has ended.
 */
void runModal()
{
    QWidget *main = makeMain(QStringLiteral("main"));
    main->show();
    QObject::connect(main->findChild<QPushButton *>(), &QPushButton::clicked, main, [main] {
        const QScopedPointer<FramelessDialog> dialog(makeDialog(main));
        dialog->setMinButtonVisible(true);
        Reporter::say(QStringLiteral("exec %1").arg(dialog->exec()));
    });
}

/** A dialog whose button runs another dialog above it. */
void runNested()
{
    FramelessDialog *dialog = runWithMain(true);
    dialog->setModal(true);
    auto *button = new QPushButton(QStringLiteral("More"));
    button->setObjectName(QStringLiteral("more"));
    dialog->bottomLayout()->insertWidget(0, button);
    QObject::connect(button, &QPushButton::clicked, dialog, [dialog] {
        FramelessDialog inner(dialog);
        inner.setObjectName(QStringLiteral("inner"));
        inner.setMinButtonVisible(true);
        inner.getTitleBar()
            ->titleButton(TitleBar::MinButton)
            ->setObjectName(QStringLiteral("inner-minimize"));
        auto *layout = new QVBoxLayout;
        layout->addWidget(makeEdit(QStringLiteral("inner-edit")));
        inner.setLayout(layout);
        inner.findChild<QLineEdit *>()->setFocus();
        Reporter::say(QStringLiteral("exec %1").arg(inner.exec()));
    });
}

FramelessDialog *makeDialogWithTitleButtons(QWidget *parent)
{
    FramelessDialog *dialog = makeDialog(parent);
    dialog->setMinButtonVisible(true);
    dialog->setMaxButtonVisible(true);
    return dialog;
}

void runTitleButtonsWithParent()
{
    QWidget *main = makeMain(QStringLiteral("main"));
    main->show();
    makeDialogWithTitleButtons(main)->show();
}

/** Runs a box and says which of its buttons was clicked. The buttons are named by their captions.
 */
void ask(FramelessMessageBox *box)
{
    const QList<QAbstractButton *> buttons = box->buttons();
    for (QAbstractButton *button : buttons) {
        button->setObjectName(button->text().remove(QLatin1Char('&')));
    }
    box->getTitleBar()->titleButton(TitleBar::CloseButton)->setObjectName(QStringLiteral("close"));
    box->exec();
    const QAbstractButton *clicked = box->clickedButton();
    Reporter::say(QLatin1String("answer ") +
                  (clicked ? clicked->objectName() : QStringLiteral("nothing")));
}

void askWithStandardButtons(QWidget *parent)
{
    FramelessMessageBox box(QMessageBox::Question, QStringLiteral("Layers"),
                            QStringLiteral("Remove the layer?"),
                            QMessageBox::Ok | QMessageBox::Cancel, parent, Qt::Dialog);
    ask(&box);
}

/** Asks with buttons of the host's own; the second one answers Escape unless it accepts too. */
void askWithOwnButtons(QWidget *parent, QMessageBox::ButtonRole secondRole)
{
    FramelessMessageBox box(parent);
    box.setWindowTitle(QStringLiteral("Layers"));
    box.setText(QStringLiteral("What is to become of the layer?"));
    box.addButton(QStringLiteral("&Keep"), QMessageBox::AcceptRole);
    box.addButton(QStringLiteral("&Drop"), secondRole);
    ask(&box);
}

void askByStaticFunction(QWidget *parent)
{
    const int answer = FramelessMessageBox::question(
        parent, QStringLiteral("Layers"), QStringLiteral("Remove the layer?"),
        QMessageBox::Yes | QMessageBox::No, QMessageBox::NoButton);
    Reporter::say(QStringLiteral("answer %1").arg(answer));
}

/** A window whose button asks. */
void runBox(const std::function<void(QWidget *)> &question)
{
    QWidget *main = makeMain(QStringLiteral("main"));
    main->show();
    QObject::connect(main->findChild<QPushButton *>(), &QPushButton::clicked, main,
                     [main, question] { question(main); });
}

QHash<QString, std::function<void()>> scenarios()
{
    return {
        {QStringLiteral("dialog"), runDialog},
        {QStringLiteral("resizable"), [] { runResizable(false); }},
        {QStringLiteral("resizable-band"), [] { runResizable(true); }},
        {QStringLiteral("cursors"), runCursors},
        {QStringLiteral("other"), runOther},
        {QStringLiteral("modeless"), [] { runWithMain(true); }},
        {QStringLiteral("parentless"), [] { runWithMain(false); }},
        {QStringLiteral("modal"), runModal},
        {QStringLiteral("nested"), runNested},
        {QStringLiteral("title-buttons"), [] { makeDialogWithTitleButtons(nullptr)->show(); }},
        {QStringLiteral("title-buttons-parent"), runTitleButtonsWithParent},
        {QStringLiteral("box"), [] { runBox(askWithStandardButtons); }},
        {QStringLiteral("box-own-buttons"),
         [] { runBox([](QWidget *w) { askWithOwnButtons(w, QMessageBox::RejectRole); }); }},
        {QStringLiteral("box-no-escape"),
         [] { runBox([](QWidget *w) { askWithOwnButtons(w, QMessageBox::AcceptRole); }); }},
        {QStringLiteral("box-static"), [] { runBox(askByStaticFunction); }},
        {QStringLiteral("box-alone"),
         [] { QTimer::singleShot(0, [] { askWithStandardButtons(nullptr); }); }},
        {QStringLiteral("panel"), runPanel},
        {QStringLiteral("layers"), runLayers},
        {QStringLiteral("files-open"), runFilesOpen},
        {QStringLiteral("files-save"), runFilesSave},
        {QStringLiteral("files-alone"), runFilesAlone},
        {QStringLiteral("files-native"), runFilesNative},
        {QStringLiteral("editcombo"), runEditCombo},
        {QStringLiteral("small"), runSmallWidgets},
        {QStringLiteral("desktop-link"), runDesktopLink},
        {QStringLiteral("progress"), runProgress},
        {QStringLiteral("slider"), runSlider},
        {QStringLiteral("stack"), runStack},
        {QStringLiteral("stock"), runStock},
        {QStringLiteral("stock-secondframe"), runStockOverSecondFrame},
        {QStringLiteral("stock-box"), runStockOverBox},
        {QStringLiteral("switches"), runSwitches},
        {QStringLiteral("value"), runValueDialog},
        {QStringLiteral("balloon"), runBalloon},
        {QStringLiteral("waiting"), runWaiting},
        {QStringLiteral("secondframe"), runSecondFrame},
        {QStringLiteral("maximized-first"),
         [] { makeDialogWithTitleButtons(nullptr)->showMaximized(); }},
    };
}

} // namespace

int main(int argc, char **argv)
{
    if (argc > 1 && qstrcmp(argv[1], "files-native") == 0) {
        preferNativeFileDialogs();
    }
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    Reporter reporter;

    const std::function<void()> run = scenarios().value(application.arguments().value(1));
    if (!run) {
        Reporter::say(QStringLiteral("unknown scenario"));
        return 2;
    }
    run();
    return QApplication::exec();
}
