#include "NmeaCatch.h"
#include "TReceiverServer.h"

#include <atomic>

#include <dlfcn.h>
#include <netdb.h>

namespace {

const char Domain[] = ".invalid"; // of the names that are answered here
const QByteArray Sentence = "$GPZDA,120000.00,01,05,2024,,*60\r\n";

/// What the system answers when it is asked for such a name, and how often. Qt asks from a thread of its own.
std::atomic<int> Answer{0}; // 0: the address of this machine
std::atomic<int> Questions{0};

} // namespace

/// Takes the place of the C library's for the whole program.
extern "C" __attribute__((visibility("default"))) int getaddrinfo(const char* name, const char* service,
                                                                  const addrinfo* hints, addrinfo** result)
{
    using TFunction = int (*)(const char*, const char*, const addrinfo*, addrinfo**);
    static const auto original = reinterpret_cast<TFunction>(dlsym(RTLD_NEXT, "getaddrinfo"));
    if (!QByteArray(name).endsWith(Domain))
        return original(name, service, hints, result);
    ++Questions;
    const int answer = Answer;
    return answer != 0 ? answer : original("127.0.0.1", service, hints, result);
}

class NmeaServerNames : public QObject
{
    Q_OBJECT

private slots:
    void aNameThatCannotBeResolvedYetIsTriedAgain_data();
    void aNameThatCannotBeResolvedYetIsTriedAgain();
    void itCanBeStoppedMeanwhile();
};

void NmeaServerNames::aNameThatCannotBeResolvedYetIsTriedAgain_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("name"); ///< each its own: Qt remembers for a minute what it has found
    QTest::newRow("no such name") << EAI_NONAME << "unknown.invalid";
    QTest::newRow("no name server") << EAI_AGAIN << "unreachable.invalid";
    QTest::newRow("a name server that fails") << EAI_FAIL << "failing.invalid";
}

void NmeaServerNames::aNameThatCannotBeResolvedYetIsTriedAgain()
{
    QFETCH(int, answer);
    QFETCH(QString, name);
    Answer = answer;
    Questions = 0;
    TReceiverServer server;
    QVERIFY(server.Listen());
    TNmeaInput input(tagTcpAddress{name, server.Port()});
    tagCatch caught(input);
    input.Start();
    QVERIFY(caught.WaitForLosses(1));
    QCOMPARE(caught.losses.at(0).at(0).toString(), QString::fromLatin1("Host not found"));
    QVERIFY(QTest::qWaitFor([] { return Questions >= 3; }, Deadline));
    QVERIFY(caught.end.isEmpty());

    Answer = 0;
    const auto client = server.Accept();
    QVERIFY(client);
    QVERIFY(caught.WaitForReturns(1));
    QVERIFY(TReceiverServer::Send(*client, Sentence));
    QVERIFY(caught.WaitForLines(1));
    QCOMPARE(caught.Stream(), Sentence);
    QCOMPARE(caught.losses.size(), 1);
    QVERIFY(caught.end.isEmpty());
}

void NmeaServerNames::itCanBeStoppedMeanwhile()
{
    Answer = EAI_NONAME;
    TNmeaInput input(tagTcpAddress{QLatin1String("stopped.invalid"), 2947});
    tagCatch caught(input);
    input.Start();
    QVERIFY(caught.WaitForLosses(1));
    input.Stop();
    QCOMPARE(caught.end.size(), 1);
    QVERIFY(caught.Ok());
}

QTEST_GUILESS_MAIN(NmeaServerNames)
#include "NmeaServerNames.moc"
