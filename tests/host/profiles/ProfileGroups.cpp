#include "profiles/ProfileGroups.h"
#include "parameters/TParameterCatalogue.h"

#include <QtTest>

class ProfileGroupsTest : public QObject
{
    Q_OBJECT

private slots:
    void everyParameterIsInAGroup_data();
    void everyParameterIsInAGroup();
    void everyGroupHasParameters();
    void parametersAreInTheirGroups_data();
    void parametersAreInTheirGroups();
    void whatBelongsToOneDeviceIsNotImportedByDefault();
};

void ProfileGroupsTest::everyParameterIsInAGroup_data()
{
    QTest::addColumn<QString>("name");
    for (const tagParameter& parameter : TParameterCatalogue::Parameters())
        QTest::newRow(qPrintable(parameter.name)) << parameter.name;
}

void ProfileGroupsTest::everyParameterIsInAGroup()
{
    QFETCH(QString, name);
    QVERIFY(ProfileGroups::All().contains(ProfileGroups::Of(name)));
}

void ProfileGroupsTest::everyGroupHasParameters()
{
    QSet<QString> used;
    for (const tagParameter& parameter : TParameterCatalogue::Parameters())
        used.insert(ProfileGroups::Of(parameter.name));
    QCOMPARE(used.size(), ProfileGroups::All().size());
}

void ProfileGroupsTest::parametersAreInTheirGroups_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("group");
    const auto row = [](const char* name, const char* group) {
        QTest::newRow(*name ? name : "empty") << QString::fromLatin1(name) << QString::fromLatin1(group);
    };
    row("units.metric", "units");
    row("rates.basis", "units");
    row("region.language", "region");
    row("colors.night.map", "colors");
    row("display.day", "display");
    row("display.tiles", "display");
    row("active.vehicle", "machine");
    row("active.implement", "machine");
    row("active.steering-profile", "machine");
    row("system.implement-folder", "machine");
    row("active.client", "selections");
    row("active.field", "selections");
    row("active.job", "selections");
    row("system.internal-drive", "device");
    row("system.external-drive", "device");
    row("display.day-switched", "device");
    row("log.nmea-number", "device");
    row("clock.offset", "device");
    row("terminal.identity", "device");
    row("receiver.address", "device");
    row("units", "");
    row("active.vehicle2", "");
    row("active", "");
    row("frobozz", "");
    row("", "");
}

void ProfileGroupsTest::parametersAreInTheirGroups()
{
    QFETCH(QString, name);
    QFETCH(QString, group);
    QCOMPARE(ProfileGroups::Of(name), group);
}

void ProfileGroupsTest::whatBelongsToOneDeviceIsNotImportedByDefault()
{
    QStringList expected = ProfileGroups::All();
    QCOMPARE(expected.takeLast(), QString::fromLatin1("device"));
    QCOMPARE(ProfileGroups::ImportedByDefault(), expected);
}

QTEST_APPLESS_MAIN(ProfileGroupsTest)
#include "ProfileGroups.moc"
