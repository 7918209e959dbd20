#pragma once

class TTypeRegistrar;

/// Scheme and ContrastModel.
void RegisterLookTypes(const TTypeRegistrar& types);
