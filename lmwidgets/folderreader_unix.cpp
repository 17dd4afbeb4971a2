// What a link leads to may be larger than 2 GiB, on systems of 32 bits too.
#define _FILE_OFFSET_BITS 64

#include "folderreader_p.h"

#include <QFile>
#include <QTextCodec>

#include <cstring>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace LM {
namespace Widgets {

namespace {

constexpr int mibOfUtf8 = 106;

bool isAscii(const char *text, int length)
{
    unsigned char all = 0;
    for (int i = 0; i < length; ++i) {
        all = static_cast<unsigned char>(all | static_cast<unsigned char>(text[i]));
    }
    return all < 0x80;
}

bool isUtf8(const char *text, int length)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    QTextCodec::codecForMib(mibOfUtf8)->toUnicode(text, length, &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

char toLower(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

class UnixFolderReader : public FolderReader
{
public:
    explicit UnixFolderReader(const QString &path)
        : m_folder(opendir(QFile::encodeName(path).constData())),
          m_decodesUtf8(QTextCodec::codecForLocale()->mibEnum() == mibOfUtf8)
    {
    }

    ~UnixFolderReader() override
    {
        if (m_folder) {
            closedir(m_folder);
        }
    }

    bool next() override
    {
        while (m_folder && (m_entry = readdir(m_folder)) != nullptr) {
            const char *name = m_entry->d_name;
            if (std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0) {
                continue;
            }
            m_length = static_cast<int>(std::strlen(name));
            m_isAscii = isAscii(name, m_length);
            // Qt has no path to a name that is not text, and leaves it out of its listings too.
            if (m_isAscii || isUtf8(name, m_length)) {
                return true;
            }
        }
        return false;
    }

    QString name() const override
    {
        return m_isAscii && m_decodesUtf8 ? QString::fromLatin1(m_entry->d_name, m_length)
                                          : QFile::decodeName(m_entry->d_name);
    }

    void appendName(QString *text) const override
    {
        if (m_isAscii && m_decodesUtf8) {
            text->append(QLatin1String(m_entry->d_name, m_length));
        } else {
            text->append(name());
        }
    }

    Kind kind() const override
    {
#ifdef DT_DIR
        switch (m_entry->d_type) {
        case DT_REG:
            return File;
        case DT_DIR:
            return Folder;
        case DT_LNK:
            return kindOfTarget();
        case DT_UNKNOWN:
            break;
        default:
            return Other;
        }
#endif
        struct stat info = {};
        if (fstatat(dirfd(m_folder), m_entry->d_name, &info, AT_SYMLINK_NOFOLLOW) != 0) {
            return Other;
        }
        if (S_ISLNK(info.st_mode)) {
            return kindOfTarget();
        }
        return S_ISDIR(info.st_mode) ? Folder : S_ISREG(info.st_mode) ? File : Other;
    }

    bool isHidden() const override
    {
        return m_entry->d_name[0] == '.';
    }

    bool mayContain(const char *text) const override
    {
        if (!m_isAscii) {
            return true; // other letters may count as the same
        }
        const int length = static_cast<int>(std::strlen(text));
        for (int start = 0; start <= m_length - length; ++start) {
            int i = 0;
            while (i < length && toLower(m_entry->d_name[start + i]) == text[i]) {
                ++i;
            }
            if (i == length) {
                return true;
            }
        }
        return false;
    }

private:
    Q_DISABLE_COPY(UnixFolderReader)

    Kind kindOfTarget() const
    {
        struct stat info = {};
        if (fstatat(dirfd(m_folder), m_entry->d_name, &info, 0) != 0) {
            return BrokenLink;
        }
        return S_ISDIR(info.st_mode)   ? LinkToFolder
               : S_ISREG(info.st_mode) ? LinkToFile
                                       : LinkToOther;
    }

    DIR *m_folder;
    const dirent *m_entry = nullptr;
    int m_length = 0;
    bool m_isAscii = false;
    bool m_decodesUtf8;
};

} // namespace

std::unique_ptr<FolderReader> FolderReader::open(const QString &path)
{
    // Resources and search paths are known to Qt only.
    if (!path.startsWith(QLatin1Char('/')) || path.contains(QChar())) {
        return openFolderWithQt(path);
    }
    return std::make_unique<UnixFolderReader>(path);
}

} // namespace Widgets
} // namespace LM
