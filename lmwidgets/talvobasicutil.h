#ifndef LMWIDGETS_TALVOBASICUTIL_H
#define LMWIDGETS_TALVOBASICUTIL_H

#include <lmwidgets/lmwidgets_global.h>

#include <QObject>
#include <QString>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QDir;
class QLineEdit;
class QToolButton;
QT_END_NAMESPACE

/**
 * @class TalvoBasicUtil talvobasicutil.h <lmwidgets/talvobasicutil.h>
 *
 * @brief Where the host keeps its working data on disk, and a few small helpers.
 *
 * The host has one folder per user with its configuration file, getDefaultPath(), and one large
 * folder for temporary data, getDefaultTempPath(), which lies on the local drive other than C: with
 * the most free space, solid-state drives first. Below the temporary folder every project has
 * scratch folders of its own, named by the time stamp that
 * LM::Widgets::TalvoStyleManager::setProjectTimeStamp() stored. The choice of the drive is stored
 * in the configuration file, so that it is made once per installation.
 *
 * The time stamp names one folder. One that is empty, "." or "..", or that holds a path separator
 * names none: what needs the project's folder then answers with an empty string, and what clears it
 * deletes nothing. Deleting never follows a symbolic link: the link goes, what it leads to stays.
 *
 * No function reports an error other than by an empty string or by the system's temporary folder in
 * place of its own; read-only, full and removed drives are ordinary cases.
 *
 * @code
 * LM::Widgets::TalvoStyleManager::instance()->setProjectTimeStamp("20240501123000");
 * const QString projectFile = TalvoBasicUtil::getDefaultProjectTempDataPath();
 * if (projectFile.isEmpty()) {
 *     return; // nowhere to write
 * }
 * @endcode
 *
 * All functions are static; like every class here this one has a meta-object, and no object of it is
 * needed. They run on the calling thread and return when they are done. That is the GUI thread for
 * all that reads the time stamp or touches a widget.
 *
 * @par What blocks, and for how long
 * createTempPath() waits for the system's list of drives: for "wmic" without a limit, then, if that
 * printed nothing, for "powershell" up to 30 s and up to 30 s more if that cannot be ended. One to
 * three seconds are usual. Then it writes one small file to each drive that it considers, for which
 * a drive may have to spin up. getDefaultTempPath() calls it on the first use of an installation and
 * whenever the stored value is empty, and so do, through it, getDefaultProjectTempDataPath(),
 * getConfigDataDecodePath() and the functions that clear. Every other call takes as long as a few
 * file operations do, deleting and getAllFiles() as long as there are files.
 *
 * @par Keeping the window alive meanwhile
 * Make the first call on another thread, before anything else needs the folder, and run an event
 * loop until it is done; from then on the answer comes from the configuration. createTempPath(),
 * getDefaultPath(), getDefaultTempPath(), getPathWriteable(), getAllFiles() and
 * getConfigPathFromCloudPath() may run on any thread.
 * @code
 * QEventLoop loop;
 * const QScopedPointer<QThread> scan(
 *     QThread::create([] { TalvoBasicUtil::getDefaultTempPath(); }));
 * QObject::connect(scan.data(), &QThread::finished, &loop, &QEventLoop::quit);
 * scan->start();
 * loop.exec(); // windows are painted, a splash screen beats
 * scan->wait();
 * @endcode
 * A second call before that scans a second time; both store one whole value, and the later stays.
 * The longer way, with a splash screen, stands in docs/working-folders.md.
 */
class LMWIDGETS_EXPORT TalvoBasicUtil : public QObject
{
    Q_OBJECT

public:
    /**
     * Chooses the drive for temporary data, creates "KVD Talvo Model-temp" in its root and returns
     * that folder. Network drives, drives with the letter C in their name and drives that cannot be
     * written to are not considered; a solid-state drive goes before any other, then the larger
     * free space, then the later in the system's list. Where no drive qualifies, or the folder
     * cannot be created on the one that was chosen, the answer is the system's temporary folder.
     *
     * Reads and writes no configuration. Blocks while "wmic" lists the drives, without a limit; and
     * if that yields nothing, while "powershell" does, for at most 30 s. Needs no GUI thread.
     */
    static QString createTempPath();

    /**
     * Returns the folder "KVDTalvoModel" in the user's application data, above what names the
     * organisation and the application, with native separators. Creates it where it is missing;
     * whether that succeeded is not reported.
     */
    static QString getDefaultPath();

    /**
     * Returns the folder for temporary data. It is read from the configuration; the first call of
     * an installation, or of one with an empty value, chooses it with createTempPath() and stores
     * it. It is created where it is missing. Where it cannot be created or written to, for example
     * because the drive was removed, the system's temporary folder is returned for this once and
     * the stored one stays.
     *
     * The first call takes as long as createTempPath(). Needs no GUI thread.
     */
    static QString getDefaultTempPath();

    /**
     * Returns the path of the current project's data file: "project.Kvdm" after a backslash after
     * the project's folder in "kvdprojectdata", which is created. The file itself is the host's to
     * write. Returns an empty string when the folder cannot be created or the time stamp names
     * none.
     */
    static QString getDefaultProjectTempDataPath();

    /**
     * Returns the current project's folder in "configdatadecodetemp", with native separators, and
     * creates it. Returns an empty string when that fails or the time stamp names none.
     */
    static QString getConfigDataDecodePath();

    /** Deletes the folder of getConfigDataDecodePath() with all that is in it. */
    static void cleanConfigDataDecodePath();

    /**
     * Deletes the current project's data file, its folder in "kvdprojectdata" and its folder in
     * "configdatadecodetemp". Deletes nothing when the time stamp names no folder.
     */
    static void clearDefaultProjectTempData();

    /**
     * Deletes the scratch data of all projects: "kvdprojectdata" below the stored temporary folder,
     * or below the system's when none is stored, which is then stored; and "configdatadecodetemp"
     * below getDefaultTempPath(), which may choose a drive first where the stored value is empty.
     */
    static void clearHistoryProjectTempData();

    /**
     * Returns the absolute path of the companion data file of the point cloud @p cloudPath, which
     * itself need not exist: in the same folder, with ".kvdata" anywhere in its name, and with the
     * cloud's name without its last suffix, or that and ".info", as its own name without the last
     * suffix. Upper and lower case do not matter. Of several the last by name is returned, of none
     * an empty string. Hidden files do not count.
     */
    static QString getConfigPathFromCloudPath(QString cloudPath);

    /**
     * Appends the absolute paths of all files in @p dir and below to @p files, which is not cleared
     * first. A folder's files come where the folder stands in the listing, whose order is the file
     * system's. Hidden files and folders are left out. Links to folders are followed, but not to a
     * folder that is being listed already. Name filters of @p dir apply to its own entries. What
     * the system cannot open, for lack of permission or because the path is too long, counts as
     * empty.
     */
    static void getAllFiles(const QDir &dir, QStringList &files);

    /**
     * Returns whether the folder @p path exists, is writable and accepts a new file. To find out,
     * "KVPointCloudUtiltest.txt" is created in it and deleted at once. An empty path is not
     * writable and nothing is touched.
     */
    static bool getPathWriteable(QString path);

    /**
     * Gives @p button an icon from three images of the current theme, which are named without
     * folder and suffix: for its normal state, for the mouse over it and for being disabled. Names
     * without an image leave that state to Qt. A theme switch does not change the icon; call again.
     * Null is ignored.
     */
    static void setActionIcon(QToolButton *button, const QString &normalIcon,
                              const QString &hoverIcon, const QString &disabledIcon);

    /**
     * Replaces the style sheet of @p edit by a border of 1 px: grey when its text is @p valid, red
     * otherwise. Null is ignored.
     */
    static void setLineEditStyle(QLineEdit *edit, bool valid);
};

#endif
