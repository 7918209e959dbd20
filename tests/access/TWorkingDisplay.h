#pragma once

#include "TJournal.h"
#include "TTemporaryFolder.h"

#include "settings/TSettings.h"

#include <QStringList>

/// A display in mid-work, with open logs: every parameter has a value of its own, so that no operation can stand in for
/// another.
class TWorkingDisplay
{
public:
    explicit TWorkingDisplay(bool isStickPresent = true);
    ~TWorkingDisplay();

    /// Folders, and files with their contents.
    QStringList Files() const;

    TTemporaryFolder drive;
    TJournal store;
    TSettings settings;
};
