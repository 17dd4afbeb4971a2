#include "lmtest.h"

#include <lmwidgets/checkboxheaderview.h>
#include <lmwidgets/customdelegate.h>
#include <lmwidgets/editcombobox.h>
#include <lmwidgets/framelessdialog.h>
#include <lmwidgets/framelessmessagebox.h>
#include <lmwidgets/titlebar.h>
#include <lmwidgets/toggleswitch.h>
#include <lmwidgets/translations.h>
#include <lmwidgets/vantoroframelessdialog.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>

#include <memory>

using namespace LM::Widgets;

namespace {

const QLocale German(QLocale::German, QLocale::Germany);

/** The first and the last column of @p image that are not of the colour of its corner. */
QPair<int, int> inkedColumns(const QImage &image)
{
    const QRgb ground = image.pixel(0, 0);
    QPair<int, int> columns(-1, -1);
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixel(x, y) != ground) {
                columns.first = columns.first < 0 ? x : columns.first;
                columns.second = x;
                break;
            }
        }
    }
    return columns;
}

/** Whether no pixel of the two is of quite another brightness. */
bool alike(const QImage &left, const QImage &right)
{
    for (int x = 0; x < left.width(); ++x) {
        for (int y = 0; y < left.height(); ++y) {
            if (qAbs(qGray(left.pixel(x, y)) - qGray(right.pixel(x, y))) > 48) {
                return false;
            }
        }
    }
    return left.size() == right.size();
}

/** The columns in which the delegate draws the text of a cell of 200 px. */
QPair<int, int> drawnColumns(Qt::LayoutDirection direction)
{
    QTableWidget table(1, 1);
    table.setItem(0, 0, new QTableWidgetItem(QStringLiteral("I")));
    CustomDelegate delegate;
    QStyleOptionViewItem option;
    option.initFrom(&table);
    option.rect = QRect(0, 0, 200, 30);
    option.direction = direction;
    option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    QImage image(200, 30, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setLayoutDirection(direction);
    delegate.paint(&painter, option, table.model()->index(0, 0));
    painter.end();
    return inkedColumns(image);
}

} // namespace

/** What is mirrored where the language runs from right to left, and captions of other languages. */
class tst_RightToLeft : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        QApplication::setLayoutDirection(Qt::LeftToRight);
        loadTranslations(QLocale::c());
        QCoreApplication::sendPostedEvents();
    }

    void titleBarMargins();
    void titleBarKeepsMarginsOfTheHost();
    void switchPicture();
    void switchLiveArea_data();
    void switchLiveArea();
    void delegateIndents();
    void headerCheckBox();
    void comboList();
    void captionsFit();
    void captionWidthOfTheHostStays();
};

void tst_RightToLeft::titleBarMargins()
{
    TitleBar before;
    QCOMPARE(before.titleBarMainLayout()->contentsMargins(), QMargins(0, 11, 24, 11));
    QApplication::setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(before.titleBarMainLayout()->contentsMargins(), QMargins(24, 11, 0, 11));
    TitleBar made;
    QCOMPARE(made.titleBarMainLayout()->contentsMargins(), QMargins(24, 11, 0, 11));
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(before.titleBarMainLayout()->contentsMargins(), QMargins(0, 11, 24, 11));
    QCOMPARE(made.titleBarMainLayout()->contentsMargins(), QMargins(0, 11, 24, 11));
}

void tst_RightToLeft::titleBarKeepsMarginsOfTheHost()
{
    TitleBar bar;
    bar.titleBarMainLayout()->setContentsMargins(1, 2, 3, 4);
    bar.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(bar.titleBarMainLayout()->contentsMargins(), QMargins(3, 2, 1, 4));
    // Told the same once more.
    bar.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(bar.titleBarMainLayout()->contentsMargins(), QMargins(3, 2, 1, 4));
}

void tst_RightToLeft::switchPicture()
{
    ToggleSwitch control;
    control.setText(QString());
    const QImage picture = control.grab().toImage();
    control.setLayoutDirection(Qt::RightToLeft);
    // The edges of what is drawn smoothly are not the same from both sides.
    QVERIFY(alike(control.grab().toImage(), picture.mirrored(true, false)));
    QVERIFY(!alike(picture, picture.mirrored(true, false)));

    control.setText(QStringLiteral("Ground points"));
    const auto columns = inkedColumns(control.grab().toImage());
    QVERIFY2(columns.first > 0, qPrintable(QString::number(columns.first)));
    QVERIFY2(columns.second < control.width() - 1, qPrintable(QString::number(columns.second)));
}

void tst_RightToLeft::switchLiveArea_data()
{
    QTest::addColumn<int>("fromRight");
    QTest::addColumn<bool>("live");
    QTest::newRow("edge") << 1 << true;
    QTest::newRow("last") << 42 << true;
    QTest::newRow("beyond") << 43 << false;
    QTest::newRow("text") << 60 << false;
}

void tst_RightToLeft::switchLiveArea()
{
    QFETCH(int, fromRight);
    QFETCH(bool, live);
    ToggleSwitch control;
    control.setText(QStringLiteral("Ground points"));
    control.setLayoutDirection(Qt::RightToLeft);
    QTest::mouseClick(&control, Qt::LeftButton, Qt::NoModifier,
                      QPoint(control.width() - fromRight, control.height() / 2));
    QCOMPARE(control.isChecked(), live);
}

void tst_RightToLeft::delegateIndents()
{
    const auto usual = drawnColumns(Qt::LeftToRight);
    const auto mirrored = drawnColumns(Qt::RightToLeft);
    QVERIFY(usual.first >= 14);
    QVERIFY(usual.first < 30);
    QVERIFY(mirrored.second >= 0);
    // The letter has about the same room on its outer side.
    QVERIFY2(qAbs((199 - mirrored.second) - usual.first) <= 2,
             qPrintable(QString::number(mirrored.second)));
}

void tst_RightToLeft::headerCheckBox()
{
    QTableWidget table(1, 2);
    auto *header = new CheckBoxHeaderView(0, QPoint(8, 6), QSize(16, 16), Qt::Horizontal, &table);
    table.setHorizontalHeader(header);
    table.setHorizontalHeaderLabels({QString(), QString()});
    table.resize(400, 120);
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table));
    const auto changes = [header] {
        header->setCheckState(false);
        const QImage off = header->viewport()->grab().toImage();
        header->setCheckState(true);
        const QImage on = header->viewport()->grab().toImage();
        QImage difference(off.size(), QImage::Format_RGB32);
        difference.fill(Qt::white);
        for (int x = 0; x < off.width(); ++x) {
            for (int y = 0; y < off.height(); ++y) {
                if (on.pixel(x, y) != off.pixel(x, y)) {
                    difference.setPixelColor(x, y, Qt::black);
                }
            }
        }
        return inkedColumns(difference);
    };
    const auto usual = changes();
    QVERIFY(usual.first >= 8 && usual.second <= 23);
    table.setLayoutDirection(Qt::RightToLeft);
    const int width = header->viewport()->width();
    const auto mirrored = changes();
    QVERIFY(mirrored.first >= width - 24);
    QVERIFY(mirrored.second <= width - 9);
}

void tst_RightToLeft::comboList()
{
    QWidget window;
    window.setLayoutDirection(Qt::RightToLeft);
    EditComboBox box({QStringLiteral("one"), QStringLiteral("two")}, &window);
    window.resize(400, 300);
    box.setGeometry(120, 20, 150, 30);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    auto *button = box.findChild<QPushButton *>();
    QTest::mouseClick(button, Qt::LeftButton);
    QAbstractItemView *list = box.findChild<QLineEdit *>()->completer()->popup();
    QTRY_VERIFY(list->isVisible());
    const QPoint corner = box.mapToGlobal(QPoint(0, 0));
    QCOMPARE(list->x(), corner.x());
    QCOMPARE(list->width(), box.width());
}

void tst_RightToLeft::captionsFit()
{
    FramelessDialog frame;
    VantoroFramelessDialog second;
    FramelessMessageBox box(QMessageBox::Critical, QString(), QStringLiteral("Disk full"),
                            QMessageBox::Retry | QMessageBox::Cancel);
    box.setDefaultOKButton();
    QPushButton *const buttons[] = {frame.GetApplyButton(), second.getApplyButton(),
                                    qobject_cast<QPushButton *>(box.button(QMessageBox::Retry))};
    QVector<int> english;
    for (const QPushButton *button : buttons) {
        QVERIFY(button);
        english.append(button->minimumWidth());
    }
    QCOMPARE(english, QVector<int>({0, 0, 0}));
    QVERIFY(loadTranslations(German));
    QCoreApplication::sendPostedEvents();
    for (const QPushButton *button : buttons) {
        QFont font = button->font();
        font.setPixelSize(14);
        const int needed = QFontMetrics(font).horizontalAdvance(button->text());
        QVERIFY2(needed > 72, qPrintable(button->text()));
        QVERIFY2(button->minimumWidth() > needed, qPrintable(button->text()));
    }
    loadTranslations(QLocale::c());
    QCoreApplication::sendPostedEvents();
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(buttons[i]->minimumWidth(), english.at(i));
    }
    // Never less than what the button has anyway.
    QCOMPARE(second.getOKButton()->minimumWidth(), 85);
}

void tst_RightToLeft::captionWidthOfTheHostStays()
{
    FramelessDialog frame;
    frame.GetApplyButton()->setMinimumWidth(300);
    QVERIFY(loadTranslations(German));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(frame.GetApplyButton()->minimumWidth(), 300);
    frame.GetApplyButton()->setMinimumWidth(310);
    loadTranslations(QLocale::c());
    QCoreApplication::sendPostedEvents();
    QCOMPARE(frame.GetApplyButton()->minimumWidth(), 310);
}

LMTEST_MAIN(tst_RightToLeft)

#include "tst_righttoleft.moc"
