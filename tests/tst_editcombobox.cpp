#include "editcomboparts.h"
#include "lmtest.h"

#include <lmwidgets/talvostylemanager.h>

#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QStandardItemModel>

#include <limits>

using LM::Widgets::EditComboBox;
using LM::Widgets::TalvoStyleManager;
using namespace editcombo;

/** What an edit combo box keeps and emits; its popup has a test of its own. */
class tst_EditComboBox : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void freshBoxHasIndexZero();
    void insertedAtTheEnd();
    void maxCount();
    void removeItemDoesNothing();
    void duplicates();
    void setEditableIsInverted();
    void metaObject();
    void parts();
    void styleSheets();
    void constructors();
    void listEditsKeepTheIndex();
    void clearKeepsTheText();
    void typing();
    void exactMatch();
    void editingFinished();
    void setCurrentIndex();
    void setCurrentIndexOutside_data();
    void setCurrentIndexOutside();
    void setCurrentIndexOutsideWithEmptyEntry();
    void setCurrentText();
    void setEditText();
    void clearEditText();
    void completerRow();
    void placeHolderText();
    void errorFlash();
    void errorFlashTwice();
    void themes();
    void focusGoesToTheLineEdit();
    void foreignModel();
    void manyEntries();
    void readOnlyStillPicks();
};

void tst_EditComboBox::freshBoxHasIndexZero()
{
    EditComboBox box;
    Notes notes(box);
    QCOMPARE(box.count(), 0);
    QCOMPARE(box.currentIndex(), 0);
    QCOMPARE(box.currentText(), QString());
    lineEdit(box)->setText(QStringLiteral("a"));
    QCOMPARE(box.currentIndex(), -1);
    QCOMPARE(notes.take(), QStringList({"index -1"}));
    lineEdit(box)->setText(QStringLiteral("b"));
    QCOMPARE(notes.take(), QStringList());
}

void tst_EditComboBox::insertedAtTheEnd()
{
    EditComboBox box({"a", "b"}, nullptr);
    box.insertItem(0, QStringLiteral("c"));
    QCOMPARE(modelEntries(box), QStringList({"a", "b", "c"}));
    box.insertItems(-7, {"d", "a"});
    box.addItem(QString());
    QCOMPARE(modelEntries(box), QStringList({"a", "b", "c", "d", "a", QString()}));
    QCOMPARE(box.count(), 6);
    QCOMPARE(box.property("count").toInt(), 6);
}

void tst_EditComboBox::maxCount()
{
    EditComboBox box({"a", "b", "c"}, nullptr);
    QCOMPARE(box.maxCount(), std::numeric_limits<int>::max());
    box.setMaxCount(3);
    box.addItem(QStringLiteral("d"));
    box.addItems({"d"});
    box.insertItem(0, QStringLiteral("d"));
    box.insertItems(0, {"d", "e"});
    QCOMPARE(modelEntries(box), QStringList({"a", "b", "c"}));
    box.setMaxCount(5);
    box.addItems({"d", "e", "f"});
    QCOMPARE(box.count(), 3);
    box.addItems({"d", "e"});
    QCOMPARE(modelEntries(box), QStringList({"a", "b", "c", "d", "e"}));
    box.setMaxCount(2);
    QCOMPARE(box.maxCount(), 2);
    QCOMPARE(box.count(), 5);
    box.setMaxCount(-1);
    box.addItem(QStringLiteral("f"));
    box.addItems({});
    QCOMPARE(box.count(), 5);
    box.setMaxCount(6);
    box.addItem(QStringLiteral("f"));
    QCOMPARE(modelEntries(box).last(), QStringLiteral("f"));
}

void tst_EditComboBox::removeItemDoesNothing()
{
    EditComboBox box({"a", "b"}, nullptr);
    Notes notes(box);
    for (const int index : {0, 1, 2, -1}) {
        box.removeItem(index);
    }
    QCOMPARE(box.count(), 2);
    QCOMPARE(modelEntries(box), QStringList({"a", "b"}));
    QTest::mouseClick(button(box), Qt::LeftButton);
    QCOMPARE(shownEntries(box), QStringList({"a", "b"}));
    QCOMPARE(notes.take(), QStringList());
}

void tst_EditComboBox::duplicates()
{
    EditComboBox box({"x", "a", "a", "b"}, nullptr);
    Notes notes(box);
    box.setCurrentText(QStringLiteral("a"));
    QCOMPARE(box.currentIndex(), 1);
    QCOMPARE(notes.take(), QStringList({"index 1"}));
    // The text stays as it is, so there is nothing to emit, but the second entry is remembered.
    box.setCurrentIndex(2);
    QCOMPARE(box.currentIndex(), 2);
    QCOMPARE(notes.take(), QStringList());
    box.setCurrentIndex(3);
    box.setCurrentIndex(2);
    QCOMPARE(box.currentIndex(), 2);
    QCOMPARE(notes.take(), QStringList({"index 3", "index 1"}));
}

void tst_EditComboBox::setEditableIsInverted()
{
    EditComboBox box;
    QVERIFY(!box.isEditable());
    QVERIFY(!lineEdit(box)->isReadOnly());
    box.setEditable(true);
    QVERIFY(box.isEditable());
    QVERIFY(lineEdit(box)->isReadOnly());
    QVERIFY(box.property("editable").toBool());
    box.setEditable(false);
    QVERIFY(!box.isEditable());
    QTest::keyClicks(lineEdit(box), QStringLiteral("ok"));
    QCOMPARE(lineEdit(box)->text(), QStringLiteral("ok"));
    QVERIFY(box.setProperty("editable", true));
    QTest::keyClicks(lineEdit(box), QStringLiteral("no"));
    QCOMPARE(lineEdit(box)->text(), QStringLiteral("ok"));
}

void tst_EditComboBox::metaObject()
{
    const QMetaObject &meta = EditComboBox::staticMetaObject;
    QCOMPARE(meta.className(), "LM::Widgets::EditComboBox");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(lmtest::ownMethods(meta),
             QStringList({"signal currentIndexChanged(int index)",
                          "signal currentIndexChanged(QString text)",
                          "signal currentTextChanged(QString text)", "slot clear()",
                          "slot clearEditText()", "slot setEditText(QString text)",
                          "slot setCurrentIndex(int index)", "slot setCurrentText(QString text)"}));
    QStringList properties;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        properties += QStringLiteral("%1 %2 %3")
                          .arg(QLatin1String(property.typeName()), QLatin1String(property.name()),
                               property.isWritable() ? QStringLiteral("rw") : QStringLiteral("r"));
    }
    QCOMPARE(properties,
             QStringList({"bool editable rw", "int count r", "QString currentText rw"}));
}

void tst_EditComboBox::parts()
{
    EditComboBox box({"a"}, nullptr);
    auto *layout = qobject_cast<QHBoxLayout *>(box.layout());
    QVERIFY(layout);
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->itemAt(0)->widget(), lineEdit(box));
    QCOMPARE(layout->itemAt(1)->widget(), button(box));
    QCOMPARE(layout->stretch(0) + layout->stretch(1), 0);
    QCOMPARE(lineEdit(box)->parentWidget(), &box);
    QCOMPARE(button(box)->focusPolicy(), Qt::NoFocus);
    QCOMPARE(button(box)->minimumSize(), QSize(20, 20));
    QCOMPARE(button(box)->maximumSize(), QSize(20, 20));
    QCOMPARE(button(box)->iconSize(), QSize(20, 20));
    QCOMPARE(completer(box)->caseSensitivity(), Qt::CaseInsensitive);
    QCOMPARE(completer(box)->filterMode(), Qt::MatchContains);
    QCOMPARE(completer(box)->completionMode(), QCompleter::PopupCompletion);
    QCOMPARE(completer(box)->maxVisibleItems(), 10);
    QCOMPARE(completer(box)->widget(), &box);
    QCOMPARE(completer(box)->parent()->metaObject()->className(),
             "LM::Widgets::EditComboBoxPrivate");
    QCOMPARE(completer(box)->model()->QObject::parent(), &box);
    QCOMPARE(completer(box)->model()->metaObject(), &QStringListModel::staticMetaObject);
    QCOMPARE(lineEdit(box)->text(), QString());
}

void tst_EditComboBox::styleSheets()
{
    EditComboBox box;
    QCOMPARE(lineEdit(box)->styleSheet(),
             QStringLiteral(
                 "QLineEdit{padding-left:8px;border-radius: 1px;border: 1px solid #989898;}"));
    QCOMPARE(button(box)->styleSheet(), QStringLiteral("QPushButton{border: none;};"));
    QCOMPARE(popup(box)->styleSheet(),
             QStringLiteral(
                 "QAbstractItemView {padding-left:8px;background-color:rgb(43, 43, 43);border:1px "
                 "solid #a3b4cb;font-size:14px;color: #F2F2F2;height: "
                 "32px;}QAbstractItemView::item:selected {background-color: white;color: "
                 "black;}QScrollBar:vertical {background-color:rgb(54, 54, 54);border: "
                 "none;width: 10px;margin: 0px;}QScrollBar::add-page:vertical, "
                 "QScrollBar::sub-page:vertical {background: none;}QScrollBar::handle:vertical "
                 "{background-color: #707070;min-height: 105px;border-radius: "
                 "3px;}QScrollBar::add-line:vertical {height: 0px;subcontrol-position: "
                 "bottom;subcontrol-origin: margin;}QScrollBar::sub-line:vertical {height: "
                 "0px;subcontrol-position: top;subcontrol-origin: margin;}"));
}

void tst_EditComboBox::constructors()
{
    QWidget parent;
    auto *first = new EditComboBox({"a", "b"}, &parent);
    auto *second = new EditComboBox(&parent);
    QCOMPARE(first->parentWidget(), &parent);
    QCOMPARE(second->parentWidget(), &parent);
    QCOMPARE(first->count(), 2);
    QCOMPARE(first->currentIndex(), 0);
    QCOMPARE(first->currentText(), QStringLiteral("a"));
    QCOMPARE(second->count(), 0);
    // The host's list is copied.
    QStringList list = {"a"};
    EditComboBox copied(list, nullptr);
    list.append(QStringLiteral("b"));
    copied.addItem(QStringLiteral("c"));
    QCOMPARE(modelEntries(copied), QStringList({"a", "c"}));
    QCOMPARE(list, QStringList({"a", "b"}));
}

void tst_EditComboBox::listEditsKeepTheIndex()
{
    EditComboBox box({"a", "b"}, nullptr);
    box.setCurrentIndex(1);
    Notes notes(box);
    box.addItems({"b", "c"});
    QCOMPARE(box.currentIndex(), 1);
    lineEdit(box)->setText(QStringLiteral("d"));
    QCOMPARE(notes.take(), QStringList({"index -1"}));
    box.addItem(QStringLiteral("d"));
    QCOMPARE(box.currentIndex(), -1);
    QCOMPARE(box.currentText(), QString());
    QCOMPARE(notes.take(), QStringList());
    // What the model's users have from it stays as it was.
    const QStringList before = modelEntries(box);
    box.addItem(QStringLiteral("e"));
    QCOMPARE(before, QStringList({"a", "b", "b", "c", "d"}));
    QCOMPARE(modelEntries(box).size(), 6);
}

void tst_EditComboBox::clearKeepsTheText()
{
    EditComboBox box({"a", "b"}, nullptr);
    box.setCurrentIndex(1);
    Notes notes(box);
    box.clear();
    QCOMPARE(box.count(), 0);
    QCOMPARE(box.currentIndex(), 1);
    QCOMPARE(box.currentText(), QString());
    QCOMPARE(lineEdit(box)->text(), QStringLiteral("b"));
    QCOMPARE(modelEntries(box), QStringList());
    QCOMPARE(notes.take(), QStringList());
    box.addItems({"c", "b", "a"});
    lineEdit(box)->setText(QStringLiteral("a"));
    QCOMPARE(notes.take(), QStringList({"index 2"}));
    QCOMPARE(box.currentText(), QStringLiteral("a"));
}

void tst_EditComboBox::typing()
{
    EditComboBox box({"ab", "a", "abc"}, nullptr);
    Notes notes(box);
    QTest::keyClicks(lineEdit(box), QStringLiteral("abcd"));
    QCOMPARE(notes.take(), QStringList({"index 1", "index 0", "index 2", "index -1"}));
    QCOMPARE(box.currentText(), QString());
    QTest::keyClick(lineEdit(box), Qt::Key_Backspace);
    QCOMPARE(notes.take(), QStringList({"index 2"}));
    QCOMPARE(box.currentText(), QStringLiteral("abc"));
    QCOMPARE(box.property("currentText").toString(), QStringLiteral("abc"));
    // The first entry is the current one of a new box already.
    EditComboBox other({"a"}, nullptr);
    Notes otherNotes(other);
    QTest::keyClicks(lineEdit(other), QStringLiteral("a"));
    QCOMPARE(otherNotes.take(), QStringList());
}

void tst_EditComboBox::exactMatch()
{
    EditComboBox box({"x", "Ab", " ab", "ab "}, nullptr);
    for (const char *text : {"ab", "AB", "b", "A"}) {
        lineEdit(box)->setText(QLatin1String(text));
        QCOMPARE(box.currentIndex(), -1);
    }
    lineEdit(box)->setText(QStringLiteral("Ab"));
    QCOMPARE(box.currentIndex(), 1);
    lineEdit(box)->setText(QStringLiteral("ab "));
    QCOMPARE(box.currentIndex(), 3);
}

void tst_EditComboBox::editingFinished()
{
    EditComboBox box({"a", "b"}, nullptr);
    show(box);
    lineEdit(box)->setFocus();
    QTest::keyClicks(lineEdit(box), QStringLiteral("c"));
    popup(box)->hide();
    box.addItem(QStringLiteral("c"));
    Notes notes(box);
    QTest::keyClick(lineEdit(box), Qt::Key_Return);
    QCOMPARE(notes.take(), QStringList({"text c", "index 2"}));
    QCOMPARE(box.currentIndex(), 2);
    QTest::keyClick(lineEdit(box), Qt::Key_Return);
    QCOMPARE(notes.take(), QStringList());
    // The entry goes away while its text stays.
    box.clear();
    QTest::keyClick(lineEdit(box), Qt::Key_Return);
    QCOMPARE(notes.take(), QStringList({"index -1"}));
    QCOMPARE(box.currentIndex(), -1);
    QTest::keyClick(lineEdit(box), Qt::Key_Return);
    QCOMPARE(notes.take(), QStringList());
    // To leave the line edit finishes editing as well.
    box.addItem(QStringLiteral("c"));
    lineEdit(box)->clearFocus();
    QCOMPARE(notes.take(), QStringList({"text c", "index 0"}));
}

void tst_EditComboBox::setCurrentIndex()
{
    EditComboBox box({"a", "b", "c"}, nullptr);
    Notes notes(box);
    box.setCurrentIndex(0);
    QCOMPARE(lineEdit(box)->text(), QStringLiteral("a"));
    QCOMPARE(notes.take(), QStringList());
    box.setCurrentIndex(2);
    QCOMPARE(lineEdit(box)->text(), QStringLiteral("c"));
    QCOMPARE(box.currentIndex(), 2);
    QCOMPARE(notes.take(), QStringList({"index 2"}));
    box.setCurrentIndex(2);
    QCOMPARE(notes.take(), QStringList());
}

void tst_EditComboBox::setCurrentIndexOutside_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("-1") << -1;
    QTest::newRow("count") << 3;
    QTest::newRow("far") << 100000;
    QTest::newRow("least") << std::numeric_limits<int>::min();
    QTest::newRow("greatest") << std::numeric_limits<int>::max();
}

void tst_EditComboBox::setCurrentIndexOutside()
{
    QFETCH(int, index);
    EditComboBox box({"a", "b", "c"}, nullptr);
    box.setCurrentIndex(1);
    Notes notes(box);
    box.setCurrentIndex(index);
    QCOMPARE(box.currentIndex(), -1);
    QCOMPARE(lineEdit(box)->text(), QString());
    QCOMPARE(notes.take(), QStringList());
    // The list opens all the same, from the state that such an index leaves.
    QTest::mouseClick(button(box), Qt::LeftButton);
    QCOMPARE(shownEntries(box), QStringList({"a", "b", "c"}));
}

void tst_EditComboBox::setCurrentIndexOutsideWithEmptyEntry()
{
    EditComboBox box({"a", ""}, nullptr);
    box.setCurrentIndex(0);
    Notes notes(box);
    box.setCurrentIndex(-1);
    // The empty text is an entry, and the line edit's change finds it.
    QCOMPARE(notes.take(), QStringList({"index 1"}));
    QCOMPARE(box.currentIndex(), 1);
}

void tst_EditComboBox::setCurrentText()
{
    EditComboBox box({"a", "b", "c"}, nullptr);
    Notes notes(box);
    box.setCurrentText(QStringLiteral("b"));
    QCOMPARE(box.currentIndex(), 1);
    QVERIFY(box.setProperty("currentText", QStringLiteral("c")));
    QCOMPARE(box.currentIndex(), 2);
    QCOMPARE(notes.take(), QStringList({"index 1", "index 2"}));
    box.setCurrentText(QStringLiteral("C"));
    QCOMPARE(box.currentIndex(), -1);
    QCOMPARE(lineEdit(box)->text(), QString());
    QCOMPARE(notes.take(), QStringList());
}

void tst_EditComboBox::setEditText()
{
    EditComboBox box({"a", "b"}, nullptr);
    Notes notes(box);
    box.setEditText(QStringLiteral("b"));
    QCOMPARE(notes.take(), QStringList({"index 1", "index 1", "indexText b", "text b"}));
    box.setEditText(QStringLiteral("b"));
    QCOMPARE(notes.take(), QStringList({"index 1", "indexText b", "text b"}));
    box.setEditText(QStringLiteral("x"));
    QCOMPARE(lineEdit(box)->text(), QStringLiteral("x"));
    QCOMPARE(notes.take(), QStringList({"index -1", "index -1", "text x"}));
    QCOMPARE(box.currentIndex(), -1);
    box.setEditText(QStringLiteral("y"));
    QCOMPARE(notes.take(), QStringList({"index -1", "text y"}));
    // The index that counts is that of the text given, not of what the line edit made of it.
    lineEdit(box)->setMaxLength(1);
    box.setEditText(QStringLiteral("ab"));
    QCOMPARE(lineEdit(box)->text(), QStringLiteral("a"));
    QCOMPARE(notes.take(), QStringList({"index 0", "index -1", "text ab"}));
    QCOMPARE(box.currentIndex(), -1);
}

void tst_EditComboBox::clearEditText()
{
    EditComboBox box({"a", "b"}, nullptr);
    box.setCurrentIndex(1);
    Notes notes(box);
    box.clearEditText();
    QCOMPARE(notes.take(), QStringList({"index -1", "text "}));
    box.clearEditText();
    QCOMPARE(notes.take(), QStringList({"text "}));
    QCOMPARE(lineEdit(box)->text(), QString());
    QCOMPARE(box.count(), 2);
}

void tst_EditComboBox::completerRow()
{
    EditComboBox box({"a", "b", "c"}, nullptr);
    box.setCurrentIndex(2);
    QCOMPARE(completer(box)->currentRow(), 2);
    box.setCurrentIndex(0);
    QCOMPARE(completer(box)->currentRow(), 0);
    // A row that the completer does not have is refused by it.
    box.setCurrentIndex(1);
    box.setCurrentIndex(3);
    QCOMPARE(completer(box)->currentRow(), 1);
    // Filled anew, the completer begins at its first row.
    box.setCurrentIndex(1);
    box.addItem(QStringLiteral("d"));
    QCOMPARE(completer(box)->currentRow(), 0);
}

void tst_EditComboBox::placeHolderText()
{
    EditComboBox box;
    box.setPlaceHolderText(QStringLiteral("Grid size"));
    QCOMPARE(lineEdit(box)->placeholderText(), QStringLiteral("Grid size"));
}

void tst_EditComboBox::errorFlash()
{
    EditComboBox box;
    QElapsedTimer clock;
    clock.start();
    box.displayErrorStates();
    QCOMPARE(lineEdit(box)->styleSheet(),
             QStringLiteral(
                 "QLineEdit{padding-left:8px;border-radius: 1px;border: 1px solid #FF4746;}"));
    const QString restored = QStringLiteral(
        "QLineEdit{padding-left:8px;border-radius: 1px;border: 1px solid #989898;} ");
    QTRY_COMPARE(lineEdit(box)->styleSheet(), restored);
    // A timer of Qt's may be 5 % early.
    QVERIFY2(clock.elapsed() >= 1900, qPrintable(QString::number(clock.elapsed())));
}

void tst_EditComboBox::errorFlashTwice()
{
    EditComboBox box;
    box.displayErrorStates();
    QElapsedTimer clock;
    clock.start();
    QVERIFY(QTest::qWaitFor([&clock] { return clock.elapsed() > 1000; }));
    QVERIFY(lineEdit(box)->styleSheet().contains(QLatin1String("#FF4746")));
    clock.restart();
    box.displayErrorStates();
    // The first of the two timers ends both.
    QTRY_VERIFY(!lineEdit(box)->styleSheet().contains(QLatin1String("#FF4746")));
    QVERIFY2(clock.elapsed() < 1900, qPrintable(QString::number(clock.elapsed())));
    // And the second still runs: it takes away whatever the host set meanwhile.
    lineEdit(box)->setStyleSheet(QStringLiteral("QLineEdit{color: blue;}"));
    QTRY_VERIFY(lineEdit(box)->styleSheet().endsWith(QLatin1String("#989898;} ")));
    QVERIFY2(clock.elapsed() >= 1900, qPrintable(QString::number(clock.elapsed())));
}

void tst_EditComboBox::themes()
{
    const auto &manager = TalvoStyleManager::instance();
    for (const int theme : {1, 2, 0}) {
        manager->shiftStyle(TalvoStyleManager::ThemeStyleType(theme));
        EditComboBox box;
        const QPixmap expected(manager->currentThemePath() +
                               QStringLiteral("qssimage/Dropdownbutton.png"));
        QVERIFY(!expected.isNull());
        const auto picture = [](const QPixmap &pixmap) {
            return pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
        };
        QCOMPARE(picture(button(box)->icon().pixmap(20, 20)),
                 picture(QIcon(expected).pixmap(20, 20)));
        // The image stays what it was when the theme changes.
        const qint64 key = button(box)->icon().cacheKey();
        manager->shiftStyle(TalvoStyleManager::ThemeStyleType((theme + 1) % 3));
        QCOMPARE(button(box)->icon().cacheKey(), key);
        manager->shiftStyle(TalvoStyleManager::Black);
    }
}

void tst_EditComboBox::focusGoesToTheLineEdit()
{
    EditComboBox box({"a"}, nullptr);
    show(box);
    lineEdit(box)->clearFocus();
    box.setFocus();
    QTRY_VERIFY(lineEdit(box)->hasFocus());
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("z"));
    QCOMPARE(lineEdit(box)->text(), QStringLiteral("z"));
}

void tst_EditComboBox::foreignModel()
{
    EditComboBox box({"a"}, nullptr);
    QStandardItemModel foreign;
    completer(box)->setModel(&foreign);
    box.clear();
    box.addItems({"b", "c"});
    auto *model = qobject_cast<QStringListModel *>(completer(box)->model());
    QVERIFY(model);
    QVERIFY(!model->QObject::parent());
    QCOMPARE(modelEntries(box), QStringList({"b", "c"}));
    box.addItem(QStringLiteral("d"));
    QCOMPARE(completer(box)->model(), model);
    completer(box)->setModel(&foreign);
    box.addItem(QStringLiteral("e"));
    QCOMPARE(modelEntries(box), QStringList({"b", "c", "d", "e"}));
    // A host that takes the completer away has no list, and loses no entry.
    lineEdit(box)->setCompleter(nullptr);
    box.addItem(QStringLiteral("f"));
    box.setCurrentText(QStringLiteral("f"));
    QCOMPARE(box.currentIndex(), 4);
}

void tst_EditComboBox::manyEntries()
{
    constexpr int many = 100000;
    QStringList list;
    for (int i = 0; i < many; ++i) {
        list += QStringLiteral("entry %1").arg(i);
    }
    EditComboBox box;
    Notes notes(box);
    for (const QString &entry : qAsConst(list)) {
        box.addItem(entry);
    }
    QCOMPARE(modelEntries(box), list);
    box.addItems(list);
    QCOMPARE(box.count(), 2 * many);
    box.setCurrentIndex(many - 1);
    QCOMPARE(lineEdit(box)->text(), list.last());
    box.setCurrentIndex(2 * many - 1);
    QCOMPARE(box.currentIndex(), 2 * many - 1);
    box.setCurrentText(list.at(many / 2));
    QCOMPARE(box.currentIndex(), many / 2);
    QCOMPARE(notes.take(), QStringList({QStringLiteral("index %1").arg(many - 1),
                                        QStringLiteral("index %1").arg(many / 2)}));
    QTest::mouseClick(button(box), Qt::LeftButton);
    QCOMPARE(popup(box)->model()->rowCount(), 2 * many);
    box.clear();
    QCOMPARE(popup(box)->model()->rowCount(), 0);
}

void tst_EditComboBox::readOnlyStillPicks()
{
    EditComboBox box({"a", "b"}, nullptr);
    box.setEditable(true);
    show(box);
    QTest::mouseClick(lineEdit(box), Qt::LeftButton);
    QVERIFY(popup(box)->isVisible());
    clickEntry(box, 1);
    QCOMPARE(lineEdit(box)->text(), QStringLiteral("b"));
    QCOMPARE(box.currentIndex(), 1);
}

LMTEST_MAIN(tst_EditComboBox)

#include "tst_editcombobox.moc"
