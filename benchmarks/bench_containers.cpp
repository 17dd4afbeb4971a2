/** @file
 * A settings panel of collapsible group boxes beside one of stock group boxes whose children are
 * hidden and shown.
 */

#include "bench.h"

#include <lmwidgets/collapsiblegroupboxbasic.h>
#include <lmwidgets/groupboxcollapsebutton.h>

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

constexpr int childrenOfABox = 5;
constexpr int goalCount = 100;
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
    for (const int count : {goalCount, 300, 1000}) {
        OurPanel ours(count);
        StockPanel stock(count);
        const bench::Comparison comparison =
            bench::compare(foldAndOpen(&ours), foldAndOpen(&stock), 5);
        bench::printLine(QStringLiteral("%1 boxes: fold and open the group, per box").arg(count),
                         comparison, count, count == goalCount ? 4.0 : 0.0);
        growth.append({double(count), comparison.ours});
        stockGrowth.append({double(count), comparison.stock});
    }
    bench::printGrowth(QStringLiteral("boxes: growth from 100 to 1000"),
                       bench::growthExponent(growth), 0.0, bench::growthExponent(stockGrowth));
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

} // namespace

int main(int argc, char **argv)
{
    bench::prepareEnvironment(argc, argv);
    QApplication application(argc, argv);
    bench::prepareApplication();
    bench::printHead();
    benchOneBox();
    benchPanels();
    return 0;
}
