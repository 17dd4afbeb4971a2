#ifndef LMWIDGETS_OWNTEXT_P_H
#define LMWIDGETS_OWNTEXT_P_H

#include <QString>

#include <functional>

QT_BEGIN_NAMESPACE
class QAbstractButton;
class QObject;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

/**
 * A text that the library, not the host, has put on an object, and that is put there again in the
 * new language whenever the language of the application changes.
 */
struct OwnText
{
    /** Returns the text in the language of that moment. */
    std::function<QString()> translated;
    /**
     * Puts @c now in the place of @c former, and leaves alone what a host has put there since:
     * anything that is not @c former.
     */
    std::function<void(const QString &former, const QString &now)> replace;
};

/**
 * Lets @p text follow the language as long as @p object lives. The object must show it already. An
 * object can have several texts; one with the same @p key, a literal, takes the place of the former.
 * For objects of the GUI thread.
 */
void followLanguage(QObject *object, const char *key, const OwnText &text);

/** Puts a caption on @p button, or a text on a label, and lets it follow the language. */
template <typename Widget>
void setOwnText(Widget *widget, const std::function<QString()> &translated)
{
    widget->setText(translated());
    followLanguage(widget, "text",
                   {translated, [widget](const QString &former, const QString &now) {
                        if (widget->text() == former) {
                            widget->setText(now);
                        }
                    }});
}

/** The same for a button of a dialog's row, which becomes wider where the caption needs it. */
void setOwnCaption(QAbstractButton *button, const std::function<QString()> &translated);

/** Gives @p dialog, a frame with a title bar of its own, a title that follows the language. */
template <typename Frame>
void setOwnTitle(Frame *dialog, const std::function<QString()> &translated)
{
    dialog->setWindowTitle(translated());
    followLanguage(dialog, "title",
                   {translated, [dialog](const QString &former, const QString &now) {
                        if (dialog->windowTitle() == former) {
                            dialog->setWindowTitle(now);
                        }
                    }});
}

/** Gives @p widget a tool tip that follows the language. */
template <typename Widget>
void setOwnToolTip(Widget *widget, const std::function<QString()> &translated)
{
    widget->setToolTip(translated());
    followLanguage(widget, "tool tip",
                   {translated, [widget](const QString &former, const QString &now) {
                        if (widget->toolTip() == former) {
                            widget->setToolTip(now);
                        }
                    }});
}

/** Gives @p widget a name for assistive technology that follows the language. */
template <typename Widget>
void setOwnAccessibleName(Widget *widget, const std::function<QString()> &translated)
{
    widget->setAccessibleName(translated());
    followLanguage(widget, "accessible name",
                   {translated, [widget](const QString &former, const QString &now) {
                        if (widget->accessibleName() == former) {
                            widget->setAccessibleName(now);
                        }
                    }});
}

} // namespace Widgets
} // namespace LM

#endif
