#include "messageboxtest.h"

using namespace messageboxtest;
using LM::Widgets::FramelessMessageBox;

class tst_FramelessMessageBoxButtons : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void usualCaptions_data();
    void usualCaptions();
    void fixedCaptions_data();
    void fixedCaptions();
    void captionsOfAbsentButtons();
    void changeButtonText();
    void buttonVisibility();
    void autoAddedOk();
    void addStandardButton();
    void addButtonWithRole_data();
    void addButtonWithRole();
    void addBadButtons();
    void removeButtons();
    void setStandardButtonsForgets();
    void returnCodes();
    void deletedCustomButton();
};

void tst_FramelessMessageBoxButtons::usualCaptions_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<QString>("caption");
    QTest::newRow("Ok") << int(QMessageBox::Ok) << "OK";
    QTest::newRow("Save") << int(QMessageBox::Save) << "&Save";
    QTest::newRow("SaveAll") << int(QMessageBox::SaveAll) << "Save All";
    QTest::newRow("Open") << int(QMessageBox::Open) << "Open";
    QTest::newRow("Yes") << int(QMessageBox::Yes) << "&Yes";
    QTest::newRow("YesToAll") << int(QMessageBox::YesToAll) << "Yes to &All";
    QTest::newRow("No") << int(QMessageBox::No) << "&No";
    QTest::newRow("NoToAll") << int(QMessageBox::NoToAll) << "N&o to All";
    QTest::newRow("Abort") << int(QMessageBox::Abort) << "Abort";
    QTest::newRow("Retry") << int(QMessageBox::Retry) << "Retry";
    QTest::newRow("Ignore") << int(QMessageBox::Ignore) << "Ignore";
    QTest::newRow("Close") << int(QMessageBox::Close) << "Close";
    QTest::newRow("Cancel") << int(QMessageBox::Cancel) << "&Cancel";
    QTest::newRow("Discard") << int(QMessageBox::Discard) << "Discard";
    QTest::newRow("Help") << int(QMessageBox::Help) << "Help";
    QTest::newRow("Apply") << int(QMessageBox::Apply) << "Apply";
    QTest::newRow("Reset") << int(QMessageBox::Reset) << "Reset";
    QTest::newRow("RestoreDefaults") << int(QMessageBox::RestoreDefaults) << QString();
}

void tst_FramelessMessageBoxButtons::usualCaptions()
{
    QFETCH(int, button);
    QFETCH(QString, caption);
    const auto which = static_cast<QMessageBox::StandardButton>(button);
    FramelessMessageBox box;
    QPushButton *added = box.addButton(which);
    QVERIFY(added);
    if (caption.isNull()) {
        caption = QMessageBox().addButton(which)->text();
    }
    QCOMPARE(added->text(), caption);
    QMessageBox stock;
    QCOMPARE(box.buttonRole(added), stock.buttonRole(stock.addButton(which)));

    added->setText(QStringLiteral("changed"));
    box.retranslateButtonUi(which);
    QCOMPARE(added->text(),
             which == QMessageBox::RestoreDefaults ? QStringLiteral("changed") : caption);
}

void tst_FramelessMessageBoxButtons::fixedCaptions_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("style");
    const QString y = QString::fromLatin1(PrimaryStyle);
    const QString t = QString::fromLatin1(SecondaryStyle);
    QTest::newRow("Ok") << int(QMessageBox::Ok) << "OK" << y;
    QTest::newRow("Yes") << int(QMessageBox::Yes) << "Yes" << y;
    QTest::newRow("Cancel") << int(QMessageBox::Cancel) << "Cancel" << t;
    QTest::newRow("No") << int(QMessageBox::No) << "No" << t;
    QTest::newRow("Close") << int(QMessageBox::Close) << "Exit" << y;
    QTest::newRow("Retry") << int(QMessageBox::Retry) << "Retry" << t;
    QTest::newRow("Save") << int(QMessageBox::Save) << "Save and Exit" << y;
    QTest::newRow("YesToAll") << int(QMessageBox::YesToAll) << "Switch" << y;
    QTest::newRow("Abort") << int(QMessageBox::Abort) << "Close" << t;
    QTest::newRow("Discard") << int(QMessageBox::Discard) << "Discard" << QString();
    QTest::newRow("NoToAll") << int(QMessageBox::NoToAll) << "N&o to All" << QString();
    QTest::newRow("Ignore") << int(QMessageBox::Ignore) << "Ignore" << QString();
}

void tst_FramelessMessageBoxButtons::fixedCaptions()
{
    QFETCH(int, button);
    QFETCH(QString, caption);
    QFETCH(QString, style);
    const auto which = static_cast<QMessageBox::StandardButton>(button);
    FramelessMessageBox box;
    QPushButton *added = box.addButton(which);
    QCOMPARE(added->styleSheet(), QString());
    box.setDefaultOKButton();
    QCOMPARE(added->text(), caption);
    QCOMPARE(added->styleSheet(), style);
    QCOMPARE(added->minimumWidth() > 0, which == QMessageBox::Save);

    // The constructor applies them too.
    FramelessMessageBox constructed(QMessageBox::NoIcon, QString(), QString(), which);
    QCOMPARE(constructed.button(which)->styleSheet(), style);
}

void tst_FramelessMessageBoxButtons::captionsOfAbsentButtons()
{
    FramelessMessageBox box;
    QPushButton *custom = box.addButton(QStringLiteral("Custom"), QMessageBox::AcceptRole);
    box.setDefaultOKButton();
    box.retranslateButtonUi(QMessageBox::Save);
    box.retranslateButtonUi(QMessageBox::NoButton);
    box.retranslateButtonUi(static_cast<QMessageBox::StandardButton>(-1));
    box.changeButtonText(QDialogButtonBox::Save, QStringLiteral("x"));
    box.setButtonIsVisiable(QDialogButtonBox::Save, false);
    box.setButtonIsVisiable(static_cast<QDialogButtonBox::StandardButton>(3), true);
    QCOMPARE(box.buttons(), QList<QAbstractButton *>{custom});
    QCOMPARE(custom->text(), QStringLiteral("Custom"));
    QCOMPARE(custom->styleSheet(), QString());
}

void tst_FramelessMessageBoxButtons::changeButtonText()
{
    FramelessMessageBox box(QMessageBox::NoIcon, QString(), QString(), QMessageBox::Ok);
    box.changeButtonText(QDialogButtonBox::Ok, QStringLiteral("Go on"));
    QCOMPARE(box.button(QMessageBox::Ok)->text(), QStringLiteral("Go on"));
}

void tst_FramelessMessageBoxButtons::buttonVisibility()
{
    FramelessMessageBox box(QMessageBox::NoIcon, QString(), QString(),
                            QMessageBox::Ok | QMessageBox::Cancel);
    box.setButtonIsVisiable(QDialogButtonBox::Cancel, false);
    box.show();
    QVERIFY(waitForShown(&box));
    QVERIFY(box.button(QMessageBox::Ok)->isVisible());
    QVERIFY(!box.button(QMessageBox::Cancel)->isVisible());
    box.setButtonIsVisiable(QDialogButtonBox::Cancel, true);
    QVERIFY(box.button(QMessageBox::Cancel)->isVisible());
}

void tst_FramelessMessageBoxButtons::autoAddedOk()
{
    FramelessMessageBox box;
    QVERIFY(box.buttons().isEmpty());
    box.show();
    QCOMPARE(box.standardButtons(), QMessageBox::Ok);
    QCOMPARE(box.button(QMessageBox::Ok)->text(), QStringLiteral("OK"));
    box.hide();
    box.show();
    QCOMPARE(box.buttons().size(), 1);

    // The details alone do not count as an answer.
    FramelessMessageBox withDetails;
    withDetails.setDetailedText(QStringLiteral("details"));
    withDetails.show();
    QCOMPARE(withDetails.buttons().size(), 2);
    QVERIFY(withDetails.button(QMessageBox::Ok));

    // No buttons were asked for: none are added.
    FramelessMessageBox without;
    without.setStandardButtons(QMessageBox::NoButton);
    without.show();
    QVERIFY(without.buttons().isEmpty());
    QVERIFY(!without.close());
}

void tst_FramelessMessageBoxButtons::addStandardButton()
{
    FramelessMessageBox box;
    for (const int bad : {0, 1, 0x200, 0x300, 0x400 | 0x800, 0x10000000}) {
        QVERIFY(!box.addButton(static_cast<QMessageBox::StandardButton>(bad)));
    }
    QVERIFY(box.buttons().isEmpty());
    box.show();
    QCOMPARE(box.standardButtons(), QMessageBox::Ok);

    FramelessMessageBox other;
    QPushButton *yes = other.addButton(QMessageBox::Yes);
    QCOMPARE(other.standardButton(yes), QMessageBox::Yes);
    QCOMPARE(other.button(QMessageBox::Yes), yes);
    QVERIFY(!other.button(QMessageBox::No));
    QCOMPARE(other.standardButton(nullptr), QMessageBox::NoButton);
    other.show();
    QCOMPARE(other.standardButtons(), QMessageBox::Yes);
}

void tst_FramelessMessageBoxButtons::addButtonWithRole_data()
{
    QTest::addColumn<int>("role");
    for (int role = QMessageBox::AcceptRole; role < QMessageBox::NRoles; ++role) {
        QTest::addRow("%d", role) << role;
    }
}

void tst_FramelessMessageBoxButtons::addButtonWithRole()
{
    QFETCH(int, role);
    const auto buttonRole = static_cast<QMessageBox::ButtonRole>(role);
    FramelessMessageBox box;
    QMessageBox stock;
    QPushButton *text = box.addButton(QStringLiteral("&Text"), buttonRole);
    auto *own = new QPushButton(QStringLiteral("Own"));
    box.addButton(own, buttonRole);
    stock.addButton(QStringLiteral("&Text"), buttonRole);
    stock.addButton(new QPushButton(QStringLiteral("Own")), buttonRole);

    QCOMPARE(box.buttonRole(text), buttonRole);
    QCOMPARE(box.buttonRole(own), buttonRole);
    QCOMPARE(box.buttons().size(), stock.buttons().size());
    QCOMPARE(box.standardButton(own), QMessageBox::NoButton);
    QVERIFY(box.isAncestorOf(own));

    // A second time it only changes its role.
    box.addButton(own, QMessageBox::HelpRole);
    QCOMPARE(box.buttons().size(), 2);
    QCOMPARE(box.buttonRole(own), QMessageBox::HelpRole);
}

void tst_FramelessMessageBoxButtons::addBadButtons()
{
    FramelessMessageBox box;
    QPushButton outside;
    box.addButton(nullptr, QMessageBox::AcceptRole);
    box.addButton(&outside, QMessageBox::InvalidRole);
    box.addButton(&outside, QMessageBox::NRoles);
    QVERIFY(!box.addButton(QStringLiteral("x"), QMessageBox::InvalidRole));
    QVERIFY(!box.addButton(QStringLiteral("x"), static_cast<QMessageBox::ButtonRole>(15)));
    QVERIFY(box.buttons().isEmpty());
    QVERIFY(!outside.parent());
    QCOMPARE(box.buttonRole(&outside), QMessageBox::InvalidRole);
    QCOMPARE(box.buttonRole(nullptr), QMessageBox::InvalidRole);

    box.setDefaultButton(&outside);
    box.setDefaultButton(static_cast<QPushButton *>(nullptr));
    box.setDefaultButton(QMessageBox::Yes);
    box.setEscapeButton(&outside);
    box.setEscapeButton(static_cast<QAbstractButton *>(nullptr));
    box.setEscapeButton(QMessageBox::Yes);
    QVERIFY(!box.defaultButton());
    QVERIFY(!box.escapeButton());

    QWidget otherParent;
    auto *foreign = new QPushButton(&otherParent);
    box.removeButton(foreign);
    box.removeButton(nullptr);
    QCOMPARE(foreign->parentWidget(), &otherParent);
}

void tst_FramelessMessageBoxButtons::removeButtons()
{
    FramelessMessageBox box;
    QPushButton *a = box.addButton(QStringLiteral("A"), QMessageBox::AcceptRole);
    QPushButton *ok = box.addButton(QMessageBox::Ok);
    box.setDefaultButton(a);
    box.setEscapeButton(a);
    QCOMPARE(box.defaultButton(), a);
    QCOMPARE(box.escapeButton(), a);
    box.removeButton(a);
    QVERIFY(!box.defaultButton());
    QVERIFY(!box.escapeButton());
    QCOMPARE(box.buttons(), QList<QAbstractButton *>{ok});
    QVERIFY(!a->parent());
    delete a;

    box.setDefaultButton(ok);
    box.removeButton(ok);
    QVERIFY(!box.button(QMessageBox::Ok));
    QVERIFY(!box.defaultButton());
    delete ok;
    // It has had buttons, so it does not get one of its own.
    box.show();
    QVERIFY(box.buttons().isEmpty());
}

void tst_FramelessMessageBoxButtons::setStandardButtonsForgets()
{
    FramelessMessageBox box;
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    QPushButton *custom = box.addButton(QStringLiteral("C"), QMessageBox::ActionRole);
    box.setDefaultButton(QMessageBox::Yes);
    box.setEscapeButton(QMessageBox::No);
    QVERIFY(box.defaultButton() && box.escapeButton());
    box.setStandardButtons(QMessageBox::Ok | QMessageBox::Close);
    QVERIFY(!box.defaultButton());
    QVERIFY(!box.escapeButton());
    QCOMPARE(box.standardButtons(), QMessageBox::Ok | QMessageBox::Close);
    QVERIFY(box.buttons().contains(custom));

    box.setDefaultButton(custom);
    box.setEscapeButton(custom);
    box.setStandardButtons(QMessageBox::NoButton);
    QCOMPARE(box.defaultButton(), custom);
    QCOMPARE(box.escapeButton(), custom);
    QCOMPARE(box.buttons(), QList<QAbstractButton *>{custom});
}

void tst_FramelessMessageBoxButtons::returnCodes()
{
    FramelessMessageBox box;
    QMessageBox stock;
    QList<QAbstractButton *> own, like;
    for (int i = 0; i < 3; ++i) {
        own << box.addButton(QString::number(i), QMessageBox::ActionRole);
        like << stock.addButton(QString::number(i), QMessageBox::ActionRole);
    }
    own << box.addButton(QMessageBox::Retry);
    like << stock.addButton(QMessageBox::Retry);
    for (int i = 0; i < own.size(); ++i) {
        box.show();
        stock.show();
        own.at(i)->click();
        like.at(i)->click();
        QVERIFY(!box.isVisible());
        QCOMPARE(box.result(), stock.result());
        QCOMPARE(box.clickedButton(), own.at(i));
    }
    QCOMPARE(box.result(), int(QMessageBox::Retry));
}

void tst_FramelessMessageBoxButtons::deletedCustomButton()
{
    FramelessMessageBox box;
    QPushButton *a = box.addButton(QStringLiteral("A"), QMessageBox::RejectRole);
    QPushButton *b = box.addButton(QStringLiteral("B"), QMessageBox::AcceptRole);
    QPushButton *c = box.addButton(QStringLiteral("C"), QMessageBox::AcceptRole);
    box.setEscapeButton(a);
    box.setDefaultButton(a);
    box.show();
    QVERIFY(waitForShown(&box));
    delete a;
    QVERIFY(!box.escapeButton());
    QVERIFY(!box.defaultButton());
    QTest::keyClick(&box, Qt::Key_Escape);
    QVERIFY(!box.close());
    QVERIFY(box.isVisible());
    QTest::mouseClick(c, Qt::LeftButton);
    QCOMPARE(box.result(), 1);
    delete c;
    QVERIFY(!box.clickedButton());
    QCOMPARE(box.buttons(), QList<QAbstractButton *>{b});
}

LMTEST_MAIN(tst_FramelessMessageBoxButtons)

#include "tst_framelessmessagebox_buttons.moc"
