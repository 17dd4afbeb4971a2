#ifndef LMWIDGETS_CUSTOMSPINBOX_H
#define LMWIDGETS_CUSTOMSPINBOX_H

#include <lmwidgets/lmwidgets_global.h>

#include <QDoubleSpinBox>

namespace LM {
namespace Widgets {

/**
 * @class CustomSpinBox customspinbox.h <lmwidgets/customspinbox.h>
 *
 * @brief A spin box for numbers that may be left blank.
 *
 * @image html customspinbox.png
 *
 * When the user has deleted all text with Backspace or Delete, the value becomes 0 and the field
 * stays empty, also when it loses the focus or Return is pressed; a stock QDoubleSpinBox would put
 * the last number back. A range without 0 makes the value the bound that is nearest to it. What the
 * user types next, or setValue(), shows a number again, and so does the first step. A field
 * with a prefix or a suffix is never without text, and one whose range is a single number cannot be
 * emptied: both behave like a stock one.
 *
 * Backspace, Delete and Ctrl+V end with a notice that the content was edited: textChanged() with an
 * empty string, whatever the field shows by then, and after the signals of the edit itself. Ask
 * text() for the text and value() for the number. The notice also comes when the key had nothing to
 * delete or to paste. A slot of the notice may destroy the spin box, and so may one of
 * valueChanged(double) when the value becomes 0 because the text is gone.
 *
 * @code
 * auto *offset = new LM::Widgets::CustomSpinBox(form);
 * offset->setRange(-100, 100);
 * connect(offset, &QDoubleSpinBox::textChanged, this, [=] { setEdited(offset->text().isEmpty()); });
 * @endcode
 */
class LMWIDGETS_EXPORT CustomSpinBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    /** Constructs a spin box with the range, the step and the decimals of a QDoubleSpinBox. */
    explicit CustomSpinBox(QWidget *parent = nullptr);
    ~CustomSpinBox() override;

protected:
    /** Handles the keys that delete or paste as described above, and all others as usual. */
    void keyPressEvent(QKeyEvent *event) override;
    /** Leaves the field as it is: an empty one stays empty. */
    void focusOutEvent(QFocusEvent *event) override;

private:
    Q_DISABLE_COPY(CustomSpinBox)
};

} // namespace Widgets
} // namespace LM

#endif
