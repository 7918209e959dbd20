#pragma once

#include <QByteArray>
#include <QFile>

/// What a sanitizer keeps beside the memory of a program is not the program's.
#if defined(__SANITIZE_THREAD__)
constexpr qint64 MemoryFactor = 16;
#elif defined(__SANITIZE_ADDRESS__)
constexpr qint64 MemoryFactor = 8;
#else
constexpr qint64 MemoryFactor = 1;
#endif

#if defined(__SANITIZE_ADDRESS__)
/// It keeps freed memory, to find who still uses it: here only a little of it. Part of the program that includes this.
extern "C" __attribute__((visibility("default"))) const char* __asan_default_options();
extern "C" const char* __asan_default_options() { return "quarantine_size_mb=8"; }
#endif

/// Kilobytes of a row of /proc/self/status: "VmRSS:" now, "VmHWM:" at most so far.
inline qint64 KilobytesOf(const char* row)
{
    QFile file(QLatin1String("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read /proc/self/status");
    const QByteArray text = file.readAll();
    const int at = static_cast<int>(text.indexOf(row));
    if (at < 0)
        qFatal("no %s", row);
    return text.mid(at).split('\n').first().simplified().split(' ').value(1).toLongLong();
}
