#include <lmwidgets/lmwidgets.h>

#include <QApplication>
#include <QFile>

// Opens a dialog, and answers 0 only if the theme that was put beside this program is found.
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    LM::Widgets::FramelessDialog dialog;
    dialog.setWindowTitle(QStringLiteral("Consumer"));
    dialog.show();

    const QString image = LM::Widgets::TalvoStyleManager::instance()->currentThemePath() +
                          QStringLiteral("qssimage/smallwindowcloseicon.png");
    return QFile::exists(image) && dialog.isVisible() ? 0 : 1;
}
