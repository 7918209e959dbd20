#pragma once

#include "TTemporaryFolder.h"
#include "parameters/TParameterCatalogue.h"
#include "profiles/ProfileGroups.h"
#include "profiles/TProfile.h"
#include "stores/TMemoryStore.h"
#include "terminal/FirstStartValues.h"

#include <QColor>
#include <QtTest>

#include <memory>
#include <optional>

/// What the tests of profiles in files have in common: a folder with one file, and a store to export.
class TProfileRoom
{
protected:
    static QString Utf8(const char* text) { return QString::fromUtf8(text); }

    void Renew()
    {
        m_Folder = std::make_unique<TTemporaryFolder>();
        m_Store = std::make_unique<TMemoryStore>();
        SetFirstStartValues(*m_Store);
        m_Store->SetParameter(PARAM_CLIENT, Utf8("Müller & Söhne"), true);
        m_Store->SetParameter(PARAM_MAP_COLOR_DAY, QColor(1, 2, 3, 4), true);
        m_Problems.clear();
    }

    QString Path() const { return m_Folder->Path(Utf8(Name)); }
    void Put(const QByteArray& text) const { m_Folder->MakeFile(Utf8(Name), text); }

    TProfile Full() const { return TProfile::Of(*m_Store, ProfileGroups::All(), Utf8("2.1.4-r7")); }

    std::optional<TProfile> Read(EProfileEdits edits = PROFILE_EDITS_ACCEPTED)
    {
        return TProfile::Read(Path(), edits, &m_Problems);
    }

    /// Without the folder.
    QStringList Problems() const
    {
        QStringList problems = m_Problems;
        return problems.replaceInStrings(m_Folder->Path() + QLatin1Char('/'), QString());
    }

    static constexpr const char* Name = "tractor.profile";

    /// A profile as people see it. "@" stands for its hash.
    static constexpr const char* Small = R"({
  "product": "cabsettings profile",
  "format": 1,
  "origin": {
    "terminal": "6ba7b810-9dad-41d1-80b4-00c04fd430c8",
    "software": "1.0.0",
    "time": "2024-05-01T06:00:11Z",
    "timeSource": "receiver"
  },
  "groups": ["units", "display"],
  "parameters": [
    {"number": 8953, "name": "units.metric", "type": "bool", "value": false, "base": true},
    {"number": 8957, "name": "units.pressure", "type": "int", "value": "bar", "base": "kPa"},
    {"number": 9061, "name": "display.night-lightbar", "type": "int", "value": 30, "base": 30}
  ],
  "sha256": "@"
}
)";

    std::unique_ptr<TTemporaryFolder> m_Folder;
    std::unique_ptr<TMemoryStore> m_Store;
    QStringList m_Problems;
};
