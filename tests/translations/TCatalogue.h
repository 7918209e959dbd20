#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// A text of a catalogue's source file.
struct tagMessage
{
    QString context;
    QString source;
    QString comment;
    QStringList forms; ///< one, or the plural forms
    bool isPlural;
    bool isFinished;
};

/// Reads the source file of a catalogue, translations/cabsettings_<language>.ts.
class TCatalogue
{
public:
    explicit TCatalogue(const QString& path);

    QString Error() const { return m_Error; } ///< empty when the file was read to its end
    QString Language() const { return m_Language; }
    const QList<tagMessage>& Messages() const { return m_Messages; }

private:
    QString m_Error;
    QString m_Language;
    QList<tagMessage> m_Messages;
};
