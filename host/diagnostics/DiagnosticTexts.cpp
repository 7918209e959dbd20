#include "diagnostics/DiagnosticTexts.h"

#include "diagnostics/EReceiverEvent.h"

#include <QMutex>
#include <QMutexLocker>

#include <map>
#include <tuple>

namespace {

struct tagText
{
    EDiagnosticComponent component;
    EDiagnosticType type;
    int code;
    const char* text;
};

constexpr tagText Texts[] = {
    {DIAG_COMPONENT_GPS_RECEIVER, DIAG_TYPE_EVENT, RECEIVER_EVENT_FIRST_FIX, "First fix"},
    {DIAG_COMPONENT_GPS_RECEIVER, DIAG_TYPE_EVENT, RECEIVER_EVENT_FIX_LOST, "Fix lost"},
    {DIAG_COMPONENT_GPS_RECEIVER, DIAG_TYPE_EVENT, RECEIVER_EVENT_FIX_REGAINED, "Fix regained"},
    {DIAG_COMPONENT_GPS_RECEIVER, DIAG_TYPE_EVENT, RECEIVER_EVENT_TIME_SET, "Time set"},
    {DIAG_COMPONENT_GPS_RECEIVER, DIAG_TYPE_EVENT, RECEIVER_EVENT_BAD_CHECKSUMS, "Bad checksums"},
};

using TKey = std::tuple<int, int, int>;

std::map<TKey, QString> NamedTexts()
{
    std::map<TKey, QString> texts;
    for (const tagText& row : Texts)
        texts[TKey(row.component, row.type, row.code)] = QString::fromLatin1(row.text);
    return texts;
}

} // namespace

const QString& DiagnosticText(EDiagnosticComponent component, EDiagnosticType type, int code)
{
    static QMutex mutex;
    static std::map<TKey, QString> texts = NamedTexts(); // its nodes never move, so references into it stay valid

    const QMutexLocker lock(&mutex);
    QString& text = texts[TKey(component, type, code)];
    if (text.isEmpty())
        text = QString::number(code);
    return text;
}
