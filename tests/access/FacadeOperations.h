#pragma once

#include <QString>
#include <QStringList>

#include <vector>

class TColorSettings;
class TColorSettingsProxy;
class TDiagnosticLog;
class TDiagnosticLogProxy;
class TRegionSettings;
class TRegionSettingsProxy;
class TSystemSettings;
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

/// The folder in which the operations of the logs keep their files, without a separator at the end.
void SetDriveOfOperations(const QString& path);
