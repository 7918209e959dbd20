#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// Exit status of the program.
enum EStatus : int
{
    STATUS_DONE = 0,
    STATUS_FAILED = 1, ///< the thing itself failed
    STATUS_MISUSED = 2 ///< the command line was wrong
};

/// What every command works on.
struct tagContext
{
    QString dataFolder; ///< the folder of one terminal; see DataFolder
};

/// One word behind "cabsettings".
struct tagCommand
{
    const char* name;
    const char* summary;
    int (*run)(const tagContext& context, const QStringList& arguments); ///< arguments[0] is the command's own name
};

/// Runs the command that arguments[0] names, with all arguments. Prints the list of commands for "--help", and
/// a message for anything else.
/// @param group the commands' common first word, "log"; empty for the program's own.
int Dispatch(const QString& group, const std::vector<tagCommand>& commands, const tagContext& context,
             const QStringList& arguments);
