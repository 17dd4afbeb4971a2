#include "layercolordialog_p.h"
#include "owntext_p.h"

#include <lmwidgets/framelessdialog.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>

namespace LM {
namespace Widgets {

namespace {

const char TitleLabelStyle[] = "width: 32px;font-size: 16px;padding-left: 5px;color: #F2F2F2;"
                               "background-color:transparent;line-height: 24px;";

} // namespace

LayerColorDialog::LayerColorDialog(QWidget *parent) : QColorDialog(parent)
{
    setOption(QColorDialog::NoButtons);
}

QColor LayerColorDialog::ask(QWidget *parent)
{
    const QPointer<FramelessDialog> frame(new FramelessDialog(parent));
    frame->setTitleBarLabelStyleSheet(QLatin1String(TitleLabelStyle));
    setOwnTitle(frame.data(),
                [] { return QCoreApplication::translate("MainWindow", "Background Color"); });

    const QPointer<LayerColorDialog> colors(new LayerColorDialog(parent));
    connect(colors.data(), &QDialog::finished, frame.data(), &QWidget::close);
    frame->SetContentHolder(colors);

    QColor color;
    if (frame->exec() == QDialog::Accepted && colors) {
        color = colors->currentColor();
    }
    // While it is open, a host may delete the parent, and both dialogs with it.
    delete frame.data();
    return color;
}

void LayerColorDialog::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && !qobject_cast<QPushButton *>(focusWidget())) {
        event->ignore();
        return;
    }
    QColorDialog::keyPressEvent(event);
}

} // namespace Widgets
} // namespace LM
