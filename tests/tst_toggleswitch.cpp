#include "lmtest.h"

#include <lmwidgets/toggleswitch.h>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPointer>
#include <QSet>
#include <QSignalSpy>
#include <QTimer>
#include <QVBoxLayout>

using LM::Widgets::ToggleSwitch;

namespace {

const QColor Accent(254, 200, 4);
const QColor Dark(50, 50, 50);

int textWidth(const QString &text)
{
    return int(QFontMetricsF(QApplication::font()).horizontalAdvance(text) + 78.0);
}

/** The widget as painted on blue, which is none of its colours. */
QImage painted(QWidget *widget, qreal ratio = 1.0)
{
    QImage image(widget->size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::blue);
    widget->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

/** One tick of the animation, without waiting for the clock. */
void tick(ToggleSwitch *toggle)
{
    QVERIFY(QMetaObject::invokeMethod(toggle, "animate", Qt::DirectConnection));
}

/** Finishes the animation. */
void finish(ToggleSwitch *toggle)
{
    for (int i = 0; i < 20; ++i) {
        tick(toggle);
    }
}

/**
 * The x of the first and the last column that the knob of a switch that is on covers wholly in its
 * middle row; on either side follows a column that its round edge covers in part.
 */
QPair<int, int> knobOnYellow(ToggleSwitch *toggle)
{
    const QImage image = painted(toggle);
    int first = -1;
    int last = -1;
    for (int x = 3; x < 45; ++x) {
        if (image.pixelColor(x, 15) == Dark) {
            first = first < 0 ? x : first;
            last = x;
        }
    }
    return {first, last};
}

void press(ToggleSwitch *toggle, const QPoint &pos, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mousePress(toggle, button, Qt::NoModifier, pos);
    QTest::mouseRelease(toggle, button, Qt::NoModifier, pos);
}

/** Counts the ticks of the switches' timers. Lives before the switch whose timer it looks at. */
class TickCounter : public QObject
{
public:
    int ticks = 0;
    QPointer<QTimer> timer;

    TickCounter() { qApp->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *ticking = qobject_cast<QTimer *>(watched);
        if (ticking && event->type() == QEvent::Timer) {
            timer = ticking;
            ++ticks;
        }
        return false;
    }
};

/** A switch of a host, for which the host has an accessible interface of its own. */
class HostSwitch : public ToggleSwitch
{
    Q_OBJECT
};

/** One that the host leaves as it is. */
class PlainSwitch : public ToggleSwitch
{
    Q_OBJECT
};

QAccessibleInterface *createHostSwitch(const QString &className, QObject *object)
{
    if (className == QLatin1String(HostSwitch::staticMetaObject.className())) {
        return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::RadioButton);
    }
    return nullptr;
}

} // namespace

class tst_ToggleSwitch : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void metaObject();
    void fresh();
    void setText();
    void setCheckedTellsOnlyOfChanges();
    void presses_data();
    void presses();
    void otherButtons();
    void disabledIgnoresPresses();
    void pressesStayHere();
    void toggledComesAtOnceAndTheKnobLags();
    void everyFrameAsPainted_data();
    void everyFrameAsPainted();
    void ticks();
    void turnsRoundWhereItIs();
    void theTimerRunsByItself();
    void repaints();
    void pixels_data();
    void pixels();
    void theTextIsPainted();
    void theApplicationsFontCounts();
    void destroyedWhileItAnimates();
    void deletedFromToggled();
    void accessible();
    void accessibleToggle();
    void accessibleByTheHost();
};

void tst_ToggleSwitch::initTestCase()
{
    TestCase::initTestCase();
    // Before there is a switch, as a host would at its start.
    QAccessible::installFactory(createHostSwitch);
}

void tst_ToggleSwitch::metaObject()
{
    QCOMPARE(lmtest::ownMethods(ToggleSwitch::staticMetaObject),
             QStringList({QStringLiteral("signal toggled(bool checked)"),
                          QStringLiteral("slot setChecked(bool checked)"),
                          QStringLiteral("slot setText(QString text)"),
                          QStringLiteral("slot animate()")}));
    QCOMPARE(ToggleSwitch::staticMetaObject.superClass(), &QWidget::staticMetaObject);
}

void tst_ToggleSwitch::fresh()
{
    ToggleSwitch toggle;
    QVERIFY(!toggle.isChecked());
    QCOMPARE(toggle.size(), QSize(textWidth(QStringLiteral("ToggleSwitch")), 30));
    QCOMPARE(toggle.minimumSize(), toggle.size());
    QCOMPARE(toggle.maximumSize(), toggle.size());
}

void tst_ToggleSwitch::setText()
{
    ToggleSwitch toggle;
    const int before = toggle.width();
    toggle.setText(QStringLiteral("Show the points of the ground class"));
    QVERIFY(toggle.width() > before);
    QCOMPARE(toggle.size(),
             QSize(textWidth(QStringLiteral("Show the points of the ground class")), 30));
    toggle.setFixedHeight(44);
    toggle.setText(QStringLiteral("x"));
    QCOMPARE(toggle.size(), QSize(textWidth(QStringLiteral("x")), 44));
    toggle.setText(QString());
    QCOMPARE(toggle.size(), QSize(78, 44));
}

void tst_ToggleSwitch::setCheckedTellsOnlyOfChanges()
{
    ToggleSwitch toggle;
    QSignalSpy toggled(&toggle, &ToggleSwitch::toggled);
    toggle.setChecked(false);
    QCOMPARE(toggled.count(), 0);
    toggle.setChecked(true);
    toggle.setChecked(true);
    QCOMPARE(toggled.count(), 1);
    QCOMPARE(toggled.at(0).at(0).toBool(), true);
    toggle.setChecked(false);
    QCOMPARE(toggled.count(), 2);
    QCOMPARE(toggled.at(1).at(0).toBool(), false);
}

void tst_ToggleSwitch::presses_data()
{
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<bool>("toggles");
    QTest::newRow("left of the track") << QPoint(1, 10) << true;
    QTest::newRow("very left") << QPoint(0, 10) << true;
    QTest::newRow("middle") << QPoint(24, 15) << true;
    QTest::newRow("last live column") << QPoint(42, 10) << true;
    QTest::newRow("first dead column") << QPoint(43, 10) << false;
    QTest::newRow("track's end") << QPoint(44, 10) << false;
    QTest::newRow("above") << QPoint(20, 2) << false;
    QTest::newRow("first live row") << QPoint(20, 3) << true;
    QTest::newRow("last live row") << QPoint(20, 27) << true;
    QTest::newRow("below") << QPoint(20, 28) << false;
    QTest::newRow("text") << QPoint(70, 15) << false;
}

void tst_ToggleSwitch::presses()
{
    QFETCH(QPoint, pos);
    QFETCH(bool, toggles);
    ToggleSwitch toggle;
    toggle.show();
    QSignalSpy toggled(&toggle, &ToggleSwitch::toggled);
    press(&toggle, pos);
    QCOMPARE(toggled.count(), toggles ? 1 : 0);
    QCOMPARE(toggle.isChecked(), toggles);
    press(&toggle, pos);
    QCOMPARE(toggled.count(), toggles ? 2 : 0);
    QVERIFY(!toggle.isChecked());
}

void tst_ToggleSwitch::otherButtons()
{
    ToggleSwitch toggle;
    toggle.show();
    QSignalSpy toggled(&toggle, &ToggleSwitch::toggled);
    press(&toggle, QPoint(20, 15), Qt::RightButton);
    press(&toggle, QPoint(20, 15), Qt::MiddleButton);
    QCOMPARE(toggled.count(), 0);
    // The press counts, wherever the button is released.
    QTest::mousePress(&toggle, Qt::LeftButton, Qt::NoModifier, QPoint(20, 15));
    QCOMPARE(toggled.count(), 1);
    QTest::mouseRelease(&toggle, Qt::LeftButton, Qt::NoModifier, QPoint(70, 15));
    QCOMPARE(toggled.count(), 1);
}

void tst_ToggleSwitch::disabledIgnoresPresses()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *toggle = new ToggleSwitch;
    layout->addWidget(toggle);
    window.show();
    toggle->setEnabled(false);
    press(toggle, QPoint(20, 15));
    QVERIFY(!toggle->isChecked());
    toggle->setChecked(true);
    QVERIFY(toggle->isChecked());
}

void tst_ToggleSwitch::pressesStayHere()
{
    class Parent : public QWidget
    {
    public:
        int presses = 0;

    protected:
        void mousePressEvent(QMouseEvent *) override { ++presses; }
    } parent;
    parent.resize(300, 100);
    auto *toggle = new ToggleSwitch(&parent);
    parent.show();
    press(toggle, QPoint(20, 15), Qt::RightButton);
    press(toggle, QPoint(70, 15));
    press(toggle, QPoint(20, 15));
    QCOMPARE(parent.presses, 0);
    QVERIFY(toggle->isChecked());
}

void tst_ToggleSwitch::everyFrameAsPainted_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<bool>("isClipped");
    for (const QImage::Format format :
         {QImage::Format_RGB32, QImage::Format_ARGB32_Premultiplied, QImage::Format_ARGB32,
          QImage::Format_RGB16, QImage::Format_RGBA8888}) {
        QTest::newRow(qPrintable(QStringLiteral("format %1").arg(format))) << int(format) << false;
        QTest::newRow(qPrintable(QStringLiteral("format %1, clipped").arg(format)))
            << int(format) << true;
    }
}

/** Pixel by pixel what a painter paints with the shapes that a switch consists of. */
void tst_ToggleSwitch::everyFrameAsPainted()
{
    QFETCH(int, format);
    QFETCH(bool, isClipped);
    ToggleSwitch toggle;
    toggle.setText(QString());
    // All kinds of colours below the smooth edges.
    QImage background(toggle.size(), QImage::Format_RGB32);
    quint32 noise = 1;
    for (int y = 0; y < background.height(); ++y) {
        for (int x = 0; x < background.width(); ++x) {
            noise = noise * 1664525 + 1013904223;
            background.setPixel(x, y, 0xff000000 | (noise >> 8));
        }
    }
    background = background.convertToFormat(QImage::Format(format));
    const QRegion clip =
        isClipped ? QRegion(0, 0, 20, 12) + QRegion(8, 10, 60, 15) : QRegion(toggle.rect());

    QSet<int> offsets;
    for (const bool checked : {true, false}) {
        toggle.setChecked(checked);
        double position = checked ? 0.0 : 1.0;
        for (int frame = 0; frame < 16; ++frame) {
            const int offset = int(18 * position);
            offsets.insert(offset);
            QImage expected = background;
            QPainter painter(&expected);
            painter.setClipRegion(clip);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setBrush(checked ? Accent : Dark);
            painter.setPen(QPen(Accent, 2));
            painter.drawRoundedRect(QRectF(3, 3, 42, 24), 12, 12);
            painter.setPen(checked ? QPen(Qt::NoPen) : QPen(Accent, 2));
            painter.setBrush(Dark);
            painter.drawEllipse(QRectF(6 + offset, 6, 18, 18));
            painter.end();

            QImage picture = background;
            toggle.render(&picture, clip.boundingRect().topLeft(), clip, QWidget::DrawChildren);
            QCOMPARE(picture, expected);
            tick(&toggle);
            const double target = checked ? 1.0 : 0.0;
            position =
                qAbs(position - target) < 0.05 ? target : position + (target - position) * 0.2;
        }
    }
    QVERIFY(offsets.size() > 10);
}

void tst_ToggleSwitch::toggledComesAtOnceAndTheKnobLags()
{
    ToggleSwitch toggle;
    toggle.show();
    bool seen = false;
    connect(&toggle, &ToggleSwitch::toggled, &toggle,
            [&](bool on) { seen = on && toggle.isChecked(); });
    toggle.setChecked(true);
    QVERIFY(seen);
    // Yellow at once, the knob still at the left.
    QCOMPARE(knobOnYellow(&toggle), qMakePair(7, 22));
}

void tst_ToggleSwitch::ticks()
{
    ToggleSwitch toggle;
    toggle.show();
    toggle.setChecked(true);
    double position = 0.0;
    for (int i = 1; i <= 14; ++i) {
        tick(&toggle);
        position += (1.0 - position) * 0.2;
        const int left = 6 + int(18.0 * position);
        const auto knob = knobOnYellow(&toggle);
        QVERIFY2(knob.first == left + 1 && knob.second == left + 16,
                 qPrintable(
                     QStringLiteral("tick %1: %2 to %3").arg(i).arg(knob.first).arg(knob.second)));
    }
    QVERIFY(1.0 - position < 0.05);
    tick(&toggle);
    QCOMPARE(knobOnYellow(&toggle), qMakePair(25, 40));
    tick(&toggle);
    QCOMPARE(knobOnYellow(&toggle), qMakePair(25, 40));
}

void tst_ToggleSwitch::turnsRoundWhereItIs()
{
    ToggleSwitch toggle;
    toggle.show();
    toggle.setChecked(true);
    tick(&toggle);
    tick(&toggle);
    tick(&toggle);
    // 0.488 of the way to the right, from there back, and forth again.
    toggle.setChecked(false);
    tick(&toggle);
    toggle.setChecked(true);
    const int left = 6 + int(18.0 * 0.488 * 0.8);
    QCOMPARE(knobOnYellow(&toggle), qMakePair(left + 1, left + 16));
}

void tst_ToggleSwitch::theTimerRunsByItself()
{
    TickCounter counter;
    ToggleSwitch toggle;
    toggle.show();
    toggle.setChecked(false);
    QVERIFY(QTest::qWaitForWindowExposed(&toggle));
    QCOMPARE(counter.ticks, 0);
    toggle.setChecked(true);
    QTRY_COMPARE(knobOnYellow(&toggle), qMakePair(25, 40));
    // It stops at the tick that snaps.
    QCOMPARE(counter.ticks, 15);
    QVERIFY(counter.timer);
    QVERIFY(!counter.timer->isActive());
    QCOMPARE(counter.timer->interval(), 16);
    QVERIFY(!counter.timer->isSingleShot());
    QVERIFY(!counter.timer->parent());
}

void tst_ToggleSwitch::repaints()
{
    class Switch : public ToggleSwitch
    {
    public:
        int paints = 0;

    protected:
        void paintEvent(QPaintEvent *event) override
        {
            ++paints;
            ToggleSwitch::paintEvent(event);
        }
    } toggle;
    toggle.show();
    QVERIFY(QTest::qWaitForWindowExposed(&toggle));
    QTRY_VERIFY(toggle.paints > 0);
    QCoreApplication::processEvents();
    int before = toggle.paints;
    tick(&toggle);
    QTRY_COMPARE(toggle.paints, before + 1);
    // A text of the same width, even the same text.
    before = toggle.paints;
    toggle.setText(QStringLiteral("ToggleSwitch"));
    QTRY_COMPARE(toggle.paints, before + 1);
    // The knob's way to the right, and the tick that snaps.
    before = toggle.paints;
    toggle.setChecked(true);
    QTRY_VERIFY(toggle.paints > before);
    finish(&toggle);
    QCoreApplication::processEvents();
    before = toggle.paints;
    toggle.setChecked(false);
    tick(&toggle);
    QTRY_VERIFY(toggle.paints > before);
}

void tst_ToggleSwitch::pixels_data()
{
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<qreal>("ratio");
    for (const qreal ratio : {1.0, 2.0}) {
        for (const bool enabled : {true, false}) {
            for (const bool checked : {false, true}) {
                QTest::newRow(qPrintable(
                    QStringLiteral("%1 %2 @%3")
                        .arg(checked ? QStringLiteral("on") : QStringLiteral("off"))
                        .arg(enabled ? QStringLiteral("enabled") : QStringLiteral("disabled"))
                        .arg(ratio)))
                    << checked << enabled << ratio;
            }
        }
    }
}

void tst_ToggleSwitch::pixels()
{
    QFETCH(bool, checked);
    QFETCH(bool, enabled);
    QFETCH(qreal, ratio);
    ToggleSwitch toggle;
    toggle.setChecked(checked);
    toggle.setEnabled(enabled);
    toggle.show();
    finish(&toggle);
    const QImage image = painted(&toggle, ratio);
    // The middle of the logical pixel.
    const auto at = [&](double x, double y) {
        return image.pixelColor(int((x + 0.5) * ratio), int((y + 0.5) * ratio));
    };

    const int knobLeft = checked ? 24 : 6;
    QCOMPARE(at(knobLeft + 8, 15), Dark);
    // The free half of the track.
    QCOMPARE(at(checked ? 12 : 36, 15), checked ? Accent : Dark);
    // The ring lies 1 px to either side of the track's edge.
    QCOMPARE(at(24, 2), Accent);
    QCOMPARE(at(24, 3), Accent);
    QCOMPARE(at(24, 26), Accent);
    QCOMPARE(at(24, 27), Accent);
    QCOMPARE(at(3, 14), Accent);
    QCOMPARE(at(44, 14), Accent);
    QVERIFY(at(2, 14).red() > 128);
    QVERIFY(at(45, 14).red() > 128);
    QCOMPARE(at(24, 1), QColor(Qt::blue));
    QCOMPARE(at(24, 28), QColor(Qt::blue));
    QCOMPARE(at(1, 14), QColor(Qt::blue));
    QCOMPARE(at(46, 14), QColor(Qt::blue));
    // Round ends.
    QCOMPARE(at(3, 3), QColor(Qt::blue));
    QCOMPARE(at(44, 26), QColor(Qt::blue));
    if (!checked) {
        // A ring around the dark knob.
        QCOMPARE(at(6, 15), Accent);
        QCOMPARE(at(23, 15), Accent);
    }
}

void tst_ToggleSwitch::theTextIsPainted()
{
    ToggleSwitch toggle;
    toggle.setText(QStringLiteral("MMM"));
    toggle.show();
    const QImage image = painted(&toggle);
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 48; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != QColor(Qt::blue)) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    QVERIFY(!ink.isEmpty());
    QVERIFY(ink.left() >= 54 && ink.left() <= 57);
    QVERIFY(qAbs(ink.center().y() - 15) <= 2);
    QVERIFY(ink.right() < image.width() - 1);
    bool white = false;
    for (int x = ink.left(); x <= ink.right(); ++x) {
        white = white || image.pixelColor(x, ink.center().y()) == QColor(Qt::white);
    }
    QVERIFY(white);
}

void tst_ToggleSwitch::theApplicationsFontCounts()
{
    ToggleSwitch toggle;
    toggle.setText(QStringLiteral("Ground"));
    toggle.show();
    const QImage before = painted(&toggle);
    QFont large = toggle.font();
    large.setPointSize(2 * QFontInfo(large).pointSize());
    large.setItalic(true);
    toggle.setFont(large);
    QCOMPARE(painted(&toggle), before);
    toggle.setText(QStringLiteral("Ground"));
    QCOMPARE(painted(&toggle), before);
}

void tst_ToggleSwitch::destroyedWhileItAnimates()
{
    const QPointer<ToggleSwitch> toggle = new ToggleSwitch;
    toggle->show();
    toggle->setChecked(true);
    QSignalSpy destroyed(toggle.data(), &QObject::destroyed);
    tick(toggle);
    delete toggle.data();
    QCOMPARE(destroyed.count(), 1);
    // Nothing is left that a tick could reach.
    QTest::qWait(0);
    QVERIFY(!toggle);
}

void tst_ToggleSwitch::deletedFromToggled()
{
    const QPointer<ToggleSwitch> pressed = new ToggleSwitch;
    pressed->show();
    connect(pressed.data(), &ToggleSwitch::toggled, [pressed] { delete pressed.data(); });
    QTest::mousePress(pressed, Qt::LeftButton, Qt::NoModifier, QPoint(20, 15));
    QVERIFY(!pressed);

    const QPointer<ToggleSwitch> set = new ToggleSwitch;
    connect(set.data(), &ToggleSwitch::toggled, [set] { delete set.data(); });
    set->setChecked(true);
    QVERIFY(!set);
}

void tst_ToggleSwitch::accessible()
{
    ToggleSwitch toggle;
    toggle.setText(QStringLiteral("Ground"));
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&toggle);
    QVERIFY(interface);
    QCOMPARE(interface->role(), QAccessible::CheckBox);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Ground"));
    QVERIFY(interface->state().checkable);
    QVERIFY(!interface->state().checked);
    toggle.setChecked(true);
    QVERIFY(interface->state().checked);
    toggle.setAccessibleName(QStringLiteral("Ground points"));
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Ground points"));
    toggle.setEnabled(false);
    QVERIFY(interface->state().disabled);
}

void tst_ToggleSwitch::accessibleToggle()
{
    ToggleSwitch toggle;
    QSignalSpy toggled(&toggle, &ToggleSwitch::toggled);
    QAccessibleActionInterface *action =
        QAccessible::queryAccessibleInterface(&toggle)->actionInterface();
    QVERIFY(action);
    const QString name = QAccessibleActionInterface::toggleAction();
    QVERIFY(action->actionNames().contains(name));
    action->doAction(name);
    QVERIFY(toggle.isChecked());
    action->doAction(name);
    QVERIFY(!toggle.isChecked());
    QCOMPARE(toggled.count(), 2);
    toggle.setEnabled(false);
    QVERIFY(!action->actionNames().contains(name));
    action->doAction(name);
    QCOMPARE(toggled.count(), 2);

    // Whoever is asked for the action may be gone when it is done.
    const QPointer<ToggleSwitch> doomed = new ToggleSwitch;
    connect(doomed.data(), &ToggleSwitch::toggled, [doomed] { delete doomed.data(); });
    QAccessible::queryAccessibleInterface(doomed)->actionInterface()->doAction(name);
    QVERIFY(!doomed);
}

void tst_ToggleSwitch::accessibleByTheHost()
{
    HostSwitch theirs;
    QCOMPARE(QAccessible::queryAccessibleInterface(&theirs)->role(), QAccessible::RadioButton);
    PlainSwitch plain;
    QCOMPARE(QAccessible::queryAccessibleInterface(&plain)->role(), QAccessible::CheckBox);
}

LMTEST_MAIN(tst_ToggleSwitch)
#include "tst_toggleswitch.moc"
