#include "terminal/TSelections.h"

#include "fields/FieldPath.h"
#include "guidance/LineRename.h"
#include "module/TParameterHub.h"
#include "settings/ParameterTexts.h"
#include "stores/TChangeAuthor.h"
#include "stores/TSqliteStore.h"
#include "terminal/ActiveItems.h"
#include "texts/HostText.h"

#include <QCoreApplication>

#include <algorithm>

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

QString TSelections::checkLineName(const QString& name, const QString& newName) const
{
    const QString kind = QStringLiteral("abLine");
    QString error = check(kind, newName);
    if (!error.isEmpty() || newName == name)
        return error;
    const QStringList names = list(kind);
    const bool isTaken = std::any_of(names.begin(), names.end(), [&](const QString& other) {
        return other != name && FieldPath::Folded(other) == FieldPath::Folded(newName);
    });
    return isTaken ? QCoreApplication::translate("TFieldTreeModel", "There is one with this name already.") : QString();
}

QString TSelections::renameLine(const QString& name, const QString& newName)
{
    const TChangeAuthor author(CHANGE_AUTHOR_OPERATOR);
    QString error;
    RenameGuidanceLine(TParameterHub::Instance().Store(), name, newName, &error);
    return CabQuick::HostText(error);
}

QString TSelections::shown(const QString& name) const { return ParameterTexts::ItemName(name); }
