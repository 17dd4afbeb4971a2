#ifndef LMWIDGETS_TALVOSTYLEMANAGER_H
#define LMWIDGETS_TALVOSTYLEMANAGER_H

#include <lmwidgets/lmwidgets_global.h>

#include <QObject>
#include <QScopedPointer>
#include <QString>

namespace LM {
namespace Widgets {

class TalvoDialogBase;

/**
 * @class TalvoStyleManager talvostylemanager.h <lmwidgets/talvostylemanager.h>
 *
 * @brief The process-wide theme, and a relay of notifications between parts of the host.
 *
 * The manager knows which colour theme is current and in which folder beside the executable its
 * images lie. Widgets ask it for currentThemePath() at the moment they load an image, so an image
 * follows a theme switch the next time it is loaded. Dialogs derived from TalvoDialogBase are told
 * of a switch at once and rebuild their style sheet. The manager itself never reads a theme file
 * and never applies a style sheet.
 *
 * Parts of a host that do not know each other use it as a notice board: one calls a plain method,
 * for example removePointCloudObject(), and whoever is connected receives the matching signal. It
 * also keeps the path and the time stamp of the current project.
 *
 * @code
 * auto *manager = LM::Widgets::TalvoStyleManager::instance().data();
 * connect(manager, &LM::Widgets::TalvoStyleManager::themeStyleShift, window, &Window::restyle);
 * manager->shiftStyle(LM::Widgets::TalvoStyleManager::White);
 * const QIcon lock(manager->currentThemePath() + QStringLiteral("qssimage/layer_lock.png"));
 * @endcode
 *
 * instance() may be called from any thread. Everything else belongs to the GUI thread.
 */
class LMWIDGETS_EXPORT TalvoStyleManager : public QObject
{
    Q_OBJECT

public:
    /** The colour themes. Any other value counts as Black when a path is built. */
    enum ThemeStyleType : int {
        Black = 0, ///< images in "/theme/Black/"; the theme at start
        White = 1, ///< images in "/theme/White/"
        Blue = 2   ///< images in "/theme/Blue/"
    };

    /** Destroys the manager; happens once, when the library's static objects go. */
    virtual ~TalvoStyleManager();

    /**
     * Returns the pointer that owns the one manager. The first call, from whichever thread, creates
     * it; it then lives until the process ends, on the application's thread if there is an
     * application by then, else on the caller's. Do not reset or take it.
     */
    static QScopedPointer<TalvoStyleManager> &instance();

    /** Returns the current theme, as it was last given to shiftStyle(); Black at start. */
    ThemeStyleType currentStyle();

    /**
     * Returns the folder of the current theme, with a slash at its end: the folder of the
     * executable followed by "/theme/Black/", "/theme/White/" or "/theme/Blue/". Whether it exists
     * is not checked.
     */
    QString currentThemePath();

    /**
     * Makes @p type the current theme and emits themeStyleShift(), also when the theme is the same
     * as before. A value outside the enumeration is stored as it is and shown as Black.
     */
    void shiftStyle(ThemeStyleType type);

    /**
     * Connects themeStyleShift() to TalvoDialogBase::onInitStyleSheet() of @p dialog; null is
     * ignored. Every TalvoDialogBase does this once for itself; a dialog added twice is called
     * twice per switch. The connection ends with the dialog, which stays the caller's.
     */
    void addTalvoDialogBase(TalvoDialogBase *dialog);

    /**
     * Drops every connection to any signal of the manager, the dialogs' own among them: those that
     * exist no longer follow theme switches, dialogs made later do.
     */
    void disconnectAllSignals();

    /** Stores the folder of the current project for the host; not checked. */
    void setProjectPath(QString path);
    /** Returns what setProjectPath() stored last; empty at start. */
    QString getProjectPath();

    /** Stores the time stamp that names the current project's working folders; not checked here. */
    void setProjectTimeStamp(QString timeStamp);
    /** Returns what setProjectTimeStamp() stored last; empty at start. */
    QString getProjectTimeStamp();

    /** Emits measureLabelSelected() with @p uuid. */
    void areaMeasureLabelSelected(int uuid);
    /** Emits updatePerspectiveStateSignal(). */
    void updatePerspectiveState();
    /** Emits SectionThicknessUpdate() with @p name and @p thick. */
    void updateSectionThickness(QString name, double thick);
    /** Emits signalDeleteVertexArrays() with @p objname and @p id. */
    void deleteVertexArrays(QString objname, unsigned int id);
    /** Emits signalDeleteBuffers() with @p objname and @p id. */
    void deleteBuffers(QString objname, unsigned int id);
    /** Emits pointcloudRemoved() with @p id. */
    void removePointCloudObject(int id);
    /** Emits signalErrorMessage() with @p mes. */
    void showErrorMessage(QString mes);
    /** Emits signalUpdateMappingPointSize() with @p enabled and @p size. */
    void updateMappingPointSize(bool enabled, int size);

    // Hosts look these up by index in the meta-object: new ones go to the end.
Q_SIGNALS:
    /** The theme was set by shiftStyle(), to another one or to the same. */
    void themeStyleShift();
    /** A measurement label was selected; emitted by areaMeasureLabelSelected() only. */
    void measureLabelSelected(int uuid);
    /** The perspective changed; emitted by updatePerspectiveState() only. */
    void updatePerspectiveStateSignal();
    /** The thickness of the section @p name changed; emitted by updateSectionThickness() only. */
    void SectionThicknessUpdate(QString name, double thick);
    /** Point sizes changed. The host emits it; no method of the manager does. */
    void updateCloudPointSizeSignal();
    /** A vertex array is to be released; emitted by deleteVertexArrays() only. */
    void signalDeleteVertexArrays(QString objname, unsigned int id);
    /** A buffer is to be released; emitted by deleteBuffers() only. */
    void signalDeleteBuffers(QString objname, unsigned int id);
    /** A point cloud was removed; emitted by removePointCloudObject() only. */
    void pointcloudRemoved(int id);
    /** A message is to be shown; emitted by showErrorMessage() only. */
    void signalErrorMessage(QString mes);
    /** The size of mapped points changed; emitted by updateMappingPointSize() only. */
    void signalUpdateMappingPointSize(bool, int);

private:
    TalvoStyleManager();
    Q_DISABLE_COPY(TalvoStyleManager)

    ThemeStyleType m_currentStyle = Black;
    QString m_projectTimeStamp;
    QString m_projectPath;
};

} // namespace Widgets
} // namespace LM

#endif
