#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

/// Writes @p text to standard output, in UTF-8.
void Print(const QString& text);

/// Writes @p text and a line end.
void PrintLine(const QString& text);

/// Writes @p text, without the blanks at its end, and a line end.
void PrintTrimmed(const QString& text);

/// Writes bytes to standard output as they are.
void PrintBytes(const QByteArray& bytes);

/// Writes an object or an array to standard output.
void PrintJson(const QJsonObject& object);
void PrintJson(const QJsonArray& array);

/// Writes an object on a line of its own.
void PrintJsonLine(const QJsonObject& object);

/// Writes rows of cells to standard output, in columns.
void PrintTable(const QList<QStringList>& rows);

/// The text with control characters other than tabs written as \x1b, because a terminal would obey them.
QString Harmless(const QString& text);

/// "(none)" for an empty text.
QString OrNone(const QString& text);

/// Prints one line on standard error, for instance that a command that waits is ready.
void Announce(const QString& text);

/// Prints one line on standard error, after the program's name, and returns the matching status.
int Fail(const QString& text);
int Misuse(const QString& text);

/// Whether writing to standard output has failed, so that further output is useless.
bool OutputFailed();

/// Flushes standard output. False, after a message, when not all of it could be written.
bool FlushOutput();
