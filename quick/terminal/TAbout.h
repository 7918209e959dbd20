#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QString>

/// What the program is made of, with versions and licences: its own software first, then the libraries, then what the
/// program has added.
class TAbout : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ Count NOTIFY countChanged)

public:
    enum ERole
    {
        ROLE_NAME = Qt::UserRole,
        ROLE_VERSION, ///< empty when it is not known
        ROLE_LICENCE, ///< an SPDX identifier; empty for the display's own software
        ROLE_TEXT,    ///< what it is for
    };

    struct tagPart
    {
        QString name;
        QString version;
        QString licence;
        QString text;
    };

    explicit TAbout(QObject* parent);

    void Add(const tagPart& part);

    int Count() const { return static_cast<int>(m_Parts.size()); }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void countChanged();

private:
    QList<tagPart> m_Parts;
};
