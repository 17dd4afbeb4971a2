#ifndef LMWIDGETS_HYPERLINKLABEL_H
#define LMWIDGETS_HYPERLINKLABEL_H

#include <lmwidgets/lmwidgets_global.h>

#include <QLabel>
#include <QString>

namespace LM {
namespace Widgets {

/**
 * @class HyperlinkLabel hyperlinklabel.h <lmwidgets/hyperlinklabel.h>
 *
 * @brief A label that shows one link and opens a folder, a file or a page on the web.
 *
 * @image html hyperlinklabel.png
 *
 * What the link shows and what it opens are two things: setHyperlinksText() sets both to the same,
 * and setFileDir() afterwards sets another address behind the text. A click hands the address to
 * the program that the desktop has for it. Nothing is checked: an address that cannot be opened is
 * not. As with every QLabel the keyboard reaches the link once the host has asked for
 * Qt::LinksAccessibleByKeyboard with setTextInteractionFlags().
 *
 * @code
 * auto *report = new LM::Widgets::HyperlinkLabel(page);
 * report->setHyperlinksText(tr("Show the report"));
 * report->setFileDir(QUrl::fromLocalFile(reportPath).toString());
 * @endcode
 */
class LMWIDGETS_EXPORT HyperlinkLabel : public QLabel
{
    Q_OBJECT

public:
    /** Constructs an empty label without an address, whose link is already connected. */
    explicit HyperlinkLabel(QWidget *parent = nullptr);
    ~HyperlinkLabel() override;

    /**
     * Connects linkActivated() to slotOpenUrl(), as the constructor does. It is of use only after
     * the host has disconnected them: the two are never connected twice.
     */
    void createConnect();
    /**
     * Calls QLabel::setOpenExternalLinks() with @p openExternal and sets the dynamic property
     * "about" to true, for the style sheet. With true Qt follows the link itself and does not emit
     * linkActivated(), so that the stored address is not opened.
     */
    void setBaseProperty(bool openExternal);
    /** Makes @p address what a click opens: a path, or a URL. The text stays. */
    void setFileDir(const QString &address);
    /**
     * Shows @p text as a link and makes it the address too. It is taken as rich text: use
     * QString::toHtmlEscaped() and setFileDir() where it may contain "<" or "&".
     */
    void setHyperlinksText(const QString &text);

public Q_SLOTS:
    /**
     * Opens the stored address, whatever @p link says. A path or URL is read tolerantly; an empty
     * address opens nothing.
     */
    void slotOpenUrl(const QString &link);

private:
    Q_DISABLE_COPY(HyperlinkLabel)

    QString m_fileDir;
};

} // namespace Widgets
} // namespace LM

#endif
