// convert: a value, or a column of values, from one unit to another.

#include "console/commands/Commands.h"
#include "console/line/CommandLine.h"
#include "console/line/Output.h"
#include "console/units/Conversion.h"
#include "console/units/CsvColumn.h"
#include "console/units/UnitArguments.h"
#include "console/units/UnitNames.h"

#include <QFile>
#include <QJsonObject>

#include <cmath>
#include <cstdio>

namespace {

const char* const CsvOption = "csv";
const char* const DigitsOption = "digits";

/// The place of the column in a line, from 0: a number from 1, or a name that the first line must hold.
struct tagColumn
{
    QString text;
    int index;
    bool isNamed;
};

/// What a line of the table has become.
class TCsvConverter
{
public:
    TCsvConverter(const QString& column, const TConversionRoute& route, int digits) : m_Route(route), m_Digits(digits)
    {
        bool isNumber = false;
        const int number = column.toInt(&isNumber);
        m_Column = {column, isNumber ? number - 1 : -1, !isNumber};
    }

    /// Converts standard input to standard output, a line at a time.
    int Run()
    {
        QFile input;
        if (!input.open(stdin, QIODevice::ReadOnly))
            return Fail(QLatin1String("standard input cannot be read"));
        while (!OutputFailed()) {
            const QByteArray line = input.readLine();
            if (line.isEmpty())
                break;
            ++m_LineNumber;
            if (m_LineNumber == 1 && m_Column.isNamed) {
                if (!TakeHeader(line))
                    return STATUS_FAILED;
                PrintBytes(line);
                continue;
            }
            PrintBytes(Converted(line));
        }
        if (m_Column.isNamed && m_LineNumber == 0)
            return Fail(QString::fromLatin1("there is no column \"%1\": the input is empty").arg(m_Column.text));
        return m_BadLines == 0
                   ? STATUS_DONE
                   : Fail(QString::fromLatin1("%1 of %2 lines were kept unchanged").arg(m_BadLines).arg(m_LineNumber));
    }

private:
    bool TakeHeader(const QByteArray& line)
    {
        tagCsvLine header;
        ReadCsvLine(line, &header);
        QStringList names;
        for (const QByteArray& field : qAsConst(header.fields))
            names.append(CsvValue(field));
        m_Column.index = static_cast<int>(names.indexOf(m_Column.text));
        if (m_Column.index >= 0)
            return true;
        Fail(QString::fromLatin1("there is no column \"%1\" in line 1; it has %2")
                 .arg(m_Column.text, names.join(QLatin1String(", "))));
        return false;
    }

    /// The line with its value converted; unchanged, which is said, when there is no number.
    QByteArray Converted(const QByteArray& line)
    {
        tagCsvLine read;
        if (!ReadCsvLine(line, &read))
            return Kept(line, QLatin1String("a quoted field does not end on the line"));
        if (m_Column.index >= read.fields.size())
            return Kept(line, QString::fromLatin1("there are %1 fields, column %2 is wanted")
                                  .arg(read.fields.size())
                                  .arg(m_Column.index + 1));
        const QString value = CsvValue(read.fields.at(m_Column.index));
        bool isNumber = false;
        const double number = value.toDouble(&isNumber);
        if (!isNumber || !std::isfinite(number))
            return Kept(line, QString::fromLatin1("\"%1\" is not a number with a full stop").arg(value));
        read.fields[m_Column.index] = QByteArray::number(m_Route(number), 'g', m_Digits);
        return read.Text();
    }

    QByteArray Kept(const QByteArray& line, const QString& reason)
    {
        ++m_BadLines;
        Fail(QString::fromLatin1("line %1: %2; kept unchanged").arg(m_LineNumber).arg(reason));
        return line;
    }

    TConversionRoute m_Route;
    int m_Digits;
    tagColumn m_Column;
    qint64 m_LineNumber = 0;
    qint64 m_BadLines = 0;
};

int PrintConversion(double value, EUnitsType from, EUnitsType to, const TConversionRoute& route, int digits,
                    bool asJson)
{
    const double result = route(value);
    if (asJson) {
        const QJsonObject object{{QLatin1String("value"), value},
                                 {QLatin1String("from"), UnitNames::Name(from)},
                                 {QLatin1String("to"), UnitNames::Name(to)},
                                 {QLatin1String("result"), result},
                                 {QLatin1String("decision"), route.Decision()}};
        PrintJson(object);
        return STATUS_DONE;
    }
    Print(QString::fromLatin1("%1 %2 = %3 %4\n")
              .arg(QString::number(value, 'g', digits), UnitNames::Shown(from), QString::number(result, 'g', digits),
                   UnitNames::Shown(to)));
    if (!route.Decision().isEmpty())
        Print(QString::fromLatin1("(%1)\n").arg(route.Decision()));
    return STATUS_DONE;
}

} // namespace

int RunConvert(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("convert"), QLatin1String("[VALUE] FROM TO"),
        QLatin1String("Converts a value from one unit to another, as the display does. With --csv, a column "
                      "of standard input."),
        QLatin1String("cabsettings convert --system us 12.5 L/ha gal/ac"));
    line.AddOption(QLatin1String(CsvOption),
                   QLatin1String("Converts this column of a table on standard input: a number from 1, or a name in its "
                                 "first line."),
                   QLatin1String("COLUMN"));
    line.AddOption(QLatin1String(DigitsOption), QLatin1String("Significant digits of the result."), QLatin1String("N"),
                   QLatin1String("7"));
    line.AddJsonOption(QLatin1String("Prints an object."));
    AddMeasuresOption(line);
    if (const auto status = line.Read(arguments, 2, 3))
        return *status;

    const bool isTable = line.IsSet(QLatin1String(CsvOption));
    const QStringList words = line.Words();
    if (isTable && words.size() != 2)
        return line.Misused(QLatin1String("with --csv, FROM and TO are expected"));
    if (!isTable && words.size() != 3)
        return line.Misused(QLatin1String("VALUE, FROM and TO are expected"));
    const auto digits = line.WholeNumber(QLatin1String(DigitsOption), 1, 17);
    if (!digits)
        return STATUS_MISUSED;
    const QString column = line.Value(QLatin1String(CsvOption));
    if (isTable && (column.isEmpty() || column.toDouble() < 0 || column == QLatin1String("0")))
        return line.Misused(
            QString::fromLatin1("--csv takes a column's number from 1, or its name, not \"%1\"").arg(column));
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
        return TCsvConverter(column, *route, *digits).Run();
    return PrintConversion(*value, *from, *to, *route, *digits, line.WantsJson());
}
