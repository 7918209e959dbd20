// spdlog, package libspdlog-dev: rotating files of the same size and number, flushed after each line.

#include "Rows.h"
#include "Work.h"

#include <spdlog/pattern_formatter.h>
#include <spdlog/sinks/rotating_file_sink.h>
#include <spdlog/spdlog.h>

namespace {

using namespace Work;

spdlog::logger MakeLogger(const char* name, const char* pattern)
{
    const auto path = BenchFolder::Fresh(name) + QLatin1String("/peer.log");
    auto sink = std::make_shared<spdlog::sinks::rotating_file_sink_mt>(path.toStdString(), 0x100000, 4);
    spdlog::logger logger(name, std::move(sink));
    logger.set_formatter(std::make_unique<spdlog::pattern_formatter>(pattern, spdlog::pattern_time_type::utc, "\r\n"));
    logger.flush_on(spdlog::level::trace);
    return logger;
}

bool FlushedEntry(unsigned)
{
    static spdlog::logger logger = MakeLogger("spdlog-flush", "%v");
    static const std::chrono::system_clock::time_point time;
    logger.log(time, spdlog::source_loc(), spdlog::level::info,
               spdlog::string_view_t(Entry, static_cast<std::size_t>(EntryLength) - 2)); // it adds the line end
    return true;
}

bool StampedEntry(unsigned)
{
    static spdlog::logger logger = MakeLogger("spdlog-stamp", "%Y.%m.%d-%H:%M:%S:%e,%v");
    static const std::string text = EntryText.toStdString();
    logger.log(TBenchClock::NextTimePoint(), spdlog::source_loc(), spdlog::level::info, text);
    return true;
}

const TRows Rows = {
    {"log.flush", ROW_PEER, "spdlog, rotating, flushed", Timed<FlushedEntry>},
    {"log.stamp", ROW_PEER, "spdlog, rotating, flushed, on the same clock", Timed<StampedEntry>},
};

} // namespace
