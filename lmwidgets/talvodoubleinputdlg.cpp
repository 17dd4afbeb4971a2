#include <lmwidgets/talvodoubleinputdlg.h>

#include "owntext_p.h"

#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QMetaMethod>
#include <QPointer>
#include <QSignalBlocker>
#include <QtNumeric>
#include <QVBoxLayout>

namespace {

constexpr QSize FormSize(528, 64);
constexpr int FormMaximum = 9999;
constexpr int SideMargin = 24;
constexpr int RowMargin = 16;
constexpr int RowSpacing = 16;
constexpr int LabelHeight = 20;
constexpr int InputHeight = 32;
// The label keeps the width of its text.
constexpr int InputStretch = 10;

// Hosts compare the text as it is, line breaks and blanks included.
const char RowStyle[] = "\n                            background-color: rgb(51, 51, 51);"
                        "\n                            color: rgb(221, 221, 221);"
                        "\n                        ";

/** Names @p object after its field, as hosts look for it. */
template <typename Object>
Object *named(Object *object, const char *name)
{
    object->setObjectName(QLatin1String(name));
    return object;
}

/** Emits what a spin box does when its value has changed; any slot may destroy it. */
void tellOfValue(const QPointer<QDoubleSpinBox> &box)
{
    const double value = box->value();
    const QString text = box->text();
    // Deprecated since Qt 5.14, and still there for the hosts that are connected to it.
    const QMetaObject *type = box->metaObject();
    const int textSignal = type->indexOfSignal("valueChanged(QString)");
    if (textSignal >= 0) {
        type->method(textSignal).invoke(box, Qt::DirectConnection, Q_ARG(QString, text));
    }
    if (box) {
        Q_EMIT box->textChanged(text);
    }
    if (box) {
        Q_EMIT box->valueChanged(value);
    }
}

/**
 * Calls @p change with @p box, whose signals come when it has returned: QDoubleSpinBox goes on with
 * its own work after it has emitted them, and a slot of the host may destroy the dialog.
 */
template <typename Change>
void changeAndTell(const QPointer<QDoubleSpinBox> &box, Change change)
{
    if (!box) {
        return;
    }
    const double before = box->value();
    {
        const QSignalBlocker blocker(box);
        change(box.data());
    }
    // As the spin box itself compares: a value has its decimals.
    if (box->value() < before || box->value() > before) {
        tellOfValue(box);
    }
}

} // namespace

/** What stands on the content holder of the dialog. Everything belongs to the content holder. */
struct TalvoDoubleInputDlgForm
{
    void build(QWidget *form);
    void translate(QWidget *form);

    QVBoxLayout *verticalLayout = nullptr;
    QWidget *widget = nullptr;
    QHBoxLayout *horizontalLayout = nullptr;
    // The host may delete what it finds.
    QPointer<QLabel> label_2;
    QPointer<QDoubleSpinBox> doubleSpinBox;
};

void TalvoDoubleInputDlgForm::build(QWidget *form)
{
    if (form->objectName().isEmpty()) {
        form->setObjectName(QStringLiteral("TalvoDoubleInputDlg"));
    }
    form->resize(FormSize);
    form->setMinimumSize(FormSize.width(), 0);
    form->setMaximumSize(FormMaximum, FormMaximum);

    verticalLayout = named(new QVBoxLayout(form), "verticalLayout");
    verticalLayout->setContentsMargins(SideMargin, 0, SideMargin, 0);
    widget = named(new QWidget(form), "widget");
    widget->setStyleSheet(QLatin1String(RowStyle));

    horizontalLayout = named(new QHBoxLayout(widget), "horizontalLayout");
    horizontalLayout->setSpacing(RowSpacing);
    horizontalLayout->setContentsMargins(RowMargin, RowMargin, RowMargin, RowMargin);
    label_2 = named(new QLabel(widget), "label_2");
    label_2->setMinimumSize(0, LabelHeight);
    label_2->setMaximumSize(QWIDGETSIZE_MAX, LabelHeight);
    horizontalLayout->addWidget(label_2);
    doubleSpinBox = named(new QDoubleSpinBox(widget), "doubleSpinBox");
    doubleSpinBox->setMinimumSize(0, InputHeight);
    doubleSpinBox->setMaximumSize(QWIDGETSIZE_MAX, InputHeight);
    horizontalLayout->addWidget(doubleSpinBox);
    horizontalLayout->setStretch(1, InputStretch);
    verticalLayout->addWidget(widget);

    translate(form);
    QMetaObject::connectSlotsByName(form);
}

void TalvoDoubleInputDlgForm::translate(QWidget *form)
{
    LM::Widgets::setOwnTitle(form, [] {
        return QCoreApplication::translate("TalvoDoubleInputDlg", "Statistical Outlier Removal");
    });
    const auto label = [] {
        return QCoreApplication::translate("TalvoDoubleInputDlg", "Video Data");
    };
    LM::Widgets::setOwnText(label_2.data(), label);
    LM::Widgets::setOwnAccessibleName(doubleSpinBox.data(), label);
}

TalvoDoubleInputDlg::TalvoDoubleInputDlg(QWidget *parent)
    : FramelessDialog(parent), ui(new TalvoDoubleInputDlgForm)
{
    ui->build(getContentHolder());

    QFile sheet(QCoreApplication::applicationDirPath() + QStringLiteral("/theme/themestyle.qss"));
    if (sheet.open(QIODevice::ReadOnly)) {
        setStyleSheet(QString::fromUtf8(sheet.readAll()));
    }
}

TalvoDoubleInputDlg::~TalvoDoubleInputDlg()
{
    delete ui;
}

void TalvoDoubleInputDlg::setParamData(QString label, double minimum, double maximum, int decimals,
                                       double value, double singleStep, QString &suffix)
{
    if (ui->label_2) {
        ui->label_2->setText(label);
    }
    const QPointer<QDoubleSpinBox> input = ui->doubleSpinBox;
    if (!input) {
        return;
    }
    input->setAccessibleName(label);
    changeAndTell(input, [decimals](QDoubleSpinBox *box) { box->setDecimals(decimals); });
    if (input) {
        input->setSingleStep(singleStep);
    }
    // A spin box that was given a bound that is no number accepts no value any more.
    if (!qIsNaN(minimum) && !qIsNaN(maximum)) {
        changeAndTell(input,
                      [minimum, maximum](QDoubleSpinBox *box) { box->setRange(minimum, maximum); });
    }
    if (!qIsNaN(value)) {
        changeAndTell(input, [value](QDoubleSpinBox *box) { box->setValue(value); });
    }
    if (input && !suffix.isEmpty()) {
        input->setSuffix(suffix);
    }
}

double TalvoDoubleInputDlg::getValue()
{
    return ui->doubleSpinBox ? ui->doubleSpinBox->value() : 0.0;
}
