#include "drivelisting_p.h"

#include <QByteArray>
#include <QRegularExpression>
#include <QTextCodec>

namespace LM {
namespace Widgets {

namespace {

constexpr int UnmarkedUtf16 =
    1014; // UTF-16, little-endian, as the registry of encodings numbers it

QString decoded(const QByteArray &output)
{
    // Redirected, wmic writes UTF-16 on some systems, not always with a mark; and the locale's
    // encoding never has zero bytes.
    QTextCodec *fallback = output.contains('\0') ? QTextCodec::codecForMib(UnmarkedUtf16)
                                                 : QTextCodec::codecForLocale();
    QString text = QTextCodec::codecForUtfText(output, fallback)->toUnicode(output);
    // Regular expressions find nothing at all in a text with half a surrogate pair; as UTF-8 such a
    // half becomes a question mark.
    text = QString::fromUtf8(text.toUtf8());
    // No name holds one, and Qt complains of paths that do.
    return text.remove(QChar(QChar::Null));
}

QStringList linesOf(const QByteArray &output)
{
    static const QRegularExpression lineEnd(QStringLiteral("\r\n|\n"));
    return decoded(output).split(lineEnd, Qt::SkipEmptyParts);
}

void dropFirstIfContains(QStringList *lines, const QString &text)
{
    if (!lines->isEmpty() && lines->first().contains(text)) {
        lines->removeFirst();
    }
}

QVector<ListedDrive> parseLines(const QStringList &lines, int nameField, int freeSpaceField)
{
    static const QRegularExpression blanks(QStringLiteral("[\\s]+"));
    QVector<ListedDrive> drives;
    for (QString line : lines) {
        const QStringList fields =
            line.replace(blanks, QStringLiteral(" ")).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        // An optical drive without a disc has a name but no free space.
        if (fields.size() >= 2) {
            drives.append(
                {fields.at(nameField), fields.at(freeSpaceField).toLongLong(nullptr, 10)});
        }
    }
    return drives;
}

} // namespace

QStringList wmicLines(const QByteArray &output)
{
    QStringList lines = linesOf(output);
    dropFirstIfContains(&lines, QStringLiteral("Name"));
    return lines;
}

QVector<ListedDrive> parseWmicLines(const QStringList &lines)
{
    return parseLines(lines, 1, 0);
}

QVector<ListedDrive> parsePowerShell(const QByteArray &output)
{
    QStringList lines = linesOf(output);
    dropFirstIfContains(&lines, QStringLiteral("DeviceID"));
    dropFirstIfContains(&lines, QStringLiteral("---"));
    return parseLines(lines, 0, 1);
}

} // namespace Widgets
} // namespace LM
