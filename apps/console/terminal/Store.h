#pragma once

#include "console/line/Command.h"

#include "stores/TSqliteStore.h"

#include <memory>

/// Opens the parameter store of the data folder, which is made when it is missing. Null when that fails, which is said.
std::unique_ptr<TSqliteStore> OpenStore(const tagContext& context);
