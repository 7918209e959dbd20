#pragma once

#include "HostExport.h"

#include <QString>
#include <QStringList>
#include <QVariant>

/// Conversion between the values of parameters and the texts that people read and write.
///
/// @code
/// QString error;
/// const QVariant value = ParameterText::ToValue(QLatin1String("int"), QLatin1String("12"), &error); // 12
/// const QString text = ParameterText::FromValue(value);                                            // "12"
/// @endcode
///
/// May be used from any thread.
namespace ParameterText {

/// The names of the types that ToValue() reads: "bool", "int", "double", "string", "color".
CABHOST_EXPORT QStringList TypeNames();

/// The name of the value's type; Qt's own name for a type that is not in TypeNames().
CABHOST_EXPORT QString TypeName(const QVariant& value);

/// The value as a text. A colour is #rrggbb, or #aarrggbb when it is not opaque.
CABHOST_EXPORT QString FromValue(const QVariant& value);

/// Reads @p text as a value of the named type. Returns an invalid variant when it is not one; @p error then says what
/// is accepted.
CABHOST_EXPORT QVariant ToValue(const QString& typeName, const QString& text, QString* error);

/// "a, b or c"
CABHOST_EXPORT QString Alternatives(const QStringList& names);

/// Those of @p names that are similar to @p text, the most similar first, four at most; empty when none is similar.
/// Letter case is ignored. A name may begin with a group, as in "units.metric"; the group may be missing or wrong in
/// @p text.
CABHOST_EXPORT QStringList Near(const QString& text, const QStringList& names);

} // namespace ParameterText
