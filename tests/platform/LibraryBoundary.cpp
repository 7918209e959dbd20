#include "CoreTest.h"

#include <QProcess>
#include <QSet>

/// What libcabsettings.so shows to others, and what it asks of them.
class LibraryBoundary : public QObject
{
    Q_OBJECT

private slots:
    void onlyClassesConstantsAndGlobalsAreVisible();
    void everyClassAndGlobalIsVisible_data();
    void everyClassAndGlobalIsVisible();
    void onlyTheHostIsLeftUndefined();
    void everythingOfTheHostIsAskedFor_data();
    void everythingOfTheHostIsAskedFor();

private:
    static QStringList Symbols(const char* kind)
    {
        QProcess nm;
        nm.start(QLatin1String(CABSETTINGS_NM),
                 QStringList() << QLatin1String("-DC") << QLatin1String(kind) << QLatin1String(CABSETTINGS_LIBRARY));
        if (!nm.waitForFinished())
            return QStringList();
        return QString::fromUtf8(nm.readAllStandardOutput()).split(QLatin1Char('\n'));
    }

    /// "TUnits::ConvertMetersToFeet(float)" from "0000000000043210 T TUnits::ConvertMetersToFeet(float)".
    static QString Name(const QString& line) { return line.trimmed().section(QLatin1Char(' '), 2).trimmed(); }

    /// The class that a symbol belongs to, or its own name.
    static QString Owner(QString name)
    {
        const char* const prefixes[] = {"vtable for ", "typeinfo for ", "typeinfo name for "};
        for (const char* prefix : prefixes) {
            if (name.startsWith(QLatin1String(prefix)))
                name = name.mid(static_cast<int>(qstrlen(prefix)));
        }
        return name.section(QLatin1String("::"), 0, 0).section(QLatin1Char('('), 0, 0);
    }
};

namespace {

const char* const Visible[] = {
    "TColorSettings",
    "TColorSettingsProxy",
    "TDiagnosticLog",
    "TDiagnosticLogProxy",
    "TImplementPathSetting",
    "TNEMADiagnosticLogProxy",
    "TPathSetting",
    "TRegionSettings",
    "TRegionSettingsProxy",
    "TSettings",
    "TSystemSettings",
    "TSystemSettingsProxy",
    "TUnitAbbreviations",
    "TUnits",
    "TUserDiagnosticLogProxy",
    "TUserLogAccessor",
    "Settings",
    "UserLogAccessorPtr",
    "SEED_UNITS",
    "GRANULAR_UNITS",
    "NH3_UNITS",
    "KESTA_SPRAYER_UNITS",
    "LIQUID_UNITS",
};

const char* const Imported[] = {
    "ConfigManager",
    "TLocalTime::currentDate()",
    "TLocalTime::currentTime()",
    "TLocalTime::currentDateTime()",
    "TLocalTime::SetDateTime(int, int, int, int, int, int)",
    "TLocalTime::GetOffset()",
    "TLocalTime::SetOffset(int)",
    "TFileSystemHelper::LowerCaseFilenameExtensionRegExp()",
    "TFileSystemHelper::FileCopy(QString const&, QString const&, bool)",
};

/// Put there by the linker.
bool IsOfTheLinker(const QString& name)
{
    return name == QLatin1String("__bss_start") || name == QLatin1String("_edata") || name == QLatin1String("_end") ||
           name == QLatin1String("_init") || name == QLatin1String("_fini");
}

} // namespace

void LibraryBoundary::onlyClassesConstantsAndGlobalsAreVisible()
{
    QSet<QString> visible;
    for (const char* name : Visible)
        visible.insert(QLatin1String(name));
    int found = 0;
    const QStringList lines = Symbols("--defined-only");
    for (const QString& line : lines) {
        const QString name = Name(line);
        if (name.isEmpty() || IsOfTheLinker(name))
            continue;
        ++found;
        QVERIFY2(visible.contains(Owner(name)), qPrintable(name));
    }
    QVERIFY(found > 500);
}

void LibraryBoundary::everyClassAndGlobalIsVisible_data()
{
    QTest::addColumn<QString>("owner");
    for (const char* name : Visible)
        QTest::newRow(name) << QString::fromLatin1(name);
}

void LibraryBoundary::everyClassAndGlobalIsVisible()
{
    QFETCH(QString, owner);
    bool isFound = false;
    const QStringList lines = Symbols("--defined-only");
    for (const QString& line : lines)
        isFound = isFound || Owner(Name(line)) == owner;
    QVERIFY(isFound);
}

void LibraryBoundary::onlyTheHostIsLeftUndefined()
{
    QSet<QString> imported;
    for (const char* name : Imported)
        imported.insert(QLatin1String(name));
    const QStringList lines = Symbols("--undefined-only");
    for (const QString& line : lines) {
        // What the C and C++ libraries and most of Qt provide carries a version; the rest of Qt goes by its Q. What is
        // weak may stay undefined.
        const QString symbol = line.trimmed();
        const QString name = symbol.section(QLatin1Char(' '), 1);
        if (symbol.isEmpty() || symbol.startsWith(QLatin1Char('w')) || name.contains(QLatin1Char('@')) ||
            name.startsWith(QLatin1Char('Q')))
            continue;
        QVERIFY2(imported.contains(name), qPrintable(name));
    }
}

void LibraryBoundary::everythingOfTheHostIsAskedFor_data()
{
    QTest::addColumn<QString>("symbol");
    for (const char* name : Imported)
        QTest::newRow(name) << QString::fromLatin1(name);
}

void LibraryBoundary::everythingOfTheHostIsAskedFor()
{
    QFETCH(QString, symbol);
    const QString line = QLatin1String("U ") + symbol;
    bool isFound = false;
    const QStringList lines = Symbols("--undefined-only");
    for (const QString& each : lines)
        isFound = isFound || each.trimmed() == line;
    QVERIFY(isFound);
}

int main(int argc, char** argv) { return RunCoreTest<LibraryBoundary>(argc, argv); }
#include "LibraryBoundary.moc"
