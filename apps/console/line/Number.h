#pragma once

#include <QString>

#include <optional>

/// What FiniteNumber() accepts, for messages.
const char* const FiniteNumberForm = "digits with a full stop, such as 12.5";

/// The number that @p text is, with a full stop for the decimals; nothing for any other text, infinities and "nan".
std::optional<double> FiniteNumber(const QString& text);
