#include "lmtest.h"
#include "paintrecorder.h"

#include <lmwidgets/buttonlefthavegreendots.h>

#include <QImage>

#include <memory>

namespace {

/** Counts how often the button is painted. */
class CountingButton : public ButtonLeftHaveGreenDots
{
public:
    using ButtonLeftHaveGreenDots::ButtonLeftHaveGreenDots;
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        ButtonLeftHaveGreenDots::paintEvent(event);
    }
};

QImage picture(QWidget &widget, int ratio)
{
    QImage image(widget.size() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::gray);
    widget.render(&image);
    return image;
}

QVector<DrawnEllipse> rings(QWidget &widget, int *count = nullptr)
{
    PaintRecorder recorder(widget.size());
    widget.render(&recorder, QPoint(), QRegion(), QWidget::RenderFlags());
    if (count) {
        *count = recorder.count();
    }
    return recorder.ellipses();
}

} // namespace

class tst_ButtonLeftHaveGreenDots : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void newButton();
    void ring_data();
    void ring();
    void ringIsDrawnFirst();
    void colors_data();
    void colors();
    void colorDoesNotRepaint();
    void ringIsClippedAway_data();
    void ringIsClippedAway();
    void clicks();
    void clickDestroysTheButton();
};

void tst_ButtonLeftHaveGreenDots::newButton()
{
    QWidget parent;
    ButtonLeftHaveGreenDots button(&parent);
    QCOMPARE(button.parentWidget(), &parent);
    const QMetaObject *meta = button.metaObject();
    QCOMPARE(QLatin1String(meta->className()), QLatin1String("ButtonLeftHaveGreenDots"));
    QCOMPARE(meta->superClass(), &QToolButton::staticMetaObject);
    QVERIFY(lmtest::ownMethods(*meta).isEmpty());
    QVERIFY(!ButtonLeftHaveGreenDots().parent());
}

void tst_ButtonLeftHaveGreenDots::ring_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("middle");
    QTest::newRow("even") << QSize(80, 30) << 14;
    QTest::newRow("odd") << QSize(80, 31) << 15;
    QTest::newRow("small") << QSize(1, 1) << 0;
}

void tst_ButtonLeftHaveGreenDots::ring()
{
    QFETCH(QSize, size);
    QFETCH(int, middle);
    ButtonLeftHaveGreenDots button;
    button.resize(size);
    const QVector<DrawnEllipse> drawn = rings(button);
    QCOMPARE(drawn.size(), 1);
    QCOMPARE(drawn.at(0).rect, QRectF(-18, middle - 5, 10, 10));
    QCOMPARE(drawn.at(0).pen.color(), QColor(Qt::green));
    QCOMPARE(drawn.at(0).pen.width(), 2);
    QCOMPARE(drawn.at(0).brush.style(), Qt::NoBrush);
    QVERIFY(drawn.at(0).antialiased);
}

void tst_ButtonLeftHaveGreenDots::ringIsDrawnFirst()
{
    ButtonLeftHaveGreenDots button;
    button.setText(QStringLiteral("Run"));
    button.resize(80, 30);
    int count = 0;
    const QVector<DrawnEllipse> drawn = rings(button, &count);
    QCOMPARE(drawn.size(), 1);
    QCOMPARE(drawn.at(0).position, 0);
    QVERIFY(count > 1);
}

void tst_ButtonLeftHaveGreenDots::colors_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QColor>("expected");
    QTest::newRow("red") << QColor(Qt::red) << QColor(Qt::red);
    QTest::newRow("half transparent") << QColor(1, 2, 3, 128) << QColor(1, 2, 3, 128);
    QTest::newRow("invalid") << QColor() << QColor();
}

void tst_ButtonLeftHaveGreenDots::colors()
{
    QFETCH(QColor, color);
    QFETCH(QColor, expected);
    ButtonLeftHaveGreenDots button;
    button.resize(80, 30);
    button.setShowDotColor(color);
    QCOMPARE(rings(button).at(0).pen.color().rgba(), expected.rgba());
}

void tst_ButtonLeftHaveGreenDots::colorDoesNotRepaint()
{
    CountingButton button;
    button.resize(80, 30);
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    QTRY_VERIFY(button.paints > 0);
    // The window system may ask for a late picture of the new window, but not at every colour.
    int hue = 0;
    const auto paintsNothing = [&button, &hue] {
        const int before = button.paints;
        button.setShowDotColor(QColor::fromHsv(++hue % 360, 255, 255));
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        return button.paints == before;
    };
    QTRY_VERIFY(paintsNothing());
    const int before = button.paints;
    button.update();
    QTRY_COMPARE(button.paints, before + 1);
}

void tst_ButtonLeftHaveGreenDots::ringIsClippedAway_data()
{
    QTest::addColumn<int>("ratio");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("1") << 1 << true;
    QTest::newRow("2") << 2 << true;
    QTest::newRow("1, disabled") << 1 << false;
    QTest::newRow("2, disabled") << 2 << false;
}

void tst_ButtonLeftHaveGreenDots::ringIsClippedAway()
{
    QFETCH(int, ratio);
    QFETCH(bool, enabled);
    // Room for the ring at the left of the button, if anything let it out.
    const auto window = [=](QToolButton *button) {
        auto result = std::make_unique<QWidget>();
        result->resize(140, 40);
        button->setParent(result.get());
        button->setGeometry(40, 5, 80, 30);
        button->setText(QStringLiteral("Run"));
        button->setEnabled(enabled);
        return result;
    };
    auto *button = new ButtonLeftHaveGreenDots;
    button->setShowDotColor(Qt::magenta);
    const auto ours = window(button);
    const auto stock = window(new QToolButton);
    QCOMPARE(picture(*ours, ratio), picture(*stock, ratio));
}

void tst_ButtonLeftHaveGreenDots::clicks()
{
    ButtonLeftHaveGreenDots button;
    button.resize(80, 30);
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    QSignalSpy clicked(&button, &QToolButton::clicked);
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(clicked.count(), 1);
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_Space);
    QCOMPARE(clicked.count(), 2);
    // The place of the ring is not the button's.
    QTest::mousePress(&button, Qt::LeftButton);
    QTest::mouseRelease(&button, Qt::LeftButton, Qt::NoModifier, QPoint(-13, 15));
    QCOMPARE(clicked.count(), 2);
}

void tst_ButtonLeftHaveGreenDots::clickDestroysTheButton()
{
    const QPointer<ButtonLeftHaveGreenDots> button(new ButtonLeftHaveGreenDots);
    button->resize(80, 30);
    button->show();
    QVERIFY(QTest::qWaitForWindowExposed(button));
    connect(button, &QToolButton::clicked, this, [&] { delete button.data(); });
    QTest::mouseClick(button.data(), Qt::LeftButton);
    QVERIFY(!button);
}

LMTEST_MAIN(tst_ButtonLeftHaveGreenDots)

#include "tst_buttonlefthavegreendots.moc"
