#ifndef LMWIDGETS_FRAMELESSFILEDIALOG_H
#define LMWIDGETS_FRAMELESSFILEDIALOG_H

#include <lmwidgets/framelessdialog.h>
#include <lmwidgets/lmwidgets_global.h>

#include <QDir>
#include <QFileDialog>
#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QUrl>

QT_BEGIN_NAMESPACE
class QAbstractItemDelegate;
class QAbstractProxyModel;
class QFileIconProvider;
class QLabel;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

/**
 * @class FramelessFileDialog framelessfiledialog.h <lmwidgets/framelessfiledialog.h>
 *
 * @brief Qt's file browser in the frame of the library.
 *
 * @image html framelessfiledialog.png
 *
 * The frame gives title bar, border and moving by the mouse; the browser inside is a QFileDialog,
 * whose members this class offers under the same names. The browser is never a dialog of the
 * platform, whatever the options say, and does not ask before a file is overwritten unless
 * setConfirmOverwrite() says so. A new dialog has 800 x 600 px.
 *
 * The functions that return URLs show the framed dialog, and getSaveFileUrl() checks the name. The
 * functions that return strings show Qt's own, unframed QFileDialog.
 *
 * @code
 * using LM::Widgets::FramelessFileDialog;
 * const QUrl url = FramelessFileDialog::getSaveFileUrl(window, QString(),
 *     QUrl::fromLocalFile(folder), tr("Point clouds (*.las)"));
 * if (!url.isEmpty()) {
 *     write(url.toLocalFile());
 * }
 * @endcode
 *
 * A dialog made with caption, directory and filter closes itself when a file is chosen or the
 * choice is cancelled; its accepted() and rejected() are then emitted twice, once for the browser
 * and once for the frame. A dialog made with window flags emits them once and stays open: the host
 * closes it. The title bar's close button closes both and rejects once.
 *
 * A slot may delete the dialog, or its parent, from within accepted() and rejected().
 */
class LMWIDGETS_EXPORT FramelessFileDialog : public FramelessDialog
{
    Q_OBJECT

public:
    /**
     * Constructs a dialog that closes itself. @p caption is only the browser's own and not shown;
     * setWindowTitle() sets what the title bar shows. @p directory is where it begins, or a file
     * that it names at first; without it, where the user has been last. @p filter is a list of name
     * filters separated by ";;". @p parent may be null; otherwise it owns the dialog.
     */
    explicit FramelessFileDialog(QWidget *parent = nullptr, const QString &caption = QString(),
                                 const QString &directory = QString(),
                                 const QString &filter = QString());
    /**
     * Constructs a dialog with @p flags for the frame and the browser, which is left open by its
     * buttons. Its Cancel button says "Cancel" whatever the accept mode.
     */
    FramelessFileDialog(QWidget *parent, Qt::WindowFlags flags);
    ~FramelessFileDialog() override;

    /** Whether files are opened or saved; QFileDialog::AcceptOpen at start. */
    QFileDialog::AcceptMode acceptMode() const;
    /** Sets whether files are opened or saved. */
    void setAcceptMode(QFileDialog::AcceptMode mode);

    /** Whether Qt asks before a file is overwritten; false at start and after setOptions(). */
    bool confirmOverwrite() const;
    /** Sets whether Qt asks before a file is overwritten. */
    void setConfirmOverwrite(bool enabled);

    /** The suffix that a name without one gets, with or without its dot; empty at start. */
    QString defaultSuffix() const;
    /** Sets the suffix that a name without one gets; an empty one leaves names as they are. */
    void setDefaultSuffix(const QString &suffix);

    /** The folder that is shown. One that does not exist is left as it is by the browser. */
    QDir directory() const;
    /** Shows @p directory. */
    void setDirectory(const QDir &directory);
    /** Shows the folder with the path @p directory. */
    void setDirectory(const QString &directory);
    /** The folder that is shown, as a URL. */
    QUrl directoryUrl() const;
    /** Shows the folder @p directory. The browser itself shows local folders only. */
    void setDirectoryUrl(const QUrl &directory);

    /** What may be chosen: a new file, a file, files, or a folder; QFileDialog::AnyFile at start.
     */
    QFileDialog::FileMode fileMode() const;
    /** Sets what may be chosen. */
    void setFileMode(QFileDialog::FileMode mode);

    /** Which entries of a folder are shown, such as QDir::Files. */
    QDir::Filters filter() const;
    /** Sets which entries of a folder are shown. */
    void setFilter(QDir::Filters filters);

    /** The folders that were visited. */
    QStringList history() const;
    /** Sets the folders that were visited. */
    void setHistory(const QStringList &paths);

    /** Where the pictures of the files come from. It stays the caller's. */
    QFileIconProvider *iconProvider() const;
    /**
     * Takes the pictures of the files from @p provider, which must live as long as the dialog.
     */
    void setIconProvider(QFileIconProvider *provider);

    /** What draws the entries. It stays the caller's. */
    QAbstractItemDelegate *itemDelegate() const;
    /** Has @p delegate draw the entries; it must live as long as the dialog. */
    void setItemDelegate(QAbstractItemDelegate *delegate);

    /** Whether the name filters are shown with their wildcards; true at start. */
    bool isNameFilterDetailsVisible() const;
    /** Sets whether the name filters are shown with their wildcards. */
    void setNameFilterDetailsVisible(bool enabled);

    /** Whether the browser makes no folders and renames and deletes nothing; false at start. */
    bool isReadOnly() const;
    /** Sets whether the browser makes no folders and renames and deletes nothing. */
    void setReadOnly(bool enabled);

    /** The texts of the browser's labels and buttons. */
    QString labelText(QFileDialog::DialogLabel label) const;
    /** Sets the text of @p label. */
    void setLabelText(QFileDialog::DialogLabel label, const QString &text);

    /** Name filters by MIME types; selectMimeTypeFilter() chooses one of them. */
    QStringList mimeTypeFilters() const;
    /** Replaces the name filters by those of the MIME types @p filters, such as "image/png". */
    void setMimeTypeFilters(const QStringList &filters);
    /** Chooses the MIME type @p filter; one that is not among them is ignored. */
    void selectMimeTypeFilter(const QString &filter);

    /** Name filters such as "Scans (*.las *.laz)"; setNameFilter() takes several with ";;". */
    QStringList nameFilters() const;
    /** Replaces the name filters. */
    void setNameFilters(const QStringList &filters);
    /** Replaces the name filters by those in @p filter, which are separated by ";;". */
    void setNameFilter(const QString &filter);
    /** The name filter that is chosen. */
    QString selectedNameFilter() const;
    /** Chooses a name filter; one that is not among them is ignored. */
    void selectNameFilter(const QString &filter);

    /** The options; QFileDialog::DontConfirmOverwrite at start. */
    QFileDialog::Options options() const;
    /**
     * Sets @p options, always with QFileDialog::DontConfirmOverwrite and without
     * QFileDialog::DontUseNativeDialog: the browser is not native anyway.
     */
    void setOptions(QFileDialog::Options options);
    /**
     * Switches @p option on or off in the browser, without the care that setOptions() takes.
     */
    void setOption(QFileDialog::Option option, bool on = true);
    /** Whether @p option is on. */
    bool testOption(QFileDialog::Option option) const;

    /** A model between the file system and the views; null at start. It becomes the browser's. */
    QAbstractProxyModel *proxyModel() const;
    /** Puts @p model between the file system and the views; null takes it away. */
    void setProxyModel(QAbstractProxyModel *model);

    /** Whether a link to a folder is shown as the folder that it names; true at start. */
    bool resolveSymlinks() const;
    /** Sets whether a link to a folder is shown as the folder that it names. */
    void setResolveSymlinks(bool enabled);

    /** The browser's layout, history and folder, for a host that keeps them. */
    QByteArray saveState() const;
    /** Returns false, and changes nothing, for what saveState() has not returned. */
    bool restoreState(const QByteArray &state);

    /** Names a file, in the folder that is shown unless it has a path. */
    void selectFile(const QString &filename);
    /** Names the file @p url, which has to be a local one. */
    void selectUrl(const QUrl &url);
    /** Returns what is chosen, with absolute paths; the folder that is shown if nothing is. */
    QStringList selectedFiles() const;
    /** The same as URLs. */
    QList<QUrl> selectedUrls() const;

    /** The places at the side. */
    QList<QUrl> sidebarUrls() const;
    /** Sets the places at the side. */
    void setSidebarUrls(const QList<QUrl> &urls);

    /** The URL schemes that the host can read. The browser itself shows local files only. */
    QStringList supportedSchemes() const;
    /** Sets the URL schemes that the host can read. */
    void setSupportedSchemes(const QStringList &schemes);

    /** Whether the files are shown in a table or a list. */
    QFileDialog::ViewMode viewMode() const;
    /** Shows the files in a table or in a list. */
    void setViewMode(QFileDialog::ViewMode mode);

    /** Shows Qt's own dialog, see QFileDialog::getOpenFileName(). */
    static QString getOpenFileName(QWidget *parent = nullptr, const QString &caption = QString(),
                                   const QString &dir = QString(),
                                   const QString &filter = QString(),
                                   QString *selectedFilter = nullptr,
                                   QFileDialog::Options options = QFileDialog::Options());
    /** Shows Qt's own dialog, see QFileDialog::getOpenFileNames(). */
    static QStringList getOpenFileNames(QWidget *parent = nullptr,
                                        const QString &caption = QString(),
                                        const QString &dir = QString(),
                                        const QString &filter = QString(),
                                        QString *selectedFilter = nullptr,
                                        QFileDialog::Options options = QFileDialog::Options());
    /** Shows Qt's own dialog, see QFileDialog::getSaveFileName(). The name is not checked. */
    static QString getSaveFileName(QWidget *parent = nullptr, const QString &caption = QString(),
                                   const QString &dir = QString(),
                                   const QString &filter = QString(),
                                   QString *selectedFilter = nullptr,
                                   QFileDialog::Options options = QFileDialog::Options());
    /** Shows Qt's own dialog, see QFileDialog::getExistingDirectory(). */
    static QString getExistingDirectory(QWidget *parent = nullptr,
                                        const QString &caption = QString(),
                                        const QString &dir = QString(),
                                        QFileDialog::Options options = QFileDialog::ShowDirsOnly);

    /**
     * Shows the framed dialog, waits, and returns the file that was chosen; an empty URL when none
     * was, or when the dialog was destroyed meanwhile.
     *
     * @p dir is the folder in which it begins, or a file that it names at first; where neither it
     * nor its folder exists, the current folder. @p selectedFilter, if it is not null, receives the
     * name filter that was in use when a file was chosen; what it holds before is not read.
     * @p options are treated as by setOptions().
     *
     * The dialog is not deleted when the function returns: it belongs to @p parent, which must live
     * longer than the call or be destroyed within it. Without a parent nobody deletes it.
     */
    static QUrl getOpenFileUrl(QWidget *parent = nullptr, const QString &caption = QString(),
                               const QUrl &dir = QUrl(), const QString &filter = QString(),
                               QString *selectedFilter = nullptr,
                               QFileDialog::Options options = QFileDialog::Options(),
                               const QStringList &supportedSchemes = QStringList());
    /** The same for several files. Returns an empty list when none was chosen. */
    static QList<QUrl> getOpenFileUrls(QWidget *parent = nullptr,
                                       const QString &caption = QString(), const QUrl &dir = QUrl(),
                                       const QString &filter = QString(),
                                       QString *selectedFilter = nullptr,
                                       QFileDialog::Options options = QFileDialog::Options(),
                                       const QStringList &supportedSchemes = QStringList());
    /**
     * The same for a file to be written; see getOpenFileUrl(). A file that exists is returned
     * without a question. A name that contains one of * ? < > / \ and |, or whose folder does not
     * exist, is refused with a message box when the dialog has closed, and an empty URL is
     * returned.
     */
    static QUrl getSaveFileUrl(QWidget *parent = nullptr, const QString &caption = QString(),
                               const QUrl &dir = QUrl(), const QString &filter = QString(),
                               QString *selectedFilter = nullptr,
                               QFileDialog::Options options = QFileDialog::Options(),
                               const QStringList &supportedSchemes = QStringList());
    /**
     * The same for a folder; see getOpenFileUrl(). Files are shown as well, but not chosen, when
     * @p options lacks QFileDialog::ShowDirsOnly.
     */
    static QUrl getExistingDirectoryUrl(QWidget *parent = nullptr,
                                        const QString &caption = QString(),
                                        const QUrl &dir = QUrl(),
                                        QFileDialog::Options options = QFileDialog::ShowDirsOnly,
                                        const QStringList &supportedSchemes = QStringList());

Q_SIGNALS:
    /**
     * For hosts that connect to it by name. The signals of the browser are not passed on, and none
     * of these nine is ever emitted: accepted() and selectedUrls() tell what was chosen.
     */
    /// @{
    void currentChanged(const QString &path);
    void currentUrlChanged(const QUrl &url);
    void directoryEntered(const QString &directory);
    void directoryUrlEntered(const QUrl &directory);
    void fileSelected(const QString &file);
    void filesSelected(const QStringList &selected);
    void filterSelected(const QString &filter);
    void urlSelected(const QUrl &url);
    void urlsSelected(const QList<QUrl> &urls);
    /// @}

private Q_SLOTS:
    void slot_accepted();
    void slot_rejected();

private:
    Q_DISABLE_COPY(FramelessFileDialog)

    static QUrl workingDirectory(const QUrl &url);
    static QString initialSelection(const QUrl &url);

    void placeBrowser();
    void connectSignals();

    QPointer<QFileDialog> fileDialog;
    QLabel *bottomLabel = nullptr;
};

} // namespace Widgets
} // namespace LM

#endif
