#pragma once

#include "platform/EParamID.h"
#include "platform/Export.h"

#include <QString>
#include <QVariant>

enum EDiagnosticComponent : int;
enum EDiagnosticType : int;

/// The host's parameter store, the only place where settings persist.
///
/// The library reads it afresh at every call and caches nothing, so a value written by anyone takes effect at the next
/// read. Every operation is called from several threads at once and must be safe for that. Some calls come while a
/// lock of the library is held (a log writes its file number from under its own lock), so none of these operations may
/// call back into a façade.
class CABSETTINGS_EXPORT TConfigManager
{
public:
    virtual ~TConfigManager() = default;

    /// Stores @p value under @p id. The library always passes true for @p persist and ignores the result, which tells
    /// whether the value is stored as asked.
    virtual bool SetParameter(EParamID id, const QVariant& value, bool persist) = 0;

    /// The value under @p id; an invalid variant when there is none.
    virtual QVariant GetParameter(EParamID id) = 0;

    /// Whether the store holds a value under @p id.
    virtual bool HasParameter(EParamID id) = 0;

    /// The name of a parameter or event, as it stands in the third field of a user-log line. The reference is copied
    /// by the caller at once and must stay valid until then, whatever other threads do.
    virtual const QString& GetDiagnosticText(EDiagnosticComponent component, EDiagnosticType type, int code) = 0;
};

/// The store in use. Imported: the host defines it and sets it before it creates a TSettings.
CABSETTINGS_EXPORT extern TConfigManager* ConfigManager;
