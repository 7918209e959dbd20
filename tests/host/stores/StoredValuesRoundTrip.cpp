#include "StoreTestSupport.h"

#include <QColor>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

namespace {

// Kept in memory: a register may hold more digits than the variable that the component is compared with.
std::vector<decltype(QColor().redF())> Components(const QColor& color)
{
    return {color.alphaF(),         color.redF(),     color.greenF(),  color.blueF(),          color.hsvHueF(),
            color.hsvSaturationF(), color.valueF(),   color.hslHueF(), color.hslSaturationF(), color.lightnessF(),
            color.cyanF(),          color.magentaF(), color.yellowF(), color.blackF()};
}

// QVariant and QColor treat similar values as equal. Here every bit must be the same.
bool IsExactly(const QVariant& one, const QVariant& other)
{
    if (one.userType() != other.userType())
        return false;
    if (one.userType() == QMetaType::Double) {
        const double first = one.toDouble();
        const double second = other.toDouble();
        return std::isnan(first) ? std::isnan(second) : std::memcmp(&first, &second, sizeof first) == 0;
    }
    if (one.userType() == QMetaType::QColor) {
        const QColor first = one.value<QColor>();
        const QColor second = other.value<QColor>();
        return first.spec() == second.spec() && first.rgba64() == second.rgba64() &&
               Components(first) == Components(second);
    }
    return one == other;
}

QString Text(const char16_t* text) { return QString::fromUtf16(text); }

} // namespace

class StoredValuesRoundTrip : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void everyValueComesBackExactly_data();
    void everyValueComesBackExactly();
    void manyColorsComeBackExactly();
    void everyCharacterComesBack();
    void rowsCanBeReadByAPerson_data();
    void rowsCanBeReadByAPerson();

    void aTypeThatCannotBeStoredStaysInMemory();
    void aRowThatCannotBeDecodedIsSaidAndKept_data();
    void aRowThatCannotBeDecodedIsSaidAndKept();
    void aRowWrittenByHandIsRead();

private:
    std::unique_ptr<QTemporaryDir> m_Folder;
    QString m_Path;
};

void StoredValuesRoundTrip::init()
{
    m_Folder = std::make_unique<QTemporaryDir>();
    m_Path = m_Folder->filePath(QLatin1String("settings.db"));
}

void StoredValuesRoundTrip::everyValueComesBackExactly_data()
{
    QTest::addColumn<QVariant>("value");

    QTest::newRow("true") << QVariant(true);
    QTest::newRow("false") << QVariant(false);

    QTest::newRow("zero") << QVariant(0);
    QTest::newRow("least int") << QVariant(std::numeric_limits<int>::min());
    QTest::newRow("greatest int") << QVariant(std::numeric_limits<int>::max());
    QTest::newRow("least long long") << QVariant(std::numeric_limits<qlonglong>::min());
    QTest::newRow("greatest long long") << QVariant(std::numeric_limits<qlonglong>::max());
    QTest::newRow("small long long") << QVariant(qlonglong(1));

    using TLimits = std::numeric_limits<double>;
    QTest::newRow("whole double") << QVariant(2.0);
    QTest::newRow("negative zero") << QVariant(-0.0);
    QTest::newRow("a third") << QVariant(1.0 / 3);
    QTest::newRow("next to one") << QVariant(1.0 + TLimits::epsilon());
    QTest::newRow("greatest double") << QVariant(TLimits::max());
    QTest::newRow("least double") << QVariant(TLimits::lowest());
    QTest::newRow("smallest normal double") << QVariant(TLimits::min());
    QTest::newRow("smallest double") << QVariant(TLimits::denorm_min());
    QTest::newRow("not a number") << QVariant(TLimits::quiet_NaN());
    QTest::newRow("infinity") << QVariant(TLimits::infinity());
    QTest::newRow("negative infinity") << QVariant(-TLimits::infinity());

    QTest::newRow("empty text") << QVariant(QLatin1String(""));
    QTest::newRow("blanks") << QVariant(QLatin1String("  two, and after "));
    QTest::newRow("quotes") << QVariant(QLatin1String("O'Neill's \"north\"; DROP TABLE parameters; --"));
    QTest::newRow("path") << QVariant(QLatin1String("/media/internal/"));
    QTest::newRow("backslashes") << QVariant(QLatin1String("\\u0041 \\\\ \\ \\u"));
    QTest::newRow("lines and tabs") << QVariant(QLatin1String("one\r\n\ttwo"));
    QTest::newRow("NUL within") << QVariant(QString::fromLatin1("a\0b\0", 4));
    QTest::newRow("Greek, Russian, Japanese")
        << QVariant(Text(u"\u03a7\u03c9\u03c1\u03ac\u03c6\u03b9 \u041f\u043e\u043b\u0435 \u7551"));
    QTest::newRow("beyond the basic plane") << QVariant(Text(u"\U0001F69C"));
    QTest::newRow("half a surrogate pair") << QVariant(QString(QChar(0xd83d)) + QLatin1String("x"));
    QTest::newRow("surrogates the wrong way round") << QVariant(QString(QChar(0xde9c)) + QChar(0xd83d));
    QTest::newRow("byte order mark") << QVariant(QString(QChar(0xfeff)) + QLatin1String("x"));
    QTest::newRow("reversed byte order mark") << QVariant(QString(QChar(0xfffe)) + QLatin1String("x"));
    QTest::newRow("long text") << QVariant(QString(100000, QLatin1Char('x')));

    QTest::newRow("no bytes") << QVariant(QByteArray(""));
    QTest::newRow("bytes") << QVariant(QByteArray("\0\xff\x80'\"", 5));

    QTest::newRow("invalid colour") << QVariant(QColor());
    QTest::newRow("rgb") << QVariant(QColor(255, 128, 0));
    QTest::newRow("rgb, translucent") << QVariant(QColor(255, 128, 0, 77));
    QTest::newRow("rgb of 16 bits") << QVariant(QColor(QRgba64::fromRgba64(1, 32767, 65534, 12345)));
    QTest::newRow("hsv") << QVariant(QColor::fromHsvF(0.123456F, 0.654321F, 0.111111F, 0.222222F));
    QTest::newRow("hsv grey") << QVariant(QColor::fromHsv(-1, 0, 128));
    QTest::newRow("hsv full circle") << QVariant(QColor::fromHsvF(1, 1, 1));
    QTest::newRow("hsl") << QVariant(QColor::fromHslF(0.987654F, 0.333333F, 0.777777F, 0.5F));
    QTest::newRow("hsl grey") << QVariant(QColor::fromHsl(-1, 0, 128));
    QTest::newRow("cmyk") << QVariant(QColor::fromCmykF(0.1F, 0.2F, 0.3F, 0.4F, 0.5F));
    QTest::newRow("beyond rgb") << QVariant(QColor::fromRgbF(-0.5F, 1.5F, 0.25F, 0.5F));
    QTest::newRow("extended, within rgb") << QVariant(QColor::fromRgbF(0.1F, 0.00001F, 0.9F).toExtendedRgb());
}

void StoredValuesRoundTrip::everyValueComesBackExactly()
{
    QFETCH(QVariant, value);
    QVERIFY(OpenStore(m_Path)->SetParameter(PARAM_CLIENT, value, true));
    const auto store = OpenStore(m_Path);
    QVERIFY(store->HasParameter(PARAM_CLIENT));
    QVERIFY2(IsExactly(store->GetParameter(PARAM_CLIENT), value),
             qPrintable(store->GetParameter(PARAM_CLIENT).toString()));
}

void StoredValuesRoundTrip::manyColorsComeBackExactly()
{
    // The steps produce every kind of remainder of the 16-bit components and of the hundredths of a degree.
    QMap<int, QVariant> colors;
    for (int step = 0; step <= 65535; step += 97) {
        const auto part = [step](int factor) { return static_cast<float>(step * factor % 65536) / 65535.0F; };
        const auto bits = [step](int factor) { return static_cast<quint16>(step * factor % 65536); };
        const int id = step * 10;
        colors[id] = QColor(QRgba64::fromRgba64(bits(1), bits(3), bits(7), bits(11)));
        colors[id + 1] = QColor::fromHsvF(part(1), part(3), part(7), part(11));
        colors[id + 2] = QColor::fromHslF(part(1), part(3), part(7), part(11));
        colors[id + 3] = QColor::fromCmykF(part(1), part(3), part(7), part(11), part(13));
        colors[id + 4] = QColor::fromRgbF(part(1) * 3 - 1, part(3) + 1.5F, part(7) * 100, part(11));
    }
    {
        const auto store = OpenStore(m_Path);
        store->HoldPersistence();
        for (auto color = colors.constBegin(); color != colors.constEnd(); ++color)
            store->SetParameter(Param(color.key()), color.value(), true);
        QVERIFY(store->ReleasePersistence());
    }
    const QMap<int, QVariant> stored = StoredValues(m_Path);
    QCOMPARE(stored.keys(), colors.keys());
    for (auto color = colors.constBegin(); color != colors.constEnd(); ++color)
        QVERIFY2(IsExactly(stored[color.key()], color.value()), qPrintable(QString::number(color.key())));
}

void StoredValuesRoundTrip::everyCharacterComesBack()
{
    const int charactersPerText = 0x1000;
    QMap<int, QVariant> texts;
    for (int code = 0; code <= 0xffff; ++code) {
        QString text = texts[code / charactersPerText].toString();
        text += QChar(static_cast<ushort>(code));
        texts[code / charactersPerText] = text;
    }
    {
        const auto store = OpenStore(m_Path);
        for (auto text = texts.constBegin(); text != texts.constEnd(); ++text)
            QVERIFY(store->SetParameter(Param(text.key()), text.value(), true));
    }
    QCOMPARE(StoredValues(m_Path), texts);
}

void StoredValuesRoundTrip::rowsCanBeReadByAPerson_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("row");
    QTest::newRow("bool") << QVariant(true) << QString::fromLatin1("bool|true");
    QTest::newRow("int") << QVariant(-7) << QString::fromLatin1("int|-7");
    QTest::newRow("long long") << QVariant(qlonglong(7)) << QString::fromLatin1("longlong|7");
    QTest::newRow("double") << QVariant(0.1) << QString::fromLatin1("double|0.1");
    QTest::newRow("text") << QVariant(QLatin1String("it's")) << QString::fromLatin1("string|it's");
    QTest::newRow("control characters") << QVariant(QLatin1String("a\nb\\"))
                                        << QString::fromLatin1("string|a\\u000ab\\\\");
    QTest::newRow("colour") << QVariant(QColor(255, 128, 0)) << QString::fromLatin1("color|rgb 65535 32896 0 65535");
    QTest::newRow("bytes") << QVariant(QByteArray("abc")) << QString::fromLatin1("bytes|YWJj");
}

void StoredValuesRoundTrip::rowsCanBeReadByAPerson()
{
    QFETCH(QVariant, value);
    QFETCH(QString, row);
    OpenStore(m_Path)->SetParameter(PARAM_CLIENT, value, true);
    QCOMPARE(RunSql(m_Path, QLatin1String("SELECT type || '|' || value FROM parameters WHERE id = 8932")).toString(),
             row);
}

void StoredValuesRoundTrip::aTypeThatCannotBeStoredStaysInMemory()
{
    const auto store = OpenStore(m_Path);
    QVERIFY(store->SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true));
    TStandardErrorCapture standardError;
    const QVariant list = QStringList(QLatin1String("Smith"));
    QVERIFY(!store->SetParameter(PARAM_CLIENT, list, true));
    QCOMPARE(store->GetParameter(PARAM_CLIENT), list);
    QCOMPARE(standardError.Lines(), QStringList(QLatin1String("parameter 8932 is kept in memory only: a value of type "
                                                              "QStringList cannot be stored")));
    QVERIFY(store->SetParameter(PARAM_FARM, list, false));
    QVERIFY(store->SetParameter(PARAM_METRIC, true, true));
    QCOMPARE(standardError.Lines().size(), 1);
}

void StoredValuesRoundTrip::aRowThatCannotBeDecodedIsSaidAndKept_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* type, const char* text) {
        QTest::newRow(name) << QString::fromLatin1(type) << QString::fromLatin1(text);
    };
    row("unknown type", "date", "2024-03-05");
    row("no bool", "bool", "yes");
    row("no int", "int", "12a");
    row("int out of range", "int", "2147483648");
    row("no double", "double", "1,5");
    row("half an escape", "string", "a\\u00");
    row("unknown escape", "string", "a\\n");
    row("an escape of no number", "string", "a\\u00x0");
    row("unknown kind of colour", "color", "pantone 1 2 3");
    row("colour short of a component", "color", "rgb 1 2 3");
    row("colour component out of range", "color", "rgb 1 2 3 65536");
    row("hue out of range", "color", "hsv 36001 0 0 0");
    row("hue below none", "color", "hsv -2 0 0 0");
    row("broken hue", "color", "hsv 1.5 0 0 0");
    row("component below zero", "color", "rgb 1 2 3 -1");
    row("component that is no number", "color", "rgb 1 x 3 4");
    row("broken component", "color", "rgb 1 2.5 3 4");
    row("nothing", "color", "");
    row("no base64", "bytes", "a*b=");
}

void StoredValuesRoundTrip::aRowThatCannotBeDecodedIsSaidAndKept()
{
    QFETCH(QString, type);
    QFETCH(QString, text);
    OpenStore(m_Path)->SetParameter(PARAM_AREA_UNIT, 0, true);
    RunSql(m_Path,
           QString::fromLatin1("INSERT INTO parameters (id, type, value) VALUES (8932, '%1', '%2')").arg(type, text));
    const QString select = QLatin1String("SELECT value FROM parameters WHERE id = 8932");

    for (int opening = 0; opening < 2; ++opening) {
        TStandardErrorCapture standardError;
        const auto store = OpenStore(m_Path);
        QCOMPARE(standardError.Lines(),
                 QStringList(QString::fromLatin1("parameter 8932 cannot be read: %1 \"%2\"").arg(type, text)));
        QVERIFY(!store->HasParameter(PARAM_CLIENT));
        QCOMPARE(store->GetParameter(PARAM_AREA_UNIT), QVariant(opening));
        QVERIFY(store->SetParameter(PARAM_AREA_UNIT, opening + 1, true));
        QCOMPARE(RunSql(m_Path, select).toString(), text);
    }
    OpenStore(m_Path)->SetParameter(PARAM_CLIENT, QLatin1String("Smith"), true);
    QCOMPARE(RunSql(m_Path, select).toString(), QLatin1String("Smith"));
}

void StoredValuesRoundTrip::aRowWrittenByHandIsRead()
{
    OpenStore(m_Path);
    RunSql(m_Path, QLatin1String("INSERT INTO parameters (id, type, value) VALUES (8953, 'bool', 'true')"));
    QCOMPARE(StoredValues(m_Path), (QMap<int, QVariant>{{PARAM_METRIC, true}}));
}

QTEST_GUILESS_MAIN(StoredValuesRoundTrip)
#include "StoredValuesRoundTrip.moc"
