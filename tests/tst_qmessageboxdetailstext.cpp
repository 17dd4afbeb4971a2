#include "lmtest.h"

#include <lmwidgets/qmessageboxdetailstext.h>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QFrame>
#include <QMenu>
#include <QPointer>
#include <QVBoxLayout>

using LM::Widgets::QMessageBoxDetailsText;

class tst_QMessageBoxDetailsText : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void structure();
    void plainText();
    void copyWithoutSelection();
    void copyAll();
    void copyWhatTheMouseSelected();
    void selectionGoesWithTheText();
    void selectAllOfNothing();
    void keysStayWithTheParent();
    void contextMenu();
    void contextMenuOutlivedByNobody();
};

void tst_QMessageBoxDetailsText::metaObject()
{
    const QMetaObject &meta = QMessageBoxDetailsText::staticMetaObject;
    QCOMPARE(meta.className(), "LM::Widgets::QMessageBoxDetailsText");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod method = meta.method(meta.methodOffset());
    QCOMPARE(method.methodSignature(), QByteArray("textCopyAvailable(bool)"));
    QCOMPARE(method.methodType(), QMetaMethod::Slot);
    QCOMPARE(method.access(), QMetaMethod::Private);
}

void tst_QMessageBoxDetailsText::structure()
{
    QMessageBoxDetailsText details;
    auto *layout = qobject_cast<QVBoxLayout *>(details.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->count(), 2);

    auto *line = qobject_cast<QFrame *>(layout->itemAt(0)->widget());
    QVERIFY(line);
    QCOMPARE(line->frameShape(), QFrame::HLine);
    QCOMPARE(line->frameShadow(), QFrame::Sunken);

    auto *edit = qobject_cast<QTextEdit *>(layout->itemAt(1)->widget());
    QVERIFY(dynamic_cast<QMessageBoxDetailsText::TextEdit *>(edit));
    QCOMPARE(edit->minimumHeight(), 100);
    QCOMPARE(edit->maximumHeight(), 100);
    QCOMPARE(edit->focusPolicy(), Qt::NoFocus);
    QVERIFY(edit->isReadOnly());
}

void tst_QMessageBoxDetailsText::plainText()
{
    QMessageBoxDetailsText details;
    QCOMPARE(details.text(), QString());
    details.setText(QStringLiteral("<b>one</b>\ntwo &amp; \u00e4"));
    QCOMPARE(details.text(), QStringLiteral("<b>one</b>\ntwo &amp; \u00e4"));
    const QString longText = QStringLiteral("line\n").repeated(5000);
    details.setText(longText);
    QCOMPARE(details.text(), longText);
    details.setText(QString());
    QCOMPARE(details.text(), QString());
}

void tst_QMessageBoxDetailsText::copyWithoutSelection()
{
    QMessageBoxDetailsText details;
    details.setText(QStringLiteral("text"));
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    QVERIFY(!details.copy());
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
}

void tst_QMessageBoxDetailsText::copyAll()
{
    QMessageBoxDetailsText details;
    details.setText(QStringLiteral("one\ntwo"));
    details.selectAll();
    QVERIFY(details.copy());
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("one\ntwo"));
}

void tst_QMessageBoxDetailsText::copyWhatTheMouseSelected()
{
    QMessageBoxDetailsText details;
    details.setText(QStringLiteral("first second"));
    details.resize(300, 120);
    details.show();
    QVERIFY(QTest::qWaitForWindowExposed(&details));

    auto *edit = details.findChild<QTextEdit *>();
    QTextCursor cursor(edit->document());
    const QPoint inFirstWord = edit->cursorRect(cursor).center() + QPoint(4, 0);
    QTest::mouseDClick(edit->viewport(), Qt::LeftButton, Qt::NoModifier, inFirstWord);
    QVERIFY(details.copy());
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("first"));
}

void tst_QMessageBoxDetailsText::selectionGoesWithTheText()
{
    QMessageBoxDetailsText details;
    details.setText(QStringLiteral("one"));
    details.selectAll();
    QVERIFY(details.copy());
    details.setText(QStringLiteral("two"));
    QVERIFY(!details.copy());
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("one"));
}

void tst_QMessageBoxDetailsText::selectAllOfNothing()
{
    QMessageBoxDetailsText details;
    details.selectAll();
    QVERIFY(!details.copy());
}

void tst_QMessageBoxDetailsText::keysStayWithTheParent()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *details = new QMessageBoxDetailsText(&window);
    layout->addWidget(details);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::mouseClick(details->findChild<QTextEdit *>()->viewport(), Qt::LeftButton);
    QVERIFY(!details->findChild<QTextEdit *>()->hasFocus());
}

void tst_QMessageBoxDetailsText::contextMenu()
{
    QMessageBoxDetailsText details;
    details.setText(QStringLiteral("text"));
    details.show();
    QVERIFY(QTest::qWaitForWindowExposed(&details));

    auto *edit = details.findChild<QTextEdit *>();
    const QPoint where = edit->mapToGlobal(QPoint(20, 30));
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(20, 30), where);
    // It returns while the menu is open.
    QApplication::sendEvent(edit->viewport(), &event);
    const QPointer<QMenu> menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QCOMPARE(menu->pos(), where);
    QVERIFY(!menu->actions().isEmpty());

    QTest::keyClick(menu.data(), Qt::Key_Escape);
    QTRY_VERIFY(!menu);
}

void tst_QMessageBoxDetailsText::contextMenuOutlivedByNobody()
{
    QPointer<QMenu> menu;
    {
        QMessageBoxDetailsText details;
        details.show();
        QVERIFY(QTest::qWaitForWindowExposed(&details));
        auto *edit = details.findChild<QTextEdit *>();
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(), edit->mapToGlobal(QPoint()));
        QApplication::sendEvent(edit->viewport(), &event);
        menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
    }
    QTRY_VERIFY(!menu);
}

LMTEST_MAIN(tst_QMessageBoxDetailsText)

#include "tst_qmessageboxdetailstext.moc"
