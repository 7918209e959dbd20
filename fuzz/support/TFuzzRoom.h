#pragma once

#include <QString>
#include <QTemporaryDir>

#include <memory>

class TFuzzInput;
class TMemoryStore;
class TTerminal;

/// Where the targets run: a folder in memory where that is possible, and a running terminal with a store in memory. The
/// decimal point of the display is a comma. Made once, because each input must take microseconds. Needs an application
/// object, and one can exist at a time.
class TFuzzRoom
{
public:
    TFuzzRoom();
    ~TFuzzRoom();

    TFuzzRoom(const TFuzzRoom&) = delete;
    TFuzzRoom& operator=(const TFuzzRoom&) = delete;

    static TFuzzRoom& Get();

    /// The path of @p name in the folder.
    QString Path(const char* name) const;

    /// A new empty folder for one input, instead of the one before.
    QString NewFolder();

    TMemoryStore& Store() { return *m_Store; }

    /// Starts the terminal again, whatever a target has published in its place.
    void StartTerminal();

private:
    QTemporaryDir m_Folder;
    int m_Folders = 0;
    std::unique_ptr<TMemoryStore> m_Store;
    std::unique_ptr<TTerminal> m_Terminal; ///< ends before its store
};

/// Sets the parameters that choose units to any values.
void SetMeasures(TFuzzInput& input);

namespace FuzzFiles {

/// The content of a file; empty when it does not exist.
QByteArray Content(const QString& path);

void Make(const QString& path, const QByteArray& content);

} // namespace FuzzFiles
