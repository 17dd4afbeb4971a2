#include "hostcode.h"

#include <lmwidgets/framelessfiledialog.h>

#include <QDir>

void gallery::code::files(QWidget *window)
{
    // [host]
    const QUrl url = LM::Widgets::FramelessFileDialog::getSaveFileUrl(
        window, QString(), QUrl::fromLocalFile(QDir::homePath()), "Point clouds (*.las)");
    if (!url.isEmpty()) {
        window->setWindowFilePath(url.toLocalFile());
    }
    // [end]
}
