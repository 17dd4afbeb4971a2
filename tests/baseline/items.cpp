#include "subject.h"

#include <lmwidgets/checkboxheaderview.h>
#include <lmwidgets/customdelegate.h>
#include <lmwidgets/customlayertablewidget.h>
#include <lmwidgets/customlayertoolbutton.h>
#include <lmwidgets/kvitemdoublespinboxdelegate.h>
#include <lmwidgets/kvitemlineeditdelegate.h>

#include <QComboBox>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QStandardItemModel>
#include <QTableView>

namespace baseline {

using LM::Widgets::CheckBoxHeaderView;
using LM::Widgets::CustomDelegate;
using LM::Widgets::CustomLayerTableWidget;
using LM::Widgets::customLayerToolButton;

namespace {

constexpr QSize ViewSize(300, 130);
constexpr QSize LayerListSize(460, 130);
constexpr int PanelWidth = 300;
constexpr int HeaderHeight = 32;
constexpr int BoxSize = 16;
constexpr int BoxLeft = 8;
constexpr int FirstWidth = 150;

/** A table of layers with their heights; its second row is current where a state says so. */
QTableView *view(bool checkable)
{
    auto *table = new QTableView;
    auto *model = new QStandardItemModel(0, 2, table);
    model->setHorizontalHeaderLabels({QStringLiteral("Layer"), QStringLiteral("Height")});
    const QVector<QPair<QString, QString>> rows = {
        {QStringLiteral("Ground"), QStringLiteral("0.000")},
        {QStringLiteral("Kerb stones and gutters"), QStringLiteral("0.125")},
        {QStringLiteral("Facades"), QString()}};
    for (const auto &row : rows) {
        auto *name = new QStandardItem(row.first);
        if (checkable) {
            name->setCheckable(true);
            name->setCheckState(model->rowCount() == 1 ? Qt::Unchecked : Qt::Checked);
        }
        model->appendRow({name, new QStandardItem(row.second)});
    }
    table->setModel(model);
    table->verticalHeader()->hide();
    table->setColumnWidth(0, FirstWidth);
    table->setFixedSize(ViewSize);
    return table;
}

QTableView *viewWithHeader(bool checked)
{
    QTableView *table = view(true);
    auto *header = new CheckBoxHeaderView(0, QPoint(BoxLeft, (HeaderHeight - BoxSize) / 2),
                                          QSize(BoxSize, BoxSize), Qt::Horizontal, table);
    header->setFixedHeight(HeaderHeight);
    header->setCheckState(checked);
    table->setHorizontalHeader(header);
    table->setColumnWidth(0, FirstWidth);
    return table;
}

Subject headers()
{
    const Create checked = [] { return viewWithHeader(true); };
    return {QStringLiteral("CheckBoxHeaderView"),
            {{QStringLiteral("checked"), checked, nullptr},
             {QStringLiteral("not checked"), [] { return viewWithHeader(false); }, nullptr},
             {QStringLiteral("hovered"), checked,
              [](QWidget *shown) {
                  hover(static_cast<QTableView *>(shown)->horizontalHeader()->viewport(),
                        QPoint(FirstWidth / 2, HeaderHeight / 2));
                  return shown;
              }},
             {QStringLiteral("disabled"), disabled(checked), nullptr}}};
}

QModelIndex cell(QWidget *shown, int row, int column)
{
    return static_cast<QTableView *>(shown)->model()->index(row, column);
}

/** Qt's selectRow() looks for a column beside the view when that is laid out from right to left. */
void selectSecondRow(QWidget *shown)
{
    const auto flags = QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
    static_cast<QTableView *>(shown)->selectionModel()->setCurrentIndex(cell(shown, 1, 0), flags);
}

/** The states of the items of a view that @p create makes. */
QVector<State> itemStates(const Create &create)
{
    return {{QStringLiteral("normal"), create, nullptr},
            {QStringLiteral("hovered"), create,
             [](QWidget *shown) {
                 auto *table = static_cast<QTableView *>(shown);
                 hover(table->viewport(), table->visualRect(cell(shown, 1, 0)).center());
                 return shown;
             }},
            {QStringLiteral("selected"), create,
             [](QWidget *shown) {
                 selectSecondRow(shown);
                 return shown;
             }},
            {QStringLiteral("selected and focused"), create,
             [](QWidget *shown) {
                 selectSecondRow(shown);
                 return focus(shown);
             }},
            {QStringLiteral("disabled"), disabled(create), nullptr}};
}

Subject delegates()
{
    const auto create = [](bool checkable) {
        return [checkable] {
            QTableView *table = view(checkable);
            table->setItemDelegateForColumn(0, new CustomDelegate(table));
            return table;
        };
    };
    Subject subject{QStringLiteral("CustomDelegate"), itemStates(create(true))};
    subject.states.append({QStringLiteral("no check boxes"), create(false), nullptr});
    return subject;
}

/** Opens the editor of the second column in @p row. */
Arrange edit(int row)
{
    return [row](QWidget *shown) {
        auto *table = static_cast<QTableView *>(shown);
        table->setCurrentIndex(cell(shown, row, 1));
        table->edit(cell(shown, row, 1));
        return shown;
    };
}

Subject numberDelegates()
{
    const auto create = [](bool mayBeEmpty) {
        return [mayBeEmpty] {
            QTableView *table = view(false);
            auto *delegate = new kvItemDoubleSpinboxDelegate(table);
            delegate->setEnableEmptyStr(mayBeEmpty);
            delegate->setMinValue(-100);
            delegate->setMaxValue(100);
            table->setItemDelegateForColumn(1, delegate);
            return table;
        };
    };
    Subject subject{QStringLiteral("kvItemDoubleSpinboxDelegate"), itemStates(create(false))};
    subject.states += {{QStringLiteral("edited"), create(false), edit(1)},
                       {QStringLiteral("nothing edited"), create(false), edit(2)},
                       {QStringLiteral("nothing edited and allowed"), create(true), edit(2)}};
    return subject;
}

Subject textDelegates()
{
    const Create create = [] {
        QTableView *table = view(false);
        const QRegExp number(QStringLiteral("[0-9.]*"));
        table->setItemDelegateForColumn(1, new KVItemLineEditDelegate(number, table));
        return table;
    };
    Subject subject{QStringLiteral("KVItemLineEditDelegate"), itemStates(create)};
    subject.states += {{QStringLiteral("edited"), create, edit(1)},
                       {QStringLiteral("nothing edited"), create, edit(2)}};
    return subject;
}

customLayerToolButton *layerButton(CustomLayerTableWidget *table, int row, int column)
{
    return qobject_cast<customLayerToolButton *>(table->cellWidget(row, column));
}

/** The list with three layers: a usual, a locked and a hidden one. */
CustomLayerTableWidget *layerList()
{
    auto *table = new CustomLayerTableWidget;
    table->creatUiType(CustomLayerTableWidget::LAYER_LIST);
    const QStringList names = {QStringLiteral("Buildings"), QStringLiteral("Ground points"),
                               QStringLiteral("A layer with quite a long name")};
    const QColor colors[] = {QColor(230, 70, 60), QColor(170, 120, 60), QColor(80, 170, 80)};
    for (int row = 0; row < names.size(); ++row) {
        table->addLayerRow();
        table->item(row, 0)->setText(names.at(row));
        layerButton(table, row, 3)->setLockState(row == 1);
        layerButton(table, row, 4)->setVisibleState(row != 2);
        layerButton(table, row, 5)->setColor(colors[row]);
    }
    table->setFixedSize(LayerListSize);
    return table;
}

/** A panel that is as high as its rows. */
CustomLayerTableWidget *layerPanel(CustomLayerTableWidget::DISPLAYWINDOW type)
{
    auto *table = new CustomLayerTableWidget;
    table->creatUiType(type);
    int height = 2 * table->frameWidth();
    for (int row = 0; row < table->rowCount(); ++row) {
        height += table->rowHeight(row);
        auto *box = qobject_cast<QComboBox *>(table->cellWidget(row, 1));
        if (box && box->objectName().contains(QLatin1String("Width"))) {
            box->addItem(QStringLiteral("0.25 mm"), 0.25);
        }
    }
    table->setFixedSize(PanelWidth, height);
    return table;
}

Subject layerTables()
{
    const Create list = [] { return layerList(); };
    const auto panel = [](CustomLayerTableWidget::DISPLAYWINDOW type) {
        return [type] { return layerPanel(type); };
    };
    const auto properties = panel(CustomLayerTableWidget::LAYER_PROPERTIES);
    const auto object = panel(CustomLayerTableWidget::OBJECT_PROPERTIES);
    // The boxes of line types have their items as soon as they have a size.
    const Arrange fillProperties = [](QWidget *shown) {
        static_cast<CustomLayerTableWidget *>(shown)->setLayerProperties(
            {QStringLiteral("Roads"), QStringLiteral("ACAD_ISO04W100"), 0.25});
        return shown;
    };
    const Arrange fillObject = [](QWidget *shown) {
        static_cast<CustomLayerTableWidget *>(shown)->setObjectProperties(
            {QStringLiteral("Roads"), 0, 0, 0});
        return shown;
    };
    Subject subject{QStringLiteral("CustomLayerTableWidget"), itemStates(list)};
    subject.states +=
        {{QStringLiteral("list with a name edited"), list,
          [](QWidget *shown) {
              auto *table = static_cast<CustomLayerTableWidget *>(shown);
              table->editItem(table->item(0, 0));
              return shown;
          }},
         {QStringLiteral("empty list"),
          [] {
              auto *table = new CustomLayerTableWidget;
              table->creatUiType(CustomLayerTableWidget::LAYER_LIST);
              table->setFixedSize(LayerListSize);
              return table;
          },
          nullptr},
         {QStringLiteral("layer properties"), properties, fillProperties},
         {QStringLiteral("layer properties disabled"), disabled(properties), fillProperties},
         {QStringLiteral("object properties"), object, fillObject}};
    return subject;
}

} // namespace

QVector<Subject> itemSubjects()
{
    return {headers(), delegates(), numberDelegates(), textDelegates(), layerTables()};
}

} // namespace baseline
