#ifndef LMWIDGETS_TALVOANIMATEDICON_H
#define LMWIDGETS_TALVOANIMATEDICON_H

#include <lmwidgets/lmwidgets_global.h>

#include <QIcon>
#include <QObject>
#include <QString>

QT_BEGIN_NAMESPACE
class QMovie;
QT_END_NAMESPACE

/**
 * @class TalvoAnimatedIcon talvoanimatedicon.h <lmwidgets/talvoanimatedicon.h>
 *
 * @brief Plays an animated picture file as a series of icons.
 *
 * @image html talvoanimatedicon.png
 *
 * Whoever shows the icon connects with connectFrameChanged() and reads icon() each time
 * frameChanged() is emitted. The animation runs only while somebody is connected: the first frame
 * after the last receiver has left, or was destroyed, pauses it, and it then uses no time.
 *
 * @code
 * auto *busy = new TalvoAnimatedIcon(":/busy.gif", this);
 * busy->connectFrameChanged(this, SLOT(updateBusyButton())); // setIcon(busy->icon())
 * @endcode
 */
class LMWIDGETS_EXPORT TalvoAnimatedIcon : public QObject
{
    Q_OBJECT

public:
    /** Makes an icon of the file @p path; with an empty one there is none until setIconPath(). */
    explicit TalvoAnimatedIcon(const QString &path = QString(), QObject *parent = nullptr);
    ~TalvoAnimatedIcon() override;

    /**
     * Connects frameChanged() to @p member of @p receiver, given with SLOT() or SIGNAL(), and lets
     * the animation run. Returns false and leaves it as it is when there is no such member or one
     * of the two is null; Qt warns of that. Connecting with QObject::connect() does not start the
     * animation.
     */
    bool connectFrameChanged(const QObject *receiver, const char *member);

    /**
     * Takes back what connectFrameChanged() did and returns whether there was such a connection. A
     * null @p member stands for any member, a null @p receiver for any receiver. The animation
     * pauses by itself at its next frame if nobody is left.
     */
    bool disconnectFrameChanged(const QObject *receiver, const char *member);

    /** Returns the icon of the latest frame; null until the first. */
    QIcon icon();

    /** Returns the path of the file, as it was set. */
    QString iconPath();
    /**
     * Sets the file; the icon stays as it is until the next frame. While somebody listens the
     * animation goes on with the new file from its first frame, also where the former could not be
     * read or had come to its end; otherwise it stays at rest. Of a file that cannot be read no
     * frame comes.
     */
    void setIconPath(const QString &path);

    /** Returns the width of the current frame in px; 0 without one. */
    int width() const;
    /** Returns the height of the current frame in px; 0 without one. */
    int height() const;

Q_SIGNALS:
    /**
     * There is a new icon(). Is emitted for each frame, the one that pauses included. A receiver
     * may delete this object.
     */
    void frameChanged();

private Q_SLOTS:
    void onFrameChanged();

private:
    Q_DISABLE_COPY(TalvoAnimatedIcon)

    QMovie *m_movie;
    QIcon m_icon;
    bool m_isWanted = false; ///< from connectFrameChanged() until nobody listens
    int m_openFrames = 0;    ///< the calls of onFrameChanged() that the movie waits for
};

#endif
