#pragma once

#include "stores/TParameterStore.h"

#include <QStringList>

/// Prints how well the colours can be told from their grounds: a row for each pair, with its bound.
/// @param modes "day", "night" or both.
void PrintColorCheck(TParameterStore& store, const QStringList& modes, bool asJson);
