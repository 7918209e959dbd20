#include "display/icons/IconTable.h"
#include "display/icons/TIconProvider.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QtTest>

/// The icons: each one draws, in its colour, within its grid, and those that the pages name exist.
class IconPictures : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Q_INIT_RESOURCE(cabdisplay); }
    void namesAreUnique();
    void eachDrawsInItsColor_data();
    void eachDrawsInItsColor();
    void anUnknownNameDrawsNothing();
    void theColorMayBeTranslucent();
    void pagesNameIconsThatExist();
};

void IconPictures::namesAreUnique()
{
    QSet<QString> names;
    for (const tagIcon& icon : Icons)
        names.insert(QLatin1String(icon.name));
    QCOMPARE(names.size(), static_cast<int>(Icons.size()));
}

void IconPictures::eachDrawsInItsColor_data()
{
    QTest::addColumn<QString>("name");
    for (const tagIcon& icon : Icons)
        QTest::newRow(icon.name) << QString::fromLatin1(icon.name);
}

void IconPictures::eachDrawsInItsColor()
{
    QFETCH(const QString, name);
    const int pixels = 96;
    QSize size;
    const QImage image = TIconProvider().requestImage(name + QLatin1String("/#20a0e0"), &size, QSize(pixels, pixels));
    QCOMPARE(size, QSize(pixels, pixels));
    int inked = 0;
    for (int y = 0; y < pixels; ++y) {
        for (int x = 0; x < pixels; ++x) {
            const QColor color = image.pixelColor(x, y);
            if (color.alpha() < 255)
                continue;
            ++inked;
            QCOMPARE(color.name(), QLatin1String("#20a0e0"));
            // A stroke that is cut off at the edge of the grid would look thinner than the others.
            QVERIFY2(x > 0 && y > 0 && x < pixels - 1 && y < pixels - 1, qPrintable(QString::number(x)));
        }
    }
    QVERIFY2(inked > 200, qPrintable(QString::number(inked)));
}

void IconPictures::anUnknownNameDrawsNothing()
{
    QSize size;
    QVERIFY(TIconProvider().requestImage(QLatin1String("unknown/#000000"), &size, QSize(32, 32)).isNull());
    QVERIFY(RenderIcon(QString(), Qt::black, 32).isNull());
}

void IconPictures::theColorMayBeTranslucent()
{
    const QImage image = RenderIcon(QLatin1String("minus"), QColor(255, 0, 0, 128), 48);
    const QColor middle = image.pixelColor(24, 24);
    QVERIFY2(qAbs(middle.alpha() - 128) <= 2, qPrintable(QString::number(middle.alpha())));
}

void IconPictures::pagesNameIconsThatExist()
{
    // As a value of a property or of a row: icon: "plus", name: "sun" within an Icon, ? "moon" : "sun".
    const QRegularExpression line(QLatin1String("^\\s*icon: .*$|icon: \"[^\"]*\"|Icon \\{ name: \"[^\"]*\""),
                                  QRegularExpression::MultilineOption);
    const QRegularExpression word(QLatin1String("\"([a-z]+)\""));
    int found = 0;
    for (QDirIterator files(QLatin1String(":/cabdisplay"), QDirIterator::Subdirectories); files.hasNext();) {
        QFile file(files.next());
        if (!file.fileName().endsWith(QLatin1String(".qml")))
            continue;
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        for (auto lines = line.globalMatch(text); lines.hasNext();) {
            const QString named = lines.next().captured(0);
            for (auto words = word.globalMatch(named); words.hasNext();) {
                const QString name = words.next().captured(1);
                QVERIFY2(!RenderIcon(name, Qt::black, 8).isNull(),
                         qPrintable(file.fileName() + QLatin1String(": ") + name));
                ++found;
            }
        }
    }
    QVERIFY(found > 20);
}

QTEST_MAIN(IconPictures)
#include "IconPictures.moc"
