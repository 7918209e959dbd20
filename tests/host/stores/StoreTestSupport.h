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

/// Any number as the number of a parameter.
inline EParamID Param(int id) { return static_cast<EParamID>(id); }

/// Makes a folder, in memory where that is possible, because tests open hundreds of stores; where the environment names
/// a folder for temporary files, in that one.
std::unique_ptr<QTemporaryDir> MakeFolder();

/// Opens a store. When that fails, the reason is a warning of the test.
std::unique_ptr<TSqliteStore> OpenStore(const QString& path);

/// The time in milliseconds within which stores that share a file have the same values.
const int SharingMilliseconds = 1000;

/// How long tests wait for an event, on a slow machine too.
const int SoonMilliseconds = 60000;

/// The values in the file: opens it as a store, reads them and closes it.
QMap<int, QVariant> StoredValues(const QString& path);

QByteArray FileBytes(const QString& path);
void SetFileBytes(const QString& path, const QByteArray& bytes);

/// The sorted names in the folder of @p path.
QStringList NamesBeside(const QString& path);

/// Runs a statement in an SQLite file without a store. Returns the first value of the first row.
QVariant RunSql(const QString& path, const QString& statement);

/// Another program's connection to an SQLite file.
class TOtherProgram
{
public:
    explicit TOtherProgram(const QString& path);
    ~TOtherProgram();

    TOtherProgram(const TOtherProgram&) = delete;
    TOtherProgram& operator=(const TOtherProgram&) = delete;

    void Run(const QString& statement);
};

/// Catches the lines that this process writes to standard error while the object exists.
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

/// A child process that runs this program with other arguments and reports numbers on its standard output.
class TChild
{
public:
    explicit TChild(const QStringList& arguments);
    ~TChild();

    /// The next number that the child has reported; -1 at the end of its output.
    int NextNumber();

    /// Kills the child unless it has ended.
    void Kill();

    /// Waits until the child has ended. @return whether SIGKILL has ended it.
    bool WasKilled();

    /// For the child: reports a number.
    static void Tell(int number);

    /// For the child: ends the process as `kill -9` does.
    [[noreturn]] static void KillMyself();

private:
    int m_Process;
    int m_Output;
};
