#include "lmtest.h"

#include <lmwidgets/roundcheckbox.h>

#include <QAccessible>
#include <QImage>
#include <QPainter>
#include <QPointer>
#include <QSignalSpy>
#include <QVBoxLayout>

using LM::Widgets::RoundCheckBox;

namespace {

const QColor Accent(255, 200, 4);

QImage painted(QWidget *widget, qreal ratio)
{
    QImage image(widget->size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::blue);
    widget->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

/** Counts the releases that a child did not take. */
class Parent : public QWidget
{
public:
    int releases = 0;

protected:
    void mouseReleaseEvent(QMouseEvent *) override { ++releases; }
};

} // namespace

class tst_RoundCheckBox : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void fresh();
    void setCheckedTellsEachTime();
    void releases_data();
    void releases();
    void anyButtonCounts();
    void aReleaseOutsideGoesOn();
    void disabledIgnoresTheMouse();
    void pixels_data();
    void pixels();
    void repaints();
    void deletedFromToggled();
    void accessible();
};

void tst_RoundCheckBox::metaObject()
{
    QCOMPARE(lmtest::ownMethods(RoundCheckBox::staticMetaObject),
             QStringList({QStringLiteral("signal toggled(bool check)"),
                          QStringLiteral("slot setChecked(bool check)")}));
    QCOMPARE(RoundCheckBox::staticMetaObject.superClass(), &QWidget::staticMetaObject);
}

void tst_RoundCheckBox::fresh()
{
    RoundCheckBox box;
    QVERIFY(!box.isChecked());
    QCOMPARE(box.minimumSize(), QSize(60, 30));
    QCOMPARE(box.maximumSize(), QSize(60, 30));
    QVERIFY(box.testAttribute(Qt::WA_MouseTracking));
    QVERIFY(box.testAttribute(Qt::WA_TranslucentBackground));
}

void tst_RoundCheckBox::setCheckedTellsEachTime()
{
    RoundCheckBox box;
    QSignalSpy toggled(&box, &RoundCheckBox::toggled);
    box.setChecked(true);
    box.setChecked(true);
    QCOMPARE(toggled.count(), 2);
    box.setChecked(false);
    box.setChecked(false);
    QCOMPARE(toggled.count(), 4);
    QCOMPARE(toggled.at(0).at(0).toBool(), true);
    QCOMPARE(toggled.at(1).at(0).toBool(), true);
    QCOMPARE(toggled.at(2).at(0).toBool(), false);
    QCOMPARE(toggled.at(3).at(0).toBool(), false);
}

void tst_RoundCheckBox::releases_data()
{
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<bool>("toggles");
    QTest::newRow("middle") << QPoint(30, 15) << true;
    QTest::newRow("first pixel") << QPoint(0, 0) << true;
    QTest::newRow("last pixel") << QPoint(59, 29) << true;
    QTest::newRow("right of it") << QPoint(60, 15) << false;
    QTest::newRow("below it") << QPoint(30, 30) << false;
    QTest::newRow("left of it") << QPoint(-1, 15) << false;
    QTest::newRow("above it") << QPoint(30, -1) << false;
}

void tst_RoundCheckBox::releases()
{
    QFETCH(QPoint, pos);
    QFETCH(bool, toggles);
    RoundCheckBox box;
    box.show();
    QSignalSpy toggled(&box, &RoundCheckBox::toggled);
    QTest::mousePress(&box, Qt::LeftButton, Qt::NoModifier, QPoint(30, 15));
    QCOMPARE(toggled.count(), 0);
    lmtest::mouseAt(&box, QEvent::MouseButtonRelease, box.mapToGlobal(pos), Qt::LeftButton,
                    Qt::NoButton);
    QCOMPARE(toggled.count(), toggles ? 1 : 0);
    QCOMPARE(box.isChecked(), toggles);
}

void tst_RoundCheckBox::anyButtonCounts()
{
    RoundCheckBox box;
    box.show();
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton, Qt::BackButton}) {
        const bool before = box.isChecked();
        QTest::mouseClick(&box, button);
        QCOMPARE(box.isChecked(), !before);
    }
}

void tst_RoundCheckBox::aReleaseOutsideGoesOn()
{
    Parent parent;
    auto *box = new RoundCheckBox(&parent);
    parent.resize(200, 100);
    parent.show();
    QTest::mousePress(box, Qt::LeftButton);
    lmtest::mouseAt(box, QEvent::MouseButtonRelease, box->mapToGlobal(QPoint(100, 50)),
                    Qt::LeftButton, Qt::NoButton);
    QVERIFY(!box->isChecked());
    QCOMPARE(parent.releases, 1);
    // One inside is the box's own.
    QTest::mouseClick(box, Qt::LeftButton);
    QVERIFY(box->isChecked());
    QCOMPARE(parent.releases, 1);
}

void tst_RoundCheckBox::disabledIgnoresTheMouse()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *box = new RoundCheckBox;
    layout->addWidget(box);
    box->setEnabled(false);
    window.show();
    QTest::mouseClick(box, Qt::LeftButton);
    QVERIFY(!box->isChecked());
}

void tst_RoundCheckBox::pixels_data()
{
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<qreal>("ratio");
    for (const qreal ratio : {1.0, 2.0}) {
        QTest::newRow(qPrintable(QStringLiteral("off @%1").arg(ratio))) << false << true << ratio;
        QTest::newRow(qPrintable(QStringLiteral("on @%1").arg(ratio))) << true << true << ratio;
        QTest::newRow(qPrintable(QStringLiteral("off, disabled @%1").arg(ratio)))
            << false << false << ratio;
    }
}

void tst_RoundCheckBox::pixels()
{
    QFETCH(bool, checked);
    QFETCH(bool, enabled);
    QFETCH(qreal, ratio);
    RoundCheckBox box;
    box.setChecked(checked);
    box.setEnabled(enabled);
    box.show();
    const QImage image = painted(&box, ratio);
    const auto at = [&](double x, double y) {
        return image.pixelColor(int((x + 0.5) * ratio), int((y + 0.5) * ratio));
    };
    // Checked stands at the left.
    const int left = checked ? 3 : 33;
    QCOMPARE(at(left + 12, 15), QColor(Qt::black));
    QCOMPARE(at(left + 1, 15), QColor(Qt::black));
    QCOMPARE(at(left + 22, 15), QColor(Qt::black));
    QCOMPARE(at(left + 12, 4), QColor(Qt::black));
    QCOMPARE(at(left + 12, 25), QColor(Qt::black));
    QCOMPARE(at(left - 2, 15), Accent);
    QCOMPARE(at(left + 12, 1), Accent);
    QCOMPARE(at(left + 12, 28), Accent);
    QCOMPARE(at(checked ? 45 : 15, 15), Accent);
    // Round ends.
    QCOMPARE(at(0, 0), QColor(Qt::blue));
    QCOMPARE(at(59, 0), QColor(Qt::blue));
    QCOMPARE(at(1, 28), QColor(Qt::blue));
}

void tst_RoundCheckBox::repaints()
{
    class Box : public RoundCheckBox
    {
    public:
        int paints = 0;

    protected:
        void paintEvent(QPaintEvent *event) override
        {
            ++paints;
            RoundCheckBox::paintEvent(event);
        }
    } box;
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    QTRY_VERIFY(box.paints > 0);
    QCoreApplication::processEvents();
    int before = box.paints;
    box.setChecked(true);
    QTRY_COMPARE(box.paints, before + 1);
    // Also with the state that it has.
    box.setChecked(true);
    QTRY_COMPARE(box.paints, before + 2);
    before = box.paints;
    QTest::mouseClick(&box, Qt::LeftButton);
    QTRY_COMPARE(box.paints, before + 1);
}

void tst_RoundCheckBox::deletedFromToggled()
{
    const QPointer<RoundCheckBox> clicked = new RoundCheckBox;
    clicked->show();
    connect(clicked.data(), &RoundCheckBox::toggled, [clicked] { delete clicked.data(); });
    QTest::mouseClick(clicked, Qt::LeftButton);
    QVERIFY(!clicked);

    const QPointer<RoundCheckBox> set = new RoundCheckBox;
    connect(set.data(), &RoundCheckBox::toggled, [set] { delete set.data(); });
    set->setChecked(true);
    QVERIFY(!set);
}

void tst_RoundCheckBox::accessible()
{
    RoundCheckBox box;
    box.setAccessibleName(QStringLiteral("Lock"));
    QSignalSpy toggled(&box, &RoundCheckBox::toggled);
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&box);
    QVERIFY(interface);
    QCOMPARE(interface->role(), QAccessible::CheckBox);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Lock"));
    QVERIFY(interface->state().checkable);
    QVERIFY(!interface->state().checked);
    QAccessibleActionInterface *action = interface->actionInterface();
    QVERIFY(action);
    action->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(box.isChecked());
    QVERIFY(interface->state().checked);
    QCOMPARE(toggled.count(), 1);

    // Whoever is asked for the action may be gone when it is done.
    const QPointer<RoundCheckBox> doomed = new RoundCheckBox;
    connect(doomed.data(), &RoundCheckBox::toggled, [doomed] { delete doomed.data(); });
    QAccessible::queryAccessibleInterface(doomed)->actionInterface()->doAction(
        QAccessibleActionInterface::toggleAction());
    QVERIFY(!doomed);
}

LMTEST_MAIN(tst_RoundCheckBox)
#include "tst_roundcheckbox.moc"
