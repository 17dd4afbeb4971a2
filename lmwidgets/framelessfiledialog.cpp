#include <lmwidgets/framelessfiledialog.h>

#include "embeddedfiledialog_p.h"
#include "owntext_p.h"

#include <QAbstractItemDelegate>
#include <QAbstractProxyModel>
#include <QCoreApplication>
#include <QDebug>
#include <QFileIconProvider>
#include <QLabel>
#include <QVBoxLayout>

namespace LM {
namespace Widgets {

namespace {

constexpr QSize InitialSize(800, 600);
constexpr int BottomLabelHeight = 10;
const char BottomLabelName[] = "filedialogbottomlabel";

} // namespace

namespace {

void setLabel(QFileDialog *browser, QFileDialog::DialogLabel label, const QString &text)
{
    if (auto *embedded = qobject_cast<EmbeddedFileDialog *>(browser)) {
        embedded->setLastingLabelText(label, text);
    } else {
        browser->setLabelText(label, text);
    }
}

void setOwnRejectLabel(QFileDialog *browser)
{
    const auto text = [] { return QCoreApplication::translate("FramelessFileDialog", "Cancel"); };
    setLabel(browser, QFileDialog::Reject, text());
    followLanguage(browser, "reject label",
                   {text, [browser](const QString &former, const QString &now) {
                        if (browser->labelText(QFileDialog::Reject) == former) {
                            setLabel(browser, QFileDialog::Reject, now);
                        }
                    }});
}

} // namespace

FramelessFileDialog::FramelessFileDialog(QWidget *parent, const QString &caption,
                                         const QString &directory, const QString &filter)
    : FramelessDialog(parent),
      fileDialog(EmbeddedFileDialog::create(this, caption, directory, filter))
{
    fileDialog->setViewMode(QFileDialog::Detail);
    fileDialog->setOptions(QFileDialog::DontConfirmOverwrite);
    placeBrowser();
    // In this order: hosts know that the browser's own signal arrives while the frame is still
    // open, and that accept() and reject() emit a second one when it is closed.
    connect(fileDialog, &QDialog::rejected, this, &QDialog::rejected);
    connect(fileDialog, &QDialog::accepted, this, &QDialog::accepted);
    connect(fileDialog, &QDialog::rejected, this, &FramelessFileDialog::slot_rejected);
    connect(fileDialog, &QDialog::accepted, this, &FramelessFileDialog::slot_accepted);
    resize(InitialSize);
}

FramelessFileDialog::FramelessFileDialog(QWidget *parent, Qt::WindowFlags flags)
    : FramelessDialog(parent, flags), fileDialog(EmbeddedFileDialog::create(this, flags))
{
    fileDialog->setOptions(QFileDialog::DontConfirmOverwrite);
    setOwnRejectLabel(fileDialog);
    placeBrowser();
    // Nothing closes this dialog but its host, which decides in a slot what becomes of it.
    connect(fileDialog, &QDialog::rejected, this, &QDialog::rejected);
    connect(fileDialog, &QDialog::accepted, this, &QDialog::accepted);
    resize(InitialSize);
}

FramelessFileDialog::~FramelessFileDialog()
{
    if (auto *browser = qobject_cast<EmbeddedFileDialog *>(fileDialog)) {
        browser->leaveDyingFrame();
    }
}

void FramelessFileDialog::placeBrowser()
{
    auto *layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(fileDialog);

    bottomLabel = new QLabel(this);
    bottomLabel->setObjectName(QLatin1String(BottomLabelName));
    bottomLabel->setFixedHeight(BottomLabelHeight);
    layout->addWidget(bottomLabel);

    setLayout(layout);
    bottomWidget()->hide();
}

void FramelessFileDialog::connectSignals()
{
    // No constructor calls it: hosts of this dialog have never had these signals.
    connect(fileDialog, &QFileDialog::currentChanged, this, &FramelessFileDialog::currentChanged);
    connect(fileDialog, &QFileDialog::currentUrlChanged, this,
            &FramelessFileDialog::currentUrlChanged);
    connect(fileDialog, &QFileDialog::directoryEntered, this,
            &FramelessFileDialog::directoryEntered);
    connect(fileDialog, &QFileDialog::directoryUrlEntered, this,
            &FramelessFileDialog::directoryUrlEntered);
    connect(fileDialog, &QFileDialog::fileSelected, this, &FramelessFileDialog::fileSelected);
    connect(fileDialog, &QFileDialog::filesSelected, this, &FramelessFileDialog::filesSelected);
    connect(fileDialog, &QFileDialog::filterSelected, this, &FramelessFileDialog::filterSelected);
    connect(fileDialog, &QFileDialog::urlSelected, this, &FramelessFileDialog::urlSelected);
    connect(fileDialog, &QFileDialog::urlsSelected, this, &FramelessFileDialog::urlsSelected);
}

void FramelessFileDialog::slot_accepted()
{
    qDebug() << "FileDialog::slot_accepted";
    accept();
}

void FramelessFileDialog::slot_rejected()
{
    qDebug() << "FileDialog::slot_rejected";
    reject();
}

QFileDialog::AcceptMode FramelessFileDialog::acceptMode() const
{
    return fileDialog ? fileDialog->acceptMode() : QFileDialog::AcceptOpen;
}

void FramelessFileDialog::setAcceptMode(QFileDialog::AcceptMode mode)
{
    if (fileDialog) {
        fileDialog->setAcceptMode(mode);
    }
}

bool FramelessFileDialog::confirmOverwrite() const
{
    return fileDialog && !fileDialog->testOption(QFileDialog::DontConfirmOverwrite);
}

void FramelessFileDialog::setConfirmOverwrite(bool enabled)
{
    setOption(QFileDialog::DontConfirmOverwrite, !enabled);
}

QString FramelessFileDialog::defaultSuffix() const
{
    return fileDialog ? fileDialog->defaultSuffix() : QString();
}

void FramelessFileDialog::setDefaultSuffix(const QString &suffix)
{
    if (fileDialog) {
        fileDialog->setDefaultSuffix(suffix);
    }
}

QDir FramelessFileDialog::directory() const
{
    return fileDialog ? fileDialog->directory() : QDir();
}

void FramelessFileDialog::setDirectory(const QDir &directory)
{
    if (fileDialog) {
        fileDialog->setDirectory(directory);
    }
}

void FramelessFileDialog::setDirectory(const QString &directory)
{
    if (fileDialog) {
        fileDialog->setDirectory(directory);
    }
}

QUrl FramelessFileDialog::directoryUrl() const
{
    return fileDialog ? fileDialog->directoryUrl() : QUrl();
}

void FramelessFileDialog::setDirectoryUrl(const QUrl &directory)
{
    if (fileDialog) {
        fileDialog->setDirectoryUrl(directory);
    }
}

QFileDialog::FileMode FramelessFileDialog::fileMode() const
{
    return fileDialog ? fileDialog->fileMode() : QFileDialog::AnyFile;
}

void FramelessFileDialog::setFileMode(QFileDialog::FileMode mode)
{
    if (fileDialog) {
        fileDialog->setFileMode(mode);
    }
}

QDir::Filters FramelessFileDialog::filter() const
{
    return fileDialog ? fileDialog->filter() : QDir::Filters();
}

void FramelessFileDialog::setFilter(QDir::Filters filters)
{
    if (fileDialog) {
        fileDialog->setFilter(filters);
    }
}

QStringList FramelessFileDialog::history() const
{
    return fileDialog ? fileDialog->history() : QStringList();
}

void FramelessFileDialog::setHistory(const QStringList &paths)
{
    if (fileDialog) {
        fileDialog->setHistory(paths);
    }
}

QFileIconProvider *FramelessFileDialog::iconProvider() const
{
    return fileDialog ? fileDialog->iconProvider() : nullptr;
}

void FramelessFileDialog::setIconProvider(QFileIconProvider *provider)
{
    if (fileDialog) {
        fileDialog->setIconProvider(provider);
    }
}

QAbstractItemDelegate *FramelessFileDialog::itemDelegate() const
{
    return fileDialog ? fileDialog->itemDelegate() : nullptr;
}

void FramelessFileDialog::setItemDelegate(QAbstractItemDelegate *delegate)
{
    if (fileDialog) {
        fileDialog->setItemDelegate(delegate);
    }
}

bool FramelessFileDialog::isNameFilterDetailsVisible() const
{
    return fileDialog && !fileDialog->testOption(QFileDialog::HideNameFilterDetails);
}

void FramelessFileDialog::setNameFilterDetailsVisible(bool enabled)
{
    setOption(QFileDialog::HideNameFilterDetails, !enabled);
}

bool FramelessFileDialog::isReadOnly() const
{
    return fileDialog && fileDialog->testOption(QFileDialog::ReadOnly);
}

void FramelessFileDialog::setReadOnly(bool enabled)
{
    setOption(QFileDialog::ReadOnly, enabled);
}

QString FramelessFileDialog::labelText(QFileDialog::DialogLabel label) const
{
    return fileDialog ? fileDialog->labelText(label) : QString();
}

void FramelessFileDialog::setLabelText(QFileDialog::DialogLabel label, const QString &text)
{
    if (fileDialog) {
        setLabel(fileDialog, label, text);
    }
}

QStringList FramelessFileDialog::mimeTypeFilters() const
{
    return fileDialog ? fileDialog->mimeTypeFilters() : QStringList();
}

void FramelessFileDialog::setMimeTypeFilters(const QStringList &filters)
{
    if (fileDialog) {
        fileDialog->setMimeTypeFilters(filters);
    }
}

void FramelessFileDialog::selectMimeTypeFilter(const QString &filter)
{
    if (fileDialog) {
        fileDialog->selectMimeTypeFilter(filter);
    }
}

QStringList FramelessFileDialog::nameFilters() const
{
    return fileDialog ? fileDialog->nameFilters() : QStringList();
}

void FramelessFileDialog::setNameFilters(const QStringList &filters)
{
    if (fileDialog) {
        fileDialog->setNameFilters(filters);
    }
}

void FramelessFileDialog::setNameFilter(const QString &filter)
{
    if (fileDialog) {
        fileDialog->setNameFilter(filter);
    }
}

QString FramelessFileDialog::selectedNameFilter() const
{
    return fileDialog ? fileDialog->selectedNameFilter() : QString();
}

void FramelessFileDialog::selectNameFilter(const QString &filter)
{
    if (fileDialog) {
        fileDialog->selectNameFilter(filter);
    }
}

QFileDialog::Options FramelessFileDialog::options() const
{
    return fileDialog ? fileDialog->options() : QFileDialog::Options();
}

void FramelessFileDialog::setOptions(QFileDialog::Options options)
{
    if (fileDialog) {
        // Asking for no native dialog makes Qt build its own browser at once, where it has put that
        // off. Hosts rely on reading the option back as cleared.
        fileDialog->setOptions(options | QFileDialog::DontConfirmOverwrite |
                               QFileDialog::DontUseNativeDialog);
        fileDialog->setOption(QFileDialog::DontUseNativeDialog, false);
    }
}

void FramelessFileDialog::setOption(QFileDialog::Option option, bool on)
{
    if (fileDialog) {
        fileDialog->setOption(option, on);
    }
}

bool FramelessFileDialog::testOption(QFileDialog::Option option) const
{
    return fileDialog && fileDialog->testOption(option);
}

QAbstractProxyModel *FramelessFileDialog::proxyModel() const
{
    return fileDialog ? fileDialog->proxyModel() : nullptr;
}

void FramelessFileDialog::setProxyModel(QAbstractProxyModel *model)
{
    if (fileDialog) {
        fileDialog->setProxyModel(model);
    }
}

bool FramelessFileDialog::resolveSymlinks() const
{
    return fileDialog && !fileDialog->testOption(QFileDialog::DontResolveSymlinks);
}

void FramelessFileDialog::setResolveSymlinks(bool enabled)
{
    setOption(QFileDialog::DontResolveSymlinks, !enabled);
}

QByteArray FramelessFileDialog::saveState() const
{
    return fileDialog ? fileDialog->saveState() : QByteArray();
}

bool FramelessFileDialog::restoreState(const QByteArray &state)
{
    return fileDialog && fileDialog->restoreState(state);
}

void FramelessFileDialog::selectFile(const QString &filename)
{
    if (fileDialog) {
        fileDialog->selectFile(filename);
    }
}

void FramelessFileDialog::selectUrl(const QUrl &url)
{
    if (fileDialog) {
        fileDialog->selectUrl(url);
    }
}

QStringList FramelessFileDialog::selectedFiles() const
{
    return fileDialog ? fileDialog->selectedFiles() : QStringList();
}

QList<QUrl> FramelessFileDialog::selectedUrls() const
{
    return fileDialog ? fileDialog->selectedUrls() : QList<QUrl>();
}

QList<QUrl> FramelessFileDialog::sidebarUrls() const
{
    return fileDialog ? fileDialog->sidebarUrls() : QList<QUrl>();
}

void FramelessFileDialog::setSidebarUrls(const QList<QUrl> &urls)
{
    if (fileDialog) {
        fileDialog->setSidebarUrls(urls);
    }
}

QStringList FramelessFileDialog::supportedSchemes() const
{
    return fileDialog ? fileDialog->supportedSchemes() : QStringList();
}

void FramelessFileDialog::setSupportedSchemes(const QStringList &schemes)
{
    if (fileDialog) {
        fileDialog->setSupportedSchemes(schemes);
    }
}

QFileDialog::ViewMode FramelessFileDialog::viewMode() const
{
    return fileDialog ? fileDialog->viewMode() : QFileDialog::Detail;
}

void FramelessFileDialog::setViewMode(QFileDialog::ViewMode mode)
{
    if (fileDialog) {
        fileDialog->setViewMode(mode);
    }
}

} // namespace Widgets
} // namespace LM
