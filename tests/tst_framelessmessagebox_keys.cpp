#include "messageboxtest.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QWindow>

using namespace messageboxtest;
using LM::Widgets::FramelessMessageBox;

class tst_FramelessMessageBoxKeys : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        TestCase::initTestCase();
        qRegisterMetaType<QAbstractButton *>();
    }

    void closing();
    void closingRefused();
    void closeButtonOfTheTitleBar();
    void shortcutKeys();
    void shortcutKeyModifiers();
    void altShortcut();
    void keysOfTheDetails();
    void copyWithEverything();
    void escapeButton_data();
    void escapeButton();
    void escapeButtonIsForgotten();
    void escapeButtonOfExchangedButtons();
    void defaultButton();
    void enterClicksTheDefault();
    void windowModality();
};

void tst_FramelessMessageBoxKeys::closing()
{
    FramelessMessageBox box(QMessageBox::NoIcon, QString(), QString(),
                            QMessageBox::Yes | QMessageBox::No);
    QSignalSpy clicked(&box, &FramelessMessageBox::buttonClicked);
    QSignalSpy finished(&box, &QDialog::finished);
    box.show();
    QVERIFY(waitForShown(&box));
    QVERIFY(box.close());
    QVERIFY(!box.isVisible());
    QCOMPARE(box.clickedButton(), box.button(QMessageBox::No));
    QCOMPARE(box.result(), int(QMessageBox::No));
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(finished.count(), 1);
}

void tst_FramelessMessageBoxKeys::closingRefused()
{
    FramelessMessageBox box(QMessageBox::NoIcon, QString(), QString(),
                            QMessageBox::Ok | QMessageBox::Yes);
    QSignalSpy finished(&box, &QDialog::finished);
    box.show();
    QVERIFY(waitForShown(&box));
    QVERIFY(!box.close());
    QTest::keyClick(&box, Qt::Key_Escape);
    // What the window system sends for Alt+F4 and the like.
    QCloseEvent close;
    QApplication::sendEvent(box.windowHandle(), &close);
    QVERIFY(box.isVisible());
    QCOMPARE(finished.count(), 0);
    QVERIFY(!box.clickedButton());
    QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
    QVERIFY(!box.isVisible());
}

void tst_FramelessMessageBoxKeys::closeButtonOfTheTitleBar()
{
    whenShown(
        [](FramelessMessageBox *box) { QTest::mouseClick(closeButton(box), Qt::LeftButton); });
    QCOMPARE(FramelessMessageBox::question(nullptr, QStringLiteral("t"), QStringLiteral("m"),
                                           QMessageBox::Ok | QMessageBox::Cancel),
             QMessageBox::Cancel);
}

void tst_FramelessMessageBoxKeys::shortcutKeys()
{
    FramelessMessageBox box;
    QPushButton *first = box.addButton(QStringLiteral("&First"), QMessageBox::AcceptRole);
    box.addButton(QStringLiteral("Second"), QMessageBox::AcceptRole);
    QPushButton *alsoF = box.addButton(QStringLiteral("Also &F"), QMessageBox::HelpRole);
    Q_UNUSED(alsoF)
    QSignalSpy clicked(&box, &FramelessMessageBox::buttonClicked);
    box.show();
    QVERIFY(waitForShown(&box));
    QTest::keyClick(&box, Qt::Key_S);
    QVERIFY(box.isVisible());
    QTest::keyClick(&box, Qt::Key_F);
    // It is shown pressed first.
    QVERIFY(first->isDown());
    QCOMPARE(clicked.count(), 0);
    QTRY_COMPARE(clicked.count(), 1);
    QCOMPARE(box.clickedButton(), first);
}

void tst_FramelessMessageBoxKeys::shortcutKeyModifiers()
{
    for (const Qt::KeyboardModifier modifier :
         {Qt::ControlModifier, Qt::MetaModifier, Qt::AltModifier}) {
        FramelessMessageBox box;
        QPushButton *button = box.addButton(QStringLiteral("B"), QMessageBox::AcceptRole);
        button->setShortcut(Qt::SHIFT + Qt::Key_B);
        box.show();
        QVERIFY(waitForShown(&box));
        QKeyEvent press(QEvent::KeyPress, Qt::Key_B, modifier);
        QApplication::sendEvent(&box, &press);
        QVERIFY(!button->isDown());
    }
    // Shift does not matter, neither in the shortcut nor on the keyboard.
    FramelessMessageBox box;
    QPushButton *button = box.addButton(QStringLiteral("B"), QMessageBox::AcceptRole);
    button->setShortcut(Qt::CTRL + Qt::Key_B);
    box.show();
    QVERIFY(waitForShown(&box));
    QKeyEvent press(QEvent::KeyPress, Qt::Key_B, Qt::ShiftModifier);
    QApplication::sendEvent(&box, &press);
    QVERIFY(button->isDown());
    QTRY_VERIFY(!box.isVisible());
}

void tst_FramelessMessageBoxKeys::altShortcut()
{
    FramelessMessageBox box;
    QPushButton *yes = box.addButton(QMessageBox::Yes);
    box.addButton(QMessageBox::No);
    box.show();
    QVERIFY(waitForShown(&box));
    QTest::keyClick(&box, Qt::Key_Y, Qt::AltModifier);
    QTRY_VERIFY(!box.isVisible());
    QCOMPARE(box.clickedButton(), yes);
}

void tst_FramelessMessageBoxKeys::keysOfTheDetails()
{
    FramelessMessageBox box(QMessageBox::NoIcon, QStringLiteral("t"), QStringLiteral("m"),
                            QMessageBox::Ok | QMessageBox::Cancel);
    box.setDetailedText(QStringLiteral("the details"));
    box.show();
    QVERIFY(waitForShown(&box));

    // Hidden, they take no part.
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_C, Qt::ControlModifier);
    QVERIFY(QGuiApplication::clipboard()->text().startsWith(QLatin1String(Separator)));

    QAbstractButton *details = box.buttons().last();
    for (QAbstractButton *button : box.buttons()) {
        if (button->text() == QLatin1String("Show Details...")) {
            details = button;
        }
    }
    QTest::mouseClick(details, Qt::LeftButton);
    QVERIFY(box.isVisible());
    QTest::keyClick(&box, Qt::Key_C, Qt::ControlModifier);
    QVERIFY(QGuiApplication::clipboard()->text().startsWith(QLatin1String(Separator)));
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("the details"));
}

void tst_FramelessMessageBoxKeys::copyWithEverything()
{
    FramelessMessageBox box(QMessageBox::NoIcon, QStringLiteral("Title"),
                            QStringLiteral("<b>Message</b>\nsecond"), QMessageBox::Yes);
    box.addButton(QMessageBox::No);
    box.addButton(QStringLiteral("&Custom"), QMessageBox::HelpRole);
    box.setInformativeText(QStringLiteral("Informative"));
    box.setDetailedText(QStringLiteral("Details\nmore"));
    box.show();
    QVERIFY(waitForShown(&box));
    QTest::keyClick(&box, Qt::Key_C, Qt::ControlModifier);

    QString captions;
    for (const QAbstractButton *button : box.buttons()) {
        captions += button->text() + QStringLiteral("   ");
    }
    for (const char *caption : {"Yes   ", "&No   ", "&Custom   ", "Show Details...   "}) {
        QVERIFY(captions.contains(QLatin1String(caption)));
    }
    const QString s = QString::fromLatin1(Separator);
    QCOMPARE(QGuiApplication::clipboard()->text(), s + "Title\n" + s + "<b>Message</b>\nsecond\n" +
                                                       s + "Informative\n" + s + captions + "\n" +
                                                       s + "Details\nmore\n" + s);
}

void tst_FramelessMessageBoxKeys::escapeButton_data()
{
    QTest::addColumn<QMessageBox::StandardButtons>("buttons");
    QTest::addColumn<QList<int>>("roles");
    QTest::addColumn<int>("explicitly");
    QTest::addColumn<QString>("expected");
    using B = QMessageBox::StandardButtons;
    using R = QList<int>;
    const int none = QMessageBox::NoButton;
    const int accept = QMessageBox::AcceptRole;
    const int reject = QMessageBox::RejectRole;
    const int no = QMessageBox::NoRole;
    QTest::newRow("the only") << B(QMessageBox::Save) << R() << none << "Save";
    QTest::newRow("the only, custom") << B() << R{accept} << none << "0";
    QTest::newRow("Cancel") << B(QMessageBox::Ok | QMessageBox::Cancel) << R() << none << "Cancel";
    QTest::newRow("Cancel before reject")
        << B(QMessageBox::Cancel | QMessageBox::Close) << R{reject} << none << "Cancel";
    QTest::newRow("reject") << B(QMessageBox::Ok) << R{reject} << none << "0";
    QTest::newRow("Close rejects")
        << B(QMessageBox::Ok | QMessageBox::Close) << R() << none << "Close";
    QTest::newRow("reject before no")
        << B(QMessageBox::Yes | QMessageBox::No) << R{reject} << none << "0";
    QTest::newRow("two reject") << B(QMessageBox::Ok) << R{reject, reject} << none << QString();
    QTest::newRow("two reject, one no")
        << B(QMessageBox::Yes | QMessageBox::No) << R{reject, reject} << none << "No";
    QTest::newRow("two no") << B(QMessageBox::Yes) << R{no, no} << none << QString();
    QTest::newRow("three reject") << B(QMessageBox::Ok) << R{reject, reject, reject} << none
                                  << QString();
    QTest::newRow("none") << B(QMessageBox::Ok | QMessageBox::Yes) << R() << none << QString();
    QTest::newRow("explicit") << B(QMessageBox::Ok | QMessageBox::Cancel) << R()
                              << int(QMessageBox::Ok) << "OK";
}

void tst_FramelessMessageBoxKeys::escapeButton()
{
    QFETCH(QMessageBox::StandardButtons, buttons);
    QFETCH(QList<int>, roles);
    QFETCH(int, explicitly);
    QFETCH(QString, expected);

    const auto fill = [&](auto &box) {
        box.setStandardButtons(buttons);
        for (int i = 0; i < roles.size(); ++i) {
            box.addButton(QString::number(i), static_cast<QMessageBox::ButtonRole>(roles.at(i)));
        }
        if (explicitly != QMessageBox::NoButton) {
            box.setEscapeButton(static_cast<QMessageBox::StandardButton>(explicitly));
        }
        box.show();
        QTest::keyClick(&box, Qt::Key_Escape);
        const QAbstractButton *clicked = box.clickedButton();
        return clicked ? clicked->text().remove(QLatin1Char('&')) : QString();
    };
    FramelessMessageBox box;
    QMessageBox stock;
    QCOMPARE(fill(box), expected);
    QCOMPARE(fill(stock), expected);
    QCOMPARE(box.isVisible(), expected.isNull());
    QCOMPARE(box.result(), stock.result());
}

void tst_FramelessMessageBoxKeys::escapeButtonIsForgotten()
{
    // The details count as a button: what is left is not the only one.
    FramelessMessageBox box(QMessageBox::NoIcon, QString(), QString(), QMessageBox::Ok);
    box.setDetailedText(QStringLiteral("details"));
    box.show();
    QVERIFY(!box.close());
    box.hide();
    box.setDetailedText(QString());
    box.show();
    QVERIFY(box.close());
    QCOMPARE(box.result(), int(QMessageBox::Ok));
}

void tst_FramelessMessageBoxKeys::escapeButtonOfExchangedButtons()
{
    FramelessMessageBox box(QMessageBox::NoIcon, QString(), QString(), QMessageBox::Cancel);
    box.show();
    QVERIFY(waitForShown(&box));
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    QTest::keyClick(&box, Qt::Key_Escape);
    QVERIFY(!box.isVisible());
    QCOMPARE(box.result(), int(QMessageBox::No));

    FramelessMessageBox other;
    QPushButton *reject = other.addButton(QStringLiteral("R"), QMessageBox::RejectRole);
    other.addButton(QMessageBox::No);
    other.show();
    QVERIFY(waitForShown(&other));
    other.removeButton(reject);
    delete reject;
    QTest::keyClick(&other, Qt::Key_Escape);
    QCOMPARE(other.result(), int(QMessageBox::No));
}

void tst_FramelessMessageBoxKeys::defaultButton()
{
    FramelessMessageBox box(QMessageBox::NoIcon, QString(), QString(),
                            QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::No);
    QCOMPARE(box.defaultButton(), pushButton(&box, QMessageBox::No));
    box.setDefaultButton(QMessageBox::Cancel);
    QCOMPARE(box.defaultButton(), pushButton(&box, QMessageBox::No));
    QPushButton *ok = box.addButton(QMessageBox::Ok);
    QCOMPARE(box.defaultButton(), pushButton(&box, QMessageBox::No));
    box.setDefaultButton(QMessageBox::Cancel);
    QCOMPARE(box.defaultButton(), ok);
    // A button itself is taken at its word.
    box.setDefaultButton(pushButton(&box, QMessageBox::Yes));
    QCOMPARE(box.defaultButton(), pushButton(&box, QMessageBox::Yes));
    box.show();
    QVERIFY(waitForShown(&box));
    QCOMPARE(QApplication::focusWidget(), pushButton(&box, QMessageBox::Yes));
}

void tst_FramelessMessageBoxKeys::enterClicksTheDefault()
{
    FramelessMessageBox box(QMessageBox::NoIcon, QString(), QString(),
                            QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::Yes);
    box.show();
    QVERIFY(waitForShown(&box));
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.result(), int(QMessageBox::Yes));

    // The buttons of the frame itself are out of the way.
    FramelessMessageBox accepting;
    QPushButton *go = accepting.addButton(QStringLiteral("Go"), QMessageBox::AcceptRole);
    accepting.addButton(QStringLiteral("Stay"), QMessageBox::RejectRole);
    QVERIFY(!accepting.GetOKButton()->isVisibleTo(&accepting));
    QVERIFY(!accepting.GetCancelButton()->isVisibleTo(&accepting));
    accepting.show();
    QVERIFY(waitForShown(&accepting));
    QTest::keyClick(&accepting, Qt::Key_Enter);
    QCOMPARE(accepting.clickedButton(), go);
}

void tst_FramelessMessageBoxKeys::windowModality()
{
    QWidget parent;
    auto *box = new FramelessMessageBox(QMessageBox::NoIcon, QString(), QString(),
                                        QMessageBox::Ok | QMessageBox::Cancel, &parent);
    box->setDefaultButton(pushButton(box, QMessageBox::Cancel));
    box->setWindowModality(Qt::WindowModal);
    QCOMPARE(box->QWidget::windowModality(), Qt::WindowModal);
    QCOMPARE(box->windowType(), Qt::Sheet);
    QCOMPARE(box->parentWidget(), &parent);
    QVERIFY(box->windowFlags() & Qt::FramelessWindowHint);
    QCOMPARE(box->defaultButton(), pushButton(box, QMessageBox::Ok));

    box->setWindowModality(Qt::ApplicationModal);
    QCOMPARE(box->windowType(), Qt::Dialog);
    QCOMPARE(box->parentWidget(), &parent);

    FramelessMessageBox orphan(QMessageBox::NoIcon, QString(), QString(),
                               QMessageBox::Yes | QMessageBox::No);
    orphan.setDefaultButton(QMessageBox::No);
    orphan.setWindowModality(Qt::WindowModal);
    QCOMPARE(orphan.windowType(), Qt::Dialog);
    QCOMPARE(orphan.defaultButton(), pushButton(&orphan, QMessageBox::No));
}

LMTEST_MAIN(tst_FramelessMessageBoxKeys)

#include "tst_framelessmessagebox_keys.moc"
