#pragma once

#include "platform/TConfigManager.h"

#include <QColor>
#include <QString>
#include <QVariant>

/// The only place where the library reads and writes the host's parameter store. Nothing is cached: every call goes to
/// the store, which must be safe for calls from several threads.
namespace Parameters {

inline bool Has(EParamID id) { return ConfigManager->HasParameter(id); }

/// 0 for a parameter that is absent or not a number.
inline int ReadInt(EParamID id) { return ConfigManager->GetParameter(id).toInt(); }

/// False for a parameter that is absent.
inline bool ReadBool(EParamID id) { return ConfigManager->GetParameter(id).toBool(); }

/// Empty for a parameter that is absent.
inline QString ReadString(EParamID id) { return ConfigManager->GetParameter(id).toString(); }

/// Invalid, never black, for a parameter that is absent or cannot be converted to a colour. QtGui converts some other
/// types, for instance the name of a colour.
inline QColor ReadColor(EParamID id) { return ConfigManager->GetParameter(id).value<QColor>(); }

void WriteInt(EParamID id, int value);
void WriteBool(EParamID id, bool value);
void WriteString(EParamID id, const QString& value);
void WriteColor(EParamID id, const QColor& value);

} // namespace Parameters
