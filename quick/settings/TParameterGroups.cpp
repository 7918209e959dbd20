#include "settings/TParameterGroups.h"

#include "settings/ParameterTitles.h"

namespace {

enum ERole : int
{
    ROLE_GROUP = Qt::UserRole,
    ROLE_TITLE,
};

} // namespace

TParameterGroups::TParameterGroups(QObject* parent) : QAbstractListModel(parent) {}

int TParameterGroups::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(ParameterTitles::Groups().size());
}

QVariant TParameterGroups::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return QVariant();
    const QString group = ParameterTitles::Groups().at(index.row());
    switch (role) {
    case ROLE_GROUP:
        return group;
    case ROLE_TITLE:
        return ParameterTitles::GroupTitle(group);
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> TParameterGroups::roleNames() const { return {{ROLE_GROUP, "group"}, {ROLE_TITLE, "title"}}; }
