#ifndef LMWIDGETS_TITLEBAR_P_H
#define LMWIDGETS_TITLEBAR_P_H

#include <QObject>
#include <QVector>

QT_BEGIN_NAMESPACE
class QHBoxLayout;
class QLabel;
class QToolButton;
class QWidget;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

class TitleBar;

class TitleBarPrivate : public QObject
{
    Q_OBJECT

public:
    explicit TitleBarPrivate(TitleBar *titleBar);

    /** Fills the layout of @p titleBar; the order of the items is what its owners count on. */
    void layOut(TitleBar *titleBar);

    /** Whether @p type is one of the five buttons; negative numbers are not. */
    bool isButton(int type) const;

    /** Shows the maximise and the restore button as given, as far as they are in use. */
    void showStateButtons(bool showMaximize, bool showRestore);

    QLabel *titleLabel = nullptr;
    bool maximized = false;
    QVector<QToolButton *> buttons;
    QVector<bool> buttonEnabled;
    QHBoxLayout *topLayout = nullptr;
    QHBoxLayout *mainLayout = nullptr;
    QWidget *topLeftWidget = nullptr;
    bool isMirrored = false;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void mirrorMargins(const TitleBar *titleBar);
    void createButtons(TitleBar *titleBar);
    void styleButtons();
};

} // namespace Widgets
} // namespace LM

#endif
