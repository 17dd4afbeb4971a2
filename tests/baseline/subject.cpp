#include "subject.h"

#include <lmwidgets/talvostylemanager.h>

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QImage>
#include <QPixmap>
#include <QtTest>
#include <QWindow>

namespace baseline {

namespace {

// What moves by a timer of its own has arrived when no picture differs for this long, in ms.
constexpr int StillTime = 100;

} // namespace

QVector<Subject> subjects()
{
    return buttonSubjects() + containerSubjects() + dialogSubjects() + fieldSubjects() +
           fileDialogSubjects() + frameSubjects() + itemSubjects() + messageBoxSubjects();
}

QWidget *hover(QWidget *widget, const QPoint &position)
{
    const QPoint place = position.x() < 0 ? widget->rect().center() : position;
    QWidget *window = widget->window();
    // Qt tells a widget that the mouse is over it when the mouse comes from another one.
    QTest::mouseMove(window->windowHandle(), QPoint(1, 1));
    QTest::mouseMove(window->windowHandle(), widget->mapTo(window, place));
    if (!QTest::qWaitFor([widget] { return widget->underMouse(); })) {
        qWarning("the mouse is not over the %s", widget->metaObject()->className());
    }
    return widget;
}

QWidget *focus(QWidget *widget)
{
    widget->setFocus(Qt::TabFocusReason);
    return widget;
}

QWidget *waitUntilStill(QWidget *widget)
{
    QImage picture;
    QElapsedTimer still;
    const bool arrived = QTest::qWaitFor([&] {
        const QImage now = widget->grab().toImage();
        if (now != picture) {
            picture = now;
            still.start();
        }
        return still.elapsed() >= StillTime;
    });
    if (!arrived) {
        qWarning("%s does not stand still", widget->metaObject()->className());
    }
    return widget;
}

QVector<State> buttonStates(const std::function<QAbstractButton *()> &create)
{
    QVector<State> states = widgetStates(create);
    states.insert(2, {QStringLiteral("pressed"), create, [](QWidget *shown) {
                          hover(shown);
                          static_cast<QAbstractButton *>(shown)->setDown(true);
                          return shown;
                      }});
    return states;
}

QVector<State> widgetStates(const Create &create)
{
    return {{QStringLiteral("normal"), create, nullptr},
            {QStringLiteral("hovered"), create, [](QWidget *shown) { return hover(shown); }},
            {QStringLiteral("focused"), create, [](QWidget *shown) { return focus(shown); }},
            {QStringLiteral("disabled"), disabled(create), nullptr}};
}

Create disabled(const Create &create)
{
    return [create] {
        QWidget *widget = create();
        widget->setEnabled(false);
        return widget;
    };
}

QString themeImage(const QString &name)
{
    return LM::Widgets::TalvoStyleManager::instance()->currentThemePath() +
           QStringLiteral("qssimage/") + name + QStringLiteral(".png");
}

} // namespace baseline
