#include "editcomboparts.h"
#include "lmtest.h"

#include <QDesktopWidget>
#include <QListView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QVBoxLayout>

using LM::Widgets::EditComboBox;
using namespace editcombo;

/** The list of an edit combo box under the mouse and the keys. */
class tst_EditComboBoxList : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void typingFilters();
    void tenRows();
    void pressInTheLineEdit();
    void pressWithEveryButton();
    void pressInADisabledBox();
    void pressWithoutCompleter();
    void buttonWithoutCompleter();
    void inlineCompletion();
    void buttonShowsAll();
    void disabledButton();
    void nothingToShow();
    void pickWithTheMouse();
    void pickTheCurrentOne();
    void pickADuplicate();
    void pickWithTheKeys();
    void pickAfterClear();
    void escapeKeepsTheText();
    void clickBesideCloses();
    void placeOfTheList();
    void typingIntoTheOpenList();
    void addingClosesTheList();
    void addingKeepsOneDelegate();
    void modelIsReset();
    void modelBeforeItsReset();
    void otherEventsReachTheLineEdit();
    void rowHeights();
    void openedAgainAsIfAnew();
    void rowsOfALongList_data();
    void rowsOfALongList();
    void wideRow();
};

void tst_EditComboBoxList::typingFilters()
{
    EditComboBox box({"Cab", "xAB", "q"}, nullptr);
    show(box);
    lineEdit(box)->setFocus();
    QTest::keyClicks(lineEdit(box), QStringLiteral("ab"));
    QVERIFY(popup(box)->isVisible());
    QCOMPARE(shownEntries(box), QStringList({"Cab", "xAB"}));
    QTest::keyClicks(lineEdit(box), QStringLiteral("c"));
    QVERIFY(!popup(box)->isVisible());
}

void tst_EditComboBoxList::tenRows()
{
    for (const int count : {9, 10, 11, 30}) {
        EditComboBox box;
        for (int i = 0; i < count; ++i) {
            box.addItem(QStringLiteral("ab %1").arg(i));
        }
        show(box);
        lineEdit(box)->setFocus();
        QTest::keyClicks(lineEdit(box), QStringLiteral("ab"));
        QAbstractItemView *list = popup(box);
        QVERIFY(list->isVisible());
        QCOMPARE(list->model()->rowCount(), count);
        QTRY_COMPARE(list->verticalScrollBar()->maximum() > 0, count > 10);
        const int rowHeight = list->visualRect(list->model()->index(0, 0)).height();
        QCOMPARE(list->viewport()->height() / rowHeight, qMin(count, 10));
    }
}

void tst_EditComboBoxList::pressInTheLineEdit()
{
    EditComboBox box({"Cab", "xAB", "q"}, nullptr);
    show(box);
    lineEdit(box)->setText(QStringLiteral("a"));
    lineEdit(box)->setCursorPosition(0);
    QTest::mouseClick(lineEdit(box), Qt::LeftButton, Qt::NoModifier,
                      lineEdit(box)->rect().center());
    QVERIFY(popup(box)->isVisible());
    QCOMPARE(completer(box)->completionPrefix(), QStringLiteral("a"));
    QCOMPARE(shownEntries(box), QStringList({"Cab", "xAB"}));
    QVERIFY(lineEdit(box)->hasFocus());
    // The line edit itself saw no press: its cursor is where it was.
    QCOMPARE(lineEdit(box)->cursorPosition(), 0);
}

void tst_EditComboBoxList::pressWithEveryButton()
{
    for (const Qt::MouseButton mouseButton : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        EditComboBox box({"a", "b"}, nullptr);
        show(box);
        QTest::mousePress(lineEdit(box), mouseButton);
        QVERIFY(popup(box)->isVisible());
        QCOMPARE(shownEntries(box), QStringList({"a", "b"}));
    }
}

void tst_EditComboBoxList::pressInADisabledBox()
{
    EditComboBox box({"a"}, nullptr);
    show(box);
    box.setEnabled(false);
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QSignalSpy seen(&box, &QObject::destroyed);
    QVERIFY(!static_cast<QObject &>(box).eventFilter(nullptr, &press));
    press.accept();
    // A widget that is disabled ignores the press; the box would have accepted it as its own.
    QApplication::sendEvent(lineEdit(box), &press);
    QVERIFY(!popup(box)->isVisible());
    QCOMPARE(seen.count(), 0);
}

void tst_EditComboBoxList::pressWithoutCompleter()
{
    EditComboBox box({"a"}, nullptr);
    show(box);
    QAbstractItemView *list = popup(box);
    lineEdit(box)->setText(QStringLiteral("abc"));
    lineEdit(box)->setCursorPosition(0);
    lineEdit(box)->setCompleter(nullptr);
    QTest::mouseClick(lineEdit(box), Qt::LeftButton, Qt::NoModifier,
                      QPoint(lineEdit(box)->width() - 4, 10));
    QVERIFY(!list->isVisible());
    QCOMPARE(lineEdit(box)->cursorPosition(), 0);
}

// The button goes on showing the list of the box after the host took the completer away.
void tst_EditComboBoxList::buttonWithoutCompleter()
{
    EditComboBox box({"a", "b"}, nullptr);
    show(box);
    QAbstractItemView *list = popup(box);
    lineEdit(box)->setCompleter(nullptr);
    QTest::mouseClick(button(box), Qt::LeftButton);
    QVERIFY(list->isVisible());
    QCOMPARE(list->width(), box.width());
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      list->visualRect(list->model()->index(1, 0)).center());
    QCOMPARE(lineEdit(box)->text(), QStringLiteral("b"));
    QCOMPARE(box.currentIndex(), 1);
}

void tst_EditComboBoxList::inlineCompletion()
{
    EditComboBox box({"alpha", "beta"}, nullptr);
    show(box);
    completer(box)->setCompletionMode(QCompleter::InlineCompletion);
    box.addItem(QStringLiteral("gamma"));
    QTest::mouseClick(button(box), Qt::LeftButton);
    lineEdit(box)->clear();
    QTest::mouseClick(lineEdit(box), Qt::LeftButton);
    box.addItem(QStringLiteral("delta"));
    QCOMPARE(modelEntries(box), QStringList({"alpha", "beta", "gamma", "delta"}));
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_EditComboBoxList::buttonShowsAll()
{
    EditComboBox box({"Cab", "xAB", "q"}, nullptr);
    show(box);
    box.setCurrentText(QStringLiteral("q"));
    QTest::mouseClick(button(box), Qt::LeftButton);
    QVERIFY(popup(box)->isVisible());
    QCOMPARE(shownEntries(box), QStringList({"Cab", "xAB", "q"}));
    QCOMPARE(completer(box)->completionPrefix(), QString());
    QCOMPARE(completer(box)->currentRow(), 2);
    QCOMPARE(lineEdit(box)->text(), QStringLiteral("q"));
}

void tst_EditComboBoxList::disabledButton()
{
    EditComboBox box({"a"}, nullptr);
    show(box);
    box.setEnabled(false);
    QTest::mouseClick(button(box), Qt::LeftButton);
    QVERIFY(!popup(box)->isVisible());
}

void tst_EditComboBoxList::nothingToShow()
{
    EditComboBox box;
    show(box);
    QTest::mouseClick(button(box), Qt::LeftButton);
    QVERIFY(popup(box)->isVisible());
    // Not anywhere on the screen, but where the list would be.
    QCOMPARE(popup(box)->geometry(), QRect(box.mapToGlobal(QPoint(0, box.height())), box.size()));
    popup(box)->hide();

    box.addItems({"a", "b"});
    lineEdit(box)->setText(QStringLiteral("z"));
    QTest::mouseClick(lineEdit(box), Qt::LeftButton);
    QVERIFY(popup(box)->isVisible());
    QCOMPARE(shownEntries(box), QStringList());
    QTest::keyClick(popup(box), Qt::Key_Backspace);
    QCOMPARE(lineEdit(box)->text(), QString());
}

void tst_EditComboBoxList::pickWithTheMouse()
{
    EditComboBox box({"a", "b", "c"}, nullptr);
    show(box);
    Notes notes(box);
    QTest::mouseClick(button(box), Qt::LeftButton);
    clickEntry(box, 2);
    QVERIFY(!popup(box)->isVisible());
    QCOMPARE(lineEdit(box)->text(), QStringLiteral("c"));
    QCOMPARE(box.currentIndex(), 2);
    QCOMPARE(notes.take(), QStringList({"index 2"}));
    QTest::mouseClick(lineEdit(box), Qt::LeftButton);
    QCOMPARE(shownEntries(box), QStringList({"c"}));
    clickEntry(box, 0);
    QCOMPARE(notes.take(), QStringList());
}

void tst_EditComboBoxList::pickTheCurrentOne()
{
    // The first entry is the current one of a new box: without the focus the line edit stays empty.
    EditComboBox box({"a", "b"}, nullptr);
    show(box);
    lineEdit(box)->clearFocus();
    completer(box)->setWidget(&box);
    Notes notes(box);
    QTest::mouseClick(button(box), Qt::LeftButton);
    clickEntry(box, 0);
    QCOMPARE(notes.take(), QStringList());
    QCOMPARE(box.currentIndex(), 0);
}

void tst_EditComboBoxList::pickADuplicate()
{
    EditComboBox box({"x", "a", "b", "a"}, nullptr);
    show(box);
    Notes notes(box);
    QTest::mouseClick(button(box), Qt::LeftButton);
    clickEntry(box, 3);
    QCOMPARE(box.currentIndex(), 1);
    QCOMPARE(notes.take(), QStringList({"index 1"}));
}

void tst_EditComboBoxList::pickWithTheKeys()
{
    EditComboBox box({"alpha", "beta", "gamma"}, nullptr);
    show(box);
    lineEdit(box)->setFocus();
    Notes notes(box);
    QTest::keyClicks(lineEdit(box), QStringLiteral("a"));
    QVERIFY(popup(box)->isVisible());
    QCOMPARE(notes.take(), QStringList({"index -1"}));
    QTest::keyClick(popup(box), Qt::Key_Down);
    QTest::keyClick(popup(box), Qt::Key_Down);
    // Each entry gone over is written into the line edit.
    QCOMPARE(lineEdit(box)->text(), QStringLiteral("beta"));
    QCOMPARE(notes.take(), QStringList({"index 0", "index 1"}));
    QTest::keyClick(popup(box), Qt::Key_Return);
    QVERIFY(!popup(box)->isVisible());
    QCOMPARE(lineEdit(box)->text(), QStringLiteral("beta"));
    QCOMPARE(box.currentIndex(), 1);
    QCOMPARE(notes.take(), QStringList());
}

void tst_EditComboBoxList::pickAfterClear()
{
    EditComboBox box({"a", "b"}, nullptr);
    box.setCurrentIndex(1);
    Notes notes(box);
    QMetaObject::invokeMethod(completer(box), "activated", Q_ARG(QString, QStringLiteral("none")));
    QCOMPARE(box.currentIndex(), -1);
    QCOMPARE(lineEdit(box)->text(), QString());
    QCOMPARE(notes.take(), QStringList({"index -1"}));
}

void tst_EditComboBoxList::escapeKeepsTheText()
{
    EditComboBox box({"alpha", "beta"}, nullptr);
    show(box);
    lineEdit(box)->setFocus();
    QTest::keyClicks(lineEdit(box), QStringLiteral("al"));
    QVERIFY(popup(box)->isVisible());
    QTest::keyClick(popup(box), Qt::Key_Escape);
    QVERIFY(!popup(box)->isVisible());
    QCOMPARE(lineEdit(box)->text(), QStringLiteral("al"));
}

void tst_EditComboBoxList::clickBesideCloses()
{
    EditComboBox box({"alpha", "beta"}, nullptr);
    show(box);
    QTest::mouseClick(button(box), Qt::LeftButton);
    QTest::mousePress(popup(box), Qt::LeftButton, Qt::NoModifier, QPoint(-50, -200));
    QVERIFY(!popup(box)->isVisible());
    QCOMPARE(lineEdit(box)->text(), QString());
}

void tst_EditComboBoxList::placeOfTheList()
{
    EditComboBox box({"alpha", "beta"}, nullptr);
    show(box);
    for (int i = 0; i < 2; ++i) {
        if (i == 0) {
            QTest::mouseClick(button(box), Qt::LeftButton);
        } else {
            QTest::mouseClick(lineEdit(box), Qt::LeftButton);
        }
        QVERIFY(popup(box)->isVisible());
        QCOMPARE(popup(box)->width(), box.width());
        QCOMPARE(popup(box)->x(), box.mapToGlobal(QPoint(0, 0)).x());
        popup(box)->hide();
    }
}

void tst_EditComboBoxList::typingIntoTheOpenList()
{
    EditComboBox box({"alpha", "beta", "gamma"}, nullptr);
    show(box);
    QTest::mouseClick(lineEdit(box), Qt::LeftButton);
    QVERIFY(popup(box)->isVisible());
    QTest::keyClick(popup(box), Qt::Key_M);
    QCOMPARE(lineEdit(box)->text(), QStringLiteral("m"));
    QCOMPARE(shownEntries(box), QStringList({"gamma"}));
    QVERIFY(popup(box)->isVisible());
    QTest::keyClick(popup(box), Qt::Key_Backspace);
    QCOMPARE(lineEdit(box)->text(), QString());
    QVERIFY(!popup(box)->isVisible());
}

void tst_EditComboBoxList::addingClosesTheList()
{
    EditComboBox box({"alpha", "beta"}, nullptr);
    show(box);
    lineEdit(box)->setText(QStringLiteral("bet"));
    for (int i = 0; i < 3; ++i) {
        QTest::mouseClick(lineEdit(box), Qt::LeftButton);
        QVERIFY(popup(box)->isVisible());
        QCOMPARE(shownEntries(box).size(), i + 1);
        box.addItem(QStringLiteral("beta %1").arg(i));
        QVERIFY(!popup(box)->isVisible());
        QCOMPARE(completer(box)->completionPrefix(), QStringLiteral("bet"));
        QCOMPARE(completer(box)->completionCount(), i + 2);
    }
    QTest::mouseClick(button(box), Qt::LeftButton);
    QVERIFY(popup(box)->isVisible());
    box.clear();
    QCOMPARE(shownEntries(box), QStringList());
}

void tst_EditComboBoxList::addingKeepsOneDelegate()
{
    EditComboBox box;
    const int delegates = popup(box)->findChildren<QAbstractItemDelegate *>().size();
    for (int i = 0; i < 10; ++i) {
        box.addItem(QStringLiteral("a"));
    }
    QCOMPARE(popup(box)->findChildren<QAbstractItemDelegate *>().size(), delegates);
}

void tst_EditComboBoxList::modelIsReset()
{
    EditComboBox box({"a"}, nullptr);
    QSignalSpy resets(completer(box)->model(), &QAbstractItemModel::modelReset);
    QSignalSpy inserted(completer(box)->model(), &QAbstractItemModel::rowsInserted);
    box.addItem(QStringLiteral("b"));
    box.addItems({"c", "d"});
    box.clear();
    QCOMPARE(resets.count(), 3);
    QCOMPARE(inserted.count(), 0);
}

// Whoever looks at the model when it announces its reset sees the entries that it had.
void tst_EditComboBoxList::modelBeforeItsReset()
{
    EditComboBox box({"a"}, nullptr);
    QVector<QStringList> before;
    QVector<int> counts;
    connect(completer(box)->model(), &QAbstractItemModel::modelAboutToBeReset, &box, [&] {
        before += modelEntries(box);
        counts += box.count();
    });
    box.addItem(QStringLiteral("b"));
    box.addItems({"c", "d"});
    box.clear();
    QCOMPARE(before, QVector<QStringList>({{"a"}, {"a", "b"}, {"a", "b", "c", "d"}}));
    QCOMPARE(counts, QVector<int>({2, 4, 0}));
}

void tst_EditComboBoxList::otherEventsReachTheLineEdit()
{
    EditComboBox box({"a"}, nullptr);
    show(box);
    lineEdit(box)->setText(QStringLiteral("one two"));
    QTest::mouseDClick(lineEdit(box), Qt::LeftButton, Qt::NoModifier,
                       QPoint(14, lineEdit(box)->height() / 2));
    QCOMPARE(lineEdit(box)->selectedText(), QStringLiteral("one"));
}

void tst_EditComboBoxList::rowHeights()
{
    EditComboBox box({"a", "b", "one\ntwo", "c"}, nullptr);
    show(box);
    QTest::mouseClick(button(box), Qt::LeftButton);
    QAbstractItemView *list = popup(box);
    const auto height = [list](int row) {
        return list->visualRect(list->model()->index(row, 0)).height();
    };
    QVERIFY(height(0) > 0);
    QCOMPARE(height(1), height(0));
    QVERIFY(height(2) > height(0) * 3 / 2);
    QCOMPARE(height(3), height(0));
}

/** What there is to see of a list that was just opened. */
static QStringList stateOfTheList(const EditComboBox &box)
{
    QAbstractItemView *list = popup(box);
    return {QString::number(list->verticalScrollBar()->value()),
            QString::number(list->currentIndex().row()),
            QString::number(list->selectionModel()->selectedIndexes().size()),
            QString::number(completer(box)->currentRow()),
            QString::number(completer(box)->completionCount()),
            QString::number(list->height())};
}

// A list that is opened twice in a row is not filled anew; nothing of that may show.
void tst_EditComboBoxList::openedAgainAsIfAnew()
{
    QStringList entries;
    for (int i = 0; i < 200; ++i) {
        entries += QStringLiteral("entry %1").arg(i);
    }
    for (const int current : {-1, 0, 150}) {
        QVector<QStringList> states;
        for (const bool filledAnew : {true, false}) {
            EditComboBox box(entries, nullptr);
            show(box);
            QTest::mouseClick(button(box), Qt::LeftButton);
            QCoreApplication::processEvents();
            QAbstractItemView *list = popup(box);
            list->setCurrentIndex(list->model()->index(90, 0));
            list->verticalScrollBar()->setValue(list->verticalScrollBar()->maximum());
            QTest::keyClick(list, Qt::Key_Escape);
            box.setCurrentIndex(current);
            if (filledAnew) {
                completer(box)->setCompletionPrefix(QStringLiteral("entry"));
            } else {
                QCOMPARE(completer(box)->completionPrefix(), QString());
            }
            QTest::mouseClick(button(box), Qt::LeftButton);
            QCoreApplication::processEvents();
            QVERIFY(list->isVisible());
            states += stateOfTheList(box);
        }
        QCOMPARE(states.at(1), states.at(0));
    }
}

/** The rows of the open list of @p box that a user sees at first. */
static QVector<QRect> openedRows(const EditComboBox &box)
{
    QTest::mouseClick(button(box), Qt::LeftButton);
    QVector<QRect> rows;
    for (int row = 0; row < 4; ++row) {
        rows += popup(box)->visualRect(popup(box)->model()->index(row, 0));
    }
    popup(box)->hide();
    return rows;
}

void tst_EditComboBoxList::rowsOfALongList_data()
{
    QTest::addColumn<QString>("odd");
    QTest::addColumn<bool>("alike");
    QTest::newRow("as the others") << QStringLiteral("c") << true;
    QTest::newRow("wide") << QString(60, QLatin1Char('m')) << false;
    QTest::newRow("several lines") << QStringLiteral("one\ntwo") << false;
    QTest::newRow("line separator") << QString(QChar::LineSeparator) << false;
    QTest::newRow("letters of another font") << QString(QChar(0x6f22)) << false;
    QTest::newRow("empty") << QString() << false;
}

// A long list may measure one row for all, but only where the rows come out as they are.
void tst_EditComboBoxList::rowsOfALongList()
{
    QFETCH(QString, odd);
    QFETCH(bool, alike);
    QStringList entries = {"a", odd};
    for (int i = 0; i < 1000; ++i) {
        entries += QStringLiteral("b %1").arg(i);
    }
    EditComboBox box(entries, nullptr);
    show(box);
    auto *list = qobject_cast<QListView *>(popup(box));
    const QVector<QRect> rows = openedRows(box);
    QCOMPARE(list->uniformItemSizes(), alike);
    list->setUniformItemSizes(false);
    list->doItemsLayout();
    QTest::mouseClick(button(box), Qt::LeftButton);
    for (int row = 0; row < rows.size(); ++row) {
        QCOMPARE(rows.at(row), list->visualRect(list->model()->index(row, 0)));
    }
    popup(box)->hide();
    // An entry that comes later counts as well, and so do the width of the box and a short list.
    box.addItem(QStringLiteral("one\ntwo"));
    openedRows(box);
    QVERIFY(!list->uniformItemSizes());
    box.clear();
    box.addItems(entries);
    openedRows(box);
    QCOMPARE(list->uniformItemSizes(), alike);
    box.resize(70, 30);
    openedRows(box);
    QVERIFY(!list->uniformItemSizes());
}

// A short list measures each of its rows: a wide one is cut off, and the list is as high as they.
void tst_EditComboBoxList::wideRow()
{
    EditComboBox box({QString(60, QLatin1Char('m')), "b", "c"}, nullptr);
    show(box);
    const QVector<QRect> rows = openedRows(box);
    QVERIFY(rows.at(0).width() > box.width());
    QVERIFY(rows.at(1).width() < box.width());
}

LMTEST_MAIN(tst_EditComboBoxList)

#include "tst_editcombobox_list.moc"
