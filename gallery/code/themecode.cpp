#include "hostcode.h"

#include <lmwidgets/talvostylemanager.h>

#include <QIcon>
#include <QPushButton>
#include <QWidget>

void gallery::code::theme(QWidget *window)
{
    // [host]
    auto *manager = LM::Widgets::TalvoStyleManager::instance().data();
    auto *lock = new QPushButton(window);
    const auto showIcon = [manager, lock] {
        lock->setIcon(QIcon(manager->currentThemePath() + "qssimage/layer_lock.png"));
    };
    QObject::connect(manager, &LM::Widgets::TalvoStyleManager::themeStyleShift, lock, showIcon);
    manager->shiftStyle(LM::Widgets::TalvoStyleManager::White);
    // [end]
}
