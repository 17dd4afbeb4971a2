#include "lmtest.h"

#include <lmwidgets/checkboxheaderview.h>
#include <lmwidgets/talvostylemanager.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPointer>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTableView>
#include <QTemporaryDir>

using LM::Widgets::CheckBoxHeaderView;
using LM::Widgets::TalvoStyleManager;

namespace {

const int sectionWidth = 60;
const int columns = 4;

QPixmap themePicture(const char *name)
{
    return QPixmap(TalvoStyleManager::instance()->currentThemePath() + QStringLiteral("qssimage/") +
                   QString::fromLatin1(name) + QStringLiteral(".png"));
}

/** A header on its own, four sections of 60 px wide, whose painting can be called. */
class Header : public CheckBoxHeaderView
{
public:
    explicit Header(int column = 1, const QRect &box = QRect(70, 4, 16, 16),
                    Qt::Orientation orientation = Qt::Horizontal)
        : CheckBoxHeaderView(column, box.topLeft(), box.size(), orientation),
          model(columns, columns)
    {
        setModel(&model);
        setMinimumSectionSize(5);
        setDefaultSectionSize(sectionWidth);
        for (int i = 0; i < columns; ++i) {
            resizeSection(i, sectionWidth);
        }
        resize(400, 30);
        show();
    }

    using CheckBoxHeaderView::mousePressEvent;
    using CheckBoxHeaderView::paintSection;
    using CheckBoxHeaderView::updateSection;

    void press(int x, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mousePress(viewport(), button, Qt::NoModifier, QPoint(x, 10));
        QTest::mouseRelease(viewport(), button, Qt::NoModifier, QPoint(x, 10));
    }

    QImage picture() { return viewport()->grab().toImage(); }

    /** What paintSection() paints of the section @p index into @p rect. */
    QImage section(int index, const QRect &rect = QRect(60, 0, 60, 30)) const
    {
        QImage image(400, 60, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::gray);
        QPainter painter(&image);
        paintSection(&painter, rect, index);
        return image;
    }

    QStandardItemModel model;
};

/** The section that a plain header paints, with the picture @p name at @p box above it. */
QImage expectedSection(int index, const QRect &rect, const char *name, const QRect &box)
{
    // The same header class without a box paints the section alone.
    Header plain(-1, QRect());
    QImage image = plain.section(index, rect);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(box, themePicture(name));
    return image;
}

} // namespace

class tst_CheckBoxHeaderView : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void picturesOfTheme();
    void checkedAtFirst();
    void setCheckStateAtNextPaint();
    void otherSectionKeepsState();
    void pressAnywhereInSection_data();
    void pressAnywhereInSection();
    void pressPastSections();
    void noCheckColumn();
    void everyButtonCounts();
    void clickedBeforeRelease();
    void clickableReportsTwice();
    void sectionsChangedWithinSignal();
    void doubleClick();
    void movedSections();
    void hiddenSections();
    void resizedSections();
    void scrolledSections();
    void notOffsetBySection();
    void scaledIntoSize();
    void smoothWhenScaled();
    void emptySizeDrawsNothing();
    void missingPicturesDrawNothing();
    void followsTheme();
    void painterIsRestored();
    void verticalHeader();
    void inTableView();
    void deletedWithinSignal();
    void stateReadWithinSignal();
    void badArguments();
    void metaObject();
};

void tst_CheckBoxHeaderView::init()
{
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Black);
}

void tst_CheckBoxHeaderView::picturesOfTheme()
{
    QVERIFY(!themePicture("selected").isNull());
    QVERIFY(!themePicture("unselected").isNull());
    QVERIFY(themePicture("selected").toImage() != themePicture("unselected").toImage());
}

void tst_CheckBoxHeaderView::checkedAtFirst()
{
    const QRect box(70, 4, 16, 16);
    const QRect rect(60, 0, 60, 30);
    Header header(1, box);
    QSignalSpy changed(&header, &CheckBoxHeaderView::signalCheckStateChanged);
    QCOMPARE(header.section(1), expectedSection(1, rect, "selected", box));

    header.press(90);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toBool(), false);
    QCOMPARE(header.section(1), expectedSection(1, rect, "unselected", box));

    header.press(90);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.at(1).at(0).toBool(), true);
    QCOMPARE(header.section(1), expectedSection(1, rect, "selected", box));
}

void tst_CheckBoxHeaderView::setCheckStateAtNextPaint()
{
    class CountingHeader : public Header
    {
    public:
        mutable int paints = 0;
        mutable int paintsOfOthers = 0;

    protected:
        void paintSection(QPainter *painter, const QRect &rect, int index) const override
        {
            ++(index == 1 ? paints : paintsOfOthers);
            Header::paintSection(painter, rect, index);
        }
    };
    CountingHeader header;
    QVERIFY(QTest::qWaitForWindowExposed(&header));
    QCoreApplication::processEvents();
    const QImage checked = header.section(1);
    header.paints = 0;
    QSignalSpy changed(&header, &CheckBoxHeaderView::signalCheckStateChanged);
    header.setCheckState(false);
    QCoreApplication::processEvents();
    QCOMPARE(header.paints, 0);
    QCOMPARE(changed.count(), 0);
    header.updateSection(1);
    QTRY_COMPARE(header.paints, 1);
    QVERIFY(header.section(1) != checked);
    header.setCheckState(true);
    QCOMPARE(header.section(1), checked);

    // The press flips what was set, and paints at once, the section of the box alone.
    header.setCheckState(false);
    header.paints = 0;
    header.paintsOfOthers = 0;
    header.press(90);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0).at(0).toBool(), true);
    QTRY_VERIFY(header.paints > 0);
    QCOMPARE(header.paintsOfOthers, 0);
}

void tst_CheckBoxHeaderView::otherSectionKeepsState()
{
    Header header;
    QSignalSpy changed(&header, &CheckBoxHeaderView::signalCheckStateChanged);
    QSignalSpy clicked(&header, &QHeaderView::sectionClicked);
    const QImage before = header.section(1);
    const int places[] = {0, 59, 120, 179, 200};
    for (int x : places) {
        header.press(x);
    }
    QCOMPARE(changed.count(), 0);
    QCOMPARE(clicked.count(), 5);
    QCOMPARE(clicked.at(0).at(0).toInt(), 0);
    QCOMPARE(clicked.at(1).at(0).toInt(), 0);
    QCOMPARE(clicked.at(2).at(0).toInt(), 2);
    QCOMPARE(clicked.at(3).at(0).toInt(), 2);
    QCOMPARE(clicked.at(4).at(0).toInt(), 3);
    QCOMPARE(header.section(1), before);
}

void tst_CheckBoxHeaderView::pressAnywhereInSection_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<bool>("toggles");
    QTest::newRow("last of the section before") << 59 << false;
    QTest::newRow("first column") << 60 << true;
    QTest::newRow("left of the picture") << 65 << true;
    QTest::newRow("on the picture") << 75 << true;
    QTest::newRow("last column") << 119 << true;
    QTest::newRow("first of the section behind") << 120 << false;
}

void tst_CheckBoxHeaderView::pressAnywhereInSection()
{
    QFETCH(int, x);
    QFETCH(bool, toggles);
    Header header;
    QSignalSpy changed(&header, &CheckBoxHeaderView::signalCheckStateChanged);
    QTest::mousePress(header.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(x, 29));
    QCOMPARE(changed.count(), toggles ? 1 : 0);
    QTest::mouseRelease(header.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(x, 29));
    QCOMPARE(changed.count(), toggles ? 1 : 0);
}

void tst_CheckBoxHeaderView::pressPastSections()
{
    Header header;
    QSignalSpy changed(&header, &CheckBoxHeaderView::signalCheckStateChanged);
    QSignalSpy clicked(&header, &QHeaderView::sectionClicked);
    header.press(columns * sectionWidth + 20);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked.at(0).at(0).toInt(), -1);
}

void tst_CheckBoxHeaderView::noCheckColumn()
{
    for (int column : {-1, columns, 1000}) {
        Header header(column);
        QSignalSpy changed(&header, &CheckBoxHeaderView::signalCheckStateChanged);
        QSignalSpy clicked(&header, &QHeaderView::sectionClicked);
        for (int x : {10, 70, 130, 190, columns * sectionWidth + 20}) {
            header.press(x);
        }
        QCOMPARE(changed.count(), 0);
        QCOMPARE(clicked.count(), 5);
        QCOMPARE(header.picture(), Header(-1).picture());
    }
}

void tst_CheckBoxHeaderView::everyButtonCounts()
{
    Header header;
    QSignalSpy changed(&header, &CheckBoxHeaderView::signalCheckStateChanged);
    header.press(90, Qt::RightButton);
    header.press(90, Qt::MiddleButton);
    QCOMPARE(changed.count(), 2);
}

void tst_CheckBoxHeaderView::clickedBeforeRelease()
{
    Header header;
    QStringList heard;
    connect(&header, &CheckBoxHeaderView::signalCheckStateChanged, this,
            [&](bool state) { heard += QStringLiteral("state %1").arg(state); });
    connect(&header, &QHeaderView::sectionClicked, this,
            [&](int section) { heard += QStringLiteral("clicked %1").arg(section); });
    connect(&header, &QHeaderView::sectionPressed, this,
            [&](int section) { heard += QStringLiteral("pressed %1").arg(section); });
    header.setSectionsClickable(true);
    QTest::mousePress(header.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(90, 10));
    QCOMPARE(heard, QStringList({QStringLiteral("state 0"), QStringLiteral("clicked 1"),
                                 QStringLiteral("pressed 1")}));
    QTest::mouseRelease(header.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(90, 10));
}

void tst_CheckBoxHeaderView::clickableReportsTwice()
{
    Header header;
    QSignalSpy changed(&header, &CheckBoxHeaderView::signalCheckStateChanged);
    QSignalSpy clicked(&header, &QHeaderView::sectionClicked);
    QVERIFY(!header.sectionsClickable());
    header.moveSection(1, 3);
    header.press(90);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked.at(0).at(0).toInt(), 1);
    header.setSectionsClickable(true);
    header.press(90);
    QCOMPARE(clicked.count(), 3);
    QCOMPARE(clicked.at(1).at(0).toInt(), 1);
    QCOMPARE(clicked.at(2).at(0).toInt(), 2);
    QCOMPARE(changed.count(), 2);

    // Past the last section only the press reports.
    clicked.clear();
    header.press(columns * sectionWidth + 20);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked.at(0).at(0).toInt(), -1);
}

// A slot that is told of the toggle may lay the sections out anew; the click is looked up after it.
void tst_CheckBoxHeaderView::sectionsChangedWithinSignal()
{
    Header header;
    QSignalSpy clicked(&header, &QHeaderView::sectionClicked);
    connect(&header, &CheckBoxHeaderView::signalCheckStateChanged, this,
            [&] { header.resizeSection(0, 20); });
    header.press(90);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked.at(0).at(0).toInt(), 2);
}

// The second press of a double click is an event of its own kind, which toggles nothing.
void tst_CheckBoxHeaderView::doubleClick()
{
    Header header;
    QSignalSpy changed(&header, &CheckBoxHeaderView::signalCheckStateChanged);
    lmtest::mouse(header.viewport(), QEvent::MouseButtonPress, QPoint(90, 10));
    lmtest::mouse(header.viewport(), QEvent::MouseButtonRelease, QPoint(90, 10));
    lmtest::mouse(header.viewport(), QEvent::MouseButtonDblClick, QPoint(90, 10));
    lmtest::mouse(header.viewport(), QEvent::MouseButtonRelease, QPoint(90, 10));
    QCOMPARE(changed.count(), 1);
}

// The press goes by the place on the screen, the picture by the section that is painted.
void tst_CheckBoxHeaderView::movedSections()
{
    Header header(1);
    header.moveSection(1, 3);
    QCOMPARE(header.visualIndex(1), 3);
    QCOMPARE(header.logicalIndex(1), 2);
    QSignalSpy changed(&header, &CheckBoxHeaderView::signalCheckStateChanged);
    QSignalSpy clicked(&header, &QHeaderView::sectionClicked);
    header.press(200);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(clicked.last().at(0).toInt(), 3);
    header.press(90);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(clicked.last().at(0).toInt(), 1);

    const Header plain(-1);
    QVERIFY(header.section(1) != plain.section(1));
    QCOMPARE(header.section(2), plain.section(2));
}

void tst_CheckBoxHeaderView::hiddenSections()
{
    Header header(1);
    QSignalSpy changed(&header, &CheckBoxHeaderView::signalCheckStateChanged);
    QSignalSpy clicked(&header, &QHeaderView::sectionClicked);
    header.setSectionHidden(0, true);
    header.press(30);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(clicked.last().at(0).toInt(), 1);
    header.press(90);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(clicked.last().at(0).toInt(), 2);

    header.setSectionHidden(0, false);
    header.setSectionHidden(1, true);
    for (int x : {30, 90, 150}) {
        header.press(x);
    }
    QCOMPARE(changed.count(), 1);
    // A section that is not shown is not painted, and its box neither.
    Header plain(-1);
    plain.setSectionHidden(1, true);
    QCOMPARE(header.picture(), plain.picture());
}

void tst_CheckBoxHeaderView::resizedSections()
{
    Header header(1);
    QSignalSpy changed(&header, &CheckBoxHeaderView::signalCheckStateChanged);
    header.resizeSection(0, 20);
    header.press(20);
    header.press(79);
    QCOMPARE(changed.count(), 2);
    header.press(19);
    header.press(80);
    QCOMPARE(changed.count(), 2);
    // The picture stays where the host put it, also when that is outside the section by now.
    const QRect box(70, 4, 16, 16);
    const QRect rect(20, 0, 60, 30);
    QCOMPARE(header.section(1, rect), expectedSection(1, rect, "selected", box));
}

void tst_CheckBoxHeaderView::scrolledSections()
{
    Header header(1);
    header.setOffset(60);
    QSignalSpy changed(&header, &CheckBoxHeaderView::signalCheckStateChanged);
    header.press(30);
    QCOMPARE(changed.count(), 1);
    header.press(90);
    QCOMPARE(changed.count(), 1);

    // The place of the picture is that of the header: there the section behind covers it now.
    Header plain(-1);
    plain.setOffset(60);
    QCOMPARE(header.picture(), plain.picture());

    const QRect box(5, 4, 16, 16);
    Header still(1, box);
    still.setOffset(60);
    QImage expected = plain.picture();
    QPainter painter(&expected);
    painter.drawPixmap(box, themePicture("selected"));
    painter.end();
    QCOMPARE(still.picture(), expected);
}

void tst_CheckBoxHeaderView::notOffsetBySection()
{
    const QRect box(5, 30, 16, 16);
    Header header(2, box);
    for (const QRect &rect : {QRect(0, 0, 60, 30), QRect(120, 10, 60, 20), QRect(300, 0, 10, 10)}) {
        QCOMPARE(header.section(2, rect), expectedSection(2, rect, "selected", box));
    }
    QCOMPARE(header.section(1), Header(-1).section(1));
}

void tst_CheckBoxHeaderView::scaledIntoSize()
{
    const QRect rect(60, 0, 60, 30);
    for (const QSize &size : {QSize(8, 8), QSize(16, 16), QSize(32, 20), QSize(41, 40)}) {
        const QRect box(QPoint(62, 1), size);
        Header header(1, box);
        QCOMPARE(header.section(1), expectedSection(1, rect, "selected", box));
        header.setCheckState(false);
        QCOMPARE(header.section(1), expectedSection(1, rect, "unselected", box));
    }
}

// In its own size a picture is shown pixel by pixel, in any other one smoothly.
void tst_CheckBoxHeaderView::smoothWhenScaled()
{
    const QPixmap picture = themePicture("selected");
    const auto roughly = [&picture](const QRect &box) {
        QImage image = Header(-1).section(1);
        QPainter painter(&image);
        painter.drawPixmap(box, picture);
        return image;
    };
    const QRect natural(QPoint(70, 4), picture.size());
    QCOMPARE(Header(1, natural).section(1), roughly(natural));
    const QRect larger(QPoint(70, 4), picture.size() * 3 / 2);
    QVERIFY(Header(1, larger).section(1) != roughly(larger));
}

void tst_CheckBoxHeaderView::emptySizeDrawsNothing()
{
    const QImage plain = Header(-1).section(1);
    for (const QSize &size : {QSize(), QSize(0, 0), QSize(16, 0), QSize(0, 16), QSize(-4, 16)}) {
        Header header(1, QRect(QPoint(70, 4), size));
        QCOMPARE(header.section(1), plain);
    }
}

void tst_CheckBoxHeaderView::missingPicturesDrawNothing()
{
    if (QDir(lmtest::themeDir()).exists()) {
        // A copy of this program that has no theme beside it runs the rest of this function.
        QTemporaryDir folder;
        QVERIFY(folder.isValid());
        const QString program = folder.filePath(QStringLiteral("program.exe"));
        QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), program));
        const QByteArray output =
            lmtest::runTestFunction(program, QStringLiteral("missingPicturesDrawNothing"));
        QVERIFY2(output.contains("drawn without pictures"), output.constData());
        return;
    }
    Header header;
    const QImage plain = Header(-1).section(1);
    QCOMPARE(header.section(1), plain);
    header.press(90);
    QCOMPARE(header.section(1), plain);
    qInfo("drawn without pictures");
}

void tst_CheckBoxHeaderView::followsTheme()
{
    const QRect box(70, 4, 16, 16);
    const QRect rect(60, 0, 60, 30);
    Header header(1, box);
    for (auto theme :
         {TalvoStyleManager::White, TalvoStyleManager::Blue, TalvoStyleManager::Black}) {
        TalvoStyleManager::instance()->shiftStyle(theme);
        QCOMPARE(header.section(1), expectedSection(1, rect, "selected", box));
    }
}

void tst_CheckBoxHeaderView::painterIsRestored()
{
    const Header header;
    QImage image(200, 60, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setPen(Qt::red);
    painter.setBrush(Qt::blue);
    painter.setOpacity(0.5);
    for (int section : {0, 1}) {
        header.paintSection(&painter, QRect(0, 0, 60, 30), section);
        QCOMPARE(painter.pen().color(), QColor(Qt::red));
        QCOMPARE(painter.brush().color(), QColor(Qt::blue));
        QCOMPARE(painter.opacity(), 0.5);
        QVERIFY(!painter.testRenderHint(QPainter::SmoothPixmapTransform));
    }
}

// A vertical header also goes by x, and its sections lie below each other: the x of a press is
// looked up as if it were a y.
void tst_CheckBoxHeaderView::verticalHeader()
{
    Header header(1, QRect(2, 2, 16, 16), Qt::Vertical);
    header.resize(130, 300);
    QSignalSpy changed(&header, &CheckBoxHeaderView::signalCheckStateChanged);
    QSignalSpy clicked(&header, &QHeaderView::sectionClicked);
    QTest::mousePress(header.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(90, 10));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(clicked.last().at(0).toInt(), 1);
    QTest::mousePress(header.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(10, 90));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(clicked.last().at(0).toInt(), 0);
}

void tst_CheckBoxHeaderView::inTableView()
{
    QTableView view;
    QStandardItemModel model(3, 3);
    view.setModel(&model);
    auto *header = new CheckBoxHeaderView(0, QPoint(8, 4), QSize(16, 16), Qt::Horizontal, &view);
    view.setHorizontalHeader(header);
    connect(header, &CheckBoxHeaderView::signalCheckStateChanged, &model, [&](bool state) {
        for (int row = 0; row < model.rowCount(); ++row) {
            model.setData(model.index(row, 0), state ? Qt::Checked : Qt::Unchecked,
                          Qt::CheckStateRole);
        }
    });
    view.resize(400, 200);
    view.show();
    const auto shows = [header](const char *name) {
        QImage expected = header->viewport()->grab().toImage();
        const QImage before = expected;
        QPainter painter(&expected);
        painter.drawPixmap(QRect(8, 4, 16, 16), themePicture(name));
        painter.end();
        // Drawn a second time, an opaque pixel of the picture changes nothing.
        const QImage picture = themePicture(name).toImage();
        for (int y = 0; y < 16; ++y) {
            for (int x = 0; x < 16; ++x) {
                if (qAlpha(picture.pixel(x, y)) == 255 &&
                    before.pixel(8 + x, 4 + y) != expected.pixel(8 + x, 4 + y)) {
                    return false;
                }
            }
        }
        return true;
    };
    QVERIFY(shows("selected"));
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
    QVERIFY(shows("unselected"));
    QVERIFY(!shows("selected"));
    QCOMPARE(model.item(2)->checkState(), Qt::Unchecked);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
    QVERIFY(shows("selected"));
    QCOMPARE(model.item(2)->checkState(), Qt::Checked);
}

void tst_CheckBoxHeaderView::deletedWithinSignal()
{
    QPointer<Header> header = new Header;
    connect(header, &CheckBoxHeaderView::signalCheckStateChanged, this, [&] { delete header; });
    QTest::mousePress(header->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(90, 10));
    QVERIFY(!header);

    header = new Header;
    connect(header, &QHeaderView::sectionClicked, this, [&] { delete header; });
    QTest::mousePress(header->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
    QVERIFY(!header);
}

void tst_CheckBoxHeaderView::stateReadWithinSignal()
{
    Header header;
    const QImage checked = header.section(1);
    bool painted = false;
    connect(&header, &CheckBoxHeaderView::signalCheckStateChanged, this, [&](bool state) {
        painted = header.section(1) != checked;
        QVERIFY(!state);
        // A host that does not want the change sets it back.
        header.setCheckState(true);
    });
    header.press(90);
    QVERIFY(painted);
    QCOMPARE(header.section(1), checked);
}

void tst_CheckBoxHeaderView::badArguments()
{
    Header header;
    header.mousePressEvent(nullptr);
    header.paintSection(nullptr, QRect(0, 0, 60, 30), 1);
    QImage image(200, 60, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    header.paintSection(&painter, QRect(), 1);
    Header empty;
    empty.model.clear();
    QSignalSpy clicked(&empty, &QHeaderView::sectionClicked);
    empty.press(90);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked.at(0).at(0).toInt(), -1);
}

void tst_CheckBoxHeaderView::metaObject()
{
    QWidget parent;
    auto *header = new CheckBoxHeaderView(0, QPoint(), QSize(), Qt::Vertical, &parent);
    QCOMPARE(header->parentWidget(), &parent);
    QCOMPARE(header->orientation(), Qt::Vertical);
    const QMetaObject *meta = header->metaObject();
    QCOMPARE(QByteArray(meta->className()), QByteArray("LM::Widgets::CheckBoxHeaderView"));
    QCOMPARE(meta->superClass(), &QHeaderView::staticMetaObject);
    QCOMPARE(meta->methodCount() - meta->methodOffset(), 1);
    QCOMPARE(meta->method(meta->methodOffset()).methodSignature(),
             QByteArray("signalCheckStateChanged(bool)"));
}

LMTEST_MAIN(tst_CheckBoxHeaderView)

#include "tst_checkboxheaderview.moc"
