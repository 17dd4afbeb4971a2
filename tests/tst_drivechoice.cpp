/** @file
 * The choice of the drive for temporary data. The program is linked with the sources of the library
 * themselves, and answers what they ask the platform.
 */

#include "lmtest.h"
#include "standins.h"

#include "lmwidgets/drivelisting_p.h"
#include "lmwidgets/drivequestions_p.h"

#include <lmwidgets/talvobasicutil.h>

#include <QElapsedTimer>
#include <QScopedPointer>
#include <QSet>

using LM::Widgets::ListedDrive;
using standins::World;

namespace {

QSet<QString> networkDrives;
QSet<QString> solidStateDrives;
QStringList networkQuestions;
QStringList solidStateQuestions;

const QByteArray WmicHeader = "FreeSpace     Name  \r\r\n";
const QByteArray PowerShellHeader = "\r\nDeviceID    FreeSpace\r\n--------    ---------\r\n";

QString wmic()
{
    return QStringLiteral("wmic");
}

QString powershell()
{
    return QStringLiteral("powershell");
}

QString tempFolderOf(const QString &drive)
{
    return drive + QStringLiteral("/KVD Talvo Model-temp");
}

QByteArray utf16(const QString &text)
{
    return QByteArray(reinterpret_cast<const char *>(text.utf16()), text.size() * 2);
}

QString text(const QVector<ListedDrive> &drives)
{
    QStringList texts;
    for (const ListedDrive &drive : drives) {
        texts.append(drive.name + QLatin1Char('=') + QString::number(drive.freeSpace));
    }
    return texts.join(QLatin1Char(' '));
}

} // namespace

namespace LM {
namespace Widgets {

bool isNetworkDrive(const std::wstring &drive)
{
    networkQuestions.append(QString::fromStdWString(drive));
    return networkDrives.contains(networkQuestions.last());
}

bool isSolidStateDrive(const std::wstring &drive)
{
    solidStateQuestions.append(QString::fromStdWString(drive));
    return solidStateDrives.contains(solidStateQuestions.last());
}

} // namespace Widgets
} // namespace LM

class tst_DriveChoice : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void solidStateBeforeFreeSpace();
    void largestOfItsKind_data();
    void largestOfItsKind();
    void onlyC();
    void networkDriveIsNeverChosen();
    void opticalDriveWithoutDisc();
    void lettersThatAreSkipped_data();
    void lettersThatAreSkipped();
    void unwritableDrive();
    void driveWithoutPermission();
    void folderThatCannotBeMade();
    void folderThatMayNotBeMade();
    void folderThatIsThereAlready();
    void commandLines();
    void powerShellInPlaceOfWmic_data();
    void powerShellInPlaceOfWmic();
    void noPowerShellWhenWmicHadLines_data();
    void noPowerShellWhenWmicHadLines();
    void realOutput_data();
    void realOutput();
    void noPrograms();
    void programThatCrashes();
    void programThatCannotBeRun();
    void logMessages();
    void wmicListings_data();
    void wmicListings();
    void powerShellListings_data();
    void powerShellListings();
    void hugeListing();
    void powerShellThatDoesNotAnswer();

private:
    QScopedPointer<World> m_world;
};

void tst_DriveChoice::init()
{
    m_world.reset(new World);
    networkDrives.clear();
    solidStateDrives.clear();
    networkQuestions.clear();
    solidStateQuestions.clear();
    for (const char *drive : {"C:", "D:", "E:", "F:"}) {
        m_world->addDrive(QLatin1String(drive));
    }
}

void tst_DriveChoice::cleanup()
{
    m_world.reset();
}

void tst_DriveChoice::solidStateBeforeFreeSpace()
{
    solidStateDrives = {QStringLiteral("C:"), QStringLiteral("E:")};
    m_world->addProgram(wmic(), WmicHeader + "900000000000  C:    \r\r\n"
                                             "100000000000  D:    \r\r\n"
                                             "20000000000   E:    \r\r\n\r\r\n");
    QCOMPARE(TalvoBasicUtil::createTempPath(), QStringLiteral("E:/KVD Talvo Model-temp"));
    QVERIFY(QFileInfo(QStringLiteral("E:/KVD Talvo Model-temp")).isDir());
    // The probe file is gone, and the system drive was neither written to nor opened.
    QVERIFY(QDir(QStringLiteral("D:")).isEmpty());
    QVERIFY(QDir(QStringLiteral("C:")).isEmpty());
    QCOMPARE(solidStateQuestions, (QStringList{QStringLiteral("D:"), QStringLiteral("E:")}));
    QCOMPARE(networkQuestions,
             (QStringList{QStringLiteral("C:"), QStringLiteral("D:"), QStringLiteral("E:")}));
}

void tst_DriveChoice::largestOfItsKind_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QStringList>("solidState");
    QTest::addColumn<QString>("drive");
    const QStringList none;
    const QStringList dAndE = {QStringLiteral("D:"), QStringLiteral("E:")};
    const QString d = QStringLiteral("D:");
    const QString e = QStringLiteral("E:");
    QTest::newRow("first") << QByteArray("10 D:\n9 E:\n") << none << d;
    QTest::newRow("last") << QByteArray("9 D:\n10 E:\n") << none << e;
    QTest::newRow("solid-state") << QByteArray("10 D:\n9 E:\n999 F:\n") << dAndE << d;
    QTest::newRow("tie") << QByteArray("10 D:\n10 E:\n") << none << e;
    QTest::newRow("tie, other order") << QByteArray("10 E:\n10 D:\n") << none << d;
    QTest::newRow("solid-state tie") << QByteArray("10 D:\n10 E:\n") << dAndE << e;
    QTest::newRow("numbers, not texts") << QByteArray("9 D:\n10000000000 E:\n") << none << e;
    QTest::newRow("nothing free") << QByteArray("0 D:\n") << none << d;
    QTest::newRow("no number counts as 0") << QByteArray("lots D:\n1 E:\n") << none << e;
    QTest::newRow("no number alone") << QByteArray("lots D:\n") << none << d;
    QTest::newRow("beyond 64 bits counts as 0")
        << QByteArray("9223372036854775808 D:\n1 E:\n") << none << e;
    QTest::newRow("64 bits") << QByteArray("9223372036854775807 D:\n1 E:\n") << none << d;
    QTest::newRow("below 0") << QByteArray("-5 D:\n0 E:\n") << none << e;
    QTest::newRow("hexadecimal counts as 0") << QByteArray("0xff D:\n1 E:\n") << none << e;
}

void tst_DriveChoice::largestOfItsKind()
{
    QFETCH(QByteArray, lines);
    QFETCH(QStringList, solidState);
    QFETCH(QString, drive);
    solidStateDrives = QSet<QString>(solidState.begin(), solidState.end());
    m_world->addProgram(wmic(), WmicHeader + lines);
    QCOMPARE(TalvoBasicUtil::createTempPath(), tempFolderOf(drive));
    QVERIFY(QFileInfo(tempFolderOf(drive)).isDir());
}

void tst_DriveChoice::onlyC()
{
    m_world->addProgram(wmic(), WmicHeader + "900000000000  C:    \r\r\n\r\r\n");
    QCOMPARE(TalvoBasicUtil::createTempPath(), m_world->systemTemp());
    QCOMPARE(TalvoBasicUtil::getDefaultTempPath(), m_world->systemTemp());
    // It is remembered: the second call scans no more.
    QCOMPARE(m_world->arguments(wmic()).size(), 6);
    QCOMPARE(TalvoBasicUtil::getDefaultTempPath(), m_world->systemTemp());
    QCOMPARE(m_world->arguments(wmic()).size(), 6);
    const QByteArray config =
        World::read(TalvoBasicUtil::getDefaultPath() + QStringLiteral("/config/config.ini"));
    QVERIFY2(config.contains("temppath=" + m_world->systemTemp().toUtf8()), config.constData());
}

void tst_DriveChoice::networkDriveIsNeverChosen()
{
    networkDrives = {QStringLiteral("F:")};
    solidStateDrives = {QStringLiteral("F:")};
    m_world->addProgram(wmic(), WmicHeader + "5 D:\r\r\n99999999 F:\r\r\n");
    QCOMPARE(TalvoBasicUtil::createTempPath(), tempFolderOf(QStringLiteral("D:")));
    QVERIFY(QDir(QStringLiteral("F:")).isEmpty());
    QVERIFY(!solidStateQuestions.contains(QStringLiteral("F:")));
    m_world->addProgram(wmic(), WmicHeader + "99999999 F:\r\r\n");
    QCOMPARE(TalvoBasicUtil::createTempPath(), m_world->systemTemp());
}

void tst_DriveChoice::opticalDriveWithoutDisc()
{
    m_world->addProgram(wmic(),
                        WmicHeader + "              E:    \r\r\n7             D:    \r\r\n");
    QCOMPARE(TalvoBasicUtil::createTempPath(), tempFolderOf(QStringLiteral("D:")));
    QCOMPARE(networkQuestions, QStringList{QStringLiteral("D:")});
}

void tst_DriveChoice::lettersThatAreSkipped_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("C:") << QStringLiteral("C:");
    QTest::newRow("c:") << QStringLiteral("c:");
    QTest::newRow("anywhere") << QStringLiteral("disk");
    QTest::newRow("anywhere, in a name") << QStringLiteral("scan");
}

void tst_DriveChoice::lettersThatAreSkipped()
{
    QFETCH(QString, name);
    m_world->addDrive(name);
    m_world->addProgram(wmic(), WmicHeader + "5 " + name.toUtf8() + "\r\r\n");
    const bool hasC = name.contains(QLatin1Char('c'), Qt::CaseInsensitive);
    QCOMPARE(TalvoBasicUtil::createTempPath(), hasC ? m_world->systemTemp() : tempFolderOf(name));
}

void tst_DriveChoice::unwritableDrive()
{
    // Nobody can write to a folder that is a file, root included.
    World::write(QStringLiteral("G:"), "x");
    m_world->addProgram(wmic(), WmicHeader + "99 G:\r\r\n50 H:\r\r\n7 D:\r\r\n");
    QCOMPARE(TalvoBasicUtil::createTempPath(), tempFolderOf(QStringLiteral("D:")));
    QCOMPARE(solidStateQuestions, QStringList{QStringLiteral("D:")});
    QCOMPARE(World::read(QStringLiteral("G:")), QByteArray("x"));
    QVERIFY(!QFileInfo::exists(QStringLiteral("H:")));
}

void tst_DriveChoice::driveWithoutPermission()
{
    m_world->addProgram(wmic(), WmicHeader + "99 E:\r\r\n7 D:\r\r\n");
    const standins::AsNobody nobody(*m_world);
    if (!nobody) {
        QSKIP("root may not become anybody else here");
    }
    QVERIFY(QFile::setPermissions(QStringLiteral("E:"), QFile::ReadOwner | QFile::ExeOwner));
    QCOMPARE(TalvoBasicUtil::createTempPath(), tempFolderOf(QStringLiteral("D:")));
    QCOMPARE(solidStateQuestions, QStringList{QStringLiteral("D:")});
    QVERIFY(QDir(QStringLiteral("E:")).isEmpty());
}

void tst_DriveChoice::folderThatMayNotBeMade()
{
    // It leads to where nothing can be made.
    World::write(m_world->path(QStringLiteral("file")), "x");
    QVERIFY(QFile::link(m_world->path(QStringLiteral("file/below")),
                        tempFolderOf(QStringLiteral("D:"))));
    m_world->addProgram(wmic(), WmicHeader + "99 D:\r\r\n50 E:\r\r\n");
    QCOMPARE(TalvoBasicUtil::createTempPath(), m_world->systemTemp());
    QVERIFY(!QFileInfo::exists(tempFolderOf(QStringLiteral("E:"))));
}

void tst_DriveChoice::folderThatCannotBeMade()
{
    // A file has its name. The drives that are not solid-state are not tried then.
    solidStateDrives = {QStringLiteral("E:")};
    World::write(tempFolderOf(QStringLiteral("E:")), "x");
    m_world->addProgram(wmic(), WmicHeader + "99 D:\r\r\n50 E:\r\r\n");
    QCOMPARE(TalvoBasicUtil::createTempPath(), m_world->systemTemp());
    QVERIFY(!QFileInfo::exists(tempFolderOf(QStringLiteral("D:"))));
    QCOMPARE(World::read(tempFolderOf(QStringLiteral("E:"))), QByteArray("x"));
}

void tst_DriveChoice::folderThatIsThereAlready()
{
    QVERIFY(QDir().mkdir(tempFolderOf(QStringLiteral("D:"))));
    World::write(tempFolderOf(QStringLiteral("D:")) + QStringLiteral("/kept"), "x");
    m_world->addProgram(wmic(), WmicHeader + "99 D:\r\r\n");
    QCOMPARE(TalvoBasicUtil::createTempPath(), tempFolderOf(QStringLiteral("D:")));
    QVERIFY(QFileInfo::exists(tempFolderOf(QStringLiteral("D:")) + QStringLiteral("/kept")));
}

void tst_DriveChoice::commandLines()
{
    m_world->addProgram(wmic(), QByteArray());
    m_world->addProgram(powershell(), QByteArray());
    QCOMPARE(TalvoBasicUtil::createTempPath(), m_world->systemTemp());
    QCOMPARE(m_world->arguments(wmic()),
             (QStringList{QStringLiteral("logicaldisk"), QStringLiteral("get"),
                          QStringLiteral("name,freespace")}));
    QCOMPARE(m_world->arguments(powershell()),
             (QStringList{QStringLiteral("-Command"),
                          QStringLiteral("Get-WmiObject Win32_LogicalDisk | Select-Object "
                                         "DeviceID, FreeSpace")}));
}

void tst_DriveChoice::powerShellInPlaceOfWmic_data()
{
    QTest::addColumn<QByteArray>("wmicOutput");
    QTest::addColumn<int>("wmicExit");
    QTest::newRow("no wmic") << QByteArray() << -1;
    QTest::newRow("no output") << QByteArray() << 0;
    QTest::newRow("no output, failed") << QByteArray() << 44;
    QTest::newRow("line ends only") << QByteArray("\r\n\n\r\n") << 0;
    QTest::newRow("header only") << QByteArray("FreeSpace  Name\r\n") << 0;
}

void tst_DriveChoice::powerShellInPlaceOfWmic()
{
    QFETCH(QByteArray, wmicOutput);
    QFETCH(int, wmicExit);
    if (wmicExit >= 0) {
        m_world->addProgram(wmic(), wmicOutput, wmicExit);
    }
    solidStateDrives = {QStringLiteral("D:")};
    m_world->addProgram(powershell(), PowerShellHeader + "C:       77824753664\r\n"
                                                         "D:       20000000000\r\n"
                                                         "E:                  \r\n"
                                                         "F:       30000000000\r\n\r\n\r\n");
    QCOMPARE(TalvoBasicUtil::createTempPath(), tempFolderOf(QStringLiteral("D:")));
    QCOMPARE(networkQuestions,
             (QStringList{QStringLiteral("C:"), QStringLiteral("D:"), QStringLiteral("F:")}));
}

void tst_DriveChoice::noPowerShellWhenWmicHadLines_data()
{
    QTest::addColumn<QByteArray>("output");
    QTest::newRow("no drive of use") << WmicHeader + "5 C:\r\r\n";
    QTest::newRow("nonsense") << QByteArray("an error occurred\r\n");
    QTest::newRow("a carriage return is a line") << WmicHeader + "\r\r\n";
    QTest::newRow("header in lower case") << QByteArray("freespace name\r\n");
}

void tst_DriveChoice::noPowerShellWhenWmicHadLines()
{
    QFETCH(QByteArray, output);
    m_world->addProgram(wmic(), output);
    m_world->addProgram(powershell(), PowerShellHeader + "D: 5\r\n");
    QCOMPARE(TalvoBasicUtil::createTempPath(), m_world->systemTemp());
    QCOMPARE(m_world->arguments(powershell()), QStringList());
}

void tst_DriveChoice::realOutput_data()
{
    QTest::addColumn<QByteArray>("wmicOutput");
    QTest::addColumn<QByteArray>("powerShellOutput");
    const QByteArray none;
    const QByteArray wmicText = "FreeSpace     Name  \r\r\n"
                                "77824753664   C:    \r\r\n"
                                "20000000000   D:    \r\r\n"
                                "              E:    \r\r\n"
                                "10000000000   F:    \r\r\n"
                                "\r\r\n";
    const QByteArray powerShellText = "\r\n"
                                      "DeviceID   FreeSpace\r\n"
                                      "--------   ---------\r\n"
                                      "C:       77824753664\r\n"
                                      "D:       20000000000\r\n"
                                      "E:                  \r\n"
                                      "F:       10000000000\r\n"
                                      "\r\n\r\n";
    QTest::newRow("wmic") << wmicText << none;
    QTest::newRow("wmic, CRLF") << QByteArray(wmicText).replace("\r\r\n", "\r\n") << none;
    QTest::newRow("wmic, LF") << QByteArray(wmicText).replace("\r\r\n", "\n") << none;
    QTest::newRow("wmic, UTF-16 with mark")
        << "\xff\xfe" + utf16(QString::fromLatin1(wmicText)) << none;
    QTest::newRow("wmic, UTF-16 without mark") << utf16(QString::fromLatin1(wmicText)) << none;
    QTest::newRow("PowerShell") << none << powerShellText;
    QTest::newRow("PowerShell, LF") << none << QByteArray(powerShellText).replace("\r\n", "\n");
    QTest::newRow("PowerShell, UTF-16")
        << none << "\xff\xfe" + utf16(QString::fromLatin1(powerShellText));
}

void tst_DriveChoice::realOutput()
{
    QFETCH(QByteArray, wmicOutput);
    QFETCH(QByteArray, powerShellOutput);
    m_world->addProgram(wmic(), wmicOutput);
    m_world->addProgram(powershell(), powerShellOutput);
    QCOMPARE(TalvoBasicUtil::createTempPath(), tempFolderOf(QStringLiteral("D:")));
    QCOMPARE(networkQuestions,
             (QStringList{QStringLiteral("C:"), QStringLiteral("D:"), QStringLiteral("F:")}));
    QCOMPARE(solidStateQuestions, (QStringList{QStringLiteral("D:"), QStringLiteral("F:")}));
    QCOMPARE(m_world->arguments(powershell()).isEmpty(), !wmicOutput.isEmpty());
}

void tst_DriveChoice::programThatCrashes()
{
    // What it said before counts.
    m_world->addProgram(wmic(), WmicHeader + "5 D:\r\r\n", 0, "kill -9 $$");
    QCOMPARE(TalvoBasicUtil::createTempPath(), tempFolderOf(QStringLiteral("D:")));
    m_world->addProgram(wmic(), QByteArray(), 0, "kill -9 $$");
    m_world->addProgram(powershell(), PowerShellHeader + "E: 5\r\n", 1, "echo E: no 1>&2");
    QCOMPARE(TalvoBasicUtil::createTempPath(), tempFolderOf(QStringLiteral("E:")));
}

void tst_DriveChoice::programThatCannotBeRun()
{
    QVERIFY(QDir().mkdir(m_world->path(QStringLiteral("programs/wmic"))));
    World::write(m_world->path(QStringLiteral("programs/powershell")), "\x7f"
                                                                       "ELF");
    QFile::setPermissions(m_world->path(QStringLiteral("programs/powershell")),
                          QFile::ReadOwner | QFile::ExeOwner);
    QCOMPARE(TalvoBasicUtil::createTempPath(), m_world->systemTemp());
}

void tst_DriveChoice::noPrograms()
{
    QCOMPARE(TalvoBasicUtil::createTempPath(), m_world->systemTemp());
    QVERIFY(networkQuestions.isEmpty());
}

void tst_DriveChoice::logMessages()
{
    solidStateDrives = {QStringLiteral("E:")};
    m_world->addProgram(wmic(), WmicHeader + "5 C:\r\r\n6 D:\r\r\n7 E:\r\r\n", 1);
    QTest::ignoreMessage(QtDebugMsg, "HDDDisk \"D:\"");
    QTest::ignoreMessage(QtDebugMsg, "SSDDisk \"E:\"");
    QCOMPARE(TalvoBasicUtil::createTempPath(), tempFolderOf(QStringLiteral("E:")));
}

void tst_DriveChoice::wmicListings_data()
{
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<QString>("drives");
    const QString both = QStringLiteral("C:=1 D:=2");
    QTest::newRow("LF") << QByteArray("FreeSpace Name\n1 C:\n2 D:\n") << both;
    QTest::newRow("CRLF") << QByteArray("FreeSpace Name\r\n1 C:\r\n2 D:\r\n") << both;
    QTest::newRow("CR CR LF") << QByteArray("FreeSpace Name\r\r\n1 C:\r\r\n2 D:\r\r\n\r\r\n")
                              << both;
    QTest::newRow("no line end") << QByteArray("FreeSpace Name\n1 C:\n2 D:") << both;
    QTest::newRow("blanks") << QByteArray("FreeSpace   Name  \n 1   C:  \n\t2\t \tD:\t\n") << both;
    QTest::newRow("more fields") << QByteArray("FreeSpace Name\n1 C: x\n2 D: y z\n") << both;
    QTest::newRow("no header") << QByteArray("1 C:\n2 D:\n") << both;
    QTest::newRow("second header")
        << QByteArray("FreeSpace Name\nFreeSpace Name\n") << QStringLiteral("Name=0");
    QTest::newRow("one field") << QByteArray("FreeSpace Name\nC:\n2 D:\n")
                               << QStringLiteral("D:=2");
    QTest::newRow("UTF-16 with mark")
        << "\xff\xfe" + utf16(QStringLiteral("FreeSpace Name\r\n1 C:\r\n2 D:\r\n")) << both;
    QTest::newRow("UTF-16 without mark")
        << utf16(QStringLiteral("FreeSpace Name\r\n1 C:\r\n2 D:\r\n")) << both;
    QTest::newRow("half a UTF-16 character")
        << "\xff\xfe" + utf16(QStringLiteral("FreeSpace Name\r\n1 C:\r\n2 D:\r\n")) + "\r" << both;
    QTest::newRow("UTF-8 with mark") << QByteArray("\xef\xbb\xbf"
                                                   "FreeSpace Name\n1 C:\n2 D:\n")
                                     << both;
    QTest::newRow("half a surrogate pair")
        << "\xff\xfe" + utf16(QStringLiteral("FreeSpace Name")) + "\x0d\xde" +
               utf16(QStringLiteral("\r\n1 C:\r\n2 D:\r\n"))
        << both;
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("zero bytes") << QByteArray(7, '\0') << QString();
}

void tst_DriveChoice::wmicListings()
{
    QFETCH(QByteArray, output);
    QFETCH(QString, drives);
    QCOMPARE(text(LM::Widgets::parseWmicLines(LM::Widgets::wmicLines(output))), drives);
}

void tst_DriveChoice::powerShellListings_data()
{
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<QString>("drives");
    const QString both = QStringLiteral("C:=1 D:=2");
    QTest::newRow("usual") << PowerShellHeader + "C:   1\r\nD:   2\r\n\r\n\r\n" << both;
    QTest::newRow("no rule") << QByteArray("DeviceID FreeSpace\nC: 1\nD: 2\n") << both;
    QTest::newRow("rule only") << QByteArray("-------- ---------\nC: 1\nD: 2\n") << both;
    QTest::newRow("neither") << QByteArray("C: 1\nD: 2\n") << both;
    QTest::newRow("header in lower case")
        << QByteArray("deviceid freespace\nC: 1\n") << QStringLiteral("deviceid=0 C:=1");
    QTest::newRow("header later") << QByteArray("C: 1\nDeviceID FreeSpace\n")
                                  << QStringLiteral("C:=1 DeviceID=0");
    QTest::newRow("optical drive") << PowerShellHeader + "C: 1\r\nE:   \r\nD: 2\r\n" << both;
    QTest::newRow("empty") << QByteArray() << QString();
}

void tst_DriveChoice::powerShellListings()
{
    QFETCH(QByteArray, output);
    QFETCH(QString, drives);
    QCOMPARE(text(LM::Widgets::parsePowerShell(output)), drives);
}

void tst_DriveChoice::hugeListing()
{
    // Larger than a pipe holds, so that it must be read while the program runs.
    QByteArray output = WmicHeader;
    for (int i = 0; i < 50000; ++i) {
        output += "1             C:    \r\r\n";
    }
    m_world->addProgram(wmic(), output + "2 D:\r\r\n", 3);
    QCOMPARE(TalvoBasicUtil::createTempPath(), tempFolderOf(QStringLiteral("D:")));
}

void tst_DriveChoice::powerShellThatDoesNotAnswer()
{
    m_world->addProgram(powershell(), QByteArray(), 0, "exec /bin/sleep 600");
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(TalvoBasicUtil::createTempPath(), m_world->systemTemp());
    QVERIFY(timer.elapsed() >= 29900);
    QVERIFY2(timer.elapsed() < 50000, qPrintable(QString::number(timer.elapsed())));
}

LMTEST_MAIN(tst_DriveChoice)

#include "tst_drivechoice.moc"
