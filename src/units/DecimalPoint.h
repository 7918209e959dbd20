#pragma once

#include <QString>

/// The decimal point of the display, "." or ",". Inside the system it is always a full stop.
namespace DecimalPoint {

/// TUnits::InternalToDisplayableFloatStr(), in place where nobody else holds the text.
QString Shown(QString text);

} // namespace DecimalPoint
