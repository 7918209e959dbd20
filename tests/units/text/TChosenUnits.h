#pragma once

#include "TestHost.h"

#include "units/TUnitAbbreviations.h"
#include "units/TUnits.h"

/// A display whose operator has chosen his units: a store that holds the choices, and abbreviations in English.
class TChosenUnits : public TTestStore
{
public:
    TChosenUnits() { TUnitAbbreviations::Initialize(); }

    void ChooseMeasures(bool metric, bool us)
    {
        values[PARAM_METRIC] = metric;
        values[PARAM_US_MEASURES] = us;
    }

    /// 0 hectares, 1 acres.
    void ChooseArea(int area) { values[PARAM_AREA_UNIT] = area; }

    /// Rates per 100 m or 100 yards of travel, where @p basis permits them.
    void ChooseRatesPerTravel(int basis, bool perTravel)
    {
        values[PARAM_SPRAYER_RATE_BASIS] = basis;
        values[PARAM_RATE_PER_TRAVEL] = perTravel;
    }
};

/// A text of the test, in UTF-8, as Qt's string.
inline QString Utf8(const char* text) { return QString::fromUtf8(text); }
