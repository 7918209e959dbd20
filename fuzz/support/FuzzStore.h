#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QVariant>

/// A parameter store in its file, as a terminal has it, and the last good copy beside it with other values.
struct tagFuzzStore
{
    QByteArray file;
    QByteArray goodCopy;
    QMap<int, QVariant> values;
    QMap<int, QVariant> goodValues;

    /// Made once.
    static const tagFuzzStore& Get();

    /// Makes file and copy in a new folder. Returns the path of the file.
    QString Place() const;
};
