#include "parameters/UtcText.h"

QString UtcText(const QDateTime& time)
{
    return time.isValid() ? time.toUTC().toString(Qt::ISODate) : QString::fromLatin1("");
}

QDateTime FromUtcText(const QString& text)
{
    const QDateTime time = QDateTime::fromString(text, Qt::ISODate);
    return time.timeSpec() == Qt::UTC && UtcText(time) == text ? time : QDateTime();
}
