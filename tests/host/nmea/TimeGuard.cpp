#include "nmea/TTimeGuard.h"

#include <QtTest>

namespace {

const QDate Built(2026, 11, 21);
const int Rollover = TTimeGuard::RolloverDays;

QDateTime Utc(int year, int month, int day, int hour = 12)
{
    return {QDate(year, month, day), QTime(hour, 0), Qt::UTC};
}

const QDateTime Never;
const QDateTime Newest = Utc(2027, 5, 1);

} // namespace

/// Times that cannot be are corrected or refused before they reach the clock.
class TimeGuard : public QObject
{
    Q_OBJECT

private slots:
    void oneTimeIsJudged_data();
    void oneTimeIsJudged();
    void aRunOfFixesConfirms_data();
    void aRunOfFixesConfirms();
    void aFastReceiverConfirmsAsSoon_data();
    void aFastReceiverConfirmsAsSoon();
    void aRunThatBreaksIsDropped();
    void aLaterTimeIsTheNewest();
    void aWrongDayCanBePutRight();
};

void TimeGuard::oneTimeIsJudged_data()
{
    QTest::addColumn<QDateTime>("newest");
    QTest::addColumn<QDateTime>("received");
    QTest::addColumn<QDateTime>("used"); ///< invalid when it is refused or waits
    QTest::addColumn<int>("refusal");
    const auto used = [](const char* name, const QDateTime& newest, const QDateTime& received,
                         const QDateTime& expected) {
        QTest::newRow(name) << newest << received << expected << int{TIME_NOT_REFUSED};
    };
    const auto refused = [](const char* name, const QDateTime& newest, const QDateTime& received,
                            ETimeRefusal refusal) {
        QTest::newRow(name) << newest << received << QDateTime() << int{refusal};
    };
    const auto waits = [](const char* name, const QDateTime& newest, const QDateTime& received) {
        QTest::newRow(name) << newest << received << QDateTime() << int{TIME_NOT_REFUSED};
    };
    const qint64 most = TTimeGuard::MostSeconds;

    used("the newest time again", Newest, Newest, Newest);
    used("a second later", Newest, Newest.addSecs(1), Newest.addSecs(1));
    used("a day later", Newest, Newest.addSecs(most), Newest.addSecs(most));
    waits("more than a day later", Newest, Newest.addSecs(most + 1));
    waits("years later", Newest, Utc(2035, 1, 1));
    used("a day back", Newest, Newest.addSecs(-most), Newest.addSecs(-most));
    refused("more than a day back", Newest, Newest.addSecs(-most - 1), TIME_BEFORE_NEWEST);
    refused("months back, after the build", Newest, Utc(2026, 12, 1), TIME_BEFORE_NEWEST);

    const QDateTime builtAt(Built, QTime(0, 0), Qt::UTC);
    used("the first time ever", Never, Utc(2027, 5, 1), Utc(2027, 5, 1));
    used("the first time ever, years after the build", Never, Utc(2040, 1, 1), Utc(2040, 1, 1));
    used("the moment of the build", Never, builtAt, builtAt);
    refused("the day before the build", Never, builtAt.addSecs(-1), TIME_BEFORE_BUILD);
    refused("two years before the build", Newest, Utc(2024, 5, 1), TIME_BEFORE_BUILD);
    refused("the first second that is too late", Never, builtAt.addDays(Rollover), TIME_TOO_LATE);
    used("the second before", Never, builtAt.addDays(Rollover).addSecs(-1), builtAt.addDays(Rollover).addSecs(-1));
    refused("2079", Newest, Utc(2079, 12, 31), TIME_TOO_LATE);

    used("a rollover back", Newest, Newest.addDays(-Rollover), Newest);
    used("two rollovers back, in the last century", Newest, Newest.addDays(-2 * Rollover).addYears(100), Newest);
    used("a rollover back, an hour later", Newest, Newest.addDays(-Rollover).addSecs(3600), Newest.addSecs(3600));
    waits("a rollover back, a winter later", Newest, Newest.addDays(-Rollover + 120));
    waits("a rollover back, the first time ever", Never, Newest.addDays(-Rollover));
    refused("a rollover back, six years later", Newest, Newest.addDays(-Rollover).addYears(6), TIME_BEFORE_BUILD);
    refused("a rollover back, a week earlier", Newest, Newest.addDays(-Rollover - 7), TIME_BEFORE_BUILD);
}

void TimeGuard::oneTimeIsJudged()
{
    QFETCH(QDateTime, newest);
    QFETCH(QDateTime, received);
    QFETCH(QDateTime, used);
    QFETCH(int, refusal);
    TTimeGuard guard(Built, newest);
    const tagTimeCheck check = guard.Check(received);
    QCOMPARE(check.utc, used);
    QCOMPARE(int{check.refusal}, refusal);
    QCOMPARE(check.isCorrected, used.isValid() && used != received);
    QVERIFY(!check.dropped.isValid());
    QCOMPARE(guard.Newest(), used.isValid() && (!newest.isValid() || used > newest) ? used : newest);
}

void TimeGuard::aRunOfFixesConfirms_data()
{
    QTest::addColumn<QDateTime>("newest");
    QTest::addColumn<QDateTime>("begin");
    QTest::addColumn<QDateTime>("used"); ///< of the first one
    QTest::addColumn<int>("step");       ///< seconds
    const QDateTime winter = Newest.addDays(200);
    QTest::newRow("every second") << Newest << winter << winter << 1;
    QTest::newRow("slowly") << Newest << winter << winter << static_cast<int>(TTimeGuard::LongestStep);
    QTest::newRow("corrected") << Newest << winter.addDays(-Rollover) << winter << 1;
    QTest::newRow("corrected, the first time ever") << Never << winter.addDays(-Rollover) << winter << 1;
}

void TimeGuard::aRunOfFixesConfirms()
{
    QFETCH(QDateTime, newest);
    QFETCH(QDateTime, begin);
    QFETCH(QDateTime, used);
    QFETCH(int, step);
    TTimeGuard guard(Built, newest);
    for (int fix = 1; fix <= TTimeGuard::FixesToConfirm + 2; ++fix) {
        const qint64 seconds = static_cast<qint64>(fix - 1) * step;
        for (int again = 0; again < 3; ++again) { // several sentences of one second count once
            const tagTimeCheck check = guard.Check(begin.addSecs(seconds));
            QCOMPARE(check.utc, fix < TTimeGuard::FixesToConfirm ? QDateTime() : used.addSecs(seconds));
            QCOMPARE(int{check.refusal}, int{TIME_NOT_REFUSED});
            QVERIFY(!check.dropped.isValid());
        }
    }
}

void TimeGuard::aFastReceiverConfirmsAsSoon_data()
{
    QTest::addColumn<int>("rate"); ///< fixes per second
    for (const int rate : {2, 5, 10, 20})
        QTest::newRow(QByteArray::number(rate).constData()) << rate;
}

void TimeGuard::aFastReceiverConfirmsAsSoon()
{
    QFETCH(int, rate);
    const QDateTime begin = Newest.addDays(200).addMSecs(500);
    TTimeGuard guard(Built, Newest);
    for (int fix = 0; fix < (TTimeGuard::FixesToConfirm + 2) * rate; ++fix) {
        const QDateTime utc = begin.addMSecs(qint64(1000) * fix / rate);
        const qint64 seconds = utc.toSecsSinceEpoch() - begin.toSecsSinceEpoch() + 1;
        const tagTimeCheck check = guard.Check(utc);
        QCOMPARE(check.utc, seconds < TTimeGuard::FixesToConfirm ? QDateTime() : utc);
        QVERIFY(!check.dropped.isValid());
    }
}

void TimeGuard::aRunThatBreaksIsDropped()
{
    const QDateTime ahead = Newest.addDays(200);
    TTimeGuard guard(Built, Newest);
    for (int fix = 0; fix < TTimeGuard::FixesToConfirm - 1; ++fix)
        QVERIFY(!guard.Check(ahead.addSecs(fix)).utc.isValid());
    const QDateTime last = ahead.addSecs(TTimeGuard::FixesToConfirm - 2);

    // A gap, a step back and another date each begin a new run.
    const QDateTime gap = last.addSecs(TTimeGuard::LongestStep + 1);
    QCOMPARE(guard.Check(gap).dropped, last);
    QCOMPARE(guard.Check(gap.addSecs(-1)).dropped, gap);
    QCOMPARE(guard.Check(Utc(2030, 1, 1)).dropped, gap.addSecs(-1));

    // The right time ends it.
    const tagTimeCheck right = guard.Check(Newest.addSecs(1));
    QCOMPARE(right.utc, Newest.addSecs(1));
    QCOMPARE(right.dropped, Utc(2030, 1, 1));
    QVERIFY(!guard.Check(Newest.addSecs(2)).dropped.isValid());
    QCOMPARE(guard.Newest(), Newest.addSecs(2));
}

void TimeGuard::aLaterTimeIsTheNewest()
{
    TTimeGuard guard(Built, Never);
    QVERIFY(!guard.Newest().isValid());
    for (int hour = 0; hour < 100; ++hour)
        QVERIFY(guard.Check(Newest.addSecs(hour * 3600)).utc.isValid());
    QCOMPARE(guard.Newest(), Newest.addSecs(99 * 3600));
    QCOMPARE(int{guard.Check(Newest).refusal}, int{TIME_BEFORE_NEWEST});
}

void TimeGuard::aWrongDayCanBePutRight()
{
    // A receiver that begins a day ahead is followed back.
    TTimeGuard guard(Built, Newest);
    QVERIFY(guard.Check(Newest.addSecs(TTimeGuard::MostSeconds)).utc.isValid());
    QCOMPARE(guard.Check(Newest).utc, Newest);
}

QTEST_GUILESS_MAIN(TimeGuard)
#include "TimeGuard.moc"
