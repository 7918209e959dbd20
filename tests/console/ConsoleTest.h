#pragma once

#include "TConsole.h"

#include "parameters/TParameterCatalogue.h"
#include "stores/TPersistenceHold.h"
#include "stores/TSqliteStore.h"
#include "terminal/DataFolder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <algorithm>

/// What the tests of the commands have in common.
namespace ConsoleTest {

inline QString Utf8(const char* text) { return QString::fromUtf8(text); }

/// "select job J_1" as arguments.
inline QStringList Words(const char* text) { return Utf8(text).split(QLatin1Char(' '), Qt::SkipEmptyParts); }

inline TConsole::tagResult Run(const TConsole& console, const char* words) { return console.Run(Words(words)); }

/// Gives parameters their values without a command.
inline void Store(const TConsole& console, const QMap<EParamID, QVariant>& values)
{
    QString error;
    QDir().mkpath(console.DataFolder());
    const auto store = TSqliteStore::Open(DataFolder::StoreFile(console.DataFolder()), &error);
    if (!store)
        qFatal("%s", qPrintable(error));
    TPersistenceHold hold(*store);
    for (auto value = values.begin(); value != values.end(); ++value)
        store->SetParameter(value.key(), value.value(), true);
    if (!hold.Release())
        qFatal("the parameters cannot be stored");
}

/// The same from a text such as "active.job=J_1|units.metric=true".
inline void Store(const TConsole& console, const QString& settings)
{
    QMap<EParamID, QVariant> values;
    for (const QString& setting : settings.split(QLatin1Char('|'), Qt::SkipEmptyParts)) {
        const tagParameter* const parameter = TParameterCatalogue::Find(setting.section(QLatin1Char('='), 0, 0));
        QString error = Utf8("there is no such parameter");
        const QVariant value = parameter
                                   ? TParameterCatalogue::Read(*parameter, setting.section(QLatin1Char('='), 1), &error)
                                   : QVariant();
        if (!value.isValid())
            qFatal("%s: %s", qPrintable(setting), qPrintable(error));
        values.insert(parameter->id, value);
    }
    Store(console, values);
}

/// The value that a parameter has, by name or number.
inline QString Get(const TConsole& console, const char* parameter)
{
    return console.Run({Utf8("get"), Utf8(parameter)}).output.remove(QLatin1Char('\n'));
}

inline QJsonObject Object(const TConsole::tagResult& result)
{
    return QJsonDocument::fromJson(result.output.toUtf8()).object();
}

inline QJsonArray Array(const TConsole::tagResult& result)
{
    return QJsonDocument::fromJson(result.output.toUtf8()).array();
}

/// The object of an array whose field has the value; an empty one without such.
inline QJsonObject Find(const QJsonArray& array, const char* field, const QString& value)
{
    const auto found = std::find_if(array.begin(), array.end(), [&](const QJsonValue& object) {
        return object.toObject().value(Utf8(field)).toString() == value;
    });
    return found == array.end() ? QJsonObject() : (*found).toObject();
}

inline QStringList Fields(const QJsonObject& object) { return object.keys(); }

inline void WriteFile(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    if (!QFileInfo(path).dir().mkpath(Utf8(".")) || !file.open(QIODevice::WriteOnly | QIODevice::Append) ||
        file.write(contents) != contents.size())
        qFatal("%s cannot be written", qPrintable(path));
}

inline QByteArray Contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Everything under a folder, relative to it.
inline QStringList Tree(const QString& folder)
{
    QStringList paths;
    QDirIterator entries(folder, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden, QDirIterator::Subdirectories);
    while (entries.hasNext())
        paths.append(QDir(folder).relativeFilePath(entries.next()));
    paths.sort();
    return paths;
}

/// A wrong command line: one line that names what was wrong and what is accepted, and nothing else.
inline void VerifyMisused(const TConsole::tagResult& result, const QString& named, const QString& accepted)
{
    QCOMPARE(result.status, 2);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.errors.count(QLatin1Char('\n')), 1);
    QVERIFY2(result.errors.startsWith(Utf8("cabsettings: ")), qPrintable(result.errors));
    QVERIFY2(result.errors.contains(named), qPrintable(result.errors));
    QVERIFY2(result.errors.contains(accepted), qPrintable(result.errors));
}

} // namespace ConsoleTest
