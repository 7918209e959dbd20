#pragma once

#include "units/EUnitsType.h"

#include <QString>

#include <optional>

/// A conversion from one unit to another, under the measures in use.
class TConversionRoute
{
public:
    /// Both units must measure the same quantity, and the library must convert both to their hub and from it. Otherwise
    /// nothing, and @p problem tells why.
    static std::optional<TConversionRoute> Find(EUnitsType from, EUnitsType to, QString* problem);

    /// Nothing when the result is not a finite number.
    std::optional<double> Convert(double value) const;

    /// "m to km"
    QString Units() const;

    /// Which settings decided the size of a gallon or fluid ounce: "US measures, because parameter 8953 …". Empty when
    /// neither unit depends on them.
    QString Decision() const;

private:
    TConversionRoute(EUnitsType from, EUnitsType via, EUnitsType to) : m_From(from), m_Via(via), m_To(to) {}

    EUnitsType m_From;
    EUnitsType m_Via;
    EUnitsType m_To;
};
