#pragma once

#include "platform/EParamID.h"
#include "stores/TSqliteStore.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QVariant>

#include <memory>

/// Any number as a parameter's.
inline EParamID Param(int id) { return static_cast<EParamID>(id); }

/// A folder in memory where that is possible: tests that open hundreds of stores would wait for the disk each time.
std::unique_ptr<QTemporaryDir> MakeFolder();

/// Opens a store; a reason for failing is said as a warning of the test.
std::unique_ptr<TSqliteStore> OpenStore(const QString& path);

/// Within so many milliseconds stores that share a file have the same values.
const int SharingMilliseconds = 1000;

/// How long tests wait for what happens soon, however slow the machine.
const int SoonMilliseconds = 60000;

/// What the file holds: opens it as a store, reads everything and closes it.
QMap<int, QVariant> StoredValues(const QString& path);

QByteArray FileBytes(const QString& path);
void SetFileBytes(const QString& path, const QByteArray& bytes);

/// Names in the folder of @p path, in order.
QStringList NamesBeside(const QString& path);

/// Runs a statement in an SQLite file without the store's doing; the first value of the first row.
QVariant RunSql(const QString& path, const QString& statement);

/// Takes what goes to standard error while it lives.
class TStandardErrorCapture
{
public:
    TStandardErrorCapture();
    ~TStandardErrorCapture();

    QStringList Lines();

private:
    QTemporaryFile m_File;
    int m_Original;
};

/// A child that runs this program again with other arguments and talks on its standard output.
class TChild
{
public:
    explicit TChild(const QStringList& arguments);
    ~TChild();

    /// The next number the child has told; -1 at the end of its output.
    int NextNumber();

    /// Kills it, unless it has ended.
    void Kill();

    /// Waits for its end. @return whether SIGKILL ended it.
    bool WasKilled();

    /// For the child: tells a number at once.
    static void Tell(int number);

    /// For the child: ends it as `kill -9` does.
    [[noreturn]] static void KillMyself();

private:
    int m_Process;
    int m_Output;
};
