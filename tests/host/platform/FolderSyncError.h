#pragma once

#include <atomic>

/// The value of errno with which syncing a folder fails in this process, in the host's library too; 0 when it works.
extern std::atomic<int> FolderSyncError;
