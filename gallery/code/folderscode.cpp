#include "hostcode.h"

#include <lmwidgets/talvobasicutil.h>
#include <lmwidgets/talvostylemanager.h>

#include <QWidget>

void gallery::code::folders(QWidget *window)
{
    // [host]
    LM::Widgets::TalvoStyleManager::instance()->setProjectTimeStamp("20240501123000");
    const QString folder = TalvoBasicUtil::getDefaultProjectTempDataPath();
    if (!folder.isEmpty()) { // else there is nowhere to write
        window->setWindowFilePath(folder);
    }
    // [end]
}
