#pragma once

#include "TTemporaryFolder.h"

#include <QByteArray>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <memory>

/// The program itself in a process of its own, on a data folder of its own. A probe in the process tells what it shows,
/// and taps.
///
/// @code
/// TRunningDisplay display(SimulatedInEnglish());
/// QVERIFY2(display.Await(), qPrintable(display.Problem()));
/// QVERIFY(display.Tap("Settings"));
/// @endcode
class TRunningDisplay
{
public:
    static constexpr int Patience = 60000; ///< milliseconds

    explicit TRunningDisplay(const QStringList& arguments);

    /// Kills the program when it still runs.
    ~TRunningDisplay();

    TRunningDisplay(const TRunningDisplay&) = delete;
    TRunningDisplay& operator=(const TRunningDisplay&) = delete;

    QString DataFolder() const { return m_Folder.Path(QLatin1String("data")); }

    /// Starts the program, again after Kill(), in the same data folder.
    void Begin(const QStringList& arguments);

    /// Ends the program by SIGKILL, and waits until it is gone.
    void Kill();

    /// Waits until the program has started, or has started again. When it has not, Problem() tells why.
    bool Await();
    QString Problem() const { return m_Problem; }

    /// The command line of the process, which is the same process after the program has started itself again.
    QStringList Arguments() const;

    /// All texts that are seen, or those below the item with this object name.
    QStringList Texts(const char* below = "");

    /// What the tile of the driven distance shows, in metres; not a number while it shows none.
    double Distance();

    bool Tap(const char* name);

    /// Asks the program to end. Its status, or -1 when it does not end.
    int End();

private:
    QByteArray Ask(const QByteArray& request);

    TTemporaryFolder m_Folder;
    QString m_Problem;
    QLocalServer m_Server;
    QProcess m_Process;
    std::unique_ptr<QLocalSocket> m_Probe;
};

/// Arguments for the simulated receiver, English texts and a window of 1280 x 800.
QStringList SimulatedInEnglish();
