#pragma once

#include <QString>
#include <QStringList>

#include <array>

/// A page as the command line and the pictures name it.
struct tagPage
{
    const char* name;
    const char* door;    ///< the door behind which it is
    const char* section; ///< of the settings; empty behind the other doors
};

inline constexpr std::array Pages = {
    tagPage{"work", "work", ""},
    tagPage{"fields", "fields", ""},
    tagPage{"receiver", "receiver", ""},
    tagPage{"logs", "logs", ""},
    tagPage{"settings-units", "settings", "units"},
    tagPage{"settings-region", "settings", "region"},
    tagPage{"settings-colors", "settings", "colors"},
    tagPage{"settings-display", "settings", "display"},
    tagPage{"settings-tiles", "settings", "tiles"},
    tagPage{"settings-machine", "settings", "machine"},
    tagPage{"settings-storage", "settings", "storage"},
    tagPage{"settings-profiles", "settings", "profiles"},
    tagPage{"settings-all", "settings", "all"},
    tagPage{"settings-about", "settings", "about"},
};

/// Null when there is none of that name.
const tagPage* FindPage(const QString& name);

QStringList PageNames();
