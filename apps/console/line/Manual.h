#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// The manual page, written by the commands themselves: "cabsettings --manual" prints it.
namespace Manual {

struct tagOption
{
    QString name; ///< with its dashes
    QString description;
    QString valueName; ///< empty for one that takes none
};

/// Whether the line asks a command for its part of the page.
bool IsAsked(const QStringList& arguments);

/// Prints what stands before and behind the commands.
void PrintHead();
void PrintTail();

/// Prints the part of one command.
void PrintCommand(const QString& synopsis, const QString& description, const QList<tagOption>& options,
                  const QString& example);

} // namespace Manual
