// Runs what the how-to pages show. The code is in the pages; what a host would bring stands here.

#include "lmtest.h"

#include <QCloseEvent>
#include <QPointer>
#include <QProgressBar>
#include <QScopedPointer>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <atomic>

// The names of these files are those of the pages in docs/ and theme/.
#include "extend_the_frame.inc"
#include "long_work.inc"
#include "remember_boxes.inc"
#include "switch_themes.inc"
#include "theme_readme.inc"
#include "waiting_dialog.inc"

using namespace LM::Widgets;

namespace long_work {

std::atomic<int> tilesWritten{0};
std::atomic<int> tileMs{0};

bool writeTile(int tile)
{
    Q_UNUSED(tile)
    QThread::msleep(static_cast<unsigned long>(tileMs.load()));
    ++tilesWritten;
    return true;
}

} // namespace long_work

namespace waiting_dialog {

std::atomic<int> readsLeft{0};
int partsSorted = 0;
bool boxWasVisible = true;

bool readNextPoints()
{
    QThread::msleep(2);
    return --readsLeft > 0;
}

void sortPart(int part)
{
    Q_UNUSED(part)
    ++partsSorted;
    boxWasVisible = boxWasVisible && FramelessWaitingDialog::instance()->isVisible();
}

} // namespace waiting_dialog

namespace extend_the_frame {

QStringList stored;

bool isNameTaken(const QString &name)
{
    return name == QLatin1String("Ground");
}

void store(const QString &name)
{
    stored.append(name);
}

} // namespace extend_the_frame

namespace {

QPushButton *pushButton(const QWidget *window, const QString &caption)
{
    const auto buttons = window->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text() == caption) {
            return button;
        }
    }
    return nullptr;
}

/** Calls @p function as soon as @p condition holds, from within whatever event loop runs then. */
void when(QObject *context, const std::function<bool()> &condition,
          const std::function<void()> &function)
{
    auto *timer = new QTimer(context);
    QObject::connect(timer, &QTimer::timeout, context, [=] {
        if (condition()) {
            delete timer;
            function();
        }
    });
    timer->start(1);
}

} // namespace

class tst_HowTos : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void exportTiles_writesAllAndLetsTheWindowLive();
    void exportTiles_stopsAtTheButton();
    void exportInThread_endsByItself();
    void exportInThread_stopsAtTheButtonAndStaysHidden();
    void exportInThread_windowIsDestroyed();
    void waiting_followsTheWorker();
    void waiting_stopAsksTheWorker();
    void waiting_doesNotCount();
    void waiting_sortsInTheGuiThread();
    void boxes_areRemembered();
    void boxes_checkedStateIsRememberedOnRequest();
    void rename_okValidates();
    void rename_closeButtonAndEscapeGoPastOnCancel();
    void rename_followsTheTheme();
    void resizable_limitsAreLifted();
    void project_buttons();
    void viewer_titleBar();
    void themes_sheetFollows();
    void themes_choiceIsRemembered();
    void themes_defaultThemesFunction();
    void themes_threePictures();

private:
    QTemporaryDir m_settings;
};

void tst_HowTos::initTestCase()
{
    lmtest::TestCase::initTestCase();
    QVERIFY(m_settings.isValid());
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
    QCoreApplication::setOrganizationName(QStringLiteral("lmwidgets"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_howtos"));
}

void tst_HowTos::init()
{
    QSettings().clear();
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Black);
    qApp->setStyleSheet(QString());
    long_work::tilesWritten = 0;
    long_work::tileMs = 1;
    extend_the_frame::stored.clear();
}

void tst_HowTos::exportTiles_writesAllAndLetsTheWindowLive()
{
    QWidget window;
    window.show();
    long_work::tileMs = 60;
    // The dialog appears because the estimate says more than four seconds.
    QPointer<FramelessProcessDialog> dialog;
    int beatsWhileShown = 0;
    QTimer beat;
    connect(&beat, &QTimer::timeout, &beat, [&] {
        dialog = window.findChild<FramelessProcessDialog *>();
        if (dialog && dialog->isVisible()) {
            ++beatsWhileShown;
            long_work::tileMs = 1;
        }
    });
    beat.start(1);
    QVERIFY(long_work::exportTiles(&window, 100));
    QCOMPARE(long_work::tilesWritten.load(), 100);
    QVERIFY2(beatsWhileShown > 10, qPrintable(QString::number(beatsWhileShown)));
    QVERIFY(!dialog);
}

void tst_HowTos::exportTiles_stopsAtTheButton()
{
    QWidget window;
    window.show();
    long_work::tileMs = 60;
    const auto shown = [&window] {
        auto *dialog = window.findChild<FramelessProcessDialog *>();
        return dialog && dialog->isVisible();
    };
    when(&window, shown, [&window] {
        auto *dialog = window.findChild<FramelessProcessDialog *>();
        QTest::mouseClick(pushButton(dialog, QStringLiteral("Stop")), Qt::LeftButton);
    });
    QVERIFY(!long_work::exportTiles(&window, 100));
    QVERIFY(long_work::tilesWritten < 100);
}

void tst_HowTos::exportInThread_endsByItself()
{
    QWidget window;
    window.show();
    long_work::exportInThread(&window, 50);
    const QPointer<FramelessProcessDialog> dialog(window.findChild<FramelessProcessDialog *>());
    QVERIFY(dialog);
    QVERIFY(!dialog->isModal());
    int highest = 0;
    when(
        dialog,
        [&] {
            highest = qMax(highest, dialog->value());
            return false;
        },
        [] {});
    QTRY_VERIFY(!dialog);
    QCOMPARE(long_work::tilesWritten.load(), 50);
    QVERIFY(highest > 0);
}

void tst_HowTos::exportInThread_stopsAtTheButtonAndStaysHidden()
{
    QWidget window;
    window.show();
    long_work::exportInThread(&window, 5000);
    const QPointer<FramelessProcessDialog> dialog(window.findChild<FramelessProcessDialog *>());
    QVERIFY(dialog);
    QTRY_VERIFY(dialog->isVisible());
    bool shownAgain = false;
    QTest::mouseClick(pushButton(dialog, QStringLiteral("Stop")), Qt::LeftButton);
    QVERIFY(dialog->wasCanceled());
    when(
        dialog,
        [&] {
            shownAgain = shownAgain || dialog->isVisible();
            return false;
        },
        [] {});
    QTRY_VERIFY(!dialog);
    QVERIFY(!shownAgain);
    QVERIFY(long_work::tilesWritten < 5000);
}

void tst_HowTos::exportInThread_windowIsDestroyed()
{
    QScopedPointer<QWidget> window(new QWidget);
    window->show();
    long_work::exportInThread(window.data(), 5000);
    QTRY_VERIFY(long_work::tilesWritten > 10);
    window.reset(); // returns when the worker has stopped
    const int written = long_work::tilesWritten;
    QVERIFY(written > 10 && written < 5000);
}

void tst_HowTos::waiting_followsTheWorker()
{
    QWidget window;
    window.show();
    waiting_dialog::readsLeft = 100;
    const QPointer<QThread> worker(waiting_dialog::readInThread(&window));
    FramelessWaitingDialog *box = FramelessWaitingDialog::instance();
    QTRY_VERIFY(box->isVisible());
    const auto labels = box->findChildren<QLabel *>();
    QVERIFY(std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
        return label->text() == QLatin1String("Reading points...");
    }));
    QTRY_VERIFY(!worker);
    QTRY_VERIFY(!box->isVisible());
    QVERIFY(waiting_dialog::readsLeft <= 0);
}

void tst_HowTos::waiting_stopAsksTheWorker()
{
    QWidget window;
    window.show();
    waiting_dialog::readsLeft = 100000;
    const QPointer<QThread> worker(waiting_dialog::readInThread(&window));
    FramelessWaitingDialog *box = FramelessWaitingDialog::instance();
    QTRY_VERIFY(box->isVisible());
    QPushButton *stop = pushButton(box, QStringLiteral("stop"));
    QVERIFY(stop && stop->isVisible());
    QTest::mouseClick(stop, Qt::LeftButton);
    QTRY_VERIFY(!worker);
    QTRY_VERIFY(!box->isVisible());
    QVERIFY(waiting_dialog::readsLeft > 0);
    box->startWaiting(QStringLiteral("again"));
    QVERIFY(!stop->isVisible());
    box->stopWaiting();
}

void tst_HowTos::waiting_doesNotCount()
{
    FramelessWaitingDialog *box = FramelessWaitingDialog::instance();
    Q_EMIT box->signalStartWaittingDialog(QStringLiteral("first"));
    Q_EMIT box->signalStartWaittingDialog(QStringLiteral("second"));
    QVERIFY(box->isVisible());
    Q_EMIT box->signalStopWaittingDialog();
    QVERIFY(!box->isVisible());
}

void tst_HowTos::waiting_sortsInTheGuiThread()
{
    QWidget window;
    window.show();
    waiting_dialog::sortParts(&window, 5);
    QCOMPARE(waiting_dialog::partsSorted, 5);
    QVERIFY(waiting_dialog::boxWasVisible);
    QVERIFY(!FramelessWaitingDialog::instance()->isVisible());
}

void tst_HowTos::boxes_areRemembered()
{
    {
        remember_boxes::PropertyPanel panel;
        panel.show();
        auto *line = panel.findChild<CollapsibleGroupBox *>(QStringLiteral("line"));
        QVERIFY(line && !line->isCollapsed());
        line->setCollapsed(true);
        panel.close();
    }
    remember_boxes::PropertyPanel panel;
    panel.show();
    QVERIFY(panel.findChild<CollapsibleGroupBox *>(QStringLiteral("line"))->isCollapsed());
    QVERIFY(!panel.findChild<CollapsibleGroupBox *>(QStringLiteral("colour"))->isCollapsed());
    QCOMPARE(QSettings().allKeys(),
             QStringList({QStringLiteral("CollapsibleGroupBox/propertyPanel/colour/collapsed"),
                          QStringLiteral("CollapsibleGroupBox/propertyPanel/line/collapsed"),
                          QStringLiteral("CollapsibleGroupBox/propertyPanel/points/collapsed")}));
}

void tst_HowTos::boxes_checkedStateIsRememberedOnRequest()
{
    // Unchecking folds and checking opens: what is restored is both, in either combination.
    for (const bool checked : {false, true}) {
        for (const bool collapsed : {false, true}) {
            QWidget window;
            window.setObjectName(QStringLiteral("window"));
            remember_boxes::RememberingBox box(&window);
            QSettings settings;
            box.setCheckable(true);
            box.setSaveCheckedState(true);
            box.save(settings);
            QVERIFY(settings.allKeys().isEmpty()); // it has no name yet
            box.setObjectName(QStringLiteral("box"));
            box.setChecked(checked);
            box.setCollapsed(collapsed);
            box.save(settings);

            remember_boxes::RememberingBox other(&window);
            other.setCheckable(true);
            other.setSaveCheckedState(true);
            other.setObjectName(QStringLiteral("box"));
            other.restore(settings);
            QCOMPARE(other.isChecked(), checked);
            QCOMPARE(other.isCollapsed(), collapsed);
            settings.clear();
        }
    }
}

void tst_HowTos::rename_okValidates()
{
    extend_the_frame::RenameDialog dialog(QStringLiteral("Water"));
    dialog.show();
    auto *edit = dialog.findChild<QLineEdit *>();
    edit->clear();
    QVERIFY(!dialog.GetOKButton()->isEnabled());
    edit->setText(QStringLiteral("Ground"));
    QString warning;
    when(
        &dialog, [] { return QApplication::activeModalWidget(); },
        [&warning] {
            auto *box = qobject_cast<FramelessMessageBox *>(QApplication::activeModalWidget());
            warning = box ? box->text() : QString();
            QApplication::activeModalWidget()->close();
        });
    QTest::mouseClick(dialog.GetOKButton(), Qt::LeftButton);
    QCOMPARE(warning, QStringLiteral("There is such a layer already."));
    QVERIFY(dialog.isVisible());
    edit->setText(QStringLiteral("Roads"));
    QTest::mouseClick(dialog.GetOKButton(), Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.name(), QStringLiteral("Roads"));
}

void tst_HowTos::rename_closeButtonAndEscapeGoPastOnCancel()
{
    class CountingDialog : public extend_the_frame::RenameDialog
    {
    public:
        using RenameDialog::RenameDialog;
        int cancels = 0;
        int rejects = 0;
        void onCancel() override
        {
            ++cancels;
            RenameDialog::onCancel();
        }
        void reject() override
        {
            ++rejects;
            RenameDialog::reject();
        }
    };
    CountingDialog dialog(QStringLiteral("Water"));
    dialog.show();
    QTest::mouseClick(dialog.getTitleBar()->titleButton(TitleBar::CloseButton), Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.rejects, 1);
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.rejects, 2);
    QCOMPARE(dialog.cancels, 0);
    dialog.show();
    QTest::mouseClick(dialog.GetCancelButton(), Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.rejects, 3);
    QCOMPARE(dialog.cancels, 1);
}

void tst_HowTos::rename_followsTheTheme()
{
    extend_the_frame::RenameDialog dialog(QStringLiteral("Water"));
    const QString black = dialog.findChild<QLineEdit *>()->styleSheet();
    QVERIFY(!black.isEmpty());
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Blue);
    QVERIFY(dialog.findChild<QLineEdit *>()->styleSheet() != black);
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Black);
    QCOMPARE(dialog.findChild<QLineEdit *>()->styleSheet(), black);
}

void tst_HowTos::resizable_limitsAreLifted()
{
    FramelessDialog plain;
    plain.show();
    QCOMPARE(plain.minimumSize(), plain.size());
    QCOMPARE(plain.maximumSize(), plain.size());

    FramelessDialog dialog;
    extend_the_frame::showResizable(dialog);
    QVERIFY(dialog.isVisible());
    QVERIFY(dialog.getTitleBar()->isTitleButtonVisible(TitleBar::MaxButton));
    const QPoint corner(dialog.width() - 1, dialog.height() - 1);
    const QSize before = dialog.size();
    const QPoint global = dialog.mapToGlobal(corner);
    lmtest::mouseAt(&dialog, QEvent::MouseButtonPress, global);
    lmtest::mouseAt(&dialog, QEvent::MouseMove, global + QPoint(40, 30));
    lmtest::mouseAt(&dialog, QEvent::MouseButtonRelease, global + QPoint(40, 30));
    QCOMPARE(dialog.size(), before + QSize(40, 30));
}

void tst_HowTos::project_buttons()
{
    extend_the_frame::ProjectDialog dialog;
    dialog.show();
    dialog.findChild<QLineEdit *>()->setText(QStringLiteral("North"));
    QVERIFY(dialog.getApplyButton()->isVisible());
    QTest::mouseClick(dialog.getApplyButton(), Qt::LeftButton);
    QCOMPARE(extend_the_frame::stored, QStringList(QStringLiteral("North")));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(dialog.isVisible());
    QTest::mouseClick(dialog.getOKButton(), Qt::LeftButton);
    QCOMPARE(extend_the_frame::stored.size(), 2);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY(dialog.getFramelessHelper()->widgetResizable());
}

void tst_HowTos::viewer_titleBar()
{
    extend_the_frame::Viewer viewer;
    viewer.resize(400, 300);
    viewer.show();
    QVERIFY(QTest::qWaitForWindowExposed(&viewer));
    auto *bar = viewer.findChild<TitleBar *>();
    QVERIFY(bar->isTitleButtonVisible(TitleBar::MaxButton));
    QVERIFY(!bar->isTitleButtonVisible(TitleBar::RestoreButton));

    const QPoint before = viewer.pos();
    const QPoint grip = viewer.mapToGlobal(QPoint(150, 24));
    lmtest::mouseAt(&viewer, QEvent::MouseButtonPress, grip);
    lmtest::mouseAt(&viewer, QEvent::MouseMove, grip + QPoint(25, 35));
    lmtest::mouseAt(&viewer, QEvent::MouseButtonRelease, grip + QPoint(25, 35));
    QCOMPARE(viewer.pos(), before + QPoint(25, 35));

    QTest::mouseClick(bar->titleButton(TitleBar::MaxButton), Qt::LeftButton);
    QVERIFY(viewer.isMaximized());
    QVERIFY(bar->isTitleButtonVisible(TitleBar::RestoreButton));
    QTest::mouseClick(bar->titleButton(TitleBar::RestoreButton), Qt::LeftButton);
    QVERIFY(!viewer.isMaximized());
    QTest::mouseClick(bar->titleButton(TitleBar::CloseButton), Qt::LeftButton);
    QVERIFY(!viewer.isVisible());
}

void tst_HowTos::themes_sheetFollows()
{
    switch_themes::followTheme();
    const QString black = qApp->styleSheet();
    QVERIFY(!black.isEmpty());
    QVERIFY(!black.contains(QLatin1String("@theme@")));
    switch_themes::switchToBlue();
    QVERIFY(qApp->styleSheet() != black);
    QVERIFY(qApp->styleSheet().contains(QLatin1String("/theme/Blue/qssimage/")));
    TalvoStyleManager::instance()->disconnectAllSignals();
    const QString blue = qApp->styleSheet();
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Black);
    QCOMPARE(qApp->styleSheet(), blue);
}

void tst_HowTos::themes_choiceIsRemembered()
{
    switch_themes::chooseTheme(TalvoStyleManager::White);
    QCOMPARE(TalvoStyleManager::instance()->currentStyle(), TalvoStyleManager::White);
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Black);
    switch_themes::restoreTheme();
    QCOMPARE(TalvoStyleManager::instance()->currentStyle(), TalvoStyleManager::White);
    QSettings().setValue(QStringLiteral("theme"), 17);
    switch_themes::restoreTheme();
    QVERIFY(TalvoStyleManager::instance()->currentThemePath().endsWith(QLatin1String("/Black/")));
}

void tst_HowTos::themes_defaultThemesFunction()
{
    theme_readme::applyTheme(TalvoStyleManager::White);
    QVERIFY(qApp->styleSheet().contains(QLatin1String("/theme/White/qssimage/")));
}

void tst_HowTos::themes_threePictures()
{
    VantoroToolButton button;
    theme_readme::giveThreePictures(&button);
    const QIcon icon = button.icon();
    QVERIFY(!icon.isNull());
    QVERIFY(icon.pixmap(20).toImage() != icon.pixmap(20, QIcon::Active).toImage());
    QVERIFY(icon.pixmap(20).toImage() != icon.pixmap(20, QIcon::Disabled).toImage());
}

LMTEST_MAIN(tst_HowTos)

#include "tst_howtos.moc"
