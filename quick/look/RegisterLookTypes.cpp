#include "look/RegisterLookTypes.h"

#include "look/TContrastModel.h"
#include "look/TScheme.h"
#include "module/TTypeRegistrar.h"

void RegisterLookTypes(const TTypeRegistrar& types)
{
    types.AddSingleton<TScheme>("Scheme");
    types.Add<TContrastModel>("ContrastModel");
}
