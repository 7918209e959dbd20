#include "TTemporaryFolder.h"

#include "display/session/TDisplaySession.h"

#include <QQuickItem>
#include <QQuickView>
#include <QtTest>

#include <memory>

namespace {

const char* const Page = R"(
import QtQuick 2.15
import "qrc:/cabdisplay/controls"

Item {
    property alias title: tile.title

    FigureTile { id: tile; width: 184; height: 94; unit: "kph"; number: "10.0" }
}
)";

/// Narrower letters are hard to read from the seat.
const double Narrowest = 0.75;

/// What is drawn of an item, in the window.
QRectF PlaceOf(const QQuickItem& item) { return item.mapRectToScene(QRectF(0, 0, item.width(), item.height())); }

} // namespace

/// The title of a tile gets narrower beside its unit, down to a limit, and never reaches the unit.
class TileTitles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aLongTitleHasALimit_data();
    void aLongTitleHasALimit();

private:
    std::unique_ptr<TTemporaryFolder> m_Folder;
    std::unique_ptr<TDisplaySession> m_Session;
};

void TileTitles::initTestCase()
{
    qputenv("QT_QUICK_BACKEND", "software");
    Q_INIT_RESOURCE(cabdisplay);
    m_Folder = std::make_unique<TTemporaryFolder>();
    tagDisplayOptions options;
    options.dataFolder = m_Folder->Path();
    m_Session = std::make_unique<TDisplaySession>();
    QString error;
    QVERIFY2(m_Session->Start(options, &error), qPrintable(error));
}

void TileTitles::aLongTitleHasALimit_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("isNarrower");
    QTest::addColumn<bool>("isWhole");
    QTest::newRow("short") << "Speed" << false << true;
    QTest::newRow("long") << "Produktivit" << true << true;
    QTest::newRow("very long") << "Geschwindigkeit des Fahrzeugs" << true << false;
    QTest::newRow("longer than the window") << QString(300, QLatin1Char('W')) << true << false;
}

void TileTitles::aLongTitleHasALimit()
{
    QFETCH(const QString, title);
    QFETCH(const bool, isNarrower);
    QFETCH(const bool, isWhole);
    QQuickView view;
    view.resize(400, 200);
    QQmlComponent component(view.engine());
    component.setData(Page, QUrl(QLatin1String("qrc:/test.qml")));
    auto* const page = qobject_cast<QQuickItem*>(component.create());
    QVERIFY2(page, qPrintable(component.errorString()));
    view.setContent(QUrl(), nullptr, page);
    page->setProperty("title", title);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));

    const auto* const words = page->findChild<QQuickItem*>(QLatin1String("title"));
    const auto* const unit = page->findChild<QQuickItem*>(QLatin1String("unit"));
    QVERIFY(words && unit);
    const double scale = PlaceOf(*words).width() / words->width();
    QVERIFY2(scale > Narrowest - 0.001, qPrintable(QString::number(scale)));
    QCOMPARE(scale < 0.999, isNarrower);
    QCOMPARE(words->property("truncated").toBool(), !isWhole);
    QVERIFY(!unit->property("truncated").toBool());
    QVERIFY(PlaceOf(*words).right() < PlaceOf(*unit).left());
}

QTEST_MAIN(TileTitles)
#include "TileTitles.moc"
