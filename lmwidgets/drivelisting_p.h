#ifndef LMWIDGETS_DRIVELISTING_P_H
#define LMWIDGETS_DRIVELISTING_P_H

/** @file
 * Reads what the two system commands that list drives print. The text comes from outside: whatever
 * it holds, these functions return.
 */

#include <QString>
#include <QStringList>
#include <QVector>

QT_BEGIN_NAMESPACE
class QByteArray;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

/** A line of a listing. */
struct ListedDrive
{
    QString name;         ///< such as "D:"
    qint64 freeSpace = 0; ///< in bytes; 0 when the listing has no number there
};

/**
 * Returns the lines of @p output below its header, without empty ones. The text is in the locale's
 * encoding, or in UTF-16 where it holds zero bytes or begins with a byte order mark.
 */
QStringList wmicLines(const QByteArray &output);

/** Returns the drives of what wmicLines() returned: free space first, then the name. */
QVector<ListedDrive> parseWmicLines(const QStringList &lines);

/** Returns the drives of what PowerShell printed: a header, a rule, then name and free space. */
QVector<ListedDrive> parsePowerShell(const QByteArray &output);

} // namespace Widgets
} // namespace LM

#endif
