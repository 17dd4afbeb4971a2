/** @file
 * The framed file dialog under a user's hands on a real X11 desktop.
 */

#include "desktoptest.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

class tst_DesktopFiles : public DesktopTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void typeAndSave();
    void typeAndSaveAlone();
    void saveOverAFile();
    void refusedName_data();
    void refusedName();
    void refusedNameByMouse();
    void pickWithTheMouse();
    void doubleClick();
    void enterAFolder();
    void cancel_data();
    void cancel();
    void dragByTheTitle();
    void notFound_data();
    void notFound();
    void neverNative();

private:
    void openFiles(Host &host);
    QRect entry(Host &host, const QString &name);

    QTemporaryDir m_folder;
    QTemporaryDir m_settings;
};

void tst_DesktopFiles::initTestCase()
{
    for (const char *name : {"alpha.las", "beta.las"}) {
        QFile file(m_folder.filePath(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QVERIFY(QDir(m_folder.path()).mkdir(QStringLiteral("sub")));
    QFile inner(m_folder.filePath(QStringLiteral("sub/inner.las")));
    QVERIFY(inner.open(QIODevice::WriteOnly));
    qputenv("DESKTOP_FILES", QFile::encodeName(m_folder.path()));
    // Qt's file dialog writes down where it has been.
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_settings.path()));
    DesktopTest::initTestCase();
}

void tst_DesktopFiles::openFiles(Host &host)
{
    STEP(expect(host, QStringLiteral("painted main .*")));
    STEP(expect(host, QStringLiteral("active main")));
    host.mark();
    STEP(click(host, QStringLiteral("main-button")));
    STEP(expect(host, QStringLiteral("painted files .*")));
    STEP(expect(host, QStringLiteral("active files")));
    // The folder comes first when the entries are sorted.
    QTRY_VERIFY2(entry(host, QStringLiteral("sub")).bottom() <
                     entry(host, QStringLiteral("alpha.las")).top(),
                 qPrintable(host.report(QStringLiteral("entry sub, then entry alpha.las"))));
}

/** Where the host has said last that the entry is. */
QRect tst_DesktopFiles::entry(Host &host, const QString &name)
{
    return host.lastRect(QLatin1String("entry ") + name);
}

void tst_DesktopFiles::typeAndSave()
{
    Host host(m_desktop, QStringLiteral("files-save"));
    STEP(openFiles(host));
    STEP(expect(host, QStringLiteral("focus fileNameEdit")));
    STEP(type(QStringLiteral("new.las")));
    STEP(expect(host, QStringLiteral("text fileNameEdit new.las")));
    STEP(key(QStringLiteral("Return")));
    STEP(expect(host, QStringLiteral("chosen new.las")));
    STEP(expect(host, QStringLiteral("finished files 1")));
    STEP(expect(host, QStringLiteral("hidden files")));
}

void tst_DesktopFiles::typeAndSaveAlone()
{
    Host host(m_desktop, QStringLiteral("files-alone"));
    STEP(expect(host, QStringLiteral("painted files .*")));
    STEP(expect(host, QStringLiteral("active files")));
    STEP(type(QStringLiteral("new.las")));
    STEP(expect(host, QStringLiteral("text fileNameEdit new.las")));
    STEP(click(host, QStringLiteral("files-accept")));
    STEP(expect(host, QStringLiteral("chosen new.las")));
}

void tst_DesktopFiles::saveOverAFile()
{
    Host host(m_desktop, QStringLiteral("files-save"));
    STEP(openFiles(host));
    STEP(type(QStringLiteral("sub/inner.las")));
    STEP(expect(host, QStringLiteral("text fileNameEdit sub/inner.las")));
    // A click would only close the list of the names that begin so.
    STEP(key(QStringLiteral("Return")));
    STEP(expect(host, QStringLiteral("chosen sub/inner.las")));
    STEP(expectNot(host, QStringLiteral("painted notice .*")));
}

void tst_DesktopFiles::refusedName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("asterisk") << QStringLiteral("a*b.txt");
    QTest::newRow("bracket") << QStringLiteral("a<b.txt");
}

void tst_DesktopFiles::refusedName()
{
    QFETCH(QString, name);
    Host host(m_desktop, QStringLiteral("files-save"));
    STEP(openFiles(host));
    STEP(type(name));
    STEP(expect(host, QLatin1String("text fileNameEdit ") + QRegularExpression::escape(name)));
    STEP(key(QStringLiteral("Return")));
    STEP(expect(host, QStringLiteral("painted globa_pMessageBox .*")));
    STEP(expect(host, QStringLiteral("active globa_pMessageBox")));
    STEP(expect(host, QStringLiteral("hidden files")));
    STEP(expectNot(host, QStringLiteral("chosen .*")));
    STEP(key(QStringLiteral("Return")));
    STEP(expect(host, QStringLiteral("finished globa_pMessageBox 1024")));
    STEP(expect(host, QStringLiteral("chosen nothing")));
}

void tst_DesktopFiles::refusedNameByMouse()
{
    Host host(m_desktop, QStringLiteral("files-save"));
    STEP(openFiles(host));
    STEP(type(QStringLiteral("none/a.txt")));
    STEP(expect(host, QStringLiteral("text fileNameEdit none/a.txt")));
    STEP(click(host, QStringLiteral("files-accept")));
    STEP(expect(host, QStringLiteral("painted globa_pMessageBox .*")));
    STEP(click(host, QStringLiteral("box-ok")));
    STEP(expect(host, QStringLiteral("chosen nothing")));
    // The window takes input again.
    host.mark();
    STEP(click(host, QStringLiteral("main-button")));
    STEP(expect(host, QStringLiteral("painted files .*")));
}

void tst_DesktopFiles::pickWithTheMouse()
{
    Host host(m_desktop, QStringLiteral("files-open"));
    STEP(openFiles(host));
    STEP(clickAt(entry(host, QStringLiteral("beta.las")).center()));
    STEP(expect(host, QStringLiteral("text fileNameEdit beta.las")));
    STEP(expectNot(host, QStringLiteral("chosen .*")));
    STEP(click(host, QStringLiteral("files-accept")));
    STEP(expect(host, QStringLiteral("chosen beta.las")));
}

void tst_DesktopFiles::doubleClick()
{
    Host host(m_desktop, QStringLiteral("files-open"));
    STEP(openFiles(host));
    STEP(input(QStringLiteral("mousemove %1 click --repeat 2 --delay 50 1")
                   .arg(pointText(entry(host, QStringLiteral("alpha.las")).center()))));
    STEP(expect(host, QStringLiteral("chosen alpha.las")));
    STEP(expect(host, QStringLiteral("finished files 1")));
}

void tst_DesktopFiles::enterAFolder()
{
    Host host(m_desktop, QStringLiteral("files-open"));
    STEP(openFiles(host));
    STEP(input(QStringLiteral("mousemove %1 click --repeat 2 --delay 50 1")
                   .arg(pointText(entry(host, QStringLiteral("sub")).center()))));
    STEP(expect(host, QStringLiteral("entry inner.las .*")));
    STEP(click(host, QStringLiteral("toParentButton")));
    host.mark();
    STEP(clickAt(entry(host, QStringLiteral("beta.las")).center()));
    STEP(expect(host, QStringLiteral("text fileNameEdit beta.las")));
    STEP(key(QStringLiteral("Return")));
    STEP(expect(host, QStringLiteral("chosen beta.las")));
}

void tst_DesktopFiles::cancel_data()
{
    QTest::addColumn<QString>("part");
    QTest::newRow("Escape") << QString();
    QTest::newRow("cancel button") << QStringLiteral("files-cancel");
    QTest::newRow("close button") << QStringLiteral("files-close");
}

void tst_DesktopFiles::cancel()
{
    QFETCH(QString, part);
    Host host(m_desktop, QStringLiteral("files-save"));
    STEP(openFiles(host));
    STEP(type(QStringLiteral("new.las")));
    STEP(expect(host, QStringLiteral("text fileNameEdit new.las")));
    if (part.isEmpty()) {
        STEP(key(QStringLiteral("Escape")));
    } else {
        STEP(click(host, part));
    }
    STEP(expect(host, QStringLiteral("finished files 0")));
    STEP(expect(host, QStringLiteral("chosen nothing")));
}

void tst_DesktopFiles::dragByTheTitle()
{
    Host host(m_desktop, QStringLiteral("files-save"));
    STEP(openFiles(host));
    const QRect before = host.where(QStringLiteral("files"));
    QCOMPARE(before.size(), QSize(800, 600));
    const QPoint step(70, 40);
    const QPoint title = before.topLeft() + QPoint(300, 34);
    STEP(drag(title, title + step));
    STEP(expectGeometry(host, QStringLiteral("files"), before.translated(step)));
    // In the browser nothing is dragged.
    const QPoint label = before.topLeft() + step + QPoint(30, 300);
    STEP(drag(label, label + step));
    STEP(click(host, QStringLiteral("fileNameEdit")));
    STEP(type(QStringLiteral("moved.las")));
    STEP(expect(host, QStringLiteral("text fileNameEdit moved.las")));
    QCOMPARE(host.where(QStringLiteral("files")), before.translated(step));
    STEP(key(QStringLiteral("Return")));
    STEP(expect(host, QStringLiteral("chosen moved.las")));
}

void tst_DesktopFiles::notFound_data()
{
    QTest::addColumn<bool>("byMouse");
    QTest::newRow("keys") << false;
    QTest::newRow("mouse") << true;
}

/** What the browser says itself must be seen, and be answered, above the frame. */
void tst_DesktopFiles::notFound()
{
    QFETCH(bool, byMouse);
    Host host(m_desktop, QStringLiteral("files-open"));
    STEP(openFiles(host));
    STEP(type(QStringLiteral("none.las")));
    STEP(expect(host, QStringLiteral("text fileNameEdit none.las")));
    STEP(key(QStringLiteral("Return")));
    STEP(expect(host, QStringLiteral("painted notice .*")));
    STEP(expect(host, QStringLiteral("active notice")));
    if (byMouse) {
        STEP(click(host, QStringLiteral("notice-ok")));
    } else {
        STEP(key(QStringLiteral("Return")));
    }
    STEP(expect(host, QStringLiteral("finished notice 1024")));
    host.mark();
    // The frame has the keyboard again.
    STEP(key(QStringLiteral("ctrl+a")));
    STEP(type(QStringLiteral("alpha.las")));
    STEP(expect(host, QStringLiteral("text fileNameEdit alpha.las")));
    STEP(key(QStringLiteral("Return")));
    STEP(expect(host, QStringLiteral("chosen alpha.las")));
}

/** GTK has a file dialog of its own, which Qt takes for every stock one. */
void tst_DesktopFiles::neverNative()
{
    Host host(m_desktop, QStringLiteral("files-native"));
    STEP(expect(host, QStringLiteral("native (yes|no)")));
    if (host.hasSaid(QStringLiteral("native no"))) {
        QSKIP("Qt's platform theme for GTK is not installed (Debian: qt5-gtk-platformtheme)");
    }
    STEP(openFiles(host));
    STEP(type(QStringLiteral("alpha.las")));
    STEP(expect(host, QStringLiteral("text fileNameEdit alpha.las")));
    STEP(key(QStringLiteral("Return")));
    STEP(expect(host, QStringLiteral("chosen alpha.las")));
}

QTEST_GUILESS_MAIN(tst_DesktopFiles)

#include "tst_desktopfiles.moc"
