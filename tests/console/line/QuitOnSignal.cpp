#include "console/line/QuitOnSignal.h"

#include <QCoreApplication>
#include <QtTest>

#include <csignal>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

const int Deadline = 60; // seconds, for a busy machine

/// The wait status of a process of its own that runs @p program as its main function.
int StatusOf(const std::function<int()>& program)
{
    const pid_t child = fork();
    if (child == 0) {
        alarm(Deadline);
        int count = 1;
        char name[] = "program";
        char* arguments[] = {name, nullptr};
        const QCoreApplication application(count, arguments);
        _exit(program());
    }
    int status = -1;
    return child > 0 && waitpid(child, &status, 0) == child ? status : -1;
}

void Send(int signal) { kill(getpid(), signal); }

[[noreturn]] void Hang()
{
    for (;;)
        pause();
}

} // namespace

class QuitOnSignal : public QObject
{
    Q_OBJECT

private slots:
    void theFirstSignalEndsTheEventLoop_data();
    void theFirstSignalEndsTheEventLoop();
    void aSignalBeforeTheEventLoopEndsItToo();
    void furtherSignalsDoNothing();
    void aLaterSignalEndsAProgramThatHangs_data();
    void aLaterSignalEndsAProgramThatHangs();
    void aLaterSignalEndsAnEventLoopThatHangs();
    void nohupKeepsItsMeaning();
};

void QuitOnSignal::theFirstSignalEndsTheEventLoop_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("interrupt") << SIGINT;
    QTest::newRow("termination") << SIGTERM;
    QTest::newRow("hang-up") << SIGHUP;
}

void QuitOnSignal::theFirstSignalEndsTheEventLoop()
{
    QFETCH(int, signal);
    const int status = StatusOf([&] {
        ::signal(signal, SIG_DFL); // the tests may run under nohup
        const TQuitOnSignal quitOnSignal;
        QTimer::singleShot(0, [&] { Send(signal); });
        QCoreApplication::exec();
        return 3;
    });
    QVERIFY(WIFEXITED(status));
    QCOMPARE(WEXITSTATUS(status), 3);
}

void QuitOnSignal::aSignalBeforeTheEventLoopEndsItToo()
{
    const int status = StatusOf([] {
        const TQuitOnSignal quitOnSignal;
        Send(SIGINT);
        QCoreApplication::exec();
        return 3;
    });
    QVERIFY(WIFEXITED(status));
    QCOMPARE(WEXITSTATUS(status), 3);
}

void QuitOnSignal::furtherSignalsDoNothing()
{
    const int status = StatusOf([] {
        {
            const TQuitOnSignal quitOnSignal(1h);
            Send(SIGINT);
            QCoreApplication::exec();
        }
        for (int round = 0; round < 1000; ++round) {
            for (const int signal : {SIGINT, SIGTERM, SIGHUP})
                Send(signal);
        }
        return 3;
    });
    QVERIFY(WIFEXITED(status));
    QCOMPARE(WEXITSTATUS(status), 3);
}

void QuitOnSignal::aLaterSignalEndsAProgramThatHangs_data() { theFirstSignalEndsTheEventLoop_data(); }

void QuitOnSignal::aLaterSignalEndsAProgramThatHangs()
{
    QFETCH(int, signal);
    const int status = StatusOf([&]() -> int {
        ::signal(signal, SIG_DFL);
        const TQuitOnSignal quitOnSignal(0s);
        Send(SIGINT);
        QCoreApplication::exec();
        Send(signal);
        Hang();
    });
    QVERIFY(WIFSIGNALED(status));
    QCOMPARE(WTERMSIG(status), signal);
}

void QuitOnSignal::aLaterSignalEndsAnEventLoopThatHangs()
{
    const int status = StatusOf([]() -> int {
        const TQuitOnSignal quitOnSignal(0s);
        for (;;) // the second one counts only after the first one has been taken
            Send(SIGINT);
    });
    QVERIFY(WIFSIGNALED(status));
    QCOMPARE(WTERMSIG(status), SIGINT);
}

void QuitOnSignal::nohupKeepsItsMeaning()
{
    const int status = StatusOf([] {
        ::signal(SIGHUP, SIG_IGN);
        const TQuitOnSignal quitOnSignal(0s);
        Send(SIGHUP);
        Send(SIGHUP);
        bool isRunning = false;
        QTimer::singleShot(0, [&] {
            isRunning = true;
            Send(SIGTERM);
        });
        QCoreApplication::exec();
        return isRunning ? 3 : 4;
    });
    QVERIFY(WIFEXITED(status));
    QCOMPARE(WEXITSTATUS(status), 3);
}

QTEST_APPLESS_MAIN(QuitOnSignal)
#include "QuitOnSignal.moc"
