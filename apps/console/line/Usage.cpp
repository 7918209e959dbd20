#include "console/line/Usage.h"

#include "console/line/Output.h"

#include <QStringList>

#include <algorithm>

namespace {

const int LineWidth = 79;
const char* const Indentation = "  ";
const char* const ShortHelp = "-h, ";

/// @p text in lines of at most @p width characters. A longer word has a line of its own.
QStringList Wrapped(const QString& text, int width)
{
    QStringList lines;
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString& word : words) {
        if (!lines.isEmpty() && lines.last().size() + 1 + word.size() <= width)
            lines.last() += QLatin1Char(' ') + word;
        else
            lines.append(word);
    }
    return lines;
}

/// "--client NAME"
QString Form(const tagOption& option)
{
    const QString form = option.TakesValue() ? option.name + QLatin1Char(' ') + option.valueName : option.name;
    return option.name == QLatin1String("--help") ? QLatin1String(ShortHelp) + form : form;
}

void PrintOptions(const QList<tagOption>& options)
{
    int width = 0;
    for (const tagOption& option : options)
        width = std::max(width, static_cast<int>(Form(option).size()));
    const QString indentation = QLatin1String(Indentation);
    const int column = width + 2 * static_cast<int>(indentation.size());
    for (const tagOption& option : options) {
        QString beginning = indentation + Form(option).leftJustified(width) + indentation;
        const QStringList lines = Wrapped(option.Help(), LineWidth - column);
        for (const QString& line : lines) {
            PrintLine(beginning + line);
            beginning.fill(QLatin1Char(' '), column);
        }
    }
}

} // namespace

QString tagOption::Help() const
{
    return defaultValue.isEmpty() ? description : QString::fromLatin1("%1 Default: %2.").arg(description, defaultValue);
}

QString tagUsage::Synopsis() const { return QString::fromLatin1("%1 [options] %2").arg(command, arguments).trimmed(); }

const tagOption* tagUsage::Find(const QString& name) const
{
    const auto found =
        std::find_if(options.begin(), options.end(), [&name](const tagOption& option) { return option.name == name; });
    return found != options.end() ? &*found : nullptr;
}

void PrintHelp(const tagUsage& usage)
{
    PrintLine(QString::fromLatin1("Usage: cabsettings [--data DIR] %1\n").arg(usage.Synopsis()));
    const QStringList lines = Wrapped(usage.description, LineWidth);
    for (const QString& line : lines)
        PrintLine(line);
    PrintLine(QLatin1String("\nOptions:"));
    PrintOptions(usage.options);
    PrintLine(QLatin1String("\nExample:"));
    PrintLine(QLatin1String(Indentation) + usage.example);
}
