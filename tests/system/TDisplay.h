#pragma once

#include "TTemporaryFolder.h"
#include "TestHost.h"

#include "settings/TSettings.h"

/// A display with an empty store, an empty internal drive and the settings in use. The clock shows 2024-03-05 14:05:09.
struct TDisplay
{
    TDisplay()
    {
        TTestClock::Reset();
        TTestFiles::Reset();
        TSystemSettings().SetCFFRoot(QString());
        Settings = &settings;
        folder.MakeFolder(QLatin1String("data"));
        store.values[8910] = OnDrive();
        store.reads.clear();
    }

    ~TDisplay() { Settings = nullptr; }

    TDisplay(const TDisplay&) = delete;
    TDisplay& operator=(const TDisplay&) = delete;

    /// A path on the internal drive.
    QString OnDrive(const QString& relative = QString()) const
    {
        return folder.Path(QLatin1String("data/") + relative);
    }

    /// Everything on the internal drive, as TTemporaryFolder::Entries() tells it.
    QStringList DriveContent() const
    {
        const QString drive = QLatin1String("data/");
        QStringList content;
        for (const QString& entry : folder.Entries()) {
            if (entry.startsWith(drive) && entry != drive)
                content.append(entry.mid(drive.size()));
        }
        return content;
    }

    void SetField(const QString& client, const QString& farm, const QString& field)
    {
        store.values[8932] = client;
        store.values[8933] = farm;
        store.values[8934] = field;
    }

    /// Client Smith, farm North, field F1.
    void SetField() { SetField(QLatin1String("Smith"), QLatin1String("North"), QLatin1String("F1")); }

    TTemporaryFolder folder;
    TTestStore store;
    TSettings settings;
};
