#ifndef TALVODOUBLEINPUTDLG_H
#define TALVODOUBLEINPUTDLG_H

#include <lmwidgets/framelessdialog.h>
#include <lmwidgets/lmwidgets_global.h>

#include <QString>

struct TalvoDoubleInputDlgForm;

/**
 * @class TalvoDoubleInputDlg talvodoubleinputdlg.h <lmwidgets/talvodoubleinputdlg.h>
 *
 * @brief A frameless dialog that asks for one number.
 *
 * @image html talvodoubleinputdlg.png
 *
 * @code
 * TalvoDoubleInputDlg dialog(window);
 * dialog.setWindowTitle(tr("Statistical outlier removal"));
 * QString suffix = QStringLiteral(" m");
 * dialog.setParamData(tr("Distance"), 0.0, 100.0, 2, 1.5, 0.1, suffix);
 * if (dialog.exec() == QDialog::Accepted) {
 *     filter->setDistance(dialog.getValue());
 * }
 * @endcode
 *
 * A new dialog shows a label of its own and a spin box from 0 to 99.99; its title bar is empty
 * until LM::Widgets::FramelessDialog::setWindowTitle() is called. It takes its style sheet from
 * "theme/themestyle.qss" beside the application, once; a missing file leaves it without one.
 */
class LMWIDGETS_EXPORT TalvoDoubleInputDlg : public LM::Widgets::FramelessDialog
{
    Q_OBJECT

public:
    /** Constructs the dialog; @p parent may be null, otherwise it owns the dialog. */
    explicit TalvoDoubleInputDlg(QWidget *parent = nullptr);
    ~TalvoDoubleInputDlg() override;

    /**
     * Sets the text of the label and, in this order, the spin box's decimals, step, range and
     * value, rounded to the decimals and clamped to the range as QDoubleSpinBox does. An empty @p
     * suffix leaves the suffix that was set before; it is only read. A step below 0, and what is not
     * a number, is ignored: a range of which one bound is none stays as it is. Whoever is connected
     * to the spin box hears of each change of its value and may destroy the dialog.
     */
    void setParamData(QString label, double minimum, double maximum, int decimals, double value,
                      double singleStep, QString &suffix);

    /** Returns the number in the spin box; 0 at start. */
    double getValue();

private:
    Q_DISABLE_COPY(TalvoDoubleInputDlg)

    TalvoDoubleInputDlgForm *ui;
};

#endif
