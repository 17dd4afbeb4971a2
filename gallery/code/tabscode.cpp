#include "hostcode.h"

#include <lmwidgets/qcustomtabbar.h>
#include <lmwidgets/qcustomtabwidget.h>

#include <QWidget>

void gallery::code::tabs(QWidget *window)
{
    // [host]
    auto *steps = new LM::Widgets::QCustomTabWidget(window);
    steps->setTabPosition(QTabWidget::West);
    steps->addTab(new QWidget, "Import");
    steps->addTab(new QWidget, "Classify");
    auto *bar = qobject_cast<LM::Widgets::QCustomTabBar *>(steps->tabBar());
    bar->setTabColor(0, Qt::green);
    bar->setTabToolTip(0, "Finished");
    // [end]
}
