#include "settings/RegisterSettingsTypes.h"

#include "module/TTypeRegistrar.h"
#include "settings/TParameter.h"
#include "settings/TParameterGroups.h"
#include "settings/TParameterModel.h"
#include "settings/TRestart.h"

void RegisterSettingsTypes(const TTypeRegistrar& types)
{
    types.Add<TParameter>("Parameter");
    types.Add<TParameterModel>("ParameterModel");
    types.AddSingleton<TParameterGroups>("ParameterGroups");
    types.AddSingleton<TRestart>("Restart");
}
