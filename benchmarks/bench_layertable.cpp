/** @file
 * Times the layer list beside a plain QTableWidget with five QToolButtons in each row.
 *
 * The plain table comes in two kinds: with the layer list's style sheet on each button, and without
 * any style sheet. All tables are visible and of the same size. Figures are the CPU time of this
 * process; the kinds take turns, and the median of the rounds counts.
 *
 *     bench_layertable [--all]
 *
 * With --all, the plain tables are filled with 10,000 rows as well, which takes minutes.
 */

#include "bench.h"

#include <lmwidgets/customlayertablewidget.h>
#include <lmwidgets/talvostylemanager.h>

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableWidget>
#include <QTextStream>
#include <QToolButton>
#include <QVector>

#include <cmath>
#include <functional>
#include <memory>

namespace {

using LM::Widgets::CustomLayerTableWidget;
using LM::Widgets::TalvoStyleManager;

enum Kind { Layers, Plain, PlainStyled, KindCount };
const char *const kindNames[KindCount] = {"layer list", "plain", "plain, styled"};

double cpuMilliseconds()
{
    return 1000.0 * bench::cpuSeconds();
}

void settle()
{
    // Layout is delayed by timers of 0 ms, which may start each other; painting comes after them.
    for (int i = 0; i < 4; ++i) {
        QCoreApplication::processEvents();
    }
}

void setUpPlain(QTableWidget *table)
{
    table->setColumnCount(6);
    table->horizontalHeader()->setMinimumSectionSize(20);
    for (int column = 1; column < 6; ++column) {
        table->setColumnWidth(column, 20);
    }
    table->horizontalHeader()->hide();
    table->verticalHeader()->hide();
    table->setShowGrid(false);
    table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
}

void addPlainRow(QTableWidget *table, bool styled)
{
    static const char *const images[] = {"delete_2dvec", "layer_edit", "layer_lock", "layer_view"};
    const int row = table->rowCount();
    table->insertRow(row);
    table->setRowHeight(row, 32);
    table->setItem(row, 0, new QTableWidgetItem(QStringLiteral("layer%1").arg(row)));
    for (int column = 1; column < 6; ++column) {
        auto *button = new QToolButton(table);
        button->setCheckable(true);
        button->setChecked(true);
        button->setIconSize(QSize(20, 20));
        if (styled) {
            button->setStyleSheet(
                QStringLiteral("background-color: transparent;border: 0px solid #3C3C3C; "));
        }
        if (column < 5) {
            button->setIcon(QIcon(TalvoStyleManager::instance()->currentThemePath() +
                                  QLatin1String("qssimage/") + QLatin1String(images[column - 1]) +
                                  QLatin1String(".png")));
        } else {
            QPixmap swatch(20, 20);
            swatch.fill(Qt::white);
            button->setIcon(QIcon(swatch));
        }
        QObject::connect(button, &QToolButton::clicked, table, [row] { Q_UNUSED(row) });
        table->setCellWidget(row, column, button);
    }
}

std::unique_ptr<QTableWidget> visibleTable(Kind kind)
{
    std::unique_ptr<QTableWidget> table;
    if (kind == Layers) {
        auto layers = std::make_unique<CustomLayerTableWidget>();
        layers->creatUiType(CustomLayerTableWidget::LAYER_LIST);
        table = std::move(layers);
    } else {
        table = std::make_unique<QTableWidget>();
        setUpPlain(table.get());
    }
    table->resize(400, 600);
    table->show();
    settle();
    return table;
}

void addRows(Kind kind, QTableWidget *table, int count)
{
    for (int i = 0; i < count; ++i) {
        if (kind == Layers) {
            static_cast<CustomLayerTableWidget *>(table)->addLayerRow();
        } else {
            addPlainRow(table, kind == PlainStyled);
        }
    }
}

/** From the first row until the filled table is on the screen. */
double addingTime(Kind kind, int rows)
{
    const auto table = visibleTable(kind);
    const double start = cpuMilliseconds();
    addRows(kind, table.get(), rows);
    settle();
    return cpuMilliseconds() - start;
}

/** A visible table with @p rows rows that stands on the screen. */
std::unique_ptr<QTableWidget> filledTable(Kind kind, int rows)
{
    auto table = visibleTable(kind);
    addRows(kind, table.get(), rows);
    settle();
    return table;
}

/** One more row, until it is on the screen. */
double oneMoreTime(Kind kind, QTableWidget *table)
{
    constexpr int Repetitions = 5;
    const double start = cpuMilliseconds();
    for (int i = 0; i < Repetitions; ++i) {
        addRows(kind, table, 1);
        settle();
    }
    return (cpuMilliseconds() - start) / Repetitions;
}

double scrollTime(Kind kind, QTableWidget *table)
{
    Q_UNUSED(kind)
    constexpr int Steps = 50;
    QScrollBar *bar = table->verticalScrollBar();
    bar->setValue(0);
    settle();
    const double start = cpuMilliseconds();
    for (int i = 1; i <= Steps; ++i) {
        bar->setValue(int(double(bar->maximum()) * i / Steps));
        settle();
    }
    return (cpuMilliseconds() - start) / Steps;
}

/** Paints all that can be seen. */
double repaintTime(Kind kind, QTableWidget *table)
{
    Q_UNUSED(kind)
    constexpr int Repetitions = 20;
    const double start = cpuMilliseconds();
    for (int i = 0; i < Repetitions; ++i) {
        table->viewport()->update();
        settle();
    }
    return (cpuMilliseconds() - start) / Repetitions;
}

using Times = QVector<double>; // one for each kind; 0 if it was left out

Times compare(const std::function<double(Kind)> &measure, int rounds, int kinds = KindCount)
{
    QVector<QVector<double>> all(KindCount);
    for (int round = 0; round <= rounds; ++round) {
        for (int kind = 0; kind < kinds; ++kind) {
            const double time = measure(Kind(kind));
            if (round > 0 || rounds == 1) { // the first round warms the caches
                all[kind].append(time);
            }
        }
        if (rounds == 1) {
            break;
        }
    }
    Times result(KindCount);
    for (int kind = 0; kind < kinds; ++kind) {
        result[kind] = bench::median(all.at(kind));
    }
    return result;
}

void print(QTextStream &out, const QString &what, const Times &times)
{
    out << what.leftJustified(34);
    for (int kind = 0; kind < KindCount; ++kind) {
        const QString time =
            times.at(kind) > 0 ? QString::number(times.at(kind), 'f', 3) : QStringLiteral("-");
        out << kindNames[kind] << ' ' << time << " ms  ";
    }
    for (int kind = Plain; kind < KindCount; ++kind) {
        if (times.at(kind) > 0) {
            out << "ratio to " << kindNames[kind] << ' '
                << QString::number(times.at(Layers) / times.at(kind), 'f', 2) << "  ";
        }
    }
    out << '\n';
    out.flush();
}

void printGrowth(QTextStream &out, const QString &what, const Times &less, const Times &more)
{
    out << what.leftJustified(34);
    for (int kind = 0; kind < KindCount; ++kind) {
        if (more.at(kind) > 0) {
            out << kindNames[kind] << ' '
                << QString::number(std::log10(more.at(kind) / less.at(kind)), 'f', 2) << "  ";
        }
    }
    out << '\n';
    out.flush();
}

} // namespace

int main(int argc, char **argv)
{
    bench::prepareEnvironment();
    QApplication application(argc, argv);
    bench::prepareApplication();
    const bool all = application.arguments().contains(QStringLiteral("--all"));
    QTextStream out(stdout);

    const Times hundred = compare([](Kind kind) { return addingTime(kind, 100); }, 15);
    print(out, QStringLiteral("add 100 rows"), hundred);
    const Times thousand = compare([](Kind kind) { return addingTime(kind, 1000); }, 3);
    print(out, QStringLiteral("add 1,000 rows"), thousand);
    const Times tenThousand =
        compare([](Kind kind) { return addingTime(kind, 10000); }, 1, all ? KindCount : Plain);
    print(out, QStringLiteral("add 10,000 rows"), tenThousand);
    printGrowth(out, QStringLiteral("growth exponent 100 to 1,000"), hundred, thousand);
    printGrowth(out, QStringLiteral("growth exponent 1,000 to 10,000"), thousand, tenThousand);

    for (const int rows : {100, 1000}) {
        std::unique_ptr<QTableWidget> tables[KindCount];
        for (int kind = 0; kind < KindCount; ++kind) {
            tables[kind] = filledTable(Kind(kind), rows);
        }
        const auto measureWith = [&tables](double (*time)(Kind, QTableWidget *)) {
            return compare([&](Kind kind) { return time(kind, tables[kind].get()); }, 7);
        };
        print(out, QStringLiteral("scroll a step through %1 rows").arg(rows),
              measureWith(scrollTime));
        print(out, QStringLiteral("repaint with %1 rows").arg(rows), measureWith(repaintTime));
        print(out, QStringLiteral("one more row after %1").arg(rows), measureWith(oneMoreTime));
    }
    return 0;
}
