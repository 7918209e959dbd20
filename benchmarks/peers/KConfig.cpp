// KConfig, package libkf5config-dev.

#include "BenchFolder.h"
#include "Rows.h"

#include "region/TRegionSettings.h"

#include <KConfig>
#include <KConfigGroup>
#include <KConfigGui>

#include <QColor>

namespace {

KConfig& File()
{
    static KConfig file(BenchFolder::Path() + QLatin1String("/peer.kconfig"), KConfig::SimpleConfig);
    static const bool isFilled = [] {
        KConfigGui::hasSessionConfig(); // it must be there for colours
        KConfigGroup colors(&file, "colors");
        colors.writeEntry("day", true);
        colors.writeEntry("text-day", QColor(0x10, 0x40, 0x80));
        KConfigGroup(&file, "region").writeEntry("language", 0);
        return true;
    }();
    static_cast<void>(isFilled);
    return file;
}

QString Language(unsigned)
{
    static const KConfigGroup region(&File(), "region");
    return TRegionSettings::LanguageExtensions[region.readEntry("language", 0)];
}

QColor Color(unsigned)
{
    static const KConfigGroup colors(&File(), "colors");
    return colors.readEntry(colors.readEntry("day", false) ? "text-day" : "text-night", QColor());
}

const TRows Rows = {
    {"param.read", ROW_PEER, "KConfig", Timed<Language>},
    {"param.colour", ROW_PEER, "KConfig", Timed<Color>},
};

} // namespace
