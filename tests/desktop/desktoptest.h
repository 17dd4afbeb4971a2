#ifndef DESKTOPTEST_H
#define DESKTOPTEST_H

#include "desktop.h"

#include <QtTest>

// A helper that fails has left its message with QTest; the test function ends there.
#define STEP(call)                                                                                 \
    do {                                                                                           \
        call;                                                                                      \
        if (QTest::currentTestFailed()) {                                                          \
            return;                                                                                \
        }                                                                                          \
    } while (false)

/** The base of the tests on a desktop: it starts the desktop and knows what a user does there. */
class DesktopTest : public QObject
{
    Q_OBJECT

protected:
    static constexpr int TimeoutMs = 10000;
    /** Where desktop_host puts its dialogs. */
    static constexpr QRect DialogRect = QRect(300, 150, 420, 300);
    static constexpr QRect ScreenRect = QRect(0, 0, 1280, 900);

    static void expect(Host &host, const QString &pattern);
    static void expectNot(const Host &host, const QString &pattern);
    static void expectGeometry(Host &host, const QString &window, const QRect &geometry);
    static QString pointText(const QPoint &point);

    void input(const QString &arguments);
    void click(Host &host, const QString &name);
    void clickAt(const QPoint &position);
    void type(const QString &text);
    void key(const QString &name);
    void drag(const QPoint &from, const QPoint &to);
    void showDialog(Host &host);
    void openFromMain(Host &host);

    Desktop m_desktop;

protected Q_SLOTS:
    void initTestCase();
};

#endif
