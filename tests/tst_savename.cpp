#include "lmtest.h"

#include "lmwidgets/savename_p.h"

#include <QDir>
#include <QUrl>

using LM::Widgets::isSaveNameValid;
using LM::Widgets::PathForm;

namespace {

/** A disk with a few folders, and what was asked of it. */
struct Disk
{
    explicit Disk(const QStringList &present) : folders(present) {}

    bool operator()(const QString &path)
    {
        asked.append(path);
        return folders.contains(path);
    }

    QStringList folders;
    QStringList asked;
};

const QStringList &drive()
{
    // The current folder exists on every disk; its path is empty.
    static const QStringList folders = {
        QString(), QStringLiteral("C:/"), QStringLiteral("C:/scans/"),
        QStringLiteral("C:/scans/2024 May/"), QStringLiteral("C:/scans/100% C#/")};
    return folders;
}

const QStringList &slash()
{
    static const QStringList folders = {
        QString(),
        QStringLiteral("/"),
        QStringLiteral("/home/"),
        QStringLiteral("/home/a/"),
        QStringLiteral("/home/a/100% C#/"),
        QStringLiteral("/home/a/why?/"),
        QStringLiteral("/home/home/"),
    };
    return folders;
}

} // namespace

class tst_SaveName : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void driveLetter_data();
    void driveLetter();
    void leadingSlash_data();
    void leadingSlash();
    void walkStopsAtTheFirstMissingFolder();
    void formsDiffer();
    void urlOfEveryCharacter();
};

void tst_SaveName::driveLetter_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<bool>("valid");
    const auto row = [](const char *name, const char *url, bool valid) {
        QTest::newRow(name) << QString::fromUtf8(url) << valid;
    };
    row("plain", "file:///C:/scans/a.las", true);
    row("in the drive itself", "file:///C:/a.las", true);
    row("folder with a blank", "file:///C:/scans/2024 May/a.las", true);
    row("without the prefix", "C:/scans/a.las", true);
    row("name of a folder", "file:///C:/scans/2024 May", true);
    row("no suffix", "file:///C:/scans/a", true);
    row("spelled differently in the URL", "file:///C:/scans/100%25 C%23/a.las", true);
    row("not Latin", "file:///C:/scans/\xe7\x82\xb9.las", true);
    row("empty", "", false);
    row("prefix only", "file:///", false);
    row("folder only", "file:///C:/scans/", false);
    row("drive only", "file:///C:/", false);
    row("missing drive", "file:///D:/a.las", false);
    row("missing folder", "file:///C:/none/a.las", false);
    row("missing folder, deeper", "file:///C:/scans/none/none/a.las", false);
    row("missing folder between", "file:///C:/none/scans/a.las", false);
    row("no folder at all", "a.las", false);
    row("one letter", "a", false);
    row("share", "file://server/share/a.las", false);
    row("asterisk", "file:///C:/scans/a*b.txt", false);
    row("asterisk alone", "file:///C:/scans/*", false);
    row("question mark", "file:///C:/scans/a?b.txt", false);
    row("less", "file:///C:/scans/a<b.txt", false);
    row("greater", "file:///C:/scans/a>b.txt", false);
    // QUrl writes these three so.
    row("encoded question mark", "file:///C:/scans/a%3Fb.txt", false);
    row("encoded less", "file:///C:/scans/a%3Cb.txt", false);
    row("encoded greater", "file:///C:/scans/a%3Eb.txt", false);
    row("encoded percent sign", "file:///C:/scans/a%253Fb.txt", true);
    row("backslash", "file:///C:/scans/a\\b.txt", false);
    row("encoded bar", "file:///C:/scans/a%7Cb.txt", false);
    row("encoded bar at the end", "file:///C:/scans/a%7C", false);
    row("two encoded bars", "file:///C:/scans/a%25b%7Cc", false);
    row("small letter", "file:///C:/scans/a%7cb.txt", true);
    row("bar", "file:///C:/scans/a|b.txt", true);
    row("seven only", "file:///C:/scans/a%7", true);
    row("another code", "file:///C:/scans/a%7Db.txt", true);
    row("next to it", "file:///C:/scans/a%87Cb.txt", true);
    row("ends with a percent sign", "file:///C:/scans/a%", true);
    // The piece before the first percent sign is looked at as well.
    row("begins with 7C", "file:///C:/scans/7Cloud.las", false);
    row("begins with 7c", "file:///C:/scans/7cloud.las", true);
    row("7C later", "file:///C:/scans/a7C.las", true);
    row("asterisk in the folder", "file:///C:/sc*ns/a.las", false);
    row("parts repeated", "C:/C:/a.las", false);
}

void tst_SaveName::driveLetter()
{
    QFETCH(QString, url);
    // As it is on the system that has drives, where '\' is a separator as well.
    const bool isSeparator = QDir::fromNativeSeparators(QStringLiteral("\\")) == QLatin1String("/");
    if (isSeparator && url.contains(QLatin1Char('\\'))) {
        QSKIP("Here this is a folder that does not exist");
    }
    QTEST(isSaveNameValid(url, Disk(drive()), PathForm::DriveLetter), "valid");
}

void tst_SaveName::leadingSlash_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<bool>("valid");
    const auto row = [](const char *name, const char *url, bool valid) {
        QTest::newRow(name) << QString::fromUtf8(url) << valid;
    };
    row("plain", "file:///home/a/a.las", true);
    row("in the root", "file:///a.las", true);
    row("without the prefix", "/home/a/a.las", true);
    row("folder in itself", "file:///home/home/a.las", true);
    row("name of a folder", "file:///home/a", true);
    row("name like its folder", "file:///home/home", true);
    row("not Latin", "file:///home/a/\xe7\x82\xb9.las", true);
    row("encoded not Latin", "file:///home/a/%E7%82%B9.las", true);
    row("spelled differently in the URL", "file:///home/a/100%25 C%23/a.las", true);
    row("question mark in the folder", "file:///home/a/why%3F/a.las", true);
    row("two slashes", "file:///home//a///a.las", true);
    row("two slashes at first", "file:////home/a/a.las", true);
    row("empty", "", false);
    row("prefix only", "file:///", false);
    row("folder only", "file:///home/a/", false);
    row("missing folder", "file:///none/a.las", false);
    row("missing folder, deeper", "file:///home/none/none/a.las", false);
    row("missing folder between", "file:///home/none/home/a.las", false);
    row("missing folder, named like the root's", "file:///none/home/a.las", false);
    row("relative", "home/a/a.las", false);
    row("no folder at all", "a.las", false);
    row("asterisk", "file:///home/a/a*b.txt", false);
    row("question mark", "file:///home/a/a?b.txt", false);
    row("encoded question mark", "file:///home/a/a%3Fb.txt", false);
    row("less", "file:///home/a/a<b.txt", false);
    row("encoded less", "file:///home/a/a%3Cb.txt", false);
    row("greater", "file:///home/a/a>b.txt", false);
    row("encoded greater", "file:///home/a/a%3Eb.txt", false);
    row("encoded backslash", "file:///home/a/a%5Cb.txt", false);
    row("encoded bar", "file:///home/a/a%7Cb.txt", false);
    row("small letter", "file:///home/a/a%7cb.txt", true);
    row("bar", "file:///home/a/a|b.txt", true);
    row("percent sign and 7C", "file:///home/a/a%257Cb.txt", true);
    row("hash", "file:///home/a/a%23b.txt", true);
    row("colon", "file:///home/a/a:b.txt", true);
    row("begins with 7C", "file:///home/a/7Cloud.las", false);
    row("begins with 7c", "file:///home/a/7cloud.las", true);
    row("drive", "C:/home/a.las", false);
}

void tst_SaveName::leadingSlash()
{
    QFETCH(QString, url);
    QTEST(isSaveNameValid(url, Disk(slash()), PathForm::LeadingSlash), "valid");
}

void tst_SaveName::walkStopsAtTheFirstMissingFolder()
{
    Disk disk({QStringLiteral("C:/")});
    const auto ask = [&disk](const QString &path) { return disk(path); };
    QVERIFY(
        !isSaveNameValid(QStringLiteral("file:///C://none/a/b.las"), ask, PathForm::DriveLetter));
    QCOMPARE(disk.asked, QStringList({QStringLiteral("C:/"), QStringLiteral("C:/none/"),
                                      QStringLiteral("C:/")}));

    // The last part is never taken for a folder.
    disk = Disk({QStringLiteral("/"), QStringLiteral("/a/"), QStringLiteral("/a/b/")});
    QVERIFY(isSaveNameValid(QStringLiteral("file:///a/b"), ask, PathForm::LeadingSlash));
    QCOMPARE(disk.asked, QStringList({QStringLiteral("/a/"), QStringLiteral("/a/")}));
}

void tst_SaveName::formsDiffer()
{
    const QStringList folders = {QString(), QStringLiteral("/"), QStringLiteral("/home/"),
                                 QStringLiteral("C:/"), QStringLiteral("/C:/")};
    const QString home = QStringLiteral("file:///home/a.las");
    QVERIFY(isSaveNameValid(home, Disk(folders), PathForm::LeadingSlash));
    // Without its slash the path would be looked for below the current folder.
    QVERIFY(!isSaveNameValid(home, Disk(folders), PathForm::DriveLetter));
    // A folder may be called like a drive.
    const QString drive = QStringLiteral("file:///C:/a.las");
    Disk disk(folders);
    const auto ask = [&disk](const QString &path) { return disk(path); };
    QVERIFY(isSaveNameValid(drive, ask, PathForm::LeadingSlash));
    QCOMPARE(disk.asked.first(), QStringLiteral("/C:/"));
    disk.asked.clear();
    QVERIFY(isSaveNameValid(drive, ask, PathForm::DriveLetter));
    QCOMPARE(disk.asked.first(), QStringLiteral("C:/"));
}

/** Every character that a name may have on the disk, in the text that QUrl makes of it. */
void tst_SaveName::urlOfEveryCharacter()
{
    const QString refused = QStringLiteral("*?<>|\\");
    for (ushort code = 0x20; code < 0x250; ++code) {
        const QChar character(code);
        if (character == QLatin1Char('/') || code == 0x7F) {
            continue;
        }
        const bool isValid = !refused.contains(character);
        const QString name = QStringLiteral("x%1y").arg(character);
        QString url = QUrl::fromLocalFile(QStringLiteral("/home/a/") + name).toString();
        QVERIFY2(isSaveNameValid(url, Disk(slash()), PathForm::LeadingSlash) == isValid,
                 qPrintable(url));
        url = QUrl::fromLocalFile(QStringLiteral("/C:/scans/") + name).toString();
        QVERIFY2(isSaveNameValid(url, Disk(drive()), PathForm::DriveLetter) == isValid,
                 qPrintable(url));
    }
}

LMTEST_MAIN(tst_SaveName)

#include "tst_savename.moc"
