#ifndef LMTEST_H
#define LMTEST_H

/** @file
 * What every test program shares: real input events, and Qt warnings that make a test fail.
 *
 * A program ends with LMTEST_MAIN(Class). A message of Qt's that no test announced with
 * QTest::ignoreMessage() appears in the output as QWARN, and CTest counts that as a failure.
 */

#include <QApplication>
#include <QPoint>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QtTest>

namespace lmtest {

/**
 * Drops what the offscreen platform says of itself about every window, and Wine's lack of some
 * pictures; all else goes on to QTest.
 * Is called when QTest has set its own handler, that is from within a test object.
 */
void ignorePlatformChatter();

/** Sends a mouse press, move or release to @p widget, as from the window system; @p pos is its own.
 */
void mouse(QWidget *widget, QEvent::Type type, const QPoint &pos,
           Qt::MouseButton button = Qt::LeftButton, Qt::MouseButtons buttons = Qt::LeftButton,
           Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/** The same at a global position, which may lie outside the widget. */
void mouseAt(QWidget *widget, QEvent::Type type, const QPoint &globalPos,
             Qt::MouseButton button = Qt::LeftButton, Qt::MouseButtons buttons = Qt::LeftButton,
             Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/** Sends a hover move at @p pos, which is in the coordinates of @p widget. */
void hoverMove(QWidget *widget, const QPoint &pos);

/**
 * The methods that @p metaObject itself declares, in the order of their indices, each in the form
 * "signal name(type name, type)" or "slot name()".
 */
QStringList ownMethods(const QMetaObject &metaObject);

/** The folder of the default theme beside the test program, without a slash at its end. */
QString themeDir();

/**
 * Runs one test function of @p program, which is this program or a copy of it, as a program of its
 * own. @return its report, or an empty text if it did not end as a program does that passed.
 */
QByteArray
runTestFunction(const QString &program, const QString &function,
                const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment());

/** Prepares the application: no settings of this machine's desktop shall decide what a test sees.
 */
void prepareApplication();

/**
 * The base of every test object. A test that has an initTestCase() of its own calls this one first.
 */
class TestCase : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void initTestCase() { ignorePlatformChatter(); }
};

} // namespace lmtest

#define LMTEST_MAIN(Test)                                                                          \
    int main(int argc, char **argv)                                                                \
    {                                                                                              \
        QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);                                  \
        QApplication application(argc, argv);                                                      \
        lmtest::prepareApplication();                                                              \
        Test test;                                                                                 \
        return QTest::qExec(&test, argc, argv);                                                    \
    }

#endif
