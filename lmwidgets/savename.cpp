#include "savename_p.h"

#include <QDir>
#include <QStringList>
#include <QUrl>
#include <QVector>

#include <algorithm>

namespace LM {
namespace Widgets {

namespace {

const QLatin1Char Slash('/');
const QLatin1Char PercentSign('%');
const char LocalFilePrefix[] = "file:///";
const char ForbiddenCharacters[] = {'*', '?', '<', '>', '/', '\\'};
// What follows the percent sign in the URL of a name with '|'. QUrl writes it in capitals; a text
// with "%7c" is somebody else's and passes.
const QLatin1Char PipeFirst('7');
const QLatin1Char PipeSecond('C');

/** Takes the prefix of a local file's URL away, for the slash form all but its last slash. */
QString withoutPrefix(const QString &url, PathForm form)
{
    if (!url.startsWith(QLatin1String(LocalFilePrefix))) {
        return url;
    }
    const int length = int(qstrlen(LocalFilePrefix));
    return url.mid(form == PathForm::LeadingSlash ? length - 1 : length);
}

/** Makes one slash of several in a row, which mean the same in a path that begins with a slash. */
QString withSingleSlashes(const QString &path)
{
    QString result;
    result.reserve(path.size());
    for (const QChar character : path) {
        if (character != Slash || !result.endsWith(Slash)) {
            result.append(character);
        }
    }
    return result;
}

QString decoded(const QString &text)
{
    return QUrl::fromPercentEncoding(text.toUtf8());
}

/** The part of @p path that lies behind its folder; empty where that folder does not exist. */
QString fileNameIn(const QString &path, const FolderExists &folderExists, PathForm form)
{
    const QStringList parts = path.split(Slash);
    QString folder;
    if (form == PathForm::LeadingSlash && path.startsWith(Slash)) {
        folder = Slash;
    }
    for (int i = 0; i + 1 < parts.size(); ++i) {
        if (parts.at(i).isEmpty()) {
            continue;
        }
        const QString candidate = folder + parts.at(i) + Slash;
        if (!folderExists(candidate)) {
            break;
        }
        folder = candidate;
    }
    if (!folderExists(folder)) {
        return QString();
    }
    // Where the walk has stopped early, the rest either falls into more pieces or has a slash.
    const QStringList pieces = path.split(folder);
    return pieces.size() == 2 ? pieces.at(1) : QString();
}

bool isAllowed(const QString &fileName)
{
    if (fileName.isEmpty()) {
        return false;
    }
    for (const char character : ForbiddenCharacters) {
        if (fileName.contains(QLatin1Char(character))) {
            return false;
        }
    }
    // The piece before the first percent sign counts too: hosts know that a name which begins with
    // "7C" is refused.
    const QStringList pieces = fileName.split(PercentSign);
    return std::none_of(pieces.begin(), pieces.end(), [](const QString &piece) {
        return piece.size() >= 2 && piece.at(0) == PipeFirst && piece.at(1) == PipeSecond;
    });
}

} // namespace

bool isSaveNameValid(const QString &url, const FolderExists &folderExists, PathForm form)
{
    QString path = QDir::fromNativeSeparators(withoutPrefix(url, form));
    if (path.isEmpty()) {
        return false;
    }
    if (form == PathForm::LeadingSlash) {
        path = withSingleSlashes(path);
    }
    // A URL spells some characters in another way than the disk does, '#', '%' and '?' among them.
    // Folders are looked for as they are on the disk, and a name must be good in both spellings.
    const QString fileName = fileNameIn(
        path, [&folderExists](const QString &folder) { return folderExists(decoded(folder)); },
        form);
    const QString nameOnDisk = decoded(fileName);
    return isAllowed(fileName) &&
           std::none_of(std::begin(ForbiddenCharacters), std::end(ForbiddenCharacters),
                        [&nameOnDisk](char c) { return nameOnDisk.contains(QLatin1Char(c)); });
}

} // namespace Widgets
} // namespace LM
