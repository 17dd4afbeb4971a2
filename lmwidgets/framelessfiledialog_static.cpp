/** @file
 * The functions that show a file dialog and return what was chosen.
 */

#include "framelessmessagebox_p.h"
#include "owntext_p.h"
#include "savename_p.h"

#include <lmwidgets/framelessfiledialog.h>
#include <lmwidgets/framelessmessagebox.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <functional>
#include <optional>

namespace LM {
namespace Widgets {

namespace {

/** What the framed dialog of one call is to be. */
struct Request
{
    std::function<QString()> title;
    QFileDialog::FileMode fileMode;
    QFileDialog::Options options;
    QString selection;
    QStringList schemes;
    QFileDialog::AcceptMode acceptMode;
};

/** Shows @p dialog and returns what was chosen; nothing when it was cancelled or destroyed. */
std::optional<QList<QUrl>> choose(FramelessFileDialog *dialog, const Request &request,
                                  QString *selectedFilter)
{
    dialog->setFileMode(request.fileMode);
    dialog->setOptions(request.options);
    dialog->selectFile(request.selection);
    dialog->setSupportedSchemes(request.schemes);
    if (request.acceptMode == QFileDialog::AcceptSave) {
        dialog->setAcceptMode(QFileDialog::AcceptSave);
    }
    setOwnTitle(dialog, request.title);

    const QPointer<FramelessFileDialog> guard(dialog);
    if (dialog->exec() != QDialog::Accepted || !guard) {
        return std::nullopt;
    }
    // It is not deleted here: hosts find it among the children of the parent that they have passed.
    if (selectedFilter) {
        *selectedFilter = dialog->selectedNameFilter();
    }
    return dialog->selectedUrls();
}

QUrl firstOf(const std::optional<QList<QUrl>> &urls)
{
    return urls && !urls->isEmpty() ? urls->first() : QUrl();
}

QString openTitle()
{
    return QCoreApplication::translate("FramelessFileDialog", "Open File");
}

QString saveTitle()
{
    return QCoreApplication::translate("MainWindow", "Save File");
}

QString directoryTitle()
{
    return QCoreApplication::translate("FramelessFileDialog", "Select Directory");
}

QFileDialog::FileMode directoryMode(QFileDialog::Options options)
{
    if (!options.testFlag(QFileDialog::ShowDirsOnly)) {
        return QFileDialog::Directory;
    }
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    // Qt replaces the mode by the option, yet hosts read the mode back.
    return QFileDialog::DirectoryOnly;
    QT_WARNING_POP
}

void refuseSaveName()
{
    const auto title = [] {
        return QCoreApplication::translate("FramelessFileDialog", "Save failed");
    };
    const auto text = [] {
        return QCoreApplication::translate(
                   "FramelessFileDialog",
                   "The file name cannot contain any of the following characters") +
               QLatin1String("'?' '*' '<' '>' '\\' '/' '|'");
    };
    FramelessMessageBoxPrivate::ask(QMessageBox::Critical, nullptr,
                                    {title(), text(), QMessageBox::Ok, QMessageBox::NoButton,
                                     nullptr, false, true, [&](FramelessMessageBox *box) {
                                         setOwnTitle(box, title);
                                         setOwnText(box, text);
                                     }});
}

} // namespace

/**
 * The folder in which to begin: @p url itself, its folder, or the current one. No folder is kept
 * from one call to the next.
 */
QUrl FramelessFileDialog::workingDirectory(const QUrl &url)
{
    if (!url.isEmpty()) {
        if (!url.isLocalFile()) {
            return url;
        }
        const QFileInfo info(QDir::current(), url.toLocalFile());
        if (info.isDir()) {
            return QUrl::fromLocalFile(QDir::cleanPath(info.absoluteFilePath()));
        }
        const QFileInfo parent(info.absolutePath());
        if (parent.isDir()) {
            return QUrl::fromLocalFile(parent.absoluteFilePath());
        }
    }
    return QUrl::fromLocalFile(QDir::currentPath());
}

/** The name of the file that @p url names; empty for a folder. */
QString FramelessFileDialog::initialSelection(const QUrl &url)
{
    if (url.isEmpty()) {
        return QString();
    }
    if (!url.isLocalFile()) {
        return url.fileName();
    }
    const QFileInfo info(url.toLocalFile());
    return info.isDir() ? QString() : info.fileName();
}

QString FramelessFileDialog::getOpenFileName(QWidget *parent, const QString &caption,
                                             const QString &dir, const QString &filter,
                                             QString *selectedFilter, QFileDialog::Options options)
{
    return QFileDialog::getOpenFileName(parent, caption, dir, filter, selectedFilter, options);
}

QStringList FramelessFileDialog::getOpenFileNames(QWidget *parent, const QString &caption,
                                                  const QString &dir, const QString &filter,
                                                  QString *selectedFilter,
                                                  QFileDialog::Options options)
{
    return QFileDialog::getOpenFileNames(parent, caption, dir, filter, selectedFilter, options);
}

QString FramelessFileDialog::getSaveFileName(QWidget *parent, const QString &caption,
                                             const QString &dir, const QString &filter,
                                             QString *selectedFilter, QFileDialog::Options options)
{
    return QFileDialog::getSaveFileName(parent, caption, dir, filter, selectedFilter, options);
}

QString FramelessFileDialog::getExistingDirectory(QWidget *parent, const QString &caption,
                                                  const QString &dir, QFileDialog::Options options)
{
    return QFileDialog::getExistingDirectory(parent, caption, dir, options);
}

QUrl FramelessFileDialog::getOpenFileUrl(QWidget *parent, const QString &caption, const QUrl &dir,
                                         const QString &filter, QString *selectedFilter,
                                         QFileDialog::Options options,
                                         const QStringList &supportedSchemes)
{
    auto *dialog =
        new FramelessFileDialog(parent, caption, workingDirectory(dir).toLocalFile(), filter);
    return firstOf(choose(dialog,
                          {openTitle, QFileDialog::ExistingFile, options, initialSelection(dir),
                           supportedSchemes, QFileDialog::AcceptOpen},
                          selectedFilter));
}

QList<QUrl> FramelessFileDialog::getOpenFileUrls(QWidget *parent, const QString &caption,
                                                 const QUrl &dir, const QString &filter,
                                                 QString *selectedFilter,
                                                 QFileDialog::Options options,
                                                 const QStringList &supportedSchemes)
{
    auto *dialog =
        new FramelessFileDialog(parent, caption, workingDirectory(dir).toLocalFile(), filter);
    return choose(dialog,
                  {openTitle, QFileDialog::ExistingFiles, options, initialSelection(dir),
                   supportedSchemes, QFileDialog::AcceptOpen},
                  selectedFilter)
        .value_or(QList<QUrl>());
}

QUrl FramelessFileDialog::getSaveFileUrl(QWidget *parent, const QString &caption, const QUrl &dir,
                                         const QString &filter, QString *selectedFilter,
                                         QFileDialog::Options options,
                                         const QStringList &supportedSchemes)
{
    auto *dialog =
        new FramelessFileDialog(parent, caption, workingDirectory(dir).toLocalFile(), filter);
    const std::optional<QList<QUrl>> urls =
        choose(dialog,
               {saveTitle, QFileDialog::AnyFile, options, initialSelection(dir), supportedSchemes,
                QFileDialog::AcceptSave},
               selectedFilter);
    if (!urls) {
        return QUrl();
    }
    const QUrl url = firstOf(urls);
    if (!isSaveNameValid(url.toString(), [](const QString &path) { return QDir(path).exists(); })) {
        refuseSaveName();
        return QUrl();
    }
    return url;
}

QUrl FramelessFileDialog::getExistingDirectoryUrl(QWidget *parent, const QString &caption,
                                                  const QUrl &dir, QFileDialog::Options options,
                                                  const QStringList &supportedSchemes)
{
    auto *dialog =
        new FramelessFileDialog(parent, caption, workingDirectory(dir).toLocalFile(), QString());
    return firstOf(choose(dialog,
                          {directoryTitle, directoryMode(options), options, initialSelection(dir),
                           supportedSchemes, QFileDialog::AcceptOpen},
                          nullptr));
}

} // namespace Widgets
} // namespace LM
