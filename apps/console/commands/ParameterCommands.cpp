// get, set and reset: one parameter, by name or number.

#include "console/commands/Commands.h"
#include "console/line/CommandLine.h"
#include "console/line/Output.h"
#include "console/terminal/ParameterArgument.h"
#include "console/terminal/Session.h"

#include "parameters/ParameterText.h"

namespace {

const char* const TypeOption = "type";

int Store(TParameterStore& store, const tagParameterArgument& parameter, const QVariant& value)
{
    return store.SetParameter(parameter.id, value, true)
               ? STATUS_DONE
               : Fail(QString::fromLatin1("cannot store %1").arg(parameter.Name()));
}

/// What was typed, as a value of a parameter that only the host knows: of the type that is asked for, or that it has.
/// Invalid, with @p error, when it cannot be one.
QVariant ReadHostValue(TParameterStore& store, const tagParameterArgument& parameter, const QString& typeAsked,
                       const QString& text, QString* error)
{
    const bool hasType = !typeAsked.isEmpty() || store.HasParameter(parameter.id);
    if (!hasType) {
        *error = QString::fromLatin1("%1 has no value yet; expected --type %2")
                     .arg(parameter.Name(), ParameterText::Alternatives(ParameterText::TypeNames()));
        return QVariant();
    }
    const QString type = typeAsked.isEmpty() ? ParameterText::TypeName(store.GetParameter(parameter.id)) : typeAsked;
    QVariant value = ParameterText::ToValue(type, text, error);
    *error = QString::fromLatin1("%1: %2").arg(parameter.Name(), *error);
    return value;
}

} // namespace

int RunGet(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(QLatin1String("get"), QLatin1String("PARAMETER"),
                      QLatin1String("Prints the value of a parameter, given by name or number. Given by name, a choice "
                                    "is printed as its name; given by number, as its number."),
                      QLatin1String("cabsettings get units.metric"));
    line.AddJsonOption(
        QLatin1String("Prints an object: number, name, type, value, text, default, accepts, unit, meaning, readers."));
    if (const auto status = line.Read(arguments, 1, 1))
        return *status;
    const auto parameter = ReadParameter(line.Words().first(), line);
    if (!parameter)
        return STATUS_MISUSED;

    TSession session;
    if (!session.Open(context, SESSION_STORE))
        return STATUS_FAILED;
    TParameterStore& store = session.Store();
    if (!store.HasParameter(parameter->id))
        return Fail(QString::fromLatin1("%1 is not set").arg(parameter->Name()));
    const QVariant value = store.GetParameter(parameter->id);
    if (line.WantsJson())
        PrintJson(ParameterJson(parameter->id, value));
    else
        PrintLine(ValueText(parameter->isByNumber ? nullptr : parameter->known, value));
    return STATUS_DONE;
}

int RunSet(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(
        QLatin1String("set"), QLatin1String("PARAMETER VALUE"),
        QLatin1String("Sets a parameter, given by name or number. `cabsettings describe` prints the accepted values. A "
                      "parameter that belongs to the host keeps its type; a new one needs --type."),
        QLatin1String("cabsettings set units.area acre"));
    line.AddOption(
        QLatin1String(TypeOption),
        QString::fromLatin1("Type of the value: %1.").arg(ParameterText::Alternatives(ParameterText::TypeNames())),
        QLatin1String("TYPE"));
    if (const auto status = line.Read(arguments, 2, 2))
        return *status;
    const auto parameter = ReadParameter(line.Words().at(0), line);
    if (!parameter)
        return STATUS_MISUSED;
    const QString type = line.Value(QLatin1String(TypeOption));
    if (!type.isEmpty() && parameter->known && type != TParameterCatalogue::TypeName(parameter->known->type)) {
        return line.Misused(QString::fromLatin1("invalid type \"%1\" for %2; expected %3")
                                .arg(type, parameter->Name(), TParameterCatalogue::TypeName(parameter->known->type)));
    }

    const QString text = line.Words().at(1);
    TSession session;
    QString error;
    if (parameter->known) {
        // Before the store is touched: a wrong value leaves no trace.
        const QVariant value = TParameterCatalogue::Read(*parameter->known, text, &error);
        if (!value.isValid())
            return line.Misused(error);
        return session.Open(context, SESSION_STORE) ? Store(session.Store(), *parameter, value) : STATUS_FAILED;
    }
    if (!session.Open(context, SESSION_STORE))
        return STATUS_FAILED;
    const QVariant value = ReadHostValue(session.Store(), *parameter, type, text, &error);
    if (!value.isValid())
        return line.Misused(error);
    return Store(session.Store(), *parameter, value);
}

int RunReset(const tagContext& context, const QStringList& arguments)
{
    TCommandLine line(QLatin1String("reset"), QLatin1String("PARAMETER"),
                      QLatin1String("Sets a parameter to its default. A parameter without a default loses its value, "
                                    "and the terminal chooses a new one at its next start."),
                      QLatin1String("cabsettings reset colors.night.map"));
    if (const auto status = line.Read(arguments, 1, 1))
        return *status;
    const auto parameter = ReadParameter(line.Words().first(), line);
    if (!parameter)
        return STATUS_MISUSED;
    if (!parameter->known) {
        return line.Misused(QString::fromLatin1("%1 belongs to the host; only the library's parameters have a default")
                                .arg(parameter->Name()));
    }

    TSession session;
    if (!session.Open(context, SESSION_STORE))
        return STATUS_FAILED;
    return Store(session.Store(), *parameter, TParameterCatalogue::FirstValue(*parameter->known));
}
