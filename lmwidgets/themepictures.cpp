#include "themepictures_p.h"

#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QVarLengthArray>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#else
#include <QDateTime>
#include <QFileInfo>
#endif

namespace LM {
namespace Widgets {

namespace {

constexpr int mostPictures = 256; // three themes have about a hundred
constexpr int largestRatio = 9;   // of the files for higher resolution that Qt looks for

/** What tells a file from the one that was read. */
struct Stamp
{
    qint64 size = -1; ///< of no file
    qint64 seconds = 0;
    qint64 fraction = 0;
    quint64 identity = 0;
};

bool operator==(const Stamp &a, const Stamp &b)
{
    return a.size == b.size && a.seconds == b.seconds && a.fraction == b.fraction &&
           a.identity == b.identity;
}

/**
 * The stamp of the file @p path. This is asked for whenever a picture is painted; a QFileInfo, which
 * makes a calendar date of the time, takes several times as long.
 */
Stamp stampOf(const QString &path)
{
    Stamp stamp;
#ifdef Q_OS_UNIX
    struct stat info = {};
    if (stat(QFile::encodeName(path).constData(), &info) == 0) {
        stamp.size = info.st_size;
#ifdef Q_OS_DARWIN
        stamp.seconds = info.st_mtimespec.tv_sec;
        stamp.fraction = info.st_mtimespec.tv_nsec;
#else
        stamp.seconds = info.st_mtim.tv_sec;
        stamp.fraction = info.st_mtim.tv_nsec;
#endif
        stamp.identity = info.st_ino;
    }
#else
    const QFileInfo info(path);
    if (info.exists()) {
        stamp.size = info.size();
        stamp.seconds = info.lastModified().toMSecsSinceEpoch();
    }
#endif
    return stamp;
}

using Stamps = QVarLengthArray<Stamp, 2>;

bool operator==(const Stamps &a, const Stamps &b)
{
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin());
}

/** The stamps of the file @p path and of those for higher resolution that Qt prefers here. */
Stamps stampsOf(const QString &path)
{
    Stamps stamps;
    stamps.append(stampOf(path));
    const int ratio = qMin(largestRatio, qRound(qApp->devicePixelRatio()));
    const int dot = path.lastIndexOf(QLatin1Char('.'));
    for (int n = 2; n <= ratio; ++n) {
        QString sharper = path;
        stamps.append(
            stampOf(sharper.insert(dot < 0 ? path.size() : dot, QStringLiteral("@%1x").arg(n))));
    }
    return stamps;
}

/** A picture of the kind @p Picture and what its file looked like when it was read. */
template <typename Picture>
struct Kept
{
    Stamps stamps;
    Picture picture;
};

template <typename Picture>
using KeptPictures = QHash<QString, Kept<Picture>>;

Q_GLOBAL_STATIC(KeptPictures<QIcon>, keptIcons)
Q_GLOBAL_STATIC(KeptPictures<QPixmap>, keptPixmaps)

// The pictures must not outlive the application.
void forgetPictures()
{
    if (!keptIcons.isDestroyed()) {
        keptIcons->clear();
    }
    if (!keptPixmaps.isDestroyed()) {
        keptPixmaps->clear();
    }
}

template <typename Picture>
Picture kept(KeptPictures<Picture> *pictures, const QString &path)
{
    Stamps stamps = stampsOf(path);
    const auto found = pictures->constFind(path);
    if (found != pictures->constEnd() && found->stamps == stamps) {
        return found->picture;
    }
    if (keptIcons->isEmpty() && keptPixmaps->isEmpty()) {
        qAddPostRoutine(forgetPictures);
    }
    if (pictures->size() >= mostPictures) {
        pictures->clear();
    }
    const Picture picture(path);
    pictures->insert(path, {stamps, picture});
    return picture;
}

} // namespace

QIcon keptIcon(const QString &path)
{
    return kept<QIcon>(keptIcons, path);
}

QPixmap keptPixmap(const QString &path)
{
    return kept<QPixmap>(keptPixmaps, path);
}

} // namespace Widgets
} // namespace LM
