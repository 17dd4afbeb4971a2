#include "messageboxtest.h"

#include <QClipboard>
#include <QLabel>
#include <QPointer>

using namespace messageboxtest;
using LM::Widgets::FramelessMessageBox;

/** Records what a receiver of open() is told. */
class Receiver : public QObject
{
    Q_OBJECT

public:
    QList<int> results;
    QList<QAbstractButton *> buttons;

public Q_SLOTS:
    void onFinished(int result) { results.append(result); }
    void onClicked(QAbstractButton *button) { buttons.append(button); }
};

class tst_FramelessMessageBox : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        TestCase::initTestCase();
        qRegisterMetaType<QAbstractButton *>();
    }

    void informationWithOk();
    void yesNoWithoutDefault();
    void saveDiscardCancel();
    void noWayOutButTheButtons();
    void okStaysTheDefault();
    void clipboardText();
    void rejectedWithoutAButton();
    void resultMinusOneIsCancel();
    void metaObject();
    void windowFlags();
    void construction();
    void openWithButtonMember();
    void openWithIntMember();
    void openAgain();
    void openWithNothing();
    void openReceiverDestroyed();
    void signalOrder();
    void deletedInButtonClicked();
    void deletedInFinished();
    void deletedInFinishedByClosing();
    void buttonDeletedInFinished();
    void parentDestroyedDuringExec();
    void boxDestroyedDuringExec();
    void aboutParentDestroyed();
    void nestedBoxes();
    void clickedSlot();
};

void tst_FramelessMessageBox::informationWithOk()
{
    QWidget parent;
    whenShown([&](FramelessMessageBox *box) {
        QCOMPARE(box->buttons().size(), 1);
        QCOMPARE(box->buttons().first()->text(), QStringLiteral("OK"));
        QCOMPARE(box->buttons().first()->styleSheet(), QString::fromLatin1(PrimaryStyle));
        QVERIFY(closeButton(box)->isVisible());
        QTest::keyClick(box, Qt::Key_Escape);
        QVERIFY(!box->isVisible());
    });
    QCOMPARE(FramelessMessageBox::information(&parent, QStringLiteral("t"), QStringLiteral("m"),
                                              QMessageBox::Ok, QMessageBox::NoButton),
             QMessageBox::Ok);
    // The box is gone with the call.
    QVERIFY(parent.findChildren<FramelessMessageBox *>().isEmpty());
}

void tst_FramelessMessageBox::yesNoWithoutDefault()
{
    whenShown([](FramelessMessageBox *box) {
        QCOMPARE(box->button(QMessageBox::Yes)->text(), QStringLiteral("Yes"));
        QCOMPARE(box->button(QMessageBox::Yes)->styleSheet(), QString::fromLatin1(PrimaryStyle));
        QCOMPARE(box->button(QMessageBox::No)->text(), QStringLiteral("No"));
        QCOMPARE(box->button(QMessageBox::No)->styleSheet(), QString::fromLatin1(SecondaryStyle));
        QVERIFY(!box->defaultButton());
        QVERIFY(closeButton(box)->isVisible());
        QTest::keyClick(box, Qt::Key_Escape);
    });
    QCOMPARE(FramelessMessageBox::question(nullptr, QStringLiteral("t"), QStringLiteral("m"),
                                           QMessageBox::Yes | QMessageBox::No),
             QMessageBox::No);
}

void tst_FramelessMessageBox::saveDiscardCancel()
{
    whenShown([](FramelessMessageBox *box) {
        QPushButton *save = pushButton(box, QMessageBox::Save);
        QCOMPARE(save->text(), QStringLiteral("Save and Exit"));
        const int width =
            QFontMetrics(QApplication::font()).horizontalAdvance(QStringLiteral("Save and Exit"));
        QCOMPARE(save->minimumWidth(), width);
        QCOMPARE(save->maximumWidth(), width);
        QCOMPARE(save->width(), width);
        QCOMPARE(box->button(QMessageBox::Cancel)->text(), QStringLiteral("Cancel"));
        QCOMPARE(box->button(QMessageBox::Discard)->text(), QStringLiteral("Discard"));
        QCOMPARE(box->button(QMessageBox::Discard)->styleSheet(), QString());
        QTest::mouseClick(save, Qt::LeftButton);
    });
    QCOMPARE(FramelessMessageBox::warning(nullptr, QStringLiteral("t"), QStringLiteral("m"),
                                          QMessageBox::Save | QMessageBox::Discard |
                                              QMessageBox::Cancel),
             QMessageBox::Save);
}

void tst_FramelessMessageBox::noWayOutButTheButtons()
{
    FramelessMessageBox box;
    box.addButton(QStringLiteral("One"), QMessageBox::AcceptRole);
    QPushButton *two = box.addButton(QStringLiteral("Two"), QMessageBox::AcceptRole);
    box.show();
    QVERIFY(waitForShown(&box));
    QVERIFY(!closeButton(&box)->isVisible());
    QTest::keyClick(&box, Qt::Key_Escape);
    QVERIFY(box.isVisible());
    QVERIFY(!box.close());
    QVERIFY(box.isVisible());
    QVERIFY(!box.clickedButton());
    QTest::mouseClick(two, Qt::LeftButton);
    QVERIFY(!box.isVisible());
    QCOMPARE(box.clickedButton(), two);
    QCOMPARE(box.result(), 1);
}

void tst_FramelessMessageBox::okStaysTheDefault()
{
    FramelessMessageBox box;
    box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
    box.setDefaultButton(QMessageBox::Cancel);
    QCOMPARE(box.defaultButton(), pushButton(&box, QMessageBox::Ok));
    QVERIFY(pushButton(&box, QMessageBox::Ok)->isDefault());
    QVERIFY(!pushButton(&box, QMessageBox::Cancel)->isDefault());
}

void tst_FramelessMessageBox::clipboardText()
{
    FramelessMessageBox box(QMessageBox::Information, QStringLiteral("Title"),
                            QStringLiteral("The message"), QMessageBox::Ok | QMessageBox::Cancel);
    box.show();
    QVERIFY(waitForShown(&box));
    QTest::keyClick(&box, Qt::Key_C, Qt::ControlModifier);
    const QString s = QString::fromLatin1(Separator);
    QCOMPARE(QGuiApplication::clipboard()->text(),
             s + "Title\n" + s + "The message\n" + s + "OK   Cancel   \n" + s);
    QVERIFY(box.isVisible());
}

void tst_FramelessMessageBox::rejectedWithoutAButton()
{
    whenShown([](FramelessMessageBox *box) { box->reject(); });
    QCOMPARE(FramelessMessageBox::information(nullptr, QStringLiteral("t"), QStringLiteral("m"),
                                              QMessageBox::Ok),
             QMessageBox::NoButton);
}

void tst_FramelessMessageBox::resultMinusOneIsCancel()
{
    whenShown([](FramelessMessageBox *box) { box->done(-1); });
    QCOMPARE(FramelessMessageBox::information(nullptr, QStringLiteral("t"), QStringLiteral("m"),
                                              QMessageBox::Ok),
             QMessageBox::Cancel);
    for (const int result : {-2, 0, 1}) {
        whenShown([result](FramelessMessageBox *box) { box->done(result); });
        QCOMPARE(FramelessMessageBox::information(nullptr, QStringLiteral("t"), QStringLiteral("m"),
                                                  QMessageBox::Ok),
                 QMessageBox::NoButton);
    }
}

void tst_FramelessMessageBox::metaObject()
{
    const QMetaObject &meta = FramelessMessageBox::staticMetaObject;
    QCOMPARE(meta.className(), "LM::Widgets::FramelessMessageBox");
    QCOMPARE(meta.superClass(), &LM::Widgets::FramelessDialog::staticMetaObject);

    const QList<QByteArray> methods = {
        "buttonClicked(QAbstractButton*)", "slot_buttonClicked(QAbstractButton*)",
        "slot_clicked(QMessageBox::StandardButton,QMessageBox::ButtonRole)"};
    QCOMPARE(meta.methodCount() - meta.methodOffset(), methods.size());
    for (int i = 0; i < methods.size(); ++i) {
        const QMetaMethod method = meta.method(meta.methodOffset() + i);
        QCOMPARE(method.methodSignature(), methods.at(i));
        QCOMPARE(method.methodType(), i == 0 ? QMetaMethod::Signal : QMetaMethod::Slot);
        QCOMPARE(method.access(), i == 0 ? QMetaMethod::Public : QMetaMethod::Private);
    }

    const QMetaObject &stock = QMessageBox::staticMetaObject;
    const QList<QByteArray> properties = {"text",
                                          "icon",
                                          "iconPixmap",
                                          "textFormat",
                                          "standardButtons",
                                          "detailedText",
                                          "informativeText",
                                          "textInteractionFlags"};
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), properties.size());
    for (int i = 0; i < properties.size(); ++i) {
        const QMetaProperty property = meta.property(meta.propertyOffset() + i);
        QCOMPARE(QByteArray(property.name()), properties.at(i));
        QVERIFY(property.isReadable() && property.isWritable());
        const QMetaProperty like = stock.property(stock.indexOfProperty(property.name()));
        QCOMPARE(property.isEnumType(), like.isEnumType());
        QCOMPARE(property.isFlagType(), like.isFlagType());
    }

    FramelessMessageBox box;
    QVERIFY(box.setProperty("icon", QMessageBox::Critical));
    QCOMPARE(box.icon(), QMessageBox::Critical);
    QVERIFY(box.setProperty("icon", "Warning"));
    QCOMPARE(box.icon(), QMessageBox::Warning);
    QVERIFY(box.setProperty("standardButtons", "Ok|Cancel"));
    QCOMPARE(box.standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
    QCOMPARE(box.property("standardButtons").toInt(), int(QMessageBox::Ok | QMessageBox::Cancel));
}

void tst_FramelessMessageBox::windowFlags()
{
    const Qt::WindowFlags frame = Qt::MSWindowsFixedSizeDialogHint | Qt::WindowTitleHint |
                                  Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
                                  Qt::BypassWindowManagerHint | Qt::FramelessWindowHint;
    FramelessMessageBox plain;
    QCOMPARE(plain.windowFlags() & frame, frame);
    QCOMPARE(plain.windowType(), Qt::Dialog);
    QCOMPARE(plain.minimumWidth(), 444);

    FramelessMessageBox tool(QMessageBox::NoIcon, QString(), QString(), QMessageBox::NoButton,
                             nullptr, Qt::Tool | Qt::WindowStaysOnTopHint);
    QCOMPARE(tool.windowFlags() & frame, frame);
    QCOMPARE(tool.windowType(), Qt::Tool);
    QVERIFY(tool.windowFlags() & Qt::WindowStaysOnTopHint);
    QCOMPARE(tool.minimumSize(), QSize(444, 220));
}

void tst_FramelessMessageBox::construction()
{
    QWidget parent;
    auto *plain = new FramelessMessageBox(&parent);
    QCOMPARE(plain->parentWidget(), &parent);
    QVERIFY(plain->isModal());
    QCOMPARE(plain->icon(), QMessageBox::NoIcon);
    QVERIFY(plain->iconPixmap().isNull());
    QCOMPARE(plain->text(), QString());
    QCOMPARE(plain->windowTitle(), QString());
    QCOMPARE(plain->textFormat(), Qt::AutoText);
    QVERIFY(plain->buttons().isEmpty());
    QCOMPARE(plain->standardButtons(), QMessageBox::NoButton);
    QVERIFY(!plain->defaultButton());
    QVERIFY(!plain->escapeButton());
    QVERIFY(!plain->clickedButton());
    QVERIFY(!plain->checkBox());
    QCOMPARE(plain->detailedText(), QString());
    QCOMPARE(plain->informativeText(), QString());
    QCOMPARE(plain->textInteractionFlags(), QMessageBox().textInteractionFlags());
    // A title without a text was never set, so its alignment is still the frame's.
    QCOMPARE(plain->getTitleBar()->titleLabel()->alignment(), Qt::AlignCenter);

    auto *full = new FramelessMessageBox(QMessageBox::Critical, QStringLiteral("Title"),
                                         QStringLiteral("Text"),
                                         QMessageBox::Retry | QMessageBox::Abort, &parent);
    QVERIFY(full->isModal());
    QCOMPARE(full->icon(), QMessageBox::Critical);
    QCOMPARE(full->windowTitle(), QStringLiteral("Title"));
    QCOMPARE(full->getTitleBar()->title(), QStringLiteral("Title"));
    QCOMPARE(full->getTitleBar()->titleLabel()->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(full->text(), QStringLiteral("Text"));
    QCOMPARE(full->standardButtons(), QMessageBox::Retry | QMessageBox::Abort);
    QCOMPARE(full->button(QMessageBox::Abort)->text(), QStringLiteral("Close"));
    QCOMPARE(full->windowType(), Qt::Dialog);
    full->setWindowTitle(QStringLiteral("Other"));
    QCOMPARE(full->getTitleBar()->title(), QStringLiteral("Other"));
}

void tst_FramelessMessageBox::openWithButtonMember()
{
    Receiver receiver;
    FramelessMessageBox box(QMessageBox::NoIcon, QString(), QString(),
                            QMessageBox::Yes | QMessageBox::No);
    box.open(&receiver, SLOT(onClicked(QAbstractButton *)));
    QVERIFY(box.isVisible());
    QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
    QCOMPARE(receiver.buttons, QList<QAbstractButton *>{box.button(QMessageBox::Yes)});
    QVERIFY(receiver.results.isEmpty());

    // Told once, for good.
    box.show();
    QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
    QCOMPARE(receiver.buttons.size(), 1);
}

void tst_FramelessMessageBox::openWithIntMember()
{
    Receiver receiver;
    FramelessMessageBox box(QMessageBox::NoIcon, QString(), QString(),
                            QMessageBox::Yes | QMessageBox::No);
    box.open(&receiver, SLOT(onFinished(int)));
    QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
    QCOMPARE(receiver.results, QList<int>{int(QMessageBox::No)});
    QVERIFY(receiver.buttons.isEmpty());
    box.show();
    QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
    QCOMPARE(receiver.results.size(), 1);
}

void tst_FramelessMessageBox::openAgain()
{
    Receiver first, second;
    FramelessMessageBox box(QMessageBox::NoIcon, QString(), QString(),
                            QMessageBox::Yes | QMessageBox::No);
    box.open(&first, SLOT(onFinished(int)));
    box.done(7);
    QCOMPARE(first.results, QList<int>{7});
    box.open(&second, SLOT(onFinished(int)));
    QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
    QCOMPARE(first.results.size(), 1);
    QCOMPARE(second.results, QList<int>{int(QMessageBox::No)});
}

void tst_FramelessMessageBox::openWithNothing()
{
    FramelessMessageBox box;
    Receiver receiver;
    box.open(nullptr, SLOT(onFinished(int)));
    QVERIFY(box.isVisible());
    box.hide();
    box.open(&receiver, nullptr);
    QVERIFY(box.isVisible());
    box.hide();
    // QDialog's own.
    box.open();
    QVERIFY(box.isVisible());
    QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
    QVERIFY(receiver.results.isEmpty());
}

void tst_FramelessMessageBox::openReceiverDestroyed()
{
    FramelessMessageBox box;
    auto *receiver = new Receiver;
    box.open(receiver, SLOT(onClicked(QAbstractButton *)));
    delete receiver;
    QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
    QCOMPARE(box.result(), int(QMessageBox::Ok));
}

void tst_FramelessMessageBox::signalOrder()
{
    FramelessMessageBox box(QMessageBox::NoIcon, QString(), QString(), QMessageBox::Ok);
    QStringList order;
    connect(&box, &QDialog::finished, this, [&](int result) {
        order << QStringLiteral("finished %1").arg(result);
        QCOMPARE(box.clickedButton(), box.button(QMessageBox::Ok));
        QVERIFY(!box.isVisible());
    });
    connect(&box, &FramelessMessageBox::buttonClicked, this, [&](QAbstractButton *button) {
        order << QStringLiteral("clicked %1").arg(button->text());
    });
    box.show();
    QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
    QCOMPARE(order,
             (QStringList{QStringLiteral("finished %1").arg(int(QMessageBox::Ok)), "clicked OK"}));
}

void tst_FramelessMessageBox::deletedInButtonClicked()
{
    auto *box = new FramelessMessageBox(QMessageBox::NoIcon, QString(), QString(), QMessageBox::Ok);
    const QPointer<FramelessMessageBox> guard(box);
    Receiver receiver;
    connect(box, &FramelessMessageBox::buttonClicked, this, [box] { delete box; });
    box->open(&receiver, SLOT(onFinished(int)));
    QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
    QVERIFY(!guard);
    QCOMPARE(receiver.results.size(), 1);
}

void tst_FramelessMessageBox::deletedInFinished()
{
    auto *box = new FramelessMessageBox(QMessageBox::NoIcon, QString(), QString(), QMessageBox::Ok);
    const QPointer<FramelessMessageBox> guard(box);
    QSignalSpy clicked(box, &FramelessMessageBox::buttonClicked);
    connect(box, &QDialog::finished, this, [box] { delete box; });
    box->show();
    QVERIFY(waitForShown(box));
    QTest::keyClick(box, Qt::Key_Escape);
    QVERIFY(!guard);
    QCOMPARE(clicked.count(), 0);
}

void tst_FramelessMessageBox::deletedInFinishedByClosing()
{
    auto *box = new FramelessMessageBox(QMessageBox::NoIcon, QString(), QString(), QMessageBox::Ok);
    const QPointer<FramelessMessageBox> guard(box);
    connect(box, &QDialog::rejected, this, [box] { box->deleteLater(); });
    connect(box, &QDialog::finished, this, [box] { box->deleteLater(); });
    box->show();
    QVERIFY(waitForShown(box));
    QTest::mouseClick(closeButton(box), Qt::LeftButton);
    QTRY_VERIFY(!guard);
}

void tst_FramelessMessageBox::buttonDeletedInFinished()
{
    FramelessMessageBox box;
    box.addButton(QMessageBox::Ok);
    QSignalSpy clicked(&box, &FramelessMessageBox::buttonClicked);
    connect(&box, &QDialog::finished, &box,
            [&box] { box.setStandardButtons(QMessageBox::Yes | QMessageBox::No); });
    box.show();
    QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
    QVERIFY(!box.clickedButton());
    // There is nothing left to name.
    QCOMPARE(clicked.count(), 0);
}

void tst_FramelessMessageBox::parentDestroyedDuringExec()
{
    auto *parent = new QWidget;
    whenShown([parent](FramelessMessageBox *) { delete parent; });
    QCOMPARE(FramelessMessageBox::question(parent, QStringLiteral("t"), QStringLiteral("m"),
                                           QMessageBox::Yes | QMessageBox::No),
             QMessageBox::NoButton);
}

void tst_FramelessMessageBox::boxDestroyedDuringExec()
{
    whenShown([](FramelessMessageBox *box) {
        connect(box, &FramelessMessageBox::buttonClicked, box, [box] { delete box; });
        QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
    });
    QCOMPARE(FramelessMessageBox::question(nullptr, QStringLiteral("t"), QStringLiteral("m"),
                                           QMessageBox::Yes | QMessageBox::No),
             QMessageBox::NoButton);
}

void tst_FramelessMessageBox::aboutParentDestroyed()
{
    auto *parent = new QWidget;
    whenShown([parent](FramelessMessageBox *) { delete parent; });
    FramelessMessageBox::about(parent, QStringLiteral("t"), QStringLiteral("m"));
    parent = new QWidget;
    whenShown([parent](FramelessMessageBox *) { delete parent; });
    FramelessMessageBox::aboutQt(parent);
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_FramelessMessageBox::nestedBoxes()
{
    QMessageBox::StandardButton inner = QMessageBox::NoButton;
    whenShown([&](FramelessMessageBox *outer) {
        whenShown(clickOn(QMessageBox::No));
        inner = FramelessMessageBox::question(outer, QStringLiteral("t"), QStringLiteral("m"),
                                              QMessageBox::Yes | QMessageBox::No);
        QTest::mouseClick(outer->button(QMessageBox::Retry), Qt::LeftButton);
    });
    QCOMPARE(FramelessMessageBox::warning(nullptr, QStringLiteral("t"), QStringLiteral("m"),
                                          QMessageBox::Retry | QMessageBox::Cancel),
             QMessageBox::Retry);
    QCOMPARE(inner, QMessageBox::No);
}

void tst_FramelessMessageBox::clickedSlot()
{
    FramelessMessageBox box;
    box.show();
    QVERIFY(QMetaObject::invokeMethod(&box, "slot_clicked",
                                      Q_ARG(QMessageBox::StandardButton, QMessageBox::Retry),
                                      Q_ARG(QMessageBox::ButtonRole, QMessageBox::AcceptRole)));
    QVERIFY(!box.isVisible());
    QCOMPARE(box.result(), int(QMessageBox::Retry));
    QVERIFY(!box.clickedButton());
}

LMTEST_MAIN(tst_FramelessMessageBox)

#include "tst_framelessmessagebox.moc"
