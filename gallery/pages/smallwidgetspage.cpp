#include "page.h"
#include "pageparts.h"
#include "signallog.h"

#include <lmwidgets/buttonlefthavegreendots.h>
#include <lmwidgets/hyperlinklabel.h>
#include <lmwidgets/vantorotoolbutton.h>

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace gallery {

using LM::Widgets::HyperlinkLabel;

namespace {

constexpr QSize PictureSize(20, 20);

VantoroToolButton *toolButton(const QString &picture, const QString &name)
{
    auto *result = new VantoroToolButton;
    result->setObjectName(QStringLiteral("tool_") + picture);
    result->setIconSize(PictureSize);
    result->setToolTip(name);
    result->setAccessibleName(name);
    result->setIconPixmap(picture, picture + QStringLiteral("_hover"),
                          picture + QStringLiteral("_disabled"));
    return result;
}

QVector<QWidget *> toolButtons(bool enabled, SignalLog *log)
{
    const struct
    {
        QString picture;
        QString name;
    } tools[] = {{QStringLiteral("layer_edit"), QStringLiteral("Edit")},
                 {QStringLiteral("layer_lock"), QStringLiteral("Lock")},
                 {QStringLiteral("layer_view"), QStringLiteral("View")},
                 {QStringLiteral("delete_2dvec"), QStringLiteral("Delete")}};
    QVector<QWidget *> result;
    for (const auto &tool : tools) {
        VantoroToolButton *each = toolButton(tool.picture, tool.name);
        each->setEnabled(enabled);
        if (log) {
            log->watch(each, tool.name);
        }
        result.append(each);
    }
    return result;
}

/** A link to the folder for temporary files, by another text than its path. */
HyperlinkLabel *folderLink()
{
    auto *link = new HyperlinkLabel;
    link->setObjectName(QStringLiteral("folderLink"));
    link->setBaseProperty(false);
    link->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    link->setHyperlinksText(QStringLiteral("Open the folder for temporary files"));
    link->setFileDir(QUrl::fromLocalFile(QDir::tempPath()).toString());
    return link;
}

void addDots(QVBoxLayout *layout, SignalLog &log)
{
    auto *body = addSection(layout, QStringLiteral("Button with a ring on its left"),
                            QStringLiteral("The ring lies outside the button and is clipped away: "
                                           "nothing of it can be seen."));
    auto *dots = new ButtonLeftHaveGreenDots;
    dots->setText(QStringLiteral("Run"));
    log.watch(dots, QStringLiteral("ring"));
    body->addWidget(row({dots, button(QStringLiteral("Red ring"), [dots] {
                             dots->setShowDotColor(Qt::red);
                             dots->update();
                         })}));
}

QWidget *createContent(SignalLog &log)
{
    auto *content = new QWidget;
    auto *layout = contentLayout(content);
    auto *body =
        addSection(layout, QStringLiteral("Tool buttons with three pictures"),
                   QStringLiteral("Switch the theme, then move the mouse over them: each "
                                  "takes the pictures of the new theme as it is entered."));
    body->addWidget(row(toolButtons(true, &log)));
    body->addWidget(row(toolButtons(false, nullptr)));

    body = addSection(layout, QStringLiteral("Link"),
                      QStringLiteral("A click opens the address that is stored behind the text."));
    HyperlinkLabel *link = folderLink();
    log.watch(link, QStringLiteral("link"));
    body->addWidget(row({link}));
    addDots(layout, log);
    return content;
}

/** A row of the buttons: normal, one of them hovered, or disabled; with a link below. */
std::function<QWidget *()> toolShot(bool enabled, bool hovered)
{
    return [=] {
        auto *window = new QWidget;
        auto *layout = new QVBoxLayout(window);
        const QVector<QWidget *> tools = toolButtons(enabled, nullptr);
        layout->addWidget(row(tools));
        layout->addWidget(folderLink());
        window->show();
        if (hovered) {
            QEvent enter(QEvent::Enter);
            QCoreApplication::sendEvent(tools.first(), &enter);
        }
        return window;
    };
}

} // namespace

Page smallwidgetsPage()
{
    return Page(QStringLiteral("smallwidgets"), QStringLiteral("Tool buttons and links"),
                QStringLiteral("VantoroToolButton takes its three pictures from the theme, "
                               "HyperlinkLabel opens a stored address."),
                createContent)
        .shot(QStringLiteral("normal"), toolShot(true, false))
        .shot(QStringLiteral("hovered"), toolShot(true, true))
        .shot(QStringLiteral("disabled"), toolShot(false, false));
}

} // namespace gallery
