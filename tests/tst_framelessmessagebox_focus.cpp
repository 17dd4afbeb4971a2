#include "messageboxtest.h"

#include <QCheckBox>
#include <QFile>
#include <QScreen>
#include <QSignalSpy>

#include <memory>

using LM::Widgets::FramelessMessageBox;
using LM::Widgets::TitleBar;
using messageboxtest::pushButton;

class tst_FramelessMessageBoxFocus : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void firstFocus_data();
    void firstFocus();
    void focusGivenByTheHostStays();
    void tabReachesTheCheckBox();
    void hiddenButtonDoesNotAnswer();
    void closeButtonComesBack();
    void closeButtonHiddenByTheHostStaysHidden();
    void growingBoxStaysOnTheScreen();
    void accessibleName();
    void buttonSizesUnderTheTheme();
};

namespace {

bool shown(FramelessMessageBox *box)
{
    box->show();
    box->activateWindow();
    return QTest::qWaitForWindowActive(box);
}

QToolButton *closeButton(FramelessMessageBox *box)
{
    return box->getTitleBar()->titleButton(TitleBar::CloseButton);
}

} // namespace

void tst_FramelessMessageBoxFocus::firstFocus_data()
{
    QTest::addColumn<int>("buttons");
    QTest::addColumn<bool>("details");
    QTest::addColumn<int>("first");

    const auto row = [](const char *name, int buttons, bool details, int first) {
        QTest::newRow(name) << buttons << details << first;
    };
    row("OK", QMessageBox::Ok, false, QMessageBox::Ok);
    row("OK, details", QMessageBox::Ok, true, QMessageBox::Ok);
    row("Yes, No", QMessageBox::Yes | QMessageBox::No, false, QMessageBox::Yes);
    row("Yes, No, details", QMessageBox::Yes | QMessageBox::No, true, QMessageBox::Yes);
    row("Yes, No, Cancel", QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, false,
        QMessageBox::Yes);
    row("Save, Discard, Cancel", QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
        false, QMessageBox::Save);
    row("Close, Cancel", QMessageBox::Close | QMessageBox::Cancel, false, QMessageBox::Close);
    row("Close, Help", QMessageBox::Close | QMessageBox::Help, true, QMessageBox::Close);
}

void tst_FramelessMessageBoxFocus::firstFocus()
{
    QFETCH(int, buttons);
    QFETCH(bool, details);
    QFETCH(int, first);
    FramelessMessageBox box(QMessageBox::Question, QStringLiteral("t"), QStringLiteral("m"),
                            QMessageBox::StandardButtons(buttons));
    if (details) {
        box.setDetailedText(QStringLiteral("d"));
    }
    QVERIFY(shown(&box));
    auto *expected = pushButton(&box, QMessageBox::StandardButton(first));
    QCOMPARE(box.focusWidget(), static_cast<QWidget *>(expected));

    QTest::keyClick(box.focusWidget(), Qt::Key_Return);
    QVERIFY(!box.isVisible());
    QCOMPARE(box.clickedButton(), static_cast<QAbstractButton *>(expected));
    // Having the focus is not being the default button.
    QVERIFY(!box.defaultButton());
}

void tst_FramelessMessageBoxFocus::focusGivenByTheHostStays()
{
    FramelessMessageBox box(QMessageBox::Question, QStringLiteral("t"), QStringLiteral("m"),
                            QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::No);
    QVERIFY(shown(&box));
    QCOMPARE(box.focusWidget(), static_cast<QWidget *>(pushButton(&box, QMessageBox::No)));
}

void tst_FramelessMessageBoxFocus::tabReachesTheCheckBox()
{
    FramelessMessageBox box(QMessageBox::Question, QStringLiteral("t"), QStringLiteral("m"),
                            QMessageBox::Ok | QMessageBox::Cancel);
    auto *checkBox = new QCheckBox(QStringLiteral("c"));
    box.setCheckBox(checkBox);
    box.setDetailedText(QStringLiteral("d"));
    QVERIFY(shown(&box));

    QList<QWidget *> visited;
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(box.focusWidget(), Qt::Key_Tab);
        visited.append(box.focusWidget());
    }
    QVERIFY(visited.contains(checkBox));
    QCOMPARE(QSet<QWidget *>(visited.cbegin(), visited.cend()).size(), 4);
    // From the check box on to the buttons, as they are seen from left to right.
    checkBox->setFocus();
    QTest::keyClick(checkBox, Qt::Key_Tab);
    const int checkBoxX = checkBox->mapTo(&box, QPoint()).x();
    QVERIFY(box.focusWidget()->mapTo(&box, QPoint()).x() > checkBoxX);
}

void tst_FramelessMessageBoxFocus::hiddenButtonDoesNotAnswer()
{
    FramelessMessageBox box(QMessageBox::Question, QStringLiteral("t"), QStringLiteral("m"),
                            QMessageBox::NoButton);
    QPushButton *keep = box.addButton(QStringLiteral("&Keep"), QMessageBox::YesRole);
    box.addButton(QStringLiteral("&Drop"), QMessageBox::NoRole);
    keep->hide();
    QVERIFY(shown(&box));
    QTest::keyClick(&box, Qt::Key_K);
    // An animated click ends within a tenth of a second: the answer of the other one comes later.
    QTest::keyClick(&box, Qt::Key_D);
    QTRY_VERIFY(!box.isVisible());
    QCOMPARE(box.clickedButton()->text(), QStringLiteral("&Drop"));
}

void tst_FramelessMessageBoxFocus::closeButtonComesBack()
{
    FramelessMessageBox box;
    box.addButton(QStringLiteral("A"), QMessageBox::AcceptRole);
    box.addButton(QStringLiteral("B"), QMessageBox::AcceptRole);
    QVERIFY(shown(&box));
    QVERIFY(!closeButton(&box)->isVisible());
    box.hide();
    box.addButton(QMessageBox::Cancel);
    QVERIFY(shown(&box));
    QVERIFY(closeButton(&box)->isVisible());

    // And goes again with the button that it stood for.
    const std::unique_ptr<QAbstractButton> cancel(box.button(QMessageBox::Cancel));
    box.removeButton(cancel.get());
    QVERIFY(!closeButton(&box)->isVisible());
    box.hide();
}

void tst_FramelessMessageBoxFocus::closeButtonHiddenByTheHostStaysHidden()
{
    FramelessMessageBox box(QMessageBox::NoIcon, QStringLiteral("t"), QStringLiteral("m"),
                            QMessageBox::Ok | QMessageBox::Cancel);
    box.setCloseButtonVisible(false);
    for (int i = 0; i < 2; ++i) {
        QVERIFY(shown(&box));
        QVERIFY(!closeButton(&box)->isVisible());
        box.hide();
    }
}

void tst_FramelessMessageBoxFocus::growingBoxStaysOnTheScreen()
{
    FramelessMessageBox box(QMessageBox::NoIcon, QStringLiteral("t"), QStringLiteral("m"),
                            QMessageBox::Ok);
    QVERIFY(shown(&box));
    const QRect available = box.screen()->availableGeometry();
    box.move(40, available.bottom() + 1 - box.height());
    const QPoint before = box.pos();
    box.setText(QStringLiteral("One line after another.\n").repeated(12));
    QVERIFY(box.height() > 300);
    QVERIFY(box.frameGeometry().bottom() <= available.bottom());
    QCOMPARE(box.x(), before.x());
    QVERIFY(box.y() < before.y());

    // Where there is room enough it stays where it is.
    box.setText(QStringLiteral("m"));
    box.move(40, 30);
    box.setText(QStringLiteral("One line after another.\n").repeated(3));
    QCOMPARE(box.pos(), QPoint(40, 30));
}

void tst_FramelessMessageBoxFocus::accessibleName()
{
    FramelessMessageBox box(QMessageBox::NoIcon, QStringLiteral("Title"), QStringLiteral("m"),
                            QMessageBox::Ok);
    QCOMPARE(box.accessibleName(), QStringLiteral("Title"));
    box.setWindowTitle(QStringLiteral("Other"));
    QCOMPARE(box.accessibleName(), QStringLiteral("Other"));
    box.setAccessibleName(QStringLiteral("The host's"));
    box.setWindowTitle(QStringLiteral("Third"));
    QCOMPARE(box.accessibleName(), QStringLiteral("The host's"));
}

void tst_FramelessMessageBoxFocus::buttonSizesUnderTheTheme()
{
    QFile file(lmtest::themeDir() + QStringLiteral("/themestyle.qss"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    qApp->setStyleSheet(QString::fromUtf8(file.readAll()));
    FramelessMessageBox box(QMessageBox::Question, QStringLiteral("t"), QStringLiteral("m"),
                            QMessageBox::Yes | QMessageBox::No);
    QVERIFY(shown(&box));
    for (QAbstractButton *button : box.buttons()) {
        // 80 x 30 px and a border of 1 px.
        QCOMPARE(button->size(), QSize(82, 32));
    }

    // The button with the focus can be told from the others.
    QPushButton *yes = pushButton(&box, QMessageBox::Yes);
    const QImage focused = yes->grab().toImage();
    pushButton(&box, QMessageBox::No)->setFocus();
    QVERIFY(yes->grab().toImage() != focused);
    box.hide();
    qApp->setStyleSheet(QString());
}

LMTEST_MAIN(tst_FramelessMessageBoxFocus)

#include "tst_framelessmessagebox_focus.moc"
