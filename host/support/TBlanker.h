#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QRegularExpression>
#include <QString>

/// Replaces names and removes positions, so that what is left can be shown to strangers. Each name has one word that
/// stands for it everywhere: "client-1".
class TBlanker
{
public:
    /// Makes @p name known. The first kind counts.
    void Add(const QString& kind, const QString& name);

    /// The word that stands for @p name, which becomes known. Empty and built-in names stay.
    QString Name(const QString& kind, const QString& name);

    /// Makes known what a line of the user log tells of selections.
    void AddFromUserLog(const QString& line);

    /// A text without known names and without positions.
    QString Text(QString text) const;

    /// The same for a line in UTF-8, or in Latin-1 as the user log has it.
    QByteArray Line(const QByteArray& line) const;

    /// A line of the NMEA log, without its end.
    static QByteArray NmeaLine(const QByteArray& line);

    /// A path of a file or a folder; names that the library gives stay, all others are replaced.
    QString Path(const QString& path, bool isFolder);

private:
    /// A name in all its forms, and the word for it.
    struct tagName
    {
        QString name;
        QString word;
        QRegularExpression pattern;
    };

    QHash<QString, QString> m_Words; ///< by name
    QHash<QString, int> m_Counts;    ///< by kind
    QList<tagName> m_Longest;        ///< the longest name first
};
