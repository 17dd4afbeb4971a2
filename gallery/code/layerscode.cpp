#include "hostcode.h"

#include <lmwidgets/customlayertablewidget.h>

void gallery::code::layers(QWidget *window)
{
    // [host]
    using LM::Widgets::CustomLayerTableWidget;
    auto *layers = new CustomLayerTableWidget(window);
    layers->creatUiType(CustomLayerTableWidget::LAYER_LIST);
    layers->addLayerRow();
    layers->item(0, 0)->setText("Ground");
    QObject::connect(layers, &CustomLayerTableWidget::signalUpdateModel, window,
                     [window](int row) { window->setWindowTitle(QString::number(row)); });
    // [end]
}
