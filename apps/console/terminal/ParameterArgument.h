#pragma once

#include "console/line/CommandLine.h"

#include "parameters/TParameterCatalogue.h"
#include "stores/TParameterStore.h"

#include <QJsonObject>
#include <QMap>
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

/// What FitsPattern() accepts, for help.
const char* const PatternForm = "PATTERN is a part of a name, or a name or a number with the wildcards * and ?.";

/// Whether a pattern fits a parameter's number, or its name or a part of it. An empty pattern fits every parameter.
bool FitsPattern(const QString& pattern, int number);

/// no parameter matches "x"
QString NoMatch(const QString& pattern);

/// All parameters that have a value or are in the catalogue, in the order of their numbers; absent values are invalid.
QMap<int, QVariant> ListedValues(const TParameterStore& store);

/// The value as text, a choice by its name; @p known may be null.
QString ValueText(const tagParameter* known, const QVariant& value);

/// The same; "(not set)" for an invalid value.
QString ValueTextOrNotSet(const tagParameter* known, const QVariant& value);

/// The value in JSON: a bool, a number, or else a text; null for an invalid value.
QJsonValue ValueJson(const QVariant& value);

/// "units.area: hectare -> acre"
QString ChangeText(int number, const QVariant& oldValue, const QVariant& newValue);

/// Number, name, old, oldText, new, newText; absent values, and the name of a host's own parameter, are null.
QJsonObject ChangeJson(int number, const QVariant& oldValue, const QVariant& newValue);

/// Number, name, type, value, default, accepts, meaning and so on; an absent value is null.
QJsonObject ParameterJson(int number, const QVariant& value);
