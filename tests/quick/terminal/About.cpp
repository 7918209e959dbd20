#include "TQuickTerminal.h"

#include <QAbstractItemModel>

/// What the display is made of, in QML.
class About : public QObject
{
    Q_OBJECT

private slots:
    void theVersionsAreThoseInUse();
    void eachLibraryHasALicenceAndAVersion();
    void aProgramAddsItsOwn();

private:
    static QStringList Row(const TQuickTerminal& terminal, int row)
    {
        const auto* const model = qobject_cast<QAbstractItemModel*>(terminal.Named("About"));
        QStringList texts;
        for (const char* const role : {"name", "version", "licence", "text"})
            texts.append(model->index(row, 0).data(model->roleNames().key(role)).toString());
        return texts;
    }

    static QStringList RowOf(const TQuickTerminal& terminal, const char* name)
    {
        for (int row = 0; row < terminal.Get("About.count").toInt(); ++row) {
            if (Row(terminal, row).first() == QLatin1String(name))
                return Row(terminal, row);
        }
        return QStringList();
    }
};

void About::theVersionsAreThoseInUse()
{
    const TQuickTerminal terminal;
    QCOMPARE(Row(terminal, 0).at(1), QLatin1String("2.1.4.07"));
    QCOMPARE(RowOf(terminal, "Qt").at(1), QLatin1String(qVersion()));
    QVERIFY(RowOf(terminal, "SQLite").at(1).startsWith(QLatin1String("3.")));
    QCOMPARE(RowOf(terminal, "cabsettings").at(2), QLatin1String("MIT"));
}

void About::eachLibraryHasALicenceAndAVersion()
{
    const TQuickTerminal terminal;
    QVERIFY(terminal.Get("About.count").toInt() >= 8);
    for (int row = 1; row < terminal.Get("About.count").toInt(); ++row) {
        QStringList texts = Row(terminal, row);
        if (texts.first() == QLatin1String("Shapelib")) // which does not tell its version
            texts[1] = QLatin1String("1.0");
        QVERIFY2(!texts.contains(QString()), qPrintable(texts.join(QLatin1Char('|'))));
        QVERIFY2(texts.at(1).contains(QRegularExpression(QLatin1String("^[0-9]+\\.[0-9]"))), qPrintable(texts.at(1)));
    }
}

void About::aProgramAddsItsOwn()
{
    const TQuickTerminal terminal;
    const int count = terminal.Get("About.count").toInt();
    CabQuick::AddToAbout(QLatin1String("B612"), QString(), QLatin1String("OFL-1.1"), QLatin1String("The font"));
    QCOMPARE(terminal.Get("About.count").toInt(), count + 1);
    QCOMPARE(Row(terminal, count),
             (QStringList{QLatin1String("B612"), QString(), QLatin1String("OFL-1.1"), QLatin1String("The font")}));
}

QTEST_GUILESS_MAIN(About)
#include "About.moc"
