#include "display/fonts/DisplayFont.h"

#include <QFile>
#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QStandardPaths>

#include <algorithm>
#include <iterator>

namespace {

constexpr const char* Files[] = {"fonts/opentype/b612/B612-Regular.otf", "fonts/opentype/b612/B612-Bold.otf"};

// The files of the monospaced face call their family "B612" as well, and Qt then takes that face for ordinary text.
// Under a name of its own the family is certain. Both names have the same length, so that the tables stay as they are.
constexpr char Family[] = {'B', '6', '1', '2'};
constexpr char OwnFamily[] = {'C', 'a', 'b', 'F'};

constexpr const char* LanguagesOfB612[] = {"",   "en", "de", "fr", "es", "it", "pt", "nl",
                                           "fi", "da", "nb", "sv", "et", "ja", "zh"};

template <std::size_t Length>
QByteArray Utf16(const char (&name)[Length])
{
    QByteArray text;
    for (const char sign : name)
        text.append('\0').append(sign);
    return text;
}

bool AddFont(const QString& path)
{
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly))
        return false;
    QByteArray font = file.readAll();
    font.replace(Utf16(Family), Utf16(OwnFamily));
    return QFontDatabase::addApplicationFontFromData(font) >= 0;
}

/// Whether B612 has all letters of the language, so that no word is drawn with letters of two faces. For Japanese and
/// Chinese it has the digits and the signs, beside a face with all the rest.
bool IsDrawnByB612(const QString& language)
{
    return std::any_of(std::begin(LanguagesOfB612), std::end(LanguagesOfB612),
                       [&language](const char* known) { return language == QLatin1String(known); });
}

bool AddB612()
{
    bool isWhole = true;
    for (const char* const file : Files)
        isWhole = AddFont(QStandardPaths::locate(QStandardPaths::GenericDataLocation, QLatin1String(file))) && isWhole;
    return isWhole;
}

} // namespace

QStringList DisplayFamilies(const QString& language)
{
    static const bool hasB612 = AddB612();
    // As high and as wide as B612, so that both fit the same places.
    QStringList families(QStringLiteral("DejaVu Sans Condensed"));
    if (hasB612)
        families.insert(IsDrawnByB612(language) ? 0 : 1, QString::fromLatin1(OwnFamily, sizeof(OwnFamily)));
    // The same signs are drawn differently in Japan and in China.
    const bool isChinese = language == QLatin1String("zh");
    families.append(isChinese ? QStringLiteral("Noto Sans CJK SC") : QStringLiteral("Noto Sans CJK JP"));
    families.append(QStringLiteral("Noto Sans")); // for names in any other script
    return families;
}

void InstallDisplayFont(const QString& language)
{
    const QStringList families = DisplayFamilies(language);
    QFont font(families.first());
    font.setFamilies(families);
    QGuiApplication::setFont(font);
}
