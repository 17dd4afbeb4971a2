/** @file
 * Tool buttons, a link, a spin box and tabs with dots under a user's hands on a real X11 desktop.
 */

#include "desktoptest.h"

#include <QFile>
#include <QTemporaryDir>

class tst_DesktopSmallWidgets : public DesktopTest
{
    Q_OBJECT

private Q_SLOTS:
    void hoverShowsThePictures();
    void hoverFollowsTheTheme();
    void followTheLink();
    void linkGoesToTheDesktop();
    void leaveTheNumberOut();
    void selectTabsByMouse();
    void selectTabsByKeyboard();
    void dotChanges();

private:
    void showWindow(Host &host);
    void hover(Host &host, const QString &name);
    QPoint tabPlace(Host &host, int index);
};

void tst_DesktopSmallWidgets::showWindow(Host &host)
{
    // Away from the window, so that nothing is hovered at first.
    STEP(input(QStringLiteral("mousemove 5 5")));
    STEP(expect(host, QStringLiteral("painted small .*")));
    STEP(expect(host, QStringLiteral("active small")));
    STEP(expect(host, QStringLiteral("picture tool-a Black")));
    STEP(expect(host, QStringLiteral("picture tool-b Black")));
    host.mark();
}

void tst_DesktopSmallWidgets::hover(Host &host, const QString &name)
{
    const QRect rect = host.where(name);
    QVERIFY2(rect.isValid(), qPrintable(host.report(QLatin1String("where ") + name)));
    input(QStringLiteral("mousemove ") + pointText(rect.center()));
}

/** The middle of a tab, three of which lie below each other from the top of the bar. */
QPoint tst_DesktopSmallWidgets::tabPlace(Host &host, int index)
{
    const QRect bar = host.where(QStringLiteral("bar"));
    const int height = bar.height() / 3;
    return QPoint(bar.center().x(), bar.top() + height * index + height / 2);
}

void tst_DesktopSmallWidgets::hoverShowsThePictures()
{
    Host host(m_desktop, QStringLiteral("small"));
    STEP(showWindow(host));
    STEP(hover(host, QStringLiteral("tool-a")));
    STEP(expect(host, QStringLiteral("picture tool-a Black_hover")));
    STEP(expectNot(host, QStringLiteral("picture tool-b .*")));
    host.mark();
    STEP(hover(host, QStringLiteral("tool-b")));
    STEP(expect(host, QStringLiteral("picture tool-b Black_hover")));
    STEP(expect(host, QStringLiteral("picture tool-a Black")));
    host.mark();
    // Out of the window altogether.
    STEP(input(QStringLiteral("mousemove 5 5")));
    STEP(expect(host, QStringLiteral("picture tool-b Black")));
}

void tst_DesktopSmallWidgets::hoverFollowsTheTheme()
{
    Host host(m_desktop, QStringLiteral("small"));
    STEP(showWindow(host));
    STEP(click(host, QStringLiteral("tool-b")));
    STEP(expect(host, QStringLiteral("clicked tool-b")));
    STEP(expectNot(host, QStringLiteral("picture .* White.*")));
    STEP(hover(host, QStringLiteral("tool-a")));
    STEP(expect(host, QStringLiteral("picture tool-b White")));
    STEP(expect(host, QStringLiteral("picture tool-a White_hover")));
    host.mark();
    STEP(input(QStringLiteral("mousemove 5 5")));
    STEP(expect(host, QStringLiteral("picture tool-a White")));
}

void tst_DesktopSmallWidgets::followTheLink()
{
    Host host(m_desktop, QStringLiteral("small"));
    STEP(showWindow(host));
    const QRect link = host.where(QStringLiteral("link"));
    QVERIFY(link.isValid());
    STEP(clickAt(QPoint(link.left() + 20, link.center().y())));
    STEP(expect(host, QStringLiteral("opened file:///srv/projects/survey%2007")));
    host.mark();
    // Beside the text there is no link; the click on the tool button shows that it is over.
    STEP(clickAt(QPoint(link.right() - 3, link.center().y())));
    STEP(click(host, QStringLiteral("tool-b")));
    STEP(expect(host, QStringLiteral("clicked tool-b")));
    STEP(expectNot(host, QStringLiteral("opened .*")));
}

/** With a program in place of the one that asks the desktop to open an address. */
void tst_DesktopSmallWidgets::linkGoesToTheDesktop()
{
    const QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString opened = dir.filePath(QStringLiteral("opened"));
    QFile program(dir.filePath(QStringLiteral("xdg-open")));
    QVERIFY(program.open(QIODevice::WriteOnly));
    program.write("#!/bin/sh\nprintf '%s' \"$1\" >'" + QFile::encodeName(opened) + ".part'\nmv '" +
                  QFile::encodeName(opened) + ".part' '" + QFile::encodeName(opened) + "'\n");
    program.close();
    QVERIFY(program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));

    Host host(m_desktop, QStringLiteral("desktop-link"), dir.path());
    STEP(showWindow(host));
    const QRect link = host.where(QStringLiteral("link"));
    STEP(clickAt(QPoint(link.left() + 20, link.center().y())));
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(opened), TimeoutMs);
    QFile file(opened);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("file:///srv/projects/survey%2007"));
}

void tst_DesktopSmallWidgets::leaveTheNumberOut()
{
    Host host(m_desktop, QStringLiteral("small"));
    STEP(showWindow(host));
    const QRect number = host.where(QStringLiteral("number"));
    STEP(clickAt(QPoint(number.left() + 40, number.center().y())));
    STEP(expect(host, QStringLiteral("focus number")));
    STEP(key(QStringLiteral("End")));
    STEP(key(QStringLiteral("BackSpace")));
    STEP(expect(host, QStringLiteral("number '1' 1")));
    STEP(key(QStringLiteral("BackSpace")));
    STEP(expect(host, QStringLiteral("number '' 0")));
    host.mark();
    STEP(key(QStringLiteral("Tab")));
    STEP(expect(host, QStringLiteral("focus .*")));
    STEP(clickAt(QPoint(number.left() + 40, number.center().y())));
    STEP(expect(host, QStringLiteral("focus number")));
    STEP(key(QStringLiteral("BackSpace")));
    STEP(expect(host, QStringLiteral("number '' 0")));
}

void tst_DesktopSmallWidgets::selectTabsByMouse()
{
    Host host(m_desktop, QStringLiteral("small"));
    STEP(showWindow(host));
    for (const int index : {2, 1, 0}) {
        STEP(clickAt(tabPlace(host, index)));
        STEP(expect(host, QStringLiteral("tab %1").arg(index)));
        QTRY_VERIFY(host.where(QStringLiteral("page%1").arg(index)).isValid());
    }
    QVERIFY(!host.where(QStringLiteral("page2")).isValid());
    // The pages are on the right of the tabs.
    QVERIFY(host.where(QStringLiteral("page0")).left() > host.where(QStringLiteral("bar")).right());
}

void tst_DesktopSmallWidgets::selectTabsByKeyboard()
{
    Host host(m_desktop, QStringLiteral("small"));
    STEP(showWindow(host));
    STEP(clickAt(tabPlace(host, 1)));
    STEP(expect(host, QStringLiteral("tab 1")));
    STEP(expect(host, QStringLiteral("focus bar")));
    STEP(key(QStringLiteral("Right")));
    STEP(expect(host, QStringLiteral("tab 2")));
    host.mark();
    STEP(key(QStringLiteral("Left")));
    STEP(expect(host, QStringLiteral("tab 1")));
    STEP(key(QStringLiteral("Left")));
    STEP(expect(host, QStringLiteral("tab 0")));
    QTRY_VERIFY(host.where(QStringLiteral("page0")).isValid());
}

void tst_DesktopSmallWidgets::dotChanges()
{
    Host host(m_desktop, QStringLiteral("small"));
    STEP(showWindow(host));
    STEP(clickAt(tabPlace(host, 1)));
    STEP(expect(host, QStringLiteral("tab 1")));
    STEP(click(host, QStringLiteral("tool-a")));
    STEP(expect(host, QStringLiteral("dot 1 #ff0000")));
}

QTEST_GUILESS_MAIN(tst_DesktopSmallWidgets)

#include "tst_desktopsmallwidgets.moc"
