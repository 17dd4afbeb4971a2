#ifndef LMWIDGETS_FRAMELESSMESSAGEBOX_P_H
#define LMWIDGETS_FRAMELESSMESSAGEBOX_P_H

#include <lmwidgets/detailbutton.h>
#include <lmwidgets/qmessageboxdetailstext.h>

#include <QAbstractButton>
#include <QByteArray>
#include <QCheckBox>
#include <QHash>
#include <QLabel>
#include <QLayoutItem>
#include <QList>
#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QPushButton>

#include <functional>

QT_BEGIN_NAMESPACE
class QDialogButtonBox;
class QGraphicsEffect;
class QKeyEvent;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

class FramelessMessageBox;

constexpr char MessageBoxStyle[] =
    "background:#2B2B2B;color:#ffffff;QDialog#globa_pMessageBox{border: 1px solid #585858;}";

/** What the caller of a static function asks for. */
struct MessageBoxQuestion
{
    QString title;
    QString text;
    QMessageBox::StandardButtons buttons;
    QMessageBox::StandardButton defaultButton;
    const char *propertyName;
    bool propertyValue;
    bool closeButtonVisible;
    /** Called with the box before it is shown; may be empty. */
    std::function<void(FramelessMessageBox *)> prepare = nullptr;
};

class FramelessMessageBoxPrivate : public QObject
{
    Q_OBJECT

public:
    explicit FramelessMessageBoxPrivate(FramelessMessageBox *box);
    ~FramelessMessageBoxPrivate() override;

    /** What stands behind a caption that does not come from Qt itself. */
    enum CaptionSource {
        NoCaption,     ///< Qt's own caption
        UsualCaption,  ///< retranslateButtonUi()
        FixedCaption,  ///< setDefaultOKButton()
        ForeignCaption ///< the host
    };

    void init(const QString &title, const QString &text);
    void createLabels();
    void createButtonBox();

    void setupLayout();
    void setupBottomRow();
    void settleTabOrder();
    void settleFirstFocus();
    void settleCloseButton();
    void keepOnScreen();
    void installShadow();
    void updateSize();
    void updateInformativeLabel();
    int frameHeight() const;
    int labelHeight(int available) const;
    void placeDetails();

    QPixmap standardIcon(QMessageBox::Icon icon) const;
    void updateWordWrap();
    void updateDetailsCaption();
    Qt::TextInteractionFlags styleInteractionFlags() const;

    QPushButton *pushButton(QMessageBox::StandardButton which) const;
    void takeButton(QAbstractButton *button);
    void makeOkDefault();
    void detectEscapeButton();
    void replaceLostEscapeButton(bool hadEscapeButton);
    int returnCode(QAbstractButton *button);
    void disconnectReceiver();

    static QMessageBox::StandardButton ask(QMessageBox::Icon icon, QWidget *parent,
                                           const MessageBoxQuestion &question);
    void addQuestionButtons(const MessageBoxQuestion &question);

    void setCaption(QAbstractButton *button, const QString &caption, CaptionSource source);
    bool setUsualCaption(QMessageBox::StandardButton which);
    bool setFixedCaption(QMessageBox::StandardButton which);
    QHash<QAbstractButton *, QString> captions() const;
    void restoreCaptions(const QHash<QAbstractButton *, QString> &former);

    QString clipboardText() const;
    bool copyOrSelectDetails(QKeyEvent *event);
    QAbstractButton *buttonForKey(const QKeyEvent *event) const;

    FramelessMessageBox *q;
    QLabel *label = nullptr;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QLabel *iconLabel = nullptr;
    QDialogButtonBox *buttonBox = nullptr;
    // The host reaches the buttons, the check box and the details, and may delete them.
    QList<QPointer<QAbstractButton>> customButtonList;
    QPointer<QAbstractButton> escapeButton;
    QPointer<QPushButton> defaultButton;
    QPointer<QCheckBox> checkbox;
    QPointer<QAbstractButton> clickedButton;
    QPointer<DetailButton> detailsButton;
    QPointer<QMessageBoxDetailsText> detailsText;
    bool autoAddOkButton = true;
    QPointer<QAbstractButton> detectedEscapeButton;
    QLabel *informativeLabel = nullptr;
    QLabel *leftSpacer = nullptr;
    QLabel *rightSpacer = nullptr;
    QPointer<QObject> receiverToDisconnectOnClose;
    QByteArray memberToDisconnectOnClose;
    QByteArray signalToDisconnectOnClose;
    QPointer<QGraphicsEffect> shadow;
    // The close button was hidden because nothing stood for Escape, and not by the host.
    bool closeButtonTakenAway = false;
    // How much of the label lies behind the button row, in px.
    int labelOverlap = 0;
};

/** The label's place in the layout, which the label exceeds at its lower end by the overlap. */
class MessageLabelItem : public QWidgetItem
{
public:
    explicit MessageLabelItem(FramelessMessageBoxPrivate *box);

    QSize sizeHint() const override;
    QSize minimumSize() const override;
    int heightForWidth(int width) const override;
    void setGeometry(const QRect &rect) override;

private:
    int overlap() const;

    QPointer<FramelessMessageBoxPrivate> m_box;
};

} // namespace Widgets
} // namespace LM

#endif
