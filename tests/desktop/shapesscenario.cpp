#include "shapesscenario.h"

#include "reporter.h"

#include <lmwidgets/roundcheckbox.h>
#include <lmwidgets/talvodoubleinputdlg.h>
#include <lmwidgets/talvotriangledlg.h>
#include <lmwidgets/toggleswitch.h>

#include <QPushButton>

using LM::Widgets::RoundCheckBox;
using LM::Widgets::ToggleSwitch;

namespace {

QWidget *makeWindow(const QString &name)
{
    auto *window = new QWidget;
    window->setObjectName(name);
    window->setGeometry(200, 100, 400, 200);
    return window;
}

template <typename Switch>
void follow(Switch *control)
{
    QObject::connect(control, &Switch::toggled, control, [control](bool on) {
        Reporter::say(
            QStringLiteral("toggled %1 %2")
                .arg(control->objectName(), on ? QStringLiteral("on") : QStringLiteral("off")));
    });
}

} // namespace

void runSwitches()
{
    QWidget *window = makeWindow(QStringLiteral("settings"));
    auto *toggle = new ToggleSwitch(window);
    toggle->setObjectName(QStringLiteral("toggle"));
    toggle->setText(QStringLiteral("Ground points"));
    toggle->move(40, 40);
    follow(toggle);
    auto *round = new RoundCheckBox(window);
    round->setObjectName(QStringLiteral("round"));
    round->move(40, 100);
    follow(round);
    window->show();
}

void runValueDialog()
{
    QWidget *window = makeWindow(QStringLiteral("main"));
    window->show();
    auto *dialog = new TalvoDoubleInputDlg(window);
    dialog->setObjectName(QStringLiteral("value"));
    QString suffix;
    dialog->setWindowTitle(QStringLiteral("Search radius"));
    dialog->setParamData(QStringLiteral("Search radius"), 0.0, 100.0, 2, 7.5, 0.5, suffix);
    Reporter::follow(dialog);
    QObject::connect(dialog, &QDialog::finished, dialog, [dialog] {
        Reporter::say(QStringLiteral("value %1").arg(dialog->getValue()));
    });
    dialog->open();
}

void runBalloon()
{
    QWidget *window = makeWindow(QStringLiteral("main"));
    auto *opener = new QPushButton(QStringLiteral("Density"), window);
    opener->setObjectName(QStringLiteral("opener"));
    opener->setGeometry(100, 40, 120, 30);
    window->show();

    auto *balloon = new TalvoTriangleDlg(window);
    balloon->setObjectName(QStringLiteral("balloon"));
    balloon->resize(200, 80);
    balloon->setTriabgleData(TalvoTriangleDlg::Top, 92, 10, 16);
    auto *done = new QPushButton(QStringLiteral("Done"), balloon);
    done->setObjectName(QStringLiteral("done"));
    done->setGeometry(40, 30, 120, 30);
    QObject::connect(done, &QPushButton::clicked, balloon, &QDialog::accept);
    Reporter::follow(balloon);
    // The tip of the pointer is at (100, 0) of the balloon.
    QObject::connect(opener, &QPushButton::clicked, balloon, [opener, balloon] {
        balloon->move(opener->mapToGlobal(QPoint(opener->width() / 2 - 100, opener->height())));
        balloon->show();
    });
}
