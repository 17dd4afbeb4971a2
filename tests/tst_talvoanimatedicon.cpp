#include "lmtest.h"

#include <lmwidgets/talvoanimatedicon.h>

#include <QMovie>
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

namespace {

class Receiver : public QObject
{
    Q_OBJECT

public:
    int calls = 0;

public Q_SLOTS:
    void count() { ++calls; }
};

QString waitingFile()
{
    return lmtest::themeDir() + QStringLiteral("/qssimage/waiting.gif");
}

QMovie *movieOf(const TalvoAnimatedIcon &icon)
{
    return icon.findChild<QMovie *>(QString(), Qt::FindDirectChildrenOnly);
}

} // namespace

class tst_TalvoAnimatedIcon : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initialState();
    void ownMethods();
    void emptyPath();
    void connectStartsTheMovie();
    void badConnections();
    void pausesWhenNobodyListens();
    void pausesWhenTheReceiverIsGone();
    void pausesOnlyAfterTheLast();
    void connectAgain();
    void iconPath();
    void fileThatIsNone();
    void deletedWhileAnimating();
    void otherFileWhileAnimating();
    void fileAfterConnecting();
    void otherFileWhilePaused();
    void deletedByItsReceiver();
};

void tst_TalvoAnimatedIcon::initialState()
{
    QObject parent;
    auto *icon = new TalvoAnimatedIcon(waitingFile(), &parent);
    QCOMPARE(icon->parent(), &parent);
    QVERIFY(icon->icon().isNull());
    QCOMPARE(icon->iconPath(), waitingFile());
    QVERIFY(movieOf(*icon));
    QCOMPARE(movieOf(*icon)->cacheMode(), QMovie::CacheAll);
    QCOMPARE(movieOf(*icon)->state(), QMovie::NotRunning);
}

void tst_TalvoAnimatedIcon::ownMethods()
{
    QCOMPARE(lmtest::ownMethods(TalvoAnimatedIcon::staticMetaObject),
             (QStringList{QStringLiteral("signal frameChanged()"),
                          QStringLiteral("slot onFrameChanged()")}));
}

void tst_TalvoAnimatedIcon::emptyPath()
{
    TalvoAnimatedIcon icon;
    Receiver receiver;
    QCOMPARE(icon.iconPath(), QString());
    QVERIFY(icon.icon().isNull());
    QCOMPARE(icon.width(), 0);
    QCOMPARE(icon.height(), 0);
    icon.setIconPath(waitingFile());
    QVERIFY(icon.connectFrameChanged(&receiver, SLOT(count())));
    QTRY_VERIFY(receiver.calls > 2);
    QVERIFY(!icon.icon().isNull());
}

void tst_TalvoAnimatedIcon::connectStartsTheMovie()
{
    TalvoAnimatedIcon icon(waitingFile());
    Receiver receiver;
    QVERIFY(icon.connectFrameChanged(&receiver, SLOT(count())));
    // Nothing comes before the caller knows.
    QCOMPARE(receiver.calls, 0);
    QCOMPARE(movieOf(icon)->state(), QMovie::Running);
    QTRY_VERIFY(receiver.calls > 2);
    QVERIFY(icon.width() > 0 && icon.height() > 0);
    QCOMPARE(QSize(icon.width(), icon.height()), movieOf(icon)->currentPixmap().size());
    QCOMPARE(icon.icon().pixmap(icon.width(), icon.height()).toImage(),
             movieOf(icon)->currentPixmap().toImage());
}

void tst_TalvoAnimatedIcon::badConnections()
{
    TalvoAnimatedIcon icon(waitingFile());
    Receiver receiver;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral(
                                           "^QObject::connect: No such slot .*::nothing\\(\\)")));
    QVERIFY(!icon.connectFrameChanged(&receiver, SLOT(nothing())));
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("^QObject::connect: Cannot connect")));
    QVERIFY(!icon.connectFrameChanged(nullptr, SLOT(count())));
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("^QObject::connect: Cannot connect")));
    QVERIFY(!icon.connectFrameChanged(&receiver, nullptr));
    QVERIFY(movieOf(icon)->state() != QMovie::Running);
    QVERIFY(icon.icon().isNull());
    QVERIFY(!icon.disconnectFrameChanged(&receiver, SLOT(count())));
}

void tst_TalvoAnimatedIcon::pausesWhenNobodyListens()
{
    TalvoAnimatedIcon icon(waitingFile());
    Receiver receiver;
    QVERIFY(icon.connectFrameChanged(&receiver, SLOT(count())));
    QTRY_VERIFY(receiver.calls > 0);
    const int calls = receiver.calls;
    QVERIFY(icon.disconnectFrameChanged(&receiver, SLOT(count())));
    QVERIFY(!icon.disconnectFrameChanged(&receiver, SLOT(count())));
    // It is the next frame that pauses.
    QCOMPARE(movieOf(icon)->state(), QMovie::Running);
    const int frame = movieOf(icon)->currentFrameNumber();
    QTRY_COMPARE(movieOf(icon)->state(), QMovie::Paused);
    QVERIFY(movieOf(icon)->currentFrameNumber() != frame);
    QCOMPARE(receiver.calls, calls);
    QCOMPARE(icon.icon().pixmap(icon.width(), icon.height()).toImage(),
             movieOf(icon)->currentPixmap().toImage());

    // At rest for longer than several frames take.
    QSignalSpy frames(movieOf(icon), &QMovie::frameChanged);
    QVERIFY(!frames.wait(movieOf(icon)->nextFrameDelay() * 5 + 200));
}

void tst_TalvoAnimatedIcon::pausesWhenTheReceiverIsGone()
{
    TalvoAnimatedIcon icon(waitingFile());
    auto receiver = std::make_unique<Receiver>();
    QVERIFY(icon.connectFrameChanged(receiver.get(), SLOT(count())));
    QTRY_VERIFY(receiver->calls > 0);
    receiver.reset();
    QTRY_COMPARE(movieOf(icon)->state(), QMovie::Paused);
}

void tst_TalvoAnimatedIcon::pausesOnlyAfterTheLast()
{
    TalvoAnimatedIcon icon(waitingFile());
    Receiver first;
    Receiver second;
    QVERIFY(icon.connectFrameChanged(&first, SLOT(count())));
    QVERIFY(icon.connectFrameChanged(&second, SLOT(count())));
    QTRY_VERIFY(second.calls > 0);
    QVERIFY(icon.disconnectFrameChanged(&first, SLOT(count())));
    const int calls = second.calls;
    QTRY_VERIFY(second.calls > calls + 2);
    QCOMPARE(movieOf(icon)->state(), QMovie::Running);
    // Of everybody.
    QVERIFY(icon.disconnectFrameChanged(nullptr, nullptr));
    QTRY_COMPARE(movieOf(icon)->state(), QMovie::Paused);
}

void tst_TalvoAnimatedIcon::connectAgain()
{
    TalvoAnimatedIcon icon(waitingFile());
    Receiver receiver;
    QVERIFY(icon.connectFrameChanged(&receiver, SLOT(count())));
    QTRY_VERIFY(receiver.calls > 0);
    QVERIFY(icon.disconnectFrameChanged(&receiver, SLOT(count())));
    QTRY_COMPARE(movieOf(icon)->state(), QMovie::Paused);
    const int calls = receiver.calls;
    QVERIFY(icon.connectFrameChanged(&receiver, SLOT(count())));
    QCOMPARE(movieOf(icon)->state(), QMovie::Running);
    QTRY_VERIFY(receiver.calls > calls + 2);
}

void tst_TalvoAnimatedIcon::iconPath()
{
    TalvoAnimatedIcon icon;
    icon.setIconPath(QStringLiteral("/no such/file ü.gif"));
    QCOMPARE(icon.iconPath(), QStringLiteral("/no such/file ü.gif"));
    icon.setIconPath(QString());
    QCOMPARE(icon.iconPath(), QString());
}

void tst_TalvoAnimatedIcon::fileThatIsNone()
{
    TalvoAnimatedIcon icon(QStringLiteral("/no such/file.gif"));
    Receiver receiver;
    QVERIFY(icon.connectFrameChanged(&receiver, SLOT(count())));
    QSignalSpy frames(&icon, &TalvoAnimatedIcon::frameChanged);
    QVERIFY(!frames.wait(200));
    QVERIFY(icon.icon().isNull());
    QCOMPARE(icon.width(), 0);
}

void tst_TalvoAnimatedIcon::deletedWhileAnimating()
{
    Receiver receiver;
    auto icon = std::make_unique<TalvoAnimatedIcon>(waitingFile());
    QVERIFY(icon->connectFrameChanged(&receiver, SLOT(count())));
    QTRY_VERIFY(receiver.calls > 0);
    icon.reset();
    const int calls = receiver.calls;
    QCoreApplication::processEvents();
    QCOMPARE(receiver.calls, calls);
}

void tst_TalvoAnimatedIcon::otherFileWhileAnimating()
{
    const QTemporaryDir folder;
    const QString still = folder.filePath(QStringLiteral("still.png"));
    QImage image(30, 20, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(still));

    TalvoAnimatedIcon icon(waitingFile());
    Receiver receiver;
    QVERIFY(icon.connectFrameChanged(&receiver, SLOT(count())));
    QTRY_VERIFY(receiver.calls > 2);
    const QSize size(icon.width(), icon.height());
    icon.setIconPath(still);
    QCOMPARE(icon.iconPath(), still);
    QTRY_COMPARE(QSize(icon.width(), icon.height()), QSize(30, 20));
    QTRY_COMPARE(icon.icon().pixmap(30, 20).toImage().pixelColor(5, 5), QColor(Qt::red));

    icon.setIconPath(waitingFile());
    QTRY_COMPARE(QSize(icon.width(), icon.height()), size);
    const int calls = receiver.calls;
    QTRY_VERIFY(receiver.calls > calls + 2);
}

void tst_TalvoAnimatedIcon::fileAfterConnecting()
{
    TalvoAnimatedIcon icon;
    Receiver receiver;
    QVERIFY(icon.connectFrameChanged(&receiver, SLOT(count())));
    QCoreApplication::processEvents();
    QCOMPARE(receiver.calls, 0);
    // There was nothing to play.
    QTRY_COMPARE(movieOf(icon)->state(), QMovie::NotRunning);
    icon.setIconPath(waitingFile());
    QTRY_VERIFY(receiver.calls > 2);
}

void tst_TalvoAnimatedIcon::otherFileWhilePaused()
{
    TalvoAnimatedIcon icon(waitingFile());
    Receiver receiver;
    QVERIFY(icon.connectFrameChanged(&receiver, SLOT(count())));
    QTRY_VERIFY(receiver.calls > 0);
    QVERIFY(icon.disconnectFrameChanged(&receiver, SLOT(count())));
    QTRY_COMPARE(movieOf(icon)->state(), QMovie::Paused);
    const int calls = receiver.calls;
    QSignalSpy frames(&icon, &TalvoAnimatedIcon::frameChanged);
    icon.setIconPath(waitingFile());
    // Still at rest, for longer than several frames take; then it goes on.
    QVERIFY(movieOf(icon)->state() != QMovie::Running);
    QVERIFY(!frames.wait(500));
    QVERIFY(icon.connectFrameChanged(&receiver, SLOT(count())));
    QTRY_VERIFY(receiver.calls > calls + 2);
}

void tst_TalvoAnimatedIcon::deletedByItsReceiver()
{
    auto *icon = new TalvoAnimatedIcon(waitingFile());
    const QPointer<TalvoAnimatedIcon> guard(icon);
    const QPointer<QMovie> movie(movieOf(*icon));
    Receiver receiver;
    bool survived = false;
    QVERIFY(icon->connectFrameChanged(&receiver, SLOT(count())));
    connect(icon, &TalvoAnimatedIcon::frameChanged, icon, [&] {
        delete icon;
        // The movie is in the midst of its own signal and looks at itself afterwards.
        survived = movie;
    });
    QTRY_VERIFY(!guard);
    QVERIFY(survived);
    QTRY_VERIFY(!movie);
    QCOMPARE(receiver.calls, 1);
}

LMTEST_MAIN(tst_TalvoAnimatedIcon)

#include "tst_talvoanimatedicon.moc"
