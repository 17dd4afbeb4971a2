#include "sheet.h"
#include "stage.h"
#include "subject.h"

#include "lmtest.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>

#include <cstdio>

using namespace baseline;

namespace {

// Headers without anything to see: what these classes do is seen of others.
const char *const Unseen[] = {"framelesshelper", "lmwidgets",         "lmwidgets_global",
                              "talvobasicutil",  "talvostylemanager", "translations"};

int processScale = 1;
QStringList chosenClasses;

QString referencePath(const QString &name)
{
    return QStringLiteral(BASELINE_REFERENCES "/") + name + QStringLiteral(".png");
}

QString resultPath(const QString &name)
{
    return QStringLiteral(BASELINE_RESULTS "/") + name;
}

bool isChosen(const QString &className)
{
    return chosenClasses.isEmpty() || chosenClasses.contains(className);
}

/** The names of the references that are there for the scale of this process. */
QStringList referenceNames()
{
    QStringList names;
    const QString suffix = QStringLiteral("@%1x").arg(processScale);
    const auto files = QDir(QStringLiteral(BASELINE_REFERENCES))
                           .entryInfoList({QStringLiteral("*.png")}, QDir::Files, QDir::Name);
    for (const QFileInfo &file : files) {
        const QString name = file.completeBaseName();
        const bool isOurs =
            processScale == 1 ? !name.contains(QLatin1Char('@')) : name.endsWith(suffix);
        if (isOurs && isChosen(name.section(QLatin1Char('.'), 0, 0))) {
            names.append(name);
        }
    }
    return names;
}

QStringList expectedNames()
{
    QStringList names;
    for (const Setting &setting : settings(processScale)) {
        for (const Subject &subject : subjects()) {
            names.append(sheetName(subject.className, setting, processScale));
        }
    }
    return names;
}

/** What has changed in @p sheet, for people. */
QString report(const QString &className, const Setting &setting, const Difference &difference)
{
    return QStringLiteral("%1 (%2):\n  %3\n")
        .arg(className, settingText(setting, processScale),
             difference.findings.join(QStringLiteral("\n  ")));
}

/** Writes the reference @p name where it is not what @p sheet is; tells what has changed. */
bool renew(const Subject &subject, const Setting &setting, QTextStream &out)
{
    const QString name = sheetName(subject.className, setting, processScale);
    const Sheet sheet = takeSheet(subject, processScale);
    const Sheet reference = Sheet::load(referencePath(name));
    if (reference.isEmpty()) {
        out << QStringLiteral("%1 (%2):\n  new\n")
                   .arg(subject.className, settingText(setting, processScale));
    } else {
        const Difference difference = compare(reference, sheet);
        if (difference.findings.isEmpty()) {
            return true;
        }
        out << report(subject.className, setting, difference);
    }
    out.flush();
    return sheet.save(referencePath(name));
}

int renewAll()
{
    lmtest::ignorePlatformChatter();
    QTextStream out(stdout);
    bool written = QDir().mkpath(QStringLiteral(BASELINE_REFERENCES));
    for (const Setting &setting : settings(processScale)) {
        apply(setting);
        for (const Subject &subject : subjects()) {
            if (isChosen(subject.className)) {
                written = renew(subject, setting, out) && written;
            }
        }
    }
    const QStringList expected = expectedNames();
    for (const QString &name : referenceNames()) {
        if (!expected.contains(name)) {
            out << name << ":\n  removed, it is of no class\n";
            written = QFile::remove(referencePath(name)) && written;
        }
    }
    return written ? 0 : 1;
}

QImage plain(const QColor &color, const QSize &size = QSize(20, 10))
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

} // namespace

class tst_Baseline : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void comparisonTellsWhatChanged();
    void comparisonToleratesRounding();
    void sheetIsTheSameFromAFile();
    void everyClassIsPictured();
    void everyReferenceIsOfAClass();
    void pictures_data();
    void pictures();
};

void tst_Baseline::comparisonTellsWhatChanged()
{
    QImage changed = plain(Qt::black);
    QPainter(&changed).fillRect(3, 4, 5, 2, QColor(0, 40, 0));
    const Sheet before({{QStringLiteral("same"), plain(Qt::white)},
                        {QStringLiteral("changed"), plain(Qt::black)},
                        {QStringLiteral("grown"), plain(Qt::black)},
                        {QStringLiteral("gone"), plain(Qt::black)}},
                       1);
    const Sheet after({{QStringLiteral("same"), plain(Qt::white)},
                       {QStringLiteral("changed"), changed},
                       {QStringLiteral("grown"), plain(Qt::black, QSize(20, 11))},
                       {QStringLiteral("new"), plain(Qt::black)}},
                      1);
    const Difference difference = compare(before, after);
    const QStringList findings = {
        QStringLiteral("state \"changed\": 10 of 200 pixels differ, by up to 40, within 5 x 2 at "
                       "3, 4"),
        QStringLiteral("state \"grown\": is 20 x 11 pixels large and was 20 x 10"),
        QStringLiteral("state \"new\": the reference does not have it"),
        QStringLiteral("state \"gone\": only the reference has it")};
    QCOMPARE(difference.findings, findings);
    const QPoint corner = after.place(QStringLiteral("changed")).topLeft();
    QCOMPARE(difference.picture.pixelColor(corner + QPoint(3, 4)), QColor(Qt::red));
    QVERIFY(difference.picture.pixelColor(corner + QPoint(2, 4)) != QColor(Qt::red));
}

void tst_Baseline::comparisonToleratesRounding()
{
    const auto sheet = [](int blue) {
        return Sheet({{QStringLiteral("normal"), plain(QColor(100, 100, blue))}}, 1);
    };
    QVERIFY(compare(sheet(100), sheet(100)).findings.isEmpty());
    QVERIFY(compare(sheet(100), sheet(100 + Tolerance)).findings.isEmpty());
    QVERIFY(compare(sheet(100), sheet(100 - Tolerance)).findings.isEmpty());
    QCOMPARE(compare(sheet(100), sheet(101 + Tolerance)).findings.size(), 1);
    QCOMPARE(compare(sheet(100), sheet(99 - Tolerance)).findings.size(), 1);
}

void tst_Baseline::sheetIsTheSameFromAFile()
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("sheet.png"));
    const Sheet sheet({{QStringLiteral("a state"), plain(QColor(1, 2, 3))},
                       {QStringLiteral("another"), plain(QColor(4, 5, 6), QSize(990, 30))}},
                      2);
    QVERIFY(sheet.save(path));
    const Sheet loaded = Sheet::load(path);
    QCOMPARE(loaded.states(), sheet.states());
    QVERIFY(compare(sheet, loaded).findings.isEmpty());
    QCOMPARE(loaded.picture(QStringLiteral("another")), plain(QColor(4, 5, 6), QSize(990, 30)));
    QVERIFY(Sheet::load(dir.filePath(QStringLiteral("none.png"))).isEmpty());
}

void tst_Baseline::everyClassIsPictured()
{
    QStringList pictured;
    for (const Subject &subject : subjects()) {
        pictured.append(subject.className.toLower());
    }
    QCOMPARE(QSet<QString>(pictured.begin(), pictured.end()).size(), pictured.size());
    for (const char *name : Unseen) {
        pictured.append(QString::fromLatin1(name));
    }
    const QStringList headers =
        QStringLiteral(BASELINE_HEADERS).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QVERIFY(!headers.isEmpty());
    for (const QString &header : headers) {
        const QString name = QFileInfo(header).completeBaseName();
        QVERIFY2(pictured.contains(name), qPrintable(name + QStringLiteral(" has no pictures")));
    }
}

void tst_Baseline::everyReferenceIsOfAClass()
{
    const QStringList expected = expectedNames();
    for (const QString &name : referenceNames()) {
        QVERIFY2(expected.contains(name),
                 qPrintable(name + QStringLiteral(" is of no class that is pictured; "
                                                  "scripts/baseline --renew removes it")));
    }
}

void tst_Baseline::pictures_data()
{
    QTest::addColumn<int>("subject");
    QTest::addColumn<int>("setting");
    const QVector<Subject> all = subjects();
    for (int setting = 0; setting < settings(processScale).size(); ++setting) {
        for (int subject = 0; subject < all.size(); ++subject) {
            const QString &className = all.at(subject).className;
            if (isChosen(className)) {
                const QString name =
                    sheetName(className, settings(processScale).at(setting), processScale);
                QTest::newRow(qPrintable(name)) << subject << setting;
            }
        }
    }
}

void tst_Baseline::pictures()
{
    QFETCH(const int, subject);
    QFETCH(const int, setting);
    const Subject each = subjects().at(subject);
    const Setting current = settings(processScale).at(setting);
    const QString name = sheetName(each.className, current, processScale);
    const QString actualPath = resultPath(name + QStringLiteral(".actual.png"));
    const QString differencePath = resultPath(name + QStringLiteral(".diff.png"));
    QFile::remove(actualPath);
    QFile::remove(differencePath);

    apply(current);
    const Sheet actual = takeSheet(each, processScale);
    const Sheet reference = Sheet::load(referencePath(name));
    const QString hint =
        QStringLiteral("If it shall be so: scripts/baseline --renew ") + each.className;
    if (reference.isEmpty()) {
        QVERIFY(actual.save(actualPath));
        const QString text = QStringLiteral("%1 has no reference; it looks like %2\n%3");
        QFAIL(qPrintable(text.arg(name, actualPath, hint)));
    }
    const Difference difference = compare(reference, actual);
    if (!difference.findings.isEmpty()) {
        QVERIFY(actual.save(actualPath));
        QVERIFY(difference.picture.save(differencePath));
        const QString text = QStringLiteral("%1  See %2\n  and %3\n  %4");
        QFAIL(qPrintable(text.arg(report(each.className, current, difference), actualPath,
                                  differencePath, hint)));
    }
}

/** Takes "--scale N", "--renew" and "--class NAME" out of the arguments; the others are QTest's. */
static bool takeArguments(QVector<char *> *arguments)
{
    bool renews = false;
    QVector<char *> others;
    for (int i = 0; i < arguments->size(); ++i) {
        const QByteArray argument(arguments->at(i));
        const bool hasValue = i + 1 < arguments->size();
        if (argument == "--renew") {
            renews = true;
        } else if (argument == "--scale" && hasValue) {
            processScale = qBound(1, QByteArray(arguments->at(++i)).toInt(), 2);
        } else if (argument == "--class" && hasValue) {
            chosenClasses.append(QString::fromLocal8Bit(arguments->at(++i)));
        } else {
            others.append(arguments->at(i));
        }
    }
    *arguments = others;
    return renews;
}

static bool knowsChosenClasses()
{
    QStringList unknown = chosenClasses;
    for (const Subject &subject : subjects()) {
        unknown.removeAll(subject.className);
    }
    if (!unknown.isEmpty()) {
        QTextStream(stderr) << "There are no pictures of " << unknown.join(QStringLiteral(", "))
                            << '\n';
    }
    return unknown.isEmpty();
}

int main(int argc, char **argv)
{
    QVector<char *> arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(argv[i]);
    }
    const bool renews = takeArguments(&arguments);
    int count = arguments.size();
    prepareEnvironment(processScale, QStringLiteral(BASELINE_FONTS));

    QApplication application(count, arguments.data());
    const QTemporaryDir settingsFolder;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settingsFolder.path());
    prepareStage();
    if (!knowsChosenClasses() || !QDir().mkpath(QStringLiteral(BASELINE_RESULTS))) {
        return 1;
    }
    if (renews) {
        return renewAll();
    }
    tst_Baseline test;
    return QTest::qExec(&test, count, arguments.data());
}

#include "tst_baseline.moc"
