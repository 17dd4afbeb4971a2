#ifndef STRESS_DIALOGS_H
#define STRESS_DIALOGS_H

#include <QVector>

QT_BEGIN_NAMESPACE
class QDialog;
class QWidget;
QT_END_NAMESPACE

/** Opens and ends @p rounds dialogs of each kind, in every way in which a dialog ends. */
bool stressDialogs(int rounds);

/** Makes @p count dialogs of all the kinds that have a frame, and shows them. */
QVector<QDialog *> makeLiveDialogs(int count, QWidget *parent);

#endif
