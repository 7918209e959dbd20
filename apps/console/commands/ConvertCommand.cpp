// convert: a value, or a column of values, from one unit to another.

#include "console/commands/Commands.h"
#include "console/line/CommandLine.h"
#include "console/line/Messages.h"
#include "console/line/Number.h"
#include "console/line/Output.h"
#include "console/line/TInputLines.h"
#include "console/units/Conversion.h"
#include "console/units/CsvColumn.h"
#include "console/units/UnitArguments.h"
#include "console/units/UnitNames.h"

#include "parameters/ParameterText.h"

namespace {

const char* const CsvOption = "csv";
const char* const DigitsOption = "digits";
const int MostDigits = 17; ///< enough to tell any two doubles apart

QString TooLarge(double value, const TConversionRoute& route)
{
    return QString::fromLatin1("cannot convert %1 %2: the result is too large")
        .arg(QString::number(value), route.Units());
}

/// The column of a table that is converted.
struct tagColumn
{
    QString name; ///< as it must stand in the first line; empty for a column that goes by number
    int index;    ///< from 0; -1 until the first line tells it
};

/// A number from 1, or a name. Nothing when it is neither.
std::optional<tagColumn> ReadColumn(const QString& text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber)
        return text.isEmpty() ? std::nullopt : std::optional<tagColumn>({text, -1});
    return number > 0 ? std::optional<tagColumn>({QString(), number - 1}) : std::nullopt;
}

/// Converts one column of standard input to standard output, a line at a time.
class TCsvConverter
{
public:
    TCsvConverter(const tagColumn& column, const TConversionRoute& route, int digits)
        : m_Column(column), m_Route(route), m_Digits(digits)
    {}

    int Run()
    {
        TInputLines lines;
        while (!OutputFailed()) {
            const QByteArray line = lines.Next();
            if (!lines.Error().isEmpty())
                return Fail(QLatin1String("cannot read standard input: ") + lines.Error());
            if (line.isEmpty())
                break;
            ++m_LineNumber;
            if (line.size() == TInputLines::LongestLine && !line.endsWith('\n'))
                return Fail(QString::fromLatin1("line %1 has 1 MiB or more").arg(m_LineNumber));
            if (m_Column.index >= 0)
                PrintBytes(Converted(line));
            else if (FindColumn(line))
                PrintBytes(line);
            else
                return STATUS_FAILED;
        }
        if (m_Column.index < 0)
            return Fail(QString::fromLatin1("cannot find column \"%1\": the input is empty").arg(m_Column.name));
        return m_BadLines == 0
                   ? STATUS_DONE
                   : Fail(QString::fromLatin1("%1 of %2 lines were kept unchanged").arg(m_BadLines).arg(m_LineNumber));
    }

private:
    bool FindColumn(const QByteArray& line)
    {
        tagCsvLine header;
        ReadCsvLine(line, &header);
        QStringList names;
        for (const QByteArray& field : qAsConst(header.fields))
            names.append(CsvValue(field));
        m_Column.index = static_cast<int>(names.indexOf(m_Column.name));
        if (m_Column.index >= 0)
            return true;
        Fail(QLatin1String("line 1: ") + Messages::NotAmong(QLatin1String("column"), m_Column.name, names));
        return false;
    }

    /// The line with its value converted; unchanged, after a message, when it cannot be.
    QByteArray Converted(const QByteArray& line)
    {
        tagCsvLine read;
        if (!ReadCsvLine(line, &read))
            return Kept(line, QLatin1String("a quoted field does not end on the line"));
        if (m_Column.index >= read.fields.size()) {
            return Kept(line, QString::fromLatin1("missing column %1; the line has %2")
                                  .arg(m_Column.index + 1)
                                  .arg(read.fields.size()));
        }
        const QString text = CsvValue(read.fields.at(m_Column.index));
        const auto value = FiniteNumber(text);
        if (!value)
            return Kept(line, Messages::Invalid(QLatin1String("number"), text, QLatin1String(FiniteNumberForm)));
        const auto result = m_Route.Convert(*value);
        if (!result)
            return Kept(line, TooLarge(*value, m_Route));
        read.fields[m_Column.index] = QByteArray::number(*result, 'g', m_Digits);
        return read.Text();
    }

    QByteArray Kept(const QByteArray& line, const QString& reason)
    {
        ++m_BadLines;
        Fail(QString::fromLatin1("line %1: %2; kept unchanged").arg(m_LineNumber).arg(reason));
        return line;
    }

    tagColumn m_Column;
    TConversionRoute m_Route;
    int m_Digits;
    qint64 m_LineNumber = 0;
    qint64 m_BadLines = 0;
};

int PrintConversion(double value, EUnitsType from, EUnitsType to, const TConversionRoute& route, int digits,
                    bool isJson)
{
    const auto result = route.Convert(value);
    if (!result)
        return Fail(TooLarge(value, route));
    if (isJson) {
        PrintJson(QJsonObject{{QLatin1String("value"), value},
                              {QLatin1String("from"), UnitNames::Name(from)},
                              {QLatin1String("to"), UnitNames::Name(to)},
                              {QLatin1String("result"), *result},
                              {QLatin1String("decision"), route.Decision()}});
        return STATUS_DONE;
    }
    PrintLine(QString::fromLatin1("%1 %2 = %3 %4")
                  .arg(QString::number(value, 'g', digits), UnitNames::Shown(from),
                       QString::number(*result, 'g', digits), UnitNames::Shown(to)));
    if (!route.Decision().isEmpty())
        PrintLine(QString::fromLatin1("(%1)").arg(route.Decision()));
    return STATUS_DONE;
}

} // namespace

int RunConvert(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("convert"), QLatin1String("[VALUE] FROM TO"),
        QLatin1String("Converts a value from one unit to another with the display's factors, through the hub of the "
                      "quantity. Refuses units of different quantities, and conversions that the display does not "
                      "have. With --csv, converts a column of standard input and takes no VALUE."),
        QLatin1String("cabsettings convert --system us 12.5 L/ha gal/ac"));
    line.AddOption(QLatin1String(CsvOption),
                   QLatin1String("Converts this column of a table on standard input: a number from 1, or a name in "
                                 "the first line. Lines that cannot be converted are kept and reported."),
                   QLatin1String("COLUMN"));
    line.AddOption(QLatin1String(DigitsOption), QLatin1String("Significant digits of the result."), QLatin1String("N"),
                   QLatin1String("7"));
    line.AddJsonOption(QLatin1String("Prints an object: value, from, to, result, decision (which settings decided the "
                                     "size of a gallon)."));
    AddMeasuresOption(line);
    if (const auto status = line.Read(arguments, 2, 3))
        return *status;

    const bool isTable = line.IsSet(QLatin1String(CsvOption));
    const QStringList words = line.Words();
    if (isTable && words.size() != 2)
        return line.Misused(Messages::Unexpected(words.first(), QLatin1String("FROM TO with --csv")));
    if (!isTable && words.size() != 3)
        return line.Misused(Messages::Missing(QLatin1String("VALUE FROM TO")));
    const auto digits = line.WholeNumber(QLatin1String(DigitsOption), 1, MostDigits);
    if (!digits)
        return STATUS_MISUSED;
    const auto column = ReadColumn(line.Value(QLatin1String(CsvOption)));
    if (isTable && !column)
        return line.InvalidValue(QLatin1String(CsvOption), QLatin1String("a column's number from 1, or its name"));
    const auto value = isTable ? std::optional<double>(0) : ReadNumber(line, words.first());
    if (!value)
        return STATUS_MISUSED;

    TSession session;
    if (const auto status = OpenUnits(session, context, line))
        return *status;
    const auto from = ReadUnit(line, words.at(words.size() - 2));
    if (!from)
        return STATUS_MISUSED;
    const auto to = ReadUnit(line, words.last());
    if (!to)
        return STATUS_MISUSED;
    QString problem;
    const auto route = TConversionRoute::Find(*from, *to, &problem);
    if (!route)
        return Fail(problem);
    if (isTable)
        return TCsvConverter(*column, *route, *digits).Run();
    return PrintConversion(*value, *from, *to, *route, *digits, line.WantsJson());
}
