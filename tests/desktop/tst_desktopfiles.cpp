/** @file
 * The framed file dialog under a user's hands on a real X11 desktop.
 */

#include "desktoptest.h"

class tst_DesktopFiles : public DesktopTest
{
    Q_OBJECT

private Q_SLOTS:
    void typeAName();
    void refusedName_data();
    void refusedName();
    void pickWithTheMouse();
    void escapeChoosesNothing();
    void dragTheDialog();

private:
    void openDialog(Host &host, const QString &button);
};

void tst_DesktopFiles::openDialog(Host &host, const QString &button)
{
    STEP(expect(host, QStringLiteral("painted main .*")));
    const QRect place = host.where(button);
    QVERIFY(place.isValid());
    input(QStringLiteral("mousemove %1 click 1").arg(pointText(place.center())));
    STEP(expect(host, QStringLiteral("painted files .*")));
    STEP(expect(host, QStringLiteral("active files")));
    STEP(expect(host, QStringLiteral("focus fileNameEdit")));
}

void tst_DesktopFiles::typeAName()
{
    Host host(m_desktop, QStringLiteral("files"));
    STEP(openDialog(host, QStringLiteral("save")));
    STEP(type(QStringLiteral("points.las")));
    STEP(key(QStringLiteral("Return")));
    STEP(expect(host, QStringLiteral("chosen file:///.*/points\\.las")));
}

void tst_DesktopFiles::refusedName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("asterisk") << "a*b.las";
    QTest::newRow("bracket") << "a<b.las";
}

void tst_DesktopFiles::refusedName()
{
    QFETCH(QString, name);
    Host host(m_desktop, QStringLiteral("files"));
    STEP(openDialog(host, QStringLiteral("save")));
    STEP(type(name));
    STEP(key(QStringLiteral("Return")));
    STEP(expect(host, QStringLiteral("painted globa_pMessageBox .*")));
    STEP(expect(host, QStringLiteral("active globa_pMessageBox")));
    QVERIFY(!host.hasSaid(QStringLiteral("chosen .*")));
    STEP(key(QStringLiteral("Return")));
    STEP(expect(host, QStringLiteral("chosen nothing")));
}

void tst_DesktopFiles::pickWithTheMouse()
{
    Host host(m_desktop, QStringLiteral("files"));
    STEP(openDialog(host, QStringLiteral("open")));
    const QRect list = host.where(QStringLiteral("treeView"));
    QVERIFY(list.isValid());
    // The only file is in the first row below the header. The list is filled some time after the
    // dialog has appeared, and a click beside a row chooses nothing.
    const QPoint row = list.topLeft() + QPoint(40, 40);
    const auto pick = [&] {
        input(QStringLiteral("mousemove %1 click --repeat 2 --delay 50 1").arg(pointText(row)));
        return host.hasSaid(QStringLiteral("chosen .*"));
    };
    QTRY_VERIFY_WITH_TIMEOUT(pick(), TimeoutMs);
    QVERIFY(host.hasSaid(QStringLiteral("chosen file:///.*/north\\.las")));
}

void tst_DesktopFiles::escapeChoosesNothing()
{
    Host host(m_desktop, QStringLiteral("files"));
    STEP(openDialog(host, QStringLiteral("open")));
    STEP(key(QStringLiteral("Escape")));
    STEP(expect(host, QStringLiteral("chosen nothing")));
}

void tst_DesktopFiles::dragTheDialog()
{
    Host host(m_desktop, QStringLiteral("files"));
    STEP(openDialog(host, QStringLiteral("open")));
    const QRect before = host.where(QStringLiteral("files"));
    const QPoint grip = before.topLeft() + QPoint(300, 30);
    STEP(drag(grip, grip + QPoint(40, 30)));
    QVERIFY2(host.waitForGeometry(QStringLiteral("files"), before.translated(40, 30)),
             qPrintable(host.report(QStringLiteral("the dragged dialog"))));
}

QTEST_GUILESS_MAIN(tst_DesktopFiles)

#include "tst_desktopfiles.moc"
