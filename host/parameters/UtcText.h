#pragma once

#include <QDateTime>
#include <QString>

/// How parameters hold a time: "2026-03-05T13:05:09Z". Empty for an invalid time.
QString UtcText(const QDateTime& time);

/// Invalid for any other text, the empty one among them.
QDateTime FromUtcText(const QString& text);
