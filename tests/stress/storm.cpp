#include "storm.h"

#include "endurance.h"

#include "language.h"
#include "mainwindow.h"
#include "page.h"
#include "themes.h"

#include <lmwidgets/talvostylemanager.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDesktopServices>
#include <QDesktopWidget>
#include <QDialog>
#include <QFileDialog>
#include <QTimer>
#include <QToolTip>
#include <QtTest>
#include <QUrl>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>

#include <algorithm>

using LM::Widgets::TalvoStyleManager;

namespace {

constexpr int ThemeCount = 3;
constexpr int DoubleClickGap = 50; // ms
constexpr int ClickGap = 1000;     // ms, so that two clicks stay two
constexpr int ClosingPause = 5;    // ms
constexpr int ClosingLimit = 4000; // steps

/** Opens nothing outside of this program. */
class NoDesktop : public QObject
{
    Q_OBJECT

public:
    NoDesktop()
    {
        for (const char *scheme : {"http", "https", "mailto", "file", "ftp"}) {
            QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "swallow");
        }
        qApp->installEventFilter(this);
    }

    ~NoDesktop() override
    {
        for (const char *scheme : {"http", "https", "mailto", "file", "ftp"}) {
            QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
        }
    }

    /** No file browser may rename or delete a file of the user's. */
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Polish) {
            if (auto *dialog = qobject_cast<QFileDialog *>(watched)) {
                dialog->setOption(QFileDialog::ReadOnly);
            }
        }
        return false;
    }

public Q_SLOTS:
    void swallow(const QUrl &) {}
};

bool isPickable(const QWidget *widget)
{
    return widget->isVisible() && !widget->visibleRegion().isEmpty();
}

/** Every key that a control may listen to. */
const QVector<int> &keys()
{
    static const QVector<int> all = {
        Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Enter,  Qt::Key_Escape,
        Qt::Key_Up,   Qt::Key_Down,    Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Home,
        Qt::Key_End,  Qt::Key_PageUp,  Qt::Key_Space,  Qt::Key_Delete, Qt::Key_Backspace,
        Qt::Key_F2,   Qt::Key_F4,      Qt::Key_F10,    Qt::Key_Menu,   Qt::Key_PageDown,
        Qt::Key_A,    Qt::Key_C,       Qt::Key_V,      Qt::Key_X,      Qt::Key_Z,
        Qt::Key_Plus, Qt::Key_Minus,   Qt::Key_D,      Qt::Key_K,      Qt::Key_O};
    return all;
}

quint32 seedOfRound(const StormPlan &plan, int round)
{
    return plan.seed * 1000003U + static_cast<quint32>(round);
}

void weather(const StormPlan &plan, int round)
{
    const gallery::Page &page = gallery::pages().at(round % gallery::pages().size());
    if (plan.verbose) {
        say(QStringLiteral("        round %1: %2").arg(round).arg(page.name()));
    }
    const int warningsBefore = warningCount();
    {
        gallery::MainWindow window;
        window.showPage(page.name());
        window.show();
        const bool shown = waitUntilShown(&window);
        Storm storm(&window, seedOfRound(plan, round));
        if (!shown || !storm.run(plan.steps)) {
            qWarning("something stays open that nothing closes");
        }
    }
    QToolTip::hideText();
    QApplication::clipboard()->clear();
    gallery::setLanguage(QStringLiteral("en"));
    gallery::setRightToLeft(false);
    TalvoStyleManager::instance()->shiftStyle(TalvoStyleManager::Black);
    if (warningCount() != warningsBefore) {
        say(QStringLiteral("        the warnings came in round %1, page %2; again by "
                           "--seed %3 --first-round %1 --storm-rounds 1")
                .arg(round)
                .arg(page.name())
                .arg(plan.seed));
    }
}

} // namespace

bool stressStorm(const StormPlan &plan)
{
    if (plan.rounds == 0) {
        return true;
    }
    gallery::followTheme();
    const NoDesktop noDesktop;
    // Qt makes widgets for the screens when it first needs them, and keeps them.
    QApplication::desktop()->screen();
    say(QStringLiteral("        the storm's seed is %1").arg(plan.seed));
    // What a text field remembers for undoing, and what fonts and styles keep, varies.
    Allowance allowance;
    allowance.bytes = 4 * 1024 * 1024;
    return endure(QStringLiteral("storm over %1 pages").arg(gallery::pages().size()),
                  {plan.rounds, plan.seconds}, allowance,
                  [&plan](int round) { weather(plan, plan.firstRound + round); });
}

Storm::Storm(QWidget *main, quint32 seed) : m_main(main), m_random(seed) {}

bool Storm::run(int steps)
{
    m_stepsLeft = steps;
    QTimer::singleShot(0, this, &Storm::step);
    m_loop.exec();
    return !m_stuck;
}

void Storm::step()
{
    if (m_stepsLeft <= 0) {
        closeAll();
        return;
    }
    --m_stepsLeft;
    // Before the action, which may run an event loop of its own.
    QTimer::singleShot(0, this, &Storm::step);
    act();
}

void Storm::closeAll()
{
    if (m_pressed) {
        mouse(QEvent::MouseButtonRelease);
    }
    m_stuck = ++m_closingSteps > ClosingLimit;
    const bool isOpen = QApplication::activePopupWidget() || QApplication::activeModalWidget();
    if (m_stuck || !isOpen) {
        m_loop.quit();
        return;
    }
    QTimer::singleShot(ClosingPause, this, &Storm::closeAll);
    closeOne();
}

/** The innermost of what is open, which may be a dialog that none of its buttons ends. */
bool Storm::closeOne()
{
    if (QWidget *popup = QApplication::activePopupWidget()) {
        return popup->close();
    }
    const QPointer<QWidget> modal(QApplication::activeModalWidget());
    if (auto *dialog = qobject_cast<QDialog *>(modal.data())) {
        dialog->reject();
    }
    return modal && modal->isVisible() ? modal->close() : true;
}

QWidget *Storm::pickWindow()
{
    if (QWidget *popup = QApplication::activePopupWidget()) {
        return popup;
    }
    // Now and then beside the modal dialog, where nothing may happen.
    if (QApplication::activeModalWidget() && below(8) != 0) {
        return QApplication::activeModalWidget();
    }
    QWidgetList windows;
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget *window : all) {
        if (window->isVisible() && window->windowHandle()) {
            windows.append(window);
        }
    }
    // The order of topLevelWidgets() is that of their addresses.
    std::sort(windows.begin(), windows.end(),
              [](const QWidget *a, const QWidget *b) { return a->winId() < b->winId(); });
    return windows.isEmpty() ? nullptr : windows.at(below(windows.size()));
}

QWidget *Storm::pickWidget(QWidget *window)
{
    QWidgetList widgets{window};
    const QWidgetList children = window->findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (child->window() == window && isPickable(child)) {
            widgets.append(child);
        }
    }
    return widgets.at(below(widgets.size()));
}

void Storm::mouse(QEvent::Type type, const QPoint &offset)
{
    QWindow *window = m_target ? m_target->window()->windowHandle() : nullptr;
    if (!window) {
        m_pressed = false;
        return;
    }
    if (type == QEvent::MouseButtonPress) {
        m_pressed = true;
    } else if (type == QEvent::MouseButtonRelease) {
        m_pressed = false;
    }
    const QPoint global = m_target->mapToGlobal(m_position + offset);
    const Qt::MouseButtons buttons = m_pressed ? m_button : Qt::NoButton;
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : m_button;
    qt_handleMouseEvent(window, window->mapFromGlobal(global), global, buttons, button, type,
                        Qt::NoModifier, ++m_time);
}

void Storm::click(Qt::MouseButton button, int count)
{
    m_button = button;
    m_time += ClickGap;
    mouse(QEvent::MouseMove);
    for (int i = 0; i < count; ++i) {
        mouse(QEvent::MouseButtonPress);
        mouse(QEvent::MouseButtonRelease);
        m_time += DoubleClickGap;
    }
}

void Storm::drag()
{
    m_button = Qt::LeftButton;
    m_time += ClickGap;
    mouse(QEvent::MouseButtonPress);
    QPoint offset;
    for (int i = below(6); i >= 0; --i) {
        offset += QPoint(below(81) - 40, below(81) - 40);
        mouse(QEvent::MouseMove, offset);
    }
    mouse(QEvent::MouseButtonRelease, offset);
}

void Storm::wheel()
{
    const int degrees = (below(2) != 0 ? 120 : -120) * (1 + below(3));
    const QPoint global = m_target->mapToGlobal(m_position);
    QWidget *modal = QApplication::activeModalWidget();
    if (modal && modal != m_target->window()) {
        return;
    }
    QWheelEvent event(m_position, global, QPoint(), QPoint(0, degrees), Qt::NoButton,
                      below(8) == 0 ? Qt::ControlModifier : Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(m_target, &event);
}

void Storm::pressKey()
{
    QWindow *window = QGuiApplication::focusWindow();
    if (!window) {
        return;
    }
    const Qt::KeyboardModifiers modifiers[] = {Qt::NoModifier,      Qt::NoModifier,
                                               Qt::NoModifier,      Qt::ShiftModifier,
                                               Qt::ControlModifier, Qt::AltModifier};
    const int key = keys().at(below(keys().size()));
    const Qt::KeyboardModifiers modifier = modifiers[below(6)];
    const bool isLetter = key < Qt::Key_Escape && modifier == Qt::NoModifier;
    const QString text = isLetter ? QString(QChar(key)).toLower() : QString();
    qt_handleKeyEvent(window, QEvent::KeyPress, key, modifier, text);
    qt_handleKeyEvent(window, QEvent::KeyRelease, key, modifier, text);
}

void Storm::typeText()
{
    QWindow *window = QGuiApplication::focusWindow();
    const QString characters = QStringLiteral("0123456789.-,eE abcxyz%&<>\"'\\ß漢");
    for (int i = below(8); window && i >= 0; --i) {
        const QString text(characters.at(below(characters.size())));
        qt_handleKeyEvent(window, QEvent::KeyPress, 0, Qt::NoModifier, text);
        qt_handleKeyEvent(window, QEvent::KeyRelease, 0, Qt::NoModifier, text);
    }
}

/** What the window system and the host do, rather than the user. */
void Storm::meddle()
{
    QWidget *window = m_target->window();
    switch (below(6)) {
    case 0:
        TalvoStyleManager::instance()->shiftStyle(
            TalvoStyleManager::ThemeStyleType(below(ThemeCount)));
        break;
    case 1:
        window->resize(window->width() + below(201) - 100, window->height() + below(201) - 100);
        break;
    case 2:
        if (window != m_main) {
            window->close();
        }
        break;
    case 3:
        window->activateWindow();
        break;
    case 4:
        m_target->setFocus();
        break;
    default:
        QContextMenuEvent event(QContextMenuEvent::Mouse, m_position,
                                m_target->mapToGlobal(m_position));
        QApplication::sendEvent(m_target, &event);
        break;
    }
}

void Storm::act()
{
    QWidget *window = pickWindow();
    if (!window) {
        return;
    }
    m_target = pickWidget(window);
    m_position = QPoint(below(qMax(1, m_target->width())), below(qMax(1, m_target->height())));
    const int choice = below(100);
    if (choice < 34) {
        click(Qt::LeftButton, 1);
    } else if (choice < 38) {
        click(Qt::LeftButton, 2);
    } else if (choice < 42) {
        click(below(2) != 0 ? Qt::RightButton : Qt::MiddleButton, 1);
    } else if (choice < 52) {
        drag();
    } else if (choice < 62) {
        mouse(QEvent::MouseMove);
    } else if (choice < 70) {
        wheel();
    } else if (choice < 88) {
        pressKey();
    } else if (choice < 95) {
        typeText();
    } else {
        meddle();
    }
}

#include "storm.moc"
