#include "lmtest.h"

#include <lmwidgets/frameline.h>

#include <QFrame>
#include <QPointer>
#include <QVBoxLayout>

#include <limits>
#include <memory>
#include <type_traits>

using LM::Widgets::FrameLine;

namespace {

const QString Property = QStringLiteral("isBackgroundSeparator");

static_assert(std::is_copy_assignable<FrameLine>::value, "it has nothing that forbids it");
static_assert(std::is_move_assignable<FrameLine>::value, "it has nothing that forbids it");

} // namespace

class tst_FrameLine : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void horizontal();
    void vertical();
    void thickness_data();
    void thickness();
    void beyondWhatAWidgetCanBe();
    void propertyNames_data();
    void propertyNames();
    void emptyPropertyName();
    void withoutParent();
    void parentOwnsTheLine();
    void standsInAHostLayout();
    void propertySelectsTheColour();
    void deletedInAnyOrder();
};

void tst_FrameLine::horizontal()
{
    QWidget parent;
    QFrame *line = FrameLine::createHorizontalLine(Property, &parent, 1, 0, 0);
    QVERIFY(line);
    QCOMPARE(line->minimumHeight(), 1);
    QCOMPARE(line->maximumHeight(), 1);
    QCOMPARE(line->minimumWidth(), 0);
    QCOMPARE(line->maximumWidth(), QWIDGETSIZE_MAX);
    QCOMPARE(line->property("isBackgroundSeparator"), QVariant(true));
    QCOMPARE(line->dynamicPropertyNames(), QList<QByteArray>{"isBackgroundSeparator"});
    QCOMPARE(line->parentWidget(), &parent);
    QCOMPARE(line->frameShadow(), QFrame::Plain);
    QCOMPARE(line->frameShape(), QFrame::NoFrame);
    QCOMPARE(line->lineWidth(), 1);
    QCOMPARE(line->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(line->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    // The parent's own layout is the host's business.
    QVERIFY(!parent.layout());
    QCOMPARE(parent.children(), QObjectList{line});
}

void tst_FrameLine::vertical()
{
    QWidget parent;
    QFrame *line = FrameLine::createVerticalLine(Property, &parent, 2, 4, 6);
    QVERIFY(line);
    QCOMPARE(line->minimumWidth(), 2);
    QCOMPARE(line->maximumWidth(), 2);
    QCOMPARE(line->minimumHeight(), 0);
    QCOMPARE(line->maximumHeight(), QWIDGETSIZE_MAX);
    QCOMPARE(line->property("isBackgroundSeparator"), QVariant(true));
    QCOMPARE(line->parentWidget(), &parent);
    QCOMPARE(line->frameShadow(), QFrame::Plain);
    QCOMPARE(line->frameShape(), QFrame::VLine);
    QCOMPARE(line->lineWidth(), 2);
    QCOMPARE(line->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(line->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QVERIFY(!parent.layout());
}

void tst_FrameLine::thickness_data()
{
    QTest::addColumn<unsigned int>("width");
    QTest::newRow("none") << 0U;
    QTest::newRow("one") << 1U;
    QTest::newRow("thick") << 500U;
    QTest::newRow("thickest") << unsigned(QWIDGETSIZE_MAX) - 1;
}

void tst_FrameLine::thickness()
{
    QFETCH(unsigned int, width);
    const int pixels = int(width);
    QWidget parent;
    QFrame *horizontal = FrameLine::createHorizontalLine(Property, &parent, width, width, width);
    QCOMPARE(horizontal->minimumHeight(), pixels);
    QCOMPARE(horizontal->maximumHeight(), pixels);
    QCOMPARE(horizontal->lineWidth(), qMin(pixels, 32767));
    QFrame *vertical = FrameLine::createVerticalLine(Property, &parent, width, width, width);
    QCOMPARE(vertical->minimumWidth(), pixels);
    QCOMPARE(vertical->maximumWidth(), pixels);
    QCOMPARE(vertical->lineWidth(), qMin(pixels, 32767));
}

void tst_FrameLine::beyondWhatAWidgetCanBe()
{
    // As an int the largest would be negative. Qt takes its own maximum for "no limit".
    QWidget parent;
    for (const unsigned int width : {unsigned(QWIDGETSIZE_MAX), unsigned(QWIDGETSIZE_MAX) + 1,
                                     std::numeric_limits<unsigned int>::max()}) {
        QFrame *horizontal =
            FrameLine::createHorizontalLine(Property, &parent, width, width, width);
        QCOMPARE(horizontal->maximumHeight(), QWIDGETSIZE_MAX);
        QFrame *vertical = FrameLine::createVerticalLine(Property, &parent, width, width, width);
        QCOMPARE(vertical->maximumWidth(), QWIDGETSIZE_MAX);
    }
}

void tst_FrameLine::propertyNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("another") << QStringLiteral("isLine");
    QTest::newRow("blanks") << QStringLiteral("is a line");
    QTest::newRow("not Latin") << QStringLiteral("línea線");
}

void tst_FrameLine::propertyNames()
{
    QFETCH(QString, name);
    QWidget parent;
    QFrame *line = FrameLine::createHorizontalLine(name, &parent, 1, 0, 0);
    QCOMPARE(line->dynamicPropertyNames(), QList<QByteArray>{name.toUtf8()});
    QCOMPARE(line->property(name.toUtf8().constData()), QVariant(true));
}

void tst_FrameLine::emptyPropertyName()
{
    // Without a warning of Qt's.
    const std::unique_ptr<QFrame> line(
        FrameLine::createHorizontalLine(QString(), nullptr, 1, 0, 0));
    QVERIFY(line->dynamicPropertyNames().isEmpty());
}

void tst_FrameLine::withoutParent()
{
    std::unique_ptr<QFrame> line(FrameLine::createVerticalLine(Property, nullptr, 3, 1, 1));
    QVERIFY(!line->parent());
    QVERIFY(line->isWindow());
    line->show();
    QVERIFY(QTest::qWaitForWindowExposed(line.get()));
}

void tst_FrameLine::parentOwnsTheLine()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<QFrame> line = FrameLine::createHorizontalLine(Property, parent.get(), 1, 2, 3);
    parent.reset();
    QVERIFY(line.isNull());
}

void tst_FrameLine::standsInAHostLayout()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    QFrame *line = FrameLine::createHorizontalLine(Property, &window, 3, 9, 9);
    layout->addWidget(line);
    layout->addStretch();
    window.resize(200, 100);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    // The margins were those of the line's own box.
    QCOMPARE(line->geometry(), QRect(0, 0, 200, 3));

    layout->removeWidget(line);
    delete line;
    window.resize(201, 100);
    QCOMPARE(layout->count(), 1);
}

void tst_FrameLine::propertySelectsTheColour()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(FrameLine::createHorizontalLine(Property, &window, 4, 0, 0));
    window.setStyleSheet(
        QStringLiteral("QFrame[isBackgroundSeparator=\"true\"]{background-color:#123456;}"));
    window.resize(40, 4);
    const QImage picture = window.grab().toImage();
    QCOMPARE(picture.pixelColor(20, 2), QColor(0x12, 0x34, 0x56));
}

void tst_FrameLine::deletedInAnyOrder()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    QVector<QPointer<QFrame>> lines;
    for (int i = 0; i < 4; ++i) {
        lines.append(FrameLine::createHorizontalLine(Property, &window, 1, 1, 1));
        lines.append(FrameLine::createVerticalLine(Property, &window, 1, 1, 1));
        layout->addWidget(lines.last());
    }
    for (const int index : {7, 0, 3, 2}) {
        delete lines.at(index);
    }
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    delete lines.at(1);
    delete layout;
    QVERIFY(lines.at(5));
}

LMTEST_MAIN(tst_FrameLine)

#include "tst_frameline.moc"
