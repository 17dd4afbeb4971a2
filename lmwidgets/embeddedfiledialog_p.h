#ifndef LMWIDGETS_EMBEDDEDFILEDIALOG_P_H
#define LMWIDGETS_EMBEDDEDFILEDIALOG_P_H

#include <QFileDialog>
#include <QMap>

namespace LM {
namespace Widgets {

/**
 * The file browser inside a frame: Qt's own file dialog as a plain child widget.
 *
 * It is never a dialog of the platform, whatever its options say: Qt takes one only for QFileDialog
 * itself, not for a class derived from it. Being a part of the frame it does not hide itself when
 * it is accepted or rejected, and it is neither placed nor resized as a window is.
 */
class EmbeddedFileDialog : public QFileDialog
{
    Q_OBJECT

public:
    /** Returns a new browser, a child of @p frame. */
    static EmbeddedFileDialog *create(QWidget *frame, const QString &caption,
                                      const QString &directory, const QString &filter);
    static EmbeddedFileDialog *create(QWidget *frame, Qt::WindowFlags flags);

    /**
     * Is called when the frame is destroyed. Where that happens in a slot that this browser's own
     * button, view or field has called, it leaves the frame and destroys itself when they have
     * returned; Qt's widgets still touch themselves after they have emitted.
     */
    void leaveDyingFrame();

    /**
     * Gives a button or a label its text for good. Qt's button box gives its buttons Qt's own texts
     * back when the language changes.
     */
    void setLastingLabelText(DialogLabel label, const QString &text);

    void setVisible(bool visible) override;

protected:
    void accept() override;
    void done(int result) override;
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    class Ending;

    using QFileDialog::QFileDialog;

    void becomePartOfFrame();

    int m_endings = 0;
    bool m_orphaned = false;
    QMap<DialogLabel, QString> m_labels;
};

} // namespace Widgets
} // namespace LM

#endif
