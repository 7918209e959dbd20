// units: the table of units. show: values as the operator sees them.

#include "console/commands/Commands.h"
#include "console/line/CommandLine.h"
#include "console/line/Messages.h"
#include "console/line/Output.h"
#include "console/units/UnitArguments.h"
#include "console/units/UnitNames.h"

#include "parameters/ParameterText.h"
#include "units/TUnitAbbreviations.h"
#include "units/TUnits.h"

#include <QJsonArray>
#include <QJsonObject>

#include <cmath>

namespace {

const char* const QuantityOption = "quantity";
const char* const PrecisionOption = "precision";
const char* const ThresholdOption = "threshold";
const char* const AllOption = "all";

const char* const DynamicPrecision = "dynamic";
const int OwnPrecision = -1; ///< the unit's own decimals
const int MostDecimals = 20;

/// Prints rows under @p titles as a table, or as an array of objects whose fields are named by them.
void PrintRows(const QStringList& titles, const QList<QList<QJsonValue>>& rows, bool isJson)
{
    QList<QStringList> table = {titles};
    QJsonArray array;
    for (const QList<QJsonValue>& row : rows) {
        QStringList cells;
        QJsonObject object;
        for (int i = 0; i < titles.size(); ++i) {
            cells.append(row.at(i).toVariant().toString());
            object.insert(titles.at(i), row.at(i));
        }
        table.append(cells);
        array.append(object);
    }
    if (isJson)
        PrintJson(array);
    else
        PrintTable(table);
}

/// "100:0": from 100 on, without decimals. Nothing when it is not of that form.
std::optional<TUnits::tagThresholdSpec> ReadThreshold(const QString& text)
{
    bool isThreshold = false;
    bool isPrecision = false;
    const float threshold = text.section(QLatin1Char(':'), 0, 0).toFloat(&isThreshold);
    const int precision = text.section(QLatin1Char(':'), 1).toInt(&isPrecision);
    if (!isThreshold || !isPrecision || !std::isfinite(threshold) || precision < 0 || precision > MostDecimals)
        return std::nullopt;
    return TUnits::tagThresholdSpec{threshold, precision};
}

/// The decimals that "--precision" asks for. Returns nothing when the text is not a number of decimals.
std::optional<int> ReadPrecision(const QString& text)
{
    if (text == QLatin1String(DynamicPrecision))
        return TUnits::DynamicPrecision;
    bool isNumber = false;
    const int precision = text.toInt(&isNumber);
    return isNumber && precision >= 0 && precision <= MostDecimals ? std::optional<int>(precision) : std::nullopt;
}

/// Whether the unit has decimals for @p precision; those of a dynamic one belong to rates.
bool HasPrecision(EUnitsType unit, int precision)
{
    return precision != TUnits::DynamicPrecision || TUnits::IsUnitAbbrDynamicPrecisionSupported(unit);
}

QString UnitsWithDynamicPrecision()
{
    QStringList names;
    for (const EUnitsType unit : UnitNames::All()) {
        if (TUnits::IsUnitAbbrDynamicPrecisionSupported(unit))
            names.append(UnitNames::Shown(unit));
    }
    return ParameterText::Alternatives(names);
}

} // namespace

int RunUnits(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("units"), QString(),
        QLatin1String("Lists the units: number, name, abbreviation, family (imperial or US: the settings decide which "
                      "gallon is meant), quantity, hub (the unit through which values are converted), stored (the unit "
                      "in which `show` takes a value) and decimals."),
        QLatin1String("cabsettings units --quantity \"liquid rate\""));
    line.AddOption(QLatin1String(QuantityOption), QLatin1String("Lists only the units of this quantity."),
                   QLatin1String("NAME"));
    line.AddJsonOption(QLatin1String("Prints an array of objects with the same fields."));
    AddMeasuresOption(line);
    if (const auto status = line.Read(arguments, 0, 0))
        return *status;
    const bool isFiltered = line.IsSet(QLatin1String(QuantityOption));
    const QString quantity = line.Value(QLatin1String(QuantityOption));
    if (isFiltered && !UnitNames::Quantities().contains(quantity))
        return line.Misused(Messages::NotAmong(QLatin1String("quantity"), quantity, UnitNames::Quantities()));

    TSession session;
    if (const auto status = OpenUnits(session, context, line))
        return *status;
    QList<QList<QJsonValue>> rows;
    const QList<EUnitsType> units = UnitNames::All();
    for (const EUnitsType unit : units) {
        if (isFiltered && UnitNames::Quantity(unit) != quantity)
            continue;
        rows.append({unit, UnitNames::Name(unit), TUnitAbbreviations::GetStringFromUnitType(unit, true),
                     UnitNames::Family(unit), UnitNames::Quantity(unit),
                     UnitNames::Shown(TUnits::GetConversionHub(unit)), UnitNames::Shown(TUnits::GetStoredUnit(unit)),
                     TUnits::GetDefaultPrecision(unit)});
    }
    PrintRows({QLatin1String("number"), QLatin1String("name"), QLatin1String("abbreviation"), QLatin1String("family"),
               QLatin1String("quantity"), QLatin1String("hub"), QLatin1String("stored"), QLatin1String("decimals")},
              rows, line.WantsJson());
    return STATUS_DONE;
}

int RunShow(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("show"), QLatin1String("VALUE [UNIT]"),
        QLatin1String("Prints a value as the operator sees it under the current settings. UNIT is the unit that the "
                      "display chooses its own by. VALUE is in the stored unit of UNIT, which `cabsettings units` "
                      "lists: litres for every volume, metres per second for speeds."),
        QLatin1String("cabsettings show --precision dynamic 12.25 L/ha"));
    line.AddOption(QLatin1String(PrecisionOption),
                   QLatin1String("Decimals: 0 to 20, or \"dynamic\" for those that suit the value of a rate in L/ha, "
                                 "kg/ha or kgN/ha."),
                   QLatin1String("N"));
    line.AddOption(QLatin1String(ThresholdOption), QLatin1String("From the value T on, P decimals."),
                   QLatin1String("T:P"));
    line.AddOption(QLatin1String(AllOption),
                   QLatin1String("Shows the value in every unit. Units without a dynamic precision keep their own."));
    line.AddJsonOption(QLatin1String("Prints an array of objects: number, name, stored, shown (a text)."));
    AddMeasuresOption(line);
    if (const auto status = line.Read(arguments, 1, 2))
        return *status;
    const bool isAll = line.IsSet(QLatin1String(AllOption));
    const QStringList words = line.Words();
    if (isAll && words.size() > 1)
        return line.Misused(Messages::Unexpected(words.last(), QLatin1String("VALUE with --all")));
    if (!isAll && words.size() < 2)
        return line.Misused(Messages::Missing(QLatin1String("VALUE UNIT")));
    const auto value = ReadNumber(line, words.first());
    if (!value)
        return STATUS_MISUSED;
    const bool isPrecise = line.IsSet(QLatin1String(PrecisionOption));
    const auto precision = isPrecise ? ReadPrecision(line.Value(QLatin1String(PrecisionOption))) : OwnPrecision;
    if (!precision)
        return line.InvalidValue(QLatin1String(PrecisionOption), QLatin1String("0 to 20 or dynamic"));
    const auto threshold = ReadThreshold(line.Value(QLatin1String(ThresholdOption)));
    if (!threshold && line.IsSet(QLatin1String(ThresholdOption))) {
        return line.InvalidValue(QLatin1String(ThresholdOption), QLatin1String("a value and decimals such as 100:0"));
    }

    TSession session;
    if (const auto status = OpenUnits(session, context, line))
        return *status;
    const auto unit = isAll ? std::optional<EUnitsType>(UNITS_NONE) : ReadUnit(line, words.last());
    if (!unit)
        return STATUS_MISUSED;
    if (!isAll && !HasPrecision(*unit, *precision)) {
        return line.Misused(
            QString::fromLatin1("invalid precision \"%1\" for %2; expected 0 to 20, or the unit "
                                "%3")
                .arg(QLatin1String(DynamicPrecision), UnitNames::Shown(*unit), UnitsWithDynamicPrecision()));
    }
    session.UseOperatorsLanguage();
    const QList<EUnitsType> units = isAll ? UnitNames::All() : QList<EUnitsType>{*unit};
    QList<QList<QJsonValue>> rows;
    for (const EUnitsType type : units) {
        const QString shown =
            TUnits::GetValueString(*value, type, HasPrecision(type, *precision) ? *precision : OwnPrecision,
                                   threshold ? &*threshold : nullptr);
        rows.append({type, UnitNames::Name(type), UnitNames::Shown(TUnits::GetStoredUnit(type)), shown});
    }
    if (!isAll && !line.WantsJson())
        PrintLine(rows.first().last().toString());
    else
        PrintRows({QLatin1String("number"), QLatin1String("name"), QLatin1String("stored"), QLatin1String("shown")},
                  rows, line.WantsJson());
    return STATUS_DONE;
}
