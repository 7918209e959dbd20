#include "units/text/DecimalPoint.h"

#include "access/Parameters.h"
#include "platform/EDecimalPoint.h"
#include "units/TUnits.h"

#include <algorithm>

namespace {

bool ShowsComma() { return Parameters::ReadInt(PARAM_DECIMAL_POINT) == DECIMAL_POINT_COMMA; }

bool IsDigit(QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); }

/// Changes the point of every number in @p text. A number is digits, a point and digits; the last digits may be missing
/// when @p mayEndInPoint. The next number starts behind it, so that "1.2.3" contains one number.
void ChangePoints(QString& text, QChar from, QChar to, bool mayEndInPoint)
{
    const int length = static_cast<int>(text.size());
    int behindNumber = 0;
    for (int point = 0;;) {
        const QChar* const letters = text.constData(); // a change of a point can move them
        const QChar* const end = letters + length;
        point = static_cast<int>(std::find(letters + point, end, from) - letters);
        if (point == length)
            return;
        const int behind = static_cast<int>(std::find_if_not(letters + point + 1, end, IsDigit) - letters);
        const bool hasDigits = point > behindNumber && IsDigit(letters[point - 1]);
        if (hasDigits && (behind > point + 1 || mayEndInPoint)) {
            text[point] = to;
            behindNumber = behind;
        }
        point = behind;
    }
}

} // namespace

QChar TUnits::InternalDecimalPointChar() { return QLatin1Char('.'); }

// Each of the three functions reads the parameter once: the decimal point must not change while a number is typed.

QChar TUnits::DisplayableDecimalPointChar()
{
    static const QChar point = QLatin1Char(ShowsComma() ? ',' : '.');
    return point;
}

QString DecimalPoint::Shown(QString text)
{
    static const bool changes = ShowsComma();
    if (changes)
        ChangePoints(text, TUnits::InternalDecimalPointChar(), TUnits::DisplayableDecimalPointChar(), false);
    return text;
}

QString TUnits::InternalToDisplayableFloatStr(const QString& text) { return DecimalPoint::Shown(text); }

QString TUnits::DisplayableToInternalFloatStr(const QString& text)
{
    static const bool changes = ShowsComma();
    QString result = text;
    if (changes)
        ChangePoints(result, DisplayableDecimalPointChar(), InternalDecimalPointChar(), true);
    return result;
}
