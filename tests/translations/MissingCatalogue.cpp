#include "InOwnProcess.h"
#include "TTemporaryFolder.h"

#include "platform/TConfigManager.h"
#include "region/ELanguage.h"
#include "region/TRegionSettings.h"
#include "stores/TMemoryStore.h"
#include "terminal/Translation.h"
#include "units/TUnitAbbreviations.h"

#include <QTranslator>
#include <QtTest>

#include <fcntl.h>
#include <unistd.h>

/// A catalogue that is missing or damaged leaves English and is named once; nothing else is different.
class MissingCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void leavesEnglish_data();
    void leavesEnglish();
    void aWholeOneIsNotNamed();
};

namespace {

QString Text(const char* text) { return QString::fromUtf8(text); }

QByteArray Bytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool Make(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QByteArray German() { return Bytes(Text(":/translations/cabsettings_de.qm")); }

/// What a start with German shows, when the catalogues are in @p folder: whether the catalogue counts, a unit, a month
/// and a number of things; then what it says on standard error, in lines. Starts twice.
QStringList Start(const QString& folder)
{
    const QByteArray said = (folder + Text("/said")).toUtf8();
    const int file = open(said.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    dup2(file, STDERR_FILENO);
    TMemoryStore store;
    store.SetParameter(PARAM_LANGUAGE, int{LANGUAGE_GERMAN}, false);
    ConfigManager = &store;
    TRegionSettings::InitializeLanguageStrings();
    QStringList shown;
    for (int start = 0; start < 2; ++start) {
        QTranslator translator;
        const bool isGerman = InstallTranslation(translator, folder);
        TUnitAbbreviations::Initialize();
        shown =
            QStringList{isGerman ? Text("German") : Text("English"), TUnitAbbreviations::UnitAbbreviations[UNITS_KPH],
                        TUnitAbbreviations::Months[2], QCoreApplication::translate("Sizes", "%n byte(s)", nullptr, 2)};
    }
    ConfigManager = nullptr;
    return shown + QString::fromUtf8(Bytes(QString::fromUtf8(said))).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace

void MissingCatalogue::leavesEnglish_data()
{
    QTest::addColumn<bool>("isThere");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("missing") << false << QByteArray();
    QTest::newRow("empty") << true << QByteArray();
    QTest::newRow("a text") << true << QByteArray("Jan = Jan\n");
    QTest::newRow("cut off") << true << German().left(German().size() / 2);
    QTest::newRow("begins otherwise") << true << German().mid(1);
}

void MissingCatalogue::leavesEnglish()
{
    QFETCH(bool, isThere);
    QFETCH(QByteArray, bytes);
    QVERIFY(!German().isEmpty());
    const TTemporaryFolder folder;
    const QString catalogue = folder.Path(Text("cabsettings_de.qm"));
    QVERIFY(!isThere || Make(catalogue, bytes));
    QVERIFY(Make(folder.Path(Text("cabsettings_en.qm")), Bytes(Text(":/translations/cabsettings_en.qm"))));
    const QString said =
        Text("the catalogue %1 %2; texts are in English").arg(catalogue, Text(isThere ? "is damaged" : "is missing"));
    const QStringList shown = InOwnProcess([&folder] { return Start(folder.Path()); });
    QCOMPARE(shown.mid(0, 4), (QStringList{Text("English"), Text("kph"), Text("Mar"), Text("2 bytes")}));
    QCOMPARE(shown.size(), 5);
    QVERIFY2(shown.last().endsWith(said), qPrintable(shown.last()));
}

void MissingCatalogue::aWholeOneIsNotNamed()
{
    const TTemporaryFolder folder;
    QVERIFY(Make(folder.Path(Text("cabsettings_de.qm")), German()));
    const QStringList shown = InOwnProcess([&folder] { return Start(folder.Path()); });
    QCOMPARE(shown, (QStringList{Text("German"), Text("km/h"), Text("Mär"), Text("2 Byte")}));
}

QTEST_GUILESS_MAIN(MissingCatalogue)
#include "MissingCatalogue.moc"
