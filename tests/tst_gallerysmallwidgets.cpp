#include "lmtest.h"

#include "mainwindow.h"
#include "page.h"
#include "shooter.h"
#include "signallog.h"
#include "themes.h"

#include <lmwidgets/customspinbox.h>
#include <lmwidgets/hyperlinklabel.h>
#include <lmwidgets/qcustomtabbar.h>
#include <lmwidgets/qcustomtabwidget.h>
#include <lmwidgets/talvostylemanager.h>
#include <lmwidgets/vantorotoolbutton.h>

#include <QDesktopServices>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QUrl>

using LM::Widgets::CustomSpinBox;
using LM::Widgets::HyperlinkLabel;
using LM::Widgets::QCustomTabBar;
using LM::Widgets::QCustomTabWidget;
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

/** The gallery's parameter form, tool buttons, link and tabs under a user's hands. */
class tst_GallerySmallWidgets : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Black); }

    void numberIsLeftOut();
    void toolButtonsFollowTheTheme();
    void linkIsFollowed();
    void dotsTellTheStates();

public Q_SLOTS:
    void open(const QUrl &url) { m_opened.append(url); }

private:
    QList<QUrl> m_opened;
};

void tst_GallerySmallWidgets::numberIsLeftOut()
{
    gallery::MainWindow window;
    window.showPage(QStringLiteral("parameters"));
    window.show();
    QVERIFY(gallery::settle(&window));
    auto *box = window.findChild<CustomSpinBox *>(QStringLiteral("parameterTilt"));
    auto *result = window.findChild<QLabel *>(QStringLiteral("parameterResult"));
    QVERIFY(box && result);
    QVERIFY(result->text().endsWith(QLatin1String("-12")));
    const int before = window.log()->count();
    box->setFocus();
    box->selectAll();
    QTest::keyClick(box, Qt::Key_Delete);
    QVERIFY(result->text().endsWith(QLatin1String("left out")));
    QVERIFY(window.log()->count() > before);
    QCOMPARE(window.log()->line(window.log()->count() - 1).at(1), QStringLiteral("textChanged"));

    QTest::mouseClick(findButton(&window, QStringLiteral("Leave all out")), Qt::LeftButton);
    QCOMPARE(result->text(), QStringLiteral("left out; left out; left out"));
    QTest::mouseClick(findButton(&window, QStringLiteral("One more each")), Qt::LeftButton);
    QVERIFY(!result->text().contains(QLatin1String("left out")));
}

void tst_GallerySmallWidgets::toolButtonsFollowTheTheme()
{
    gallery::MainWindow window;
    window.showPage(QStringLiteral("smallwidgets"));
    window.show();
    QVERIFY(gallery::settle(&window));
    auto *tool = window.findChild<VantoroToolButton *>(QStringLiteral("tool_layer_edit"));
    QVERIFY(tool);
    const auto picture = [](const QIcon &icon) { return icon.pixmap(20, 20).toImage(); };
    const auto themePicture = [&](const char *name) {
        return picture(QIcon(gallery::themeImage(QLatin1String(name))));
    };
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::White);
    QVERIFY(picture(tool->icon()) != themePicture("layer_edit"));
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(tool, &enter);
    QCOMPARE(picture(tool->icon()), themePicture("layer_edit_hover"));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(tool, &leave);
    QCOMPARE(picture(tool->icon()), themePicture("layer_edit"));
}

void tst_GallerySmallWidgets::linkIsFollowed()
{
    gallery::MainWindow window;
    window.showPage(QStringLiteral("smallwidgets"));
    window.show();
    QVERIFY(gallery::settle(&window));
    auto *link = window.findChild<HyperlinkLabel *>(QStringLiteral("folderLink"));
    QVERIFY(link);
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open");
    QTest::mouseClick(link, Qt::LeftButton, Qt::NoModifier, QPoint(10, link->height() / 2));
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    QCOMPARE(m_opened, QList<QUrl>{QUrl::fromLocalFile(QDir::tempPath())});
    QCOMPARE(window.log()->line(window.log()->count() - 1).at(1), QStringLiteral("linkActivated"));
}

void tst_GallerySmallWidgets::dotsTellTheStates()
{
    gallery::MainWindow window;
    window.showPage(QStringLiteral("tabs"));
    window.show();
    QVERIFY(gallery::settle(&window));
    auto *tabs = window.findChild<QCustomTabWidget *>();
    QVERIFY(tabs);
    auto *bar = qobject_cast<QCustomTabBar *>(tabs->tabBar());
    QVERIFY(bar);
    QAbstractButton *next = findButton(&window, QStringLiteral("Next step"));
    const auto dot = [&](int index) {
        const QRect tab = bar->tabRect(index);
        return bar->grab().toImage().pixelColor(tab.left() + 7, tab.center().y());
    };
    const QColor waiting = dot(1);
    QTest::mouseClick(next, Qt::LeftButton);
    const QColor running = dot(0);
    QVERIFY(running != waiting);
    QCOMPARE(tabs->tabToolTip(0), QStringLiteral("Running"));
    QTest::mouseClick(findButton(&window, QStringLiteral("Step fails")), Qt::LeftButton);
    QCOMPARE(tabs->tabToolTip(0), QStringLiteral("Failed"));
    QVERIFY(dot(0) != running && dot(0) != waiting);
    QCOMPARE(dot(1), running);
    QCOMPARE(tabs->currentIndex(), 1);
    for (int i = 0; i < 10; ++i) {
        QTest::mouseClick(next, Qt::LeftButton);
    }
    QCOMPARE(tabs->tabToolTip(tabs->count() - 1), QStringLiteral("Finished"));
    QTest::mouseClick(findButton(&window, QStringLiteral("Restart")), Qt::LeftButton);
    QCOMPARE(dot(0), waiting);
}

LMTEST_MAIN(tst_GallerySmallWidgets)

#include "tst_gallerysmallwidgets.moc"
