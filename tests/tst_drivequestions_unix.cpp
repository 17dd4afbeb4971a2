/** @file
 * How Linux is asked where a drive lies and whether it rotates: with tables and devices made here,
 * and with those of this machine.
 */

#include "lmtest.h"

#include "lmwidgets/drivequestions_p.h"
#include "lmwidgets/drivequestions_unix_p.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <string>

using LM::Widgets::findMount;
using LM::Widgets::isMarkedSolidState;
using LM::Widgets::isNetworkDrive;
using LM::Widgets::isNetworkFileSystem;
using LM::Widgets::isSolidStateDrive;
using LM::Widgets::Mount;

namespace {

const std::string Table =
    "25 1 8:2 / / rw,relatime shared:1 - ext4 /dev/sda2 rw\n"
    "30 25 0:5 / /proc rw - proc proc rw\n"
    "41 25 0:40 /export /mnt/data rw shared:7 master:2 - nfs4 server:/export rw,vers=4.2\n"
    "42 41 8:17 / /mnt/data/local rw - xfs /dev/sdb1 rw\n"
    "43 25 0:41 / /mnt/my\\040scans\\134old rw - cifs //server/my\\040share rw\n"
    "44 25 8:33 / /mnt/twice rw - ext4 /dev/sdc1 rw\n"
    "45 44 0:50 / /mnt/twice rw - fuse.sshfs user@host: rw\n"
    "46 25 8:49 / /mnt/end\\04 rw - vfat /dev/sdd1 rw\n"
    "too short\n"
    "47 25 8:50 / /mnt/cut rw\n"
    "48 25 8:51 / /mnt/cut2 rw - ext4\n"
    "\n";

void write(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

} // namespace

class tst_DriveQuestionsUnix : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void mounts_data();
    void mounts();
    void emptyTable();
    void fileSystems_data();
    void fileSystems();
    void solidStateMarks();
    void thisMachine();
};

void tst_DriveQuestionsUnix::mounts_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("folder");
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QByteArray>("source");
    const auto row = [](const char *path, const char *folder, const char *type,
                        const char *source) {
        QTest::newRow(path) << QByteArray(path) << QByteArray(folder) << QByteArray(type)
                            << QByteArray(source);
    };
    row("/", "/", "ext4", "/dev/sda2");
    row("/home/a", "/", "ext4", "/dev/sda2");
    row("/mnt/data", "/mnt/data", "nfs4", "server:/export");
    row("/mnt/data/a/b", "/mnt/data", "nfs4", "server:/export");
    row("/mnt/data2", "/", "ext4", "/dev/sda2");
    row("/mnt/dat", "/", "ext4", "/dev/sda2");
    row("/mnt/data/local/a", "/mnt/data/local", "xfs", "/dev/sdb1");
    row("/mnt/my scans\\old/a", "/mnt/my scans\\old", "cifs", "//server/my share");
    row("/mnt/twice/a", "/mnt/twice", "fuse.sshfs", "user@host:");
    row("/mnt/end\\04", "/mnt/end\\04", "vfat", "/dev/sdd1");
    row("/mnt/cut", "/", "ext4", "/dev/sda2");
    row("/mnt/cut2", "/", "ext4", "/dev/sda2");
}

void tst_DriveQuestionsUnix::mounts()
{
    QFETCH(QByteArray, path);
    QFETCH(QByteArray, folder);
    QFETCH(QByteArray, type);
    QFETCH(QByteArray, source);
    const Mount mount = findMount(Table, path.toStdString());
    QCOMPARE(QByteArray::fromStdString(mount.folder), folder);
    QCOMPARE(QByteArray::fromStdString(mount.type), type);
    QCOMPARE(QByteArray::fromStdString(mount.source), source);
}

void tst_DriveQuestionsUnix::emptyTable()
{
    QVERIFY(findMount(std::string(), "/").folder.empty());
    QVERIFY(findMount("noise - - -\n\n- - -", "/").folder.empty());
    QVERIFY(findMount(Table, std::string()).folder == "/");
}

void tst_DriveQuestionsUnix::fileSystems_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<bool>("network");
    for (const char *type : {"9p", "afs", "ceph", "cifs", "fuse.sshfs", "nfs", "nfs4", "smb3"}) {
        QTest::newRow(type) << QByteArray(type) << true;
    }
    for (const char *type :
         {"btrfs", "ext4", "fuse", "fuseblk", "nfsd", "NFS", "tmpfs", "xfs", ""}) {
        QTest::newRow(type) << QByteArray(type) << false;
    }
}

void tst_DriveQuestionsUnix::fileSystems()
{
    QFETCH(QByteArray, type);
    QFETCH(bool, network);
    QCOMPARE(isNetworkFileSystem(type.toStdString()), network);
}

void tst_DriveQuestionsUnix::solidStateMarks()
{
    // As the kernel lays them out: numbers that are links, a disk's mark, partitions below it.
    const QTemporaryDir root;
    const auto path = [&root](const char *name) { return root.filePath(QLatin1String(name)); };
    write(path("devices/fast/queue/rotational"), "0\n");
    write(path("devices/fast/part1/partition"), "1\n");
    write(path("devices/slow/queue/rotational"), "1\n");
    write(path("devices/slow/part1/partition"), "1\n");
    write(path("devices/none/size"), "1\n");
    write(path("devices/empty/queue/rotational"), "");
    QVERIFY(QDir().mkdir(path("block")));
    const auto link = [&path](const char *target, const char *number) {
        QVERIFY(QFile::link(path(target), path("block/") + QLatin1String(number)));
    };
    link("devices/fast", "8:0");
    link("devices/fast/part1", "8:1");
    link("devices/slow", "8:16");
    link("devices/slow/part1", "8:17");
    link("devices/none", "8:32");
    link("devices/empty", "8:48");
    const std::string block = QFile::encodeName(path("block")).toStdString();
    QVERIFY(isMarkedSolidState(block, "8:0"));
    QVERIFY(isMarkedSolidState(block, "8:1"));
    QVERIFY(!isMarkedSolidState(block, "8:16"));
    QVERIFY(!isMarkedSolidState(block, "8:17"));
    QVERIFY(!isMarkedSolidState(block, "8:32"));
    QVERIFY(!isMarkedSolidState(block, "8:48"));
    QVERIFY(!isMarkedSolidState(block, "9:9"));
    QVERIFY(!isMarkedSolidState(block, std::string()));
}

void tst_DriveQuestionsUnix::thisMachine()
{
    for (const wchar_t *drive : {L"", L"/no/such/folder", L"D:", L"\u6e2c\u8a66"}) {
        QVERIFY(!isNetworkDrive(drive));
        QVERIFY(!isSolidStateDrive(drive));
    }
#ifdef __linux__
    // Made up by the kernel: neither a network nor a disk.
    QVERIFY(!isNetworkDrive(L"/proc"));
    QVERIFY(!isSolidStateDrive(L"/proc"));
    // A link stands for where it leads.
    const QTemporaryDir root;
    const QString link = root.filePath(QStringLiteral("link"));
    QVERIFY(QFile::link(QStringLiteral("/"), link));
    QCOMPARE(isSolidStateDrive(link.toStdWString()), isSolidStateDrive(L"/"));
    QCOMPARE(isNetworkDrive(link.toStdWString()), isNetworkDrive(L"/"));
#endif
}

LMTEST_MAIN(tst_DriveQuestionsUnix)

#include "tst_drivequestions_unix.moc"
