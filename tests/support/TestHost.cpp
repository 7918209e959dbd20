#include "TestHost.h"

#include "platform/TFileSystemHelper.h"
#include "platform/TLocalTime.h"

#include <QFile>
#include <QFileInfo>
#include <QMutexLocker>

TConfigManager* ConfigManager = nullptr;

TTestStore::TTestStore() : allWritesPersist(true) { ConfigManager = this; }
TTestStore::~TTestStore() { ConfigManager = nullptr; }

bool TTestStore::SetParameter(EParamID id, const QVariant& value, bool persist)
{
    if (onCall)
        onCall();
    QMutexLocker lock(&m_Mutex);
    values[id] = value;
    writes.append(qMakePair(static_cast<int>(id), value));
    allWritesPersist = allWritesPersist && persist;
    return true;
}

QVariant TTestStore::GetParameter(EParamID id)
{
    if (onCall)
        onCall();
    QMutexLocker lock(&m_Mutex);
    reads.append(id);
    return values.value(id);
}

bool TTestStore::HasParameter(EParamID id)
{
    if (onCall)
        onCall();
    QMutexLocker lock(&m_Mutex);
    return values.contains(id);
}

const QString& TTestStore::GetDiagnosticText(EDiagnosticComponent component, EDiagnosticType type, int code)
{
    if (onCall)
        onCall();
    m_Text = QString::fromLatin1("%1/%2/%3").arg(static_cast<int>(component)).arg(static_cast<int>(type)).arg(code);
    return m_Text;
}

QDate TTestClock::date;
QTime TTestClock::time;
int TTestClock::offset = 0;
int TTestClock::nextOffset = 0;

std::function<void(const QString&)> TTestClock::onCall;

void TTestClock::Reset()
{
    date = QDate(2024, 3, 5);
    time = QTime(14, 5, 9, 42);
    offset = 0;
    nextOffset = 4711;
    onCall = nullptr;
}

namespace {

/// Announces a call with its arguments; the text is made only for a test that listens.
template <class... Number>
void Announce(const char* operation, Number... argument)
{
    if (!TTestClock::onCall)
        return;
    QString call = QLatin1String(operation);
    ((call += QLatin1Char(' ') + QString::number(argument)), ...);
    TTestClock::onCall(call);
}

} // namespace

QDate TLocalTime::currentDate()
{
    Announce("currentDate");
    return TTestClock::date;
}

QTime TLocalTime::currentTime()
{
    Announce("currentTime");
    return TTestClock::time;
}

QDateTime TLocalTime::currentDateTime()
{
    Announce("currentDateTime");
    return QDateTime(TTestClock::date, TTestClock::time, Qt::UTC);
}

int TLocalTime::SetDateTime(int year, int month, int day, int hour, int minute, int second)
{
    Announce("SetDateTime", year, month, day, hour, minute, second);
    TTestClock::date = QDate(year, month, day);
    TTestClock::time = QTime(hour, minute, second);
    TTestClock::offset = TTestClock::nextOffset;
    return TTestClock::offset;
}

int TLocalTime::GetOffset()
{
    Announce("GetOffset");
    return TTestClock::offset;
}

void TLocalTime::SetOffset(int offset)
{
    Announce("SetOffset", offset);
    TTestClock::offset = offset;
}

QString TTestFiles::extensionPattern = QString::fromLatin1("\\.[a-z]+");
int TTestFiles::extensionPatternAsked = 0;
QList<QString> TTestFiles::failingNames;
QList<QString> TTestFiles::copiedNames;
QList<bool> TTestFiles::overwrites;

void TTestFiles::Reset()
{
    extensionPattern = QString::fromLatin1("\\.[a-z]+");
    extensionPatternAsked = 0;
    failingNames.clear();
    copiedNames.clear();
    overwrites.clear();
}

QRegExp TFileSystemHelper::LowerCaseFilenameExtensionRegExp()
{
    ++TTestFiles::extensionPatternAsked;
    return QRegExp(TTestFiles::extensionPattern);
}

bool TFileSystemHelper::FileCopy(const QString& source, const QString& destination, bool overwrite)
{
    const QString name = QFileInfo(source).fileName();
    TTestFiles::copiedNames.append(name);
    TTestFiles::overwrites.append(overwrite);
    if (TTestFiles::failingNames.contains(name))
        return false;
    if (overwrite)
        QFile::remove(destination);
    return QFile::copy(source, destination);
}
