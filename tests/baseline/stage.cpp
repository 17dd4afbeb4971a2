#include "stage.h"

#include "themes.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QEvent>
#include <QFont>
#include <QIcon>
#include <QLocale>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QScopedPointer>
#include <QStyleFactory>
#include <QtTest>
#include <QVBoxLayout>

namespace baseline {

using LM::Widgets::TalvoStyleManager;

namespace {

constexpr int FontSize = 13;
constexpr int StageMargin = 6;
constexpr int QuietRounds = 2;
constexpr int SettleLimit = 5000;
constexpr int EventSlice = 10;

constexpr int BackdropMargin = 6;
constexpr int BackdropTile = 8;
const QColor BackdropColor(0x8A, 0x92, 0x9A);
const QColor BackdropTileColor(0x9A, 0xA2, 0xAA);

/** Notes whether anything in the application still moves, grows, is painted or changes its style.
 */
class Probe : public QObject
{
public:
    Probe() { qApp->installEventFilter(this); }

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
        case QEvent::Paint:
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

void settle()
{
    Probe probe;
    QElapsedTimer timer;
    timer.start();
    int quiet = 0;
    while (quiet < QuietRounds && timer.elapsed() < SettleLimit) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents(QEventLoop::AllEvents, EventSlice);
        quiet = probe.takeBusy() ? 0 : quiet + 1;
    }
}

/** The widget; where it lets something through, on a ground that shows that. */
QImage pictureOf(QWidget *widget)
{
    const QPixmap pixmap = widget->grab();
    if (!widget->isWindow() || !widget->testAttribute(Qt::WA_TranslucentBackground)) {
        return pixmap.toImage().convertToFormat(QImage::Format_RGB32);
    }
    const QSize margin(2 * BackdropMargin, 2 * BackdropMargin);
    const QSize size = widget->size() + margin;
    QImage image(size * pixmap.devicePixelRatioF(), QImage::Format_RGB32);
    image.setDevicePixelRatio(pixmap.devicePixelRatioF());
    image.fill(BackdropColor);
    QPainter painter(&image);
    for (int y = 0; y < size.height(); y += BackdropTile) {
        for (int x = 0; x < size.width(); x += BackdropTile) {
            if ((x + y) / BackdropTile % 2 == 0) {
                painter.fillRect(x, y, BackdropTile, BackdropTile, BackdropTileColor);
            }
        }
    }
    painter.drawPixmap(BackdropMargin, BackdropMargin, pixmap);
    return image;
}

/** A window of the host's, with @p widget in it. */
QWidget *stageFor(QWidget *widget)
{
    // Without a parent every widget calls itself a window.
    if (qobject_cast<QDialog *>(widget) || widget->windowType() != Qt::Window) {
        return widget;
    }
    auto *stage = new QWidget;
    auto *layout = new QVBoxLayout(stage);
    layout->setContentsMargins(StageMargin, StageMargin, StageMargin, StageMargin);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(widget);
    return stage;
}

bool isActivated(const QWidget *window)
{
    return window->windowType() != Qt::SplashScreen && window->windowType() != Qt::ToolTip;
}

QImage takePicture(const State &state)
{
    QWidget *widget = state.create();
    const QScopedPointer<QWidget> window(stageFor(widget));
    window->show();
    if (isActivated(window.data())) {
        window->activateWindow();
        const auto active = [&window] { return QApplication::activeWindow() == window.data(); };
        if (!QTest::qWaitFor(active)) {
            qWarning("%s: the window does not become active", qPrintable(state.name));
        }
    }
    settle();
    const bool onStage = window.data() != widget;
    if (onStage && window->focusWidget()) {
        // The window has given it to its first control, which then looks chosen.
        window->focusWidget()->clearFocus();
    }
    QWidget *target = window.data();
    if (state.arrange) {
        QWidget *arranged = state.arrange(widget);
        target = arranged->isWindow() ? arranged : target;
    }
    settle();
    return pictureOf(target);
}

} // namespace

QVector<Setting> settings(int scale)
{
    // More than these would show the same again, and fill the repository.
    if (scale != 1) {
        return {{TalvoStyleManager::Black, Qt::LeftToRight}};
    }
    return {{TalvoStyleManager::Black, Qt::LeftToRight},
            {TalvoStyleManager::Black, Qt::RightToLeft},
            {TalvoStyleManager::White, Qt::LeftToRight},
            {TalvoStyleManager::Blue, Qt::LeftToRight}};
}

QString settingText(const Setting &setting, int scale)
{
    return QStringLiteral("%1, scale %2, %3")
        .arg(gallery::themeName(setting.theme))
        .arg(scale)
        .arg(setting.direction == Qt::RightToLeft ? QStringLiteral("right to left")
                                                  : QStringLiteral("left to right"));
}

QString sheetName(const QString &className, const Setting &setting, int scale)
{
    QString name = className + QLatin1Char('.') + gallery::themeName(setting.theme);
    if (setting.direction == Qt::RightToLeft) {
        name += QStringLiteral(".rtl");
    }
    if (scale != 1) {
        name += QStringLiteral("@%1x").arg(scale);
    }
    return name;
}

void prepareEnvironment(int scale, const QString &fontConfig)
{
    for (const char *variable :
         {"QT_STYLE_OVERRIDE", "QT_SCREEN_SCALE_FACTORS", "QT_AUTO_SCREEN_SCALE_FACTOR",
          "QT_ENABLE_HIGHDPI_SCALING", "QT_DEVICE_PIXEL_RATIO", "QT_SCALE_FACTOR_ROUNDING_POLICY",
          "QT_QPA_PLATFORMTHEME", "QT_USE_PHYSICAL_DPI"}) {
        qunsetenv(variable);
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));
    qputenv("FONTCONFIG_FILE", fontConfig.toLocal8Bit());
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("TZ", "UTC");
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
}

void prepareStage()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QIcon::setThemeSearchPaths({});
    QIcon::setFallbackSearchPaths({});
    QIcon::setThemeName(QString());
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(FontSize);
    font.setHintingPreference(QFont::PreferVerticalHinting);
    QApplication::setFont(font);
    QApplication::setCursorFlashTime(0);
    for (const auto effect : {Qt::UI_AnimateMenu, Qt::UI_FadeMenu, Qt::UI_AnimateCombo,
                              Qt::UI_AnimateTooltip, Qt::UI_FadeTooltip, Qt::UI_AnimateToolBox}) {
        QApplication::setEffectEnabled(effect, false);
    }
    gallery::followTheme();
}

void apply(const Setting &setting)
{
    if (TalvoStyleManager::instance()->currentStyle() != setting.theme) {
        TalvoStyleManager::instance()->shiftStyle(setting.theme);
    }
    QApplication::setLayoutDirection(setting.direction);
}

Sheet takeSheet(const Subject &subject, int scale)
{
    QVector<Picture> pictures;
    for (const State &state : subject.states) {
        pictures.append({state.name, takePicture(state)});
    }
    return Sheet(pictures, scale);
}

} // namespace baseline
