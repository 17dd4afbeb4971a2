/** @file
 * What hosts do to a file dialog, and what disks do: destruction in the middle of it, folders that
 * vanish or cannot be read, names that no disk takes.
 */

#include "filedialogtest.h"

#include <lmwidgets/framelessmessagebox.h>
#include <lmwidgets/titlebar.h>

#include <QAbstractItemView>
#include <QPointer>
#include <QToolButton>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

using namespace filedialogtest;
using LM::Widgets::FramelessFileDialog;
using LM::Widgets::FramelessMessageBox;
using LM::Widgets::TitleBar;

namespace {

constexpr int LongestName = 255;

QAbstractItemView *table(const QWidget *dialog)
{
    return dialog->findChild<QAbstractItemView *>(QStringLiteral("treeView"));
}

/** The entry @p name of the folder that is shown; invalid as long as it has not been read. */
QModelIndex entry(const QWidget *dialog, const QString &name)
{
    const QAbstractItemView *view = table(dialog);
    for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row) {
        const QModelIndex index = view->model()->index(row, 0, view->rootIndex());
        if (index.data().toString() == name) {
            return index;
        }
    }
    return QModelIndex();
}

void doubleClick(const QWidget *dialog, const QString &name)
{
    QAbstractItemView *view = table(dialog);
    const QPoint place = view->visualRect(entry(dialog, name)).center();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

/** How a user ends the dialog. */
enum Way {
    AcceptButton,
    AcceptKey,
    DoubleClick,
    EntryKey,
    CancelButton,
    EscapeKey,
    EntryEscape,
    CloseButton
};

bool accepts(int way)
{
    return way <= EntryKey;
}

void end(FramelessFileDialog *dialog, int way)
{
    const QString name = QStringLiteral("beta.las");
    switch (way) {
    case AcceptButton:
        enter(dialog, name);
        break;
    case AcceptKey:
        nameEdit(dialog)->setText(name);
        QTest::keyClick(nameEdit(dialog), Qt::Key_Return);
        break;
    case DoubleClick:
        doubleClick(dialog, name);
        break;
    case EntryKey:
        table(dialog)->setFocus();
        table(dialog)->setCurrentIndex(entry(dialog, name));
        QTest::keyClick(table(dialog), Qt::Key_Return);
        break;
    case CancelButton:
        QTest::mouseClick(cancelButton(dialog), Qt::LeftButton);
        break;
    case EscapeKey:
        QTest::keyClick(nameEdit(dialog), Qt::Key_Escape);
        break;
    case EntryEscape:
        table(dialog)->setFocus();
        QTest::keyClick(table(dialog), Qt::Key_Escape);
        break;
    default:
        QTest::mouseClick(dialog->getTitleBar()->titleButton(TitleBar::CloseButton),
                          Qt::LeftButton);
    }
}

} // namespace

class tst_FramelessFileDialogHosts : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void deletedInASlot_data();
    void deletedInASlot();
    void deletedLaterInASlot();
    void deletedWithFlags_data();
    void deletedWithFlags();
    void parentDestroyedInExec();
    void parentDestroyedInStaticFunction();
    void deletedWhileQtAsks();
    void deletedOnClose();
    void execInSlot();
    void browserDeletedByItsHost();
    void vanishingDirectory();
    void vanishingDirectoryOnSave();
    void vanishingFile();
    void unreadableDirectory();
    void saveNameIsAFolder();
    void longNames();
    void longFilters();
    void hostileNames_data();
    void hostileNames();
    void manyDialogs();

private:
    bool prepare(FramelessFileDialog *dialog);

    Folder m_folder;
};

bool tst_FramelessFileDialogHosts::prepare(FramelessFileDialog *dialog)
{
    return QTest::qWaitFor(
        [dialog] { return entry(dialog, QStringLiteral("beta.las")).isValid(); });
}

void tst_FramelessFileDialogHosts::deletedInASlot_data()
{
    QTest::addColumn<int>("way");
    QTest::addColumn<int>("emission");
    QTest::addColumn<bool>("byParent");
    const char *names[] = {"accept button", "Enter",  "double click",        "Enter in the table",
                           "cancel button", "Escape", "Escape in the table", "close button"};
    for (int way = AcceptButton; way <= CloseButton; ++way) {
        for (int emission = 1; emission <= (way == CloseButton ? 1 : 2); ++emission) {
            for (const bool byParent : {false, true}) {
                QTest::addRow("%s, signal %d, %s", names[way], emission,
                              byParent ? "parent" : "dialog")
                    << way << emission << byParent;
            }
        }
    }
}

/** The dialog, or its parent, is deleted by a slot of each of the two emissions. */
void tst_FramelessFileDialogHosts::deletedInASlot()
{
    QFETCH(int, way);
    QFETCH(int, emission);
    QFETCH(bool, byParent);
    const QPointer<QWidget> parent = new QWidget;
    const QPointer<FramelessFileDialog> dialog =
        new FramelessFileDialog(parent, QString(), m_folder.path());
    const QPointer<QFileDialog> inner = browser(dialog);
    int emissions = 0;
    const auto destroy = [&] {
        if (++emissions == emission) {
            delete (byParent ? parent.data() : static_cast<QWidget *>(dialog.data()));
        }
    };
    if (accepts(way)) {
        connect(dialog, &QDialog::accepted, this, destroy);
    } else {
        connect(dialog, &QDialog::rejected, this, destroy);
    }
    whenShown([this, way](Dialog *shown) {
        QVERIFY(prepare(shown));
        end(shown, way);
    });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    QVERIFY(!dialog);
    QCOMPARE(emissions, emission);
    QTRY_VERIFY(!inner);
    delete parent;
}

void tst_FramelessFileDialogHosts::deletedLaterInASlot()
{
    const QPointer<FramelessFileDialog> dialog =
        new FramelessFileDialog(nullptr, QString(), m_folder.path());
    connect(dialog, &QDialog::accepted, dialog, &QObject::deleteLater);
    dialog->show();
    QVERIFY(waitForShown(dialog));
    enter(dialog, QStringLiteral("alpha.las"));
    QVERIFY(dialog);
    QTRY_VERIFY(!dialog);
}

void tst_FramelessFileDialogHosts::deletedWithFlags_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("accept") << int(AcceptButton);
    QTest::newRow("double click") << int(DoubleClick);
    QTest::newRow("cancel") << int(CancelButton);
    QTest::newRow("Escape") << int(EscapeKey);
}

void tst_FramelessFileDialogHosts::deletedWithFlags()
{
    QFETCH(int, way);
    const QPointer<FramelessFileDialog> dialog =
        new FramelessFileDialog(nullptr, Qt::WindowFlags());
    const QPointer<QFileDialog> inner = browser(dialog);
    dialog->setViewMode(QFileDialog::Detail);
    dialog->setDirectory(m_folder.path());
    connect(dialog, &QDialog::accepted, this, [dialog] { delete dialog.data(); });
    connect(dialog, &QDialog::rejected, this, [dialog] { delete dialog.data(); });
    dialog->show();
    QVERIFY(waitForShown(dialog));
    QVERIFY(prepare(dialog));
    end(dialog, way);
    QVERIFY(!dialog);
    QTRY_VERIFY(!inner);
}

void tst_FramelessFileDialogHosts::parentDestroyedInExec()
{
    auto *parent = new QWidget;
    const QPointer<FramelessFileDialog> dialog =
        new FramelessFileDialog(parent, QString(), m_folder.path());
    const QPointer<QFileDialog> inner = browser(dialog);
    whenShown([parent](Dialog *) { delete parent; });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    QVERIFY(!dialog);
    // Nothing of its own is on the way, so it goes at once.
    QVERIFY(!inner);
}

void tst_FramelessFileDialogHosts::parentDestroyedInStaticFunction()
{
    QString filter = QStringLiteral("untouched");
    using Function = std::function<QUrl(QWidget *)>;
    const QUrl dir = m_folder.url();
    const Function functions[] = {
        [&](QWidget *parent) {
            return FramelessFileDialog::getOpenFileUrl(parent, QString(), dir, QString(), &filter);
        },
        [&](QWidget *parent) {
            const QList<QUrl> urls =
                FramelessFileDialog::getOpenFileUrls(parent, QString(), dir, QString(), &filter);
            return urls.isEmpty() ? QUrl() : urls.first();
        },
        [&](QWidget *parent) {
            return FramelessFileDialog::getSaveFileUrl(parent, QString(), dir, QString(), &filter);
        },
        [&](QWidget *parent) {
            return FramelessFileDialog::getExistingDirectoryUrl(parent, QString(), dir);
        }};
    for (const Function &function : functions) {
        auto *parent = new QWidget;
        whenShown([parent](Dialog *) { delete parent; });
        QCOMPARE(function(parent), QUrl());
        // The same while something is being accepted.
        const QPointer<QWidget> other = new QWidget;
        whenShown([other](Dialog *shown) {
            connect(shown, &QDialog::accepted, qApp, [other] { delete other.data(); });
            enter(shown, shown->fileMode() >= QFileDialog::Directory &&
                                 shown->fileMode() != QFileDialog::ExistingFiles
                             ? QStringLiteral("sub")
                             : QStringLiteral("alpha.las"));
        });
        QCOMPARE(function(other), QUrl());
        QVERIFY(!other);
    }
    QCOMPARE(filter, QStringLiteral("untouched"));
}

/** The browser asks something itself when it is accepted; its frame may be destroyed meanwhile. */
void tst_FramelessFileDialogHosts::deletedWhileQtAsks()
{
    const QPointer<FramelessFileDialog> dialog =
        new FramelessFileDialog(nullptr, QString(), m_folder.path());
    const QPointer<QFileDialog> inner = browser(dialog);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setConfirmOverwrite(true);
    bool asked = false;
    whenShown([&](Dialog *shown) {
        whenModal([&](QWidget *question) {
            delete dialog.data();
            asked = true;
            QTest::keyClick(question, Qt::Key_Escape);
        });
        enter(shown, QStringLiteral("alpha.las"));
    });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    QVERIFY(asked);
    QTRY_VERIFY(!inner);
}

void tst_FramelessFileDialogHosts::deletedOnClose()
{
    for (const int way : {AcceptButton, CancelButton, CloseButton}) {
        const QPointer<FramelessFileDialog> dialog =
            new FramelessFileDialog(nullptr, QString(), m_folder.path());
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->show();
        QVERIFY(waitForShown(dialog));
        QVERIFY(prepare(dialog));
        end(dialog, way);
        QTRY_VERIFY(!dialog);
    }
}

/** A slot of the first emission runs the dialog's own loop no more, but may ask with another. */
void tst_FramelessFileDialogHosts::execInSlot()
{
    QWidget parent;
    FramelessFileDialog dialog(&parent, QString(), m_folder.path());
    QUrl second;
    bool done = false;
    connect(&dialog, &QDialog::accepted, &parent, [&] {
        if (done) {
            return;
        }
        done = true;
        whenShown([&dialog](Dialog *shown) {
            QVERIFY(shown != &dialog);
            enter(shown, QStringLiteral("beta.las"));
        });
        second = FramelessFileDialog::getOpenFileUrl(&parent, QString(), m_folder.url());
    });
    whenShown([](Dialog *shown) { enter(shown, QStringLiteral("alpha.las")); });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(second, m_folder.url(QStringLiteral("beta.las")));
    QCOMPARE(dialog.selectedUrls(), QList<QUrl>({m_folder.url(QStringLiteral("alpha.las"))}));
}

void tst_FramelessFileDialogHosts::browserDeletedByItsHost()
{
    FramelessFileDialog dialog(nullptr, QString(), m_folder.path());
    whenShown([](Dialog *shown) {
        delete browser(shown);
        QTest::keyClick(shown, Qt::Key_Escape);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QCOMPARE(dialog.selectedUrls(), QList<QUrl>());
}

void tst_FramelessFileDialogHosts::vanishingDirectory()
{
    QWidget parent;
    m_folder.add(QStringLiteral("sub/inner.las"));
    const QString sub = m_folder.file(QStringLiteral("sub"));
    QString told;
    whenShown([&](Dialog *shown) {
        QTRY_VERIFY(entry(shown, QStringLiteral("inner.las")).isValid());
        QVERIFY(QDir(sub).removeRecursively());
        // Qt takes the entries away when the system tells it, which it may have missed if it was not
        // watching yet. What the browser never listed cannot be opened in any case: it says so and
        // stays.
        whenModal([&](QWidget *modal) {
            auto *box = qobject_cast<QMessageBox *>(modal);
            QVERIFY(box);
            told = box->text();
            box->reject();
        });
        nameEdit(shown)->setText(sub + QStringLiteral("/other.las"));
        QTest::keyClick(nameEdit(shown), Qt::Key_Return);
        QVERIFY(shown->isVisible());
        // Another folder serves as before.
        enter(shown, m_folder.file(QStringLiteral("alpha.las")));
    });
    QCOMPARE(FramelessFileDialog::getOpenFileUrl(&parent, QString(), QUrl::fromLocalFile(sub)),
             m_folder.url(QStringLiteral("alpha.las")));
    QVERIFY2(told.contains(QLatin1String("other.las")), qPrintable(told));
    QDir(m_folder.path()).mkdir(QStringLiteral("sub"));
}

void tst_FramelessFileDialogHosts::vanishingDirectoryOnSave()
{
    QWidget parent;
    const QString sub = m_folder.file(QStringLiteral("sub"));
    bool refused = false;
    whenShown([&](Dialog *shown) {
        nameEdit(shown)->setText(sub + QStringLiteral("/new.las"));
        QVERIFY(QDir(sub).removeRecursively());
        QTest::keyClick(nameEdit(shown), Qt::Key_Return);
        whenModal([&refused](QWidget *modal) {
            auto *box = qobject_cast<FramelessMessageBox *>(modal);
            QVERIFY(box);
            refused = true;
            box->reject();
        });
    });
    QCOMPARE(FramelessFileDialog::getSaveFileUrl(&parent, QString(), QUrl::fromLocalFile(sub)),
             QUrl());
    QVERIFY(refused);
    QDir(m_folder.path()).mkdir(QStringLiteral("sub"));
}

void tst_FramelessFileDialogHosts::vanishingFile()
{
    QWidget parent;
    m_folder.add(QStringLiteral("gone.las"));
    bool told = false;
    whenShown([&](Dialog *shown) {
        QTRY_VERIFY(entry(shown, QStringLiteral("gone.las")).isValid());
        table(shown)->setFocus();
        table(shown)->setCurrentIndex(entry(shown, QStringLiteral("gone.las")));
        QTRY_COMPARE(nameEdit(shown)->text(), QStringLiteral("gone.las"));
        QVERIFY(QFile::remove(m_folder.file(QStringLiteral("gone.las"))));
        whenModal([&](QWidget *modal) {
            told = qobject_cast<QMessageBox *>(modal);
            qobject_cast<QDialog *>(modal)->reject();
        });
        QTest::mouseClick(acceptButton(shown), Qt::LeftButton);
        QVERIFY(shown->isVisible());
        QTest::keyClick(nameEdit(shown), Qt::Key_Escape);
    });
    QCOMPARE(FramelessFileDialog::getOpenFileUrl(&parent, QString(), m_folder.url()), QUrl());
    QVERIFY(told);
}

void tst_FramelessFileDialogHosts::unreadableDirectory()
{
#ifdef Q_OS_WIN
    QSKIP("Windows keeps the rights of a folder in a list that QFile does not write");
#endif
    const QString path = m_folder.file(QStringLiteral("locked"));
    QVERIFY(QDir().mkdir(path));
    QFile inner(path + QStringLiteral("/inner.las"));
    QVERIFY(inner.open(QIODevice::WriteOnly));
    inner.close();
    const QFile::Permissions before = QFile::permissions(path);
    QVERIFY(QFile::setPermissions(path, QFile::Permissions()));

    QWidget parent;
    whenShown([&](Dialog *shown) {
        QCOMPARE(shown->directory(), QDir(path));
#ifdef Q_OS_UNIX
        if (geteuid() != 0) {
            QVERIFY(!entry(shown, QStringLiteral("inner.las")).isValid());
        }
#endif
        QTest::mouseClick(shown->findChild<QToolButton *>(QStringLiteral("toParentButton")),
                          Qt::LeftButton);
        QCOMPARE(shown->directory(), QDir(m_folder.path()));
        enter(shown, QStringLiteral("alpha.las"));
    });
    QCOMPARE(FramelessFileDialog::getOpenFileUrl(&parent, QString(), QUrl::fromLocalFile(path)),
             m_folder.url(QStringLiteral("alpha.las")));

    // A name for a new file is given out: whether it can be written is for the host to find out.
    whenShown([](Dialog *shown) { enter(shown, QStringLiteral("new.las")); });
    QCOMPARE(FramelessFileDialog::getSaveFileUrl(&parent, QString(), QUrl::fromLocalFile(path)),
             QUrl::fromLocalFile(path + QStringLiteral("/new.las")));
    QVERIFY(QFile::setPermissions(path, before));
    QVERIFY(QDir(path).removeRecursively());
}

void tst_FramelessFileDialogHosts::saveNameIsAFolder()
{
    QWidget parent;
    for (const char *name : {"sub", "sub/", "./sub", "..", "/"}) {
        const QDir before(m_folder.path());
        whenShown([&](Dialog *shown) {
            enter(shown, QLatin1String(name));
            // It is entered, and the user may go on from there.
            QVERIFY(shown->isVisible());
            QVERIFY(shown->directory() != before);
            QTest::keyClick(nameEdit(shown), Qt::Key_Escape);
        });
        QCOMPARE(FramelessFileDialog::getSaveFileUrl(&parent, QString(), m_folder.url()), QUrl());
        QVERIFY(!QApplication::activeModalWidget());
    }
}

void tst_FramelessFileDialogHosts::longNames()
{
    QWidget parent;
    const QString longest(LongestName, QLatin1Char('n'));
    whenShown([&](Dialog *shown) {
        // One letter more than the disk takes is not accepted, and nothing is lost of what is
        // typed.
        const QString tooLong = longest + QLatin1Char('n');
        enter(shown, tooLong);
        QVERIFY(shown->isVisible());
        QTest::keyClick(nameEdit(shown), Qt::Key_Return);
        QVERIFY(shown->isVisible());
        QCOMPARE(nameEdit(shown)->text(), tooLong);
        QCOMPARE(shown->width(), 800);
        enter(shown, longest);
    });
    QCOMPARE(FramelessFileDialog::getSaveFileUrl(&parent, QString(), m_folder.url()),
             m_folder.url(longest));

    // A file that has such a name does not widen the frame either.
    m_folder.add(longest);
    whenShown([&](Dialog *shown) {
        QTRY_VERIFY(entry(shown, longest).isValid());
        QCOMPARE(shown->size(), QSize(800, 600).boundedTo(shown->maximumSize()));
        doubleClick(shown, longest);
    });
    QCOMPARE(FramelessFileDialog::getOpenFileUrl(&parent, QString(), m_folder.url()),
             m_folder.url(longest));
    QVERIFY(QFile::remove(m_folder.file(longest)));
}

void tst_FramelessFileDialogHosts::longFilters()
{
    const QString filter =
        QStringLiteral("Point clouds (%1)").arg(QStringLiteral("*.las ").repeated(200));
    FramelessFileDialog dialog(nullptr, QString(), m_folder.path(), filter);
    dialog.show();
    QVERIFY(waitForShown(&dialog));
    QCOMPARE(dialog.size(), QSize(800, 600).boundedTo(dialog.maximumSize()));
    QCOMPARE(dialog.selectedNameFilter(), filter);
    QVERIFY(dialog.rect().contains(browser(&dialog)->geometry()));
}

void tst_FramelessFileDialogHosts::hostileNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("line feed") << QStringLiteral("a\nb.las");
    QTest::newRow("blanks") << QStringLiteral("   ");
    QTest::newRow("mark up") << QStringLiteral("<b>bold</b>");
    QTest::newRow("half a surrogate pair") << QString(QChar(0xD83D));
    QTest::newRow("right to left") << QStringLiteral("\u202egpj.exe");
    QTest::newRow("quotes") << QStringLiteral("\"a\" \"b\"");
    QTest::newRow("only quotes") << QStringLiteral("\"\"");
    QTest::newRow("arguments") << QStringLiteral("%1%2%3 %n.las");
    QTest::newRow("home") << QStringLiteral("~nobodyatall/a.las");
    QTest::newRow("many folders") << QStringLiteral("a/").repeated(3000) + QLatin1Char('b');
}

/** Whatever is typed, the function returns a file in a folder that exists, or nothing. */
void tst_FramelessFileDialogHosts::hostileNames()
{
    QFETCH(QString, name);
    QWidget parent;
    // A box may follow, or none.
    QTimer closer;
    connect(&closer, &QTimer::timeout, this, [] {
        if (auto *box = qobject_cast<FramelessMessageBox *>(QApplication::activeModalWidget())) {
            box->reject();
        }
    });
    closer.start(0);
    whenShown([&](Dialog *shown) {
        enter(shown, name);
        if (shown->isVisible()) {
            QTest::keyClick(nameEdit(shown), Qt::Key_Escape);
            QVERIFY(!shown->isVisible());
        }
    });
    const QUrl url = FramelessFileDialog::getSaveFileUrl(&parent, QString(), m_folder.url());
    if (!url.isEmpty()) {
        QVERIFY2(QFileInfo(url.toLocalFile()).absoluteDir().exists(), qPrintable(url.toString()));
    }
    QVERIFY(!QApplication::activeModalWidget());
}

/** Each call leaves its dialog with the parent; all of them go with it. */
void tst_FramelessFileDialogHosts::manyDialogs()
{
    constexpr int Count = 20;
    QScopedPointer<QWidget> parent(new QWidget);
    for (int i = 0; i < Count; ++i) {
        whenShown([](Dialog *shown) { QTest::keyClick(nameEdit(shown), Qt::Key_Escape); });
        FramelessFileDialog::getOpenFileUrl(parent.data(), QString(), m_folder.url());
    }
    QCOMPARE(parent->findChildren<FramelessFileDialog *>().size(), Count);
    parent.reset();
    const QWidgetList all = QApplication::allWidgets();
    QVERIFY(std::none_of(all.begin(), all.end(), [](QWidget *widget) {
        return qobject_cast<QFileDialog *>(widget) != nullptr;
    }));
}

LMTEST_MAIN(tst_FramelessFileDialogHosts)

#include "tst_framelessfiledialog_hosts.moc"
