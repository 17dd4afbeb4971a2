#include "lmtest.h"

#include <lmwidgets/framelesshelper.h>
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

#include <functional>

using LM::Widgets::TalvoDialogBase;
using LM::Widgets::TitleBar;
using LM::Widgets::VantoroFramelessDialog;

namespace {

/** Counts what its buttons call. */
class Dialog : public VantoroFramelessDialog
{
public:
    using VantoroFramelessDialog::VantoroFramelessDialog;

    void slotUIButtonOk() override { count(&oks); }
    void slotUIButtonCancel() override { count(&cancels); }
    void slotUIButtonApply() override { count(&applies); }

    int oks = 0;
    int cancels = 0;
    int applies = 0;
    std::function<void()> onCall;

private:
    void count(int *calls)
    {
        ++*calls;
        // A copy, since it may destroy the dialog.
        if (const std::function<void()> action = onCall) {
            action();
        }
    }
};

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

QMargins margins(const QLayout *layout)
{
    return layout->contentsMargins();
}

bool isSet(const QObject *object, const char *property)
{
    return object->property(property) == QVariant(true);
}

} // namespace

class tst_VantoroFramelessDialog : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void windowFlags_data();
    void windowFlags();
    void frame();
    void shadow();
    void titleBar();
    void helper();
    void buttons();
    void texts();
    void layouts();
    void geometry();
    void escapeLeavesItOpen();
    void otherKeysGoOn();
    void maximiseButtonIsShownByItsGetter();
    void buttonsCallTheOverrides();
    void closeButtonCancels();
    void buttonsEndTheDialog();
    void setLayout();
    void setLayoutRefuses();
    void setWindowTitle();
    void contentComesFirstInTabOrder();
    void dragMoves();
    void dragAtTheEdgeDoesNotResize();
    void deletedFromASlot_data();
    void deletedFromASlot();
    void deletedParts();
    void parentDestroyed();
};

void tst_VantoroFramelessDialog::metaObject()
{
    QCOMPARE(lmtest::ownMethods(VantoroFramelessDialog::staticMetaObject),
             QStringList({QStringLiteral("slot slotUIButtonOk()"),
                          QStringLiteral("slot slotUIButtonCancel()"),
                          QStringLiteral("slot slotUIButtonApply()")}));
    QCOMPARE(VantoroFramelessDialog::staticMetaObject.superClass(),
             &TalvoDialogBase::staticMetaObject);
}

void tst_VantoroFramelessDialog::windowFlags_data()
{
    QTest::addColumn<int>("flags");
    QTest::newRow("none") << 0;
    QTest::newRow("tool") << int(Qt::Tool);
    QTest::newRow("on top") << int(Qt::WindowStaysOnTopHint | Qt::WindowCloseButtonHint);
    QTest::newRow("widget") << int(Qt::Widget | Qt::BypassWindowManagerHint);
}

void tst_VantoroFramelessDialog::windowFlags()
{
    QFETCH(int, flags);
    VantoroFramelessDialog dialog(nullptr, Qt::WindowFlags(flags));
    QCOMPARE(int(dialog.windowFlags()), 0xC803);
    dialog.show();
    QCOMPARE(int(dialog.windowFlags()), 0xC803);
}

void tst_VantoroFramelessDialog::frame()
{
    VantoroFramelessDialog dialog;
    QFrame *frame = dialog.getCenterMainFrame();
    QVERIFY(frame);
    QCOMPARE(frame->objectName(), QStringLiteral("m_pContentHoderFrame"));
    QVERIFY(isSet(frame, "framehoderbackground"));
    QCOMPARE(frame->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
    QCOMPARE(frame->styleSheet(),
             QStringLiteral("QFrame#m_pContentHoderFrame { border: 1px solid #585858; }"));
    QCOMPARE(frame->parentWidget(), &dialog);

    const QLayout *window = dialog.QWidget::layout();
    QCOMPARE(window->count(), 1);
    QCOMPARE(window->itemAt(0)->widget(), frame);
    QCOMPARE(margins(window), QMargins());
    QCOMPARE(window->spacing(), 0);
}

void tst_VantoroFramelessDialog::shadow()
{
    VantoroFramelessDialog dialog;
    auto *shadow = qobject_cast<QGraphicsDropShadowEffect *>(dialog.graphicsEffect());
    QVERIFY(shadow);
    QCOMPARE(shadow->blurRadius(), 24.0);
    QCOMPARE(shadow->offset(), QPointF(0.0, 4.0));
    QCOMPARE(shadow->color(), QColor(0, 0, 0, 0));
}

void tst_VantoroFramelessDialog::titleBar()
{
    VantoroFramelessDialog dialog;
    TitleBar *bar = dialog.getTitleBar();
    QVERIFY(bar);
    QVERIFY(isSet(bar, "isFramelessDialogTitleBar"));
    QVERIFY(isSet(bar, "transparentbackgroundwidget"));
    QVERIFY(isSet(bar->topLeftWidget(), "transparentbackgroundwidget"));
    QVERIFY(isSet(bar->titleLabel(), "vantorotitlecontent"));
    QCOMPARE(bar->titleLabel()->styleSheet(), QStringLiteral("background-color:transparent;"));
    QCOMPARE(bar->titleLabel()->alignment(), Qt::AlignLeft);
    QVERIFY(isSet(dialog.getWindowTitleCloseButton(), "transparentbackgroundbutton"));
    QCOMPARE(dialog.getWindowTitleCloseButton(), bar->titleButton(TitleBar::CloseButton));
    QCOMPARE(bar->minimumHeight(), 48);
    QCOMPARE(bar->maximumHeight(), 48);

    dialog.show();
    QVERIFY(bar->isVisible());
    QVERIFY(bar->isTitleButtonVisible(TitleBar::CloseButton));
    for (const int type : {TitleBar::LogoButton, TitleBar::MinButton, TitleBar::MaxButton,
                           TitleBar::RestoreButton}) {
        QVERIFY2(!bar->isTitleButtonVisible(type), qPrintable(QString::number(type)));
    }
}

void tst_VantoroFramelessDialog::helper()
{
    VantoroFramelessDialog dialog;
    LM::Widgets::FramelessHelper *helper = dialog.getFramelessHelper();
    QVERIFY(helper);
    QCOMPARE(helper->titleHeight(), 48u);
    QVERIFY(!helper->widgetResizable());
    QVERIFY(helper->widgetMovable());
    QVERIFY(!helper->rubberBandOnResisze());
}

void tst_VantoroFramelessDialog::buttons()
{
    VantoroFramelessDialog dialog;
    QVERIFY(isSet(dialog.getOKButton(), "vantorookbutton"));
    QVERIFY(isSet(dialog.getCancelButton(), "vantorcancelbbutton"));
    QVERIFY(isSet(dialog.getApplyButton(), "vantorcancelbbutton"));
    QCOMPARE(dialog.getOKButton()->minimumWidth(), 85);
    QCOMPARE(dialog.getCancelButton()->minimumWidth(), 85);
    QCOMPARE(dialog.getApplyButton()->minimumWidth(), 0);
    QVERIFY(dialog.getOKButton()->isDefault());
    QVERIFY(dialog.getApplyButton()->isHidden());
    QVERIFY(!dialog.getCancelButton()->isHidden());
    QVERIFY(isSet(dialog.bottomWidget(), "transparentbackgroundwidget"));
    QCOMPARE(dialog.bottomWidget()->minimumHeight(), 64);
    QCOMPARE(dialog.bottomWidget()->maximumHeight(), 64);
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

void tst_VantoroFramelessDialog::layouts()
{
    VantoroFramelessDialog dialog;
    QCOMPARE(margins(dialog.mainLayout()), QMargins(24, 0, 24, 0));
    QCOMPARE(dialog.mainLayout()->spacing(), 0);
    QCOMPARE(dialog.mainLayout()->count(), 2);
    QCOMPARE(dialog.mainLayout()->itemAt(0)->layout(), dialog.getCenterHoderLayout());
    QCOMPARE(dialog.mainLayout()->itemAt(1)->widget(), dialog.bottomWidget());

    QCOMPARE(margins(dialog.getCenterHoderLayout()), QMargins());
    QCOMPARE(dialog.getCenterHoderLayout()->spacing(), 0);
    QCOMPARE(dialog.getCenterHoderLayout()->itemAt(0)->widget(), dialog.getContentHolder());
    QVERIFY(isSet(dialog.getContentHolder(), "centercontentgrayframe"));

    QCOMPARE(margins(dialog.getTilteBarLayout()), QMargins());
    QCOMPARE(dialog.getTilteBarLayout()->spacing(), 0);
    QCOMPARE(dialog.getTilteBarLayout()->itemAt(0)->widget(), dialog.getTitleBar());

    const QLayout *outer = dialog.getCenterMainFrame()->layout();
    QVERIFY(qobject_cast<const QVBoxLayout *>(outer));
    QCOMPARE(margins(outer), QMargins());
    QCOMPARE(outer->spacing(), 0);
    QCOMPARE(outer->itemAt(0)->layout(), dialog.getTilteBarLayout());
    QCOMPARE(outer->itemAt(1)->layout(), dialog.mainLayout());

    const QHBoxLayout *bottom = dialog.bottomLayout();
    QCOMPARE(dialog.bottomWidget()->layout(), bottom);
    QCOMPARE(margins(bottom), QMargins(0, 16, 0, 16));
    QCOMPARE(bottom->spacing(), 16);
    QCOMPARE(bottom->count(), 4);
    QVERIFY(bottom->itemAt(0)->spacerItem());
    QCOMPARE(bottom->itemAt(1)->widget(), dialog.getCancelButton());
    QCOMPARE(bottom->itemAt(2)->widget(), dialog.getApplyButton());
    QCOMPARE(bottom->itemAt(3)->widget(), dialog.getOKButton());
}

void tst_VantoroFramelessDialog::geometry()
{
    VantoroFramelessDialog dialog;
    dialog.resize(500, 400);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const auto place = [&](const QWidget *widget) {
        return QRect(widget->mapTo(&dialog, QPoint()), widget->size());
    };
    QCOMPARE(place(dialog.getCenterMainFrame()), QRect(0, 0, 500, 400));
    // Inside the border of 1 px.
    QCOMPARE(place(dialog.getTitleBar()), QRect(1, 1, 498, 48));
    QCOMPARE(place(dialog.getContentHolder()), QRect(25, 49, 450, 286));
    QCOMPARE(place(dialog.bottomWidget()), QRect(25, 335, 450, 64));
    QCOMPARE(place(dialog.getOKButton()).right(), 474);
}

void tst_VantoroFramelessDialog::escapeLeavesItOpen()
{
    VantoroFramelessDialog dialog;
    QSignalSpy finished(&dialog, &QDialog::finished);
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QTest::keyClick(dialog.getCancelButton(), Qt::Key_Escape);
    QTest::keyClick(&dialog, Qt::Key_Escape, Qt::ShiftModifier);
    QVERIFY(dialog.isVisible());
    QCOMPARE(finished.count(), 0);
}

void tst_VantoroFramelessDialog::otherKeysGoOn()
{
    Dialog dialog;
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Return);
    QCOMPARE(dialog.oks, 1);
    QTest::keyClick(&dialog, Qt::Key_A);
    QCOMPARE(dialog.oks, 1);
}

void tst_VantoroFramelessDialog::maximiseButtonIsShownByItsGetter()
{
    VantoroFramelessDialog dialog;
    dialog.show();
    TitleBar *bar = dialog.getTitleBar();
    QVERIFY(!bar->isTitleButtonVisible(TitleBar::MaxButton));
    QToolButton *button = dialog.getWindowTitleMaxButton();
    QCOMPARE(button, bar->titleButton(TitleBar::MaxButton));
    QVERIFY(button->isVisible());
    // Whoever shows it connects it.
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(!dialog.isMaximized());
    QVERIFY(dialog.isVisible());
}

void tst_VantoroFramelessDialog::buttonsCallTheOverrides()
{
    Dialog dialog;
    dialog.getApplyButton()->show();
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTest::mouseClick(dialog.getOKButton(), Qt::LeftButton);
    QCOMPARE(dialog.oks, 1);
    QTest::mouseClick(dialog.getCancelButton(), Qt::LeftButton);
    QCOMPARE(dialog.cancels, 1);
    QTest::mouseClick(dialog.getApplyButton(), Qt::LeftButton);
    QCOMPARE(dialog.applies, 1);
    QVERIFY(dialog.isVisible());
}

void tst_VantoroFramelessDialog::closeButtonCancels()
{
    Dialog counting;
    counting.show();
    QTest::mouseClick(counting.getWindowTitleCloseButton(), Qt::LeftButton);
    QCOMPARE(counting.cancels, 1);
    QVERIFY(counting.isVisible());

    VantoroFramelessDialog dialog;
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    dialog.show();
    QTest::mouseClick(dialog.getWindowTitleCloseButton(), Qt::LeftButton);
    QCOMPARE(rejected.count(), 1);
    QVERIFY(!dialog.isVisible());
}

void tst_VantoroFramelessDialog::buttonsEndTheDialog()
{
    VantoroFramelessDialog dialog;
    dialog.getApplyButton()->show();
    dialog.show();
    QTest::mouseClick(dialog.getApplyButton(), Qt::LeftButton);
    QVERIFY(dialog.isVisible());
    QTest::mouseClick(dialog.getOKButton(), Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    dialog.show();
    QTest::mouseClick(dialog.getCancelButton(), Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

void tst_VantoroFramelessDialog::setLayout()
{
    VantoroFramelessDialog dialog;
    QVERIFY(!dialog.layout());
    QVERIFY(!dialog.getContentHolderLayout());
    QVERIFY(dialog.getContentHolder()->styleSheet().isEmpty());

    auto *layout = new QVBoxLayout;
    auto *input = new QLineEdit;
    layout->addWidget(input);
    dialog.setLayout(layout);
    QCOMPARE(dialog.layout(), layout);
    QCOMPARE(dialog.getContentHolderLayout(), layout);
    QCOMPARE(dialog.getContentHolder()->layout(), layout);
    QCOMPARE(dialog.getContentHolder()->objectName(), QStringLiteral("m_pCentreContentWidget"));
    QCOMPARE(dialog.getContentHolder()->styleSheet(),
             QStringLiteral("QWidget{background-color:#363636;}"));
    QCOMPARE(input->parentWidget(), dialog.getContentHolder());

    // As in a subclass that was written for QDialog.
    VantoroFramelessDialog second;
    auto *own = new QVBoxLayout;
    own->setParent(&second);
    second.setLayout(own);
    QCOMPARE(second.layout(), own);
}

void tst_VantoroFramelessDialog::setLayoutRefuses()
{
    VantoroFramelessDialog dialog;
    dialog.setLayout(nullptr);
    QVERIFY(!dialog.layout());
    dialog.setLayout(dialog.QWidget::layout());
    QVERIFY(!dialog.layout());
    dialog.setLayout(dialog.mainLayout());
    QVERIFY(!dialog.layout());

    QWidget other;
    auto *used = new QVBoxLayout(&other);
    dialog.setLayout(used);
    QVERIFY(!dialog.layout());
    QCOMPARE(other.layout(), used);

    auto *first = new QVBoxLayout;
    dialog.setLayout(first);
    auto *second = new QVBoxLayout;
    dialog.setLayout(second);
    QCOMPARE(dialog.layout(), first);
    delete second;
    delete first;
    auto *third = new QVBoxLayout;
    dialog.setLayout(third);
    QCOMPARE(dialog.layout(), third);
}

void tst_VantoroFramelessDialog::setWindowTitle()
{
    VantoroFramelessDialog dialog;
    dialog.setWindowTitle(QStringLiteral("Layers"));
    QCOMPARE(dialog.getTitleBar()->title(), QStringLiteral("Layers"));
    QVERIFY(dialog.windowTitle().isEmpty());
    QCOMPARE(dialog.accessibleName(), QStringLiteral("Layers"));
    dialog.setAccessibleName(QStringLiteral("of the host"));
    dialog.setWindowTitle(QStringLiteral("More"));
    QCOMPARE(dialog.accessibleName(), QStringLiteral("of the host"));
}

void tst_VantoroFramelessDialog::contentComesFirstInTabOrder()
{
    VantoroFramelessDialog dialog;
    auto *layout = new QVBoxLayout;
    auto *first = new QLineEdit;
    auto *second = new QLineEdit;
    layout->addWidget(first);
    layout->addWidget(second);
    dialog.setLayout(layout);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTRY_COMPARE(QApplication::focusWidget(), first);
    for (QWidget *expected :
         QVector<QWidget *>{second, dialog.getCancelButton(), dialog.getOKButton(), first}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), expected);
    }
}

void tst_VantoroFramelessDialog::dragMoves()
{
    VantoroFramelessDialog dialog;
    dialog.setGeometry(100, 100, 400, 300);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const QPoint grip(150, 20);
    lmtest::mouse(&dialog, QEvent::MouseButtonPress, grip);
    lmtest::mouseAt(&dialog, QEvent::MouseMove, QPoint(100, 100) + grip + QPoint(30, 20),
                    Qt::NoButton);
    lmtest::mouseAt(&dialog, QEvent::MouseButtonRelease, QPoint(130, 120) + grip, Qt::LeftButton,
                    Qt::NoButton);
    QCOMPARE(dialog.pos(), QPoint(130, 120));
    QCOMPARE(dialog.size(), QSize(400, 300));
}

void tst_VantoroFramelessDialog::dragAtTheEdgeDoesNotResize()
{
    VantoroFramelessDialog dialog;
    dialog.setGeometry(100, 100, 400, 300);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const QPoint grip(399, 200);
    lmtest::hoverMove(&dialog, grip);
    lmtest::mouse(&dialog, QEvent::MouseButtonPress, grip);
    lmtest::mouseAt(&dialog, QEvent::MouseMove, QPoint(540, 300), Qt::NoButton);
    lmtest::mouseAt(&dialog, QEvent::MouseButtonRelease, QPoint(540, 300), Qt::LeftButton,
                    Qt::NoButton);
    QCOMPARE(dialog.geometry(), QRect(100, 100, 400, 300));
}

void tst_VantoroFramelessDialog::deletedFromASlot_data()
{
    QTest::addColumn<int>("which");
    QTest::newRow("ok") << 0;
    QTest::newRow("cancel") << 1;
    QTest::newRow("apply") << 2;
    QTest::newRow("close") << 3;
}

void tst_VantoroFramelessDialog::deletedFromASlot()
{
    QFETCH(int, which);
    const QPointer<Dialog> dialog = new Dialog;
    dialog->getApplyButton()->show();
    dialog->show();
    const QVector<QAbstractButton *> buttons = {dialog->getOKButton(), dialog->getCancelButton(),
                                                dialog->getApplyButton(),
                                                dialog->getWindowTitleCloseButton()};
    dialog->onCall = [&] { delete dialog.data(); };
    QTest::mouseClick(buttons.at(which), Qt::LeftButton);
    QVERIFY(!dialog);
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
