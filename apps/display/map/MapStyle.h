#pragma once

#include <QColor>

/// The colours of the map's elements.
struct tagMapColors
{
    QColor ground = QColor(0xe4, 0xe0, 0xd2);
    QColor grid = QColor(0xcf, 0xca, 0xb8);
    QColor coverage = QColor(0x5c, 0xa6, 0x5c);
    QColor coverageEdge = QColor(0x45, 0x93, 0x45);
    QColor track = QColor(0x6a, 0x2b, 0xd9);
    QColor externalBoundary = QColor(0x0b, 0x3d, 0x91);
    QColor internalBoundary = QColor(0x8b, 0x1a, 0x1a);
    QColor inactiveBoundary = QColor(0x7a, 0x80, 0x85);
    QColor exclusionZone = QColor(0xd9, 0x7a, 0x0a);
    QColor vehicle = QColor(0xc8, 0x41, 0x0f);
    QColor crossHairs = QColor(0x11, 0x14, 0x18);
    QColor flag = QColor(0xb4, 0x53, 0x0c);
};

/// The colour between two, 0 for the first and 1 for the second.
QColor Mix(const QColor& first, const QColor& second, double part);

/// Dark on a light ground and light on a dark one, for what has no colour of its own in the scheme.
QColor DetailOn(const QColor& ground);
