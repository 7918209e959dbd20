#pragma once

#include <QString>
#include <QStringList>

#include <cstddef>

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
    QString dataFolder; ///< stands for the terminal; see DataFolder
};

/// One word behind "cabsettings".
struct tagCommand
{
    const char* name;
    const char* summary;
    int (*run)(const tagContext& context, const QStringList& arguments); ///< arguments[0] is the command's own name
};

/// Runs the command that arguments[0] names, with what stands behind it; prints the list of commands for "--help", and
/// says what is accepted for anything else.
int Dispatch(const QString& program, const tagCommand* commands, std::size_t count, const tagContext& context,
             const QStringList& arguments);

template <std::size_t Count>
int Dispatch(const QString& program, const tagCommand (&commands)[Count], const tagContext& context,
             const QStringList& arguments)
{
    return Dispatch(program, commands, Count, context, arguments);
}
