#include "stores/StoredValue.h"

#include <QByteArray>
#include <QColor>
#include <QLocale>
#include <QRgba64>
#include <QStringList>
#include <QVector>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

const QLatin1String True("true");
const QLatin1String False("false");

QString EncodeBool(const QVariant& value) { return value.toBool() ? True : False; }

bool DecodeBool(const QString& text, QVariant* value)
{
    *value = text == True;
    return text == True || text == False;
}

QString EncodeInt(const QVariant& value) { return QString::number(value.toInt()); }

bool DecodeInt(const QString& text, QVariant* value)
{
    bool isNumber = false;
    *value = text.toInt(&isNumber);
    return isNumber;
}

QString EncodeLongLong(const QVariant& value) { return QString::number(value.toLongLong()); }

bool DecodeLongLong(const QString& text, QVariant* value)
{
    bool isNumber = false;
    *value = text.toLongLong(&isNumber);
    return isNumber;
}

// The shortest text that is read as the same number. Qt would drop the sign of zero.
QString NumberText(double number, char format)
{
    if (number == 0 && std::signbit(number))
        return QLatin1String("-0");
    return QString::number(number, format, QLocale::FloatingPointShortest);
}

QString EncodeDouble(const QVariant& value) { return NumberText(value.toDouble(), 'g'); }

bool DecodeDouble(const QString& text, QVariant* value)
{
    bool isNumber = false;
    *value = text.toDouble(&isNumber);
    return isNumber;
}

// Characters that a database may lose or change (NUL, byte order marks, halves of surrogate pairs), and control
// characters, are written as \uXXXX.
bool NeedsEscape(const QString& text, int at)
{
    const QChar character = text.at(at);
    if (character.isHighSurrogate())
        return at + 1 == text.size() || !text.at(at + 1).isLowSurrogate();
    if (character.isLowSurrogate())
        return at == 0 || !text.at(at - 1).isHighSurrogate();
    const ushort code = character.unicode();
    return code < 0x20 || code == 0x7f || code == 0xfeff || code >= 0xfffe;
}

QString EncodeString(const QVariant& value)
{
    const QString plain = value.toString();
    QString text = QLatin1String(""); // not null, which a database would store as NULL
    text.reserve(plain.size());
    for (int at = 0; at < plain.size(); ++at) {
        if (plain.at(at) == QLatin1Char('\\'))
            text += QLatin1String("\\\\");
        else if (NeedsEscape(plain, at))
            text += QString::fromLatin1("\\u%1").arg(int{plain.at(at).unicode()}, 4, 16, QLatin1Char('0'));
        else
            text += plain.at(at);
    }
    return text;
}

bool DecodeString(const QString& text, QVariant* value)
{
    QString plain;
    plain.reserve(text.size());
    for (int at = 0; at < text.size(); ++at) {
        if (text.at(at) != QLatin1Char('\\')) {
            plain += text.at(at);
        } else if (text.mid(at + 1, 1) == QLatin1String("\\")) {
            plain += text.at(++at);
        } else {
            const QString digits = text.mid(at + 2, 4);
            bool isNumber = false;
            const ushort code = digits.toUShort(&isNumber, 16);
            if (text.mid(at + 1, 1) != QLatin1String("u") || digits.size() != 4 || !isNumber)
                return false;
            plain += QChar(code);
            at += 5;
        }
    }
    *value = plain;
    return true;
}

QString EncodeBytes(const QVariant& value) { return QString::fromLatin1(value.toByteArray().toBase64()); }

bool DecodeBytes(const QString& text, QVariant* value)
{
    const auto result = QByteArray::fromBase64Encoding(text.toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    *value = *result;
    return result.decodingStatus == QByteArray::Base64DecodingStatus::Ok;
}

// Components of a colour as QColor holds them: 16 bits each, the hue in hundredths of a degree, -1 for a grey.
constexpr double MaxComponent = 65535;
constexpr double MaxHue = 36000;
constexpr double NoHue = -1;

double Component(double fraction) { return qRound(fraction * MaxComponent); }
double Hue(double fraction) { return fraction < 0 ? NoHue : qRound(fraction * MaxHue); }

bool IsComponent(double number) { return number >= 0 && number <= MaxComponent && number == qRound(number); }
bool IsHue(double number) { return number >= NoHue && number <= MaxHue && number == qRound(number); }

// QColor takes qreal in Qt 5 and float in Qt 6. Both hold 16 bits exactly.
using TFraction = decltype(QColor().redF());

TFraction Fraction(double component) { return static_cast<TFraction>(component / MaxComponent); }
TFraction HueFraction(double hue) { return static_cast<TFraction>(hue < 0 ? NoHue : hue / MaxHue); }

using TComponents = QVector<double>;

TComponents SplitRgb(const QColor& color)
{
    const QRgba64 rgba = color.rgba64();
    return {double(rgba.red()), double(rgba.green()), double(rgba.blue()), double(rgba.alpha())};
}

QColor JoinRgb(const TComponents& part)
{
    const auto bits = [&part](int index) { return static_cast<quint16>(part.at(index)); };
    return QColor::fromRgba64(bits(0), bits(1), bits(2), bits(3));
}

TComponents SplitHsv(const QColor& color)
{
    return {Hue(color.hsvHueF()), Component(color.hsvSaturationF()), Component(color.valueF()),
            Component(color.alphaF())};
}

QColor JoinHsv(const TComponents& part)
{
    return QColor::fromHsvF(HueFraction(part.at(0)), Fraction(part.at(1)), Fraction(part.at(2)), Fraction(part.at(3)));
}

TComponents SplitHsl(const QColor& color)
{
    return {Hue(color.hslHueF()), Component(color.hslSaturationF()), Component(color.lightnessF()),
            Component(color.alphaF())};
}

QColor JoinHsl(const TComponents& part)
{
    return QColor::fromHslF(HueFraction(part.at(0)), Fraction(part.at(1)), Fraction(part.at(2)), Fraction(part.at(3)));
}

TComponents SplitCmyk(const QColor& color)
{
    return {Component(color.cyanF()), Component(color.magentaF()), Component(color.yellowF()),
            Component(color.blackF()), Component(color.alphaF())};
}

QColor JoinCmyk(const TComponents& part)
{
    return QColor::fromCmykF(Fraction(part.at(0)), Fraction(part.at(1)), Fraction(part.at(2)), Fraction(part.at(3)),
                             Fraction(part.at(4)));
}

TComponents SplitExtended(const QColor& color) { return {color.redF(), color.greenF(), color.blueF(), color.alphaF()}; }

QColor JoinExtended(const TComponents& part)
{
    QColor color = QColor::fromRgbF(2, 2, 2); // outside the range of plain RGB, so that the colour stays extended
    color.setRedF(static_cast<TFraction>(part.at(0)));
    color.setGreenF(static_cast<TFraction>(part.at(1)));
    color.setBlueF(static_cast<TFraction>(part.at(2)));
    color.setAlphaF(static_cast<TFraction>(part.at(3)));
    return color;
}

TComponents SplitInvalid(const QColor&) { return {}; }
QColor JoinInvalid(const TComponents&) { return {}; }

bool AnyNumber(double) { return true; }

struct tagColorSpec
{
    const char* name;
    QColor::Spec spec;
    int count;
    bool (*isFirst)(double); ///< what the first component may be
    bool (*isOther)(double); ///< what the others may be
    TComponents (*split)(const QColor&);
    QColor (*join)(const TComponents&);
};

constexpr tagColorSpec ColorSpecs[] = {
    {"invalid", QColor::Invalid, 0, AnyNumber, AnyNumber, SplitInvalid, JoinInvalid},
    {"rgb", QColor::Rgb, 4, IsComponent, IsComponent, SplitRgb, JoinRgb},
    {"hsv", QColor::Hsv, 4, IsHue, IsComponent, SplitHsv, JoinHsv},
    {"hsl", QColor::Hsl, 4, IsHue, IsComponent, SplitHsl, JoinHsl},
    {"cmyk", QColor::Cmyk, 5, IsComponent, IsComponent, SplitCmyk, JoinCmyk},
    {"extended", QColor::ExtendedRgb, 4, AnyNumber, AnyNumber, SplitExtended, JoinExtended},
};

QString EncodeColor(const QVariant& value)
{
    const QColor color = value.value<QColor>();
    const auto spec = std::find_if(std::begin(ColorSpecs), std::end(ColorSpecs),
                                   [&color](const tagColorSpec& row) { return row.spec == color.spec(); });
    QStringList words(QString::fromLatin1(spec->name));
    for (const double number : spec->split(color))
        words += NumberText(number, 'f');
    return words.join(QLatin1Char(' '));
}

bool DecodeColor(const QString& text, QVariant* value)
{
    const QStringList words = text.split(QLatin1Char(' '));
    const auto spec = std::find_if(std::begin(ColorSpecs), std::end(ColorSpecs), [&words](const tagColorSpec& row) {
        return words.first() == QLatin1String(row.name);
    });
    if (spec == std::end(ColorSpecs) || words.size() != spec->count + 1)
        return false;
    TComponents components;
    for (int index = 0; index < spec->count; ++index) {
        bool isNumber = false;
        const double number = words.at(index + 1).toDouble(&isNumber);
        if (!isNumber || !(index == 0 ? spec->isFirst : spec->isOther)(number))
            return false;
        components += number;
    }
    *value = spec->join(components);
    return true;
}

struct tagType
{
    const char* name;
    int type;
    QString (*encode)(const QVariant&);
    bool (*decode)(const QString&, QVariant*);
};

constexpr tagType Types[] = {
    {"bool", QMetaType::Bool, EncodeBool, DecodeBool},
    {"int", QMetaType::Int, EncodeInt, DecodeInt},
    {"longlong", QMetaType::LongLong, EncodeLongLong, DecodeLongLong},
    {"double", QMetaType::Double, EncodeDouble, DecodeDouble},
    {"string", QMetaType::QString, EncodeString, DecodeString},
    {"color", QMetaType::QColor, EncodeColor, DecodeColor},
    {"bytes", QMetaType::QByteArray, EncodeBytes, DecodeBytes},
};

} // namespace

bool EncodeValue(const QVariant& value, tagStoredValue* stored)
{
    const auto type = std::find_if(std::begin(Types), std::end(Types),
                                   [&value](const tagType& row) { return row.type == value.userType(); });
    if (type == std::end(Types))
        return false;
    stored->type = QString::fromLatin1(type->name);
    stored->text = type->encode(value);
    return true;
}

bool DecodeValue(const tagStoredValue& stored, QVariant* value)
{
    const auto type = std::find_if(std::begin(Types), std::end(Types),
                                   [&stored](const tagType& row) { return stored.type == QLatin1String(row.name); });
    return type != std::end(Types) && type->decode(stored.text, value);
}

bool IsSameValue(const QVariant& one, const QVariant& other)
{
    if (one.userType() != other.userType())
        return false;
    tagStoredValue first;
    tagStoredValue second;
    if (EncodeValue(one, &first) && EncodeValue(other, &second))
        return first.text == second.text;
    return one == other;
}
