#include "terminal/TSelections.h"

#include "module/TParameterHub.h"
#include "settings/ParameterTexts.h"
#include "stores/TChangeAuthor.h"
#include "stores/TSqliteStore.h"
#include "terminal/ActiveItems.h"

namespace {

/// The item of a kind: "abLine" is the kind "ab-line". Null when there is none.
const tagParameter* ItemOf(const QString& kind)
{
    QString name;
    for (const QChar letter : kind) {
        if (letter.isUpper())
            name += QLatin1Char('-');
        name += letter.toLower();
    }
    return ActiveItems::Find(name);
}

} // namespace

TSelections::TSelections(QObject* parent) : QObject(parent)
{
    connect(&TParameterHub::Instance(), &TParameterHub::Changed, this, [this](int number) {
        const tagParameter* const parameter = TParameterCatalogue::Find(number);
        if (parameter && ActiveItems::All().contains(parameter))
            emit changed();
    });
}

QString TSelections::Name(EParamID item) { return ActiveItems::Name(*TParameterCatalogue::Find(item)); }

void TSelections::Select(EParamID item, const QString& name)
{
    const tagParameter& parameter = *TParameterCatalogue::Find(item);
    QString error;
    const bool isAccepted = ParameterTexts::Read(parameter, name, &error).isValid();
    const TChangeAuthor author(CHANGE_AUTHOR_OPERATOR);
    if (isAccepted && !ActiveItems::Select(TParameterHub::Instance().Store(), parameter, name))
        error = tr("The selection could not be stored.");
    if (error != m_Error) {
        m_Error = error;
        emit errorChanged();
    }
}

QString TSelections::check(const QString& kind, const QString& name) const
{
    const tagParameter* const item = ItemOf(kind);
    QString error;
    if (item)
        ParameterTexts::Read(*item, name, &error);
    return error;
}

QStringList TSelections::list(const QString& kind) const
{
    const tagParameter* const item = ItemOf(kind);
    if (!item)
        return QStringList();
    QStringList names = ActiveItems::Available(*item);
    const QString selected = ActiveItems::Name(*item);
    if (!selected.isEmpty() && !names.contains(selected))
        names.prepend(selected);
    return names;
}

QString TSelections::shown(const QString& name) const { return ParameterTexts::ItemName(name); }
