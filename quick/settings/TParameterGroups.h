#pragma once

#include <QAbstractListModel>

/// The groups of the parameters, as the singleton `ParameterGroups` in QML: a list with the roles group ("units") and
/// title ("Units").
///
/// @code
/// ListView { model: ParameterGroups; delegate: ListRow { text: model.title; onTapped: page.group = model.group } }
/// @endcode
class TParameterGroups : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit TParameterGroups(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
};
