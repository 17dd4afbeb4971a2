/** @file
 * One repaint of a double slider, whose two handles are pictures, beside one of a QSlider.
 */

#include "bench.h"

#include <lmwidgets/talvodoubleslider.h>

#include <QApplication>
#include <QImage>
#include <QSlider>

namespace {

constexpr int repaints = 2000;
constexpr QSize sliderSize(300, 20);

/** Repaints @p slider into @p target, the way a window does. */
bench::Work repaintsOf(QWidget *slider, QImage *target)
{
    return [slider, target](int) {
        for (int i = 0; i < repaints; ++i) {
            slider->render(target);
        }
    };
}

} // namespace

int main(int argc, char **argv)
{
    bench::prepareEnvironment(argc, argv);
    QApplication application(argc, argv);
    bench::prepareApplication();

    LM::Widgets::TalvoDoubleSlider ours;
    ours.setSpan(20.0, 70.0);
    QSlider stock(Qt::Horizontal);
    stock.setValue(50);
    for (QWidget *slider : {static_cast<QWidget *>(&ours), static_cast<QWidget *>(&stock)}) {
        slider->resize(sliderSize);
        slider->show();
    }
    QCoreApplication::processEvents();
    QImage target(sliderSize, QImage::Format_ARGB32_Premultiplied);

    bench::printHead();
    bench::printLine(QStringLiteral("slider: one repaint"),
                     bench::compare(repaintsOf(&ours, &target), repaintsOf(&stock, &target)),
                     repaints, 3.0, bench::GoalOf::Instructions);
    return 0;
}
