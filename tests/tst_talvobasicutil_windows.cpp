/** @file
 * The working folders and the choice of a drive on Windows as it is: its own commands, drives and
 * rules for names. Where the system is Wine, scripts/windows has put some drives there. The user's
 * own settings are not touched.
 */

#include "lmtest.h"

#include "lmwidgets/drivelisting_p.h"
#include "lmwidgets/drivequestions_p.h"

#include <lmwidgets/talvobasicutil.h>
#include <lmwidgets/talvostylemanager.h>

#include <QDir>
#include <QMap>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

using LM::Widgets::ListedDrive;
using LM::Widgets::TalvoStyleManager;

namespace {

const QString Stamp = QStringLiteral("20240501123000");
const QString TempFolder = QStringLiteral("/KVD Talvo Model-temp");

bool isWine()
{
    return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

/** The drives that the system has, such as "D:". */
QStringList systemDrives()
{
    QStringList drives;
    const DWORD mask = GetLogicalDrives();
    for (int i = 0; i < 26; ++i) {
        if (mask & (1U << i)) {
            drives.append(QString(QLatin1Char(char('A' + i))) + QLatin1Char(':'));
        }
    }
    return drives;
}

UINT typeOf(const QString &drive)
{
    return GetDriveTypeW((drive + QLatin1Char('\\')).toStdWString().c_str());
}

/** The free space of @p drive in bytes, or -1. */
qint64 freeSpaceOf(const QString &drive)
{
    ULARGE_INTEGER available;
    const bool known = GetDiskFreeSpaceExW((drive + QLatin1Char('\\')).toStdWString().c_str(),
                                           &available, nullptr, nullptr);
    return known ? qint64(available.QuadPart) : -1;
}

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished(60000) ? process.readAllStandardOutput() : QByteArray();
}

QByteArray wmicOutput()
{
    return outputOf(QStringLiteral("wmic"), {QStringLiteral("logicaldisk"), QStringLiteral("get"),
                                             QStringLiteral("name,freespace")});
}

QMap<QString, qint64> drivesOf(const QByteArray &output)
{
    QMap<QString, qint64> drives;
    const QVector<ListedDrive> listed = LM::Widgets::parseWmicLines(LM::Widgets::wmicLines(output));
    for (const ListedDrive &drive : listed) {
        drives.insert(drive.name, drive.freeSpace);
    }
    return drives;
}

QByteArray utf16(const QString &text)
{
    return QByteArray(reinterpret_cast<const char *>(text.utf16()), text.size() * 2);
}

/** What is logged while it lives; QTest hears nothing of it. */
class Log
{
public:
    Log() : m_previous(qInstallMessageHandler(note)) { messages.clear(); }
    ~Log() { qInstallMessageHandler(m_previous); }

    static QStringList messages;

private:
    static void note(QtMsgType, const QMessageLogContext &, const QString &message)
    {
        messages.append(message);
    }

    QtMessageHandler m_previous;
};

QStringList Log::messages;

QString configPath()
{
    return TalvoBasicUtil::getDefaultPath() + QStringLiteral("/config/config.ini");
}

void store(const QString &tempPath)
{
    QSettings(configPath(), QSettings::IniFormat)
        .setValue(QStringLiteral("TalvoBasicUtil/temppath"), tempPath);
}

QString stored()
{
    return QSettings(configPath(), QSettings::IniFormat)
        .value(QStringLiteral("TalvoBasicUtil/temppath"))
        .toString();
}

void addFile(const QString &path)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

void setStamp(const QString &stamp)
{
    TalvoStyleManager::instance()->setProjectTimeStamp(stamp);
}

} // namespace

class tst_TalvoBasicUtilWindows : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void listing();
    void listingInEveryEncoding();
    void powerShell();
    void driveTypes();
    void solidStateLeavesNothingOpen();
    void choice();
    void neitherCommandPrints();
    void writableDrives();

    void defaultPath();
    void removedDrive();
    void projectFolders();
    void stampsThatNameNoFolder_data();
    void stampsThatNameNoFolder();
    void readOnlyFilesAreCleared();
    void hiddenFilesAreNotListed();
    void companionInAnyCase();

private:
    QString temp() const { return m_folder->filePath(QStringLiteral("T")); }

    QScopedPointer<QTemporaryDir> m_folder;
};

void tst_TalvoBasicUtilWindows::initTestCase()
{
    TestCase::initTestCase();
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_talvobasicutil_windows"));
    if (isWine()) {
        for (const QString &drive : {QStringLiteral("D:"), QStringLiteral("E:"),
                                     QStringLiteral("N:"), QStringLiteral("O:")}) {
            QVERIFY2(systemDrives().contains(drive), "scripts/windows makes these drives");
        }
    }
}

void tst_TalvoBasicUtilWindows::init()
{
    m_folder.reset(new QTemporaryDir);
    QVERIFY(m_folder->isValid());
    store(temp());
    setStamp(Stamp);
}

void tst_TalvoBasicUtilWindows::cleanup()
{
    QVERIFY(QDir(TalvoBasicUtil::getDefaultPath()).removeRecursively());
    m_folder.reset();
    setStamp(QString());
}

void tst_TalvoBasicUtilWindows::listing()
{
    const QByteArray output = wmicOutput();
    QVERIFY(!output.isEmpty());
    if (isWine()) {
        QVERIFY(output.startsWith("\xff\xfe"));
    }
    const QMap<QString, qint64> listed = drivesOf(output);
    QStringList local;
    for (const QString &drive : systemDrives()) {
        if (typeOf(drive) == DRIVE_FIXED) {
            local.append(drive);
        }
    }
    QVERIFY(local.contains(QStringLiteral("C:")));
    for (const QString &drive : local) {
        QVERIFY2(listed.contains(drive), qPrintable(drive));
        // Other programs write meanwhile.
        const qint64 difference = listed.value(drive) - freeSpaceOf(drive);
        QVERIFY2(qAbs(difference) < 1000 * 1000 * 1000, qPrintable(drive));
        QVERIFY(listed.value(drive) > 0);
    }
    for (const QString &drive : listed.keys()) {
        QVERIFY2(systemDrives().contains(drive), qPrintable(drive));
    }
}

void tst_TalvoBasicUtilWindows::listingInEveryEncoding()
{
    const QByteArray output = wmicOutput();
    const bool marked = output.startsWith("\xff\xfe");
    const QString text =
        marked ? QString::fromUtf16(reinterpret_cast<const char16_t *>(output.constData() + 2),
                                    (output.size() - 2) / 2)
               : QString::fromLocal8Bit(output);
    QVERIFY(text.contains(QLatin1String("FreeSpace")));
    const QMap<QString, qint64> expected = drivesOf(output);
    QVERIFY(expected.contains(QStringLiteral("C:")));
    QCOMPARE(drivesOf(text.toLocal8Bit()), expected);
    QCOMPARE(drivesOf("\xff\xfe" + utf16(text)), expected);
    QCOMPARE(drivesOf(utf16(text)), expected);
}

void tst_TalvoBasicUtilWindows::powerShell()
{
    const QByteArray output =
        outputOf(QStringLiteral("powershell"),
                 {QStringLiteral("-Command"),
                  QStringLiteral("Get-WmiObject Win32_LogicalDisk | Select-Object DeviceID, "
                                 "FreeSpace")});
    QStringList names;
    for (const ListedDrive &drive : LM::Widgets::parsePowerShell(output)) {
        names.append(drive.name);
    }
    if (isWine()) {
        QCOMPARE(output, QByteArray());
        QCOMPARE(names, QStringList());
    } else {
        QVERIFY(names.contains(QStringLiteral("C:")));
    }
}

void tst_TalvoBasicUtilWindows::driveTypes()
{
    for (const QString &drive : systemDrives()) {
        QCOMPARE(LM::Widgets::isNetworkDrive(drive.toStdWString()), typeOf(drive) == DRIVE_REMOTE);
    }
    QVERIFY(!LM::Widgets::isNetworkDrive(L"C:"));
    if (isWine()) {
        QVERIFY(LM::Widgets::isNetworkDrive(L"N:"));
        QVERIFY(!LM::Widgets::isNetworkDrive(L"D:"));
        QVERIFY(!LM::Widgets::isNetworkDrive(L"O:"));
    }
}

void tst_TalvoBasicUtilWindows::solidStateLeavesNothingOpen()
{
    for (const QString &drive : systemDrives()) {
        LM::Widgets::isSolidStateDrive(drive.toStdWString());
    }
    DWORD before = 0;
    QVERIFY(GetProcessHandleCount(GetCurrentProcess(), &before));
    for (int i = 0; i < 50; ++i) {
        for (const QString &drive : systemDrives()) {
            LM::Widgets::isSolidStateDrive(drive.toStdWString());
        }
    }
    DWORD after = 0;
    QVERIFY(GetProcessHandleCount(GetCurrentProcess(), &after));
    QCOMPARE(after, before);
}

void tst_TalvoBasicUtilWindows::choice()
{
    QStringList present;
    for (const QString &drive : systemDrives()) {
        if (QFileInfo(drive + TempFolder).isDir()) {
            present.append(drive);
        }
    }
    QString path;
    QStringList messages;
    {
        const Log log;
        path = TalvoBasicUtil::createTempPath();
        messages = log.messages;
    }

    // Which drives may be chosen, and which of them are solid-state, is what the log says.
    QStringList solidState;
    QStringList other;
    for (const QString &message : messages) {
        const QString drive = message.section(QLatin1Char('"'), 1, 1);
        QVERIFY2(systemDrives().contains(drive), qPrintable(message));
        QVERIFY(typeOf(drive) != DRIVE_REMOTE && drive != QLatin1String("C:"));
        QVERIFY(TalvoBasicUtil::getPathWriteable(drive));
        QCOMPARE(message.startsWith(QLatin1String("SSDDisk")),
                 LM::Widgets::isSolidStateDrive(drive.toStdWString()));
        (message.startsWith(QLatin1String("SSDDisk")) ? solidState : other).append(drive);
    }
    QString expected;
    for (const QString &drive : solidState.isEmpty() ? other : solidState) {
        if (expected.isEmpty() || freeSpaceOf(drive) >= freeSpaceOf(expected)) {
            expected = drive;
        }
    }
    if (isWine()) {
        QVERIFY((solidState + other).contains(QStringLiteral("D:")));
        QVERIFY((solidState + other).contains(QStringLiteral("E:")));
    }
    const QString system = QStandardPaths::writableLocation(QStandardPaths::TempLocation);
    QCOMPARE(path, expected.isEmpty() ? system : expected + TempFolder);
    QVERIFY(QFileInfo(path).isDir());
    if (!expected.isEmpty() && !present.contains(expected)) {
        QDir().rmdir(path);
    }
}

/** A program beside this one is found before the system's own: a wmic that prints nothing. */
void tst_TalvoBasicUtilWindows::neitherCommandPrints()
{
    if (!isWine()) {
        QSKIP("Only Wine's powershell prints nothing");
    }
    const QString silent = QCoreApplication::applicationDirPath() + QStringLiteral("/wmic.exe");
    QFile::remove(silent);
    QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), silent));
    const QByteArray output = wmicOutput();
    const QString path = TalvoBasicUtil::createTempPath();
    // The system lets go of a program a little after its end.
    QVERIFY(QTest::qWaitFor([&silent] { return QFile::remove(silent); }));
    QCOMPARE(output, QByteArray());
    QCOMPARE(path, QStandardPaths::writableLocation(QStandardPaths::TempLocation));
}

void tst_TalvoBasicUtilWindows::writableDrives()
{
    const QString unknown = QStringLiteral("Q:");
    QVERIFY(!systemDrives().contains(unknown));
    QVERIFY(!TalvoBasicUtil::getPathWriteable(unknown));
    QVERIFY(!TalvoBasicUtil::getPathWriteable(QStringLiteral("nul")));
    QVERIFY(!TalvoBasicUtil::getPathWriteable(m_folder->filePath(QStringLiteral("missing"))));
    QVERIFY(TalvoBasicUtil::getPathWriteable(m_folder->path()));
    QVERIFY(TalvoBasicUtil::getPathWriteable(QDir::toNativeSeparators(m_folder->path())));
    QVERIFY(QDir(m_folder->path()).entryList(QDir::Files).isEmpty());
    if (isWine()) {
        QVERIFY(TalvoBasicUtil::getPathWriteable(QStringLiteral("D:")));
        QVERIFY(!QFile::exists(QStringLiteral("D:/KVPointCloudUtiltest.txt")));
        QVERIFY(!TalvoBasicUtil::getPathWriteable(QStringLiteral("O:")));
    }
}

void tst_TalvoBasicUtilWindows::defaultPath()
{
    // Beside the folders of the organisations, in the part that follows the user.
    const QString roaming =
        QDir::fromNativeSeparators(qEnvironmentVariable("APPDATA")) + QStringLiteral("/qttest");
    const QString expected = QDir::toNativeSeparators(roaming + QStringLiteral("/KVDTalvoModel"));
    QCOMPARE(TalvoBasicUtil::getDefaultPath(), expected);
    QVERIFY(QFileInfo(expected).isDir());
    QCoreApplication::setOrganizationName(QStringLiteral("Org"));
    QCOMPARE(TalvoBasicUtil::getDefaultPath(), expected);
    QCoreApplication::setOrganizationName(QString());
    QCOMPARE(TalvoBasicUtil::getDefaultPath(), expected);
}

void tst_TalvoBasicUtilWindows::removedDrive()
{
    const QString path = QStringLiteral("Q:") + TempFolder;
    store(path);
    QCOMPARE(TalvoBasicUtil::getDefaultTempPath(),
             QStandardPaths::writableLocation(QStandardPaths::TempLocation));
    QCOMPARE(stored(), path);
}

void tst_TalvoBasicUtilWindows::projectFolders()
{
    const QString data =
        QDir::toNativeSeparators(temp() + QStringLiteral("/kvdprojectdata/")) + Stamp;
    QCOMPARE(TalvoBasicUtil::getDefaultProjectTempDataPath(),
             data + QStringLiteral("\\project.Kvdm"));
    QVERIFY(QFileInfo(data).isDir());
    QVERIFY(QDir(data).isEmpty());
    QCOMPARE(TalvoBasicUtil::getConfigDataDecodePath(),
             QDir::toNativeSeparators(temp() + QStringLiteral("/configdatadecodetemp/")) + Stamp);

    // The file is in the folder here.
    addFile(TalvoBasicUtil::getDefaultProjectTempDataPath());
    QCOMPARE(QDir(data).entryList(QDir::Files), QStringList(QStringLiteral("project.Kvdm")));
    addFile(temp() + QStringLiteral("/kvdprojectdata/other/kept"));
    TalvoBasicUtil::clearDefaultProjectTempData();
    QVERIFY(!QFileInfo::exists(data));
    QVERIFY(QFileInfo::exists(temp() + QStringLiteral("/kvdprojectdata/other/kept")));
    TalvoBasicUtil::clearHistoryProjectTempData();
    QVERIFY(!QFileInfo::exists(temp() + QStringLiteral("/kvdprojectdata")));
}

void tst_TalvoBasicUtilWindows::stampsThatNameNoFolder_data()
{
    QTest::addColumn<QString>("stamp");
    for (const char *stamp : {"", ".", "..", " ", "...", ". .", "..\\other", "../other", "\\",
                              "C:", "other:stream", "C:\\"}) {
        QTest::newRow(stamp) << QString::fromLatin1(stamp);
    }
}

void tst_TalvoBasicUtilWindows::stampsThatNameNoFolder()
{
    QFETCH(QString, stamp);
    const QStringList kept = {temp() + QStringLiteral("/kvdprojectdata/other/kept"),
                              temp() + QStringLiteral("/configdatadecodetemp/other/kept"),
                              temp() + QStringLiteral("/other/kept")};
    for (const QString &file : kept) {
        addFile(file);
    }
    setStamp(stamp);
    QCOMPARE(TalvoBasicUtil::getDefaultProjectTempDataPath(), QString());
    QCOMPARE(TalvoBasicUtil::getConfigDataDecodePath(), QString());
    TalvoBasicUtil::cleanConfigDataDecodePath();
    TalvoBasicUtil::clearDefaultProjectTempData();
    for (const QString &file : kept) {
        QVERIFY2(QFileInfo::exists(file), qPrintable(file));
    }
}

void tst_TalvoBasicUtilWindows::readOnlyFilesAreCleared()
{
    const QString folder = TalvoBasicUtil::getConfigDataDecodePath();
    const QString file = folder + QStringLiteral("\\a\\b\\locked");
    addFile(file);
    QVERIFY(SetFileAttributesW(file.toStdWString().c_str(),
                               FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN));
    TalvoBasicUtil::cleanConfigDataDecodePath();
    QVERIFY(!QFileInfo::exists(folder));
}

void tst_TalvoBasicUtilWindows::hiddenFilesAreNotListed()
{
    const QString shown = m_folder->filePath(QStringLiteral("a/shown"));
    const QString hidden = m_folder->filePath(QStringLiteral("a/hidden"));
    addFile(shown);
    addFile(hidden);
    QVERIFY(SetFileAttributesW(hidden.toStdWString().c_str(), FILE_ATTRIBUTE_HIDDEN));
    QStringList files;
    TalvoBasicUtil::getAllFiles(QDir(m_folder->path()), files);
    QCOMPARE(files, QStringList(shown));
}

void tst_TalvoBasicUtilWindows::companionInAnyCase()
{
    const QString companion = m_folder->filePath(QStringLiteral("SCAN01.Info.KVDATA"));
    addFile(companion);
    const QString cloud = m_folder->filePath(QStringLiteral("scan01.las"));
    QCOMPARE(TalvoBasicUtil::getConfigPathFromCloudPath(cloud), companion);
    QCOMPARE(TalvoBasicUtil::getConfigPathFromCloudPath(QDir::toNativeSeparators(cloud)),
             companion);
}

int main(int argc, char **argv)
{
    // A copy of this program that stands for a command with nothing to say.
    if (QFileInfo(QString::fromLocal8Bit(argv[0])).baseName() == QLatin1String("wmic")) {
        return 0;
    }
    QApplication application(argc, argv);
    tst_TalvoBasicUtilWindows test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_talvobasicutil_windows.moc"
