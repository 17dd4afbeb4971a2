#include "themes.h"

#include <QApplication>
#include <QColor>
#include <QFile>
#include <QPalette>
#include <QVariant>

namespace gallery {

using LM::Widgets::TalvoStyleManager;

namespace {

/** The colours of what the theme's style sheet leaves to the host: grounds of plain widgets, quiet
 * texts. */
struct HostColors
{
    QColor window;
    QColor base;
    QColor button;
    QColor line;
    QColor text;
    QColor quietText;
    QColor link;
};

const char FollowsProperty[] = "galleryFollowsTheme";

const QColor AccentColor(255, 200, 5);
const QColor OnAccentColor(Qt::black);

HostColors hostColors(Theme theme)
{
    switch (theme) {
    case TalvoStyleManager::White:
        return {0xF2F2F2, 0xFFFFFF, 0xE6E6E6, 0xB8B8B8, 0x2B2B2B, 0x666666, 0xA87B00};
    case TalvoStyleManager::Blue:
        return {0x1B2A45, 0x14213A, 0x2D4469, 0x47639A, 0xEAF1FB, 0xA3B7D6, 0xFFC805};
    case TalvoStyleManager::Black:
        break;
    }
    return {0x2B2B2B, 0x232323, 0x404040, 0x585858, 0xF2F2F2, 0xA8A8A8, 0xFFC805};
}

QPalette hostPalette(const HostColors &colors)
{
    QPalette palette(colors.button, colors.window);
    palette.setColor(QPalette::WindowText, colors.text);
    palette.setColor(QPalette::Base, colors.base);
    palette.setColor(QPalette::AlternateBase, colors.window);
    palette.setColor(QPalette::Text, colors.text);
    palette.setColor(QPalette::ButtonText, colors.text);
    palette.setColor(QPalette::BrightText, colors.text);
    palette.setColor(QPalette::PlaceholderText, colors.quietText);
    palette.setColor(QPalette::Mid, colors.line);
    palette.setColor(QPalette::Highlight, AccentColor);
    palette.setColor(QPalette::HighlightedText, OnAccentColor);
    palette.setColor(QPalette::Link, colors.link);
    palette.setColor(QPalette::ToolTipBase, colors.base);
    palette.setColor(QPalette::ToolTipText, colors.text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, colors.line);
    }
    return palette;
}

QString hostSheet(const HostColors &colors)
{
    return QStringLiteral("QLabel[galleryQuiet=\"true\"] { color: %1; }\n"
                          "QPushButton[galleryChoice=\"true\"]:checked "
                          "{ background-color: %2; border-color: %2; color: %3; }\n"
                          "QFrame#galleryFramed { border: 1px solid %4; }\n"
                          "QLabel#galleryCode { font-family: \"DejaVu Sans Mono\", "
                          "\"Consolas\", monospace; font-size: 12px; }\n"
                          "QListWidget#galleryPageList::item { padding-left: 10px; }\n"
                          "QTreeWidget#gallerySignals::item { padding-left: 5px; }\n")
        .arg(colors.quietText.name(), AccentColor.name(), OnAccentColor.name(), colors.line.name());
}

QString readText(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/** The style sheet of the current theme, or the one that all themes share. */
QString themeSheet()
{
    const QString themePath = TalvoStyleManager::instance()->currentThemePath();
    QString sheet = readText(themePath + QStringLiteral("themestyle.qss"));
    if (sheet.isEmpty()) {
        sheet = readText(QCoreApplication::applicationDirPath() +
                         QStringLiteral("/theme/themestyle.qss"));
    }
    return sheet.replace(QStringLiteral("@theme@"), themePath);
}

void applyTheme()
{
    const HostColors colors = hostColors(TalvoStyleManager::instance()->currentStyle());
    QApplication::setPalette(hostPalette(colors));
    qApp->setStyleSheet(themeSheet() + hostSheet(colors));
}

} // namespace

QStringList themeNames()
{
    return {themeName(TalvoStyleManager::Black), themeName(TalvoStyleManager::White),
            themeName(TalvoStyleManager::Blue)};
}

QString themeName(Theme theme)
{
    switch (theme) {
    case TalvoStyleManager::White:
        return QStringLiteral("White");
    case TalvoStyleManager::Blue:
        return QStringLiteral("Blue");
    case TalvoStyleManager::Black:
        break;
    }
    return QStringLiteral("Black");
}

Theme themeFromName(const QString &name)
{
    for (const Theme theme : {TalvoStyleManager::White, TalvoStyleManager::Blue}) {
        if (themeName(theme) == name) {
            return theme;
        }
    }
    return TalvoStyleManager::Black;
}

void followTheme()
{
    // The application remembers it, so that asking twice does not style everything twice.
    if (qApp->property(FollowsProperty).toBool()) {
        return;
    }
    qApp->setProperty(FollowsProperty, true);
    onTheme(qApp, applyTheme);
}

void onTheme(QObject *context, const std::function<void()> &function)
{
    QObject::connect(TalvoStyleManager::instance().data(), &TalvoStyleManager::themeStyleShift,
                     context, [function] { function(); });
    function();
}

QString themeImage(const QString &name)
{
    return TalvoStyleManager::instance()->currentThemePath() + QStringLiteral("qssimage/") + name +
           QStringLiteral(".png");
}

} // namespace gallery
