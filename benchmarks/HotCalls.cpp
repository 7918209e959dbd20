// Makes one call of the library's so many times, for those who count from outside what that takes: instructions, system
// calls. Without arguments it names the calls.

#include "Work.h"

#include "region/TRegionSettings.h"
#include "units/TUnitAbbreviations.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

template <auto Call>
void Repeat(unsigned times)
{
    for (unsigned number = 0; number < times; ++number)
        Call(number);
}

struct tagCall
{
    const char* name;
    void (*repeat)(unsigned times);
};

constexpr tagCall Calls[] = {
    {"convert.mix", Repeat<Work::UnitByUnit>},
    {"convert.param", Repeat<Work::Gallons>},
    {"text.point", Repeat<Work::ValueText>},
    {"text.quantity", Repeat<Work::AreaText>},
    {"log.flush", Repeat<Work::FlushedLine>},
    {"log.stamp", Repeat<Work::StampedLine>},
    {"log.staged", Repeat<Work::StagedLine>},
    {"log.rotate", Repeat<Work::RotatingLine>},
    {"log.rotate-full", Repeat<Work::RotatingLineInFullFolder>},
    {"path.compose", Repeat<Work::CoveragePath>},
    {"path.active", Repeat<Work::ActiveCoveragePath>},
    {"param.read", Repeat<Work::LanguageExtension>},
    {"param.colour", Repeat<Work::TextColor>},
    {"serial.record", Repeat<Work::Record<TBinarySerializer>>},
    {"start.empty", Repeat<Work::StartOnEmptyStore>},
    {"start.full", Repeat<Work::StartOnFullStore>},
};

} // namespace

int main(int argc, char** argv)
{
    TBenchStore::Instance();
    TUnitAbbreviations::Initialize();
    TRegionSettings::InitializeLanguageStrings();
    Work::Display();

    for (const tagCall& call : Calls) {
        if (argc == 1)
            std::puts(call.name);
        if (argc != 3 || std::strcmp(argv[1], call.name) != 0)
            continue;
        call.repeat(static_cast<unsigned>(std::strtoul(argv[2], nullptr, 10)));
        return EXIT_SUCCESS;
    }
    if (argc == 1)
        return EXIT_SUCCESS;
    std::fprintf(stderr, "Call: %s NAME TIMES; without arguments it lists the names\n", argv[0]);
    return EXIT_FAILURE;
}
