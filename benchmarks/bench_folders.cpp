/** @file
 * Listing 200,000 files beside QDirIterator, and finding the companion of a point cloud in a folder
 * of 100,000 beside QDir::entryList() with a name filter; both also beside the program "find", from
 * its start to its end.
 *
 * The files are made below the temporary folder and deleted at the end; they are listed once before
 * anything is timed, so that the disk plays no part.
 */

#include "bench.h"

#include <lmwidgets/talvobasicutil.h>

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <sys/resource.h>

namespace {

constexpr int rounds = 9;
constexpr int folders = 400;
constexpr int subfolders = 4; // in each of them
constexpr int filesInEach = 125;
constexpr int files = folders * subfolders * filesInEach;
constexpr int siblings = 100000;

void addFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
        std::exit(1);
    }
}

void makeTree(const QString &top)
{
    for (int i = 0; i < folders; ++i) {
        for (int j = 0; j < subfolders; ++j) {
            const QString folder = QStringLiteral("%1/survey %2/strip %3").arg(top).arg(i).arg(j);
            QDir().mkpath(folder);
            for (int k = 0; k < filesInEach; ++k) {
                addFile(
                    QStringLiteral("%1/scan%2.las").arg(folder).arg(k, 6, 10, QLatin1Char('0')));
            }
        }
    }
}

/** Point clouds with a companion each. */
void makeFolder(const QString &folder)
{
    QDir().mkpath(folder);
    for (int i = 0; i < siblings / 2; ++i) {
        const QString name =
            QStringLiteral("%1/scan%2").arg(folder).arg(i, 6, 10, QLatin1Char('0'));
        addFile(name + QStringLiteral(".las"));
        addFile(name + QStringLiteral(".kvdata"));
    }
}

/** The CPU seconds of the programs that this one has run. */
double childSeconds()
{
    rusage usage = {};
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto seconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/** The CPU seconds of "find" with @p arguments; its output goes nowhere. */
double timeFind(const QStringList &arguments)
{
    const double start = childSeconds();
    QProcess find;
    find.setStandardOutputFile(QProcess::nullDevice());
    find.start(QStringLiteral("find"), arguments);
    if (!find.waitForFinished(-1) || find.exitCode() != 0) {
        std::fputs("find failed\n", stderr);
        std::exit(1);
    }
    return childSeconds() - start;
}

void require(bool holds, const char *what)
{
    if (!holds) {
        std::fprintf(stderr, "%s\n", what);
        std::exit(1);
    }
}

/** How often as much CPU time as "find" with @p arguments @p ours takes; its row has no goal. */
void runBesideFind(const QString &operation, const bench::Work &ours, const QStringList &arguments,
                   int operations)
{
    if (bench::isCounting()) {
        return; // the instructions of other programs are not seen
    }
    QVector<double> oursTimes;
    QVector<double> findTimes;
    QVector<double> ratios;
    for (int round = 0; round <= rounds; ++round) {
        const double oursTime = bench::cost(ours, round);
        const double findTime = timeFind(arguments);
        if (round > 0) {
            oursTimes.append(oursTime);
            findTimes.append(findTime);
            ratios.append(oursTime / findTime);
        }
    }
    bench::printLine(operation + QStringLiteral(", the program find"),
                     {bench::median(oursTimes), bench::median(findTimes), bench::median(ratios)},
                     operations);
}

void listTree(const QString &top)
{
    const bench::Work ours = [&top](int) {
        QStringList list;
        TalvoBasicUtil::getAllFiles(QDir(top), list);
        require(list.size() == files, "not all files were listed");
    };
    const bench::Work stock = [&top](int) {
        QStringList list;
        QDirIterator entries(top, QDir::Files, QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            list.append(entries.next());
        }
        require(list.size() == files, "QDirIterator did not list all files");
    };
    const QString operation = QStringLiteral("getAllFiles, 200,000 files, per file");
    bench::printLine(operation + QStringLiteral(", QDirIterator"),
                     bench::compare(ours, stock, rounds), files, 0.6);
    runBesideFind(operation, ours, {top, QStringLiteral("-type"), QStringLiteral("f")}, files);
}

void findCompanion(const QString &folder)
{
    const QString cloud = folder + QStringLiteral("/scan012345.las");
    const QString companion = folder + QStringLiteral("/scan012345.kvdata");
    const bench::Work ours = [&](int) {
        require(TalvoBasicUtil::getConfigPathFromCloudPath(cloud) == companion,
                "the companion was not found");
    };
    const bench::Work filtered = [&](int) {
        const QStringList found = QDir(folder).entryList({QStringLiteral("scan012345*.kvdata*")});
        require(found.size() == 1, "QDir::entryList did not find the companion");
    };
    const bench::Work all = [&](int) {
        const QStringList found =
            QDir(folder).entryList().filter(QStringLiteral("scan012345.kvdata"));
        require(found.size() == 1, "QDir::entryList did not find the companion");
    };
    const bench::Work bare = [&](int) {
        QString found;
        QDirIterator entries(folder, QDir::AllEntries);
        while (entries.hasNext()) {
            entries.next();
            if (entries.fileName() == QLatin1String("scan012345.kvdata")) {
                found = entries.filePath();
            }
        }
        require(found == companion, "QDirIterator did not find the companion");
    };
    const QString operation = QStringLiteral("companion among 100,000 files, per file");
    bench::printLine(operation + QStringLiteral(", QDir::entryList"),
                     bench::compare(ours, all, rounds), siblings, 0.4);
    bench::printLine(operation + QStringLiteral(", entryList with a name filter"),
                     bench::compare(ours, filtered, rounds), siblings);
    bench::printLine(operation + QStringLiteral(", QDirIterator"),
                     bench::compare(ours, bare, rounds), siblings);
    runBesideFind(operation, ours,
                  {folder, QStringLiteral("-iname"), QStringLiteral("scan012345*.kvdata*")},
                  siblings);
}

} // namespace

int main(int argc, char **argv)
{
    bench::prepareEnvironment(argc, argv);
    QApplication application(argc, argv);
    bench::prepareApplication();

    const QTemporaryDir root;
    require(root.isValid(), "cannot make a temporary folder");
    const QString tree = root.filePath(QStringLiteral("tree"));
    const QString folder = root.filePath(QStringLiteral("folder"));
    makeTree(tree);
    makeFolder(folder);

    bench::printHead();
    listTree(tree);
    findCompanion(folder);
    return 0;
}
