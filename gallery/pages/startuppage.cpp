#include "page.h"
#include "pageparts.h"
#include "signallog.h"
#include "splashpicture.h"

#include <lmwidgets/lmwidgets_version.h>
#include <lmwidgets/talvoanimatedicon.h>
#include <lmwidgets/talvosplashscreen.h>

#include <QCheckBox>
#include <QCoreApplication>
#include <QHideEvent>
#include <QLabel>
#include <QPushButton>
#include <QShowEvent>
#include <QTimer>
#include <QVBoxLayout>

namespace gallery {

namespace {

constexpr int BeatInterval = 150; // ms
constexpr int Beats = 20;
constexpr QSize BusyIconSize(24, 24);

QString waitingFile()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/theme/qssimage/waiting.gif");
}

/** A button that shows an animation, as long as it is asked to and somebody can see it. */
class BusyButton : public QPushButton
{
    Q_OBJECT

public:
    explicit BusyButton(const QString &text)
        : QPushButton(text), m_animation(new TalvoAnimatedIcon(waitingFile(), this))
    {
        setObjectName(QStringLiteral("galleryBusyButton"));
        setAutoDefault(false);
        setIconSize(BusyIconSize);
        setIcon(QIcon(waitingFile()));
        // The picture has a dark ground of its own.
        setStyleSheet(QStringLiteral("background-color: #2B2B2B; color: #F2F2F2; border: 1px solid "
                                     "#585858; border-radius: 2px; padding: 4px 12px;"));
    }

    void setPlaying(bool playing)
    {
        m_isPlaying = playing;
        listen(playing && isVisible());
    }

Q_SIGNALS:
    void framesShown(int frames);

protected:
    void showEvent(QShowEvent *event) override
    {
        QPushButton::showEvent(event);
        listen(m_isPlaying);
    }

    void hideEvent(QHideEvent *event) override
    {
        listen(false);
        QPushButton::hideEvent(event);
    }

private Q_SLOTS:
    void showFrame()
    {
        setIcon(m_animation->icon());
        Q_EMIT framesShown(++m_frames);
    }

private:
    void listen(bool listening)
    {
        if (listening == m_isListening) {
            return;
        }
        m_isListening = listening;
        if (listening) {
            m_animation->connectFrameChanged(this, SLOT(showFrame()));
        } else {
            m_animation->disconnectFrameChanged(this, SLOT(showFrame()));
        }
    }

    TalvoAnimatedIcon *m_animation;
    bool m_isPlaying = false;
    bool m_isListening = false;
    int m_frames = 0;
};

TalvoSplashScreen *newSplash()
{
    auto *splash = new TalvoSplashScreen(QStringLiteral(LMWIDGETS_VERSION_STRING), splashPicture());
    splash->setAttribute(Qt::WA_DeleteOnClose);
    return splash;
}

/** Shows a splash screen that beats for a few seconds, or until it is clicked. */
void playSplash(QWidget *owner, SignalLog &log)
{
    TalvoSplashScreen *splash = newSplash();
    QObject::connect(owner, &QObject::destroyed, splash, &QWidget::close);
    log.watch(splash, QStringLiteral("TalvoSplashScreen"));
    auto *timer = new QTimer(splash);
    QObject::connect(timer, &QTimer::timeout, splash, [splash, beats = 0]() mutable {
        if (splash->isHidden() || ++beats > Beats) {
            splash->close(); // a click hides it only
            splash->deleteLater();
            return;
        }
        splash->beat();
    });
    timer->start(BeatInterval);
    splash->show();
}

void addSplashSection(QVBoxLayout *layout, QWidget *owner, SignalLog &log)
{
    QVBoxLayout *body =
        addSection(layout, QStringLiteral("Splash screen"),
                   QStringLiteral("The gallery showed one while it loaded, and let it beat after "
                                  "each page; with --no-splash it does not. This one beats for "
                                  "three seconds. A click hides it."));
    body->addWidget(
        row({button(QStringLiteral("Show the splash screen"),
                    [owner, &log] { playSplash(owner, log); }),
             new QLabel(QStringLiteral("680 x 469 px, whatever the size of its picture"))}));
}

void addIconSection(QVBoxLayout *layout)
{
    QVBoxLayout *body = addSection(
        layout, QStringLiteral("Animated icon"),
        QStringLiteral("The button shows each frame as its icon. The animation runs while somebody "
                       "listens: the first frame after the last listener has left pauses it, and "
                       "no timer runs from then on. The button listens while it can be seen, so "
                       "showing another page stops the animation too."));
    auto *busy = new BusyButton(QStringLiteral("Importing 12 scans"));
    auto *frames = new QLabel(QStringLiteral("no frame so far"));
    frames->setObjectName(QStringLiteral("galleryFrames"));
    QObject::connect(busy, &BusyButton::framesShown, frames, [frames](int count) {
        frames->setText(QStringLiteral("%1 frames").arg(count));
    });
    QCheckBox *play = check(QStringLiteral("Listen to frameChanged()"), false,
                            [busy](bool on) { busy->setPlaying(on); });
    QObject::connect(busy, &QPushButton::clicked, play, &QCheckBox::toggle);
    body->addWidget(row({busy, play, frames}));
}

QWidget *createContent(SignalLog &log)
{
    auto *content = new QWidget;
    QVBoxLayout *layout = contentLayout(content);
    addSplashSection(layout, content, log);
    addIconSection(layout);
    return content;
}

QWidget *openSplash()
{
    TalvoSplashScreen *splash = newSplash();
    splash->show();
    splash->beat();
    return splash;
}

} // namespace

Page startupPage()
{
    return Page(QStringLiteral("startup"), QStringLiteral("Starting and waiting"),
                QStringLiteral("TalvoSplashScreen is what the user sees while the host starts; "
                               "TalvoAnimatedIcon plays an animated picture as a series of icons, "
                               "for whatever shows one."),
                createContent)
        .shot(QStringLiteral("splash"), openSplash);
}

} // namespace gallery

#include "startuppage.moc"
