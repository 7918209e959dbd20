#include "Floor.h"

#include "platform/TConfigManager.h"
#include "region/TRegionSettings.h"

#include <QMutex>
#include <QMutexLocker>
#include <QVariant>

double Floor::MetersToFeet(float meters) { return static_cast<double>(meters) * static_cast<double>(FeetPerMeter); }

int Floor::OneRead() { return ConfigManager->GetParameter(PARAM_LANGUAGE).toInt(); }

bool Floor::TwoReads()
{
    const bool isMetric = ConfigManager->GetParameter(PARAM_METRIC).toBool();
    const bool isUS = ConfigManager->GetParameter(PARAM_US_MEASURES).toBool();
    return isMetric == isUS;
}

QString Floor::ReadUnderLock()
{
    static QMutex mutex;
    const QMutexLocker lock(&mutex);
    return TRegionSettings::LanguageExtensions[OneRead()];
}

QColor Floor::TwoReadsOfAColor()
{
    const bool isDay = ConfigManager->GetParameter(PARAM_DAY_MODE).toBool();
    return ConfigManager->GetParameter(isDay ? PARAM_TEXT_COLOR_DAY : PARAM_TEXT_COLOR_NIGHT).value<QColor>();
}
