#include "quantities/RegisterQuantityTypes.h"

#include "module/TTypeRegistrar.h"
#include "quantities/TQuantity.h"
#include "quantities/TQuantityModel.h"

void RegisterQuantityTypes(const TTypeRegistrar& types)
{
    types.Add<TQuantity>("Quantity");
    types.Add<TQuantityModel>("QuantityModel");
}
