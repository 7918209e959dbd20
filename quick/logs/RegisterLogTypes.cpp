#include "logs/RegisterLogTypes.h"

#include "logs/TLogModel.h"
#include "module/TTypeRegistrar.h"

void RegisterLogTypes(const TTypeRegistrar& types) { types.Add<TLogModel>("Log"); }
