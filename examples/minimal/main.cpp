#include <lmwidgets/lmwidgets.h>

#include <QApplication>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const auto answer = LM::Widgets::FramelessMessageBox::question(
        nullptr, "Layers", "Delete the layer \"Ground\"?", QMessageBox::Yes | QMessageBox::No,
        QMessageBox::NoButton);
    return answer == QMessageBox::Yes ? 0 : 1;
}
