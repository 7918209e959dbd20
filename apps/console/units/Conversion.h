#pragma once

#include "units/EUnitsType.h"

#include <QString>

#include <optional>

/// A way from one unit to another, under the measures in use.
class TConversionRoute
{
public:
    /// Finds the way, through the hub when neither unit is one. Nothing, with @p problem saying why and what is
    /// accepted, when the units measure different quantities or the measures in use have no such conversion.
    static std::optional<TConversionRoute> Find(EUnitsType from, EUnitsType to, QString* problem);

    double operator()(double value) const;

    /// Which settings decided the size of a gallon or fluid ounce, "US gallons: parameter 8953 is false, 8954 is true";
    /// empty when none is involved.
    QString Decision() const;

private:
    TConversionRoute(EUnitsType from, EUnitsType via, EUnitsType to) : m_From(from), m_Via(via), m_To(to) {}

    EUnitsType m_From;
    EUnitsType m_Via;
    EUnitsType m_To;
};
