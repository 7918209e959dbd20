#include "terminal/TClock.h"

#include "module/TParameterHub.h"
#include "parameters/HostParameters.h"
#include "parameters/TParameterCatalogue.h"
#include "platform/TConfigManager.h"
#include "platform/TimeSource.h"
#include "platform/UtcOffset.h"
#include "region/TRegionSettingsProxy.h"
#include "stores/TPersistenceHold.h"
#include "stores/TSqliteStore.h"

#include <QCoreApplication>

#include <cstdlib>
#include <iterator>
#include <limits>
#include <utility>

namespace {

const int MillisecondsPerSecond = 1000;
const qint64 SecondsPerDay = qint64{24} * 60 * 60;

/// The store holds the distance from the machine's clock in seconds; a day is left for the offset from UTC.
const qint64 GreatestDistance = std::numeric_limits<int>::max() - SecondsPerDay;

// Where the façade's text of a time has its seconds: "14:05:09", "02:05:09 pm".
const int SecondsAt = 5;
const int SecondsLength = 3;

/// By ETimeSource.
constexpr const char* SourceTexts[] = {
    QT_TRANSLATE_NOOP("Clock", "The clock of the machine; nothing has set it."),
    QT_TRANSLATE_NOOP("Clock", "The clock was set by hand."),
    QT_TRANSLATE_NOOP("Clock", "The receiver sets the clock."),
};
static_assert(std::size(SourceTexts) == TIME_SOURCE_RECEIVER + 1);

QString Translated(const char* text) { return QCoreApplication::translate("Clock", text); }

int StoredSource() { return ConfigManager->GetParameter(PARAM_TIME_SOURCE).toInt(); }

} // namespace

TClock::TClock(QObject* parent) : QObject(parent)
{
    m_Timer.setSingleShot(true);
    m_Timer.setTimerType(Qt::PreciseTimer);
    connect(&m_Timer, &QTimer::timeout, this, &TClock::Refresh);
    connect(&TParameterHub::Instance(), &TParameterHub::Changed, this, [this](int number) {
        const QString name = TParameterCatalogue::Find(number) ? TParameterCatalogue::Find(number)->name : QString();
        if (name.startsWith(QLatin1String("clock.")) || name.startsWith(QLatin1String("region.")))
            Refresh();
    });
    Refresh();
}

TClock::tagShown TClock::Look()
{
    const TRegionSettingsProxy region;
    tagShown shown;
    shown.time = region.GetTimeString();
    shown.shortTime = QString(shown.time).remove(SecondsAt, SecondsLength);
    shown.date = region.GetDateString();
    shown.source = TParameterCatalogue::Text(*TParameterCatalogue::Find(PARAM_TIME_SOURCE), StoredSource());
    shown.offset = QLatin1String("UTC ") + StoredUtcOffset(TParameterHub::Instance().Store()).Text();
    shown.canSetDate = !region.IsGPSTimeRecieved();
    return shown;
}

void TClock::Refresh()
{
    m_Now = TRegionSettingsProxy().GetDateTime();
    const tagShown before = std::exchange(m_Shown, Look());
    if (before.shortTime != m_Shown.shortTime)
        emit shortTimeChanged();
    if (before.date != m_Shown.date)
        emit dateChanged();
    if (before.time != m_Shown.time || before.date != m_Shown.date)
        emit timeChanged();
    if (before.source != m_Shown.source)
        emit sourceChanged();
    if (before.offset != m_Shown.offset)
        emit offsetChanged();
    if (before.canSetDate != m_Shown.canSetDate)
        emit canSetDateChanged();
    m_Timer.start(MillisecondsPerSecond - m_Now.time().msec());
}

QString TClock::SourceText() const
{
    const int source = StoredSource();
    const bool isKnown = source >= 0 && source < static_cast<int>(std::size(SourceTexts));
    return Translated(SourceTexts[isKnown ? source : TIME_SOURCE_NONE]);
}

QString TClock::digits(int part, int count)
{
    const int base = 10;
    return QString::fromLatin1("%1").arg(part, count, base, QLatin1Char('0'));
}

bool TClock::setDate(int year, int month, int day)
{
    return Set(QDate(year, month, day), TRegionSettingsProxy().GetTime(),
               [&](TRegionSettingsProxy& region) { region.SetUserDate(year, month, day); });
}

bool TClock::setTime(int hour, int minute, int second)
{
    return Set(TRegionSettingsProxy().GetDate(), QTime(hour, minute, second),
               [&](TRegionSettingsProxy& region) { region.SetUserTime(hour, minute, second); });
}

bool TClock::setDateTime(int year, int month, int day, int hour, int minute, int second)
{
    return Set(QDate(year, month, day), QTime(hour, minute, second),
               [&](TRegionSettingsProxy& region) { region.SetUserDateTime(year, month, day, hour, minute, second); });
}

bool TClock::Set(const QDate& date, const QTime& time, const std::function<void(TRegionSettingsProxy& region)>& set)
{
    if (!date.isValid() || !time.isValid())
        return KeepError(Translated(QT_TRANSLATE_NOOP("Clock", "There is no such date or time.")));
    const qint64 distance = QDateTime::currentDateTimeUtc().secsTo(QDateTime(date, time, Qt::UTC));
    if (std::abs(distance) > GreatestDistance)
        return KeepError(
            Translated(QT_TRANSLATE_NOOP("Clock", "The date is more than 68 years from the clock of the machine.")));

    // The façade returns nothing; the end of a hold tells whether the clock is on the disk.
    TParameterStore& store = TParameterHub::Instance().Store();
    const TChangeAuthor author(CHANGE_AUTHOR_OPERATOR);
    TPersistenceHold hold(store);
    TRegionSettingsProxy region;
    set(region);
    if (!region.IsGPSTimeRecieved())
        KeepTimeSource(TIME_SOURCE_OPERATOR, region.GetDateTime().addSecs(-StoredUtcOffset(store).Seconds()));
    const bool isStored = hold.Release();
    Refresh();
    return KeepError(isStored ? QString() : Translated(QT_TRANSLATE_NOOP("Clock", "The clock could not be stored.")));
}

/// True without an error.
bool TClock::KeepError(const QString& error)
{
    if (error != m_Error) {
        m_Error = error;
        emit errorChanged();
    }
    return error.isEmpty();
}
