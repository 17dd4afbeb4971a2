#include "filedialogtest.h"
#include "lmtest.h"

#include <lmwidgets/collapsiblegroupboxbasic.h>
#include <lmwidgets/customlayertablewidget.h>
#include <lmwidgets/editcombobox.h>
#include <lmwidgets/framelessdialog.h>
#include <lmwidgets/framelessfiledialog.h>
#include <lmwidgets/framelessmessagebox.h>
#include <lmwidgets/framelessprocessdialog.h>
#include <lmwidgets/framelesswaitingdialog.h>
#include <lmwidgets/groupboxcollapsebutton.h>
#include <lmwidgets/talvodoubleinputdlg.h>
#include <lmwidgets/talvosplashscreen.h>
#include <lmwidgets/translations.h>
#include <lmwidgets/vantoroframelessdialog.h>

#include <QColorDialog>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QThread>
#include <QTimer>

#include <functional>
#include <memory>

using namespace LM::Widgets;

namespace {

const QLocale English(QLocale::English, QLocale::UnitedStates);
const QLocale German(QLocale::German, QLocale::Germany);
const QLocale Chinese(QLocale::Chinese, QLocale::SimplifiedChineseScript, QLocale::China);

// Asked before there is an application object.
const bool answerBeforeApplication = loadTranslations(German);

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

/** Loads the language and lets every window hear of it. */
bool speak(const QLocale &locale)
{
    const bool loaded = loadTranslations(locale);
    QCoreApplication::sendPostedEvents();
    return loaded;
}

/** Calls @p look with the dialog that the next exec() opens, and closes it. */
void whenModal(const std::function<void(QDialog *)> &look)
{
    QTimer::singleShot(0, qApp, [look] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        look(dialog);
        dialog->reject();
    });
}

} // namespace

class tst_Translations : public lmtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { speak(English); }

    void answersWhatIsThere();
    void needsAnApplicationInItsThread();
    void unknownLanguageIsEnglish();
    void fileBesideTheExecutableComesFirst();
    void frameFollows();
    void secondFrameFollows();
    void textsOfTheHostStay();
    void messageBoxFollows();
    void aboutQtFollows();
    void progressAndWaitingFollow();
    void fileDialogFollows();
    void refusedSaveNameFollows();
    void layerPanelsFollow();
    void colourDialogFollows();
    void valueDialogFollows();
    void splashFollows();
    void groupToolTipFollows();
    void editComboFollows();
    void destroyedObjectsAreForgotten();
    void slotMayDestroyInTheMiddle();
};

void tst_Translations::answersWhatIsThere()
{
    QVERIFY(loadTranslations(German));
    QVERIFY(loadTranslations(QLocale(QLocale::German, QLocale::Austria)));
    QVERIFY(loadTranslations(Chinese));
    QVERIFY(loadTranslations(English));
    QVERIFY(loadTranslations(QLocale::c()));
}

void tst_Translations::needsAnApplicationInItsThread()
{
    QVERIFY(!answerBeforeApplication);
    bool inWorker = true;
    const std::unique_ptr<QThread> worker(
        QThread::create([&inWorker] { inWorker = loadTranslations(German); }));
    worker->start();
    QVERIFY(worker->wait());
    QVERIFY(!inWorker);
    FramelessDialog dialog;
    QCOMPARE(dialog.GetCancelButton()->text(), text("Cancel"));
}

void tst_Translations::unknownLanguageIsEnglish()
{
    FramelessDialog dialog;
    QVERIFY(speak(German));
    QCOMPARE(dialog.GetCancelButton()->text(), text("Abbrechen"));
    QVERIFY(!speak(QLocale(QLocale::Finnish)));
    QCOMPARE(dialog.GetCancelButton()->text(), text("Cancel"));
}

void tst_Translations::fileBesideTheExecutableComesFirst()
{
    const QString folder = QCoreApplication::applicationDirPath() + QStringLiteral("/translations");
    QVERIFY(QDir().mkpath(folder));
    const QString file = folder + QStringLiteral("/lmwidgets_de.qm");
    const QString finnish = folder + QStringLiteral("/lmwidgets_fi.qm");
    // Told apart by their words: Chinese under the name of another language.
    QVERIFY(QFile::copy(QStringLiteral(":/lmwidgets/translations/lmwidgets_zh_CN.qm"), file));
    QVERIFY(QFile::copy(QStringLiteral(":/lmwidgets/translations/lmwidgets_zh_CN.qm"), finnish));
    const bool german = speak(German);
    const QString ofGerman = FramelessDialog().GetCancelButton()->text();
    const bool further = speak(QLocale(QLocale::Finnish));
    const QString ofFurther = FramelessDialog().GetCancelButton()->text();
    speak(English);
    QVERIFY(QDir(folder).removeRecursively());
    QVERIFY(german);
    QCOMPARE(ofGerman, text("取消"));
    QVERIFY(further);
    QCOMPARE(ofFurther, text("取消"));
}

void tst_Translations::frameFollows()
{
    FramelessDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY(speak(German));
    QCOMPARE(dialog.GetOKButton()->text(), text("OK"));
    QCOMPARE(dialog.GetCancelButton()->text(), text("Abbrechen"));
    QCOMPARE(dialog.GetApplyButton()->text(), text("Übernehmen"));
    QVERIFY(speak(Chinese));
    QCOMPARE(dialog.GetOKButton()->text(), text("确定"));
    QCOMPARE(dialog.GetCancelButton()->text(), text("取消"));
    QVERIFY(speak(English));
    QCOMPARE(dialog.GetApplyButton()->text(), text("Apply"));
}

void tst_Translations::secondFrameFollows()
{
    VantoroFramelessDialog dialog;
    QVERIFY(speak(German));
    QCOMPARE(dialog.getOKButton()->text(), text("OK"));
    QCOMPARE(dialog.getCancelButton()->text(), text("Abbrechen"));
    QCOMPARE(dialog.getApplyButton()->text(), text("Übernehmen"));
    QVERIFY(speak(Chinese));
    QCOMPARE(dialog.getOKButton()->text(), text("确定"));
}

void tst_Translations::textsOfTheHostStay()
{
    FramelessDialog dialog;
    dialog.GetOKButton()->setText(text("Rename"));
    VantoroFramelessDialog second;
    second.getApplyButton()->setText(text("Preview"));
    QVERIFY(speak(German));
    QCOMPARE(dialog.GetOKButton()->text(), text("Rename"));
    QCOMPARE(second.getApplyButton()->text(), text("Preview"));
    QCOMPARE(second.getCancelButton()->text(), text("Abbrechen"));
    // A text set later too, and for good.
    dialog.GetCancelButton()->setText(text("Leave"));
    QVERIFY(speak(English));
    QVERIFY(speak(German));
    QCOMPARE(dialog.GetCancelButton()->text(), text("Leave"));
}

void tst_Translations::messageBoxFollows()
{
    FramelessMessageBox box(QMessageBox::Question, text("Layers"), text("Delete?"),
                            QMessageBox::Yes | QMessageBox::No);
    box.setDetailedText(text("Three layers"));
    box.retranslateButtonUi(QMessageBox::Yes);
    box.show();
    QVERIFY(speak(German));
    QCOMPARE(box.button(QMessageBox::Yes)->text(), text("&Ja"));
    QStringList captions;
    for (const QPushButton *button : box.findChildren<QPushButton *>()) {
        captions.append(button->text());
    }
    QVERIFY2(captions.contains(text("Details einblenden …")),
             qPrintable(captions.join(QLatin1Char(','))));
    QCOMPARE(box.text(), text("Delete?"));
    box.setDefaultOKButton();
    QCOMPARE(box.button(QMessageBox::Yes)->text(), text("Ja"));
    QVERIFY(speak(Chinese));
    QCOMPARE(box.button(QMessageBox::Yes)->text(), text("是"));
}

void tst_Translations::aboutQtFollows()
{
    int seen = 0;
    whenModal([&seen](QDialog *dialog) {
        auto *box = qobject_cast<FramelessMessageBox *>(dialog);
        QVERIFY(box);
        QCOMPARE(box->windowTitle(), text("About Qt"));
        QVERIFY(speak(German));
        QCOMPARE(box->windowTitle(), text("Über Qt"));
        QVERIFY(box->text().contains(text("Dieses Programm")));
        QVERIFY(box->informativeText().contains(text("Qt ist ein C++-Toolkit")));
        ++seen;
    });
    FramelessMessageBox::aboutQt(nullptr);
    QCOMPARE(seen, 1);
}

void tst_Translations::progressAndWaitingFollow()
{
    FramelessProcessDialog progress(text("Copying"), QString(), 0, 10);
    FramelessProcessDialog usual;
    QVERIFY(speak(German));
    const auto *cancel = usual.findChild<QPushButton *>();
    QVERIFY(cancel);
    QCOMPARE(cancel->text(), text("Abbrechen"));

    FramelessWaitingDialog *waiting = FramelessWaitingDialog::instance();
    QStringList words;
    for (const QLabel *label : waiting->findChildren<QLabel *>()) {
        words.append(label->text());
    }
    QVERIFY(words.contains(text("Wird geladen …")));
    QCOMPARE(waiting->findChild<QPushButton *>()->text(), text("Stopp"));
    QVERIFY(speak(Chinese));
    QCOMPARE(waiting->findChild<QPushButton *>()->text(), text("停止"));
    waiting->setWaitdialogDisplay(text("Reading tiles..."));
    QVERIFY(speak(German));
    words.clear();
    for (const QLabel *label : waiting->findChildren<QLabel *>()) {
        words.append(label->text());
    }
    QVERIFY(words.contains(text("Reading tiles...")));
    QVERIFY(!words.contains(text("Wird geladen …")));
    delete waiting;
}

void tst_Translations::fileDialogFollows()
{
    const filedialogtest::Folder folder;
    FramelessFileDialog dialog(nullptr, Qt::WindowFlags());
    QVERIFY(speak(German));
    QCOMPARE(dialog.labelText(QFileDialog::Reject), text("Abbrechen"));
    dialog.setLabelText(QFileDialog::Reject, text("Leave"));
    QVERIFY(speak(Chinese));
    QCOMPARE(dialog.labelText(QFileDialog::Reject), text("Leave"));
    QVERIFY(speak(English));

    QStringList titles;
    const auto look = [&titles](QDialog *modal) {
        auto *frame = qobject_cast<FramelessFileDialog *>(modal);
        QVERIFY(frame);
        titles.append(frame->windowTitle());
        QVERIFY(speak(German));
        titles.append(frame->windowTitle());
        speak(English);
    };
    QWidget parent;
    whenModal(look);
    FramelessFileDialog::getOpenFileUrl(&parent);
    whenModal(look);
    FramelessFileDialog::getSaveFileUrl(&parent);
    whenModal(look);
    FramelessFileDialog::getExistingDirectoryUrl(&parent);
    QCOMPARE(titles, QStringList({text("Open File"), text("Datei öffnen"), text("Save File"),
                                  text("Datei speichern"), text("Select Directory"),
                                  text("Ordner auswählen")}));
}

void tst_Translations::refusedSaveNameFollows()
{
    const filedialogtest::Folder folder;
    QWidget parent;
    int seen = 0;
    filedialogtest::whenShown([&seen](filedialogtest::Dialog *shown) {
        filedialogtest::enter(shown, text("a*b.txt"));
        whenModal([&seen](QDialog *modal) {
            auto *box = qobject_cast<FramelessMessageBox *>(modal);
            QVERIFY(box);
            QCOMPARE(box->windowTitle(), text("Save failed"));
            QVERIFY(speak(German));
            QCOMPARE(box->windowTitle(), text("Speichern fehlgeschlagen"));
            QVERIFY(box->text().startsWith(text("Der Dateiname darf")));
            QVERIFY(box->text().endsWith(text("'?' '*' '<' '>' '\\' '/' '|'")));
            ++seen;
        });
    });
    const QUrl chosen = FramelessFileDialog::getSaveFileUrl(&parent, QString(), folder.url());
    QVERIFY(chosen.isEmpty());
    QCOMPARE(seen, 1);
}

void tst_Translations::layerPanelsFollow()
{
    CustomLayerTableWidget table;
    table.creatUiType(CustomLayerTableWidget::OBJECT_PROPERTIES);
    const auto caption = [&table](int row) {
        return qobject_cast<QLabel *>(table.cellWidget(row, 0))->text();
    };
    auto *colors = qobject_cast<QComboBox *>(table.cellWidget(1, 1));
    QVERIFY(colors);
    QSignalSpy chosen(colors, QOverload<int>::of(&QComboBox::currentIndexChanged));
    colors->setItemText(2, text("Meadow"));
    QVERIFY(speak(German));
    QCOMPARE(caption(0), text("Ebene"));
    QCOMPARE(caption(1), text("Farbe"));
    QCOMPARE(caption(2), text("Linienart"));
    QCOMPARE(caption(3), text("Linienbreite"));
    QCOMPARE(colors->itemText(0), text("Wie Ebene"));
    QCOMPARE(colors->itemText(2), text("Meadow"));
    QCOMPARE(colors->itemText(17), text("Weiß"));
    QCOMPARE(colors->itemText(18), text("Andere"));
    QCOMPARE(colors->itemData(18).toString(), text("OTHERS"));
    QCOMPARE(chosen.count(), 0);

    table.creatUiType(CustomLayerTableWidget::LAYER_PROPERTIES);
    QCOMPARE(caption(0), text("Name"));
    QVERIFY(speak(Chinese));
    QCOMPARE(caption(0), text("名称"));
    QCOMPARE(caption(2), text("线宽"));
}

void tst_Translations::colourDialogFollows()
{
    CustomLayerTableWidget table;
    table.creatUiType(CustomLayerTableWidget::LAYER_LIST);
    table.addLayerRow();
    auto *color = qobject_cast<QAbstractButton *>(table.cellWidget(0, 5));
    QVERIFY(color);
    int seen = 0;
    whenModal([&seen](QDialog *modal) {
        auto *frame = qobject_cast<FramelessDialog *>(modal);
        QVERIFY(frame);
        QCOMPARE(frame->windowTitle(), text("Background Color"));
        QVERIFY(speak(German));
        QCOMPARE(frame->windowTitle(), text("Hintergrundfarbe"));
        ++seen;
    });
    color->click();
    QCOMPARE(seen, 1);
}

void tst_Translations::valueDialogFollows()
{
    TalvoDoubleInputDlg dialog;
    auto *label = dialog.findChild<QLabel *>(QStringLiteral("label_2"));
    auto *form = dialog.findChild<QWidget *>(QStringLiteral("TalvoDoubleInputDlg"));
    auto *input = dialog.findChild<QDoubleSpinBox *>();
    QVERIFY(speak(German));
    QCOMPARE(label->text(), text("Videodaten"));
    QCOMPARE(form->windowTitle(), text("Statistische Ausreißerentfernung"));
    QCOMPARE(input->accessibleName(), text("Videodaten"));
    QString suffix;
    dialog.setParamData(text("Distance"), 0, 1, 2, 0.5, 0.1, suffix);
    QVERIFY(speak(Chinese));
    QCOMPARE(label->text(), text("Distance"));
    QCOMPARE(input->accessibleName(), text("Distance"));
}

void tst_Translations::splashFollows()
{
    TalvoSplashScreen splash(text("1.0"), QPixmap(QSize(60, 40)));
    splash.show();
    splash.beat();
    QCOMPARE(splash.message(), text("Loading..."));
    const QImage before = splash.grab().toImage();
    QVERIFY(speak(German));
    QCOMPARE(splash.message(), text("Wird geladen …"));
    QVERIFY(splash.grab().toImage() != before);
    splash.showMessage(text("Reading settings"));
    QVERIFY(speak(Chinese));
    QCOMPARE(splash.message(), text("Reading settings"));
}

void tst_Translations::groupToolTipFollows()
{
    CollapsibleGroupBoxBasic box;
    auto *button = box.findChild<GroupBoxCollapseButton *>();
    QVERIFY(button);
    box.setSyncGroup(text("a"));
    QVERIFY(speak(German));
    QVERIFY(button->toolTip().startsWith(text("Strg- (oder Alt-)Klick")));
    QVERIFY(button->toolTip().contains(text("\nUmschalt-Klick")));
    box.setSyncGroup(QString());
    QVERIFY(speak(Chinese));
    QCOMPARE(button->toolTip(), QString());
    box.setSyncGroup(text("b"));
    QVERIFY(button->toolTip().contains(text("Ctrl（或 Alt）")));
    button->setToolTip(text("Fold"));
    QVERIFY(speak(German));
    QCOMPARE(button->toolTip(), text("Fold"));
}

void tst_Translations::editComboFollows()
{
    EditComboBox box;
    QVERIFY(speak(German));
    QCOMPARE(box.findChild<QPushButton *>()->accessibleName(), text("Alle Einträge zeigen"));
}

void tst_Translations::destroyedObjectsAreForgotten()
{
    // The memory of the first may be given to the second.
    for (int i = 0; i < 20; ++i) {
        auto *dialog = new FramelessDialog;
        delete dialog->GetOKButton();
        delete dialog;
        QVERIFY(speak(i % 2 ? German : English));
    }
    FramelessDialog dialog;
    QCOMPARE(dialog.GetCancelButton()->text(), text("Abbrechen"));
}

void tst_Translations::slotMayDestroyInTheMiddle()
{
    CustomLayerTableWidget table;
    table.creatUiType(CustomLayerTableWidget::OBJECT_PROPERTIES);
    QPointer<QComboBox> colors = qobject_cast<QComboBox *>(table.cellWidget(1, 1));
    QVERIFY(colors);
    connect(colors.data(), &QComboBox::currentTextChanged, &table,
            [&table] { table.creatUiType(CustomLayerTableWidget::LAYER_LIST); });
    QVERIFY(speak(German));
    QTRY_VERIFY(!colors);
}

LMTEST_MAIN(tst_Translations)

#include "tst_translations.moc"
