#include "editcomboscenario.h"

#include "reporter.h"

#include <lmwidgets/editcombobox.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using LM::Widgets::EditComboBox;

namespace {

constexpr QRect FormGeometry(200, 100, 320, 160);

} // namespace

void runEditCombo()
{
    auto *form = new QWidget;
    form->setObjectName(QStringLiteral("form"));
    auto *layout = new QVBoxLayout(form);
    auto *box = new EditComboBox({QStringLiteral("alpha"), QStringLiteral("beta"),
                                  QStringLiteral("gamma"), QStringLiteral("delta")},
                                 nullptr);
    auto *edit = box->findChild<QLineEdit *>();
    edit->setObjectName(QStringLiteral("system-edit"));
    box->findChild<QPushButton *>()->setObjectName(QStringLiteral("system-button"));
    edit->completer()->popup()->setObjectName(QStringLiteral("system-list"));
    Reporter::follow(edit);
    QObject::connect(box, QOverload<int>::of(&EditComboBox::currentIndexChanged), box,
                     [](int index) { Reporter::say(QStringLiteral("index %1").arg(index)); });
    QObject::connect(
        box, QOverload<const QString &>::of(&EditComboBox::currentIndexChanged), box,
        [](const QString &text) { Reporter::say(QLatin1String("indexText ") + text); });
    QObject::connect(box, &EditComboBox::currentTextChanged, box,
                     [](const QString &text) { Reporter::say(QLatin1String("current ") + text); });

    auto *after = new QLineEdit;
    after->setObjectName(QStringLiteral("after"));
    Reporter::follow(after);
    layout->addWidget(box);
    layout->addWidget(after);
    layout->addStretch();
    form->setGeometry(FormGeometry);
    form->show();
    after->setFocus();
}
