#pragma once

#include <QString>

/// Writes one line to standard error, whole even when several threads write at once. Line breaks within @p text become
/// blanks.
void SayOnStandardError(const QString& text);
