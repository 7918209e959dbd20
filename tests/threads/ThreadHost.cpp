#include "ThreadHost.h"

#include "TestSeed.h"

#include "platform/TFileSystemHelper.h"
#include "platform/TLocalTime.h"

#include <QFile>
#include <QMutexLocker>

#include <atomic>
#include <chrono>
#include <random>
#include <thread>

TConfigManager* ConfigManager = nullptr;

namespace {

thread_local std::minstd_rand Pauses;

std::atomic<qint64> Now{0}; // milliseconds since 1970
std::atomic<int> Offset{0};

const QDate FirstDay(2024, 3, 5);
const QTime FirstTime(14, 5, 9);

qint64 Milliseconds(const QDate& date, const QTime& time) { return QDateTime(date, time, Qt::UTC).toMSecsSinceEpoch(); }

} // namespace

const char* const TSlowStore::DiagnosticText = "Boom folded";

TSlowStore::TSlowStore() : m_Text(QLatin1String(DiagnosticText)) { ConfigManager = this; }
TSlowStore::~TSlowStore() { ConfigManager = nullptr; }

void TSlowStore::Dawdle()
{
    const unsigned draw = static_cast<unsigned>(Pauses()) % 64;
    if (draw < 8)
        std::this_thread::yield();
    else if (draw == 8)
        std::this_thread::sleep_for(std::chrono::microseconds(Pauses() % 200));
}

bool TSlowStore::SetParameter(EParamID id, const QVariant& value, bool)
{
    Dawdle();
    const QMutexLocker lock(&m_Mutex);
    Dawdle();
    m_Values[id] = value;
    return true;
}

QVariant TSlowStore::GetParameter(EParamID id)
{
    Dawdle();
    const QMutexLocker lock(&m_Mutex);
    return m_Values.value(id);
}

bool TSlowStore::HasParameter(EParamID id)
{
    Dawdle();
    const QMutexLocker lock(&m_Mutex);
    return m_Values.contains(id);
}

const QString& TSlowStore::GetDiagnosticText(EDiagnosticComponent, EDiagnosticType, int)
{
    Dawdle();
    return m_Text;
}

void SeedPauses(int thread) { Pauses.seed(TestSeed() + static_cast<unsigned>(thread)); }

void ResetClock() { Now = Milliseconds(FirstDay, FirstTime); }

QDateTime TLocalTime::currentDateTime()
{
    return QDateTime::fromMSecsSinceEpoch(Now.fetch_add(1, std::memory_order_relaxed), Qt::UTC);
}

QDate TLocalTime::currentDate() { return currentDateTime().date(); }
QTime TLocalTime::currentTime() { return currentDateTime().time(); }

int TLocalTime::SetDateTime(int year, int month, int day, int hour, int minute, int second)
{
    Now.store(Milliseconds(QDate(year, month, day), QTime(hour, minute, second)), std::memory_order_relaxed);
    return GetOffset();
}

int TLocalTime::GetOffset() { return Offset.load(std::memory_order_relaxed); }
void TLocalTime::SetOffset(int offset) { Offset.store(offset, std::memory_order_relaxed); }

QRegExp TFileSystemHelper::LowerCaseFilenameExtensionRegExp() { return QRegExp(QLatin1String("\\.[a-z]+")); }

bool TFileSystemHelper::FileCopy(const QString& source, const QString& destination, bool overwrite)
{
    if (overwrite)
        QFile::remove(destination);
    return QFile::copy(source, destination);
}
