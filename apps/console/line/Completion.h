#pragma once

#include <QString>
#include <QStringList>

/// What may follow on a command line. The shell asks for it with "--complete" as the last word.
namespace Completion {

/// Whether the line asks for it.
bool IsAsked(const QStringList& arguments);

/// The placeholder of the next word in a usage such as "PARAMETER VALUE", behind @p words; empty when none follows.
QString Placeholder(const QString& usage, const QStringList& words);

} // namespace Completion
