/** @file
 * Any bytes as the output of the two commands that list drives. What must hold of the answer,
 * whatever they are, is checked here.
 */

#include "lmwidgets/drivelisting_p.h"

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using LM::Widgets::ListedDrive;

namespace {

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

void check(const QVector<ListedDrive> &drives, int lines)
{
    require(drives.size() <= lines);
    for (const ListedDrive &drive : drives) {
        require(!drive.name.isEmpty());
        for (const char separator : {' ', '\t', '\r', '\n', '\0'}) {
            require(!drive.name.contains(QLatin1Char(separator)));
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray output(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const QStringList lines = LM::Widgets::wmicLines(output);
    for (const QString &line : lines) {
        require(!line.isEmpty() && !line.contains(QLatin1Char('\n')));
    }
    check(LM::Widgets::parseWmicLines(lines), lines.size());
    check(LM::Widgets::parsePowerShell(output), lines.size() + 1);
    return 0;
}
