#pragma once

#include <QString>

#include <stdexcept>

/// What is not as it must be; ends the season.
class TSeasonFault : public std::runtime_error
{
public:
    explicit TSeasonFault(const QString& text) : std::runtime_error(text.toStdString()) {}
};

inline void Require(bool isTrue, const char* otherwise)
{
    if (!isTrue)
        throw TSeasonFault(QString::fromUtf8(otherwise));
}

/// @param got, wanted are part of the text.
template <class Number>
void RequireEqual(Number got, Number wanted, const char* of)
{
    if (got != wanted)
        throw TSeasonFault(QString::fromLatin1("%1: %2, and not %3").arg(QString::fromUtf8(of)).arg(got).arg(wanted));
}
