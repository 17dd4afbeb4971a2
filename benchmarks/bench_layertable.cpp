/** @file
 * The layer list beside a plain QTableWidget with the same five tool buttons and icons in each row,
 * without any style sheet. Both tables are visible and of the same size.
 */

#include "bench.h"

#include <lmwidgets/customlayertablewidget.h>
#include <lmwidgets/talvostylemanager.h>

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableWidget>
#include <QToolButton>

#include <memory>

namespace {

using LM::Widgets::CustomLayerTableWidget;
using LM::Widgets::TalvoStyleManager;

constexpr int columns = 6;
constexpr int scrollSteps = 50;
constexpr int repaints = 20;
constexpr int additions = 5;

void settle()
{
    // Layout is delayed by timers of 0 ms, which may start each other; painting comes after them.
    for (int i = 0; i < 4; ++i) {
        QCoreApplication::processEvents();
    }
}

/** The layer list. */
class Ours
{
public:
    Ours() { m_table.creatUiType(CustomLayerTableWidget::LAYER_LIST); }
    QTableWidget *table() { return &m_table; }
    void addRow() { m_table.addLayerRow(); }

private:
    CustomLayerTableWidget m_table;
};

/** What a host would write without it. */
class Stock
{
public:
    Stock()
    {
        m_table.setColumnCount(columns);
        m_table.horizontalHeader()->setMinimumSectionSize(20);
        for (int column = 1; column < columns; ++column) {
            m_table.setColumnWidth(column, 20);
        }
        m_table.horizontalHeader()->hide();
        m_table.verticalHeader()->hide();
        m_table.setShowGrid(false);
        m_table.horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
        m_table.setSelectionBehavior(QAbstractItemView::SelectRows);
        m_table.setSelectionMode(QAbstractItemView::SingleSelection);
    }

    QTableWidget *table() { return &m_table; }

    void addRow()
    {
        const int row = m_table.rowCount();
        m_table.insertRow(row);
        m_table.setRowHeight(row, 32);
        m_table.setItem(row, 0, new QTableWidgetItem(QStringLiteral("layer%1").arg(row)));
        for (int column = 1; column < columns; ++column) {
            auto *button = new QToolButton(&m_table);
            button->setCheckable(true);
            button->setChecked(true);
            button->setIconSize(QSize(20, 20));
            button->setIcon(icon(column));
            QObject::connect(button, &QToolButton::clicked, &m_table, [row] { Q_UNUSED(row) });
            m_table.setCellWidget(row, column, button);
        }
    }

private:
    static QIcon icon(int column)
    {
        static const char *const images[] = {"delete_2dvec", "layer_edit", "layer_lock",
                                             "layer_view"};
        if (column < columns - 1) {
            return QIcon(TalvoStyleManager::instance()->currentThemePath() +
                         QLatin1String("qssimage/") + QLatin1String(images[column - 1]) +
                         QLatin1String(".png"));
        }
        QPixmap swatch(20, 20);
        swatch.fill(Qt::white);
        return QIcon(swatch);
    }

    QTableWidget m_table;
};

/** A visible table of the kind @p Kind, to which rows are added. */
template <typename Kind>
class Stage
{
public:
    /** Begins anew with an empty table. */
    void begin()
    {
        m_kind.reset();
        m_kind = std::make_unique<Kind>();
        m_kind->table()->resize(400, 600);
        m_kind->table()->show();
        settle();
    }

    void fill(int rows)
    {
        for (int i = 0; i < rows; ++i) {
            m_kind->addRow();
        }
        settle();
    }

    void addOneByOne()
    {
        for (int i = 0; i < additions; ++i) {
            fill(1);
        }
    }

    void goToTop()
    {
        m_kind->table()->verticalScrollBar()->setValue(0);
        settle();
    }

    void scroll()
    {
        QScrollBar *bar = m_kind->table()->verticalScrollBar();
        for (int i = 1; i <= scrollSteps; ++i) {
            bar->setValue(static_cast<int>(double(bar->maximum()) * i / scrollSteps));
            settle();
        }
    }

    void repaint()
    {
        for (int i = 0; i < repaints; ++i) {
            m_kind->table()->viewport()->update();
            settle();
        }
    }

    /** Begins anew before each round and adds @p rows rows in it. */
    bench::Side filling(int rows)
    {
        return {[this, rows](int) { fill(rows); }, [this](int) { begin(); }};
    }

private:
    std::unique_ptr<Kind> m_kind;
};

void benchAdding()
{
    Stage<Ours> ours;
    Stage<Stock> stock;
    const bench::Comparison hundred = bench::compare(ours.filling(100), stock.filling(100));
    bench::printLine(QStringLiteral("layer table: add 100 rows"), hundred, 1, 0.9);
    if (bench::isCounting()) {
        return; // the stock table takes half an hour for the next one then
    }
    const bench::Comparison thousand = bench::compare(ours.filling(1000), stock.filling(1000), 3);
    bench::printLine(QStringLiteral("layer table: add 1,000 rows"), thousand, 1, 0.3);

    ours.begin();
    const double tenThousand = bench::cost([&ours](int) { ours.fill(10000); }, 1);
    bench::printGrowth(QStringLiteral("layer table: growth of adding, 100 to 1,000"),
                       bench::growthExponent({{100, hundred.ours}, {1000, thousand.ours}}), 1.15,
                       bench::growthExponent({{100, hundred.stock}, {1000, thousand.stock}}));
    bench::printGrowth(QStringLiteral("layer table: growth of adding, 1,000 to 10,000"),
                       bench::growthExponent({{1000, thousand.ours}, {10000, tenThousand}}), 1.3);
}

void benchUsing(int rows, double goal)
{
    Stage<Ours> ours;
    Stage<Stock> stock;
    ours.begin();
    ours.fill(rows);
    stock.begin();
    stock.fill(rows);
    bench::printLine(
        QStringLiteral("layer table: scroll a step through %1 rows").arg(rows),
        bench::compare(
            bench::Side{[&ours](int) { ours.scroll(); }, [&ours](int) { ours.goToTop(); }},
            bench::Side{[&stock](int) { stock.scroll(); }, [&stock](int) { stock.goToTop(); }}, 7),
        scrollSteps, goal);
    bench::printLine(
        QStringLiteral("layer table: repaint with %1 rows").arg(rows),
        bench::compare([&ours](int) { ours.repaint(); }, [&stock](int) { stock.repaint(); }, 9),
        repaints, goal);
    bench::printLine(QStringLiteral("layer table: one more row after %1").arg(rows),
                     bench::compare([&ours](int) { ours.addOneByOne(); },
                                    [&stock](int) { stock.addOneByOne(); }, 7),
                     additions);
}

} // namespace

int main(int argc, char **argv)
{
    bench::prepareEnvironment(argc, argv);
    QApplication application(argc, argv);
    bench::prepareApplication();
    bench::printHead();
    benchAdding();
    benchUsing(100, 0.0);
    if (!bench::isCounting()) {
        benchUsing(1000, 1.3);
    }
    return 0;
}
