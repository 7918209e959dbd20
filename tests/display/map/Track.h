#pragma once

#include "TestSeed.h"
#include "display/map/TMapModel.h"

#include <QtMath>

#include <random>

/// QPolygonF takes no list of points on Qt 5.
inline QPolygonF Outline(std::initializer_list<QPointF> points) { return QVector<QPointF>(points); }

/// The strips of an implement that is drawn along a crooked way, lifted now and then, as a receiver gives them.
/// @param which one of the tracks of this run.
inline QVector<tagMapStrip> CrookedTrack(int fixes, double width, unsigned which)
{
    std::mt19937 random(TestSeed() + which);
    const auto at = [](const QPointF& place) { return tagMapStrip::tagPlace{float(place.x()), float(place.y())}; };
    QVector<tagMapStrip> strips;
    QPointF place(-40, 25);
    double heading = 0.3;
    tagMapStrip::tagPlace left = {};
    tagMapStrip::tagPlace right = {};
    bool isDown = false;
    for (int fix = 0; fix < fixes; ++fix) {
        heading += (double(random() % 1000) / 1000 - 0.47) * 0.25;
        place += QPointF(std::sin(heading), std::cos(heading)) * (double(random() % 1000) / 1200);
        const QPointF side = QPointF(std::cos(heading), -std::sin(heading)) * width / 2;
        const tagMapStrip::tagPlace leftAfter = at(place - side);
        const tagMapStrip::tagPlace rightAfter = at(place + side);
        if (isDown)
            strips.append(tagMapStrip{{left, right, rightAfter, leftAfter}});
        left = leftAfter;
        right = rightAfter;
        if (random() % 60 == 0)
            isDown = !isDown;
        isDown = isDown || fix == 0;
    }
    return strips;
}
