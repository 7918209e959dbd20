#pragma once

#include "module/CabQuick.h"

class TSqliteStore;

/// Transfers between the terminal and a stick as pages show them, without a stick: for pictures and walks over pages.
/// Each function makes one come, and go again.
namespace ExampleTransfers {

/// Room on the drives and in the memory, the same in every picture.
tagShownDrives Drives();

void SetRunning(TSqliteStore& store, bool isThere);
void SetLogsDone(TSqliteStore& store, bool isThere);
void SetLogsFailed(TSqliteStore& store, bool isThere);
void SetProfileDone(TSqliteStore& store, bool isThere);
void SetProfileFailed(TSqliteStore& store, bool isThere);

/// The stick has three profiles. The first one is of another terminal and can be opened: it changes some settings, one
/// of which was changed here, too.
void SetProfiles(TSqliteStore& store, bool isThere);
void SetImportRunning(TSqliteStore& store, bool isThere);
void SetImportDone(TSqliteStore& store, bool isThere);
void SetImportFailed(TSqliteStore& store, bool isThere);

} // namespace ExampleTransfers
