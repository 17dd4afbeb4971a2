#include "shooter.h"

#include "language.h"
#include "mainwindow.h"
#include "page.h"
#include "portraits.h"
#include "signallog.h"
#include "themes.h"

#include <lmwidgets/talvostylemanager.h>

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QEvent>
#include <QEventLoop>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QScopedPointer>
#include <QTextStream>
#include <QTimer>
#include <QWindow>

#include <functional>

namespace gallery {

using LM::Widgets::TalvoStyleManager;

const char WindowName[] = "window";

namespace {

constexpr int PageWidth = 960;
constexpr int SettleLimit = 5000;
// How long a picture has to stay the same to be still, and how long that is waited for, in ms.
constexpr int StillTime = 40;
constexpr int StillLimit = 800;
constexpr int EventSlice = 20;
constexpr int QuietRounds = 2;

// The splash screen is larger than a page of the documentation has room for.
constexpr int WidestPortrait = 560;

constexpr int BackdropMargin = 16;
constexpr int BackdropTile = 8;
const QColor BackdropColor(0x8A, 0x92, 0x9A);
const QColor BackdropTileColor(0x9A, 0xA2, 0xAA);

/** Notes whether anything in the application still moves, grows or changes its style. */
class LayoutProbe : public QObject
{
public:
    LayoutProbe() { qApp->installEventFilter(this); }

    bool takeBusy()
    {
        const bool busy = m_busy;
        m_busy = false;
        return busy;
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::LayoutRequest:
        case QEvent::Move:
        case QEvent::Polish:
        case QEvent::Resize:
        case QEvent::Show:
        case QEvent::StyleChange:
            m_busy = true;
            break;
        default:
            break;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    bool m_busy = false;
};

/** Fills @p area with the backdrop; the tiles show where the window is that lets them through. */
void paintBackdrop(QPainter &painter, const QSize &size, const QRect &window)
{
    painter.fillRect(QRect(QPoint(0, 0), size), BackdropColor);
    painter.setClipRect(window);
    for (int y = 0; y < window.height(); y += BackdropTile) {
        for (int x = 0; x < window.width(); x += BackdropTile) {
            if ((x + y) / BackdropTile % 2 == 0) {
                painter.fillRect(window.x() + x, window.y() + y, BackdropTile, BackdropTile,
                                 BackdropTileColor);
            }
        }
    }
    painter.setClipping(false);
}

/** Writes pictures into a folder and says so. */
class Camera
{
public:
    Camera(const QString &directory, QTextStream &out, QTextStream &err)
        : m_directory(directory), m_out(out), m_err(err)
    {
    }

    /** Takes the picture of @p widget and destroys it. */
    bool take(QWidget *widget, const QString &name)
    {
        const QPointer<QWidget> guard(widget);
        const bool written = write(widget, name);
        delete guard.data();
        return written;
    }

    /** Takes the picture of the modal dialog that @p exec opens, and closes it. */
    bool takeModal(const std::function<void()> &exec, const QString &name)
    {
        bool written = false;
        QTimer::singleShot(0, qApp, [this, &written, &name] {
            const QPointer<QWidget> dialog(QApplication::activeModalWidget());
            written = write(dialog, name);
            if (auto *opened = qobject_cast<QDialog *>(dialog.data())) {
                opened->reject();
            }
        });
        exec();
        return written;
    }

private:
    bool write(QWidget *widget, const QString &name)
    {
        const QString path = m_directory.filePath(name + QStringLiteral(".png"));
        if (!settle(widget)) {
            m_err << "lmgallery: " << name << " did not appear\n";
            return false;
        }
        if (!takePicture(widget).save(path)) {
            m_err << "lmgallery: cannot write " << QDir::toNativeSeparators(path) << '\n';
            return false;
        }
        m_out << QDir::toNativeSeparators(path) << '\n';
        return true;
    }

    QDir m_directory;
    QTextStream &m_out;
    QTextStream &m_err;
};

/**
 * Waits until two pictures of @p widget some time apart are the same: what slides into place at the
 * start has arrived. Something that moves for ever is waited for a while only.
 */
void waitUntilStill(QWidget *widget)
{
    QElapsedTimer timer;
    timer.start();
    QImage former;
    QImage picture = takePicture(widget);
    while (picture != former && timer.elapsed() < StillLimit) {
        QEventLoop loop;
        QTimer::singleShot(StillTime, &loop, &QEventLoop::quit);
        loop.exec(QEventLoop::ExcludeUserInputEvents);
        former = picture;
        picture = takePicture(widget);
    }
}

bool shootPage(const Page &page, const QString &prefix, Camera &camera)
{
    SignalLog log;
    QWidget *view = page.createView(log);
    view->ensurePolished();
    const int width = qMax(PageWidth, view->minimumSizeHint().width());
    view->setFixedWidth(width);
    view->setFixedHeight(view->hasHeightForWidth() ? view->heightForWidth(width)
                                                   : view->sizeHint().height());
    view->show();
    settle(view);
    // A window that becomes active gives its first control the focus, which then looks chosen.
    if (QWidget *focused = view->focusWidget()) {
        focused->clearFocus();
    }
    waitUntilStill(view);
    bool written = camera.take(view, prefix + page.name());
    for (const Shot &shot : page.shots()) {
        const QString name = prefix + page.name() + QLatin1Char('-') + shot.name;
        const bool taken =
            shot.open ? camera.take(shot.open(), name) : camera.takeModal(shot.exec, name);
        written = written && taken;
    }
    return written;
}

bool shootWindow(const QString &prefix, Camera &camera)
{
    auto *window = new MainWindow;
    window->show();
    TalvoStyleManager::instance()->updateSectionThickness(QStringLiteral("A-A"), 0.25);
    TalvoStyleManager::instance()->updateMappingPointSize(true, 5);
    return camera.take(window, prefix + QLatin1String(WindowName));
}

/** Tells pictures of other languages and directions from those of English. */
QString picturePrefix(const QString &theme)
{
    QString prefix = theme + QLatin1Char('-');
    if (currentLanguage() != languageNames().first()) {
        prefix += currentLanguage() + QLatin1Char('-');
    }
    if (QApplication::isRightToLeft()) {
        prefix += QStringLiteral("rtl-");
    }
    return prefix;
}

bool createFolder(const QString &directory, QTextStream &err)
{
    if (QDir().mkpath(directory)) {
        return true;
    }
    err << "lmgallery: cannot create " << QDir::toNativeSeparators(directory) << '\n';
    return false;
}

/** While it lives no text cursor blinks, which would make no two pictures alike; afterwards the theme
 * is as before. */
class StillScene
{
public:
    StillScene() { QApplication::setCursorFlashTime(0); }
    ~StillScene()
    {
        TalvoStyleManager::instance()->shiftStyle(m_theme);
        QApplication::setCursorFlashTime(m_flashTime);
    }

private:
    Q_DISABLE_COPY(StillScene)

    const int m_flashTime = QApplication::cursorFlashTime();
    const Theme m_theme = TalvoStyleManager::instance()->currentStyle();
};

/** Writes the picture of one class, without the backdrop of the other pictures. */
bool shootPortrait(const Portrait &portrait, const QDir &directory, QTextStream &out,
                   QTextStream &err)
{
    const QScopedPointer<QWidget> window(portrait.create());
    window->show();
    settle(window.data());
    if (QWidget *focused = window->focusWidget()) {
        focused->clearFocus();
    }
    if (portrait.pose) {
        portrait.pose(window.data());
        settle(window.data());
    }
    waitUntilStill(window.data());
    QImage picture = window->grab().toImage();
    if (picture.width() > WidestPortrait) {
        picture = picture.scaledToWidth(WidestPortrait, Qt::SmoothTransformation);
    }
    if (!window->testAttribute(Qt::WA_TranslucentBackground)) {
        picture = picture.convertToFormat(QImage::Format_RGB32);
    }
    const QString path = directory.filePath(portrait.name + QStringLiteral(".png"));
    if (!picture.save(path)) {
        err << "lmgallery: cannot write " << QDir::toNativeSeparators(path) << '\n';
        return false;
    }
    out << QDir::toNativeSeparators(path) << '\n';
    return true;
}

} // namespace

bool settle(QWidget *widget)
{
    if (!widget) {
        return false;
    }
    const QPointer<QWidget> guard(widget);
    LayoutProbe probe;
    QElapsedTimer timer;
    timer.start();
    int quiet = 0;
    while (guard && quiet < QuietRounds && timer.elapsed() < SettleLimit) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents(QEventLoop::AllEvents, EventSlice);
        const QWindow *window = guard ? guard->windowHandle() : nullptr;
        const bool busy = probe.takeBusy();
        quiet = window && window->isExposed() && !busy ? quiet + 1 : 0;
    }
    return guard && guard->isVisible();
}

QImage takePicture(QWidget *widget)
{
    const QPixmap pixmap = widget->grab();
    if (!widget->testAttribute(Qt::WA_TranslucentBackground)) {
        return pixmap.toImage();
    }
    const QSize margin(2 * BackdropMargin, 2 * BackdropMargin);
    const QRect window(QPoint(BackdropMargin, BackdropMargin), widget->size());
    const QSize size = widget->size() + margin;
    QImage image(size * pixmap.devicePixelRatioF(), QImage::Format_RGB32);
    image.setDevicePixelRatio(pixmap.devicePixelRatioF());
    QPainter painter(&image);
    paintBackdrop(painter, size, window);
    painter.drawPixmap(window.topLeft(), pixmap);
    return image;
}

bool shoot(const QString &directory, const QStringList &themes, const QStringList &pageNames,
           QTextStream &out, QTextStream &err)
{
    if (!createFolder(directory, err)) {
        return false;
    }
    const StillScene scene;
    Camera camera(directory, out, err);
    bool written = true;
    for (const QString &theme : themes) {
        TalvoStyleManager::instance()->shiftStyle(themeFromName(theme));
        const QString prefix = picturePrefix(theme);
        for (const QString &name : pageNames) {
            const Page *page = findPage(name);
            written =
                (page ? shootPage(*page, prefix, camera) : shootWindow(prefix, camera)) && written;
            out.flush();
        }
    }
    return written;
}

bool shootWidgets(const QString &directory, QTextStream &out, QTextStream &err)
{
    if (!createFolder(directory, err)) {
        return false;
    }
    const StillScene scene;
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Black);
    bool written = true;
    const QVector<Portrait> all = portraits();
    for (const Portrait &portrait : all) {
        written = shootPortrait(portrait, QDir(directory), out, err) && written;
        out.flush();
    }
    return written;
}

} // namespace gallery
