#include "platform/StandardHandles.h"

#include <QtTest>

#include <cerrno>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

/// A program that was started without standard input, output or error writes nothing that it prints into a file.
class StandardHandles : public QObject
{
    Q_OBJECT

private slots:
    void noFileGetsTheirNumbers_data();
    void noFileGetsTheirNumbers();
};

namespace {

enum EOutcome : int
{
    OUTCOME_RIGHT,
    OUTCOME_FILE_HAS_NUMBER,
    OUTCOME_OPEN_ONE_CHANGED,
    OUTCOME_CLOSED_ONE_WORKS,
};

/// Whether what is read from or printed to a handle fails as if the handle were closed.
bool FailsAsClosed(int handle)
{
    char byte = 'x';
    const ssize_t count = handle == STDIN_FILENO ? read(handle, &byte, 1) : write(handle, &byte, 1);
    return count == -1 && errno == EBADF;
}

/// In a process of its own, whose handles may be closed.
EOutcome OutcomeWithout(const QVector<int>& closed)
{
    const int device = open("/dev/zero", O_RDWR);
    for (int handle = STDIN_FILENO; handle <= STDERR_FILENO; ++handle) {
        if (closed.contains(handle))
            close(handle);
        else
            dup2(device, handle);
    }
    ReserveStandardHandles();
    if (open("/dev/null", O_RDWR) <= STDERR_FILENO)
        return OUTCOME_FILE_HAS_NUMBER;
    for (int handle = STDIN_FILENO; handle <= STDERR_FILENO; ++handle) {
        if (closed.contains(handle) != FailsAsClosed(handle))
            return closed.contains(handle) ? OUTCOME_CLOSED_ONE_WORKS : OUTCOME_OPEN_ONE_CHANGED;
    }
    return OUTCOME_RIGHT;
}

} // namespace

void StandardHandles::noFileGetsTheirNumbers_data()
{
    QTest::addColumn<QVector<int>>("closed");
    QTest::newRow("none") << QVector<int>{};
    QTest::newRow("input") << QVector<int>{STDIN_FILENO};
    QTest::newRow("output") << QVector<int>{STDOUT_FILENO};
    QTest::newRow("error") << QVector<int>{STDERR_FILENO};
    QTest::newRow("input and output") << QVector<int>{STDIN_FILENO, STDOUT_FILENO};
    QTest::newRow("input and error") << QVector<int>{STDIN_FILENO, STDERR_FILENO};
    QTest::newRow("output and error") << QVector<int>{STDOUT_FILENO, STDERR_FILENO};
    QTest::newRow("all") << QVector<int>{STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO};
}

void StandardHandles::noFileGetsTheirNumbers()
{
    QFETCH(QVector<int>, closed);
    const pid_t child = fork();
    QVERIFY(child >= 0);
    if (child == 0)
        _exit(OutcomeWithout(closed));
    int status = 0;
    QCOMPARE(waitpid(child, &status, 0), child);
    QVERIFY(WIFEXITED(status));
    QCOMPARE(WEXITSTATUS(status), static_cast<int>(OUTCOME_RIGHT));
}

QTEST_GUILESS_MAIN(StandardHandles)
#include "StandardHandles.moc"
