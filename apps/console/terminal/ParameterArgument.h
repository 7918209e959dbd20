#pragma once

#include "console/line/CommandLine.h"

#include "parameters/TParameterCatalogue.h"

#include <QJsonObject>
#include <QVariant>

#include <optional>

/// The parameter that a word of the command line names: one that the library uses, or a number of the host's own.
struct tagParameterArgument
{
    EParamID id;
    const tagParameter* known; ///< null for the host's own
    bool isByNumber;

    /// "units.metric", or "parameter 4711".
    QString Name() const;
};

/// The parameter that @p word names. Nothing, after a message, when it is neither a name nor a number.
std::optional<tagParameterArgument> ReadParameter(const QString& word, const TCommandLine& line);

/// The value as text, a choice by its name; @p known may be null.
QString ValueText(const tagParameter* known, const QVariant& value);

/// Number, name, type, value, default, accepts, meaning and so on; an absent value is null.
QJsonObject ParameterJson(int number, const QVariant& value);
