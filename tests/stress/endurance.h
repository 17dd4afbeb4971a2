#ifndef ENDURANCE_H
#define ENDURANCE_H

/** @file
 * Does one thing over and over, and tells whether anything is left behind by it.
 */

#include <QString>

#include <functional>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/** What the process holds at one moment. */
struct Balance
{
    qint64 memory = 0; ///< bytes that were allocated and not freed
    int handles = 0;   ///< open files, sockets, pipes
    int widgets = 0;   ///< widgets, whether shown or not
    int windows = 0;   ///< windows of the window system's

    /** Handles all events first. */
    static Balance take();
};

/** How often something is done, or for how long: the first of both that is reached ends it. */
struct Duration
{
    int rounds = 0;
    int seconds = 0; ///< 0 for as long as the rounds take
};

/** What may be left behind. */
struct Allowance
{
    qint64 bytesPerRound = 8; ///< below the size of the smallest block that can be lost
    qint64 bytes = 256 * 1024;
    int widgets = 0;
};

/**
 * Takes the place of Qt's message handler: each warning is printed, counted, and makes the program
 * fail at its end. Two of Qt's own, which tell nothing, are left out.
 */
void countWarnings();
/** Returns how many there were. */
int warningCount();

/**
 * Calls @p round, with the number of the round, as often as @p duration says. After the first
 * hundred rounds, or half of them if there are fewer than two hundred, everything that is made once
 * exists; from there on nothing more may be held than @p allowance. Prints one line of figures and
 * returns whether that was so.
 */
bool endure(const QString &what, const Duration &duration, const Allowance &allowance,
            const std::function<void(int)> &round);

/**
 * Handles events until @p window stands on the screen; returns false if it does not within some
 * seconds. What QTest has for this sleeps for 10 ms, which is most of a dialog's life here.
 */
bool waitUntilShown(QWidget *window);

/** Prints @p line at once, so that it is there if the program crashes. */
void say(const QString &line);

#endif
