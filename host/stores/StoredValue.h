#pragma once

#include <QString>
#include <QVariant>

/// A parameter's value as it is in the file: the name of its type, and a readable text.
struct tagStoredValue
{
    QString type;
    QString text;
};

/// Returns false for a type that cannot be stored. The types that can are bool, int, long long, double, string, colour
/// and bytes.
bool EncodeValue(const QVariant& value, tagStoredValue* stored);

/// Gives back the exact value that was encoded. Returns false when the type is unknown or the text is not a value of
/// it.
bool DecodeValue(const tagStoredValue& stored, QVariant* value);

/// Whether two values have the same type and the same bits. QVariant's own comparison converts between types and treats
/// similar colours as equal. Two invalid variants are the same, and so are two NaN.
bool IsSameValue(const QVariant& one, const QVariant& other);
