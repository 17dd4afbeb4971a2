/** @file
 * The layer list under a user's hands on a real X11 desktop.
 */

#include "desktoptest.h"

class tst_DesktopLayers : public DesktopTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyButtonOfARow();
    void nameByKeyboard();
    void colorIsAccepted_data();
    void colorIsAccepted();
    void colorIsNotAccepted_data();
    void colorIsNotAccepted();

private:
    void showList(Host &host);
    void openColors(Host &host);
};

void tst_DesktopLayers::showList(Host &host)
{
    STEP(expect(host, QStringLiteral("painted list .*")));
    STEP(expect(host, QStringLiteral("active list")));
    host.mark();
}

void tst_DesktopLayers::openColors(Host &host)
{
    STEP(showList(host));
    STEP(click(host, QStringLiteral("color1")));
    STEP(expect(host, QStringLiteral("painted color .*")));
    STEP(expect(host, QStringLiteral("active color")));
    STEP(click(host, QStringLiteral("color-html")));
    STEP(expect(host, QStringLiteral("focus color-html")));
    STEP(key(QStringLiteral("ctrl+a")));
    STEP(type(QStringLiteral("'#00ff7f'")));
    STEP(expect(host, QStringLiteral("text color-html #00ff7f")));
}

void tst_DesktopLayers::everyButtonOfARow()
{
    Host host(m_desktop, QStringLiteral("layers"));
    STEP(showList(host));
    const QPair<const char *, const char *> steps[] = {
        {"delete1", "layer 1 6 none"}, {"edit1", "layer 1 5 none"},
        {"lock1", "layer 1 3 false"},  {"visible1", "layer 1 2 false"},
        {"lock1", "layer 1 3 true"},   {"visible1", "layer 1 2 true"},
        {"delete2", "layer 2 6 none"}, {"lock0", "layer 0 3 false"}};
    for (const auto &step : steps) {
        host.mark();
        STEP(click(host, QLatin1String(step.first)));
        STEP(expect(host, QLatin1String(step.second)));
    }
}

void tst_DesktopLayers::nameByKeyboard()
{
    Host host(m_desktop, QStringLiteral("layers"));
    STEP(showList(host));
    const QRect list = host.where(QStringLiteral("list"));
    QVERIFY(list.isValid());
    const QPoint name = list.topLeft() + QPoint(60, 50); // in the second row
    STEP(input(QStringLiteral("mousemove %1 click --repeat 2 --delay 60 1").arg(pointText(name))));
    STEP(key(QStringLiteral("ctrl+a")));
    STEP(type(QStringLiteral("Walls")));
    STEP(key(QStringLiteral("Return")));
    STEP(expect(host, QStringLiteral("name 1 Walls")));

    STEP(key(QStringLiteral("F2")));
    STEP(key(QStringLiteral("ctrl+a")));
    STEP(type(QStringLiteral("Doors")));
    STEP(key(QStringLiteral("Escape")));
    STEP(key(QStringLiteral("F2")));
    STEP(key(QStringLiteral("End")));
    STEP(type(QStringLiteral("1")));
    STEP(key(QStringLiteral("Return")));
    STEP(expect(host, QStringLiteral("name 1 Walls1")));
    STEP(expectNot(host, QStringLiteral("name 1 Doors.*")));
}

void tst_DesktopLayers::colorIsAccepted_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("by OK") << false;
    QTest::newRow("by Enter") << true;
}

void tst_DesktopLayers::colorIsAccepted()
{
    QFETCH(bool, byKey);
    Host host(m_desktop, QStringLiteral("layers"));
    STEP(openColors(host));
    if (byKey) {
        STEP(key(QStringLiteral("Return")));
    } else {
        STEP(click(host, QStringLiteral("color-ok")));
    }
    STEP(expect(host, QStringLiteral("finished color 1")));
    STEP(expect(host, QStringLiteral("layer 1 1 #00ff7f")));
    host.mark();
    // The keyboard is back at the list, and so is the mouse.
    STEP(click(host, QStringLiteral("lock2")));
    STEP(expect(host, QStringLiteral("layer 2 3 false")));
}

void tst_DesktopLayers::colorIsNotAccepted_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("Cancel") << "color-cancel";
    QTest::newRow("title button") << "color-close";
    QTest::newRow("Escape") << "";
}

void tst_DesktopLayers::colorIsNotAccepted()
{
    QFETCH(QString, how);
    Host host(m_desktop, QStringLiteral("layers"));
    STEP(openColors(host));
    if (how.isEmpty()) {
        STEP(key(QStringLiteral("Escape")));
    } else {
        STEP(click(host, how));
    }
    STEP(expect(host, QStringLiteral("finished color 0")));
    STEP(click(host, QStringLiteral("edit0")));
    STEP(expect(host, QStringLiteral("layer 0 5 none")));
    STEP(expectNot(host, QStringLiteral("layer 1 1 .*")));
}

QTEST_GUILESS_MAIN(tst_DesktopLayers)

#include "tst_desktoplayers.moc"
