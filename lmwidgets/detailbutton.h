#ifndef LMWIDGETS_DETAILBUTTON_H
#define LMWIDGETS_DETAILBUTTON_H

#include <lmwidgets/lmwidgets_global.h>

#include <QPushButton>

namespace LM {
namespace Widgets {

/**
 * @class DetailButton detailbutton.h <lmwidgets/detailbutton.h>
 *
 * @brief The button of a message box that shows and hides the detailed text.
 *
 * @image html detailbutton.png
 *
 * A new button reads "Show Details...". Whoever owns it sets the other caption, "Hide Details...",
 * while the details are on the screen; the button keeps its width meanwhile, as its size hint has
 * room for the wider of the two, in the current language.
 *
 * @code
 * auto *button = new LM::Widgets::DetailButton(this);
 * connect(button, &QPushButton::clicked, details, [=] { details->setVisible(details->isHidden());
 * });
 * @endcode
 */
class LMWIDGETS_EXPORT DetailButton : public QPushButton
{
    Q_OBJECT

public:
    /** Constructs a button of fixed size that reads "Show Details...". */
    explicit DetailButton(QWidget *parent = nullptr);
    ~DetailButton() override;

    /** Returns the size in px that both captions fit into; the text that is set does not matter. */
    QSize sizeHint() const override;

private:
    Q_DISABLE_COPY(DetailButton)
};

} // namespace Widgets
} // namespace LM

#endif
