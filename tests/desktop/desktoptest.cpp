#include "desktoptest.h"

void DesktopTest::expect(Host &host, const QString &pattern)
{
    QVERIFY2(host.waitFor(pattern), qPrintable(host.report(pattern)));
}

void DesktopTest::expectGeometry(Host &host, const QString &window, const QRect &geometry)
{
    QVERIFY2(host.waitForGeometry(window, geometry),
             qPrintable(host.report(QStringLiteral("geometry %1 %2 %3 %4 %5")
                                        .arg(window)
                                        .arg(geometry.x())
                                        .arg(geometry.y())
                                        .arg(geometry.width())
                                        .arg(geometry.height()))));
}

void DesktopTest::expectNot(const Host &host, const QString &pattern)
{
    QVERIFY2(!host.hasSaid(pattern), qPrintable(host.report(QLatin1String("not: ") + pattern)));
}

QString DesktopTest::pointText(const QPoint &point)
{
    return QStringLiteral("%1 %2").arg(point.x()).arg(point.y());
}

void DesktopTest::initTestCase()
{
    const QString problem = m_desktop.start();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

void DesktopTest::input(const QString &arguments)
{
    QVERIFY2(!m_desktop.xdotool(arguments).isNull(),
             qPrintable(QLatin1String("xdotool ") + arguments));
}

void DesktopTest::click(Host &host, const QString &name)
{
    const QRect rect = host.where(name);
    QVERIFY2(rect.isValid(), qPrintable(host.report(QLatin1String("where ") + name)));
    clickAt(rect.center());
}

void DesktopTest::clickAt(const QPoint &position)
{
    input(QStringLiteral("mousemove %1 click 1").arg(pointText(position)));
}

void DesktopTest::type(const QString &text)
{
    input(QLatin1String("type ") + text);
}

void DesktopTest::key(const QString &name)
{
    input(QLatin1String("key ") + name);
}

void DesktopTest::drag(const QPoint &from, const QPoint &to)
{
    input(QStringLiteral("mousemove %1 mousedown 1 mousemove %2 mousemove %3 mouseup 1")
              .arg(pointText(from), pointText((from + to) / 2), pointText(to)));
}

/** Waits for the dialog of a scenario that opens it at once. */
void DesktopTest::showDialog(Host &host)
{
    STEP(expect(host, QStringLiteral("painted dialog .*")));
    STEP(expect(host, QStringLiteral("active dialog")));
    expectGeometry(host, QStringLiteral("dialog"), DialogRect);
}

/** Opens the dialog of a scenario by the main window's button. */
void DesktopTest::openFromMain(Host &host)
{
    STEP(expect(host, QStringLiteral("painted main .*")));
    STEP(expect(host, QStringLiteral("active main")));
    host.mark();
    STEP(click(host, QStringLiteral("main-button")));
    showDialog(host);
}
