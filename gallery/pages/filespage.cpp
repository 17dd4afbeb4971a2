#include "page.h"
#include "pageparts.h"
#include "signallog.h"

#include <lmwidgets/framelessfiledialog.h>

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QVBoxLayout>

#include <functional>

namespace gallery {

using LM::Widgets::FramelessFileDialog;

namespace {

constexpr int Columns = 4;
constexpr int ReadingLimit = 3000; // ms
constexpr int EventSlice = 20;     // ms

const QString Filters = QStringLiteral("Point clouds (*.las *.laz);;Line drawings (*.dxf)"
                                       ";;All files (*)");

/** A folder of files for the pictures, which goes with the program. */
class SampleFolder
{
public:
    SampleFolder()
    {
        for (const char *folder : {"Scans", "Scans/Site north", "Scans/Tiles", "Long names"}) {
            QDir(m_root.path()).mkpath(QLatin1String(folder));
        }
        add("Scans/station_01.las", 184320);
        add("Scans/station_02.las", 201728);
        add("Scans/station_03.laz", 61440);
        add("Scans/contours.dxf", 12288);
        add("Scans/notes.txt", 640);
        add("Long names/Registration of the northern half of the site, second campaign, "
            "without the scans of the crane and of the fence, reviewed.las",
            98304);
        add("Long names/"
            "Donaudampfschifffahrtsgesellschaftskapitaensmuetzenvermessungspunktwolke.las",
            98304);
        add("Long names/short.las", 4096);
    }

    QString path(const char *folder) const { return m_root.filePath(QLatin1String(folder)); }

private:
    void add(const char *name, qint64 size) const
    {
        QFile file(path(name));
        if (file.open(QIODevice::WriteOnly)) {
            file.resize(size);
            file.setFileTime(QDateTime(QDate(2024, 5, 14), QTime(9, 30)),
                             QFileDevice::FileModificationTime);
        }
    }

    QTemporaryDir m_root;
};

QString sample(const char *folder)
{
    static const SampleFolder samples;
    return samples.path(folder);
}

QUrl sampleUrl()
{
    return QUrl::fromLocalFile(sample("Scans"));
}

QString namesOf(const QList<QUrl> &urls)
{
    QStringList names;
    for (const QUrl &url : urls) {
        names.append(url.isEmpty() ? QStringLiteral("nothing")
                                   : QDir::toNativeSeparators(url.toLocalFile()));
    }
    return names.isEmpty() ? QStringLiteral("nothing") : names.join(QStringLiteral(", "));
}

QString namesOf(const QStringList &paths)
{
    QList<QUrl> urls;
    for (const QString &path : paths) {
        urls.append(path.isEmpty() ? QUrl() : QUrl::fromLocalFile(path));
    }
    return namesOf(urls);
}

/** A static function under its name: what it is called with is the page's choice. */
struct Function
{
    QString name;
    QString (*choose)(QWidget *parent, QString *selectedFilter);
};

const QVector<Function> &framedFunctions()
{
    static const QVector<Function> all = {
        {QStringLiteral("getOpenFileUrl"),
         [](QWidget *parent, QString *filter) {
             return namesOf({FramelessFileDialog::getOpenFileUrl(parent, QString(), sampleUrl(),
                                                                 Filters, filter)});
         }},
        {QStringLiteral("getOpenFileUrls"),
         [](QWidget *parent, QString *filter) {
             return namesOf(FramelessFileDialog::getOpenFileUrls(parent, QString(), sampleUrl(),
                                                                 Filters, filter));
         }},
        {QStringLiteral("getSaveFileUrl"),
         [](QWidget *parent, QString *filter) {
             return namesOf({FramelessFileDialog::getSaveFileUrl(parent, QString(), sampleUrl(),
                                                                 Filters, filter)});
         }},
        {QStringLiteral("getExistingDirectoryUrl"), [](QWidget *parent, QString *) {
             return namesOf(
                 {FramelessFileDialog::getExistingDirectoryUrl(parent, QString(), sampleUrl())});
         }}};
    return all;
}

const QVector<Function> &stockFunctions()
{
    static const QVector<Function> all = {
        {QStringLiteral("getOpenFileName"),
         [](QWidget *parent, QString *filter) {
             return namesOf(QStringList(FramelessFileDialog::getOpenFileName(
                 parent, QString(), sample("Scans"), Filters, filter)));
         }},
        {QStringLiteral("getOpenFileNames"),
         [](QWidget *parent, QString *filter) {
             return namesOf(FramelessFileDialog::getOpenFileNames(
                 parent, QString(), sample("Scans"), Filters, filter));
         }},
        {QStringLiteral("getSaveFileName"),
         [](QWidget *parent, QString *filter) {
             return namesOf(QStringList(FramelessFileDialog::getSaveFileName(
                 parent, QString(), sample("Scans"), Filters, filter)));
         }},
        {QStringLiteral("getExistingDirectory"), [](QWidget *parent, QString *) {
             return namesOf(QStringList(
                 FramelessFileDialog::getExistingDirectory(parent, QString(), sample("Scans"))));
         }}};
    return all;
}

QPushButton *functionButton(const Function &function, QWidget *page, SignalLog &log)
{
    return button(function.name, [function, page, &log] {
        QString filter;
        const QString chosen = function.choose(page->window(), &filter);
        log.note(function.name, QStringLiteral("returned"), chosen);
        if (!filter.isEmpty()) {
            log.note(function.name, QStringLiteral("selectedFilter"), filter);
        }
    });
}

/** Shows @p dialog without waiting; what it chooses is noted together with its signals. */
void showWatched(FramelessFileDialog *dialog, const QString &name, SignalLog &log)
{
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(name);
    log.watch(dialog, name);
    QObject::connect(dialog, &QDialog::accepted, &log, [dialog, name, &log] {
        log.note(name, QStringLiteral("selectedUrls"), namesOf(dialog->selectedUrls()));
    });
    dialog->show();
}

QVector<QWidget *> dialogButtons(QWidget *page, SignalLog &log)
{
    const QString closes = QStringLiteral("Closes itself");
    const QString stays = QStringLiteral("Stays open");
    const QString resizable = QStringLiteral("Resizable");
    return {button(closes,
                   [closes, page, &log] {
                       showWatched(new FramelessFileDialog(page->window(), QString(),
                                                           sample("Scans"), Filters),
                                   closes, log);
                   }),
            button(stays,
                   [stays, page, &log] {
                       auto *dialog = new FramelessFileDialog(page->window(), Qt::WindowFlags());
                       dialog->setDirectory(sample("Scans"));
                       dialog->setFileMode(QFileDialog::ExistingFiles);
                       showWatched(dialog, stays, log);
                   }),
            button(resizable, [resizable, page, &log] {
                auto *dialog = new FramelessFileDialog(page->window(), QString(),
                                                       sample("Long names"), Filters);
                dialog->setDialogResizable(true);
                showWatched(dialog, resizable, log);
                // Each show freezes the size.
                dialog->setMinimumSize(dialog->minimumSizeHint());
                dialog->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
            })};
}

QVector<QWidget *> functionButtons(const QVector<Function> &functions, QWidget *page,
                                   SignalLog &log)
{
    QVector<QWidget *> buttons;
    for (const Function &function : functions) {
        buttons.append(functionButton(function, page, log));
    }
    return buttons;
}

QWidget *createContent(SignalLog &log)
{
    auto *content = new QWidget;
    QVBoxLayout *layout = contentLayout(content);
    addSection(layout, QStringLiteral("Framed: functions that return URLs"),
               QStringLiteral("Each waits for the choice and returns it. Saving refuses a name "
                              "with one of * ? < > / \\ and |."))
        ->addWidget(grid(Columns, functionButtons(framedFunctions(), content, log)));
    addSection(layout, QStringLiteral("Stock: functions that return strings"),
               QStringLiteral("They show the dialog of Qt or of the platform, and check no name."))
        ->addWidget(grid(Columns, functionButtons(stockFunctions(), content, log)));
    addSection(layout, QStringLiteral("Dialogs made by hand"),
               QStringLiteral("Shown without waiting. One that closes itself tells its end twice; "
                              "one made with window flags tells it once and is closed by its "
                              "title bar."))
        ->addWidget(grid(Columns, dialogButtons(content, log)));
    return content;
}

QAbstractItemView *viewOf(const FramelessFileDialog *dialog)
{
    const char *name = dialog->viewMode() == QFileDialog::Detail ? "treeView" : "listView";
    return dialog->findChild<QAbstractItemView *>(QLatin1String(name));
}

/** Shows @p dialog and waits until its folder, which is read in the background, has @p count
 * entries. */
FramelessFileDialog *showRead(FramelessFileDialog *dialog, int count)
{
    dialog->setSidebarUrls({QUrl::fromLocalFile(QDir::rootPath()), sampleUrl(),
                            QUrl::fromLocalFile(sample("Long names"))});
    dialog->show();
    const QAbstractItemView *view = viewOf(dialog);
    QElapsedTimer timer;
    timer.start();
    while (view->model()->rowCount(view->rootIndex()) < count && timer.elapsed() < ReadingLimit) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, EventSlice);
    }
    return dialog;
}

QLineEdit *nameEdit(const FramelessFileDialog *dialog)
{
    return dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
}

QWidget *openOpen()
{
    auto *dialog = new FramelessFileDialog(nullptr, QString(), sample("Scans"), Filters);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setWindowTitle(QStringLiteral("Open File"));
    showRead(dialog, 5);
    dialog->selectFile(QStringLiteral("station_02.las"));
    QAbstractItemView *view = viewOf(dialog);
    view->setFocus();
    view->setCurrentIndex(view->model()->index(3, 0, view->rootIndex()));
    return dialog;
}

QWidget *openSave()
{
    auto *dialog = new FramelessFileDialog(nullptr, QString(), sample("Scans"), Filters);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setWindowTitle(QStringLiteral("Save File"));
    dialog->selectFile(QStringLiteral("merged.las"));
    return showRead(dialog, 5);
}

QWidget *openDirectory()
{
    auto *dialog = new FramelessFileDialog(nullptr, QString(), sample("Scans"), QString());
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    dialog->setWindowTitle(QStringLiteral("Select Directory"));
    return showRead(dialog, 2);
}

QWidget *openList()
{
    auto *dialog = new FramelessFileDialog(nullptr, QString(), sample("Scans"), QString());
    dialog->setViewMode(QFileDialog::List);
    dialog->setWindowTitle(QStringLiteral("Open File"));
    return showRead(dialog, 7);
}

QWidget *openLongNames()
{
    auto *dialog = new FramelessFileDialog(nullptr, QString(), sample("Long names"),
                                           QStringLiteral("Point clouds of every maker and in "
                                                          "every version of their formats (*.las "
                                                          "*.laz *.e57 *.pts *.ptx *.xyz *.ply)"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setWindowTitle(QStringLiteral("Save the points of the northern half of the site that "
                                          "belong to no class under another name"));
    dialog->selectFile(
        QStringLiteral("Registration of the northern half of the site, third "
                       "campaign, with the scans of the crane and of the fence.las"));
    return showRead(dialog, 3);
}

QWidget *openEmpty()
{
    auto *dialog = new FramelessFileDialog(nullptr, QString(), sample("Scans/Tiles"), Filters);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setOption(QFileDialog::ReadOnly);
    dialog->setWindowTitle(QStringLiteral("Open File"));
    return showRead(dialog, 0);
}

/** What the browser itself says of a name that it does not find. */
void execNotFound()
{
    FramelessFileDialog dialog(nullptr, QString(), sample("Scans"), Filters);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.show();
    nameEdit(&dialog)->setText(QStringLiteral("station_99.las"));
    const auto *buttons = dialog.findChild<QDialogButtonBox *>();
    buttons->button(QDialogButtonBox::Open)->setEnabled(true);
    buttons->button(QDialogButtonBox::Open)->click();
}

} // namespace

Page filesPage()
{
    Page page(
        QStringLiteral("files"), QStringLiteral("File dialog"),
        QStringLiteral("FramelessFileDialog is the file browser of Qt in the dark frame. What "
                       "is chosen, and every signal, is written below."),
        createContent);
    return page.shot(QStringLiteral("open"), openOpen)
        .shot(QStringLiteral("save"), openSave)
        .shot(QStringLiteral("directory"), openDirectory)
        .shot(QStringLiteral("list"), openList)
        .shot(QStringLiteral("empty"), openEmpty)
        .shot(QStringLiteral("long-names"), openLongNames)
        .blockingShot(QStringLiteral("not-found"), execNotFound);
}

} // namespace gallery
