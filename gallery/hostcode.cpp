#include "hostcode.h"

#include <QFile>
#include <QStringList>

// A resource of a static library is linked only if somebody asks for it, outside any namespace.
static void initializeCode()
{
    Q_INIT_RESOURCE(code);
}

namespace gallery {

namespace {

const char Begin[] = "    // [host]";
const char End[] = "    // [end]";
const QLatin1String Indentation("    ");

} // namespace

QString hostCode(const QString &name)
{
    initializeCode();
    QFile file(QStringLiteral(":/gallery/code/%1code.cpp").arg(name));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return QString();
    }
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    const int first = lines.indexOf(QLatin1String(Begin)) + 1;
    const int last = lines.indexOf(QLatin1String(End), first);
    QStringList shown;
    for (int i = first; i < last; ++i) {
        const QString &line = lines.at(i);
        shown.append(line.startsWith(Indentation) ? line.mid(Indentation.size()) : line);
    }
    return shown.join(QLatin1Char('\n'));
}

} // namespace gallery
