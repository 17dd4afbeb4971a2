#ifndef MESSAGEBOXTEST_H
#define MESSAGEBOXTEST_H

/** @file
 * What the tests of the message box share: answering a box that runs its own event loop.
 */

#include "lmtest.h"

#include <lmwidgets/framelessmessagebox.h>
#include <lmwidgets/titlebar.h>

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

#include <functional>

namespace messageboxtest {

using Box = LM::Widgets::FramelessMessageBox;
using Act = std::function<void(Box *)>;

constexpr char PrimaryStyle[] =
    "QPushButton{background-color:rgb(255, 200, 5);font-size:14px;height:30px;width:80px;"
    "color:#000000;border: 1px solid #585858;border-radius: 2px;}\n"
    "QPushButton:hover{background-color:rgb(255, 227, 126);}\n"
    "QPushButton:pressed{background-color:rgb(255, 227, 131);}";
constexpr char SecondaryStyle[] =
    "QPushButton{background-color:transparent;font-size:14px;height:30px;width:80px;border: 1px "
    "solid #585858;border-radius: 2px;}\n"
    "QPushButton:hover{background-color:rgb(27, 24, 28);}\n"
    "QPushButton:pressed{background-color:rgb(27, 24, 28);}";

/** The line between the parts of what Ctrl+C copies. */
constexpr char Separator[] = "---------------------------\n";

constexpr int GiveUpAfter = 20000;

/** Runs @p act in the event loop of the box that the caller is about to run. */
inline void whenShown(const Act &act)
{
    QTimer::singleShot(0, qApp, [act] {
        auto *box = qobject_cast<Box *>(QApplication::activeModalWidget());
        QVERIFY(box);
        // A box that nothing closes must not keep the program until CTest kills it.
        QTimer::singleShot(GiveUpAfter, box, [box] { box->done(-12345); });
        box->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(box));
        act(box);
    });
}

inline QPushButton *pushButton(Box *box, QMessageBox::StandardButton which)
{
    return qobject_cast<QPushButton *>(box->button(which));
}

inline Act clickOn(QMessageBox::StandardButton which)
{
    return [which](Box *box) { QTest::mouseClick(box->button(which), Qt::LeftButton); };
}

inline QToolButton *closeButton(Box *box)
{
    return box->getTitleBar()->titleButton(LM::Widgets::TitleBar::CloseButton);
}

/** Returns the button with @p caption, or null. */
inline QAbstractButton *buttonReading(Box *box, const char *caption)
{
    const QList<QAbstractButton *> buttons = box->buttons();
    for (QAbstractButton *button : buttons) {
        if (button->text() == QLatin1String(caption)) {
            return button;
        }
    }
    return nullptr;
}

inline bool waitForShown(QWidget *widget)
{
    widget->activateWindow();
    return QTest::qWaitForWindowActive(widget);
}

constexpr int BoxWidth = 444;
constexpr int Chrome = 110;
constexpr int CheckBoxChrome = 125;

inline QLabel *messageLabel(Box *box)
{
    return box->findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
}

inline QDialogButtonBox *buttonBox(Box *box)
{
    return box->findChild<QDialogButtonBox *>(QStringLiteral("qt_msgbox_buttonbox"));
}

inline QLabel *informativeLabel()
{
    const QWidgetList all = QApplication::allWidgets();
    for (QWidget *widget : all) {
        if (widget->objectName() == QLatin1String("qt_msgbox_informativelabel")) {
            return qobject_cast<QLabel *>(widget);
        }
    }
    return nullptr;
}

/** Lets everything happen that is on its way, and returns whether the box then keeps its size. */
inline bool settle(Box *box)
{
    if (!waitForShown(box)) {
        return false;
    }
    QCoreApplication::processEvents();
    const QSize size = box->size();
    for (int i = 0; i < 5; ++i) {
        QCoreApplication::processEvents();
    }
    return box->size() == size;
}

/** The height that text of the box's font needs within the box. */
inline int textHeight(Box *box)
{
    QLabel probe;
    probe.setFont(messageLabel(box)->font());
    probe.setTextFormat(box->textFormat());
    probe.setWordWrap(true);
    probe.setText(box->text());
    return probe.heightForWidth(BoxWidth - 20 - 50);
}

} // namespace messageboxtest

#endif
