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

#include <memory>

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
    explicit OurPanel(int count, bool scroll = true) : Panel(count)
    {
        for (CollapsibleGroupBoxBasic *box : qAsConst(boxes)) {
            box->setSyncGroup(QStringLiteral("settings"));
            box->setScrollOnExpand(scroll);
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
        for (QGroupBox *box : qAsConst(boxes)) {
            box->setFlat(m_isFolded);
            const QObjectList children = box->children();
            for (QObject *child : children) {
                if (auto *widget = qobject_cast<QWidget *>(child)) {
                    widget->setVisible(!m_isFolded);
                }
            }
            box->setMaximumHeight(m_isFolded ? foldedRoom : QWIDGETSIZE_MAX);
        }
        QCoreApplication::processEvents();
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
    for (const int count : {100, 300}) {
        OurPanel ours(count);
        StockPanel stock(count);
        const bench::Comparison comparison =
            bench::compare(foldAndOpen(&ours), foldAndOpen(&stock), 1);
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

} // namespace

int main(int argc, char **argv)
{
    bench::prepareEnvironment();
    QApplication application(argc, argv);
    bench::prepareApplication();
    bench::printHead();
    benchPanels();
    return 0;
}
