#pragma once

#include <QColor>
#include <QVector>

/// Colours that are mixed from those of a scheme, so that an operator's own scheme carries the whole display.
namespace DerivedColors {

/// @p share of @p added in @p color, channel by channel; 0 is @p color. Opaque.
QColor Mix(const QColor& color, const QColor& added, double share);

/// Whether black is easier to read on the ground than white.
bool IsLight(const QColor& ground);

/// @p color, or the first on its way to black or white that has at least @p ratio against each of @p grounds. Black or
/// white when there is none, as for a light and a dark ground.
QColor Legible(const QColor& color, const QVector<QColor>& grounds, double ratio);

/// The least of the contrast ratios; see ContrastRatio().
double LeastRatio(const QColor& color, const QVector<QColor>& grounds);

/// The colours of a scheme that the others are mixed from.
struct tagBasis
{
    bool isDay;
    QColor text;
    QColor background;
    QColor title;
    QColor coverage;
};

struct tagDerived
{
    QColor panel;        ///< the ground of what lies on the background or floats on the map
    QColor line;         ///< a hairline around a panel and between rows
    QColor muted;        ///< secondary text
    QColor accent;       ///< what is chosen
    QColor accentText;   ///< on it
    QColor accentGround; ///< a large area that is chosen: on a dark display it must not dazzle
    QColor accentGroundText;
    QColor goodGround; ///< a large area of what is as it should be
    QColor goodGroundText;
    QColor good;         ///< as it should be
    QColor attention;    ///< needs to be looked at
    QColor scrim;        ///< translucent, over a page behind a question
    QColor focus;        ///< the frame around what the keyboard acts on
    QColor coverageEdge; ///< seams of the coverage
};

tagDerived Derive(const tagBasis& basis);

} // namespace DerivedColors
