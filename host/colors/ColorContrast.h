#pragma once

#include "HostExport.h"
#include "platform/TConfigManager.h"

#include <QColor>
#include <QList>
#include <QString>

/// How well one colour can be told from the colour behind it.
struct tagContrastCheck
{
    QString element;    ///< as in the names of the parameters: "track"
    QString ground;     ///< what is behind it: "map"
    bool isDay;         ///< the scheme: true for the day
    QColor color;       ///< of the element; invalid when its parameter holds none
    QColor groundColor; ///< the same for the ground
    double ratio;       ///< 1 to 21; NaN without both colours
    double bound;       ///< the least ratio
    QString origin;     ///< where the bound comes from: a text for people
    bool isLegible;     ///< the ratio reaches the bound
};

/// The contrast ratio of two colours by WCAG 2.1: the luminance of the lighter one to that of the darker one, each with
/// 0.05 for the light that the screen reflects. 1 for equal colours, 21 for black and white; NaN when one is invalid.
/// @param color may be translucent: the ground shines through.
/// @param ground its translucency is ignored.
CABHOST_EXPORT double ContrastRatio(const QColor& color, const QColor& ground);

/// Checks the schemes for day and night: each text and control, and each element of the map on its ground.
///
/// \code
/// for (const tagContrastCheck& check : CheckContrasts(store)) {
///     if (!check.isLegible)
///         Warn(check.element, check.ratio, check.bound);
/// }
/// \endcode
///
/// The bounds of texts (4.5) and of what the operator steers by (3) are those of WCAG 2.1. What fills an area, and what
/// must stay dim, has lower bounds of this display's own. A ratio below its bound is a warning: the operator may choose
/// any colours.
///
/// May be called from any thread.
/// @param parameters where the colours are; an absent one is invalid.
CABHOST_EXPORT QList<tagContrastCheck> CheckContrasts(TConfigManager& parameters);
