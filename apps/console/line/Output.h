#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

/// Writes @p text to standard output, in UTF-8.
void Print(const QString& text);

/// Writes bytes to standard output as they are.
void PrintBytes(const QByteArray& bytes);

/// Writes rows of cells to standard output, in columns.
void PrintTable(const QList<QStringList>& rows);

/// Says one line on standard error, behind the program's name, and gives the matching status.
int Fail(const QString& text);
int Misuse(const QString& text);

/// Whether something could not be written to standard output, so that writing more is no use.
bool OutputFailed();

/// Whether all output has reached its place; says so when it has not.
bool FlushOutput();
