// units: the table of units. show: values as the operator sees them.

#include "console/commands/Commands.h"
#include "console/line/CommandLine.h"
#include "console/line/Output.h"
#include "console/units/UnitArguments.h"
#include "console/units/UnitNames.h"

#include "units/TUnitAbbreviations.h"
#include "units/TUnits.h"

#include <QJsonArray>
#include <QJsonObject>

#include <cmath>

namespace {

/// Prints rows under @p titles as a table, or as an array of objects whose fields are named by them.
void PrintRows(const QStringList& titles, const QList<QStringList>& rows, bool asJson)
{
    if (!asJson) {
        PrintTable(QList<QStringList>{titles} + rows);
        return;
    }
    QJsonArray array;
    for (const QStringList& row : rows) {
        QJsonObject object;
        for (int i = 0; i < titles.size(); ++i) {
            bool isNumber = false;
            const int number = row.at(i).toInt(&isNumber);
            object.insert(titles.at(i), isNumber ? QJsonValue(number) : QJsonValue(row.at(i)));
        }
        array.append(object);
    }
    PrintJson(array);
}

/// "100:0": from 100 on, without decimals. Nothing when it is not of that form.
std::optional<TUnits::tagThresholdSpec> ReadThreshold(const QString& text)
{
    bool isThreshold = false;
    bool isPrecision = false;
    const float threshold = text.section(QLatin1Char(':'), 0, 0).toFloat(&isThreshold);
    const int precision = text.section(QLatin1Char(':'), 1).toInt(&isPrecision);
    if (!isThreshold || !isPrecision || !std::isfinite(threshold) || precision < 0 || precision > 20)
        return std::nullopt;
    return TUnits::tagThresholdSpec{threshold, precision};
}

/// -1 without the option; nothing when it is none.
std::optional<int> ReadPrecision(const QString& text)
{
    if (text.isEmpty())
        return -1;
    if (text == QLatin1String("dynamic"))
        return TUnits::DynamicPrecision;
    bool isNumber = false;
    const int precision = text.toInt(&isNumber);
    return isNumber && precision >= 0 && precision <= 20 ? std::optional<int>(precision) : std::nullopt;
}

} // namespace

int RunUnits(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("units"), QString(),
        QLatin1String("Lists the units: number, name, abbreviation, family, quantity, hub (the unit in which "
                      "the quantity is stored) and decimals."),
        QLatin1String("cabsettings units --quantity \"liquid rate\""));
    line.AddOption(QLatin1String("quantity"), QLatin1String("Only the units of this quantity."), QLatin1String("NAME"));
    line.AddJsonOption(QLatin1String("Prints an array of objects."));
    AddMeasuresOption(line);
    if (const auto status = line.Read(arguments, 0, 0))
        return *status;
    const QString quantity = line.Value(QLatin1String("quantity"));
    if (!quantity.isEmpty() && !UnitNames::Quantities().contains(quantity)) {
        return line.Misused(QString::fromLatin1("there is no quantity \"%1\"; the quantities are %2")
                                .arg(quantity, UnitNames::Quantities().join(QLatin1String(", "))));
    }

    TSession session;
    if (const auto status = OpenUnits(session, context, line))
        return *status;
    QList<QStringList> rows;
    const QList<EUnitsType> units = UnitNames::All();
    for (const EUnitsType unit : units) {
        if (!quantity.isEmpty() && UnitNames::Quantity(unit) != quantity)
            continue;
        const EUnitsType hub = TUnits::DetermineDefaultUnitFromUnitsType(unit);
        rows.append({QString::number(unit), UnitNames::Name(unit),
                     TUnitAbbreviations::GetStringFromUnitType(unit, true), UnitNames::Family(unit),
                     UnitNames::Quantity(unit), UnitNames::Shown(hub),
                     QString::number(TUnits::GetDefaultPrecision(unit))});
    }
    PrintRows({QLatin1String("number"), QLatin1String("name"), QLatin1String("abbreviation"), QLatin1String("family"),
               QLatin1String("quantity"), QLatin1String("hub"), QLatin1String("decimals")},
              rows, line.WantsJson());
    return STATUS_DONE;
}

int RunShow(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("show"), QLatin1String("VALUE [UNIT]"),
        QLatin1String("Prints a stored value as the operator sees it under the current settings. UNIT is the "
                      "unit in which it is stored."),
        QLatin1String("cabsettings show --precision dynamic 12.25 L/ha"));
    line.AddOption(QLatin1String("precision"),
                   QLatin1String("Decimals, 0 to 20, or \"dynamic\" for those that suit a rate."), QLatin1String("N"));
    line.AddOption(QLatin1String("threshold"), QLatin1String("From the value T on, P decimals."), QLatin1String("T:P"));
    line.AddOption(QLatin1String("all"), QLatin1String("Shows the value in every unit."));
    line.AddJsonOption(QLatin1String("Prints an array of objects."));
    AddMeasuresOption(line);
    if (const auto status = line.Read(arguments, 1, 2))
        return *status;
    const bool all = line.IsSet(QLatin1String("all"));
    if (line.Words().size() != (all ? 1 : 2))
        return line.Misused(QLatin1String(all ? "--all takes a VALUE and no UNIT" : "VALUE and UNIT are expected"));
    const auto value = ReadNumber(line, line.Words().first());
    if (!value)
        return STATUS_MISUSED;
    const QString precisionText = line.Value(QLatin1String("precision"));
    const auto precision = ReadPrecision(precisionText);
    if (!precision)
        return line.Misused(QString::fromLatin1("--precision takes 0 to 20 or dynamic, not \"%1\"").arg(precisionText));
    const QString thresholdText = line.Value(QLatin1String("threshold"));
    const auto threshold = ReadThreshold(thresholdText);
    if (!threshold && !thresholdText.isEmpty())
        return line.Misused(
            QString::fromLatin1("--threshold takes a value and decimals such as 100:0, not \"%1\"").arg(thresholdText));

    TSession session;
    if (const auto status = OpenUnits(session, context, line))
        return *status;
    const auto unit = all ? std::optional<EUnitsType>(UNITS_NONE) : ReadUnit(line, line.Words().last());
    if (!unit)
        return STATUS_MISUSED;
    session.UseOperatorsLanguage();
    const QList<EUnitsType> units = all ? UnitNames::All() : QList<EUnitsType>{*unit};
    const bool asJson = line.WantsJson();
    QList<QStringList> rows;
    for (const EUnitsType type : units) {
        rows.append({QString::number(type), UnitNames::Name(type),
                     TUnits::GetValueString(*value, type, *precision, threshold ? &*threshold : nullptr)});
    }
    if (!all && !asJson)
        PrintLine(rows.first().last());
    else
        PrintRows({QLatin1String("number"), QLatin1String("name"), QLatin1String("shown")}, rows, asJson);
    return STATUS_DONE;
}
