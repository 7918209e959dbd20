#pragma once

/// Importance of a log entry. Each value is one bit, so that filters can combine them. The numbers never change.
enum ELoggingCategory : int
{
    LOG_CATEGORY_CRITICAL = 2,
    LOG_CATEGORY_NORMAL = 16,
    LOG_CATEGORY_TRIVIAL = 64,
};
