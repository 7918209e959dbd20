// fmt, package libfmt-dev.

#include "Inputs.h"
#include "Rows.h"

#include <QString>

#include <fmt/format.h>

#include <algorithm>

namespace {

template <char Point>
QString Formatted(unsigned number)
{
    fmt::memory_buffer text;
    fmt::format_to(std::back_inserter(text), "{:.2f}{}", Inputs::Value(number), " L/ha");
    std::replace(text.begin(), text.end(), '.', Point);
    return QString::fromLatin1(text.data(), static_cast<int>(text.size()));
}

const TRows Rows = {
    {"text.point", ROW_PEER, "fmt, then fromLatin1", Timed<Formatted<'.'>>},
    {"text.comma", ROW_PEER, "fmt, replaced, then fromLatin1", Timed<Formatted<','>>},
};

} // namespace
