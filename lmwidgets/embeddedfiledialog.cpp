#include "embeddedfiledialog_p.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QShowEvent>

namespace LM {
namespace Widgets {

namespace {

// What Qt calls the field of the file's name.
const char NameEdit[] = "fileNameEdit";

// Letters for which the combo boxes ask for room.
constexpr int ComboLetters = 20;

/**
 * Keeps Qt from using a dialog of the platform as long as it lives. Needed for the construction
 * only: until its end the dialog does not know that it is of a derived class.
 */
class WithoutNativeDialogs
{
public:
    WithoutNativeDialogs() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, true); }
    ~WithoutNativeDialogs()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, m_before);
    }

private:
    Q_DISABLE_COPY(WithoutNativeDialogs)

    const bool m_before = QCoreApplication::testAttribute(Qt::AA_DontUseNativeDialogs);
};

} // namespace

/** The time in which the browser accepts or rejects, and in which it must not be destroyed. */
class EmbeddedFileDialog::Ending
{
public:
    explicit Ending(EmbeddedFileDialog *dialog) : m_dialog(dialog) { ++m_dialog->m_endings; }
    ~Ending()
    {
        if (--m_dialog->m_endings == 0 && m_dialog->m_orphaned) {
            m_dialog->deleteLater();
        }
    }

private:
    Q_DISABLE_COPY(Ending)

    EmbeddedFileDialog *m_dialog;
};

EmbeddedFileDialog *EmbeddedFileDialog::create(QWidget *frame, const QString &caption,
                                               const QString &directory, const QString &filter)
{
    const WithoutNativeDialogs withoutNativeDialogs;
    auto *dialog = new EmbeddedFileDialog(frame, caption, directory, filter);
    dialog->becomePartOfFrame();
    return dialog;
}

EmbeddedFileDialog *EmbeddedFileDialog::create(QWidget *frame, Qt::WindowFlags flags)
{
    const WithoutNativeDialogs withoutNativeDialogs;
    auto *dialog = new EmbeddedFileDialog(frame, flags);
    dialog->becomePartOfFrame();
    return dialog;
}

void EmbeddedFileDialog::becomePartOfFrame()
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setWindowFlags(windowFlags() & ~Qt::WindowType_Mask);
    // The frame resizes itself, by its edges.
    setSizeGripEnabled(false);
    // Else the longest name filter would widen the frame, beyond the screen if need be.
    const QList<QComboBox *> boxes = findChildren<QComboBox *>();
    for (QComboBox *box : boxes) {
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(ComboLetters);
    }
}

void EmbeddedFileDialog::leaveDyingFrame()
{
    if (m_endings > 0) {
        m_orphaned = true;
        setParent(nullptr);
    }
}

void EmbeddedFileDialog::setLastingLabelText(DialogLabel label, const QString &text)
{
    m_labels.insert(label, text);
    setLabelText(label, text);
}

bool EmbeddedFileDialog::event(QEvent *event)
{
    const bool handled = QFileDialog::event(event);
    if (event->type() == QEvent::LanguageChange) {
        for (auto label = m_labels.cbegin(); label != m_labels.cend(); ++label) {
            setLabelText(label.key(), label.value());
        }
    }
    return handled;
}

void EmbeddedFileDialog::setVisible(bool visible)
{
    if (!visible && m_endings > 0 && !m_orphaned) {
        return;
    }
    QFileDialog::setVisible(visible);
}

void EmbeddedFileDialog::accept()
{
    const Ending ending(this);
    QFileDialog::accept();
}

void EmbeddedFileDialog::done(int result)
{
    const Ending ending(this);
    QFileDialog::done(result);
}

void EmbeddedFileDialog::showEvent(QShowEvent *event)
{
    // QDialog would move itself to the middle of its parent's place on the screen.
    QWidget::showEvent(event);
    if (!event->spontaneous()) {
        if (auto *edit = findChild<QLineEdit *>(QLatin1String(NameEdit))) {
            edit->setFocus();
        }
    }
}

} // namespace Widgets
} // namespace LM
