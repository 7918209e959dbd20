#pragma once

#include "display/shot/ExampleTransfers.h"

#include <QString>
#include <QStringList>

#include <array>

class TSqliteStore;

/// Something that opens over a page, or in it: a question, an entry, a page in front, a message.
struct tagOverlay
{
    const char* name;
    const char* page;                   ///< of the table of pages
    std::array<const char*, 3> presses; ///< object names of the buttons that lead to it, one after another; null: none
    const char* typed;                  ///< the keys that are typed then
    const char* shown;                  ///< the object name of what has opened
    bool isPictured;                    ///< a run that pictures everything has a picture of it
    void (*change)(TSqliteStore& store, bool isThere) = nullptr; ///< what makes it come and go in place of a button
};

namespace OverlayChanges {
void SetServer(TSqliteStore& store, bool isThere);
void SetPosition(TSqliteStore& store, bool isThere);
void SetLongProblem(TSqliteStore& store, bool isThere);
void SetNewLanguage(TSqliteStore& store, bool isThere);
void SetEverything(TSqliteStore& store, bool isThere);
} // namespace OverlayChanges

/// They need a client, which the example field has.
inline constexpr std::array Overlays = {
    tagOverlay{"keypad", "settings-machine", {"implementWidth"}, "24.5", "keypad", true},
    tagOverlay{"keypad-refused", "settings-machine", {"implementWidth"}, "52.5", "keypad", true},
    tagOverlay{"name", "fields", {"add"}, "Miller", "nameEntry", true},
    tagOverlay{"name-empty", "fields", {"add"}, "", "nameEntry", false},
    tagOverlay{"name-refused", "fields", {"add"}, "Miller/West", "nameEntry", false},
    tagOverlay{"address", "receiver", {"address"}, "", "nameEntry", false, OverlayChanges::SetServer},
    tagOverlay{"item", "fields", {"change"}, "", "itemActions", false},
    tagOverlay{"question", "fields", {"change", "remove"}, "", "question", false},
    tagOverlay{"clock", "settings-region", {"setClock"}, "", "clockEntry", false},
    tagOverlay{"choice", "settings-region", {"region.language"}, "", "choicePage", false},
    tagOverlay{"color", "settings-colors", {"color"}, "", "colorPage", true},
    tagOverlay{"color-digits", "settings-colors", {"color", "digits"}, "", "nameEntry", false},
    tagOverlay{"color-refused", "settings-colors", {"color", "digits"}, "#12z", "nameEntry", false},
    tagOverlay{"implements", "settings-machine", {"active.implement"}, "", "itemPage", false},
    tagOverlay{"new-implement", "settings-machine", {"active.implement", "new"}, "", "nameEntry", false},
    tagOverlay{"line", "work", {}, "", "linePanel", false, OverlayChanges::SetPosition},
    tagOverlay{"lines", "work", {"lines"}, "", "lineChoice", false},
    tagOverlay{"lock", "work", {"lock"}, "", "lockLayer", false},
    tagOverlay{"problem", "work", {}, "", "problem", false, OverlayChanges::SetLongProblem},
    tagOverlay{"restart", "work", {}, "", "restart", false, OverlayChanges::SetNewLanguage},
    tagOverlay{"export-running", "settings-storage", {}, "", "transferRunning", false, ExampleTransfers::SetRunning},
    tagOverlay{"export-done", "settings-storage", {}, "", "transferEnd", false, ExampleTransfers::SetLogsDone},
    tagOverlay{"export-failed", "settings-storage", {}, "", "transferEnd", false, ExampleTransfers::SetLogsFailed},
    tagOverlay{"profile-running", "settings-profiles", {}, "", "transferRunning", false, ExampleTransfers::SetRunning},
    tagOverlay{"profile-done", "settings-profiles", {}, "", "transferEnd", false, ExampleTransfers::SetProfileDone},
    tagOverlay{"profile-failed", "settings-profiles", {}, "", "transferEnd", false, ExampleTransfers::SetProfileFailed},
    tagOverlay{"import", "settings-profiles", {"profile"}, "", "difference", false, ExampleTransfers::SetProfiles},
    tagOverlay{"import-running",
               "settings-profiles",
               {"profile"},
               "",
               "transferRunning",
               false,
               ExampleTransfers::SetImportRunning},
    tagOverlay{
        "import-done", "settings-profiles", {"profile"}, "", "transferEnd", false, ExampleTransfers::SetImportDone},
    tagOverlay{
        "import-failed", "settings-profiles", {"profile"}, "", "transferEnd", false, ExampleTransfers::SetImportFailed},
    tagOverlay{"messages", "work", {}, "", "restart", false, OverlayChanges::SetEverything},
};

/// Null when there is none of that name.
const tagOverlay* FindOverlay(const QString& name);

QStringList OverlayNames();
