#pragma once

#include "TTemporaryFolder.h"

#include "fields/FieldPath.h"
#include "fields/TFieldTree.h"
#include "stores/TMemoryStore.h"
#include "terminal/TTerminal.h"

#include <QtTest>

/// A terminal with clients, farms, fields and jobs, and what the tests of them have in common.
class TFieldTerminal
{
public:
    TFieldTerminal() : m_Terminal(m_Store), m_Tree(m_Store)
    {
        if (!m_Terminal.Start(folder.Path(), &error))
            qFatal("%s", qPrintable(error));
    }

    TFieldTree& Tree() { return m_Tree; }
    TMemoryStore& Store() { return m_Store; }

    /// Of files in "internal/Clients/".
    void MakeFile(const char* path, const QByteArray& content = QByteArray("x")) const
    {
        folder.MakeFile(Internal(path), content);
    }

    QByteArray Content(const char* path) const { return folder.Content(Internal(path)); }

    /// Everything in "Clients/", relative to it: the files alone, or the folders too.
    QStringList Files() const { return Entries().filter(QRegularExpression(QLatin1String("[^/]$"))); }
    QStringList Entries() const
    {
        QStringList entries;
        const QString clients = Internal("");
        for (const QString& entry : folder.Entries()) {
            if (entry.startsWith(clients) && entry != clients)
                entries.append(entry.mid(clients.size()));
        }
        return entries;
    }

    /// "Smith/North/F1/J_1": the names of client, farm, field and job, or less.
    void Select(const char* path)
    {
        const EParamID levels[] = {PARAM_CLIENT, PARAM_FARM, PARAM_FIELD, PARAM_ACTIVE_JOB};
        const QStringList names = Path(path);
        for (int i = 0; i < 4; ++i)
            m_Store.SetParameter(levels[i], names.value(i, QLatin1String("")), true);
    }

    QString Selected() const
    {
        QStringList names;
        for (const EParamID id : {PARAM_CLIENT, PARAM_FARM, PARAM_FIELD, PARAM_ACTIVE_JOB})
            names.append(Value(id));
        return names.join(QLatin1Char('/'));
    }

    QString Value(EParamID id) const { return m_Store.Values().value(id).toString(); }

    static QStringList Path(const char* text)
    {
        return QString::fromUtf8(text).split(QLatin1Char('/'), Qt::SkipEmptyParts);
    }

    /// "client/farm files bytes", with a star behind what is active.
    static QStringList Texts(const QList<tagFieldItem>& items)
    {
        QStringList texts;
        for (const tagFieldItem& item : items)
            texts.append(QString::fromLatin1("%1 %2 %3%4")
                             .arg(FieldPath::Text(item.path))
                             .arg(item.files)
                             .arg(item.bytes)
                             .arg(QLatin1String(item.isActive ? "*" : "")));
        return texts;
    }

    TTemporaryFolder folder;
    QString error;

private:
    static QString Internal(const char* path) { return QLatin1String("internal/Clients/") + QString::fromUtf8(path); }

    TMemoryStore m_Store;
    TTerminal m_Terminal;
    TFieldTree m_Tree;
};

inline QStringList List(const char* text)
{
    return QString::fromUtf8(text).split(QLatin1Char('|'), Qt::SkipEmptyParts);
}
