#pragma once

#include <QString>
#include <QStringList>

/// The messages about what was typed, in one form: what is wrong, then what is expected.
namespace Messages {

/// unexpected argument "x"; expected PARAMETER. Without @p expected, no arguments are expected.
QString Unexpected(const QString& argument, const QString& expected);

/// missing argument; expected PARAMETER VALUE
QString Missing(const QString& expected);

/// invalid number "1,5"; expected digits with a full stop
QString Invalid(const QString& thing, const QString& word, const QString& expected);

/// unknown unit "lbs"; did you mean "lb"? When @p near is empty: unknown unit "x"; expected …
QString Unknown(const QString& thing, const QString& word, const QStringList& near, const QString& expected);

/// Unknown() for a word that must be one of @p names.
QString NotAmong(const QString& thing, const QString& word, const QStringList& names);

} // namespace Messages
