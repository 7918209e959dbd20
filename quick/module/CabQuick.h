#pragma once

#include "QuickExport.h"
#include "stores/TSqliteStore.h"
#include "terminal/Storage.h"

#include <QString>
#include <QVariantList>

#include <optional>

class TReceiver;

/// Drives, memory and load as they are shown; see CabQuick::ShowDrives().
struct tagShownDrives
{
    tagSpace internal;
    std::optional<tagSpace> stick; ///< empty without a stick
    tagSpace memory;
    double load; ///< 0 to 1
};

/// A transfer as it is shown; see CabQuick::ShowTransfer(). The first one that is there counts: it runs, it has failed,
/// it is done.
struct tagShownTransfer
{
    std::optional<double> progress; ///< 0 to 1
    QString error;
    QString result;
    QVariantList profiles; ///< as Transfer.profiles() lists them; empty: those that are on the stick
};

/// The QML module CabSettings: every setting of the terminal as an object that QML binds to.
///
/// @code
/// TTerminal terminal(*store);
/// if (!terminal.Start(folder, &error))
///     return Fail(error);
/// CabQuick::Publish(*store, folder);
/// QQmlApplicationEngine engine(QUrl(QStringLiteral("qrc:/Main.qml"))); // which says: import CabSettings 1.0
/// @endcode
///
/// The module works in the thread of the application object.
namespace CabQuick {

/// Makes `import CabSettings 1.0` work in every QML engine of the program. Call it once, after the start of the
/// terminal and before the first engine.
/// @param store the terminal's; must outlive the engines.
/// @param dataFolder the folder with which the terminal was started.
CABQUICK_EXPORT void Publish(TSqliteStore& store, const QString& dataFolder);

/// Ends the module's work with the store: watches, timers, the receiver. Call it after the engines and before the
/// terminal stops. Does nothing when nothing is published.
CABQUICK_EXPORT void Withdraw();

/// The receiver of the terminal, which QML knows as Receiver. Call it while a terminal is published.
CABQUICK_EXPORT TReceiver& Receiver();

/// Adds a problem to those that QML knows as Problems, or changes its text; and takes it away when it is over. May be
/// called from any thread while a terminal is published. Otherwise does nothing.
/// @param key tells the problems of a program apart, for instance "coverage".
/// @param text one sentence for the operator.
CABQUICK_EXPORT void SetProblem(const QString& key, const QString& text);
CABQUICK_EXPORT void ClearProblem(const QString& key);

/// Shows these drives in QML in place of those that are there, from now on: for pictures and tests, which need the same
/// ones each time. Call it while a terminal is published.
CABQUICK_EXPORT void ShowDrives(const tagShownDrives& drives);

/// Shows this in every object Transfer of QML in place of its own, until it is called with an empty one: for pictures
/// and tests, which can wait for no stick. Transfers themselves go on as ever. Call it while a terminal is published.
CABQUICK_EXPORT void ShowTransfer(const tagShownTransfer& transfer);

/// Whether the module reads or writes something in its threads, so that what QML shows may still change by itself: for
/// pictures and tests. Call it in the thread of the application object while a terminal is published.
CABQUICK_EXPORT bool IsBusy();

/// Adds a part of the program to those that QML knows as About, with its licence. Call it while a terminal is
/// published.
/// @param name "B612"
/// @param version empty when it is not known.
/// @param licence by its SPDX identifier: "OFL-1.1"
/// @param text what it is, for the operator.
CABQUICK_EXPORT void AddToAbout(const QString& name, const QString& version, const QString& licence,
                                const QString& text);

} // namespace CabQuick
