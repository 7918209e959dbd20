#include "CoreTest.h"
#include "Latin1.h"

#include <QFile>
#include <QRegExp>
#include <QSet>

#include <algorithm>
#include <cstdio>
#include <iterator>

/// What the libraries show to others, and what libcabsettings.so asks of its host.
class LibraryBoundary : public QObject
{
    Q_OBJECT

private slots:
    void exportedSymbolsAreThoseListed_data();
    void exportedSymbolsAreThoseListed();
    void onlyTheHostIsLeftUndefined();
    void everythingOfTheHostIsAskedFor_data();
    void everythingOfTheHostIsAskedFor();
};

namespace {

/// The first is libcabsettings.so.
QStringList Libraries() { return Latin1(CABSETTINGS_LIBRARIES).split(QLatin1Char(':')); }

QStringList Symbols(const QString& library, const char* kind)
{
    // By the shell: an emulator of another processor starts no processes for Qt.
    const QString command =
        Latin1(CABSETTINGS_NM) + Latin1(" -DCg ") + Latin1(kind) + Latin1(" '") + library + QLatin1Char('\'');
    FILE* const nm = popen(QFile::encodeName(command).constData(), "r");
    QFile output;
    const bool isRead = nm && output.open(nm, QIODevice::ReadOnly);
    const QByteArray symbols = isRead ? output.readAll() : QByteArray();
    if (nm)
        pclose(nm);
    return QString::fromUtf8(symbols).split(QLatin1Char('\n'));
}

QStringList InOrder(const QSet<QString>& names)
{
    QStringList list;
    for (const QString& name : names)
        list.append(name);
    list.sort();
    return list;
}

/// "TUnits::ConvertMetersToFeet(float)@CABSETTINGS_1" from "0000000000043210 T TUnits::ConvertMetersToFeet(float)@@…".
/// A constructor or destructor stands for all of its symbols. What has no version is the node itself.
QStringList Exported(const QString& library)
{
    QSet<QString> names;
    const QStringList lines = Symbols(library, "--defined-only");
    for (const QString& line : lines) {
        QString name = line.section(QLatin1Char(' '), 2).replace(Latin1("@@"), Latin1("@"));
        if (!name.isEmpty() && !name.contains(QLatin1Char('@')))
            name += QLatin1Char('@') + name;
        if (!name.isEmpty())
            names.insert(name);
    }
    return InOrder(names);
}

/// The list of libcabsettings.so.1.2.3 is libcabsettings1.symbols. Its lines that begin with a blank hold a symbol and
/// the version that it came with, one that is demangled in quotes behind a tag.
QStringList Listed(const QString& library)
{
    const QString file = library.section(QLatin1Char('/'), -1);
    const QString list = file.section(QLatin1Char('.'), 0, 0) + file.section(QLatin1Char('.'), 2, 2);
    QFile symbols(Latin1(CABSETTINGS_SYMBOLS) + QLatin1Char('/') + list + Latin1(".symbols"));
    if (!symbols.open(QIODevice::ReadOnly))
        return QStringList();

    QSet<QString> names;
    const QStringList lines = QString::fromUtf8(symbols.readAll()).split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        if (!line.startsWith(QLatin1Char(' ')))
            continue;
        QString name = line.trimmed().section(QLatin1Char(' '), 0, -2);
        if (name.startsWith(Latin1("(c++)")))
            name = name.section(QLatin1Char('"'), 1, 1);
#if QT_VERSION >= 0x060000
        name.replace(Latin1("QVector<"), Latin1("QList<")); // one template under two names
        name.replace(Latin1("QStringList"), Latin1("QList<QString>"));
#endif
        names.insert(name);
    }
    return InOrder(names);
}

/// As a text, one to a line.
QString Difference(const QStringList& names, const QStringList& without)
{
    QStringList difference;
    std::set_difference(names.begin(), names.end(), without.begin(), without.end(), std::back_inserter(difference));
    return difference.join(Latin1("\n"));
}

/// What libcabsettings.so imports.
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

/// Whether somebody else than the host provides a symbol. What comes from the C and C++ libraries and most of Qt
/// carries a version; the rest of Qt, which is all of Qt 4, goes by its Q. Sanitizers have functions of their own, and
/// stand in for those of C and for the operators of C++, without a version: with them only members of classes are the
/// host's.
bool IsOfOthers(const QString& name)
{
    const bool isMember = name.contains(Latin1("::")) && !name.startsWith(Latin1("operator "));
    const bool isInstrument = CABSETTINGS_IS_INSTRUMENTED && !isMember;
    const QRegExp ofQt(Latin1("[Qq].*|operator[^(]+\\(Q.*|(vtable|typeinfo) for Q.*"));
    return name.contains(QLatin1Char('@')) || ofQt.exactMatch(name) || isInstrument;
}

} // namespace

void LibraryBoundary::exportedSymbolsAreThoseListed_data()
{
    QTest::addColumn<QString>("library");
    const QStringList libraries = Libraries();
    for (const QString& library : libraries)
        QTest::newRow(library.section(QLatin1Char('/'), -1).toLatin1().constData()) << library;
}

void LibraryBoundary::exportedSymbolsAreThoseListed()
{
    // A host that was linked against an older library looks for its symbols by name: none may vanish or change. What is
    // exported by accident would have to stay for ever.
    QFETCH(QString, library);
    const QStringList exported = Exported(library);
    const QStringList listed = Listed(library);
    QVERIFY(!listed.isEmpty());

    const QString lost = Difference(listed, exported);
    QVERIFY2(lost.isEmpty(), qPrintable(Latin1("listed but not exported:\n") + lost));
    const QString added = Difference(exported, listed);
    QVERIFY2(added.isEmpty(), qPrintable(Latin1("exported but not listed; if each is meant to be, packaging/"
                                                "update-symbols lists it:\n") +
                                         added));
}

void LibraryBoundary::onlyTheHostIsLeftUndefined()
{
    QSet<QString> imported;
    for (const char* name : Imported)
        imported.insert(Latin1(name));
    const QStringList lines = Symbols(Libraries().first(), "--undefined-only");
    for (const QString& line : lines) {
        // What is weak may stay undefined.
        const QString symbol = line.trimmed();
        const QString name = symbol.section(QLatin1Char(' '), 1);
        if (!symbol.isEmpty() && !symbol.startsWith(QLatin1Char('w')) && !IsOfOthers(name))
            QVERIFY2(imported.contains(name), qPrintable(name));
    }
}

void LibraryBoundary::everythingOfTheHostIsAskedFor_data()
{
    QTest::addColumn<QString>("symbol");
    for (const char* name : Imported)
        QTest::newRow(name) << Latin1(name);
}

void LibraryBoundary::everythingOfTheHostIsAskedFor()
{
    QFETCH(QString, symbol);
    const QString line = Latin1("U ") + symbol;
    bool isFound = false;
    const QStringList lines = Symbols(Libraries().first(), "--undefined-only");
    for (const QString& each : lines)
        isFound = isFound || each.trimmed() == line;
    QVERIFY(isFound);
}

int main(int argc, char** argv) { return RunCoreTest<LibraryBoundary>(argc, argv); }
#include "LibraryBoundary.moc"
