#ifndef LMWIDGETS_TALVOSPLASHSCREEN_H
#define LMWIDGETS_TALVOSPLASHSCREEN_H

#include <lmwidgets/lmwidgets_global.h>

#include <QPixmap>
#include <QSplashScreen>
#include <QString>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

/**
 * @class TalvoSplashScreen talvosplashscreen.h <lmwidgets/talvosplashscreen.h>
 *
 * @brief The picture that is shown while the host starts, with its version and "Starting...".
 *
 * @image html talvosplashscreen.png
 *
 * The splash screen is 680 x 469 px, whatever the size of its picture, which is stretched over it.
 * The host calls beat() as loading advances, which repaints it, and QSplashScreen::finish() when
 * its window is there.
 *
 * @code
 * TalvoSplashScreen splash(QCoreApplication::applicationVersion(), QPixmap(":/splash.png"));
 * splash.show();
 * loadPlugins();
 * splash.beat();
 * MainWindow window;
 * window.show();
 * splash.finish(&window);
 * @endcode
 */
class LMWIDGETS_EXPORT TalvoSplashScreen : public QSplashScreen
{
    Q_OBJECT

public:
    /**
     * Makes a splash screen that shows "Ver " and @p version over @p pixmap; with a null one only
     * the texts are drawn. @p flags are added to those of a splash screen.
     */
    explicit TalvoSplashScreen(const QString &version, const QPixmap &pixmap,
                               Qt::WindowFlags flags = Qt::WindowFlags());
    ~TalvoSplashScreen() override;

    /**
     * Repaints the splash screen and lets pending paint events through, as
     * QSplashScreen::showMessage() does. The message "Loading..." is set, so that messageChanged()
     * is emitted and message() has it, but it is not drawn.
     */
    void beat();

protected:
    /** Draws the picture and the two texts, and nothing else: no message. Null is ignored. */
    void drawContents(QPainter *painter) override;

private:
    Q_DISABLE_COPY(TalvoSplashScreen)
    friend class tst_TalvoSplashScreen; // counts the beats, which nothing shows

    QString m_versionText;
    int m_beat = 1; ///< 1, 2, 3, 1 and so on
    QPixmap m_background;
};

#endif
