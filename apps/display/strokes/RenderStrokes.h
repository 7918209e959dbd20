#pragma once

#include <QColor>
#include <QImage>

/// Draws the @p path of an SVG in a square of @p side units, as strokes of 2 units with round ends and corners, in
/// @p color. The picture is a square of @p pixels, transparent beside the strokes.
QImage RenderStrokes(const char* path, int side, const QColor& color, int pixels);
