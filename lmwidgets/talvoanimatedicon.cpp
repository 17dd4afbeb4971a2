#include <lmwidgets/talvoanimatedicon.h>

#include <QMetaMethod>
#include <QMovie>
#include <QPixmap>
#include <QPointer>

TalvoAnimatedIcon::TalvoAnimatedIcon(const QString &path, QObject *parent)
    : QObject(parent), m_movie(new QMovie(this))
{
    if (!path.isEmpty()) {
        m_movie->setFileName(path);
    }
    m_movie->setCacheMode(QMovie::CacheAll);
    connect(m_movie, &QMovie::frameChanged, this, &TalvoAnimatedIcon::onFrameChanged);
}

TalvoAnimatedIcon::~TalvoAnimatedIcon()
{
    if (m_openFrames > 0) {
        // A receiver deletes this object, and the movie that called it is not done with itself.
        m_movie->disconnect(this);
        m_movie->stop();
        m_movie->setParent(nullptr);
        m_movie->deleteLater();
    }
}

bool TalvoAnimatedIcon::connectFrameChanged(const QObject *receiver, const char *member)
{
    if (!connect(this, SIGNAL(frameChanged()), receiver, member)) {
        return false;
    }
    // Unlike start() this emits nothing before the caller has seen that the connection is there; a
    // movie that never ran is started by it too.
    m_movie->setPaused(false);
    m_isWanted = true;
    return true;
}

bool TalvoAnimatedIcon::disconnectFrameChanged(const QObject *receiver, const char *member)
{
    return disconnect(this, SIGNAL(frameChanged()), receiver, member);
}

QIcon TalvoAnimatedIcon::icon()
{
    return m_icon;
}

QString TalvoAnimatedIcon::iconPath()
{
    return m_movie->fileName();
}

void TalvoAnimatedIcon::setIconPath(const QString &path)
{
    m_movie->setFileName(path);
    if (m_isWanted) {
        // QMovie stops its clock at a new file and still calls itself running.
        m_movie->setPaused(true);
        m_movie->setPaused(false);
    }
}

int TalvoAnimatedIcon::width() const
{
    return m_movie->currentPixmap().width();
}

int TalvoAnimatedIcon::height() const
{
    return m_movie->currentPixmap().height();
}

void TalvoAnimatedIcon::onFrameChanged()
{
    if (!isSignalConnected(QMetaMethod::fromSignal(&TalvoAnimatedIcon::frameChanged))) {
        m_movie->setPaused(true);
        m_isWanted = false;
    }
    m_icon = QIcon(m_movie->currentPixmap());
    const QPointer<TalvoAnimatedIcon> guard(this);
    ++m_openFrames;
    Q_EMIT frameChanged();
    if (guard) {
        --m_openFrames;
    }
}
