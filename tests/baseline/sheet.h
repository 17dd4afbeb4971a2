#ifndef BASELINE_SHEET_H
#define BASELINE_SHEET_H

/** @file
 * A sheet of pictures, one for each state of a class, and what two sheets differ in.
 */

#include <QImage>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QVector>

namespace baseline {

/** The difference that a channel of a pixel may have: what another rasteriser rounds otherwise. */
constexpr int Tolerance = 2;

/** The picture of one state, as it was taken. */
struct Picture
{
    QString state;
    QImage image;
};

/** The pictures of all states of a class in one image, each with its name above it. */
class Sheet
{
public:
    Sheet() = default;

    /** Lays out @p pictures; @p scale is that of the names and the gaps. */
    Sheet(const QVector<Picture> &pictures, int scale);

    /** The sheet in the file @p path, without a state if there is none. */
    static Sheet load(const QString &path);

    /** Writes a PNG that knows where which state is; returns whether it could. */
    bool save(const QString &path) const;

    bool isEmpty() const { return m_cells.isEmpty(); }
    QStringList states() const;
    QImage picture(const QString &state) const;
    /** Where @p state is on the sheet, in its pixels. */
    QRect place(const QString &state) const;
    QImage image() const { return m_image; }

private:
    struct Cell
    {
        QString state;
        QRect place;
    };

    QImage m_image;
    QVector<Cell> m_cells;
};

/** What a comparison has found. */
struct Difference
{
    /** One sentence for each state that differs: which one, how much and where. */
    QStringList findings;
    /** The actual sheet, faded, with what differs in red. */
    QImage picture;
};

/** Tells what is different in @p actual; the names of the states are not compared as pictures. */
Difference compare(const Sheet &reference, const Sheet &actual);

} // namespace baseline

#endif
