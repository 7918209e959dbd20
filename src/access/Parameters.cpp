#include "access/Parameters.h"

namespace Parameters {

namespace {

void Write(EParamID id, const QVariant& value) { ConfigManager->SetParameter(id, value, true); }

} // namespace

void WriteInt(EParamID id, int value) { Write(id, QVariant(value)); }

void WriteBool(EParamID id, bool value) { Write(id, QVariant(value)); }

void WriteString(EParamID id, const QString& value) { Write(id, QVariant(value)); }

void WriteColor(EParamID id, const QColor& value) { Write(id, QVariant(value)); }

} // namespace Parameters
