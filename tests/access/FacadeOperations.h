#pragma once

#include "TJournal.h"
#include "TTemporaryFolder.h"

#include "settings/TSettings.h"

#include <QColor>
#include <QDateTime>
#include <QFileInfo>
#include <QString>
#include <QStringList>

#include <vector>

class TColorSettingsProxy;
class TDiagnosticLogProxy;
class TRegionSettingsProxy;
class TSystemSettingsProxy;

/// How an operation of a locking façade can be seen to hold its lock.
enum EReach : int
{
    CallsHost,          ///< calls the store or the clock
    CallsHostUnderBoth, ///< the same, and takes the region lock inside the system lock
    StaysInside,        ///< calls neither
};

/// One operation that a façade forwards, called the same way on the target and on the façade; answers result and
/// output arguments as text.
template <class Target, class Facade>
struct tagOperation
{
    template <class Call>
    tagOperation(const char* operationName, Call call, EReach operationReach = CallsHost)
        : name(operationName), reach(operationReach), onTarget(call), onFacade(call)
    {}

    const char* name;
    EReach reach;
    QStringList (*onTarget)(Target&);
    QStringList (*onFacade)(Facade&);
};

using tagSystemOperation = tagOperation<TSystemSettings, TSystemSettingsProxy>;
using tagRegionOperation = tagOperation<TRegionSettings, TRegionSettingsProxy>;
using tagColorOperation = tagOperation<TColorSettings, TColorSettingsProxy>;
using tagLogOperation = tagOperation<TDiagnosticLog, TDiagnosticLogProxy>;

const std::vector<tagSystemOperation>& SystemOperations();
const std::vector<tagRegionOperation>& RegionOperations();
const std::vector<tagColorOperation>& ColorOperations();
const std::vector<tagLogOperation>& LogOperations();

/// A display in mid-work, with open logs: every parameter has a value of its own, so that no operation can stand in for
/// another.
class TWorkingDisplay
{
public:
    explicit TWorkingDisplay(bool isStickPresent = true);
    ~TWorkingDisplay();

    /// Folders, and files with their contents.
    QStringList Files() const;

    TTemporaryFolder drive;
    TJournal store;
    TSettings settings;
};
