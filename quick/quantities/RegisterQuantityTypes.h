#pragma once

class TTypeRegistrar;

/// Quantity and QuantityModel.
void RegisterQuantityTypes(const TTypeRegistrar& types);
