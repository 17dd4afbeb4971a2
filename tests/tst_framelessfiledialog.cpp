#include "filedialogtest.h"

#include <lmwidgets/talvostylemanager.h>
#include <lmwidgets/titlebar.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QPointer>
#include <QToolButton>
#include <QVBoxLayout>

#include <memory>
#include <vector>

using namespace filedialogtest;
using LM::Widgets::FramelessDialog;
using LM::Widgets::FramelessFileDialog;
using LM::Widgets::TitleBar;

namespace {

QStringList *messages = nullptr;
QtMessageHandler messagesBefore = nullptr;

/** Collects debug messages, with where they come from, as long as it lives. */
class MessageLog
{
public:
    MessageLog()
    {
        messages = &lines;
        messagesBefore = qInstallMessageHandler(
            [](QtMsgType type, const QMessageLogContext &context, const QString &message) {
                if (type != QtDebugMsg) {
                    messagesBefore(type, context, message);
                    return;
                }
                const QString file =
                    QDir::fromNativeSeparators(QString::fromLocal8Bit(context.file));
                messages->append(QStringLiteral("%1|%2|%3")
                                     .arg(message, file.section(QLatin1Char('/'), -2),
                                          QString::fromLatin1(context.function)));
            });
    }
    ~MessageLog()
    {
        qInstallMessageHandler(messagesBefore);
        messages = nullptr;
    }

    QStringList lines;
};

const char AcceptedLine[] = "FileDialog::slot_accepted|lmwidgets/framelessfiledialog.cpp|"
                            "void LM::Widgets::FramelessFileDialog::slot_accepted()";
const char RejectedLine[] = "FileDialog::slot_rejected|lmwidgets/framelessfiledialog.cpp|"
                            "void LM::Widgets::FramelessFileDialog::slot_rejected()";

/** Notes the end signals of @p dialog, each with whether it was still on the screen. */
void record(QDialog *dialog, QStringList &events)
{
    const auto note = [dialog, &events](const char *name) {
        events.append(QLatin1String(name) +
                      QLatin1String(dialog->isVisible() ? " (open)" : " (closed)"));
    };
    QObject::connect(dialog, &QDialog::accepted, dialog, [note] { note("accepted"); });
    QObject::connect(dialog, &QDialog::rejected, dialog, [note] { note("rejected"); });
    QObject::connect(dialog, &QDialog::finished, dialog, [note] { note("finished"); });
}

const QStringList AcceptedTwice = {QStringLiteral("accepted (open)"),
                                   QStringLiteral("accepted (closed)"),
                                   QStringLiteral("finished (closed)")};
const QStringList RejectedTwice = {QStringLiteral("rejected (open)"),
                                   QStringLiteral("rejected (closed)"),
                                   QStringLiteral("finished (closed)")};

} // namespace

class tst_FramelessFileDialog : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void interface();
    void construct();
    void constructWithFlags();
    void constructWithoutArguments();
    void caption();
    void neverNative();
    void oneClickAcceptsTwice();
    void cancelRejectsTwice_data();
    void cancelRejectsTwice();
    void closeButtonRejectsOnce();
    void escapeOutsideTheBrowser();
    void enterAccepts();
    void doubleClickAccepts();
    void logLines();
    void withFlagsStaysOpen();
    void withFlagsIsClosedByItsHost();
    void nineSignalsAreSilent();
    void execAgain();
    void shownAgain();
    void focus();
    void size();
    void themeSwitch();
    void browserFillsTheFrame();
    void bottomLabel();

private:
    Folder m_folder;
};

void tst_FramelessFileDialog::interface()
{
    const QMetaObject &meta = FramelessFileDialog::staticMetaObject;
    QCOMPARE(meta.className(), "LM::Widgets::FramelessFileDialog");
    QCOMPARE(meta.superClass(), &FramelessDialog::staticMetaObject);
    QCOMPARE(meta.propertyOffset(), meta.propertyCount());
    QCOMPARE(lmtest::ownMethods(meta),
             QStringList({QStringLiteral("signal currentChanged(QString path)"),
                          QStringLiteral("signal currentUrlChanged(QUrl url)"),
                          QStringLiteral("signal directoryEntered(QString directory)"),
                          QStringLiteral("signal directoryUrlEntered(QUrl directory)"),
                          QStringLiteral("signal fileSelected(QString file)"),
                          QStringLiteral("signal filesSelected(QStringList selected)"),
                          QStringLiteral("signal filterSelected(QString filter)"),
                          QStringLiteral("signal urlSelected(QUrl url)"),
                          QStringLiteral("signal urlsSelected(QList<QUrl> urls)"),
                          QStringLiteral("slot slot_accepted()"),
                          QStringLiteral("slot slot_rejected()")}));
}

void tst_FramelessFileDialog::construct()
{
    QWidget parent;
    FramelessFileDialog dialog(&parent, QStringLiteral("Caption"), m_folder.path(),
                               QStringLiteral("Scans (*.las);;Texts (*.txt)"));
    QCOMPARE(dialog.parentWidget(), &parent);
    QFileDialog *inner = browser(&dialog);
    QVERIFY(inner);
    QCOMPARE(inner->parentWidget(), &dialog);
    QVERIFY(!inner->isWindow());
    QCOMPARE(inner->windowFlags() & Qt::WindowType_Mask, Qt::WindowFlags());
    QCOMPARE(inner->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(inner->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(dialog.viewMode(), QFileDialog::Detail);
    QCOMPARE(dialog.options(), QFileDialog::Options(QFileDialog::DontConfirmOverwrite));
    QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
    QCOMPARE(dialog.fileMode(), QFileDialog::AnyFile);
    QCOMPARE(dialog.directory(), QDir(m_folder.path()));
    QCOMPARE(dialog.nameFilters(),
             QStringList({QStringLiteral("Scans (*.las)"), QStringLiteral("Texts (*.txt)")}));
    // No window flags but those of every frame.
    QCOMPARE(dialog.windowFlags(), FramelessDialog(&parent).windowFlags());
    QVERIFY(dialog.bottomWidget()->isHidden());
    QCOMPARE(dialog.size(), QSize(800, 600));

    auto *layout = qobject_cast<QVBoxLayout *>(dialog.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->itemAt(0)->widget(), inner);
    QCOMPARE(layout->itemAt(1)->widget()->objectName(), QStringLiteral("filedialogbottomlabel"));
    QCOMPARE(dialog.getMainLayout()->itemAt(2)->layout(), layout);
}

void tst_FramelessFileDialog::constructWithFlags()
{
    QWidget parent;
    FramelessFileDialog dialog(&parent, Qt::WindowStaysOnTopHint);
    QFileDialog *inner = browser(&dialog);
    QVERIFY(inner);
    QVERIFY(!inner->isWindow());
    QCOMPARE(inner->windowFlags() & Qt::WindowType_Mask, Qt::WindowFlags());
    QVERIFY(inner->windowFlags() & Qt::WindowStaysOnTopHint);
    QVERIFY(dialog.windowFlags() & Qt::WindowStaysOnTopHint);
    QVERIFY(dialog.windowFlags() & Qt::FramelessWindowHint);
    QVERIFY(dialog.isWindow());
    QCOMPARE(dialog.options(), QFileDialog::Options(QFileDialog::DontConfirmOverwrite));
    QCOMPARE(dialog.labelText(QFileDialog::Reject), QStringLiteral("Cancel"));
    QVERIFY(dialog.bottomWidget()->isHidden());
    QCOMPARE(dialog.size(), QSize(800, 600));
    QCOMPARE(dialog.layout()->count(), 2);
    // The caption stays when the mode changes, which would bring back the one of the platform.
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    QCOMPARE(dialog.labelText(QFileDialog::Reject), QStringLiteral("Cancel"));
}

void tst_FramelessFileDialog::constructWithoutArguments()
{
    FramelessFileDialog dialog;
    QVERIFY(!dialog.parentWidget());
    QVERIFY(browser(&dialog));
    QVERIFY(dialog.directory().exists());
    QCOMPARE(dialog.viewMode(), QFileDialog::Detail);
}

void tst_FramelessFileDialog::caption()
{
    FramelessFileDialog dialog(nullptr, QStringLiteral("Caption"), m_folder.path());
    QCOMPARE(browser(&dialog)->windowTitle(), QStringLiteral("Caption"));
    QCOMPARE(dialog.windowTitle(), QString());
    dialog.setWindowTitle(QStringLiteral("Title"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Title"));
    QCOMPARE(browser(&dialog)->windowTitle(), QStringLiteral("Caption"));
}

void tst_FramelessFileDialog::neverNative()
{
    for (const bool before : {true, false}) {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, before);
        FramelessFileDialog dialog(nullptr, QString(), m_folder.path());
        FramelessFileDialog other(nullptr, Qt::WindowFlags());
        // What the host has said for its own dialogs holds.
        QCOMPARE(QCoreApplication::testAttribute(Qt::AA_DontUseNativeDialogs), before);
        dialog.setOption(QFileDialog::DontUseNativeDialog, false);
        dialog.show();
        QVERIFY(waitForShown(&dialog));
        QVERIFY(!dialog.testOption(QFileDialog::DontUseNativeDialog));
        QVERIFY(browser(&dialog)->isVisible());
        QVERIFY(nameEdit(&dialog)->isVisible());
        QVERIFY(!browser(&dialog)->testAttribute(Qt::WA_DontShowOnScreen));
        QVERIFY(nameEdit(&other));
        // The class by which Qt tells whether a dialog may be native.
        QVERIFY(qstrcmp(browser(&dialog)->metaObject()->className(), "QFileDialog") != 0);
    }
}

void tst_FramelessFileDialog::oneClickAcceptsTwice()
{
    FramelessFileDialog dialog(nullptr, QString(), m_folder.path());
    QStringList events;
    record(&dialog, events);
    dialog.show();
    QVERIFY(waitForShown(&dialog));
    enter(&dialog, QStringLiteral("alpha.las"));
    QCOMPARE(events, AcceptedTwice);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.selectedFiles(), QStringList(m_folder.file(QStringLiteral("alpha.las"))));
}

void tst_FramelessFileDialog::cancelRejectsTwice_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("button") << false;
    QTest::newRow("Escape") << true;
}

void tst_FramelessFileDialog::cancelRejectsTwice()
{
    QFETCH(bool, escape);
    FramelessFileDialog dialog(nullptr, QString(), m_folder.path());
    QStringList events;
    record(&dialog, events);
    whenShown([escape](Dialog *shown) {
        if (escape) {
            QTest::keyClick(nameEdit(shown), Qt::Key_Escape);
        } else {
            QTest::mouseClick(cancelButton(shown), Qt::LeftButton);
        }
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QCOMPARE(events, RejectedTwice);
}

void tst_FramelessFileDialog::closeButtonRejectsOnce()
{
    MessageLog log;
    FramelessFileDialog dialog(nullptr, QString(), m_folder.path());
    QStringList events;
    record(&dialog, events);
    whenShown([](Dialog *shown) {
        QTest::mouseClick(shown->getTitleBar()->titleButton(TitleBar::CloseButton), Qt::LeftButton);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QCOMPARE(events, QStringList({QStringLiteral("rejected (closed)"),
                                  QStringLiteral("finished (closed)")}));
    QCOMPARE(log.lines, QStringList());
}

void tst_FramelessFileDialog::escapeOutsideTheBrowser()
{
    FramelessFileDialog dialog(nullptr, QString(), m_folder.path());
    QStringList events;
    record(&dialog, events);
    dialog.show();
    QVERIFY(waitForShown(&dialog));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(events, QStringList({QStringLiteral("rejected (closed)"),
                                  QStringLiteral("finished (closed)")}));
}

void tst_FramelessFileDialog::enterAccepts()
{
    FramelessFileDialog dialog(nullptr, QString(), m_folder.path());
    QStringList events;
    record(&dialog, events);
    dialog.show();
    QVERIFY(waitForShown(&dialog));
    QVERIFY(nameEdit(&dialog)->hasFocus());
    QTest::keyClicks(nameEdit(&dialog), QStringLiteral("new.las"));
    QTest::keyClick(nameEdit(&dialog), Qt::Key_Return);
    QCOMPARE(events, AcceptedTwice);
    QCOMPARE(dialog.selectedFiles(), QStringList(m_folder.file(QStringLiteral("new.las"))));
}

void tst_FramelessFileDialog::doubleClickAccepts()
{
    FramelessFileDialog dialog(nullptr, QString(), m_folder.path());
    QStringList events;
    record(&dialog, events);
    dialog.show();
    QVERIFY(waitForShown(&dialog));
    auto *view = dialog.findChild<QAbstractItemView *>(QStringLiteral("treeView"));
    QVERIFY(view && view->isVisible());
    const auto find = [view](const QString &name) {
        for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row) {
            const QModelIndex index = view->model()->index(row, 0, view->rootIndex());
            if (index.data().toString() == name) {
                return index;
            }
        }
        return QModelIndex();
    };
    const auto doubleClick = [view](const QModelIndex &index) {
        const QPoint place = view->visualRect(index).center();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    };
    QTRY_VERIFY(find(QStringLiteral("sub")).isValid());
    QTRY_VERIFY(find(QStringLiteral("beta.las")).isValid());
    // A folder is entered, which ends nothing.
    doubleClick(find(QStringLiteral("sub")));
    QCOMPARE(dialog.directory(), QDir(m_folder.file(QStringLiteral("sub"))));
    QCOMPARE(events, QStringList());
    dialog.setDirectory(m_folder.path());
    QTRY_VERIFY(find(QStringLiteral("beta.las")).isValid());
    doubleClick(find(QStringLiteral("beta.las")));
    QCOMPARE(events, AcceptedTwice);
    QCOMPARE(dialog.selectedFiles(), QStringList(m_folder.file(QStringLiteral("beta.las"))));
}

void tst_FramelessFileDialog::logLines()
{
    MessageLog log;
    FramelessFileDialog dialog(nullptr, QString(), m_folder.path());
    connect(&dialog, &QDialog::accepted, this, [&log] { log.lines.append(QStringLiteral("+")); });
    connect(&dialog, &QDialog::rejected, this, [&log] { log.lines.append(QStringLiteral("-")); });
    dialog.show();
    QVERIFY(waitForShown(&dialog));
    enter(&dialog, QStringLiteral("alpha.las"));
    QCOMPARE(log.lines,
             QStringList({QStringLiteral("+"), QLatin1String(AcceptedLine), QStringLiteral("+")}));
    log.lines.clear();
    dialog.show();
    QVERIFY(waitForShown(&dialog));
    QTest::mouseClick(cancelButton(&dialog), Qt::LeftButton);
    QCOMPARE(log.lines,
             QStringList({QStringLiteral("-"), QLatin1String(RejectedLine), QStringLiteral("-")}));
}

void tst_FramelessFileDialog::withFlagsStaysOpen()
{
    MessageLog log;
    FramelessFileDialog dialog(nullptr, Qt::WindowFlags());
    dialog.setDirectory(m_folder.path());
    QStringList events;
    record(&dialog, events);
    dialog.show();
    QVERIFY(waitForShown(&dialog));
    for (int i = 0; i < 2; ++i) {
        events.clear();
        enter(&dialog, QStringLiteral("alpha.las"));
        QCOMPARE(events, QStringList(QStringLiteral("accepted (open)")));
        events.clear();
        QTest::mouseClick(cancelButton(&dialog), Qt::LeftButton);
        QCOMPARE(events, QStringList(QStringLiteral("rejected (open)")));
        events.clear();
        QTest::keyClick(nameEdit(&dialog), Qt::Key_Escape);
        QCOMPARE(events, QStringList(QStringLiteral("rejected (open)")));
        // The browser in it is there for another choice.
        QVERIFY(dialog.isVisible());
        QVERIFY(browser(&dialog)->isVisible());
        QVERIFY(nameEdit(&dialog)->isVisible());
    }
    QCOMPARE(log.lines, QStringList());
    events.clear();
    QTest::mouseClick(dialog.getTitleBar()->titleButton(TitleBar::CloseButton), Qt::LeftButton);
    QCOMPARE(events, QStringList({QStringLiteral("rejected (closed)"),
                                  QStringLiteral("finished (closed)")}));
}

void tst_FramelessFileDialog::withFlagsIsClosedByItsHost()
{
    FramelessFileDialog dialog(nullptr, Qt::WindowFlags());
    dialog.setDirectory(m_folder.path());
    QStringList events;
    record(&dialog, events);
    connect(browser(&dialog), &QDialog::accepted, &dialog, [&dialog] { dialog.done(7); });
    whenShown([](Dialog *shown) { enter(shown, QStringLiteral("alpha.las")); });
    QCOMPARE(dialog.exec(), 7);
    QCOMPARE(events,
             QStringList({QStringLiteral("accepted (open)"), QStringLiteral("finished (closed)")}));
}

void tst_FramelessFileDialog::nineSignalsAreSilent()
{
    for (const bool withFlags : {false, true}) {
        QScopedPointer<FramelessFileDialog> dialog(
            withFlags ? new FramelessFileDialog(nullptr, Qt::WindowFlags())
                      : new FramelessFileDialog(nullptr));
        dialog->setNameFilters({QStringLiteral("Scans (*.las)"), QStringLiteral("All (*)")});
        const QMetaObject &meta = FramelessFileDialog::staticMetaObject;
        std::vector<std::unique_ptr<QSignalSpy>> ours;
        std::vector<std::unique_ptr<QSignalSpy>> browsers;
        for (int i = meta.methodOffset(); i < meta.methodOffset() + 9; ++i) {
            const QMetaMethod method = meta.method(i);
            QCOMPARE(method.methodType(), QMetaMethod::Signal);
            ours.push_back(std::make_unique<QSignalSpy>(dialog.data(), method));
            const int index = QFileDialog::staticMetaObject.indexOfSignal(method.methodSignature());
            QVERIFY2(index >= 0, method.methodSignature());
            browsers.push_back(std::make_unique<QSignalSpy>(
                browser(dialog.data()), QFileDialog::staticMetaObject.method(index)));
        }
        dialog->setDirectory(m_folder.path());
        dialog->show();
        QVERIFY(waitForShown(dialog.data()));
        auto *types = dialog->findChild<QComboBox *>(QStringLiteral("fileTypeCombo"));
        QTest::keyClick(types, Qt::Key_Down);
        auto *view = dialog->findChild<QAbstractItemView *>(QStringLiteral("listView"));
        QTRY_VERIFY(view->model()->rowCount(view->rootIndex()) == 4);
        view->setCurrentIndex(view->model()->index(0, 0, view->rootIndex()));
        QTest::mouseClick(dialog->findChild<QToolButton *>(QStringLiteral("toParentButton")),
                          Qt::LeftButton);
        dialog->setDirectory(m_folder.path());
        enter(dialog.data(), QStringLiteral("alpha.las"));
        // Some are told by dialogs of a platform only.
        Q_EMIT browser(dialog.data())->directoryUrlEntered(m_folder.url());
        Q_EMIT browser(dialog.data())->currentUrlChanged(m_folder.url());
        Q_EMIT browser(dialog.data())->urlSelected(m_folder.url());
        Q_EMIT browser(dialog.data())->urlsSelected({m_folder.url()});
        for (std::size_t i = 0; i < ours.size(); ++i) {
            const char *name = browsers.at(i)->signal().constData();
            QVERIFY2(browsers.at(i)->count() > 0, name);
            QVERIFY2(ours.at(i)->isEmpty(), name);
        }
    }
}

void tst_FramelessFileDialog::execAgain()
{
    FramelessFileDialog dialog(nullptr, QString(), m_folder.path());
    // None of them exists: Qt keeps the selection of one that does beside the name of the next.
    for (const char *name : {"one.las", "two.las", "three.las"}) {
        whenShown([name](Dialog *shown) {
            QVERIFY(browser(shown)->isVisible());
            enter(shown, QLatin1String(name));
        });
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QCOMPARE(dialog.selectedUrls(), QList<QUrl>({m_folder.url(QLatin1String(name))}));
    }
    whenShown([](Dialog *shown) { QTest::keyClick(nameEdit(shown), Qt::Key_Escape); });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
}

void tst_FramelessFileDialog::shownAgain()
{
    FramelessFileDialog dialog(nullptr, QString(), m_folder.path());
    dialog.show();
    QVERIFY(waitForShown(&dialog));
    const QRect place = browser(&dialog)->geometry();
    dialog.close();
    dialog.show();
    QVERIFY(waitForShown(&dialog));
    QVERIFY(browser(&dialog)->isVisible());
    QCOMPARE(browser(&dialog)->geometry(), place);
    // Hiding the browser for good remains the host's right.
    browser(&dialog)->hide();
    QVERIFY(!browser(&dialog)->isVisible());
}

void tst_FramelessFileDialog::focus()
{
    FramelessFileDialog dialog(nullptr, QString(), m_folder.path());
    for (int i = 0; i < 2; ++i) {
        dialog.show();
        QVERIFY(waitForShown(&dialog));
        // Without a display a window that is shown again is not told that it is active.
        QCOMPARE(dialog.focusWidget(), nameEdit(&dialog));
        acceptButton(&dialog)->setFocus();
        dialog.hide();
    }
}

void tst_FramelessFileDialog::size()
{
    FramelessFileDialog dialog(nullptr, QString(), m_folder.path());
    dialog.show();
    QVERIFY(waitForShown(&dialog));
    QCOMPARE(dialog.size(), QSize(800, 600).boundedTo(dialog.maximumSize()));
    QCOMPARE(dialog.minimumSize(), dialog.size());
    QCOMPARE(dialog.maximumSize(), dialog.size());
    // The frame's edges resize it where the host allows that, so the browser has no grip.
    QVERIFY(!browser(&dialog)->isSizeGripEnabled());
}

void tst_FramelessFileDialog::themeSwitch()
{
    FramelessFileDialog dialog(nullptr, QString(), m_folder.path());
    dialog.show();
    QVERIFY(waitForShown(&dialog));
    nameEdit(&dialog)->setText(QStringLiteral("alpha.las"));
    using LM::Widgets::TalvoStyleManager;
    const auto before = TalvoStyleManager::instance()->currentStyle();
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::White);
    TalvoStyleManager::instance()->shiftStyle(before);
    QCOMPARE(nameEdit(&dialog)->text(), QStringLiteral("alpha.las"));
    QVERIFY(browser(&dialog)->isVisible());
}

void tst_FramelessFileDialog::browserFillsTheFrame()
{
    FramelessFileDialog dialog(nullptr, QString(), m_folder.path());
    dialog.move(200, 100);
    dialog.show();
    QVERIFY(waitForShown(&dialog));
    const QRect content(QPoint(10, browser(&dialog)->y()), QPoint(789, 578));
    QCOMPARE(browser(&dialog)->geometry(), content);
    QVERIFY(browser(&dialog)->y() >= 58);
    QVERIFY(browser(&dialog)->y() <= 60);
}

void tst_FramelessFileDialog::bottomLabel()
{
    FramelessFileDialog dialog(nullptr, QString(), m_folder.path());
    auto *label = dialog.findChild<QLabel *>(QStringLiteral("filedialogbottomlabel"));
    QVERIFY(label);
    QCOMPARE(label->minimumHeight(), 10);
    QCOMPARE(label->maximumHeight(), 10);
    dialog.show();
    QVERIFY(waitForShown(&dialog));
    QVERIFY(label->isVisible());
    QCOMPARE(label->y(), browser(&dialog)->geometry().bottom() + 1);
}

LMTEST_MAIN(tst_FramelessFileDialog)

#include "tst_framelessfiledialog.moc"
