#ifndef LMWIDGETS_FOLDERREADER_P_H
#define LMWIDGETS_FOLDERREADER_P_H

#include <QString>

#include <memory>

namespace LM {
namespace Widgets {

/**
 * Goes through all entries of a folder but "." and "..", hidden ones included, in the order in
 * which the system gives them. What an entry is comes with its name on most file systems, so only
 * links cost a question to the system; and a name becomes a QString only when it is asked for.
 */
class FolderReader
{
public:
    /** What an entry is, and for a link what it leads to. */
    enum Kind { File, Folder, LinkToFile, LinkToFolder, LinkToOther, BrokenLink, Other };

    /** Opens the folder @p path. Where there is none, it has no entries. */
    static std::unique_ptr<FolderReader> open(const QString &path);
    virtual ~FolderReader();

    /** Goes to the next entry, the first one at first; false when there is no further one. */
    virtual bool next() = 0;
    /** The name of the entry. */
    virtual QString name() const = 0;
    /** Appends the name of the entry to @p text. */
    virtual void appendName(QString *text) const;
    virtual Kind kind() const = 0;
    virtual bool isHidden() const = 0;
    /**
     * False if the name is known not to contain @p text, whatever the case. @p text is of lower-case
     * letters and signs of ASCII. A quick question that goes before the thorough one.
     */
    virtual bool mayContain(const char *text) const;

protected:
    FolderReader();
    Q_DISABLE_COPY(FolderReader)
};

/** The same by Qt's means, for all that is not a plain folder of a system that has its own way. */
std::unique_ptr<FolderReader> openFolderWithQt(const QString &path);

} // namespace Widgets
} // namespace LM

#endif
