#include "Deadline.h"

#include "nmea/TLinkSource.h"

#include <QSignalSpy>
#include <QtTest>

#include <functional>

namespace {

/// A link that goes as the test wants it. Its pauses are short, so that it gets somewhere.
class TTestedLink : public TLinkSource
{
public:
    explicit TTestedLink(int longestPause = 4) : TLinkSource(1, longestPause) {}

    using TLinkSource::Deliver;
    using TLinkSource::Failed;
    using TLinkSource::Made;

    std::function<void()> onConnect;
    int tries = 0;
    bool isLeft = true;

    bool WaitForTries(int count)
    {
        return QTest::qWaitFor([&] { return tries >= count; }, Deadline);
    }
    void Fail() { Failed(QLatin1String("no carrier")); }

private:
    void Connect() override
    {
        ++tries;
        isLeft = false;
        onConnect();
    }
    void Disconnect() override { isLeft = true; }
};

} // namespace

class LinkRetries : public QObject
{
    Q_OBJECT

private slots:
    void itIsTriedForEver();
    void thePauseGrows();
    void thePauseIsShortAgainOnceSomethingCame();
    void aServerThatHangsUpAtOnceIsNotPestered();
    void eachLossAndReturnIsToldOnce();
    void nothingIsToldOfALinkThatStands();
    void closingEndsTheTries_data();
    void closingEndsTheTries();
};

void LinkRetries::itIsTriedForEver()
{
    TTestedLink link;
    link.onConnect = [&] { link.Fail(); };
    const QSignalSpy losses(&link, &TByteSource::Lost);
    link.Read();
    QVERIFY(link.WaitForTries(100)); // before which the pause would have outgrown a lifetime
    QCOMPARE(losses.size(), 1);
    QCOMPARE(losses.at(0).at(0).toString(), QString::fromLatin1("no carrier"));
}

void LinkRetries::thePauseGrows()
{
    TTestedLink link(1 << 20);
    link.onConnect = [&] {
        link.Fail();
        link.Fail(); // that it is told twice does not make it grow faster: with that the deadline would be over
    };
    QElapsedTimer elapsed;
    elapsed.start();
    link.Read();
    QVERIFY(link.WaitForTries(10));
    QVERIFY(elapsed.elapsed() >= 400); // 511, but a timer may be early
}

void LinkRetries::thePauseIsShortAgainOnceSomethingCame()
{
    const int failuresInARow = 8; // twice as many without a return to the shortest pause take longer than the deadline
    TTestedLink link(1 << 20);
    link.onConnect = [&] {
        if (link.tries % failuresInARow == 0) {
            link.Made();
            link.Deliver("$A*41\r\n");
        }
        link.Fail();
    };
    link.Read();
    QVERIFY(link.WaitForTries(4 * failuresInARow));
}

void LinkRetries::aServerThatHangsUpAtOnceIsNotPestered()
{
    TTestedLink link(1 << 20);
    link.onConnect = [&] {
        link.Made();
        link.Fail();
    };
    QElapsedTimer elapsed;
    elapsed.start();
    link.Read();
    QVERIFY(link.WaitForTries(10));
    QVERIFY(elapsed.elapsed() >= 400);
}

void LinkRetries::eachLossAndReturnIsToldOnce()
{
    TTestedLink link;
    bool isThere = false;
    link.onConnect = [&] { isThere ? link.Made() : link.Fail(); };
    const QSignalSpy losses(&link, &TByteSource::Lost);
    const QSignalSpy returns(&link, &TByteSource::Regained);
    link.Read();
    for (int round = 1; round <= 3; ++round) {
        QVERIFY(link.WaitForTries(link.tries + 5));
        QCOMPARE(losses.size(), round);
        QCOMPARE(returns.size(), round - 1);
        isThere = true;
        QVERIFY(link.WaitForTries(link.tries + 1));
        QCOMPARE(returns.size(), round);
        isThere = false;
        link.Fail();
        link.Fail(); // as devices do that have more than one thing to complain about
        QVERIFY(link.isLeft);
        QCOMPARE(losses.size(), round + 1);
    }
}

void LinkRetries::nothingIsToldOfALinkThatStands()
{
    TTestedLink link;
    link.onConnect = [&] { link.Made(); };
    const QSignalSpy losses(&link, &TByteSource::Lost);
    const QSignalSpy returns(&link, &TByteSource::Regained);
    link.Read();
    QCOMPARE(link.tries, 1);
    QVERIFY(losses.isEmpty());
    QVERIFY(returns.isEmpty());
}

void LinkRetries::closingEndsTheTries_data()
{
    QTest::addColumn<bool>("isInTheSlot");
    QTest::newRow("during a pause") << false;
    QTest::newRow("when told of the loss") << true;
}

void LinkRetries::closingEndsTheTries()
{
    QFETCH(bool, isInTheSlot);
    TTestedLink link;
    link.onConnect = [&] { link.Fail(); };
    QSignalSpy losses(&link, &TByteSource::Lost);
    if (isInTheSlot)
        connect(&link, &TByteSource::Lost, this, [&] { link.Close(); });
    link.Read();
    if (!isInTheSlot)
        link.Close();
    QVERIFY(link.isLeft);

    link.Fail(); // news that was on its way
    link.Close();
    QTimer later;
    later.setSingleShot(true);
    QSignalSpy isLater(&later, &QTimer::timeout);
    later.start(20); // by then there would be several
    QVERIFY(isLater.wait(Deadline));
    QCOMPARE(link.tries, 1);
    QCOMPARE(losses.size(), 1);
}

QTEST_GUILESS_MAIN(LinkRetries)
#include "LinkRetries.moc"
