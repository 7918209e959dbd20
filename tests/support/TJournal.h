#pragma once

#include "TestHost.h"

#include <QStringList>

/// A store that writes down every call the library makes to its host, store and clock alike, in the order of the calls:
/// "has 8919", "read 8919", "write 8919 Harvest", "currentTime", "SetOffset 4711". Resets the clock first.
class TJournal : public TTestStore
{
public:
    TJournal()
    {
        TTestClock::Reset();
        TTestClock::onCall = [this](const QString& call) { Note(call); };
    }

    ~TJournal() override { TTestClock::onCall = nullptr; }

    bool SetParameter(EParamID id, const QVariant& value, bool persist) override
    {
        Note(Named("write", id) + QLatin1Char(' ') + value.toString());
        return TTestStore::SetParameter(id, value, persist);
    }

    QVariant GetParameter(EParamID id) override
    {
        Note(Named("read", id));
        return TTestStore::GetParameter(id);
    }

    bool HasParameter(EParamID id) override
    {
        Note(Named("has", id));
        return TTestStore::HasParameter(id);
    }

    const QString& GetDiagnosticText(EDiagnosticComponent component, EDiagnosticType type, int code) override
    {
        const QString& text = TTestStore::GetDiagnosticText(component, type, code);
        Note(QLatin1String("text ") + text);
        return text;
    }

    QStringList calls;

    /// Called before each entry; may throw.
    std::function<void()> onNote;

private:
    void Note(const QString& call)
    {
        if (onNote)
            onNote();
        calls.append(call);
    }

    static QString Named(const char* operation, EParamID id)
    {
        return QLatin1String(operation) + QLatin1Char(' ') + QString::number(id);
    }
};
