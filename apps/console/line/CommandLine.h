#pragma once

#include "console/line/Manual.h"

#include <QCommandLineParser>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// The command line of one command: its options, its help, and what is wrong with what was typed.
class TCommandLine
{
public:
    /// @param usage what stands behind the command's name, for instance "NUMBER VALUE".
    /// @param description one paragraph.
    /// @param example a complete line to try.
    TCommandLine(const QString& command, const QString& usage, const QString& description, const QString& example);

    void AddOption(const QString& name, const QString& description, const QString& valueName = QString(),
                   const QString& defaultValue = QString());

    /// Adds "--json"; WantsJson() tells whether it was given.
    /// @param description what is printed, for instance "Prints an object: kind, name."
    void AddJsonOption(const QString& description);
    bool WantsJson() const;

    /// Reads the arguments, the command's name first. A status when there is nothing more to do: help was asked for and
    /// printed, or the line was wrong, which was said.
    /// @param fewest @param most how many words are expected that are no options.
    std::optional<int> Read(const QStringList& arguments, int fewest, int most);

    bool IsSet(const QString& option) const { return m_Parser.isSet(option); }
    QString Value(const QString& option) const { return m_Parser.value(option); }
    QStringList Values(const QString& option) const { return m_Parser.values(option); }
    QStringList Words() const;

    /// The option's value as a finite number; a line on standard error and nothing when it is none, or outside a range.
    std::optional<double> Number(const QString& option) const;
    std::optional<double> Number(const QString& option, double least, double greatest) const;
    std::optional<int> WholeNumber(const QString& option, int least, int greatest) const;

    /// Says what is wrong, points to the help and gives the status for it.
    int Misused(const QString& text) const;

private:
    bool TakesNextAsValue(const QString& argument) const;

    /// @p arguments with negative numbers marked as the words that they are: the parser would take them for options.
    QStringList WithNumbersAsWords(QStringList arguments) const;
    void PrintHelp() const;
    void PrintWordsToCome() const;

    QString m_Command;
    QString m_Usage;
    QString m_Example;
    QString m_Description;
    QList<Manual::tagOption> m_Options;
    QCommandLineParser m_Parser;
};
