#include "diagnostics/UserLogEntries.h"

#include "logs/TUserDiagnosticLogProxy.h"
#include "logs/TUserLogAccessor.h"
#include "stores/TMemoryStore.h"
#include "terminal/TTerminal.h"

#include <QtTest>

#include <algorithm>
#include <functional>

namespace {

using TAddEntry = std::function<bool(const QString& text1, const QString& text2)>;

struct tagLineBreak
{
    const char* name;
    ushort code;
};

/// What Unicode and the programs that follow it take for the end of a line.
constexpr tagLineBreak LineBreaks[] = {
    {"line feed", 0x0A},        {"vertical tab", 0x0B},          {"form feed", 0x0C},        {"carriage return", 0x0D},
    {"file separator", 0x1C},   {"group separator", 0x1D},       {"record separator", 0x1E}, {"next line", 0x85},
    {"line separator", 0x2028}, {"paragraph separator", 0x2029},
};

const int LatinCharacters = 0x100;

QByteArray Contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

Q_DECLARE_METATYPE(TAddEntry)

/// Whoever types a text cannot write a line of the user log with it.
class UserLogLineBreaks : public QObject
{
    Q_OBJECT

private slots:
    void lineBreaksBecomeBlanks_data();
    void lineBreaksBecomeBlanks();
    void allOtherCharactersStay();
    void anEntryIsOneLine_data();
    void anEntryIsOneLine();
};

void UserLogLineBreaks::lineBreaksBecomeBlanks_data()
{
    QTest::addColumn<ushort>("code");
    for (const tagLineBreak& lineBreak : LineBreaks)
        QTest::newRow(lineBreak.name) << lineBreak.code;
}

void UserLogLineBreaks::lineBreaksBecomeBlanks()
{
    QFETCH(ushort, code);
    const QChar character(code);
    QCOMPARE(WithoutLineBreaks(character), QString::fromLatin1(" "));
    QCOMPARE(WithoutLineBreaks(QLatin1Char('a') + QString(3, character) + QLatin1Char('b')),
             QString::fromLatin1("a   b"));
}

void UserLogLineBreaks::allOtherCharactersStay()
{
    const QString texts[] = {QString(), QString::fromLatin1("a, b\t\"c\""),
                             QString::fromUtf8("Müller 漢字 \U0001F69C")};
    for (const QString& text : texts)
        QCOMPARE(WithoutLineBreaks(text), text);
}

void UserLogLineBreaks::anEntryIsOneLine_data()
{
    QTest::addColumn<TAddEntry>("add");
    QTest::newRow("function") << TAddEntry([](const QString& text1, const QString& text2) {
        return AddUserLogEntry(DIAG_COMPONENT_IMPLEMENT, DIAG_TYPE_DTC, 512, text1, text2);
    });
    QTest::newRow("the terminal's accessor") << TAddEntry([](const QString& text1, const QString& text2) {
        return UserLogAccessorPtr->AddEntry(DIAG_COMPONENT_IMPLEMENT, DIAG_TYPE_DTC, 512, text1, text2);
    });
}

void UserLogLineBreaks::anEntryIsOneLine()
{
    QFETCH(TAddEntry, add);
    const QTemporaryDir folder;
    TMemoryStore store;
    TTerminal terminal(store);
    QString error;
    QVERIFY2(terminal.Start(folder.path(), &error), qPrintable(error));
    const QString log = folder.filePath(QLatin1String("user.log"));
    TUserDiagnosticLogProxy().Close();
    QVERIFY(TUserDiagnosticLogProxy().Restore(log, 1, 0));

    const QString forged = QLatin1String("2024.05.01-13:07:09:042,Console,Event,1,forged,");
    QString breaks;
    for (ushort code = 0; code < LatinCharacters; ++code)
        breaks += QChar(code) + forged;
    breaks += QChar(0x2028) + forged + QChar(0x2029) + forged;
    QVERIFY(add(breaks, breaks));
    terminal.Stop();

    const QByteArray written = Contents(log);
    QVERIFY(written.endsWith("\r\n"));
    const QString text = QString::fromLatin1(written.left(written.size() - 2));
    QVERIFY(text.contains(QLatin1String("Implement,DTC,512,")));
    for (const tagLineBreak& lineBreak : LineBreaks)
        QVERIFY2(!text.contains(QChar(lineBreak.code)), lineBreak.name);
}

QTEST_GUILESS_MAIN(UserLogLineBreaks)
#include "UserLogLineBreaks.moc"
