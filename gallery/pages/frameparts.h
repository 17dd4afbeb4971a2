#ifndef LMGALLERY_FRAMEPARTS_H
#define LMGALLERY_FRAMEPARTS_H

#include <lmwidgets/framelessdialog.h>

#include <QString>
#include <QVector>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QToolButton;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {
class FramelessHelper;
class TitleBar;
} // namespace Widgets
} // namespace LM

namespace gallery {

/** Everything that can be switched on a frameless dialog; at first as a new dialog has it. */
struct DialogSetup
{
    QString title = QStringLiteral("Layer properties");
    Qt::Alignment titleAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    int lineHeight = 1;
    bool movable = true;
    bool resizable = false;
    bool rubberBandOnMove = false;
    bool rubberBandOnResize = false;
    bool logo = false;
    bool extraButtons = false;
    bool minimize = false;
    bool maximize = false;
    bool close = true;
    bool ok = true;
    bool cancel = true;
    bool apply = false;
};

/** A frameless dialog with a form inside. */
class SampleDialog : public LM::Widgets::FramelessDialog
{
    Q_OBJECT

public:
    SampleDialog(const DialogSetup &setup, QWidget *parent);

    /** Brings the dialog into the state of @p setup, whether it is open or not. */
    void apply(const DialogSetup &setup);

    /** Shows the dialog in the size that its content asks for. */
    void open(const DialogSetup &setup);

    void initStyleSheet() override;

private:
    void createForm();
    void createExtraButtons();
    void applySize(const DialogSetup &setup);

    QVector<QToolButton *> m_extraButtons;
};

/** A plain window without a system frame that a FramelessHelper moves and resizes. */
class HelperWindow : public QWidget
{
    Q_OBJECT

public:
    explicit HelperWindow(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *createSwitches();
    void showGeometry();

    LM::Widgets::FramelessHelper *m_helper;
    QLabel *m_geometry;
};

/** Loads the pictures of the title buttons of @p bar again, from the theme that is current now. */
void reloadTitleImages(LM::Widgets::TitleBar *bar);

} // namespace gallery

#endif
