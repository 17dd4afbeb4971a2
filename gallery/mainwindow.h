#ifndef LMGALLERY_MAINWINDOW_H
#define LMGALLERY_MAINWINDOW_H

#include <QHash>
#include <QMainWindow>
#include <QString>

#include <functional>

QT_BEGIN_NAMESPACE
class QListWidget;
class QStackedWidget;
class QWidget;
QT_END_NAMESPACE

namespace gallery {

class SignalLog;

/** The gallery's window: the list of pages, the chosen page, the log of signals, the theme switch.
 */
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);

    /**
     * Makes all pages now, not when they are first shown, and calls @p afterEach after every one.
     */
    void loadPages(const std::function<void()> &afterEach);

    /** Shows the page called @p name; an unknown name is ignored. */
    void showPage(const QString &name);

    SignalLog *log() const { return m_log; }

private:
    QWidget *createHeader();
    QWidget *createThemeSwitch();
    void createPageList();
    QWidget *view(int row);
    void showRow(int row);

    QListWidget *m_list = nullptr;
    QStackedWidget *m_stack = nullptr;
    SignalLog *m_log = nullptr;
    QHash<int, QWidget *> m_views;
};

} // namespace gallery

#endif
