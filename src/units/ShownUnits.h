#pragma once

#include "units/EUnitsType.h"
#include "units/Routes.h"

/// A value in the unit in which it is shown.
struct tagShown
{
    double value;
    EUnitsType unit;
};

/// A unit and the way to it from the stored one.
struct tagWay
{
    EUnitsType unit;
    Routes::TConversion conversion;

    tagShown operator()(double value) const { return {conversion(value), unit}; }
};

/// What a quantity is shown in, in the metric system and in the imperial one by US and by English measures.
struct tagMeasures
{
    tagWay metric;
    tagWay us;
    tagWay english;

    tagShown operator()(bool isMetric, bool isUS, double value) const
    {
        return isMetric ? metric(value) : isUS ? us(value) : english(value);
    }
};

/// The same where US and English measures are one.
struct tagSystems
{
    tagWay metric;
    tagWay imperial;

    tagShown operator()(bool isMetric, double value) const { return isMetric ? metric(value) : imperial(value); }
};
