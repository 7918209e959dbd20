// The program that libFuzzer drives:
//
//   cabsettings-fuzz TARGET [-OPTION=VALUE...] [--seeded] [FOLDER-OR-FILE...]
//
// With --seeded the inputs follow from the option -seed and from the files alone; see TSeededInputs.

#include "support/FuzzTarget.h"
#include "support/TFuzzRoom.h"
#include "support/TSeededInputs.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include <unistd.h>

namespace {

/// The name of the target, for the processes that libFuzzer starts of this program.
const char* const TargetVariable = "CABSETTINGS_FUZZ_TARGET";

const tagFuzzTarget* Target = nullptr;

/// A second descriptor of standard error: with -close_fd_mask libFuzzer sends the first one nowhere.
int Report = -1;

std::unique_ptr<TSeededInputs> Seeded; ///< null without --seeded
bool AreFilesRead = false;

/// The value of an option, or null.
const char* OptionValue(int count, char** arguments, const QByteArray& name)
{
    for (int i = 1; i < count; ++i) {
        if (QByteArray(arguments[i]).startsWith(name))
            return arguments[i] + name.size();
    }
    return nullptr;
}

void Ignore(QtMsgType, const QMessageLogContext&, const QString&) {}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t most, unsigned seed);

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    Report = dup(STDERR_FILENO);
    if (*argc > 1 && FuzzTargets::Find(QString::fromUtf8((*argv)[1]))) {
        qputenv(TargetVariable, (*argv)[1]);
        (*argv)[1] = (*argv)[0];
        ++*argv;
        --*argc;
    }
    Target = FuzzTargets::Find(QString::fromUtf8(qgetenv(TargetVariable)));
    if (!Target) {
        std::fprintf(stderr, "usage: %s TARGET [OPTION...] [FOLDER-OR-FILE...]\ntargets:", (*argv)[0]);
        for (const tagFuzzTarget& target : FuzzTargets::All())
            std::fprintf(stderr, " %s", target.name);
        std::fputc('\n', stderr);
        std::exit(EXIT_FAILURE);
    }
    if (OptionValue(*argc, *argv, "--seeded")) {
        const char* const seed = OptionValue(*argc, *argv, "-seed=");
        Seeded = std::make_unique<TSeededInputs>(QByteArray(seed ? seed : "0").toUInt());
    }
    static int count = 1; // the options are libFuzzer's
    static const QCoreApplication application(count, *argv);
    qInstallMessageHandler(Ignore);
    static const TFuzzRoom room;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray input(reinterpret_cast<const char*>(data), static_cast<int>(size));
    if (Seeded && !AreFilesRead)
        Seeded->Add(input);
    try {
        Target->check(input);
    } catch (const TBrokenProperty& broken) {
        dprintf(Report, "%s: broken: %s\n", Target->name, broken.what());
        std::abort();
    }
    return 0;
}

/// libFuzzer has read all files when it calls this first.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t most, unsigned)
{
    AreFilesRead = true;
    if (!Seeded)
        return LLVMFuzzerMutate(data, size, most);
    const QByteArray input = Seeded->Next(static_cast<int>(most));
    std::copy_n(input.constData(), input.size(), reinterpret_cast<char*>(data));
    return static_cast<std::size_t>(input.size());
}
