/** @file
 * The gallery's start behind a splash screen, and its pages about starting and about the working
 * folders.
 */

#include "lmtest.h"
#include "standins.h"

#include "application.h"
#include "mainwindow.h"
#include "page.h"
#include "signallog.h"
#include "themes.h"

#include <lmwidgets/talvosplashscreen.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMovie>
#include <QPointer>
#include <QPushButton>
#include <QScopedPointer>
#include <QTextStream>
#include <QTimer>

using gallery::SignalLog;

namespace {

/** The button called @p text below @p parent. */
QAbstractButton *findButton(const QWidget *parent, const QString &text)
{
    for (QAbstractButton *button : parent->findChildren<QAbstractButton *>()) {
        if (button->text() == text) {
            return button;
        }
    }
    return nullptr;
}

TalvoSplashScreen *openSplash()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        auto *splash = qobject_cast<TalvoSplashScreen *>(widget);
        if (splash && splash->isVisible()) {
            return splash;
        }
    }
    return nullptr;
}

/** Writes down which windows are shown, and the beats of a splash screen, in their order. */
class StartWatcher : public QObject
{
public:
    StartWatcher() { qApp->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Show) {
            return false;
        }
        if (auto *splash = qobject_cast<TalvoSplashScreen *>(watched)) {
            m_lines.append(QStringLiteral("splash"));
            connect(splash, &QSplashScreen::messageChanged, this,
                    [this] { m_lines.append(QStringLiteral("beat")); });
        } else if (qobject_cast<gallery::MainWindow *>(watched)) {
            m_lines.append(QStringLiteral("window"));
        }
        return false;
    }

    QStringList lines() const { return m_lines; }

private:
    QStringList m_lines;
};

/** Runs the gallery with @p arguments until its window stands alone; returns what was shown. */
QStringList start(const QStringList &arguments)
{
    const StartWatcher watcher;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, qApp, [&watcher] {
        if (watcher.lines().contains(QStringLiteral("window")) && !openSplash()) {
            QCoreApplication::quit(); // does nothing before the event loop runs
        }
    });
    timer.start(10);
    QString text;
    QTextStream out(&text);
    QTextStream err(&text);
    const int code = gallery::run(QStringList(QStringLiteral("lmgallery")) + arguments, out, err);
    return code == 0 ? watcher.lines() : QStringList();
}

} // namespace

class tst_GalleryStartup : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void splashBeatsWhileLoading();
    void noSplash();
    void splashOnItsPage();
    void splashGoesWithItsPage();
    void busyButtonRests();
    void busyButtonRestsWhenHidden();
    void foldersAreFound();
    void folderIsChecked();
    void filesAreListed();
};

void tst_GalleryStartup::splashBeatsWhileLoading()
{
    const QStringList lines = start({});
    QStringList expected(QStringLiteral("splash"));
    for (int i = 0; i < gallery::pages().size(); ++i) {
        expected.append(QStringLiteral("beat"));
    }
    expected.append(QStringLiteral("window"));
    QCOMPARE(lines, expected);
}

void tst_GalleryStartup::noSplash()
{
    QCOMPARE(start({QStringLiteral("--no-splash")}), QStringList{QStringLiteral("window")});
}

void tst_GalleryStartup::splashOnItsPage()
{
    SignalLog log;
    const QScopedPointer<QWidget> view(
        gallery::findPage(QStringLiteral("startup"))->createView(log));
    view->show();
    findButton(view.data(), QStringLiteral("Show the splash screen"))->click();
    const QPointer<TalvoSplashScreen> splash(openSplash());
    QVERIFY(splash);
    QTRY_VERIFY(log.count() >= 2);
    QCOMPARE(log.line(0).at(1), QStringLiteral("messageChanged"));
    // A click hides it, and then it is of no use.
    QTest::mouseClick(splash.data(), Qt::LeftButton);
    QTRY_VERIFY(!splash);
}

void tst_GalleryStartup::splashGoesWithItsPage()
{
    SignalLog log;
    QScopedPointer<QWidget> view(gallery::findPage(QStringLiteral("startup"))->createView(log));
    view->show();
    findButton(view.data(), QStringLiteral("Show the splash screen"))->click();
    const QPointer<TalvoSplashScreen> splash(openSplash());
    QVERIFY(splash);
    view.reset();
    QTRY_VERIFY(!splash);
}

void tst_GalleryStartup::busyButtonRests()
{
    SignalLog log;
    const QScopedPointer<QWidget> view(
        gallery::findPage(QStringLiteral("startup"))->createView(log));
    view->show();
    auto *listen = findButton(view.data(), QStringLiteral("Listen to frameChanged()"));
    auto *frames = view->findChild<QLabel *>(QStringLiteral("galleryFrames"));
    auto *busy = view->findChild<QPushButton *>(QStringLiteral("galleryBusyButton"));
    auto *movie = view->findChild<QMovie *>();
    QVERIFY(listen && frames && busy && movie);
    QCOMPARE(movie->state(), QMovie::NotRunning);
    const qint64 firstIcon = busy->icon().cacheKey();
    QVERIFY(!busy->icon().isNull());

    listen->click();
    QTRY_COMPARE(frames->text(), QStringLiteral("3 frames"));
    QVERIFY(busy->icon().cacheKey() != firstIcon);
    listen->click();
    QTRY_COMPARE(movie->state(), QMovie::Paused);
    const QString last = frames->text();
    QSignalSpy spy(movie, &QMovie::updated);
    QVERIFY(!spy.wait(500));
    QCOMPARE(frames->text(), last);

    busy->click();
    QTRY_VERIFY(frames->text() != last);
}

void tst_GalleryStartup::busyButtonRestsWhenHidden()
{
    SignalLog log;
    const QScopedPointer<QWidget> view(
        gallery::findPage(QStringLiteral("startup"))->createView(log));
    auto *listen = findButton(view.data(), QStringLiteral("Listen to frameChanged()"));
    auto *movie = view->findChild<QMovie *>();
    listen->click();
    QCOMPARE(movie->state(), QMovie::NotRunning);
    view->show();
    QCOMPARE(movie->state(), QMovie::Running);
    view->hide();
    QTRY_COMPARE(movie->state(), QMovie::Paused);
    view->show();
    QCOMPARE(movie->state(), QMovie::Running);
}

void tst_GalleryStartup::foldersAreFound()
{
    const standins::World world;
    SignalLog log;
    const QScopedPointer<QWidget> view(
        gallery::findPage(QStringLiteral("folders"))->createView(log));
    view->show();
    auto *opener = findButton(view.data(), QStringLiteral("Find the working folders"));
    opener->click();
    QVERIFY(opener->isEnabled());
    QCOMPARE(log.count(), 2);
    QCOMPARE(log.line(0), (QStringList{"TalvoBasicUtil", "getDefaultPath",
                                       world.path(QStringLiteral("data/KVDTalvoModel"))}));
    QCOMPARE(log.line(1),
             (QStringList{"TalvoBasicUtil", "getDefaultTempPath", world.systemTemp()}));
}

void tst_GalleryStartup::folderIsChecked()
{
    const standins::World world;
    SignalLog log;
    const QScopedPointer<QWidget> view(
        gallery::findPage(QStringLiteral("folders"))->createView(log));
    view->show();
    auto *edit = view->findChild<QLineEdit *>();
    auto *check = findButton(view.data(), QStringLiteral("Check"));
    QVERIFY(edit && check);
    QCOMPARE(edit->text(), world.systemTemp());
    edit->setText(world.path(QStringLiteral("missing")));
    QTest::mouseClick(check, Qt::LeftButton);
    QCOMPARE(log.line(0).at(2), QStringLiteral("false"));
    QCOMPARE(edit->styleSheet(), QStringLiteral("border:1px solid #ff0000;"));
    edit->setText(world.systemTemp());
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(log.line(1).at(2), QStringLiteral("true"));
    QCOMPARE(edit->styleSheet(), QStringLiteral("border:1px solid #666666;"));
}

void tst_GalleryStartup::filesAreListed()
{
    SignalLog log;
    const QScopedPointer<QWidget> view(
        gallery::findPage(QStringLiteral("folders"))->createView(log));
    findButton(view.data(), QStringLiteral("List the theme's files"))->click();
    QCOMPARE(log.line(0).at(1), QStringLiteral("getAllFiles"));
    const QString files = log.line(0).at(2).section(QLatin1Char(' '), 0, 0);
    QVERIFY2(files.toInt() > 50, qPrintable(files));
}

int main(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    lmtest::prepareApplication();
    gallery::followTheme();
    tst_GalleryStartup test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_gallerystartup.moc"
