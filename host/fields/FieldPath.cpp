#include "fields/FieldPath.h"

#include "fields/FieldPlaces.h"
#include "parameters/ItemNames.h"
#include "parameters/TParameterCatalogue.h"

namespace {

const QLatin1Char Separator('/');

bool IsAccepted(const FieldPlaces::tagLevel& level, const QString& name, QString* error)
{
    const int mostBytes = TParameterCatalogue::Find(level.parameter)->mostBytes;
    const QLatin1String kind(level.kind);
    if (name.isEmpty()) {
        *error = QString::fromLatin1("the name of the %1 is empty").arg(kind);
        return false;
    }
    const QString problem = ItemNames::Problem(name, mostBytes);
    if (!problem.isEmpty())
        *error = QString::fromLatin1("invalid %1 \"%2\": the name %3; did you mean \"%4\"?")
                     .arg(kind, name, problem, ItemNames::Suggestion(name, mostBytes));
    return problem.isEmpty();
}

} // namespace

QStringList FieldPath::Read(const QString& text, QString* error)
{
    QStringList names = text.split(Separator);
    if (names.size() > MostNames) {
        *error = QString::fromLatin1("invalid path \"%1\": it has %2 names; expected CLIENT[/FARM[/FIELD[/JOB]]]")
                     .arg(text)
                     .arg(names.size());
        return {};
    }
    for (int i = 0; i < names.size(); ++i) {
        if (!IsAccepted(FieldPlaces::Levels[i], names.at(i), error)) {
            if (names.at(i).isEmpty())
                *error = QString::fromLatin1("invalid path \"%1\": %2; expected CLIENT[/FARM[/FIELD[/JOB]]]")
                             .arg(text, *error);
            return {};
        }
    }
    return names;
}

bool FieldPath::IsName(const QStringList& path, const QString& name, QString* error)
{
    return IsAccepted(FieldPlaces::LevelOf(path), name, error);
}

QString FieldPath::Text(const QStringList& path) { return path.join(Separator); }

QString FieldPath::Kind(const QStringList& path) { return QLatin1String(FieldPlaces::LevelOf(path).kind); }

QString FieldPath::Folded(const QString& name)
{
    // Folding can compose letters anew, so the result is decomposed once more.
    const QString folded = name.normalized(QString::NormalizationForm_D).toCaseFolded();
    return folded.normalized(QString::NormalizationForm_D);
}
