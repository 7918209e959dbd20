#include "Rows.h"
#include "Work.h"

#include "units/TUnitAbbreviations.h"

#include <QLocale>
#include <QRegExp>
#include <QRegularExpression>
#include <QStringBuilder>

#include <regex>

namespace {

using namespace Work;

constexpr int Decimals = 2;

/// What the rows print, for those that do not compute the digits.
const std::array<QString, Inputs::Count> Texts = [] {
    std::array<QString, Inputs::Count> texts;
    for (unsigned i = 0; i < Inputs::Count; ++i)
        texts[i] = QString(QString::number(Inputs::Value(i), 'f', Decimals) % Unit);
    return texts;
}();

const QString& Text(unsigned number) { return Texts[number % Inputs::Count]; }

QString CopiedCharacters(unsigned number) { return QString(Text(number).constData(), Text(number).size()); }

QString Builder(unsigned number) { return QString::number(Inputs::Value(number), 'f', Decimals) % Unit; }

QString Appended(unsigned number)
{
    QString text = QString::number(Inputs::Value(number), 'f', Decimals);
    text += Unit;
    return text;
}

QString Argument(unsigned number)
{
    static const QString pattern = QLatin1String("%1") + Unit;
    return pattern.arg(Inputs::Value(number), 0, 'f', Decimals);
}

QString Localised(const QLocale& locale, double value, const QString& unit)
{
    return locale.toString(value, 'f', Decimals) % unit;
}

QString InNoLocale(unsigned number)
{
    static const QLocale locale = QLocale::c();
    return Localised(locale, Inputs::Value(number), Unit);
}

QString InGerman(unsigned number)
{
    static const QLocale locale = [] {
        QLocale german(QLocale::German);
        german.setNumberOptions(QLocale::OmitGroupSeparator);
        return german;
    }();
    return Localised(locale, Inputs::Value(number), Unit);
}

QString BuilderThenReplaced(unsigned number)
{
    QString text = Builder(number);
    return text.replace(QLatin1Char('.'), QLatin1Char(','));
}

// The decimal point of a finished text.

QString Shown(unsigned number) { return TUnits::InternalToDisplayableFloatStr(Text(number)); }

QString ByRegularExpression(unsigned number)
{
    static const QRegularExpression number_(QLatin1String("(\\d+)\\.(\\d+)"));
    QString text = Text(number);
    return text.replace(number_, QLatin1String("\\1,\\2"));
}

QString ByRegExp(unsigned number)
{
    static const QRegExp number_(QLatin1String("(\\d+)\\.(\\d+)"));
    QString text = Text(number);
    return text.replace(number_, QLatin1String("\\1,\\2"));
}

std::string ByStandardRegex(unsigned number)
{
    static const std::regex number_("([0-9]+)\\.([0-9]+)");
    return std::regex_replace(Text(number).toStdString(), number_, "$1,$2");
}

// A quantity.

QString AreaInNoLocale(unsigned number)
{
    static const QLocale locale = QLocale::c();
    static const QString unit = QLatin1Char(' ') + TUnitAbbreviations::UnitAbbreviations[UNITS_HECTARES];
    return Localised(locale, static_cast<double>(Inputs::Float(number)), unit);
}

QString ReadAndCopiedCharacters(unsigned number)
{
    const int area = ConfigManager->GetParameter(PARAM_AREA_UNIT).toInt();
    return CopiedCharacters(number + static_cast<unsigned>(area));
}

const TRows Rows = {
    {"text.point", ROW_LIMIT, "the characters copied", Timed<CopiedCharacters>},
    {"text.point", ROW_OURS, "GetValueString", Timed<ValueText>},
    {"text.point", ROW_PEER, "QStringBuilder over QString::number", Timed<Builder>},
    {"text.point", ROW_PEER, "QString::number and append", Timed<Appended>},
    {"text.point", ROW_PEER, "QString::arg", Timed<Argument>},
    {"text.point", ROW_PEER, "QLocale", Timed<InNoLocale>},

    {"text.comma", ROW_LIMIT, "the characters copied", Timed<CopiedCharacters>},
    {"text.comma", ROW_OURS, "GetValueString", Timed<ValueText>},
    {"text.comma", ROW_PEER, "QStringBuilder over QString::number, replaced", Timed<BuilderThenReplaced>},
    {"text.comma", ROW_PEER, "QLocale, German", Timed<InGerman>},

    {"text.converter", ROW_LIMIT, "the characters copied", Timed<CopiedCharacters>},
    {"text.converter", ROW_OURS, "InternalToDisplayableFloatStr", Timed<Shown>},
    {"text.converter", ROW_PEER, "QRegularExpression", Timed<ByRegularExpression>},
    {"text.converter", ROW_PEER, "QRegExp", Timed<ByRegExp>},
    {"text.converter", ROW_PEER, "std::regex", Timed<ByStandardRegex>},

    {"text.quantity", ROW_LIMIT, "the characters copied", Timed<CopiedCharacters>},
    {"text.quantity", ROW_FLOOR, "a read, and the characters copied", Timed<ReadAndCopiedCharacters>},
    {"text.quantity", ROW_OURS, "GetAreaString", Timed<AreaText>},
    {"text.quantity", ROW_PEER, "QLocale, which reads nothing", Timed<AreaInNoLocale>},
};

} // namespace
