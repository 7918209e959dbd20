// Boost.Units, package libboost-dev: the units are types, the factor is known to the compiler.

#include "Inputs.h"
#include "Rows.h"

#include <boost/units/base_units/imperial/foot.hpp>
#include <boost/units/quantity.hpp>
#include <boost/units/systems/si/length.hpp>

namespace {

namespace bu = boost::units;
using TFeet = bu::imperial::foot_base_unit::unit_type;

double Converted(unsigned number)
{
    const bu::quantity<bu::si::length> length = static_cast<double>(Inputs::Float(number)) * bu::si::meters;
    return bu::quantity<TFeet>(length).value();
}

const TRows Rows = {
    {"convert.one", ROW_PEER, "Boost.Units", Timed<Converted>},
};

} // namespace
