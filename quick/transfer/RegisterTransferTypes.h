#pragma once

class TTypeRegistrar;

/// Exports and imports.
void RegisterTransferTypes(const TTypeRegistrar& types);
