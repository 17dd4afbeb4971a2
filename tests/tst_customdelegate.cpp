#include "lmtest.h"

#include <lmwidgets/customdelegate.h>

#include <QHeaderView>
#include <QImage>
#include <QPainter>
#include <QStandardItemModel>
#include <QTableView>

using LM::Widgets::CustomDelegate;

namespace {

const int indentation = 14;

QStandardItemModel *makeModel(QObject *parent)
{
    auto *model = new QStandardItemModel(2, 3, parent);
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 3; ++column) {
            auto *item = new QStandardItem(QStringLiteral("layer%1%2").arg(row).arg(column));
            item->setBackground(QColor(Qt::darkGreen));
            item->setForeground(QColor(Qt::yellow));
            model->setItem(row, column, item);
        }
    }
    return model;
}

/** What @p delegate paints of @p index into the cell @p cell of a grey picture. */
QImage painted(const QStyledItemDelegate &delegate, const QModelIndex &index, const QRect &cell,
               QStyle::State state = QStyle::State_Enabled)
{
    QImage image(200, 60, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::gray);
    QStyleOptionViewItem option;
    option.rect = cell;
    option.state = state;
    option.font = QApplication::font();
    option.fontMetrics = QFontMetrics(option.font);
    option.palette = QApplication::palette();
    option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    option.decorationSize = QSize(16, 16);
    QPainter painter(&image);
    delegate.paint(&painter, option, index);
    painter.end();
    return image;
}

} // namespace

class tst_CustomDelegate : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void firstColumnIsIndented_data();
    void firstColumnIsIndented();
    void otherColumnsAreNot();
    void childRowsAreIndented();
    void subclassFillsTheOption();
    void optionOfCallerIsKept();
    void badArguments();
    void inTableView();
    void editorIsNotIndented();
    void metaObject();
};

void tst_CustomDelegate::firstColumnIsIndented_data()
{
    QTest::addColumn<int>("state");

    QTest::newRow("plain") << int(QStyle::State_Enabled);
    QTest::newRow("disabled") << int(QStyle::State_None);
    QTest::newRow("selected") << int(QStyle::State_Enabled | QStyle::State_Selected |
                                     QStyle::State_Active);
    QTest::newRow("focus") << int(QStyle::State_Enabled | QStyle::State_HasFocus |
                                  QStyle::State_KeyboardFocusChange);
}

void tst_CustomDelegate::firstColumnIsIndented()
{
    QFETCH(int, state);
    QScopedPointer<QStandardItemModel> model(makeModel(nullptr));
    const QRect cell(10, 10, 120, 30);
    const CustomDelegate ours;
    const QStyledItemDelegate plain;
    for (int row = 0; row < 2; ++row) {
        const QModelIndex index = model->index(row, 0);
        const QImage indented = painted(ours, index, cell, QStyle::State(state));
        QCOMPARE(indented,
                 painted(plain, index, cell.translated(indentation, 0), QStyle::State(state)));
        QVERIFY(indented != painted(plain, index, cell, QStyle::State(state)));
        QVERIFY(indented != painted(plain, index, cell.translated(13, 0), QStyle::State(state)));
    }
    // The cell keeps its width: the 14 px at its left are left alone, and it ends 14 px later.
    const QImage image = painted(ours, model->index(0, 0), cell);
    const QRgb grey = QColor(Qt::gray).rgba();
    QCOMPARE(image.pixel(10, 25), grey);
    QCOMPARE(image.pixel(23, 25), grey);
    QVERIFY(image.pixel(24, 11) != grey);
    QVERIFY(image.pixel(143, 11) != grey);
    QCOMPARE(image.pixel(144, 25), grey);
}

void tst_CustomDelegate::otherColumnsAreNot()
{
    QScopedPointer<QStandardItemModel> model(makeModel(nullptr));
    const QRect cell(10, 10, 120, 30);
    for (int column : {1, 2}) {
        const QModelIndex index = model->index(1, column);
        QCOMPARE(painted(CustomDelegate(), index, cell),
                 painted(QStyledItemDelegate(), index, cell));
    }
}

void tst_CustomDelegate::childRowsAreIndented()
{
    QStandardItemModel model;
    auto *parent = new QStandardItem(QStringLiteral("group"));
    parent->appendRow({new QStandardItem(QStringLiteral("layer")),
                       new QStandardItem(QStringLiteral("other column"))});
    model.appendRow(parent);
    const QRect cell(10, 10, 120, 30);
    const CustomDelegate ours;
    const QStyledItemDelegate plain;
    const QModelIndex child = parent->child(0, 0)->index();
    QCOMPARE(painted(ours, child, cell), painted(plain, child, cell.translated(indentation, 0)));
    QVERIFY(painted(ours, child, cell) != painted(plain, child, cell));
    const QModelIndex other = parent->child(0, 1)->index();
    QCOMPARE(painted(ours, other, cell), painted(plain, other, cell));
}

// The option is filled for the cell before it is moved, and once more by the painting itself; a
// delegate that derives from this one sees the cell where it is, and where it is drawn.
void tst_CustomDelegate::subclassFillsTheOption()
{
    class Recording : public CustomDelegate
    {
    public:
        mutable QVector<QRect> seen;

    protected:
        void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
        {
            seen += option->rect;
            CustomDelegate::initStyleOption(option, index);
        }
    };
    QScopedPointer<QStandardItemModel> model(makeModel(nullptr));
    const QRect cell(10, 10, 120, 30);
    Recording delegate;
    painted(delegate, model->index(0, 0), cell);
    QCOMPARE(delegate.seen, QVector<QRect>({cell, cell.translated(indentation, 0)}));
    delegate.seen.clear();
    painted(delegate, model->index(0, 1), cell);
    QCOMPARE(delegate.seen, QVector<QRect>({cell}));
}

void tst_CustomDelegate::optionOfCallerIsKept()
{
    QScopedPointer<QStandardItemModel> model(makeModel(nullptr));
    QImage image(200, 60, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    QStyleOptionViewItem option;
    option.rect = QRect(3, 4, 50, 20);
    CustomDelegate().paint(&painter, option, model->index(0, 0));
    QCOMPARE(option.rect, QRect(3, 4, 50, 20));
    QVERIFY(option.text.isEmpty());
}

void tst_CustomDelegate::badArguments()
{
    QScopedPointer<QStandardItemModel> model(makeModel(nullptr));
    const CustomDelegate delegate;
    delegate.paint(nullptr, QStyleOptionViewItem(), model->index(0, 0));
    delegate.paint(nullptr, QStyleOptionViewItem(), model->index(0, 1));
    QImage blank(200, 60, QImage::Format_ARGB32_Premultiplied);
    blank.fill(Qt::gray);
    QCOMPARE(painted(delegate, QModelIndex(), QRect(10, 10, 120, 30)), blank);
    painted(delegate, model->index(0, 0), QRect());
}

// In a view whose first column is the last one painted, the cell shows 14 px further right.
void tst_CustomDelegate::inTableView()
{
    QTableView view;
    view.setModel(makeModel(&view));
    view.setShowGrid(false);
    view.setFocusPolicy(Qt::NoFocus);
    view.horizontalHeader()->hide();
    view.verticalHeader()->hide();
    view.resize(400, 100);
    const QImage before = view.viewport()->grab().toImage();
    view.setItemDelegateForColumn(0, new CustomDelegate(&view));
    const QImage after = view.viewport()->grab().toImage();
    const int width = view.columnWidth(0);
    const QRect cell = view.visualRect(view.model()->index(0, 0));
    QCOMPARE(cell.width(), width);
    const QRect content = cell.adjusted(0, 0, -indentation, 0);
    QCOMPARE(after.copy(content.translated(indentation, 0)), before.copy(content));
    const QRect otherColumns(width + indentation, 0, 2 * width - indentation, cell.height());
    QCOMPARE(after.copy(otherColumns), before.copy(otherColumns));
}

void tst_CustomDelegate::editorIsNotIndented()
{
    QTableView view;
    view.setModel(makeModel(&view));
    view.setItemDelegate(new CustomDelegate(&view));
    view.resize(400, 200);
    view.show();
    const QModelIndex index = view.model()->index(0, 0);
    view.edit(index);
    const auto editors =
        view.viewport()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(editors.count(), 1);
    QCOMPARE(editors.first()->geometry().left(), view.visualRect(index).left());
}

void tst_CustomDelegate::metaObject()
{
    QObject parent;
    auto *delegate = new CustomDelegate(&parent);
    QCOMPARE(delegate->parent(), &parent);
    QCOMPARE(QByteArray(delegate->metaObject()->className()),
             QByteArray("LM::Widgets::CustomDelegate"));
    QCOMPARE(delegate->metaObject()->superClass(), &QStyledItemDelegate::staticMetaObject);
}

LMTEST_MAIN(tst_CustomDelegate)

#include "tst_customdelegate.moc"
