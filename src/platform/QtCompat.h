#pragma once

#include <QCoreApplication>
#include <QString>

/// What differs between the generations of Qt that the library is built with: 4.8, 5.15 and 6.4.
namespace QtCompat {

/// The translation of @p text, which is UTF-8.
inline QString Translate(const char* context, const char* text, const char* comment)
{
#if QT_VERSION < 0x050000
    return QCoreApplication::translate(context, text, comment, QCoreApplication::UnicodeUTF8);
#else
    return QCoreApplication::translate(context, text, comment);
#endif
}

} // namespace QtCompat
