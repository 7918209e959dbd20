#pragma once

#include <QString>
#include <QVariant>

/// A parameter's value as it stands in a file: the name of its type and a text that a person can read.
struct tagStoredValue
{
    QString type;
    QString text;
};

/// False for a type that cannot be stored. Storable are bool, int, long long, double, string, colour and bytes.
bool EncodeValue(const QVariant& value, tagStoredValue* stored);

/// The exact value that was encoded. False for a type that is not known or a text that is not one of its values.
bool DecodeValue(const tagStoredValue& stored, QVariant* value);

/// Whether two values are the same to the last bit and of the same type; QVariant's own comparison converts between
/// types and is lenient with colours. Two invalid variants are the same, and so are two values that are not numbers.
bool IsSameValue(const QVariant& one, const QVariant& other);
