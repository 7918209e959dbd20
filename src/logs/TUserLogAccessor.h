#pragma once

#include "logs/EDiagnosticComponent.h"
#include "logs/EDiagnosticType.h"
#include "logs/ELoggingCategory.h"
#include "platform/Export.h"

#include <QObject>
#include <QString>

/// The user log as a QObject, for code that takes QObjects only. Safe from any thread.
///
///     TUserLogAccessor accessor;
///     UserLogAccessorPtr = &accessor;
///     UserLogAccessorPtr->AddEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_PARAM, PARAM_ACTIVE_JOB, oldName, newName);
class CABSETTINGS_EXPORT TUserLogAccessor : public QObject
{
    Q_OBJECT

public:
    TUserLogAccessor();
    ~TUserLogAccessor() override;

    /// As TUserDiagnosticLogProxy::AddEntry().
    virtual bool AddEntry(EDiagnosticComponent component, EDiagnosticType type, int code, const QString& text1,
                          const QString& text2);

    /// The translated name; empty for a value that is not exactly one category.
    virtual QString GetLoggingCategoryName(ELoggingCategory category) const;
};

/// The accessor of the host: null until the host sets it. The library does not use it.
CABSETTINGS_EXPORT extern TUserLogAccessor* UserLogAccessorPtr;
