#pragma once

#include <QString>
#include <QStringList>

/// What may stand for @p placeholder of a usage, for instance PARAMETER, behind @p words; empty when that cannot be
/// listed. The command line asks; the commands define it, since they know their parameters, units and logs.
QStringList Candidates(const QString& placeholder, const QStringList& words);
