#include "stores/StandardError.h"

#include <cstdio>

void SayOnStandardError(const QString& text)
{
    QString line = text;
    line.replace(QChar(0), QLatin1Char(' '));
    const QByteArray bytes = line.simplified().toLocal8Bit() + '\n';
    std::fputs(bytes.constData(), stderr);
}
