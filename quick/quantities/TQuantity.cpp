#include "quantities/TQuantity.h"

#include "module/TParameterHub.h"
#include "quantities/Quantities.h"

#include "units/TUnits.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

const int MostDecimals = 9;

bool IsSame(double one, double other) { return one == other || (std::isnan(one) && std::isnan(other)); }

} // namespace

TQuantity::TQuantity(QObject* parent)
    : QObject(parent)
    , m_Kind(Area)
    , m_Value(std::numeric_limits<double>::quiet_NaN())
    , m_Error(m_Value)
    , m_Precision(TUnits::DefaultPrecision)
{
    // Any parameter: which of them a text depends on is the library's affair, and a text that stays is not told.
    connect(&TParameterHub::Instance(), &TParameterHub::Changed, this, &TQuantity::Show);
    Show();
}

void TQuantity::SetKind(EKind kind)
{
    if (kind == m_Kind || kind < 0 || kind >= KindCount)
        return;
    m_Kind = kind;
    emit kindChanged();
    Show();
}

void TQuantity::SetValue(double value)
{
    if (IsSame(value, m_Value))
        return;
    m_Value = value;
    emit valueChanged();
    Show();
}

void TQuantity::SetRelativeError(double percent)
{
    if (IsSame(percent, m_Error))
        return;
    m_Error = percent;
    emit relativeErrorChanged();
    Show();
}

void TQuantity::SetPrecision(int precision)
{
    const int bounded = std::clamp(precision, TUnits::DefaultPrecision, MostDecimals);
    if (bounded == m_Precision)
        return;
    m_Precision = bounded;
    emit precisionChanged();
    Show();
}

QString TQuantity::Title() const { return Quantities::Title(m_Kind); }
bool TQuantity::CanBeTyped() const { return Quantities::CanBeTyped(m_Kind); }
QString TQuantity::DecimalSign() const { return TUnits::DisplayableDecimalPointChar(); }

double TQuantity::parse(const QString& typed) const { return Quantities::Parse(m_Kind, typed); }

QString TQuantity::format(double stored) const { return Quantities::Show(m_Kind, stored, m_Error, m_Precision).number; }

void TQuantity::Show()
{
    const tagQuantityText shown = Quantities::Show(m_Kind, m_Value, m_Error, m_Precision);
    if (shown.text == m_Text)
        return;
    m_Text = shown.text;
    m_Number = shown.number;
    m_Unit = shown.unit;
    m_ErrorText = shown.error;
    emit textChanged();
}
