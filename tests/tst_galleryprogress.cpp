#include "lmtest.h"

#include "mainwindow.h"
#include "shooter.h"
#include "signallog.h"

#include <lmwidgets/framelessprocessdialog.h>

#include <QPointer>
#include <QPushButton>
#include <QTimer>

using LM::Widgets::FramelessProcessDialog;

namespace {

constexpr int PollMs = 20;

QPushButton *findButton(const QWidget *parent, const char *text)
{
    for (QPushButton *button : parent->findChildren<QPushButton *>()) {
        if (button->text() == QLatin1String(text)) {
            return button;
        }
    }
    return nullptr;
}

bool logHas(const gallery::MainWindow &window, const char *sender, const char *event,
            const char *arguments)
{
    for (int i = 0; i < window.log()->count(); ++i) {
        const QStringList line = window.log()->line(i);
        if (line.contains(QLatin1String(sender)) && line.contains(QLatin1String(event)) &&
            line.join(QLatin1Char(' ')).contains(QLatin1String(arguments))) {
            return true;
        }
    }
    return false;
}

} // namespace

/** The gallery's long operations. */
class tst_GalleryProgress : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cancelInGuiThread();
    void endOfGuiThread();
    void dialogGoesWhileWorking();
    void cancelWorker();
    void endOfWorker();
    void special();

private:
    static FramelessProcessDialog *dialog(const gallery::MainWindow &window)
    {
        return window.findChild<FramelessProcessDialog *>();
    }
    static void show(gallery::MainWindow *window)
    {
        window->showPage(QStringLiteral("progress"));
        window->show();
        QVERIFY(gallery::settle(window));
    }
};

void tst_GalleryProgress::cancelInGuiThread()
{
    gallery::MainWindow window;
    show(&window);
    // The operation runs events itself once its dialog is there.
    bool wasModal = false;
    QTimer poll;
    connect(&poll, &QTimer::timeout, &window, [&] {
        if (dialog(window) && dialog(window)->isVisible()) {
            poll.stop();
            wasModal = QApplication::activeModalWidget() == dialog(window);
            dialog(window)->findChild<QPushButton *>()->click();
        }
    });
    poll.start(PollMs);
    QTest::mouseClick(findButton(&window, "In the GUI thread"), Qt::LeftButton);
    QVERIFY(wasModal);
    QVERIFY(!dialog(window));
    QVERIFY(logHas(window, "GUI thread", "canceled", ""));
    QVERIFY(logHas(window, "GUI thread", "returned", "canceled"));
}

void tst_GalleryProgress::endOfGuiThread()
{
    gallery::MainWindow window;
    show(&window);
    QTest::mouseClick(findButton(&window, "In the GUI thread"), Qt::LeftButton);
    QVERIFY(!dialog(window));
    QVERIFY(logHas(window, "GUI thread", "returned", "all tiles"));
}

void tst_GalleryProgress::dialogGoesWhileWorking()
{
    const QPointer<gallery::MainWindow> window(new gallery::MainWindow);
    show(window);
    QTimer poll;
    connect(&poll, &QTimer::timeout, this, [&] {
        if (dialog(*window)->isVisible()) {
            poll.stop();
            delete dialog(*window);
        }
    });
    poll.start(PollMs);
    QTest::mouseClick(findButton(window, "In the GUI thread"), Qt::LeftButton);
    QVERIFY(!dialog(*window));
    QVERIFY(!logHas(*window, "GUI thread", "returned", ""));
    QTest::mouseClick(findButton(window, "In a worker thread"), Qt::LeftButton);
    QVERIFY(dialog(*window));
    delete window; // takes the dialog and its thread with it
}

void tst_GalleryProgress::cancelWorker()
{
    gallery::MainWindow window;
    show(&window);
    QTest::mouseClick(findButton(&window, "In a worker thread"), Qt::LeftButton);
    QTRY_VERIFY(dialog(window)->isVisible());
    QTRY_VERIFY(dialog(window)->value() > 20);
    QTest::mouseClick(dialog(window)->findChild<QPushButton *>(), Qt::LeftButton);
    QTRY_VERIFY(!dialog(window));
    QVERIFY(logHas(window, "worker", "canceled", ""));
    QVERIFY(logHas(window, "worker", "finished", "canceled"));
}

void tst_GalleryProgress::endOfWorker()
{
    gallery::MainWindow window;
    show(&window);
    QTest::mouseClick(findButton(&window, "In a worker thread"), Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(!dialog(window), 20000);
    QVERIFY(logHas(window, "worker", "finished", "all points"));
}

void tst_GalleryProgress::special()
{
    gallery::MainWindow window;
    show(&window);
    for (const char *name : {"Wide", "At its size hint", "Long label", "Long words"}) {
        QTest::mouseClick(findButton(&window, name), Qt::LeftButton);
        QVERIFY(dialog(window)->isVisible());
        QTest::mouseClick(dialog(window)->findChild<QPushButton *>(), Qt::LeftButton);
        QTRY_VERIFY(!dialog(window));
        QVERIFY(logHas(window, name, "canceled", ""));
    }
    QTest::mouseClick(findButton(&window, "No cancel button"), Qt::LeftButton);
    QVERIFY(dialog(window)->isVisible());
    dialog(window)->close();
    QTRY_VERIFY(!dialog(window));
}

LMTEST_MAIN(tst_GalleryProgress)

#include "tst_galleryprogress.moc"
