#include "page.h"
#include "pageparts.h"
#include "signallog.h"

#include <lmwidgets/customlayertablewidget.h>
#include <lmwidgets/customlayertoolbutton.h>

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTimer>
#include <QVBoxLayout>
#include <QVector>

namespace gallery {

using LM::Widgets::CustomLayerTableWidget;
using LM::Widgets::customLayerToolButton;

namespace {

using Table = CustomLayerTableWidget;

constexpr int ListHeight = 210;
constexpr int PanelMargin = 8;

// Where the layer list shows what.
enum Column { NameColumn, DeleteColumn, EditColumn, LockColumn, VisibleColumn, ColorColumn };

struct Layer
{
    QString name;
    QColor color = Qt::white;
    bool locked = false;
    bool visible = true;
    QString lineType = QStringLiteral("CONTINUOUS");
    double lineWidth = 0.25;
};

/** The widths in mm that drawings use. */
const QVector<double> &lineWidths()
{
    static const QVector<double> widths = {0.13, 0.18, 0.25, 0.35, 0.5, 0.7, 1.0};
    return widths;
}

void fillWidths(QComboBox *box)
{
    for (const double width : lineWidths()) {
        box->addItem(QStringLiteral("%1 mm").arg(width, 0, 'f', 2), width);
    }
}

QComboBox *boxAt(const Table *table, int row)
{
    return qobject_cast<QComboBox *>(table->cellWidget(row, 1));
}

customLayerToolButton *buttonAt(const Table *table, int row, int column)
{
    return qobject_cast<customLayerToolButton *>(table->cellWidget(row, column));
}

/** What a host does around the three panels: it keeps the layers, and the panels show them. */
class LayerHost : public QWidget
{
public:
    explicit LayerHost(SignalLog &log);

private:
    void connectPanels();
    void watchPanels(SignalLog &log);
    void addLayer(const Layer &layer);
    void showLayers();
    void showLayer(int row);
    void showCurrent();
    void change(int row, const QVariant &value, Table::RESULTBUTTONTYPE type);
    void removeLayer(int row);
    Layer *currentLayer();

    Table *m_list;
    Table *m_layerPanel;
    Table *m_objectPanel;
    QVector<Layer> m_layers;
    int m_current = 0;
    int m_made = 0;
    bool m_showing = false; // the host itself changes the list
};

/** A table as high as its rows. */
Table *createPanel(Table::DISPLAYWINDOW type)
{
    auto *table = new Table;
    table->creatUiType(type);
    int height = 2 * table->frameWidth();
    for (int row = 0; row < table->rowCount(); ++row) {
        height += table->rowHeight(row);
    }
    table->setFixedHeight(height);
    return table;
}

LayerHost::LayerHost(SignalLog &log)
    : m_list(new Table),
      m_layerPanel(createPanel(Table::LAYER_PROPERTIES)),
      m_objectPanel(createPanel(Table::OBJECT_PROPERTIES))
{
    m_list->creatUiType(Table::LAYER_LIST);
    m_list->setMinimumHeight(ListHeight);
    fillWidths(boxAt(m_layerPanel, 2));
    fillWidths(boxAt(m_objectPanel, 3));

    auto *panels = new QWidget;
    auto *panelLayout = new QVBoxLayout(panels);
    panelLayout->setContentsMargins(0, 0, 0, 0);
    panelLayout->addWidget(new QLabel(QStringLiteral("The current layer")));
    panelLayout->addWidget(m_layerPanel);
    panelLayout->addSpacing(PanelMargin);
    panelLayout->addWidget(new QLabel(QStringLiteral("An object on it")));
    panelLayout->addWidget(m_objectPanel);
    panelLayout->addStretch();

    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    layout->addWidget(m_list, 0, 0);
    layout->addWidget(panels, 0, 1);
    layout->addWidget(row({button(QStringLiteral("Add a layer"),
                                  [this] {
                                      Layer layer;
                                      layer.name = QStringLiteral("Layer %1").arg(++m_made);
                                      addLayer(layer);
                                  }),
                           button(QStringLiteral("Add 100"),
                                  [this] {
                                      for (int i = 0; i < 100; ++i) {
                                          Layer layer;
                                          layer.name = QStringLiteral("Layer %1").arg(++m_made);
                                          addLayer(layer);
                                      }
                                  })}),
                      1, 0);

    m_layers = {{QStringLiteral("Ground points"), QColor(170, 120, 60), true, true},
                {QStringLiteral("Buildings"), QColor(230, 70, 60)},
                {QStringLiteral("Roads"), QColor(Qt::lightGray), false, true,
                 QStringLiteral("ACAD_ISO04W100"), 0.5},
                {QStringLiteral("Vegetation"), QColor(80, 170, 80), false, false},
                {QStringLiteral("Boundaries"), QColor(255, 200, 5), true, true,
                 QStringLiteral("ACAD_ISO10W100"), 0.7}};
    showLayers();
    connectPanels();
    watchPanels(log);
    // The boxes of line types have their items as soon as they have a size.
    QTimer::singleShot(0, this, [this] { showCurrent(); });
}

void LayerHost::connectPanels()
{
    connect(m_list, &Table::signalUpdateModel, this, &LayerHost::change);
    connect(m_list, &Table::signalRemoveSelectRow, this, &LayerHost::removeLayer);
    connect(m_list, &QTableWidget::itemChanged, this, [this](QTableWidgetItem *item) {
        if (!m_showing && item->column() == NameColumn && item->row() < m_layers.size()) {
            m_layers[item->row()].name = item->text();
            showCurrent();
        }
    });
    connect(m_list, &QTableWidget::currentCellChanged, this, [this](int row) {
        if (!m_showing && row >= 0) {
            m_current = row;
            showCurrent();
        }
    });
    QComboBox *lineType = boxAt(m_layerPanel, 1);
    connect(lineType, QOverload<int>::of(&QComboBox::activated), this, [this, lineType] {
        if (Layer *layer = currentLayer()) {
            layer->lineType = lineType->currentData().toString();
            showCurrent();
        }
    });
    QComboBox *lineWidth = boxAt(m_layerPanel, 2);
    connect(lineWidth, QOverload<int>::of(&QComboBox::activated), this, [this, lineWidth] {
        if (Layer *layer = currentLayer()) {
            layer->lineWidth = lineWidth->currentData().toDouble();
            showCurrent();
        }
    });
}

void LayerHost::watchPanels(SignalLog &log)
{
    log.watch(m_list, QStringLiteral("layers"));
    log.watch(boxAt(m_layerPanel, 1), QStringLiteral("layer line style"));
    log.watch(boxAt(m_layerPanel, 2), QStringLiteral("layer line width"));
    log.watch(boxAt(m_objectPanel, 1), QStringLiteral("object colour"));
    log.watch(boxAt(m_objectPanel, 2), QStringLiteral("object line style"));
    log.watch(boxAt(m_objectPanel, 3), QStringLiteral("object line width"));
}

void LayerHost::addLayer(const Layer &layer)
{
    m_layers.append(layer);
    const QScopedValueRollback<bool> showing(m_showing, true);
    m_list->addLayerRow();
    showLayer(m_layers.size() - 1);
}

void LayerHost::showLayers()
{
    {
        const QScopedValueRollback<bool> showing(m_showing, true);
        m_list->setRowCount(0);
        for (int row = 0; row < m_layers.size(); ++row) {
            m_list->addLayerRow();
            showLayer(row);
        }
        m_current = qBound(0, m_current, qMax(0, m_layers.size() - 1));
        m_list->setCurrentCell(m_current, NameColumn);
    }
    showCurrent();
}

void LayerHost::showLayer(int row)
{
    const QScopedValueRollback<bool> showing(m_showing, true);
    const Layer &layer = m_layers.at(row);
    QTableWidgetItem *name = m_list->item(row, NameColumn);
    name->setText(layer.name);
    // A locked layer keeps its name, and one that is not seen is written in a quieter colour.
    name->setFlags(layer.locked ? name->flags() & ~Qt::ItemIsEditable
                                : name->flags() | Qt::ItemIsEditable);
    name->setData(Qt::ForegroundRole,
                  layer.visible ? QVariant()
                                : QVariant(palette().brush(QPalette::Disabled, QPalette::Text)));
    buttonAt(m_list, row, LockColumn)->setChecked(layer.locked);
    buttonAt(m_list, row, LockColumn)->setLockState(layer.locked);
    buttonAt(m_list, row, VisibleColumn)->setChecked(layer.visible);
    buttonAt(m_list, row, VisibleColumn)->setVisibleState(layer.visible);
    buttonAt(m_list, row, ColorColumn)->setColor(layer.color);
}

void LayerHost::showCurrent()
{
    const Layer *layer = currentLayer();
    if (!layer) {
        m_layerPanel->setLayerProperties({QString(), QVariant(), QVariant()});
        m_objectPanel->setObjectProperties({QString(), -1, -1, -1});
        return;
    }
    m_layerPanel->setLayerProperties({layer->name, layer->lineType, layer->lineWidth});
    // An object that takes colour, style and width from its layer.
    m_objectPanel->setObjectProperties({layer->name, 0,
                                        boxAt(m_objectPanel, 2)->findData(layer->lineType),
                                        boxAt(m_objectPanel, 3)->findData(layer->lineWidth)});
}

void LayerHost::change(int row, const QVariant &value, Table::RESULTBUTTONTYPE type)
{
    if (row < 0 || row >= m_layers.size()) {
        return;
    }
    switch (type) {
    case Table::BUTTON_COLOR:
        m_layers[row].color = value.value<QColor>();
        break;
    case Table::BUTTON_VISIBLE:
        m_layers[row].visible = value.toBool();
        break;
    case Table::BUTTON_LOCK:
        m_layers[row].locked = value.toBool();
        break;
    case Table::BUTTON_EDIT:
        m_list->setCurrentCell(row, NameColumn);
        break;
    case Table::BUTTON_DELETE:
        if (!m_layers.at(row).locked) {
            Q_EMIT m_list->signalRemoveSelectRow(row);
        }
        return;
    }
    showLayer(row);
}

void LayerHost::removeLayer(int row)
{
    m_layers.remove(row);
    if (m_current > row) {
        --m_current;
    }
    // The rows below keep reporting their former numbers, so the list is built anew.
    showLayers();
}

Layer *LayerHost::currentLayer()
{
    return m_current >= 0 && m_current < m_layers.size() ? &m_layers[m_current] : nullptr;
}

QWidget *createContent(SignalLog &log)
{
    auto *content = new QWidget;
    QVBoxLayout *layout = contentLayout(content);
    addSection(layout, QStringLiteral("A drawing's layers"),
               QStringLiteral("Delete, edit, lock, hide and recolour with the buttons of a row; "
                              "rename with a double click. A locked layer keeps its name and is "
                              "not deleted."))
        ->addWidget(new LayerHost(log));
    return content;
}

/** The choice of a colour as a click on a row's last button opens it. */
void chooseColor()
{
    Table table;
    table.creatUiType(Table::LAYER_LIST);
    table.addLayerRow();
    buttonAt(&table, 0, ColorColumn)->click();
}

} // namespace

Page layersPage()
{
    return Page(QStringLiteral("layers"), QStringLiteral("Layer table"),
                QStringLiteral(
                    "CustomLayerTableWidget shows the layers of a drawing, the properties of one "
                    "layer or those of an object. It reports every button; the host keeps the "
                    "layers and writes values back."),
                createContent)
        .blockingShot(QStringLiteral("color"), chooseColor);
}

} // namespace gallery
