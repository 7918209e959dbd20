#include "transfer/RegisterTransferTypes.h"

#include "module/TTypeRegistrar.h"
#include "transfer/TTransfer.h"

void RegisterTransferTypes(const TTypeRegistrar& types) { types.Add<TTransfer>("Transfer"); }
