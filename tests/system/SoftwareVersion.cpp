#include "CoreTest.h"
#include "TDisplay.h"

#include "system/TSystemSettings.h"
#include "system/TSystemSettingsProxy.h"

#include <QtTest>

using System = TSystemSettings;
using Proxy = TSystemSettingsProxy;

class SoftwareVersion : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void usersSeeRevisionsAsAFurtherNumber_data();
    void usersSeeRevisionsAsAFurtherNumber();
    void theVersionHoldsForTheProcess();
    void thePackageCarriesTheVersionAsSet_data();
    void thePackageCarriesTheVersionAsSet();
    void updateFilesCarryNoVersion();
};

void SoftwareVersion::cleanup() { System::SoftwareVersion = QLatin1String("N/A"); }

void SoftwareVersion::usersSeeRevisionsAsAFurtherNumber_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("shown");

    const struct
    {
        const char* name;
        const char* version;
        const char* shown;
    } rows[] = {
        {"one digit", "2.1.4-r7", "2.1.4.07"},
        {"two digits", "2.1.4-r12", "2.1.4.12"},
        {"three digits", "2.1.4-r123", "2.1.4.123"},
        {"zero", "2.1.4-r0", "2.1.4.00"},
        {"none", "2.1.4", "2.1.4"},
        {"not set", "N/A", "N/A"},
        {"empty", "", ""},
        {"mark at the end", "2.1.4-r", "2.1.4."},
        {"mark alone", "-r", "."},
        {"mark and digit alone", "-r7", ".07"},
        {"one letter", "2.1.4-rc", "2.1.4.0c"},
        {"twice, one digit each", "2-r1-r2", "2.1.2"},
        {"twice, nothing behind", "2-r1-r", "2.1."},
        {"twice at once", "2-r-r", "2.."},
        {"something behind the digit", "2-r7b", "2.7b"},
        {"mark at the start", "-r7.1", ".7.1"},
        {"capital letter", "2.1.4-R7", "2.1.4-R7"},
        {"capital letter first", "2-R7-r8", "2-R7.08"},
        {"dash alone", "2.1-4", "2.1-4"},
        {"letter alone", "2.1r4", "2.1r4"},
    };
    for (const auto& row : rows)
        QTest::newRow(row.name) << QString::fromLatin1(row.version) << QString::fromLatin1(row.shown);
}

void SoftwareVersion::usersSeeRevisionsAsAFurtherNumber()
{
    QFETCH(QString, version);
    QFETCH(QString, shown);
    const TDisplay display;
    QCOMPARE(System::BeautifyVersion(version), shown);
    QCOMPARE(Proxy().BeautifyVersion(version), shown);

    System().SetSoftwareVersion(version);
    QCOMPARE(System().GetSoftwareVersion(true), shown);
    QCOMPARE(System().GetSoftwareVersion(false), version);
    QCOMPARE(Proxy().GetSoftwareVersion(true), shown);
    QCOMPARE(Proxy().GetSoftwareVersion(false), version);
}

void SoftwareVersion::theVersionHoldsForTheProcess()
{
    const TDisplay display;
    Proxy().SetSoftwareVersion(QLatin1String("3.0"));
    QCOMPARE(System::SoftwareVersion, QString::fromLatin1("3.0"));
    QCOMPARE(System().GetSoftwareVersion(false), QString::fromLatin1("3.0"));
    QVERIFY(display.store.writes.isEmpty());
}

void SoftwareVersion::thePackageCarriesTheVersionAsSet_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("package");
    QTest::newRow("not set") << QString::fromLatin1("N/A") << QString::fromLatin1("kdm740-N/A");
    QTest::newRow("revision") << QString::fromLatin1("2.1.4-r7") << QString::fromLatin1("kdm740-2.1.4-r7");
    QTest::newRow("empty") << QString() << QString::fromLatin1("kdm740-");
}

void SoftwareVersion::thePackageCarriesTheVersionAsSet()
{
    QFETCH(QString, version);
    QFETCH(QString, package);
    const TDisplay display;
    System::SoftwareVersion = version;
    QCOMPARE(System().GetPackageName(), package);
    QCOMPARE(Proxy().GetPackageName(), package);
}

void SoftwareVersion::updateFilesCarryNoVersion()
{
    const TDisplay display;
    System().SetSoftwareVersion(QLatin1String("2.1.4-r7"));
    QCOMPARE(System().GetReprogrammingPackageFilename(), QString::fromLatin1("kdm740_update.ipk"));
    QCOMPARE(Proxy().GetReprogrammingPackageFilename(), QString::fromLatin1("kdm740_update.ipk"));
    QCOMPARE(System().GetChecksumFilename(), QString::fromLatin1("kdm740_update.idx"));
    QCOMPARE(Proxy().GetChecksumFilename(), QString::fromLatin1("kdm740_update.idx"));
}

int main(int argc, char** argv) { return RunCoreTest<SoftwareVersion>(argc, argv); }

#include "SoftwareVersion.moc"
