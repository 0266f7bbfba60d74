#include "support/StreamSamples.h"
#include "support/TestProgram.h"

#include <QBuffer>
#include <QTest>
#include <QVector>

#include <tuple>

// Every value is read and written as if by Qt's own operators, field by field: from whole and
// broken streams, of every form of texts, and from those that failed before.

using namespace ClassChecks;
using namespace StreamSamples;

namespace {

/** Fields that Qt's own operators read and write. */
template <typename... Field>
struct Fields {
    std::tuple<Field...> fields;
};

template <typename... Field>
QDataStream &operator<<(QDataStream &stream, const Fields<Field...> &value)
{
    std::apply([&stream](const auto &...field) { (stream << ... << field); }, value.fields);
    return stream;
}

template <typename... Field>
QDataStream &operator>>(QDataStream &stream, Fields<Field...> &value)
{
    std::apply([&stream](auto &...field) { (stream >> ... >> field); }, value.fields);
    return stream;
}

/** What each class is for Qt. */
template <typename T>
struct ForQt;

template <>
struct ForQt<CDeviceHardwareId> {
    using Type = Fields<QString, QString, quint16, quint16, quint16>;
};
template <>
struct ForQt<CBaseElement> {
    using Type = Fields<QString, QString, ForQt<CDeviceHardwareId>::Type, QString, qint8>;
};
template <>
struct ForQt<CFileElement> {
    using Type = Fields<QString, QString, QString, QString>;
};
template <>
struct ForQt<CParamFileElement> {
    using Type = Fields<QString, QString, qint32, qint32, QString, QString>;
};
template <>
struct ForQt<CPluginElement> {
    using Type = Fields<QString, qint32, QString>;
};
template <>
struct ForQt<CDescriptionElement> {
    using Type = Fields<QString, QString, QString, QDate, QDate>;
};
template <>
struct ForQt<CSubDeviceBaseElement> {
    using Type =
        Fields<ForQt<CBaseElement>::Type, quint32, QString, ForQt<CFileElement>::Type, quint32>;
};
template <>
struct ForQt<CSubDeviceKD3Element> {
    using Type = ForQt<CSubDeviceBaseElement>::Type;
};
template <>
struct ForQt<CSubDeviceKD2Element> {
    using Type = Fields<ForQt<CSubDeviceBaseElement>::Type, ForQt<CFileElement>::Type,
                        ForQt<CFileElement>::Type, ForQt<CFileElement>::Type>;
};

/** The one value whose fields depend on the first of them. */
struct SContainer {
    qint32 type = 0;
    ForQt<CSubDeviceKD2Element>::Type kd2;
    ForQt<CSubDeviceKD3Element>::Type kd3;
};

QDataStream &operator<<(QDataStream &stream, const SContainer &value)
{
    switch (value.type) {
    case 2:
        return stream << value.type << value.kd2;
    case 3:
        return stream << value.type << value.kd3;
    default:
        return stream;
    }
}

QDataStream &operator>>(QDataStream &stream, SContainer &value)
{
    stream >> value.type;
    switch (value.type) {
    case 2:
        return stream >> value.kd2;
    case 3:
        return stream >> value.kd3;
    default:
        return stream;
    }
}

template <>
struct ForQt<CSubDeviceElement> {
    using Type = SContainer;
};
template <>
struct ForQt<CDeviceBaseElement> {
    using File = ForQt<CFileElement>::Type;
    using Type = Fields<ForQt<CBaseElement>::Type, quint32, qint32, QStringList,
                        QList<ForQt<CParamFileElement>::Type>, File, File, QList<File>,
                        QList<ForQt<CPluginElement>::Type>, QString, QStringList, bool, QList<File>,
                        File, qint32, QHostAddress, quint16, qint32, QMap<quint8, SContainer>>;
};
template <>
struct ForQt<CDeviceSettings> {
    using Type = Fields<QString, QMap<quint8, QString>>;
};
template <>
struct ForQt<CNetworkSettings> {
    using Type = Fields<qint32, QString, QString, QString, QString, QString, qint32, QString,
                        qint32, QString>;
};
template <>
struct ForQt<CDeviceCommData> {
    using Type = Fields<QUuid, QString, QString, quint32, qint32, QHostAddress, quint16, QString,
                        qint32, qint32, QString>;
};
template <>
struct ForQt<COptionModuleFileName> {
    using Type = Fields<QString, QString, QString, QString, QString, QString>;
};

/** A stream before a value is read from it. */
struct SState {
    int version = QDataStream::Qt_5_15;
    QDataStream::ByteOrder byteOrder = QDataStream::BigEndian;
    QDataStream::Status status = QDataStream::Ok;
    bool isTransaction = false;

    void prepare(QDataStream &stream) const
    {
        stream.setVersion(version);
        stream.setByteOrder(byteOrder);
        if (isTransaction) {
            stream.startTransaction();
        }
        stream.setStatus(status);
    }

    QByteArray toText() const
    {
        return "version " + QByteArray::number(version) + ", byte order "
            + QByteArray::number(byteOrder) + ", status " + QByteArray::number(status)
            + (isTransaction ? " in a transaction" : "");
    }
};

/** The versions in which texts, dates and null differ, each in every state. */
QVector<SState> states()
{
    const QDataStream::Status statuses[] = {QDataStream::Ok, QDataStream::ReadPastEnd,
                                            QDataStream::ReadCorruptData, QDataStream::WriteFailed};
    QVector<SState> result;
    for (const int version : {1, 5, 12, int(QDataStream::Qt_5_15)}) {
        for (const QDataStream::Status status : statuses) {
            result << SState{version, QDataStream::BigEndian, status, false};
        }
        result << SState{version, QDataStream::BigEndian, QDataStream::ReadPastEnd, true}
               << SState{version, QDataStream::BigEndian, QDataStream::Ok, true}
               << SState{version, QDataStream::LittleEndian, QDataStream::Ok, false};
    }
    return result;
}

struct SOutcome {
    QByteArray bytes;
    QDataStream::Status status = QDataStream::Ok;
    qint64 position = 0;
    bool isSame(const SOutcome &other) const
    {
        return bytes == other.bytes && status == other.status && position == other.position;
    }
    QByteArray toText() const
    {
        return "status " + QByteArray::number(status) + " at " + QByteArray::number(position) + ": "
            + bytes.toHex();
    }
};

template <typename Value>
SOutcome readFrom(QDataStream &stream, const SState &state)
{
    state.prepare(stream);
    Value value;
    stream >> value;
    return {StreamBytes::toBytes(value), stream.status(),
            stream.device() != nullptr ? stream.device()->pos() : 0};
}

template <typename T>
void compareWithQt(const QByteArray &bytes, const SState &state)
{
    QDataStream stream(bytes);
    const SOutcome outcome = readFrom<T>(stream, state);
    QDataStream forQt(bytes);
    const SOutcome expected = readFrom<typename ForQt<T>::Type>(forQt, state);
    QVERIFY2(outcome.isSame(expected),
             state.toText() + ", " + bytes.toHex() + "\nread:     " + outcome.toText()
                 + "\nexpected: " + expected.toText());
}

template <typename Value>
QByteArray toBytes(const Value &value, const SState &state)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QDataStream stream(&buffer);
    stream.setVersion(state.version);
    stream.setByteOrder(state.byteOrder);
    stream << value;
    return buffer.data();
}

template <typename T>
void checkWritten()
{
    const auto forQt = StreamBytes::fromBytes<typename ForQt<T>::Type>(sampleBytes<T>());
    for (const SState &state : states()) {
        QCOMPARE(toBytes(sample<T>(), state).toHex(), toBytes(forQt, state).toHex());
    }
}

template <typename T>
void checkTruncated()
{
    for (const SState &state : states()) {
        const QByteArray bytes = toBytes(sample<T>(), state) + "rest";
        for (int size = 0; size <= bytes.size() && !QTest::currentTestFailed(); ++size) {
            compareWithQt<T>(bytes.left(size), state);
        }
    }
}

template <typename T>
void checkFlipped()
{
    const QByteArray bytes = sampleBytes<T>();
    for (int at = 0; at < bytes.size() && !QTest::currentTestFailed(); ++at) {
        QByteArray flipped = bytes;
        flipped[at] = static_cast<char>(flipped.at(at) ^ 0x01);
        compareWithQt<T>(flipped, SState());
    }
}

template <typename T>
void checkNoDevice()
{
    for (const int version : {1, 5, 12, int(QDataStream::Qt_5_15)}) {
        SState state;
        state.version = version;
        QDataStream stream;
        const SOutcome outcome = readFrom<T>(stream, state);
        QDataStream forQt;
        const SOutcome expected = readFrom<typename ForQt<T>::Type>(forQt, state);
        QVERIFY2(outcome.isSame(expected), outcome.toText() + "\n" + expected.toText());
    }
}

/** All without lists: for a count that is too large, Qt's operators would reserve memory. */
using ClassesWithoutLists =
    ClassList<CDeviceHardwareId, CBaseElement, CFileElement, CParamFileElement, CPluginElement,
              CDescriptionElement, CSubDeviceBaseElement, CSubDeviceKD2Element,
              CSubDeviceKD3Element, CSubDeviceElement, CDeviceSettings, CNetworkSettings,
              CDeviceCommData, COptionModuleFileName>;

#define ROWS(check) rowsOf(CHECK_OF(check), StreamClasses())

} // namespace

class tst_hostilestreams_qt : public QObject
{
    Q_OBJECT

private slots:
    void written_data() { ROWS(checkWritten); }
    void written() { run(); }
    void truncated_data() { ROWS(checkTruncated); }
    void truncated() { run(); }
    void flipped_data() { rowsOf(CHECK_OF(checkFlipped), ClassesWithoutLists()); }
    void flipped() { run(); }
    void noDevice_data() { ROWS(checkNoDevice); }
    void noDevice() { run(); }
    void texts_data();
    void texts();
    void brokenTexts_data();
    void brokenTexts();
    void emptyStream();
    void failedBefore();
};

void tst_hostilestreams_qt::texts_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("null") << QString();
    QTest::newRow("empty") << u""_s;
    QTest::newRow("one character") << u"a"_s;
    QTest::newRow("Latin 1") << u"\u00c4chse \u00df"_s;
    QTest::newRow("not Latin 1") << u"\u8ef8 \u0416"_s;
    QTest::newRow("surrogates") << u"\U0001f600"_s;
    QTest::newRow("null character") << u"a\0b"_s;
    for (const int size : {1023, 1024, 1025, 2047, 2048, 2049, 5000}) {
        QTest::addRow("%d characters", size) << QString(size, QLatin1Char('x'));
    }
}

void tst_hostilestreams_qt::texts()
{
    QFETCH(QString, text);

    const CFileElement file = SampleConfiguration::file(text, text, u"/d/"_s, QString());
    for (const SState &state : states()) {
        const QByteArray bytes = toBytes(file, state);
        const int step = 1 + bytes.size() / 64;
        for (int size = 0; size < bytes.size() && !QTest::currentTestFailed(); size += step) {
            compareWithQt<CFileElement>(bytes.left(size), state);
        }
        compareWithQt<CFileElement>(bytes, state);
        if (QTest::currentTestFailed()) {
            return;
        }
    }
}

void tst_hostilestreams_qt::brokenTexts_data()
{
    QTest::addColumn<QByteArray>("bytes");

    const auto row = [](const char *name, const char *hex) {
        QTest::newRow(name) << QByteArray::fromHex(hex);
    };
    row("odd length", "00000003 0061 62 00000002 0063");
    row("odd length at the end", "00000001");
    row("odd length behind a good one", "00000002 0061 00000001 00 00000002 0063");
    row("half a character is missing", "00000004 0061 00");
    row("nothing behind the length", "00000002");
    row("half a length", "0000");
    row("large length", "00200000 00610062");
    row("largest length", "fffffffe 00610062");
    row("largest odd length", "fffffffd 00610062");
}

void tst_hostilestreams_qt::brokenTexts()
{
    QFETCH(QByteArray, bytes);

    for (const SState &state : states()) {
        compareWithQt<CFileElement>(bytes, state);
        if (QTest::currentTestFailed()) {
            return;
        }
    }
}

void tst_hostilestreams_qt::emptyStream()
{
    CFileElement file = sample<CFileElement>();
    QDataStream stream((QByteArray()));
    stream >> file;
    QCOMPARE(stream.status(), QDataStream::ReadPastEnd);
    QVERIFY(file.fileName().isEmpty());
    QVERIFY(!file.fileName().isNull());
    QVERIFY(file.isNull());
}

void tst_hostilestreams_qt::failedBefore()
{
    // What is there is stored whole; the older failure stays.
    for (const auto status : {QDataStream::ReadPastEnd, QDataStream::ReadCorruptData}) {
        CDeviceBaseElement device;
        QDataStream stream(sampleBytes<CDeviceBaseElement>());
        StreamBytes::setUp(stream);
        stream.setStatus(status);
        stream >> device;
        QCOMPARE(stream.status(), status);
        QVERIFY(stream.atEnd());
        QVERIFY(device == sample<CDeviceBaseElement>());
        QCOMPARE(device.subDeviceCount(), 2);
    }
}

REGISTER_APPLESS_TEST(tst_hostilestreams_qt)
#include "tst_hostilestreams_qt.moc"
