#include "settings/TParameterModel.h"

#include "settings/ParameterTexts.h"
#include "settings/ParameterTitles.h"

#include "parameters/TParameterCatalogue.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace {

QString Name(const tagParameter& parameter) { return parameter.name; }
QString Type(const tagParameter& parameter) { return TParameterCatalogue::TypeName(parameter.type); }

struct tagRole
{
    const char* name;
    QString (*text)(const tagParameter& parameter);
};

constexpr tagRole Roles[] = {
    {"name", Name}, {"title", ParameterTitles::Title}, {"meaning", ParameterTitles::Meaning},
    {"type", Type}, {"group", ParameterTitles::Group},
};

/// All that a search looks at, with a character between the texts that nobody types.
QString Searched(const tagParameter& parameter)
{
    QStringList texts = {ParameterTitles::Title(parameter), ParameterTitles::Meaning(parameter), parameter.name};
    const QVariantList choices = ParameterTexts::Choices(parameter);
    for (const QVariant& choice : choices)
        texts.append(choice.toMap().value(QLatin1String("text")).toString());
    return texts.join(QLatin1Char('\n'));
}

} // namespace

TParameterModel::TParameterModel(QObject* parent) : QAbstractListModel(parent) { Select(); }

void TParameterModel::SetGroup(const QString& group)
{
    if (group == m_Group)
        return;
    m_Group = group;
    Select();
    emit groupChanged();
}

void TParameterModel::SetSearch(const QString& search)
{
    if (search == m_Search)
        return;
    m_Search = search;
    Select();
    emit searchChanged();
}

int TParameterModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_Rows.size());
}

QVariant TParameterModel::data(const QModelIndex& index, int role) const
{
    const int i = role - Qt::UserRole;
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || i < 0 || i >= static_cast<int>(std::size(Roles)))
        return QVariant();
    return Roles[i].text(*m_Rows.at(index.row()));
}

QHash<int, QByteArray> TParameterModel::roleNames() const
{
    QHash<int, QByteArray> names;
    int role = Qt::UserRole;
    for (const tagRole& row : Roles)
        names.insert(role++, row.name);
    return names;
}

void TParameterModel::Select()
{
    static const QRegularExpression blanks(QLatin1String("\\s+"));
    const QStringList words = m_Search.split(blanks, Qt::SkipEmptyParts);
    QVector<const tagParameter*> rows;
    for (const tagParameter& parameter : TParameterCatalogue::Parameters()) {
        const QString searched = words.isEmpty() ? QString() : Searched(parameter);
        const bool isFound = std::all_of(words.begin(), words.end(), [&searched](const QString& word) {
            return searched.contains(word, Qt::CaseInsensitive);
        });
        if (isFound && (m_Group.isEmpty() || parameter.name.startsWith(m_Group + QLatin1Char('.'))))
            rows.append(&parameter);
    }
    std::sort(rows.begin(), rows.end(), [](const tagParameter* left, const tagParameter* right) {
        return ParameterTitles::Place(*left) < ParameterTitles::Place(*right);
    });
    if (rows == m_Rows)
        return;
    beginResetModel();
    m_Rows = rows;
    endResetModel();
    emit countChanged();
}
