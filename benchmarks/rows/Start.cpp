#include "Rows.h"
#include "Work.h"

namespace {

using namespace Work;

const TRows Rows = {
    {"start", ROW_OURS, "on an empty store", Timed<StartOnEmptyStore>},
    {"start", ROW_OURS, "on a full store", Timed<StartOnFullStore>},
};

} // namespace
