/** @file
 * The flow layout beside a QGridLayout of twelve columns that holds the same items, as tags in a
 * window.
 */

#include "bench.h"

#include <lmwidgets/flowlayout.h>

#include <QApplication>
#include <QGridLayout>
#include <QWidget>

using LM::Widgets::FlowLayout;

namespace {

constexpr int most = 10000;
constexpr int resizes = 200;
constexpr int gridColumns = 12;
constexpr int gap = 6; // px, between two items
constexpr int windowWidth = 640;
constexpr int windowHeight = 480;
constexpr int narrowest = 500;      // px
constexpr int roomForTheGrid = 300; // px, that twelve columns need on top
constexpr int widths = 200;         // from the narrowest on

/** A window of tags with a layout of the kind @p Layout. */
template <typename Layout>
class Tags
{
public:
    explicit Tags(int count) : m_layout(makeLayout())
    {
        for (int i = 0; i < count; ++i) {
            // As many different widths as a real set of tags has.
            auto *tag = new QWidget;
            tag->setMinimumSize(20 + i * 7 % 40, 16);
            m_layout->addWidget(tag);
        }
        m_window.setLayout(m_layout);
        m_window.resize(windowWidth, windowHeight);
        m_height = qMax(windowHeight, m_layout->minimumSize().height());
    }

    void show()
    {
        m_window.show();
        QCoreApplication::processEvents();
    }

    /** Gives the items their places in a rectangle that is @p width px wide. */
    void place(int width) { m_layout->setGeometry(QRect(0, 0, width, windowHeight)); }

    /** The same in a rectangle that not even the grid finds too small. */
    void placeWithRoom(int width)
    {
        m_layout->setGeometry(QRect(0, 0, width + roomForTheGrid, m_height));
    }

    /** The same after an item has changed, with the question for the height that goes before. */
    void placeChanged(int width)
    {
        m_layout->invalidate();
        const int height = m_layout->hasHeightForWidth() ? m_layout->heightForWidth(width)
                                                         : m_layout->sizeHint().height();
        m_layout->setGeometry(QRect(0, 0, width, height));
    }

    void resize(int width)
    {
        m_window.resize(width + roomForTheGrid, m_height);
        QCoreApplication::processEvents();
    }

private:
    static Layout *makeLayout();

    QWidget m_window;
    Layout *m_layout;
    int m_height; // px, of a window that the layout does not press together
};

template <>
FlowLayout *Tags<FlowLayout>::makeLayout()
{
    return new FlowLayout(0, gap, gap);
}

template <>
QGridLayout *Tags<QGridLayout>::makeLayout()
{
    auto *layout = new QGridLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap);
    layout->setDefaultPositioning(gridColumns, Qt::Horizontal);
    return layout;
}

using Ours = Tags<FlowLayout>;
using Stock = Tags<QGridLayout>;

template <typename Window>
bench::Work repeated(Window *window, int repetitions, void (Window::*function)(int))
{
    return [=](int round) {
        for (int i = 0; i < repetitions; ++i) {
            (window->*function)(narrowest + (i * 13 + round) % widths);
        }
    };
}

/** Windows that are not shown: the work of the layouts, and as good as none of the widgets. */
void benchHidden()
{
    for (const int count : {10, 1000, most}) {
        Ours ours(count);
        Stock stock(count);
        const int repetitions = most / count;
        bench::printLine(QStringLiteral("flow layout: setGeometry, %1 items, not shown").arg(count),
                         bench::compare(repeated(&ours, repetitions, &Ours::place),
                                        repeated(&stock, repetitions, &Stock::place), 9),
                         repetitions);
        bench::printLine(
            QStringLiteral("flow layout: setGeometry after a change, %1 items, not shown")
                .arg(count),
            bench::compare(repeated(&ours, repetitions, &Ours::placeChanged),
                           repeated(&stock, repetitions, &Stock::placeChanged), 9),
            repetitions);
    }
}

/** Windows on the screen, as when the user drags an edge of one. */
void benchShown()
{
    struct Size
    {
        int count;
        double goal;
    };
    QVector<bench::Point> growth;
    QVector<bench::Point> stockGrowth;
    for (const Size size : {Size{10, 0.15}, Size{1000, 0.05}, Size{most, 0.02}}) {
        Ours ours(size.count);
        Stock stock(size.count);
        ours.show();
        stock.show();
        const int repetitions = qMax(2, 1000 / size.count);
        const bench::Comparison both =
            bench::compare(repeated(&ours, repetitions, &Ours::place),
                           repeated(&stock, repetitions, &Stock::place), 3);
        bench::printLine(QStringLiteral("flow layout: setGeometry, %1 items").arg(size.count), both,
                         repetitions, size.goal);
        bench::printLine(
            QStringLiteral("flow layout: setGeometry, %1 items, room for the grid").arg(size.count),
            bench::compare(repeated(&ours, repetitions, &Ours::placeWithRoom),
                           repeated(&stock, repetitions, &Stock::placeWithRoom), 3),
            repetitions);
        growth.append({double(size.count), both.ours / repetitions});
        stockGrowth.append({double(size.count), both.stock / repetitions});
    }
    bench::printGrowth(QStringLiteral("flow layout: growth from 10 to 10,000"),
                       bench::growthExponent(growth), 1.1, bench::growthExponent(stockGrowth));
    // Ten items stand in one row at every width, so nothing moves there.
    bench::printGrowth(QStringLiteral("flow layout: growth from 1,000 to 10,000"),
                       bench::growthExponent(growth.mid(1)), 0.0,
                       bench::growthExponent(stockGrowth.mid(1)));
}

void benchStorm()
{
    Ours ours(1000);
    Stock stock(1000);
    ours.show();
    stock.show();
    bench::printLine(QStringLiteral("flow layout: 200 resizes of a window of 1,000 items"),
                     bench::compare(repeated(&ours, resizes, &Ours::resize),
                                    repeated(&stock, resizes, &Stock::resize), 5),
                     resizes);
}

} // namespace

int main(int argc, char **argv)
{
    bench::prepareEnvironment(argc, argv);
    QApplication application(argc, argv);
    bench::prepareApplication();
    bench::printHead();
    benchShown();
    benchHidden();
    benchStorm();
    return 0;
}
