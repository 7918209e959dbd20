#include "CommandLine.h"

#include "Command.h"
#include "Output.h"

#include <cmath>

namespace {

const char* const HelpOption = "help";

std::optional<double> ToNumber(const QString& text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional<double>(number) : std::nullopt;
}

} // namespace

TCommandLine::TCommandLine(const QString& command, const QString& usage, const QString& description,
                           const QString& example)
    : m_Command(command), m_Usage(usage), m_Example(example)
{
    m_Parser.setApplicationDescription(description);
    m_Parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    // Options come first, so that a value such as -5 is no option.
    m_Parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    m_Parser.addOption(
        QCommandLineOption({QLatin1String("h"), QLatin1String(HelpOption)}, QLatin1String("Shows this help.")));
}

void TCommandLine::AddOption(const QString& name, const QString& description, const QString& valueName,
                             const QString& defaultValue)
{
    const QString ending = defaultValue.isEmpty() ? QString() : QString::fromLatin1(" [%1]").arg(defaultValue);
    m_Parser.addOption(QCommandLineOption(name, description + ending, valueName, defaultValue));
}

std::optional<int> TCommandLine::Read(const QStringList& arguments, int fewest, int most)
{
    if (!m_Parser.parse(arguments))
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
    Misused(QString::fromLatin1("--%1 takes a number, not \"%2\"").arg(option, Value(option)));
    return std::nullopt;
}

std::optional<double> TCommandLine::Number(const QString& option, double least, double greatest) const
{
    const auto number = ToNumber(Value(option));
    if (number && *number >= least && *number <= greatest)
        return number;
    Misused(QString::fromLatin1("--%1 takes a number from %2 to %3, not \"%4\"")
                .arg(option)
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
    Misused(QString::fromLatin1("--%1 takes a whole number from %2 to %3, not \"%4\"")
                .arg(option)
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

void TCommandLine::PrintHelp() const
{
    // Qt's text knows nothing of commands: its first line, the usage, is ours.
    const QString text = m_Parser.helpText();
    Print(QString::fromLatin1("Usage: cabsettings [--data DIR] %1 [options] %2\n\n").arg(m_Command, m_Usage) +
          text.mid(text.indexOf(QLatin1Char('\n')) + 1) + QLatin1String("\nExample:\n  ") + m_Example +
          QLatin1Char('\n'));
}
