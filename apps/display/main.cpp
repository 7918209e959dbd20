#include "display/bench/Bench.h"
#include "display/bench/BenchWork.h"
#include "display/fieldwork/DemoField.h"
#include "display/keyboard/ScreenKeyboard.h"
#include "display/options/DisplayOptions.h"
#include "display/session/TDisplaySession.h"
#include "display/shot/Pictures.h"

#include "console/line/QuitOnSignal.h"
#include "module/CabQuick.h"
#include "parameters/ParameterRows.h"
#include "platform/FileMask.h"
#include "platform/StandardHandles.h"
#include "receiver/TReceiver.h"
#include "stores/TSqliteStore.h"

#include <QGuiApplication>
#include <QTemporaryDir>
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QTextCodec>
#endif

#include <clocale>
#include <csignal>
#include <cstdio>
#include <unistd.h>
#include <vector>

namespace {

enum EStatus : int
{
    STATUS_DONE = 0,
    STATUS_FAILED = 1,
    STATUS_MISUSE = 2,
    STATUS_RESTART = 64, ///< never the program's own: Main.qml asks for a restart with it
};

QStringList Arguments(int argc, char* argv[])
{
    QStringList arguments;
    for (int index = 1; index < argc; ++index)
        arguments.append(QString::fromLocal8Bit(argv[index]));
    return arguments;
}

int Fail(const QString& problem, EStatus status)
{
    std::fprintf(stderr, "cabdisplay: %s\n", qUtf8Printable(problem));
    return status;
}

/// Without a GPU the display is drawn by the processor, which every cab has; the environment may ask for one.
void ChooseRenderer()
{
    if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND"))
        qputenv("QT_QUICK_BACKEND", "software");
}

/// Threads of the platform begin before TQuitOnSignal can: they must leave the ending signals to it.
void HoldEndingSignals()
{
    sigset_t ending;
    sigemptyset(&ending);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        sigaddset(&ending, signal);
    pthread_sigmask(SIG_BLOCK, &ending, nullptr);
}

/// A first start shows a field to work on: the one that the simulated receiver drives on.
bool IsFirstLook(TSqliteStore& store)
{
    return store.GetParameter(PARAM_CLIENT).toString().isEmpty() &&
           store.GetParameter(PARAM_RECEIVER_ADDRESS).toString() == QLatin1String(ParameterRows::SimulatorAddress);
}

/// Starts the program again, in the place of this one. Returns only when that fails.
void StartAgain(const char* name, const QStringList& arguments)
{
    QList<QByteArray> texts{name};
    for (const QString& argument : RestartArguments(arguments))
        texts.append(argument.toLocal8Bit());
    std::vector<char*> pointers;
    for (QByteArray& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    execv("/proc/self/exe", pointers.data());
}

int Run(const tagDisplayOptions& options)
{
    TDisplaySession session;
    QString error;
    if (!session.Start(options, &error) || !session.OpenWindow(options, &error) ||
        (IsFirstLook(session.Store()) && !MakeDemoField(session.Engine(), &error)))
        return Fail(error, STATUS_FAILED);
    CabQuick::Receiver().SetRunning(true);
    return QGuiApplication::exec();
}

/// In a data folder of its own: nothing of the operator's is touched.
int Measure(const tagDisplayOptions& options)
{
    const QTemporaryDir folder;
    tagDisplayOptions own = options;
    own.dataFolder = folder.path();
    TDisplaySession session;
    QString error;
    if (!session.Start(own, &error) || !session.OpenWindow(own, &error))
        return Fail(error, STATUS_FAILED);
    return RunBench(*session.Window(), [&] { return StartBenchWork(session.Engine(), &error) ? QString() : error; });
}

} // namespace

int main(int argc, char* argv[])
{
    ReserveStandardHandles();
    DenyWritingByOthers();
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    // Names of farms and fields are UTF-8 on the drives, whatever locale the program is started in.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
#endif
    tagDisplayOptions options;
    const QString problem = ReadDisplayOptions(Arguments(argc, argv), options);
    if (!problem.isEmpty())
        return Fail(problem + QLatin1String(" (see cabdisplay --help)"), STATUS_MISUSE);
    if (options.wantsHelp || options.wantsManual || options.wantsVersion) {
        std::fputs(options.wantsHelp     ? qUtf8Printable(DisplayHelp())
                   : options.wantsManual ? qUtf8Printable(DisplayManual())
                                         : "cabdisplay " CABSETTINGS_VERSION "\n",
                   stdout);
        return STATUS_DONE;
    }
    ChooseRenderer();
    if (!options.pictureFolder.isEmpty() || (options.isBench && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (options.pictureFolder.isEmpty() && !options.isBench)
        ScreenKeyboard::Choose();
    HoldEndingSignals();
    const QGuiApplication application(argc, argv);
    const TQuitOnSignal quitOnSignal;
    std::setlocale(LC_MESSAGES, "C"); // the reasons that the system gives are in the log's language too
    if (!options.pictureFolder.isEmpty()) {
        QString error;
        return WritePictures(options, &error) ? STATUS_DONE : Fail(error, STATUS_FAILED);
    }
    if (options.isBench)
        return Measure(options);
    const int status = Run(options);
    if (status == STATUS_RESTART) {
        StartAgain(argv[0], Arguments(argc, argv));
        return Fail(QStringLiteral("cannot start again"), STATUS_FAILED);
    }
    return status;
}
