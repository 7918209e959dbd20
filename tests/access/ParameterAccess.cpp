#include "CoreTest.h"
#include "Latin1.h"
#include "TJournal.h"

#include "colors/TColorSettings.h"
#include "region/TRegionSettings.h"
#include "system/TSystemSettings.h"

#include <QColor>
#include <QtTest>

namespace {

/// A store that keeps what it is told and yet reports failure.
class TRefusingStore : public TTestStore
{
public:
    bool SetParameter(EParamID id, const QVariant& value, bool persist) override
    {
        TTestStore::SetParameter(id, value, persist);
        return false;
    }
};

} // namespace

Q_DECLARE_METATYPE(std::function<void()>)

class ParameterAccess : public QObject
{
    Q_OBJECT

private slots:
    void integersReadAsStored_data();
    void integersReadAsStored();
    void booleansReadAsStored_data();
    void booleansReadAsStored();
    void stringsReadAsStored_data();
    void stringsReadAsStored();
    void aWriteStoresItsOwnType_data();
    void aWriteStoresItsOwnType();
    void everyReadGoesToTheStore();
    void readingWritesNothing();
    void theResultOfAWriteIsIgnored();
    void theStoreMayBeReplacedBetweenCalls();
};

void ParameterAccess::integersReadAsStored_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("expected");

    QTest::newRow("absent") << QVariant() << 0;
    QTest::newRow("integer") << QVariant(42) << 42;
    QTest::newRow("negative integer") << QVariant(-42) << -42;
    QTest::newRow("greatest integer") << QVariant(2147483647) << 2147483647;
    QTest::newRow("numeric text") << QVariant(Latin1("42")) << 42;
    QTest::newRow("text") << QVariant(Latin1("forty-two")) << 0;
    QTest::newRow("text with a number in front") << QVariant(Latin1("42 hours")) << 0;
    QTest::newRow("empty text") << QVariant(Latin1("")) << 0;
    QTest::newRow("true") << QVariant(true) << 1;
    QTest::newRow("colour") << QVariant(QColor(1, 2, 3)) << 0;
    QTest::newRow("list") << QVariant(QVariantList() << 42) << 0;
}

void ParameterAccess::integersReadAsStored()
{
    QFETCH(QVariant, stored);
    QFETCH(int, expected);
    TTestStore store;
    if (stored.isValid())
        store.values[PARAM_BACKLIGHT_NIGHT_LEVEL] = stored;
    QCOMPARE(TColorSettings().GetBacklightNightLevel(), expected);
}

void ParameterAccess::booleansReadAsStored_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<bool>("expected");

    QTest::newRow("absent") << QVariant() << false;
    QTest::newRow("true") << QVariant(true) << true;
    QTest::newRow("false") << QVariant(false) << false;
    QTest::newRow("1") << QVariant(1) << true;
    QTest::newRow("-1") << QVariant(-1) << true;
    QTest::newRow("0") << QVariant(0) << false;
    QTest::newRow("text true") << QVariant(Latin1("true")) << true;
    QTest::newRow("text 1") << QVariant(Latin1("1")) << true;
    QTest::newRow("text false") << QVariant(Latin1("false")) << false;
    QTest::newRow("text 0") << QVariant(Latin1("0")) << false;
    QTest::newRow("empty text") << QVariant(Latin1("")) << false;
    QTest::newRow("colour") << QVariant(QColor(1, 2, 3)) << false;
}

void ParameterAccess::booleansReadAsStored()
{
    QFETCH(QVariant, stored);
    QFETCH(bool, expected);
    TTestStore store;
    if (stored.isValid())
        store.values[PARAM_DAY_MODE] = stored;
    QCOMPARE(TColorSettings().IsDayMode(), expected);
}

void ParameterAccess::stringsReadAsStored_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("expected");

    const QString greek = QString::fromUtf8("Αγρός");
    QTest::newRow("absent") << QVariant() << QString();
    QTest::newRow("text") << QVariant(Latin1("North")) << Latin1("North");
    QTest::newRow("beyond Latin-1") << QVariant(greek) << greek;
    QTest::newRow("integer") << QVariant(42) << Latin1("42");
    QTest::newRow("true") << QVariant(true) << Latin1("true");
    QTest::newRow("empty") << QVariant(Latin1("")) << QString();
    QTest::newRow("list") << QVariant(QVariantList() << 1 << 2) << QString();
}

void ParameterAccess::stringsReadAsStored()
{
    QFETCH(QVariant, stored);
    QFETCH(QString, expected);
    TTestStore store;
    if (stored.isValid())
        store.values[PARAM_ACTIVE_JOB] = stored;
    QCOMPARE(TSystemSettings().GetActiveJob(), expected);
}

void ParameterAccess::aWriteStoresItsOwnType_data()
{
    using FWrite = std::function<void()>;
    QTest::addColumn<FWrite>("write");
    QTest::addColumn<int>("parameter");
    QTest::addColumn<QVariant>("expected");

    QTest::newRow("boolean") << FWrite([] { TColorSettings().SetDayMode(true); }) << 9060 << QVariant(true);
    QTest::newRow("integer") << FWrite([] { TColorSettings().SetBackgroundNumber(7); }) << 9095 << QVariant(7);
    QTest::newRow("colour") << FWrite([] { TColorSettings().SetTextColor(QColor(1, 2, 3)); }) << 9080
                            << QVariant(QColor(1, 2, 3));
    QTest::newRow("string") << FWrite([] { TSystemSettings().SetActiveJob(Latin1("J")); }) << 8919
                            << QVariant(Latin1("J"));
    QTest::newRow("empty string") << FWrite([] { TSystemSettings().SetActiveJob(QString()); }) << 8919
                                  << QVariant(QString());
}

void ParameterAccess::aWriteStoresItsOwnType()
{
    QFETCH(std::function<void()>, write);
    QFETCH(int, parameter);
    QFETCH(QVariant, expected);
    TTestStore store;
    write();
    QCOMPARE(store.writes.size(), 1);
    QCOMPARE(store.writes.first().first, parameter);
    QCOMPARE(store.writes.first().second.userType(), expected.userType());
    QCOMPARE(store.writes.first().second, expected);
    QVERIFY(store.allWritesPersist);
}

void ParameterAccess::everyReadGoesToTheStore()
{
    TJournal store;
    const TColorSettings colors;
    const TSystemSettings system;
    const TRegionSettings region;
    for (int value = 1; value <= 3; ++value) {
        store.values[9062] = value;
        store.values[8911] = QString::number(value);
        store.values[9011] = value % 2 == 0;
        QCOMPARE(colors.GetBacklightNightLevel(), value);
        QString path;
        system.GetExternalDrivePath(path);
        QVERIFY(path.endsWith(QString::number(value)));
        QCOMPARE(region.GetTimeString(), Latin1(value % 2 == 0 ? "14:05:09" : "02:05:09 pm"));
    }
    QCOMPARE(store.reads, QList<int>() << 9062 << 8911 << 9011 << 9062 << 8911 << 9011 << 9062 << 8911 << 9011);
}

void ParameterAccess::readingWritesNothing()
{
    TTestStore store;
    TColorSettings().GetBacklightNightLevel();
    TColorSettings().GetTextColor();
    TSystemSettings().GetActiveJob();
    TSystemSettings().GetCFFPath();
    QVERIFY(store.writes.isEmpty());
    QVERIFY(store.values.isEmpty());
}

void ParameterAccess::theResultOfAWriteIsIgnored()
{
    TRefusingStore store;
    TColorSettings colors;
    colors.SetDayMode(true);
    colors.SetBackgroundNumber(7);
    QCOMPARE(colors.GetBackgroundNumber(), 7);
    QCOMPARE(store.writes.size(), 2);
}

void ParameterAccess::theStoreMayBeReplacedBetweenCalls()
{
    const TColorSettings colors;
    TTestStore first;
    first.values[9062] = 1;
    QCOMPARE(colors.GetBacklightNightLevel(), 1);
    TTestStore second; // the store in use from here on
    second.values[9062] = 2;
    QCOMPARE(colors.GetBacklightNightLevel(), 2);
    ConfigManager = &first;
    QCOMPARE(colors.GetBacklightNightLevel(), 1);
}

int main(int argc, char** argv) { return RunCoreTest<ParameterAccess>(argc, argv); }
#include "ParameterAccess.moc"
