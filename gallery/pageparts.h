#ifndef LMGALLERY_PAGEPARTS_H
#define LMGALLERY_PAGEPARTS_H

/** @file
 * What pages are made of: headings, paragraphs, sections and rows of controls in one look.
 */

#include <QIcon>
#include <QString>
#include <QVector>

#include <functional>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QLabel;
class QPushButton;
class QVBoxLayout;
class QWidget;
QT_END_NAMESPACE

namespace gallery {

enum class HeadingLevel { Window, Page, Section };

/** A heading in the application's font, larger and bold. */
QLabel *heading(const QString &text, HeadingLevel level);

/** A wrapped text, in a quieter colour than a control's. */
QLabel *paragraph(const QString &text);

/** A button as wide as its text needs that calls @p clicked. */
QPushButton *button(const QString &text, std::function<void()> clicked);

/** A check box that calls @p toggled on each change; it is not called for the initial state. */
QCheckBox *check(const QString &text, bool checked, std::function<void(bool)> toggled);

/** The widgets side by side, at the left of a row. */
QWidget *row(const QVector<QWidget *> &widgets);

/** The widgets in a grid of @p columns equal columns, filled row by row. */
QWidget *grid(int columns, const QVector<QWidget *> &widgets);

/** @p widget in a thin border, for one that has the colour of the page. */
QWidget *framed(QWidget *widget);

/** An empty page content; sections are added to its layout. */
QVBoxLayout *contentLayout(QWidget *content);

/** Adds a section to @p layout: a separator, a heading, an optional text; returns the body's
 * layout. */
QVBoxLayout *addSection(QVBoxLayout *layout, const QString &title, const QString &text = QString());

/** A simple drawing of 16 px in the colour of text on the dark frame, for the host's own title
 * buttons. */
enum class Glyph { Minimize, Pin, Menu, Logo };
QIcon glyphIcon(Glyph glyph);

} // namespace gallery

#endif
