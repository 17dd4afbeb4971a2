#include "folderreader_p.h"

namespace LM {
namespace Widgets {

// Windows tells everything of an entry along with its name, and Qt takes it from there.
std::unique_ptr<FolderReader> FolderReader::open(const QString &path)
{
    return openFolderWithQt(path);
}

} // namespace Widgets
} // namespace LM
