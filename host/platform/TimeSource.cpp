#include "platform/TimeSource.h"

#include "parameters/HostParameters.h"
#include "parameters/UtcText.h"
#include "platform/TConfigManager.h"

void KeepTimeSource(ETimeSource source, const QDateTime& utc)
{
    if (ConfigManager->GetParameter(PARAM_TIME_SOURCE).toInt() == source)
        return;
    ConfigManager->SetParameter(PARAM_TIME_SOURCE_SINCE, UtcText(utc), true);
    ConfigManager->SetParameter(PARAM_TIME_SOURCE, int{source}, true);
}
