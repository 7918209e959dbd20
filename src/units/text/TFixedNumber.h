#pragma once

#include <QString>
#include <QStringBuilder>

/// A number in fixed notation, with exactly the digits of QString::number(value, 'f', decimals). A negative number of
/// decimals stands for 6, one above a million for a million.
///
/// It is joined with other texts by %. The sum is allocated once; a number of everyday size is not allocated at all.
class TFixedNumber
{
public:
    TFixedNumber(double value, int decimals);
    TFixedNumber(const TFixedNumber&) = delete;
    TFixedNumber& operator=(const TFixedNumber&) = delete;

    const QChar* Begin() const { return m_Begin; }
    const QChar* End() const { return m_End; }
    int Size() const { return static_cast<int>(m_End - m_Begin); }
    QString Text() const { return QString(m_Begin, Size()); }

private:
    static constexpr int PointAt = 11; // leaves room for a sign and the digits of 32 bits
    static constexpr int MostDecimals = 9;

    QChar m_Room[PointAt + 1 + MostDecimals];
    QString m_Other; // for numbers that do not fit into m_Room
    const QChar* m_Begin;
    const QChar* m_End;
};

/// The traits by which QStringBuilder joins the number with other texts.
template <>
struct QConcatenable<TFixedNumber>
{
    using type = TFixedNumber;
    using ConvertTo = QString;
    enum
    {
        ExactSize = true
    };

    static int size(const TFixedNumber& number) { return number.Size(); }

    static void appendTo(const TFixedNumber& number, QChar*& out)
    {
        for (const QChar* digit = number.Begin(); digit != number.End(); ++digit)
            *out++ = *digit;
    }
};
