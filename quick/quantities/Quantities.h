#pragma once

#include "quantities/TQuantity.h"

#include <QString>

/// A text of the library, taken apart.
struct tagQuantityText
{
    QString text;   ///< "12.50 L/ha (3.20%)"
    QString number; ///< "12.50"
    QString unit;   ///< "L/ha"
    QString error;  ///< "3.20%"; empty for a kind without a relative error
};

/// The kinds of quantities: which function of the library shows each, and which one reads what is typed. They read the
/// operator's choices at every call.
namespace Quantities {

QString Title(TQuantity::EKind kind);

/// A value that a list of all kinds can show.
double Preview(TQuantity::EKind kind);

/// A value that is not a number, or too large for the library, is shown as "----" in the unit of its kind.
tagQuantityText Show(TQuantity::EKind kind, double value, double relativeError, int precision);

bool CanBeTyped(TQuantity::EKind kind);

/// See TQuantity::parse().
double Parse(TQuantity::EKind kind, const QString& typed);

} // namespace Quantities
