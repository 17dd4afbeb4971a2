#include "hostcode.h"

#include <lmwidgets/talvodoubleinputdlg.h>
#include <lmwidgets/talvotriangledlg.h>

#include <QLabel>

void gallery::code::balloons(QWidget *window)
{
    // [host]
    TalvoDoubleInputDlg dialog(window);
    dialog.setWindowTitle("Statistical outlier removal");
    QString suffix = " m";
    dialog.setParamData("Distance", 0.0, 100.0, 2, 1.5, 0.1, suffix);
    if (dialog.exec() == QDialog::Accepted) {
        auto *balloon = new TalvoTriangleDlg(window);
        balloon->resize(200, 80);
        balloon->setTriabgleData(TalvoTriangleDlg::Top, 92, 10, 16);
        (new QLabel(QString::number(dialog.getValue()), balloon))->move(16, 32);
        balloon->show();
    }
    // [end]
}
