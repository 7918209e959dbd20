#include "settings/Parameters.h"

#include "platform/TConfigManager.h"

namespace Parameters {

namespace {

void Write(EParamID id, const QVariant& value) { ConfigManager->SetParameter(id, value, true); }

} // namespace

bool Has(EParamID id) { return ConfigManager->HasParameter(id); }

int ReadInt(EParamID id) { return ConfigManager->GetParameter(id).toInt(); }

bool ReadBool(EParamID id) { return ConfigManager->GetParameter(id).toBool(); }

QString ReadString(EParamID id) { return ConfigManager->GetParameter(id).toString(); }

// value<QColor>() copies a colour out, converts what QtGui can convert (a name, say) and gives QColor() for the rest.
QColor ReadColor(EParamID id) { return ConfigManager->GetParameter(id).value<QColor>(); }

void WriteInt(EParamID id, int value) { Write(id, QVariant(value)); }

void WriteBool(EParamID id, bool value) { Write(id, QVariant(value)); }

void WriteString(EParamID id, const QString& value) { Write(id, QVariant(value)); }

void WriteColor(EParamID id, const QColor& value) { Write(id, QVariant(value)); }

} // namespace Parameters
