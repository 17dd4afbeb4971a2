#ifndef LMGALLERY_MAINWINDOW_H
#define LMGALLERY_MAINWINDOW_H

#include <QHash>
#include <QMainWindow>
#include <QString>
#include <QStringList>

#include <functional>

QT_BEGIN_NAMESPACE
class QLabel;
class QLineEdit;
class QListWidget;
class QStackedWidget;
class QWidget;
QT_END_NAMESPACE

namespace gallery {

class SignalLog;

/**
 * The gallery's window: the list of pages with a search field, the chosen page, the log of signals
 * beside the code that a host writes, and the switches of theme, language, direction and scale.
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

    /**
     * Hides from the list what lacks one of the words of @p text in its title, its description and
     * its code; an empty text shows everything. The first page found is shown if the current one
     * is hidden.
     */
    void search(const QString &text);

    SignalLog *log() const { return m_log; }

Q_SIGNALS:
    /**
     * Another scale was chosen, which Qt takes from the environment when a program starts: the
     * program is to begin anew with @p arguments, which show the same page.
     */
    void scaleChosen(const QStringList &arguments);

private:
    QWidget *createHeader();
    QWidget *createThemeSwitch();
    QWidget *createLanguageSwitch();
    QWidget *createDirectionSwitch();
    QWidget *createScaleSwitch();
    QWidget *createPageColumn();
    QWidget *createCodePanel();
    QStringList argumentsForScale(double factor) const;
    QWidget *view(int row);
    void showRow(int row);

    QListWidget *m_list = nullptr;
    QStackedWidget *m_stack = nullptr;
    SignalLog *m_log = nullptr;
    QLineEdit *m_search = nullptr;
    QLabel *m_code = nullptr;
    QHash<int, QWidget *> m_views;
};

} // namespace gallery

#endif
