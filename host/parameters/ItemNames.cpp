#include "parameters/ItemNames.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace ItemNames {

namespace {

const char* const Separators = "/\\";
const char* const ForbiddenByFat = "\"*:<>?|";
const QChar Substitute = QLatin1Char('_');

/// Names of devices on other systems that use FAT. There, a file with such a name and any extension opens the device.
const char* const Reserved[] = {
    "CON",  "PRN",  "AUX",  "NUL",  "COM1", "COM2", "COM3", "COM4", "COM5", "COM6", "COM7",
    "COM8", "COM9", "LPT1", "LPT2", "LPT3", "LPT4", "LPT5", "LPT6", "LPT7", "LPT8", "LPT9",
};

bool IsOneOf(QChar character, const char* characters)
{
    return character.unicode() != 0 && character.unicode() < 0x80 && std::strchr(characters, character.toLatin1());
}

bool IsControl(QChar character) { return character.category() == QChar::Other_Control; }

/// Whether the character at @p i is half of a surrogate pair, which has no form in UTF-8.
bool IsAlone(const QString& name, int i)
{
    if (name.at(i).isHighSurrogate())
        return i + 1 == name.size() || !name.at(i + 1).isLowSurrogate();
    return name.at(i).isLowSurrogate() && (i == 0 || !name.at(i - 1).isHighSurrogate());
}

bool IsCutByFat(QChar last) { return last == QLatin1Char('.') || last == QLatin1Char(' '); }

bool IsReserved(const QString& name)
{
    const QString stem = name.section(QLatin1Char('.'), 0, 0).trimmed();
    return std::any_of(std::begin(Reserved), std::end(Reserved), [&stem](const char* reserved) {
        return stem.compare(QLatin1String(reserved), Qt::CaseInsensitive) == 0;
    });
}

QString Quoted(QChar character) { return QString::fromLatin1("\"%1\"").arg(character); }

} // namespace

QString Problem(const QString& name, int mostBytes)
{
    if (name == QLatin1String(".") || name == QLatin1String(".."))
        return QString::fromLatin1("refers to another folder");
    for (int i = 0; i < name.size(); ++i) {
        const QChar character = name.at(i);
        if (IsOneOf(character, Separators))
            return QString::fromLatin1("contains the separator %1").arg(Quoted(character));
        if (IsControl(character))
            return QString::fromLatin1("contains the control character U+%1, which FAT file systems do not allow")
                .arg(character.unicode(), 4, 16, QLatin1Char('0'));
        if (IsOneOf(character, ForbiddenByFat))
            return QString::fromLatin1("contains %1, which FAT file systems do not allow").arg(Quoted(character));
        if (IsAlone(name, i))
            return QString::fromLatin1("contains an incomplete character");
    }
    if (!name.isEmpty() && IsCutByFat(name.at(name.size() - 1)))
        return QString::fromLatin1("ends in a full stop or a blank, which FAT file systems remove");
    if (name.startsWith(QLatin1Char(' ')))
        return QString::fromLatin1("begins with a blank");
    if (IsReserved(name))
        return QString::fromLatin1("is reserved on FAT file systems");
    const auto bytes = name.toUtf8().size();
    if (bytes > mostBytes)
        return QString::fromLatin1("has %1 bytes; at most %2 are allowed").arg(bytes).arg(mostBytes);
    return QString();
}

QString Suggestion(const QString& name, int mostBytes)
{
    QString better = name.trimmed();
    for (int i = 0; i < better.size(); ++i) {
        const QChar character = better.at(i);
        if (IsOneOf(character, Separators) || IsOneOf(character, ForbiddenByFat) || IsControl(character) ||
            IsAlone(better, i))
            better[i] = Substitute;
    }
    if (IsReserved(better))
        better.prepend(Substitute);
    while (better.toUtf8().size() > mostBytes)
        better.chop(better.at(better.size() - 1).isLowSurrogate() ? 2 : 1);
    while (!better.isEmpty() && IsCutByFat(better.at(better.size() - 1)))
        better.chop(1);
    return better.isEmpty() && !name.isEmpty() ? QString(Substitute) : better;
}

} // namespace ItemNames
