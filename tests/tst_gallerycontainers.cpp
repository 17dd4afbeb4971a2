#include "lmtest.h"

#include "mainwindow.h"
#include "page.h"
#include "shooter.h"
#include "signallog.h"
#include "themes.h"

#include <lmwidgets/collapsiblegroupbox.h>
#include <lmwidgets/flowlayout.h>
#include <lmwidgets/groupboxcollapsebutton.h>
#include <lmwidgets/talvostylemanager.h>

#include <QAbstractButton>
#include <QPointer>
#include <QPushButton>
#include <QSlider>
#include <QToolButton>

using LM::Widgets::FlowLayout;
using LM::Widgets::TalvoStyleManager;

namespace {

QAbstractButton *findButton(const QWidget *parent, const QString &text)
{
    for (QAbstractButton *button : parent->findChildren<QAbstractButton *>()) {
        if (button->text() == text) {
            return button;
        }
    }
    return nullptr;
}

} // namespace

/** The gallery's pages of collapsible group boxes and of the flow layout, under a user's hands. */
class tst_GalleryContainers : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Black); }

    void foldAndOpenAll();
    void groupsReachTheLog();
    void settingsKeys();
    void arrowsFollowTheTheme();
    void tagsWrap();
    void tagsComeAndGo();

private:
    static CollapsibleGroupBox *box(const QWidget &window, const char *name)
    {
        return window.findChild<CollapsibleGroupBox *>(QLatin1String(name));
    }
};

void tst_GalleryContainers::foldAndOpenAll()
{
    gallery::MainWindow window;
    window.showPage(QStringLiteral("containers"));
    window.show();
    QVERIFY(gallery::settle(&window));
    const auto boxes = window.findChildren<CollapsibleGroupBox *>();
    QVERIFY(boxes.count() >= 8);
    QTest::mouseClick(findButton(&window, QStringLiteral("Fold all")), Qt::LeftButton);
    for (const CollapsibleGroupBox *each : boxes) {
        QVERIFY(each->isCollapsed());
    }
    QTest::mouseClick(findButton(&window, QStringLiteral("Open all")), Qt::LeftButton);
    for (const CollapsibleGroupBox *each : boxes) {
        QVERIFY(!each->isCollapsed());
    }
}

void tst_GalleryContainers::groupsReachTheLog()
{
    gallery::MainWindow window;
    window.showPage(QStringLiteral("containers"));
    window.show();
    QVERIFY(gallery::settle(&window));
    const int before = window.log()->count();
    auto *arrow = box(window, "grpGeneral")->findChild<GroupBoxCollapseButton *>();
    QTest::mouseClick(arrow, Qt::LeftButton, Qt::ControlModifier);
    QVERIFY(box(window, "grpPlace")->isCollapsed());
    QVERIFY(box(window, "grpLook")->isCollapsed());
    QVERIFY(!box(window, "grpStatistics")->isCollapsed());
    QVERIFY(!box(window, "grpLocked")->isCollapsed());
    const QStringList line = window.log()->line(before);
    QVERIFY(line.contains(QStringLiteral("grpGeneral")));
    QVERIFY(line.contains(QStringLiteral("collapsedStateChanged")));
}

void tst_GalleryContainers::settingsKeys()
{
    gallery::MainWindow window;
    window.setObjectName(QStringLiteral("galleryWindow"));
    window.showPage(QStringLiteral("containers"));
    window.show();
    QVERIFY(gallery::settle(&window));
    const auto firstKey = [&] {
        const int before = window.log()->count();
        QTest::mouseClick(findButton(&window, QStringLiteral("Settings keys")), Qt::LeftButton);
        return window.log()->line(before).last();
    };
    QCOMPARE(firstKey(), QStringLiteral("CollapsibleGroupBox/galleryWindow/grpGeneral"));
    findButton(&window, QStringLiteral("Setting group \"gallery\""))->click();
    QCOMPARE(firstKey(), QStringLiteral("CollapsibleGroupBox/gallery/grpGeneral"));
}

void tst_GalleryContainers::arrowsFollowTheTheme()
{
    gallery::MainWindow window;
    window.showPage(QStringLiteral("containers"));
    window.show();
    QVERIFY(gallery::settle(&window));
    const auto picture = [&] {
        auto *arrow = box(window, "grpGeneral")->findChild<GroupBoxCollapseButton *>();
        return arrow->icon().pixmap(16).toImage();
    };
    const QImage black = picture();
    QVERIFY(!black.isNull());
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::White);
    QVERIFY(picture() != black);
}

void tst_GalleryContainers::tagsWrap()
{
    gallery::MainWindow window;
    window.showPage(QStringLiteral("flow"));
    window.show();
    QVERIFY(gallery::settle(&window));
    auto *flow = window.findChild<FlowLayout *>();
    QVERIFY(flow);
    QWidget *area = flow->parentWidget();
    const int height = area->height();
    area->window()->findChild<QSlider *>()->setValue(500);
    QTRY_VERIFY(area->height() > height);
    QCOMPARE(area->height(), flow->heightForWidth(area->width()));
}

void tst_GalleryContainers::tagsComeAndGo()
{
    gallery::MainWindow window;
    window.showPage(QStringLiteral("flow"));
    window.show();
    QVERIFY(gallery::settle(&window));
    auto *flow = window.findChild<FlowLayout *>();
    const int count = flow->count();
    QTest::mouseClick(findButton(&window, QStringLiteral("Add a tag")), Qt::LeftButton);
    QCOMPARE(flow->count(), count + 1);
    const QPointer<QWidget> first = flow->itemAt(0)->widget();
    QTest::mouseClick(first, Qt::LeftButton);
    QCOMPARE(flow->count(), count);
    QTRY_VERIFY(!first);
    findButton(&window, QStringLiteral("Hide every second"))->click();
    QVERIFY(!flow->itemAt(1)->widget()->isVisible());
    QVERIFY(flow->itemAt(2)->widget()->isVisible());
}

LMTEST_MAIN(tst_GalleryContainers)
#include "tst_gallerycontainers.moc"
