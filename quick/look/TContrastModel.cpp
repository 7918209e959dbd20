#include "look/TContrastModel.h"

#include "module/TParameterHub.h"
#include "settings/ParameterTitles.h"

#include "parameters/TParameterCatalogue.h"
#include "stores/TSqliteStore.h"
#include "units/TUnits.h"

#include <iterator>

namespace {

using Check = tagContrastCheck;

QString Name(const Check& check, const QString& element)
{
    return QString::fromLatin1("colors.%1.%2").arg(QLatin1String(check.isDay ? "day" : "night"), element);
}

QString Title(const Check& check, const QString& element)
{
    return ParameterTitles::Element(*TParameterCatalogue::Find(Name(check, element)));
}

QString Ratio(double ratio) { return TUnits::GetValueString(ratio, QLatin1String(":1"), 1, nullptr); }

struct tagRole
{
    const char* name;
    QVariant (*value)(const Check& check);
};

const tagRole Roles[] = {
    {"element", [](const Check& check) -> QVariant { return Title(check, check.element); }},
    {"ground", [](const Check& check) -> QVariant { return Title(check, check.ground); }},
    {"elementName", [](const Check& check) -> QVariant { return Name(check, check.element); }},
    {"groundName", [](const Check& check) -> QVariant { return Name(check, check.ground); }},
    {"color", [](const Check& check) -> QVariant { return check.color; }},
    {"groundColor", [](const Check& check) -> QVariant { return check.groundColor; }},
    {"ratioText", [](const Check& check) -> QVariant { return Ratio(check.ratio); }},
    {"boundText", [](const Check& check) -> QVariant { return Ratio(check.bound); }},
    {"isLegible", [](const Check& check) -> QVariant { return check.isLegible; }},
};

bool IsSame(const Check& one, const Check& other)
{
    return one.color == other.color && one.groundColor == other.groundColor;
}

} // namespace

TContrastModel::TContrastModel(QObject* parent) : QAbstractListModel(parent), m_IsDay(true), m_Checks(Checks())
{
    connect(&TParameterHub::Instance(), &TParameterHub::Changed, this, [this](int number) {
        const tagParameter* const parameter = TParameterCatalogue::Find(number);
        if (!parameter || parameter->type != PARAMETER_COLOR)
            return;
        const QList<Check> before = m_Checks;
        m_Checks = Checks();
        for (int row = 0; row < m_Checks.size(); ++row) {
            if (!IsSame(before.at(row), m_Checks.at(row)))
                emit dataChanged(index(row), index(row));
        }
    });
}

void TContrastModel::SetDay(bool day)
{
    if (day == m_IsDay)
        return;
    beginResetModel();
    m_IsDay = day;
    m_Checks = Checks();
    endResetModel();
    emit dayChanged();
}

int TContrastModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_Checks.size());
}

QVariant TContrastModel::data(const QModelIndex& index, int role) const
{
    const int i = role - Qt::UserRole;
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || i < 0 || i >= static_cast<int>(std::size(Roles)))
        return QVariant();
    return Roles[i].value(m_Checks.at(index.row()));
}

QHash<int, QByteArray> TContrastModel::roleNames() const
{
    QHash<int, QByteArray> names;
    int role = Qt::UserRole;
    for (const tagRole& row : Roles)
        names.insert(role++, row.name);
    return names;
}

QList<tagContrastCheck> TContrastModel::Checks() const
{
    QList<Check> checks;
    const QList<Check> all = CheckContrasts(TParameterHub::Instance().Store());
    for (const Check& check : all) {
        if (check.isDay == m_IsDay)
            checks.append(check);
    }
    return checks;
}
