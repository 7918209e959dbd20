// The decimal point of the display, "." or ",". Inside the system it is always a full stop.

#include "settings/Parameters.h"
#include "units/TUnits.h"

namespace {

const int CommaChosen = 1; // of PARAM_DECIMAL_POINT

bool ShowsComma() { return Parameters::ReadInt(PARAM_DECIMAL_POINT) == CommaChosen; }

bool IsDigit(QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); }

/// Changes the point of every number in @p text. A number is a run of digits, a point and a run of digits, which may be
/// empty only when @p mayEndInPoint; the next number starts behind it, so that "1.2.3" holds one.
QString WithPoint(const QString& text, QChar from, QChar to, bool mayEndInPoint)
{
    QString result = text;
    const int length = static_cast<int>(text.size());
    int digits = 0; // behind the last number, up to here
    for (int i = 0; i < length; ++i) {
        if (IsDigit(text.at(i))) {
            ++digits;
            continue;
        }
        const bool hasDigitBehind = i + 1 < length && IsDigit(text.at(i + 1));
        if (text.at(i) == from && digits > 0 && (hasDigitBehind || mayEndInPoint)) {
            result[i] = to;
            while (i + 1 < length && IsDigit(text.at(i + 1)))
                ++i;
        }
        digits = 0;
    }
    return result;
}

} // namespace

QChar TUnits::InternalDecimalPointChar() { return QLatin1Char('.'); }

// The choice is made once for the run, by each of the three on its own: a display must not change how it reads a number
// that is just being typed.

QChar TUnits::DisplayableDecimalPointChar()
{
    static const QChar point = QLatin1Char(ShowsComma() ? ',' : '.');
    return point;
}

QString TUnits::InternalToDisplayableFloatStr(const QString& text)
{
    static const bool changes = ShowsComma();
    return changes ? WithPoint(text, InternalDecimalPointChar(), DisplayableDecimalPointChar(), false) : text;
}

QString TUnits::DisplayableToInternalFloatStr(const QString& text)
{
    static const bool changes = ShowsComma();
    return changes ? WithPoint(text, DisplayableDecimalPointChar(), InternalDecimalPointChar(), true) : text;
}
