#include <lmwidgets/talvosplashscreen.h>

#include "owntext_p.h"

#include <QColor>
#include <QCoreApplication>
#include <QFont>
#include <QFontMetrics>
#include <QPainter>

namespace {

constexpr QSize SplashSize(680, 469);
constexpr int LastBeat = 3;

const QColor TextColor(255, 255, 255, 125);
constexpr double FontPointSize = 10.0;
constexpr int FontWeight = 40;
// Of the texts, from where they would be centred.
constexpr int VersionShift = -3;
constexpr int VersionDrop = 30;
constexpr int StartingDrop = 175;

QFont textFont()
{
    QFont font(QStringLiteral("Microsoft YaHei"));
    font.setPointSizeF(FontPointSize);
    font.setWeight(FontWeight);
    font.setStyle(QFont::StyleNormal);
    return font;
}

QString startingText()
{
    return QCoreApplication::translate("MainWindow", "Starting...");
}

} // namespace

TalvoSplashScreen::TalvoSplashScreen(const QString &version, const QPixmap &pixmap,
                                     Qt::WindowFlags flags)
    : QSplashScreen(pixmap, flags),
      m_versionText(QStringLiteral("Ver ") + version),
      m_background(pixmap)
{
    setFixedSize(SplashSize);
    setStyleSheet(QStringLiteral("QWidget { border: none; border-radius: 20px; }"));
    // What drawContents() paints is no property of anything.
    LM::Widgets::followLanguage(
        this, "starting", {startingText, [this](const QString &, const QString &) { update(); }});
}

TalvoSplashScreen::~TalvoSplashScreen() = default;

void TalvoSplashScreen::beat()
{
    m_beat = m_beat == LastBeat ? 1 : m_beat + 1;
    const auto message = [] { return tr("Loading..."); };
    showMessage(message(), Qt::AlignLeft, Qt::black);
    LM::Widgets::followLanguage(this, "message",
                                {message, [this](const QString &former, const QString &now) {
                                     if (QSplashScreen::message() == former) {
                                         showMessage(now, Qt::AlignLeft, Qt::black);
                                     }
                                 }});
}

void TalvoSplashScreen::drawContents(QPainter *painter)
{
    // The base class is not asked: it would draw the message of beat() over the two texts.
    if (!painter) {
        return;
    }
    painter->setRenderHint(QPainter::Antialiasing);
    painter->drawPixmap(rect(), m_background);

    const QFont font = textFont();
    painter->setFont(font);
    painter->setPen(TextColor);
    const QFontMetrics metrics(font);
    const int middle = (height() + font.pointSize()) / 2;
    painter->drawText((width() - metrics.horizontalAdvance(m_versionText)) / 2 + VersionShift,
                      metrics.ascent() + VersionDrop + middle, m_versionText);
    const QString starting = startingText();
    painter->drawText((width() - metrics.horizontalAdvance(starting)) / 2,
                      metrics.ascent() + StartingDrop + middle, starting);
}
