#include "BenchHost.h"

#include "BenchFolder.h"

#include "platform/TFileSystemHelper.h"
#include "platform/TLocalTime.h"

#include <QColor>
#include <QDateTime>
#include <QFile>
#include <QRegExp>

TConfigManager* ConfigManager = nullptr;

TBenchStore::TBenchStore()
{
    Fill();
    ConfigManager = this;
}

TBenchStore& TBenchStore::Instance()
{
    static TBenchStore store;
    return store;
}

bool TBenchStore::SetParameter(EParamID id, const QVariant& value, bool)
{
    m_Values[static_cast<std::size_t>(id)] = value;
    return true;
}

QVariant TBenchStore::GetParameter(EParamID id) { return m_Values[static_cast<std::size_t>(id)]; }

bool TBenchStore::HasParameter(EParamID id) { return m_Values[static_cast<std::size_t>(id)].isValid(); }

const QString& TBenchStore::GetDiagnosticText(EDiagnosticComponent, EDiagnosticType, int)
{
    static const QString text = QLatin1String("GPS corrections lost");
    return text;
}

void TBenchStore::Empty()
{
    m_Values.fill(QVariant());
    m_Values[PARAM_INTERNAL_DRIVE] = BenchFolder::Path() + QLatin1Char('/');
    static const QString stick = BenchFolder::Fresh("stick");
    m_Values[PARAM_EXTERNAL_DRIVE] = stick;
}

void TBenchStore::Fill()
{
    Empty();
    m_Values[PARAM_METRIC] = false;
    m_Values[PARAM_US_MEASURES] = true;
    m_Values[PARAM_AREA_UNIT] = 0;
    m_Values[PARAM_DECIMAL_POINT] = 0;
    m_Values[PARAM_24_HOUR_CLOCK] = true;
    m_Values[PARAM_LANGUAGE] = 0;
    m_Values[PARAM_DAY_MODE] = true;
    for (int id = PARAM_TEXT_COLOR_DAY; id < PARAM_BACKGROUND_NUMBER_DAY; ++id)
        m_Values[static_cast<std::size_t>(id)] = QColor(id & 0xFF, 0x40, 0x80);
    m_Values[PARAM_CLIENT] = QLatin1String("Hofmann");
    m_Values[PARAM_FARM] = QLatin1String("Home farm");
    m_Values[PARAM_FIELD] = QLatin1String("Long acre");
    for (int id = PARAM_ACTIVE_JOB; id <= PARAM_ACTIVE_BOOM_LEVELLER; ++id)
        m_Values[static_cast<std::size_t>(id)] = QLatin1String("J_Sprayer_010524_1307");
    m_Values[PARAM_NMEA_LOG_FILE_NUMBER] = 1;
    m_Values[PARAM_USER_LOG_FILE_NUMBER] = 1;
}

namespace {

const int MillisecondsPerDay = 86400000;

int NextMillisecond()
{
    static int now = 47229042; // 13:07:09.042
    now = now + 1 < MillisecondsPerDay ? now + 1 : 0;
    return now;
}

} // namespace

QDate TBenchClock::Date()
{
    static const QDate date(2024, 5, 1);
    return date;
}

QTime TBenchClock::NextTime() { return QTime::fromMSecsSinceStartOfDay(NextMillisecond()); }

std::chrono::system_clock::time_point TBenchClock::NextTimePoint()
{
    static const qint64 midnight = QDateTime(Date(), QTime(0, 0), Qt::UTC).toMSecsSinceEpoch();
    return std::chrono::system_clock::time_point(std::chrono::milliseconds(midnight + NextMillisecond()));
}

QDate TLocalTime::currentDate() { return TBenchClock::Date(); }
QTime TLocalTime::currentTime() { return TBenchClock::NextTime(); }
QDateTime TLocalTime::currentDateTime() { return QDateTime(TBenchClock::Date(), TBenchClock::NextTime(), Qt::UTC); }
int TLocalTime::SetDateTime(int, int, int, int, int, int) { return 0; }
int TLocalTime::GetOffset() { return 0; }
void TLocalTime::SetOffset(int) {}

QRegExp TFileSystemHelper::LowerCaseFilenameExtensionRegExp() { return QRegExp(QLatin1String("\\.[a-z]+$")); }

bool TFileSystemHelper::FileCopy(const QString& source, const QString& destination, bool)
{
    return QFile::copy(source, destination);
}
