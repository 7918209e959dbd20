#pragma once

#include <QAbstractListModel>
#include <QDateTime>
#include <QList>
#include <QString>

/// What the operator should know now: one sentence for each problem, the newest first. A problem that is over is not in
/// the list any more.
class TProblems : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ Count NOTIFY countChanged)
    Q_PROPERTY(QString first READ First NOTIFY firstChanged)

public:
    enum ERole
    {
        ROLE_KEY = Qt::UserRole,
        ROLE_TEXT,
        ROLE_SINCE, ///< the display's local time, as text
    };

    explicit TProblems(QObject* parent);

    /// Adds a problem, or changes its text. Its time is that of the first call.
    void Set(const QString& key, const QString& text);

    /// Does nothing when there is no such problem.
    void Clear(const QString& key);

    /// Sets the problem while @p isThere, else clears it.
    void Keep(const QString& key, bool isThere, const QString& text);

    /// The number of this appearance of the problem; each new appearance of any problem has a larger one. 0 when there
    /// is no such problem. A look whether a problem is over compares the numbers before and after: the problem may have
    /// come again meanwhile.
    int Appearance(const QString& key) const;

    int Count() const { return static_cast<int>(m_Problems.size()); }

    /// The text of the newest problem; empty without one.
    QString First() const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void countChanged();
    void firstChanged();

private:
    struct tagProblem
    {
        QString key;
        QString text;
        QString since;
        int appearance;
    };

    int RowOf(const QString& key) const;
    void TellFirst(const QString& before);

    QList<tagProblem> m_Problems;
    int m_Appearances = 0;
};
