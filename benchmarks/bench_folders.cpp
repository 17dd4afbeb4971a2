/** @file
 * Listing 200,000 files, and finding the companion of a point cloud in a folder of 100,000, beside
 * the program "find", from its start to its end, and beside a bare QDirIterator that does the least
 * that could give the answer.
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

double timeWork(const bench::Work &work, int round)
{
    const double start = bench::cpuSeconds();
    work(round);
    return bench::cpuSeconds() - start;
}

void require(bool holds, const char *what)
{
    if (!holds) {
        std::fprintf(stderr, "%s\n", what);
        std::exit(1);
    }
}

/** One operation beside its two rivals, which take turns. */
void run(const QString &operation, const bench::Work &ours, const bench::Work &bare,
         const QStringList &find, int operations, double findGoal, double bareGoal)
{
    QVector<double> oursTimes;
    QVector<double> bareTimes;
    QVector<double> findTimes;
    QVector<double> findRatios;
    QVector<double> bareRatios;
    for (int round = 0; round <= rounds; ++round) {
        const double oursTime = timeWork(ours, round);
        const double bareTime = timeWork(bare, round);
        const double findTime = timeFind(find);
        if (round > 0) {
            oursTimes.append(oursTime);
            bareTimes.append(bareTime);
            findTimes.append(findTime);
            findRatios.append(oursTime / findTime);
            bareRatios.append(oursTime / bareTime);
        }
    }
    const bench::Comparison besideFind = {bench::median(oursTimes), bench::median(findTimes),
                                          bench::median(findRatios)};
    const bench::Comparison besideBare = {bench::median(oursTimes), bench::median(bareTimes),
                                          bench::median(bareRatios)};
    bench::printLine(operation + QStringLiteral(", find"), besideFind, operations, findGoal);
    bench::printLine(operation + QStringLiteral(", QDirIterator"), besideBare, operations,
                     bareGoal);
}

void listTree(const QString &top)
{
    const bench::Work ours = [&top](int) {
        QStringList list;
        TalvoBasicUtil::getAllFiles(QDir(top), list);
        require(list.size() == files, "not all files were listed");
    };
    const bench::Work bare = [&top](int) {
        QStringList list;
        QDirIterator entries(top, QDir::Files, QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            list.append(entries.next());
        }
        require(list.size() == files, "QDirIterator did not list all files");
    };
    run(QStringLiteral("getAllFiles, per file"), ours, bare,
        {top, QStringLiteral("-type"), QStringLiteral("f")}, files, 3.0, 1.5);
}

void findCompanion(const QString &folder)
{
    const QString cloud = folder + QStringLiteral("/scan012345.las");
    const QString companion = folder + QStringLiteral("/scan012345.kvdata");
    const bench::Work ours = [&](int) {
        require(TalvoBasicUtil::getConfigPathFromCloudPath(cloud) == companion,
                "the companion was not found");
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
    run(QStringLiteral("getConfigPathFromCloudPath, per entry"), ours, bare,
        {folder, QStringLiteral("-iname"), QStringLiteral("scan012345*.kvdata*")}, siblings, 3.0,
        1.5);
}

} // namespace

int main(int argc, char **argv)
{
    bench::prepareEnvironment();
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
