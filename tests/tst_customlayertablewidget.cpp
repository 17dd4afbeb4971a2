#include "lmtest.h"

#include <lmwidgets/customdelegate.h>
#include <lmwidgets/customlayertablewidget.h>
#include <lmwidgets/customlayertoolbutton.h>
#include <lmwidgets/framelessdialog.h>
#include <lmwidgets/linetypecombobox.h>
#include <lmwidgets/talvostylemanager.h>
#include <lmwidgets/titlebar.h>

#include <QColorDialog>
#include <QComboBox>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <functional>
#include <memory>

Q_DECLARE_METATYPE(QTableWidgetItem *)

using LM::Widgets::CustomDelegate;
using LM::Widgets::CustomLayerTableWidget;
using LM::Widgets::customLayerToolButton;
using LM::Widgets::FramelessDialog;
using LM::Widgets::LineTypeComboBox;
using LM::Widgets::TalvoStyleManager;
using LM::Widgets::TitleBar;

namespace {

using Table = CustomLayerTableWidget;

QImage picture(const QIcon &icon, int size = 20)
{
    return icon.pixmap(size, size).toImage().convertToFormat(QImage::Format_ARGB32);
}

QImage themePicture(const char *theme, const char *name)
{
    const QString path = QStringLiteral("%1/%2/qssimage/%3.png")
                             .arg(lmtest::themeDir(), QLatin1String(theme), QLatin1String(name));
    return picture(QIcon(path));
}

customLayerToolButton *buttonAt(const QTableWidget &table, int row, int column)
{
    return qobject_cast<customLayerToolButton *>(table.cellWidget(row, column));
}

bool isFilled(const QImage &image, const QColor &color)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != color) {
                return false;
            }
        }
    }
    return !image.isNull();
}

/** A shown layer list with @p rows rows. */
std::unique_ptr<Table> layerList(int rows)
{
    auto table = std::make_unique<Table>();
    table->creatUiType(Table::LAYER_LIST);
    table->resize(400, 300);
    table->show();
    if (!QTest::qWaitForWindowExposed(table.get())) {
        return nullptr;
    }
    for (int i = 0; i < rows; ++i) {
        table->addLayerRow();
    }
    QCoreApplication::processEvents();
    return table;
}

std::unique_ptr<Table> panel(Table::DISPLAYWINDOW type)
{
    auto table = std::make_unique<Table>();
    table->creatUiType(type);
    table->resize(400, 300);
    table->show();
    if (!QTest::qWaitForWindowExposed(table.get())) {
        return nullptr;
    }
    QCoreApplication::processEvents();
    return table;
}

/** A real click on a button: sent to whatever lies under that point of the viewport. */
void clickCell(QTableWidget &table, int row, int column)
{
    const QPoint point = table.visualRect(table.model()->index(row, column)).center();
    QWidget *target = table.viewport()->childAt(point);
    QVERIFY(target);
    QTest::mouseClick(target, Qt::LeftButton, Qt::NoModifier,
                      target->mapFrom(table.viewport(), point));
}

QComboBox *boxAt(const QTableWidget &table, int row)
{
    return qobject_cast<QComboBox *>(table.cellWidget(row, 1));
}

QLabel *labelAt(const QTableWidget &table, int row, int column)
{
    return qobject_cast<QLabel *>(table.cellWidget(row, column));
}

/** Runs @p act on the colour dialog once it is open; the click that opens it comes afterwards. */
class ColorDialogDriver : public QObject
{
public:
    using Act = std::function<void(FramelessDialog *, QColorDialog *)>;

    explicit ColorDialogDriver(Act act) : m_act(std::move(act))
    {
        connect(&m_timer, &QTimer::timeout, this, [this] {
            auto *frame = qobject_cast<FramelessDialog *>(QApplication::activeModalWidget());
            auto *colors = frame ? frame->findChild<QColorDialog *>() : nullptr;
            if (!colors || !colors->isVisible()) {
                return;
            }
            m_timer.stop();
            ++runs;
            m_act(frame, colors);
        });
        m_timer.start(5);
    }

    int runs = 0;

private:
    QTimer m_timer;
    Act m_act;
};

/** Signals of the table, its model and the editors in it. */
class SignalCounter
{
public:
    explicit SignalCounter(Table *table)
    {
        add(table, SIGNAL(signalUpdateModel(int, QVariant, RESULTBUTTONTYPE)));
        add(table, SIGNAL(signalRemoveSelectRow(int)));
        add(table, SIGNAL(cellChanged(int, int)));
        add(table, SIGNAL(itemChanged(QTableWidgetItem *)));
        add(table, SIGNAL(itemSelectionChanged()));
        add(table, SIGNAL(currentCellChanged(int, int, int, int)));
        for (QComboBox *box : table->findChildren<QComboBox *>()) {
            add(box, SIGNAL(currentIndexChanged(int)));
            add(box, SIGNAL(currentIndexChanged(QString)));
            add(box, SIGNAL(currentTextChanged(QString)));
            add(box, SIGNAL(activated(int)));
            add(box, SIGNAL(editTextChanged(QString)));
        }
        for (QLabel *label : table->findChildren<QLabel *>()) {
            add(label, SIGNAL(linkActivated(QString)));
            add(label, SIGNAL(windowTitleChanged(QString)));
        }
    }

    int count() const
    {
        int sum = 0;
        for (const auto &spy : m_spies) {
            sum += spy->count();
        }
        return sum;
    }

private:
    void add(QObject *object, const char *signal)
    {
        m_spies.push_back(std::make_unique<QSignalSpy>(object, signal));
        QVERIFY2(m_spies.back()->isValid(), signal);
    }

    std::vector<std::unique_ptr<QSignalSpy>> m_spies;
};

struct ThemeGuard
{
    ~ThemeGuard() { TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Black); }
};

} // namespace

class tst_CustomLayerTableWidget : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void metaObject();
    void numbers();
    void signalTypeIsKnownToQt();
    void newTableIsEmpty();
    void unknownPanelDoesNothing();

    void layerListIsBuilt();
    void rowsAreNamedAfterTheirNumber();
    void nameComesFromTheRowCountAtInsertion();
    void newRowShowsEverythingOn();
    void buttonsStandInTheirCells();
    void everyRowBringsADelegate();
    void rowIsIgnoredWithoutTheLayerColumns();
    void hostColumnsAreKept();
    void rowsInASortedTable();
    void rowWhenAHostInterferes_data();
    void rowWhenAHostInterferes();

    void clickOnEachButton();
    void eachRowReportsItsOwnNumber();
    void rowNumberStaysAfterRemoval();
    void deleteKeepsTheRow();
    void buttonsWorkByKeyboard();
    void programmaticStateEmitsNothing();
    void iconsFollowTheThemeWhenTheyAreSet();
    void nameIsEditedByKeyboard();
    void nameIsDrawnIndented();
    void rowsAddedWhileEditingKeepTheEditor();
    void hiddenTableCatchesUp();
    void rowsAddedBelowTheViewportScrollIntoPlace();
    void rowInsertedByTheHostMovesTheButtons();
    void rowsAndColumnsHiddenByTheHost();
    void resizeMovesTheButtons();

    void slotMayRemoveTheRow_data();
    void slotMayRemoveTheRow();
    void slotMayDeleteTheButton_data();
    void slotMayDeleteTheButton();
    void slotMayDeleteTheTable_data();
    void slotMayDeleteTheTable();
    void slotMayRebuildThePanel();
    void removedRowsTakeTheirButtonsAlong();

    void colorIsAccepted();
    void colorIsNotAccepted_data();
    void colorIsNotAccepted();
    void colorDialogLooks();
    void colorDialogTakesTheKeyboard();
    void colorDialogLeavesNothing();
    void goneWhileColorDialogIsOpen_data();
    void goneWhileColorDialogIsOpen();
    void colorDialogSurvivesAThemeSwitch();

    void layerPropertiesAreBuilt();
    void objectPropertiesAreBuilt();
    void colorList();
    void colorListIcons();
    void lineStylesAreThere_data();
    void lineStylesAreThere();
    void setLayerProperties_data();
    void setLayerProperties();
    void setObjectProperties_data();
    void setObjectProperties();
    void wrongListsAreIgnored_data();
    void wrongListsAreIgnored();
    void writingBackKeepsABlockedTableBlocked();
    void otherPanelsCellsAreSkipped();
    void replacedCellsAreSkipped();
    void panelsReplaceEachOther_data();
    void panelsReplaceEachOther();
};

void tst_CustomLayerTableWidget::initTestCase()
{
    TestCase::initTestCase();
    qRegisterMetaType<QTableWidgetItem *>();
    QVERIFY(!themePicture("Black", "layer_lock").isNull());
    QVERIFY(themePicture("Black", "layer_lock") != themePicture("White", "layer_lock"));
    QVERIFY(themePicture("Black", "layer_lock") != themePicture("Black", "layer_unlock"));
}

void tst_CustomLayerTableWidget::metaObject()
{
    const QMetaObject &meta = Table::staticMetaObject;
    QCOMPARE(QLatin1String(meta.className()), QLatin1String("LM::Widgets::CustomLayerTableWidget"));
    QCOMPARE(meta.superClass(), &QTableWidget::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(),
             QByteArray("signalUpdateModel(int,QVariant,RESULTBUTTONTYPE)"));
    QCOMPARE(meta.method(meta.methodOffset()).parameterNames(), QList<QByteArray>() << "row"
                                                                                    << "va"
                                                                                    << "type");
    QCOMPARE(meta.method(meta.methodOffset() + 1).methodSignature(),
             QByteArray("signalRemoveSelectRow(int)"));
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_CustomLayerTableWidget::numbers()
{
    QCOMPARE(int(Table::LAYER_LIST), 0);
    QCOMPARE(int(Table::LAYER_PROPERTIES), 1);
    QCOMPARE(int(Table::OBJECT_PROPERTIES), 2);
    QCOMPARE(int(Table::BUTTON_COLOR), 1);
    QCOMPARE(int(Table::BUTTON_VISIBLE), 2);
    QCOMPARE(int(Table::BUTTON_LOCK), 3);
    QCOMPARE(int(Table::BUTTON_EDIT), 5);
    QCOMPARE(int(Table::BUTTON_DELETE), 6);
}

void tst_CustomLayerTableWidget::signalTypeIsKnownToQt()
{
    Table table;
    QSignalSpy byName(&table, SIGNAL(signalUpdateModel(int, QVariant, RESULTBUTTONTYPE)));
    QSignalSpy byPointer(&table, &Table::signalUpdateModel);
    int queued = -1;
    connect(
        &table, &Table::signalUpdateModel, &table,
        [&queued](int, const QVariant &, const Table::RESULTBUTTONTYPE &type) { queued = type; },
        Qt::QueuedConnection);
    Q_EMIT table.signalUpdateModel(4, QVariant(true), Table::BUTTON_LOCK);
    QCOMPARE(byName.count(), 1);
    QCOMPARE(byPointer.count(), 1);
    QCOMPARE(byPointer.at(0).at(0).toInt(), 4);
    QCOMPARE(byPointer.at(0).at(2).value<Table::RESULTBUTTONTYPE>(), Table::BUTTON_LOCK);
    QTRY_COMPARE(queued, int(Table::BUTTON_LOCK));

    QSignalSpy removed(&table, &Table::signalRemoveSelectRow);
    Q_EMIT table.signalRemoveSelectRow(7);
    QCOMPARE(removed.at(0).at(0).toInt(), 7);
}

void tst_CustomLayerTableWidget::newTableIsEmpty()
{
    QWidget parent;
    Table table(&parent);
    QCOMPARE(table.parentWidget(), &parent);
    QCOMPARE(table.rowCount(), 0);
    QCOMPARE(table.columnCount(), 0);
    QVERIFY(table.findChildren<CustomDelegate *>().isEmpty());
    QVERIFY(table.showGrid());
}

void tst_CustomLayerTableWidget::unknownPanelDoesNothing()
{
    for (const int type : {-1, 3, 4, 1000}) {
        Table table;
        table.creatUiType(static_cast<Table::DISPLAYWINDOW>(type));
        QCOMPARE(table.rowCount(), 0);
        QCOMPARE(table.columnCount(), 0);
    }
}

void tst_CustomLayerTableWidget::layerListIsBuilt()
{
    const auto table = layerList(3);
    QVERIFY(table);
    QCOMPARE(table->columnCount(), 6);
    QCOMPARE(table->rowCount(), 3);
    for (int column = 1; column <= 5; ++column) {
        QCOMPARE(table->columnWidth(column), 20);
    }
    QCOMPARE(table->columnWidth(0), table->viewport()->width() - 100);
    QCOMPARE(table->horizontalHeader()->sectionResizeMode(0), QHeaderView::Stretch);
    QVERIFY(table->horizontalHeader()->isHidden());
    QVERIFY(table->verticalHeader()->isHidden());
    QVERIFY(!table->showGrid());
    QCOMPARE(table->selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(table->selectionMode(), QAbstractItemView::SingleSelection);
    for (int row = 0; row < 3; ++row) {
        QCOMPARE(table->rowHeight(row), 32);
    }
    Table hidden;
    hidden.creatUiType(Table::LAYER_LIST);
    QCOMPARE(hidden.rowCount(), 0);
    QCOMPARE(hidden.columnWidth(5), 20);
}

void tst_CustomLayerTableWidget::rowsAreNamedAfterTheirNumber()
{
    const auto table = layerList(2);
    QVERIFY(table);
    QCOMPARE(table->item(0, 0)->text(), QStringLiteral("layer0"));
    QCOMPARE(table->item(1, 0)->text(), QStringLiteral("layer1"));
    QCOMPARE(table->item(0, 0)->textAlignment(), int(Qt::AlignLeft | Qt::AlignVCenter));
    QVERIFY(table->item(0, 0)->flags() & Qt::ItemIsEditable);
    for (int column = 1; column <= 5; ++column) {
        QVERIFY(!table->item(0, column));
    }
}

void tst_CustomLayerTableWidget::nameComesFromTheRowCountAtInsertion()
{
    const auto table = layerList(3);
    QVERIFY(table);
    table->removeRow(0);
    table->addLayerRow();
    QCOMPARE(table->item(2, 0)->text(), QStringLiteral("layer2"));
    QCOMPARE(table->item(1, 0)->text(), QStringLiteral("layer2"));
    table->setRowCount(12);
    table->addLayerRow();
    QCOMPARE(table->item(12, 0)->text(), QStringLiteral("layer12"));
}

void tst_CustomLayerTableWidget::newRowShowsEverythingOn()
{
    const auto table = layerList(1);
    QVERIFY(table);
    for (int column = 1; column <= 5; ++column) {
        const customLayerToolButton *button = buttonAt(*table, 0, column);
        QVERIFY(button);
        QVERIFY(button->isCheckable());
        QVERIFY(button->isChecked());
        QVERIFY(button->isVisible());
        QCOMPARE(button->row(), 0);
        QCOMPARE(button->column(), column);
        QCOMPARE(button->parentWidget(), table->viewport());
        QCOMPARE(button->styleSheet(),
                 QStringLiteral("background-color: transparent;border: 0px solid #3C3C3C; "));
    }
    QCOMPARE(picture(buttonAt(*table, 0, 1)->icon()), themePicture("Black", "delete_2dvec"));
    QCOMPARE(picture(buttonAt(*table, 0, 2)->icon()), themePicture("Black", "layer_edit"));
    QCOMPARE(picture(buttonAt(*table, 0, 3)->icon()), themePicture("Black", "layer_lock"));
    QCOMPARE(picture(buttonAt(*table, 0, 4)->icon()), themePicture("Black", "layer_view"));
    QVERIFY(isFilled(picture(buttonAt(*table, 0, 5)->icon()), Qt::white));
    QVERIFY(!table->cellWidget(0, 0));
}

void tst_CustomLayerTableWidget::buttonsStandInTheirCells()
{
    const auto table = layerList(4);
    QVERIFY(table);
    for (int row = 0; row < 4; ++row) {
        for (int column = 1; column <= 5; ++column) {
            const QRect cell = table->visualRect(table->model()->index(row, column));
            QCOMPARE(cell.size(), QSize(20, 32));
            QCOMPARE(table->cellWidget(row, column)->geometry(), cell);
        }
    }
    // What the window shows: a white square at the right end of each row.
    const QImage image = table->viewport()->grab().toImage();
    const QRect cell = table->visualRect(table->model()->index(2, 5));
    QVERIFY(isFilled(image.copy(cell.adjusted(0, 6, 0, -6)), Qt::white));
}

void tst_CustomLayerTableWidget::everyRowBringsADelegate()
{
    const auto table = layerList(0);
    QVERIFY(table);
    QAbstractItemDelegate *former = nullptr;
    for (int row = 0; row < 5; ++row) {
        table->addLayerRow();
        const auto delegates =
            table->findChildren<CustomDelegate *>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(delegates.size(), row + 1);
        QAbstractItemDelegate *current = table->itemDelegateForColumn(0);
        QCOMPARE(current, delegates.last());
        QVERIFY(current != former);
        former = current;
        QVERIFY(!table->itemDelegateForColumn(1));
    }
    table->setRowCount(0);
    QCOMPARE(table->findChildren<CustomDelegate *>().size(), 5);
}

void tst_CustomLayerTableWidget::rowIsIgnoredWithoutTheLayerColumns()
{
    Table table;
    table.addLayerRow();
    QCOMPARE(table.rowCount(), 0);
    QVERIFY(table.findChildren<customLayerToolButton *>().isEmpty());
    table.creatUiType(Table::OBJECT_PROPERTIES);
    table.addLayerRow();
    QCOMPARE(table.rowCount(), 4);
    QVERIFY(table.findChildren<customLayerToolButton *>().isEmpty());
    table.setColumnCount(5);
    table.addLayerRow();
    QCOMPARE(table.rowCount(), 4);
    table.setColumnCount(6);
    table.addLayerRow();
    QCOMPARE(table.rowCount(), 5);
}

void tst_CustomLayerTableWidget::hostColumnsAreKept()
{
    const auto table = layerList(1);
    QVERIFY(table);
    table->setColumnCount(7);
    table->addLayerRow();
    table->setItem(1, 6, new QTableWidgetItem(QStringLiteral("13 objects")));
    QCOMPARE(table->rowCount(), 2);
    QVERIFY(buttonAt(*table, 1, 5));
    QVERIFY(!table->cellWidget(1, 6));
}

void tst_CustomLayerTableWidget::rowsInASortedTable()
{
    const auto table = layerList(0);
    QVERIFY(table);
    table->setSortingEnabled(true);
    table->sortByColumn(0, Qt::DescendingOrder);
    for (int i = 0; i < 4; ++i) {
        table->addLayerRow();
    }
    // The newest name is the greatest and stands first, with the buttons that were made for it.
    QCOMPARE(table->rowCount(), 4);
    for (int place = 0; place < 4; ++place) {
        QCOMPARE(table->item(place, 0)->text(), QStringLiteral("layer%1").arg(3 - place));
        for (int column = 1; column <= 5; ++column) {
            QVERIFY(buttonAt(*table, place, column));
            QCOMPARE(buttonAt(*table, place, column)->row(), 3 - place);
        }
    }
    QCOMPARE(table->findChildren<customLayerToolButton *>().size(), 20);
}

void tst_CustomLayerTableWidget::rowWhenAHostInterferes_data()
{
    QTest::addColumn<int>("deed");
    QTest::newRow("removes the row on insertion") << 0;
    QTest::newRow("deletes the table on insertion") << 1;
    QTest::newRow("removes the row at its name") << 2;
    QTest::newRow("deletes the table at its name") << 3;
    QTest::newRow("removes the columns at its name") << 4;
    QTest::newRow("adds another row at its name") << 5;
    QTest::newRow("removes the columns on insertion") << 6;
}

void tst_CustomLayerTableWidget::rowWhenAHostInterferes()
{
    QFETCH(int, deed);
    QPointer<Table> table(layerList(1).release());
    QVERIFY(table);
    QObject host;
    bool done = false;
    if (deed < 2 || deed == 6) {
        connect(table->model(), &QAbstractItemModel::rowsInserted, &host, [&] {
            if (deed == 0) {
                table->setRowCount(1);
            } else if (deed == 6) {
                table->setColumnCount(0);
            } else {
                // From inside the model only a later deletion is possible.
                table->deleteLater();
            }
        });
    } else {
        connect(table.data(), &QTableWidget::itemChanged, &host, [&] {
            if (done) {
                return;
            }
            done = true;
            if (deed == 2) {
                table->removeRow(1);
            } else if (deed == 3) {
                table->deleteLater();
            } else if (deed == 4) {
                table->setColumnCount(0);
            } else {
                table->addLayerRow();
            }
        });
    }
    table->addLayerRow();
    if (deed == 0 || deed == 2) {
        QCOMPARE(table->rowCount(), 1);
        QCOMPARE(table->findChildren<customLayerToolButton *>().size(), 5);
    } else if (deed == 4 || deed == 6) {
        QVERIFY(!table->cellWidget(0, 1));
        QTRY_VERIFY(table->findChildren<customLayerToolButton *>().isEmpty());
    } else if (deed == 5) {
        QCOMPARE(table->rowCount(), 3);
        QCOMPARE(table->findChildren<customLayerToolButton *>().size(), 15);
        for (int row = 0; row < 3; ++row) {
            QCOMPARE(buttonAt(*table, row, 5)->row(), row);
        }
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    delete table;
}

void tst_CustomLayerTableWidget::clickOnEachButton()
{
    const auto table = layerList(3);
    QVERIFY(table);
    QSignalSpy spy(table.get(), &Table::signalUpdateModel);
    QSignalSpy removed(table.get(), &Table::signalRemoveSelectRow);
    const auto last = [&spy](int index) { return spy.last().at(index); };

    clickCell(*table, 1, 1);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(last(0).toInt(), 1);
    QVERIFY(!last(1).value<QVariant>().isValid());
    QCOMPARE(last(2).value<Table::RESULTBUTTONTYPE>(), Table::BUTTON_DELETE);
    QCOMPARE(picture(buttonAt(*table, 1, 1)->icon()), themePicture("Black", "delete_2dvec"));

    for (const bool checked : {false, true}) {
        clickCell(*table, 1, 2);
        QVERIFY(!last(1).value<QVariant>().isValid());
        QCOMPARE(last(2).value<Table::RESULTBUTTONTYPE>(), Table::BUTTON_EDIT);
        QCOMPARE(buttonAt(*table, 1, 2)->isChecked(), checked);
        QCOMPARE(picture(buttonAt(*table, 1, 2)->icon()), themePicture("Black", "layer_edit"));

        clickCell(*table, 1, 3);
        QCOMPARE(last(1).value<QVariant>(), QVariant(checked));
        QCOMPARE(last(2).value<Table::RESULTBUTTONTYPE>(), Table::BUTTON_LOCK);
        QCOMPARE(picture(buttonAt(*table, 1, 3)->icon()),
                 themePicture("Black", checked ? "layer_lock" : "layer_unlock"));

        clickCell(*table, 1, 4);
        QCOMPARE(last(1).value<QVariant>(), QVariant(checked));
        QCOMPARE(last(2).value<Table::RESULTBUTTONTYPE>(), Table::BUTTON_VISIBLE);
        QCOMPARE(picture(buttonAt(*table, 1, 4)->icon()),
                 themePicture("Black", checked ? "layer_view" : "layer_dis_view"));
    }
    QCOMPARE(spy.count(), 7);
    for (const auto &arguments : spy) {
        QCOMPARE(arguments.at(0).toInt(), 1);
    }
    QCOMPARE(removed.count(), 0);
    // The neighbours have kept their pictures.
    QCOMPARE(picture(buttonAt(*table, 0, 3)->icon()), themePicture("Black", "layer_lock"));
    QVERIFY(buttonAt(*table, 2, 4)->isChecked());
}

void tst_CustomLayerTableWidget::eachRowReportsItsOwnNumber()
{
    const auto table = layerList(5);
    QVERIFY(table);
    QSignalSpy spy(table.get(), &Table::signalUpdateModel);
    for (int row = 0; row < 5; ++row) {
        for (int column = 1; column <= 4; ++column) {
            clickCell(*table, row, column);
            QCOMPARE(spy.last().at(0).toInt(), row);
        }
    }
    QCOMPARE(spy.count(), 20);
}

void tst_CustomLayerTableWidget::rowNumberStaysAfterRemoval()
{
    const auto table = layerList(3);
    QVERIFY(table);
    QSignalSpy spy(table.get(), &Table::signalUpdateModel);
    table->removeRow(0);
    QCoreApplication::processEvents();
    clickCell(*table, 0, 3);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toInt(), 1);
    QCOMPARE(buttonAt(*table, 0, 3)->row(), 1);
    table->addLayerRow();
    QCoreApplication::processEvents();
    clickCell(*table, 2, 3);
    QCOMPARE(spy.last().at(0).toInt(), 2);
    clickCell(*table, 1, 3);
    QCOMPARE(spy.last().at(0).toInt(), 2);
}

void tst_CustomLayerTableWidget::deleteKeepsTheRow()
{
    const auto table = layerList(2);
    QVERIFY(table);
    clickCell(*table, 0, 1);
    QCOMPARE(table->rowCount(), 2);
    QCOMPARE(table->item(0, 0)->text(), QStringLiteral("layer0"));
    QVERIFY(buttonAt(*table, 0, 1));
}

void tst_CustomLayerTableWidget::buttonsWorkByKeyboard()
{
    const auto table = layerList(1);
    QVERIFY(table);
    QSignalSpy spy(table.get(), &Table::signalUpdateModel);
    customLayerToolButton *lock = buttonAt(*table, 0, 3);
    lock->setFocus();
    QTest::keyClick(lock, Qt::Key_Space);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(1).value<QVariant>(), QVariant(false));
}

void tst_CustomLayerTableWidget::programmaticStateEmitsNothing()
{
    const auto table = layerList(1);
    QVERIFY(table);
    QSignalSpy spy(table.get(), &Table::signalUpdateModel);
    buttonAt(*table, 0, 3)->setChecked(false);
    buttonAt(*table, 0, 3)->setLockState(false);
    buttonAt(*table, 0, 5)->setColor(Qt::red);
    QCOMPARE(spy.count(), 0);
    clickCell(*table, 0, 3);
    QCOMPARE(spy.at(0).at(1).value<QVariant>(), QVariant(true));
    QCOMPARE(picture(buttonAt(*table, 0, 3)->icon()), themePicture("Black", "layer_lock"));
}

void tst_CustomLayerTableWidget::iconsFollowTheThemeWhenTheyAreSet()
{
    const ThemeGuard guard;
    const auto table = layerList(2);
    QVERIFY(table);
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::White);
    QCOMPARE(picture(buttonAt(*table, 0, 3)->icon()), themePicture("Black", "layer_lock"));
    clickCell(*table, 0, 3);
    QCOMPARE(picture(buttonAt(*table, 0, 3)->icon()), themePicture("White", "layer_unlock"));
    QCOMPARE(picture(buttonAt(*table, 1, 3)->icon()), themePicture("Black", "layer_lock"));
    QCOMPARE(picture(buttonAt(*table, 0, 4)->icon()), themePicture("Black", "layer_view"));
    table->addLayerRow();
    QCOMPARE(picture(buttonAt(*table, 2, 1)->icon()), themePicture("White", "delete_2dvec"));
    QCOMPARE(picture(buttonAt(*table, 2, 2)->icon()), themePicture("White", "layer_edit"));
    QCOMPARE(picture(buttonAt(*table, 2, 3)->icon()), themePicture("White", "layer_lock"));
    QCOMPARE(picture(buttonAt(*table, 2, 4)->icon()), themePicture("White", "layer_view"));
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Blue);
    table->addLayerRow();
    QCOMPARE(picture(buttonAt(*table, 3, 3)->icon()), themePicture("Blue", "layer_lock"));
}

void tst_CustomLayerTableWidget::nameIsEditedByKeyboard()
{
    const auto table = layerList(3);
    QVERIFY(table);
    QSignalSpy changed(table.get(), &QTableWidget::itemChanged);
    const QPoint point = table->visualRect(table->model()->index(1, 0)).center();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, point);
    QCOMPARE(table->currentRow(), 1);
    QVERIFY(table->item(1, 0)->isSelected());
    QTest::keyClick(table.get(), Qt::Key_F2);
    auto *editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QVERIFY(editor);
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(editor, QStringLiteral("Walls"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(table->item(1, 0)->text(), QStringLiteral("Walls"));
    QCOMPARE(changed.count(), 1);
    QTRY_VERIFY(!table->viewport()->findChild<QLineEdit *>());

    QTest::mouseDClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, point);
    editor = table->viewport()->findChild<QLineEdit *>();
    QVERIFY(editor);
    QTest::keyClicks(editor, QStringLiteral("nothing"));
    QTest::keyClick(editor, Qt::Key_Escape);
    QTRY_VERIFY(!table->viewport()->findChild<QLineEdit *>());
    QCOMPARE(table->item(1, 0)->text(), QStringLiteral("Walls"));
}

void tst_CustomLayerTableWidget::nameIsDrawnIndented()
{
    const auto table = layerList(1);
    QVERIFY(table);
    table->item(0, 0)->setText(QString(QChar(0x2588)).repeated(4));
    const auto firstInk = [](const QImage &image) {
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 0; y < image.height(); ++y) {
                if (image.pixelColor(x, y).lightness() < 128) {
                    return x;
                }
            }
        }
        return -1;
    };
    const QRect cell = table->visualRect(table->model()->index(0, 0));
    const int indented = firstInk(table->viewport()->grab(cell).toImage());
    table->setItemDelegateForColumn(0, nullptr);
    const int plain = firstInk(table->viewport()->grab(cell).toImage());
    QVERIFY(plain >= 0);
    QCOMPARE(indented, plain + 14);
}

void tst_CustomLayerTableWidget::rowsAddedWhileEditingKeepTheEditor()
{
    const auto table = layerList(2);
    QVERIFY(table);
    table->setFocus();
    table->setCurrentCell(0, 0);
    table->editItem(table->item(0, 0));
    QPointer<QLineEdit> editor(table->viewport()->findChild<QLineEdit *>());
    QVERIFY(editor);
    editor->setText(QStringLiteral("half"));
    for (int i = 0; i < 20; ++i) {
        table->addLayerRow();
    }
    QCoreApplication::processEvents();
    QVERIFY(editor);
    QCOMPARE(editor->text(), QStringLiteral("half"));
    QVERIFY(table->visualRect(table->model()->index(0, 0)).contains(editor->geometry()));
    QTest::keyClick(editor.data(), Qt::Key_Return);
    QTRY_COMPARE(table->item(0, 0)->text(), QStringLiteral("half"));
}

void tst_CustomLayerTableWidget::hiddenTableCatchesUp()
{
    Table table;
    table.creatUiType(Table::LAYER_LIST);
    table.resize(300, 200);
    for (int i = 0; i < 30; ++i) {
        table.addLayerRow();
    }
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table));
    QCoreApplication::processEvents();
    for (const int row : {0, 3, 29}) {
        QVERIFY(table.cellWidget(row, 3)->isVisible());
        QCOMPARE(table.cellWidget(row, 3)->geometry(),
                 table.visualRect(table.model()->index(row, 3)));
    }
    // The scroll bar has taken its room from the name.
    QVERIFY(table.verticalScrollBar()->isVisible());
    QCOMPARE(table.columnWidth(0), table.viewport()->width() - 100);
    QCOMPARE(table.columnWidth(5), 20);
}

void tst_CustomLayerTableWidget::rowsAddedBelowTheViewportScrollIntoPlace()
{
    const auto table = layerList(0);
    QVERIFY(table);
    QSignalSpy spy(table.get(), &Table::signalUpdateModel);
    for (int i = 0; i < 200; ++i) {
        table->addLayerRow();
    }
    QTRY_VERIFY(table->verticalScrollBar()->maximum() > 0);
    QCoreApplication::processEvents();
    for (const int row : {199, 100, 57, 0}) {
        table->scrollToItem(table->item(row, 0));
        QCoreApplication::processEvents();
        for (int column = 1; column <= 5; ++column) {
            QCOMPARE(table->cellWidget(row, column)->geometry(),
                     table->visualRect(table->model()->index(row, column)));
        }
        clickCell(*table, row, 4);
        QCOMPARE(spy.last().at(0).toInt(), row);
    }
    // A row added while the list stands at its end, and looked at at once.
    table->scrollToBottom();
    table->addLayerRow();
    table->scrollToBottom();
    const QRect cell = table->visualRect(table->model()->index(200, 3));
    QVERIFY(table->viewport()->rect().contains(cell));
    QCOMPARE(table->cellWidget(200, 3)->geometry(), cell);
    QVERIFY(table->cellWidget(200, 3)->isVisible());
}

void tst_CustomLayerTableWidget::rowInsertedByTheHostMovesTheButtons()
{
    const auto table = layerList(3);
    QVERIFY(table);
    QWidget *lock = table->cellWidget(1, 3);
    table->insertRow(0);
    QCoreApplication::processEvents();
    QCOMPARE(table->cellWidget(2, 3), lock);
    QCOMPARE(lock->geometry(), table->visualRect(table->model()->index(2, 3)));
    QVERIFY(!table->cellWidget(0, 3));
    table->removeRow(1);
    QCoreApplication::processEvents();
    QCOMPARE(table->cellWidget(1, 3), lock);
    QCOMPARE(lock->geometry(), table->visualRect(table->model()->index(1, 3)));
}

void tst_CustomLayerTableWidget::rowsAndColumnsHiddenByTheHost()
{
    const auto table = layerList(3);
    QVERIFY(table);
    table->setRowHidden(1, true);
    table->setColumnHidden(2, true);
    QCoreApplication::processEvents();
    QVERIFY(!table->cellWidget(1, 3)->isVisible());
    QVERIFY(!table->cellWidget(0, 2)->isVisible());
    table->addLayerRow();
    QCoreApplication::processEvents();
    QVERIFY(!table->cellWidget(1, 3)->isVisible());
    QVERIFY(!table->cellWidget(3, 2)->isVisible());
    QVERIFY(table->cellWidget(3, 3)->isVisible());
    QCOMPARE(table->cellWidget(3, 3)->geometry(), table->visualRect(table->model()->index(3, 3)));
    table->setRowHidden(1, false);
    table->setColumnHidden(2, false);
    QCoreApplication::processEvents();
    QVERIFY(table->cellWidget(1, 3)->isVisible());
    QVERIFY(table->cellWidget(3, 2)->isVisible());
}

void tst_CustomLayerTableWidget::resizeMovesTheButtons()
{
    const auto table = layerList(3);
    QVERIFY(table);
    table->resize(500, 300);
    QCoreApplication::processEvents();
    QCOMPARE(table->columnWidth(0), table->viewport()->width() - 100);
    for (int column = 1; column <= 5; ++column) {
        QCOMPARE(table->columnWidth(column), 20);
        QCOMPARE(table->cellWidget(2, column)->geometry(),
                 table->visualRect(table->model()->index(2, column)));
    }
}

void tst_CustomLayerTableWidget::slotMayRemoveTheRow_data()
{
    QTest::addColumn<int>("column");
    QTest::newRow("delete") << 1;
    QTest::newRow("edit") << 2;
    QTest::newRow("lock") << 3;
    QTest::newRow("visible") << 4;
    QTest::newRow("colour") << 5;
}

void tst_CustomLayerTableWidget::slotMayRemoveTheRow()
{
    QFETCH(int, column);
    const auto table = layerList(3);
    QVERIFY(table);
    const QPointer<QWidget> button(table->cellWidget(1, column));
    const ColorDialogDriver driver(
        [](FramelessDialog *frame, QColorDialog *) { frame->GetOKButton()->click(); });
    int calls = 0;
    connect(table.get(), &Table::signalUpdateModel, table.get(), [&](int row) {
        ++calls;
        table->removeRow(row);
    });
    clickCell(*table, 1, column);
    QCOMPARE(calls, 1);
    QCOMPARE(table->rowCount(), 2);
    QCOMPARE(table->item(1, 0)->text(), QStringLiteral("layer2"));
    QTRY_VERIFY(!button);
    QCOMPARE(table->findChildren<customLayerToolButton *>().size(), 10);
}

void tst_CustomLayerTableWidget::slotMayDeleteTheButton_data()
{
    slotMayRemoveTheRow_data();
}

void tst_CustomLayerTableWidget::slotMayDeleteTheButton()
{
    QFETCH(int, column);
    const auto table = layerList(2);
    QVERIFY(table);
    const QPointer<QWidget> button(table->cellWidget(0, column));
    const ColorDialogDriver driver(
        [](FramelessDialog *frame, QColorDialog *) { frame->GetOKButton()->click(); });
    connect(table.get(), &Table::signalUpdateModel, table.get(), [&button] { delete button; });
    clickCell(*table, 0, column);
    QVERIFY(!button);
    QVERIFY(!table->cellWidget(0, column));
    QCoreApplication::processEvents();
}

void tst_CustomLayerTableWidget::slotMayDeleteTheTable_data()
{
    slotMayRemoveTheRow_data();
}

void tst_CustomLayerTableWidget::slotMayDeleteTheTable()
{
    QFETCH(int, column);
    const QPointer<Table> table(layerList(2).release());
    QVERIFY(table);
    const ColorDialogDriver driver(
        [](FramelessDialog *frame, QColorDialog *) { frame->GetOKButton()->click(); });
    QObject host;
    connect(table.data(), &Table::signalUpdateModel, &host, [&table] { delete table; });
    clickCell(*table, 0, column);
    QVERIFY(!table);
    QCoreApplication::processEvents();
}

void tst_CustomLayerTableWidget::slotMayRebuildThePanel()
{
    const auto table = layerList(2);
    QVERIFY(table);
    connect(table.get(), &Table::signalUpdateModel, table.get(),
            [&] { table->creatUiType(Table::OBJECT_PROPERTIES); });
    clickCell(*table, 0, 1);
    QCOMPARE(table->rowCount(), 4);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(table->findChildren<customLayerToolButton *>().isEmpty());
}

void tst_CustomLayerTableWidget::removedRowsTakeTheirButtonsAlong()
{
    const auto table = layerList(10);
    QVERIFY(table);
    QCOMPARE(table->findChildren<customLayerToolButton *>().size(), 50);
    table->removeRow(4);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(table->findChildren<customLayerToolButton *>().size(), 45);
    table->setRowCount(0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(table->findChildren<customLayerToolButton *>().isEmpty());
}

void tst_CustomLayerTableWidget::colorIsAccepted()
{
    const auto table = layerList(2);
    QVERIFY(table);
    QSignalSpy spy(table.get(), &Table::signalUpdateModel);
    ColorDialogDriver driver([](FramelessDialog *frame, QColorDialog *colors) {
        colors->setCurrentColor(QColor(12, 34, 56));
        QTest::mouseClick(frame->GetOKButton(), Qt::LeftButton);
    });
    clickCell(*table, 1, 5);
    QCOMPARE(driver.runs, 1);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toInt(), 1);
    QCOMPARE(spy.at(0).at(1).value<QVariant>(), QVariant(QColor(12, 34, 56)));
    QCOMPARE(spy.at(0).at(2).value<Table::RESULTBUTTONTYPE>(), Table::BUTTON_COLOR);
    QVERIFY(isFilled(picture(buttonAt(*table, 1, 5)->icon()), QColor(12, 34, 56)));
    QVERIFY(isFilled(picture(buttonAt(*table, 0, 5)->icon()), Qt::white));

    // OK at once takes the colour that the dialog starts with.
    ColorDialogDriver again(
        [](FramelessDialog *frame, QColorDialog *) { frame->GetOKButton()->click(); });
    clickCell(*table, 1, 5);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(1).at(1).value<QVariant>(), QVariant(QColor(Qt::white)));
}

void tst_CustomLayerTableWidget::colorIsNotAccepted_data()
{
    QTest::addColumn<int>("deed");
    QTest::newRow("cancel") << 0;
    QTest::newRow("title button") << 1;
    QTest::newRow("escape in the frame") << 2;
    QTest::newRow("escape in the colours") << 3;
    QTest::newRow("colours rejected") << 4;
    QTest::newRow("frame deleted") << 5;
    QTest::newRow("colours deleted, then OK") << 6;
    QTest::newRow("closed") << 7;
}

void tst_CustomLayerTableWidget::colorIsNotAccepted()
{
    QFETCH(int, deed);
    const auto table = layerList(1);
    QVERIFY(table);
    QSignalSpy spy(table.get(), &Table::signalUpdateModel);
    ColorDialogDriver driver([deed](FramelessDialog *frame, QColorDialog *colors) {
        colors->setCurrentColor(Qt::red);
        switch (deed) {
        case 0:
            QTest::mouseClick(frame->GetCancelButton(), Qt::LeftButton);
            break;
        case 1:
            QTest::mouseClick(frame->getTitleBar()->titleButton(TitleBar::CloseButton),
                              Qt::LeftButton);
            break;
        case 2:
            QTest::keyClick(frame, Qt::Key_Escape);
            break;
        case 3:
            QTest::keyClick(colors, Qt::Key_Escape);
            break;
        case 4:
            colors->reject();
            break;
        case 5:
            delete frame;
            break;
        case 6:
            delete colors;
            frame->GetOKButton()->click();
            break;
        default:
            frame->close();
        }
    });
    clickCell(*table, 0, 5);
    QCOMPARE(driver.runs, 1);
    QCOMPARE(spy.count(), 0);
    QVERIFY(isFilled(picture(buttonAt(*table, 0, 5)->icon()), Qt::white));
    QVERIFY(table->findChildren<QDialog *>().isEmpty());
}

void tst_CustomLayerTableWidget::colorDialogLooks()
{
    const auto table = layerList(1);
    QVERIFY(table);
    QString title;
    QString labelStyle;
    QWidget *frameParent = nullptr;
    QColorDialog::ColorDialogOptions options;
    bool modal = false;
    bool inside = false;
    QSize size;
    QColor start;
    ColorDialogDriver driver([&](FramelessDialog *frame, QColorDialog *colors) {
        title = frame->windowTitle();
        labelStyle = frame->getTitleBar()->titleLabel()->styleSheet();
        frameParent = frame->parentWidget();
        options = colors->options();
        modal = frame->isModal();
        inside = !colors->isWindow() && colors->parentWidget() == frame &&
                 frame->getMainLayout()->indexOf(colors) == 2 &&
                 frame->rect().contains(colors->geometry());
        size = colors->size();
        start = colors->currentColor();
        frame->reject();
    });
    clickCell(*table, 0, 5);
    QCOMPARE(title, QStringLiteral("Background Color"));
    QCOMPARE(labelStyle,
             QStringLiteral("width: 32px;font-size: 16px;padding-left: 5px;color: #F2F2F2;"
                            "background-color:transparent;line-height: 24px;"));
    QCOMPARE(frameParent, table.get());
    QCOMPARE(options, QColorDialog::ColorDialogOptions(QColorDialog::NoButtons));
    QVERIFY(modal);
    QVERIFY(inside);
    QVERIFY(size.width() > 300);
    QCOMPARE(start, QColor(Qt::white));
}

void tst_CustomLayerTableWidget::colorDialogTakesTheKeyboard()
{
    const auto table = layerList(1);
    QVERIFY(table);
    QSignalSpy spy(table.get(), &Table::signalUpdateModel);
    ColorDialogDriver driver([](FramelessDialog *, QColorDialog *colors) {
        QLineEdit *html = nullptr;
        for (QLineEdit *edit : colors->findChildren<QLineEdit *>()) {
            if (edit->text() == QLatin1String("#ffffff")) {
                html = edit;
            }
        }
        QVERIFY(html);
        html->setFocus();
        html->selectAll();
        QTest::keyClicks(html, QStringLiteral("#00ff7f"));
        QTest::keyClick(html, Qt::Key_Return);
    });
    clickCell(*table, 0, 5);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(1).value<QVariant>(), QVariant(QColor(0, 255, 127)));
}

void tst_CustomLayerTableWidget::colorDialogLeavesNothing()
{
    const auto table = layerList(1);
    QVERIFY(table);
    const int tableChildren = table->children().size();
    const int viewportChildren = table->viewport()->children().size();
    const int windows = QApplication::topLevelWidgets().size();
    for (int i = 0; i < 6; ++i) {
        ColorDialogDriver driver([i](FramelessDialog *frame, QColorDialog *) {
            if (i % 2) {
                frame->accept();
            } else {
                frame->reject();
            }
        });
        clickCell(*table, 0, 5);
        QCOMPARE(driver.runs, 1);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(table->children().size(), tableChildren);
        QCOMPARE(table->viewport()->children().size(), viewportChildren);
        QCOMPARE(QApplication::topLevelWidgets().size(), windows);
    }
}

void tst_CustomLayerTableWidget::goneWhileColorDialogIsOpen_data()
{
    QTest::addColumn<int>("deed");
    QTest::newRow("row removed") << 0;
    QTest::newRow("button deleted") << 1;
    QTest::newRow("cell replaced") << 2;
    QTest::newRow("panel rebuilt") << 3;
    QTest::newRow("table deleted") << 4;
    QTest::newRow("table's parent deleted") << 5;
    QTest::newRow("rows added") << 6;
    QTest::newRow("row removed just now") << 7;
}

void tst_CustomLayerTableWidget::goneWhileColorDialogIsOpen()
{
    QFETCH(int, deed);
    QPointer<QWidget> window(new QWidget);
    window->resize(400, 300);
    const QPointer<Table> table(new Table(window));
    table->resize(400, 300);
    table->creatUiType(Table::LAYER_LIST);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.data()));
    table->addLayerRow();
    table->addLayerRow();
    QCoreApplication::processEvents();
    int emitted = 0;
    QObject host;
    connect(table.data(), &Table::signalUpdateModel, &host, [&emitted] { ++emitted; });
    ColorDialogDriver driver([&](FramelessDialog *frame, QColorDialog *colors) {
        const QPointer<FramelessDialog> frameGuard(frame);
        colors->setCurrentColor(Qt::red);
        switch (deed) {
        case 0:
            table->removeRow(0);
            break;
        case 1:
            delete table->cellWidget(0, 5);
            break;
        case 2:
            table->setCellWidget(0, 5, new QLabel);
            break;
        case 3:
            table->creatUiType(Table::LAYER_PROPERTIES);
            break;
        case 4:
            delete table;
            break;
        case 5:
            delete window;
            break;
        case 7:
            // The button lives until the event loop deletes it.
            table->removeRow(0);
            frameGuard->GetOKButton()->click();
            return;
        default:
            for (int i = 0; i < 50; ++i) {
                table->addLayerRow();
            }
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (frameGuard) {
            frameGuard->GetOKButton()->click();
        }
    });
    clickCell(*table, 0, 5);
    QCOMPARE(driver.runs, 1);
    QCOMPARE(emitted, deed == 6 ? 1 : 0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!QApplication::activeModalWidget());
    if (table) {
        QVERIFY(table->findChildren<QDialog *>().isEmpty());
    }
    delete window;
}

void tst_CustomLayerTableWidget::colorDialogSurvivesAThemeSwitch()
{
    const ThemeGuard guard;
    const auto table = layerList(1);
    QVERIFY(table);
    QSignalSpy spy(table.get(), &Table::signalUpdateModel);
    ColorDialogDriver driver([](FramelessDialog *frame, QColorDialog *colors) {
        TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::White);
        colors->setCurrentColor(Qt::green);
        frame->accept();
    });
    clickCell(*table, 0, 5);
    QCOMPARE(spy.count(), 1);
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Blue);
    QVERIFY(isFilled(picture(buttonAt(*table, 0, 5)->icon()), Qt::green));
}

void tst_CustomLayerTableWidget::layerPropertiesAreBuilt()
{
    const auto table = panel(Table::LAYER_PROPERTIES);
    QVERIFY(table);
    QCOMPARE(table->columnCount(), 2);
    QCOMPARE(table->rowCount(), 3);
    QVERIFY(table->horizontalHeader()->isHidden());
    QVERIFY(table->verticalHeader()->isHidden());
    QCOMPARE(table->selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(table->selectionMode(), QAbstractItemView::NoSelection);
    QCOMPARE(table->horizontalHeader()->sectionResizeMode(0), QHeaderView::Interactive);
    QCOMPARE(table->horizontalHeader()->sectionResizeMode(1), QHeaderView::Stretch);
    QCOMPARE(table->columnWidth(0), 150);
    QCOMPARE(table->columnWidth(1), table->viewport()->width() - 150);

    const QStringList captions{QStringLiteral("Name"), QStringLiteral("Line Style"),
                               QStringLiteral("Line Width")};
    for (int row = 0; row < 3; ++row) {
        QCOMPARE(table->rowHeight(row), 32);
        const QLabel *caption = labelAt(*table, row, 0);
        QVERIFY(caption);
        QCOMPARE(caption->text(), captions.at(row));
        QCOMPARE(caption->styleSheet(), QStringLiteral("QLabel{padding-left:16px;}"));
        QCOMPARE(caption->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
        QVERIFY(!table->item(row, 0));
    }
    QVERIFY(labelAt(*table, 0, 1));
    QCOMPARE(labelAt(*table, 0, 1)->alignment(), Qt::AlignCenter);
    QVERIFY(labelAt(*table, 0, 1)->text().isEmpty());

    const auto *style = qobject_cast<LineTypeComboBox *>(table->cellWidget(1, 1));
    QVERIFY(style);
    QCOMPARE(style->objectName(), QStringLiteral("pLineStyleCombobox"));
    QCOMPARE(style->minimumSize(), QSize(0, 31));
    QCOMPARE(style->maximumSize(), QSize(16777215, 31));
    QCOMPARE(style->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(style->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);

    const QComboBox *width = boxAt(*table, 2);
    QVERIFY(width);
    QCOMPARE(width->metaObject(), &QComboBox::staticMetaObject);
    QCOMPARE(width->objectName(), QStringLiteral("pLineWidthCombobox"));
    QCOMPARE(width->count(), 0);
}

void tst_CustomLayerTableWidget::objectPropertiesAreBuilt()
{
    const auto table = panel(Table::OBJECT_PROPERTIES);
    QVERIFY(table);
    QCOMPARE(table->columnCount(), 2);
    QCOMPARE(table->rowCount(), 4);
    QCOMPARE(table->selectionMode(), QAbstractItemView::NoSelection);
    QCOMPARE(table->selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(table->columnWidth(0), 150);
    QCOMPARE(table->columnWidth(1), table->viewport()->width() - 150);
    QVERIFY(table->horizontalHeader()->isHidden());
    QVERIFY(table->verticalHeader()->isHidden());

    const QStringList captions{QStringLiteral("Layer"), QStringLiteral("Color"),
                               QStringLiteral("Line Style"), QStringLiteral("Line Width")};
    const Qt::Alignment untouched = QLabel().alignment();
    for (int row = 0; row < 4; ++row) {
        QCOMPARE(table->rowHeight(row), 32);
        const QLabel *caption = labelAt(*table, row, 0);
        QVERIFY(caption);
        QCOMPARE(caption->text(), captions.at(row));
        QCOMPARE(caption->styleSheet(), QStringLiteral("QLabel{padding-left:16px;}"));
        QCOMPARE(caption->alignment(), untouched);
    }
    QCOMPARE(labelAt(*table, 0, 1)->alignment(), Qt::AlignCenter);
    QVERIFY(boxAt(*table, 1));
    QCOMPARE(boxAt(*table, 1)->metaObject(), &QComboBox::staticMetaObject);
    QVERIFY(boxAt(*table, 1)->objectName().isEmpty());
    const auto *style = qobject_cast<LineTypeComboBox *>(table->cellWidget(2, 1));
    QVERIFY(style);
    QCOMPARE(style->objectName(), QStringLiteral("pObjectLineTypeboBox"));
    QCOMPARE(style->minimumSize(), QSize(0, 31));
    QCOMPARE(style->maximumSize(), QSize(16777215, 31));
    QCOMPARE(style->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(style->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(boxAt(*table, 3)->objectName(), QStringLiteral("pObjectLineWidthboBox"));
    QCOMPARE(boxAt(*table, 3)->count(), 0);
}

void tst_CustomLayerTableWidget::colorList()
{
    Table table;
    table.creatUiType(Table::OBJECT_PROPERTIES);
    const QComboBox *box = boxAt(table, 1);
    const QVector<QPair<QString, QColor>> expected{
        {QStringLiteral("By layer"), QColor(Qt::transparent)},
        {QStringLiteral("Red"), QColor(255, 0, 0)},
        {QStringLiteral("Green"), QColor(0, 255, 0)},
        {QStringLiteral("Blue"), QColor(0, 0, 255)},
        {QStringLiteral("Cyan"), QColor(0, 255, 255)},
        {QStringLiteral("Magenta"), QColor(255, 0, 255)},
        {QStringLiteral("Yellow"), QColor(255, 255, 0)},
        {QStringLiteral("Orange"), QColor(255, 127, 0, 255)},
        {QStringLiteral("Dark Red"), QColor(128, 0, 0)},
        {QStringLiteral("Dark Green"), QColor(0, 128, 0)},
        {QStringLiteral("Dark Blue"), QColor(0, 0, 128)},
        {QStringLiteral("Dark Cyan"), QColor(0, 128, 128)},
        {QStringLiteral("Dark Magenta"), QColor(128, 0, 128)},
        {QStringLiteral("Dark Yellow"), QColor(128, 128, 0)},
        {QStringLiteral("Black"), QColor(0, 0, 0)},
        {QStringLiteral("Gray"), QColor(Qt::gray)},
        {QStringLiteral("Light Gray"), QColor(Qt::lightGray)},
        {QStringLiteral("White"), QColor(255, 255, 255)},
    };
    QCOMPARE(box->count(), expected.size() + 1);
    for (int i = 0; i < expected.size(); ++i) {
        QCOMPARE(box->itemText(i), expected.at(i).first);
        QCOMPARE(box->itemData(i, Qt::UserRole).userType(), int(QMetaType::QColor));
        QCOMPARE(box->itemData(i, Qt::UserRole).value<QColor>(), expected.at(i).second);
        QVERIFY(!box->itemIcon(i).isNull());
    }
    QCOMPARE(box->itemText(18), QStringLiteral("Others"));
    QCOMPARE(box->itemData(18, Qt::UserRole), QVariant(QStringLiteral("OTHERS")));
    QVERIFY(box->itemIcon(18).isNull());
}

void tst_CustomLayerTableWidget::colorListIcons()
{
    Table table;
    table.creatUiType(Table::OBJECT_PROPERTIES);
    const QComboBox *box = boxAt(table, 1);
    for (int i = 0; i < 18; ++i) {
        const QIcon icon = box->itemIcon(i);
        QCOMPARE(icon.availableSizes(), QList<QSize>() << QSize(16, 16));
        const auto color = box->itemData(i, Qt::UserRole).value<QColor>();
        const QImage image = picture(icon, 16);
        QVERIFY(isFilled(image.copy(2, 2, 12, 12), i == 0 ? QColor(0, 0, 0, 0) : color));
        // Between the border and the fill nothing but the soft edge of the border.
        QPixmap drawn(16, 16);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.setPen(QPen(Qt::black, 1));
        painter.drawRect(0, 0, 15, 15);
        painter.fillRect(2, 2, 12, 12, color);
        painter.end();
        QCOMPARE(image, drawn.toImage().convertToFormat(QImage::Format_ARGB32));
        QVERIFY(image.pixelColor(0, 8).alpha() > 0);
    }
}

void tst_CustomLayerTableWidget::lineStylesAreThere_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("row");
    QTest::newRow("layer") << int(Table::LAYER_PROPERTIES) << 1;
    QTest::newRow("object") << int(Table::OBJECT_PROPERTIES) << 2;
}

void tst_CustomLayerTableWidget::lineStylesAreThere()
{
    QFETCH(int, type);
    QFETCH(int, row);
    const auto table = panel(static_cast<Table::DISPLAYWINDOW>(type));
    QVERIFY(table);
    const QComboBox *box = boxAt(*table, row);
    QCOMPARE(box->count(), 15);
    QCOMPARE(box->itemData(0), QVariant(QStringLiteral("CONTINUOUS")));
    QCOMPARE(box->itemData(14), QVariant(QStringLiteral("ACAD_ISO15W100")));
    QCOMPARE(box->height(), 31);
    QCOMPARE(box->width(), table->columnWidth(1) - 1); // less the grid line
}

void tst_CustomLayerTableWidget::setLayerProperties_data()
{
    QTest::addColumn<QVariant>("name");
    QTest::addColumn<QVariant>("style");
    QTest::addColumn<QVariant>("width");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("styleIndex");
    QTest::addColumn<int>("widthIndex");
    const QVariant name(QStringLiteral("Walls"));
    QTest::newRow("all") << name << QVariant(QStringLiteral("ACAD_ISO05W100")) << QVariant(0.5)
                         << "Walls" << 4 << 2;
    QTest::newRow("first") << name << QVariant(QStringLiteral("CONTINUOUS")) << QVariant(0.18)
                           << "Walls" << 0 << 0;
    QTest::newRow("last") << name << QVariant(QStringLiteral("ACAD_ISO15W100")) << QVariant(0.5)
                          << "Walls" << 14 << 2;
    QTest::newRow("unknown style")
        << name << QVariant(QStringLiteral("DASHED")) << QVariant(0.5) << "Walls" << -1 << 2;
    QTest::newRow("case matters") << name << QVariant(QStringLiteral("continuous")) << QVariant(0.5)
                                  << "Walls" << -1 << 2;
    QTest::newRow("unknown width")
        << name << QVariant(QStringLiteral("CONTINUOUS")) << QVariant(0.51) << "Walls" << 0 << -1;
    QTest::newRow("invalid values") << QVariant() << QVariant() << QVariant() << "" << -1 << -1;
    QTest::newRow("number as name") << QVariant(17) << QVariant(QStringLiteral("CONTINUOUS"))
                                    << QVariant(0.18) << "17" << 0 << 0;
    QTest::newRow("markup as name")
        << QVariant(QStringLiteral("<b>&x</b>")) << QVariant(QStringLiteral("CONTINUOUS"))
        << QVariant(0.18) << "<b>&x</b>" << 0 << 0;
}

void tst_CustomLayerTableWidget::setLayerProperties()
{
    QFETCH(QVariant, name);
    QFETCH(QVariant, style);
    QFETCH(QVariant, width);
    const auto table = panel(Table::LAYER_PROPERTIES);
    QVERIFY(table);
    QComboBox *widths = boxAt(*table, 2);
    for (const double value : {0.18, 0.25, 0.5}) {
        widths->addItem(QString::number(value), value);
    }
    widths->setCurrentIndex(1);
    boxAt(*table, 1)->setCurrentIndex(7);
    const SignalCounter counter(table.get());
    table->setLayerProperties({name, style, width});
    QCOMPARE(counter.count(), 0);
    QTEST(labelAt(*table, 0, 1)->text(), "text");
    QTEST(boxAt(*table, 1)->currentIndex(), "styleIndex");
    QTEST(widths->currentIndex(), "widthIndex");
    QVERIFY(!table->signalsBlocked());
    QVERIFY(!widths->signalsBlocked());
    QVERIFY(!boxAt(*table, 1)->signalsBlocked());
    QVERIFY(!labelAt(*table, 0, 1)->signalsBlocked());
}

void tst_CustomLayerTableWidget::setObjectProperties_data()
{
    QTest::addColumn<QVariant>("color");
    QTest::addColumn<QVariant>("style");
    QTest::addColumn<QVariant>("width");
    QTest::addColumn<int>("colorIndex");
    QTest::addColumn<int>("styleIndex");
    QTest::addColumn<int>("widthIndex");
    QTest::newRow("all") << QVariant(7) << QVariant(4) << QVariant(2) << 7 << 4 << 2;
    QTest::newRow("first") << QVariant(0) << QVariant(0) << QVariant(0) << 0 << 0 << 0;
    QTest::newRow("last") << QVariant(18) << QVariant(14) << QVariant(2) << 18 << 14 << 2;
    QTest::newRow("past the end") << QVariant(19) << QVariant(15) << QVariant(3) << -1 << -1 << -1;
    QTest::newRow("none") << QVariant(-1) << QVariant(-1) << QVariant(-1) << -1 << -1 << -1;
    QTest::newRow("as text") << QVariant(QStringLiteral("5")) << QVariant(QStringLiteral("2"))
                             << QVariant(QStringLiteral("1")) << 5 << 2 << 1;
    QTest::newRow("no number") << QVariant(QStringLiteral("Red")) << QVariant() << QVariant(true)
                               << 0 << 0 << 1;
}

void tst_CustomLayerTableWidget::setObjectProperties()
{
    QFETCH(QVariant, color);
    QFETCH(QVariant, style);
    QFETCH(QVariant, width);
    const auto table = panel(Table::OBJECT_PROPERTIES);
    QVERIFY(table);
    boxAt(*table, 1)->setCurrentIndex(3);
    boxAt(*table, 2)->setCurrentIndex(7);
    boxAt(*table, 3)->addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    const SignalCounter counter(table.get());
    table->setObjectProperties({QStringLiteral("Doors"), color, style, width});
    QCOMPARE(counter.count(), 0);
    QCOMPARE(labelAt(*table, 0, 1)->text(), QStringLiteral("Doors"));
    QTEST(boxAt(*table, 1)->currentIndex(), "colorIndex");
    QTEST(boxAt(*table, 2)->currentIndex(), "styleIndex");
    QTEST(boxAt(*table, 3)->currentIndex(), "widthIndex");
}

void tst_CustomLayerTableWidget::wrongListsAreIgnored_data()
{
    QTest::addColumn<int>("count");
    for (const int count : {0, 1, 2, 3, 4, 5, 100}) {
        QTest::newRow(qPrintable(QString::number(count))) << count;
    }
}

void tst_CustomLayerTableWidget::wrongListsAreIgnored()
{
    QFETCH(int, count);
    QList<QVariant> values;
    for (int i = 0; i < count; ++i) {
        values << QVariant(2);
    }
    for (const auto type : {Table::LAYER_PROPERTIES, Table::OBJECT_PROPERTIES}) {
        const auto table = panel(type);
        QVERIFY(table);
        if (count != 3) {
            table->setLayerProperties(values);
        }
        if (count != 4) {
            table->setObjectProperties(values);
        }
        QVERIFY(labelAt(*table, 0, 1)->text().isEmpty());
        QCOMPARE(boxAt(*table, 1)->currentIndex(), 0);
        QVERIFY(!table->signalsBlocked());
    }
}

void tst_CustomLayerTableWidget::writingBackKeepsABlockedTableBlocked()
{
    Table table;
    table.creatUiType(Table::LAYER_PROPERTIES);
    const QSignalBlocker blocker(&table);
    table.setLayerProperties({QStringLiteral("a"), QVariant(), QVariant()});
    QCOMPARE(labelAt(table, 0, 1)->text(), QStringLiteral("a"));
    QVERIFY(table.signalsBlocked());
}

void tst_CustomLayerTableWidget::otherPanelsCellsAreSkipped()
{
    const auto object = panel(Table::OBJECT_PROPERTIES);
    QVERIFY(object);
    boxAt(*object, 1)->setCurrentIndex(5);
    object->setLayerProperties({QStringLiteral("a"), QVariant(), QVariant()});
    QCOMPARE(labelAt(*object, 0, 1)->text(), QStringLiteral("a"));
    QCOMPARE(boxAt(*object, 1)->currentIndex(), 5); // a list of colours, not of line styles

    const auto layer = panel(Table::LAYER_PROPERTIES);
    QVERIFY(layer);
    boxAt(*layer, 2)->addItems({QStringLiteral("a"), QStringLiteral("b")});
    layer->setObjectProperties({QStringLiteral("b"), 1, 1, 1});
    QCOMPARE(labelAt(*layer, 0, 1)->text(), QStringLiteral("b"));
    QCOMPARE(boxAt(*layer, 2)->currentIndex(), 0); // line widths, not line styles

    const auto list = layerList(5);
    QVERIFY(list);
    list->setLayerProperties({QStringLiteral("a"), 1, 1});
    list->setObjectProperties({QStringLiteral("a"), 1, 1, 1});
    QCOMPARE(list->item(0, 0)->text(), QStringLiteral("layer0"));
    QVERIFY(buttonAt(*list, 0, 1)->text().isEmpty());

    Table empty;
    empty.setLayerProperties({QStringLiteral("a"), 1, 1});
    empty.setObjectProperties({QStringLiteral("a"), 1, 1, 1});
    QCOMPARE(empty.rowCount(), 0);
}

void tst_CustomLayerTableWidget::replacedCellsAreSkipped()
{
    const auto table = panel(Table::LAYER_PROPERTIES);
    QVERIFY(table);
    auto *name = new QLineEdit(QStringLiteral("mine"));
    table->setCellWidget(0, 1, name);
    table->removeCellWidget(1, 1);
    boxAt(*table, 2)->addItem(QStringLiteral("0.5"), 0.5);
    boxAt(*table, 2)->setCurrentIndex(-1);
    table->setLayerProperties({QStringLiteral("a"), QStringLiteral("CONTINUOUS"), 0.5});
    QCOMPARE(name->text(), QStringLiteral("mine"));
    QVERIFY(!table->cellWidget(1, 1));
    QCOMPARE(boxAt(*table, 2)->currentIndex(), 0);

    class HostLineTypes : public LineTypeComboBox
    {
    };
    auto *styles = new HostLineTypes;
    table->setCellWidget(1, 1, styles);
    QCoreApplication::processEvents();
    table->setLayerProperties({QString(), QStringLiteral("ACAD_ISO03W100"), 0.5});
    QCOMPARE(styles->currentIndex(), 2);
}

void tst_CustomLayerTableWidget::panelsReplaceEachOther_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    for (int first = 0; first < 3; ++first) {
        for (int second = 0; second < 3; ++second) {
            QTest::addRow("%d then %d", first, second) << first << second;
        }
    }
}

void tst_CustomLayerTableWidget::panelsReplaceEachOther()
{
    QFETCH(int, first);
    QFETCH(int, second);
    const auto table = panel(static_cast<Table::DISPLAYWINDOW>(first));
    QVERIFY(table);
    table->addLayerRow();
    table->addLayerRow();
    table->creatUiType(static_cast<Table::DISPLAYWINDOW>(second));
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    const auto fresh = panel(static_cast<Table::DISPLAYWINDOW>(second));
    QVERIFY(fresh);
    QCOMPARE(table->rowCount(), fresh->rowCount());
    QCOMPARE(table->columnCount(), fresh->columnCount());
    QCOMPARE(table->findChildren<QComboBox *>().size(), fresh->findChildren<QComboBox *>().size());
    QCOMPARE(table->findChildren<QLabel *>().size(), fresh->findChildren<QLabel *>().size());
    QVERIFY(table->findChildren<customLayerToolButton *>().isEmpty());
    for (int column = 0; column < table->columnCount(); ++column) {
        QCOMPARE(table->columnWidth(column), fresh->columnWidth(column));
        for (int row = 0; row < table->rowCount(); ++row) {
            QVERIFY(!table->item(row, column));
            QVERIFY(table->cellWidget(row, column));
        }
    }
    table->addLayerRow();
    QCOMPARE(table->rowCount(), fresh->rowCount() + (second == 0 ? 1 : 0));
}

LMTEST_MAIN(tst_CustomLayerTableWidget)

#include "tst_customlayertablewidget.moc"
