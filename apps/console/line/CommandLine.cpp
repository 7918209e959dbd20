#include "console/line/CommandLine.h"

#include "console/line/Command.h"
#include "console/line/Completion.h"
#include "console/line/Output.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

const char* const HelpOption = "help";
const char* const JsonOption = "json";

/// Put before a negative number, so that the parser takes it for a word. No argument can hold this character.
const QChar WordMark(0);

bool LooksLikeNegativeNumber(const QString& text)
{
    return text.size() > 1 && text.at(0) == QLatin1Char('-') &&
           (text.at(1).isDigit() || text.at(1) == QLatin1Char('.'));
}

/// As people type it: "-n", "--speed".
QString Dashed(const QString& option) { return QLatin1String(option.size() == 1 ? "-" : "--") + option; }

std::optional<double> ToNumber(const QString& text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional<double>(number) : std::nullopt;
}

} // namespace

TCommandLine::TCommandLine(const QString& command, const QString& usage, const QString& description,
                           const QString& example)
    : m_Command(command), m_Usage(usage), m_Example(example), m_Description(description)
{
    m_Parser.setApplicationDescription(description);
    m_Parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const QString help = QLatin1String("Shows this help.");
    m_Options.append({Dashed(QLatin1String(HelpOption)), help, QString()});
    m_Parser.addOption(QCommandLineOption({QLatin1String("h"), QLatin1String(HelpOption)}, help));
}

void TCommandLine::AddOption(const QString& name, const QString& description, const QString& valueName,
                             const QString& defaultValue)
{
    const QString ending = defaultValue.isEmpty() ? QString() : QString::fromLatin1(" [%1]").arg(defaultValue);
    m_Options.append({Dashed(name), description + ending, valueName});
    m_Parser.addOption(QCommandLineOption(name, description + ending, valueName, defaultValue));
}

void TCommandLine::AddJsonOption(const QString& description) { AddOption(QLatin1String(JsonOption), description); }

bool TCommandLine::WantsJson() const { return IsSet(QLatin1String(JsonOption)); }

bool TCommandLine::TakesNextAsValue(const QString& argument) const
{
    return std::any_of(m_Options.begin(), m_Options.end(), [&argument](const Manual::tagOption& option) {
        return argument == option.name && !option.valueName.isEmpty();
    });
}

QStringList TCommandLine::WithNumbersAsWords(QStringList arguments) const
{
    for (int i = 1; i < arguments.size() && arguments.at(i) != QLatin1String("--"); ++i) {
        if (LooksLikeNegativeNumber(arguments.at(i)))
            arguments[i].prepend(WordMark);
        else if (TakesNextAsValue(arguments.at(i)))
            ++i;
    }
    return arguments;
}

QStringList TCommandLine::Words() const
{
    QStringList words = m_Parser.positionalArguments();
    for (QString& word : words) {
        if (word.startsWith(WordMark))
            word.remove(0, 1);
    }
    return words;
}

std::optional<int> TCommandLine::Read(const QStringList& arguments, int fewest, int most)
{
    if (Completion::IsAsked(arguments)) {
        m_Parser.parse(WithNumbersAsWords(arguments.mid(0, arguments.size() - 1)));
        PrintWordsToCome();
        return STATUS_DONE;
    }
    if (Manual::IsAsked(arguments)) {
        Manual::PrintCommand(QString::fromLatin1("%1 [options] %2").arg(m_Command, m_Usage).trimmed(), m_Description,
                             m_Options, m_Example);
        return STATUS_DONE;
    }
    if (!m_Parser.parse(WithNumbersAsWords(arguments)))
        return Misused(m_Parser.errorText());
    if (m_Parser.isSet(QLatin1String(HelpOption))) {
        PrintHelp();
        return STATUS_DONE;
    }
    const int count = static_cast<int>(Words().size());
    if (count < fewest)
        return Misused(QString::fromLatin1("something is missing; expected: %1").arg(m_Usage));
    if (count > most)
        return Misused(QString::fromLatin1("\"%1\" is too much; expected: %2").arg(Words().at(most), m_Usage));
    return std::nullopt;
}

std::optional<double> TCommandLine::Number(const QString& option) const
{
    if (const auto number = ToNumber(Value(option)))
        return number;
    Misused(QString::fromLatin1("%1 takes a number, not \"%2\"").arg(Dashed(option), Value(option)));
    return std::nullopt;
}

std::optional<double> TCommandLine::Number(const QString& option, double least, double greatest) const
{
    const auto number = ToNumber(Value(option));
    if (number && *number >= least && *number <= greatest)
        return number;
    Misused(QString::fromLatin1("%1 takes a number from %2 to %3, not \"%4\"")
                .arg(Dashed(option))
                .arg(least, 0, 'f', -1)
                .arg(greatest, 0, 'f', -1)
                .arg(Value(option)));
    return std::nullopt;
}

std::optional<int> TCommandLine::WholeNumber(const QString& option, int least, int greatest) const
{
    bool isNumber = false;
    const int number = Value(option).toInt(&isNumber);
    if (isNumber && number >= least && number <= greatest)
        return number;
    Misused(QString::fromLatin1("%1 takes a whole number from %2 to %3, not \"%4\"")
                .arg(Dashed(option))
                .arg(least)
                .arg(greatest)
                .arg(Value(option)));
    return std::nullopt;
}

int TCommandLine::Misused(const QString& text) const
{
    QString sentence = text;
    if (sentence.endsWith(QLatin1Char('.')))
        sentence.chop(1);
    return Misuse(QString::fromLatin1("%1: %2 (see cabsettings %1 --help)").arg(m_Command, sentence));
}

void TCommandLine::PrintWordsToCome() const
{
    QStringList words = Completion::Words(m_Usage, Words());
    for (const Manual::tagOption& option : m_Options)
        words.append(option.name);
    for (const QString& word : std::as_const(words))
        PrintLine(word);
}

void TCommandLine::PrintHelp() const
{
    // Qt's text knows nothing of commands: its first line, the usage, is ours.
    const QString text = m_Parser.helpText();
    Print(QString::fromLatin1("Usage: cabsettings [--data DIR] %1 [options] %2\n\n").arg(m_Command, m_Usage) +
          text.mid(text.indexOf(QLatin1Char('\n')) + 1) + QLatin1String("\nExample:\n  ") + m_Example +
          QLatin1Char('\n'));
}
