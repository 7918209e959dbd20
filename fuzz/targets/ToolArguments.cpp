// The arguments of the tool: taken apart, and in the commands that work on the data folder alone.

#include "console/commands/Commands.h"
#include "console/line/CommandLine.h"
#include "platform/TConfigManager.h"
#include "stores/TSqliteStore.h"
#include "support/FuzzStore.h"
#include "support/FuzzTarget.h"
#include "support/TFuzzInput.h"
#include "support/TFuzzRoom.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace {

const int MostWords = 3;

/// They write nowhere else, and wait for nothing, except `convert --csv`.
const std::vector<tagCommand> Commands = {
    {"get", "", RunGet},           {"set", "", RunSet},     {"reset", "", RunReset},     {"list", "", RunList},
    {"describe", "", RunDescribe}, {"units", "", RunUnits}, {"convert", "", RunConvert}, {"show", "", RunShow},
};

void CheckLine(const QStringList& arguments)
{
    const QString speed = QLatin1String("speed");
    const QString letter = QLatin1String("n");
    TCommandLine line(QLatin1String("try"), QLatin1String("WORD [WORD [WORD]]"), QLatin1String("Tries."),
                      QLatin1String("cabsettings try a"));
    line.AddOption(speed, QLatin1String("Kilometres per hour."), QLatin1String("KPH"), QLatin1String("12"));
    line.AddOption(letter, QLatin1String("A number."), QLatin1String("N"));
    line.AddJsonOption(QLatin1String("Prints an object."));
    const auto status = line.Read(QStringList(QLatin1String("try")) + arguments, 1, MostWords);
    if (status) {
        Expect(*status == STATUS_DONE || *status == STATUS_MISUSED, "a line is right, or misused");
        return;
    }
    Expect(!line.Words().isEmpty() && line.Words().size() <= MostWords, "there are as many words as are expected");
    const bool hasDashes = arguments.contains(QLatin1String("--"));
    for (const QString& word : line.Words()) {
        Expect(arguments.contains(word), "a word is an argument", word);
        const bool looksLikeOption = word.size() > 1 && word.startsWith(QLatin1Char('-')) && !word.at(1).isDigit() &&
                                     word.at(1) != QLatin1Char('.');
        Expect(hasDashes || !looksLikeOption, "an option is not a word", word);
    }
    for (const QString& option : {speed, letter}) {
        for (const QString& value : line.Values(option)) {
            const bool isGiven = std::any_of(arguments.begin(), arguments.end(),
                                             [&value](const QString& argument) { return argument.endsWith(value); });
            Expect(isGiven, "a value was given", value);
        }
    }
    const auto number = line.Number(speed);
    Expect(!number || std::isfinite(*number), "a number is finite");
    const auto whole = line.WholeNumber(letter, 1, 9);
    Expect(!whole || (*whole >= 1 && *whole <= 9), "a whole number is in its range");
}

/// Whether the file is the one that was placed, to the byte, with no journal of SQLite beside it. Opening a store takes
/// as long as ten commands that are refused.
bool IsAsPlaced(const QString& path)
{
    const QStringList journals = {QFileInfo(path).fileName() + QLatin1String("-*")};
    return FuzzFiles::Content(path) == tagFuzzStore::Get().file &&
           QFileInfo(path).dir().entryList(journals, QDir::Files).isEmpty();
}

void CheckCommand(const QStringList& arguments)
{
    const QString path = tagFuzzStore::Get().Place();
    const TConfigManager* const published = ConfigManager;
    const int status = Dispatch(QString(), Commands, {QFileInfo(path).path()}, arguments);
    if (ConfigManager != published)
        TFuzzRoom::Get().StartTerminal(); // the command has used another store
    Expect(status == STATUS_DONE || status == STATUS_FAILED || status == STATUS_MISUSED, "a command has its status");
    if (IsAsPlaced(path))
        return;
    QString error;
    const auto store = TSqliteStore::Open(path, &error);
    Expect(store != nullptr, "the store is in order after a command", error);
    const bool mayChange = arguments.value(0) == QLatin1String("set") || arguments.value(0) == QLatin1String("reset");
    Expect((status == STATUS_DONE && mayChange) || store->Values() == tagFuzzStore::Get().values,
           "only a set that has succeeded changes values");
}

void Check(const QByteArray& bytes)
{
    TFuzzInput input(bytes);
    const bool runsCommand = input.Bool();
    const QStringList arguments = QString::fromUtf8(input.Rest()).split(QLatin1Char('\n'));
    const bool readsFile = std::any_of(arguments.begin(), arguments.end(), [](const QString& argument) {
        return argument.startsWith(QLatin1String("--csv"));
    });
    CheckLine(arguments);
    if (runsCommand && !readsFile)
        CheckCommand(arguments);
}

QList<QByteArray> Seeds()
{
    QList<QByteArray> seeds;
    for (const char* line :
         {"a\nb", "--speed\n7.5\n-12\n--json", "--speed=8\n-n\n3\n--\n--json", "--help", "-n=5\nx\n--complete"})
        seeds.append(TFuzzSeed().Byte(0).Rest(line));
    for (const char* line :
         {"get\nunits.metric", "set\nunits.metric\nfalse", "set\ncolors.map.day\n#102030", "set\n8932\nM\xc3\xbcller",
          "reset\nunits.pressure", "list\nunits.*\n--json", "describe\nunits.area", "units\n--quantity\nliquid rate",
          "convert\n12.5\nm\nft", "show\n--precision\n2\n12.25\nL/ha", "show\n--all\n5\n--threshold=100:0",
          "get\n--complete", "set\nunits.area\n--complete", "convert\n--manual"})
        seeds.append(TFuzzSeed().Byte(1).Rest(line));
    return seeds;
}

} // namespace

namespace FuzzTargets {

tagFuzzTarget ToolArguments() { return {"ToolArguments", Check, Seeds}; }

} // namespace FuzzTargets
