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
constexpr int rounds = 15;
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

/** The same widths in every round: each was seen before the first round that counts. */
int seenWidth(int, int i)
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
    bench::prepareEnvironment();
    QApplication application(argc, argv);
    bench::prepareApplication();

    Stage<LM::Widgets::LineTypeComboBox> ours;
    Stage<QComboBox> stock;
    for (int i = 0; i < ours.box->count(); ++i) {
        stock.box->addItem(ours.box->itemIcon(i), QString(), ours.box->itemData(i));
    }
    stock.box->setIconSize(ours.box->iconSize());

    bench::printHead();
    bench::printLine(QStringLiteral("line types: resize, widths seen before"),
                     bench::compare(storm(&ours, seenWidth), storm(&stock, seenWidth), rounds),
                     resizes, 1.4);
    bench::printLine(QStringLiteral("line types: resize, new widths"),
                     bench::compare(storm(&ours, newWidth), storm(&stock, newWidth), rounds),
                     resizes, 3.0);
    return 0;
}
