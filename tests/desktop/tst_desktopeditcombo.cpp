/** @file
 * An edit combo box under a user's hands on a real X11 desktop.
 */

#include "desktoptest.h"

class tst_DesktopEditCombo : public DesktopTest
{
    Q_OBJECT

private Q_SLOTS:
    void typeAndPickWithTheKeys();
    void typeAndPickWithTheMouse();
    void buttonAndMouse();
    void clickIntoTheLineEdit();
    void typeIntoTheListOfTheButton();
    void escapeAndTab();
    void clickBesideCloses();

private:
    void showForm(Host &host);
    void pick(Host &host, int row, int rows);
};

void tst_DesktopEditCombo::showForm(Host &host)
{
    STEP(expect(host, QStringLiteral("painted form .*")));
    STEP(expect(host, QStringLiteral("active form")));
    STEP(expect(host, QStringLiteral("focus after")));
    host.mark();
}

/** Clicks the row @p row of the open list, which has @p rows rows. */
void tst_DesktopEditCombo::pick(Host &host, int row, int rows)
{
    const QRect list = host.popup();
    QVERIFY2(list.isValid(), qPrintable(host.report(QStringLiteral("popup"))));
    clickAt(QPoint(list.center().x(), list.top() + list.height() * (2 * row + 1) / (2 * rows)));
}

void tst_DesktopEditCombo::typeAndPickWithTheKeys()
{
    Host host(m_desktop, QStringLiteral("editcombo"));
    STEP(showForm(host));
    STEP(key(QStringLiteral("shift+Tab")));
    STEP(expect(host, QStringLiteral("focus system-edit")));
    STEP(type(QStringLiteral("ta")));
    STEP(expect(host, QStringLiteral("text system-edit ta")));
    STEP(expect(host, QStringLiteral("painted system-list .*")));
    STEP(expect(host, QStringLiteral("index -1")));
    host.mark();
    STEP(key(QStringLiteral("Down")));
    STEP(expect(host, QStringLiteral("text system-edit beta")));
    STEP(key(QStringLiteral("Down")));
    STEP(expect(host, QStringLiteral("text system-edit delta")));
    STEP(key(QStringLiteral("Return")));
    STEP(expect(host, QStringLiteral("hidden system-list")));
    QVERIFY(host.hasSaid(QStringLiteral("index 1")));
    QVERIFY(host.hasSaid(QStringLiteral("index 3")));
    STEP(expectNot(host, QStringLiteral("text system-edit (alpha|gamma)")));
}

void tst_DesktopEditCombo::typeAndPickWithTheMouse()
{
    Host host(m_desktop, QStringLiteral("editcombo"));
    STEP(showForm(host));
    STEP(click(host, QStringLiteral("system-edit")));
    STEP(expect(host, QStringLiteral("painted system-list .*")));
    host.mark();
    // The list is open and has the keyboard; what is typed goes on to the line edit.
    STEP(type(QStringLiteral("ta")));
    STEP(expect(host, QStringLiteral("text system-edit ta")));
    STEP(expect(host, QStringLiteral("index -1")));
    host.mark();
    STEP(pick(host, 1, 2));
    STEP(expect(host, QStringLiteral("hidden system-list")));
    STEP(expect(host, QStringLiteral("text system-edit delta")));
    STEP(expect(host, QStringLiteral("index 3")));
}

void tst_DesktopEditCombo::buttonAndMouse()
{
    Host host(m_desktop, QStringLiteral("editcombo"));
    STEP(showForm(host));
    for (const int row : {2, 0}) {
        host.mark();
        STEP(click(host, QStringLiteral("system-button")));
        STEP(expect(host, QStringLiteral("painted system-list .*")));
        STEP(pick(host, row, 4));
        STEP(expect(host, QStringLiteral("hidden system-list")));
        STEP(expect(host, QStringLiteral("index %1").arg(row)));
        STEP(expect(host, row == 2 ? QStringLiteral("text system-edit gamma")
                                   : QStringLiteral("text system-edit alpha")));
    }
}

void tst_DesktopEditCombo::clickIntoTheLineEdit()
{
    Host host(m_desktop, QStringLiteral("editcombo"));
    STEP(showForm(host));
    STEP(click(host, QStringLiteral("system-edit")));
    STEP(expect(host, QStringLiteral("painted system-list .*")));
    const QRect edit = host.where(QStringLiteral("system-edit"));
    const QRect button = host.where(QStringLiteral("system-button"));
    const QRect list = host.popup();
    QCOMPARE(list.left(), edit.left());
    QCOMPARE(list.right(), button.right());
    QVERIFY(list.top() > edit.center().y());
    QVERIFY(host.hasSaid(QStringLiteral("focus system-edit")));
    STEP(pick(host, 1, 4));
    STEP(expect(host, QStringLiteral("text system-edit beta")));
    STEP(expect(host, QStringLiteral("index 1")));
}

void tst_DesktopEditCombo::typeIntoTheListOfTheButton()
{
    Host host(m_desktop, QStringLiteral("editcombo"));
    STEP(showForm(host));
    STEP(key(QStringLiteral("shift+Tab")));
    STEP(expect(host, QStringLiteral("focus system-edit")));
    STEP(click(host, QStringLiteral("system-button")));
    STEP(expect(host, QStringLiteral("painted system-list .*")));
    STEP(type(QStringLiteral("m")));
    STEP(expect(host, QStringLiteral("text system-edit m")));
    STEP(key(QStringLiteral("Down")));
    STEP(expect(host, QStringLiteral("text system-edit gamma")));
    STEP(key(QStringLiteral("Return")));
    STEP(expect(host, QStringLiteral("hidden system-list")));
}

void tst_DesktopEditCombo::escapeAndTab()
{
    Host host(m_desktop, QStringLiteral("editcombo"));
    STEP(showForm(host));
    STEP(key(QStringLiteral("shift+Tab")));
    STEP(expect(host, QStringLiteral("focus system-edit")));
    STEP(type(QStringLiteral("ta")));
    STEP(expect(host, QStringLiteral("painted system-list .*")));
    STEP(key(QStringLiteral("Escape")));
    STEP(expect(host, QStringLiteral("hidden system-list")));
    host.mark();
    // The button takes no focus, so the next stop is the line edit after the box.
    STEP(key(QStringLiteral("Tab")));
    STEP(expect(host, QStringLiteral("focus after")));
    STEP(expectNot(host, QStringLiteral("text system-edit .*")));
}

void tst_DesktopEditCombo::clickBesideCloses()
{
    Host host(m_desktop, QStringLiteral("editcombo"));
    STEP(showForm(host));
    STEP(click(host, QStringLiteral("system-button")));
    STEP(expect(host, QStringLiteral("painted system-list .*")));
    STEP(clickAt(QPoint(900, 700)));
    STEP(expect(host, QStringLiteral("hidden system-list")));
    STEP(expectNot(host, QStringLiteral("(text|index|current) .*")));
}

QTEST_GUILESS_MAIN(tst_DesktopEditCombo)

#include "tst_desktopeditcombo.moc"
