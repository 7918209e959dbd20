#pragma once

#include "TChosenUnits.h"

#include <QtTest>

using Spec = TUnits::tagThresholdSpec;

/// What a stored value looks like: with more digits than any text shows, and by default.
struct tagLook
{
    double value;
    const char* text;
};

/// The text of @p look with other decimals than it has by default.
inline QString WithDecimals(const tagLook& look, int decimals)
{
    const QString text = Utf8(look.text);
    return QString::number(look.value, 'f', decimals) + text.mid(text.indexOf(QLatin1Char(' ')));
}

inline Spec Rule(double threshold, int precision) { return {static_cast<float>(threshold), precision}; }

/// What @p text answers where the caller's precision and threshold rule decide.
template <class Text>
void CheckPrecisions(const tagLook& look, const Text& text)
{
    const Spec met = Rule(look.value - 0.5, 3);
    const Spec notMet = Rule(look.value + 0.5, 3);
    QCOMPARE(text(-1, nullptr), Utf8(look.text));
    QCOMPARE(text(0, nullptr), WithDecimals(look, 0));
    QCOMPARE(text(1, nullptr), WithDecimals(look, 1));
    QCOMPARE(text(2, nullptr), WithDecimals(look, 2));
    QCOMPARE(text(3, nullptr), WithDecimals(look, 3));
    QCOMPARE(text(-1, &met), WithDecimals(look, 3));
    QCOMPARE(text(1, &met), WithDecimals(look, 3));
    QCOMPARE(text(-1, &notMet), Utf8(look.text));
    QCOMPARE(text(1, &notMet), WithDecimals(look, 1));
    const Spec byDefault = Rule(look.value - 0.5, -1);
    QCOMPARE(text(2, &byDefault), Utf8(look.text));
}
