#pragma once

#include "colors/ColorContrast.h"

#include <QAbstractListModel>
#include <QList>

/// How well each colour of a scheme can be told from what is behind it, as `ContrastModel` in QML. Follows every change
/// of a colour.
///
/// @code
/// ListView { model: ContrastModel { day: false }; delegate: Text { text: model.element + " " + model.ratioText } }
/// @endcode
///
/// Roles: element and ground (titles of the two), elementName and groundName (of their parameters), color, groundColor,
/// ratioText ("5.2:1"), boundText (the least ratio, "4.5:1"), isLegible.
class TContrastModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(bool day READ IsDay WRITE SetDay NOTIFY dayChanged) ///< which scheme; true at first

public:
    explicit TContrastModel(QObject* parent = nullptr);

    bool IsDay() const { return m_IsDay; }
    void SetDay(bool day);

    int rowCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void dayChanged();

private:
    QList<tagContrastCheck> Checks() const;

    bool m_IsDay;
    QList<tagContrastCheck> m_Checks;
};
