#pragma once

#include "platform/TConfigManager.h"

#include <QDate>
#include <QList>
#include <QMap>
#include <QMutex>
#include <QPair>
#include <QString>
#include <QTime>

#include <functional>

/// The smallest host that drives every part of the library: a store in memory, a clock that stands still until it is
/// told otherwise, and a file helper that can be made to fail. Every test of the library links it.

/// Records what reaches it. Constructing one makes it the store in use; destroying it leaves none.
class TTestStore : public TConfigManager
{
public:
    TTestStore();
    ~TTestStore() override;

    bool SetParameter(EParamID id, const QVariant& value, bool persist) override;
    QVariant GetParameter(EParamID id) override;
    bool HasParameter(EParamID id) override;

    /// "<component>/<type>/<code>".
    const QString& GetDiagnosticText(EDiagnosticComponent component, EDiagnosticType type, int code) override;

    /// Values, for a test to set up and look at; reading and writing them directly leaves no record.
    QMap<int, QVariant> values;

    /// Parameters written and read through the virtual operations, in order.
    QList<QPair<int, QVariant>> writes;
    QList<int> reads;
    bool allWritesPersist;

    /// Called at the start of every virtual operation, outside the store's own lock; may block or throw.
    std::function<void()> onCall;

private:
    QMutex m_Mutex;
    QString m_Text;
};

/// The clock behind TLocalTime. SetDateTime() sets it and answers nextOffset.
struct TTestClock
{
    static QDate date;
    static QTime time;
    static int offset;
    static int nextOffset;

    /// Called at the start of every operation with its name and arguments ("SetOffset 4711"); may throw.
    static std::function<void(const QString& call)> onCall;

    /// Back to 2024-03-05 14:05:09.042, no offset, nextOffset 4711, no onCall.
    static void Reset();
};

/// The file helper: copies with Qt, except where told to fail.
struct TTestFiles
{
    static QString extensionPattern;    ///< for LowerCaseFilenameExtensionRegExp()
    static int extensionPatternAsked;   ///< how often it was asked for
    static QList<QString> failingNames; ///< file names whose copy fails
    static QList<QString> copiedNames;  ///< file names asked to be copied, in order
    static QList<bool> overwrites;      ///< the third argument of each

    static void Reset();
};
