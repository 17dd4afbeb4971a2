#include "folderreader_p.h"

#include <QDirIterator>
#include <QFileInfo>

namespace LM {
namespace Widgets {

namespace {

class QtFolderReader : public FolderReader
{
public:
    explicit QtFolderReader(const QString &path)
        : m_entries(path, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)
    {
    }

    bool next() override
    {
        if (!m_entries.hasNext()) {
            return false;
        }
        m_entries.next();
        m_entry = m_entries.fileInfo();
        return true;
    }

    QString name() const override { return m_entries.fileName(); }

    Kind kind() const override
    {
        const bool isLink = m_entry.isSymLink();
        if (m_entry.isDir()) {
            return isLink ? LinkToFolder : Folder;
        }
        if (m_entry.isFile()) {
            return isLink ? LinkToFile : File;
        }
        if (!isLink) {
            return Other;
        }
        return m_entry.exists() ? LinkToOther : BrokenLink;
    }

    bool isHidden() const override { return m_entry.isHidden(); }

private:
    QDirIterator m_entries;
    QFileInfo m_entry;
};

} // namespace

FolderReader::FolderReader() = default;

FolderReader::~FolderReader() = default;

void FolderReader::appendName(QString *text) const
{
    text->append(name());
}

bool FolderReader::mayContain(const char *) const
{
    return true;
}

std::unique_ptr<FolderReader> openFolderWithQt(const QString &path)
{
    return std::make_unique<QtFolderReader>(path);
}

} // namespace Widgets
} // namespace LM
