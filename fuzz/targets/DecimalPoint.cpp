// The decimal point converters, both ways.

#include "support/FuzzTarget.h"
#include "support/TFuzzInput.h"
#include "units/TUnits.h"

#include <cmath>

namespace {

const int MostDecimals = 18;

bool IsDigit(QChar character) { return character >= QLatin1Char('0') && character <= QLatin1Char('9'); }

bool HasDigitAt(const QString& text, int at) { return at >= 0 && at < text.size() && IsDigit(text.at(at)); }

/// @p changed is @p text, in which points became commas, or back, where the documentation allows it.
void ExpectPointsAlone(const QString& text, const QString& changed, QChar from, QChar to, bool mayEndInPoint)
{
    Expect(text.size() == changed.size(), "a converted text keeps its length", text);
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) == changed.at(i))
            continue;
        Expect(text.at(i) == from && changed.at(i) == to, "only decimal points change", text);
        Expect(HasDigitAt(text, i - 1), "a decimal point follows a digit", text);
        Expect(mayEndInPoint || HasDigitAt(text, i + 1), "a point that is shown stands before a digit", text);
    }
}

void Check(const QByteArray& bytes)
{
    TFuzzInput input(bytes);
    const double number = input.Double();
    const int decimals = input.Byte() % (MostDecimals + 1);
    const QString text = QString::fromUtf8(input.Rest());
    const QChar point = QLatin1Char('.');
    const QChar comma = QLatin1Char(',');

    const QString shown = TUnits::InternalToDisplayableFloatStr(text);
    ExpectPointsAlone(text, shown, point, comma, false);
    if (!text.contains(comma))
        Expect(TUnits::DisplayableToInternalFloatStr(shown) == text, "a shown text reads back the same", text);

    const QString typed = TUnits::DisplayableToInternalFloatStr(text);
    ExpectPointsAlone(text, typed, comma, point, true);
    if (!text.contains(point)) {
        Expect(TUnits::DisplayableToInternalFloatStr(TUnits::InternalToDisplayableFloatStr(typed)) == typed,
               "a typed text reads the same when it was shown", text);
    }

    for (const QString& stored : {QString::number(number, 'f', decimals), QString::number(number, 'g', decimals)}) {
        const QString seen = TUnits::InternalToDisplayableFloatStr(stored);
        Expect(!seen.contains(point), "a number is shown with the comma", seen);
        Expect(TUnits::DisplayableToInternalFloatStr(seen) == stored, "a shown number reads back the same", stored);
    }
}

QList<QByteArray> Seeds()
{
    QList<QByteArray> seeds;
    for (const char* text : {"12.5", "-0.25 L/ha", "12,", "1.2.3", "52.1234567, 10.7654321", "1,5 kg\n2.25 t", ".5",
                             "5.", "12:30", "1.5e-07", "\xd9\xa1.\xd9\xa2", "3,000,000.25"})
        seeds.append(TFuzzSeed().Double(-1234.5678).Byte(2).Rest(text));
    return seeds;
}

} // namespace

namespace FuzzTargets {

tagFuzzTarget DecimalPoint() { return {"DecimalPoint", Check, Seeds}; }

} // namespace FuzzTargets
