#pragma once

/// Weight of a log entry; single bits, to be combined into filters. The numbers never change.
enum ELoggingCategory : int
{
    LOG_CATEGORY_CRITICAL = 2,
    LOG_CATEGORY_NORMAL = 16,
    LOG_CATEGORY_TRIVIAL = 64,
};
