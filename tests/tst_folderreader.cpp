#include "lmtest.h"

#include <lmwidgets/folderreader_p.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

using LM::Widgets::FolderReader;

namespace {

/** What a reader says of all entries, in its order. */
QStringList described(std::unique_ptr<FolderReader> reader)
{
    QStringList list;
    while (reader->next()) {
        QString appended = QStringLiteral("x");
        reader->appendName(&appended);
        list += QStringLiteral("%1 %2 %3 %4")
                    .arg(reader->name(), appended)
                    .arg(reader->kind())
                    .arg(reader->isHidden());
    }
    return list;
}

/** A file whose name is @p name byte by byte. */
bool addFile(const QByteArray &folder, const QByteArray &name)
{
    const int file = ::open((folder + '/' + name).constData(), O_CREAT | O_WRONLY, 0600);
    return file >= 0 && ::close(file) == 0;
}

} // namespace

/** The reader of this system beside that of Qt's. */
class tst_FolderReader : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sameAsQt();
    void noFolder_data();
    void noFolder();
    void resources();
    void mayContain();
};

void tst_FolderReader::sameAsQt()
{
    const QTemporaryDir folder;
    const QByteArray path = QFile::encodeName(folder.path());
    const char *const names[] = {"plain",        "two words", ".hidden", "..odd",
                                 "...",          "a\\b",      "*.?[x]",  "\xc3\x84\xe6\xb8\xac",
                                 "\xe2\x84\xaa", "q\n\t",     "-rf"};
    for (const char *name : names) {
        QVERIFY(addFile(path, name));
    }
    // Names that are no text: a byte alone, an unfinished sequence, a surrogate, too long a form.
    const char *const bytes[] = {"\xff", "z\xc3", "\xed\xa0\x80", "\xc0\xaf", "ok\xe2\x82"};
    for (const char *name : bytes) {
        QVERIFY(addFile(path, name));
    }
    QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("folder/inner")));
    QVERIFY(QDir(folder.path()).mkpath(QStringLiteral(".hidden folder")));
    const struct
    {
        const char *target;
        const char *link;
    } links[] = {{"plain", "to file"},     {"folder", "to folder"},
                 {"/nowhere", "broken"},   {"pipe", "to pipe"},
                 {"self", "self"},         {"to folder", "to link"},
                 {".hidden", "to hidden"}, {"..", "up"},
                 {"broken", "to broken"},  {"folder/inner", ".inner"},
                 {"/dev/null", "device"}};
    for (const auto &link : links) {
        QVERIFY(symlink(link.target, (path + '/' + link.link).constData()) == 0);
    }
    QVERIFY(mkfifo((path + "/pipe").constData(), 0600) == 0);

    const QStringList expected = described(LM::Widgets::openFolderWithQt(folder.path()));
    QCOMPARE(expected.size(), int(std::size(names)) + 2 + int(std::size(links)) + 1);
    QCOMPARE(described(FolderReader::open(folder.path())), expected);
    QCOMPARE(described(FolderReader::open(folder.path() + QLatin1Char('/'))), expected);
    // Qt cannot remove these.
    for (const char *name : bytes) {
        QVERIFY(unlink((path + '/' + name).constData()) == 0);
    }
}

void tst_FolderReader::noFolder_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("missing") << QStringLiteral("/no/such/folder");
    QTest::newRow("a file") << QCoreApplication::applicationFilePath();
    QTest::newRow("a device") << QStringLiteral("/dev/null");
    QTest::newRow("too long") << QLatin1Char('/') + QString(5000, QLatin1Char('x'));
}

void tst_FolderReader::noFolder()
{
    QFETCH(QString, path);
    QCOMPARE(described(FolderReader::open(path)), QStringList());
}

void tst_FolderReader::resources()
{
    const QString root = QStringLiteral(":/");
    QVERIFY(!described(FolderReader::open(root)).isEmpty());
    QCOMPARE(described(FolderReader::open(root)), described(LM::Widgets::openFolderWithQt(root)));
}

void tst_FolderReader::mayContain()
{
    const QTemporaryDir folder;
    const QString wanted = QStringLiteral(".kvdata");
    // The last one has a sign for kelvin, which is a k where the case does not matter.
    const QStringList names = {QStringLiteral(".kvdata"),      QStringLiteral("a.KvData.b"),
                               QStringLiteral("kvdata"),       QStringLiteral("a.kvdat"),
                               QStringLiteral("a..kvdata"),    QStringLiteral("Ä.kvdata"),
                               QStringLiteral("a.kvdat.data"), QStringLiteral("a.\u212avdata")};
    for (const QString &name : names) {
        QVERIFY(addFile(QFile::encodeName(folder.path()), QFile::encodeName(name)));
    }
    const auto reader = FolderReader::open(folder.path());
    int count = 0;
    int excluded = 0;
    while (reader->next()) {
        ++count;
        const bool contains = reader->name().contains(wanted, Qt::CaseInsensitive);
        if (!reader->mayContain(".kvdata")) {
            ++excluded;
            QVERIFY2(!contains, qPrintable(reader->name()));
        }
    }
    QCOMPARE(count, names.size());
    QCOMPARE(excluded, 3);
}

QTEST_GUILESS_MAIN(tst_FolderReader)

#include "tst_folderreader.moc"
