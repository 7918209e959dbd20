#pragma once

#include <istream>
#include <string>

/// Main memory in kB.
struct tagMemoryInfo
{
    unsigned total;
    unsigned free; ///< free memory, buffers and page cache: what programs can have
};

/// Reads text of the form of /proc/meminfo: key, value and unit, again and again. Stops after the fourth key that
/// counts; in that file they all stand in the first lines.
inline tagMemoryInfo ReadMemoryInfo(std::istream& text)
{
    tagMemoryInfo info = {0, 0};
    std::string key;
    std::string unit;
    unsigned value = 0;
    for (int found = 0; found < 4 && text >> key >> value;) {
        text >> unit;
        if (key == "MemTotal:") {
            info.total = value;
            ++found;
        } else if (key == "MemFree:" || key == "Buffers:" || key == "Cached:") {
            info.free += value;
            ++found;
        }
    }
    return info;
}
