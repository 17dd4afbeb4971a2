#include "messageboxtest.h"

#include <lmwidgets/detailbutton.h>
#include <lmwidgets/qmessageboxdetailstext.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPointer>

using namespace messageboxtest;
using LM::Widgets::DetailButton;
using LM::Widgets::FramelessMessageBox;
using LM::Widgets::QMessageBoxDetailsText;

class tst_FramelessMessageBoxDetails : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void informativeText();
    void informativeTextGoesWithTheBox();
    void detailsToggle();
    void detailsByKey();
    void detailsReplacedAndRemoved();
    void detailsRemovedByTheirOwnClick();
    void detailsStayLast();
    void detailsDoNotLeaveTheBox();
    void checkBox();
    void checkBoxReplaced();
    void checkBoxDeletedByTheHost();
    void checkBoxIsClicked();
};

void tst_FramelessMessageBoxDetails::informativeText()
{
    FramelessMessageBox box;
    QVERIFY(!informativeLabel());
    box.setInformativeText(QStringLiteral("<b>more</b>"));
    const QPointer<QLabel> label = informativeLabel();
    QVERIFY(label);
    QVERIFY(!label->parent());
    QVERIFY(label->wordWrap());
    QVERIFY(label->openExternalLinks());
    QCOMPARE(label->alignment(), Qt::AlignLeft | Qt::AlignTop);
    QCOMPARE(label->textInteractionFlags(), box.textInteractionFlags());
    QCOMPARE(box.informativeText(), QStringLiteral("<b>more</b>"));

    box.show();
    QVERIFY(settle(&box));
    QVERIFY(!label->isVisible());
    QCOMPARE(box.size(), QSize(BoxWidth, messageLabel(&box)->height() + Chrome));
    QCOMPARE(label->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    QVERIFY(label->sizePolicy().hasHeightForWidth());

    box.setInformativeText(QStringLiteral("other"));
    QCOMPARE(informativeLabel(), label.data());
    box.setInformativeText(QString());
    QVERIFY(!label);
    QCOMPARE(box.informativeText(), QString());
    box.setInformativeText(QString());
}

void tst_FramelessMessageBoxDetails::informativeTextGoesWithTheBox()
{
    {
        FramelessMessageBox box;
        box.setInformativeText(QStringLiteral("more"));
        QVERIFY(informativeLabel());
    }
    QVERIFY(!informativeLabel());
}

void tst_FramelessMessageBoxDetails::detailsToggle()
{
    FramelessMessageBox box(QMessageBox::NoIcon, QStringLiteral("t"), QStringLiteral("m"),
                            QMessageBox::Ok);
    QSignalSpy finished(&box, &QDialog::finished);
    box.setDetailedText(QStringLiteral("the <b>details</b>"));
    QCOMPARE(box.detailedText(), QStringLiteral("the <b>details</b>"));
    QAbstractButton *button = buttonReading(&box, "Show Details...");
    QVERIFY(qobject_cast<DetailButton *>(button));
    QCOMPARE(box.buttonRole(button), QMessageBox::ActionRole);
    auto *details = box.findChild<QMessageBoxDetailsText *>();
    QVERIFY(details && details->isHidden());
    QCOMPARE(details->parentWidget(), &box);

    box.show();
    QVERIFY(settle(&box));
    const QSize closed = box.size();
    const int width = button->width();
    for (int i = 0; i < 3; ++i) {
        QVERIFY(details->isHidden());
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(settle(&box));
        QVERIFY(details->isVisible());
        QCOMPARE(button->text(), QStringLiteral("Hide Details..."));
        QCOMPARE(button->width(), width);
        QVERIFY(box.isVisible());
        // They stand below the message and above the buttons, in full.
        QCOMPARE(box.size(), QSize(BoxWidth, messageLabel(&box)->height() + Chrome));
        const QLabel *label = messageLabel(&box);
        QVERIFY(details->y() >= label->y() + textHeight(&box));
        QVERIFY(details->geometry().bottom() < box.bottomWidget()->y());
        QVERIFY(details->height() >= details->sizeHint().height());
        QCOMPARE(details->width(), label->width());

        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(settle(&box));
        QCOMPARE(button->text(), QStringLiteral("Show Details..."));
        QCOMPARE(box.size(), closed);
    }
    QCOMPARE(finished.count(), 0);
    QVERIFY(!box.clickedButton());
}

void tst_FramelessMessageBoxDetails::detailsByKey()
{
    FramelessMessageBox box(QMessageBox::NoIcon, QStringLiteral("t"), QStringLiteral("m"),
                            QMessageBox::Ok);
    box.setDetailedText(QStringLiteral("details"));
    box.show();
    QVERIFY(settle(&box));
    QAbstractButton *button = buttonReading(&box, "Show Details...");
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Space);
    QVERIFY(box.findChild<QMessageBoxDetailsText *>()->isVisible());
}

void tst_FramelessMessageBoxDetails::detailsReplacedAndRemoved()
{
    FramelessMessageBox box;
    box.setDetailedText(QString());
    QCOMPARE(box.detailedText(), QString());
    QVERIFY(box.buttons().isEmpty());

    box.setDetailedText(QStringLiteral("one"));
    const QPointer<QMessageBoxDetailsText> details = box.findChild<QMessageBoxDetailsText *>();
    const QPointer<QAbstractButton> button = box.buttons().first();
    box.setDetailedText(QStringLiteral("two"));
    QCOMPARE(box.findChild<QMessageBoxDetailsText *>(), details.data());
    QCOMPARE(box.buttons(), QList<QAbstractButton *>{button});
    QCOMPARE(box.detailedText(), QStringLiteral("two"));

    box.show();
    QVERIFY(settle(&box));
    QTest::mouseClick(button, Qt::LeftButton);
    const int open = box.height();
    box.setDetailedText(QString());
    QCOMPARE(box.detailedText(), QString());
    QVERIFY(!box.buttons().contains(button));
    QVERIFY(box.height() < open);
    QTRY_VERIFY(!details && !button);

    box.setDetailedText(QStringLiteral("three"));
    QVERIFY(buttonReading(&box, "Show Details..."));
}

void tst_FramelessMessageBoxDetails::detailsRemovedByTheirOwnClick()
{
    FramelessMessageBox box;
    box.setDetailedText(QStringLiteral("one"));
    const QPointer<QAbstractButton> button = box.buttons().first();
    connect(button, &QAbstractButton::clicked, &box, [&box] { box.setDetailedText(QString()); });
    box.show();
    QVERIFY(settle(&box));
    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_VERIFY(!button);
    QVERIFY(box.isVisible());
    QCOMPARE(box.buttons().size(), 1);
}

void tst_FramelessMessageBoxDetails::detailsStayLast()
{
    FramelessMessageBox box;
    box.setDetailedText(QStringLiteral("details"));
    QAbstractButton *details = box.buttons().first();
    QPushButton *a = box.addButton(QStringLiteral("A"), QMessageBox::ActionRole);
    QPushButton *b = box.addButton(QStringLiteral("B"), QMessageBox::ActionRole);
    QCOMPARE(box.buttons(), (QList<QAbstractButton *>{details, a, b}));
    box.show();
    QVERIFY(settle(&box));
    QCOMPARE(box.buttons(), (QList<QAbstractButton *>{a, b, details}));
    QTRY_VERIFY(details->isVisible());
    // So the details do not shift the results of the host's own buttons.
    QTest::mouseClick(b, Qt::LeftButton);
    QCOMPARE(box.result(), 1);
}

void tst_FramelessMessageBoxDetails::detailsDoNotLeaveTheBox()
{
    FramelessMessageBox box(QMessageBox::NoIcon, QStringLiteral("t"),
                            QStringLiteral("message ").repeated(2000), QMessageBox::Ok);
    box.setDetailedText(QStringLiteral("line\n").repeated(10000));
    box.show();
    QVERIFY(settle(&box));
    QTest::mouseClick(buttonReading(&box, "Show Details..."), Qt::LeftButton);
    QVERIFY(settle(&box));
    const auto *details = box.findChild<QMessageBoxDetailsText *>();
    QVERIFY(details->y() > box.getTitleBar()->geometry().bottom());
    QVERIFY(details->geometry().bottom() < box.bottomWidget()->y());

    // A host that deletes them itself finds a box that still works.
    delete details;
    QCOMPARE(box.detailedText(), QString());
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    box.setText(QStringLiteral("m"));
    QCOMPARE(box.size(), QSize(BoxWidth, 170));
}

void tst_FramelessMessageBoxDetails::checkBox()
{
    FramelessMessageBox box;
    auto *check = new QCheckBox(QStringLiteral("again"));
    box.setCheckBox(check);
    QCOMPARE(box.checkBox(), check);
    QVERIFY(box.isAncestorOf(check));
    QCOMPARE(check->styleSheet(), QStringLiteral("font-size: 13px;padding: 0px 0px 0px 10px;"));
    QCOMPARE(check->sizePolicy().horizontalPolicy(), QSizePolicy::MinimumExpanding);
    // The same one again changes nothing.
    box.setCheckBox(check);
    QCOMPARE(box.checkBox(), check);
    box.show();
    QVERIFY(settle(&box));
    QVERIFY(check->isVisible());
    QVERIFY(check->mapTo(&box, QPoint()).x() < buttonBox(&box)->mapTo(&box, QPoint()).x());
}

void tst_FramelessMessageBoxDetails::checkBoxReplaced()
{
    FramelessMessageBox box;
    const QPointer<QCheckBox> first = new QCheckBox(QStringLiteral("1"));
    const QPointer<QCheckBox> second = new QCheckBox(QStringLiteral("2"));
    box.setCheckBox(first);
    box.show();
    QVERIFY(settle(&box));
    box.setCheckBox(second);
    // A slot of its own may be running: it goes later.
    QVERIFY(first);
    QVERIFY(!first->isVisible());
    QCOMPARE(box.bottomLayout()->indexOf(first), -1);
    QTRY_VERIFY(!first);
    QCOMPARE(box.checkBox(), second.data());
    QTRY_VERIFY(second->isVisible());
    box.setCheckBox(nullptr);
    QVERIFY(!box.checkBox());
    QTRY_VERIFY(!second);

    // One that its host has taken elsewhere stays the host's.
    QWidget elsewhere;
    const QPointer<QCheckBox> third = new QCheckBox(QStringLiteral("3"));
    box.setCheckBox(third);
    third->setParent(&elsewhere);
    box.setCheckBox(nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(third);
    QCOMPARE(third->parentWidget(), &elsewhere);
}

void tst_FramelessMessageBoxDetails::checkBoxDeletedByTheHost()
{
    FramelessMessageBox box;
    const int items = box.bottomLayout()->count();
    auto *check = new QCheckBox(QStringLiteral("1"));
    box.setCheckBox(check);
    box.show();
    QVERIFY(settle(&box));
    delete check;
    QVERIFY(!box.checkBox());
    QCOMPARE(box.bottomLayout()->count(), items);
    QTRY_COMPARE(box.height(), messageLabel(&box)->height() + Chrome);
    box.setCheckBox(new QCheckBox(QStringLiteral("2")));
    QVERIFY(box.checkBox());
}

void tst_FramelessMessageBoxDetails::checkBoxIsClicked()
{
    bool checked = false;
    whenShown([&](FramelessMessageBox *box) {
        auto *check = new QCheckBox(QStringLiteral("again"));
        box->setCheckBox(check);
        QTRY_VERIFY(check->isVisible());
        QTest::keyClick(check, Qt::Key_Space);
        checked = check->isChecked();
        QVERIFY(box->isVisible());
        QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
    });
    QCOMPARE(FramelessMessageBox::information(nullptr, QStringLiteral("t"), QStringLiteral("m"),
                                              QMessageBox::Ok),
             QMessageBox::Ok);
    QVERIFY(checked);
}

LMTEST_MAIN(tst_FramelessMessageBoxDetails)

#include "tst_framelessmessagebox_details.moc"
