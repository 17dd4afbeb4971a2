/** @file
 * Shows the form as uic has built it and looks whether it is what was drawn.
 */

#include "ui_allwidgets.h"

#include <QApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QWidget window;
    Ui::AllWidgets form;
    form.setupUi(&window);
    window.show();

    const bool asDrawn = form.collapsibleGroupBoxBasic->isCollapsed() &&
                         form.customTabWidget->widget(0) == form.importPage &&
                         form.customSpinBox->value() == -2.5 &&
                         form.lineTypeComboBox->count() == 15;
    std::printf("built: %s\n", asDrawn ? "as drawn" : "NOT as drawn");
    return asDrawn ? 0 : 1;
}
