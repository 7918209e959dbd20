#pragma once

#include <array>

/// A background picture: the path of one SVG element on a grid of 48 by 48, which is repeated over the window. Its
/// lines meet at the edges of the grid.
struct tagBackground
{
    int number; ///< as parameter colors.day.background-number and colors.night.background-number choose it
    const char* path;
};

/// Other numbers, 0 among them, are a plain ground.
inline constexpr std::array Backgrounds = {
    tagBackground{1, "M0 12q12 8 24 0t24 0M0 36q12 8 24 0t24 0"},         // furrows
    tagBackground{2, "M10 14h.01M34 8h.01M22 30h.01M42 34h.01M6 42h.01"}, // stars
    tagBackground{3, "M12 0v48M36 0v48"},                                 // rows
    tagBackground{4, "M0 0l48 48M24 0l24 24M0 24l24 24"},                 // slopes
};
