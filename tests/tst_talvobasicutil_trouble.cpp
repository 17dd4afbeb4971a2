/** @file
 * The working folders where the system says no: full disks, disks and folders that cannot be written
 * to, trees deeper than a stack, and another process that does the same at the same time. Disks are mounted in a namespace of
 * this process's own: nothing else sees them, and they go with it.
 */

#include "lmtest.h"
#include "standins.h"

#include <lmwidgets/talvobasicutil.h>
#include <lmwidgets/talvostylemanager.h>

#include <QProcess>
#include <QScopedPointer>
#include <QSettings>
#include <QThread>

#include <algorithm>
#include <fcntl.h>
#include <functional>
#include <sys/stat.h>
#include <unistd.h>
#ifdef __linux__
#include <sched.h>
#include <sys/mount.h>
#endif

using LM::Widgets::TalvoStyleManager;
using standins::AsNobody;
using standins::World;

namespace {

const QString Stamp = QStringLiteral("20240501123000");
const QString Probe = QStringLiteral("/KVPointCloudUtiltest.txt");
const char WorkerArgument[] = "--worker";
constexpr int WorkerRounds = 60;
constexpr int Workers = 2;

bool canMount = false;

bool writeFile(const char *path, const QByteArray &text)
{
    const int file = open(path, O_WRONLY);
    const bool written = file >= 0 && write(file, text.constData(), size_t(text.size())) ==
                                          static_cast<ssize_t>(text.size());
    close(file);
    return written;
}

/** Gives this process mounts of its own; for users other than root as the root of its own users. */
bool enterOwnMounts()
{
#ifdef __linux__
    const QByteArray user = QByteArray::number(getuid());
    const QByteArray group = QByteArray::number(getgid());
    if (getuid() != 0 || unshare(CLONE_NEWNS) != 0) {
        if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0 ||
            !writeFile("/proc/self/setgroups", "deny") ||
            !writeFile("/proc/self/uid_map", "0 " + user + " 1") ||
            !writeFile("/proc/self/gid_map", "0 " + group + " 1")) {
            return false;
        }
    }
    return mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
#else
    return false;
#endif
}

/** A disk that is mounted on a folder while this object lives. */
class Disk
{
public:
    /** An empty one with the limits @p options. */
    Disk(const QString &folder, const QByteArray &options) : m_folder(QFile::encodeName(folder))
    {
#ifdef __linux__
        m_isMounted = mount("tmpfs", m_folder.constData(), "tmpfs", 0, options.constData()) == 0;
#else
        Q_UNUSED(options)
#endif
    }

    /** What the folder holds already, but read-only. */
    explicit Disk(const QString &folder) : m_folder(QFile::encodeName(folder))
    {
#ifdef __linux__
        const char *path = m_folder.constData();
        m_isMounted = mount(path, path, nullptr, MS_BIND, nullptr) == 0;
        m_isMounted = m_isMounted &&
                      mount(nullptr, path, nullptr, MS_BIND | MS_REMOUNT | MS_RDONLY, nullptr) == 0;
#endif
    }

    ~Disk()
    {
#ifdef __linux__
        umount2(m_folder.constData(), MNT_DETACH);
#endif
    }

    bool isMounted() const
    {
        return m_isMounted;
    }

private:
    Q_DISABLE_COPY(Disk)

    QByteArray m_folder;
    bool m_isMounted = false;
};

/** Writes to @p path until the disk is full, and returns whether it is. */
bool fill(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        return false;
    }
    while (file.write(QByteArray(4096, 'x')) > 0) {
    }
    return true;
}

QString configPath()
{
    return TalvoBasicUtil::getDefaultPath() + QStringLiteral("/config/config.ini");
}

void store(const QString &tempPath)
{
    QSettings(configPath(), QSettings::IniFormat)
        .setValue(QStringLiteral("TalvoBasicUtil/temppath"), tempPath);
}

QVariant configured(const QString &key)
{
    return QSettings(configPath(), QSettings::IniFormat).value(key);
}

QString stored()
{
    return configured(QStringLiteral("TalvoBasicUtil/temppath")).toString();
}

void addFile(const QString &path)
{
    QDir().mkpath(QFileInfo(path).path());
    World::write(path, "x");
}

/** Makes a chain of @p depth folders called "d" with a file "f" in each, however long its path. */
bool makeDeepTree(const QString &top, int depth)
{
    int folder = open(QFile::encodeName(top).constData(), O_RDONLY | O_DIRECTORY);
    for (int i = 0; folder >= 0 && i < depth; ++i) {
        const int file = openat(folder, "f", O_WRONLY | O_CREAT, 0600);
        close(file);
        const bool made = file >= 0 && mkdirat(folder, "d", 0700) == 0;
        const int next = made ? openat(folder, "d", O_RDONLY | O_DIRECTORY) : -1;
        close(folder);
        folder = next;
    }
    close(folder);
    return folder >= 0;
}

/** Deletes what makeDeepTree() made, from the deepest that a path can name upwards. */
bool removeDeepTree(const QString &top)
{
    return QProcess::execute(QStringLiteral("/bin/rm"), {QStringLiteral("-rf"), top}) == 0;
}

/** Runs @p work on a thread with little stack, where deep recursion ends the program. */
void runWithSmallStack(const std::function<void()> &work)
{
    const QScopedPointer<QThread> thread(QThread::create(work));
    thread->setStackSize(128 * 1024);
    thread->start();
    thread->wait();
}

/**
 * What one of several processes does at the same time: everything that reads and writes the
 * configuration or makes and deletes folders, and a value of its own in the same file.
 */
/** This program, which the tests start as workers. */
QString programFile;

int work(const QString &name)
{
    TalvoStyleManager::instance()->setProjectTimeStamp(Stamp);
    const QString expected = qEnvironmentVariable("TMPDIR");
    for (int i = 0; i < WorkerRounds; ++i) {
        if (TalvoBasicUtil::getDefaultTempPath() != expected) {
            return 10;
        }
        if (TalvoBasicUtil::getDefaultProjectTempDataPath().isEmpty()) {
            return 11;
        }
        QSettings settings(configPath(), QSettings::IniFormat);
        settings.setValue(QStringLiteral("Worker%1/round").arg(name), i);
    }
    return 0;
}

} // namespace

class tst_TalvoBasicUtilTrouble : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void fullDisk();
    void fullDiskUnderTheConfiguration();
    void clearingOnAFullDisk();
    void readOnlyDisk();
    void readOnlyConfiguration();
    void readOnlyUserFolder();
    void folderWithoutPermission();
    void configurationWithoutPermission();
    void scratchFolderWithoutPermission();
    void deepScratchFolder();
    void deepTree();
    void treeDeeperThanAPath();
    void twoProcesses();
    void twoProcessesAtFirstUse();

private:
    QString temp() const { return m_world->path(QStringLiteral("T")); }
    void runWorkers();

    QScopedPointer<World> m_world;
};

#define NEEDS_MOUNTS()                                                                             \
    do {                                                                                           \
        if (!canMount) {                                                                           \
            QSKIP("neither root nor a namespace of one's own may mount disks here");               \
        }                                                                                          \
    } while (false)

void tst_TalvoBasicUtilTrouble::init()
{
    m_world.reset(new World);
    QVERIFY(QDir().mkpath(temp()));
    store(temp());
    TalvoStyleManager::instance()->setProjectTimeStamp(Stamp);
}

void tst_TalvoBasicUtilTrouble::cleanup()
{
    m_world.reset();
}

void tst_TalvoBasicUtilTrouble::fullDisk()
{
    NEEDS_MOUNTS();
    // The folder itself is one of the two; the probe or one more folder takes the other.
    const Disk disk(temp(), "size=16k,nr_inodes=2");
    QVERIFY(disk.isMounted());
    QCOMPARE(TalvoBasicUtil::getDefaultTempPath(), temp());
    QCOMPARE(TalvoBasicUtil::getConfigDataDecodePath(), QString());
    QVERIFY(QFileInfo(temp() + QStringLiteral("/configdatadecodetemp")).isDir());
    // Now the disk takes nothing at all.
    QVERIFY(!TalvoBasicUtil::getPathWriteable(temp()));
    QCOMPARE(TalvoBasicUtil::getDefaultTempPath(), m_world->systemTemp());
    QCOMPARE(stored(), temp());
    QVERIFY(!QFileInfo::exists(temp() + Probe));
    QCOMPARE(TalvoBasicUtil::getConfigDataDecodePath(),
             m_world->systemTemp() + QStringLiteral("/configdatadecodetemp/") + Stamp);
}

void tst_TalvoBasicUtilTrouble::fullDiskUnderTheConfiguration()
{
    NEEDS_MOUNTS();
    const QString folder = QFileInfo(configPath()).path();
    const Disk disk(folder, "size=16k");
    QVERIFY(disk.isMounted());
    QSettings(configPath(), QSettings::IniFormat).setValue(QStringLiteral("Host/key"), 7);
    const QByteArray before = World::read(configPath());
    QVERIFY(before.contains("key=7"));
    QVERIFY(fill(folder + QStringLiteral("/filler")));
    QCOMPARE(TalvoBasicUtil::getDefaultTempPath(), m_world->systemTemp());
    QVERIFY(!TalvoBasicUtil::getConfigDataDecodePath().isEmpty());
    // It could not be stored, and what others stored is still there.
    QCOMPARE(World::read(configPath()), before);
    QVERIFY(QFile::remove(folder + QStringLiteral("/filler")));
    QCOMPARE(TalvoBasicUtil::getDefaultTempPath(), m_world->systemTemp());
    QCOMPARE(stored(), m_world->systemTemp());
    QCOMPARE(configured(QStringLiteral("Host/key")).toInt(), 7);
}

void tst_TalvoBasicUtilTrouble::clearingOnAFullDisk()
{
    NEEDS_MOUNTS();
    const Disk disk(temp(), "size=64k,nr_inodes=12");
    QVERIFY(disk.isMounted());
    const QString data = temp() + QStringLiteral("/kvdprojectdata/") + Stamp;
    const QString scratch = temp() + QStringLiteral("/configdatadecodetemp/") + Stamp;
    addFile(data + QStringLiteral("/a"));
    addFile(scratch + QStringLiteral("/b"));
    QVERIFY(fill(scratch + QStringLiteral("/filler")));
    QVERIFY(TalvoBasicUtil::getPathWriteable(temp()));
    TalvoBasicUtil::clearDefaultProjectTempData();
    QVERIFY(!QFileInfo::exists(data));
    QVERIFY(!QFileInfo::exists(scratch));
}

void tst_TalvoBasicUtilTrouble::readOnlyDisk()
{
    NEEDS_MOUNTS();
    addFile(temp() + QStringLiteral("/kvdprojectdata/") + Stamp + QStringLiteral("/a"));
    const Disk disk(temp());
    QVERIFY(disk.isMounted());
    QVERIFY(!TalvoBasicUtil::getPathWriteable(temp()));
    QCOMPARE(TalvoBasicUtil::getDefaultTempPath(), m_world->systemTemp());
    QCOMPARE(stored(), temp());
    // The project works in the system's folder meanwhile.
    QCOMPARE(TalvoBasicUtil::getConfigDataDecodePath(),
             m_world->systemTemp() + QStringLiteral("/configdatadecodetemp/") + Stamp);
    TalvoBasicUtil::clearDefaultProjectTempData();
    TalvoBasicUtil::clearHistoryProjectTempData();
    QVERIFY(QFileInfo::exists(temp() + QStringLiteral("/kvdprojectdata/") + Stamp +
                              QStringLiteral("/a")));
    QVERIFY(!QFileInfo::exists(m_world->systemTemp() + QStringLiteral("/configdatadecodetemp")));
}

void tst_TalvoBasicUtilTrouble::readOnlyConfiguration()
{
    NEEDS_MOUNTS();
    const QByteArray before = World::read(configPath());
    const Disk disk(QFileInfo(configPath()).path());
    QVERIFY(disk.isMounted());
    // What is stored is read; that it cannot be written back does not matter.
    QCOMPARE(TalvoBasicUtil::getDefaultTempPath(), temp());
    TalvoBasicUtil::clearHistoryProjectTempData();
    QCOMPARE(World::read(configPath()), before);
}

void tst_TalvoBasicUtilTrouble::readOnlyUserFolder()
{
    NEEDS_MOUNTS();
    const QString folder = TalvoBasicUtil::getDefaultPath();
    QVERIFY(QDir(folder).removeRecursively());
    const Disk disk(QFileInfo(folder).path());
    QVERIFY(disk.isMounted());
    QCOMPARE(TalvoBasicUtil::getDefaultPath(), folder);
    QVERIFY(!QFileInfo::exists(folder));
    m_world->addProgram(QStringLiteral("wmic"), "FreeSpace Name\r\n");
    // Nothing is remembered, so each call looks for a drive again.
    QCOMPARE(TalvoBasicUtil::getDefaultTempPath(), m_world->systemTemp());
    QCOMPARE(TalvoBasicUtil::getDefaultTempPath(), m_world->systemTemp());
    QCOMPARE(m_world->arguments(QStringLiteral("wmic")).size(), 2 * 3);
}

void tst_TalvoBasicUtilTrouble::folderWithoutPermission()
{
    const AsNobody nobody(*m_world);
    if (!nobody) {
        QSKIP("root may not become anybody else here");
    }
    QVERIFY(QFile::setPermissions(temp(), QFile::ReadOwner | QFile::ExeOwner));
    QVERIFY(!TalvoBasicUtil::getPathWriteable(temp()));
    QCOMPARE(TalvoBasicUtil::getDefaultTempPath(), m_world->systemTemp());
    QCOMPARE(stored(), temp());
    // The folder is there, but nothing may be made in it; nor is a project's folder below it.
    QVERIFY(QFile::setPermissions(temp(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QVERIFY(QDir(temp()).mkdir(QStringLiteral("kvdprojectdata")));
    QVERIFY(QFile::setPermissions(temp() + QStringLiteral("/kvdprojectdata"),
                                  QFile::ReadOwner | QFile::ExeOwner));
    QCOMPARE(TalvoBasicUtil::getDefaultTempPath(), temp());
    QCOMPARE(TalvoBasicUtil::getDefaultProjectTempDataPath(), QString());
    QVERIFY(!TalvoBasicUtil::getConfigDataDecodePath().isEmpty());
}

void tst_TalvoBasicUtilTrouble::configurationWithoutPermission()
{
    const AsNobody nobody(*m_world);
    if (!nobody) {
        QSKIP("root may not become anybody else here");
    }
    const QString folder = QFileInfo(configPath()).path();
    const QByteArray before = World::read(configPath());
    QVERIFY(QFile::setPermissions(configPath(), QFile::ReadOwner));
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    QCOMPARE(TalvoBasicUtil::getDefaultTempPath(), temp());
    TalvoBasicUtil::clearHistoryProjectTempData();
    QCOMPARE(World::read(configPath()), before);
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

void tst_TalvoBasicUtilTrouble::scratchFolderWithoutPermission()
{
    const QString scratch = temp() + QStringLiteral("/configdatadecodetemp/") + Stamp;
    addFile(scratch + QStringLiteral("/a"));
    addFile(scratch + QStringLiteral("/kept/b"));
    addFile(scratch + QStringLiteral("/z/c"));
    const AsNobody nobody(*m_world);
    if (!nobody) {
        QSKIP("root may not become anybody else here");
    }
    QVERIFY(QFile::setPermissions(scratch + QStringLiteral("/kept"),
                                  QFile::ReadOwner | QFile::ExeOwner));
    TalvoBasicUtil::cleanConfigDataDecodePath();
    // What may not go stays, with what is in it; the rest goes.
    QCOMPARE(QDir(scratch).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList{QStringLiteral("kept")});
    QVERIFY(QFileInfo::exists(scratch + QStringLiteral("/kept/b")));
    QVERIFY(QFile::setPermissions(scratch + QStringLiteral("/kept"),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

void tst_TalvoBasicUtilTrouble::deepScratchFolder()
{
    // More levels than files that a process may have open.
    const QString folder = temp() + QStringLiteral("/configdatadecodetemp/") + Stamp;
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(makeDeepTree(folder, 1900));
    runWithSmallStack([] { TalvoBasicUtil::cleanConfigDataDecodePath(); });
    QVERIFY(!QFileInfo::exists(folder));
}

void tst_TalvoBasicUtilTrouble::deepTree()
{
    QVERIFY(makeDeepTree(QDir::currentPath(), 1900));
    QStringList files;
    runWithSmallStack([&files] { TalvoBasicUtil::getAllFiles(QDir::current(), files); });
    QCOMPARE(files.size(), 1900);
}

void tst_TalvoBasicUtilTrouble::treeDeeperThanAPath()
{
    const QString top = QDir::current().absoluteFilePath(QStringLiteral("top"));
    QVERIFY(QDir().mkdir(top));
    const bool made = makeDeepTree(top, 5000);
    QStringList files;
    runWithSmallStack([&files, &top] { TalvoBasicUtil::getAllFiles(QDir(top), files); });
    QStringList missing = files;
    missing.erase(std::remove_if(missing.begin(), missing.end(),
                                 [](const QString &f) { return QFileInfo::exists(f); }),
                  missing.end());
    // No function of Qt's deletes such a tree.
    QVERIFY(removeDeepTree(top));
    QVERIFY(made);
    // As far as a path of the system's greatest length leads: the last folder that can be opened
    // may have a file whose own path is too long.
    QVERIFY2(files.size() > 1900 && files.size() < 2100, qPrintable(QString::number(files.size())));
    missing.removeAll(*std::max_element(
        files.begin(), files.end(),
        [](const QString &left, const QString &right) { return left.size() < right.size(); }));
    QCOMPARE(missing, QStringList());
}

void tst_TalvoBasicUtilTrouble::runWorkers()
{
    QVector<QSharedPointer<QProcess>> workers;
    for (int i = 0; i < Workers; ++i) {
        workers.append(QSharedPointer<QProcess>::create());
        workers.last()->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        workers.last()->start(programFile, {QLatin1String(WorkerArgument), QString::number(i)});
    }
    for (const auto &worker : workers) {
        QVERIFY2(worker->waitForFinished(120000), qPrintable(worker->errorString()));
        QCOMPARE(worker->exitStatus(), QProcess::NormalExit);
        QCOMPARE(worker->exitCode(), 0);
    }
    QCOMPARE(stored(), m_world->systemTemp());
    QCOMPARE(configured(QStringLiteral("Host/key")).toInt(), 7);
    for (int i = 0; i < Workers; ++i) {
        QCOMPARE(configured(QStringLiteral("Worker%1/round").arg(i)).toInt(), WorkerRounds - 1);
    }
    QVERIFY(QFileInfo(m_world->systemTemp() + QStringLiteral("/kvdprojectdata/") + Stamp).isDir());
    QVERIFY(!QFileInfo::exists(m_world->systemTemp() + Probe));
}

void tst_TalvoBasicUtilTrouble::twoProcesses()
{
    store(m_world->systemTemp());
    QSettings(configPath(), QSettings::IniFormat).setValue(QStringLiteral("Host/key"), 7);
    runWorkers();
}

void tst_TalvoBasicUtilTrouble::twoProcessesAtFirstUse()
{
    QVERIFY(QFile::remove(configPath()));
    QSettings(configPath(), QSettings::IniFormat).setValue(QStringLiteral("Host/key"), 7);
    m_world->addProgram(QStringLiteral("wmic"), "FreeSpace Name\r\n");
    runWorkers();
    QVERIFY(!m_world->arguments(QStringLiteral("wmic")).isEmpty());
}

int main(int argc, char **argv)
{
    if (argc == 3 && qstrcmp(argv[1], WorkerArgument) == 0) {
        const QCoreApplication application(argc, argv);
        return work(QString::fromLocal8Bit(argv[2]));
    }
    // Below a changed root the system no longer names the program once its mounts are its own.
    programFile = QFileInfo(QStringLiteral("/proc/self/exe")).canonicalFilePath();
    // A process with several threads gets no users of its own.
    canMount = enterOwnMounts();
    QApplication application(argc, argv);
    lmtest::prepareApplication();
    const QTemporaryDir folder;
    QScopedPointer<Disk> memory;
    if (canMount) {
        // Thousands of folders are made and deleted much faster there than on a real disk.
        memory.reset(new Disk(folder.path(), "mode=1777"));
        if (memory->isMounted()) {
            qputenv("TMPDIR", QFile::encodeName(folder.path()));
        }
    }
    tst_TalvoBasicUtilTrouble test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_talvobasicutil_trouble.moc"
