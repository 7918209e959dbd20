#include "display/fonts/DisplayFont.h"

#include <QFile>
#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QStandardPaths>

namespace {

constexpr const char* Files[] = {"fonts/opentype/b612/B612-Regular.otf", "fonts/opentype/b612/B612-Bold.otf"};

// The files of the monospaced face call their family "B612" as well, and Qt then takes that face for ordinary text.
// Under a name of its own the family is certain. Both names have the same length, so that the tables stay as they are.
constexpr char Family[] = {'B', '6', '1', '2'};
constexpr char OwnFamily[] = {'C', 'a', 'b', 'F'};

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

} // namespace

void InstallDisplayFont()
{
    const QString fallback = QStringLiteral("Noto Sans");
    bool isWhole = true;
    for (const char* const file : Files)
        isWhole = AddFont(QStandardPaths::locate(QStandardPaths::GenericDataLocation, QLatin1String(file))) && isWhole;
    const QString family = isWhole ? QString::fromLatin1(OwnFamily, sizeof(OwnFamily)) : fallback;
    QFont::insertSubstitution(family, fallback);
    QGuiApplication::setFont(QFont(family));
}
