#pragma once

#include "console/line/Command.h"

#include "fields/TFieldTree.h"

#include <QString>
#include <QStringList>

int RunFieldsCopy(const tagContext& context, const QStringList& arguments);

/// Prints why an operation has not succeeded, and returns the matching status.
/// @param withForce what --force does, for instance "removes them".
int FailFields(EFieldResult result, const QString& error, const char* withForce);
