#pragma once

#include "platform/EParamID.h"

#include <QColor>
#include <QString>
#include <QVariant>

/// The library's one door to the host's parameter store. Nothing is cached: every call goes to the store, which must be
/// safe for calls from several threads.
namespace Parameters {

bool Has(EParamID id);

/// 0 for a parameter that is absent or not a number.
int ReadInt(EParamID id);

/// False for a parameter that is absent.
bool ReadBool(EParamID id);

/// Empty for a parameter that is absent.
QString ReadString(EParamID id);

/// Invalid, never black, for a parameter that is absent or that does not convert to a colour.
QColor ReadColor(EParamID id);

void WriteInt(EParamID id, int value);
void WriteBool(EParamID id, bool value);
void WriteString(EParamID id, const QString& value);
void WriteColor(EParamID id, const QColor& value);

} // namespace Parameters
