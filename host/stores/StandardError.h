#pragma once

#include <QString>

/// Writes one line to standard error. Lines of several threads do not mix. Line breaks in @p text become blanks.
void SayOnStandardError(const QString& text);
