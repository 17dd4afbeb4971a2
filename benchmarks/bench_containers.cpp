/** @file
 * A settings panel of collapsible group boxes beside one of stock group boxes whose children are
 * hidden and shown, and the flow layout beside a stock grid of the same items.
 */

#include "bench.h"

#include <lmwidgets/collapsiblegroupboxbasic.h>
#include <lmwidgets/flowlayout.h>
#include <lmwidgets/groupboxcollapsebutton.h>

#include <QApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollArea>
#include <QVBoxLayout>

using LM::Widgets::FlowLayout;

namespace {

constexpr int childrenOfABox = 5;
constexpr int foldedRoom = 22; // px, about as high as a folded box of ours

/** A column of boxes with labels in them, in a scroll area. */
template <typename Box>
class Panel
{
public:
    explicit Panel(int count)
    {
        auto *content = new QWidget;
        auto *column = new QVBoxLayout(content);
        for (int i = 0; i < count; ++i) {
            auto *box = new Box(QStringLiteral("Group %1").arg(i));
            auto *inner = new QVBoxLayout(box);
            for (int child = 0; child < childrenOfABox; ++child) {
                inner->addWidget(new QLabel(QStringLiteral("Setting %1").arg(child)));
            }
            column->addWidget(box);
            boxes.append(box);
        }
        column->addStretch();
        area.setWidgetResizable(true);
        area.setWidget(content);
        area.resize(300, 600);
        area.show();
        QCoreApplication::processEvents();
    }

    QScrollArea area;
    QVector<Box *> boxes;
};

/** Clicks on the arrow of the first box with Ctrl, which folds or opens all boxes. */
class OurPanel : public Panel<CollapsibleGroupBoxBasic>
{
public:
    explicit OurPanel(int count) : Panel(count)
    {
        for (CollapsibleGroupBoxBasic *box : qAsConst(boxes)) {
            box->setSyncGroup(QStringLiteral("settings"));
        }
    }

    void toggle()
    {
        auto *arrow = boxes.first()->findChild<GroupBoxCollapseButton *>();
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, QPointF(8, 8), Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                              Qt::ControlModifier);
            QApplication::sendEvent(arrow, &event);
        }
        QCoreApplication::processEvents();
    }
};

/** Hides or shows the children of all boxes, as a host without collapsible boxes would. */
class StockPanel : public Panel<QGroupBox>
{
public:
    using Panel::Panel;

    void toggle()
    {
        m_isFolded = !m_isFolded;
        for (int i = 0; i < boxes.size(); ++i) {
            toggleBox(i, m_isFolded);
        }
        QCoreApplication::processEvents();
    }

    void toggleBox(int index, bool fold)
    {
        QGroupBox *box = boxes.at(index);
        box->setFlat(fold);
        const QObjectList children = box->children();
        for (QObject *child : children) {
            if (auto *widget = qobject_cast<QWidget *>(child)) {
                widget->setVisible(!fold);
            }
        }
        box->setMaximumHeight(fold ? foldedRoom : QWIDGETSIZE_MAX);
    }

private:
    bool m_isFolded = false;
};

template <typename Panel>
bench::Work foldAndOpen(Panel *panel)
{
    return [panel](int) {
        panel->toggle();
        panel->toggle();
    };
}

void benchPanels()
{
    QVector<bench::Point> growth;
    QVector<bench::Point> stockGrowth;
    for (const int count : {100, 300, 1000}) {
        OurPanel ours(count);
        StockPanel stock(count);
        const bench::Comparison comparison =
            bench::compare(foldAndOpen(&ours), foldAndOpen(&stock), 5);
        bench::printLine(QStringLiteral("%1 boxes: fold and open the group, per box").arg(count),
                         comparison, count);
        growth.append({double(count), comparison.ours});
        stockGrowth.append({double(count), comparison.stock});
    }
    bench::printGrowth(QStringLiteral("boxes: growth from 100 to 1000"),
                       bench::growthExponent(growth), 1.0);
    bench::printGrowth(QStringLiteral("stock boxes: growth from 100 to 1000"),
                       bench::growthExponent(stockGrowth));
}

/** One box of a long panel by its arrow, beside the same with stock boxes. */
void benchOneBox()
{
    constexpr int count = 300;
    constexpr int repetitions = 20;
    OurPanel ours(count);
    StockPanel stock(count);
    const auto toggleFirst = [&](int) {
        for (int i = 0; i < repetitions; ++i) {
            ours.boxes.first()->toggleCollapsed();
            QCoreApplication::processEvents();
        }
    };
    const auto toggleFirstStock = [&](int) {
        for (int i = 0; i < repetitions; ++i) {
            stock.toggleBox(0, i % 2 == 0);
            QCoreApplication::processEvents();
        }
    };
    bench::printLine(QStringLiteral("%1 boxes: fold or open one").arg(count),
                     bench::compare(toggleFirst, toggleFirstStock), repetitions);
}

/** A window of tags with a layout of the kind @p Layout. */
template <typename Layout>
class Tags
{
public:
    Tags(Layout *layout, int count) : m_layout(layout)
    {
        for (int i = 0; i < count; ++i) {
            // As many different widths as a real set of tags has.
            auto *tag = new QWidget;
            tag->setMinimumSize(20 + i * 7 % 40, 16);
            m_layout->addWidget(tag);
        }
        m_window.setLayout(m_layout);
        // Offscreen windows may be as large as they like; no row is cut off.
        m_window.resize(640, 480);
    }

    void show()
    {
        m_window.show();
        QCoreApplication::processEvents();
    }

    /** What a parent does that has found out that an item changed. */
    void layOut(int width)
    {
        m_layout->invalidate();
        place(width);
    }
    /** What a parent does that is resized. */
    void place(int width)
    {
        const int height = m_layout->hasHeightForWidth() ? m_layout->heightForWidth(width)
                                                         : m_layout->sizeHint().height();
        m_layout->setGeometry(QRect(0, 0, width, height));
    }
    void resize(int width)
    {
        m_window.resize(width, 480);
        QCoreApplication::processEvents();
    }

private:
    QWidget m_window;
    Layout *m_layout;
};

/** The stock layout that is nearest to rows of tags: a grid that is filled row by row, narrow
 * enough for all widths here. */
class Grid : public QGridLayout
{
public:
    Grid()
    {
        setContentsMargins(0, 0, 0, 0);
        setSpacing(6);
        setDefaultPositioning(7, Qt::Horizontal);
    }
};

template <typename Window>
bench::Work layOuts(Window *window, int repetitions, void (Window::*function)(int))
{
    return [=](int round) {
        for (int i = 0; i < repetitions; ++i) {
            (window->*function)(500 + (i * 13 + round) % 200);
        }
    };
}

void benchFlow()
{
    constexpr int most = 10000;
    constexpr int resizes = 200;
    QVector<bench::Point> growth;
    QVector<bench::Point> stockGrowth;
    for (const int count : {10, 1000, most}) {
        using Flow = Tags<FlowLayout>;
        using Stock = Tags<QGridLayout>;
        Flow ours(new FlowLayout(0, 6, 6), count);
        Stock stock(new Grid, count);
        const int repetitions = most / count;
        const bench::Comparison changed =
            bench::compare(layOuts(&ours, repetitions, &Flow::layOut),
                           layOuts(&stock, repetitions, &Stock::layOut), 9);
        bench::printLine(QStringLiteral("%1 tags: lay out after a change").arg(count), changed,
                         repetitions);
        bench::printLine(QStringLiteral("%1 tags: lay out in another width").arg(count),
                         bench::compare(layOuts(&ours, repetitions, &Flow::place),
                                        layOuts(&stock, repetitions, &Stock::place), 9),
                         repetitions);
        growth.append({double(count), changed.ours / repetitions});
        stockGrowth.append({double(count), changed.stock / repetitions});
    }
    bench::printGrowth(QStringLiteral("tags: growth from 10 to 10000"),
                       bench::growthExponent(growth), 1.0);
    bench::printGrowth(QStringLiteral("stock grid: growth from 10 to 10000"),
                       bench::growthExponent(stockGrowth));

    using Flow = Tags<FlowLayout>;
    using Stock = Tags<QGridLayout>;
    Flow ours(new FlowLayout(0, 6, 6), 1000);
    Stock stock(new Grid, 1000);
    ours.show();
    stock.show();
    bench::printLine(QStringLiteral("1000 tags: a storm of 200 resizes, per resize"),
                     bench::compare(layOuts(&ours, resizes, &Flow::resize),
                                    layOuts(&stock, resizes, &Stock::resize), 5),
                     resizes);
}

} // namespace

int main(int argc, char **argv)
{
    bench::prepareEnvironment();
    QApplication application(argc, argv);
    bench::prepareApplication();
    bench::printHead();
    benchOneBox();
    benchPanels();
    benchFlow();
    return 0;
}
