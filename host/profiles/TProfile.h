#pragma once

#include "HostExport.h"
#include "parameters/TParameterCatalogue.h"
#include "stores/TParameterStore.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>

/// Where a profile comes from.
struct tagProfileOrigin
{
    QString terminal;   ///< PARAM_TERMINAL_IDENTITY of the terminal; empty when it has none
    QString software;   ///< version of the software
    QString time;       ///< of the export: UTC, ISO 8601, for instance "2024-05-01T06:00:11Z"
    QString timeSource; ///< where the terminal had its time from: "none", "operator", "receiver"; empty: not known
};

/// One parameter of a profile.
struct tagProfileParameter
{
    const tagParameter* known;   ///< never null
    QVariant value;              ///< accepted by TParameterCatalogue
    std::optional<QString> base; ///< the value at the export, as TParameterCatalogue::Text(), when it is known
};

/// What Read() does with a file whose content does not match its hash.
enum EProfileEdits : int
{
    PROFILE_EDITS_REFUSED,
    PROFILE_EDITS_ACCEPTED, ///< the file was edited on purpose
};

/// The settings of a terminal in a file that people can read, compare, edit, and take to another terminal.
///
/// @code
/// const TProfile profile = TProfile::Of(store, ProfileGroups::All(), version);
/// if (!profile.Write(QLatin1String("/media/stick/tractor.profile"), &reason)) // true: it is on the stick
///     ShowError(reason);
/// @endcode
///
/// The file is JSON in UTF-8, without comments, with one parameter in a line:
/// - "product": "cabsettings profile", "format": 1;
/// - "origin": "terminal", "software", "time", "timeSource", as in tagProfileOrigin;
/// - "groups": the exported groups of ProfileGroups;
/// - "parameters": "number", "name", "type", "value" and "base" of each. A choice is written by its name, a colour as
///   #rrggbb or #aarrggbb. "base" is the value at the export: people who edit a file change "value" only, so that an
///   import can tell what they have changed.
/// - "sha256": the hash of the content in hexadecimal digits. It does not depend on blanks, line ends and the order of
///   fields. What is hashed is a sequence of texts: product, format, terminal, software, time, timeSource, the groups
///   joined by commas; then number, name, type, value and base of each parameter, in the order of the file. Each text
///   is written as the number of its bytes in UTF-8, a colon, the bytes, and a comma. Numbers are decimal; a switch is
///   "true" or "false"; what is missing is an empty text.
///
/// A later version of the format may add fields and parameters. Read() ignores what it does not know, and lists it.
///
/// May be used from any thread.
class CABHOST_EXPORT TProfile
{
public:
    /// The largest file that Read() accepts, in bytes. A profile of all parameters has 10,000.
    static const qint64 MostBytes;

    /// The profile of the parameters of @p groups that have a value now. A value that TParameterCatalogue does not
    /// accept, and so no import would take, is left out; see LeftOut().
    static TProfile Of(TParameterStore& store, const QStringList& groups, const QString& softwareVersion);

    /// The text of the file, in UTF-8.
    QByteArray Text() const;

    /// Writes the file. Whatever happens on the way, @p path is the former file, if there was one, or the complete new
    /// one. When this returns true, file and folder are on the disk. What a killed program has left in the folder is
    /// removed.
    /// @param reason one line that names the file, when the result is false.
    bool Write(const QString& path, QString* reason) const;

    /// Reads and checks a file.
    /// @param problems all problems of the file, one line each with file and line, at most 20 and then their number.
    /// @return nothing when there is any problem.
    static std::optional<TProfile> Read(const QString& path, EProfileEdits edits, QStringList* problems);

    /// 1, or more for a file of a later version of this software.
    int Format() const { return m_Format; }

    const tagProfileOrigin& Origin() const { return m_Origin; }
    const QStringList& Groups() const { return m_Groups; }

    /// In the order of the file; an export has the order of the numbers.
    const QList<tagProfileParameter>& Parameters() const { return m_Parameters; }

    /// What an export could not take, and why; one line each.
    const QStringList& LeftOut() const { return m_LeftOut; }

    /// Fields and parameters of the file that this version does not know; one line each.
    const QStringList& Ignored() const { return m_Ignored; }

private:
    TProfile() = default;

    int m_Format = 1;
    tagProfileOrigin m_Origin;
    QStringList m_Groups;
    QList<tagProfileParameter> m_Parameters;
    QStringList m_LeftOut;
    QStringList m_Ignored;
};
