/** @file
 * Which dialog stands above which on a real X11 desktop, whose window manager knows nothing of the
 * frameless ones: dialogs of the library's over each other, stock dialogs of Qt's over them, and
 * what is left when the window below goes.
 */

#include "desktoptest.h"

class tst_DesktopStacking : public DesktopTest
{
    Q_OBJECT

private Q_SLOTS:
    void nestedModalDialogs();
    void dialogStaysAboveItsWindow();
    void stockDialog_data();
    void stockDialog();
    void stockDialogOverBox();
    void stockDialogWithoutModality();
    void parentClosed();
    void parentDeleted_data();
    void parentDeleted();

private:
    void openStack(Host &host);
};

/** Opens the three dialogs of the stack, each from the one below. */
void tst_DesktopStacking::openStack(Host &host)
{
    STEP(expect(host, QStringLiteral("active main")));
    QString opener = QStringLiteral("main-button");
    for (int level = 1; level <= 3; ++level) {
        const QString name = QStringLiteral("dialog%1").arg(level);
        STEP(click(host, opener));
        STEP(expect(host, QStringLiteral("painted %1 .*").arg(name)));
        STEP(expect(host, QStringLiteral("active ") + name));
        opener = name + QStringLiteral("-more");
    }
}

void tst_DesktopStacking::nestedModalDialogs()
{
    Host host(m_desktop, QStringLiteral("stack"));
    STEP(openStack(host));

    // The windows below take nothing, and do not come to the front.
    const QRect third = host.where(QStringLiteral("dialog3"));
    host.mark();
    STEP(clickAt(host.where(QStringLiteral("dialog1")).topLeft() + QPoint(20, 30)));
    STEP(clickAt(host.where(QStringLiteral("main")).topLeft() + QPoint(20, 200)));
    STEP(clickAt(host.where(QStringLiteral("dialog2")).topLeft() + QPoint(20, 80)));
    STEP(click(host, QStringLiteral("dialog3-edit")));
    // The window manager gave the keyboard to the main window, and Qt takes it from there back.
    QTRY_VERIFY_WITH_TIMEOUT(
        (key(QStringLiteral("x")), host.hasSaid(QStringLiteral("text dialog3-edit x+"))),
        TimeoutMs);
    STEP(expectNot(host, QStringLiteral("clicked .*")));
    STEP(expectNot(host, QStringLiteral("text (main|dialog1|dialog2)-edit .*")));
    QCOMPARE(host.where(QStringLiteral("dialog3")), third);

    // Each one that ends gives way to the one below.
    for (int level = 3; level >= 1; --level) {
        const QString below =
            level > 1 ? QStringLiteral("dialog%1").arg(level - 1) : QStringLiteral("main");
        host.mark();
        STEP(key(QStringLiteral("Escape")));
        STEP(expect(host, QStringLiteral("finished dialog%1 0").arg(level)));
        STEP(expect(host, QStringLiteral("active ") + below));
        STEP(click(host, below + QStringLiteral("-edit")));
        STEP(expect(host, QStringLiteral("focus %1-edit").arg(below)));
        STEP(type(QStringLiteral("b")));
        STEP(expect(host, QStringLiteral("text %1-edit b").arg(below)));
    }
}

/** The dialog covers a part of the window that it belongs to, and goes on doing so. */
void tst_DesktopStacking::dialogStaysAboveItsWindow()
{
    Host host(m_desktop, QStringLiteral("modeless"));
    STEP(openFromMain(host));
    host.mark();
    STEP(click(host, QStringLiteral("main-edit")));
    STEP(expect(host, QStringLiteral("active main")));
    STEP(type(QStringLiteral("a")));
    STEP(expect(host, QStringLiteral("text main-edit a")));
    const QRect common = host.where(QStringLiteral("main")) & host.where(QStringLiteral("edit"));
    QVERIFY2(common.isValid(), qPrintable(host.report(QStringLiteral("an edit above main"))));
    STEP(clickAt(common.center()));
    STEP(expect(host, QStringLiteral("active dialog")));
    STEP(type(QStringLiteral("b")));
    STEP(expect(host, QStringLiteral("text edit b")));
}

void tst_DesktopStacking::stockDialog_data()
{
    QTest::addColumn<QString>("scenario");
    QTest::addColumn<QString>("opener");
    QTest::addColumn<QString>("dialog");
    QTest::addColumn<QString>("end");
    const struct
    {
        const char *opener;
        const char *dialog;
        const char *end;
    } rows[] = {{"ask", "QMessageBox", "stock-Yes"},    {"ask", "QMessageBox", "Escape"},
                {"colour", "QColorDialog", "stock-OK"}, {"file", "QFileDialog", "stock-Cancel"},
                {"number", "QInputDialog", "stock-OK"}, {"own", "hostdialog", "Escape"},
                {"inner", "QMessageBox", "stock-No"},   {"orphan", "QMessageBox", "stock-No"}};
    for (const char *scenario : {"stock", "stock-secondframe"}) {
        for (const auto &row : rows) {
            QTest::addRow("%s, %s, %s", scenario, row.opener, row.end)
                << scenario << row.opener << row.dialog << row.end;
        }
    }
}

/** It must be seen, and answer the mouse and the keys, above the frame that opened it. */
void tst_DesktopStacking::stockDialog()
{
    QFETCH(QString, scenario);
    QFETCH(QString, opener);
    QFETCH(QString, dialog);
    QFETCH(QString, end);
    Host host(m_desktop, scenario);
    STEP(expect(host, QStringLiteral("painted dialog .*")));
    STEP(expect(host, QStringLiteral("active dialog")));
    host.mark();
    STEP(click(host, opener));
    STEP(expect(host, QStringLiteral("painted %1 .*").arg(dialog)));
    STEP(expect(host, QStringLiteral("active ") + dialog));
    if (end == QLatin1String("Escape")) {
        STEP(key(end));
    } else {
        STEP(click(host, end));
    }
    STEP(expect(host, QStringLiteral("finished %1 .*").arg(dialog)));
    STEP(expect(host, QStringLiteral("active dialog")));
    STEP(click(host, QStringLiteral("edit")));
    STEP(expect(host, QStringLiteral("focus edit")));
    STEP(type(QStringLiteral("a")));
    STEP(expect(host, QStringLiteral("text edit a")));
}

void tst_DesktopStacking::stockDialogOverBox()
{
    Host host(m_desktop, QStringLiteral("stock-box"));
    STEP(expect(host, QStringLiteral("painted globa_pMessageBox .*")));
    STEP(expect(host, QStringLiteral("active globa_pMessageBox")));
    STEP(click(host, QStringLiteral("ask")));
    STEP(expect(host, QStringLiteral("active QMessageBox")));
    STEP(click(host, QStringLiteral("stock-Yes")));
    STEP(expect(host, QStringLiteral("finished QMessageBox 16384")));
}

/** One that does not block the frame stands above it too, as every window manager would have it. */
void tst_DesktopStacking::stockDialogWithoutModality()
{
    Host host(m_desktop, QStringLiteral("stock"));
    STEP(expect(host, QStringLiteral("active dialog")));
    STEP(click(host, QStringLiteral("modeless")));
    STEP(expect(host, QStringLiteral("active hostdialog")));
    STEP(type(QStringLiteral("a")));
    STEP(expect(host, QStringLiteral("text host-edit a")));
    STEP(click(host, QStringLiteral("edit")));
    STEP(expect(host, QStringLiteral("active dialog")));
    STEP(type(QStringLiteral("b")));
    STEP(expect(host, QStringLiteral("text edit b")));
    host.mark();
    STEP(click(host, QStringLiteral("host-edit")));
    STEP(expect(host, QStringLiteral("active hostdialog")));
    STEP(type(QStringLiteral("c")));
    STEP(expect(host, QStringLiteral("text host-edit ac")));
}

/** A window that is closed is hidden only: the dialog stays, takes keys, and ends as always. */
void tst_DesktopStacking::parentClosed()
{
    Host host(m_desktop, QStringLiteral("modeless"));
    STEP(openFromMain(host));
    host.order(QStringLiteral("close main"));
    STEP(expect(host, QStringLiteral("hidden main")));
    // xfwm4 then takes the keyboard from the dialog and gives it to nobody; a click brings it back.
    const auto typeInto = [this, &host] {
        click(host, QStringLiteral("edit"));
        key(QStringLiteral("x"));
        return host.hasSaid(QStringLiteral("text edit x+"));
    };
    QTRY_VERIFY_WITH_TIMEOUT(typeInto(), TimeoutMs);
    STEP(click(host, QStringLiteral("close")));
    STEP(expect(host, QStringLiteral("finished dialog 0")));
}

void tst_DesktopStacking::parentDeleted_data()
{
    QTest::addColumn<QString>("scenario");
    QTest::newRow("modeless") << QStringLiteral("modeless");
    QTest::newRow("modal") << QStringLiteral("stack");
}

/** A window that is deleted takes its dialogs along, and their loops end. */
void tst_DesktopStacking::parentDeleted()
{
    QFETCH(QString, scenario);
    Host host(m_desktop, scenario);
    if (scenario == QLatin1String("stack")) {
        STEP(openStack(host));
    } else {
        STEP(openFromMain(host));
    }
    Host other(m_desktop, QStringLiteral("other"));
    STEP(expect(other, QStringLiteral("painted other .*")));
    host.order(QStringLiteral("delete main"));
    STEP(expect(host, QStringLiteral("deleted main")));
    QVERIFY(!host.where(QStringLiteral("dialog")).isValid());
    QVERIFY(!host.where(QStringLiteral("dialog1")).isValid());
    // What they stood on is free again.
    STEP(click(other, QStringLiteral("other-edit")));
    STEP(expect(other, QStringLiteral("active other")));
    STEP(type(QStringLiteral("a")));
    STEP(expect(other, QStringLiteral("text other-edit a")));
}

QTEST_GUILESS_MAIN(tst_DesktopStacking)

#include "tst_desktopstacking.moc"
