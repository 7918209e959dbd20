// Prints how many pages of the library one text touches, its conversion included.

#include "Work.h"

#include "units/TUnitAbbreviations.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <unistd.h>

int main()
{
    TBenchStore::Instance();
    TUnitAbbreviations::Initialize();
    const auto request = [] { return TUnits::GetValueString(123.4, UNITS_LITERS, -1, nullptr); };
    request(); // what comes once

    std::ofstream("/proc/self/clear_refs") << 1;
    request();
    std::ifstream mappings("/proc/self/smaps");
    long kilobytes = 0;
    bool isLibrary = false;
    for (std::string line; std::getline(mappings, line);) {
        if (line.find('-') < line.find(' ')) // the first line of a mapping: addresses
            isLibrary = line.find("libcabsettings") != std::string::npos;
        else if (isLibrary && line.compare(0, 11, "Referenced:") == 0)
            kilobytes += std::strtol(line.c_str() + 11, nullptr, 10);
    }
    std::printf("%ld\n", kilobytes * 1024 / sysconf(_SC_PAGESIZE));
    return EXIT_SUCCESS;
}
