#pragma once

class TTypeRegistrar;

/// The lines of the logs.
void RegisterLogTypes(const TTypeRegistrar& types);
