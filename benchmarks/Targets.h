#pragma once

/// What the bench measures, and how fast the library has to be.

struct tagGroup
{
    const char* name;
    const char* work; ///< what one call does
    int iterations;   ///< calls of one repetition; 0 for as many as fill its time
    bool withComma;   ///< of a display that shows decimal commas, which is settled once for a process
};

// clang-format off
constexpr tagGroup Groups[] = {
    {"convert.one",    "a factor function",                                         0, false},
    {"convert.mix",    "from unit to unit, shuffled, no parameter decides",         0, false},
    {"convert.param",  "litres to gallons: two parameters decide",                  0, false},
    {"text.point",     "value, two decimals and abbreviation to QString",           0, false},
    {"text.comma",     "the same with a decimal comma",                             0, true},
    {"text.converter", "the decimal point of a finished text",                      0, true},
    {"text.quantity",  "an area as the operator has chosen to see it",              0, false},
    {"log.flush",      "a line of 60 bytes, in the file when the call returns",     0, false},
    {"log.stamp",      "the same with date and time in front",                      0, false},
    {"log.staged",     "an NMEA line of 70 bytes, gathered in 1,024",               0, false},
    {"log.rotate",     "a line that goes to the next file of its series",           1, false},
    {"path.compose",   "the path of a coverage file",                               0, false},
    {"path.active",    "the same for the active job; its folders exist",            0, false},
    {"param.read",     "a setting by its locked façade",                            0, false},
    {"param.colour",   "a colour of the scheme in use",                             0, false},
    {"serial.scalars", "five numbers written and read",                             0, false},
    {"serial.list",    "1,000 integers written and read",                           0, false},
    {"serial.record",  "numbers, text, bytes and 64 states written and read",       0, false},
    {"start",          "TSettings made, initialised, restored and destroyed",       1, false},
};
// clang-format on

/// Of a group's rows: the fastest peer.
constexpr const char* BestPeer = "";

/// The median of one row is at most so many times the median of another, in the same run.
struct tagTarget
{
    const char* group;
    const char* ours;
    const char* against;
    double most;
};

constexpr tagTarget Targets[] = {
    {"convert.one", "ConvertMetersToFeet", "the multiplication in a shared library", 1.1},
    {"convert.mix", "ConvertUnit", "UDUNITS-2, kept converters", 1.0},
    {"convert.mix", "ConvertUnit", "KUnitConversion", 1.0 / 15},
    {"convert.param", "ConvertUnit to gallons", "the two reads alone", 1.1},
    {"text.point", "GetValueString", BestPeer, 0.5},
    {"text.comma", "GetValueString", BestPeer, 0.5},
    {"text.converter", "InternalToDisplayableFloatStr", BestPeer, 0.1},
    {"text.quantity", "GetAreaString", "QLocale, which reads nothing", 0.7},
    {"log.flush", "user log, LogDiagnostic", "write(2)", 1.15},
    {"log.flush", "user log, LogDiagnostic", "spdlog, rotating, flushed", 0.95},
    {"log.stamp", "user log, AddEntry", "write(2)", 1.25},
    {"log.stamp", "user log, AddEntry", "spdlog, rotating, flushed, on the same clock", 0.95},
    {"log.staged", "NMEA log, Log", "fwrite, 1024 bytes of buffer", 1.15},
    {"path.compose", "GetCoverageFilePath", "one QStringBuilder expression, the drive read", 1.1},
    {"param.read", "GetLanguageExtension", "a virtual read under a mutex", 1.1},
    {"param.colour", "GetTextColor", "its two reads", 1.1},
    {"param.colour", "GetTextColor", "QSettings", 0.2},
    {"serial.scalars", "TBinarySerializer", "QDataStream", 1.1},
    {"serial.list", "TBinarySerializer", "QDataStream", 0.2},
    {"serial.record", "TBinarySerializer", "QDataStream", 0.6},
};
