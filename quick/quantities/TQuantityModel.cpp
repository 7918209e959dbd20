#include "quantities/TQuantityModel.h"

#include "module/TParameterHub.h"

namespace {

constexpr double PreviewError = 1.33; // percent

enum ERole : int
{
    ROLE_KIND = Qt::UserRole,
    ROLE_TITLE,
    ROLE_TEXT,
    ROLE_NUMBER,
    ROLE_UNIT,
};

tagQuantityText Preview(int row)
{
    const auto kind = static_cast<TQuantity::EKind>(row);
    return Quantities::Show(kind, Quantities::Preview(kind), PreviewError, -1);
}

} // namespace

TQuantityModel::TQuantityModel(QObject* parent) : QAbstractListModel(parent)
{
    connect(&TParameterHub::Instance(), &TParameterHub::Changed, this, &TQuantityModel::Look);
    for (int row = 0; row < TQuantity::KindCount; ++row)
        m_Texts.append(Preview(row));
}

int TQuantityModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_Texts.size());
}

QVariant TQuantityModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return QVariant();
    const tagQuantityText& shown = m_Texts.at(index.row());
    switch (role) {
    case ROLE_KIND:
        return index.row();
    case ROLE_TITLE:
        return Quantities::Title(static_cast<TQuantity::EKind>(index.row()));
    case ROLE_TEXT:
        return shown.text;
    case ROLE_NUMBER:
        return shown.number;
    case ROLE_UNIT:
        return shown.unit;
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> TQuantityModel::roleNames() const
{
    return {
        {ROLE_KIND, "kind"}, {ROLE_TITLE, "title"}, {ROLE_TEXT, "text"}, {ROLE_NUMBER, "number"}, {ROLE_UNIT, "unit"}};
}

void TQuantityModel::Look()
{
    for (int row = 0; row < m_Texts.size(); ++row) {
        const tagQuantityText now = Preview(row);
        if (now.text == m_Texts.at(row).text)
            continue;
        m_Texts[row] = now;
        emit dataChanged(index(row), index(row), {ROLE_TEXT, ROLE_NUMBER, ROLE_UNIT});
    }
}
