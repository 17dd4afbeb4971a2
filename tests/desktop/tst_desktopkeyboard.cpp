/** @file
 * Who has the keyboard while frameless dialogs and message boxes come and go on a real X11 desktop,
 * where the window manager does not care for them.
 */

#include "desktoptest.h"

class tst_DesktopKeyboard : public DesktopTest
{
    Q_OBJECT

private Q_SLOTS:
    void typeWithNoOtherWindow();
    void clickTakesTheKeyboardBack();
    void keyboardReturnsToTheMainWindow_data();
    void keyboardReturnsToTheMainWindow();
    void keyboardReturnsToTheDialogBelow();
    void keyboardStaysWithAnotherApplication();
    void tabOrder();
    void comboBoxByMouse();
    void comboBoxByKeys();
    void modalDialogKeepsInputFromItsParent();
    void messageBox_data();
    void messageBox();
    void messageBoxWithNoOtherWindow();
    void messageBoxWithoutEscapeButton();

private:
    void openBox(Host &host);
    void answer(Host &host, const QString &how);
};

/** Opens the message box of a scenario by the main window's button. */
void tst_DesktopKeyboard::openBox(Host &host)
{
    STEP(expect(host, QStringLiteral("painted main .*")));
    STEP(expect(host, QStringLiteral("active main")));
    host.mark();
    STEP(click(host, QStringLiteral("main-button")));
    STEP(expect(host, QStringLiteral("painted globa_pMessageBox .*")));
    STEP(expect(host, QStringLiteral("active globa_pMessageBox")));
}

/** Answers a box by the keys "key NAME" or by a click on the button "click NAME". */
void tst_DesktopKeyboard::answer(Host &host, const QString &how)
{
    const QString name = how.section(QLatin1Char(' '), 1);
    if (how.startsWith(QLatin1String("key "))) {
        STEP(key(name));
    } else {
        STEP(click(host, name));
    }
}

void tst_DesktopKeyboard::typeWithNoOtherWindow()
{
    Host host(m_desktop, QStringLiteral("dialog"));
    STEP(showDialog(host));
    STEP(type(QStringLiteral("name")));
    STEP(expect(host, QStringLiteral("text edit name")));

    STEP(key(QStringLiteral("Return")));
    STEP(expect(host, QStringLiteral("finished dialog 1")));
    STEP(expect(host, QStringLiteral("clicked ok")));
}

void tst_DesktopKeyboard::clickTakesTheKeyboardBack()
{
    Host host(m_desktop, QStringLiteral("dialog"));
    STEP(showDialog(host));

    Host other(m_desktop, QStringLiteral("other"));
    STEP(expect(other, QStringLiteral("painted other .*")));
    STEP(click(other, QStringLiteral("other-edit")));
    STEP(expect(other, QStringLiteral("active other")));
    STEP(expect(host, QStringLiteral("inactive dialog")));
    STEP(type(QStringLiteral("there")));
    STEP(expect(other, QStringLiteral("text other-edit there")));
    other.mark();
    host.mark();

    STEP(click(host, QStringLiteral("edit")));
    STEP(expect(host, QStringLiteral("active dialog")));
    STEP(type(QStringLiteral("here")));
    STEP(expect(host, QStringLiteral("text edit here")));
    STEP(expect(other, QStringLiteral("inactive other")));
    STEP(expectNot(other, QStringLiteral("text .*")));
}

void tst_DesktopKeyboard::keyboardReturnsToTheMainWindow_data()
{
    QTest::addColumn<QString>("scenario");
    QTest::addColumn<QString>("end");
    for (const char *scenario : {"modeless", "modal", "parentless"}) {
        for (const char *end : {"ok", "close", "Escape"}) {
            QTest::addRow("%s, by %s", scenario, end) << scenario << end;
        }
    }
}

void tst_DesktopKeyboard::keyboardReturnsToTheMainWindow()
{
    QFETCH(QString, scenario);
    QFETCH(QString, end);
    Host host(m_desktop, scenario);
    STEP(expect(host, QStringLiteral("active main")));
    STEP(click(host, QStringLiteral("main-edit")));
    STEP(type(QStringLiteral("a")));
    STEP(expect(host, QStringLiteral("text main-edit a")));
    STEP(openFromMain(host));
    STEP(type(QStringLiteral("b")));
    STEP(expect(host, QStringLiteral("text edit b")));

    host.mark();
    if (end == QLatin1String("Escape")) {
        STEP(key(end));
    } else {
        STEP(click(host, end));
    }
    STEP(expect(host, QStringLiteral("hidden dialog")));
    STEP(expect(host, QStringLiteral("active main")));
    // The button that opened the dialog has the focus again: the keys work without a click.
    host.mark();
    STEP(key(QStringLiteral("shift+Tab")));
    STEP(expect(host, QStringLiteral("focus main-edit")));
    STEP(type(QStringLiteral("c")));
    STEP(expect(host, QStringLiteral("text main-edit c")));
}

void tst_DesktopKeyboard::keyboardReturnsToTheDialogBelow()
{
    Host host(m_desktop, QStringLiteral("nested"));
    STEP(openFromMain(host));
    for (int i = 0; i < 2; ++i) {
        host.mark();
        STEP(click(host, QStringLiteral("more")));
        STEP(expect(host, QStringLiteral("painted inner .*")));
        STEP(expect(host, QStringLiteral("active inner")));
        STEP(type(QStringLiteral("in")));
        STEP(expect(host, QStringLiteral("text inner-edit in")));
        host.mark();
        STEP(key(QStringLiteral("Return")));
        STEP(expect(host, QStringLiteral("exec 1")));
        STEP(expect(host, QStringLiteral("active dialog")));
        STEP(expectNot(host, QStringLiteral("finished dialog .*")));
    }
    STEP(click(host, QStringLiteral("edit")));
    STEP(type(QStringLiteral("a")));
    STEP(expect(host, QStringLiteral("text edit a")));
    STEP(key(QStringLiteral("Escape")));
    STEP(expect(host, QStringLiteral("finished dialog 0")));
    STEP(expect(host, QStringLiteral("active main")));
}

void tst_DesktopKeyboard::keyboardStaysWithAnotherApplication()
{
    Host host(m_desktop, QStringLiteral("modeless"));
    STEP(openFromMain(host));
    Host other(m_desktop, QStringLiteral("other"));
    STEP(expect(other, QStringLiteral("painted other .*")));
    STEP(click(other, QStringLiteral("other-edit")));
    STEP(expect(other, QStringLiteral("active other")));
    STEP(expect(host, QStringLiteral("inactive dialog")));

    // A dialog that goes while the user works elsewhere takes nothing away there.
    host.order(QStringLiteral("close dialog"));
    STEP(expect(host, QStringLiteral("hidden dialog")));
    STEP(type(QStringLiteral("mine")));
    STEP(expect(other, QStringLiteral("text other-edit mine")));
}

void tst_DesktopKeyboard::tabOrder()
{
    Host host(m_desktop, QStringLiteral("modeless"));
    STEP(openFromMain(host));
    STEP(expect(host, QStringLiteral("focus edit")));
    for (const char *next : {"box", "second"}) {
        host.mark();
        STEP(key(QStringLiteral("Tab")));
        STEP(expect(host, QLatin1String("focus ") + QLatin1String(next)));
    }
    for (const char *previous : {"box", "edit"}) {
        host.mark();
        STEP(key(QStringLiteral("shift+Tab")));
        STEP(expect(host, QLatin1String("focus ") + QLatin1String(previous)));
    }
    // Once around: through both buttons and back, and never into the title bar.
    host.mark();
    STEP(input(QStringLiteral("key Tab Tab Tab Tab Tab")));
    STEP(expect(host, QStringLiteral("focus edit")));
    STEP(expect(host, QStringLiteral("focus ok")));
    STEP(expect(host, QStringLiteral("focus cancel")));
    STEP(expectNot(host, QStringLiteral("focus (minimize|maximize|restore|close|main-.*)")));
}

void tst_DesktopKeyboard::comboBoxByMouse()
{
    Host host(m_desktop, QStringLiteral("modeless"));
    STEP(openFromMain(host));
    STEP(click(host, QStringLiteral("box")));
    QRect popup;
    QTRY_VERIFY_WITH_TIMEOUT((popup = host.popup()).isValid(), TimeoutMs);
    // Three entries; the last is in the lowest sixth of the popup.
    STEP(clickAt(QPoint(popup.center().x(), popup.bottom() - popup.height() / 6)));
    STEP(expect(host, QStringLiteral("choice box blue")));
    QTRY_VERIFY_WITH_TIMEOUT(!host.popup().isValid(), TimeoutMs);

    STEP(click(host, QStringLiteral("edit")));
    STEP(expect(host, QStringLiteral("focus edit")));
    STEP(type(QStringLiteral("on")));
    STEP(expect(host, QStringLiteral("text edit on")));
}

void tst_DesktopKeyboard::comboBoxByKeys()
{
    Host host(m_desktop, QStringLiteral("modeless"));
    STEP(openFromMain(host));
    STEP(key(QStringLiteral("Tab")));
    STEP(expect(host, QStringLiteral("focus box")));
    STEP(key(QStringLiteral("space")));
    QTRY_VERIFY_WITH_TIMEOUT(host.popup().isValid(), TimeoutMs);
    STEP(input(QStringLiteral("key Down Return")));
    STEP(expect(host, QStringLiteral("choice box green")));
    QTRY_VERIFY_WITH_TIMEOUT(!host.popup().isValid(), TimeoutMs);

    // Escape closes the popup and not the dialog.
    STEP(key(QStringLiteral("space")));
    QTRY_VERIFY_WITH_TIMEOUT(host.popup().isValid(), TimeoutMs);
    STEP(key(QStringLiteral("Escape")));
    QTRY_VERIFY_WITH_TIMEOUT(!host.popup().isValid(), TimeoutMs);
    STEP(key(QStringLiteral("Up")));
    STEP(expect(host, QStringLiteral("choice box red")));
    STEP(expectNot(host, QStringLiteral("finished dialog .*")));
}

void tst_DesktopKeyboard::modalDialogKeepsInputFromItsParent()
{
    Host host(m_desktop, QStringLiteral("modal"));
    STEP(openFromMain(host));
    host.mark();
    STEP(click(host, QStringLiteral("main-button")));
    STEP(click(host, QStringLiteral("main-edit")));
    STEP(type(QStringLiteral("lost")));
    STEP(click(host, QStringLiteral("second")));
    STEP(expect(host, QStringLiteral("focus second")));
    // The window manager gave the keyboard to the main window, and Qt takes it from there back to
    // the dialog; nothing tells when.
    QTRY_VERIFY_WITH_TIMEOUT(
        (key(QStringLiteral("k")), host.hasSaid(QStringLiteral("text second .*k"))), TimeoutMs);
    STEP(expectNot(host, QStringLiteral("clicked .*")));
    STEP(expectNot(host, QStringLiteral("text main-edit .*")));
    STEP(expectNot(host, QStringLiteral("exec .*")));

    STEP(click(host, QStringLiteral("cancel")));
    STEP(expect(host, QStringLiteral("exec 0")));
}

void tst_DesktopKeyboard::messageBox_data()
{
    QTest::addColumn<QString>("scenario");
    QTest::addColumn<QString>("how");
    QTest::addColumn<QString>("expected");

    const struct
    {
        const char *scenario;
        const char *how;
        const char *expected;
    } rows[] = {
        {"box", "key Return", "OK"},
        {"box", "key KP_Enter", "OK"},
        {"box", "key Escape", "Cancel"},
        {"box", "click OK", "OK"},
        {"box", "click Cancel", "Cancel"},
        {"box", "click close", "Cancel"},
        {"box-own-buttons", "key alt+k", "Keep"},
        {"box-own-buttons", "key alt+d", "Drop"},
        {"box-own-buttons", "key d", "Drop"},
        {"box-own-buttons", "key Escape", "Drop"},
        {"box-own-buttons", "click Keep", "Keep"},
        {"box-own-buttons", "click close", "Drop"},
        {"box-static", "key Escape", "65536"},
    };
    for (const auto &row : rows) {
        QTest::addRow("%s, %s", row.scenario, row.how) << row.scenario << row.how << row.expected;
    }
}

void tst_DesktopKeyboard::messageBox()
{
    QFETCH(QString, scenario);
    QFETCH(QString, how);
    QFETCH(QString, expected);
    Host host(m_desktop, scenario);
    STEP(openBox(host));

    host.mark();
    if (how.startsWith(QLatin1String("click "))) {
        // The window below gets nothing meanwhile. Not before a key: for a moment the keyboard may
        // be there, where it is lost.
        STEP(click(host, QStringLiteral("main-button")));
    }
    STEP(answer(host, how));
    STEP(expect(host, QLatin1String("answer ") + expected));
    STEP(expect(host, QStringLiteral("active main")));
    STEP(expectNot(host, QStringLiteral("clicked main-button")));

    // The keyboard is back with the button that asked: the space bar asks again.
    host.mark();
    STEP(key(QStringLiteral("space")));
    STEP(expect(host, QStringLiteral("active globa_pMessageBox")));
}

void tst_DesktopKeyboard::messageBoxWithNoOtherWindow()
{
    Host host(m_desktop, QStringLiteral("box-alone"));
    STEP(expect(host, QStringLiteral("painted globa_pMessageBox .*")));
    STEP(expect(host, QStringLiteral("active globa_pMessageBox")));
    STEP(key(QStringLiteral("Return")));
    STEP(expect(host, QStringLiteral("answer OK")));
}

void tst_DesktopKeyboard::messageBoxWithoutEscapeButton()
{
    Host host(m_desktop, QStringLiteral("box-no-escape"));
    STEP(openBox(host));
    QVERIFY(!host.where(QStringLiteral("close")).isValid());
    STEP(key(QStringLiteral("Escape")));
    host.order(QStringLiteral("close globa_pMessageBox"));
    QVERIFY(host.where(QStringLiteral("globa_pMessageBox")).isValid());
    STEP(key(QStringLiteral("alt+k")));
    STEP(expect(host, QStringLiteral("answer Keep")));
}

QTEST_GUILESS_MAIN(tst_DesktopKeyboard)
#include "tst_desktopkeyboard.moc"
