// The bench: each piece of the library's work beside the limit of the machine and beside its peers, in one run, the
// rows of a group in random order. Prints Markdown: what the rows of each group took, then the targets.

#include "Report.h"
#include "Targets.h"
#include "Work.h"

#include "region/TRegionSettings.h"
#include "units/TUnitAbbreviations.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr double SecondsOfARepetition = 0.004;

int Fail(const QString& message)
{
    std::fprintf(stderr, "cabsettings-bench: %s\n", qPrintable(message));
    return EXIT_FAILURE;
}

QStringList NamesOfGroups(bool withComma)
{
    QStringList names;
    for (const tagGroup& group : Groups) {
        if (group.withComma == withComma)
            names += QLatin1String(group.name);
    }
    return names;
}

void Register(const tagGroup& group, int repetitions)
{
    for (const tagRow& row : TRows::All()) {
        if (QLatin1String(row.group) != QLatin1String(group.name))
            continue;
        auto* const entry = benchmark::RegisterBenchmark(TReport::NameOf(row).c_str(), row.measure);
        entry->Repetitions(repetitions);
        if (group.iterations > 0)
            entry->Iterations(group.iterations);
        else
            entry->MinTime(SecondsOfARepetition);
    }
}

/// Runs the groups one after the other: the rows of one are interleaved, so that what disturbs the machine for a while
/// disturbs all of them.
void Measure(const QStringList& groups, int repetitions, TReport& report)
{
    for (const tagGroup& group : Groups) {
        if (!groups.contains(QLatin1String(group.name)))
            continue;
        std::fprintf(stderr, "%s\n", group.name);
        benchmark::ClearRegisteredBenchmarks();
        Register(group, repetitions);
        benchmark::RunSpecifiedBenchmarks(&report);
    }
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_HASH_SEED", "0");
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QLatin1String("Measures the library beside the limit of the machine and beside its peers."));
    parser.addHelpOption();
    const QCommandLineOption comma(QLatin1String("comma"),
                                   QLatin1String("the groups of a display with decimal commas"));
    const QCommandLineOption repetitions(QLatin1String("repetitions"), QLatin1String("of each row (101)"),
                                         QLatin1String("number"), QLatin1String("101"));
    const QCommandLineOption targets(QLatin1String("targets"),
                                     QLatin1String("print the targets into this file, instead of behind the groups"),
                                     QLatin1String("file"));
    parser.addOptions({comma, repetitions, targets});
    parser.addPositionalArgument(QLatin1String("group"), QLatin1String("all when none is named"),
                                 QLatin1String("[group...]"));
    parser.process(application);

    const QStringList known = NamesOfGroups(parser.isSet(comma));
    const QStringList asked = parser.positionalArguments().isEmpty() ? known : parser.positionalArguments();
    for (const QString& group : asked) {
        if (!known.contains(group))
            return Fail(QString::fromLatin1("no group %1; there are: %2").arg(group, known.join(QLatin1String(", "))));
    }
    bool isNumber = false;
    const int count = parser.value(repetitions).toInt(&isNumber);
    if (!isNumber || count < 1)
        return Fail(QString::fromLatin1("--repetitions takes a number from 1, not %1").arg(parser.value(repetitions)));

    TBenchStore::Instance().SetParameter(PARAM_DECIMAL_POINT, parser.isSet(comma) ? 1 : 0, true);
    TUnitAbbreviations::Initialize();
    TRegionSettings::InitializeLanguageStrings();
    Work::Display();

    char interleaved[] = "--benchmark_enable_random_interleaving=true";
    char* benchArguments[] = {argv[0], interleaved, nullptr};
    int benchArgumentCount = 2;
    benchmark::Initialize(&benchArgumentCount, benchArguments);

    TReport report;
    Measure(asked, count, report);
    report.PrintGroups(stdout);
    std::FILE* const targetsFile =
        parser.isSet(targets) ? std::fopen(QFile::encodeName(parser.value(targets)).constData(), "w") : stdout;
    if (!targetsFile)
        return Fail(QString::fromLatin1("cannot write %1").arg(parser.value(targets)));
    report.PrintTargets(targetsFile);
    if (targetsFile != stdout)
        std::fclose(targetsFile);
    return report.IsComplete() ? EXIT_SUCCESS : EXIT_FAILURE;
}
