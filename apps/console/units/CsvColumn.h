#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/// One line of comma-separated values, in UTF-8, fields quoted where they need it ("a, b", with "" for a quote).
struct tagCsvLine
{
    QList<QByteArray> fields; ///< as they stand, quotes included
    QByteArray ending;        ///< line feed, with or without carriage return; empty at the end of a stream

    QByteArray Text() const;
};

/// Takes @p line apart. False when a quoted field does not end on the line.
bool ReadCsvLine(const QByteArray& line, tagCsvLine* read);

/// A field without its quotes.
QString CsvValue(const QByteArray& field);
