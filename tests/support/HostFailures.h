#pragma once

#include "TJournal.h"

#include <stdexcept>

/// What a host may throw into the library.
struct THostFailure : std::runtime_error
{
    THostFailure() : std::runtime_error("the host fails") {}
};

/// Makes @p call with the host throwing when it is called for the first time, then for the second, and so on until
/// @p call gets through. Answers how often the host threw; -1, at once, when @p isSound is false after a try.
template <class Call, class Check>
int FailAtEveryCallOfTheHost(TJournal& host, Call call, Check isSound)
{
    for (int failures = 0;; ++failures) {
        int callsLeft = failures;
        host.onNote = [&callsLeft] {
            if (callsLeft-- == 0)
                throw THostFailure();
        };
        bool isThrough = false;
        try {
            call();
            isThrough = true;
        } catch (const THostFailure&) {
        }
        host.onNote = nullptr;
        if (!isSound())
            return -1;
        if (isThrough)
            return failures;
    }
}
