#pragma once

#include "quantities/Quantities.h"

#include <QAbstractListModel>
#include <QVector>

/// Every kind of quantity with a value to look at, as `QuantityModel` in QML: what a choice of units does, live.
///
/// @code
/// ListView { model: QuantityModel {}; delegate: Text { text: model.title + ": " + model.text } }
/// @endcode
///
/// Roles: kind, title, text, number, unit.
class TQuantityModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit TQuantityModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    void Look();

    QVector<tagQuantityText> m_Texts; // by kind
};
