#include "TTemporaryFolder.h"

#include "fields/FieldPath.h"
#include "parameters/HostParameters.h"
#include "profiles/ProfileGroups.h"
#include "profiles/ProfileImport.h"
#include "profiles/TProfile.h"
#include "stores/TMemoryStore.h"
#include "stores/TSqliteStore.h"
#include "support/SupportBundle.h"
#include "system/TSystemSettingsProxy.h"
#include "terminal/TTerminal.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

namespace {

struct tagHostileName
{
    const char* title;
    const char* name;
    int size;
};

template <std::size_t Size>
constexpr tagHostileName Row(const char* title, const char (&name)[Size])
{
    return {title, name, static_cast<int>(Size) - 1};
}

constexpr tagHostileName Names[] = {
    Row("the folder above", ".."),
    Row("this folder", "."),
    Row("a way up", "../../../etc/cron.d/x"),
    Row("a way up at the end", "a/.."),
    Row("from the root", "/etc/passwd"),
    Row("a separator of other systems", "..\\..\\x"),
    Row("a drive of other systems", "C:x"),
    Row("a zero", "a\0b"),
    Row("a line break", "a\nb"),
    Row("an escape sequence", "\x1b]0;x\x07"),
    Row("a device of other systems", "NUL.txt"),
};

QString Text(const tagHostileName& row) { return QString::fromUtf8(row.name, row.size); }

/// The profile with another value of a parameter, which anybody can write with an editor.
void Edit(const QString& path, const QString& parameter, const QString& value)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite))
        qFatal("cannot read %s", qPrintable(path));
    QJsonObject root = QJsonDocument::fromJson(file.readAll()).object();
    QJsonArray rows = root.value(QLatin1String("parameters")).toArray();
    for (QJsonValueRef row : rows) {
        QJsonObject object = row.toObject();
        if (object.value(QLatin1String("name")) != parameter)
            continue;
        object.insert(QLatin1String("value"), value);
        row = object;
    }
    root.insert(QLatin1String("parameters"), rows);
    file.resize(0);
    file.seek(0);
    file.write(QJsonDocument(root).toJson());
}

} // namespace

/// Names that lead out of their folder, from a profile, a stick or a command.
class HostileNames : public QObject
{
    Q_OBJECT

private slots:
    void aProfileHasNoSuchNames_data();
    void aProfileHasNoSuchNames();
    void aProfileMovesNoDrive();
    void aFieldHasNoSuchName_data();
    void aFieldHasNoSuchName();
    void theMembersOfABundleStayInIt();

private:
    static void AddNames();
};

void HostileNames::AddNames()
{
    QTest::addColumn<QString>("name");
    for (const tagHostileName& row : Names)
        QTest::newRow(row.title) << Text(row);
}

void HostileNames::aProfileHasNoSuchNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("parameter");
    for (const char* parameter : {"active.client", "active.farm", "active.field", "active.job", "active.vehicle",
                                  "active.boundary", "active.ab-line"}) {
        for (const tagHostileName& row : Names)
            QTest::addRow("%s: %s", parameter, row.title) << Text(row) << QString::fromLatin1(parameter);
    }
}

void HostileNames::aProfileHasNoSuchNames()
{
    QFETCH(QString, name);
    QFETCH(QString, parameter);
    const TTemporaryFolder folder;
    const QString path = folder.Path(QLatin1String("tractor.profile"));
    TMemoryStore store;
    for (const EParamID id : {PARAM_CLIENT, PARAM_FARM, PARAM_FIELD, PARAM_ACTIVE_JOB, PARAM_ACTIVE_VEHICLE,
                              PARAM_ACTIVE_BOUNDARY, PARAM_ACTIVE_AB_LINE})
        store.SetParameter(id, QLatin1String("Smith"), true);
    QString error;
    QVERIFY(TProfile::Of(store, ProfileGroups::All(), QString()).Write(path, &error));
    QStringList problems;
    QVERIFY(TProfile::Read(path, PROFILE_EDITS_ACCEPTED, &problems));
    Edit(path, parameter, name);
    QVERIFY(!TProfile::Read(path, PROFILE_EDITS_ACCEPTED, &problems));
    QCOMPARE(static_cast<int>(problems.size()), 1);
    QVERIFY2(problems.first().contains(parameter), qPrintable(problems.first()));
}

/// Where the drives are is not in a profile; a row that says so is not taken.
void HostileNames::aProfileMovesNoDrive()
{
    const TTemporaryFolder folder;
    const QString path = folder.Path(QLatin1String("tractor.profile"));
    TMemoryStore theirs;
    theirs.SetParameter(PARAM_METRIC, false, true);
    QString error;
    QVERIFY(TProfile::Of(theirs, ProfileGroups::All(), QString()).Write(path, &error));
    QByteArray text = folder.Content(QLatin1String("tractor.profile"));
    QVERIFY(!text.contains("drive"));
    const QByteArray row = "\"parameters\": [\n    {\"number\": " + QByteArray::number(int{PARAM_EXTERNAL_DRIVE}) +
                           ", \"name\": \"system.external-drive\", \"type\": \"text\", \"value\": \"/etc\", "
                           "\"base\": null},";
    QVERIFY(text.contains("\"parameters\": ["));
    folder.MakeFile(QLatin1String("tractor.profile"), text.replace("\"parameters\": [", row));
    QStringList problems;
    const auto profile = TProfile::Read(path, PROFILE_EDITS_ACCEPTED, &problems);
    if (profile) {
        for (const tagProfileParameter& parameter : profile->Parameters())
            QVERIFY(parameter.known->id != PARAM_EXTERNAL_DRIVE);
    } else {
        QVERIFY2(problems.join(QLatin1Char('\n')).contains(QLatin1String("system.external-drive")),
                 qPrintable(problems.join(QLatin1Char('\n'))));
    }
}

void HostileNames::aFieldHasNoSuchName_data() { AddNames(); }

void HostileNames::aFieldHasNoSuchName()
{
    QFETCH(QString, name);
    QString error;
    for (const QString& path : {name, QLatin1String("Smith/") + name, QLatin1String("Smith/North/F1/") + name}) {
        const QStringList read = FieldPath::Read(path, &error);
        // A separator begins the next name, which is looked at by itself.
        const bool isOneName = read.isEmpty() || !read.contains(name);
        QVERIFY(isOneName);
        QVERIFY(!read.contains(QLatin1String("..")) && !read.contains(QLatin1String(".")));
    }
    QVERIFY(!FieldPath::IsName({QLatin1String("Smith")}, name, &error));
    QVERIFY(!error.isEmpty());
}

/// The names of files that lie beside the logs become no names in the archive.
void HostileNames::theMembersOfABundleStayInIt()
{
    const TTemporaryFolder folder;
    QString error;
    const auto store = TSqliteStore::Open(folder.Path(QLatin1String("settings.db")), &error);
    QVERIFY2(store != nullptr, qPrintable(error));
    TTerminal terminal(*store);
    QVERIFY2(terminal.Start(folder.Path(), &error), qPrintable(error));
    const QString logs = QFileInfo(TSystemSettingsProxy().GetInternalUserLogPath()).path();
    for (const char* name : {"User..\\..\\x.csv", "User 00007.csv", "User\n00008.csv", "User+9.csv", "User-1.csv",
                             "User7.csv", "User00010.csv"}) {
        QFile file(logs + QLatin1Char('/') + QLatin1String(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    tagSupportBundle bundle;
    QVERIFY2(WriteSupportBundle(*store, folder.Path(QLatin1String("support.zip")), {folder.Path(), QString(), false},
                                {}, &bundle, &error),
             qPrintable(error));
    const QRegularExpression form(QLatin1String("^([a-z-]+\\.[a-z]+|logs/(User|NMEA)[0-9]{5}\\.csv)$"));
    for (const QString& member : bundle.members)
        QVERIFY2(form.match(member).hasMatch(), qPrintable(member));
    QVERIFY(bundle.members.contains(QLatin1String("logs/User00010.csv")));
}

QTEST_GUILESS_MAIN(HostileNames)
#include "HostileNames.moc"
