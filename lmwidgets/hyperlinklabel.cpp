#include <lmwidgets/hyperlinklabel.h>

#include <QDesktopServices>
#include <QUrl>
#include <QVariant>

namespace LM {
namespace Widgets {

HyperlinkLabel::HyperlinkLabel(QWidget *parent) : QLabel(parent)
{
    createConnect();
}

HyperlinkLabel::~HyperlinkLabel() = default;

void HyperlinkLabel::createConnect()
{
    connect(this, &QLabel::linkActivated, this, &HyperlinkLabel::slotOpenUrl, Qt::UniqueConnection);
}

void HyperlinkLabel::setBaseProperty(bool openExternal)
{
    setOpenExternalLinks(openExternal);
    setProperty("about", true);
}

void HyperlinkLabel::setFileDir(const QString &address)
{
    m_fileDir = address;
}

void HyperlinkLabel::setHyperlinksText(const QString &text)
{
    m_fileDir = text;
    // The reference is the same for every label: what a click opens is the stored address.
    setText(QStringLiteral("<a href=hello>%1</a>").arg(text));
}

void HyperlinkLabel::slotOpenUrl(const QString &link)
{
    Q_UNUSED(link)
    QDesktopServices::openUrl(QUrl(m_fileDir));
}

} // namespace Widgets
} // namespace LM
