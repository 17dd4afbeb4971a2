/** @file
 * The bytes of heap that a dialog and a layer row take, and whether anything grows when dialogs are
 * opened and closed 10,000 times, beside the stock ones. The heap is that of the C library; what
 * the display server keeps for the windows is not in it.
 */

#include "bench.h"

#include <lmwidgets/customlayertablewidget.h>
#include <lmwidgets/framelessmessagebox.h>
#include <lmwidgets/framelessprocessdialog.h>
#include <lmwidgets/talvodoubleinputdlg.h>
#include <lmwidgets/talvostylemanager.h>

#include <QApplication>
#include <QHeaderView>
#include <QInputDialog>
#include <QMessageBox>
#include <QProgressDialog>
#include <QTableWidget>
#include <QToolButton>

#include <malloc.h>
#include <memory>
#include <vector>

namespace {

using LM::Widgets::CustomLayerTableWidget;
using LM::Widgets::FramelessMessageBox;
using LM::Widgets::FramelessProcessDialog;
using LM::Widgets::TalvoStyleManager;

constexpr int dialogsAlive = 100;
constexpr int rows = 1000;
constexpr int columns = 6;
constexpr int warmUpRounds = 300;
constexpr int openings = 10000;
// A leak of one object in each round would be more than this many bytes.
constexpr double noGain = 4.0;

const auto buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
const QString title = QStringLiteral("Classification");
const QString text = QStringLiteral("The classification of 1,240 points has changed. "
                                    "Save it before the next scan is opened?");

void settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

double heapBytes()
{
#if defined(__GLIBC__) && (__GLIBC__ > 2 || __GLIBC_MINOR__ >= 33)
    const auto info = mallinfo2();
#else
    const auto info = mallinfo();
#endif
    return static_cast<double>(info.uordblks) + static_cast<double>(info.hblkhd);
}

using Make = std::unique_ptr<QWidget> (*)();

template <typename Box>
std::unique_ptr<QWidget> makeBox()
{
    return std::make_unique<Box>(QMessageBox::Question, title, text, buttons);
}

template <typename Dialog>
std::unique_ptr<QWidget> makeProgress()
{
    auto dialog = std::make_unique<Dialog>(text, QStringLiteral("Cancel"), 0, 100);
    dialog->setValue(50);
    return dialog;
}

std::unique_ptr<QWidget> makeOurInput()
{
    return std::make_unique<TalvoDoubleInputDlg>();
}

std::unique_ptr<QWidget> makeStockInput()
{
    auto dialog = std::make_unique<QInputDialog>();
    dialog->setInputMode(QInputDialog::DoubleInput);
    return dialog;
}

/** The bytes that one dialog takes that is shown and painted. */
double bytesOfDialog(Make make)
{
    std::vector<std::unique_ptr<QWidget>> alive;
    alive.reserve(dialogsAlive);
    const auto open = [&alive, make] {
        alive.push_back(make());
        alive.back()->show();
        settle();
    };
    open(); // what the first one fills is not its own
    alive.clear();
    settle();
    const double before = heapBytes();
    for (int i = 0; i < dialogsAlive; ++i) {
        open();
    }
    return (heapBytes() - before) / dialogsAlive;
}

/** The bytes that the heap gains in each round of opening and closing. */
double gainOf(Make make)
{
    const auto open = [make] {
        const auto dialog = make();
        dialog->show();
        settle();
        dialog->close();
    };
    for (int i = 0; i < warmUpRounds; ++i) {
        open();
    }
    settle();
    const double before = heapBytes();
    for (int i = 0; i < openings; ++i) {
        open();
    }
    settle();
    return (heapBytes() - before) / openings;
}

void addLayerRow(CustomLayerTableWidget *table)
{
    table->addLayerRow();
}

/** The same five buttons and icons as in the rows of the layer list. */
void addStockRow(QTableWidget *table)
{
    static const char *const images[] = {"delete_2dvec", "layer_edit", "layer_lock", "layer_view"};
    const int row = table->rowCount();
    table->insertRow(row);
    table->setItem(row, 0, new QTableWidgetItem(QStringLiteral("layer%1").arg(row)));
    for (int column = 1; column < columns; ++column) {
        auto *button = new QToolButton(table);
        button->setCheckable(true);
        button->setIconSize(QSize(20, 20));
        if (column < columns - 1) {
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

template <typename Table>
double bytesOfRow(Table *table, void (*add)(Table *))
{
    table->resize(400, 600);
    table->show();
    add(table);
    settle();
    const double before = heapBytes();
    for (int i = 0; i < rows; ++i) {
        add(table);
    }
    settle();
    return (heapBytes() - before) / rows;
}

} // namespace

int main(int argc, char **argv)
{
    bench::prepareEnvironment(argc, argv);
    QApplication application(argc, argv);
    bench::prepareApplication();

    struct Kind
    {
        const char *name;
        Make ours;
        Make stock;
    };
    const Kind kinds[] = {
        {"message box", makeBox<FramelessMessageBox>, makeBox<QMessageBox>},
        {"progress dialog", makeProgress<FramelessProcessDialog>, makeProgress<QProgressDialog>},
        {"value dialog", makeOurInput, makeStockInput},
    };
    bench::printHead();
    for (const Kind &kind : kinds) {
        bench::printBytes(QStringLiteral("memory: a live %1").arg(QLatin1String(kind.name)),
                          bytesOfDialog(kind.ours), bytesOfDialog(kind.stock));
    }
    {
        CustomLayerTableWidget ours;
        ours.creatUiType(CustomLayerTableWidget::LAYER_LIST);
        QTableWidget stock;
        stock.setColumnCount(columns);
        const double oursBytes = bytesOfRow(&ours, addLayerRow);
        bench::printBytes(QStringLiteral("memory: a layer row of 1,000"), oursBytes,
                          bytesOfRow(&stock, addStockRow));
    }
    for (const Kind &kind : {kinds[0], kinds[1]}) {
        bench::printGain(QStringLiteral("memory: gain in each of 10,000 rounds of a %1")
                             .arg(QLatin1String(kind.name)),
                         gainOf(kind.ours), gainOf(kind.stock), noGain);
    }
    return 0;
}
