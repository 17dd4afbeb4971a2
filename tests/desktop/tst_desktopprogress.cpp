/** @file
 * A long operation with a progress dialog on a real X11 desktop.
 */

#include "desktoptest.h"

class tst_DesktopProgress : public DesktopTest
{
    Q_OBJECT

private Q_SLOTS:
    void appearsByItself();
    void cancelByMouse();
    void escapeDoesNothing();
    void closingCancels();
    void keyboardReturns();

private:
    void start(Host &host);
};

/** Starts the operation and waits until its dialog stands on the screen and has the keyboard. */
void tst_DesktopProgress::start(Host &host)
{
    STEP(expect(host, QStringLiteral("painted main .*")));
    STEP(expect(host, QStringLiteral("active main")));
    host.mark();
    STEP(click(host, QStringLiteral("main-button")));
    STEP(expect(host, QStringLiteral("painted progress .*")));
    // The window manager gives it the keyboard as to any window.
    STEP(expect(host, QStringLiteral("active progress")));
    host.mark();
}

void tst_DesktopProgress::appearsByItself()
{
    Host host(m_desktop, QStringLiteral("progress"));
    STEP(expect(host, QStringLiteral("active main")));
    host.mark();
    STEP(click(host, QStringLiteral("main-button")));
    // An estimate shows it earlier than after the minimum duration of 700 ms, as the whole
    // operation takes 50 seconds, but never in the first 50 ms.
    STEP(expect(host, QStringLiteral("appeared ([5-9]\\d|[1-9]\\d\\d|[1-9]\\d\\d\\d)")));
    STEP(expect(host, QStringLiteral("painted progress .*")));
    QVERIFY(!host.hasSaid(QStringLiteral("canceled")));
}

void tst_DesktopProgress::cancelByMouse()
{
    Host host(m_desktop, QStringLiteral("progress"));
    STEP(start(host));
    STEP(click(host, QStringLiteral("stop")));
    STEP(expect(host, QStringLiteral("canceled")));
    STEP(expect(host, QStringLiteral("stopped")));
    STEP(expect(host, QStringLiteral("hidden progress")));
    STEP(expectNot(host, QStringLiteral("ended")));
    // And once more, with a new dialog.
    STEP(expect(host, QStringLiteral("active main")));
    host.mark();
    STEP(click(host, QStringLiteral("main-button")));
    STEP(expect(host, QStringLiteral("started")));
    STEP(expect(host, QStringLiteral("appeared .*")));
}

void tst_DesktopProgress::escapeDoesNothing()
{
    Host host(m_desktop, QStringLiteral("progress"));
    STEP(start(host));
    STEP(key(QStringLiteral("Escape")));
    STEP(key(QStringLiteral("Return")));
    STEP(key(QStringLiteral("space")));
    // The operation goes on: two more reports come after the keys.
    host.mark();
    STEP(expect(host, QStringLiteral("step .*")));
    host.mark();
    STEP(expect(host, QStringLiteral("step .*")));
    QVERIFY(host.where(QStringLiteral("progress")).isValid());
    // A drag does not move it: it has no title area that would.
    const QRect place = host.where(QStringLiteral("progress"));
    STEP(drag(place.topLeft() + QPoint(60, 20), place.topLeft() + QPoint(200, 160)));
    host.mark();
    STEP(expect(host, QStringLiteral("step .*")));
    QCOMPARE(host.where(QStringLiteral("progress")), place);
    QVERIFY(!host.hasSaid(QStringLiteral("canceled|stopped|hidden progress")));
}

void tst_DesktopProgress::closingCancels()
{
    Host host(m_desktop, QStringLiteral("progress"));
    STEP(start(host));
    host.order(QStringLiteral("close progress"));
    STEP(expect(host, QStringLiteral("canceled")));
    STEP(expect(host, QStringLiteral("stopped")));
}

void tst_DesktopProgress::keyboardReturns()
{
    Host host(m_desktop, QStringLiteral("progress"));
    STEP(start(host));
    Host other(m_desktop, QStringLiteral("other"));
    STEP(expect(other, QStringLiteral("active other")));
    STEP(expect(host, QStringLiteral("inactive progress")));
    host.mark();
    const QRect place = host.where(QStringLiteral("progress"));
    STEP(clickAt(place.topLeft() + QPoint(20, 80)));
    STEP(expect(host, QStringLiteral("active progress")));
}

QTEST_GUILESS_MAIN(tst_DesktopProgress)

#include "tst_desktopprogress.moc"
