#include "lmtest.h"

#include <lmwidgets/flowlayout.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QProxyStyle>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpacerItem>
#include <QStyleFactory>
#include <QVBoxLayout>

#include <functional>
#include <limits>
#include <memory>
#include <random>

using LM::Widgets::FlowLayout;

namespace {

/** An item that counts how often it is asked. */
class Item : public QLayoutItem
{
public:
    explicit Item(const QSize &hint, const QSize &minimum = QSize(0, 0))
        : m_hint(hint), m_minimum(minimum)
    {
    }
    ~Item() override { ++destroyed; }
    QSize sizeHint() const override
    {
        ++hintsAsked;
        return m_hint;
    }
    QSize minimumSize() const override
    {
        ++minimumsAsked;
        return m_minimum;
    }
    QSize maximumSize() const override { return QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX); }
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal | Qt::Vertical; }
    void setGeometry(const QRect &rect) override { m_geometry = rect; }
    QRect geometry() const override { return m_geometry; }
    bool isEmpty() const override { return false; }

    static int destroyed;
    mutable int hintsAsked = 0;
    mutable int minimumsAsked = 0;
    QSize m_hint;
    QSize m_minimum;
    QRect m_geometry;
};

int Item::destroyed = 0;

/** A widget of a fixed size hint that can be changed. */
class Tag : public QWidget
{
public:
    explicit Tag(const QSize &hint) : m_hint(hint) {}
    QSize sizeHint() const override
    {
        ++hintsAsked;
        return m_hint;
    }
    void setHint(const QSize &hint)
    {
        m_hint = hint;
        updateGeometry();
    }
    mutable int hintsAsked = 0;
    std::function<void()> resized;

protected:
    void resizeEvent(QResizeEvent *) override
    {
        if (resized) {
            resized();
        }
    }

private:
    QSize m_hint;
};

/** A style with spacings of a test's own. */
class SpacingStyle : public QProxyStyle
{
public:
    SpacingStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        if (metric == PM_LayoutHorizontalSpacing) {
            askedFor = widget;
            return horizontal;
        }
        return metric == PM_LayoutVerticalSpacing
                   ? vertical
                   : QProxyStyle::pixelMetric(metric, option, widget);
    }
    int layoutSpacing(QSizePolicy::ControlType first, QSizePolicy::ControlType second,
                      Qt::Orientation orientation, const QStyleOption *,
                      const QWidget *) const override
    {
        if (first != QSizePolicy::PushButton || second != QSizePolicy::PushButton) {
            return 99;
        }
        return orientation == Qt::Horizontal ? buttonsBeside : buttonsBelow;
    }

    int horizontal = 11;
    int vertical = 13;
    int buttonsBeside = 5;
    int buttonsBelow = 3;
    mutable const QWidget *askedFor = nullptr;
};

/** Where the items have to be: rows are filled first, then placed. */
struct Model
{
    Model(const QVector<QSize> &hints, const QRect &rect, const QMargins &margins, int hSpacing,
          int vSpacing)
    {
        const int left = rect.left() + margins.left();
        const int room = rect.width() - margins.left() - margins.right();
        QVector<QVector<int>> rows(1);
        int used = 0;
        int rowHeight = 0;
        QVector<int> heights;
        for (int i = 0; i < hints.size(); ++i) {
            // The last column stays free; a row without any height cannot be left.
            if (used + hints[i].width() >= room && rowHeight > 0) {
                heights.append(rowHeight);
                rows.append(QVector<int>());
                used = 0;
                rowHeight = 0;
            }
            rows.last().append(i);
            used += hints[i].width() + hSpacing;
            rowHeight = std::max(rowHeight, hints[i].height());
        }
        heights.append(rowHeight);
        int y = rect.top() + margins.top();
        for (int row = 0; row < rows.size(); ++row) {
            int x = left;
            for (const int i : rows[row]) {
                places.append(QRect(QPoint(x, y), hints[i]));
                x += hints[i].width() + hSpacing;
            }
            y += heights[row] + (row + 1 < rows.size() ? vSpacing : 0);
        }
        height = y - rect.top() + margins.bottom();
    }

    QVector<QRect> places;
    int height = 0;
};

QVector<QRect> places(const QLayout &layout)
{
    QVector<QRect> result;
    for (int i = 0; i < layout.count(); ++i) {
        result.append(layout.itemAt(i)->geometry());
    }
    return result;
}

QVector<Item *> addItems(FlowLayout *layout, const QVector<QSize> &hints)
{
    QVector<Item *> items;
    for (const QSize &hint : hints) {
        items.append(new Item(hint, hint));
        layout->addItem(items.last());
    }
    return items;
}

} // namespace

class tst_FlowLayout : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void empty();
    void threeItems();
    void widths_data();
    void widths();
    void wideItem();
    void takeOutOfRange();
    void spacingWithoutParent();
    void spacingWithoutWidget();

    void constructors();
    void initialMargins();
    void answers();
    void minimumSize();
    void marginsThatDiffer();
    void spacing_data();
    void spacing();
    void spacingOfTheOuterLayout();
    void zeroHeights();
    void againstTheModel();
    void widgetsAgainstTheModel();
    void enormousItems();

    void ownership();
    void addItemIgnores();
    void takeAt();
    void widgetDeleted();
    void nestedLayouts();
    void nestedFlow();
    void nestedLayoutDeleted();

    void hiddenWidgets();
    void spacers();
    void rightToLeft();
    void heightFollowsTheWidth();
    void addAndRemoveWhileVisible();
    void hintsAreAskedOnce();
    void hintsAreDroppedOnChange();
    void hintsOfALooseLayout();
    void styleChange();
    void movedByTheHostBetween();
    void changedSinceThePlacing();
    void ownKindOfItem();
    void removedWhilePlacing();
};

void tst_FlowLayout::empty()
{
    FlowLayout layout(7);
    QCOMPARE(layout.count(), 0);
    for (const int width : {-5, 0, 1, 14, 100}) {
        QCOMPARE(layout.heightForWidth(width), 14);
    }
    QCOMPARE(layout.minimumSize(), QSize(14, 14));
    QCOMPARE(layout.sizeHint(), QSize(14, 14));
    layout.setGeometry(QRect(1, 2, 30, 40));
    QCOMPARE(layout.geometry(), QRect(1, 2, 30, 40));
}

void tst_FlowLayout::threeItems()
{
    FlowLayout layout(0, 10, 10);
    addItems(&layout, QVector<QSize>(3, QSize(50, 20)));
    QCOMPARE(layout.heightForWidth(120), 50);
    layout.setGeometry(QRect(0, 0, 120, 50));
    QCOMPARE(places(layout),
             (QVector<QRect>{QRect(0, 0, 50, 20), QRect(60, 0, 50, 20), QRect(0, 30, 50, 20)}));
}

void tst_FlowLayout::widths_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("all in a row") << 171 << 20;
    QTest::newRow("one px less") << 170 << 50;
    QTest::newRow("two in a row") << 111 << 50;
    QTest::newRow("one px less than two") << 110 << 80;
    QTest::newRow("one") << 50 << 80;
    QTest::newRow("less than one") << 49 << 80;
    QTest::newRow("none") << 0 << 80;
    QTest::newRow("negative") << -100 << 80;
}

void tst_FlowLayout::widths()
{
    QFETCH(int, width);
    FlowLayout layout(0, 10, 10);
    addItems(&layout, QVector<QSize>(3, QSize(50, 20)));
    QTEST(layout.heightForWidth(width), "height");
}

void tst_FlowLayout::wideItem()
{
    FlowLayout layout(5, 10, 4);
    addItems(&layout, {QSize(30, 10), QSize(500, 12), QSize(30, 10), QSize(600, 8)});
    layout.setGeometry(QRect(100, 200, 110, 90));
    QCOMPARE(places(layout), (QVector<QRect>{QRect(105, 205, 30, 10), QRect(105, 219, 500, 12),
                                             QRect(105, 235, 30, 10), QRect(105, 249, 600, 8)}));
    QCOMPARE(layout.heightForWidth(110), 5 + 10 + 4 + 12 + 4 + 10 + 4 + 8 + 5);

    FlowLayout first(0, 10, 4);
    addItems(&first, {QSize(500, 12), QSize(30, 10)});
    first.setGeometry(QRect(0, 0, 100, 100));
    QCOMPARE(places(first), (QVector<QRect>{QRect(0, 0, 500, 12), QRect(0, 16, 30, 10)}));
}

void tst_FlowLayout::takeOutOfRange()
{
    FlowLayout layout(0);
    const QVector<Item *> items = addItems(&layout, {QSize(1, 1), QSize(2, 2)});
    for (const int index :
         {-1, 2, 3, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        QVERIFY(!layout.takeAt(index));
        QVERIFY(!layout.itemAt(index));
    }
    QCOMPARE(layout.count(), 2);
    QCOMPARE(layout.itemAt(0), items[0]);
    QCOMPARE(layout.itemAt(1), items[1]);
}

void tst_FlowLayout::spacingWithoutParent()
{
    SpacingStyle style;
    QWidget holder;
    FlowLayout layout(0);
    for (int i = 0; i < 3; ++i) {
        auto *tag = new Tag(QSize(50, 20));
        tag->setParent(&holder);
        tag->setStyle(&style);
        layout.addWidget(tag);
    }
    QCOMPARE(layout.horizontalSpacing(), -1);
    QCOMPARE(layout.verticalSpacing(), -1);
    QCOMPARE(layout.heightForWidth(106), 43);
    QCOMPARE(layout.heightForWidth(105), 66);
    layout.setGeometry(QRect(0, 0, 106, 43));
    QCOMPARE(places(layout),
             (QVector<QRect>{QRect(0, 0, 50, 20), QRect(55, 0, 50, 20), QRect(0, 23, 50, 20)}));
}

void tst_FlowLayout::spacingWithoutWidget()
{
    // Without a widget and without a parent the application's style has to do.
    auto *style = new SpacingStyle;
    QApplication::setStyle(style);
    FlowLayout layout(0);
    addItems(&layout, QVector<QSize>(2, QSize(50, 20)));
    layout.addItem(new QSpacerItem(50, 20));
    layout.setGeometry(QRect(0, 0, 106, 100));
    QCOMPARE(places(layout),
             (QVector<QRect>{QRect(0, 0, 50, 20), QRect(55, 0, 50, 20), QRect(0, 23, 50, 20)}));

    // With a parent whose style has no spacing of its own, that style.
    lmtest::prepareApplication();
    SpacingStyle parentStyle;
    parentStyle.horizontal = -1;
    parentStyle.vertical = -1;
    parentStyle.buttonsBeside = 8;
    QWidget parent;
    parent.setStyle(&parentStyle);
    auto *inner = new FlowLayout(&parent, 0);
    inner->addItem(new QSpacerItem(50, 20));
    inner->addItem(new QSpacerItem(50, 20));
    inner->setGeometry(QRect(0, 0, 200, 100));
    QCOMPARE(inner->itemAt(1)->geometry(), QRect(58, 0, 50, 20));
}

void tst_FlowLayout::constructors()
{
    QWidget parent;
    auto *layout = new FlowLayout(&parent, 4, 5, 6);
    QCOMPARE(parent.layout(), layout);
    QCOMPARE(layout->contentsMargins(), QMargins(4, 4, 4, 4));
    QCOMPARE(layout->horizontalSpacing(), 5);
    QCOMPARE(layout->verticalSpacing(), 6);

    const FlowLayout loose(1, 2, 3);
    QVERIFY(!loose.parent());
    QCOMPARE(loose.contentsMargins(), QMargins(1, 1, 1, 1));
    QCOMPARE(loose.horizontalSpacing(), 2);
    QCOMPARE(loose.verticalSpacing(), 3);
    const FlowLayout zero(0, 0, 0);
    QCOMPARE(zero.horizontalSpacing(), 0);
    QCOMPARE(zero.verticalSpacing(), 0);
    const FlowLayout none(nullptr, 1, 2, 3);
    QVERIFY(!none.parent());

    QCOMPARE(FlowLayout::staticMetaObject.className(), "LM::Widgets::FlowLayout");
    QCOMPARE(lmtest::ownMethods(FlowLayout::staticMetaObject), QStringList());
}

void tst_FlowLayout::initialMargins()
{
    QWidget parent;
    const auto *layout = new FlowLayout(&parent);
    const QStyle *style = parent.style();
    QCOMPARE(layout->contentsMargins(),
             QMargins(style->pixelMetric(QStyle::PM_LayoutLeftMargin, nullptr, &parent),
                      style->pixelMetric(QStyle::PM_LayoutTopMargin, nullptr, &parent),
                      style->pixelMetric(QStyle::PM_LayoutRightMargin, nullptr, &parent),
                      style->pixelMetric(QStyle::PM_LayoutBottomMargin, nullptr, &parent)));
    const FlowLayout loose;
    QCOMPARE(loose.contentsMargins(), QMargins());
}

void tst_FlowLayout::answers()
{
    FlowLayout layout(0, 1, 1);
    addItems(&layout, {QSize(10, 10)});
    QCOMPARE(layout.expandingDirections(), Qt::Orientations());
    QVERIFY(layout.hasHeightForWidth());
}

void tst_FlowLayout::minimumSize()
{
    FlowLayout layout(3, 1, 1);
    layout.addItem(new Item(QSize(100, 100), QSize(30, 8)));
    QCOMPARE(layout.minimumSize(), QSize(36, 14));
    layout.addItem(new Item(QSize(100, 100), QSize(20, 50)));
    QCOMPARE(layout.minimumSize(), QSize(36, 56));
    QCOMPARE(layout.sizeHint(), QSize(36, 56));
    layout.setContentsMargins(0, 0, 0, 0);
    QCOMPARE(layout.minimumSize(), QSize(30, 50));
    delete layout.takeAt(1);
    QCOMPARE(layout.minimumSize(), QSize(30, 8));
}

void tst_FlowLayout::marginsThatDiffer()
{
    FlowLayout layout(0, 10, 10);
    layout.setContentsMargins(1, 20, 30, 400);
    QCOMPARE(layout.minimumSize(), QSize(0, 0));
    QCOMPARE(layout.heightForWidth(500), 420);
    addItems(&layout, QVector<QSize>(3, QSize(50, 20)));
    // QLayout knows no single margin then and says -1.
    QCOMPARE(layout.minimumSize(), QSize(48, 18));
    layout.setGeometry(QRect(10, 10, 142, 500));
    QCOMPARE(places(layout),
             (QVector<QRect>{QRect(11, 30, 50, 20), QRect(71, 30, 50, 20), QRect(11, 60, 50, 20)}));
    QCOMPARE(layout.heightForWidth(142), 20 + 50 + 400);
    QCOMPARE(layout.heightForWidth(141), 20 + 80 + 400);
}

void tst_FlowLayout::spacing_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("horizontal");
    QTest::addColumn<int>("vertical");
    QTest::newRow("fixed") << 4 << 4 << 4;
    QTest::newRow("zero") << 0 << 0 << 0;
    QTest::newRow("minus one") << -1 << 11 << 13;
    QTest::newRow("minus ten") << -10 << 11 << 13;
}

void tst_FlowLayout::spacing()
{
    QFETCH(int, stored);
    SpacingStyle style;
    QWidget parent;
    parent.setStyle(&style);
    auto *layout = new FlowLayout(&parent, 0, stored, stored);
    QTEST(layout->horizontalSpacing(), "horizontal");
    QTEST(layout->verticalSpacing(), "vertical");
    if (stored < 0) {
        // Style sheets and proxy styles need to know for whom.
        QCOMPARE(style.askedFor, &parent);
    }
    addItems(layout, QVector<QSize>(3, QSize(50, 20)));
    layout->setGeometry(QRect(0, 0, 120, 100));
    QCOMPARE(layout->itemAt(1)->geometry().x(), 50 + layout->horizontalSpacing());
    QCOMPARE(layout->itemAt(2)->geometry().y(), 20 + layout->verticalSpacing());
}

void tst_FlowLayout::spacingOfTheOuterLayout()
{
    QWidget parent;
    auto *outer = new QVBoxLayout(&parent);
    outer->setSpacing(17);
    auto *layout = new FlowLayout(0);
    outer->addLayout(layout);
    QCOMPARE(layout->horizontalSpacing(), 17);
    QCOMPARE(layout->verticalSpacing(), 17);
    addItems(layout, QVector<QSize>(2, QSize(50, 20)));
    QCOMPARE(layout->heightForWidth(60), 57);
    outer->setSpacing(5);
    QCOMPARE(layout->heightForWidth(60), 45);
    QCOMPARE(layout->contentsMargins(), QMargins());
}

void tst_FlowLayout::zeroHeights()
{
    // Items without height never begin a new row, but their width counts.
    FlowLayout layout(0, 10, 10);
    addItems(&layout, {QSize(80, 0), QSize(80, 0), QSize(80, 5), QSize(10, 5)});
    layout.setGeometry(QRect(0, 0, 100, 100));
    QCOMPARE(places(layout), (QVector<QRect>{QRect(0, 0, 80, 0), QRect(90, 0, 80, 0),
                                             QRect(180, 0, 80, 5), QRect(0, 15, 10, 5)}));
}

void tst_FlowLayout::againstTheModel()
{
    std::mt19937 random(20240607);
    const auto number = [&random](int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(random);
    };
    for (int set = 0; set < 5000; ++set) {
        const QMargins margins(number(0, 20), number(0, 20), number(0, 20), number(0, 20));
        const int hSpacing = number(0, 15);
        const int vSpacing = number(0, 15);
        const QRect rect(number(-50, 50), number(-50, 50), number(-10, 400), number(0, 300));
        QVector<QSize> hints;
        const int count = number(0, 40);
        for (int i = 0; i < count; ++i) {
            hints.append(QSize(number(0, number(0, 9) ? 90 : 500), number(0, 40)));
        }
        FlowLayout layout(0, hSpacing, vSpacing);
        layout.setContentsMargins(margins);
        addItems(&layout, hints);
        const Model model(hints, rect, margins, hSpacing, vSpacing);
        layout.setGeometry(rect);
        QCOMPARE(places(layout), model.places);
        QCOMPARE(layout.heightForWidth(rect.width()), model.height);
    }
}

void tst_FlowLayout::widgetsAgainstTheModel()
{
    std::mt19937 random(7);
    const auto number = [&random](int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(random);
    };
    // Not the window itself, whose size the window system has a say in.
    QWidget window;
    window.resize(500, 400);
    auto *area = new QWidget(&window);
    auto *layout = new FlowLayout(area, 9, 6, 4);
    QVector<Tag *> tags;
    for (int i = 0; i < 60; ++i) {
        tags.append(new Tag(QSize(number(10, 80), number(10, 30))));
        layout->addWidget(tags.last());
    }
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    for (int round = 0; round < 1000; ++round) {
        tags[number(0, tags.size() - 1)]->setHint(QSize(number(10, 80), number(10, 30)));
        area->resize(number(100, 500), number(100, 400));
        QCoreApplication::sendPostedEvents();
        QVector<QSize> hints;
        QVector<QRect> real;
        for (Tag *tag : tags) {
            hints.append(tag->sizeHint());
            real.append(tag->geometry());
        }
        const Model model(hints, area->rect(), QMargins(9, 9, 9, 9), 6, 4);
        QCOMPARE(real, model.places);
        QCOMPARE(layout->heightForWidth(area->width()), model.height);
    }
}

void tst_FlowLayout::enormousItems()
{
    constexpr int most = std::numeric_limits<int>::max();
    FlowLayout layout(0, most, most);
    addItems(&layout, QVector<QSize>(5, QSize(most / 2, most / 2)));
    QCOMPARE(layout.heightForWidth(100), most);
    layout.setGeometry(QRect(0, 0, 100, 100));
    QCOMPARE(layout.itemAt(0)->geometry().topLeft(), QPoint(0, 0));
    QCOMPARE(layout.itemAt(4)->geometry().topLeft(), QPoint(0, most - most / 2));
}

void tst_FlowLayout::ownership()
{
    Item::destroyed = 0;
    auto *layout = new FlowLayout(0);
    addItems(layout, QVector<QSize>(4, QSize(1, 1)));
    std::unique_ptr<QLayoutItem> taken(layout->takeAt(2));
    QCOMPARE(layout->count(), 3);
    QCOMPARE(Item::destroyed, 0);
    delete layout;
    QCOMPARE(Item::destroyed, 3);
    taken.reset();
    QCOMPARE(Item::destroyed, 4);

    // The widgets are the parent's.
    QWidget parent;
    auto *flow = new FlowLayout(&parent);
    const QPointer<QLabel> label = new QLabel;
    flow->addWidget(label);
    QCOMPARE(label->parentWidget(), &parent);
    delete flow;
    QVERIFY(label);
}

void tst_FlowLayout::addItemIgnores()
{
    FlowLayout layout(0);
    layout.addItem(nullptr);
    layout.addItem(&layout);
    QCOMPARE(layout.count(), 0);

    QWidget other;
    auto *used = new QHBoxLayout(&other);
    layout.addItem(used);
    QCOMPARE(layout.count(), 0);
    QCOMPARE(other.layout(), used);
}

void tst_FlowLayout::takeAt()
{
    FlowLayout layout(0, 10, 10);
    const QVector<Item *> items = addItems(&layout, {QSize(10, 10), QSize(20, 10), QSize(30, 10)});
    std::unique_ptr<QLayoutItem> middle(layout.takeAt(1));
    QCOMPARE(middle.get(), items[1]);
    QCOMPARE(layout.count(), 2);
    QCOMPARE(layout.itemAt(0), items[0]);
    QCOMPARE(layout.itemAt(1), items[2]);
    layout.setGeometry(QRect(0, 0, 100, 100));
    QCOMPARE(items[2]->geometry(), QRect(20, 0, 30, 10));
}

void tst_FlowLayout::widgetDeleted()
{
    QWidget window;
    auto *layout = new FlowLayout(&window, 0, 10, 10);
    QVector<Tag *> tags;
    for (int i = 0; i < 3; ++i) {
        tags.append(new Tag(QSize(50, 20)));
        layout->addWidget(tags.last());
    }
    window.resize(200, 100);
    window.show();
    delete tags[0];
    QCOMPARE(layout->count(), 2);
    QTRY_COMPARE(tags[1]->geometry(), QRect(0, 0, 50, 20));
    QCOMPARE(tags[2]->geometry(), QRect(60, 0, 50, 20));
}

void tst_FlowLayout::nestedLayouts()
{
    QWidget window;
    auto *layout = new FlowLayout(&window, 0, 10, 10);
    auto *pair = new QHBoxLayout;
    pair->setSpacing(2);
    auto *left = new Tag(QSize(30, 20));
    auto *right = new Tag(QSize(30, 25));
    pair->addWidget(left);
    pair->addWidget(right);
    layout->addWidget(new Tag(QSize(50, 20)));
    layout->addItem(pair);
    QCOMPARE(pair->parent(), layout);
    QCOMPARE(left->parentWidget(), &window);
    QCOMPARE(layout->count(), 2);

    window.resize(200, 100);
    window.show();
    QCOMPARE(pair->geometry(), QRect(60, 0, 62, 25));
    QCOMPARE(right->geometry(), QRect(92, 0, 30, 25));
    window.resize(100, 100);
    QCOMPARE(pair->geometry(), QRect(0, 30, 62, 25));

    std::unique_ptr<QLayoutItem> taken(layout->takeAt(1));
    QCOMPARE(taken.get(), static_cast<QLayoutItem *>(pair));
    QVERIFY(!pair->parent());
}

void tst_FlowLayout::nestedFlow()
{
    QWidget window;
    auto *column = new QVBoxLayout(&window);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(10);
    auto *flow = new FlowLayout(0);
    column->addLayout(flow);
    auto *below = new Tag(QSize(10, 10));
    below->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    column->addWidget(below);
    column->addStretch();
    QVector<Tag *> tags;
    for (int i = 0; i < 4; ++i) {
        tags.append(new Tag(QSize(50, 20)));
        flow->addWidget(tags.last());
    }
    window.resize(231, 300);
    window.show();
    QCOMPARE(tags[3]->pos(), QPoint(180, 0));
    QCOMPARE(below->y(), 30);
    window.resize(120, 300);
    QCOMPARE(tags[3]->pos(), QPoint(60, 30));
    QCOMPARE(below->y(), 60);
    tags[0]->setHint(QSize(100, 20));
    QTRY_COMPARE(tags[3]->pos(), QPoint(0, 60));
    QCOMPARE(below->y(), 90);
}

void tst_FlowLayout::nestedLayoutDeleted()
{
    QWidget window;
    auto *layout = new FlowLayout(&window, 0, 10, 10);
    auto *inner = new FlowLayout(0, 1, 1);
    inner->addWidget(new Tag(QSize(10, 10)));
    layout->addItem(inner);
    layout->addWidget(new Tag(QSize(10, 10)));
    delete inner;
    QCOMPARE(layout->count(), 1);
    window.show();
    QCOMPARE(layout->itemAt(0)->geometry().topLeft(), QPoint(0, 0));
}

void tst_FlowLayout::hiddenWidgets()
{
    QWidget window;
    auto *layout = new FlowLayout(&window, 0, 10, 10);
    QVector<Tag *> tags;
    for (int i = 0; i < 3; ++i) {
        tags.append(new Tag(QSize(50, 20)));
        layout->addWidget(tags.last());
    }
    window.resize(300, 100);
    window.show();
    QCOMPARE(tags[2]->x(), 120);
    // It takes no room, but the spacing behind it stays.
    tags[1]->hide();
    QTRY_COMPARE(tags[2]->x(), 70);
    QCOMPARE(layout->heightForWidth(120), 50);
    QCOMPARE(layout->heightForWidth(121), 20);
    tags[1]->show();
    QTRY_COMPARE(tags[2]->x(), 120);
    for (Tag *tag : tags) {
        tag->hide();
    }
    QCOMPARE(layout->heightForWidth(1), 0);
    QCOMPARE(layout->minimumSize(), QSize(0, 0));
}

void tst_FlowLayout::spacers()
{
    FlowLayout layout(0, 10, 10);
    addItems(&layout, {QSize(50, 20)});
    layout.addItem(new QSpacerItem(30, 5));
    addItems(&layout, {QSize(50, 20)});
    layout.setGeometry(QRect(0, 0, 151, 100));
    QCOMPARE(places(layout),
             (QVector<QRect>{QRect(0, 0, 50, 20), QRect(60, 0, 30, 5), QRect(100, 0, 50, 20)}));
}

void tst_FlowLayout::rightToLeft()
{
    QWidget window;
    window.setLayoutDirection(Qt::RightToLeft);
    auto *layout = new FlowLayout(&window, 0, 10, 10);
    auto *first = new Tag(QSize(50, 20));
    auto *second = new Tag(QSize(50, 20));
    layout->addWidget(first);
    layout->addWidget(second);
    window.resize(300, 100);
    window.show();
    QCOMPARE(first->geometry(), QRect(0, 0, 50, 20));
    QCOMPARE(second->geometry(), QRect(60, 0, 50, 20));
}

void tst_FlowLayout::heightFollowsTheWidth()
{
    QScrollArea area;
    area.setWidgetResizable(true);
    area.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    auto *tagArea = new QWidget;
    auto *flow = new FlowLayout(tagArea, 0, 10, 10);
    for (int i = 0; i < 30; ++i) {
        flow->addWidget(new Tag(QSize(50, 20)));
    }
    column->addWidget(tagArea);
    column->addStretch();
    area.setWidget(content);
    area.show();
    // No window of Windows that has a title is narrower than 108 px.
    for (const int width : {500, 200, 120, 350}) {
        area.resize(width, 200);
        QTRY_COMPARE(tagArea->height(), flow->heightForWidth(area.viewport()->width()));
        const QRect last = flow->itemAt(29)->geometry();
        QCOMPARE(last.bottom() + 1, tagArea->height());
    }
}

void tst_FlowLayout::addAndRemoveWhileVisible()
{
    QWidget window;
    auto *layout = new FlowLayout(&window, 0, 10, 10);
    window.resize(120, 200);
    window.show();
    QVector<Tag *> tags;
    for (int i = 0; i < 5; ++i) {
        tags.append(new Tag(QSize(50, 20)));
        layout->addWidget(tags.last());
    }
    QTRY_VERIFY(tags[4]->isVisible());
    QTRY_COMPARE(tags[4]->geometry(), QRect(0, 60, 50, 20));
    QCOMPARE(layout->heightForWidth(120), 80);

    layout->removeWidget(tags[0]);
    tags[0]->hide();
    QTRY_COMPARE(tags[4]->geometry(), QRect(60, 30, 50, 20));
    delete layout->takeAt(0);
    tags[1]->hide();
    QTRY_COMPARE(tags[4]->geometry(), QRect(0, 30, 50, 20));
    // Put back, at the end.
    layout->addWidget(tags[0]);
    tags[0]->show();
    QTRY_COMPARE(tags[0]->geometry(), QRect(60, 30, 50, 20));
}

void tst_FlowLayout::hintsAreAskedOnce()
{
    QWidget parent;
    auto *layout = new FlowLayout(&parent, 0, 10, 10);
    const QVector<Item *> items = addItems(layout, QVector<QSize>(10, QSize(50, 20)));
    for (int width = 50; width < 400; width += 25) {
        layout->heightForWidth(width);
        layout->setGeometry(QRect(0, 0, width, 300));
        layout->minimumSize();
        layout->sizeHint();
    }
    for (const Item *item : items) {
        QCOMPARE(item->hintsAsked, 1);
        QCOMPARE(item->minimumsAsked, 1);
    }
    layout->invalidate();
    layout->heightForWidth(100);
    layout->minimumSize();
    for (const Item *item : items) {
        QCOMPARE(item->hintsAsked, 2);
        QCOMPARE(item->minimumsAsked, 2);
    }

    // A window that is resized does not ask its tags again either.
    QWidget window;
    auto *flow = new FlowLayout(&window, 0, 10, 10);
    auto *tag = new Tag(QSize(50, 20));
    flow->addWidget(tag);
    window.show();
    tag->hintsAsked = 0;
    for (int width = 120; width < 300; ++width) {
        window.resize(width, 100);
    }
    QCOMPARE(tag->hintsAsked, 0);
}

void tst_FlowLayout::hintsAreDroppedOnChange()
{
    QWidget window;
    auto *layout = new FlowLayout(&window, 0, 10, 10);
    auto *tag = new Tag(QSize(50, 20));
    layout->addWidget(tag);
    QCOMPARE(layout->heightForWidth(100), 20);
    QCOMPARE(layout->minimumSize(), QSize(0, 0));
    tag->setHint(QSize(50, 33));
    QCOMPARE(layout->heightForWidth(100), 33);
    tag->setMinimumSize(10, 40);
    QCOMPARE(layout->heightForWidth(100), 40);
    QCOMPARE(layout->minimumSize(), QSize(10, 40));
    tag->setFixedSize(60, 60);
    QCOMPARE(layout->heightForWidth(100), 60);
    QCOMPARE(layout->minimumSize(), QSize(60, 60));
}

void tst_FlowLayout::hintsOfALooseLayout()
{
    // Nobody tells a layout without a parent of a change, so it has to look.
    FlowLayout layout(0, 10, 10);
    QWidget holder;
    auto *tag = new Tag(QSize(50, 20));
    tag->setParent(&holder);
    layout.addWidget(tag);
    QCOMPARE(layout.heightForWidth(100), 20);
    tag->setHint(QSize(50, 33));
    QCOMPARE(layout.heightForWidth(100), 33);
}

void tst_FlowLayout::styleChange()
{
    QWidget window;
    auto *layout = new FlowLayout(&window, 0);
    auto *first = new Tag(QSize(50, 20));
    auto *second = new Tag(QSize(50, 20));
    layout->addWidget(first);
    layout->addWidget(second);
    window.resize(300, 100);
    window.show();
    SpacingStyle style;
    window.setStyle(&style);
    QTRY_COMPARE(second->x(), 61);
    window.setStyle(nullptr);
}

void tst_FlowLayout::movedByTheHostBetween()
{
    QWidget window;
    auto *layout = new FlowLayout(&window, 0, 10, 10);
    auto *tag = new Tag(QSize(50, 20));
    layout->addWidget(new Tag(QSize(30, 20)));
    layout->addWidget(tag);
    window.resize(300, 100);
    window.show();
    const QRect place(40, 0, 50, 20);
    QTRY_COMPARE(tag->geometry(), place);
    for (const QRect &elsewhere : {QRect(1, 2, 50, 20), QRect(40, 0, 51, 20), QRect(0, 0, 9, 9)}) {
        tag->setGeometry(elsewhere);
        layout->setGeometry(QRect(0, 0, 300, 100));
        QCOMPARE(tag->geometry(), place);
    }
}

void tst_FlowLayout::changedSinceThePlacing()
{
    QWidget window;
    auto *layout = new FlowLayout(&window, 0, 10, 10);
    auto *tag = new Tag(QSize(50, 40));
    layout->addWidget(tag);
    window.resize(300, 100);
    window.show();
    QTRY_COMPARE(tag->geometry(), QRect(0, 0, 50, 40));
    const QRect rect(0, 0, 300, 100);
    tag->setMaximumSize(20, 10);
    layout->setGeometry(rect);
    QCOMPARE(tag->size(), QSize(20, 10));
    tag->setMaximumSize(30, 20);
    layout->setGeometry(rect);
    QCOMPARE(tag->size(), QSize(30, 20));
    tag->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    layout->setGeometry(rect);
    QCOMPARE(tag->geometry(), QRect(0, 0, 50, 40));
    layout->itemAt(0)->setAlignment(Qt::AlignBottom | Qt::AlignRight);
    tag->setHint(QSize(20, 20));
    tag->setMinimumSize(40, 40);
    tag->setMaximumSize(40, 40);
    layout->setGeometry(QRect(7, 9, 300, 100));
    QCOMPARE(tag->geometry(), QRect(7, 9, 40, 40));
    // Nobody is told of an alignment that is set on the item itself.
    tag->setMinimumSize(0, 0);
    tag->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    tag->setHint(QSize(60, 60));
    for (const Qt::Alignment alignment : {Qt::Alignment(Qt::AlignTop), Qt::Alignment()}) {
        layout->itemAt(0)->setAlignment(alignment);
        layout->setGeometry(rect);
        QWidget other;
        auto *fresh = new FlowLayout(&other, 0, 10, 10);
        auto *same = new Tag(QSize(60, 60));
        fresh->addWidget(same);
        fresh->itemAt(0)->setAlignment(alignment);
        fresh->setGeometry(rect);
        QCOMPARE(tag->geometry(), same->geometry());
    }
}

void tst_FlowLayout::ownKindOfItem()
{
    // What a host derives from Qt's item is given its place every time.
    class Counted : public QWidgetItem
    {
    public:
        using QWidgetItem::QWidgetItem;
        void setGeometry(const QRect &rect) override
        {
            ++count;
            QWidgetItem::setGeometry(rect);
        }
        int count = 0;
    };
    QWidget window;
    auto *layout = new FlowLayout(&window, 0, 10, 10);
    auto *tag = new Tag(QSize(50, 20));
    tag->setParent(&window);
    auto *item = new Counted(tag);
    layout->addItem(item);
    for (int i = 1; i < 4; ++i) {
        layout->setGeometry(QRect(0, 0, 300, 100));
        QCOMPARE(item->count, i);
    }
}

void tst_FlowLayout::removedWhilePlacing()
{
    QWidget window;
    auto *layout = new FlowLayout(&window, 0, 10, 10);
    QVector<QPointer<Tag>> tags;
    for (int i = 0; i < 5; ++i) {
        tags.append(new Tag(QSize(50, 20)));
        layout->addWidget(tags.last());
    }
    window.resize(300, 100);
    window.show();
    tags[1]->resized = [&] {
        delete tags[0].data();
        delete tags[3].data();
        delete tags[4].data();
    };
    tags[0]->setHint(QSize(60, 20));
    tags[1]->setHint(QSize(70, 20));
    layout->activate();
    QVERIFY(!tags[4]);
    QCOMPARE(layout->count(), 2);
    QTRY_COMPARE(tags[2]->geometry(), QRect(80, 0, 50, 20));
}

LMTEST_MAIN(tst_FlowLayout)
#include "tst_flowlayout.moc"
