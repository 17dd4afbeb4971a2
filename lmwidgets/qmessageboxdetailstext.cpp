#include <lmwidgets/qmessageboxdetailstext.h>

#include <QContextMenuEvent>
#include <QFrame>
#include <QMenu>
#include <QVBoxLayout>

namespace LM {
namespace Widgets {

namespace {

constexpr int TextHeight = 100;

} // namespace

QMessageBoxDetailsText::TextEdit::TextEdit(QWidget *parent) : QTextEdit(parent) {}

QMessageBoxDetailsText::TextEdit::~TextEdit() = default;

void QMessageBoxDetailsText::TextEdit::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu *menu = createStandardContextMenu();
    if (!menu) {
        return;
    }
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(event->globalPos());
}

QMessageBoxDetailsText::QMessageBoxDetailsText(QWidget *parent)
    : QWidget(parent), m_textEdit(new TextEdit)
{
    auto *layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);

    auto *line = new QFrame(this);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    layout->addWidget(line);

    m_textEdit->setFixedHeight(TextHeight);
    m_textEdit->setFocusPolicy(Qt::NoFocus);
    m_textEdit->setReadOnly(true);
    layout->addWidget(m_textEdit);
    setLayout(layout);

    connect(m_textEdit, &QTextEdit::copyAvailable, this,
            &QMessageBoxDetailsText::textCopyAvailable);
}

QMessageBoxDetailsText::~QMessageBoxDetailsText() = default;

QString QMessageBoxDetailsText::text() const
{
    return m_textEdit->toPlainText();
}

void QMessageBoxDetailsText::setText(const QString &text)
{
    m_textEdit->setPlainText(text);
}

bool QMessageBoxDetailsText::copy()
{
    if (m_copyAvailable) {
        m_textEdit->copy();
    }
    return m_copyAvailable;
}

void QMessageBoxDetailsText::selectAll()
{
    m_textEdit->selectAll();
}

void QMessageBoxDetailsText::textCopyAvailable(bool available)
{
    m_copyAvailable = available;
}

} // namespace Widgets
} // namespace LM
