/** @file
 * A panel of collapsible group boxes under a user's hands on a real X11 desktop.
 */

#include "desktoptest.h"

namespace {

constexpr QPoint Arrow(8, 9); // from the top left corner of a box
constexpr QPoint Title(45, 9);

} // namespace

class tst_DesktopContainers : public DesktopTest
{
    Q_OBJECT

private Q_SLOTS:
    void foldAndOpen_data();
    void foldAndOpen();
    void shiftOpensOneOfTheGroup();
    void keyTogglesTheGroup_data();
    void keyTogglesTheGroup();
    void keysAreForgotten();
    void checkableTitle();
    void scrollsToTheOpenedBox();

private:
    void showPanel(Host &host);
    void clickBox(Host &host, const QString &name, const QPoint &place,
                  const QString &modifier = QString());
    bool isInView(Host &host, const QString &name);
};

void tst_DesktopContainers::showPanel(Host &host)
{
    STEP(expect(host, QStringLiteral("painted panel .*")));
    STEP(expect(host, QStringLiteral("active panel")));
    // What a box begins with.
    STEP(expect(host, QStringLiteral("opened a")));
    STEP(expect(host, QStringLiteral("folded c")));
    host.mark();
}

/** Clicks at @p place of the box, with a modifier key held if one is named. */
void tst_DesktopContainers::clickBox(Host &host, const QString &name, const QPoint &place,
                                     const QString &modifier)
{
    const QRect box = host.where(name);
    QVERIFY2(box.isValid(), qPrintable(host.report(QLatin1String("where ") + name)));
    const QString click =
        QStringLiteral("mousemove %1 click 1").arg(pointText(box.topLeft() + place));
    host.mark();
    input(modifier.isEmpty() ? click
                             : QStringLiteral("keydown %1 %2 keyup %1").arg(modifier, click));
}

void tst_DesktopContainers::foldAndOpen_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::newRow("arrow") << Arrow;
    QTest::newRow("title") << Title;
}

void tst_DesktopContainers::foldAndOpen()
{
    QFETCH(QPoint, place);
    Host host(m_desktop, QStringLiteral("panel"));
    STEP(showPanel(host));
    const QRect open = host.where(QStringLiteral("a"));
    STEP(clickBox(host, QStringLiteral("a"), place));
    STEP(expect(host, QStringLiteral("folded a")));
    QVERIFY(!host.where(QStringLiteral("a-edit0")).isValid());
    QTRY_VERIFY(host.where(QStringLiteral("a")).height() < 30);
    // The arrow and the title are where they were, so that the next click opens the box again.
    QCOMPARE(host.where(QStringLiteral("a")).topLeft(), open.topLeft());
    STEP(clickBox(host, QStringLiteral("a"), place));
    STEP(expect(host, QStringLiteral("opened a")));
    QTRY_COMPARE(host.where(QStringLiteral("a")), open);
    QVERIFY(host.where(QStringLiteral("a-edit0")).isValid());
    STEP(expectNot(host, QStringLiteral("(folded|opened) [bcdef]")));
}

void tst_DesktopContainers::shiftOpensOneOfTheGroup()
{
    Host host(m_desktop, QStringLiteral("panel"));
    STEP(showPanel(host));
    STEP(clickBox(host, QStringLiteral("a"), Title, QStringLiteral("shift")));
    STEP(expect(host, QStringLiteral("folded f")));
    QVERIFY(host.hasSaid(QStringLiteral("folded b")));
    QVERIFY(host.hasSaid(QStringLiteral("folded d")));
    STEP(expectNot(host, QStringLiteral("(folded|opened) [ace]")));

    STEP(clickBox(host, QStringLiteral("c"), Arrow, QStringLiteral("shift")));
    STEP(expect(host, QStringLiteral("folded a")));
    STEP(expect(host, QStringLiteral("opened c")));
    STEP(expectNot(host, QStringLiteral("(folded|opened) [bdef]")));
}

void tst_DesktopContainers::keyTogglesTheGroup_data()
{
    QTest::addColumn<QString>("modifier");
    QTest::addColumn<QPoint>("place");
    QTest::newRow("control, arrow") << QStringLiteral("ctrl") << Arrow;
    QTest::newRow("control, title") << QStringLiteral("ctrl") << Title;
    QTest::newRow("alt, arrow") << QStringLiteral("alt") << Arrow;
    QTest::newRow("alt, title") << QStringLiteral("alt") << Title;
}

void tst_DesktopContainers::keyTogglesTheGroup()
{
    QFETCH(QString, modifier);
    QFETCH(QPoint, place);
    Host host(m_desktop, QStringLiteral("panel"));
    STEP(showPanel(host));
    STEP(clickBox(host, QStringLiteral("a"), place, modifier));
    STEP(expect(host, QStringLiteral("folded f")));
    for (const char *name : {"a", "b", "d"}) {
        QVERIFY(host.hasSaid(QLatin1String("folded ") + QLatin1String(name)));
    }
    STEP(expectNot(host, QStringLiteral("opened .|folded [ce]")));
    QTRY_VERIFY(host.where(QStringLiteral("b")).height() < 30);

    // All of them open, the one too that was folded before.
    STEP(clickBox(host, QStringLiteral("b"), place, modifier));
    STEP(expect(host, QStringLiteral("opened f")));
    for (const char *name : {"a", "b", "c", "d"}) {
        QVERIFY(host.hasSaid(QLatin1String("opened ") + QLatin1String(name)));
    }
    STEP(expectNot(host, QStringLiteral("folded .|opened e")));
}

void tst_DesktopContainers::keysAreForgotten()
{
    Host host(m_desktop, QStringLiteral("panel"));
    STEP(showPanel(host));
    STEP(clickBox(host, QStringLiteral("a"), Arrow, QStringLiteral("ctrl")));
    STEP(expect(host, QStringLiteral("folded f")));
    QTRY_VERIFY(host.where(QStringLiteral("b")).height() < 30);
    STEP(clickBox(host, QStringLiteral("a"), Arrow));
    STEP(expect(host, QStringLiteral("opened a")));
    STEP(clickBox(host, QStringLiteral("a"), Title));
    STEP(expect(host, QStringLiteral("folded a")));
    STEP(expectNot(host, QStringLiteral("(folded|opened) [bcdef]")));
}

void tst_DesktopContainers::checkableTitle()
{
    Host host(m_desktop, QStringLiteral("panel"));
    STEP(showPanel(host));
    STEP(clickBox(host, QStringLiteral("a"), Arrow, QStringLiteral("ctrl")));
    STEP(expect(host, QStringLiteral("folded f")));
    QTRY_VERIFY(host.where(QStringLiteral("c")).height() < 30);
    STEP(clickBox(host, QStringLiteral("d"), Title));
    STEP(expect(host, QStringLiteral("checked d 0")));
    STEP(clickBox(host, QStringLiteral("d"), Title));
    STEP(expect(host, QStringLiteral("checked d 1")));
    STEP(expect(host, QStringLiteral("opened d")));
    // A key keeps the check box out of it.
    STEP(clickBox(host, QStringLiteral("d"), Title, QStringLiteral("shift")));
    STEP(clickBox(host, QStringLiteral("d"), Title, QStringLiteral("ctrl")));
    STEP(expect(host, QStringLiteral("folded d")));
    STEP(expectNot(host, QStringLiteral("checked .*")));
}

/** Whether the whole box is in the view, whose scroll bar comes and goes. */
bool tst_DesktopContainers::isInView(Host &host, const QString &name)
{
    const QRect box = host.where(name);
    return box.isValid() && host.where(QStringLiteral("view")).contains(box);
}

void tst_DesktopContainers::scrollsToTheOpenedBox()
{
    Host host(m_desktop, QStringLiteral("panel"));
    STEP(showPanel(host));
    STEP(clickBox(host, QStringLiteral("a"), Arrow, QStringLiteral("ctrl")));
    STEP(expect(host, QStringLiteral("folded f")));
    // Five titles and the open box "e" fit into the view. With two more open boxes they do not.
    QTRY_VERIFY(isInView(host, QStringLiteral("f")));
    STEP(clickBox(host, QStringLiteral("b"), Arrow));
    STEP(expect(host, QStringLiteral("opened b")));
    QTRY_VERIFY(isInView(host, QStringLiteral("b")));
    const QRect view = host.where(QStringLiteral("view"));
    STEP(input(QStringLiteral("mousemove %1 click --repeat 30 5")
                   .arg(pointText(view.bottomLeft() + QPoint(2, -2)))));
    QTRY_VERIFY(isInView(host, QStringLiteral("f")));
    const int top = host.where(QStringLiteral("f")).top();
    STEP(clickBox(host, QStringLiteral("f"), Title));
    STEP(expect(host, QStringLiteral("opened f")));
    QTRY_VERIFY(host.where(QStringLiteral("f-edit3")).isValid());
    QTRY_VERIFY(isInView(host, QStringLiteral("f")));
    QVERIFY(host.where(QStringLiteral("f")).top() < top);
    QVERIFY(!isInView(host, QStringLiteral("a")));
}

QTEST_GUILESS_MAIN(tst_DesktopContainers)

#include "tst_desktopcontainers.moc"
