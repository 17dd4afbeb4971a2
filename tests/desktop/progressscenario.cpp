#include "progressscenario.h"

#include "reporter.h"

#include <lmwidgets/framelessprocessdialog.h>

#include <QElapsedTimer>
#include <QPushButton>
#include <QVBoxLayout>

using LM::Widgets::FramelessProcessDialog;

namespace {

constexpr QRect MainGeometry(60, 60, 360, 260);
constexpr QRect DialogGeometry(500, 200, 400, 220);
constexpr int Steps = 5000;
constexpr int StepMs = 10;
constexpr int StepsOfAReport = 20;
constexpr int DurationMs = 700;

/** Works: the processor is busy, and no event is run. */
void work()
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < StepMs) {
    }
}

/** The operation as a host writes it, on the stack of a slot. */
void operate(QWidget *main)
{
    Reporter::say(QStringLiteral("started"));
    FramelessProcessDialog progress(QStringLiteral("Copying tiles..."), QStringLiteral("Stop"), 0,
                                    Steps, main);
    progress.setObjectName(QStringLiteral("progress"));
    progress.setWindowTitle(QStringLiteral("Export"));
    progress.setWindowModality(Qt::WindowModal);
    progress.findChild<QPushButton *>()->setObjectName(QStringLiteral("stop"));
    progress.setGeometry(DialogGeometry);
    progress.setMinimumDuration(DurationMs);
    QObject::connect(&progress, &FramelessProcessDialog::canceled, &progress,
                     [] { Reporter::say(QStringLiteral("canceled")); });
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < Steps && !progress.wasCanceled(); ++i) {
        progress.setValue(i);
        if (i % StepsOfAReport == 0) {
            Reporter::say(QStringLiteral("step %1").arg(i));
        }
        if (progress.isVisible() && timer.isValid()) {
            Reporter::say(QStringLiteral("appeared %1").arg(timer.elapsed()));
            timer.invalidate();
        }
        work();
    }
    Reporter::say(progress.wasCanceled() ? QStringLiteral("stopped") : QStringLiteral("ended"));
}

} // namespace

void runProgress()
{
    auto *main = new QWidget;
    main->setObjectName(QStringLiteral("main"));
    auto *layout = new QVBoxLayout(main);
    auto *button = new QPushButton(QStringLiteral("Open"));
    button->setObjectName(QStringLiteral("main-button"));
    layout->addWidget(button);
    main->setGeometry(MainGeometry);
    QObject::connect(button, &QPushButton::clicked, main, [main] { operate(main); });
    main->show();
}
