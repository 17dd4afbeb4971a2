#ifndef LMWIDGETS_BUTTONSTYLES_P_H
#define LMWIDGETS_BUTTONSTYLES_P_H

namespace LM {
namespace Widgets {

/** The yellow button: what the dialog suggests to do. */
constexpr char PrimaryButtonStyle[] =
    "QPushButton{background-color:rgb(255, 200, 5);font-size:14px;height:30px;width:80px;"
    "color:#000000;border: 1px solid #585858;border-radius: 2px;}\n"
    "QPushButton:hover{background-color:rgb(255, 227, 126);}\n"
    "QPushButton:pressed{background-color:rgb(255, 227, 131);}";

/** The transparent button: every other way out of the dialog. */
constexpr char SecondaryButtonStyle[] =
    "QPushButton{background-color:transparent;font-size:14px;height:30px;width:80px;"
    "border: 1px solid #585858;border-radius: 2px;}\n"
    "QPushButton:hover{background-color:rgb(27, 24, 28);}\n"
    "QPushButton:pressed{background-color:rgb(27, 24, 28);}";

} // namespace Widgets
} // namespace LM

#endif
