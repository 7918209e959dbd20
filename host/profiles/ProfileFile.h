#pragma once

#include "profiles/TProfile.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// The form of a profile's file, as the description of TProfile tells it. Values are texts here; whether the catalogue
/// accepts them is not looked at.
namespace ProfileFile {

constexpr int Format = 1;

/// How a value is written in JSON.
enum EKind : int
{
    KIND_TEXT,
    KIND_NUMBER,
    KIND_BOOL,
    KIND_OTHER,
};

struct tagRow
{
    int number;
    QString name;
    QString type;
    QString value;
    std::optional<QString> base;
    EKind kind;     ///< of the value
    EKind baseKind; ///< of the base, when there is one
    int line;       ///< 0 when the row is not from a file
};

struct tagContent
{
    int format;
    tagProfileOrigin origin;
    QStringList groups;
    QList<tagRow> rows;
    QString hash;
    QStringList ignored;
};

/// The problems of a file, one line each.
class TProblems
{
public:
    explicit TProblems(const QString& path) : m_Path(path), m_More(0) {}

    /// @param line 0 when the problem has none.
    void Add(int line, const QString& text);

    bool IsEmpty() const { return m_Lines.isEmpty(); }

    /// At most 20, and then one that tells how many more there are.
    QStringList Lines() const;

private:
    const QString m_Path;
    QStringList m_Lines;
    int m_More;
};

/// The hash that belongs to the content.
QString Hash(const tagContent& content);

/// The text of the file, with its hash.
QByteArray Text(const tagContent& content);

/// Writes a file durably; see TProfile::Write().
bool Write(const QString& path, const QByteArray& text, QString* reason);

/// Reads a file and takes it apart. Nothing when it is not a profile; the reason is then a problem. Further problems
/// may be found when the result has a value.
std::optional<tagContent> Read(const QString& path, TProblems* problems);

} // namespace ProfileFile
