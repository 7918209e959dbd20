#include "CoreTest.h"
#include "TestHost.h"

#include "system/TSystemSettings.h"

#include <QtTest>

/// Where the stored drives lie, which most paths begin with.
class DrivePaths : public QObject
{
    Q_OBJECT

private slots:
    void aDriveHasItsAbsolutePath_data();
    void aDriveHasItsAbsolutePath();
    void theDriveIsReadOncePerPath();
};

void DrivePaths::aDriveHasItsAbsolutePath_data()
{
    QTest::addColumn<QString>("stored");
    const char* const stored[] = {
        "/mnt/data/", "/mnt/data", "/",          "/a",      "/a/",           "//",      "//a",
        "/a//b",      "/a/b//",    "/.",         "/..",     "/a/./b",        "/a/../b", "/a/b/.",
        "/a/b/..",    "/.hidden/", "/a/.hidden", "/a/b.c/", "/a/..b/",       "/a. /b/", "data",
        "data/",      "./data/",   "../data",    "a/../b/", "/m\xC3\xBCll/", " /a/",    "/a/...",
    };
    for (const char* path : stored)
        QTest::newRow(path) << QString::fromUtf8(path);
    QTest::newRow("nothing") << QString();
}

void DrivePaths::aDriveHasItsAbsolutePath()
{
    QFETCH(QString, stored);
    TTestStore store;
    store.values[PARAM_INTERNAL_DRIVE] = stored;
    store.values[PARAM_EXTERNAL_DRIVE] = stored;
    const TSystemSettings system;
    const QString expected = QFileInfo(stored).absoluteFilePath();
    QCOMPARE(system.GetInternalDrivePath(), expected);
    QCOMPARE(system.GetInternalDrivePath().isNull(), expected.isNull());
    QCOMPARE(system.GetInternalDrive().absoluteFilePath(), expected);
    QString external;
    system.GetExternalDrivePath(external);
    QCOMPARE(external, expected);
}

void DrivePaths::theDriveIsReadOncePerPath()
{
    TTestStore store;
    store.values[PARAM_INTERNAL_DRIVE] = QString::fromLatin1("/mnt/a/");
    const TSystemSettings system;
    const QString name = QString::fromLatin1("F1");
    QVERIFY(system.GetBoundaryFilePath(name, name, name).startsWith(QLatin1String("/mnt/a/Clients/")));
    QCOMPARE(store.reads, QList<int>{PARAM_INTERNAL_DRIVE});
    store.values[PARAM_INTERNAL_DRIVE] = QString::fromLatin1("/mnt/b/"); // nothing is kept
    QVERIFY(system.GetBoundaryFilePath(name, name, name).startsWith(QLatin1String("/mnt/b/Clients/")));
}

int main(int argc, char** argv) { return RunCoreTest<DrivePaths>(argc, argv); }

#include "DrivePaths.moc"
