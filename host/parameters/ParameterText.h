#pragma once

#include "HostExport.h"

#include <QString>
#include <QStringList>
#include <QVariant>

/// Values of parameters as people write them.
namespace ParameterText {

/// Names of the types that a value can be given: "bool", "int", "double", "string", "color".
CABHOST_EXPORT QStringList TypeNames();

/// The name of the value's type; Qt's own name for one that has none here.
CABHOST_EXPORT QString TypeName(const QVariant& value);

CABHOST_EXPORT QString FromValue(const QVariant& value);

/// Reads @p text as a value of the named type. An invalid variant with @p error telling what is accepted when it is
/// none.
CABHOST_EXPORT QVariant ToValue(const QString& typeName, const QString& text, QString* error);

/// "a, b or c"
CABHOST_EXPORT QString Alternatives(const QStringList& names);

/// Those of @p names that @p text may have been meant to be, the nearest first, four at most; none when nothing is
/// near. Capitals make no difference. A name may have a group, "units.metric": the group may be missing or wrong.
CABHOST_EXPORT QStringList Near(const QString& text, const QStringList& names);

} // namespace ParameterText
