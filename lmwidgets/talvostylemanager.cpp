#include <lmwidgets/talvostylemanager.h>

#include "talvostylemanager_p.h"

#include <lmwidgets/talvodialogbase.h>

#include <QCoreApplication>
#include <QThread>

#include <atomic>

namespace LM {
namespace Widgets {

namespace {

// Trivially destructible, so that it can be asked at any time until the process has ended.
std::atomic<TalvoStyleManager *> existingManager{nullptr};

} // namespace

TalvoStyleManager *existingStyleManager()
{
    return existingManager;
}

TalvoStyleManager::TalvoStyleManager()
{
    existingManager = this;
}

TalvoStyleManager::~TalvoStyleManager()
{
    existingManager = nullptr;
}

QScopedPointer<TalvoStyleManager> &TalvoStyleManager::instance()
{
    static QScopedPointer<TalvoStyleManager> manager([] {
        auto *created = new TalvoStyleManager;
        // A worker thread may be the first to ask, and may end long before the manager does.
        if (QCoreApplication *application = QCoreApplication::instance()) {
            created->moveToThread(application->thread());
        }
        return created;
    }());
    return manager;
}

TalvoStyleManager::ThemeStyleType TalvoStyleManager::currentStyle()
{
    return m_currentStyle;
}

QString TalvoStyleManager::currentThemePath()
{
    const QString applicationDir = QCoreApplication::applicationDirPath();
    switch (m_currentStyle) {
    case White:
        return applicationDir + QStringLiteral("/theme/White/");
    case Blue:
        return applicationDir + QStringLiteral("/theme/Blue/");
    case Black:
        break;
    }
    return applicationDir + QStringLiteral("/theme/Black/");
}

void TalvoStyleManager::shiftStyle(ThemeStyleType type)
{
    m_currentStyle = type;
    Q_EMIT themeStyleShift();
}

void TalvoStyleManager::addTalvoDialogBase(TalvoDialogBase *dialog)
{
    if (!dialog) {
        return;
    }
    connect(this, &TalvoStyleManager::themeStyleShift, dialog, &TalvoDialogBase::onInitStyleSheet);
}

void TalvoStyleManager::disconnectAllSignals()
{
    disconnect(this, nullptr, nullptr, nullptr);
}

void TalvoStyleManager::setProjectPath(QString path)
{
    m_projectPath = path;
}

QString TalvoStyleManager::getProjectPath()
{
    return m_projectPath;
}

void TalvoStyleManager::setProjectTimeStamp(QString timeStamp)
{
    m_projectTimeStamp = timeStamp;
}

QString TalvoStyleManager::getProjectTimeStamp()
{
    return m_projectTimeStamp;
}

void TalvoStyleManager::areaMeasureLabelSelected(int uuid)
{
    Q_EMIT measureLabelSelected(uuid);
}

void TalvoStyleManager::updatePerspectiveState()
{
    Q_EMIT updatePerspectiveStateSignal();
}

void TalvoStyleManager::updateSectionThickness(QString name, double thick)
{
    Q_EMIT SectionThicknessUpdate(name, thick);
}

void TalvoStyleManager::deleteVertexArrays(QString objname, unsigned int id)
{
    Q_EMIT signalDeleteVertexArrays(objname, id);
}

void TalvoStyleManager::deleteBuffers(QString objname, unsigned int id)
{
    Q_EMIT signalDeleteBuffers(objname, id);
}

void TalvoStyleManager::removePointCloudObject(int id)
{
    Q_EMIT pointcloudRemoved(id);
}

void TalvoStyleManager::showErrorMessage(QString mes)
{
    Q_EMIT signalErrorMessage(mes);
}

void TalvoStyleManager::updateMappingPointSize(bool enabled, int size)
{
    Q_EMIT signalUpdateMappingPointSize(enabled, size);
}

} // namespace Widgets
} // namespace LM
