#pragma once

#include "platform/EParamID.h"
#include "platform/Export.h"

#include <QString>
#include <QVariant>

enum EDiagnosticComponent : int;
enum EDiagnosticType : int;

/// The host's parameter store, the only place where settings persist. The host derives its store from this class:
///
///     class TStore : public TConfigManager { ... };
///     TConfigManager* ConfigManager = nullptr;   // in one of the host's sources
///     TStore store; ConfigManager = &store;      // at start-up, before TSettings
///
/// The library caches nothing: it reads the store at every call, so a new value takes effect at once. All operations
/// are called from several threads at the same time. Some calls are made while a lock of the library is held, for
/// instance when a log stores its file number, so these operations must not use a façade.
class CABSETTINGS_EXPORT TConfigManager
{
public:
    virtual ~TConfigManager() = default;

    /// Stores @p value under @p id; with @p persist also beyond the end of the program. Returns whether it did. The
    /// library always passes true and ignores the result.
    virtual bool SetParameter(EParamID id, const QVariant& value, bool persist) = 0;

    /// The value under @p id; an invalid variant when there is none.
    virtual QVariant GetParameter(EParamID id) = 0;

    /// Whether the store holds a value under @p id.
    virtual bool HasParameter(EParamID id) = 0;

    /// The name of a parameter or event for the third field of a user-log line. The caller copies the text at once; the
    /// reference must stay valid until then, also when other threads call.
    virtual const QString& GetDiagnosticText(EDiagnosticComponent component, EDiagnosticType type, int code) = 0;
};

/// The store in use. The host defines it, and sets it before it constructs a TSettings.
CABSETTINGS_EXPORT extern TConfigManager* ConfigManager;
