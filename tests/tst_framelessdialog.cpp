#include "lmtest.h"

#include <lmwidgets/framelessdialog.h>
#include <lmwidgets/framelesshelper.h>
#include <lmwidgets/talvostylemanager.h>
#include <lmwidgets/titlebar.h>

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRubberBand>
#include <QScreen>
#include <QSignalSpy>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

#include <functional>
#include <memory>

using LM::Widgets::FramelessDialog;
using LM::Widgets::FramelessHelper;
using LM::Widgets::TalvoDialogBase;
using LM::Widgets::TalvoStyleManager;
using LM::Widgets::TitleBar;

namespace {

const char TitleBarStyle[] = "color:#F2F2F2;font-size:16px;background-color:#2B2B2B;";
const char MessageBoxLogoStyle[] =
    "background-color: transparent;border:none;padding: 6px 0px 0px 20px;";
const char MessageBoxTitleStyle[] = "background - color: #1C1C1C; border:none; font-size: "
                                    "16px;color: #ffffff;padding: -10px 0px 5px "
                                    "0px; ";

class Dialog : public FramelessDialog
{
public:
    using FramelessDialog::drawSolidBorder;
    using FramelessDialog::FramelessDialog;
    using FramelessDialog::getContentHolder;

    void initStyleSheet() override { ++styles; }
    void updateMoveEvent() override
    {
        ++moves;
        // A copy, since it may destroy the dialog.
        if (const std::function<void()> action = onMoved) {
            action();
        }
    }

    int styles = 0;
    int moves = 0;
    std::function<void()> onMoved;
};

class SolidDialog : public FramelessDialog
{
public:
    using FramelessDialog::FramelessDialog;

protected:
    void paintEvent(QPaintEvent *event) override { drawSolidBorder(event); }
};

/** A dialog that keeps its buttons from doing what they do. */
class AskingDialog : public FramelessDialog
{
public:
    using FramelessDialog::FramelessDialog;
    int oks = 0;
    int cancels = 0;

protected:
    void onOk() override { ++oks; }
    void onCancel() override { ++cancels; }
};

void drag(QWidget *widget, const QPoint &from, const QPoint &by)
{
    const QPoint start = widget->mapToGlobal(from);
    lmtest::mouseAt(widget, QEvent::MouseButtonPress, start);
    lmtest::mouseAt(widget, QEvent::MouseMove, start + by);
    lmtest::mouseAt(widget, QEvent::MouseButtonRelease, start + by);
}

bool isButtonShown(FramelessDialog &dialog, int type)
{
    return dialog.getTitleBar()->isTitleButtonVisible(type);
}

QColor gray(int level)
{
    return QColor(level, level, level);
}

} // namespace

class tst_FramelessDialog : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void freshDialog();
    void dragBoundary_data();
    void dragBoundary();
    void sizeIsFrozenAtEachShow();
    void buttonOrder();
    void layoutOfAFreshDialog();
    void titleOverwritesTheTitleBarStyle();

    void metaObject();
    void windowFlagsAndAttributes();
    void properties();
    void mainLayoutItems();
    void bottomRow();
    void buttonTexts();
    void setHelperTitleHeight();
    void contentHolder();
    void setContentHolder();
    void setContentHolderTooLate();
    void setLayout();
    void setLayoutKeepsDefaultMargins();
    void setLayoutBadInput();
    void setLayoutConstructedWithTheDialog();
    void contentLayoutDeleted();
    void okCancelApply();
    void virtualOkAndCancel();
    void closeButton();
    void enterAndEscape();
    void minimise();
    void maximise();
    void maximiseButtons();
    void hidingMaxButtonsEndsResizing();
    void buttonVisibility();
    void closeButtonVisible();
    void icon();
    void title();
    void titleButtons();
    void extraTitleButtons();
    void movable();
    void resizable();
    void rubberBands();
    void separatorHeight();
    void messageBoxLook();
    void themeSwitch();
    void updateMoveEvent();
    void shadowBorder();
    void solidBorder();
    void activatesItself();
    void pressActivates();
    void showWithoutActivating();
    void deletedFromUpdateMoveEvent();
    void deletedWithinItsSignals();
    void deletedParts();
    void switchWhileItsChildrenGo();
};

void tst_FramelessDialog::cleanup()
{
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Black);
    FramelessHelper helper;
    helper.setBorderWidth(5);
    helper.setTitleHeight(30);
}

void tst_FramelessDialog::freshDialog()
{
    Dialog dialog;
    dialog.show();
    for (int type = 0; type < 5; ++type) {
        QCOMPARE(isButtonShown(dialog, type), type == 4);
    }
    QVERIFY(dialog.getCloseButtonVisible());
    QVERIFY(dialog.GetOKButton()->isVisible());
    QVERIFY(dialog.GetCancelButton()->isVisible());
    QVERIFY(!dialog.GetApplyButton()->isVisible());
    const QRect before = dialog.geometry();
    drag(&dialog, QPoint(dialog.width(), dialog.height()), QPoint(30, 30));
    drag(&dialog, QPoint(0, 100), QPoint(-30, 0));
    QCOMPARE(dialog.geometry(), before);
    lmtest::hoverMove(&dialog, QPoint(0, 100));
    QCOMPARE(dialog.cursor().shape(), Qt::ArrowCursor);
}

void tst_FramelessDialog::dragBoundary_data()
{
    QTest::addColumn<int>("y");
    QTest::addColumn<bool>("drags");
    QTest::newRow("top") << 0 << true;
    QTest::newRow("last row") << 57 << true;
    QTest::newRow("row below") << 58 << false;
}

void tst_FramelessDialog::dragBoundary()
{
    QFETCH(int, y);
    QFETCH(bool, drags);
    Dialog dialog;
    dialog.resize(400, 300);
    dialog.show();
    const QPoint before = dialog.pos();
    drag(&dialog, QPoint(200, y), QPoint(11, 13));
    QCOMPARE(dialog.pos(), drags ? before + QPoint(11, 13) : before);

    // The title bar hands its presses on.
    const QPoint here = dialog.pos();
    drag(dialog.getTitleBar(), QPoint(100, 20), QPoint(-5, -6));
    QCOMPARE(dialog.pos(), here + QPoint(-5, -6));
}

void tst_FramelessDialog::sizeIsFrozenAtEachShow()
{
    Dialog dialog;
    dialog.resize(411, 305);
    QVERIFY(dialog.minimumSize() != dialog.maximumSize());
    dialog.show();
    QCOMPARE(dialog.size(), QSize(411, 305));
    QCOMPARE(dialog.minimumSize(), QSize(411, 305));
    QCOMPARE(dialog.maximumSize(), QSize(411, 305));
    dialog.resize(500, 400);
    QCOMPARE(dialog.size(), QSize(411, 305));

    dialog.setMinimumSize(0, 0);
    dialog.setMaximumSize(700, 700);
    dialog.hide();
    dialog.resize(500, 400);
    dialog.show();
    QCOMPARE(dialog.minimumSize(), QSize(500, 400));
    QCOMPARE(dialog.maximumSize(), QSize(500, 400));
}

void tst_FramelessDialog::buttonOrder()
{
    Dialog dialog;
    dialog.setApplyButtonVisible(true);
    dialog.resize(600, 300);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const QRect cancel = dialog.GetCancelButton()->geometry();
    const QRect apply = dialog.GetApplyButton()->geometry();
    const QRect ok = dialog.GetOKButton()->geometry();
    QCOMPARE(apply.left(), cancel.right() + 1 + 16);
    QCOMPARE(ok.left(), apply.right() + 1 + 16);
    QCOMPARE(ok.right() + 1, dialog.bottomWidget()->width() - 24);
    QVERIFY(cancel.left() > 16);
}

void tst_FramelessDialog::layoutOfAFreshDialog()
{
    Dialog dialog;
    QVERIFY(!dialog.layout());
    QWidget *holder = dialog.getContentHolder();
    QVERIFY(!dialog.layout());
    auto *layout = new QVBoxLayout(holder);
    QCOMPARE(dialog.layout(), layout);
    auto *own = new QVBoxLayout;
    dialog.setLayout(own);
    QCOMPARE(dialog.layout(), own);
}

void tst_FramelessDialog::titleOverwritesTheTitleBarStyle()
{
    Dialog dialog;
    QVERIFY(dialog.getTitleBar()->styleSheet().isEmpty());
    dialog.getTitleBar()->setStyleSheet(QStringLiteral("color:red;"));
    dialog.setTitleBarLabelStyleSheet(QStringLiteral("color:green;"));
    dialog.setWindowTitle(QStringLiteral("Layers"));
    QCOMPARE(dialog.getTitleBar()->styleSheet(), QLatin1String(TitleBarStyle));
    QCOMPARE(dialog.getTitleBar()->titleLabel()->styleSheet(), QStringLiteral("color:green;"));
}

void tst_FramelessDialog::metaObject()
{
    const QMetaObject &meta = FramelessDialog::staticMetaObject;
    QCOMPARE(meta.className(), "LM::Widgets::FramelessDialog");
    QCOMPARE(meta.superClass(), &TalvoDialogBase::staticMetaObject);
    const QStringList expected{
        QStringLiteral("slot show()"), QStringLiteral("slot showMaximized()"),
        QStringLiteral("slot showNormal()"), QStringLiteral("slot swithMaxNormal()")};
    QCOMPARE(lmtest::ownMethods(meta), expected);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_FramelessDialog::windowFlagsAndAttributes()
{
    QWidget parent;
    Dialog dialog(&parent, Qt::WindowStaysOnTopHint);
    QVERIFY(dialog.windowFlags().testFlag(Qt::BypassWindowManagerHint));
    QVERIFY(dialog.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QCOMPARE(dialog.windowType(), Qt::Dialog);
    QVERIFY(dialog.testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(dialog.parentWidget(), &parent);
    QCOMPARE(dialog.contentsMargins(), QMargins());
    QCOMPARE(dialog.maximumSize(), QGuiApplication::primaryScreen()->availableGeometry().size());
}

void tst_FramelessDialog::properties()
{
    Dialog dialog;
    QCOMPARE(dialog.dynamicPropertyNames(), QList<QByteArray>{"isFramelessDialog"});
    QCOMPARE(dialog.property("isFramelessDialog"), QVariant(true));
    QCOMPARE(dialog.getTitleBar()->property("isFramelessDialogTitleBar"), QVariant(true));
    QCOMPARE(dialog.GetOKButton()->dynamicPropertyNames(), QList<QByteArray>{"vantorookbutton"});
    QCOMPARE(dialog.GetOKButton()->property("vantorookbutton"), QVariant(true));
    for (QPushButton *button : {dialog.GetCancelButton(), dialog.GetApplyButton()}) {
        QCOMPARE(button->dynamicPropertyNames(), QList<QByteArray>{"vantorcancelbbutton"});
        QCOMPARE(button->property("vantorcancelbbutton"), QVariant(true));
    }
    QCOMPARE(dialog.getTitleBar()->titleLabel()->alignment(), Qt::AlignCenter);
}

void tst_FramelessDialog::mainLayoutItems()
{
    Dialog dialog;
    QVBoxLayout *layout = dialog.getMainLayout();
    QCOMPARE(dialog.QWidget::layout(), layout);
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(), QMargins(10, 10, 10, 10));
    QCOMPARE(layout->count(), 4);
    auto *titleLayout = qobject_cast<QHBoxLayout *>(layout->itemAt(0)->layout());
    QVERIFY(titleLayout);
    QCOMPARE(titleLayout->spacing(), 0);
    QCOMPARE(titleLayout->contentsMargins(), QMargins());
    QCOMPARE(titleLayout->count(), 1);
    QCOMPARE(titleLayout->itemAt(0)->widget(), dialog.getTitleBar());
    QCOMPARE(dialog.getTitleBar()->parentWidget(), &dialog);
    for (const int index : {1, 2}) {
        auto *line = qobject_cast<QFrame *>(layout->itemAt(index)->widget());
        QVERIFY(line);
        QCOMPARE(line->parentWidget(), &dialog);
        QCOMPARE(line->property("isBackgroundSeparator"), QVariant(true));
        QCOMPARE(line->minimumHeight(), 1);
        QCOMPARE(line->maximumHeight(), 1);
        QCOMPARE(line->frameShape(), QFrame::NoFrame);
    }
    QCOMPARE(layout->itemAt(3)->widget(), dialog.bottomWidget());
}

void tst_FramelessDialog::bottomRow()
{
    Dialog dialog;
    QHBoxLayout *row = dialog.bottomLayout();
    QCOMPARE(dialog.bottomWidget()->layout(), row);
    QCOMPARE(dialog.bottomWidget()->parentWidget(), &dialog);
    QCOMPARE(row->spacing(), 16);
    QCOMPARE(row->contentsMargins(), QMargins(16, 16, 24, 16));
    QCOMPARE(row->count(), 4);
    QVERIFY(row->itemAt(0)->spacerItem());
    QVERIFY(row->itemAt(0)->expandingDirections().testFlag(Qt::Horizontal));
    QCOMPARE(row->itemAt(1)->widget(), dialog.GetCancelButton());
    QCOMPARE(row->itemAt(2)->widget(), dialog.GetApplyButton());
    QCOMPARE(row->itemAt(3)->widget(), dialog.GetOKButton());
    QObjectList buttons = dialog.bottomWidget()->children();
    buttons.removeOne(row);
    const QObjectList expected{dialog.GetOKButton(), dialog.GetCancelButton(),
                               dialog.GetApplyButton()};
    QCOMPARE(buttons, expected);
}

void tst_FramelessDialog::buttonTexts()
{
    Dialog dialog;
    QCOMPARE(dialog.GetOKButton()->text(), QStringLiteral("OK"));
    QCOMPARE(dialog.GetCancelButton()->text(), QStringLiteral("Cancel"));
    QCOMPARE(dialog.GetApplyButton()->text(), QStringLiteral("Apply"));
    QVERIFY(dialog.GetOKButton()->isDefault());
    QVERIFY(!dialog.GetCancelButton()->isDefault());
    dialog.setOKButtonDefault(false);
    QVERIFY(!dialog.GetOKButton()->isDefault());
    dialog.setOKButtonDefault(true);
    QVERIFY(dialog.GetOKButton()->isDefault());
}

void tst_FramelessDialog::setHelperTitleHeight()
{
    FramelessHelper helper;
    QCOMPARE(helper.titleHeight(), 30U);
    Dialog dialog;
    QCOMPARE(helper.titleHeight(), 48U);
    helper.setTitleHeight(20);
    Dialog other;
    QCOMPARE(helper.titleHeight(), 48U);
    QCOMPARE(dialog.findChildren<FramelessHelper *>(QString(), Qt::FindDirectChildrenOnly).count(),
             1);
}

void tst_FramelessDialog::contentHolder()
{
    Dialog dialog;
    QWidget *holder = dialog.getContentHolder();
    QVERIFY(holder);
    QCOMPARE(dialog.getContentHolder(), holder);
    QCOMPARE(holder->parentWidget(), &dialog);
    QCOMPARE(holder->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(holder->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(dialog.getMainLayout()->count(), 5);
    QCOMPARE(dialog.getMainLayout()->itemAt(2)->widget(), holder);
    dialog.show();
    QVERIFY(holder->isVisible());

    delete holder;
    QVERIFY(!dialog.layout());
    QVERIFY(dialog.getContentHolder());
    QCOMPARE(dialog.getMainLayout()->indexOf(dialog.getContentHolder()), 2);
}

void tst_FramelessDialog::setContentHolder()
{
    Dialog dialog;
    auto *first = new QWidget;
    dialog.SetContentHolder(first);
    QCOMPARE(first->parentWidget(), &dialog);
    QCOMPARE(dialog.getMainLayout()->itemAt(2)->widget(), first);
    // Not remembered: a second one takes the place before it, and so does the dialog's own.
    auto *second = new QWidget;
    dialog.SetContentHolder(second);
    QCOMPARE(dialog.getMainLayout()->itemAt(2)->widget(), second);
    QCOMPARE(dialog.getMainLayout()->itemAt(3)->widget(), first);
    new QVBoxLayout(first);
    QVERIFY(!dialog.layout());
    QVERIFY(dialog.getContentHolder() != first && dialog.getContentHolder() != second);
    QCOMPARE(dialog.getMainLayout()->count(), 7);
    dialog.SetContentHolder(nullptr);
    QCOMPARE(dialog.getMainLayout()->count(), 7);
}

void tst_FramelessDialog::setContentHolderTooLate()
{
    Dialog dialog;
    dialog.getContentHolder();
    QWidget widget;
    dialog.SetContentHolder(&widget);
    QVERIFY(!widget.parent());
    QCOMPARE(dialog.getMainLayout()->count(), 5);
}

void tst_FramelessDialog::setLayout()
{
    Dialog dialog;
    auto *layout = new QVBoxLayout;
    layout->setContentsMargins(1, 2, 3, 4);
    auto *edit = new QLineEdit;
    layout->addWidget(edit);
    dialog.setLayout(layout);
    QCOMPARE(dialog.layout(), layout);
    QCOMPARE(layout->contentsMargins(), QMargins(1, 2, 3, 4));
    QCOMPARE(dialog.getMainLayout()->itemAt(2)->layout(), layout);
    QCOMPARE(edit->parentWidget(), &dialog);
    QCOMPARE(dialog.QWidget::layout(), dialog.getMainLayout());
    dialog.show();
    QVERIFY(edit->isVisible());
}

void tst_FramelessDialog::setLayoutKeepsDefaultMargins()
{
    Dialog dialog;
    auto *layout = new QVBoxLayout;
    const QMargins margins = layout->contentsMargins();
    dialog.setLayout(layout);
    QCOMPARE(layout->contentsMargins(), margins);
}

void tst_FramelessDialog::setLayoutBadInput()
{
    Dialog dialog;
    dialog.setLayout(nullptr);
    QVERIFY(!dialog.layout());
    QCOMPARE(dialog.getMainLayout()->count(), 4);
    QWidget other;
    auto *used = new QVBoxLayout(&other);
    dialog.setLayout(used);
    QVERIFY(!dialog.layout());
    QCOMPARE(other.layout(), used);
    dialog.setLayout(dialog.getMainLayout());
    QVERIFY(!dialog.layout());
    auto *layout = new QVBoxLayout;
    dialog.setLayout(layout);
    dialog.setLayout(layout);
    QCOMPARE(dialog.getMainLayout()->count(), 5);
    QCOMPARE(dialog.layout(), layout);
}

void tst_FramelessDialog::setLayoutConstructedWithTheDialog()
{
    Dialog dialog;
    // Qt's own advice on the constructor that takes a parent.
    QTest::ignoreMessage(QtWarningMsg, "QLayout: Attempting to add QLayout \"\" to "
                                       "LM::Widgets::FramelessDialog \"\", which already "
                                       "has a layout");
    auto *layout = new QVBoxLayout(&dialog);
    dialog.setLayout(layout);
    QCOMPARE(dialog.layout(), layout);
    QCOMPARE(dialog.getMainLayout()->itemAt(2)->layout(), layout);
}

void tst_FramelessDialog::contentLayoutDeleted()
{
    Dialog dialog;
    auto *layout = new QVBoxLayout;
    dialog.setLayout(layout);
    delete layout;
    QVERIFY(!dialog.layout());
    auto *holderLayout = new QVBoxLayout(dialog.getContentHolder());
    QCOMPARE(dialog.layout(), holderLayout);
}

void tst_FramelessDialog::okCancelApply()
{
    Dialog dialog;
    dialog.setApplyButtonVisible(true);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QSignalSpy finished(&dialog, &QDialog::finished);
    QTest::mouseClick(dialog.GetApplyButton(), Qt::LeftButton);
    QVERIFY(dialog.isVisible());
    QCOMPARE(finished.count(), 0);
    QTest::mouseClick(dialog.GetOKButton(), Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(finished.takeFirst(), QVariantList{int(QDialog::Accepted)});
    dialog.show();
    QTest::mouseClick(dialog.GetCancelButton(), Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(finished.takeFirst(), QVariantList{int(QDialog::Rejected)});
}

void tst_FramelessDialog::virtualOkAndCancel()
{
    AskingDialog dialog;
    dialog.show();
    QTest::mouseClick(dialog.GetOKButton(), Qt::LeftButton);
    QCOMPARE(dialog.oks, 1);
    QCOMPARE(dialog.cancels, 0);
    QTest::mouseClick(dialog.GetCancelButton(), Qt::LeftButton);
    QCOMPARE(dialog.cancels, 1);
    QVERIFY(dialog.isVisible());
}

void tst_FramelessDialog::closeButton()
{
    AskingDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    QTest::mouseClick(dialog.getTitleBar()->titleButton(4), Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(rejected.count(), 1);
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(dialog.cancels, 0);
}

void tst_FramelessDialog::enterAndEscape()
{
    AskingDialog dialog;
    auto *layout = new QVBoxLayout;
    auto *edit = new QLineEdit;
    layout->addWidget(edit);
    dialog.setLayout(layout);
    dialog.show();
    QTRY_VERIFY(dialog.isActiveWindow());
    edit->setFocus();
    QTest::keyClick(dialog.windowHandle(), 'a');
    QTRY_COMPARE(edit->text(), QStringLiteral("a"));
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Return);
    QTRY_COMPARE(dialog.oks, 1);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape);
    QTRY_VERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

void tst_FramelessDialog::minimise()
{
    Dialog dialog;
    dialog.setMinButtonVisible(true);
    dialog.show();
    QVERIFY(isButtonShown(dialog, 1));
    QTest::mouseClick(dialog.getTitleBar()->titleButton(1), Qt::LeftButton);
    QVERIFY(dialog.isMinimized());
}

void tst_FramelessDialog::maximise()
{
    Dialog dialog;
    dialog.setMaxButtonVisible(true);
    dialog.show();
    QVERIFY(isButtonShown(dialog, 2));
    QVERIFY(!isButtonShown(dialog, 3));
    dialog.showMaximized();
    QVERIFY(dialog.isMaximized());
    QVERIFY(!isButtonShown(dialog, 2));
    QVERIFY(isButtonShown(dialog, 3));
    dialog.show();
    QVERIFY(isButtonShown(dialog, 3));
    dialog.showNormal();
    QVERIFY(!dialog.isMaximized());
    QVERIFY(isButtonShown(dialog, 2));
    QVERIFY(!isButtonShown(dialog, 3));
    dialog.swithMaxNormal();
    QVERIFY(dialog.isMaximized());
    QVERIFY(isButtonShown(dialog, 3));
    dialog.swithMaxNormal();
    QVERIFY(!dialog.isMaximized());
    QVERIFY(isButtonShown(dialog, 2));
    QVERIFY(QMetaObject::invokeMethod(&dialog, "swithMaxNormal"));
    QVERIFY(dialog.isMaximized());
}

void tst_FramelessDialog::maximiseButtons()
{
    Dialog dialog;
    dialog.setMaxButtonVisible(true);
    dialog.show();
    QTest::mouseClick(dialog.getTitleBar()->titleButton(2), Qt::LeftButton);
    QVERIFY(dialog.isMaximized());
    QVERIFY(!isButtonShown(dialog, 2));
    QVERIFY(isButtonShown(dialog, 3));
    QTest::mouseClick(dialog.getTitleBar()->titleButton(3), Qt::LeftButton);
    QVERIFY(!dialog.isMaximized());
    QVERIFY(isButtonShown(dialog, 2));
    QVERIFY(!isButtonShown(dialog, 3));

    // Not in use, they stay hidden whatever the state.
    dialog.setMaxButtonVisible(false);
    dialog.showMaximized();
    QVERIFY(!isButtonShown(dialog, 2) && !isButtonShown(dialog, 3));
    dialog.setMaxButtonVisible(true);
    QVERIFY(!isButtonShown(dialog, 2) && isButtonShown(dialog, 3));
}

void tst_FramelessDialog::hidingMaxButtonsEndsResizing()
{
    Dialog dialog;
    dialog.setDialogResizable(true);
    dialog.setMaxButtonVisible(true);
    dialog.show();
    lmtest::hoverMove(&dialog, QPoint(0, 100));
    QCOMPARE(dialog.cursor().shape(), Qt::SizeHorCursor);
    dialog.setMaxButtonVisible(false);
    dialog.unsetCursor();
    lmtest::hoverMove(&dialog, QPoint(0, 100));
    QCOMPARE(dialog.cursor().shape(), Qt::ArrowCursor);
    dialog.setMaxButtonVisible(true);
    lmtest::hoverMove(&dialog, QPoint(0, 100));
    QCOMPARE(dialog.cursor().shape(), Qt::ArrowCursor);
}

void tst_FramelessDialog::buttonVisibility()
{
    Dialog dialog;
    dialog.show();
    for (const bool visible : {false, true}) {
        dialog.setOKButtonVisible(visible);
        dialog.setCancelButtonVisible(visible);
        dialog.setApplyButtonVisible(visible);
        QCOMPARE(dialog.GetOKButton()->isVisible(), visible);
        QCOMPARE(dialog.GetCancelButton()->isVisible(), visible);
        QCOMPARE(dialog.GetApplyButton()->isVisible(), visible);
    }
}

void tst_FramelessDialog::closeButtonVisible()
{
    Dialog dialog;
    QVERIFY(!dialog.getCloseButtonVisible());
    dialog.show();
    QVERIFY(dialog.getCloseButtonVisible());
    dialog.setCloseButtonVisible(false);
    QVERIFY(!dialog.getCloseButtonVisible());
    QVERIFY(!isButtonShown(dialog, 4));
    dialog.setCloseButtonVisible(true);
    QVERIFY(dialog.getCloseButtonVisible());
}

void tst_FramelessDialog::icon()
{
    Dialog dialog;
    QVERIFY(dialog.windowIcon().isNull());
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    const QIcon red(pixmap);
    dialog.setWindowIcon(red);
    QCOMPARE(dialog.windowIcon().cacheKey(), red.cacheKey());
    QCOMPARE(dialog.QWidget::windowIcon().cacheKey(), red.cacheKey());
    QCOMPARE(dialog.getTitleBar()->titleButtonIcon(0).cacheKey(), red.cacheKey());
    dialog.show();
    QVERIFY(!isButtonShown(dialog, 0));
    dialog.getTitleBar()->setTitleButtonVisible(0, true);
    dialog.hideTitleIcon();
    QVERIFY(!isButtonShown(dialog, 0));
}

void tst_FramelessDialog::title()
{
    Dialog dialog;
    QVERIFY(dialog.windowTitle().isEmpty());
    dialog.setWindowTitle(QStringLiteral("Layers %1 <b>"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Layers %1 <b>"));
    QCOMPARE(dialog.getTitleBar()->title(), QStringLiteral("Layers %1 <b>"));
    QCOMPARE(dialog.getTitleBar()->titleLabel()->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    dialog.setWindowTitleAlignment(Qt::AlignRight);
    QCOMPARE(dialog.getTitleBar()->titleLabel()->alignment(), Qt::AlignRight);
}

void tst_FramelessDialog::titleButtons()
{
    Dialog dialog;
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    const QIcon red(pixmap);
    for (int type = -1; type < 6; ++type) {
        dialog.setTitleButtonIcon(type, red);
        dialog.setTtitleBarButtonSize(type, QSize(31, 32));
        dialog.setTtitleBarButtonStyle(type, QStringLiteral("color:red;"));
        if (QToolButton *button = dialog.getTitleBar()->titleButton(type)) {
            QCOMPARE(button->icon().cacheKey(), red.cacheKey());
            QCOMPARE(button->minimumSize(), QSize(31, 32));
            QCOMPARE(button->maximumSize(), QSize(31, 32));
            QCOMPARE(button->styleSheet(), QStringLiteral("color:red;"));
        }
    }
}

void tst_FramelessDialog::extraTitleButtons()
{
    Dialog dialog;
    QAction first(QStringLiteral("first"), nullptr);
    QAction second(QStringLiteral("second"), nullptr);
    dialog.appendExtendTitleButton(&first, QSize(20, 21), QSize(16, 17));
    dialog.insertExtendTitleButton(0, &second, QSize(22, 23), QSize(18, 19));
    dialog.appendExtendTitleButton(nullptr, QSize(20, 20), QSize(16, 16));
    QHBoxLayout *row = dialog.getTitleBar()->topLayout();
    QCOMPARE(row->count(), 2);
    auto *button = qobject_cast<QToolButton *>(row->itemAt(0)->widget());
    QVERIFY(button);
    QCOMPARE(button->defaultAction(), &second);
    QCOMPARE(button->minimumSize(), QSize(22, 23));
    QCOMPARE(button->iconSize(), QSize(18, 19));
}

void tst_FramelessDialog::movable()
{
    Dialog dialog;
    dialog.resize(400, 300);
    dialog.show();
    const QPoint before = dialog.pos();
    dialog.setDialogMovable(false);
    drag(&dialog, QPoint(200, 30), QPoint(5, 5));
    QCOMPARE(dialog.pos(), before);
    dialog.setDialogtMovable(true);
    drag(&dialog, QPoint(200, 30), QPoint(5, 5));
    QCOMPARE(dialog.pos(), before + QPoint(5, 5));
    dialog.setDialogtMovable(false);
    drag(&dialog, QPoint(200, 30), QPoint(5, 5));
    QCOMPARE(dialog.pos(), before + QPoint(5, 5));
    dialog.setDialogMovable(true);
    drag(&dialog, QPoint(200, 30), QPoint(-5, -5));
    QCOMPARE(dialog.pos(), before);
}

void tst_FramelessDialog::resizable()
{
    Dialog dialog;
    dialog.resize(400, 300);
    dialog.show();
    dialog.setMinimumSize(300, 200);
    dialog.setMaximumSize(700, 700);
    drag(&dialog, QPoint(400, 300), QPoint(20, 30));
    QCOMPARE(dialog.size(), QSize(400, 300));
    dialog.setDialogResizable(true);
    // The edge goes to the mouse, which is one beyond the last pixel.
    drag(&dialog, QPoint(400, 300), QPoint(20, 30));
    QCOMPARE(dialog.size(), QSize(421, 331));
    QCOMPARE(dialog.moves, 0);
    dialog.setDialogResizable(false);
    drag(&dialog, QPoint(421, 331), QPoint(20, 30));
    QCOMPARE(dialog.size(), QSize(421, 331));
}

void tst_FramelessDialog::rubberBands()
{
    const auto bandCount = [] {
        int count = 0;
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            count += qobject_cast<QRubberBand *>(widget) ? 1 : 0;
        }
        return count;
    };
    Dialog dialog;
    dialog.resize(400, 300);
    dialog.show();
    QCOMPARE(bandCount(), 0);
    dialog.setRubberBandOnResize(true);
    QCOMPARE(bandCount(), 1);
    dialog.setRubberBandOnMove(true);
    dialog.setRubberBandOnResize(false);
    QCOMPARE(bandCount(), 1);
    const QPoint before = dialog.pos();
    drag(&dialog, QPoint(200, 30), QPoint(20, 30));
    QCOMPARE(dialog.pos(), before + QPoint(20, 30));
    QCOMPARE(dialog.size(), QSize(400, 300));
    QCOMPARE(dialog.moves, 0);
    dialog.setRubberBandOnMove(false);
    QCOMPARE(bandCount(), 0);
}

void tst_FramelessDialog::separatorHeight()
{
    Dialog dialog;
    dialog.setHorizontalLineHeight(5);
    for (const int index : {1, 2}) {
        QWidget *line = dialog.getMainLayout()->itemAt(index)->widget();
        QCOMPARE(line->minimumHeight(), 5);
        QCOMPARE(line->maximumHeight(), 5);
    }
    delete dialog.getMainLayout()->itemAt(2)->widget();
    dialog.setHorizontalLineHeight(0);
    QCOMPARE(dialog.getMainLayout()->itemAt(1)->widget()->maximumHeight(), 0);
}

void tst_FramelessDialog::messageBoxLook()
{
    Dialog dialog;
    dialog.show();
    dialog.setMessageboxStyleSheet();
    QLabel *label = dialog.getTitleBar()->titleLabel();
    QCOMPARE(dialog.getTitleBar()->titleButton(0)->styleSheet(),
             QLatin1String(MessageBoxLogoStyle));
    QCOMPARE(label->objectName(), QStringLiteral("Messageboxtitlelabel"));
    QCOMPARE(label->styleSheet(), QLatin1String(MessageBoxTitleStyle));
    QVERIFY(isButtonShown(dialog, 0));
}

void tst_FramelessDialog::themeSwitch()
{
    Dialog dialog;
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::White);
    QCOMPARE(dialog.styles, 1);
    FramelessDialog plain;
    plain.setStyleSheet(QStringLiteral("color:red;"));
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Blue);
    QCOMPARE(plain.styleSheet(), QStringLiteral("color:red;"));
    QCOMPARE(dialog.styles, 2);
}

void tst_FramelessDialog::updateMoveEvent()
{
    Dialog dialog;
    dialog.resize(400, 300);
    dialog.show();
    QPoint seen;
    dialog.onMoved = [&dialog, &seen] { seen = dialog.pos(); };
    const QPoint before = dialog.pos();
    dialog.move(before + QPoint(1, 1));
    QCOMPARE(dialog.moves, 0);
    drag(&dialog, QPoint(200, 30), QPoint(5, 6));
    QCOMPARE(dialog.moves, 1);
    QCOMPARE(seen, before + QPoint(6, 7));
    // Also for a step that leads nowhere.
    drag(&dialog, QPoint(200, 30), QPoint(0, 0));
    QCOMPARE(dialog.moves, 2);
}

void tst_FramelessDialog::shadowBorder()
{
    Dialog dialog;
    dialog.setOKButtonVisible(false);
    dialog.setCancelButtonVisible(false);
    dialog.resize(300, 200);
    const QImage image = dialog.grab().toImage().convertToFormat(QImage::Format_ARGB32);
    QCOMPARE(image.size(), QSize(300, 200));
    for (const QPoint &point : {QPoint(0, 0), QPoint(8, 100), QPoint(291, 100), QPoint(150, 8),
                                QPoint(150, 191), QPoint(299, 199)}) {
        QCOMPARE(image.pixelColor(point).alpha(), 0);
    }
    // A smooth line of 1 px between two pixels covers half of each.
    for (const QPoint &point :
         {QPoint(9, 100), QPoint(290, 100), QPoint(150, 9), QPoint(150, 190)}) {
        const QColor color = image.pixelColor(point);
        QVERIFY2(qAbs(color.alpha() - 128) <= 2, qPrintable(color.name(QColor::HexArgb)));
        QVERIFY2(qAbs(color.red() - 112) <= 2, qPrintable(color.name(QColor::HexArgb)));
    }
    for (const QPoint &point :
         {QPoint(10, 100), QPoint(289, 100), QPoint(150, 10), QPoint(150, 189)}) {
        const QColor color = image.pixelColor(point);
        QCOMPARE(color.alpha(), 255);
        QVERIFY2(qAbs(color.red() - (112 + 0x45) / 2) <= 2, qPrintable(color.name()));
    }
    for (const QPoint &point :
         {QPoint(11, 100), QPoint(288, 100), QPoint(150, 188), QPoint(150, 150)}) {
        QCOMPARE(image.pixelColor(point), gray(0x45));
    }
}

void tst_FramelessDialog::solidBorder()
{
    SolidDialog dialog;
    dialog.setOKButtonVisible(false);
    dialog.setCancelButtonVisible(false);
    dialog.resize(300, 200);
    const QImage image = dialog.grab().toImage().convertToFormat(QImage::Format_ARGB32);
    // On all sides the line lies half outside.
    for (const QPoint &point :
         {QPoint(0, 100), QPoint(150, 0), QPoint(299, 100), QPoint(150, 199)}) {
        const QColor color = image.pixelColor(point);
        QVERIFY2(qAbs(color.alpha() - 128) <= 2, qPrintable(color.name(QColor::HexArgb)));
        QVERIFY2(qAbs(color.red() - 0x38) <= 2, qPrintable(color.name(QColor::HexArgb)));
    }
    for (const QPoint &point : {QPoint(1, 100), QPoint(150, 1), QPoint(298, 100), QPoint(150, 198),
                                QPoint(5, 5), QPoint(150, 150)}) {
        QCOMPARE(image.pixelColor(point), gray(0x45));
    }
}

void tst_FramelessDialog::activatesItself()
{
    Dialog first;
    first.show();
    QTRY_VERIFY(first.isActiveWindow());
    Dialog second;
    second.show();
    QTRY_VERIFY(second.isActiveWindow());
    QVERIFY(!first.isActiveWindow());

    // Offscreen any window becomes active when it appears, so what the dialog itself does at its
    // show event is seen on one that has appeared before.
    QShowEvent event;
    QApplication::sendEvent(&first, &event);
    QTRY_VERIFY(first.isActiveWindow());
}

void tst_FramelessDialog::pressActivates()
{
    Dialog first;
    first.resize(300, 200);
    auto *layout = new QVBoxLayout;
    auto *edit = new QLineEdit;
    layout->addWidget(edit);
    first.setLayout(layout);
    first.show();
    QTRY_VERIFY(first.isActiveWindow());
    QWidget other;
    other.show();
    other.activateWindow();
    QTRY_VERIFY(other.isActiveWindow());
    QVERIFY(!first.isActiveWindow());
    QTest::mouseClick(first.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      edit->mapTo(&first, edit->rect().center()));
    QTRY_VERIFY(first.isActiveWindow());
    QTest::keyClick(first.windowHandle(), 'x');
    QTRY_COMPARE(edit->text(), QStringLiteral("x"));
}

void tst_FramelessDialog::showWithoutActivating()
{
    Dialog dialog;
    dialog.setAttribute(Qt::WA_ShowWithoutActivating);
    dialog.show();
    QWidget other;
    other.show();
    other.activateWindow();
    QTRY_VERIFY(other.isActiveWindow());
    QShowEvent event;
    QApplication::sendEvent(&dialog, &event);
    QCoreApplication::processEvents();
    QVERIFY(other.isActiveWindow());
}

void tst_FramelessDialog::deletedFromUpdateMoveEvent()
{
    auto *dialog = new Dialog;
    const QPointer<Dialog> guard = dialog;
    dialog->resize(400, 300);
    dialog->show();
    dialog->onMoved = [dialog] { delete dialog; };
    const QPoint start = dialog->mapToGlobal(QPoint(200, 30));
    lmtest::mouseAt(dialog, QEvent::MouseButtonPress, start);
    lmtest::mouseAt(dialog, QEvent::MouseMove, start + QPoint(3, 3));
    QVERIFY(guard.isNull());

    // By a real pointer, which goes by way of the window and the title bar.
    dialog = new Dialog;
    const QPointer<Dialog> second = dialog;
    dialog->resize(400, 300);
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    dialog->onMoved = [dialog] { delete dialog; };
    QTest::mousePress(dialog->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(200, 30));
    QTest::mouseMove(dialog->windowHandle(), QPoint(205, 35));
    QTRY_VERIFY(second.isNull());
}

void tst_FramelessDialog::deletedWithinItsSignals()
{
    QPointer<Dialog> dialog = new Dialog;
    connect(dialog, &QDialog::accepted, this, [&dialog] { delete dialog.data(); });
    dialog->show();
    QTest::mouseClick(dialog->GetOKButton(), Qt::LeftButton);
    QVERIFY(dialog.isNull());

    dialog = new Dialog;
    connect(dialog, &QDialog::rejected, this, [&dialog] { delete dialog.data(); });
    dialog->show();
    QTest::mouseClick(dialog->getTitleBar()->titleButton(4), Qt::LeftButton);
    QVERIFY(dialog.isNull());
}

void tst_FramelessDialog::deletedParts()
{
    Dialog dialog;
    QAction action(QStringLiteral("a"), nullptr);
    delete dialog.GetOKButton();
    delete dialog.GetApplyButton();
    delete dialog.bottomWidget();
    delete dialog.getTitleBar();
    QVERIFY(!dialog.GetOKButton());
    QVERIFY(!dialog.GetCancelButton());
    QVERIFY(!dialog.getTitleBar());
    dialog.setOKButtonVisible(true);
    dialog.setCancelButtonVisible(true);
    dialog.setApplyButtonVisible(true);
    dialog.setOKButtonDefault(true);
    dialog.setCloseButtonVisible(true);
    dialog.setMinButtonVisible(true);
    dialog.setMaxButtonVisible(true);
    dialog.setMaxButtonVisible(false);
    dialog.hideTitleIcon();
    dialog.setWindowIcon(QIcon());
    dialog.setWindowTitle(QStringLiteral("x"));
    dialog.setWindowTitleAlignment(Qt::AlignLeft);
    dialog.setTitleBarLabelStyleSheet(QString());
    dialog.setTitleButtonIcon(0, QIcon());
    dialog.setTtitleBarButtonSize(0, QSize(1, 1));
    dialog.setTtitleBarButtonStyle(0, QString());
    dialog.appendExtendTitleButton(&action, QSize(1, 1), QSize(1, 1));
    dialog.insertExtendTitleButton(0, &action, QSize(1, 1), QSize(1, 1));
    dialog.setMessageboxStyleSheet();
    QVERIFY(!dialog.getCloseButtonVisible());
    QVERIFY(dialog.windowIcon().isNull());
    QVERIFY(dialog.windowTitle().isEmpty());
    dialog.show();
    dialog.showMaximized();
    dialog.showNormal();
    dialog.swithMaxNormal();
    QVERIFY(dialog.isMaximized());
}

void tst_FramelessDialog::switchWhileItsChildrenGo()
{
    Dialog other;
    auto dialog = std::make_unique<Dialog>();
    connect(dialog->GetOKButton(), &QObject::destroyed, this,
            [] { TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::White); });
    dialog.reset();
    QCOMPARE(other.styles, 1);
}

LMTEST_MAIN(tst_FramelessDialog)

#include "tst_framelessdialog.moc"
