// The program that libFuzzer drives:
//
//   cabsettings-fuzz TARGET [-OPTION=VALUE...] [FOLDER-OR-FILE...]

#include "support/FuzzTarget.h"
#include "support/TFuzzRoom.h"

#include <QCoreApplication>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

/// The name of the target, for the processes that libFuzzer starts of this program.
const char* const TargetVariable = "CABSETTINGS_FUZZ_TARGET";

const tagFuzzTarget* Target = nullptr;

void Ignore(QtMsgType, const QMessageLogContext&, const QString&) {}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
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
    static int count = 1; // the options are libFuzzer's
    static const QCoreApplication application(count, *argv);
    qInstallMessageHandler(Ignore);
    static const TFuzzRoom room;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    try {
        Target->check(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)));
    } catch (const TBrokenProperty& broken) {
        std::fprintf(stderr, "%s: broken: %s\n", Target->name, broken.what());
        std::abort();
    }
    return 0;
}
