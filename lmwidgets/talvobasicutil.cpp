#include <lmwidgets/talvobasicutil.h>

#include "drivelisting_p.h"
#include "drivequestions_p.h"
#include "folderreader_p.h"
#include "themepictures_p.h"

#include <lmwidgets/talvostylemanager.h>

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QLineEdit>
#include <QMap>
#include <QPixmap>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QToolButton>
#include <QVector>

using LM::Widgets::FolderReader;
using LM::Widgets::ListedDrive;
using LM::Widgets::TalvoStyleManager;

namespace {

const QString AppFolder = QStringLiteral("KVDTalvoModel");
const QString ConfigFile = QStringLiteral("/config/config.ini");
const QString ConfigGroup = QStringLiteral("TalvoBasicUtil");
const QString TempPathKey = QStringLiteral("temppath");
const QString TempFolder = QStringLiteral("/KVD Talvo Model-temp");
const QString ProjectDataFolder = QStringLiteral("kvdprojectdata");
const QString ConfigDataFolder = QStringLiteral("configdatadecodetemp");
const QString ProjectFile = QStringLiteral("\\project.Kvdm");
const QString ProbeFile = QStringLiteral("KVPointCloudUtiltest.txt");
const QString CompanionInfix = QStringLiteral(".info");
const QString ValidSheet = QStringLiteral("border:1px solid #666666;");
const QString InvalidSheet = QStringLiteral("border:1px solid #ff0000;");

constexpr char CompanionSuffix[] = ".kvdata";

constexpr int UsualNameLength = 24;
constexpr int NoTimeLimit = -1;
constexpr int PowerShellLimit = 30000; // ms

QString systemTempPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::TempLocation);
}

/** What @p program prints until it ends, or within @p limit ms; nothing where it does not exist. */
QByteArray outputOf(const QString &program, const QStringList &arguments, int limit)
{
    QProcess process;
    process.start(program, arguments, QIODevice::ReadWrite);
    const bool finished = process.waitForFinished(limit);
    const QByteArray output = process.isOpen() ? process.readAllStandardOutput() : QByteArray();
    if (!finished && process.state() != QProcess::NotRunning) {
        process.kill();
        process.waitForFinished();
    }
    return output;
}

QVector<ListedDrive> listDrives()
{
    const QStringList lines = LM::Widgets::wmicLines(outputOf(
        QStringLiteral("wmic"),
        {QStringLiteral("logicaldisk"), QStringLiteral("get"), QStringLiteral("name,freespace")},
        NoTimeLimit));
    if (!lines.isEmpty()) {
        return LM::Widgets::parseWmicLines(lines);
    }
    return LM::Widgets::parsePowerShell(
        outputOf(QStringLiteral("powershell"),
                 {QStringLiteral("-Command"),
                  QStringLiteral("Get-WmiObject Win32_LogicalDisk | Select-Object DeviceID, "
                                 "FreeSpace")},
                 PowerShellLimit));
}

/** Whether temporary data may lie on @p drive. The one with the system on it is left alone. */
bool isEligible(const QString &drive)
{
    return !LM::Widgets::isNetworkDrive(drive.toStdWString()) &&
           !drive.contains(QLatin1Char('C'), Qt::CaseInsensitive) &&
           TalvoBasicUtil::getPathWriteable(drive);
}

QString configPath()
{
    return TalvoBasicUtil::getDefaultPath() + ConfigFile;
}

QString projectTimeStamp()
{
    return TalvoStyleManager::instance()->getProjectTimeStamp();
}

/** Whether @p name is that of one folder, so that no path made with it leads anywhere else. */
bool namesOneFolder(const QString &name)
{
    for (const QChar character : name) {
        if (character == QLatin1Char('/') || character == QLatin1Char('\\') || character.isNull()) {
            return false;
        }
#ifdef Q_OS_WIN
        if (character == QLatin1Char(':')) {
            return false; // of a drive or of a stream
        }
#endif
    }
#ifdef Q_OS_WIN
    // The system cuts blanks and dots off the end of a name.
    for (const QChar character : name) {
        if (character != QLatin1Char('.') && character != QLatin1Char(' ')) {
            return true;
        }
    }
    return false;
#else
    return !name.isEmpty() && name != QLatin1String(".") && name != QLatin1String("..");
#endif
}

/** Whether @p name is a folder in @p parent, which is made where it is missing. */
bool ensureFolder(const QDir &parent, const QString &name)
{
    const QString path = parent.filePath(name);
    // Another process may make it between the question and the attempt.
    return QFileInfo(path).isDir() || parent.mkdir(name) || QFileInfo(path).isDir();
}

/** The current project's folder in @p folder of the temporary folder, or an empty string. */
QString ensureProjectFolder(const QString &folder)
{
    const QString timeStamp = projectTimeStamp();
    if (!namesOneFolder(timeStamp)) {
        return QString();
    }
    const QDir temp(TalvoBasicUtil::getDefaultTempPath());
    if (!ensureFolder(temp, folder)) {
        return QString();
    }
    const QDir parent(temp.filePath(folder));
    return ensureFolder(parent, timeStamp) ? QDir::toNativeSeparators(parent.filePath(timeStamp))
                                           : QString();
}

void removeFile(const QFileInfo &file)
{
    const QString path = file.filePath();
    if (QFile::remove(path)) {
        return;
    }
    if (file.isSymLink()) {
        QDir().rmdir(path); // how Windows removes a link to a folder
        return;
    }
    // Windows keeps files that are marked as read-only.
    QFile::setPermissions(path, QFile::permissions(path) | QFile::WriteUser);
    QFile::remove(path);
}

/**
 * Deletes the folder @p path with all that is in it, as far as the system lets go of it. Links are
 * deleted and not followed, @p path itself among them. One folder is open at a time, and there is
 * no recursion, however deep it goes.
 */
void removeFolder(const QString &path)
{
    const QFileInfo top(path);
    if (path.isEmpty() || !top.isDir()) {
        return;
    }
    if (top.isSymLink()) {
        removeFile(top);
        return;
    }
    QStringList folders(path);
    for (int i = 0; i < folders.size(); ++i) {
        QDirIterator entries(folders.at(i),
                             QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
        while (entries.hasNext()) {
            entries.next();
            const QFileInfo entry = entries.fileInfo();
            if (entry.isDir() && !entry.isSymLink()) {
                folders.append(entry.filePath());
            } else {
                removeFile(entry);
            }
        }
    }
    while (!folders.isEmpty()) {
        QDir().rmdir(folders.takeLast());
    }
}

/** An entry of a folder that is dealt with later. */
struct KeptEntry
{
    QString name;
    FolderReader::Kind kind;
};

/** A folder of which a listing is under way. */
struct OpenFolder
{
    QString path;
    QString canonicalPath;   ///< tells folders apart, whichever way leads there
    QVector<KeptEntry> rest; ///< the entries that are still to come, from index next on
    int next = 0;            ///< the first of them
};

QString pathIn(const QString &folder, const QString &name)
{
    return folder.endsWith(QLatin1Char('/')) ? folder + name : folder + QLatin1Char('/') + name;
}

bool isFile(FolderReader::Kind kind)
{
    return kind == FolderReader::File || kind == FolderReader::LinkToFile;
}

bool isFolder(FolderReader::Kind kind)
{
    return kind == FolderReader::Folder || kind == FolderReader::LinkToFolder;
}

/**
 * Opens the folder @p path: the files up to its first folder go to @p files, the other entries are
 * kept. So a folder of files only keeps nothing, and no folder stays open below another. Of the
 * entries those count that a listing without hidden entries shows and that match @p nameFilters.
 */
OpenFolder openFolder(const QString &path, const QString &canonicalPath,
                      const QStringList &nameFilters, QStringList &files)
{
    OpenFolder folder;
    folder.path = path;
    folder.canonicalPath = canonicalPath;
    const QString prefix = pathIn(path, QString());
    const bool isFiltered = !nameFilters.isEmpty() && !nameFilters.contains(QLatin1String("*"));
    const auto entries = FolderReader::open(path);
    while (entries->next()) {
        if (entries->isHidden() || (isFiltered && !QDir::match(nameFilters, entries->name()))) {
            continue;
        }
        const FolderReader::Kind kind = entries->kind();
        if (isFolder(kind) || (isFile(kind) && !folder.rest.isEmpty())) {
            folder.rest.append({entries->name(), kind});
        } else if (isFile(kind)) {
            QString file;
            file.reserve(prefix.size() + UsualNameLength);
            file.append(prefix);
            entries->appendName(&file);
            files.append(file);
        }
    }
    return folder;
}

bool isOpen(const QVector<OpenFolder> &folders, const QString &canonicalPath)
{
    for (const OpenFolder &folder : folders) {
        if (folder.canonicalPath == canonicalPath) {
            return true;
        }
    }
    return false;
}

/** Whether a folder listing with its default filter shows the entry at which @p entries stands. */
bool isListed(const FolderReader &entries)
{
    if (entries.isHidden()) {
        return false;
    }
    const FolderReader::Kind kind = entries.kind();
    return kind != FolderReader::Other && kind != FolderReader::BrokenLink;
}

QString themeImage(const QString &name)
{
    return TalvoStyleManager::instance()->currentThemePath() + QStringLiteral("qssimage/") + name +
           QStringLiteral(".png");
}

} // namespace

QString TalvoBasicUtil::createTempPath()
{
    // Free space to name. Of drives with the same free space the later one stays.
    QMap<qint64, QString> solidStateDrives;
    QMap<qint64, QString> otherDrives;
    const QVector<ListedDrive> drives = listDrives();
    for (const ListedDrive &drive : drives) {
        if (!isEligible(drive.name)) {
            continue;
        }
        if (LM::Widgets::isSolidStateDrive(drive.name.toStdWString())) {
            solidStateDrives.insert(drive.freeSpace, drive.name);
            qDebug() << "SSDDisk" << drive.name;
        } else {
            otherDrives.insert(drive.freeSpace, drive.name);
            qDebug() << "HDDDisk" << drive.name;
        }
    }
    const QMap<qint64, QString> &candidates =
        solidStateDrives.isEmpty() ? otherDrives : solidStateDrives;
    if (!candidates.isEmpty()) {
        const QString path = candidates.last() + TempFolder;
        QDir().mkpath(path);
        if (QFileInfo(path).isDir()) {
            return path;
        }
    }
    return systemTempPath();
}

QString TalvoBasicUtil::getDefaultPath()
{
    const QString location = QDir::cleanPath(QDir::toNativeSeparators(
        QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)));
    QStringList components = location.split(QLatin1Char('/'));
    if (components.isEmpty()) {
        components = location.split(QLatin1Char('\\'));
    }
    if (!QCoreApplication::applicationName().isEmpty() && !components.isEmpty()) {
        components.removeLast();
    }
    if (!QCoreApplication::organizationName().isEmpty() && !components.isEmpty()) {
        components.removeLast();
    }
    QString path = QDir::cleanPath(components.join(QDir::separator()));
    if (!path.endsWith(QDir::separator())) {
        path += QDir::separator();
    }
    path = QDir::toNativeSeparators(path + AppFolder);
    if (!QDir(path).exists()) {
        QDir().mkpath(path);
    }
    return path;
}

QString TalvoBasicUtil::getDefaultTempPath()
{
    QString path;
    {
        QSettings settings(configPath(), QSettings::IniFormat);
        settings.beginGroup(ConfigGroup);
        path = settings.value(TempPathKey, QString()).toString();
        if (path.isEmpty()) {
            path = createTempPath();
        }
        settings.setValue(TempPathKey, path);
        settings.endGroup();
    }
    if (!QDir(path).exists()) {
        QDir().mkpath(path);
    }
    return QFileInfo::exists(path) && getPathWriteable(path) ? path : systemTempPath();
}

QString TalvoBasicUtil::getDefaultProjectTempDataPath()
{
    const QString folder = ensureProjectFolder(ProjectDataFolder);
    return folder.isEmpty() ? QString() : folder + ProjectFile;
}

QString TalvoBasicUtil::getConfigDataDecodePath()
{
    return ensureProjectFolder(ConfigDataFolder);
}

void TalvoBasicUtil::cleanConfigDataDecodePath()
{
    removeFolder(getConfigDataDecodePath());
}

void TalvoBasicUtil::clearDefaultProjectTempData()
{
    const QString timeStamp = projectTimeStamp();
    if (!namesOneFolder(timeStamp)) {
        return;
    }
    const QString file = getDefaultProjectTempDataPath();
    if (!file.isEmpty() && QFileInfo(file).isFile()) {
        QFile::remove(file);
    }
    removeFolder(getDefaultTempPath() + QLatin1Char('/') + ProjectDataFolder + QLatin1Char('/') +
                 timeStamp);
    cleanConfigDataDecodePath();
}

void TalvoBasicUtil::clearHistoryProjectTempData()
{
    qDebug() << "start clear temp";
    QString stored;
    {
        // Reading the stored folder here, and not through getDefaultTempPath(), never runs the
        // drive scan; hosts call this at start.
        QSettings settings(configPath(), QSettings::IniFormat);
        settings.beginGroup(ConfigGroup);
        stored = settings.value(TempPathKey, systemTempPath()).toString();
        settings.setValue(TempPathKey, stored);
        settings.endGroup();
    }
    // With an empty value the path would lie in the root of the file system.
    if (!stored.isEmpty()) {
        removeFolder(stored + QLatin1Char('/') + ProjectDataFolder);
    }
    qDebug() << "start clear temp1";
    removeFolder(getDefaultTempPath() + QLatin1Char('/') + ConfigDataFolder);
    qDebug() << "end clear temp";
}

QString TalvoBasicUtil::getConfigPathFromCloudPath(QString cloudPath)
{
    if (cloudPath.isEmpty()) {
        return QString();
    }
    const QFileInfo cloud(cloudPath);
    const QString baseName = cloud.completeBaseName();
    const QString folder = cloud.absolutePath();
    QString last;
    QString lastKey;
    const auto entries = FolderReader::open(folder);
    while (entries->next()) {
        if (!entries->mayContain(CompanionSuffix)) {
            continue;
        }
        const QString name = entries->name();
        if (!name.contains(QLatin1String(CompanionSuffix), Qt::CaseInsensitive)) {
            continue;
        }
        const QString entryBase = QFileInfo(name).completeBaseName();
        if (entryBase.compare(baseName + CompanionInfix, Qt::CaseInsensitive) != 0 &&
            entryBase.compare(baseName, Qt::CaseInsensitive) != 0) {
            continue;
        }
        // By name as folders are sorted, whatever the case; names that differ in case only have an
        // order of their own, so that the answer is always the same.
        const QString key = name.toLower();
        const bool isLater = lastKey.isNull() || key > lastKey || (key == lastKey && name > last);
        if (isLater && isListed(*entries)) {
            last = name;
            lastKey = key;
        }
    }
    return lastKey.isNull() ? QString() : QFileInfo(pathIn(folder, last)).absoluteFilePath();
}

void TalvoBasicUtil::getAllFiles(const QDir &dir, QStringList &files)
{
    QVector<OpenFolder> folders;
    folders.append(openFolder(QDir::cleanPath(dir.absolutePath()), dir.canonicalPath(),
                              dir.nameFilters(), files));
    while (!folders.isEmpty()) {
        OpenFolder &current = folders.last();
        if (current.next >= current.rest.size()) {
            folders.removeLast();
            continue;
        }
        const KeptEntry entry = current.rest.at(current.next++);
        const QString path = pathIn(current.path, entry.name);
        if (isFile(entry.kind)) {
            files.append(path);
            continue;
        }
        const bool isLink = entry.kind == FolderReader::LinkToFolder;
        const QString canonicalPath = isLink ? QFileInfo(path).canonicalFilePath()
                                             : pathIn(current.canonicalPath, entry.name);
        // Only a link can lead back to where the listing is already.
        if (!isLink || !isOpen(folders, canonicalPath)) {
            folders.append(openFolder(path, canonicalPath, QStringList(), files));
        }
    }
}

bool TalvoBasicUtil::getPathWriteable(QString path)
{
    if (path.isEmpty()) {
        return false;
    }
    const QFileInfo folder(path);
    const bool isWritable = folder.exists() && folder.isWritable();
    QFile probe(QDir(path).filePath(ProbeFile));
    // Truncating a link would empty the file that it leads to.
    if (QFileInfo(probe).isSymLink()) {
        probe.remove();
    }
    const bool isOpen = probe.open(QIODevice::WriteOnly | QIODevice::Truncate);
    probe.close();
    probe.remove();
    return isOpen && isWritable;
}

void TalvoBasicUtil::setActionIcon(QToolButton *button, const QString &normalIcon,
                                   const QString &hoverIcon, const QString &disabledIcon)
{
    QIcon icon = LM::Widgets::keptIcon(themeImage(normalIcon));
    icon.addPixmap(LM::Widgets::keptPixmap(themeImage(hoverIcon)), QIcon::Active, QIcon::Off);
    icon.addPixmap(LM::Widgets::keptPixmap(themeImage(disabledIcon)), QIcon::Disabled, QIcon::Off);
    if (button) {
        button->setIcon(icon);
    }
}

void TalvoBasicUtil::setLineEditStyle(QLineEdit *edit, bool valid)
{
    if (edit) {
        edit->setStyleSheet(valid ? ValidSheet : InvalidSheet);
    }
}
