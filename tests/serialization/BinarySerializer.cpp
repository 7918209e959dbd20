#include "CoreTest.h"

#include "serialization/TBinarySerializer.h"

#include <QBuffer>
#include <QDataStream>

#include <cstring>
#include <limits>
#include <type_traits>
#include <utility>

Q_DECLARE_METATYPE(QVector<int>)

namespace {

const char* const Marker = "feedbaac";

QByteArray Bytes(const char* hex) { return QByteArray::fromHex(hex); }

QString Text(const char* utf8) { return QString::fromUtf8(utf8); }

/// What @p write leaves in a stream.
template <typename Write>
QByteArray Written(Write write)
{
    QByteArray bytes;
    QBuffer device(&bytes);
    device.open(QIODevice::WriteOnly);
    TBinarySerializer serializer(&device);
    write(serializer);
    return bytes;
}

/// A serializer over bytes that it only reads.
class TReader
{
public:
    explicit TReader(const QByteArray& bytes) : m_Bytes(bytes), m_Device(&m_Bytes), m_Serializer(&m_Device)
    {
        m_Device.open(QIODevice::ReadOnly);
    }

    TBinarySerializer& Serializer() { return m_Serializer; }
    qint64 Consumed() const { return m_Device.pos(); }

private:
    QByteArray m_Bytes;
    QBuffer m_Device;
    TBinarySerializer m_Serializer;
};

/// Equal to the last bit, and as null.
template <typename T>
bool AreTheSame(const T& left, const T& right)
{
    return left == right;
}

template <typename T>
bool AreTheSameBits(T left, T right)
{
    return std::memcmp(&left, &right, sizeof left) == 0;
}

bool AreTheSame(float left, float right) { return AreTheSameBits(left, right); }
bool AreTheSame(double left, double right) { return AreTheSameBits(left, right); }
bool AreTheSame(const QString& left, const QString& right) { return left == right && left.isNull() == right.isNull(); }

bool AreTheSame(const QByteArray& left, const QByteArray& right)
{
    return left == right && left.isNull() == right.isNull();
}

template <typename T>
void AddColumns()
{
    QTest::addColumn<T>("value");
    QTest::addColumn<QByteArray>("bytes");
}

/// The value has these bytes, and they give it back.
template <typename T>
void CheckBothWays()
{
    QFETCH(T, value);
    QFETCH(QByteArray, bytes);

    QCOMPARE(Written([&](TSerializer& serializer) { serializer << value; }).toHex(), bytes.toHex());

    TReader reader(bytes);
    T back = T();
    TSerializer& returned = reader.Serializer() >> back;
    QVERIFY(&returned == &reader.Serializer());
    QVERIFY(AreTheSame(back, value));
    QVERIFY(reader.Serializer().atEnd());
}

template <typename T, typename = void>
struct TCanWrite : std::false_type
{};

template <typename T>
struct TCanWrite<T, decltype(void(std::declval<TBinarySerializer&>() << std::declval<T>()))> : std::true_type
{};

/// Every eighth number goes somewhere else.
QVector<int> ManyNumbers(int count)
{
    QVector<int> numbers(count);
    for (int i = 0; i < count; ++i)
        numbers[i] = (i % 8 == 0) ? std::numeric_limits<int>::min() + i : i * 3;
    return numbers;
}

} // namespace

/// The bytes of a host's own files: files written by one build are read by another.
class BinarySerializer : public QObject
{
    Q_OBJECT

private slots:
    void unsignedIntegers_data();
    void unsignedIntegers() { CheckBothWays<unsigned int>(); }
    void integers_data();
    void integers() { CheckBothWays<int>(); }
    void floats_data();
    void floats() { CheckBothWays<float>(); }
    void doubles_data();
    void doubles() { CheckBothWays<double>(); }
    void bools_data();
    void bools() { CheckBothWays<bool>(); }
    void strings_data();
    void strings() { CheckBothWays<QString>(); }
    void lists_data();
    void lists() { CheckBothWays<QVector<int>>(); }
    void byteArrays_data();
    void byteArrays() { CheckBothWays<QByteArray>(); }

    void largeValues_data();
    void largeValues();
    void anyByteButZeroIsTrue();
    void pointersAreNotTakenForBools();
    void valuesFollowOneAnother();

    void aBlockBeginsWithItsHeader_data();
    void aBlockBeginsWithItsHeader();
    void headersAreRead_data();
    void headersAreRead();
    void blocksFollowOneAnother();
    void headersGoThroughTheOperators();

    void shortStreams_data();
    void shortStreams();
    void damagedLists_data();
    void damagedLists();
    void aListReplacesWhatWasThere();
    void anyBytesAreSurvived();
    void noDeviceIsAnEmptyStream();
};

void BinarySerializer::unsignedIntegers_data()
{
    AddColumns<unsigned int>();
    QTest::newRow("zero") << 0u << Bytes("00000000");
    QTest::newRow("one") << 1u << Bytes("00000001");
    QTest::newRow("order") << 0x01020304u << Bytes("01020304");
    QTest::newRow("above int") << 0x80000000u << Bytes("80000000");
    QTest::newRow("greatest") << 0xFFFFFFFFu << Bytes("ffffffff");
}

void BinarySerializer::integers_data()
{
    AddColumns<int>();
    QTest::newRow("zero") << 0 << Bytes("00000000");
    QTest::newRow("minus one") << -1 << Bytes("ffffffff");
    QTest::newRow("order") << 0x01020304 << Bytes("01020304");
    QTest::newRow("greatest") << std::numeric_limits<int>::max() << Bytes("7fffffff");
    QTest::newRow("least") << std::numeric_limits<int>::min() << Bytes("80000000");
}

void BinarySerializer::floats_data()
{
    AddColumns<float>();
    const float infinity = std::numeric_limits<float>::infinity();
    QTest::newRow("zero") << 0.0f << Bytes("0000000000000000");
    QTest::newRow("minus zero") << -0.0f << Bytes("8000000000000000");
    QTest::newRow("one") << 1.0f << Bytes("3ff0000000000000");
    QTest::newRow("a tenth, as the float it is") << 0.1f << Bytes("3fb99999a0000000");
    QTest::newRow("greatest") << std::numeric_limits<float>::max() << Bytes("47efffffe0000000");
    QTest::newRow("least normal") << std::numeric_limits<float>::min() << Bytes("3810000000000000");
    QTest::newRow("least of all") << std::numeric_limits<float>::denorm_min() << Bytes("36a0000000000000");
    QTest::newRow("infinity") << infinity << Bytes("7ff0000000000000");
    QTest::newRow("minus infinity") << -infinity << Bytes("fff0000000000000");
    QTest::newRow("not a number") << std::numeric_limits<float>::quiet_NaN() << Bytes("7ff8000000000000");
}

void BinarySerializer::doubles_data()
{
    AddColumns<double>();
    const double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("zero") << 0.0 << Bytes("0000000000000000");
    QTest::newRow("minus zero") << -0.0 << Bytes("8000000000000000");
    QTest::newRow("one") << 1.0 << Bytes("3ff0000000000000");
    QTest::newRow("a tenth") << 0.1 << Bytes("3fb999999999999a");
    QTest::newRow("greatest") << std::numeric_limits<double>::max() << Bytes("7fefffffffffffff");
    QTest::newRow("least normal") << std::numeric_limits<double>::min() << Bytes("0010000000000000");
    QTest::newRow("least of all") << std::numeric_limits<double>::denorm_min() << Bytes("0000000000000001");
    QTest::newRow("infinity") << infinity << Bytes("7ff0000000000000");
    QTest::newRow("minus infinity") << -infinity << Bytes("fff0000000000000");
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << Bytes("7ff8000000000000");
}

void BinarySerializer::bools_data()
{
    AddColumns<bool>();
    QTest::newRow("false") << false << Bytes("00");
    QTest::newRow("true") << true << Bytes("01");
}

void BinarySerializer::strings_data()
{
    AddColumns<QString>();
    QTest::newRow("null") << QString() << Bytes("ffffffff");
    QTest::newRow("empty") << QString::fromLatin1("") << Bytes("00000000");
    QTest::newRow("Latin") << Text("F1")
                           << Bytes("00000004"
                                    "00460031");
    QTest::newRow("accents") << Text("Höfe")
                             << Bytes("00000008"
                                      "004800f600660065");
    QTest::newRow("Cyrillic") << Text("поле")
                              << Bytes("00000008"
                                       "043f043e043b0435");
    QTest::newRow("Japanese") << Text("畑")
                              << Bytes("00000002"
                                       "7551");
    QTest::newRow("beyond 16 bits") << Text("🚜")
                                    << Bytes("00000004"
                                             "d83dde9c");
    QTest::newRow("a zero inside") << QString(QChar(0)) + QLatin1Char('a')
                                   << Bytes("00000004"
                                            "00000061");
}

void BinarySerializer::lists_data()
{
    AddColumns<QVector<int>>();
    QTest::newRow("empty") << QVector<int>() << Bytes("00000000");
    QTest::newRow("one") << QVector<int>(1, 7) << Bytes("0000000100000007");
    QTest::newRow("limits") << (QVector<int>()
                                << std::numeric_limits<int>::min() << -1 << 0 << std::numeric_limits<int>::max())
                            << Bytes("00000004"
                                     "80000000ffffffff000000007fffffff");
}

void BinarySerializer::byteArrays_data()
{
    AddColumns<QByteArray>();
    QTest::newRow("null") << QByteArray() << Bytes("ffffffff");
    QTest::newRow("empty") << QByteArray("") << Bytes("00000000");
    QTest::newRow("bytes") << Bytes("00ff80") << Bytes("0000000300ff80");
}

void BinarySerializer::largeValues_data()
{
    QTest::addColumn<int>("count");
    // Around the block in which lists are read, and beyond the steps in which Qt reads texts.
    QTest::newRow("a block less one") << 4095;
    QTest::newRow("a block") << 4096;
    QTest::newRow("a block and one") << 4097;
    QTest::newRow("several blocks") << 100001;
    QTest::newRow("megabytes") << 1300000;
}

void BinarySerializer::largeValues()
{
    QFETCH(int, count);
    const QVector<int> list = ManyNumbers(count);
    const QString text(count, QChar(0x7551));
    const QByteArray array(count, 'x');

    QByteArray expected;
    QDataStream stream(&expected, QIODevice::WriteOnly);
    stream << list << text << array;
    const QByteArray bytes = Written([&](TSerializer& serializer) { serializer << list << text << array; });
    QVERIFY(bytes == expected);

    TReader reader(bytes);
    QVector<int> listBack;
    QString textBack;
    QByteArray arrayBack;
    reader.Serializer() >> listBack >> textBack >> arrayBack;
    QVERIFY(listBack == list);
    QVERIFY(textBack == text);
    QVERIFY(arrayBack == array);
    QVERIFY(reader.Serializer().atEnd());
}

void BinarySerializer::anyByteButZeroIsTrue()
{
    TReader reader(Bytes("0002ff"));
    bool first = true;
    bool second = false;
    bool third = false;
    reader.Serializer() >> first >> second >> third;
    QVERIFY(!first);
    QVERIFY(second);
    QVERIFY(third);
}

void BinarySerializer::pointersAreNotTakenForBools()
{
    QVERIFY(TCanWrite<bool>::value);
    QVERIFY(TCanWrite<QString>::value);
    QVERIFY(!TCanWrite<const char*>::value);
    QVERIFY(!TCanWrite<const char(&)[5]>::value);
    QVERIFY(!TCanWrite<int*>::value);
    // Its size is not the same on every machine.
    QVERIFY(!TCanWrite<long>::value);
}

void BinarySerializer::valuesFollowOneAnother()
{
    const QByteArray bytes = Written([](TSerializer& serializer) {
        serializer << 1u << -2 << 0.5f << 0.25 << true << Text("Nord") << (QVector<int>() << 3 << 4)
                   << QByteArray("raw");
    });
    TReader reader(bytes);
    unsigned int number = 0;
    int integer = 0;
    float single = 0;
    double real = 0;
    bool flag = false;
    QString text;
    QVector<int> list;
    QByteArray array;
    reader.Serializer() >> number >> integer >> single >> real >> flag >> text >> list;
    QVERIFY(!reader.Serializer().atEnd());
    reader.Serializer() >> array;
    QVERIFY(reader.Serializer().atEnd());
    QCOMPARE(number, 1u);
    QCOMPARE(integer, -2);
    QCOMPARE(single, 0.5f);
    QCOMPARE(real, 0.25);
    QVERIFY(flag);
    QCOMPARE(text, Text("Nord"));
    QCOMPARE(list, QVector<int>() << 3 << 4);
    QCOMPARE(array, QByteArray("raw"));
}

void BinarySerializer::aBlockBeginsWithItsHeader_data()
{
    QTest::addColumn<unsigned int>("version");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("0") << 0u << Bytes("feedbaac00000000");
    QTest::newRow("3") << 3u << Bytes("feedbaac00000003");
    QTest::newRow("greatest") << 0xFFFFFFFFu << Bytes("feedbaacffffffff");
}

void BinarySerializer::aBlockBeginsWithItsHeader()
{
    QFETCH(unsigned int, version);
    QFETCH(QByteArray, bytes);
    QCOMPARE(Written([&](TSerializer& serializer) { serializer.writeStartOfDataBlock(version); }).toHex(),
             bytes.toHex());
}

void BinarySerializer::headersAreRead_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isBlock");
    QTest::addColumn<unsigned int>("version");
    QTest::addColumn<int>("consumed");

    // The version is 99 where it is left alone.
    QTest::newRow("with data") << Bytes("feedbaac0000000300") << true << 3u << 8;
    QTest::newRow("greatest version") << Bytes("feedbaacffffffff00") << true << 0xFFFFFFFFu << 8;
    QTest::newRow("nothing behind it") << Bytes("feedbaac00000003") << false << 3u << 8;
    QTest::newRow("foreign") << Bytes("0102030400000003ff") << false << 99u << 4;
    QTest::newRow("the other byte order") << Bytes("acbaedfe0300000000") << false << 99u << 4;
    QTest::newRow("one bit off") << Bytes("feedbaad0000000300") << false << 99u << 4;
    QTest::newRow("empty") << QByteArray() << false << 99u << 0;
    QTest::newRow("half a marker") << Bytes("feed") << false << 99u << 2;
    QTest::newRow("marker alone") << Bytes(Marker) << false << 0u << 4;
    QTest::newRow("half a version") << Bytes("feedbaac0003") << false << 0u << 6;
}

void BinarySerializer::headersAreRead()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, isBlock);
    QFETCH(unsigned int, version);
    QFETCH(int, consumed);
    TReader reader(bytes);
    unsigned int read = 99;
    QCOMPARE(reader.Serializer().readStartOfDataBlock(read), isBlock);
    QCOMPARE(read, version);
    QCOMPARE(reader.Consumed(), static_cast<qint64>(consumed));
}

void BinarySerializer::blocksFollowOneAnother()
{
    const QByteArray bytes = Written([](TSerializer& serializer) {
        serializer.writeStartOfDataBlock(1);
        serializer << 11;
        serializer.writeStartOfDataBlock(2);
        serializer << 22 << true;
    });
    QCOMPARE(bytes.toHex(), QByteArray("feedbaac000000010000000bfeedbaac000000020000001601"));

    TReader reader(bytes);
    for (unsigned int expected = 1; expected <= 2; ++expected) {
        unsigned int version = 0;
        int value = 0;
        QVERIFY(reader.Serializer().readStartOfDataBlock(version));
        reader.Serializer() >> value;
        QCOMPARE(version, expected);
        QCOMPARE(value, static_cast<int>(11 * expected));
    }
}

// A host that derives from the serializer says the same to its compiler.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// A serializer of a host's own, which notes what the headers ask of it.
class TNotingSerializer : public TBinarySerializer
{
public:
    using TBinarySerializer::TBinarySerializer;
    using TBinarySerializer::operator<<;
    using TBinarySerializer::operator>>;

    TSerializer& operator<<(const unsigned int& value) override
    {
        m_Notes << QString::fromLatin1("version %1").arg(value);
        return *this;
    }

    TSerializer& operator<<(const int& value) override
    {
        m_Notes << QString::fromLatin1("marker %1").arg(static_cast<unsigned int>(value), 0, 16);
        return *this;
    }

    TSerializer& operator>>(unsigned int& value) override
    {
        value = 5;
        return *this;
    }

    TSerializer& operator>>(int& value) override
    {
        m_Notes << QString::fromLatin1("from %1").arg(value);
        value = static_cast<int>(0xFEEDBAAC);
        return *this;
    }

    bool atEnd() override { return false; }

    QStringList m_Notes;
};

#pragma GCC diagnostic pop

void BinarySerializer::headersGoThroughTheOperators()
{
    TNotingSerializer serializer(nullptr);
    serializer.writeStartOfDataBlock(7);
    unsigned int version = 0;
    QVERIFY(serializer.readStartOfDataBlock(version));
    QCOMPARE(version, 5u);
    QCOMPARE(serializer.m_Notes, QStringList() << Text("marker feedbaac") << Text("version 7") << Text("from 0"));
}

void BinarySerializer::shortStreams_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    for (int size = 1; size < 8; ++size)
        QTest::newRow(QByteArray::number(size).constData()) << QByteArray(size, '\x01');
}

/// Whatever is longer than the stream reads as zero; texts and arrays whose bytes are not there are empty.
void BinarySerializer::shortStreams()
{
    QFETCH(QByteArray, bytes);
    const int size = static_cast<int>(bytes.size());
    const bool isNumber = size >= 4;

    unsigned int number = 9;
    TReader(bytes).Serializer() >> number;
    QCOMPARE(number, isNumber ? 0x01010101u : 0u);
    int integer = 9;
    TReader(bytes).Serializer() >> integer;
    QCOMPARE(integer, isNumber ? 0x01010101 : 0);
    float single = 9;
    TReader(bytes).Serializer() >> single;
    QCOMPARE(single, 0.0f);
    double real = 9;
    TReader(bytes).Serializer() >> real;
    QCOMPARE(real, 0.0);
    bool flag = true;
    TReader(bytes).Serializer() >> flag;
    QCOMPARE(flag, size >= 1);
    QString text = Text("before");
    TReader(bytes).Serializer() >> text;
    QCOMPARE(text, QString());
    QByteArray array = "before";
    TReader(bytes).Serializer() >> array;
    QCOMPARE(array, QByteArray());
}

void BinarySerializer::damagedLists_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QVector<int>>("expected");

    const int most = TBinarySerializer::MostMissingElements;
    QTest::newRow("nothing at all") << QByteArray() << QVector<int>();
    QTest::newRow("half a length") << Bytes("0000") << QVector<int>();
    QTest::newRow("nothing behind the length") << Bytes("00000003") << QVector<int>(3);
    QTest::newRow("one missing") << Bytes("00000003"
                                          "0000000100000002")
                                 << (QVector<int>() << 1 << 2 << 0);
    QTest::newRow("one cut short") << Bytes("00000002"
                                            "00000001ffffff")
                                   << (QVector<int>() << 1 << 0);
    QTest::newRow("as many missing as may be") << Bytes("00010000") << QVector<int>(most);
    QTest::newRow("as many missing as may be, behind one") << Bytes("00010001"
                                                                    "00000005")
                                                           << ((QVector<int>() << 5) + QVector<int>(most));
    QTest::newRow("one more") << Bytes("00010001") << QVector<int>();
    QTest::newRow("one more, behind one") << Bytes("00010002"
                                                   "00000005")
                                          << (QVector<int>() << 5);
    QTest::newRow("2 GiB") << Bytes("20000000"
                                    "0000000100000002")
                           << (QVector<int>() << 1 << 2);
    QTest::newRow("negative, were it signed") << Bytes("80000000"
                                                       "00000001")
                                              << (QVector<int>() << 1);
    QTest::newRow("greatest, cut short") << Bytes("ffffffff"
                                                  "0000000100")
                                         << (QVector<int>() << 1);
}

void BinarySerializer::damagedLists()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QVector<int>, expected);
    TReader reader(bytes);
    QVector<int> list;
    reader.Serializer() >> list;
    QVERIFY(list == expected);
    QVERIFY(reader.Serializer().atEnd());
    // Nothing near what the length claims was ever asked for.
    QVERIFY2(list.capacity() <= 2 * TBinarySerializer::MostMissingElements,
             QByteArray::number(list.capacity()).constData());
}

void BinarySerializer::aListReplacesWhatWasThere()
{
    QVector<int> list(10000, 9);
    TReader(Bytes("0000000300000001")).Serializer() >> list;
    QCOMPARE(list, QVector<int>() << 1 << 0 << 0);

    const QVector<int> shared = list;
    TReader(Bytes("00000000")).Serializer() >> list;
    QVERIFY(list.isEmpty());
    QCOMPARE(shared.size(), 3);
}

namespace {

/// The same numbers on every machine.
class TNumbers
{
public:
    unsigned int Below(unsigned int bound)
    {
        m_State = m_State * 6364136223846793005u + 1442695040888963407u;
        return static_cast<unsigned int>(m_State >> 33) % bound;
    }

private:
    quint64 m_State = 2026;
};

/// A list as the stream itself reads it, one element after the other.
QVector<int> ElementByElement(QDataStream& stream)
{
    quint32 claimed = 0;
    stream >> claimed;
    QVector<int> list;
    for (quint32 i = 0; i < claimed && !stream.atEnd(); ++i) {
        const bool isWhole = stream.device()->bytesAvailable() >= 4;
        int element = 0;
        stream >> element;
        if (isWhole)
            list.append(element);
    }
    const quint32 missing = claimed - static_cast<quint32>(list.size());
    if (missing <= TBinarySerializer::MostMissingElements)
        list.resize(static_cast<int>(claimed));
    return list;
}

template <typename T>
bool ReadTheSame(TSerializer& serializer, QDataStream& stream)
{
    T ours = T();
    T expected = T();
    serializer >> ours;
    stream >> expected;
    return AreTheSame(ours, expected);
}

template <>
bool ReadTheSame<QVector<int>>(TSerializer& serializer, QDataStream& stream)
{
    QVector<int> ours;
    serializer >> ours;
    return ours == ElementByElement(stream);
}

using FReadTheSame = bool (*)(TSerializer&, QDataStream&);

const FReadTheSame EveryType[] = {
    ReadTheSame<unsigned int>, ReadTheSame<int>,     ReadTheSame<float>,        ReadTheSame<double>,
    ReadTheSame<bool>,         ReadTheSame<QString>, ReadTheSame<QVector<int>>, ReadTheSame<QByteArray>,
};

} // namespace

void BinarySerializer::anyBytesAreSurvived()
{
    TNumbers numbers;
    for (int round = 0; round < 20000; ++round) {
        // Small bytes make plausible lengths, the rest absurd ones.
        QByteArray bytes(static_cast<int>(numbers.Below(80)), '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(numbers.Below(3) == 0 ? numbers.Below(256) : numbers.Below(8) / 7);
        TReader reader(bytes);
        QDataStream stream(bytes);
        for (int i = 0; i < 12; ++i) {
            const FReadTheSame readTheSame = EveryType[numbers.Below(8)];
            if (!readTheSame(reader.Serializer(), stream))
                QFAIL(bytes.toHex().constData());
        }
    }
}

void BinarySerializer::noDeviceIsAnEmptyStream()
{
    TBinarySerializer serializer(nullptr);
    QVERIFY(serializer.atEnd());
    int value = 9;
    QVector<int> list(2, 9);
    unsigned int version = 99;
    serializer >> value >> list;
    QCOMPARE(value, 0);
    QVERIFY(list.isEmpty());
    QVERIFY(!serializer.readStartOfDataBlock(version));
    QCOMPARE(version, 99u);
}

int main(int argc, char** argv) { return RunCoreTest<BinarySerializer>(argc, argv); }
#include "BinarySerializer.moc"
