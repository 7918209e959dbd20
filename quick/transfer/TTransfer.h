#pragma once

#include "transfer/TransferJobs.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>

class TShownTransfer;

/// Exports to the stick, and imports from it. In QML it is Transfer.
///
/// A transfer is done in a thread of its own, one after the other for all objects. It is Done only when all of it is on
/// the stick. A transfer goes on when its object is destroyed; when it fails, that is among the problems as well.
class TTransfer : public QObject
{
    Q_OBJECT
    Q_PROPERTY(EState state READ State NOTIFY stateChanged)
    Q_PROPERTY(double progress READ Progress NOTIFY progressChanged)
    Q_PROPERTY(QString error READ Error NOTIFY stateChanged)
    Q_PROPERTY(QString result READ Result NOTIFY stateChanged)
    Q_PROPERTY(QVariantList changes READ Changes NOTIFY differencesChanged)
    Q_PROPERTY(QVariantList conflicts READ Conflicts NOTIFY differencesChanged)

public:
    enum EState
    {
        Idle,
        Running,
        Done,
        Failed,
    };
    Q_ENUM(EState)

    explicit TTransfer(QObject* parent = nullptr);

    EState State() const;
    double Progress() const; ///< 0 to 1
    QString Error() const;   ///< empty when it has not failed
    QString Result() const;  ///< empty when it is not done

    /// Of the last comparison or import: maps of name, title, ours, theirs and base, with texts as the operator reads
    /// them. A conflict was changed here and in the profile; it is not among the changes unless it is resolved to
    /// theirs.
    QVariantList Changes() const { return m_Changes; }
    QVariantList Conflicts() const { return m_Conflicts; }

    // Each function begins a transfer, and does nothing while one of this object is running.

    Q_INVOKABLE void exportLogs();

    /// @param name of the file in the root of the stick; a file of that name is replaced.
    /// @param groups of ProfileGroups; all when it is empty.
    Q_INVOKABLE void exportProfile(const QString& name, const QStringList& groups);

    /// Fills changes and conflicts, and leaves the state Idle.
    /// @param file a path, as profiles() tells it.
    Q_INVOKABLE void compareProfile(const QString& file);

    /// @param resolution of conflicts: "ours" keeps the values of this display, "theirs" takes those of the profile;
    /// with
    ///        anything else nothing is imported when there is a conflict.
    Q_INVOKABLE void importProfile(const QString& file, const QString& resolution);

    /// @param anonymous without the names of clients, farms and fields, and without positions.
    Q_INVOKABLE void writeSupport(bool anonymous);

    /// The profiles on the stick, as of the last look: maps of file, name and text. Begins another look;
    /// profilesChanged() tells when it has found others.
    Q_INVOKABLE QVariantList profiles();

    /// Empty when a profile may have the name, else why not.
    Q_INVOKABLE QString checkName(const QString& name) const;

signals:
    void stateChanged();
    void progressChanged();
    void differencesChanged();
    void profilesChanged();

private:
    /// @param after the state in which the transfer ends when it is done.
    template <class Job>
    void Begin(Job job, EState after = Done);
    TTransferProgress ProgressTeller();
    void SetState(EState state, const QString& text = QString());
    void SetProgress(double progress);
    void Take(const tagTransferResult& result, EState after);

    const TShownTransfer& m_Shown;
    EState m_State = Idle;
    double m_Progress = 0;
    QString m_Text;
    QVariantList m_Changes;
    QVariantList m_Conflicts;
    QVariantList m_Profiles;
    bool m_IsLooking = false;
};
