#pragma once

#include <QString>
#include <QStringList>

/// The values of @p placeholder, for instance PARAMETER, after the arguments @p words; empty when they cannot be
/// listed. Declared here for the command line, and defined with the commands, which know parameters, units and logs.
QStringList Candidates(const QString& placeholder, const QStringList& words);
