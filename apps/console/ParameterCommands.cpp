// get, set and list: the parameters of the store, by number.

#include "Command.h"
#include "CommandLine.h"
#include "Output.h"
#include "ParameterText.h"
#include "Store.h"

#include "terminal/FirstStartValues.h"

namespace {

std::optional<EParamID> ToNumber(const QString& text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber && number >= 0 ? std::optional<EParamID>(static_cast<EParamID>(number)) : std::nullopt;
}

int NotANumber(const TCommandLine& line, const QString& text)
{
    return line.Misused(QString::fromLatin1("\"%1\" is no parameter; a whole number from 0 is accepted").arg(text));
}

} // namespace

int RunGet(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(QLatin1String("get"), QLatin1String("NUMBER"), QLatin1String("Prints the value of a parameter."),
                      QLatin1String("cabsettings get 8953"));
    if (const auto status = line.Read(arguments, 1, 1))
        return *status;
    const auto id = ToNumber(line.Words().first());
    if (!id)
        return NotANumber(line, line.Words().first());

    const auto store = OpenStore(context);
    if (!store)
        return STATUS_FAILED;
    SetFirstStartValues(*store);
    if (!store->HasParameter(*id))
        return Fail(QString::fromLatin1("parameter %1 is not set").arg(*id));
    Print(ParameterText::FromValue(store->GetParameter(*id)) + QLatin1Char('\n'));
    return STATUS_DONE;
}

int RunSet(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(QLatin1String("set"), QLatin1String("NUMBER VALUE"),
                      QLatin1String("Sets a parameter. The value is read as the type that the parameter has; one that "
                                    "has no value yet needs --type."),
                      QLatin1String("cabsettings set 8932 Smith"));
    line.AddOption(
        QLatin1String("type"),
        QString::fromLatin1("Type of the value: %1.").arg(ParameterText::TypeNames().join(QLatin1String(", "))),
        QLatin1String("TYPE"));
    if (const auto status = line.Read(arguments, 2, 2))
        return *status;
    const auto id = ToNumber(line.Words().at(0));
    if (!id)
        return NotANumber(line, line.Words().at(0));

    const auto store = OpenStore(context);
    if (!store)
        return STATUS_FAILED;
    SetFirstStartValues(*store);
    QString typeName = line.Value(QLatin1String("type"));
    if (typeName.isEmpty()) {
        if (!store->HasParameter(*id)) {
            return line.Misused(QString::fromLatin1("parameter %1 has no value yet; say its type with --type: %2")
                                    .arg(*id)
                                    .arg(ParameterText::TypeNames().join(QLatin1String(", "))));
        }
        typeName = ParameterText::TypeName(store->GetParameter(*id));
    }

    QString error;
    const QVariant value = ParameterText::ToValue(typeName, line.Words().at(1), &error);
    if (!value.isValid())
        return line.Misused(QString::fromLatin1("parameter %1: %2").arg(*id).arg(error));
    if (!store->SetParameter(*id, value, true))
        return Fail(QString::fromLatin1("parameter %1 could not be stored").arg(*id));
    return STATUS_DONE;
}

int RunList(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(QLatin1String("list"), QString(),
                      QLatin1String("Lists the parameters that have a value: number, type and value."),
                      QLatin1String("cabsettings list"));
    if (const auto status = line.Read(arguments, 0, 0))
        return *status;
    const auto store = OpenStore(context);
    if (!store)
        return STATUS_FAILED;
    SetFirstStartValues(*store);

    const QMap<int, QVariant> values = store->Values();
    QList<QStringList> rows;
    for (auto it = values.constBegin(); it != values.constEnd(); ++it) {
        rows.append(
            {QString::number(it.key()), ParameterText::TypeName(it.value()), ParameterText::FromValue(it.value())});
    }
    PrintTable(rows);
    return STATUS_DONE;
}
