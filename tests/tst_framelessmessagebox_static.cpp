#include "messageboxtest.h"

#include <QPointer>

using namespace messageboxtest;
using LM::Widgets::FramelessMessageBox;

class tst_FramelessMessageBoxStatic : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void staticResults_data();
    void staticResults();
    void staticOverloads();
    void staticBoxes();
    void staticDefaultButton_data();
    void staticDefaultButton();
    void staticProperty();
    void staticCloseButton();
    void staticWithoutButtons();
    void aboutBox();
    void aboutQtBox();
};

void tst_FramelessMessageBoxStatic::staticResults_data()
{
    QTest::addColumn<int>("button");
    for (unsigned int bit = QMessageBox::Ok; bit <= QMessageBox::RestoreDefaults; bit <<= 1) {
        QTest::addRow("0x%x", bit) << int(bit);
    }
}

void tst_FramelessMessageBoxStatic::staticResults()
{
    QFETCH(int, button);
    const auto which = static_cast<QMessageBox::StandardButton>(button);
    using Ask =
        QMessageBox::StandardButton (*)(QWidget *, const QString &, const QString &,
                                        QMessageBox::StandardButtons, QMessageBox::StandardButton);
    const Ask functions[] = {&FramelessMessageBox::information, &FramelessMessageBox::question,
                             &FramelessMessageBox::warning, &FramelessMessageBox::critical};
    for (const Ask ask : functions) {
        whenShown(clickOn(which));
        QCOMPARE(ask(nullptr, QStringLiteral("t"), QStringLiteral("m"),
                     which | QMessageBox::Ok | QMessageBox::Help, QMessageBox::NoButton),
                 which);
    }
}

void tst_FramelessMessageBoxStatic::staticOverloads()
{
    const QString t = QStringLiteral("t");
    char property[] = "isDanger";
    const Act ok = clickOn(QMessageBox::Ok);
    const Act no = clickOn(QMessageBox::No);

    whenShown(ok);
    QCOMPARE(FramelessMessageBox::information(nullptr, t, t), QMessageBox::Ok);
    whenShown(ok);
    QCOMPARE(FramelessMessageBox::question(nullptr, t, t, QMessageBox::Ok), QMessageBox::Ok);
    whenShown(no);
    QCOMPARE(FramelessMessageBox::question(nullptr, t, t, QMessageBox::Yes | QMessageBox::No),
             QMessageBox::No);
    whenShown(no);
    QCOMPARE(FramelessMessageBox::question(nullptr, t, t, QMessageBox::Yes | QMessageBox::No,
                                           QMessageBox::No),
             QMessageBox::No);
    whenShown(ok);
    QCOMPARE(FramelessMessageBox::warning(nullptr, t, t, property), QMessageBox::Ok);
    whenShown(ok);
    QCOMPARE(FramelessMessageBox::warning(nullptr, t, t, nullptr), QMessageBox::Ok);
    whenShown(ok);
    QCOMPARE(FramelessMessageBox::critical(nullptr, t, t, property, true), QMessageBox::Ok);
    whenShown(no);
    QCOMPARE(FramelessMessageBox::critical(nullptr, t, t, nullptr, false,
                                           QMessageBox::Yes | QMessageBox::No),
             QMessageBox::No);
    whenShown(no);
    QCOMPARE(FramelessMessageBox::information(nullptr, t, t, property, true,
                                              QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes,
                                              false),
             QMessageBox::No);
}

void tst_FramelessMessageBoxStatic::staticBoxes()
{
    QWidget parent;
    struct Case
    {
        std::function<void()> call;
        QMessageBox::Icon icon;
    };
    const QString t = QStringLiteral("Title");
    const QString m = QStringLiteral("Message");
    const Case cases[] = {
        {[&] { FramelessMessageBox::information(&parent, t, m); }, QMessageBox::Information},
        {[&] { FramelessMessageBox::question(&parent, t, m); }, QMessageBox::Question},
        {[&] { FramelessMessageBox::warning(&parent, t, m); }, QMessageBox::Warning},
        {[&] { FramelessMessageBox::critical(&parent, t, m); }, QMessageBox::Critical},
        {[&] { FramelessMessageBox::information(&parent, t, m, QMessageBox::Ok); },
         QMessageBox::Information},
        {[&] { FramelessMessageBox::question(&parent, t, m, QMessageBox::Ok); },
         QMessageBox::Question},
        {[&] { FramelessMessageBox::warning(&parent, t, m, QMessageBox::Ok); },
         QMessageBox::Warning},
        {[&] { FramelessMessageBox::critical(&parent, t, m, QMessageBox::Ok); },
         QMessageBox::Critical},
    };
    for (const Case &one : cases) {
        bool seen = false;
        whenShown([&](FramelessMessageBox *box) {
            QCOMPARE(box->icon(), one.icon);
            QCOMPARE(box->windowTitle(), t);
            QCOMPARE(box->text(), m);
            QCOMPARE(box->parentWidget(), &parent);
            QCOMPARE(box->windowType(), Qt::Dialog);
            QVERIFY(box->windowFlags() & Qt::MSWindowsFixedSizeDialogHint);
            QCOMPARE(box->defaultButton(), pushButton(box, QMessageBox::Ok));
            seen = true;
            box->reject();
        });
        one.call();
        QVERIFY(seen);
    }
}

void tst_FramelessMessageBoxStatic::staticDefaultButton_data()
{
    QTest::addColumn<QMessageBox::StandardButtons>("buttons");
    QTest::addColumn<int>("wanted");
    QTest::addColumn<int>("expected");
    const int none = QMessageBox::NoButton;
    using Buttons = QMessageBox::StandardButtons;
    QTest::newRow("accepting") << Buttons(QMessageBox::Ok | QMessageBox::Cancel) << none
                               << int(QMessageBox::Ok);
    QTest::newRow("first accepting")
        << Buttons(QMessageBox::Save | QMessageBox::Open) << none << int(QMessageBox::Save);
    QTest::newRow("none accepting")
        << Buttons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel) << none << none;
    QTest::newRow("chosen") << Buttons(QMessageBox::Yes | QMessageBox::No) << int(QMessageBox::No)
                            << int(QMessageBox::No);
    QTest::newRow("chosen beside OK") << Buttons(QMessageBox::Ok | QMessageBox::Cancel)
                                      << int(QMessageBox::Cancel) << int(QMessageBox::Cancel);
    QTest::newRow("chosen, absent")
        << Buttons(QMessageBox::Ok | QMessageBox::Cancel) << int(QMessageBox::Yes) << none;
}

void tst_FramelessMessageBoxStatic::staticDefaultButton()
{
    QFETCH(QMessageBox::StandardButtons, buttons);
    QFETCH(int, wanted);
    QFETCH(int, expected);
    int found = -1;
    whenShown([&](FramelessMessageBox *box) {
        found = box->standardButton(box->defaultButton());
        box->reject();
    });
    FramelessMessageBox::information(nullptr, QStringLiteral("t"), QStringLiteral("m"), buttons,
                                     static_cast<QMessageBox::StandardButton>(wanted));
    QCOMPARE(found, expected);
}

void tst_FramelessMessageBoxStatic::staticProperty()
{
    for (const bool value : {true, false}) {
        char name[] = "isDanger";
        QVariant found;
        whenShown([&](FramelessMessageBox *box) {
            found = box->property("isDanger");
            box->reject();
        });
        FramelessMessageBox::critical(nullptr, QStringLiteral("t"), QStringLiteral("m"), name,
                                      value);
        QCOMPARE(found, QVariant(value));
    }
    char empty[] = "";
    QList<QByteArray> without, with;
    whenShown([&](FramelessMessageBox *box) {
        without = box->dynamicPropertyNames();
        box->reject();
    });
    FramelessMessageBox::critical(nullptr, QStringLiteral("t"), QStringLiteral("m"));
    whenShown([&](FramelessMessageBox *box) {
        with = box->dynamicPropertyNames();
        box->reject();
    });
    FramelessMessageBox::critical(nullptr, QStringLiteral("t"), QStringLiteral("m"), empty, true);
    QCOMPARE(with, without);
}

void tst_FramelessMessageBoxStatic::staticCloseButton()
{
    for (const bool visible : {true, false}) {
        bool found = !visible;
        whenShown([&](FramelessMessageBox *box) {
            found = closeButton(box)->isVisible();
            // Escape does not depend on it.
            QTest::keyClick(box, Qt::Key_Escape);
        });
        QCOMPARE(FramelessMessageBox::question(nullptr, QStringLiteral("t"), QStringLiteral("m"),
                                               nullptr, false, QMessageBox::Yes | QMessageBox::No,
                                               QMessageBox::NoButton, visible),
                 QMessageBox::No);
        QCOMPARE(found, visible);
    }
}

void tst_FramelessMessageBoxStatic::staticWithoutButtons()
{
    whenShown([](FramelessMessageBox *box) {
        QCOMPARE(box->standardButtons(), QMessageBox::Ok);
        QCOMPARE(box->button(QMessageBox::Ok)->text(), QStringLiteral("OK"));
        QTest::keyClick(box, Qt::Key_Return);
    });
    QCOMPARE(FramelessMessageBox::information(nullptr, QStringLiteral("t"), QStringLiteral("m"),
                                              QMessageBox::NoButton),
             QMessageBox::Ok);
}

void tst_FramelessMessageBoxStatic::aboutBox()
{
    QPointer<FramelessMessageBox> seen;
    QWidget parent;
    whenShown([&](FramelessMessageBox *box) {
        seen = box;
        QCOMPARE(box->parentWidget(), &parent);
        QCOMPARE(box->windowTitle(), QStringLiteral("About it"));
        QCOMPARE(box->text(), QStringLiteral("It is good."));
        QCOMPARE(box->standardButtons(), QMessageBox::Ok);
        QCOMPARE(box->icon(), QMessageBox::NoIcon);
        QCOMPARE(box->iconPixmap().isNull(), box->windowIcon().isNull());
        QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
    });
    FramelessMessageBox::about(&parent, QStringLiteral("About it"), QStringLiteral("It is good."));
    QVERIFY(!seen);
    QVERIFY(parent.findChildren<FramelessMessageBox *>().isEmpty());
}

void tst_FramelessMessageBoxStatic::aboutQtBox()
{
    // Qt's own box says what the two texts are.
    QString stock;
    QTimer::singleShot(0, qApp, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(box);
        stock = box->informativeText();
        box->close();
    });
    QMessageBox::aboutQt(nullptr);
    QVERIFY(!stock.isEmpty());

    for (const QString &title : {QString(), QStringLiteral("Qt?")}) {
        QPointer<FramelessMessageBox> seen;
        whenShown([&](FramelessMessageBox *box) {
            seen = box;
            QCOMPARE(box->windowTitle(), title.isEmpty() ? QStringLiteral("About Qt") : title);
            QCOMPARE(
                box->text(),
                QStringLiteral("<h3>About Qt</h3><p>This program uses Qt version 5.14.2.</p>"));
            QCOMPARE(box->informativeText(), stock);
            QCOMPARE(box->icon(), QMessageBox::NoIcon);
            QCOMPARE(box->iconPixmap().size(), QSize(64, 64));
            QCOMPARE(box->standardButtons(), QMessageBox::Ok);
            QTest::keyClick(box, Qt::Key_Escape);
        });
        FramelessMessageBox::aboutQt(nullptr, title);
        QVERIFY(!seen);
    }
}

LMTEST_MAIN(tst_FramelessMessageBoxStatic)

#include "tst_framelessmessagebox_static.moc"
