/** @file
 * A storm of resizes of a line-type combo box, which makes its 15 pictures anew each time, beside a
 * QComboBox that keeps its 15 pictures and is resized and painted only.
 */

#include "bench.h"

#include <lmwidgets/linetypecombobox.h>

#include <QApplication>
#include <QComboBox>
#include <QWidget>

namespace {

constexpr int resizes = 200;
constexpr int rounds = 5;
constexpr int narrowest = 120;
constexpr int boxHeight = 31;

/** A window with one box in it; the window keeps its size, so that only the box is laid out. */
template <typename Box>
class Stage
{
public:
    Stage() : box(new Box(&window))
    {
        window.resize(narrowest + (rounds + 1) * resizes, 60);
        box->setGeometry(0, 0, narrowest, boxHeight);
        window.show();
        QCoreApplication::processEvents();
    }

    /** Gives the box @p width and lets it be painted. */
    void resize(int width)
    {
        box->resize(width, boxHeight);
        QCoreApplication::processEvents();
    }

    QWidget window;
    Box *box;
};

/** The widths of a panel that folds and unfolds in a few steps, over and over. */
int foldingWidth(int, int i)
{
    constexpr int steps = 12;
    const int step = i % (2 * steps);
    return narrowest + 16 * (step < steps ? step : 2 * steps - 1 - step);
}

/** The same long row of widths in every round: many were seen before, too many to be kept. */
int repeatedWidth(int, int i)
{
    return narrowest + i;
}

/** Widths that no other round has, spread over the same range in each round. */
int newWidth(int round, int i)
{
    return narrowest + i * (rounds + 1) + round;
}

template <typename Box>
bench::Work storm(Stage<Box> *stage, int (*width)(int, int))
{
    return [stage, width](int round) {
        for (int i = 0; i < resizes; ++i) {
            stage->resize(width(round, i));
        }
    };
}

} // namespace

int main(int argc, char **argv)
{
    bench::prepareEnvironment(argc, argv);
    QApplication application(argc, argv);
    bench::prepareApplication();

    Stage<LM::Widgets::LineTypeComboBox> ours;
    Stage<QComboBox> stock;
    for (int i = 0; i < ours.box->count(); ++i) {
        stock.box->addItem(ours.box->itemIcon(i), QString(), ours.box->itemData(i));
    }
    stock.box->setIconSize(ours.box->iconSize());

    const auto print = [&](const char *operation, int (*width)(int, int), double goal) {
        bench::printLine(QString::fromLatin1(operation),
                         bench::compare(storm(&ours, width), storm(&stock, width), rounds), resizes,
                         goal);
    };
    bench::printHead();
    print("line types: resize, 12 widths seen before", foldingWidth, 1.4);
    print("line types: resize, 200 widths seen before", repeatedWidth, 0.0);
    print("line types: resize, new widths", newWidth, 3.0);
    return 0;
}
