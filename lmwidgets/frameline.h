#ifndef LMWIDGETS_FRAMELINE_H
#define LMWIDGETS_FRAMELINE_H

#include <lmwidgets/lmwidgets_global.h>

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QFrame;
class QString;
class QWidget;
QT_END_NAMESPACE

namespace LM {
namespace Widgets {

/**
 * @class FrameLine frameline.h <lmwidgets/frameline.h>
 *
 * @brief Makes thin separator lines for a style sheet to colour.
 *
 * @image html frameline.png
 *
 * A line is a plain QFrame of a fixed thickness that carries a dynamic property with the value
 * true, so that a style sheet can address it: `QFrame[isBackgroundSeparator="true"] { background:
 * #585858; }`.
 *
 * @code
 * QFrame *line = LM::Widgets::FrameLine::createHorizontalLine("isBackgroundSeparator", this, 1, 0, 0);
 * layout->addWidget(line);
 * @endcode
 */
class LMWIDGETS_EXPORT FrameLine
{
public:
    /**
     * Returns a new line that is @p lineWidth px high and as wide as there is room.
     *
     * The line is a child of @p parent, or the caller's when @p parent is null. @p propertyName
     * names the property that is set to true; with an empty name none is set. The line stands in a
     * horizontal box of its own with margins of @p lengthMargin px left and right and @p
     * crossMargin px above and below; a layout that the line is added to afterwards takes no notice
     * of them. The frame shape is left at QFrame::NoFrame: the look comes from the style sheet.
     */
    static QFrame *createHorizontalLine(const QString &propertyName, QWidget *parent,
                                        const unsigned int &lineWidth,
                                        const unsigned int &crossMargin,
                                        const unsigned int &lengthMargin);

    /**
     * Returns a new line that is @p lineWidth px wide and as high as there is room, of the shape
     * QFrame::VLine. Otherwise like createHorizontalLine(), with @p crossMargin left and right and
     * @p lengthMargin above and below.
     */
    static QFrame *createVerticalLine(const QString &propertyName, QWidget *parent,
                                      const unsigned int &lineWidth,
                                      const unsigned int &crossMargin,
                                      const unsigned int &lengthMargin);
};

} // namespace Widgets
} // namespace LM

#endif
