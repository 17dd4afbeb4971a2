#ifndef LMWIDGETS_SAVENAME_P_H
#define LMWIDGETS_SAVENAME_P_H

#include <QString>

#include <functional>

namespace LM {
namespace Widgets {

/** How the absolute paths of a system begin: with a drive, as in "C:/scans", or with a slash. */
enum class PathForm { DriveLetter, LeadingSlash };

#ifdef Q_OS_WIN
constexpr PathForm NativePathForm = PathForm::DriveLetter;
#else
constexpr PathForm NativePathForm = PathForm::LeadingSlash;
#endif

/** Answers whether a folder exists; its path ends with a slash. */
using FolderExists = std::function<bool(const QString &path)>;

/**
 * Returns whether @p url, the text of a local file's URL, names a file in an existing folder, under
 * a name without '*', '?', '<', '>', '/' and '\' and without "%7C", which is how a URL spells '|'.
 */
bool isSaveNameValid(const QString &url, const FolderExists &folderExists,
                     PathForm form = NativePathForm);

} // namespace Widgets
} // namespace LM

#endif
