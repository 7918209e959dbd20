// UDUNITS-2, package libudunits2-dev: converters that are made once and kept.

#include "Pairs.h"
#include "Rows.h"

#include <udunits2.h>

namespace {

cv_converter* ConverterOf(const tagPair& pair)
{
    static ut_system* const system = [] {
        ut_set_error_message_handler(ut_ignore);
        return ut_read_xml(nullptr);
    }();
    ut_unit* const from = ut_parse(system, pair.udunits[0], UT_UTF8);
    ut_unit* const to = ut_parse(system, pair.udunits[1], UT_UTF8);
    cv_converter* const converter = ut_get_converter(from, to);
    if (!converter)
        std::abort(); // a unit is misspelt
    return converter;
}

double KeptConverter(unsigned number)
{
    static const std::array<cv_converter*, Inputs::Count> converters = [] {
        std::array<cv_converter*, PairCount> ofPairs;
        std::transform(std::begin(Pairs), std::end(Pairs), ofPairs.begin(), ConverterOf);
        std::array<cv_converter*, Inputs::Count> shuffled;
        std::transform(PairOrder.begin(), PairOrder.end(), shuffled.begin(),
                       [&](std::size_t pair) { return ofPairs[pair]; });
        return shuffled;
    }();
    return cv_convert_double(converters[number % Inputs::Count], Inputs::Value(number));
}

const TRows Rows = {
    {"convert.mix", ROW_PEER, "UDUNITS-2, kept converters", Timed<KeptConverter>},
};

} // namespace
