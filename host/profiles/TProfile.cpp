#include "profiles/TProfile.h"

#include "parameters/ETimeSource.h"
#include "parameters/HostParameters.h"
#include "profiles/ProfileFile.h"
#include "profiles/ProfileGroups.h"

#include <QDateTime>
#include <QHash>

namespace {

using ProfileFile::tagContent;
using ProfileFile::tagRow;
using ProfileFile::TProblems;

const int SecondsPerMinute = 60;
const int MinutesPerHour = 60;

ProfileFile::EKind KindOf(const tagParameter& parameter)
{
    if (parameter.type == PARAMETER_BOOL)
        return ProfileFile::KIND_BOOL;
    const bool isNumber = parameter.type == PARAMETER_INT && parameter.choices.isEmpty();
    return isNumber ? ProfileFile::KIND_NUMBER : ProfileFile::KIND_TEXT;
}

/// The value that the text stands for, when it is written as the parameter's values are; else an invalid one.
QVariant ReadValue(const tagParameter& parameter, const QString& text, ProfileFile::EKind kind, QString* error)
{
    const bool isChoiceByNumber = !parameter.choices.isEmpty() && kind == ProfileFile::KIND_NUMBER;
    if (kind == KindOf(parameter) || isChoiceByNumber)
        return TParameterCatalogue::Read(parameter, text, error);
    *error = QString::fromLatin1("invalid value %1 for %2; expected %3")
                 .arg(kind == ProfileFile::KIND_TEXT ? QString::fromLatin1("\"%1\"").arg(text) : text, parameter.name,
                      parameter.accepts);
    return QVariant();
}

/// The value and the base of a row; nothing when one of them is not as the parameter's values are written.
std::optional<tagProfileParameter> ReadParameter(const tagParameter& known, const tagRow& row, TProblems* problems)
{
    QString error;
    const QVariant value = ReadValue(known, row.value, row.kind, &error);
    if (!value.isValid()) {
        problems->Add(row.line, error);
        return std::nullopt;
    }
    if (!row.base)
        return tagProfileParameter{&known, value, std::nullopt};
    const QVariant base = ReadValue(known, *row.base, row.baseKind, &error);
    if (!base.isValid()) {
        problems->Add(row.line, QLatin1String("base: ") + error);
        return std::nullopt;
    }
    return tagProfileParameter{&known, value, TParameterCatalogue::Text(known, base)};
}

/// The terminal's idea of UTC. A terminal whose clock nothing has set has the machine's.
QDateTime UtcOf(TParameterStore& store)
{
    QDateTime machine = QDateTime::currentDateTimeUtc();
    if (store.GetParameter(PARAM_TIME_SOURCE).toInt() == TIME_SOURCE_NONE)
        return machine;
    const int minutes = store.GetParameter(PARAM_UTC_OFFSET_HOURS).toInt() * MinutesPerHour +
                        store.GetParameter(PARAM_UTC_OFFSET_MINUTES).toInt();
    return machine.addSecs(store.GetParameter(PARAM_CLOCK_OFFSET).toInt() - minutes * SecondsPerMinute);
}

tagProfileOrigin OriginOf(TParameterStore& store, const QString& softwareVersion)
{
    const tagParameter* const source = TParameterCatalogue::Find(PARAM_TIME_SOURCE);
    const bool isSourceKnown = source && store.HasParameter(PARAM_TIME_SOURCE);
    return {store.GetParameter(PARAM_TERMINAL_IDENTITY).toString(), softwareVersion, UtcOf(store).toString(Qt::ISODate),
            isSourceKnown ? TParameterCatalogue::Text(*source, store.GetParameter(PARAM_TIME_SOURCE)) : QString()};
}

/// What a row of a file says about the parameter that it means. Null for one that is not in the catalogue.
const tagParameter* KnownOf(const tagRow& row, TProblems* problems)
{
    const tagParameter* const numbered = TParameterCatalogue::Find(row.number);
    const tagParameter* const named = TParameterCatalogue::Find(row.name);
    const tagParameter* const known = numbered ? numbered : named;
    if (!known)
        return nullptr;
    if (known->id != row.number || known->name != row.name)
        problems->Add(row.line, QString::fromLatin1("number %1 and name \"%2\" disagree; %3 has the number %4")
                                    .arg(QString::number(row.number), row.name, known->name)
                                    .arg(static_cast<int>(known->id)));
    if (row.type != TParameterCatalogue::TypeName(known->type))
        problems->Add(row.line, QString::fromLatin1("invalid type \"%1\" for %2; expected %3")
                                    .arg(row.type, known->name, TParameterCatalogue::TypeName(known->type)));
    return known;
}

} // namespace

const qint64 TProfile::MostBytes = qint64(4) * 1024 * 1024;

TProfile TProfile::Of(TParameterStore& store, const QStringList& groups, const QString& softwareVersion)
{
    TProfile profile;
    profile.m_Origin = OriginOf(store, softwareVersion);
    profile.m_Groups = groups;
    const QMap<int, QVariant> values = store.Values(); // all of one moment
    for (const tagParameter& parameter : TParameterCatalogue::Parameters()) {
        if (!values.contains(parameter.id) || !groups.contains(ProfileGroups::Of(parameter.name)))
            continue;
        const QString text = TParameterCatalogue::Text(parameter, values.value(parameter.id));
        QString error;
        const QVariant value = TParameterCatalogue::Read(parameter, text, &error);
        if (value.isValid())
            profile.m_Parameters.append({&parameter, value, text});
        else
            profile.m_LeftOut.append(error);
    }
    return profile;
}

QByteArray TProfile::Text() const
{
    tagContent content = {m_Format, m_Origin, m_Groups, {}, {}, {}};
    for (const tagProfileParameter& parameter : m_Parameters) {
        content.rows.append({parameter.known->id, parameter.known->name,
                             TParameterCatalogue::TypeName(parameter.known->type),
                             TParameterCatalogue::Text(*parameter.known, parameter.value), parameter.base,
                             KindOf(*parameter.known), KindOf(*parameter.known), 0});
    }
    return ProfileFile::Text(content);
}

bool TProfile::Write(const QString& path, QString* reason) const { return ProfileFile::Write(path, Text(), reason); }

std::optional<TProfile> TProfile::Read(const QString& path, EProfileEdits edits, QStringList* problems)
{
    TProblems found(path);
    const std::optional<tagContent> content = ProfileFile::Read(path, &found);
    TProfile profile;
    if (content) {
        if (found.IsEmpty() && edits == PROFILE_EDITS_REFUSED && content->hash != ProfileFile::Hash(*content))
            found.Add(0, QLatin1String("its content does not match its hash; it was edited or is damaged"));
        profile.m_Format = content->format;
        profile.m_Origin = content->origin;
        profile.m_Groups = content->groups;
        profile.m_Ignored = content->ignored;
        QHash<int, int> lines; // of the parameters that were seen
        for (const tagRow& row : content->rows) {
            const tagParameter* const known = KnownOf(row, &found);
            const int id = known ? static_cast<int>(known->id) : row.number;
            if (lines.contains(id))
                found.Add(row.line, QString::fromLatin1("%1 again; line %2 has it too").arg(row.name).arg(lines[id]));
            lines.insert(id, row.line);
            if (!known) {
                profile.m_Ignored.append(QString::fromLatin1("line %1: the parameter %2 (%3)")
                                             .arg(QString::number(row.line), row.name.left(60))
                                             .arg(row.number));
                continue;
            }
            const std::optional<tagProfileParameter> parameter = ReadParameter(*known, row, &found);
            if (parameter)
                profile.m_Parameters.append(*parameter);
        }
    }
    *problems = found.Lines();
    return found.IsEmpty() ? std::optional<TProfile>(profile) : std::nullopt;
}
