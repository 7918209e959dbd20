// log4cplus, package liblog4cplus-dev: rolling files of the same size and number, flushed after each line.

#include "Rows.h"
#include "Work.h"

#include <log4cplus/fileappender.h>
#include <log4cplus/initializer.h>
#include <log4cplus/layout.h>
#include <log4cplus/spi/loggingevent.h>

namespace {

using namespace Work;

log4cplus::RollingFileAppender& MakeAppender(const char* name, const char* pattern)
{
    static const log4cplus::Initializer initializer;
    const auto path = BenchFolder::Fresh(name) + QLatin1String("/peer.log");
    auto* const appender = new log4cplus::RollingFileAppender(path.toStdString(), 0x100000, 3, true);
    appender->setLayout(std::make_unique<log4cplus::PatternLayout>(pattern));
    return *appender; // as long as the program
}

bool Append(log4cplus::RollingFileAppender& appender, const std::string& text,
            std::chrono::system_clock::time_point time)
{
    static const log4cplus::MappedDiagnosticContextMap noContext;
    const log4cplus::spi::InternalLoggingEvent event(
        "bench", log4cplus::INFO_LOG_LEVEL, "", noContext, text, "", "",
        log4cplus::helpers::Time(std::chrono::time_point_cast<log4cplus::helpers::Time::duration>(time)), "", 0);
    appender.doAppend(event);
    return true;
}

bool FlushedEntry(unsigned)
{
    static auto& appender = MakeAppender("log4cplus-flush", "%m\r\n");
    static const std::string text(Entry, static_cast<std::size_t>(EntryLength) - 2);
    return Append(appender, text, std::chrono::system_clock::time_point());
}

bool StampedEntry(unsigned)
{
    static auto& appender = MakeAppender("log4cplus-stamp", "%d{%Y.%m.%d-%H:%M:%S:%q},%m\r\n");
    static const std::string text = EntryText.toStdString();
    return Append(appender, text, TBenchClock::NextTimePoint());
}

const TRows Rows = {
    {"log.flush", ROW_PEER, "log4cplus, rolling, flushed", Timed<FlushedEntry>},
    {"log.stamp", ROW_PEER, "log4cplus, rolling, flushed, on the same clock", Timed<StampedEntry>},
};

} // namespace
