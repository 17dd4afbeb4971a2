#include "lmtest.h"

#include <lmwidgets/kvitemlineeditdelegate.h>

#include <QAbstractListModel>
#include <QLineEdit>
#include <QRegExpValidator>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

/** A view with one row whose cells take up to three capital letters and a digit. */
class NamesView : public QTableView
{
public:
    explicit NamesView(const QString &pattern = QStringLiteral("[A-Z]{1,3}[0-9]"))
        : cells(1, 3), delegate(QRegExp(pattern))
    {
        setModel(&cells);
        setItemDelegate(&delegate);
        resize(400, 150);
        show();
        activateWindow();
    }

    QModelIndex cell(int column = 0) const { return cells.index(0, column); }

    QLineEdit *open(const QVariant &value)
    {
        cells.setData(cell(), value);
        setCurrentIndex(cell());
        edit(cell());
        return editor();
    }

    QLineEdit *editor() const
    {
        for (auto *lineEdit : viewport()->findChildren<QLineEdit *>()) {
            if (lineEdit->isVisible()) {
                return lineEdit;
            }
        }
        return nullptr;
    }

    QString text() const { return cells.data(cell(), Qt::EditRole).toString(); }

    QStandardItemModel cells;
    KVItemLineEditDelegate delegate;
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

} // namespace

class tst_KVItemLineEditDelegate : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void rejectedCharacters();
    void acceptedTextReachesModel_data();
    void acceptedTextReachesModel();
    void incompleteTextStaysOpen();
    void incompleteTextLosesFocus();
    void incompleteTextOfOtherCell();
    void escapeReverts();
    void editorSetup();
    void validatorLivesWithViewport();
    void editorData_data();
    void editorData();
    void modelData();
    void readsAndWritesEditRole();
    void expressionsOfAnyKind_data();
    void expressionsOfAnyKind();
    void geometry();
    void badArguments();
    void metaObject();
};

void tst_KVItemLineEditDelegate::rejectedCharacters()
{
    NamesView view;
    QLineEdit *editor = view.open(QString());
    QVERIFY(editor);
    QTest::keyClicks(editor, QStringLiteral("a1 Ab-B%7x9"));
    QCOMPARE(editor->text(), QStringLiteral("AB7"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(view.text(), QStringLiteral("AB7"));
}

void tst_KVItemLineEditDelegate::acceptedTextReachesModel_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
    QTest::newRow("Tab") << int(Qt::Key_Tab);
    QTest::newRow("Backtab") << int(Qt::Key_Backtab);
}

void tst_KVItemLineEditDelegate::acceptedTextReachesModel()
{
    QFETCH(int, key);
    NamesView view;
    QPointer<QLineEdit> editor = view.open(QStringLiteral("A1"));
    QVERIFY(editor);
    QCOMPARE(editor->text(), QStringLiteral("A1"));
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(editor, QStringLiteral("XYZ0"));
    QCOMPARE(view.text(), QStringLiteral("A1"));
    QTest::keyClick(editor, Qt::Key(key));
    QTRY_COMPARE(view.text(), QStringLiteral("XYZ0"));
    QTRY_VERIFY(!editor);
    QCOMPARE(view.cells.data(view.cell(), Qt::EditRole).type(), QVariant::String);
}

void tst_KVItemLineEditDelegate::incompleteTextStaysOpen()
{
    NamesView view;
    QLineEdit *editor = view.open(QStringLiteral("A1"));
    QVERIFY(editor);
    QTest::keyClick(editor, Qt::Key_Backspace);
    QTest::keyClick(editor, Qt::Key_Backspace);
    QTest::keyClicks(editor, QStringLiteral("AB"));
    QTest::keyClick(editor, Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE(view.editor(), editor);
    QCOMPARE(view.text(), QStringLiteral("A1"));
    QTest::keyClick(editor, Qt::Key_Tab);
    QCoreApplication::processEvents();
    QCOMPARE(view.editor(), editor);
    QTest::keyClicks(editor, QStringLiteral("5"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(view.text(), QStringLiteral("AB5"));
}

void tst_KVItemLineEditDelegate::incompleteTextLosesFocus()
{
    for (bool complete : {false, true}) {
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        NamesView view;
        QLineEdit other;
        layout->addWidget(&view);
        layout->addWidget(&other);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QPointer<QLineEdit> editor = view.open(QStringLiteral("A1"));
        QVERIFY(editor);
        QTRY_VERIFY(editor->hasFocus());
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(editor, complete ? QStringLiteral("XY2") : QStringLiteral("XY"));
        other.setFocus();
        QTRY_VERIFY(!editor);
        QCOMPARE(view.text(), complete ? QStringLiteral("XY2") : QStringLiteral("A1"));
    }
}

// The view that is sent to another cell writes the text as it stands, and asks no validator.
void tst_KVItemLineEditDelegate::incompleteTextOfOtherCell()
{
    NamesView view;
    QPointer<QLineEdit> editor = view.open(QStringLiteral("A1"));
    QVERIFY(editor);
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(editor, QStringLiteral("X"));
    view.setCurrentIndex(view.cell(1));
    QTRY_VERIFY(!editor);
    QCOMPARE(view.text(), QStringLiteral("X"));
}

void tst_KVItemLineEditDelegate::escapeReverts()
{
    NamesView view;
    QPointer<QLineEdit> editor = view.open(QStringLiteral("A1"));
    QVERIFY(editor);
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(editor, QStringLiteral("XYZ0"));
    QTest::keyClick(editor, Qt::Key_Escape);
    QTRY_VERIFY(!editor);
    QCOMPARE(view.text(), QStringLiteral("A1"));
}

void tst_KVItemLineEditDelegate::editorSetup()
{
    NamesView view;
    QWidget *created =
        view.delegate.createEditor(view.viewport(), QStyleOptionViewItem(), view.cell());
    QCOMPARE(QByteArray(created->metaObject()->className()), QByteArray("QLineEdit"));
    QCOMPARE(created->parentWidget(), view.viewport());
    auto *editor = qobject_cast<QLineEdit *>(created);
    auto *validator = qobject_cast<const QRegExpValidator *>(editor->validator());
    QVERIFY(validator);
    QCOMPARE(validator->parent(), view.viewport());
    QCOMPARE(validator->regExp(), QRegExp(QStringLiteral("[A-Z]{1,3}[0-9]")));
}

// One validator stays behind for each editor, until the viewport goes.
void tst_KVItemLineEditDelegate::validatorLivesWithViewport()
{
    QWidget viewport;
    KVItemLineEditDelegate delegate(QRegExp(QStringLiteral("[0-9]+")));
    for (int i = 1; i <= 3; ++i) {
        delete delegate.createEditor(&viewport, QStyleOptionViewItem(), QModelIndex());
        QCOMPARE(viewport.findChildren<QRegExpValidator *>().count(), i);
        QCOMPARE(viewport.findChildren<QLineEdit *>().count(), 0);
    }
    // Without a viewport the line edit has the validator itself.
    QScopedPointer<QWidget> editor(
        delegate.createEditor(nullptr, QStyleOptionViewItem(), QModelIndex()));
    QCOMPARE(editor->findChildren<QRegExpValidator *>().count(), 1);
}

void tst_KVItemLineEditDelegate::editorData_data()
{
    QTest::addColumn<QVariant>("data");
    QTest::addColumn<QString>("text");
    QTest::newRow("text") << QVariant(QStringLiteral("AB7")) << "AB7";
    QTest::newRow("no match") << QVariant(QStringLiteral("lower case")) << "lower case";
    QTest::newRow("number") << QVariant(12) << "12";
    QTest::newRow("double") << QVariant(0.5) << "0.5";
    QTest::newRow("nothing") << QVariant() << "";
}

void tst_KVItemLineEditDelegate::editorData()
{
    QFETCH(QVariant, data);
    QFETCH(QString, text);
    NamesView view;
    QLineEdit *editor = view.open(data);
    QVERIFY(editor);
    QCOMPARE(editor->text(), text);
}

void tst_KVItemLineEditDelegate::modelData()
{
    NamesView view;
    QLineEdit editor;
    editor.setText(QStringLiteral("as it is"));
    view.delegate.setModelData(&editor, &view.cells, view.cell(1));
    const QVariant data = view.cells.data(view.cell(1), Qt::EditRole);
    QCOMPARE(data.type(), QVariant::String);
    QCOMPARE(data.toString(), QStringLiteral("as it is"));
    editor.clear();
    view.delegate.setModelData(&editor, &view.cells, view.cell(1));
    QCOMPARE(view.cells.data(view.cell(1), Qt::EditRole).toString(), QString());
}

void tst_KVItemLineEditDelegate::readsAndWritesEditRole()
{
    RolesModel model(QStringLiteral("AB7"));
    const KVItemLineEditDelegate delegate{QRegExp(QStringLiteral(".*"))};
    QLineEdit lineEdit;
    delegate.setEditorData(&lineEdit, model.index(0));
    QCOMPARE(lineEdit.text(), QStringLiteral("AB7"));
    delegate.setModelData(&lineEdit, &model, model.index(0));
    QCOMPARE(model.written, (QVector<QPair<int, QString>>{{Qt::EditRole, "AB7"}}));
}

void tst_KVItemLineEditDelegate::expressionsOfAnyKind_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("kept");
    QTest::newRow("empty takes nothing") << ""
                                         << "abc"
                                         << "";
    QTest::newRow("anything") << ".*"
                              << "a b!"
                              << "a b!";
    QTest::newRow("broken takes nothing") << "["
                                          << "abc"
                                          << "";
    QTest::newRow("at most two") << ".{0,2}"
                                 << "abc"
                                 << "ab";
}

void tst_KVItemLineEditDelegate::expressionsOfAnyKind()
{
    QFETCH(QString, pattern);
    QFETCH(QString, typed);
    QFETCH(QString, kept);
    NamesView view(pattern);
    QLineEdit *editor = view.open(QString());
    QVERIFY(editor);
    QTest::keyClicks(editor, typed);
    QCOMPARE(editor->text(), kept);
}

void tst_KVItemLineEditDelegate::geometry()
{
    NamesView view;
    QLineEdit *editor = view.open(QString());
    QVERIFY(editor);
    QCOMPARE(editor->geometry(), view.visualRect(view.cell()));
    QStyleOptionViewItem option;
    option.rect = QRect(7, 8, 90, 21);
    view.delegate.updateEditorGeometry(editor, option, view.cell());
    QCOMPARE(editor->geometry(), option.rect);
}

void tst_KVItemLineEditDelegate::badArguments()
{
    NamesView view;
    view.cells.setData(view.cell(), QStringLiteral("A1"));
    QLineEdit lineEdit(QStringLiteral("kept"));
    QSpinBox spinBox;
    spinBox.setValue(4);
    view.delegate.setEditorData(nullptr, view.cell());
    view.delegate.setEditorData(&spinBox, view.cell());
    view.delegate.setEditorData(&lineEdit, QModelIndex());
    QCOMPARE(lineEdit.text(), QStringLiteral("kept"));
    QCOMPARE(spinBox.value(), 4);
    view.delegate.setModelData(nullptr, &view.cells, view.cell());
    view.delegate.setModelData(&spinBox, &view.cells, view.cell());
    view.delegate.setModelData(&lineEdit, nullptr, view.cell());
    view.delegate.setModelData(&lineEdit, &view.cells, QModelIndex());
    QCOMPARE(view.text(), QStringLiteral("A1"));
    view.delegate.updateEditorGeometry(nullptr, QStyleOptionViewItem(), view.cell());
}

void tst_KVItemLineEditDelegate::metaObject()
{
    QObject parent;
    auto *delegate = new KVItemLineEditDelegate(QRegExp(), &parent);
    QCOMPARE(delegate->parent(), &parent);
    QCOMPARE(QByteArray(delegate->metaObject()->className()), QByteArray("KVItemLineEditDelegate"));
    QCOMPARE(delegate->metaObject()->superClass(), &QItemDelegate::staticMetaObject);
}

LMTEST_MAIN(tst_KVItemLineEditDelegate)

#include "tst_kvitemlineeditdelegate.moc"
