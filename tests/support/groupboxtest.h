#ifndef GROUPBOXTEST_H
#define GROUPBOXTEST_H

/** @file
 * What the tests of the collapsible group boxes share: boxes, panels of them, and clicks.
 */

#include "lmtest.h"

#include <lmwidgets/collapsiblegroupboxbasic.h>
#include <lmwidgets/groupboxcollapsebutton.h>

#include <QLabel>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWindow>

#include <functional>
#include <memory>
#include <utility>

namespace groupboxtest {

const QString Marker = QStringLiteral(" CollapsibleGroupBoxBasic { border: none; }");
const QString Group = QStringLiteral("group");

class Box : public CollapsibleGroupBoxBasic
{
public:
    using CollapsibleGroupBoxBasic::collapseExpandFixes;
    using CollapsibleGroupBoxBasic::CollapsibleGroupBoxBasic;
    using CollapsibleGroupBoxBasic::mousePressEvent;
    using CollapsibleGroupBoxBasic::titleRect;
    using CollapsibleGroupBoxBasic::updateStyle;

    GroupBoxCollapseButton *arrow() const
    {
        return findChild<GroupBoxCollapseButton *>(QString(), Qt::FindDirectChildrenOnly);
    }
    QPoint titlePoint() { return titleRect().center(); }
};

/** A box called @p name with some labels in it. */
inline Box *makeBox(const QString &name, int labels = 3)
{
    auto *box = new Box(name);
    box->setObjectName(name);
    auto *layout = new QVBoxLayout(box);
    for (int i = 0; i < labels; ++i) {
        layout->addWidget(new QLabel(QStringLiteral("label %1").arg(i)));
    }
    return box;
}

/** A property panel: boxes one below the other in a scroll area. */
struct Panel
{
    explicit Panel(int count = 5, int labels = 3)
    {
        area = new QScrollArea;
        area->setWidgetResizable(true);
        content = new QWidget;
        auto *layout = new QVBoxLayout(content);
        for (int i = 0; i < count; ++i) {
            Box *box = makeBox(QString(QLatin1Char(char('a' + i))), labels);
            layout->addWidget(box);
            boxes.append(box);
        }
        layout->addStretch();
        area->setWidget(content);
        area->resize(300, 250);
    }
    ~Panel() { delete area.data(); }

    void group()
    {
        for (Box *box : boxes) {
            box->setSyncGroup(Group);
        }
    }
    void show()
    {
        area->show();
        QVERIFY(QTest::qWaitForWindowExposed(area));
        QCoreApplication::processEvents();
    }
    /** The folded boxes by their names. */
    QString folded() const
    {
        QString names;
        for (const Box *box : boxes) {
            names += box->isCollapsed() ? box->objectName() : QString();
        }
        return names;
    }
    int scrolled() const { return area->verticalScrollBar()->value(); }

    QPointer<QScrollArea> area;
    QWidget *content = nullptr;
    QVector<Box *> boxes;
};

/** Writes down who said what, in order. */
struct Record
{
    void follow(CollapsibleGroupBoxBasic *box)
    {
        QObject::connect(box, &CollapsibleGroupBoxBasic::collapsedStateChanged, box,
                         [this, box](bool collapsed) {
                             lines += box->objectName() + QLatin1Char(collapsed ? '-' : '+');
                         });
    }
    void follow(const Panel &panel)
    {
        for (Box *box : panel.boxes) {
            follow(box);
        }
    }
    QString lines;
};

/** A click as from the window system: the window finds out which widget is meant. */
inline void click(QWidget *widget, const QPoint &position,
                  Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                  Qt::MouseButton button = Qt::LeftButton)
{
    QWidget *window = widget->window();
    QTest::mouseClick(window->windowHandle(), button, modifiers, widget->mapTo(window, position));
}

inline void clickTitle(Box *box, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    click(box, box->titlePoint(), modifiers);
}

inline void clickArrow(Box *box, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    click(box->arrow(), QPoint(8, 8), modifiers);
}

/** Does something at the next event of a kind. It takes the event, so the widget may go meanwhile.
 */
class EventWatcher : public QObject
{
public:
    EventWatcher(QWidget *widget, QEvent::Type type, std::function<void()> act)
        : m_type(type), m_act(std::move(act))
    {
        widget->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != m_type || !m_act) {
            return false;
        }
        watched->removeEventFilter(this);
        std::function<void()> act;
        act.swap(m_act);
        act();
        return true;
    }

private:
    QEvent::Type m_type;
    std::function<void()> m_act;
};

} // namespace groupboxtest

#endif
