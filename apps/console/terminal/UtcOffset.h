#pragma once

#include "stores/TParameterStore.h"

#include <QString>

/// Local time less UTC, as the parameters store it.
struct tagUtcOffset
{
    int hours;
    int minutes; ///< beyond the hours, with their sign

    int Seconds() const;

    /// "+05:30"
    QString Text() const;
};

tagUtcOffset StoredUtcOffset(TParameterStore& store);
