/** @file
 * The functions that show a message box and return the answer.
 */

#include "framelessmessagebox_p.h"
#include "owntext_p.h"

#include <lmwidgets/framelessmessagebox.h>

#include <QDialogButtonBox>
#include <QIcon>
#include <QPixmap>

namespace LM {
namespace Widgets {

namespace {

constexpr Qt::WindowFlags StaticBoxFlags = Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint;

constexpr int AboutIconExtent = 64;
// The Qt that the hosts are made for; it is named so whichever 5.x happens to be installed.
const char AboutQtVersion[] = "5.14.2";
const char AboutQtYear[] = "2020";
const char AboutQtLicensing[] = "qt.io/licensing";
const char AboutQtSite[] = "qt.io";
const char AboutQtLogo[] = ":/qt-project.org/qmessagebox/images/qtlogo-64.png";

/** Qt's own words about its licences; %1 is the year, %2 and %3 are addresses. */
QString aboutQtLicences()
{
    return FramelessMessageBox::
        tr("<p>Qt is a C++ toolkit for cross-platform application development.</p>"
           "<p>Qt provides single-source portability across all major desktop operating systems. "
           "It is "
           "also available for embedded Linux and other embedded and mobile operating systems.</p>"
           "<p>Qt is available under multiple licensing options designed to accommodate the needs "
           "of "
           "our various users.</p>"
           "<p>Qt licensed under our commercial license agreement is appropriate for development "
           "of "
           "proprietary/commercial software where you do not want to share any source code with "
           "third "
           "parties or otherwise cannot comply with the terms of GNU (L)GPL.</p>"
           "<p>Qt licensed under GNU (L)GPL is appropriate for the development of "
           "Qt&nbsp;applications "
           "provided you can comply with the terms and conditions of the respective licenses.</p>"
           "<p>Please see <a href=\"http://%2/\">%2</a> for an overview of Qt licensing.</p>"
           "<p>Copyright (C) %1 The Qt Company Ltd and other contributors.</p>"
           "<p>Qt and the Qt logo are trademarks of The Qt Company Ltd.</p>"
           "<p>Qt is The Qt Company Ltd product developed as an open source project. See <a "
           "href=\"http://%3/\">%3</a> for more information.</p>")
            .arg(QLatin1String(AboutQtYear), QLatin1String(AboutQtLicensing),
                 QLatin1String(AboutQtSite));
}

} // namespace

/**
 * Shows a box and waits. The box is a child of @p parent, which a slot or a timer may destroy
 * meanwhile, and is therefore not on the stack.
 */
QMessageBox::StandardButton FramelessMessageBoxPrivate::ask(QMessageBox::Icon icon, QWidget *parent,
                                                            const MessageBoxQuestion &question)
{
    const QPointer<FramelessMessageBox> box = new FramelessMessageBox(
        icon, question.title, question.text, QMessageBox::NoButton, parent, StaticBoxFlags);
    if (question.propertyName && *question.propertyName) {
        box->setProperty(question.propertyName, question.propertyValue);
    }
    if (!question.closeButtonVisible) {
        box->setCloseButtonVisible(false);
    }
    box->d->addQuestionButtons(question);
    box->setDefaultOKButton();
    if (question.prepare) {
        question.prepare(box);
    }

    const int result = box->exec();
    QMessageBox::StandardButton answer = QMessageBox::NoButton;
    if (result == -1) {
        answer = QMessageBox::Cancel;
    } else if (box) {
        answer = box->standardButton(box->clickedButton());
    }
    delete box;
    return answer;
}

void FramelessMessageBoxPrivate::addQuestionButtons(const MessageBoxQuestion &question)
{
    for (unsigned int bit = QMessageBox::Ok; bit <= QMessageBox::RestoreDefaults; bit <<= 1) {
        const auto which = static_cast<QMessageBox::StandardButton>(bit);
        if (!(question.buttons & which)) {
            continue;
        }
        QPushButton *button = q->addButton(which);
        q->retranslateButtonUi(which);
        if (!button || defaultButton) {
            continue;
        }
        const bool chosen = question.defaultButton == QMessageBox::NoButton
                                ? q->buttonRole(button) == QMessageBox::AcceptRole
                                : question.defaultButton == which;
        if (chosen) {
            q->setDefaultButton(button);
        }
    }
}

QMessageBox::StandardButton
FramelessMessageBox::information(QWidget *parent, const QString &title, const QString &text,
                                 QMessageBox::StandardButtons buttons,
                                 QMessageBox::StandardButton defaultButton)
{
    return FramelessMessageBoxPrivate::ask(
        QMessageBox::Information, parent,
        {title, text, buttons, defaultButton, nullptr, false, true});
}

QMessageBox::StandardButton
FramelessMessageBox::information(QWidget *parent, const QString &title, const QString &text,
                                 char *propertyName, bool propertyValue,
                                 QMessageBox::StandardButtons buttons,
                                 QMessageBox::StandardButton defaultButton, bool closeButtonVisible)
{
    return FramelessMessageBoxPrivate::ask(
        QMessageBox::Information, parent,
        {title, text, buttons, defaultButton, propertyName, propertyValue, closeButtonVisible});
}

QMessageBox::StandardButton FramelessMessageBox::question(QWidget *parent, const QString &title,
                                                          const QString &text,
                                                          QMessageBox::StandardButtons buttons,
                                                          QMessageBox::StandardButton defaultButton)
{
    return FramelessMessageBoxPrivate::ask(
        QMessageBox::Question, parent, {title, text, buttons, defaultButton, nullptr, false, true});
}

QMessageBox::StandardButton FramelessMessageBox::question(QWidget *parent, const QString &title,
                                                          const QString &text, char *propertyName,
                                                          bool propertyValue,
                                                          QMessageBox::StandardButtons buttons,
                                                          QMessageBox::StandardButton defaultButton,
                                                          bool closeButtonVisible)
{
    return FramelessMessageBoxPrivate::ask(
        QMessageBox::Question, parent,
        {title, text, buttons, defaultButton, propertyName, propertyValue, closeButtonVisible});
}

QMessageBox::StandardButton FramelessMessageBox::warning(QWidget *parent, const QString &title,
                                                         const QString &text,
                                                         QMessageBox::StandardButtons buttons,
                                                         QMessageBox::StandardButton defaultButton)
{
    return FramelessMessageBoxPrivate::ask(
        QMessageBox::Warning, parent, {title, text, buttons, defaultButton, nullptr, false, true});
}

QMessageBox::StandardButton FramelessMessageBox::warning(QWidget *parent, const QString &title,
                                                         const QString &text, char *propertyName,
                                                         bool propertyValue,
                                                         QMessageBox::StandardButtons buttons,
                                                         QMessageBox::StandardButton defaultButton,
                                                         bool closeButtonVisible)
{
    return FramelessMessageBoxPrivate::ask(
        QMessageBox::Warning, parent,
        {title, text, buttons, defaultButton, propertyName, propertyValue, closeButtonVisible});
}

QMessageBox::StandardButton FramelessMessageBox::critical(QWidget *parent, const QString &title,
                                                          const QString &text,
                                                          QMessageBox::StandardButtons buttons,
                                                          QMessageBox::StandardButton defaultButton)
{
    return FramelessMessageBoxPrivate::ask(
        QMessageBox::Critical, parent, {title, text, buttons, defaultButton, nullptr, false, true});
}

QMessageBox::StandardButton FramelessMessageBox::critical(QWidget *parent, const QString &title,
                                                          const QString &text, char *propertyName,
                                                          bool propertyValue,
                                                          QMessageBox::StandardButtons buttons,
                                                          QMessageBox::StandardButton defaultButton,
                                                          bool closeButtonVisible)
{
    return FramelessMessageBoxPrivate::ask(
        QMessageBox::Critical, parent,
        {title, text, buttons, defaultButton, propertyName, propertyValue, closeButtonVisible});
}

void FramelessMessageBox::about(QWidget *parent, const QString &title, const QString &text)
{
    auto *box = new FramelessMessageBox(QMessageBox::Information, title, text, QMessageBox::Ok,
                                        parent, StaticBoxFlags);
    box->setAttribute(Qt::WA_DeleteOnClose);
    const QIcon icon = box->windowIcon();
    const QSize size = icon.actualSize(QSize(AboutIconExtent, AboutIconExtent));
    box->d->iconLabel->setPixmap(icon.pixmap(size));
    box->d->icon = QMessageBox::NoIcon;
    box->exec();
}

void FramelessMessageBox::aboutQt(QWidget *parent, const QString &title)
{
    auto *box = new FramelessMessageBox(parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    if (title.isEmpty()) {
        setOwnTitle(box, [] { return tr("About Qt"); });
    } else {
        box->setWindowTitle(title);
    }
    setOwnText(box, [] {
        return tr("<h3>About Qt</h3><p>This program uses Qt version %1.</p>")
            .arg(QLatin1String(AboutQtVersion));
    });
    box->setInformativeText(aboutQtLicences());
    followLanguage(box, "informative text",
                   {aboutQtLicences, [box](const QString &former, const QString &now) {
                        if (box->informativeText() == former) {
                            box->setInformativeText(now);
                        }
                    }});
    const QPixmap logo{QLatin1String(AboutQtLogo)};
    if (!logo.isNull()) {
        box->setIconPixmap(logo);
    }
    box->d->icon = QMessageBox::NoIcon;
    box->exec();
}

} // namespace Widgets
} // namespace LM
