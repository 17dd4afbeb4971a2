#include "lmtest.h"

#include <lmwidgets/talvosplashscreen.h>

#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QSignalSpy>
#include <QTranslator>

namespace {

/** Opens up what is protected. */
class Splash : public TalvoSplashScreen
{
public:
    using TalvoSplashScreen::drawContents;
    using TalvoSplashScreen::TalvoSplashScreen;

    QImage drawn()
    {
        QImage image(size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::black);
        QPainter painter(&image);
        drawContents(&painter);
        return image;
    }
};

QPixmap filled(const QColor &color, const QSize &size = QSize(680, 469))
{
    QPixmap pixmap(size);
    pixmap.fill(color);
    return pixmap;
}

/** The rectangle of all pixels of @p image that differ from @p ground. */
QRect inkOf(const QImage &image, const QColor &ground)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != ground) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

/** The two lines drawn by hand, at positions worked out here once more. */
QImage expected(const QString &version, const QString &starting, const QColor &ground)
{
    QImage image(680, 469, QImage::Format_ARGB32_Premultiplied);
    image.fill(ground);
    QFont font(QStringLiteral("Microsoft YaHei"), 10, 40, false);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font);
    painter.setPen(QColor(255, 255, 255, 125));
    const QFontMetrics metrics(font);
    painter.drawText((680 - metrics.horizontalAdvance(version)) / 2 - 3,
                     metrics.ascent() + 30 + 239, version);
    painter.drawText((680 - metrics.horizontalAdvance(starting)) / 2, metrics.ascent() + 175 + 239,
                     starting);
    return image;
}

class Translator : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return qstrcmp(context, "MainWindow") == 0 && qstrcmp(text, "Starting...") == 0
                   ? QStringLiteral("Startvorgang läuft")
                   : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_TalvoSplashScreen : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initialState();
    void ownMethods();
    void bothLinesPixelByPixel_data();
    void bothLinesPixelByPixel();
    void linesStandApart();
    void startingIsTranslated();
    void pictureIsStretched();
    void withoutPicture();
    void messageIsNotDrawn();
    void beatsAreCounted();
    void beatRepaints();
    void keepsItsPicture();
    void nullPainter();
};

void tst_TalvoSplashScreen::initialState()
{
    const Splash splash(QStringLiteral("1.0"), filled(Qt::blue, QSize(10, 10)), Qt::Tool);
    QCOMPARE(splash.size(), QSize(680, 469));
    QCOMPARE(splash.minimumSize(), QSize(680, 469));
    QCOMPARE(splash.maximumSize(), QSize(680, 469));
    QCOMPARE(splash.styleSheet(), QStringLiteral("QWidget { border: none; border-radius: 20px; }"));
    QVERIFY(splash.windowFlags().testFlag(Qt::Tool));
    QVERIFY(splash.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(splash.message().isEmpty());
}

void tst_TalvoSplashScreen::ownMethods()
{
    QCOMPARE(lmtest::ownMethods(TalvoSplashScreen::staticMetaObject), QStringList());
    QCOMPARE(QByteArray(TalvoSplashScreen::staticMetaObject.className()),
             QByteArray("TalvoSplashScreen"));
}

void tst_TalvoSplashScreen::bothLinesPixelByPixel_data()
{
    QTest::addColumn<QString>("version");
    QTest::newRow("usual") << QStringLiteral("2.4.1");
    QTest::newRow("odd width") << QStringLiteral("2.4.11i");
    QTest::newRow("none") << QString();
    QTest::newRow("wider than the picture") << QString(200, QLatin1Char('8'));
    QTest::newRow("not Latin") << QStringLiteral("测试版 β");
    QTest::newRow("markup") << QStringLiteral("<b>1</b> & %1");
}

void tst_TalvoSplashScreen::bothLinesPixelByPixel()
{
    QFETCH(QString, version);
    Splash splash(version, filled(QColor(20, 60, 90)));
    const QImage picture = splash.drawn();
    QCOMPARE(picture, expected(QStringLiteral("Ver ") + version, QStringLiteral("Starting..."),
                               QColor(20, 60, 90)));
    QVERIFY(picture != expected(QStringLiteral("Ver ") + version, QString(), QColor(20, 60, 90)));
}

void tst_TalvoSplashScreen::linesStandApart()
{
    Splash splash(QStringLiteral("2.4.1"), filled(Qt::black));
    const QImage picture = splash.drawn();
    const QRect upper = inkOf(picture.copy(0, 0, 680, 340), Qt::black);
    const QRect lower = inkOf(picture.copy(0, 340, 680, 129), Qt::black).translated(0, 340);
    // Half of the height, half of 10 pt, and 30 or 175 px, then the ascent: the base lines.
    const QFontMetrics metrics(QFont(QStringLiteral("Microsoft YaHei"), 10, 40));
    QVERIFY(qAbs(upper.bottom() + 1 - (239 + 30 + metrics.ascent())) <= 1);
    QVERIFY(qAbs(lower.top() - (239 + 175 + metrics.ascent() - metrics.capHeight())) <= 2);
    QVERIFY(qAbs(upper.center().x() - (340 - 3)) <= 2);
    QVERIFY(qAbs(lower.center().x() - 340) <= 2);
    // White at an alpha of 125 on black is no brighter than 125.
    int brightest = 0;
    for (int x = upper.left(); x <= upper.right(); ++x) {
        for (int y = upper.top(); y <= upper.bottom(); ++y) {
            brightest = qMax(brightest, picture.pixelColor(x, y).lightness());
        }
    }
    QVERIFY2(brightest > 100 && brightest <= 126, qPrintable(QString::number(brightest)));
}

void tst_TalvoSplashScreen::startingIsTranslated()
{
    Translator translator;
    QCoreApplication::installTranslator(&translator);
    Splash splash(QStringLiteral("1"), filled(Qt::black));
    QCOMPARE(splash.drawn(),
             expected(QStringLiteral("Ver 1"), QStringLiteral("Startvorgang läuft"), Qt::black));
    QCoreApplication::removeTranslator(&translator);
}

void tst_TalvoSplashScreen::pictureIsStretched()
{
    QPixmap halves(2, 1);
    halves.fill(Qt::red);
    {
        QPainter painter(&halves);
        painter.fillRect(1, 0, 1, 1, Qt::blue);
    }
    Splash splash(QStringLiteral("1"), halves);
    const QImage picture = splash.drawn();
    QCOMPARE(picture.pixelColor(2, 2), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(2, 466), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(677, 466), QColor(Qt::blue));
}

void tst_TalvoSplashScreen::withoutPicture()
{
    Splash splash(QStringLiteral("1"), QPixmap());
    QCOMPARE(splash.size(), QSize(680, 469));
    QCOMPARE(splash.drawn(),
             expected(QStringLiteral("Ver 1"), QStringLiteral("Starting..."), Qt::black));
}

void tst_TalvoSplashScreen::messageIsNotDrawn()
{
    Splash splash(QStringLiteral("1"), filled(Qt::darkGreen));
    const QImage before = splash.drawn();
    splash.beat();
    QCOMPARE(splash.message(), QStringLiteral("Loading..."));
    QCOMPARE(splash.drawn(), before);
}

void tst_TalvoSplashScreen::beatsAreCounted()
{
    TalvoSplashScreen splash(QStringLiteral("1"), QPixmap());
    QCOMPARE(splash.m_beat, 1);
    for (const int beat : {2, 3, 1, 2}) {
        splash.beat();
        QCOMPARE(splash.m_beat, beat);
    }
}

void tst_TalvoSplashScreen::beatRepaints()
{
    Splash splash(QStringLiteral("1"), filled(Qt::darkGreen));
    splash.show();
    QVERIFY(QTest::qWaitForWindowExposed(&splash));
    QSignalSpy messages(&splash, &QSplashScreen::messageChanged);
    const QImage before = splash.grab().toImage();
    // More often than the counter counts.
    for (int i = 0; i < 7; ++i) {
        splash.beat();
    }
    QCOMPARE(messages.count(), 7);
    QCOMPARE(messages.last().first().toString(), QStringLiteral("Loading..."));
    QCOMPARE(splash.grab().toImage(), before);
}

void tst_TalvoSplashScreen::keepsItsPicture()
{
    Splash splash(QStringLiteral("1"), filled(Qt::black));
    splash.setPixmap(filled(Qt::red));
    QCOMPARE(splash.size(), QSize(680, 469));
    QCOMPARE(splash.drawn().pixelColor(1, 1), QColor(Qt::black));
}

void tst_TalvoSplashScreen::nullPainter()
{
    Splash splash(QStringLiteral("1"), filled(Qt::black));
    splash.drawContents(nullptr);
    QCOMPARE(splash.message(), QString());
}

LMTEST_MAIN(tst_TalvoSplashScreen)

#include "tst_talvosplashscreen.moc"
