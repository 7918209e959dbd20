#include "TTemporaryFolder.h"

#include "blocks/DataBlock.h"
#include "boundaries/Boundary.h"
#include "guidance/FlagPoints.h"
#include "guidance/GuidanceLine.h"
#include "machine/Implement.h"

#include <QtTest>

#include <functional>

namespace {

const tagGuidanceLine Line = {{52, 10}, {52.003, 10.001}};
const std::vector<tagGeoPoint> Flags = {{52, 10}, {-52.5, -10.25}, {90, 180}};
const tagBoundary Border = {{{52, 10}, {52, 10.01}, {52.01, 10}},
                            {{{52.001, 10.001}, {52.001, 10.002}, {52.002, 10.001}}}};
const tagImplement Boom = {24, -1.5, 12};

bool IsSame(const tagGeoPoint& one, const tagGeoPoint& other)
{
    return one.latitude == other.latitude && one.longitude == other.longitude;
}

/// One kind of file: writes the values above, and tells whether a file has just them.
struct tagKind
{
    const char* name;
    std::function<bool(const QString& path, QString* error)> write;
    std::function<bool(const QString& path, QString* error)> read;
};

const tagKind Kinds[] = {
    {"guidance line", [](const QString& path, QString* error) { return WriteGuidanceLine(path, Line, error); },
     [](const QString& path, QString* error) {
         const auto line = ReadGuidanceLine(path, error);
         return line && IsSame(line->a, Line.a) && IsSame(line->b, Line.b);
     }},
    {"flag points", [](const QString& path, QString* error) { return WriteFlagPoints(path, Flags, error); },
     [](const QString& path, QString* error) {
         const auto flags = ReadFlagPoints(path, error);
         return flags && flags->size() == Flags.size() &&
                std::equal(flags->begin(), flags->end(), Flags.begin(), IsSame);
     }},
    {"boundary", [](const QString& path, QString* error) { return WriteBoundary(path, Border, error); },
     [](const QString& path, QString* error) {
         const auto read = ReadBoundary(path, error);
         return read && read->external.size() == Border.external.size() && read->internals.size() == 1 &&
                std::equal(read->internals[0].begin(), read->internals[0].end(), Border.internals[0].begin(),
                           Border.internals[0].end(), IsSame);
     }},
    {"implement", [](const QString& path, QString* error) { return WriteImplement(path, Boom, error); },
     [](const QString& path, QString* error) {
         const auto read = ReadImplement(path, error);
         return read && read->width == Boom.width && read->behind == Boom.behind && read->sections == Boom.sections;
     }},
};

} // namespace

class WorkFiles : public QObject
{
    Q_OBJECT

private slots:
    void valuesComeBack_data() { AddKinds(); }
    void valuesComeBack();
    void noFileIsNoError_data() { AddKinds(); }
    void noFileIsNoError();
    void cutFilesAreRefused_data() { AddKinds(); }
    void cutFilesAreRefused();
    void changedBytesAreNoticed_data() { AddKinds(); }
    void changedBytesAreNoticed();
    void aWholeFileOfOtherContentIsRefused_data() { AddKinds(); }
    void aWholeFileOfOtherContentIsRefused();
    void filesOfOtherKindsAreRefused_data() { AddKinds(); }
    void filesOfOtherKindsAreRefused();
    void newerFilesAreNotReplaced_data() { AddKinds(); }
    void newerFilesAreNotReplaced();
    void aFolderThatCannotBeMadeIsSaid_data() { AddKinds(); }
    void aFolderThatCannotBeMadeIsSaid();
    void pointsThatAreNoLineAreRefused();

private:
    static void AddKinds();
    static const tagKind& Kind();
};

void WorkFiles::AddKinds()
{
    QTest::addColumn<int>("kind");
    for (int kind = 0; kind < static_cast<int>(std::size(Kinds)); ++kind)
        QTest::newRow(Kinds[kind].name) << kind;
}

const tagKind& WorkFiles::Kind()
{
    const auto kind = *static_cast<int*>(QTest::qData("kind", QMetaType::Int));
    return Kinds[kind];
}

void WorkFiles::valuesComeBack()
{
    const TTemporaryFolder folder;
    const QString path = folder.Path(QLatin1String("a folder/\u00fcber.ini"));
    QString error;
    for (int round = 0; round < 2; ++round) { // makes the file, and replaces it
        QVERIFY2(Kind().write(path, &error), qPrintable(error));
        QVERIFY2(Kind().read(path, &error), qPrintable(error));
        QCOMPARE(error, QString());
    }
    QCOMPARE(folder.Entries().size(), 2); // nothing else is left
}

void WorkFiles::noFileIsNoError()
{
    const TTemporaryFolder folder;
    QString error = QLatin1String("old");
    QVERIFY(!Kind().read(folder.Path(QLatin1String("none.ini")), &error));
    QCOMPARE(error, QString());
}

void WorkFiles::cutFilesAreRefused()
{
    const TTemporaryFolder folder;
    const QLatin1String name("file.ini");
    QString error;
    QVERIFY(Kind().write(folder.Path(name), &error));
    const QByteArray whole = folder.Content(name);
    for (int size = 0; size < whole.size(); ++size) {
        folder.MakeFile(name, whole.left(size));
        QVERIFY(!Kind().read(folder.Path(name), &error));
        QVERIFY2(error.startsWith(folder.Path(name)), qPrintable(error));
    }
    folder.MakeFile(name, whole + 'x');
    QVERIFY(!Kind().read(folder.Path(name), &error));
    QVERIFY(!error.isEmpty());
}

void WorkFiles::changedBytesAreNoticed()
{
    const TTemporaryFolder folder;
    const QLatin1String name("file.ini");
    QString error;
    QVERIFY(Kind().write(folder.Path(name), &error));
    const QByteArray whole = folder.Content(name);
    for (int at = 0; at < whole.size(); ++at) {
        QByteArray changed = whole;
        changed[at] = static_cast<char>(changed.at(at) ^ 0x41);
        folder.MakeFile(name, changed);
        QVERIFY(!Kind().read(folder.Path(name), &error));
        QVERIFY2(error.startsWith(folder.Path(name)), qPrintable(error));
    }
}

/// What another program has written: the checksum is right.
void WorkFiles::aWholeFileOfOtherContentIsRefused()
{
    const TTemporaryFolder folder;
    const QLatin1String name("file.ini");
    QString error;
    QVERIFY(Kind().write(folder.Path(name), &error));
    int end = 0;
    DataBlock::tagBlock block;
    QVERIFY(DataBlock::Take(folder.Content(name), &end, &block));
    const int content = 4 + 2 * static_cast<int>(qstrlen(Kind().name)); // behind the length and the text of the kind
    const QByteArray noNumber(sizeof(double), '\xFF');
    QList<QByteArray> others = {
        block.payload + 'x', QByteArray(block.payload).replace(content, noNumber.size(), noNumber),
        QByteArray(block.payload).replace(block.payload.size() - noNumber.size(), noNumber.size(), noNumber)};
    for (int size = 0; size < block.payload.size(); ++size)
        others.append(block.payload.left(size));
    for (const QByteArray& other : others) {
        folder.MakeFile(name, DataBlock::Framed(block.version, other));
        QVERIFY2(!Kind().read(folder.Path(name), &error), other.toHex().constData());
        QVERIFY2(error.startsWith(folder.Path(name)), other.toHex().constData());
    }
}

void WorkFiles::filesOfOtherKindsAreRefused()
{
    const TTemporaryFolder folder;
    const QString path = folder.Path(QLatin1String("file.ini"));
    QString error;
    for (const tagKind& other : Kinds) {
        QVERIFY(other.write(path, &error));
        QCOMPARE(Kind().read(path, &error), &other == &Kind());
        const QString expected =
            path + QLatin1String(" is not a file of the kind \"") + QLatin1String(Kind().name) + QLatin1Char('"');
        QCOMPARE(error, &other == &Kind() ? QString() : expected);
    }
}

void WorkFiles::newerFilesAreNotReplaced()
{
    const TTemporaryFolder folder;
    const QLatin1String name("file.ini");
    const QString path = folder.Path(name);
    QString error;
    QVERIFY(Kind().write(path, &error));
    QByteArray newer = folder.Content(name);
    newer[7] = 2; // the last byte of the version
    folder.MakeFile(name, newer);
    QVERIFY(!Kind().read(path, &error));
    QVERIFY2(error.contains(QLatin1String("version 2")), qPrintable(error));
    QVERIFY(!Kind().write(path, &error));
    QVERIFY2(error.contains(QLatin1String("version 2")), qPrintable(error));
    QCOMPARE(folder.Content(name), newer);
}

void WorkFiles::aFolderThatCannotBeMadeIsSaid()
{
    const TTemporaryFolder folder;
    folder.MakeFile(QLatin1String("file"));
    QVERIFY(QFile::link(folder.Path(QLatin1String("nothing")), folder.Path(QLatin1String("link"))));
    for (const char* const name : {"file", "link"}) {
        const QString made = folder.Path(QLatin1String(name));
        const QString expected = QString::fromLatin1("cannot make the folder %1: Not a directory").arg(made);
        for (const char* const inside : {"/x.ini", "/inside/x.ini"}) {
            QString error;
            QVERIFY(!Kind().write(made + QLatin1String(inside), &error));
            QCOMPARE(error, expected);
        }
    }
}

void WorkFiles::pointsThatAreNoLineAreRefused()
{
    const TTemporaryFolder folder;
    const QString path = folder.Path(QLatin1String("line.ini"));
    QString error;
    const tagGuidanceLine lines[] = {
        {{52, 10}, {52, 10}}, {{52, 10}, {52.000001, 10}}, {{52, 10}, {54, 10}}, {{52, 10}, {qQNaN(), 10}}};
    for (const tagGuidanceLine& line : lines) {
        QVERIFY(!WriteGuidanceLine(path, line, &error));
        QCOMPARE(error, QString::fromLatin1("invalid guidance line; expected A and B from 1 m to 100000 m apart"));
    }
    QVERIFY(!QFile::exists(path));
}

QTEST_GUILESS_MAIN(WorkFiles)
#include "WorkFiles.moc"
