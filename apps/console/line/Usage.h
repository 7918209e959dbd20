#pragma once

#include <QList>
#include <QString>

/// An option of a command.
struct tagOption
{
    QString name; ///< with its dashes
    QString description;
    QString valueName; ///< of the value that follows it; empty for an option without one
    QString defaultValue;

    bool TakesValue() const { return !valueName.isEmpty(); }

    /// The description with the default value, where there is one.
    QString Help() const;
};

/// What a command accepts, for its help and for the manual page.
struct tagUsage
{
    QString command;   ///< "get", "log tail"
    QString arguments; ///< behind the command's name: "PARAMETER VALUE", "[LOG]"; empty when there are none
    QString description;
    QString example;
    QList<tagOption> options;

    /// "get [options] PARAMETER"
    QString Synopsis() const;

    /// Null when there is no option of that name.
    const tagOption* Find(const QString& name) const;
};

/// Prints the help of one command.
void PrintHelp(const tagUsage& usage);
