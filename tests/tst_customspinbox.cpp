#include "lmtest.h"

#include <lmwidgets/customspinbox.h>

#include <QClipboard>
#include <QLineEdit>
#include <QVBoxLayout>

#include <limits>
#include <memory>

using LM::Widgets::CustomSpinBox;

namespace {

/** A window with a spin box that has the focus, and a line edit to which it can go. */
struct Form
{
    Form() : box(new CustomSpinBox(&window)), other(new QLineEdit(&window))
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(box);
        layout->addWidget(other);
        box->setRange(-1000, 1000);
    }
    bool show()
    {
        window.show();
        QApplication::setActiveWindow(&window);
        box->setFocus();
        box->selectAll();
        return QTest::qWaitForWindowActive(&window) &&
               QTest::qWaitFor([this] { return box->hasFocus(); });
    }
    void press(int key, int times = 1, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        for (int i = 0; i < times; ++i) {
            QTest::keyClick(box, static_cast<Qt::Key>(key), modifiers);
        }
    }

    QWidget window;
    CustomSpinBox *const box;
    QLineEdit *const other;
};

QStringList texts(const QSignalSpy &spy)
{
    QStringList result;
    for (const QList<QVariant> &arguments : spy) {
        result.append(arguments.at(0).toString());
    }
    return result;
}

} // namespace

class tst_CustomSpinBox : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void newBox();
    void deletingEveryCharacter_data();
    void deletingEveryCharacter();
    void partOfTheText();
    void blankStaysWhenTheFocusGoes_data();
    void blankStaysWhenTheFocusGoes();
    void blankEndsWithANumber();
    void rangeWithoutZero_data();
    void rangeWithoutZero();
    void suffixIsText();
    void noticeOfDeleting_data();
    void noticeOfDeleting();
    void noticeAfterTheEdit();
    void nothingToDelete();
    void noticeOfPasting_data();
    void noticeOfPasting();
    void readOnly();
    void destroyedByTheNotice_data();
    void destroyedByTheNotice();
    void destroyedByTheZero();
};

void tst_CustomSpinBox::newBox()
{
    QWidget parent;
    CustomSpinBox box(&parent);
    const QDoubleSpinBox stock;
    QCOMPARE(box.parentWidget(), &parent);
    QCOMPARE(box.value(), 0.0);
    QCOMPARE(box.text(), stock.text());
    QCOMPARE(box.maximum(), stock.maximum());
    QVERIFY(box.objectName().isEmpty());
    const QMetaObject *meta = box.metaObject();
    QCOMPARE(QLatin1String(meta->className()), QLatin1String("LM::Widgets::CustomSpinBox"));
    QCOMPARE(meta->superClass(), &QDoubleSpinBox::staticMetaObject);
    QVERIFY(lmtest::ownMethods(*meta).isEmpty());
    QCOMPARE(meta->propertyCount(), meta->superClass()->propertyCount());
    QVERIFY(!CustomSpinBox().parent());
}

void tst_CustomSpinBox::deletingEveryCharacter_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("tracking");
    QTest::newRow("Backspace") << int(Qt::Key_Backspace) << true;
    QTest::newRow("Delete") << int(Qt::Key_Delete) << true;
    QTest::newRow("Backspace, no tracking") << int(Qt::Key_Backspace) << false;
    QTest::newRow("Delete, no tracking") << int(Qt::Key_Delete) << false;
}

void tst_CustomSpinBox::deletingEveryCharacter()
{
    QFETCH(int, key);
    QFETCH(bool, tracking);
    Form form;
    form.box->setKeyboardTracking(tracking);
    QVERIFY(form.show());
    QTest::keyClicks(form.box, QStringLiteral("12.5"));
    QCOMPARE(form.box->text(), QStringLiteral("12.5"));
    if (key == Qt::Key_Delete) {
        form.press(Qt::Key_Home);
    }
    form.press(key, 4);
    QCOMPARE(form.box->value(), 0.0);
    QCOMPARE(form.box->text(), QString());
    QVERIFY(form.box->findChild<QLineEdit *>()->displayText().isEmpty());
}

void tst_CustomSpinBox::partOfTheText()
{
    Form form;
    QVERIFY(form.show());
    QTest::keyClicks(form.box, QStringLiteral("123"));
    form.press(Qt::Key_Backspace);
    QCOMPARE(form.box->text(), QStringLiteral("12"));
    QCOMPARE(form.box->value(), 12.0);
    form.press(Qt::Key_Backspace);
    QCOMPARE(form.box->text(), QStringLiteral("1"));
    QCOMPARE(form.box->value(), 1.0);
    form.press(Qt::Key_Backspace);
    QCOMPARE(form.box->text(), QString());
    QCOMPARE(form.box->value(), 0.0);
}

void tst_CustomSpinBox::blankStaysWhenTheFocusGoes_data()
{
    QTest::addColumn<bool>("tracking");
    QTest::newRow("tracking") << true;
    QTest::newRow("no tracking") << false;
}

void tst_CustomSpinBox::blankStaysWhenTheFocusGoes()
{
    QFETCH(bool, tracking);
    Form form;
    form.box->setKeyboardTracking(tracking);
    form.box->setValue(7);
    QVERIFY(form.show());
    QSignalSpy finished(form.box, &QAbstractSpinBox::editingFinished);
    form.press(Qt::Key_Backspace); // all of it is selected
    form.press(Qt::Key_Return);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(form.box->text(), QString());

    form.press(Qt::Key_Tab);
    QTRY_VERIFY(form.other->hasFocus());
    QCOMPARE(finished.count(), 2);
    QCOMPARE(form.box->text(), QString());
    QCOMPARE(form.box->value(), 0.0);

    // A stock one puts the number back: the case that this class is there for.
    QDoubleSpinBox stock;
    stock.setValue(7);
    stock.show();
    QVERIFY(QTest::qWaitForWindowExposed(&stock));
    stock.selectAll();
    QTest::keyClick(&stock, Qt::Key_Backspace);
    QTest::keyClick(&stock, Qt::Key_Return);
    QCOMPARE(stock.value(), 7.0);
}

void tst_CustomSpinBox::blankEndsWithANumber()
{
    Form form;
    form.box->setValue(7);
    QVERIFY(form.show());
    form.press(Qt::Key_Backspace);
    QTest::keyClicks(form.box, QStringLiteral("3"));
    QCOMPARE(form.box->value(), 3.0);
    form.press(Qt::Key_Return);
    QCOMPARE(form.box->text(), form.box->textFromValue(3.0));

    form.box->selectAll();
    form.press(Qt::Key_Delete);
    QCOMPARE(form.box->text(), QString());
    form.box->setValue(42);
    QCOMPARE(form.box->text(), form.box->textFromValue(42));

    // Qt steps from a number only, so that the first step merely shows the one that is there.
    form.box->selectAll();
    form.press(Qt::Key_Delete);
    form.press(Qt::Key_Up);
    QCOMPARE(form.box->value(), 0.0);
    QCOMPARE(form.box->text(), form.box->textFromValue(0.0));
    form.press(Qt::Key_Up);
    QCOMPARE(form.box->value(), 1.0);
    QCOMPARE(form.box->text(), form.box->textFromValue(1.0));
}

void tst_CustomSpinBox::rangeWithoutZero_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("expected");
    QTest::newRow("above") << 5.0 << 9.0 << 5.0;
    QTest::newRow("below") << -9.0 << -5.0 << -5.0;
    QTest::newRow("up to zero") << -9.0 << 0.0 << 0.0;
}

void tst_CustomSpinBox::rangeWithoutZero()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, expected);
    Form form;
    form.box->setRange(minimum, maximum);
    QVERIFY(form.show());
    form.press(Qt::Key_Delete);
    QCOMPARE(form.box->value(), expected);
    QCOMPARE(form.box->text(), QString());
}

void tst_CustomSpinBox::suffixIsText()
{
    Form form;
    form.box->setSuffix(QStringLiteral(" m"));
    form.box->setValue(7);
    QVERIFY(form.show());
    QSignalSpy changed(form.box, &QDoubleSpinBox::textChanged);
    form.press(Qt::Key_Backspace);
    QCOMPARE(form.box->text(), QStringLiteral(" m"));
    QCOMPARE(form.box->value(), 7.0);
    QCOMPARE(texts(changed), QStringList{QString()});
    form.press(Qt::Key_Return);
    QCOMPARE(form.box->value(), 7.0);
    QVERIFY(form.box->text().startsWith(QLatin1Char('7')));
}

void tst_CustomSpinBox::noticeOfDeleting_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<bool>("notice");
    QTest::newRow("Backspace") << int(Qt::Key_Backspace) << int(Qt::NoModifier) << true;
    QTest::newRow("Delete") << int(Qt::Key_Delete) << int(Qt::NoModifier) << true;
    QTest::newRow("Ctrl+Backspace") << int(Qt::Key_Backspace) << int(Qt::ControlModifier) << true;
    QTest::newRow("Shift+Backspace") << int(Qt::Key_Backspace) << int(Qt::ShiftModifier) << true;
    QTest::newRow("Left") << int(Qt::Key_Left) << int(Qt::NoModifier) << false;
    QTest::newRow("Ctrl+A") << int(Qt::Key_A) << int(Qt::ControlModifier) << false;
    QTest::newRow("Ctrl+C") << int(Qt::Key_C) << int(Qt::ControlModifier) << false;
    QTest::newRow("Return") << int(Qt::Key_Return) << int(Qt::NoModifier) << false;
}

void tst_CustomSpinBox::noticeOfDeleting()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(bool, notice);
    Form form;
    form.box->setValue(25);
    QVERIFY(form.show());
    form.press(Qt::Key_End);
    QSignalSpy changed(form.box, &QDoubleSpinBox::textChanged);
    form.press(key, 1, Qt::KeyboardModifiers(modifiers));
    QCOMPARE(texts(changed).count(QString()), notice ? 1 : 0);
}

void tst_CustomSpinBox::noticeAfterTheEdit()
{
    Form form;
    form.box->setDecimals(0);
    form.box->setValue(12);
    QVERIFY(form.show());
    form.press(Qt::Key_End);
    QStringList log;
    connect(form.box, &QDoubleSpinBox::textChanged, this, [&](const QString &text) {
        log.append(QStringLiteral("text '%1' shows '%2'").arg(text, form.box->text()));
    });
    connect(form.box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [&](double value) { log.append(QStringLiteral("value %1").arg(value)); });
    form.press(Qt::Key_Backspace);
    const QStringList first{QStringLiteral("text '1' shows '1'"), QStringLiteral("value 1"),
                            QStringLiteral("text '' shows '1'")};
    QCOMPARE(log, first);
    log.clear();
    form.press(Qt::Key_Backspace);
    const QStringList second{QStringLiteral("text '0' shows '0'"), QStringLiteral("value 0"),
                             QStringLiteral("text '' shows ''")};
    QCOMPARE(log, second);
}

void tst_CustomSpinBox::nothingToDelete()
{
    Form form;
    form.box->setValue(12);
    QVERIFY(form.show());
    form.press(Qt::Key_End);
    QSignalSpy changed(form.box, &QDoubleSpinBox::textChanged);
    QSignalSpy value(form.box, QOverload<double>::of(&QDoubleSpinBox::valueChanged));
    form.press(Qt::Key_Delete);
    QCOMPARE(texts(changed), QStringList{QString()});
    form.box->selectAll();
    form.press(Qt::Key_Backspace);
    value.clear();
    changed.clear();
    form.press(Qt::Key_Backspace); // blank already
    QCOMPARE(texts(changed), QStringList{QString()});
    QCOMPARE(value.count(), 0);
    QCOMPARE(form.box->text(), QString());
}

void tst_CustomSpinBox::noticeOfPasting_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("clipboard");
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("notice");
    const int control = Qt::ControlModifier;
    QTest::newRow("number") << int(Qt::Key_V) << control << "31" << 31.0 << true;
    QTest::newRow("no number") << int(Qt::Key_V) << control << "abc" << 4.0 << true;
    QTest::newRow("empty") << int(Qt::Key_V) << control << "" << 4.0 << true;
    QTest::newRow("with Shift") << int(Qt::Key_V) << int(control | Qt::ShiftModifier) << "31" << 4.0
                                << false;
    QTest::newRow("with keypad") << int(Qt::Key_V) << int(control | Qt::KeypadModifier) << "31"
                                 << 31.0 << false;
    QTest::newRow("other way") << int(Qt::Key_Insert) << int(Qt::ShiftModifier) << "31" << 31.0
                               << false;
}

void tst_CustomSpinBox::noticeOfPasting()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, clipboard);
    QFETCH(double, value);
    QFETCH(bool, notice);
    QApplication::clipboard()->setText(clipboard);
    Form form;
    form.box->setValue(4);
    QVERIFY(form.show());
    QSignalSpy changed(form.box, &QDoubleSpinBox::textChanged);
    form.press(key, 1, Qt::KeyboardModifiers(modifiers));
    QCOMPARE(form.box->value(), value);
    QCOMPARE(texts(changed).count(QString()), notice ? 1 : 0);
    if (notice) {
        QCOMPARE(texts(changed).last(), QString());
    }
}

void tst_CustomSpinBox::readOnly()
{
    Form form;
    form.box->setValue(7);
    form.box->setReadOnly(true);
    QVERIFY(form.show());
    form.press(Qt::Key_Backspace);
    QCOMPARE(form.box->value(), 7.0);
    QCOMPARE(form.box->text(), form.box->textFromValue(7));
}

void tst_CustomSpinBox::destroyedByTheNotice_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("Backspace") << int(Qt::Key_Backspace) << int(Qt::NoModifier);
    QTest::newRow("Delete") << int(Qt::Key_Delete) << int(Qt::NoModifier);
    QTest::newRow("Ctrl+V") << int(Qt::Key_V) << int(Qt::ControlModifier);
}

void tst_CustomSpinBox::destroyedByTheNotice()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QApplication::clipboard()->setText(QString());
    auto form = std::make_unique<Form>();
    QVERIFY(form->show());
    const QPointer<CustomSpinBox> box(form->box);
    connect(form->box, &QDoubleSpinBox::textChanged, this, [&](const QString &text) {
        if (text.isEmpty()) {
            delete box.data();
        }
    });
    form->press(key, 1, Qt::KeyboardModifiers(modifiers));
    QVERIFY(!box);
}

void tst_CustomSpinBox::destroyedByTheZero()
{
    auto form = std::make_unique<Form>();
    form->box->setValue(7);
    QVERIFY(form->show());
    const QPointer<CustomSpinBox> box(form->box);
    int notices = 0;
    connect(form->box, &QDoubleSpinBox::textChanged, this,
            [&](const QString &text) { notices += text.isEmpty() ? 1 : 0; });
    connect(form->box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [&] { delete box.data(); });
    form->press(Qt::Key_Backspace);
    QVERIFY(!box);
    QCOMPARE(notices, 0);
}

LMTEST_MAIN(tst_CustomSpinBox)

#include "tst_customspinbox.moc"
