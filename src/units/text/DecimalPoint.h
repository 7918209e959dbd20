#pragma once

#include <QString>

/// The decimal point of the display, "." or ",". Inside the system it is always a full stop.
namespace DecimalPoint {

/// As TUnits::InternalToDisplayableFloatStr(), without a copy when the text is not shared.
QString Shown(QString text);

} // namespace DecimalPoint
