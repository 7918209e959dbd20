#pragma once

#include "console/line/Usage.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

/// The command line of one command: its options, its help, and what is wrong with what was typed.
///
/// \code
/// TCommandLine line("get", "PARAMETER", "Prints the value of a parameter.", "cabsettings get units.metric");
/// line.AddJsonOption("Prints an object.");
/// if (const auto status = line.Read(arguments, 1, 1))
///     return *status;
/// \endcode
///
/// Options are typed with two dashes, those of one letter with one; their value follows as the next argument or behind
/// "=". A negative number is an argument and not an option, and so is everything that follows "--".
///
/// QCommandLineParser would take a negative number for an option, and its messages do not say which option or value was
/// meant.
class TCommandLine
{
public:
    /// @param arguments the arguments after the command's name, for instance "PARAMETER VALUE".
    /// @param description one paragraph.
    /// @param example a complete line to try.
    TCommandLine(const QString& command, const QString& arguments, const QString& description, const QString& example);

    /// @param name without its dashes.
    void AddOption(const QString& name, const QString& description, const QString& valueName = QString(),
                   const QString& defaultValue = QString());

    /// Adds "--json"; WantsJson() tells whether it was given.
    /// @param description what is printed, for instance "Prints an object: kind, name."
    void AddJsonOption(const QString& description);
    bool WantsJson() const;

    /// What the shell offers for @p placeholder, where that depends on the terminal. Called within Read(), when the
    /// shell asks; the options that were typed are known then.
    void Offer(const QString& placeholder, const std::function<QStringList()>& words);

    /// Reads the arguments, the command's name first. A status when there is nothing more to do: help was printed, or
    /// the line was wrong and a message told so.
    /// @param fewest @param most how many arguments are expected beside the options.
    std::optional<int> Read(const QStringList& arguments, int fewest, int most);

    bool IsSet(const QString& option) const;

    /// The value that was given last; the default when none was.
    QString Value(const QString& option) const;

    /// All values, in the order in which they were given.
    QStringList Values(const QString& option) const;

    /// The arguments that are no options.
    QStringList Words() const { return m_Words; }

    /// The option's value as a finite number; nothing, after a message, when it is none, or outside a range.
    std::optional<double> Number(const QString& option) const;
    std::optional<double> Number(const QString& option, double least, double greatest) const;
    std::optional<int> WholeNumber(const QString& option, int least, int greatest) const;

    /// Prints a message about what was typed, with a pointer to the help, and returns STATUS_MISUSED.
    int Misused(const QString& text) const;

    /// Misused() for the value of an option.
    int InvalidValue(const QString& option, const QString& expected) const;

private:
    /// Takes the arguments apart. Empty, or what is wrong with them.
    QString Parse(const QStringList& arguments);

    /// Takes the option at @p at, and moves @p at to its value when that is the next argument.
    QString TakeOption(const QStringList& arguments, int* at);
    void PrintWordsToCome() const;

    tagUsage m_Usage;
    QHash<QString, QStringList> m_Given; ///< the values of the options that were given, by name with dashes
    QHash<QString, std::function<QStringList()>> m_Offered; ///< by placeholder
    QStringList m_Words;
};
