#include "Floor.h"
#include "Rows.h"
#include "Work.h"

#include "region/TRegionSettings.h"

#include <QSettings>

namespace {

using namespace Work;

int OneRead(unsigned) { return Floor::OneRead(); }
QString ReadUnderLock(unsigned) { return Floor::ReadUnderLock(); }
QColor TwoReads(unsigned) { return Floor::TwoReadsOfAColor(); }

QSettings& SettingsFile()
{
    static QSettings settings(BenchFolder::Path() + QLatin1String("/peer.ini"), QSettings::IniFormat);
    static const bool isFilled = [] {
        settings.setValue(QLatin1String("colors/day"), true);
        settings.setValue(QLatin1String("colors/text-day"), QColor(0x10, 0x40, 0x80));
        settings.setValue(QLatin1String("region/language"), 0);
        return true;
    }();
    static_cast<void>(isFilled);
    return settings;
}

QString LanguageOfSettingsFile(unsigned)
{
    static const QString key = QLatin1String("region/language");
    return TRegionSettings::LanguageExtensions[SettingsFile().value(key).toInt()];
}

QColor ColorOfSettingsFile(unsigned)
{
    static const QString mode = QLatin1String("colors/day");
    static const QString keys[] = {QLatin1String("colors/text-night"), QLatin1String("colors/text-day")};
    QSettings& settings = SettingsFile();
    return settings.value(keys[settings.value(mode).toBool()]).value<QColor>();
}

const TRows Rows = {
    {"param.read", ROW_LIMIT, "a virtual read", Timed<OneRead>},
    {"param.read", ROW_FLOOR, "a virtual read under a mutex", Timed<ReadUnderLock>},
    {"param.read", ROW_OURS, "GetLanguageExtension", Timed<LanguageExtension>},
    {"param.read", ROW_PEER, "QSettings", Timed<LanguageOfSettingsFile>},

    {"param.colour", ROW_FLOOR, "its two reads", Timed<TwoReads>},
    {"param.colour", ROW_OURS, "GetTextColor", Timed<TextColor>},
    {"param.colour", ROW_PEER, "QSettings", Timed<ColorOfSettingsFile>},
};

} // namespace
