#include "terminal/TProblems.h"

#include "module/CabQuick.h"
#include "module/SharedObject.h"
#include "region/TRegionSettingsProxy.h"
#include "terminal/TProblemWatch.h"

namespace {

/// Calls @p change with the list in the thread of the module; not at all when nothing is published.
template <class Change>
void InModule(Change change)
{
    if (!TParameterHub::IsPublished())
        return;
    QMetaObject::invokeMethod(
        &TParameterHub::Instance(), [change] { change(*SharedObject<TProblems>()); }, Qt::AutoConnection);
}

} // namespace

TProblems::TProblems(QObject* parent) : QAbstractListModel(parent) { new TProblemWatch(*this); }

void TProblems::Set(const QString& key, const QString& text)
{
    const QString first = First();
    const int row = RowOf(key);
    if (row < 0) {
        beginInsertRows(QModelIndex(), 0, 0);
        m_Problems.prepend({key, text, TRegionSettingsProxy().GetTimeString(), ++m_Appearances});
        endInsertRows();
        emit countChanged();
    } else if (m_Problems.at(row).text != text) {
        m_Problems[row].text = text;
        emit dataChanged(index(row), index(row), {ROLE_TEXT});
    }
    TellFirst(first);
}

void TProblems::Clear(const QString& key)
{
    const int row = RowOf(key);
    if (row < 0)
        return;
    const QString first = First();
    beginRemoveRows(QModelIndex(), row, row);
    m_Problems.removeAt(row);
    endRemoveRows();
    emit countChanged();
    TellFirst(first);
}

void TProblems::Keep(const QString& key, bool isThere, const QString& text)
{
    if (isThere)
        Set(key, text);
    else
        Clear(key);
}

int TProblems::Appearance(const QString& key) const
{
    const int row = RowOf(key);
    return row < 0 ? 0 : m_Problems.at(row).appearance;
}

QString TProblems::First() const { return m_Problems.isEmpty() ? QString() : m_Problems.first().text; }

int TProblems::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : Count(); }

QVariant TProblems::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= Count())
        return QVariant();
    const tagProblem& problem = m_Problems.at(index.row());
    switch (role) {
    case ROLE_KEY:
        return problem.key;
    case ROLE_TEXT:
        return problem.text;
    case ROLE_SINCE:
        return problem.since;
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> TProblems::roleNames() const
{
    return {{ROLE_KEY, "key"}, {ROLE_TEXT, "text"}, {ROLE_SINCE, "since"}};
}

int TProblems::RowOf(const QString& key) const
{
    for (int row = 0; row < Count(); ++row) {
        if (m_Problems.at(row).key == key)
            return row;
    }
    return -1;
}

void TProblems::TellFirst(const QString& before)
{
    if (First() != before)
        emit firstChanged();
}

void CabQuick::SetProblem(const QString& key, const QString& text)
{
    InModule([key, text](TProblems& problems) { problems.Set(key, text); });
}

void CabQuick::ClearProblem(const QString& key)
{
    InModule([key](TProblems& problems) { problems.Clear(key); });
}
