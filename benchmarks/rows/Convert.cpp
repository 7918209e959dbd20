#include "Floor.h"
#include "Rows.h"
#include "Work.h"

namespace {

using namespace Work;

double InlineMultiplication(unsigned number)
{
    return static_cast<double>(Inputs::Float(number)) * static_cast<double>(Floor::FeetPerMeter);
}

double MultiplicationInASharedLibrary(unsigned number) { return Floor::MetersToFeet(Inputs::Float(number)); }

/// The factors of the mix, where they are known beforehand.
const std::array<double, Inputs::Count> Factors = [] {
    std::array<double, Inputs::Count> factors;
    std::transform(ShuffledUnits.begin(), ShuffledUnits.end(), factors.begin(),
                   [](const tagUnits& pair) { return TUnits::ConvertUnit(1, pair.from, pair.to); });
    return factors;
}();

double KnownFactor(unsigned number) { return Inputs::Value(number) * Factors[number % Inputs::Count]; }

double FunctionOfThePair(unsigned number) { return Floor::MetersToFeet(static_cast<float>(KnownFactor(number))); }

bool TwoReads(unsigned) { return Floor::TwoReads(); }

const TRows Rows = {
    {"convert.one", ROW_LIMIT, "inline multiplication", Timed<InlineMultiplication>},
    {"convert.one", ROW_FLOOR, "the multiplication in a shared library", Timed<MultiplicationInASharedLibrary>},
    {"convert.one", ROW_OURS, "ConvertMetersToFeet", Timed<FactorByName>},

    {"convert.mix", ROW_LIMIT, "a multiplication by the known factor", Timed<KnownFactor>},
    {"convert.mix", ROW_FLOOR, "the same in a shared library", Timed<FunctionOfThePair>},
    {"convert.mix", ROW_OURS, "ConvertUnit", Timed<UnitByUnit>},

    {"convert.param", ROW_FLOOR, "the two reads alone", Timed<TwoReads>},
    {"convert.param", ROW_OURS, "ConvertUnit to gallons", Timed<Gallons>},
};

} // namespace
