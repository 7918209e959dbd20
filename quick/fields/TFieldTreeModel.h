#pragma once

#include "fields/TFieldTree.h"

#include <QAbstractListModel>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

/// The clients of the terminal, or the farms, fields or jobs in one of them. In QML it is FieldTree.
///
/// The disk is read and changed in a thread of its own. Each of add(), rename(), remove() and choose() ends with
/// done(), once; then the list is up to date. It follows changes of the selection, too. Calls that come while one is in
/// work are done one after the other.
class TFieldTreeModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(QStringList path READ Path WRITE SetPath NOTIFY pathChanged)
    Q_PROPERTY(QString level READ Level NOTIFY pathChanged)
    Q_PROPERTY(int count READ Count NOTIFY countChanged)
    Q_PROPERTY(bool busy READ IsBusy NOTIFY busyChanged)
    Q_PROPERTY(QString error READ Error NOTIFY errorChanged)
    Q_PROPERTY(bool refused READ IsRefused NOTIFY errorChanged)

public:
    enum ERole
    {
        ROLE_NAME = Qt::UserRole,
        ROLE_IS_ACTIVE, ///< it is selected, or holds what is
        ROLE_FILES,     ///< at any depth
        ROLE_BYTES,
        ROLE_SIZE_TEXT, ///< "3 files, 12.4 kB"
    };

    explicit TFieldTreeModel(QObject* parent = nullptr);

    /// The names above the items: none for the clients, three for the jobs of a field. A longer path has no items.
    QStringList Path() const { return m_Path; }
    void SetPath(const QStringList& path);

    /// "client", "farm", "field" or "job"; empty below a job.
    QString Level() const;

    int Count() const { return static_cast<int>(m_Items.size()); }

    /// Whether the disk is being read or changed.
    bool IsBusy() const { return m_Jobs > 0; }

    /// What was wrong with the last call, or with the last reading of the list; empty when it has succeeded.
    QString Error() const { return m_Error; }

    /// Whether the last remove() was refused because data or the selection would be lost, so that force does it.
    bool IsRefused() const { return m_IsRefused; }

    /// Empty when an item of this list may get the name, else why not.
    Q_INVOKABLE QString checkName(const QString& name) const;

    Q_INVOKABLE void add(const QString& name);
    Q_INVOKABLE void rename(const QString& name, const QString& newName);
    Q_INVOKABLE void remove(const QString& name, bool force);

    /// Selects an item and those above it. What was selected below it stays only when the item was selected already.
    Q_INVOKABLE void choose(const QString& name);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void pathChanged();
    void countChanged();
    void busyChanged();
    void errorChanged();
    void done(bool ok, const QString& error);

private:
    struct tagResult
    {
        EFieldResult result;
        QString error;
    };

    struct tagListing
    {
        QStringList path;
        QList<tagFieldItem> items;
        QString error;
    };

    using TOperation = std::function<EFieldResult(TFieldTree& tree, QString* error)>;

    void Run(const TOperation& operation);
    void Read();
    void Take(const tagListing& listing);
    void CountJobs(int change);
    void SetError(const QString& error, bool isRefused);

    QStringList m_Path;
    QList<tagFieldItem> m_Items;
    int m_Jobs = 0;
    int m_Readings = 0; ///< begun; only the result of the last one is taken
    QString m_Error;
    bool m_IsRefused = false;
};
