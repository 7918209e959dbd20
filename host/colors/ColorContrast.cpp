#include "colors/ColorContrast.h"

#include "parameters/TParameterCatalogue.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace {

/// What an element is for; it decides the bound.
enum EContrastKind : int
{
    CONTRAST_TEXT,
    CONTRAST_GRAPHIC,
    CONTRAST_FILL,
    CONTRAST_FACE,
    CONTRAST_GRID,
    CONTRAST_OVERLAP,
};

struct tagContrastBound
{
    double byDay;
    double byNight;
    const char* origin;
};

constexpr tagContrastBound Bounds[] = {
    // by EContrastKind
    {4.5, 4.5, "WCAG 2.1, 1.4.3: texts"},
    {3, 3, "WCAG 2.1, 1.4.11: controls and graphics"},
    // What fills an area is seen at a lower contrast than a line. More would hide what is drawn on it; at night it
    // would
    // dazzle.
    {2, 1.5, "own: fills an area, dark at night"},
    // The text on a button tells what it is; WCAG asks nothing of the face.
    {1.2, 1.2, "own: its text identifies the control"},
    // The grid must stay behind everything that the operator steers by.
    {1.2, 1.2, "own: must stay dim"},
    // What moves over covered ground is large or differs in hue, and is on the bare map most of the time.
    {1.5, 1.5, "own: told apart where they overlap"},
};

static_assert(std::size(Bounds) == CONTRAST_OVERLAP + 1, "a bound for each kind");

/// An element and what is behind it, by their names in both schemes.
struct tagContrastPair
{
    const char* element;
    const char* ground;
    EContrastKind kind;
};

constexpr tagContrastPair Pairs[] = {
    {"text", "background", CONTRAST_TEXT},          {"text", "map", CONTRAST_TEXT},
    {"title", "background", CONTRAST_TEXT},         {"button-text", "button", CONTRAST_TEXT},
    {"button", "background", CONTRAST_FACE},        {"external-boundary", "map", CONTRAST_GRAPHIC},
    {"internal-boundary", "map", CONTRAST_GRAPHIC}, {"inactive-boundaries", "map", CONTRAST_GRAPHIC},
    {"vehicle", "map", CONTRAST_GRAPHIC},           {"track", "map", CONTRAST_GRAPHIC},
    {"cross-hairs", "map", CONTRAST_GRAPHIC},       {"coverage", "map", CONTRAST_FILL},
    {"exclusion-zone", "map", CONTRAST_FILL},       {"grid", "map", CONTRAST_GRID},
    {"vehicle", "coverage", CONTRAST_OVERLAP},      {"track", "coverage", CONTRAST_OVERLAP},
    {"cross-hairs", "coverage", CONTRAST_OVERLAP},
};

/// Of a channel from 0 to 1, as WCAG 2.1 defines it, with the limit of sRGB itself. It differs from the printed 0.03928
/// for no colour of 8 bits.
double Linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(double red, double green, double blue)
{
    return 0.2126 * Linear(red) + 0.7152 * Linear(green) + 0.0722 * Linear(blue);
}

QColor ColorOf(TConfigManager& parameters, bool isDay, const char* name)
{
    const QString parameter =
        QString::fromLatin1("colors.%1.%2").arg(QLatin1String(isDay ? "day" : "night"), QLatin1String(name));
    return parameters.GetParameter(TParameterCatalogue::Find(parameter)->id).value<QColor>();
}

} // namespace

double ContrastRatio(const QColor& color, const QColor& ground)
{
    if (!color.isValid() || !ground.isValid())
        return std::numeric_limits<double>::quiet_NaN();
    const double alpha = color.alphaF();
    const auto mix = [alpha](double above, double below) { return alpha * above + (1 - alpha) * below; };
    const double first = Luminance(mix(color.redF(), ground.redF()), mix(color.greenF(), ground.greenF()),
                                   mix(color.blueF(), ground.blueF()));
    const double second = Luminance(ground.redF(), ground.greenF(), ground.blueF());
    const double reflected = 0.05;
    return (std::max(first, second) + reflected) / (std::min(first, second) + reflected);
}

QList<tagContrastCheck> CheckContrasts(TConfigManager& parameters)
{
    QList<tagContrastCheck> checks;
    for (const tagContrastPair& pair : Pairs) {
        const tagContrastBound& bound = Bounds[pair.kind];
        for (const bool isDay : {true, false}) {
            tagContrastCheck check = {QLatin1String(pair.element),
                                      QLatin1String(pair.ground),
                                      isDay,
                                      ColorOf(parameters, isDay, pair.element),
                                      ColorOf(parameters, isDay, pair.ground),
                                      0,
                                      isDay ? bound.byDay : bound.byNight,
                                      QLatin1String(bound.origin),
                                      false};
            check.ratio = ContrastRatio(check.color, check.groundColor);
            check.isLegible = check.ratio >= check.bound;
            checks.append(check);
        }
    }
    return checks;
}
