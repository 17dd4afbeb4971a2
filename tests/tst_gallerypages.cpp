#include "lmtest.h"

#include "mainwindow.h"
#include "page.h"
#include "pages/frameparts.h"
#include "shooter.h"
#include "signallog.h"
#include "themes.h"

#include <lmwidgets/customlayertablewidget.h>
#include <lmwidgets/framelessdialog.h>
#include <lmwidgets/framelesswaitingdialog.h>
#include <lmwidgets/talvostylemanager.h>
#include <lmwidgets/titlebar.h>

#include <QImage>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QScopedPointer>
#include <QThread>
#include <QTimer>
#include <QToolButton>

using gallery::SignalLog;
using LM::Widgets::FramelessDialog;
using LM::Widgets::FramelessWaitingDialog;
using LM::Widgets::TalvoStyleManager;
using LM::Widgets::TitleBar;

namespace {

/** The button or check box called @p text below @p parent that is not hidden. */
QAbstractButton *findButton(const QWidget *parent, const QString &text)
{
    for (QAbstractButton *button : parent->findChildren<QAbstractButton *>()) {
        if (button->text() == text && !button->isHidden()) {
            return button;
        }
    }
    return nullptr;
}

/** The shown window of the class @p T, or null. */
template <typename T>
T *openWindow()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *window = qobject_cast<T *>(widget)) {
            if (window->isVisible()) {
                return window;
            }
        }
    }
    return nullptr;
}

} // namespace

class tst_GalleryPages : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void layerHostKeepsItsLayers();
    void init() { TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Black); }

    void themeSwitchTakesEffectAtOnce();
    void titleBarFollowsTheTheme();
    void noticesReachTheLog();
    void noticesOfWorkersReachTheLog();
    void dialogFollowsItsSwitches();
    void dialogGoesWithItsPage();
    void helperWindowOpensAndCloses();
    void messageBoxResultsReachTheLog_data();
    void messageBoxResultsReachTheLog();
    void messageBoxSignalsReachTheLog();
};

void tst_GalleryPages::themeSwitchTakesEffectAtOnce()
{
    gallery::MainWindow window;
    window.show();
    QVERIFY(gallery::settle(&window));
    const QString blackSheet = qApp->styleSheet();
    QVERIFY(!blackSheet.isEmpty());
    QVERIFY(!blackSheet.contains(QStringLiteral("@theme@")));

    QAbstractButton *white = findButton(&window, QStringLiteral("White"));
    QAbstractButton *black = findButton(&window, QStringLiteral("Black"));
    QVERIFY(white && black);
    QVERIFY(black->isChecked());
    QTest::mouseClick(white, Qt::LeftButton);
    QCOMPARE(TalvoStyleManager::instance()->currentStyle(), TalvoStyleManager::White);
    QVERIFY(white->isChecked());
    QVERIFY(!black->isChecked());
    QVERIFY(qApp->styleSheet() != blackSheet);
    QVERIFY(qApp->palette().color(QPalette::Window).lightness() > 200);

    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Black);
    QVERIFY(black->isChecked());
    QCOMPARE(qApp->styleSheet(), blackSheet);
}

void tst_GalleryPages::titleBarFollowsTheTheme()
{
    SignalLog log;
    const QScopedPointer<QWidget> view(gallery::findPage(QStringLiteral("frame"))->createView(log));
    auto *bar = view->findChild<TitleBar *>();
    QVERIFY(bar);
    const auto closeImage = [bar] {
        return bar->titleButtonIcon(TitleBar::CloseButton).pixmap(16).toImage();
    };
    const QImage black = closeImage();
    QVERIFY(!black.isNull());
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Blue);
    QVERIFY(closeImage() != black);

    // The bar's signals are in the log, in the order in which they arrive.
    QTest::mouseClick(bar->titleButton(TitleBar::MaxButton), Qt::LeftButton);
    QTest::mouseClick(bar->titleButton(TitleBar::RestoreButton), Qt::LeftButton);
    QTest::mouseClick(bar->titleButton(TitleBar::MinButton), Qt::LeftButton);
    QTest::mouseClick(bar->titleButton(TitleBar::CloseButton), Qt::LeftButton);
    QStringList events;
    for (int i = 0; i < log.count(); ++i) {
        events.append(log.line(i).at(1));
    }
    QCOMPARE(events, (QStringList{"maximumed", "normaled", "minimuned", "closed"}));
}

void tst_GalleryPages::noticesReachTheLog()
{
    gallery::MainWindow window;
    window.showPage(QStringLiteral("theme"));
    window.show();
    QVERIFY(gallery::settle(&window));

    QAbstractButton *thickness =
        findButton(&window, QStringLiteral("updateSectionThickness(\"A-A\", 0.25)"));
    QVERIFY(thickness);
    const int before = window.log()->count();
    QTest::mouseClick(thickness, Qt::LeftButton);
    QCOMPARE(window.log()->count(), before + 1);
    QCOMPARE(window.log()->line(before), (QStringList{"TalvoStyleManager", "SectionThicknessUpdate",
                                                      "name = \"A-A\", thick = 0.25"}));
}

/** The waiting dialog's signals are there for threads to emit. */
void tst_GalleryPages::noticesOfWorkersReachTheLog()
{
    SignalLog log;
    FramelessWaitingDialog box;
    log.watch(&box, QStringLiteral("box"));
    const QScopedPointer<QThread> worker(
        QThread::create([&box] { Q_EMIT box.signalCancelButtonClicked(); }));
    worker->start();
    worker->wait();
    // Not written by the worker, but by the thread of the list.
    QCOMPARE(log.count(), 0);
    QTRY_COMPARE(log.count(), 1);
    QCOMPARE(log.line(0), (QStringList{"box", "signalCancelButtonClicked", ""}));
}

void tst_GalleryPages::dialogFollowsItsSwitches()
{
    gallery::MainWindow window;
    window.showPage(QStringLiteral("frame"));
    window.show();
    QVERIFY(gallery::settle(&window));
    const auto click = [&window](const char *text) {
        findButton(&window, QString::fromLatin1(text))->click();
    };
    click("Open the dialog");
    QPointer<FramelessDialog> dialog(openWindow<FramelessDialog>());
    QVERIFY(gallery::settle(dialog));
    QCOMPARE(dialog->maximumSize(), dialog->size());

    click("Resizable");
    QCOMPARE(dialog->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    dialog->resize(dialog->size() + QSize(40, 30));
    click("Resizable");
    QCOMPARE(dialog->minimumSize(), dialog->size());
    QCOMPARE(dialog->maximumSize(), dialog->size());

    TitleBar *bar = dialog->getTitleBar();
    QVERIFY(!bar->isTitleButtonVisible(TitleBar::MaxButton));
    click("Maximise button");
    QVERIFY(bar->isTitleButtonVisible(TitleBar::MaxButton));
    QVERIFY(!bar->isTitleButtonVisible(TitleBar::RestoreButton));
    click("Close button");
    QVERIFY(!bar->isTitleButtonVisible(TitleBar::CloseButton));
    QVERIFY(!dialog->GetApplyButton()->isVisible());
    click("Apply");
    QVERIFY(dialog->GetApplyButton()->isVisible());

    click("Open the dialog");
    QCOMPARE(openWindow<FramelessDialog>(), dialog.data());

    const int before = window.log()->count();
    QTest::mouseClick(dialog->GetApplyButton(), Qt::LeftButton);
    QTest::mouseClick(dialog->GetOKButton(), Qt::LeftButton);
    QTRY_VERIFY(!dialog);
    QStringList events;
    for (int i = before; i < window.log()->count(); ++i) {
        events.append(window.log()->line(i).at(1));
    }
    QVERIFY2(events.startsWith(QStringLiteral("clicked")),
             qPrintable(events.join(QLatin1Char(' '))));
    QVERIFY2(events.contains(QStringLiteral("accepted")),
             qPrintable(events.join(QLatin1Char(' '))));

    click("Open the dialog");
    QVERIFY(openWindow<FramelessDialog>());
}

void tst_GalleryPages::dialogGoesWithItsPage()
{
    SignalLog log;
    QScopedPointer<QWidget> view(gallery::findPage(QStringLiteral("frame"))->createView(log));
    view->show();
    findButton(view.data(), QStringLiteral("Open the dialog"))->click();
    const QPointer<FramelessDialog> dialog(openWindow<FramelessDialog>());
    QVERIFY(dialog);
    view.reset();
    QVERIFY(!dialog);
}

void tst_GalleryPages::helperWindowOpensAndCloses()
{
    SignalLog log;
    const QScopedPointer<QWidget> view(gallery::findPage(QStringLiteral("frame"))->createView(log));
    view->show();
    findButton(view.data(), QStringLiteral("Open a plain window"))->click();

    const QPointer<QWidget> window(openWindow<gallery::HelperWindow>());
    QVERIFY(gallery::settle(window));
    QVERIFY(window->windowFlags() & Qt::FramelessWindowHint);

    const QPoint before = window->pos();
    lmtest::mouse(window, QEvent::MouseButtonPress, QPoint(200, 20));
    lmtest::mouse(window, QEvent::MouseMove, QPoint(230, 45));
    lmtest::mouse(window, QEvent::MouseButtonRelease, QPoint(200, 20));
    QCOMPARE(window->pos(), before + QPoint(30, 25));

    findButton(window, QStringLiteral("Close"))->click();
    QTRY_VERIFY(!window);
}

void tst_GalleryPages::messageBoxResultsReachTheLog_data()
{
    QTest::addColumn<QString>("opener");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QStringList>("line");

    QTest::newRow("information") << "information"
                                 << "OK" << QStringList{"information", "returned", "Ok"};
    QTest::newRow("question") << "question"
                              << "No" << QStringList{"question", "returned", "No"};
    QTest::newRow("warning") << "warning"
                             << "Save and Exit" << QStringList{"warning", "returned", "Save"};
    QTest::newRow("critical") << "critical"
                              << "Retry" << QStringList{"critical", "returned", "Retry"};
    QTest::newRow("property") << "question, property"
                              << "Yes" << QStringList{"question", "returned", "Yes"};
    QTest::newRow("about") << "about"
                           << "OK" << QStringList{"about", "returned", ""};
    QTest::newRow("aboutQt") << "aboutQt"
                             << "OK" << QStringList{"aboutQt", "returned", ""};
}

void tst_GalleryPages::messageBoxResultsReachTheLog()
{
    QFETCH(QString, opener);
    QFETCH(QString, answer);
    QFETCH(QStringList, line);

    SignalLog log;
    const QScopedPointer<QWidget> view(
        gallery::findPage(QStringLiteral("messagebox"))->createView(log));
    view->show();
    bool clicked = false;
    QTimer::singleShot(0, view.data(), [&answer, &clicked] {
        QWidget *box = QApplication::activeModalWidget();
        if (!gallery::settle(box)) {
            return;
        }
        if (QAbstractButton *button = findButton(box, answer)) {
            clicked = button->isVisible();
            button->click();
        } else {
            box->close();
        }
    });
    findButton(view.data(), opener)->click();
    QVERIFY(clicked);
    QCOMPARE(log.count(), 1);
    QCOMPARE(log.line(0), line);
}

void tst_GalleryPages::messageBoxSignalsReachTheLog()
{
    SignalLog log;
    const QScopedPointer<QWidget> view(
        gallery::findPage(QStringLiteral("messagebox"))->createView(log));
    view->show();
    findButton(view.data(), QStringLiteral("No escape button"))->click();
    const QPointer<FramelessDialog> box(openWindow<FramelessDialog>());
    QVERIFY(gallery::settle(box));
    QVERIFY(!box->close());
    QCOMPARE(log.count(), 0);

    findButton(box, QStringLiteral("Feet"))->click();
    QTRY_VERIFY(!box);
    QStringList lines;
    for (int i = 0; i < log.count(); ++i) {
        lines.append(log.line(i).join(QLatin1Char(' ')));
    }
    // The second of the custom buttons has the index 1 for its result.
    QVERIFY2(lines.contains(QStringLiteral("No escape button finished result = 1")),
             qPrintable(lines.join(QLatin1Char('\n'))));
    QVERIFY2(
        !lines.filter(QRegularExpression(QStringLiteral("buttonClicked .*\"Feet\""))).isEmpty(),
        qPrintable(lines.join(QLatin1Char('\n'))));
}

void tst_GalleryPages::layerHostKeepsItsLayers()
{
    using Table = LM::Widgets::CustomLayerTableWidget;
    SignalLog log;
    const gallery::Page *page = gallery::findPage(QStringLiteral("layers"));
    QVERIFY(page);
    const QScopedPointer<QWidget> view(page->createView(log));
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view.data()));
    Table *list = nullptr;
    Table *panel = nullptr;
    for (Table *table : view->findChildren<Table *>()) {
        if (table->columnCount() == 6) {
            list = table;
        } else if (table->rowCount() == 3) {
            panel = table;
        }
    }
    QVERIFY(list && panel);
    const auto click = [list](int row, int column) {
        QTest::mouseClick(list->cellWidget(row, column), Qt::LeftButton);
    };
    auto *name = qobject_cast<QLabel *>(panel->cellWidget(0, 1));
    QVERIFY(name);
    QCOMPARE(list->rowCount(), 5);

    // The first layer is locked and stays; unlocked, it goes, and the others keep their places.
    QTRY_COMPARE(name->text(), list->item(0, 0)->text());
    click(0, 1);
    QCOMPARE(list->rowCount(), 5);
    const QString second = list->item(1, 0)->text();
    click(0, 3);
    click(0, 1);
    QCOMPARE(list->rowCount(), 4);
    QCOMPARE(list->item(0, 0)->text(), second);
    QCOMPARE(name->text(), second);
    click(0, 1);
    QCOMPARE(list->rowCount(), 3);

    list->item(0, 0)->setText(QStringLiteral("Streets"));
    QCOMPARE(name->text(), QStringLiteral("Streets"));
    QAbstractButton *add = findButton(view.data(), QStringLiteral("Add a layer"));
    QVERIFY(add);
    QTest::mouseClick(add, Qt::LeftButton);
    QCOMPARE(list->rowCount(), 4);
    click(3, 2);
    QCOMPARE(list->currentRow(), 3);
    QCOMPARE(name->text(), list->item(3, 0)->text());

    int updates = 0;
    int removals = 0;
    for (int i = 0; i < log.count(); ++i) {
        updates += log.line(i).at(1) == QLatin1String("signalUpdateModel");
        removals += log.line(i).at(1) == QLatin1String("signalRemoveSelectRow");
    }
    QCOMPARE(updates, 5);
    QCOMPARE(removals, 2);
}

int main(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    lmtest::prepareApplication();
    gallery::followTheme();
    tst_GalleryPages test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_gallerypages.moc"
