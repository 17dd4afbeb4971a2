/** @file
 * The working folders on real folders, in a temporary folder that stands for the user's.
 */

#include "lmtest.h"
#include "standins.h"

#include <lmwidgets/talvobasicutil.h>
#include <lmwidgets/talvostylemanager.h>

#include <QDirIterator>
#include <QLineEdit>
#include <QScopedPointer>
#include <QSettings>
#include <QToolButton>

#include <functional>
#include <sys/stat.h>

using LM::Widgets::TalvoStyleManager;
using standins::World;

namespace {

const QString Stamp = QStringLiteral("20240501123000");

void setStamp(const QString &stamp)
{
    TalvoStyleManager::instance()->setProjectTimeStamp(stamp);
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

QString stored()
{
    return QSettings(configPath(), QSettings::IniFormat)
        .value(QStringLiteral("TalvoBasicUtil/temppath"))
        .toString();
}

void addFile(const QString &path)
{
    QDir().mkpath(QFileInfo(path).path());
    World::write(path, "x");
}

/** Everything below @p folder, sorted, for comparing before and after. */
QStringList contentOf(const QString &folder)
{
    QStringList paths;
    QDirIterator entries(folder,
                         QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        paths.append(entries.next());
    }
    paths.sort();
    return paths;
}

} // namespace

class tst_TalvoBasicUtil : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void writableFolder_data();
    void writableFolder();
    void probeDoesNotFollowLinks();
    void defaultPath_data();
    void defaultPath();
    void firstUse();
    void storedFolderIsMade_data();
    void storedFolderIsMade();
    void removedDrive();
    void emptyValueChoosesAgain();
    void otherGroupsStay();
    void damagedConfiguration_data();
    void damagedConfiguration();
    void configurationThatCannotBeWritten();
    void projectFolders_data();
    void projectFolders();
    void projectFolderThatCannotBeMade();
    void stampsThatNameNoFolder_data();
    void stampsThatNameNoFolder();
    void cleanScratchFolder();
    void clearCurrentProject();
    void clearAllProjects();
    void clearingSaysWhereItStands();
    void clearAllProjectsWithoutValue();
    void clearAllProjectsWithEmptyValue();
    void linksAreNotFollowed();
    void scratchFolderThatIsALink();

    void companion_data();
    void companion();
    void companionIsTheLastListed();
    void allFiles();
    void allFilesOfARelativeFolder();
    void linkLoops();

    void metaObject();
    void actionIcon();
    void lineEditStyle();

private:
    QString temp() const { return m_world->path(QStringLiteral("T")); }
    QString outside() const { return m_world->path(QStringLiteral("outside")); }

    QScopedPointer<World> m_world;
};

void tst_TalvoBasicUtil::initTestCase()
{
    TestCase::initTestCase();
    QVERIFY(!QFileInfo::exists(QStringLiteral("/kvdprojectdata")));
}

void tst_TalvoBasicUtil::init()
{
    QCoreApplication::setApplicationName(QStringLiteral("tst_talvobasicutil"));
    QCoreApplication::setOrganizationName(QString());
    m_world.reset(new World);
    addFile(outside() + QStringLiteral("/folder/kept"));
    store(temp());
    setStamp(Stamp);
}

void tst_TalvoBasicUtil::cleanup()
{
    QVERIFY(QFileInfo::exists(outside() + QStringLiteral("/folder/kept")));
    m_world.reset();
    setStamp(QString());
}

void tst_TalvoBasicUtil::writableFolder_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("writable");
    QTest::newRow("folder") << QStringLiteral("run") << true;
    QTest::newRow("slash at its end") << QStringLiteral("run/") << true;
    QTest::newRow("blanks, quotes, not Latin") << QStringLiteral("a 'b\" 測試") << true;
    QTest::newRow("leftover probe") << QStringLiteral("leftover") << true;
    QTest::newRow("missing") << QStringLiteral("missing") << false;
    QTest::newRow("file") << QStringLiteral("file") << false;
    QTest::newRow("probe is a folder") << QStringLiteral("blocked") << false;
    QTest::newRow("too long") << QString(5000, QLatin1Char('x')) << false;
}

void tst_TalvoBasicUtil::writableFolder()
{
    QFETCH(QString, name);
    QFETCH(bool, writable);
    const QString probe = QStringLiteral("/KVPointCloudUtiltest.txt");
    QDir(m_world->path(QString())).mkdir(QStringLiteral("a 'b\" 測試"));
    addFile(m_world->path(QStringLiteral("leftover")) + probe);
    addFile(m_world->path(QStringLiteral("blocked")) + probe + QStringLiteral("/x"));
    addFile(m_world->path(QStringLiteral("file")));
    QStringList before = contentOf(m_world->path(QString()));
    before.removeAll(m_world->path(QStringLiteral("leftover")) + probe);
    QCOMPARE(TalvoBasicUtil::getPathWriteable(m_world->path(name)), writable);
    QStringList after = contentOf(m_world->path(QString()));
    after.removeAll(m_world->path(QStringLiteral("leftover")) + probe);
    QCOMPARE(after, before);
    QCOMPARE(QFileInfo::exists(m_world->path(QStringLiteral("leftover")) + probe),
             name != QLatin1String("leftover"));

    QVERIFY(!TalvoBasicUtil::getPathWriteable(QString()));
    QVERIFY(QDir(m_world->path(QStringLiteral("run"))).isEmpty());
}

void tst_TalvoBasicUtil::probeDoesNotFollowLinks()
{
    const QString kept = outside() + QStringLiteral("/folder/kept");
    QVERIFY(QFile::link(kept, m_world->path(QStringLiteral("run/KVPointCloudUtiltest.txt"))));
    QVERIFY(TalvoBasicUtil::getPathWriteable(m_world->path(QStringLiteral("run"))));
    QCOMPARE(World::read(kept), QByteArray("x"));
    QVERIFY(QDir(m_world->path(QStringLiteral("run"))).isEmpty());
}

void tst_TalvoBasicUtil::defaultPath_data()
{
    QTest::addColumn<QString>("application");
    QTest::addColumn<QString>("organization");
    QTest::newRow("application") << QStringLiteral("App") << QString();
    QTest::newRow("both") << QStringLiteral("App") << QStringLiteral("Org");
    QTest::newRow("blanks, not Latin") << QStringLiteral("A b") << QStringLiteral("測試");
}

void tst_TalvoBasicUtil::defaultPath()
{
    QFETCH(QString, application);
    QFETCH(QString, organization);
    QCoreApplication::setApplicationName(application);
    QCoreApplication::setOrganizationName(organization);
    const QString path = m_world->path(QStringLiteral("data/KVDTalvoModel"));
    QVERIFY(QDir(path).removeRecursively());
    QCOMPARE(TalvoBasicUtil::getDefaultPath(), path);
    QVERIFY(QFileInfo(path).isDir());
    QCOMPARE(TalvoBasicUtil::getDefaultPath(), path);
}

void tst_TalvoBasicUtil::firstUse()
{
    QVERIFY(QDir(TalvoBasicUtil::getDefaultPath()).removeRecursively());
    QCOMPARE(TalvoBasicUtil::getDefaultTempPath(), m_world->systemTemp());
    QCOMPARE(stored(), m_world->systemTemp());
}

void tst_TalvoBasicUtil::storedFolderIsMade_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << QStringLiteral("new");
    QTest::newRow("parents") << QStringLiteral("new/and/deeper");
    QTest::newRow("blanks and quotes") << QStringLiteral("a  'b' \"c\"");
    QTest::newRow("comma, semicolon, percent") << QStringLiteral("a, b; 50%");
    QTest::newRow("not Latin") << QStringLiteral("Straße 測試 данные");
    QTest::newRow("long") << QStringLiteral("l") +
                                 (QLatin1Char('/') + QString(50, QLatin1Char('y'))).repeated(60);
}

void tst_TalvoBasicUtil::storedFolderIsMade()
{
    QFETCH(QString, name);
    const QString path = QDir::cleanPath(m_world->path(name));
    store(path);
    QCOMPARE(TalvoBasicUtil::getDefaultTempPath(), path);
    QVERIFY(QFileInfo(path).isDir());
    QCOMPARE(stored(), path);
    QCOMPARE(TalvoBasicUtil::getConfigDataDecodePath(),
             path + QStringLiteral("/configdatadecodetemp/") + Stamp);
}

void tst_TalvoBasicUtil::removedDrive()
{
    addFile(m_world->path(QStringLiteral("file")));
    const QString path = m_world->path(QStringLiteral("file/KVD Talvo Model-temp"));
    store(path);
    QCOMPARE(TalvoBasicUtil::getDefaultTempPath(), m_world->systemTemp());
    QCOMPARE(stored(), path);
}

void tst_TalvoBasicUtil::emptyValueChoosesAgain()
{
    store(QString());
    m_world->addProgram(QStringLiteral("wmic"), "FreeSpace Name\r\n");
    QCOMPARE(TalvoBasicUtil::getDefaultTempPath(), m_world->systemTemp());
    QCOMPARE(m_world->arguments(QStringLiteral("wmic")).size(), 3);
    QCOMPARE(stored(), m_world->systemTemp());
}

void tst_TalvoBasicUtil::otherGroupsStay()
{
    {
        QSettings settings(configPath(), QSettings::IniFormat);
        settings.setValue(QStringLiteral("top"), 1);
        settings.setValue(QStringLiteral("Host/list"),
                          QStringList{QStringLiteral("a,b"), QString()});
        settings.setValue(QStringLiteral("TalvoBasicUtil/more"), QStringLiteral("測試"));
    }
    TalvoBasicUtil::getDefaultTempPath();
    TalvoBasicUtil::clearHistoryProjectTempData();
    const QSettings settings(configPath(), QSettings::IniFormat);
    QCOMPARE(settings.value(QStringLiteral("top")).toInt(), 1);
    QCOMPARE(settings.value(QStringLiteral("Host/list")).toStringList(),
             (QStringList{QStringLiteral("a,b"), QString()}));
    QCOMPARE(settings.value(QStringLiteral("TalvoBasicUtil/more")).toString(),
             QStringLiteral("測試"));
    QCOMPARE(settings.allKeys().size(), 4);
}

void tst_TalvoBasicUtil::damagedConfiguration_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("zero bytes") << QByteArray(1000, '\0');
    QTest::newRow("half a line") << QByteArray("[TalvoBasicUtil]\ntemppa");
    QTest::newRow("open group") << QByteArray("[TalvoBasicUtil\ntemppa\n");
    QTest::newRow("open quote") << QByteArray("[TalvoBasicUtil]\ntemppath=\"");
    QTest::newRow("not a text") << QByteArray("[TalvoBasicUtil]\ntemppath=@Point(1 2)\n");
    QTest::newRow("noise") << QByteArray("\xff\xfe\x01\x02=\\x\n[%%%]\n\x80=");
}

void tst_TalvoBasicUtil::damagedConfiguration()
{
    QFETCH(QByteArray, content);
    World::write(configPath(), content);
    QCOMPARE(TalvoBasicUtil::getDefaultTempPath(), m_world->systemTemp());
    QCOMPARE(stored(), m_world->systemTemp());
}

void tst_TalvoBasicUtil::configurationThatCannotBeWritten()
{
    // A folder stands where the file should be, which stops root too.
    QVERIFY(QFile::remove(configPath()));
    QVERIFY(QDir().mkpath(configPath()));
    QCOMPARE(TalvoBasicUtil::getDefaultTempPath(), m_world->systemTemp());
    QVERIFY(!TalvoBasicUtil::getConfigDataDecodePath().isEmpty());
    TalvoBasicUtil::clearHistoryProjectTempData();
    QVERIFY(QFileInfo(configPath()).isDir());
}

void tst_TalvoBasicUtil::projectFolders_data()
{
    QTest::addColumn<QString>("stamp");
    QTest::newRow("number") << Stamp;
    QTest::newRow("blanks and quotes") << QStringLiteral("a  'b' \"c\" ");
    QTest::newRow("not Latin") << QStringLiteral("проект 測試");
    QTest::newRow("dots in it") << QStringLiteral("..a..b..");
    QTest::newRow("hidden") << QStringLiteral(".a");
    QTest::newRow("pattern") << QStringLiteral("*");
}

void tst_TalvoBasicUtil::projectFolders()
{
    QFETCH(QString, stamp);
    setStamp(stamp);
    const QString data = temp() + QStringLiteral("/kvdprojectdata/") + stamp;
    QCOMPARE(TalvoBasicUtil::getDefaultProjectTempDataPath(),
             data + QStringLiteral("\\project.Kvdm"));
    QVERIFY(QFileInfo(data).isDir());
    QVERIFY(QDir(data).isEmpty());
    QVERIFY(!QFileInfo::exists(data + QStringLiteral("\\project.Kvdm")));
    const QString scratch = temp() + QStringLiteral("/configdatadecodetemp/") + stamp;
    QCOMPARE(TalvoBasicUtil::getConfigDataDecodePath(), scratch);
    QVERIFY(QFileInfo(scratch).isDir());
    // A second time they are there.
    QCOMPARE(TalvoBasicUtil::getConfigDataDecodePath(), scratch);
    QVERIFY(!TalvoBasicUtil::getDefaultProjectTempDataPath().isEmpty());
}

void tst_TalvoBasicUtil::projectFolderThatCannotBeMade()
{
    addFile(temp() + QStringLiteral("/kvdprojectdata"));
    addFile(temp() + QStringLiteral("/configdatadecodetemp/") + Stamp);
    QCOMPARE(TalvoBasicUtil::getDefaultProjectTempDataPath(), QString());
    QCOMPARE(TalvoBasicUtil::getConfigDataDecodePath(), QString());
    TalvoBasicUtil::cleanConfigDataDecodePath();
    TalvoBasicUtil::clearDefaultProjectTempData();
    QCOMPARE(World::read(temp() + QStringLiteral("/kvdprojectdata")), QByteArray("x"));
    QCOMPARE(World::read(temp() + QStringLiteral("/configdatadecodetemp/") + Stamp),
             QByteArray("x"));
    setStamp(QString(300, QLatin1Char('x')));
    QCOMPARE(TalvoBasicUtil::getConfigDataDecodePath(), QString());
}

void tst_TalvoBasicUtil::stampsThatNameNoFolder_data()
{
    QTest::addColumn<QString>("stamp");
    QTest::newRow("empty") << QString();
    QTest::newRow("this folder") << QStringLiteral(".");
    QTest::newRow("parent") << QStringLiteral("..");
    QTest::newRow("slash") << QStringLiteral("/");
    QTest::newRow("outside") << QStringLiteral("../../outside/folder");
    QTest::newRow("below") << QStringLiteral("other/sub");
    QTest::newRow("slash at its end") << QStringLiteral("other/");
    QTest::newRow("backslash") << QStringLiteral("..\\other");
    QTest::newRow("zero character") << QString(QChar(QChar::Null));
}

void tst_TalvoBasicUtil::stampsThatNameNoFolder()
{
    QFETCH(QString, stamp);
    addFile(temp() + QStringLiteral("/kvdprojectdata/other/sub/a"));
    addFile(temp() + QStringLiteral("/configdatadecodetemp/other/sub/a"));
    addFile(temp() + QStringLiteral("/kvdprojectdata/\\project.Kvdm"));
    const QStringList before = contentOf(m_world->path(QString()));
    setStamp(stamp);
    QCOMPARE(TalvoBasicUtil::getDefaultProjectTempDataPath(), QString());
    QCOMPARE(TalvoBasicUtil::getConfigDataDecodePath(), QString());
    TalvoBasicUtil::cleanConfigDataDecodePath();
    TalvoBasicUtil::clearDefaultProjectTempData();
    QCOMPARE(contentOf(m_world->path(QString())), before);
}

void tst_TalvoBasicUtil::cleanScratchFolder()
{
    const QString scratch = temp() + QStringLiteral("/configdatadecodetemp/");
    addFile(scratch + Stamp + QStringLiteral("/a/.hidden/b"));
    addFile(scratch + Stamp + QStringLiteral("/read only"));
    QFile::setPermissions(scratch + Stamp + QStringLiteral("/read only"), QFile::ReadOwner);
    addFile(scratch + QStringLiteral("other/a"));
    TalvoBasicUtil::cleanConfigDataDecodePath();
    QVERIFY(!QFileInfo::exists(scratch + Stamp));
    QVERIFY(QFileInfo::exists(scratch + QStringLiteral("other/a")));
}

void tst_TalvoBasicUtil::clearCurrentProject()
{
    const QString data = temp() + QStringLiteral("/kvdprojectdata/");
    const QString scratch = temp() + QStringLiteral("/configdatadecodetemp/");
    addFile(data + Stamp + QStringLiteral("/a/b"));
    addFile(data + Stamp + QStringLiteral("\\project.Kvdm"));
    addFile(data + QStringLiteral("other/a"));
    addFile(scratch + Stamp + QStringLiteral("/a"));
    addFile(scratch + QStringLiteral("other/a"));
    TalvoBasicUtil::clearDefaultProjectTempData();
    QCOMPARE(QDir(data).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList{QStringLiteral("other")});
    QVERIFY(QFileInfo::exists(data + QStringLiteral("other/a")));
    QCOMPARE(QDir(scratch).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList{QStringLiteral("other")});
}

void tst_TalvoBasicUtil::clearAllProjects()
{
    addFile(temp() + QStringLiteral("/kvdprojectdata/1/a"));
    addFile(temp() + QStringLiteral("/kvdprojectdata/2/a"));
    addFile(temp() + QStringLiteral("/configdatadecodetemp/1/a"));
    addFile(temp() + QStringLiteral("/mine/a"));
    setStamp(QString());
    QTest::ignoreMessage(QtDebugMsg, "start clear temp");
    QTest::ignoreMessage(QtDebugMsg, "start clear temp1");
    QTest::ignoreMessage(QtDebugMsg, "end clear temp");
    TalvoBasicUtil::clearHistoryProjectTempData();
    QCOMPARE(contentOf(temp()),
             (QStringList{temp() + QStringLiteral("/mine"), temp() + QStringLiteral("/mine/a")}));
}

void tst_TalvoBasicUtil::clearingSaysWhereItStands()
{
    // Hosts sort their log by these.
    static QStringList places;
    places.clear();
    const QtMessageHandler before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &context, const QString &message) {
            const QString file = QString::fromUtf8(context.file);
            places.append(message + QLatin1Char('|') +
                          file.mid(file.lastIndexOf(QStringLiteral("lmwidgets/"))) +
                          QLatin1Char('|') + QString::fromUtf8(context.function) +
                          QLatin1Char('|') + QString::fromUtf8(context.category));
        });
    TalvoBasicUtil::clearHistoryProjectTempData();
    qInstallMessageHandler(before);
    const QString rest =
        QStringLiteral("|lmwidgets/talvobasicutil.cpp|"
                       "static void TalvoBasicUtil::clearHistoryProjectTempData()|default");
    QCOMPARE(places, (QStringList{QStringLiteral("start clear temp") + rest,
                                  QStringLiteral("start clear temp1") + rest,
                                  QStringLiteral("end clear temp") + rest}));
}

void tst_TalvoBasicUtil::clearAllProjectsWithoutValue()
{
    QVERIFY(QFile::remove(configPath()));
    m_world->addProgram(QStringLiteral("wmic"), "FreeSpace Name\r\n");
    addFile(m_world->systemTemp() + QStringLiteral("/kvdprojectdata/1/a"));
    addFile(m_world->systemTemp() + QStringLiteral("/configdatadecodetemp/1/a"));
    TalvoBasicUtil::clearHistoryProjectTempData();
    QVERIFY(QDir(m_world->systemTemp()).isEmpty());
    // The system's folder was stored first, so that no drive had to be chosen.
    QCOMPARE(stored(), m_world->systemTemp());
    QCOMPARE(m_world->arguments(QStringLiteral("wmic")), QStringList());
}

void tst_TalvoBasicUtil::clearAllProjectsWithEmptyValue()
{
    store(QString());
    m_world->addProgram(QStringLiteral("wmic"), "FreeSpace Name\r\n");
    addFile(m_world->systemTemp() + QStringLiteral("/kvdprojectdata/1/a"));
    addFile(m_world->systemTemp() + QStringLiteral("/configdatadecodetemp/1/a"));
    TalvoBasicUtil::clearHistoryProjectTempData();
    QVERIFY(QFileInfo::exists(m_world->systemTemp() + QStringLiteral("/kvdprojectdata/1/a")));
    QVERIFY(!QFileInfo::exists(m_world->systemTemp() + QStringLiteral("/configdatadecodetemp")));
    QCOMPARE(m_world->arguments(QStringLiteral("wmic")).size(), 3);
}

void tst_TalvoBasicUtil::linksAreNotFollowed()
{
    const QString folder = temp() + QStringLiteral("/kvdprojectdata/") + Stamp;
    addFile(folder + QStringLiteral("/a"));
    QVERIFY(QFile::link(outside(), folder + QStringLiteral("/to folder")));
    QVERIFY(QFile::link(outside() + QStringLiteral("/folder/kept"),
                        folder + QStringLiteral("/to file")));
    QVERIFY(QFile::link(QStringLiteral("/nowhere"), folder + QStringLiteral("/broken")));
    QVERIFY(QFile::link(folder, folder + QStringLiteral("/loop")));
    QVERIFY(QFile::link(outside() + QStringLiteral("/folder/kept"),
                        folder + QStringLiteral("\\project.Kvdm")));
    TalvoBasicUtil::clearDefaultProjectTempData();
    QVERIFY(QDir(temp() + QStringLiteral("/kvdprojectdata")).isEmpty());
    QCOMPARE(World::read(outside() + QStringLiteral("/folder/kept")), QByteArray("x"));
}

void tst_TalvoBasicUtil::scratchFolderThatIsALink()
{
    const auto isThere = [](const QString &path) { return QFileInfo(path).isSymLink(); };
    const QString data = temp() + QStringLiteral("/kvdprojectdata");
    const QString scratch = temp() + QStringLiteral("/configdatadecodetemp");
    QVERIFY(QDir().mkpath(data));
    QVERIFY(QDir().mkpath(scratch));
    QVERIFY(QFile::link(outside(), data + QLatin1Char('/') + Stamp));
    QVERIFY(QFile::link(outside(), scratch + QLatin1Char('/') + Stamp));
    TalvoBasicUtil::clearDefaultProjectTempData();
    QVERIFY(!isThere(data + QLatin1Char('/') + Stamp));
    QVERIFY(!isThere(scratch + QLatin1Char('/') + Stamp));
    QVERIFY(QFileInfo::exists(outside() + QStringLiteral("/folder/kept")));

    QVERIFY(QDir().rmdir(data) && QDir().rmdir(scratch));
    QVERIFY(QFile::link(outside(), data));
    QVERIFY(QFile::link(outside(), scratch));
    TalvoBasicUtil::clearHistoryProjectTempData();
    QVERIFY(!isThere(data) && !isThere(scratch));
}

void tst_TalvoBasicUtil::companion_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("cloud");
    QTest::addColumn<QString>("result");
    const auto list = [](const char *names) {
        return QString::fromUtf8(names).split(QLatin1Char('|'));
    };
    const QString cloud = QStringLiteral("scan01.las");
    QTest::newRow("one") << list("scan01.las|scan01.kvdata") << cloud
                         << QStringLiteral("scan01.kvdata");
    QTest::newRow("info") << list("scan01.info.kvdata") << cloud
                          << QStringLiteral("scan01.info.kvdata");
    QTest::newRow("last by name") << list("scan01.kvdata|scan01.info.kvdata") << cloud
                                  << QStringLiteral("scan01.kvdata");
    QTest::newRow("case") << list("SCAN01.KVData") << cloud << QStringLiteral("SCAN01.KVData");
    QTest::newRow("case is not sorted by")
        << list("scan01.KVDATA|SCAN01.info.kvdata") << cloud << QStringLiteral("scan01.KVDATA");
    QTest::newRow("anywhere in the name")
        << list("scan.kvdata.info.bak") << QStringLiteral("scan.kvdata.las")
        << QStringLiteral("scan.kvdata.info.bak");
    QTest::newRow("only the last suffix goes")
        << list("a.kvdata|a.b.kvdata") << QStringLiteral("a.b.las") << QStringLiteral("a.b.kvdata");
    QTest::newRow("other base name")
        << list("scan1.kvdata|scan011.kvdata|scan01.x.kvdata") << cloud << QString();
    QTest::newRow("no kvdata") << list("scan01.info|scan01.las") << cloud << QString();
    QTest::newRow("folder") << list("scan01.kvdata/x") << cloud << QStringLiteral("scan01.kvdata");
    QTest::newRow("hidden") << list(".scan01.kvdata") << QStringLiteral(".scan01.las") << QString();
    QTest::newRow("no suffix") << list("scan01.kvdata") << QStringLiteral("scan01")
                               << QStringLiteral("scan01.kvdata");
    QTest::newRow("not Latin") << list("ÄÖ 測試.kvdata") << QStringLiteral("äö 測試.las")
                               << QStringLiteral("ÄÖ 測試.kvdata");
    QTest::newRow("pattern") << list("scan01.kvdata") << QStringLiteral("*.las") << QString();
}

void tst_TalvoBasicUtil::companion()
{
    QFETCH(QStringList, names);
    QFETCH(QString, cloud);
    QFETCH(QString, result);
    const QString folder = m_world->path(QStringLiteral("run/"));
    for (const QString &name : names) {
        addFile(folder + name);
    }
    QVERIFY(QFile::link(QStringLiteral("/nowhere"), folder + QStringLiteral("scan01.zz.kvdata")));
    const QString expected = result.isEmpty() ? QString() : folder + result;
    QCOMPARE(TalvoBasicUtil::getConfigPathFromCloudPath(folder + cloud), expected);
    QCOMPARE(TalvoBasicUtil::getConfigPathFromCloudPath(cloud), expected);
    QCOMPARE(TalvoBasicUtil::getConfigPathFromCloudPath(QString()), QString());
    QCOMPARE(TalvoBasicUtil::getConfigPathFromCloudPath(QStringLiteral("/no/such/a.las")),
             QString());
}

void tst_TalvoBasicUtil::companionIsTheLastListed()
{
    // Each suffix that may follow adds one more candidate; the plain way goes through the listing.
    const QString folder = m_world->path(QStringLiteral("run/"));
    const QString base = QStringLiteral("Scan.01");
    const char *const names[] = {
        "scan.01.kvdata",       ".Scan.01.kvdata",     "SCAN.01.INFO.kvdata",
        "scan.01.kvdata2",      "Scan.01.KVDATAx",     "scan.01.info.kvdata.",
        "scan.01.info.kvdata_", "scan.01.kvdata.info", "Scan.01.kvdata~"};
    QStringList answers;
    for (const char *name : names) {
        addFile(folder + QLatin1String(name));
        QString expected;
        for (const QFileInfo &entry : QDir(folder).entryInfoList()) {
            const bool matches = entry.completeBaseName().compare(base, Qt::CaseInsensitive) == 0 ||
                                 entry.completeBaseName().compare(base + QStringLiteral(".info"),
                                                                  Qt::CaseInsensitive) == 0;
            if (matches &&
                entry.fileName().contains(QStringLiteral(".kvdata"), Qt::CaseInsensitive)) {
                expected = entry.absoluteFilePath();
            }
        }
        QCOMPARE(TalvoBasicUtil::getConfigPathFromCloudPath(folder + base + QStringLiteral(".las")),
                 expected);
        answers.append(expected);
    }
    QVERIFY(answers.removeDuplicates() > 0);
    QVERIFY2(answers.size() > 3, qPrintable(answers.join(QLatin1Char('\n'))));
}

void tst_TalvoBasicUtil::allFiles()
{
    const QString top = m_world->path(QStringLiteral("run"));
    for (const char *name : {"a", "b/c", "b/d/e", "b/f", "g h/'i'", "z", ".hidden", ".dir/x"}) {
        addFile(top + QLatin1Char('/') + QLatin1String(name));
    }
    QDir().mkdir(top + QStringLiteral("/empty"));
    QVERIFY(QFile::link(QStringLiteral("/nowhere"), top + QStringLiteral("/broken")));
    QVERIFY(QFile::link(outside(), top + QStringLiteral("/link")));
    QVERIFY(mkfifo(QFile::encodeName(top + QStringLiteral("/pipe")).constData(), 0600) == 0);

    // The same by plain recursion.
    QStringList expected = {QStringLiteral("kept")};
    const std::function<void(const QString &)> list = [&](const QString &folder) {
        const QFileInfoList entries = QDir(folder).entryInfoList(
            QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
        for (const QFileInfo &entry : entries) {
            if (entry.isDir()) {
                list(entry.absoluteFilePath());
            } else {
                expected.append(entry.absoluteFilePath());
            }
        }
    };
    list(top);
    QCOMPARE(expected.size(), 8);

    QStringList files = {QStringLiteral("kept")};
    TalvoBasicUtil::getAllFiles(QDir(top), files);
    QCOMPARE(files, expected);
    TalvoBasicUtil::getAllFiles(QDir(top + QStringLiteral("/missing")), files);
    TalvoBasicUtil::getAllFiles(QDir(top + QStringLiteral("/empty")), files);
    QCOMPARE(files, expected);
}

void tst_TalvoBasicUtil::allFilesOfARelativeFolder()
{
    addFile(QStringLiteral("x/y/z"));
    QStringList files;
    TalvoBasicUtil::getAllFiles(QDir(QStringLiteral("x/../x")), files);
    QCOMPARE(files, QStringList{QDir::current().absoluteFilePath(QStringLiteral("x/y/z"))});
}

void tst_TalvoBasicUtil::linkLoops()
{
    addFile(QStringLiteral("a/f"));
    addFile(QStringLiteral("b/g"));
    QVERIFY(QFile::link(QDir::current().absoluteFilePath(QStringLiteral("b")),
                        QStringLiteral("a/to b")));
    QVERIFY(QFile::link(QDir::current().absoluteFilePath(QStringLiteral("a")),
                        QStringLiteral("b/to a")));
    QVERIFY(QFile::link(QStringLiteral("."), QStringLiteral("a/self")));
    QVERIFY(QFile::link(QStringLiteral(".."), QStringLiteral("b/up")));
    QStringList files;
    TalvoBasicUtil::getAllFiles(QDir::current(), files);
    files.sort();
    const auto path = [](const char *name) {
        return QDir::current().absoluteFilePath(QLatin1String(name));
    };
    QCOMPARE(files, (QStringList{path("a/f"), path("a/to b/g"), path("b/g"), path("b/to a/f")}));
}

void tst_TalvoBasicUtil::metaObject()
{
    const QMetaObject &metaObject = TalvoBasicUtil::staticMetaObject;
    QCOMPARE(QByteArray(metaObject.className()), QByteArray("TalvoBasicUtil"));
    QCOMPARE(metaObject.superClass(), &QObject::staticMetaObject);
    QCOMPARE(lmtest::ownMethods(metaObject), QStringList());
}

void tst_TalvoBasicUtil::actionIcon()
{
    TalvoStyleManager *manager = TalvoStyleManager::instance().data();
    const QString folder = manager->currentThemePath() + QStringLiteral("qssimage/");
    QToolButton button;
    TalvoBasicUtil::setActionIcon(&button, QStringLiteral("layer_lock"),
                                  QStringLiteral("layer_edit"), QStringLiteral("delete_2dvec"));
    const auto image = [&button](QIcon::Mode mode) {
        return button.icon().pixmap(QSize(16, 16), mode, QIcon::Off).toImage();
    };
    const auto file = [&folder](const char *name) {
        return QIcon(folder + QLatin1String(name)).pixmap(16, 16).toImage();
    };
    QVERIFY(!image(QIcon::Normal).isNull());
    QCOMPARE(image(QIcon::Normal), file("layer_lock.png"));
    QCOMPARE(image(QIcon::Active), file("layer_edit.png"));
    QCOMPARE(image(QIcon::Disabled), file("delete_2dvec.png"));
    QVERIFY(image(QIcon::Normal) != image(QIcon::Active));

    TalvoBasicUtil::setActionIcon(&button, QStringLiteral("none"), QString(),
                                  QStringLiteral("../none"));
    QVERIFY(button.icon().pixmap(16, 16).isNull());
    TalvoBasicUtil::setActionIcon(nullptr, QStringLiteral("layer_lock"), QString(), QString());
}

void tst_TalvoBasicUtil::lineEditStyle()
{
    QLineEdit edit;
    TalvoBasicUtil::setLineEditStyle(&edit, false);
    QCOMPARE(edit.styleSheet(), QStringLiteral("border:1px solid #ff0000;"));
    TalvoBasicUtil::setLineEditStyle(&edit, true);
    QCOMPARE(edit.styleSheet(), QStringLiteral("border:1px solid #666666;"));
    TalvoBasicUtil::setLineEditStyle(nullptr, true);
    QCOMPARE(edit.styleSheet(), QStringLiteral("border:1px solid #666666;"));
}

LMTEST_MAIN(tst_TalvoBasicUtil)

#include "tst_talvobasicutil.moc"
