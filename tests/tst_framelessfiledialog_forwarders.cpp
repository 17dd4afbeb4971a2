#include "filedialogtest.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFileIconProvider>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>
#include <QToolButton>

using namespace filedialogtest;
using LM::Widgets::FramelessFileDialog;

namespace {

QString text(const QStringList &list)
{
    return list.join(QLatin1Char('|'));
}

QString text(const QList<QUrl> &urls)
{
    QStringList list;
    for (const QUrl &url : urls) {
        list.append(url.toString());
    }
    return text(list);
}

/** All that can be read from a dialog, under the names of the members that were asked. */
template <typename AnyDialog>
QMap<QString, QString> values(const AnyDialog &dialog)
{
    QMap<QString, QString> all;
    const auto number = [](int value) { return QString::number(value); };
    all[QStringLiteral("acceptMode")] = number(dialog.acceptMode());
    all[QStringLiteral("confirmOverwrite")] =
        number(!dialog.testOption(QFileDialog::DontConfirmOverwrite));
    all[QStringLiteral("defaultSuffix")] = dialog.defaultSuffix();
    all[QStringLiteral("directory")] = dialog.directory().path();
    all[QStringLiteral("directoryUrl")] = dialog.directoryUrl().toString();
    all[QStringLiteral("fileMode")] = number(dialog.fileMode());
    all[QStringLiteral("filter")] = number(int(dialog.filter()));
    all[QStringLiteral("history")] = text(dialog.history());
    for (const auto label : {QFileDialog::LookIn, QFileDialog::FileName, QFileDialog::FileType,
                             QFileDialog::Accept, QFileDialog::Reject}) {
        all[QStringLiteral("labelText %1").arg(label)] = dialog.labelText(label);
    }
    all[QStringLiteral("mimeTypeFilters")] = text(dialog.mimeTypeFilters());
    all[QStringLiteral("nameFilters")] = text(dialog.nameFilters());
    all[QStringLiteral("options")] = number(int(dialog.options()));
    for (int bit = 1; bit <= QFileDialog::DontUseCustomDirectoryIcons; bit <<= 1) {
        all[QStringLiteral("testOption %1").arg(bit)] =
            number(dialog.testOption(QFileDialog::Option(bit)));
    }
    all[QStringLiteral("selectedFiles")] = text(dialog.selectedFiles());
    all[QStringLiteral("selectedNameFilter")] = dialog.selectedNameFilter();
    all[QStringLiteral("selectedUrls")] = text(dialog.selectedUrls());
    all[QStringLiteral("sidebarUrls")] = text(dialog.sidebarUrls());
    all[QStringLiteral("supportedSchemes")] = text(dialog.supportedSchemes());
    all[QStringLiteral("viewMode")] = number(dialog.viewMode());
    return all;
}

/** The first of the members whose values differ, with both; empty when none does. */
QString difference(const QMap<QString, QString> &ours, const QMap<QString, QString> &stock)
{
    for (auto it = ours.begin(); it != ours.end(); ++it) {
        if (stock.value(it.key()) != it.value()) {
            return QStringLiteral("%1: ours \"%2\", stock \"%3\"")
                .arg(it.key(), it.value(), stock.value(it.key()));
        }
    }
    return ours.size() == stock.size() ? QString() : QStringLiteral("not the same members");
}

/** Writes down every signal of a browser with its arguments. */
class Recorder : public QObject
{
    Q_OBJECT

public:
    explicit Recorder(QFileDialog *dialog)
    {
        connect(dialog, &QFileDialog::currentChanged, this,
                [this](const QString &path) { note("currentChanged", path); });
        connect(dialog, &QFileDialog::directoryEntered, this,
                [this](const QString &path) { note("directoryEntered", path); });
        connect(dialog, &QFileDialog::directoryUrlEntered, this,
                [this](const QUrl &url) { note("directoryUrlEntered", url.toString()); });
        connect(dialog, &QFileDialog::fileSelected, this,
                [this](const QString &path) { note("fileSelected", path); });
        connect(dialog, &QFileDialog::filesSelected, this,
                [this](const QStringList &paths) { note("filesSelected", text(paths)); });
        connect(dialog, &QFileDialog::filterSelected, this,
                [this](const QString &filter) { note("filterSelected", filter); });
        connect(dialog, &QFileDialog::urlSelected, this,
                [this](const QUrl &url) { note("urlSelected", url.toString()); });
        connect(dialog, &QFileDialog::urlsSelected, this,
                [this](const QList<QUrl> &urls) { note("urlsSelected", text(urls)); });
        connect(dialog, &QDialog::accepted, this, [this] { note("accepted", QString()); });
        connect(dialog, &QDialog::rejected, this, [this] { note("rejected", QString()); });
        connect(dialog, &QDialog::finished, this,
                [this](int result) { note("finished", QString::number(result)); });
    }

    QStringList lines;

private:
    void note(const char *name, const QString &argument)
    {
        lines.append(QLatin1String(name) + QLatin1Char(' ') + argument);
    }
};

/** Gives a framed dialog the members that Qt 5.13 has taken out of the stock one's header. */
struct Stock : QFileDialog
{
    using QFileDialog::QFileDialog;
    void setConfirmOverwrite(bool on) { setOption(DontConfirmOverwrite, !on); }
    void setNameFilterDetailsVisible(bool on) { setOption(HideNameFilterDetails, !on); }
    void setReadOnly(bool on) { setOption(ReadOnly, on); }
    void setResolveSymlinks(bool on) { setOption(DontResolveSymlinks, !on); }
};

/** One call on a framed dialog and the same call on a stock one. */
struct Step
{
    const char *name;
    std::function<void(FramelessFileDialog &)> ours;
    std::function<void(Stock &)> stock;
};

#define STEP(...)                                                                                  \
    Step                                                                                           \
    {                                                                                              \
#__VA_ARGS__, [=](FramelessFileDialog & dialog) { dialog.__VA_ARGS__; }, [=                \
        ](Stock & dialog) { dialog.__VA_ARGS__; }                                                  \
    }

/** Every setter, in an order in which each has something to change. */
QVector<Step> script(const Folder &folder)
{
    const QString path = folder.path();
    const QString missing = folder.file(QStringLiteral("missing"));
    const QString sub = folder.file(QStringLiteral("sub"));
    const QString s = QStringLiteral("las");
    const QStringList scans = {QStringLiteral("Scans (*.las *.laz)"), QStringLiteral("All (*)")};
    const QStringList mimes = {QStringLiteral("text/plain"),
                               QStringLiteral("application/octet-stream")};
    const QStringList none;
    const QString empty;
    const QUrl url = folder.url();
    const QUrl beta = folder.url(QStringLiteral("beta.las"));
    return {
        STEP(setDirectory(QDir(path))),
        STEP(setDirectory(sub)),
        STEP(setDirectory(missing)),
        STEP(setDirectory(empty)),
        STEP(setDirectoryUrl(url)),
        STEP(setDirectoryUrl(QUrl())),
        STEP(setDirectory(path)),
        STEP(setFileMode(QFileDialog::ExistingFile)),
        STEP(setFileMode(QFileDialog::ExistingFiles)),
        STEP(setFileMode(QFileDialog::Directory)),
        STEP(setFileMode(QFileDialog::AnyFile)),
        STEP(setAcceptMode(QFileDialog::AcceptSave)),
        STEP(setAcceptMode(QFileDialog::AcceptOpen)),
        STEP(setViewMode(QFileDialog::List)),
        STEP(setViewMode(QFileDialog::Detail)),
        STEP(setDefaultSuffix(s)),
        STEP(setDefaultSuffix(QStringLiteral(".laz"))),
        STEP(setDefaultSuffix(empty)),
        STEP(setNameFilter(QStringLiteral("Scans (*.las);;Texts (*.txt);;All (*)"))),
        STEP(selectNameFilter(QStringLiteral("Texts (*.txt)"))),
        STEP(selectNameFilter(QStringLiteral("not there"))),
        STEP(setNameFilters(scans)),
        STEP(setNameFilterDetailsVisible(false)),
        STEP(setNameFilterDetailsVisible(true)),
        STEP(setNameFilters(none)),
        STEP(setMimeTypeFilters(mimes)),
        STEP(selectMimeTypeFilter(QStringLiteral("application/octet-stream"))),
        STEP(setMimeTypeFilters(none)),
        STEP(setNameFilters(scans)),
        STEP(setFilter(QDir::Files | QDir::Hidden)),
        STEP(setFilter(QDir::AllDirs | QDir::AllEntries | QDir::NoDotAndDotDot)),
        STEP(setHistory({path, sub})),
        STEP(setLabelText(QFileDialog::LookIn, QStringLiteral("Where"))),
        STEP(setLabelText(QFileDialog::FileName, QStringLiteral("Name"))),
        STEP(setLabelText(QFileDialog::FileType, QStringLiteral("Kind"))),
        STEP(setLabelText(QFileDialog::Accept, QStringLiteral("Take"))),
        STEP(setLabelText(QFileDialog::Reject, QStringLiteral("Leave"))),
        STEP(setReadOnly(true)),
        STEP(setReadOnly(false)),
        STEP(setResolveSymlinks(false)),
        STEP(setResolveSymlinks(true)),
        STEP(setConfirmOverwrite(true)),
        STEP(setConfirmOverwrite(false)),
        STEP(setOption(QFileDialog::ShowDirsOnly)),
        STEP(setOption(QFileDialog::ShowDirsOnly, false)),
        STEP(setOption(QFileDialog::DontUseCustomDirectoryIcons, true)),
        STEP(setSidebarUrls({url, QUrl::fromLocalFile(sub)})),
        STEP(setSidebarUrls({})),
        STEP(setSupportedSchemes({QStringLiteral("file"), QStringLiteral("ftp")})),
        STEP(setSupportedSchemes(none)),
        STEP(selectFile(QStringLiteral("alpha.las"))),
        STEP(selectFile(missing)),
        STEP(selectFile(empty)),
        STEP(selectUrl(beta)),
        STEP(selectUrl(QUrl())),
    };
}

#undef STEP

} // namespace

class tst_FramelessFileDialogForwarders : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        TestCase::initTestCase();
        // The stock dialog of some systems is their own and has no widgets.
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    }
    void sameAsStock_data();
    void sameAsStock();
    void sameUserAsStock();
    void settersChangeSomething();
    void readsTheBrowser();
    void remoteUrl();
    void objects();
    void state();
    void setOptions_data();
    void setOptions();
    void savingOverAFileIsNotConfirmed();
    void confirmOverwriteAsks();
    void withoutBrowser();

private:
    Folder m_folder;
};

void tst_FramelessFileDialogForwarders::sameAsStock_data()
{
    QTest::addColumn<bool>("withFlags");
    QTest::addColumn<bool>("shown");
    QTest::newRow("hidden") << false << false;
    QTest::newRow("shown") << false << true;
    QTest::newRow("flags, hidden") << true << false;
    QTest::newRow("flags, shown") << true << true;
}

/** The same script of calls on both gives the same values and signals after each of them. */
void tst_FramelessFileDialogForwarders::sameAsStock()
{
    QFETCH(bool, withFlags);
    QFETCH(bool, shown);
    const QScopedPointer<FramelessFileDialog> ours(
        withFlags ? new FramelessFileDialog(nullptr, Qt::WindowFlags())
                  : new FramelessFileDialog(nullptr, QString(), m_folder.path()));
    const QScopedPointer<Stock> stock(withFlags ? new Stock(nullptr, Qt::WindowFlags())
                                                : new Stock(nullptr, QString(), m_folder.path()));
    // In what the frame differs from the start.
    stock->setOptions(QFileDialog::DontConfirmOverwrite);
    if (withFlags) {
        stock->setLabelText(QFileDialog::Reject, QStringLiteral("Cancel"));
        ours->setDirectory(m_folder.path());
        stock->setDirectory(m_folder.path());
    } else {
        stock->setViewMode(QFileDialog::Detail);
    }
    QCOMPARE(difference(values(*ours), values(*stock)), QString());
    if (shown) {
        ours->show();
        stock->show();
        QVERIFY(waitForShown(stock.data()));
        QVERIFY(waitForShown(ours.data()));
        // A name that somebody is typing is not written over, and only one of them is active.
        cancelButton(ours.data())->setFocus();
        cancelButton(stock.data())->setFocus();
    }
    const Recorder ourSignals(browser(ours.data()));
    const Recorder stockSignals(stock.data());
    const QVector<Step> steps = script(m_folder);
    for (const Step &step : steps) {
        step.ours(*ours);
        step.stock(*stock);
        const QString differs = difference(values(*ours), values(*stock));
        QVERIFY2(differs.isEmpty(),
                 qPrintable(QLatin1String(step.name) + QLatin1String(" -> ") + differs));
        QCOMPARE(ourSignals.lines, stockSignals.lines);
    }
}

/** What a user does in both gives the same signals and the same choice. */
void tst_FramelessFileDialogForwarders::sameUserAsStock()
{
    FramelessFileDialog ours(nullptr, QString(), m_folder.path(),
                             QStringLiteral("Scans (*.las);;All (*)"));
    Stock stock(nullptr, QString(), m_folder.path(), QStringLiteral("Scans (*.las);;All (*)"));
    stock.setOptions(QFileDialog::DontConfirmOverwrite);
    stock.setViewMode(QFileDialog::Detail);
    QStringList lines[2];
    QString chosen[2];
    int which = 0;
    for (QDialog *dialog : {static_cast<QDialog *>(&ours), static_cast<QDialog *>(&stock)}) {
        auto *inner = which == 0 ? browser(&ours) : &stock;
        const Recorder recorder(inner);
        dialog->show();
        QVERIFY(waitForShown(dialog));
        auto *view = dialog->findChild<QAbstractItemView *>(QStringLiteral("treeView"));
        QTRY_COMPARE(view->model()->rowCount(view->rootIndex()), 3);
        QTest::keyClick(dialog->findChild<QComboBox *>(QStringLiteral("fileTypeCombo")),
                        Qt::Key_Down);
        QTRY_COMPARE(view->model()->rowCount(view->rootIndex()), 4);
        // The folder comes first.
        QModelIndex folder;
        QTRY_VERIFY((folder = view->model()->index(0, 0, view->rootIndex())).data().toString() ==
                    QLatin1String("sub"));
        view->setCurrentIndex(folder);
        QTest::keyClick(view, Qt::Key_Return);
        QTRY_COMPARE(inner->directory().path(), m_folder.file(QStringLiteral("sub")));
        QTest::mouseClick(dialog->findChild<QToolButton *>(QStringLiteral("toParentButton")),
                          Qt::LeftButton);
        QCOMPARE(inner->directory().path(), m_folder.path());
        QTest::mouseClick(dialog->findChild<QToolButton *>(QStringLiteral("backButton")),
                          Qt::LeftButton);
        QTest::mouseClick(dialog->findChild<QToolButton *>(QStringLiteral("forwardButton")),
                          Qt::LeftButton);
        QTest::mouseClick(dialog->findChild<QToolButton *>(QStringLiteral("listModeButton")),
                          Qt::LeftButton);
        QCOMPARE(inner->viewMode(), QFileDialog::List);
        enter(dialog, QStringLiteral("new.las"));
        lines[which] = recorder.lines;
        chosen[which] = text(inner->selectedFiles());
        ++which;
    }
    QCOMPARE(lines[0], lines[1]);
    QCOMPARE(chosen[0], chosen[1]);
    QCOMPARE(chosen[0], m_folder.file(QStringLiteral("new.las")));
    QVERIFY(lines[0].contains(QLatin1String("accepted ")));
    QVERIFY(lines[0].contains(QLatin1String("filterSelected All (*)")));
}

/** Guards the script itself: a forwarder that did nothing would be seen by its value. */
void tst_FramelessFileDialogForwarders::settersChangeSomething()
{
    FramelessFileDialog dialog(nullptr, QString(), m_folder.file(QStringLiteral("sub")));
    QSet<QString> changed;
    QMap<QString, QString> before = values(dialog);
    const QVector<Step> steps = script(m_folder);
    for (const Step &step : steps) {
        step.ours(dialog);
        const QMap<QString, QString> after = values(dialog);
        for (auto it = after.begin(); it != after.end(); ++it) {
            if (before.value(it.key()) != it.value()) {
                changed.insert(it.key());
            }
        }
        before = after;
    }
    QStringList unchanged;
    const QStringList names = before.keys();
    for (const QString &name : names) {
        if (!changed.contains(name) && name != QLatin1String("testOption 8") &&
            name != QLatin1String("testOption 16")) {
            unchanged.append(name);
        }
    }
    QCOMPARE(unchanged, QStringList());
}

void tst_FramelessFileDialogForwarders::readsTheBrowser()
{
    FramelessFileDialog dialog(nullptr, QString(), m_folder.path());
    QFileDialog *inner = browser(&dialog);
    const QVector<Step> steps = script(m_folder);
    for (const Step &step : steps) {
        step.ours(dialog);
        QCOMPARE(difference(values(dialog), values(*inner)), QString());
    }
    QCOMPARE(dialog.isReadOnly(), false);
    QCOMPARE(dialog.resolveSymlinks(), true);
    QCOMPARE(dialog.confirmOverwrite(), false);
    QCOMPARE(dialog.isNameFilterDetailsVisible(), true);
    inner->setOptions(QFileDialog::ReadOnly | QFileDialog::DontResolveSymlinks |
                      QFileDialog::HideNameFilterDetails);
    QCOMPARE(dialog.isReadOnly(), true);
    QCOMPARE(dialog.resolveSymlinks(), false);
    QCOMPARE(dialog.confirmOverwrite(), true);
    QCOMPARE(dialog.isNameFilterDetailsVisible(), false);
}

/** The browser never leaves the disk, and says so as Qt's does. */
void tst_FramelessFileDialogForwarders::remoteUrl()
{
    const QUrl remote(QStringLiteral("ftp://host/a.las"));
    FramelessFileDialog dialog(nullptr, QString(), m_folder.path());
    const QMap<QString, QString> before = values(dialog);
    QTest::ignoreMessage(QtWarningMsg, "Non-native QFileDialog supports only local files");
    dialog.selectUrl(remote);
    QTest::ignoreMessage(QtWarningMsg, "Non-native QFileDialog supports only local files");
    dialog.setDirectoryUrl(remote);
    // Qt would begin there the next time.
    dialog.setDirectoryUrl(m_folder.url());
    QCOMPARE(difference(values(dialog), before), QString());
}

void tst_FramelessFileDialogForwarders::objects()
{
    QFileIconProvider icons;
    QStyledItemDelegate delegate;
    FramelessFileDialog dialog(nullptr, QString(), m_folder.path());
    QFileDialog *inner = browser(&dialog);

    QCOMPARE(dialog.iconProvider(), inner->iconProvider());
    QVERIFY(dialog.iconProvider() != &icons);
    dialog.setIconProvider(&icons);
    QCOMPARE(dialog.iconProvider(), &icons);
    QCOMPARE(inner->iconProvider(), &icons);

    dialog.setItemDelegate(&delegate);
    QCOMPARE(dialog.itemDelegate(), &delegate);
    QCOMPARE(inner->itemDelegate(), &delegate);

    QVERIFY(!dialog.proxyModel());
    const QPointer<QSortFilterProxyModel> proxy = new QSortFilterProxyModel;
    dialog.setProxyModel(proxy);
    QCOMPARE(dialog.proxyModel(), proxy.data());
    QCOMPARE(inner->proxyModel(), proxy.data());
    dialog.setProxyModel(nullptr);
    QVERIFY(!dialog.proxyModel());
    delete proxy;
}

void tst_FramelessFileDialogForwarders::state()
{
    FramelessFileDialog dialog(nullptr, QString(), m_folder.path());
    dialog.setHistory({m_folder.path()});
    dialog.setViewMode(QFileDialog::List);
    const QByteArray kept = dialog.saveState();
    QVERIFY(!kept.isEmpty());
    QCOMPARE(kept, browser(&dialog)->saveState());

    FramelessFileDialog other(nullptr, QString(), m_folder.file(QStringLiteral("sub")));
    Stock stock(nullptr, QString(), m_folder.file(QStringLiteral("sub")));
    QVERIFY(!other.restoreState(QByteArray()));
    QVERIFY(!other.restoreState(QByteArrayLiteral("no state of a dialog's")));
    QCOMPARE(other.directory(), QDir(m_folder.file(QStringLiteral("sub"))));
    QVERIFY(other.restoreState(kept));
    QCOMPARE(other.viewMode(), QFileDialog::List);
    QVERIFY(stock.restoreState(kept));
    QCOMPARE(other.history(), stock.history());
    // Options are no part of it.
    QCOMPARE(other.options(), QFileDialog::Options(QFileDialog::DontConfirmOverwrite));
}

void tst_FramelessFileDialogForwarders::setOptions_data()
{
    QTest::addColumn<int>("given");
    QTest::addColumn<int>("expected");
    const int always = QFileDialog::DontConfirmOverwrite;
    QTest::newRow("none") << 0 << always;
    QTest::newRow("not native") << int(QFileDialog::DontUseNativeDialog) << always;
    QTest::newRow("not confirmed") << always << always;
    QTest::newRow("both") << (always | QFileDialog::DontUseNativeDialog) << always;
    QTest::newRow("others") << int(QFileDialog::ReadOnly | QFileDialog::ShowDirsOnly |
                                   QFileDialog::DontUseNativeDialog)
                            << (always | QFileDialog::ReadOnly | QFileDialog::ShowDirsOnly);
    QTest::newRow("all") << 0xFF << (0xFF & ~QFileDialog::DontUseNativeDialog);
}

void tst_FramelessFileDialogForwarders::setOptions()
{
    QFETCH(int, given);
    QFETCH(int, expected);
    FramelessFileDialog dialog(nullptr, QString(), m_folder.path());
    dialog.setOption(QFileDialog::DontConfirmOverwrite, false);
    dialog.setOption(QFileDialog::DontUseNativeDialog, true);
    QCOMPARE(int(dialog.options()), int(QFileDialog::DontUseNativeDialog));
    dialog.setOptions(QFileDialog::Options(given));
    QCOMPARE(int(dialog.options()), expected);
    QVERIFY(!dialog.testOption(QFileDialog::DontUseNativeDialog));
    QVERIFY(!dialog.confirmOverwrite());
    dialog.show();
    QVERIFY(waitForShown(&dialog));
    QVERIFY(nameEdit(&dialog)->isVisible());
}

void tst_FramelessFileDialogForwarders::savingOverAFileIsNotConfirmed()
{
    FramelessFileDialog dialog(nullptr, QString(), m_folder.path());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOptions(QFileDialog::Options());
    whenShown([](Dialog *shown) {
        enter(shown, QStringLiteral("alpha.las"));
        QVERIFY(!QApplication::activeModalWidget());
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
}

void tst_FramelessFileDialogForwarders::confirmOverwriteAsks()
{
    FramelessFileDialog dialog(nullptr, QString(), m_folder.path());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setConfirmOverwrite(true);
    bool asked = false;
    whenShown([&asked](Dialog *shown) {
        whenModal([&asked, shown](QWidget *question) {
            QVERIFY(question != shown);
            asked = true;
            QTest::keyClick(question, Qt::Key_Escape);
        });
        enter(shown, QStringLiteral("alpha.las"));
        QVERIFY(shown->isVisible());
        shown->done(5);
    });
    QCOMPARE(dialog.exec(), 5);
    QVERIFY(asked);
}

/** Without its browser a dialog answers with the defaults, and nothing is done. */
void tst_FramelessFileDialogForwarders::withoutBrowser()
{
    FramelessFileDialog dialog(nullptr, QString(), m_folder.path());
    delete browser(&dialog);
    const auto check = [&dialog] {
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
        QCOMPARE(dialog.confirmOverwrite(), false);
        QCOMPARE(dialog.defaultSuffix(), QString());
        QCOMPARE(dialog.directory(), QDir());
        QCOMPARE(dialog.directoryUrl(), QUrl());
        QCOMPARE(dialog.fileMode(), QFileDialog::AnyFile);
        QCOMPARE(dialog.filter(), QDir::Filters());
        QCOMPARE(dialog.history(), QStringList());
        QVERIFY(!dialog.iconProvider());
        QVERIFY(!dialog.itemDelegate());
        QCOMPARE(dialog.isNameFilterDetailsVisible(), false);
        QCOMPARE(dialog.isReadOnly(), false);
        QCOMPARE(dialog.labelText(QFileDialog::Accept), QString());
        QCOMPARE(dialog.mimeTypeFilters(), QStringList());
        QCOMPARE(dialog.nameFilters(), QStringList());
        QCOMPARE(dialog.options(), QFileDialog::Options());
        QVERIFY(!dialog.proxyModel());
        QCOMPARE(dialog.resolveSymlinks(), false);
        QCOMPARE(dialog.saveState(), QByteArray());
        QCOMPARE(dialog.selectedFiles(), QStringList());
        QCOMPARE(dialog.selectedNameFilter(), QString());
        QCOMPARE(dialog.selectedUrls(), QList<QUrl>());
        QCOMPARE(dialog.sidebarUrls(), QList<QUrl>());
        QCOMPARE(dialog.supportedSchemes(), QStringList());
        QCOMPARE(dialog.testOption(QFileDialog::DontConfirmOverwrite), false);
        QCOMPARE(dialog.viewMode(), QFileDialog::Detail);
    };
    check();
    const QVector<Step> steps = script(m_folder);
    for (const Step &step : steps) {
        step.ours(dialog);
    }
    dialog.setOptions(QFileDialog::ReadOnly);
    QFileIconProvider icons;
    QStyledItemDelegate delegate;
    QSortFilterProxyModel proxy;
    dialog.setIconProvider(&icons);
    dialog.setItemDelegate(&delegate);
    dialog.setProxyModel(&proxy);
    QVERIFY(!dialog.restoreState(QByteArray()));
    check();
    dialog.show();
    QVERIFY(waitForShown(&dialog));
    dialog.close();
}

LMTEST_MAIN(tst_FramelessFileDialogForwarders)

#include "tst_framelessfiledialog_forwarders.moc"
