#pragma once

#include <QAbstractListModel>
#include <QString>
#include <QVector>

struct tagParameter;

/// The parameters of the terminal as a list, as `ParameterModel` in QML: all, or those of a group, or those that a
/// search finds. Group and search together give what both let through.
///
/// @code
/// ListView {
///     model: ParameterModel { group: "units" }
///     delegate: SettingRow { name: model.name } // which has a Parameter of that name
/// }
/// @endcode
class TParameterModel : public QAbstractListModel
{
    Q_OBJECT

    /// The text before a full stop of the name: "colors", or "colors.day" for a part of the group. Empty: all groups.
    Q_PROPERTY(QString group READ Group WRITE SetGroup NOTIFY groupChanged)

    /// Each of its words must occur in the title, the meaning, the name, or the text of a choice. Empty: all.
    Q_PROPERTY(QString search READ Search WRITE SetSearch NOTIFY searchChanged)

    Q_PROPERTY(int count READ Count NOTIFY countChanged)

public:
    explicit TParameterModel(QObject* parent = nullptr);

    QString Group() const { return m_Group; }
    void SetGroup(const QString& group);
    QString Search() const { return m_Search; }
    void SetSearch(const QString& search);
    int Count() const { return rowCount({}); }

    /// Roles: name, title, meaning, type, group.
    int rowCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void groupChanged();
    void searchChanged();
    void countChanged();

private:
    void Select();

    QString m_Group;
    QString m_Search;
    QVector<const tagParameter*> m_Rows;
};
