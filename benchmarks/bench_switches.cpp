/** @file
 * One repaint of each of the two self-painted switches beside one of a QCheckBox.
 */

#include "bench.h"

#include <lmwidgets/roundcheckbox.h>
#include <lmwidgets/toggleswitch.h>

#include <QApplication>
#include <QCheckBox>
#include <QImage>

namespace {

constexpr int repaints = 2000;

/** Repaints @p control into @p target, the way a window does. */
bench::Work repaintsOf(QWidget *control, QImage *target)
{
    return [control, target](int) {
        for (int i = 0; i < repaints; ++i) {
            control->render(target);
        }
    };
}

template <typename Control>
void showChecked(Control *control, bool checked)
{
    control->setChecked(checked);
    control->show();
    QCoreApplication::processEvents();
}

} // namespace

int main(int argc, char **argv)
{
    bench::prepareEnvironment(argc, argv);
    QApplication application(argc, argv);
    bench::prepareApplication();

    const QString text = QStringLiteral("Ground points");
    LM::Widgets::ToggleSwitch toggle;
    toggle.setText(text);
    LM::Widgets::RoundCheckBox round;
    QCheckBox stock(text);
    stock.resize(toggle.size());
    QImage target(toggle.size(), QImage::Format_ARGB32_Premultiplied);

    bench::printHead();
    for (const bool checked : {false, true}) {
        showChecked(&toggle, checked);
        showChecked(&round, checked);
        showChecked(&stock, checked);
        const QString state = checked ? QStringLiteral("on") : QStringLiteral("off");
        bench::printLine(QStringLiteral("toggle switch, %1: one repaint").arg(state),
                         bench::compare(repaintsOf(&toggle, &target), repaintsOf(&stock, &target)),
                         repaints, 2.0, bench::GoalOf::Instructions);
        bench::printLine(QStringLiteral("round check box, %1: one repaint").arg(state),
                         bench::compare(repaintsOf(&round, &target), repaintsOf(&stock, &target)),
                         repaints, 2.0, bench::GoalOf::Instructions);
    }
    return 0;
}
