#include "hostcode.h"

#include <lmwidgets/buttonlefthavegreendots.h>
#include <lmwidgets/hyperlinklabel.h>
#include <lmwidgets/vantorotoolbutton.h>

#include <QDir>
#include <QUrl>

void gallery::code::smallwidgets(QWidget *window)
{
    // [host]
    auto *edit = new VantoroToolButton(window);
    edit->setIconPixmap("layer_edit", "layer_edit_hover", "layer_edit_disabled");
    auto *run = new ButtonLeftHaveGreenDots(window);
    run->setText("Run");
    run->setShowDotColor(Qt::red);
    auto *report = new LM::Widgets::HyperlinkLabel(window);
    report->setHyperlinksText("Show the report");
    report->setFileDir(QUrl::fromLocalFile(QDir::tempPath() + "/report.html").toString());
    // [end]
}
