#pragma once

#include "logs/EDiagnosticComponent.h"
#include "logs/EDiagnosticType.h"
#include "logs/ELoggingCategory.h"
#include "platform/Export.h"

#include <QObject>
#include <QString>

/// The user log as a QObject, for code that can be handed nothing else. Safe from any thread.
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

/// The one accessor: null until the host sets it. The library neither sets nor uses it.
CABSETTINGS_EXPORT extern TUserLogAccessor* UserLogAccessorPtr;
