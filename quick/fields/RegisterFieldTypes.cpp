#include "fields/RegisterFieldTypes.h"

#include "fields/TFieldTreeModel.h"
#include "module/TTypeRegistrar.h"

void RegisterFieldTypes(const TTypeRegistrar& types) { types.Add<TFieldTreeModel>("FieldTree"); }
