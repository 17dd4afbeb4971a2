#include "filedialogtest.h"

#include "page.h"
#include "shooter.h"
#include "signallog.h"

#include <QAbstractButton>
#include <QPointer>

using namespace filedialogtest;
using gallery::SignalLog;

/** The gallery's page of the file dialog, under a user's hands. */
class tst_GalleryFiles : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        TestCase::initTestCase();
        // The stock dialog of some systems is their own and has no widgets.
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    }
    void functionsReachTheLog_data();
    void functionsReachTheLog();
    void cancelledFunction();
    void dialogsReachTheLog();
    void resizableDialog();

private:
    static QAbstractButton *findButton(const QWidget &window, const QString &text);
    static QStringList linesOf(const SignalLog &log, const QString &sender);

    Folder m_settings;
};

QAbstractButton *tst_GalleryFiles::findButton(const QWidget &window, const QString &text)
{
    const QList<QAbstractButton *> all = window.findChildren<QAbstractButton *>();
    for (QAbstractButton *button : all) {
        if (button->text() == text) {
            return button;
        }
    }
    return nullptr;
}

/** Events and arguments of @p sender; of arguments that are paths only the last part. */
QStringList tst_GalleryFiles::linesOf(const SignalLog &log, const QString &sender)
{
    QStringList lines;
    for (int i = 0; i < log.count(); ++i) {
        const QStringList line = log.line(i);
        if (line.at(0) == sender) {
            lines.append(line.at(1) + QLatin1Char(' ') +
                         line.at(2).section(QRegularExpression(QStringLiteral("[/\\\\]")), -1));
        }
    }
    return lines;
}

void tst_GalleryFiles::functionsReachTheLog_data()
{
    QTest::addColumn<bool>("framed");
    QTest::addColumn<QString>("name");
    for (const char *function : {"getOpenFileUrl", "getOpenFileUrls", "getSaveFileUrl"}) {
        QTest::newRow(function) << true << QStringLiteral("station_01.las");
    }
    QTest::newRow("getExistingDirectoryUrl") << true << QStringLiteral("Tiles");
    for (const char *function : {"getOpenFileName", "getOpenFileNames"}) {
        QTest::newRow(function) << false << QStringLiteral("station_01.las");
    }
    QTest::newRow("getSaveFileName") << false << QStringLiteral("new.las");
    QTest::newRow("getExistingDirectory") << false << QStringLiteral("Tiles");
}

void tst_GalleryFiles::functionsReachTheLog()
{
    QFETCH(bool, framed);
    QFETCH(QString, name);
    const QString function = QLatin1String(QTest::currentDataTag());
    SignalLog log;
    QScopedPointer<QWidget> view(gallery::findPage(QStringLiteral("files"))->createView(log));
    view->show();
    bool seen = false;
    whenModal([&](QWidget *modal) {
        seen = true;
        QCOMPARE(qobject_cast<Dialog *>(modal) != nullptr, framed);
        enter(modal, name);
    });
    QTest::mouseClick(findButton(*view, function), Qt::LeftButton);
    QVERIFY(seen);
    const QStringList lines = linesOf(log, function);
    QCOMPARE(lines.first(), QLatin1String("returned ") + name);
    if (!function.contains(QLatin1String("Directory"))) {
        QCOMPARE(lines.last(), QStringLiteral("selectedFilter Point clouds (*.las *.laz)"));
    }
}

void tst_GalleryFiles::cancelledFunction()
{
    SignalLog log;
    QScopedPointer<QWidget> view(gallery::findPage(QStringLiteral("files"))->createView(log));
    view->show();
    whenShown([](Dialog *shown) { QTest::keyClick(nameEdit(shown), Qt::Key_Escape); });
    QTest::mouseClick(findButton(*view, QStringLiteral("getOpenFileUrls")), Qt::LeftButton);
    QCOMPARE(linesOf(log, QStringLiteral("getOpenFileUrls")),
             QStringList(QStringLiteral("returned nothing")));
}

void tst_GalleryFiles::dialogsReachTheLog()
{
    SignalLog log;
    QScopedPointer<QWidget> view(gallery::findPage(QStringLiteral("files"))->createView(log));
    view->show();
    for (const char *name : {"Closes itself", "Stays open"}) {
        const QString text = QLatin1String(name);
        QTest::mouseClick(findButton(*view, text), Qt::LeftButton);
        const QPointer<Dialog> dialog = view->findChild<Dialog *>();
        QVERIFY(dialog);
        QVERIFY(waitForShown(dialog));
        enter(dialog, QStringLiteral("station_03.laz"));
        const QStringList lines = linesOf(log, text);
        const bool closes = text == QLatin1String("Closes itself");
        QCOMPARE(lines.filter(QStringLiteral("accepted")).size(), closes ? 2 : 1);
        QVERIFY(lines.contains(QStringLiteral("selectedUrls station_03.laz")));
        QCOMPARE(dialog->isVisible(), !closes);
        dialog->close();
        QTRY_VERIFY(!dialog);
    }
}

void tst_GalleryFiles::resizableDialog()
{
    SignalLog log;
    QScopedPointer<QWidget> view(gallery::findPage(QStringLiteral("files"))->createView(log));
    view->show();
    QTest::mouseClick(findButton(*view, QStringLiteral("Resizable")), Qt::LeftButton);
    const QPointer<Dialog> dialog = view->findChild<Dialog *>();
    QVERIFY(waitForShown(dialog));
    dialog->resize(900, 700);
    QCOMPARE(dialog->size(), QSize(900, 700));
    QTRY_COMPARE(browser(dialog)->geometry().bottomRight(), QPoint(889, 678));
    // It goes with its page.
    view.reset();
    QVERIFY(!dialog);
}

LMTEST_MAIN(tst_GalleryFiles)

#include "tst_galleryfiles.moc"
