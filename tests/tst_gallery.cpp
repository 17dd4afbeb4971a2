#include "lmtest.h"

#include "application.h"
#include "mainwindow.h"
#include "page.h"
#include "shooter.h"
#include "signallog.h"
#include "themes.h"

#include <lmwidgets/talvostylemanager.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QListWidget>
#include <QPointer>
#include <QProcess>
#include <QProcessEnvironment>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTextStream>

using gallery::Page;
using gallery::SignalLog;
using LM::Widgets::TalvoStyleManager;

namespace {

/** An object with the kinds of signals that pages bring. */
class Sender : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    void plain();
    void named(int count, const QString &text);
    void carried(QObject *object, Qt::Orientation orientation);
    void own(Sender *sender);
    void unknown(Sender &sender);
};

struct Result
{
    int code = -1;
    QStringList out;
    QString err;
};

Result runGallery(const QStringList &arguments)
{
    Result result;
    QString out;
    QTextStream outStream(&out);
    QTextStream errStream(&result.err);
    result.code =
        gallery::run(QStringList(QStringLiteral("lmgallery")) + arguments, outStream, errStream);
    outStream.flush();
    errStream.flush();
    result.out = out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    return result;
}

bool isUniform(const QImage &image)
{
    const QRgb first = image.pixel(0, 0);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != first) {
                return false;
            }
        }
    }
    return true;
}

/** The file names, without folder and ending, that a whole run has to write for one theme. */
QStringList expectedPictures(const QString &theme)
{
    QStringList names(theme + QStringLiteral("-window"));
    for (const Page &page : gallery::pages()) {
        names.append(theme + QLatin1Char('-') + page.name());
        for (const gallery::Shot &shot : page.shots()) {
            names.append(theme + QLatin1Char('-') + page.name() + QLatin1Char('-') + shot.name);
        }
    }
    return names;
}

} // namespace

class tst_Gallery : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() { TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Black); }

    void badNames_data();
    void badNames();
    void programExitCode();
    void directoryThatCannotBeMade();
    void pagesAreDistinct();
    void pageInEachTheme_data();
    void pageInEachTheme();
    void pageFitsTheWindow_data();
    void pageFitsTheWindow();
    void shootWritesEveryPicture_data();
    void shootWritesEveryPicture();
    void shootOnePage();
    void programScalesPictures();
    void list();
    void help();
    void logReportsSignals();
    void logOutlivesSenders();
    void logClears();
};

void tst_Gallery::badNames_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");

    QTest::newRow("page") << QStringList{"--page", "frames"} << "theme, frame";
    QTest::newRow("page with pictures")
        << QStringList{"--shoot", "x", "--page", ""} << "theme, frame";
    QTest::newRow("theme") << QStringList{"--theme", "black"} << "Black, White, Blue";
    QTest::newRow("scale zero") << QStringList{"--list", "--scale", "0"} << "scale";
    QTest::newRow("scale too large") << QStringList{"--list", "--scale", "4.01"} << "scale";
    QTest::newRow("scale no number") << QStringList{"--list", "--scale", "two"} << "scale";
    QTest::newRow("option") << QStringList{"--shot", "x"} << "shot";
    QTest::newRow("argument") << QStringList{"--list", "frame"} << "frame";
    QTest::newRow("no value") << QStringList{"--shoot"} << "shoot";
}

void tst_Gallery::badNames()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);

    const Result result = runGallery(arguments);
    QCOMPARE(result.code, 2);
    QVERIFY(result.out.isEmpty());
    QVERIFY2(result.err.contains(message), qPrintable(result.err));
}

void tst_Gallery::programExitCode()
{
    const QString program = QCoreApplication::applicationDirPath() + QStringLiteral("/lmgallery");
    QProcess process;
    // Nothing is shown, so no screen is needed to say what is wrong.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    environment.remove(QStringLiteral("DISPLAY"));
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    process.setProcessEnvironment(environment);
    process.start(program, {QStringLiteral("--page"), QStringLiteral("nowhere")});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 2);
    QVERIFY(process.readAllStandardOutput().isEmpty());
    QVERIFY(process.readAllStandardError().contains("theme, frame"));
}

void tst_Gallery::directoryThatCannotBeMade()
{
    QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();

    const Result result =
        runGallery({QStringLiteral("--shoot"), file.fileName() + QStringLiteral("/below")});
    QCOMPARE(result.code, 1);
    QVERIFY(result.out.isEmpty());
    QVERIFY(result.err.contains(QStringLiteral("below")));
}

void tst_Gallery::pagesAreDistinct()
{
    QStringList names = {QLatin1String(gallery::WindowName)};
    const QRegularExpression nameForm(QStringLiteral("^[a-z0-9]+$"));
    const QRegularExpression shotForm(QStringLiteral("^[a-z0-9-]+$"));
    for (const Page &page : gallery::pages()) {
        QVERIFY2(!names.contains(page.name()), qPrintable(page.name()));
        QVERIFY2(nameForm.match(page.name()).hasMatch(), qPrintable(page.name()));
        QVERIFY(!page.title().isEmpty());
        QVERIFY(!page.description().isEmpty());
        QCOMPARE(gallery::findPage(page.name()), &page);
        names.append(page.name());
        QStringList shotNames;
        for (const gallery::Shot &shot : page.shots()) {
            QVERIFY2(!shotNames.contains(shot.name), qPrintable(shot.name));
            QVERIFY2(shotForm.match(shot.name).hasMatch(), qPrintable(shot.name));
            QVERIFY(bool(shot.open) != bool(shot.exec));
            shotNames.append(shot.name);
        }
    }
    QVERIFY(!gallery::findPage(QStringLiteral("nowhere")));
    QVERIFY(!gallery::findPage(QString()));
}

void tst_Gallery::pageInEachTheme_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<QString>("name");

    for (const QString &theme : gallery::themeNames()) {
        for (const Page &page : gallery::pages()) {
            QTest::newRow(qPrintable(theme + QLatin1Char(' ') + page.name()))
                << theme << page.name();
        }
    }
}

void tst_Gallery::pageInEachTheme()
{
    QFETCH(QString, theme);
    QFETCH(QString, name);

    TalvoStyleManager::instance()->shiftStyle(gallery::themeFromName(theme));
    SignalLog log;
    QPointer<QWidget> view(gallery::findPage(name)->createView(log));
    view->show();
    QVERIFY(gallery::settle(view));
    QVERIFY(!view->findChildren<QWidget *>().isEmpty());

    // The page follows a switch while it is shown, and none when it is gone.
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::White);
    QVERIFY(gallery::settle(view));
    delete view;
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Blue);
}

void tst_Gallery::pageFitsTheWindow_data()
{
    QTest::addColumn<QString>("name");

    for (const Page &page : gallery::pages()) {
        QTest::newRow(qPrintable(page.name())) << page.name();
    }
}

void tst_Gallery::pageFitsTheWindow()
{
    QFETCH(QString, name);

    gallery::MainWindow window;
    window.showPage(name);
    window.show();
    QVERIFY(gallery::settle(&window));
    QCOMPARE(window.size(), QSize(1280, 800));

    auto *area = qobject_cast<QScrollArea *>(window.findChild<QStackedWidget *>()->currentWidget());
    QVERIFY(area);
    QCOMPARE(area->horizontalScrollBar()->maximum(), 0);
    const auto *list = window.findChild<QListWidget *>();
    QCOMPARE(list->currentItem()->text(), gallery::findPage(name)->title());
    QVERIFY(list->sizeHintForColumn(0) <= list->viewport()->width());
}

void tst_Gallery::shootWritesEveryPicture_data()
{
    QTest::addColumn<QString>("theme");

    for (const QString &theme : gallery::themeNames()) {
        QTest::newRow(qPrintable(theme)) << theme;
    }
}

void tst_Gallery::shootWritesEveryPicture()
{
    QFETCH(QString, theme);

    QTemporaryDir directory;
    const QString target = directory.filePath(QStringLiteral("new/folder"));
    const Result result =
        runGallery({QStringLiteral("--shoot"), target, QStringLiteral("--theme"), theme});
    QCOMPARE(result.err, QString());
    QCOMPARE(result.code, 0);

    QStringList paths;
    for (const QString &name : expectedPictures(theme)) {
        const QString path = QDir(target).filePath(name + QStringLiteral(".png"));
        const QImage image(path);
        QVERIFY2(!image.isNull(), qPrintable(path));
        QVERIFY2(!isUniform(image), qPrintable(path));
        paths.append(QDir::toNativeSeparators(path));
    }
    QCOMPARE(result.out, paths);
    QCOMPARE(QDir(target).entryList(QDir::Files).size(), paths.size());
    QCOMPARE(TalvoStyleManager::instance()->currentStyle(), TalvoStyleManager::Black);
}

void tst_Gallery::shootOnePage()
{
    QTemporaryDir directory;
    const Result result = runGallery({QStringLiteral("--shoot"), directory.path(),
                                      QStringLiteral("--page"), QStringLiteral("theme")});
    QCOMPARE(result.code, 0);
    const QStringList expected = {QStringLiteral("Black-theme.png"),
                                  QStringLiteral("Blue-theme.png"),
                                  QStringLiteral("White-theme.png")};
    QCOMPARE(QDir(directory.path()).entryList(QDir::Files, QDir::Name), expected);

    const QImage black(directory.filePath(expected.at(0)));
    const QImage blue(directory.filePath(expected.at(1)));
    const QImage white(directory.filePath(expected.at(2)));
    QVERIFY(black.pixelColor(1, 1).lightness() < 80);
    QVERIFY(white.pixelColor(1, 1).lightness() > 200);
    QVERIFY(blue.pixelColor(1, 1).blue() > blue.pixelColor(1, 1).red());
}

void tst_Gallery::programScalesPictures()
{
    const QString program = QCoreApplication::applicationDirPath() + QStringLiteral("/lmgallery");
    QTemporaryDir directory;
    QProcess process;
    process.start(program,
                  {QStringLiteral("--shoot"), directory.path(), QStringLiteral("--page"),
                   QStringLiteral("window"), QStringLiteral("--theme"), QStringLiteral("Blue"),
                   QStringLiteral("--scale"), QStringLiteral("2")});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
#ifdef Q_OS_WIN
    if (!QGuiApplication::primaryScreen()->geometry().contains(QRect(0, 0, 2560, 1600))) {
        QSKIP("Windows keeps a window within the screen, which is too small for this one");
    }
#endif
    QCOMPARE(QImage(directory.filePath(QStringLiteral("Blue-window.png"))).size(),
             QSize(2560, 1600));
}

void tst_Gallery::list()
{
    const Result result = runGallery({QStringLiteral("--list")});
    QCOMPARE(result.code, 0);
    QCOMPARE(result.err, QString());
    QStringList expected(QStringLiteral("window"));
    for (const Page &page : gallery::pages()) {
        expected.append(page.name());
        for (const gallery::Shot &shot : page.shots()) {
            expected.append(QStringLiteral("  ") + shot.name);
        }
    }
    QCOMPARE(result.out, expected);
    QVERIFY(result.out.contains(QStringLiteral("theme")));
    QVERIFY(result.out.contains(QStringLiteral("  dialog")));
}

void tst_Gallery::help()
{
    const Result result = runGallery({QStringLiteral("--help")});
    QCOMPARE(result.code, 0);
    QVERIFY(result.out.join(QLatin1Char('\n')).contains(QStringLiteral("--shoot")));
}

void tst_Gallery::logReportsSignals()
{
    SignalLog log;
    Sender sender;
    sender.setObjectName(QStringLiteral("origin"));
    log.watch(&sender, QStringLiteral("It"));
    log.watch(nullptr, QStringLiteral("Nothing"));

    Q_EMIT sender.plain();
    Q_EMIT sender.named(3, QStringLiteral("words"));
    Q_EMIT sender.carried(&sender, Qt::Vertical);
    Q_EMIT sender.carried(nullptr, Qt::Horizontal);
    Q_EMIT sender.unknown(sender);
    Q_EMIT sender.own(&sender);
    sender.setObjectName(
        QStringLiteral("renamed")); // A signal of QObject's, which is not reported.

    QCOMPARE(log.count(), 6);
    QCOMPARE(log.line(0), (QStringList{"It", "plain", ""}));
    QCOMPARE(log.line(1), (QStringList{"It", "named", "count = 3, text = \"words\""}));
    const QString vertical = log.line(2).at(2);
    QVERIFY2(vertical.contains(QStringLiteral("\"origin\"")), qPrintable(vertical));
    QVERIFY2(log.line(3).at(2).startsWith(QStringLiteral("object = null")),
             qPrintable(log.line(3).at(2)));
    QVERIFY2(vertical.endsWith(QStringLiteral("orientation = Vertical")), qPrintable(vertical));
    const QString own = log.line(5).at(2);
    QVERIFY2(own.endsWith(QStringLiteral("\"origin\"")), qPrintable(own));
    QVERIFY(log.line(6).isEmpty());
}

void tst_Gallery::logOutlivesSenders()
{
    SignalLog log;
    auto *sender = new Sender;
    log.watch(sender, QStringLiteral("It"));
    Q_EMIT sender->plain();
    delete sender;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(log.count(), 1);

    Sender survivor;
    {
        SignalLog shortLog;
        shortLog.watch(&survivor, QStringLiteral("It"));
    }
    Q_EMIT survivor.plain();
    QCOMPARE(log.count(), 1);
}

void tst_Gallery::logClears()
{
    SignalLog log;
    log.show();
    for (int i = 0; i < 1001; ++i) {
        log.note(QStringLiteral("Test"), QString::number(i));
    }
    QCOMPARE(log.count(), 1000);
    QCOMPARE(log.line(0).at(1), QStringLiteral("1"));

    auto *clear = log.findChild<QPushButton *>();
    QVERIFY(clear);
    QTest::mouseClick(clear, Qt::LeftButton);
    QCOMPARE(log.count(), 0);
}

int main(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    lmtest::prepareApplication();
    gallery::followTheme();
    tst_Gallery test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_gallery.moc"
