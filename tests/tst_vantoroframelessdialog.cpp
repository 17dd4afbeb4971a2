#include "lmtest.h"

#include <lmwidgets/framelesshelper.h>
#include <lmwidgets/talvostylemanager.h>
#include <lmwidgets/titlebar.h>
#include <lmwidgets/vantoroframelessdialog.h>

#include <QFrame>
#include <QGraphicsDropShadowEffect>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>
#include <QTranslator>
#include <QVBoxLayout>
#include <QWindow>

using LM::Widgets::FramelessHelper;
using LM::Widgets::TalvoStyleManager;
using LM::Widgets::TitleBar;
using LM::Widgets::VantoroFramelessDialog;

namespace {

/** A dialog that keeps its buttons from doing what they do. */
class AskingDialog : public VantoroFramelessDialog
{
public:
    using VantoroFramelessDialog::VantoroFramelessDialog;

    void initStyleSheet() override { ++styles; }
    void slotUIButtonOk() override { calls.append(QStringLiteral("ok")); }
    void slotUIButtonCancel() override { calls.append(QStringLiteral("cancel")); }
    void slotUIButtonApply() override { calls.append(QStringLiteral("apply")); }

    int styles = 0;
    QStringList calls;
};

bool isSet(const QObject *object, const char *property)
{
    return object->property(property) == QVariant(true);
}

/** What Tab goes through from the first one on, hidden widgets too. */
QVector<QWidget *> focusOrder(const QWidget &window)
{
    QVector<QWidget *> order;
    for (QWidget *widget = window.nextInFocusChain(); widget != &window;
         widget = widget->nextInFocusChain()) {
        if (widget->focusPolicy() != Qt::NoFocus) {
            order.append(widget);
        }
    }
    return order;
}

void drag(QWidget *widget, const QPoint &from, const QPoint &by)
{
    const QPoint start = widget->mapToGlobal(from);
    lmtest::mouseAt(widget, QEvent::MouseButtonPress, start);
    lmtest::mouseAt(widget, QEvent::MouseMove, start + by);
    lmtest::mouseAt(widget, QEvent::MouseButtonRelease, start + by);
}

/** Puts the context before what it is asked for. */
class MarkingTranslator : public QTranslator
{
public:
    using QTranslator::QTranslator;

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return QLatin1String(context) + QLatin1Char('#') + QLatin1String(source);
    }
};

} // namespace

class tst_VantoroFramelessDialog : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void escapeLeavesItOpen();
    void maxButtonIsShownByItsGetter();
    void windowFlags_data();
    void windowFlags();

    void metaObject();
    void contentFrame();
    void shadow();
    void titleBar();
    void titleButtons();
    void bottomRow();
    void layoutsOfTheFrame();
    void geometry();
    void helper();
    void dragBoundary_data();
    void dragBoundary();
    void resizing();
    void setLayout();
    void setLayoutBadInput();
    void windowTitle();
    void buttonsEndTheDialog_data();
    void buttonsEndTheDialog();
    void overridesAreCalled();
    void enterPressesTheDefaultButton();
    void otherKeysReachTheDialog();
    void themeSwitch();
    void tabOrder();
    void tabOrderOfTheHost();
    void activation();
    void partsDeleted();
    void slotDeletesTheDialog_data();
    void slotDeletesTheDialog();
    void texts();
    void deletedParts();
    void parentDestroyed();
};

void tst_VantoroFramelessDialog::escapeLeavesItOpen()
{
    VantoroFramelessDialog dialog;
    const QSignalSpy finished(&dialog, &QDialog::finished);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QTest::keyClick(&dialog, Qt::Key_Escape, Qt::ShiftModifier);
    QTest::keyClick(dialog.getOKButton(), Qt::Key_Escape);
    QVERIFY(dialog.isVisible());
    QCOMPARE(finished.count(), 0);
}

void tst_VantoroFramelessDialog::maxButtonIsShownByItsGetter()
{
    VantoroFramelessDialog dialog;
    dialog.show();
    QVERIFY(!dialog.getTitleBar()->isTitleButtonVisible(TitleBar::MaxButton));
    QCOMPARE(dialog.getWindowTitleMaxButton(),
             dialog.getTitleBar()->titleButton(TitleBar::MaxButton));
    QVERIFY(dialog.getTitleBar()->isTitleButtonVisible(TitleBar::MaxButton));
    // From now on it is in use.
    dialog.getTitleBar()->setMaximized(true);
    QVERIFY(!dialog.getTitleBar()->isTitleButtonVisible(TitleBar::MaxButton));
    dialog.getWindowTitleMaxButton();
    QVERIFY(dialog.getTitleBar()->isTitleButtonVisible(TitleBar::MaxButton));
}

void tst_VantoroFramelessDialog::windowFlags_data()
{
    QTest::addColumn<Qt::WindowFlags>("flags");
    QTest::newRow("none") << Qt::WindowFlags();
    QTest::newRow("tool") << Qt::WindowFlags(Qt::Tool);
    QTest::newRow("on top") << (Qt::Window | Qt::WindowStaysOnTopHint);
    QTest::newRow("bypass") << Qt::WindowFlags(Qt::BypassWindowManagerHint);
}

void tst_VantoroFramelessDialog::windowFlags()
{
    QFETCH(Qt::WindowFlags, flags);
    QWidget parent;
    for (QWidget *owner : {static_cast<QWidget *>(nullptr), &parent}) {
        VantoroFramelessDialog dialog(owner, flags);
        QCOMPARE(int(dialog.windowFlags()), 0xC803);
        QVERIFY(dialog.isHidden());
        QCOMPARE(dialog.parentWidget(), owner);
        dialog.show();
        QCOMPARE(int(dialog.windowFlags()), 0xC803);
    }
}

void tst_VantoroFramelessDialog::metaObject()
{
    QCOMPARE(lmtest::ownMethods(VantoroFramelessDialog::staticMetaObject),
             (QStringList{QStringLiteral("slot slotUIButtonOk()"),
                          QStringLiteral("slot slotUIButtonCancel()"),
                          QStringLiteral("slot slotUIButtonApply()")}));
    QCOMPARE(VantoroFramelessDialog::staticMetaObject.superClass(),
             &LM::Widgets::TalvoDialogBase::staticMetaObject);
}

void tst_VantoroFramelessDialog::contentFrame()
{
    VantoroFramelessDialog dialog;
    QFrame *frame = dialog.getCenterMainFrame();
    QVERIFY(frame);
    QCOMPARE(frame->objectName(), QStringLiteral("m_pContentHoderFrame"));
    QVERIFY(isSet(frame, "framehoderbackground"));
    QCOMPARE(frame->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
    QCOMPARE(frame->styleSheet(),
             QStringLiteral("QFrame#m_pContentHoderFrame { border: 1px solid #585858; }"));
    auto *main = qobject_cast<QVBoxLayout *>(dialog.QWidget::layout());
    QVERIFY(main);
    QCOMPARE(main->contentsMargins(), QMargins());
    QCOMPARE(main->spacing(), 0);
    QCOMPARE(main->count(), 1);
    QCOMPARE(main->itemAt(0)->widget(), frame);
}

void tst_VantoroFramelessDialog::shadow()
{
    const VantoroFramelessDialog dialog;
    auto *effect = qobject_cast<QGraphicsDropShadowEffect *>(dialog.graphicsEffect());
    QVERIFY(effect);
    QCOMPARE(effect->blurRadius(), 24.0);
    QCOMPARE(effect->offset(), QPointF(0, 4));
    QCOMPARE(effect->color(), QColor(0, 0, 0, 0));
}

void tst_VantoroFramelessDialog::titleBar()
{
    VantoroFramelessDialog dialog;
    TitleBar *bar = dialog.getTitleBar();
    QVERIFY(isSet(bar, "isFramelessDialogTitleBar"));
    QVERIFY(isSet(bar, "transparentbackgroundwidget"));
    QVERIFY(isSet(bar->topLeftWidget(), "transparentbackgroundwidget"));
    QVERIFY(isSet(bar->titleLabel(), "vantorotitlecontent"));
    QVERIFY(isSet(dialog.getWindowTitleCloseButton(), "transparentbackgroundbutton"));
    QCOMPARE(bar->titleLabel()->styleSheet(), QStringLiteral("background-color:transparent;"));
    QCOMPARE(bar->titleLabel()->alignment(), Qt::Alignment(Qt::AlignLeft));
    QCOMPARE(bar->minimumHeight(), 48);
    QCOMPARE(bar->maximumHeight(), 48);
    QVERIFY(!bar->isHidden());
    QCOMPARE(dialog.getWindowTitleCloseButton(), bar->titleButton(TitleBar::CloseButton));
}

void tst_VantoroFramelessDialog::titleButtons()
{
    VantoroFramelessDialog dialog;
    dialog.show();
    TitleBar *bar = dialog.getTitleBar();
    QVERIFY(bar->isTitleButtonVisible(TitleBar::CloseButton));
    bar->setMaximized(true);
    bar->setMaximized(false);
    for (const int hidden : {TitleBar::LogoButton, TitleBar::MinButton, TitleBar::MaxButton,
                             TitleBar::RestoreButton}) {
        QVERIFY(!bar->isTitleButtonVisible(hidden));
    }
}

void tst_VantoroFramelessDialog::bottomRow()
{
    VantoroFramelessDialog dialog;
    QHBoxLayout *row = dialog.bottomLayout();
    QCOMPARE(row, dialog.bottomWidget()->layout());
    QCOMPARE(row->contentsMargins(), QMargins(0, 16, 0, 16));
    QCOMPARE(row->spacing(), 16);
    QCOMPARE(row->count(), 4);
    QVERIFY(row->itemAt(0)->spacerItem());
    QCOMPARE(row->itemAt(1)->widget(), dialog.getCancelButton());
    QCOMPARE(row->itemAt(2)->widget(), dialog.getApplyButton());
    QCOMPARE(row->itemAt(3)->widget(), dialog.getOKButton());
    QCOMPARE(dialog.bottomWidget()->minimumHeight(), 64);
    QCOMPARE(dialog.bottomWidget()->maximumHeight(), 64);
    QVERIFY(isSet(dialog.bottomWidget(), "transparentbackgroundwidget"));

    QCOMPARE(dialog.getOKButton()->text(), QStringLiteral("OK"));
    QCOMPARE(dialog.getCancelButton()->text(), QStringLiteral("Cancel"));
    QCOMPARE(dialog.getApplyButton()->text(), QStringLiteral("Apply"));
    QVERIFY(dialog.getOKButton()->isDefault());
    QVERIFY(!dialog.getCancelButton()->isDefault());
    QCOMPARE(dialog.getOKButton()->minimumWidth(), 85);
    QCOMPARE(dialog.getCancelButton()->minimumWidth(), 85);
    QCOMPARE(dialog.getApplyButton()->minimumWidth(), 0);
    QVERIFY(dialog.getApplyButton()->isHidden());
    QVERIFY(!dialog.getOKButton()->isHidden() && !dialog.getCancelButton()->isHidden());
    QVERIFY(isSet(dialog.getOKButton(), "vantorookbutton"));
    QVERIFY(isSet(dialog.getCancelButton(), "vantorcancelbbutton"));
    QVERIFY(isSet(dialog.getApplyButton(), "vantorcancelbbutton"));
}

void tst_VantoroFramelessDialog::layoutsOfTheFrame()
{
    VantoroFramelessDialog dialog;
    QLayout *outer = dialog.getCenterMainFrame()->layout();
    QVERIFY(qobject_cast<QVBoxLayout *>(outer));
    QCOMPARE(outer->contentsMargins(), QMargins());
    QCOMPARE(outer->spacing(), 0);
    QCOMPARE(outer->count(), 2);
    QCOMPARE(outer->itemAt(0)->layout(), dialog.getTilteBarLayout());
    QCOMPARE(outer->itemAt(1)->layout(), dialog.mainLayout());
    QCOMPARE(dialog.getTilteBarLayout()->contentsMargins(), QMargins());
    QCOMPARE(dialog.getTilteBarLayout()->spacing(), 0);
    QCOMPARE(dialog.getTilteBarLayout()->itemAt(0)->widget(), dialog.getTitleBar());

    QVERIFY(qobject_cast<QVBoxLayout *>(dialog.mainLayout()));
    QCOMPARE(dialog.mainLayout()->contentsMargins(), QMargins(24, 0, 24, 0));
    QCOMPARE(dialog.mainLayout()->spacing(), 0);
    QCOMPARE(dialog.mainLayout()->count(), 2);
    QCOMPARE(dialog.mainLayout()->itemAt(0)->layout(), dialog.getCenterHoderLayout());
    QCOMPARE(dialog.mainLayout()->itemAt(1)->widget(), dialog.bottomWidget());
    QCOMPARE(dialog.getCenterHoderLayout()->contentsMargins(), QMargins());
    QCOMPARE(dialog.getCenterHoderLayout()->spacing(), 0);
    QCOMPARE(dialog.getCenterHoderLayout()->count(), 1);
    QCOMPARE(dialog.getCenterHoderLayout()->itemAt(0)->widget(), dialog.getContentHolder());
    QVERIFY(isSet(dialog.getContentHolder(), "centercontentgrayframe"));
    QVERIFY(dialog.getContentHolder()->objectName().isEmpty());
}

void tst_VantoroFramelessDialog::geometry()
{
    VantoroFramelessDialog dialog;
    dialog.setLayout(new QVBoxLayout);
    dialog.resize(500, 400);
    dialog.show();
    QCOMPARE(dialog.size(), QSize(500, 400));
    // One px of border all around.
    const auto place = [&dialog](QWidget *widget) {
        return QRect(widget->mapTo(&dialog, QPoint()), widget->size());
    };
    QCOMPARE(place(dialog.getTitleBar()), QRect(1, 1, 498, 48));
    QCOMPARE(place(dialog.getContentHolder()), QRect(25, 49, 450, 286));
    QCOMPARE(place(dialog.bottomWidget()), QRect(25, 335, 450, 64));
    QCOMPARE(place(dialog.getOKButton()).right(), 474);
    const QImage picture = dialog.grab().toImage();
    QCOMPARE(picture.pixelColor(0, 200), QColor(0x58, 0x58, 0x58));
    QCOMPARE(picture.pixelColor(250, 399), QColor(0x58, 0x58, 0x58));
    QCOMPARE(picture.pixelColor(100, 100), QColor(0x36, 0x36, 0x36));
}

void tst_VantoroFramelessDialog::helper()
{
    FramelessHelper other;
    other.setTitleHeight(30);
    VantoroFramelessDialog dialog;
    FramelessHelper *helper = dialog.getFramelessHelper();
    QVERIFY(helper);
    QCOMPARE(helper->titleHeight(), 48U);
    QVERIFY(helper->widgetMovable());
    QVERIFY(!helper->widgetResizable());
    QVERIFY(!helper->rubberBandOnMove());
    QVERIFY(!helper->rubberBandOnResisze());
    QVERIFY(dialog.hasMouseTracking());
}

void tst_VantoroFramelessDialog::dragBoundary_data()
{
    QTest::addColumn<int>("y");
    QTest::addColumn<bool>("moves");
    QTest::newRow("top edge") << 0 << true;
    QTest::newRow("last row of the title area") << 57 << true;
    QTest::newRow("below the title area") << 58 << false;
}

void tst_VantoroFramelessDialog::dragBoundary()
{
    QFETCH(int, y);
    QFETCH(bool, moves);
    VantoroFramelessDialog dialog;
    dialog.setGeometry(100, 100, 400, 300);
    dialog.show();
    drag(&dialog, QPoint(200, y), QPoint(30, 20));
    QCOMPARE(dialog.geometry(), moves ? QRect(130, 120, 400, 300) : QRect(100, 100, 400, 300));
}

void tst_VantoroFramelessDialog::resizing()
{
    VantoroFramelessDialog dialog;
    dialog.setGeometry(100, 100, 400, 300);
    dialog.show();
    drag(&dialog, QPoint(399, 200), QPoint(50, 0));
    QCOMPARE(dialog.width(), 400);
    dialog.getFramelessHelper()->setWidgetResizable(true);
    drag(&dialog, QPoint(399, 200), QPoint(50, 0));
    QVERIFY(dialog.width() >= 449);
    // The size is not frozen by a show, unlike that of the other frame.
    dialog.hide();
    dialog.show();
    dialog.resize(600, 400);
    QCOMPARE(dialog.size(), QSize(600, 400));
}

void tst_VantoroFramelessDialog::setLayout()
{
    VantoroFramelessDialog dialog;
    QVERIFY(!dialog.layout());
    QVERIFY(!dialog.getContentHolderLayout());
    auto *layout = new QVBoxLayout;
    auto *edit = new QLineEdit;
    layout->addWidget(edit);
    dialog.setLayout(layout);
    QCOMPARE(dialog.layout(), layout);
    QCOMPARE(dialog.getContentHolderLayout(), layout);
    QCOMPARE(dialog.getContentHolder()->layout(), layout);
    QCOMPARE(edit->parentWidget(), dialog.getContentHolder());
    QCOMPARE(dialog.getContentHolder()->objectName(), QStringLiteral("m_pCentreContentWidget"));
    QCOMPARE(dialog.getContentHolder()->styleSheet(),
             QStringLiteral("QWidget{background-color:#363636;}"));
    QVERIFY(dialog.QWidget::layout() != layout);
}

void tst_VantoroFramelessDialog::setLayoutBadInput()
{
    VantoroFramelessDialog dialog;
    QLayout *const frameLayout = dialog.QWidget::layout();
    QLayout *const outer = dialog.getCenterMainFrame()->layout();
    dialog.setLayout(nullptr);
    dialog.setLayout(frameLayout);
    dialog.setLayout(outer);
    dialog.setLayout(dialog.mainLayout());
    dialog.setLayout(dialog.bottomLayout());
    QVERIFY(!dialog.layout());
    QVERIFY(dialog.getContentHolder()->objectName().isEmpty());
    QCOMPARE(dialog.QWidget::layout(), frameLayout);
    QCOMPARE(dialog.getCenterMainFrame()->layout(), outer);
    QCOMPARE(dialog.bottomWidget()->layout(), dialog.bottomLayout());

    QWidget other;
    auto *used = new QVBoxLayout(&other);
    dialog.setLayout(used);
    QVERIFY(!dialog.layout());
    QCOMPARE(other.layout(), used);

    // One that was made with the dialog as its parent, to which Qt objects by itself.
    QTest::ignoreMessage(QtWarningMsg,
                         "QLayout: Attempting to add QLayout \"\" to "
                         "LM::Widgets::VantoroFramelessDialog \"\", which already has a layout");
    auto *meant = new QVBoxLayout(&dialog);
    dialog.setLayout(meant);
    QCOMPARE(dialog.layout(), meant);
    QCOMPARE(dialog.QWidget::layout(), frameLayout);
    dialog.setLayout(meant);
    QCOMPARE(dialog.layout(), meant);

    QTest::ignoreMessage(QtWarningMsg,
                         "QWidget::setLayout: Attempting to set QLayout \"\" on QFrame "
                         "\"m_pCentreContentWidget\", which already has a layout");
    QVBoxLayout second;
    dialog.setLayout(&second);
    QCOMPARE(dialog.layout(), meant);
}

void tst_VantoroFramelessDialog::windowTitle()
{
    VantoroFramelessDialog dialog;
    dialog.setWindowTitle(QStringLiteral("Settings"));
    QCOMPARE(dialog.getTitleBar()->title(), QStringLiteral("Settings"));
    QCOMPARE(dialog.getTitleBar()->titleLabel()->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QVERIFY(dialog.getTitleBar()->styleSheet().isEmpty());
    QCOMPARE(dialog.accessibleName(), QStringLiteral("Settings"));
    dialog.setAccessibleName(QStringLiteral("mine"));
    dialog.setWindowTitle(QStringLiteral("Other"));
    QCOMPARE(dialog.accessibleName(), QStringLiteral("mine"));
}

void tst_VantoroFramelessDialog::buttonsEndTheDialog_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("signal");
    QTest::newRow("OK") << QStringLiteral("ok") << QStringLiteral("accepted");
    QTest::newRow("Cancel") << QStringLiteral("cancel") << QStringLiteral("rejected");
    QTest::newRow("close") << QStringLiteral("close") << QStringLiteral("rejected");
    QTest::newRow("Apply") << QStringLiteral("apply") << QString();
}

void tst_VantoroFramelessDialog::buttonsEndTheDialog()
{
    QFETCH(QString, button);
    QFETCH(QString, signal);
    VantoroFramelessDialog dialog;
    dialog.getApplyButton()->show();
    dialog.show();
    QStringList signalNames;
    connect(&dialog, &QDialog::accepted, this, [&] { signalNames.append("accepted"); });
    connect(&dialog, &QDialog::rejected, this, [&] { signalNames.append("rejected"); });
    const QHash<QString, QAbstractButton *> buttons = {
        {"ok", dialog.getOKButton()},
        {"cancel", dialog.getCancelButton()},
        {"apply", dialog.getApplyButton()},
        {"close", dialog.getWindowTitleCloseButton()}};
    QTest::mouseClick(buttons.value(button), Qt::LeftButton);
    QCOMPARE(signalNames, signal.isEmpty() ? QStringList() : QStringList(signal));
    QCOMPARE(dialog.isVisible(), signal.isEmpty());
}

void tst_VantoroFramelessDialog::overridesAreCalled()
{
    AskingDialog dialog;
    dialog.getApplyButton()->show();
    dialog.show();
    QTest::mouseClick(dialog.getOKButton(), Qt::LeftButton);
    QTest::mouseClick(dialog.getCancelButton(), Qt::LeftButton);
    QTest::mouseClick(dialog.getApplyButton(), Qt::LeftButton);
    QTest::mouseClick(dialog.getWindowTitleCloseButton(), Qt::LeftButton);
    QVERIFY(QMetaObject::invokeMethod(&dialog, "slotUIButtonApply"));
    QCOMPARE(dialog.calls, (QStringList{"ok", "cancel", "apply", "cancel", "apply"}));
    QVERIFY(dialog.isVisible());
}

void tst_VantoroFramelessDialog::enterPressesTheDefaultButton()
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        AskingDialog dialog;
        auto *edit = new QLineEdit;
        auto *layout = new QVBoxLayout;
        layout->addWidget(edit);
        dialog.setLayout(layout);
        dialog.show();
        edit->setFocus();
        QTest::keyClick(edit, key);
        QCOMPARE(dialog.calls, QStringList("ok"));
    }
}

void tst_VantoroFramelessDialog::otherKeysReachTheDialog()
{
    // QDialog ignores what it does not know, so that the window system may have it.
    class Sensor : public VantoroFramelessDialog
    {
    public:
        bool ignores(int key)
        {
            QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
            keyPressEvent(&event);
            return !event.isAccepted();
        }
    } dialog;
    QVERIFY(dialog.ignores(Qt::Key_F5));
    QVERIFY(!dialog.ignores(Qt::Key_Escape));
}

void tst_VantoroFramelessDialog::themeSwitch()
{
    AskingDialog dialog;
    QCOMPARE(dialog.styles, 0);
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::White);
    QCOMPARE(dialog.styles, 1);
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Black);
    QCOMPARE(dialog.styles, 2);
}

void tst_VantoroFramelessDialog::tabOrder()
{
    VantoroFramelessDialog dialog;
    auto *first = new QLineEdit;
    auto *second = new QLineEdit;
    auto *layout = new QVBoxLayout;
    layout->addWidget(first);
    layout->addWidget(second);
    dialog.setLayout(layout);
    dialog.getApplyButton()->show();
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    const QVector<QWidget *> expected = {
        first, second, dialog.getCancelButton(), dialog.getApplyButton(), dialog.getOKButton(),
        first};
    for (int i = 0; i + 1 < expected.size(); ++i) {
        QTRY_COMPARE(QApplication::focusWidget(), expected.at(i));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(QApplication::focusWidget(), first);
}

void tst_VantoroFramelessDialog::tabOrderOfTheHost()
{
    VantoroFramelessDialog dialog;
    auto *edit = new QLineEdit;
    auto *layout = new QVBoxLayout;
    layout->addWidget(edit);
    dialog.setLayout(layout);
    QWidget::setTabOrder(dialog.getCancelButton(), dialog.getOKButton());
    QWidget::setTabOrder(dialog.getOKButton(), edit);
    const QVector<QWidget *> order = focusOrder(dialog);
    dialog.show();
    QCOMPARE(focusOrder(dialog), order);
    QVERIFY(order.indexOf(dialog.getOKButton()) < order.indexOf(edit));
}

void tst_VantoroFramelessDialog::activation()
{
    VantoroFramelessDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(60, 60));
    QTRY_VERIFY(dialog.isActiveWindow());
}

void tst_VantoroFramelessDialog::partsDeleted()
{
    VantoroFramelessDialog dialog;
    delete dialog.getTitleBar();
    delete dialog.getOKButton();
    delete dialog.getContentHolder();
    delete dialog.bottomWidget();
    QVERIFY(!dialog.getTitleBar());
    QVERIFY(!dialog.getOKButton() && !dialog.getCancelButton() && !dialog.getApplyButton());
    QVERIFY(!dialog.getContentHolder() && !dialog.bottomWidget());
    QVERIFY(!dialog.getWindowTitleCloseButton() && !dialog.getWindowTitleMaxButton());
    dialog.setWindowTitle(QStringLiteral("nobody sees it"));
    QVBoxLayout layout;
    dialog.setLayout(&layout);
    QVERIFY(!dialog.layout());
    dialog.show();
    QVERIFY(dialog.isVisible());
    dialog.slotUIButtonCancel();
    QVERIFY(!dialog.isVisible());
}

void tst_VantoroFramelessDialog::slotDeletesTheDialog_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("OK") << QStringLiteral("ok");
    QTest::newRow("Cancel") << QStringLiteral("cancel");
    QTest::newRow("close") << QStringLiteral("close");
}

void tst_VantoroFramelessDialog::slotDeletesTheDialog()
{
    QFETCH(QString, button);
    const QPointer<VantoroFramelessDialog> dialog = new VantoroFramelessDialog;
    const auto remove = [dialog] { delete dialog.data(); };
    connect(dialog, &QDialog::accepted, this, remove);
    connect(dialog, &QDialog::rejected, this, remove);
    dialog->resize(400, 300);
    dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    QWidget *target = dialog->getWindowTitleCloseButton();
    if (button != QLatin1String("close")) {
        target = button == QLatin1String("ok") ? dialog->getOKButton() : dialog->getCancelButton();
    }
    QTest::mouseClick(dialog->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      target->mapTo(dialog, target->rect().center()));
    QTRY_VERIFY(!dialog);
}

void tst_VantoroFramelessDialog::texts()
{
    {
        VantoroFramelessDialog dialog;
        QCOMPARE(dialog.getOKButton()->text(), QStringLiteral("OK"));
        QCOMPARE(dialog.getCancelButton()->text(), QStringLiteral("Cancel"));
        QCOMPARE(dialog.getApplyButton()->text(), QStringLiteral("Apply"));
    }
    MarkingTranslator translator;
    QCoreApplication::installTranslator(&translator);
    {
        VantoroFramelessDialog dialog;
        QCOMPARE(dialog.getOKButton()->text(), QStringLiteral("vantorolframelessdialog#OK"));
        QCOMPARE(dialog.getCancelButton()->text(),
                 QStringLiteral("vantorolframelessdialog#Cancel"));
        QCOMPARE(dialog.getApplyButton()->text(),
                 QStringLiteral("LM::Widgets::VantoroFramelessDialogPrivate#Apply"));
    }
    QCoreApplication::removeTranslator(&translator);
}

void tst_VantoroFramelessDialog::deletedParts()
{
    VantoroFramelessDialog dialog;
    delete dialog.getCenterMainFrame();
    QVERIFY(!dialog.getCenterMainFrame());
    QVERIFY(!dialog.getTitleBar());
    QVERIFY(!dialog.getOKButton());
    QVERIFY(!dialog.getCancelButton());
    QVERIFY(!dialog.getApplyButton());
    QVERIFY(!dialog.getWindowTitleCloseButton());
    QVERIFY(!dialog.getWindowTitleMaxButton());
    QVERIFY(!dialog.getContentHolder());
    QVERIFY(!dialog.bottomWidget());
    QVERIFY(!dialog.mainLayout());
    QVERIFY(!dialog.bottomLayout());
    QVERIFY(!dialog.getCenterHoderLayout());
    QVERIFY(!dialog.getTilteBarLayout());
    QVERIFY(!dialog.layout());
    QVBoxLayout layout;
    dialog.setLayout(&layout);
    dialog.setWindowTitle(QStringLiteral("gone"));
    dialog.show();
    QVERIFY(dialog.isVisible());
}

void tst_VantoroFramelessDialog::parentDestroyed()
{
    auto *parent = new QWidget;
    const QPointer<VantoroFramelessDialog> dialog = new VantoroFramelessDialog(parent);
    parent->show();
    dialog->show();
    delete parent;
    QVERIFY(!dialog);
}

LMTEST_MAIN(tst_VantoroFramelessDialog)

#include "tst_vantoroframelessdialog.moc"
