#ifndef STRESS_STORM_H
#define STRESS_STORM_H

#include <QEvent>
#include <QEventLoop>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QRandomGenerator>

QT_BEGIN_NAMESPACE
class QWidget;
class QWindow;
QT_END_NAMESPACE

/** How long the storm lasts, and what it is made of. */
struct StormPlan
{
    quint32 seed = 1;
    int seconds = 0;    ///< the whole storm; 0 for as long as the rounds take
    int rounds = 0;     ///< a round is one page of the gallery
    int firstRound = 0; ///< to see again what went wrong in a later round
    int steps = 100;    ///< actions of the user's in a round
    bool verbose = false;
};

/** Opens each page of the gallery in turn and lets a user do what comes into his head. */
bool stressStorm(const StormPlan &plan);

/**
 * A user who does what comes into his head, in whatever window there is: mouse, wheel, keys.
 *
 * Each step is a call of its own from the event loop, so that the storm goes on inside the event
 * loops of the modal dialogs and menus that it opens.
 */
class Storm : public QObject
{
    Q_OBJECT

public:
    Storm(QWidget *main, quint32 seed);

    /** Takes @p steps, closes what is open then, and returns whether all of that could be closed. */
    bool run(int steps);

private:
    void step();
    void closeAll();
    bool closeOne();
    void act();

    QWidget *pickWindow();
    QWidget *pickWidget(QWidget *window);
    void mouse(QEvent::Type type, const QPoint &offset = QPoint());
    void click(Qt::MouseButton button, int count);
    void drag();
    void wheel();
    void pressKey();
    void typeText();
    void meddle();

    int below(int limit) { return int(m_random.bounded(limit)); }

    QPointer<QWidget> m_main;
    QRandomGenerator m_random;
    QEventLoop m_loop;
    int m_stepsLeft = 0;
    int m_closingSteps = 0;
    bool m_stuck = false;

    QPointer<QWidget> m_target;
    QPoint m_position; ///< in the target
    Qt::MouseButton m_button = Qt::LeftButton;
    bool m_pressed = false;
    int m_time = 1;
};

#endif
