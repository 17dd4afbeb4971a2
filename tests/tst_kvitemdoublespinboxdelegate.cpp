#include "lmtest.h"

#include <lmwidgets/kvitemdoublespinboxdelegate.h>

#include <QAbstractListModel>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

#include <cmath>
#include <limits>

/** A view with one row whose cells are edited by the delegate. */
class EditedView : public QTableView
{
public:
    EditedView() : cells(1, 3)
    {
        setModel(&cells);
        setItemDelegate(&delegate);
        resize(400, 150);
        show();
        activateWindow();
    }

    QModelIndex cell(int column = 0) const { return cells.index(0, column); }

    /** Puts @p value into the first cell and opens its editor. */
    QDoubleSpinBox *open(const QVariant &value)
    {
        cells.setData(cell(), value);
        setCurrentIndex(cell());
        edit(cell());
        return editor();
    }

    /** The editor that is open, if any. */
    QDoubleSpinBox *editor() const
    {
        for (auto *spinBox : viewport()->findChildren<QDoubleSpinBox *>()) {
            if (spinBox->isVisible()) {
                return spinBox;
            }
        }
        return nullptr;
    }

    QString text() const { return cells.data(cell(), Qt::EditRole).toString(); }

    QStandardItemModel cells;
    kvItemDoubleSpinboxDelegate delegate;
};

namespace {

/** A cell that is another text to edit than to show, and notes the roles in which it is written. */
class RolesModel : public QAbstractListModel
{
public:
    explicit RolesModel(const QString &editText) : m_editText(editText) {}

    int rowCount(const QModelIndex &) const override { return 1; }

    QVariant data(const QModelIndex &, int role) const override
    {
        return role == Qt::EditRole ? m_editText : QStringLiteral("9");
    }

    bool setData(const QModelIndex &, const QVariant &value, int role) override
    {
        written += qMakePair(role, value.toString());
        return true;
    }

    QVector<QPair<int, QString>> written;

private:
    QString m_editText;
};

void clearText(QWidget *editor)
{
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(editor, Qt::Key_Delete);
}

void typeText(QWidget *editor, const QString &text)
{
    clearText(editor);
    QTest::keyClicks(editor, text);
}

} // namespace

class tst_KvItemDoubleSpinboxDelegate : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void emptyCellEnabled_data();
    void emptyCellEnabled();
    void persistentEditorStaysEmpty_data();
    void persistentEditorStaysEmpty();
    void typedTextIsInterpreted();
    void readsAndWritesEditRole();
    void emptyCellDisabled();
    void threeDecimals();
    void modelGetsText();
    void editorSetup();
    void range_data();
    void range();
    void invertedRange();
    void notANumber();
    void typeAndCommit_data();
    void typeAndCommit();
    void escapeReverts();
    void emptiedCell_data();
    void emptiedCell();
    void emptiedCellNotEnabled_data();
    void emptiedCellNotEnabled();
    void arrowsAndWheel();
    void arrowsOnEmpty();
    void unparsable_data();
    void unparsable();
    void clickElsewhereCommits();
    void geometry();
    void settersReadLater();
    void badArguments();
    void metaObject();
};

void tst_KvItemDoubleSpinboxDelegate::emptyCellEnabled_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
    QTest::newRow("Tab") << int(Qt::Key_Tab);
    QTest::newRow("Backtab") << int(Qt::Key_Backtab);
}

void tst_KvItemDoubleSpinboxDelegate::emptyCellEnabled()
{
    QFETCH(int, key);
    EditedView view;
    view.delegate.setEnableEmptyStr(true);
    QDoubleSpinBox *editor = view.open(QVariant());
    QVERIFY(editor);
    QCOMPARE(editor->text(), QString());
    QSignalSpy changed(&view.cells, &QAbstractItemModel::dataChanged);
    QPointer<QDoubleSpinBox> watch(editor);
    QTest::keyClick(editor, Qt::Key(key));
    QTRY_VERIFY(!watch || !watch->isVisible());
    const QVariant data = view.cells.data(view.cell(), Qt::EditRole);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(data.type(), QVariant::String);
    QVERIFY(data.toString().isEmpty());
    QVERIFY2(!data.isNull(), "a database would take a null text for NULL");
}

void tst_KvItemDoubleSpinboxDelegate::persistentEditorStaysEmpty_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
    QTest::newRow("Tab") << int(Qt::Key_Tab);
    QTest::newRow("loses the focus") << 0;
}

// Such an editor stays open, and is written again each time that it loses the focus.
void tst_KvItemDoubleSpinboxDelegate::persistentEditorStaysEmpty()
{
    QFETCH(int, key);
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    EditedView view;
    QLineEdit other;
    layout->addWidget(&view);
    layout->addWidget(&other);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    view.delegate.setEnableEmptyStr(true);
    view.cells.setData(view.cell(), QLatin1String(""));
    QSignalSpy committed(&view.delegate, &QAbstractItemDelegate::commitData);
    QStringList written;
    connect(&view.cells, &QAbstractItemModel::dataChanged, this, [&] { written += view.text(); });
    view.openPersistentEditor(view.cell());
    QDoubleSpinBox *editor = view.editor();
    QVERIFY(editor);
    editor->setFocus();
    QTRY_VERIFY(editor->hasFocus());
    QTest::keyClick(editor, Qt::Key_5);
    QTest::keyClick(editor, Qt::Key_Backspace);
    QCOMPARE(editor->text(), QString());
    if (key) {
        QTest::keyClick(editor, Qt::Key(key));
        QCoreApplication::processEvents();
        editor->setFocus();
        QTRY_VERIFY(editor->hasFocus());
    }
    other.setFocus();
    QTRY_VERIFY(other.hasFocus());
    QCoreApplication::processEvents();
    QVERIFY(committed.count() > 0);
    written.removeAll(QString());
    QCOMPARE(written, QStringList());
    QCOMPARE(editor->text(), QString());
}

void tst_KvItemDoubleSpinboxDelegate::readsAndWritesEditRole()
{
    RolesModel model(QStringLiteral("7.125"));
    const kvItemDoubleSpinboxDelegate delegate;
    QDoubleSpinBox spinBox;
    spinBox.setDecimals(3);
    delegate.setEditorData(&spinBox, model.index(0));
    QCOMPARE(spinBox.value(), 7.125);
    delegate.setModelData(&spinBox, &model, model.index(0));
    QCOMPARE(model.written, (QVector<QPair<int, QString>>{{Qt::EditRole, "7.125"}}));
}

// What is typed and not yet taken over by the spin box is written all the same.
void tst_KvItemDoubleSpinboxDelegate::typedTextIsInterpreted()
{
    EditedView view;
    QDoubleSpinBox *editor = view.open(1.0);
    QVERIFY(editor);
    editor->setKeyboardTracking(false);
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(editor, QStringLiteral("7.5"));
    QCOMPARE(editor->value(), 1.0);
    view.delegate.setModelData(editor, &view.cells, view.cell());
    QCOMPARE(view.text(), QStringLiteral("7.500"));
}

void tst_KvItemDoubleSpinboxDelegate::emptyCellDisabled()
{
    EditedView view;
    QDoubleSpinBox *editor = view.open(QString());
    QVERIFY(editor);
    QCOMPARE(editor->value(), 0.0);
    QCOMPARE(editor->text(), QStringLiteral("0.000"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(view.text(), QStringLiteral("0.000"));
    QCOMPARE(view.cells.data(view.cell(), Qt::EditRole).type(), QVariant::String);
}

void tst_KvItemDoubleSpinboxDelegate::threeDecimals()
{
    EditedView view;
    QDoubleSpinBox *editor = view.open(1.23456);
    QVERIFY(editor);
    QCOMPARE(editor->text(), QStringLiteral("1.235"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(view.text(), QStringLiteral("1.235"));
}

void tst_KvItemDoubleSpinboxDelegate::modelGetsText()
{
    EditedView view;
    QDoubleSpinBox spinBox;
    spinBox.setDecimals(6);
    spinBox.setValue(1.23456);
    view.delegate.setModelData(&spinBox, &view.cells, view.cell());
    const QVariant data = view.cells.data(view.cell(), Qt::EditRole);
    QCOMPARE(data.type(), QVariant::String);
    QCOMPARE(data.toString(), QStringLiteral("1.235"));
    spinBox.setValue(7);
    view.delegate.setModelData(&spinBox, &view.cells, view.cell());
    QCOMPARE(view.text(), QStringLiteral("7.000"));
}

void tst_KvItemDoubleSpinboxDelegate::editorSetup()
{
    for (bool emptyEnabled : {false, true}) {
        EditedView view;
        view.delegate.setEnableEmptyStr(emptyEnabled);
        QWidget *created =
            view.delegate.createEditor(view.viewport(), QStyleOptionViewItem(), view.cell());
        QCOMPARE(created->parentWidget(), view.viewport());
        QCOMPARE(QByteArray(created->metaObject()->className()), QByteArray("QDoubleSpinBox"));
        auto *editor = qobject_cast<QDoubleSpinBox *>(created);
        QVERIFY(editor);
        QCOMPARE(editor->buttonSymbols(), QAbstractSpinBox::NoButtons);
        QCOMPARE(editor->decimals(), 3);
        QCOMPARE(editor->singleStep(), 0.0);
        QCOMPARE(editor->minimum(), -1000000000.0);
        QCOMPARE(editor->maximum(), 1000000000.0);
    }
}

void tst_KvItemDoubleSpinboxDelegate::range_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("below") << -2.001 << "-2.000";
    QTest::newRow("least") << -2.0 << "-2.000";
    QTest::newRow("above least") << -1.999 << "-1.999";
    QTest::newRow("below most") << 5.499 << "5.499";
    QTest::newRow("most") << 5.5 << "5.500";
    QTest::newRow("above") << 5.501 << "5.500";
}

void tst_KvItemDoubleSpinboxDelegate::range()
{
    QFETCH(double, value);
    QFETCH(QString, text);
    EditedView view;
    view.delegate.setMinValue(-2.0);
    view.delegate.setMaxValue(5.5);
    QDoubleSpinBox *editor = view.open(value);
    QVERIFY(editor);
    QCOMPARE(editor->minimum(), -2.0);
    QCOMPARE(editor->maximum(), 5.5);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(view.text(), text);
}

void tst_KvItemDoubleSpinboxDelegate::invertedRange()
{
    EditedView view;
    view.delegate.setMinValue(10.0);
    view.delegate.setMaxValue(5.0);
    QDoubleSpinBox *editor = view.open(7.0);
    QVERIFY(editor);
    QCOMPARE(editor->minimum(), 5.0);
    QCOMPARE(editor->maximum(), 5.0);
    QCOMPARE(editor->value(), 5.0);
}

void tst_KvItemDoubleSpinboxDelegate::notANumber()
{
    EditedView view;
    view.delegate.setMinValue(-3.0);
    view.delegate.setMaxValue(3.0);
    view.delegate.setMinValue(std::numeric_limits<double>::quiet_NaN());
    view.delegate.setMaxValue(std::numeric_limits<double>::quiet_NaN());
    QDoubleSpinBox *editor = view.open(2.0);
    QVERIFY(editor);
    QCOMPARE(editor->minimum(), -3.0);
    QCOMPARE(editor->maximum(), 3.0);
    QCOMPARE(editor->value(), 2.0);
}

void tst_KvItemDoubleSpinboxDelegate::typeAndCommit_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");

    QTest::newRow("number") << "42.5" << int(Qt::Key_Return) << "42.500";
    QTest::newRow("negative") << "-0.25" << int(Qt::Key_Enter) << "-0.250";
    QTest::newRow("tab") << "17" << int(Qt::Key_Tab) << "17.000";
    QTest::newRow("fourth decimal is not accepted") << "1.23456" << int(Qt::Key_Return) << "1.234";
    QTest::newRow("letters are not accepted") << "1a2b" << int(Qt::Key_Return) << "12.000";
    QTest::newRow("sign alone keeps the value") << "-" << int(Qt::Key_Return) << "5.000";
}

void tst_KvItemDoubleSpinboxDelegate::typeAndCommit()
{
    QFETCH(QString, typed);
    QFETCH(int, key);
    QFETCH(QString, text);
    for (bool emptyEnabled : {false, true}) {
        EditedView view;
        view.delegate.setEnableEmptyStr(emptyEnabled);
        QDoubleSpinBox *editor = view.open(QStringLiteral("5"));
        QVERIFY(editor);
        typeText(editor, typed);
        QTest::keyClick(editor, Qt::Key(key));
        QTRY_COMPARE(view.text(), text);
    }
}

void tst_KvItemDoubleSpinboxDelegate::escapeReverts()
{
    EditedView view;
    QPointer<QDoubleSpinBox> editor = view.open(QStringLiteral("5"));
    QVERIFY(editor);
    typeText(editor, QStringLiteral("99"));
    QTest::keyClick(editor, Qt::Key_Escape);
    QTRY_VERIFY(!editor);
    QCOMPARE(view.text(), QStringLiteral("5"));
}

void tst_KvItemDoubleSpinboxDelegate::emptiedCell_data()
{
    emptyCellEnabled_data();
}

// The user deletes the number. A spin box puts its last value back on Return; the cell stays empty.
void tst_KvItemDoubleSpinboxDelegate::emptiedCell()
{
    QFETCH(int, key);
    EditedView view;
    view.delegate.setEnableEmptyStr(true);
    QDoubleSpinBox *editor = view.open(QStringLiteral("5"));
    QVERIFY(editor);
    clearText(editor);
    QCOMPARE(editor->text(), QString());
    QTest::keyClick(editor, Qt::Key(key));
    QTRY_COMPARE(view.text(), QString());
}

void tst_KvItemDoubleSpinboxDelegate::emptiedCellNotEnabled_data()
{
    emptyCellEnabled_data();
}

void tst_KvItemDoubleSpinboxDelegate::emptiedCellNotEnabled()
{
    QFETCH(int, key);
    EditedView view;
    QDoubleSpinBox *editor = view.open(QStringLiteral("5"));
    QVERIFY(editor);
    clearText(editor);
    QTest::keyClick(editor, Qt::Key(key));
    QTRY_COMPARE(view.text(), QStringLiteral("5.000"));
}

void tst_KvItemDoubleSpinboxDelegate::arrowsAndWheel()
{
    for (bool emptyEnabled : {false, true}) {
        EditedView view;
        view.delegate.setEnableEmptyStr(emptyEnabled);
        QDoubleSpinBox *editor = view.open(QStringLiteral("5.25"));
        QVERIFY(editor);
        for (Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown}) {
            QTest::keyClick(editor, key);
            QCOMPARE(editor->text(), QStringLiteral("5.250"));
        }
        QWheelEvent wheel(QPointF(5, 5), editor->mapToGlobal(QPoint(5, 5)), QPoint(),
                          QPoint(0, 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(editor, &wheel);
        QCOMPARE(editor->text(), QStringLiteral("5.250"));
    }
}

void tst_KvItemDoubleSpinboxDelegate::arrowsOnEmpty()
{
    EditedView view;
    view.delegate.setEnableEmptyStr(true);
    QDoubleSpinBox *editor = view.open(QString());
    QVERIFY(editor);
    QTest::keyClick(editor, Qt::Key_Up);
    QTest::keyClick(editor, Qt::Key_Down);
    QCOMPARE(editor->text(), QString());
    QTest::keyClicks(editor, QStringLiteral("8"));
    QTest::keyClick(editor, Qt::Key_Up);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(view.text(), QStringLiteral("8.000"));
}

void tst_KvItemDoubleSpinboxDelegate::unparsable_data()
{
    QTest::addColumn<QVariant>("data");
    QTest::addColumn<QString>("shown");

    QTest::newRow("word") << QVariant(QStringLiteral("abc")) << "0.000";
    QTest::newRow("comma") << QVariant(QStringLiteral("1,5")) << "0.000";
    QTest::newRow("blank") << QVariant(QStringLiteral(" ")) << "0.000";
    QTest::newRow("not a number") << QVariant(std::nan("")) << "0.000";
    QTest::newRow("nan as text") << QVariant(QStringLiteral("nan")) << "0.000";
    QTest::newRow("list") << QVariant(QVariantList{1, 2}) << "0.000";
    QTest::newRow("int") << QVariant(12) << "12.000";
    QTest::newRow("exponent") << QVariant(QStringLiteral("1e3")) << "1000.000";
    QTest::newRow("huge") << QVariant(1e300) << "1000000000.000";
    QTest::newRow("infinite") << QVariant(-std::numeric_limits<double>::infinity())
                              << "-1000000000.000";
}

void tst_KvItemDoubleSpinboxDelegate::unparsable()
{
    QFETCH(QVariant, data);
    QFETCH(QString, shown);
    EditedView view;
    QDoubleSpinBox *editor = view.open(data);
    QVERIFY(editor);
    QCOMPARE(editor->text(), shown);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(view.text(), shown);
}

void tst_KvItemDoubleSpinboxDelegate::clickElsewhereCommits()
{
    for (bool emptied : {false, true}) {
        EditedView view;
        QVERIFY(QTest::qWaitForWindowActive(&view));
        view.delegate.setEnableEmptyStr(true);
        view.setEditTriggers(QAbstractItemView::DoubleClicked);
        view.cells.setData(view.cell(), QStringLiteral("5"));
        const QPoint centre = view.visualRect(view.cell()).center();
        QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, centre);
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, centre);
        QPointer<QDoubleSpinBox> editor = view.editor();
        QVERIFY(editor);
        if (emptied) {
            clearText(editor);
        } else {
            typeText(editor, QStringLiteral("6"));
        }
        QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier,
                          view.visualRect(view.cell(2)).center());
        QTRY_COMPARE(view.text(), emptied ? QString() : QStringLiteral("6.000"));
        QTRY_VERIFY(!editor);
    }
}

void tst_KvItemDoubleSpinboxDelegate::geometry()
{
    EditedView view;
    QDoubleSpinBox *editor = view.open(1);
    QVERIFY(editor);
    QCOMPARE(editor->geometry(), view.visualRect(view.cell()));
    QStyleOptionViewItem option;
    option.rect = QRect(7, 8, 90, 21);
    view.delegate.updateEditorGeometry(editor, option, view.cell());
    QCOMPARE(editor->geometry(), option.rect);
}

void tst_KvItemDoubleSpinboxDelegate::settersReadLater()
{
    EditedView view;
    QDoubleSpinBox *editor = view.open(50);
    QVERIFY(editor);
    view.delegate.setMaxValue(10);
    QCOMPARE(editor->maximum(), 1000000000.0);
    QCOMPARE(editor->value(), 50.0);
    QTest::keyClick(editor, Qt::Key_Escape);
    QTRY_VERIFY(!view.editor());
    editor = view.open(50);
    QVERIFY(editor);
    QCOMPARE(editor->maximum(), 10.0);
    QCOMPARE(editor->value(), 10.0);
}

void tst_KvItemDoubleSpinboxDelegate::badArguments()
{
    EditedView view;
    view.cells.setData(view.cell(), QStringLiteral("5"));
    QDoubleSpinBox spinBox;
    spinBox.setValue(9);
    QLineEdit lineEdit;
    kvItemDoubleSpinboxDelegate &delegate = view.delegate;
    delegate.setEditorData(nullptr, view.cell());
    delegate.setEditorData(&lineEdit, view.cell());
    delegate.setEditorData(&spinBox, QModelIndex());
    QCOMPARE(spinBox.value(), 9.0);
    QCOMPARE(lineEdit.text(), QString());
    delegate.setModelData(nullptr, &view.cells, view.cell());
    delegate.setModelData(&lineEdit, &view.cells, view.cell());
    delegate.setModelData(&spinBox, nullptr, view.cell());
    delegate.setModelData(&spinBox, &view.cells, QModelIndex());
    QCOMPARE(view.text(), QStringLiteral("5"));
    delegate.updateEditorGeometry(nullptr, QStyleOptionViewItem(), view.cell());
    QScopedPointer<QWidget> editor(
        delegate.createEditor(nullptr, QStyleOptionViewItem(), QModelIndex()));
    QVERIFY(qobject_cast<QDoubleSpinBox *>(editor.data()));
}

void tst_KvItemDoubleSpinboxDelegate::metaObject()
{
    QObject parent;
    auto *delegate = new kvItemDoubleSpinboxDelegate(&parent);
    QCOMPARE(delegate->parent(), &parent);
    QCOMPARE(QByteArray(delegate->metaObject()->className()),
             QByteArray("kvItemDoubleSpinboxDelegate"));
    QCOMPARE(delegate->metaObject()->superClass(), &QItemDelegate::staticMetaObject);
}

LMTEST_MAIN(tst_KvItemDoubleSpinboxDelegate)

#include "tst_kvitemdoublespinboxdelegate.moc"
