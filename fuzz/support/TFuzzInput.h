#pragma once

#include <QByteArray>
#include <QString>

/// Takes values from the bytes of an input, one behind the other. What is missing at the end reads as zero, or empty.
class TFuzzInput
{
public:
    explicit TFuzzInput(const QByteArray& bytes) : m_Bytes(bytes) {}

    bool IsAtEnd() const { return m_At >= m_Bytes.size(); }

    unsigned char Byte();
    bool Bool() { return (Byte() & 1) != 0; }
    int Int();       ///< four bytes, the least significant one first
    double Double(); ///< any eight bytes, in the same order

    /// A length of one or two bytes, and as many bytes.
    QByteArray ShortBytes() { return Take(Byte()); }
    QByteArray Bytes();
    QString Text() { return QString::fromUtf8(ShortBytes()); }

    QByteArray Rest() { return Take(static_cast<int>(m_Bytes.size())); }

private:
    QByteArray Take(int length);

    const QByteArray m_Bytes;
    int m_At = 0;
};

/// Makes the bytes of which TFuzzInput takes the same values.
class TFuzzSeed
{
public:
    TFuzzSeed& Byte(int value);
    TFuzzSeed& Int(int value);
    TFuzzSeed& Double(double value);
    TFuzzSeed& ShortBytes(const QByteArray& bytes);
    TFuzzSeed& Bytes(const QByteArray& bytes);
    TFuzzSeed& Text(const char* text) { return ShortBytes(text); }
    TFuzzSeed& Rest(const QByteArray& bytes);

    operator QByteArray() const { return m_Bytes; }

private:
    QByteArray m_Bytes;
};
