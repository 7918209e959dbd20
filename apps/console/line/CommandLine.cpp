#include "console/line/CommandLine.h"

#include "console/line/Candidates.h"
#include "console/line/Command.h"
#include "console/line/Completion.h"
#include "console/line/Manual.h"
#include "console/line/Messages.h"
#include "console/line/Number.h"
#include "console/line/Output.h"

namespace {

const char* const HelpOption = "help";
const char* const JsonOption = "json";

/// "-n", "--speed"
QString Dashed(const QString& option) { return QLatin1String(option.size() == 1 ? "-" : "--") + option; }

bool IsOption(const QString& argument)
{
    if (argument.size() < 2 || argument.at(0) != QLatin1Char('-'))
        return false;
    return !argument.at(1).isDigit() && argument.at(1) != QLatin1Char('.'); // a negative number
}

} // namespace

TCommandLine::TCommandLine(const QString& command, const QString& arguments, const QString& description,
                           const QString& example)
    : m_Usage{command, arguments, description, example, {}}
{
    AddOption(QLatin1String(HelpOption), QLatin1String("Prints this help."));
}

void TCommandLine::AddOption(const QString& name, const QString& description, const QString& valueName,
                             const QString& defaultValue)
{
    m_Usage.options.append({Dashed(name), description, valueName, defaultValue});
}

void TCommandLine::AddJsonOption(const QString& description) { AddOption(QLatin1String(JsonOption), description); }

bool TCommandLine::WantsJson() const { return IsSet(QLatin1String(JsonOption)); }

void TCommandLine::Offer(const QString& placeholder, const std::function<QStringList()>& words)
{
    m_Offered.insert(placeholder, words);
}

bool TCommandLine::IsSet(const QString& option) const { return m_Given.contains(Dashed(option)); }

QString TCommandLine::Value(const QString& option) const
{
    const QStringList values = Values(option);
    if (!values.isEmpty())
        return values.last();
    const tagOption* const added = m_Usage.Find(Dashed(option));
    return added ? added->defaultValue : QString();
}

QStringList TCommandLine::Values(const QString& option) const { return m_Given.value(Dashed(option)); }

std::optional<int> TCommandLine::Read(const QStringList& arguments, int fewest, int most)
{
    if (Completion::IsAsked(arguments)) {
        Parse(arguments.mid(0, arguments.size() - 1));
        PrintWordsToCome();
        return STATUS_DONE;
    }
    if (Manual::IsAsked(arguments)) {
        Manual::PrintCommand(m_Usage);
        return STATUS_DONE;
    }
    const QString problem = Parse(arguments);
    if (IsSet(QLatin1String(HelpOption))) {
        PrintHelp(m_Usage);
        return STATUS_DONE;
    }
    if (!problem.isEmpty())
        return Misused(problem);
    if (m_Words.size() < fewest)
        return Misused(Messages::Missing(m_Usage.arguments));
    if (m_Words.size() > most)
        return Misused(Messages::Unexpected(m_Words.at(most), m_Usage.arguments));
    return std::nullopt;
}

QString TCommandLine::Parse(const QStringList& arguments)
{
    QString firstProblem;
    bool areOptionsOver = false;
    for (int i = 1; i < arguments.size(); ++i) {
        const QString& argument = arguments.at(i);
        if (areOptionsOver || !IsOption(argument)) {
            m_Words.append(argument);
        } else if (argument == QLatin1String("--")) {
            areOptionsOver = true;
        } else {
            const QString problem = TakeOption(arguments, &i);
            if (firstProblem.isEmpty())
                firstProblem = problem;
        }
    }
    return firstProblem;
}

QString TCommandLine::TakeOption(const QStringList& arguments, int* at)
{
    const QString& argument = arguments.at(*at);
    QString name = argument.section(QLatin1Char('='), 0, 0);
    const bool hasValue = name.size() < argument.size();
    if (name == QLatin1String("-h"))
        name = Dashed(QLatin1String(HelpOption));
    const tagOption* const option = m_Usage.Find(name);
    if (!option) {
        QStringList names;
        for (const tagOption& known : m_Usage.options)
            names.append(known.name);
        return Messages::NotAmong(QLatin1String("option"), name, names);
    }
    if (!option->TakesValue()) {
        m_Given.insert(name, {});
        return hasValue ? QString::fromLatin1("unexpected value for %1; it takes none").arg(name) : QString();
    }
    if (!hasValue && *at + 1 == arguments.size())
        return QString::fromLatin1("missing value; expected %1 %2").arg(name, option->valueName);
    m_Given[name].append(hasValue ? argument.mid(name.size() + 1) : arguments.at(++*at));
    return QString();
}

std::optional<double> TCommandLine::Number(const QString& option) const
{
    const auto number = FiniteNumber(Value(option));
    if (!number)
        InvalidValue(option, QLatin1String("a number"));
    return number;
}

std::optional<double> TCommandLine::Number(const QString& option, double least, double greatest) const
{
    const auto number = FiniteNumber(Value(option));
    if (number && *number >= least && *number <= greatest)
        return number;
    InvalidValue(option, QString::fromLatin1("a number from %1 to %2").arg(least).arg(greatest));
    return std::nullopt;
}

std::optional<int> TCommandLine::WholeNumber(const QString& option, int least, int greatest) const
{
    bool isNumber = false;
    const int number = Value(option).toInt(&isNumber);
    if (isNumber && number >= least && number <= greatest)
        return number;
    InvalidValue(option, QString::fromLatin1("a whole number from %1 to %2").arg(least).arg(greatest));
    return std::nullopt;
}

int TCommandLine::Misused(const QString& text) const
{
    return Misuse(QString::fromLatin1("%1: %2 (see cabsettings %1 --help)").arg(m_Usage.command, text));
}

int TCommandLine::InvalidValue(const QString& option, const QString& expected) const
{
    return Misused(
        QString::fromLatin1("invalid value \"%1\" for %2; expected %3").arg(Value(option), Dashed(option), expected));
}

void TCommandLine::PrintWordsToCome() const
{
    const QString placeholder = Completion::Placeholder(m_Usage.arguments, Words());
    const auto offered = m_Offered.value(placeholder);
    QStringList words = offered ? offered() : Candidates(placeholder, Words());
    for (const tagOption& option : m_Usage.options)
        words.append(option.name);
    PrintLine(words.join(QLatin1Char('\n')));
}
