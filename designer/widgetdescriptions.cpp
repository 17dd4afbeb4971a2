#include "widgetplugin.h"

#include <lmwidgets/buttonlefthavegreendots.h>
#include <lmwidgets/collapsiblegroupbox.h>
#include <lmwidgets/collapsiblegroupboxbasic.h>
#include <lmwidgets/customlayertablewidget.h>
#include <lmwidgets/customspinbox.h>
#include <lmwidgets/detailbutton.h>
#include <lmwidgets/editcombobox.h>
#include <lmwidgets/hyperlinklabel.h>
#include <lmwidgets/linetypecombobox.h>
#include <lmwidgets/qcustomtabbar.h>
#include <lmwidgets/qcustomtabwidget.h>
#include <lmwidgets/qmessageboxdetailstext.h>
#include <lmwidgets/roundcheckbox.h>
#include <lmwidgets/talvodoubleslider.h>
#include <lmwidgets/titlebar.h>
#include <lmwidgets/toggleswitch.h>
#include <lmwidgets/vantorotoolbutton.h>

namespace {

constexpr char InputGroup[] = "lmwidgets \u2013 Input";
constexpr char ButtonGroup[] = "lmwidgets \u2013 Buttons";
constexpr char ContainerGroup[] = "lmwidgets \u2013 Containers";
constexpr char LayerGroup[] = "lmwidgets \u2013 Layers";
constexpr char DialogGroup[] = "lmwidgets \u2013 Dialog parts";

/** A name that the host compares, so nothing for translators. */
constexpr char GroupBoxSpecifications[] =
    "<propertyspecifications>"
    "<stringpropertyspecification name=\"syncGroup\" notr=\"true\" type=\"singleline\"/>"
    "</propertyspecifications>";

constexpr char GroupBoxContents[] =
    "<property name=\"title\"><string>Collapsible group</string></property>";

constexpr char LinkContents[] =
    "<property name=\"text\"><string>&lt;a href=\"#\"&gt;Link&lt;/a&gt;</string></property>";

/** Two pages to begin with, and the tabs on the side that they are made for. */
constexpr char TabWidgetContents[] =
    "<property name=\"tabPosition\"><enum>QTabWidget::West</enum></property>"
    "<widget class=\"QWidget\" name=\"tab\">"
    "<attribute name=\"title\"><string>Tab 1</string></attribute></widget>"
    "<widget class=\"QWidget\" name=\"tab\">"
    "<attribute name=\"title\"><string>Tab 2</string></attribute></widget>";

constexpr char TabBarContents[] =
    "<property name=\"shape\"><enum>QTabBar::RoundedWest</enum></property>";

constexpr char ButtonContents[] = "<property name=\"text\"><string>Run</string></property>";

template <typename Widget>
QWidget *create(QWidget *parent)
{
    return new Widget(parent);
}

QVector<WidgetDescription> inputWidgets()
{
    return {
        {"LM::Widgets::EditComboBox", "QWidget", "lmwidgets/editcombobox.h", InputGroup,
         "Edit Combo Box", "editComboBox", QSize(160, 30), "Text field with suggestions",
         "A line edit with a drop-down button and a list of suggestions that typing filters. The "
         "host adds the entries.",
         create<LM::Widgets::EditComboBox>, "", "", false},
        {"LM::Widgets::CustomSpinBox", "QDoubleSpinBox", "lmwidgets/customspinbox.h", InputGroup,
         "Custom Spin Box", "customSpinBox", QSize(100, 30),
         "Spin box whose number may be left blank",
         "A double spin box that stays empty when the user deletes all text; its value is 0 then.",
         create<LM::Widgets::CustomSpinBox>, "", "", false},
        {"LM::Widgets::TalvoDoubleSlider", "QWidget", "lmwidgets/talvodoubleslider.h", InputGroup,
         "Double Slider", "talvoDoubleSlider", QSize(200, 20), "Slider with two handles",
         "A horizontal slider with two handles that mark a span of values. The host sets the range "
         "with setQxtSpanRange() and the values with setSpan().",
         create<LM::Widgets::TalvoDoubleSlider>, "", "", false},
        {"LM::Widgets::ToggleSwitch", "QWidget", "lmwidgets/toggleswitch.h", InputGroup,
         "Toggle Switch", "toggleSwitch", QSize(170, 30), "Switch with a text beside it",
         "A pill-shaped switch whose knob slides. Its size follows from its text, which the host "
         "sets with setText().",
         create<LM::Widgets::ToggleSwitch>, "", "", false},
        {"LM::Widgets::RoundCheckBox", "QWidget", "lmwidgets/roundcheckbox.h", InputGroup,
         "Round Check Box", "roundCheckBox", QSize(60, 30), "Pill with a knob on either side",
         "A check box of 60 by 30 px without a text; the knob is at the left while it is checked.",
         create<LM::Widgets::RoundCheckBox>, "", "", false},
    };
}

QVector<WidgetDescription> buttons()
{
    return {
        {"VantoroToolButton", "QToolButton", "lmwidgets/vantorotoolbutton.h", ButtonGroup,
         "Theme Tool Button", "vantoroToolButton", QSize(32, 32),
         "Tool button with pictures of the theme",
         "A tool button with a normal, a hovered and a disabled picture, which the host names with "
         "setIconPixmap().",
         create<VantoroToolButton>, "", "", false},
        {"ButtonLeftHaveGreenDots", "QToolButton", "lmwidgets/buttonlefthavegreendots.h",
         ButtonGroup, "Dot Tool Button", "buttonLeftHaveGreenDots", QSize(80, 30),
         "Tool button with a coloured ring",
         "A tool button that paints a ring; the host sets its colour with setShowDotColor().",
         create<ButtonLeftHaveGreenDots>, ButtonContents, "", false},
        {"LM::Widgets::DetailButton", "QPushButton", "lmwidgets/detailbutton.h", ButtonGroup,
         "Detail Button", "detailButton", QSize(140, 30), "Button that shows and hides details",
         "The button \"Show Details...\" of a message box. Its width has room for \"Hide "
         "Details...\" too.",
         create<LM::Widgets::DetailButton>, "", "", false},
    };
}

QVector<WidgetDescription> containers()
{
    return {
        {"CollapsibleGroupBox", "QGroupBox", "lmwidgets/collapsiblegroupbox.h", ContainerGroup,
         "Collapsible Group Box", "collapsibleGroupBox", QSize(220, 120),
         "Group box that folds down to its title",
         "A group box that a click on its title folds and opens, with a settings key for a host "
         "that remembers its state.",
         create<CollapsibleGroupBox>, GroupBoxContents, GroupBoxSpecifications, true},
        {"CollapsibleGroupBoxBasic", "QGroupBox", "lmwidgets/collapsiblegroupboxbasic.h",
         ContainerGroup, "Collapsible Group Box (basic)", "collapsibleGroupBoxBasic",
         QSize(220, 120), "Group box that folds down to its title, without a settings key",
         "A group box that a click on its title folds and opens. Boxes with the same syncGroup "
         "fold and open together.",
         create<CollapsibleGroupBoxBasic>, GroupBoxContents, GroupBoxSpecifications, true},
        {"LM::Widgets::QCustomTabWidget", "QTabWidget", "lmwidgets/qcustomtabwidget.h",
         ContainerGroup, "Dotted Tab Widget", "customTabWidget", QSize(260, 160),
         "Tab widget whose tabs carry a coloured dot",
         "A tab widget for tabs on the left or right, each with a dot for its state. The host sets "
         "the colours at the tab bar.",
         create<LM::Widgets::QCustomTabWidget>, TabWidgetContents, "", true},
        {"LM::Widgets::QCustomTabBar", "QTabBar", "lmwidgets/qcustomtabbar.h", ContainerGroup,
         "Dotted Tab Bar", "customTabBar", QSize(100, 140), "Tab bar with a coloured dot per tab",
         "The bar of tabs alone, for pages that the host shows itself; the host adds the tabs.",
         create<LM::Widgets::QCustomTabBar>, TabBarContents, "", false},
    };
}

QVector<WidgetDescription> layerWidgets()
{
    return {
        {"LM::Widgets::CustomLayerTableWidget", "QTableWidget",
         "lmwidgets/customlayertablewidget.h", LayerGroup, "Layer Table", "customLayerTableWidget",
         QSize(300, 200), "Layer list or layer properties",
         "The list of layers, or the properties of a layer or an object: the host builds one of "
         "these panels with creatUiType().",
         create<LM::Widgets::CustomLayerTableWidget>, "", "", false},
        {"LM::Widgets::LineTypeComboBox", "QComboBox", "lmwidgets/linetypecombobox.h", LayerGroup,
         "Line Type Combo Box", "lineTypeComboBox", QSize(160, 32), "Combo box of CAD line types",
         "A combo box that shows each line type as a picture, in white for a dark background.",
         create<LM::Widgets::LineTypeComboBox>, "", "", false},
    };
}

QVector<WidgetDescription> dialogParts()
{
    return {
        {"LM::Widgets::TitleBar", "QFrame", "lmwidgets/titlebar.h", DialogGroup, "Title Bar",
         "titleBar", QSize(300, 42), "Title bar for a window without a system frame",
         "Logo, title and the buttons of a window. The host connects its signals and sets the "
         "title with setTitle().",
         create<LM::Widgets::TitleBar>, "", "", false},
        {"LM::Widgets::HyperlinkLabel", "QLabel", "lmwidgets/hyperlinklabel.h", DialogGroup,
         "Hyperlink Label", "hyperlinkLabel", QSize(80, 24), "Label that opens a file or a page",
         "A label with one link. The host sets its text with setHyperlinksText() and what it opens "
         "with setFileDir().",
         create<LM::Widgets::HyperlinkLabel>, LinkContents, "", false},
        {"LM::Widgets::QMessageBoxDetailsText", "QWidget", "lmwidgets/qmessageboxdetailstext.h",
         DialogGroup, "Details Text", "messageBoxDetailsText", QSize(260, 110),
         "Read-only text below a line",
         "The detailed text of a message box, 100 px high. The host sets it with setText().",
         create<LM::Widgets::QMessageBoxDetailsText>, "", "", false},
    };
}

} // namespace

const QVector<WidgetDescription> &widgetDescriptions()
{
    static const QVector<WidgetDescription> descriptions =
        inputWidgets() + buttons() + containers() + layerWidgets() + dialogParts();
    return descriptions;
}
