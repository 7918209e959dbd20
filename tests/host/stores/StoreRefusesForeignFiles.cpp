#include "StoreTestSupport.h"

#include <QDir>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QtTest>

class StoreRefusesForeignFiles : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void aForeignFileIsRefusedAndLeftAlone_data();
    void aForeignFileIsRefusedAndLeftAlone();
    void aForeignDatabaseWithWorkUnderWayIsLeftAlone();
    void aForeignFileIsRefusedBesideAForeignCopy();
    void aNewerSchemaIsRefusedAndLeftAlone_data();
    void aNewerSchemaIsRefusedAndLeftAlone();
    void aNewerGoodCopyIsRefusedAndLeftAlone();
    void aPathThatCannotBeAFileIsRefused_data();
    void aPathThatCannotBeAFileIsRefused();

private:
    QString Refused();

    std::unique_ptr<QTemporaryDir> m_Folder;
    QString m_Path;
};

void StoreRefusesForeignFiles::init()
{
    m_Folder = std::make_unique<QTemporaryDir>();
    m_Path = m_Folder->filePath(QLatin1String("settings.db"));
}

// Tries to open the store. Returns the error when the folder is unchanged and nothing else was said, else what is
// wrong.
QString StoreRefusesForeignFiles::Refused()
{
    const QDir folder(m_Folder->path());
    QMap<QString, QByteArray> before;
    for (const QString& name : NamesBeside(m_Path))
        before[name] = FileBytes(folder.filePath(name));

    TStandardErrorCapture standardError;
    QString error;
    if (TSqliteStore::Open(m_Path, &error))
        return QLatin1String("accepted");
    if (!standardError.Lines().isEmpty())
        return QLatin1String("said: ") + standardError.Lines().first();
    if (NamesBeside(m_Path) != QStringList(before.keys()))
        return QLatin1String("files: ") + NamesBeside(m_Path).join(QLatin1Char(' '));
    for (auto file = before.constBegin(); file != before.constEnd(); ++file)
        if (FileBytes(folder.filePath(file.key())) != file.value())
            return QLatin1String("changed: ") + file.key();
    return error;
}

void StoreRefusesForeignFiles::aForeignFileIsRefusedAndLeftAlone_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("found");

    const QString notSqlite = QLatin1String("a file that is not of SQLite");
    QTest::newRow("text") << QByteArray("[units]\nmetric=1\n") << QString() << notSqlite;
    QTest::newRow("one byte") << QByteArray("x") << QString() << notSqlite;
    QTest::newRow("long") << QByteArray(100000, 'x') << QString() << notSqlite;
    QTest::newRow("zeros") << QByteArray(8192, '\0') << QString() << notSqlite;
    QTest::newRow("the beginning of a database")
        << QByteArray("SQLite format 3\0\x10\0\2\2", 20) << QString() << notSqlite;
    QTest::newRow("a database without a mark") << QByteArray() << QString::fromLatin1("CREATE TABLE parameters (id)")
                                               << QString::fromLatin1("an SQLite file with application id 0");
    QTest::newRow("a database of another program")
        << QByteArray() << QString::fromLatin1("PRAGMA application_id = 252006673")
        << QString::fromLatin1("an SQLite file with application id 252006673");
}

void StoreRefusesForeignFiles::aForeignFileIsRefusedAndLeftAlone()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, statement);
    QFETCH(QString, found);
    if (statement.isEmpty())
        SetFileBytes(m_Path, bytes);
    else
        RunSql(m_Path, statement);
    QCOMPARE(Refused(),
             QString::fromLatin1("%1 is not accepted: found %2; accepted is an SQLite file with application id "
                                 "1128350291 and schema 1")
                 .arg(m_Path, found));
}

void StoreRefusesForeignFiles::aForeignDatabaseWithWorkUnderWayIsLeftAlone()
{
    // Whoever opens a database that has a log beside it writes to it.
    const QString other = m_Folder->filePath(QLatin1String("other.db"));
    const QString wal = QLatin1String("-wal");
    RunSql(other, QLatin1String("PRAGMA journal_mode = WAL"));
    {
        QSqlDatabase connection = QSqlDatabase::addDatabase(QLatin1String("QSQLITE"), QLatin1String("other"));
        connection.setDatabaseName(other);
        QVERIFY(connection.open());
        QVERIFY(QSqlQuery(connection).exec(QLatin1String("CREATE TABLE things (id)")));
        SetFileBytes(m_Path, FileBytes(other));
        SetFileBytes(m_Path + wal, FileBytes(other + wal));
        QVERIFY(!FileBytes(m_Path + wal).isEmpty());
    }
    QSqlDatabase::removeDatabase(QLatin1String("other"));
    QVERIFY(Refused().contains(QLatin1String("is not accepted")));
}

void StoreRefusesForeignFiles::aForeignFileIsRefusedBesideAForeignCopy()
{
    SetFileBytes(m_Path, "text");
    SetFileBytes(m_Path + QLatin1String(".good"), "more text");
    QVERIFY(Refused().contains(QLatin1String("is not accepted")));
}

void StoreRefusesForeignFiles::aNewerSchemaIsRefusedAndLeftAlone_data()
{
    QTest::addColumn<int>("schema");
    QTest::newRow("next") << 2;
    QTest::newRow("last") << std::numeric_limits<int>::max();
}

void StoreRefusesForeignFiles::aNewerSchemaIsRefusedAndLeftAlone()
{
    QFETCH(int, schema);
    OpenStore(m_Path)->SetParameter(PARAM_METRIC, true, true);
    RunSql(m_Path, QString::fromLatin1("PRAGMA user_version = %1").arg(schema));
    QCOMPARE(Refused(), QString::fromLatin1("%1 is not accepted: found schema %2; accepted is an SQLite file with "
                                            "application id 1128350291 and schema 1")
                            .arg(m_Path)
                            .arg(schema));
}

void StoreRefusesForeignFiles::aNewerGoodCopyIsRefusedAndLeftAlone()
{
    OpenStore(m_Path)->SetParameter(PARAM_METRIC, true, true);
    const QString good = m_Path + QLatin1String(".good");
    RunSql(good, QLatin1String("PRAGMA user_version = 2"));
    SetFileBytes(m_Path, FileBytes(m_Path).left(5000));
    QVERIFY(Refused().startsWith(good + QLatin1String(" is not accepted: found schema 2")));
}

void StoreRefusesForeignFiles::aPathThatCannotBeAFileIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no folder") << QString::fromLatin1("nowhere/settings.db") << QString::fromLatin1("No such file");
    QTest::newRow("a folder") << QString::fromLatin1(".") << QString::fromLatin1("Is a directory");
    QTest::newRow("within a file") << QString::fromLatin1("text/settings.db") << QString::fromLatin1("Not a directory");
}

void StoreRefusesForeignFiles::aPathThatCannotBeAFileIsRefused()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    SetFileBytes(m_Folder->filePath(QLatin1String("text")), "text");
    m_Path = m_Folder->filePath(QLatin1String("settings")) + QLatin1Char('/') + name;
    QVERIFY(QDir().mkpath(m_Folder->filePath(QLatin1String("settings"))));
    SetFileBytes(m_Folder->filePath(QLatin1String("settings/text")), "text");
    QString error;
    QVERIFY(!TSqliteStore::Open(m_Path, &error));
    QVERIFY2(error.contains(QLatin1String("cannot be used")) && error.contains(reason), qPrintable(error));
}

QTEST_GUILESS_MAIN(StoreRefusesForeignFiles)
#include "StoreRefusesForeignFiles.moc"
