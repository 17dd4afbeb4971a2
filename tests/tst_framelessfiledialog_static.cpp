#include "filedialogtest.h"

#include <lmwidgets/framelessmessagebox.h>

#include <QComboBox>
#include <QLabel>
#include <QTranslator>

using namespace filedialogtest;
using LM::Widgets::FramelessFileDialog;
using LM::Widgets::FramelessMessageBox;

namespace {

const QString Filters = QStringLiteral("Scans (*.las);;All (*)");
const QString Reason = QStringLiteral(
    "The file name cannot contain any of the following characters'?' '*' '<' '>' '\\' '/' '|'");

/** What a framed dialog was like while a static function ran it. */
struct Seen
{
    int count = 0;
    QString title;
    QString caption;
    QWidget *parent = nullptr;
    int fileMode = -1;
    int acceptMode = -1;
    int options = -1;
    QString directory;
    QString name;
    QStringList schemes;
    QStringList filters;
    QPointer<FramelessFileDialog> dialog;

    void look(FramelessFileDialog *shown)
    {
        ++count;
        title = shown->windowTitle();
        caption = browser(shown)->windowTitle();
        parent = shown->parentWidget();
        fileMode = shown->fileMode();
        acceptMode = shown->acceptMode();
        options = int(shown->options());
        directory = shown->directory().path();
        name = nameEdit(shown)->text();
        schemes = shown->supportedSchemes();
        filters = shown->nameFilters();
        dialog = shown;
    }
};

} // namespace

class tst_FramelessFileDialogStatic : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void framedDialog_data();
    void framedDialog();
    void openFileUrl();
    void openFileUrls();
    void saveFileUrl();
    void saveOverAFile();
    void existingDirectoryUrl_data();
    void existingDirectoryUrl();
    void cancelled();
    void start_data();
    void start();
    void selectedFilter();
    void defaultArguments();
    void ownership();
    void saveIsRefused_data();
    void saveIsRefused();
    void saveIsAccepted_data();
    void saveIsAccepted();
    void saveWithoutName();
    void saveWithADefaultSuffix();
    void titlesAreTranslated();
    void stringFunctionsAreStock_data();
    void stringFunctionsAreStock();
    void stringFunctionsGetTheirArguments();
    void saveFileNameIsNotChecked();

private:
    Folder m_folder;
};

enum Which { OpenOne, OpenMany, Save, Directory };

/** Calls one of the framed functions; its URLs, where it returns a single one, in a list. */
static QList<QUrl> call(int which, QWidget *parent, const QUrl &dir, QFileDialog::Options options,
                        QString *selectedFilter = nullptr,
                        const QStringList &schemes = QStringList())
{
    const QString caption = QStringLiteral("Caption");
    switch (which) {
    case OpenMany:
        return FramelessFileDialog::getOpenFileUrls(parent, caption, dir, Filters, selectedFilter,
                                                    options, schemes);
    case OpenOne:
        return {FramelessFileDialog::getOpenFileUrl(parent, caption, dir, Filters, selectedFilter,
                                                    options, schemes)};
    case Save:
        return {FramelessFileDialog::getSaveFileUrl(parent, caption, dir, Filters, selectedFilter,
                                                    options, schemes)};
    default:
        return {
            FramelessFileDialog::getExistingDirectoryUrl(parent, caption, dir, options, schemes)};
    }
}

void tst_FramelessFileDialogStatic::framedDialog_data()
{
    QTest::addColumn<int>("which");
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("fileMode");
    QTest::addColumn<int>("acceptMode");
    QTest::newRow("open") << int(OpenOne) << QStringLiteral("Open File")
                          << int(QFileDialog::ExistingFile) << int(QFileDialog::AcceptOpen);
    QTest::newRow("open several") << int(OpenMany) << QStringLiteral("Open File")
                                  << int(QFileDialog::ExistingFiles)
                                  << int(QFileDialog::AcceptOpen);
    QTest::newRow("save") << int(Save) << QStringLiteral("Save File") << int(QFileDialog::AnyFile)
                          << int(QFileDialog::AcceptSave);
    QTest::newRow("directory") << int(Directory) << QStringLiteral("Select Directory")
                               << int(QFileDialog::Directory) << int(QFileDialog::AcceptOpen);
}

void tst_FramelessFileDialogStatic::framedDialog()
{
    QFETCH(int, which);
    QFETCH(QString, title);
    QFETCH(int, fileMode);
    QFETCH(int, acceptMode);
    QWidget parent;
    Seen seen;
    const QStringList schemes = {QStringLiteral("file")};
    whenShown([&seen](Dialog *shown) {
        seen.look(shown);
        QVERIFY(shown->isModal());
        QCOMPARE(shown->viewMode(), QFileDialog::Detail);
        QTest::keyClick(nameEdit(shown), Qt::Key_Escape);
    });
    call(which, &parent, m_folder.url(),
         QFileDialog::DontUseNativeDialog | QFileDialog::ReadOnly |
             QFileDialog::DontUseCustomDirectoryIcons,
         nullptr, schemes);
    QCOMPARE(seen.count, 1);
    QCOMPARE(seen.title, title);
    QCOMPARE(seen.caption, QStringLiteral("Caption"));
    QCOMPARE(seen.parent, &parent);
    QCOMPARE(seen.fileMode, fileMode);
    QCOMPARE(seen.acceptMode, acceptMode);
    QCOMPARE(seen.options, int(QFileDialog::DontConfirmOverwrite | QFileDialog::ReadOnly |
                               QFileDialog::DontUseCustomDirectoryIcons));
    QCOMPARE(seen.directory, m_folder.path());
    QCOMPARE(seen.schemes, schemes);
    if (which != Directory) {
        QCOMPARE(seen.filters, Filters.split(QStringLiteral(";;")));
    }
}

void tst_FramelessFileDialogStatic::openFileUrl()
{
    QWidget parent;
    whenShown([](Dialog *shown) { enter(shown, QStringLiteral("alpha.las")); });
    QCOMPARE(FramelessFileDialog::getOpenFileUrl(&parent, QString(), m_folder.url()),
             m_folder.url(QStringLiteral("alpha.las")));
}

void tst_FramelessFileDialogStatic::openFileUrls()
{
    QWidget parent;
    whenShown([](Dialog *shown) { enter(shown, QStringLiteral("\"alpha.las\" \"beta.las\"")); });
    const QList<QUrl> urls =
        FramelessFileDialog::getOpenFileUrls(&parent, QString(), m_folder.url());
    QVERIFY(urls.contains(m_folder.url(QStringLiteral("alpha.las"))));
    QVERIFY(urls.contains(m_folder.url(QStringLiteral("beta.las"))));
    QCOMPARE(urls.size(), 2);
}

void tst_FramelessFileDialogStatic::saveFileUrl()
{
    QWidget parent;
    whenShown([](Dialog *shown) {
        QTest::keyClicks(nameEdit(shown), QStringLiteral("new.las"));
        QTest::keyClick(nameEdit(shown), Qt::Key_Return);
    });
    QCOMPARE(FramelessFileDialog::getSaveFileUrl(&parent, QString(), m_folder.url()),
             m_folder.url(QStringLiteral("new.las")));
}

void tst_FramelessFileDialogStatic::saveOverAFile()
{
    QWidget parent;
    whenShown([](Dialog *shown) {
        enter(shown, QStringLiteral("alpha.las"));
        QVERIFY(!shown->isVisible());
    });
    QCOMPARE(FramelessFileDialog::getSaveFileUrl(&parent, QString(), m_folder.url()),
             m_folder.url(QStringLiteral("alpha.las")));
    // A name that is a folder is entered, and nothing is saved under it.
    whenShown([this](Dialog *shown) {
        enter(shown, QStringLiteral("sub"));
        QVERIFY(shown->isVisible());
        QCOMPARE(shown->directory().path(), m_folder.file(QStringLiteral("sub")));
        enter(shown, QStringLiteral("inner.las"));
    });
    QCOMPARE(FramelessFileDialog::getSaveFileUrl(&parent, QString(), m_folder.url()),
             m_folder.url(QStringLiteral("sub/inner.las")));
}

void tst_FramelessFileDialogStatic::existingDirectoryUrl_data()
{
    QTest::addColumn<int>("options");
    QTest::addColumn<int>("fileMode");
    QTest::addColumn<bool>("dirsOnly");
    const int directoryOnly = 4; // Qt's name of it is deprecated
    QTest::newRow("folders") << int(QFileDialog::ShowDirsOnly) << directoryOnly << true;
    QTest::newRow("folders and files") << 0 << int(QFileDialog::Directory) << false;
}

void tst_FramelessFileDialogStatic::existingDirectoryUrl()
{
    QFETCH(int, options);
    QFETCH(int, fileMode);
    QFETCH(bool, dirsOnly);
    QWidget parent;
    whenShown([=](Dialog *shown) {
        QCOMPARE(int(shown->fileMode()), fileMode);
        QCOMPARE(shown->testOption(QFileDialog::ShowDirsOnly), dirsOnly);
        QCOMPARE(bool(shown->filter() & QDir::Files), !dirsOnly);
        enter(shown, QStringLiteral("sub"));
    });
    QCOMPARE(FramelessFileDialog::getExistingDirectoryUrl(&parent, QString(), m_folder.url(),
                                                          QFileDialog::Options(options)),
             m_folder.url(QStringLiteral("sub")));
}

void tst_FramelessFileDialogStatic::cancelled()
{
    QWidget parent;
    QString filter = QStringLiteral("untouched");
    const Act cancel = [](Dialog *shown) {
        nameEdit(shown)->setText(QStringLiteral("alpha.las"));
        QTest::mouseClick(cancelButton(shown), Qt::LeftButton);
    };
    const Act other = [](Dialog *shown) { shown->done(2); };
    for (const Act &act : {cancel, other}) {
        for (int which : {OpenOne, Save, Directory}) {
            whenShown(act);
            QCOMPARE(call(which, &parent, m_folder.url(), QFileDialog::Options(), &filter),
                     QList<QUrl>({QUrl()}));
        }
        whenShown(act);
        QCOMPARE(call(OpenMany, &parent, m_folder.url(), QFileDialog::Options(), &filter),
                 QList<QUrl>());
        // No box follows a save that was cancelled.
        QVERIFY(!QApplication::activeModalWidget());
    }
    QCOMPARE(filter, QStringLiteral("untouched"));
}

void tst_FramelessFileDialogStatic::start_data()
{
    QTest::addColumn<QUrl>("dir");
    QTest::addColumn<QString>("directory");
    QTest::addColumn<QString>("name");
    const QString here = m_folder.path();
    const QString none;
    QTest::newRow("folder") << m_folder.url() << here << none;
    QTest::newRow("folder with a slash")
        << QUrl(m_folder.url().toString() + QLatin1Char('/')) << here << none;
    QTest::newRow("folder, not clean") << m_folder.url(QStringLiteral("sub/../sub/."))
                                       << m_folder.file(QStringLiteral("sub")) << none;
    QTest::newRow("file") << m_folder.url(QStringLiteral("beta.las")) << here
                          << QStringLiteral("beta.las");
    QTest::newRow("new file") << m_folder.url(QStringLiteral("new.las")) << here
                              << QStringLiteral("new.las");
    // The test runs in this one.
    const QString current = m_folder.file(QStringLiteral("sub"));
    QTest::newRow("missing folder")
        << m_folder.url(QStringLiteral("none/a.las")) << current << QStringLiteral("a.las");
    QTest::newRow("file as a folder")
        << m_folder.url(QStringLiteral("beta.las/a.las")) << current << QStringLiteral("a.las");
    QTest::newRow("empty") << QUrl() << current << none;
    QTest::newRow("relative") << QUrl::fromLocalFile(QStringLiteral("..")) << here << none;
    QTest::newRow("relative file")
        << QUrl::fromLocalFile(QStringLiteral("../beta.las")) << here << QStringLiteral("beta.las");
}

void tst_FramelessFileDialogStatic::start()
{
    QFETCH(QUrl, dir);
    QWidget parent;
    Seen seen;
    const QString current = QDir::currentPath();
    QDir::setCurrent(m_folder.file(QStringLiteral("sub")));
    whenShown([&seen](Dialog *shown) {
        seen.look(shown);
        QTest::keyClick(nameEdit(shown), Qt::Key_Escape);
    });
    FramelessFileDialog::getSaveFileUrl(&parent, QString(), dir);
    QDir::setCurrent(current);
    QTEST(seen.directory, "directory");
    QTEST(seen.name, "name");
}

void tst_FramelessFileDialogStatic::selectedFilter()
{
    QWidget parent;
    // What it holds before is not asked for.
    QString filter = QStringLiteral("All (*)");
    whenShown([](Dialog *shown) {
        QCOMPARE(shown->selectedNameFilter(), QStringLiteral("Scans (*.las)"));
        enter(shown, QStringLiteral("alpha.las"));
    });
    call(OpenOne, &parent, m_folder.url(), QFileDialog::Options(), &filter);
    QCOMPARE(filter, QStringLiteral("Scans (*.las)"));
    for (int which : {OpenOne, OpenMany, Save}) {
        filter.clear();
        whenShown([](Dialog *shown) {
            QTest::keyClick(shown->findChild<QComboBox *>(QStringLiteral("fileTypeCombo")),
                            Qt::Key_Down);
            QCOMPARE(shown->selectedNameFilter(), QStringLiteral("All (*)"));
            // Qt lists the files anew in another thread, and looks for a name as it is written.
            QVERIFY(QTest::qWaitFor([shown] {
                nameEdit(shown)->clear();
                nameEdit(shown)->setText(QStringLiteral("notes.txt"));
                return acceptButton(shown)->isEnabled();
            }));
            QTest::mouseClick(acceptButton(shown), Qt::LeftButton);
        });
        QCOMPARE(call(which, &parent, m_folder.url(), QFileDialog::Options(), &filter),
                 QList<QUrl>({m_folder.url(QStringLiteral("notes.txt"))}));
        QCOMPARE(filter, QStringLiteral("All (*)"));
    }
    // It is received even when the name is refused then.
    filter.clear();
    whenShown([](Dialog *shown) {
        enter(shown, QStringLiteral("a*b.txt"));
        whenModal([](QWidget *box) { QTest::keyClick(box, Qt::Key_Escape); });
    });
    QCOMPARE(call(Save, &parent, m_folder.url(), QFileDialog::Options(), &filter),
             QList<QUrl>({QUrl()}));
    QCOMPARE(filter, QStringLiteral("Scans (*.las)"));
}

void tst_FramelessFileDialogStatic::defaultArguments()
{
    const auto run = [](const std::function<void()> &function) {
        Seen seen;
        whenShown([&seen](Dialog *shown) {
            seen.look(shown);
            QTest::keyClick(nameEdit(shown), Qt::Key_Escape);
        });
        function();
        delete seen.dialog;
        return seen;
    };
    const Seen one = run([] { FramelessFileDialog::getOpenFileUrl(); });
    QCOMPARE(one.directory, QDir::currentPath());
    QCOMPARE(one.options, int(QFileDialog::DontConfirmOverwrite));
    QCOMPARE(one.filters, QStringList(QStringLiteral("All Files (*)")));
    QCOMPARE(run([] { FramelessFileDialog::getOpenFileUrls(); }).count, 1);
    QCOMPARE(run([] { FramelessFileDialog::getSaveFileUrl(); }).count, 1);
    const Seen directory = run([] { FramelessFileDialog::getExistingDirectoryUrl(); });
    QVERIFY(directory.options & QFileDialog::ShowDirsOnly);
}

/** The dialog outlives the call as a child of its parent, chosen or not. */
void tst_FramelessFileDialogStatic::ownership()
{
    QPointer<FramelessFileDialog> dialogs[4];
    {
        QWidget parent;
        for (int which : {OpenOne, OpenMany, Save, Directory}) {
            const QString name = QLatin1String(which == Directory ? "sub" : "alpha.las");
            whenShown([&dialogs, which, name](Dialog *shown) {
                dialogs[which] = shown;
                QVERIFY(!shown->testAttribute(Qt::WA_DeleteOnClose));
                enter(shown, name);
            });
            call(which, &parent, m_folder.url(), QFileDialog::Options());
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(dialogs[which]);
            QCOMPARE(dialogs[which]->parentWidget(), &parent);
            QVERIFY(!dialogs[which]->isVisible());
            QCOMPARE(dialogs[which]->result(), int(QDialog::Accepted));
        }
        QCOMPARE(parent.findChildren<FramelessFileDialog *>().size(), 4);
    }
    for (const auto &dialog : dialogs) {
        QVERIFY(!dialog);
    }

    // Without a parent nobody owns it.
    QVERIFY(orphans().isEmpty());
    whenShown([](Dialog *shown) { QTest::keyClick(nameEdit(shown), Qt::Key_Escape); });
    FramelessFileDialog::getOpenFileUrl(nullptr, QString(), m_folder.url());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(orphans().size(), 1);
    qDeleteAll(orphans());
}

void tst_FramelessFileDialogStatic::saveIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("asterisk") << QStringLiteral("a*b.txt");
    QTest::newRow("question mark") << QStringLiteral("a?b.txt");
    QTest::newRow("less") << QStringLiteral("a<b.txt");
    QTest::newRow("greater") << QStringLiteral("a>b.txt");
    QTest::newRow("bar") << QStringLiteral("a|b.txt");
    QTest::newRow("missing folder") << QStringLiteral("none/a.txt");
    QTest::newRow("missing folders") << QStringLiteral("none/none/a.txt");
    QTest::newRow("file as a folder") << QStringLiteral("alpha.las/a.txt");
    QTest::newRow("begins with 7C") << QStringLiteral("7C.txt");
#ifndef Q_OS_WIN
    QTest::newRow("backslash") << QStringLiteral("a\\b.txt");
#endif
}

void tst_FramelessFileDialogStatic::saveIsRefused()
{
    QFETCH(QString, name);
    QWidget parent;
    int boxes = 0;
    whenShown([&](Dialog *shown) {
        enter(shown, name);
        whenModal([&boxes, shown](QWidget *modal) {
            auto *box = qobject_cast<FramelessMessageBox *>(modal);
            QVERIFY(box);
            ++boxes;
            QVERIFY(!shown->isVisible());
            QVERIFY(!box->parentWidget());
            QCOMPARE(box->icon(), QMessageBox::Critical);
            QCOMPARE(box->windowTitle(), QStringLiteral("Save failed"));
            QCOMPARE(box->text(), Reason);
            QCOMPARE(box->buttons().size(), 1);
            QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
        });
    });
    QCOMPARE(FramelessFileDialog::getSaveFileUrl(&parent, QString(), m_folder.url()), QUrl());
    // The dialog does not come back.
    QCOMPARE(boxes, 1);
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(!QFileInfo::exists(m_folder.file(name)));
}

void tst_FramelessFileDialogStatic::saveIsAccepted_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"plain", "two words.las", "100%.las", "a%7Cb.las", "a%7cb.las", "c#.las", "a;b&c=d.las",
          "\xe7\x82\xb9\xe4\xba\x91.las", "'quoted'.las", "[1]{2}.las", "7c.las", "sub/a.las",
          "50% #1/a.las", "sub/../a.las"}) {
        QTest::newRow(name) << QString::fromUtf8(name);
    }
#ifndef Q_OS_WIN
    // With drives in its paths a system takes the second slash for a part of the name.
    QTest::newRow("two slashes") << QStringLiteral("50% #1//a.las");
#endif
}

void tst_FramelessFileDialogStatic::saveIsAccepted()
{
    QFETCH(QString, name);
    QWidget parent;
    QDir(m_folder.path()).mkdir(QStringLiteral("50% #1"));
    const QString current = QDir::currentPath();
    for (const QString &here : {m_folder.path(), QDir::rootPath(), current}) {
        QDir::setCurrent(here);
        whenShown([name](Dialog *shown) { enter(shown, name); });
        const QUrl url = FramelessFileDialog::getSaveFileUrl(&parent, QString(), m_folder.url());
        QDir::setCurrent(current);
        QCOMPARE(QDir::cleanPath(url.toLocalFile()), QDir::cleanPath(m_folder.file(name)));
    }
}

/** Nothing is chosen without a name: the dialog stays. */
void tst_FramelessFileDialogStatic::saveWithoutName()
{
    QWidget parent;
    whenShown([](Dialog *shown) {
        enter(shown, QString());
        QVERIFY(shown->isVisible());
        QTest::keyClick(nameEdit(shown), Qt::Key_Return);
        QVERIFY(shown->isVisible());
        QTest::keyClick(nameEdit(shown), Qt::Key_Escape);
    });
    QCOMPARE(FramelessFileDialog::getSaveFileUrl(&parent, QString(), m_folder.url()), QUrl());
}

void tst_FramelessFileDialogStatic::saveWithADefaultSuffix()
{
    QWidget parent;
    whenShown([](Dialog *shown) {
        shown->setDefaultSuffix(QStringLiteral("las"));
        enter(shown, QStringLiteral("new"));
    });
    QCOMPARE(FramelessFileDialog::getSaveFileUrl(&parent, QString(), m_folder.url()),
             m_folder.url(QStringLiteral("new.las")));
}

namespace {

/** Translates each text into itself with its context before it. */
class ContextTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return QLatin1String(context) + QLatin1Char('>') + QLatin1String(text);
    }
    bool isEmpty() const override { return false; }
};

} // namespace

void tst_FramelessFileDialogStatic::titlesAreTranslated()
{
    QWidget parent;
    ContextTranslator translator;
    const QStringList titles = {QStringLiteral("FramelessFileDialog>Open File"),
                                QStringLiteral("FramelessFileDialog>Open File"),
                                QStringLiteral("MainWindow>Save File"),
                                QStringLiteral("FramelessFileDialog>Select Directory")};
    QCoreApplication::installTranslator(&translator);
    for (int which : {OpenOne, OpenMany, Save, Directory}) {
        Seen seen;
        whenShown([&seen](Dialog *shown) {
            seen.look(shown);
            shown->reject();
        });
        call(which, &parent, m_folder.url(), QFileDialog::Options());
        QCOMPARE(seen.title, titles.at(which));
    }
    const FramelessFileDialog dialog(&parent, Qt::WindowFlags());
    QCOMPARE(dialog.labelText(QFileDialog::Reject), QStringLiteral("FramelessFileDialog>Cancel"));
    QString title;
    QString text;
    whenShown([&](Dialog *shown) {
        enter(shown, QStringLiteral("a*b"));
        whenModal([&](QWidget *modal) {
            auto *box = qobject_cast<FramelessMessageBox *>(modal);
            title = box->windowTitle();
            text = box->text();
            box->reject();
        });
    });
    call(Save, &parent, m_folder.url(), QFileDialog::Options());
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(title, QStringLiteral("FramelessFileDialog>Save failed"));
    QCOMPARE(text, QLatin1String("FramelessFileDialog>") + Reason);
}

void tst_FramelessFileDialogStatic::stringFunctionsAreStock_data()
{
    QTest::addColumn<int>("which");
    QTest::newRow("open") << int(OpenOne);
    QTest::newRow("open several") << int(OpenMany);
    QTest::newRow("save") << int(Save);
    QTest::newRow("directory") << int(Directory);
}

void tst_FramelessFileDialogStatic::stringFunctionsAreStock()
{
    QFETCH(int, which);
    QWidget parent;
    const QString name = which == Directory ? QStringLiteral("sub") : QStringLiteral("alpha.las");
    bool seen = false;
    whenModal([&](QWidget *modal) {
        QCOMPARE(modal->metaObject()->className(), "QFileDialog");
        QVERIFY(modal->isWindow());
        QCOMPARE(modal->parentWidget(), &parent);
        QCOMPARE(modal->windowTitle(), QStringLiteral("Caption"));
        QVERIFY(parent.findChildren<FramelessFileDialog *>().isEmpty());
        seen = true;
        if (which == Save) {
            // An existing file is asked about, unlike in the framed dialog.
            whenModal([](QWidget *question) {
                auto *box = qobject_cast<QMessageBox *>(question);
                QVERIFY(box);
                QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
            });
        }
        enter(modal, name);
    });
    const QString caption = QStringLiteral("Caption");
    const QString dir = m_folder.path();
    const auto options = QFileDialog::DontUseNativeDialog;
    QStringList chosen;
    switch (which) {
    case OpenOne:
        chosen.append(
            FramelessFileDialog::getOpenFileName(&parent, caption, dir, Filters, nullptr, options));
        break;
    case OpenMany:
        chosen =
            FramelessFileDialog::getOpenFileNames(&parent, caption, dir, Filters, nullptr, options);
        break;
    case Save:
        chosen.append(
            FramelessFileDialog::getSaveFileName(&parent, caption, dir, Filters, nullptr, options));
        break;
    default:
        chosen.append(FramelessFileDialog::getExistingDirectory(
            &parent, caption, dir, options | QFileDialog::ShowDirsOnly));
    }
    QVERIFY(seen);
    QCOMPARE(chosen, QStringList(m_folder.file(name)));
}

void tst_FramelessFileDialogStatic::stringFunctionsGetTheirArguments()
{
    QWidget parent;
    QString filter = QStringLiteral("All (*)");
    const auto options = QFileDialog::DontUseNativeDialog | QFileDialog::ReadOnly;
    const auto look = [this, options](QWidget *modal) {
        auto *dialog = qobject_cast<QFileDialog *>(modal);
        QVERIFY(dialog);
        QCOMPARE(dialog->directory().path(), m_folder.path());
        QCOMPARE(dialog->nameFilters(), Filters.split(QStringLiteral(";;")));
        QCOMPARE(dialog->selectedNameFilter(), QStringLiteral("All (*)"));
        QVERIFY((dialog->options() & options) == options);
        dialog->selectNameFilter(QStringLiteral("Scans (*.las)"));
        enter(dialog, QStringLiteral("alpha.las"));
    };
    using Many = QStringList (*)(QWidget *, const QString &, const QString &, const QString &,
                                 QString *, QFileDialog::Options);
    const Many many = &FramelessFileDialog::getOpenFileNames;
    whenModal(look);
    QCOMPARE(FramelessFileDialog::getOpenFileName(&parent, QString(), m_folder.path(), Filters,
                                                  &filter, options),
             m_folder.file(QStringLiteral("alpha.las")));
    QCOMPARE(filter, QStringLiteral("Scans (*.las)"));
    filter = QStringLiteral("All (*)");
    whenModal(look);
    QCOMPARE(many(&parent, QString(), m_folder.path(), Filters, &filter, options),
             QStringList(m_folder.file(QStringLiteral("alpha.las"))));
    QCOMPARE(filter, QStringLiteral("Scans (*.las)"));
    filter = QStringLiteral("All (*)");
    whenModal(look);
    QCOMPARE(FramelessFileDialog::getSaveFileName(&parent, QString(), m_folder.path(), Filters,
                                                  &filter,
                                                  options | QFileDialog::DontConfirmOverwrite),
             m_folder.file(QStringLiteral("alpha.las")));
    QCOMPARE(filter, QStringLiteral("Scans (*.las)"));
}

void tst_FramelessFileDialogStatic::saveFileNameIsNotChecked()
{
    QWidget parent;
    whenModal([](QWidget *modal) {
        QVERIFY(!qobject_cast<FramelessFileDialog *>(modal));
        enter(modal, QStringLiteral("a*b.txt"));
    });
    QCOMPARE(FramelessFileDialog::getSaveFileName(&parent, QString(), m_folder.path(), QString(),
                                                  nullptr, QFileDialog::DontUseNativeDialog),
             m_folder.file(QStringLiteral("a*b.txt")));
}

LMTEST_MAIN(tst_FramelessFileDialogStatic)

#include "tst_framelessfiledialog_static.moc"
