#include "page.h"
#include "pageparts.h"
#include "signallog.h"

#include <lmwidgets/customspinbox.h>

#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace gallery {

using LM::Widgets::CustomSpinBox;

namespace {

constexpr int FieldWidth = 160;

CustomSpinBox *addNumber(QFormLayout *form, const QString &label, double value, int decimals)
{
    auto *box = new CustomSpinBox;
    box->setObjectName(QStringLiteral("parameter") + label);
    box->setRange(-10000, 10000);
    box->setDecimals(decimals);
    box->setValue(value);
    box->setFixedWidth(FieldWidth);
    form->addRow(label, box);
    return box;
}

/** Says what the host would compute with: a blank field leaves a parameter out. */
class ParameterForm : public QWidget
{
public:
    explicit ParameterForm(SignalLog *log) : m_result(new QLabel)
    {
        auto *form = new QFormLayout(this);
        form->setContentsMargins(0, 0, 0, 0);
        add(form, QStringLiteral("Offset"), 1.25, 2, log);
        add(form, QStringLiteral("Height"), 187.9, 1, log);
        add(form, QStringLiteral("Tilt"), -12, 0, log);
        m_result->setObjectName(QStringLiteral("parameterResult"));
        form->addRow(m_result);
        CustomSpinBox *disabled = addNumber(form, QStringLiteral("Licence"), 7, 0);
        disabled->setEnabled(false);
        showResult();
    }

    void setBlank()
    {
        for (CustomSpinBox *box : m_boxes) {
            box->setValue(0);
            box->clear();
        }
        showResult();
    }

    void setNumbers()
    {
        for (CustomSpinBox *box : m_boxes) {
            box->setValue(box->value() + 1);
        }
        showResult();
    }

private:
    void add(QFormLayout *form, const QString &label, double value, int decimals, SignalLog *log)
    {
        CustomSpinBox *box = addNumber(form, label, value, decimals);
        m_boxes.append(box);
        // The string of the signal may be empty for a notice: the field is asked for its content.
        connect(box, &QDoubleSpinBox::textChanged, this, [this] { showResult(); });
        if (log) {
            log->watch(box, label);
        }
    }

    void showResult()
    {
        QStringList parts;
        for (const CustomSpinBox *box : m_boxes) {
            parts.append(box->text().isEmpty() ? QStringLiteral("left out") : box->text());
        }
        m_result->setText(parts.join(QStringLiteral("; ")));
    }

    QVector<CustomSpinBox *> m_boxes;
    QLabel *m_result;
};

QWidget *createContent(SignalLog &log)
{
    auto *content = new QWidget;
    auto *layout = contentLayout(content);
    auto *body = addSection(
        layout, QStringLiteral("Numbers that may be left out"),
        QStringLiteral("Delete all of a number: the field stays blank and its value is 0. "
                       "Backspace, Delete and Ctrl+V end with an empty textChanged()."));
    auto *form = new ParameterForm(&log);
    body->addWidget(row({form}));
    body->addWidget(row({button(QStringLiteral("Leave all out"), [form] { form->setBlank(); }),
                         button(QStringLiteral("One more each"), [form] { form->setNumbers(); })}));
    return content;
}

/** A window with the form, whose fields are filled or blank. */
std::function<QWidget *()> formShot(bool blank)
{
    return [blank] {
        auto *window = new QWidget;
        auto *layout = new QVBoxLayout(window);
        auto *form = new ParameterForm(nullptr);
        layout->addWidget(form);
        if (blank) {
            form->setBlank();
        }
        window->show();
        return window;
    };
}

} // namespace

Page parametersPage()
{
    return Page(QStringLiteral("parameters"), QStringLiteral("Parameter form"),
                QStringLiteral("CustomSpinBox is a spin box whose number may be left out."),
                createContent)
        .shot(QStringLiteral("filled"), formShot(false))
        .shot(QStringLiteral("blank"), formShot(true));
}

} // namespace gallery
