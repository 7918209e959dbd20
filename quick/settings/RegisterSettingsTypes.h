#pragma once

class TTypeRegistrar;

/// Parameter, ParameterModel, ParameterGroups and Restart.
void RegisterSettingsTypes(const TTypeRegistrar& types);
