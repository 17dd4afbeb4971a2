#include <lmwidgets/customlayertablewidget.h>

#include "layercolordialog_p.h"
#include "owntext_p.h"

#include <lmwidgets/customdelegate.h>
#include <lmwidgets/customlayertoolbutton.h>
#include <lmwidgets/linetypecombobox.h>

#include <QColor>
#include <QComboBox>
#include <QCoreApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QSignalBlocker>
#include <QTableWidgetItem>

namespace LM {
namespace Widgets {

namespace {

enum LayerColumn {
    NameColumn,
    DeleteColumn,
    EditColumn,
    LockColumn,
    VisibleColumn,
    ColorColumn,
    LayerColumnCount
};

enum PropertyColumn { CaptionColumn, EditorColumn, PropertyColumnCount };

constexpr int RowHeight = 32;
constexpr int ButtonColumnWidth = 20;
constexpr int CaptionColumnWidth = 150;
constexpr int LineStyleHeight = 31;

constexpr int LayerPropertyCount = 3;
constexpr int ObjectPropertyCount = 4;

const char CaptionStyle[] = "QLabel{padding-left:16px;}";

constexpr int ColorIconSize = 16;
constexpr int ColorIconInset = 2;

struct NamedColor
{
    const char *name;
    QColor color;
};

// The order is the hosts': they select a colour by its position.
const NamedColor *namedColors(int *count)
{
    static const NamedColor colors[] = {
        {QT_TRANSLATE_NOOP("QObject", "By layer"), Qt::transparent},
        {QT_TRANSLATE_NOOP("QObject", "Red"), Qt::red},
        {QT_TRANSLATE_NOOP("QObject", "Green"), Qt::green},
        {QT_TRANSLATE_NOOP("QObject", "Blue"), Qt::blue},
        {QT_TRANSLATE_NOOP("QObject", "Cyan"), Qt::cyan},
        {QT_TRANSLATE_NOOP("QObject", "Magenta"), Qt::magenta},
        {QT_TRANSLATE_NOOP("QObject", "Yellow"), Qt::yellow},
        {QT_TRANSLATE_NOOP("QObject", "Orange"), QColor(255, 127, 0, 255)},
        {QT_TRANSLATE_NOOP("QObject", "Dark Red"), Qt::darkRed},
        {QT_TRANSLATE_NOOP("QObject", "Dark Green"), Qt::darkGreen},
        {QT_TRANSLATE_NOOP("QObject", "Dark Blue"), Qt::darkBlue},
        {QT_TRANSLATE_NOOP("QObject", "Dark Cyan"), Qt::darkCyan},
        {QT_TRANSLATE_NOOP("QObject", "Dark Magenta"), Qt::darkMagenta},
        {QT_TRANSLATE_NOOP("QObject", "Dark Yellow"), Qt::darkYellow},
        {QT_TRANSLATE_NOOP("QObject", "Black"), Qt::black},
        {QT_TRANSLATE_NOOP("QObject", "Gray"), Qt::gray},
        {QT_TRANSLATE_NOOP("QObject", "Light Gray"), Qt::lightGray},
        {QT_TRANSLATE_NOOP("QObject", "White"), Qt::white},
    };
    *count = int(sizeof(colors) / sizeof(colors[0]));
    return colors;
}

QIcon colorIcon(const QColor &color)
{
    QPixmap pixmap(ColorIconSize, ColorIconSize);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(QPen(Qt::black, 1));
    painter.drawRect(0, 0, ColorIconSize - 1, ColorIconSize - 1);
    painter.fillRect(ColorIconInset, ColorIconInset, ColorIconSize - 2 * ColorIconInset,
                     ColorIconSize - 2 * ColorIconInset, color);
    painter.end();
    return QIcon(pixmap);
}

/** Adds an entry under the name of a colour, which follows the language. */
void addColor(QComboBox *box, const char *name)
{
    const auto translated = [name] { return QCoreApplication::translate("QObject", name); };
    box->addItem(translated());
    followLanguage(box, name, {translated, [box](const QString &former, const QString &now) {
                                   // Found by its text: a host may have put entries of its own before it.
                                   const int index = box->findText(
                                       former, Qt::MatchExactly | Qt::MatchCaseSensitive);
                                   if (index >= 0) {
                                       box->setItemText(index, now);
                                   }
                               }});
}

QComboBox *createColorBox(QWidget *parent)
{
    auto *box = new QComboBox(parent);
    int count = 0;
    const NamedColor *colors = namedColors(&count);
    for (int i = 0; i < count; ++i) {
        addColor(box, colors[i].name);
        box->setItemIcon(i, colorIcon(colors[i].color));
        box->setItemData(i, colors[i].color, Qt::UserRole);
    }
    addColor(box, QT_TRANSLATE_NOOP("QObject", "Others"));
    box->setItemData(count, QStringLiteral("OTHERS"), Qt::UserRole);
    return box;
}

LineTypeComboBox *createLineStyleBox(QWidget *parent, const QString &objectName)
{
    auto *box = new LineTypeComboBox(parent);
    box->setObjectName(objectName);
    box->setMinimumSize(0, LineStyleHeight);
    box->setMaximumSize(QWIDGETSIZE_MAX, LineStyleHeight);
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return box;
}

QComboBox *createLineWidthBox(QWidget *parent, const QString &objectName)
{
    auto *box = new QComboBox(parent);
    box->setObjectName(objectName);
    return box;
}

// The item of a former panel would shine through the widget.
void placeWidget(QTableWidget *table, int row, int column, QWidget *widget)
{
    delete table->takeItem(row, column);
    table->setCellWidget(row, column, widget);
}

QLabel *placeCaption(QTableWidget *table, int row, const std::function<QString()> &text)
{
    auto *caption = new QLabel(table);
    setOwnText(caption, text);
    caption->setStyleSheet(QLatin1String(CaptionStyle));
    placeWidget(table, row, CaptionColumn, caption);
    return caption;
}

void placeLabel(QTableWidget *table, int row)
{
    auto *label = new QLabel(table);
    label->setAlignment(Qt::AlignCenter);
    placeWidget(table, row, EditorColumn, label);
}

void buildPropertyTable(QTableWidget *table, int rowCount)
{
    table->setColumnCount(PropertyColumnCount);
    table->setRowCount(rowCount);
    table->horizontalHeader()->setVisible(false);
    table->verticalHeader()->setVisible(false);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    table->horizontalHeader()->setSectionResizeMode(CaptionColumn, QHeaderView::Interactive);
    table->setColumnWidth(CaptionColumn, CaptionColumnWidth);
    table->horizontalHeader()->setSectionResizeMode(EditorColumn, QHeaderView::Stretch);
}

void setRowHeights(QTableWidget *table)
{
    for (int row = 0; row < table->rowCount(); ++row) {
        table->setRowHeight(row, RowHeight);
    }
}

bool isInACell(const QTableWidget *table, const QWidget *widget)
{
    for (int row = 0; row < table->rowCount(); ++row) {
        for (int column = 0; column < table->columnCount(); ++column) {
            if (table->cellWidget(row, column) == widget) {
                return true;
            }
        }
    }
    return false;
}

template <typename Editor>
Editor *editorAt(const QTableWidget *table, int row)
{
    return qobject_cast<Editor *>(table->cellWidget(row, EditorColumn));
}

void showText(QLabel *label, const QString &text)
{
    if (label) {
        const QSignalBlocker blocker(label);
        label->setText(text);
    }
}

void selectData(QComboBox *box, const QVariant &data)
{
    if (box) {
        const QSignalBlocker blocker(box);
        box->setCurrentIndex(box->findData(data));
    }
}

void selectIndex(QComboBox *box, const QVariant &index)
{
    if (box) {
        const QSignalBlocker blocker(box);
        box->setCurrentIndex(index.toInt());
    }
}

} // namespace

CustomLayerTableWidget::CustomLayerTableWidget(QWidget *parent) : QTableWidget(parent)
{
    // The signal names its parameter without the scope, and that is the name Qt looks up.
    qRegisterMetaType<RESULTBUTTONTYPE>();
    qRegisterMetaType<RESULTBUTTONTYPE>("RESULTBUTTONTYPE");
}

CustomLayerTableWidget::~CustomLayerTableWidget() = default;

void CustomLayerTableWidget::creatUiType(const DISPLAYWINDOW &type)
{
    switch (type) {
    case LAYER_LIST:
        creatLayer();
        break;
    case LAYER_PROPERTIES:
        creatLayerProperties();
        break;
    case OBJECT_PROPERTIES:
        creatObjectProperties();
        break;
    }
}

void CustomLayerTableWidget::creatLayer()
{
    setColumnCount(LayerColumnCount);
    setRowCount(0);
    // A visible header widens its columns to the style's least width, which is more than a button
    // needs.
    horizontalHeader()->setMinimumSectionSize(ButtonColumnWidth);
    for (int column = DeleteColumn; column <= ColorColumn; ++column) {
        // A property panel that stood here before has left its own mode on column 1.
        horizontalHeader()->setSectionResizeMode(column, QHeaderView::Interactive);
        setColumnWidth(column, ButtonColumnWidth);
    }
    horizontalHeader()->setVisible(false);
    verticalHeader()->setVisible(false);
    setShowGrid(false);
    horizontalHeader()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
}

void CustomLayerTableWidget::creatLayerProperties()
{
    buildPropertyTable(this, LayerPropertyCount);

    const Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
    placeCaption(this, 0, [] { return tr("Name"); })->setAlignment(alignment);
    placeLabel(this, 0);
    placeCaption(this, 1, [] { return tr("Line Style"); })->setAlignment(alignment);
    placeWidget(this, 1, EditorColumn,
                createLineStyleBox(this, QStringLiteral("pLineStyleCombobox")));
    placeCaption(this, 2, [] { return tr("Line Width"); })->setAlignment(alignment);
    placeWidget(this, 2, EditorColumn,
                createLineWidthBox(this, QStringLiteral("pLineWidthCombobox")));
    setRowHeights(this);
}

void CustomLayerTableWidget::creatObjectProperties()
{
    buildPropertyTable(this, ObjectPropertyCount);

    placeCaption(this, 0, [] { return tr("Layer"); });
    placeLabel(this, 0);
    placeCaption(this, 1, [] { return tr("Color"); });
    placeWidget(this, 1, EditorColumn, createColorBox(this));
    placeCaption(this, 2, [] { return tr("Line Style"); });
    placeWidget(this, 2, EditorColumn,
                createLineStyleBox(this, QStringLiteral("pObjectLineTypeboBox")));
    placeCaption(this, 3, [] { return tr("Line Width"); });
    placeWidget(this, 3, EditorColumn,
                createLineWidthBox(this, QStringLiteral("pObjectLineWidthboBox")));
    setRowHeights(this);
}

void CustomLayerTableWidget::addLayerRow()
{
    if (columnCount() < LayerColumnCount) {
        return;
    }
    // A host that listens to the model may take the row or the columns away again, or the table
    // itself.
    const QPointer<CustomLayerTableWidget> guard(this);
    const auto isThere = [&guard](int row) {
        return guard && row >= 0 && row < guard->rowCount() &&
               guard->columnCount() >= LayerColumnCount;
    };
    const int row = rowCount();
    insertRow(row);
    if (!isThere(row)) {
        return;
    }
    setRowHeight(row, RowHeight);
    installNameDelegate();

    auto *name = new QTableWidgetItem(QStringLiteral("layer%1").arg(row));
    name->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setItem(row, NameColumn, name);
    if (!isThere(row)) {
        return;
    }
    // A sorted table has moved the row to its place.
    const int place = isSortingEnabled() ? this->row(name) : row;
    if (isThere(place)) {
        addLayerButtons(row, place);
    }
}

void CustomLayerTableWidget::installNameDelegate()
{
    QAbstractItemDelegate *former = itemDelegateForColumn(NameColumn);
    setItemDelegateForColumn(NameColumn, new CustomDelegate(this));
    // QTableWidget listens to the newest delegate alone. An editor that is open stays with the one
    // that opened it, and could neither store its text nor be closed any more.
    if (former && former->parent() == this && qobject_cast<CustomDelegate *>(former)) {
        connect(former, &QAbstractItemDelegate::commitData, this,
                &CustomLayerTableWidget::commitData);
        connect(former, &QAbstractItemDelegate::closeEditor, this,
                &CustomLayerTableWidget::closeEditor);
    }
}

void CustomLayerTableWidget::addLayerButtons(int row, int place)
{
    // setCellWidget() takes them to the viewport anyway. Made there, they do not have to move.
    auto *remove = new customLayerToolButton(row, DeleteColumn, viewport());
    remove->setDelete();
    connect(remove, &QToolButton::clicked, this,
            [this, row] { Q_EMIT signalUpdateModel(row, QVariant(), BUTTON_DELETE); });

    auto *edit = new customLayerToolButton(row, EditColumn, viewport());
    edit->setEditEnable(true);
    connect(edit, &QToolButton::clicked, this, [this, row, edit](bool checked) {
        edit->setEditEnable(checked);
        Q_EMIT signalUpdateModel(row, QVariant(), BUTTON_EDIT);
    });

    auto *lock = new customLayerToolButton(row, LockColumn, viewport());
    lock->setLockState(true);
    connect(lock, &QToolButton::clicked, this, [this, row, lock](bool checked) {
        lock->setLockState(checked);
        Q_EMIT signalUpdateModel(row, QVariant(checked), BUTTON_LOCK);
    });

    auto *visible = new customLayerToolButton(row, VisibleColumn, viewport());
    visible->setVisibleState(true);
    connect(visible, &QToolButton::clicked, this, [this, row, visible](bool checked) {
        visible->setVisibleState(checked);
        Q_EMIT signalUpdateModel(row, QVariant(checked), BUTTON_VISIBLE);
    });

    auto *color = new customLayerToolButton(row, ColorColumn, viewport());
    color->setColor(Qt::white);
    connect(color, &QToolButton::clicked, this, [this, row, color] { chooseColor(row, color); });

    for (customLayerToolButton *button : {remove, edit, lock, visible, color}) {
        // QTableWidget shows a new cell widget before it places it: in the corner of the viewport,
        // where hundreds of them would be painted for nothing.
        const int column = button->column();
        button->setGeometry(columnViewportPosition(column), rowViewportPosition(place),
                            columnWidth(column), rowHeight(place));
        setCellWidget(place, column, button);
    }
}

void CustomLayerTableWidget::chooseColor(int row, customLayerToolButton *button)
{
    const QPointer<customLayerToolButton> guard(button);
    const QColor color = LayerColorDialog::ask(this);
    // The button goes with the table, or a little later than its row. Without its row the number
    // may mean another layer.
    if (guard && color.isValid() && isInACell(this, button)) {
        button->setColor(color);
        Q_EMIT signalUpdateModel(row, QVariant(color), BUTTON_COLOR);
    }
}

void CustomLayerTableWidget::rowsInserted(const QModelIndex &parent, int start, int end)
{
    // QAbstractItemView places all cell widgets anew for each insertion, which makes filling a
    // table of widgets quadratic. Rows at the end move no other cell, and the layout that Qt has
    // scheduled by now places their own widgets.
    if (isVisible() && end == rowCount() - 1) {
        return;
    }
    QTableWidget::rowsInserted(parent, start, end);
}

void CustomLayerTableWidget::setLayerProperties(const QList<QVariant> &values)
{
    if (values.size() != LayerPropertyCount) {
        return;
    }
    const QSignalBlocker blocker(this);
    showText(editorAt<QLabel>(this, 0), values.at(0).toString());
    selectData(editorAt<LineTypeComboBox>(this, 1), values.at(1));
    selectData(editorAt<QComboBox>(this, 2), values.at(2));
}

void CustomLayerTableWidget::setObjectProperties(const QList<QVariant> &values)
{
    if (values.size() != ObjectPropertyCount) {
        return;
    }
    const QSignalBlocker blocker(this);
    showText(editorAt<QLabel>(this, 0), values.at(0).toString());
    selectIndex(editorAt<QComboBox>(this, 1), values.at(1));
    selectIndex(editorAt<LineTypeComboBox>(this, 2), values.at(2));
    selectIndex(editorAt<QComboBox>(this, 3), values.at(3));
}

} // namespace Widgets
} // namespace LM
