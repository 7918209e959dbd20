#include "look/DerivedColors.h"

#include "colors/ColorContrast.h"

#include <algorithm>

namespace {

// Bounds of contrast: texts, and the frame of the focus, by WCAG 2.1; large texts that one reads from 80 cm need more.
constexpr double ReadableText = 4.5;
constexpr double ReadableFigures = 7;
constexpr double VisibleFrame = 3;

constexpr int Steps = 64; // between a colour and black or white

struct tagHues
{
    QRgb good;
    QRgb attention;
};

constexpr tagHues Hues[] = {{0xff7fb069, 0xffe0a458}, {0xff1f7a34, 0xffb4530a}}; // by night, by day

const QColor Black(0, 0, 0);
const QColor White(255, 255, 255);

using DerivedColors::IsLight;
using DerivedColors::LeastRatio;
using DerivedColors::Mix;

/// By day a panel on a light background is white. Otherwise it has a little of the text in it, but not so much that
/// figures on it fall below their contrast.
QColor Panel(const DerivedColors::tagBasis& basis)
{
    if (basis.isDay && IsLight(basis.background))
        return White;
    const double most = 0.05;
    const int steps = 10;
    const double needed = std::min(ReadableFigures, ContrastRatio(basis.text, basis.background));
    for (int step = steps; step > 0; --step) {
        QColor panel = Mix(basis.background, basis.text, most * step / steps);
        if (ContrastRatio(basis.text, panel) >= needed)
            return panel;
    }
    return basis.background;
}

/// The text or the background of the scheme, whichever has more contrast, moved away from the ground where even that is
/// too little.
QColor TextOn(const QColor& ground, const DerivedColors::tagBasis& basis)
{
    const QColor& best =
        ContrastRatio(basis.text, ground) >= ContrastRatio(basis.background, ground) ? basis.text : basis.background;
    return DerivedColors::Legible(best, {ground}, ReadableText);
}

/// As much of the ground in the text as leaves it readable.
QColor Muted(const QColor& text, const QVector<QColor>& grounds)
{
    const double most = 0.4;
    for (int step = Steps; step > 0; --step) {
        QColor muted = Mix(text, grounds.first(), most * step / Steps);
        if (LeastRatio(muted, grounds) >= ReadableText)
            return muted;
    }
    return DerivedColors::Legible(text, grounds, ReadableText);
}

/// A bright colour fills a large area of a dark display by less than half: the area stays below 8 % of white.
QColor LargeArea(const QColor& color, const QColor& background)
{
    return IsLight(background) ? color : Mix(background, color, 0.4);
}

QColor Scrim(const QColor& background)
{
    QColor scrim = IsLight(background) ? Black : Mix(background, Black, 0.5);
    scrim.setAlphaF(IsLight(background) ? 0.5F : 0.75F);
    return scrim;
}

} // namespace

QColor DerivedColors::Mix(const QColor& color, const QColor& added, double share)
{
    const auto channel = [share](int one, int other) { return qRound(one + share * (other - one)); };
    return QColor(channel(color.red(), added.red()), channel(color.green(), added.green()),
                  channel(color.blue(), added.blue()));
}

bool DerivedColors::IsLight(const QColor& ground)
{
    return ContrastRatio(Black, ground) > ContrastRatio(White, ground);
}

double DerivedColors::LeastRatio(const QColor& color, const QVector<QColor>& grounds)
{
    double least = ContrastRatio(White, Black);
    for (const QColor& ground : grounds)
        least = std::min(least, ContrastRatio(color, ground));
    return least;
}

QColor DerivedColors::Legible(const QColor& color, const QVector<QColor>& grounds, double ratio)
{
    QColor end = LeastRatio(Black, grounds) > LeastRatio(White, grounds) ? Black : White;
    for (int step = 0; step < Steps; ++step) {
        QColor mixed = Mix(color, end, static_cast<double>(step) / Steps);
        if (LeastRatio(mixed, grounds) >= ratio)
            return mixed;
    }
    return end;
}

DerivedColors::tagDerived DerivedColors::Derive(const tagBasis& basis)
{
    const QColor panel = Panel(basis);
    const QVector<QColor> grounds = {panel, basis.background};
    const tagHues& hues = Hues[basis.isDay ? 1 : 0];
    tagDerived derived;
    derived.panel = panel;
    derived.line = Mix(panel, basis.text, 0.2);
    derived.muted = Muted(basis.text, grounds);
    derived.accent = basis.title;
    derived.accentText = TextOn(basis.title, basis);
    derived.good = Legible(QColor::fromRgb(hues.good), grounds, ReadableText);
    derived.attention = Legible(QColor::fromRgb(hues.attention), grounds, ReadableText);
    derived.accentGround = LargeArea(derived.accent, basis.background);
    derived.accentGroundText = TextOn(derived.accentGround, basis);
    derived.goodGround = LargeArea(derived.good, basis.background);
    derived.goodGroundText = TextOn(derived.goodGround, basis);
    derived.scrim = Scrim(basis.background);
    derived.focus = Legible(basis.title, grounds, VisibleFrame);
    derived.coverageEdge = Mix(basis.coverage, basis.text, basis.isDay ? 0.2 : 0.1);
    return derived;
}
