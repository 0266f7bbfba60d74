#include "fuzz/targets/Stream.h"
#include "support/AllocationCounter.h"
#include "support/Files.h"
#include "support/Places.h"
#include "support/ScriptedDevice.h"
#include "support/StreamSamples.h"
#include "support/TestProgram.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>

#include <limits>

// Streams that break off, lie about counts, or come from devices that fail: reading ends with a
// status, takes no more memory than the bytes that are there explain, and leaves a usable value.

using namespace ClassChecks;
using namespace StreamSamples;

namespace {

/** Beside what the size of a stream explains. */
const int SmallChange = 64 * 1024;
/** The heap that reading may take, in sizes of what can be read. */
const int MemoryFactor = 16;

/** Whether it can be copied, compared, cleared, written and, where that is whole, read back. */
template <typename T>
bool isUsable(const T &value)
{
    T copy(value);
    const QByteArray bytes = StreamBytes::toBytes(value);
    T read = sample<T>();
    const bool isReadBack =
        StreamBytes::read(bytes, read) == bytes.size() && StreamBytes::toBytes(read) == bytes;
    if (!isReadBack && Fuzz::isWrittenWhole(value)) {
        return false;
    }
    static_cast<void>(copy == value);
    copy = sample<T>();
    return copy == sample<T>() && StreamBytes::toBytes(value) == bytes;
}

struct SOutcome {
    QDataStream::Status status = QDataStream::Ok;
    bool isUsable = false;
    bool isSample = false;
    qint64 peakBytes = 0;
    qint64 readBytes = 0;

    bool isModest(qint64 size) const { return peakBytes <= SmallChange + MemoryFactor * size; }
};

template <typename T>
SOutcome readFrom(QDataStream &stream, int version = QDataStream::Qt_5_15)
{
    SOutcome outcome;
    T value = sample<T>();
    StreamBytes::setUp(stream);
    stream.setVersion(version);
    AllocationCounter::start();
    stream >> value;
    outcome.peakBytes = AllocationCounter::counts().peakBytes;
    outcome.status = stream.status();
    outcome.readBytes = stream.device() != nullptr ? stream.device()->pos() : 0;
    outcome.isUsable = isUsable(value);
    outcome.isSample = StreamBytes::toBytes(value) == sampleBytes<T>();
    return outcome;
}

template <typename T>
SOutcome readFrom(const QByteArray &bytes)
{
    QDataStream stream(bytes);
    return readFrom<T>(stream);
}

/** The bytes with @p value, big endian, at @p at. */
QByteArray withNumber(const QByteArray &bytes, int at, quint32 value)
{
    QByteArray result = bytes;
    for (int i = 0; i < 4; ++i) {
        result[at + i] = static_cast<char>((value >> (24 - 8 * i)) & 0xffu);
    }
    return result;
}

quint32 numberAt(const QByteArray &bytes, int at)
{
    quint32 result = 0;
    for (int i = 0; i < 4; ++i) {
        result = (result << 8) | static_cast<quint8>(bytes.at(at + i));
    }
    return result;
}

/** The largest count of elements, of bytes in a text, texts that are null, and large ones. */
const quint32 Counts[] = {0x7fffffffu, 0xfffffffeu, 0xffffffffu, 0x80000000u,
                          0x7ffffffeu, 0x40000000u, 0x00ffffffu};

template <typename T>
void checkWhole()
{
    const SOutcome outcome = readFrom<T>(sampleBytes<T>() + "rest");
    QCOMPARE(outcome.status, QDataStream::Ok);
    QCOMPARE(outcome.readBytes, qint64(sampleBytes<T>().size()));
    QVERIFY(outcome.isSample);
    QVERIFY(outcome.isUsable);
}

template <typename T>
void checkTruncated()
{
    const QByteArray bytes = sampleBytes<T>();
    for (int size = 0; size < bytes.size(); ++size) {
        const SOutcome outcome = readFrom<T>(bytes.left(size));
        const QByteArray where = "size " + QByteArray::number(size);
        QVERIFY2(outcome.status != QDataStream::Ok, where);
        QVERIFY2(outcome.isUsable, where);
        QVERIFY2(outcome.isModest(size), where + ": " + QByteArray::number(outcome.peakBytes));
    }
}

template <typename T>
void checkFlipped()
{
    const QByteArray bytes = sampleBytes<T>();
    for (int at = 0; at < bytes.size(); ++at) {
        for (const int flip : {0xff, 0x80, 0x20, 0x01}) {
            QByteArray flipped = bytes;
            flipped[at] = static_cast<char>(flipped.at(at) ^ flip);
            const SOutcome outcome = readFrom<T>(flipped);
            const QByteArray where = "byte " + QByteArray::number(at);
            QVERIFY2(outcome.isUsable, where);
            QVERIFY2(outcome.readBytes <= bytes.size(), where);
            QVERIFY2(outcome.isModest(bytes.size()),
                     where + ": " + QByteArray::number(outcome.peakBytes));
        }
    }
}

template <typename T>
void checkCounts()
{
    const QByteArray bytes = sampleBytes<T>();
    for (int at = 0; at + 4 <= bytes.size(); ++at) {
        for (const quint32 count : Counts) {
            const QByteArray changed = withNumber(bytes, at, count);
            const QByteArray where =
                "byte " + QByteArray::number(at) + ", count " + QByteArray::number(count, 16);
            const SOutcome outcome = readFrom<T>(changed);
            QVERIFY2(outcome.isUsable, where);
            QVERIFY2(outcome.isModest(bytes.size()),
                     where + ": " + QByteArray::number(outcome.peakBytes));

            // The same where nobody can tell how much is left.
            ScriptedDevice device(changed, changed.size(), ScriptedDevice::End::Reached);
            QDataStream stream(&device);
            const SOutcome unsized = readFrom<T>(stream);
            QVERIFY2(unsized.status == outcome.status, where);
            QVERIFY2(unsized.isUsable, where);
            QVERIFY2(unsized.isModest(bytes.size()),
                     where + ": " + QByteArray::number(unsized.peakBytes));
            QVERIFY2(device.calls() <= bytes.size() + 100, where);
        }
    }
}

/** The same where texts have eight bits a character. */
template <typename T>
void checkCountsInVersion1()
{
    QByteArray bytes;
    QDataStream writer(&bytes, QIODevice::WriteOnly);
    writer.setVersion(QDataStream::Qt_1_0);
    writer << sample<T>();
    for (int at = 0; at + 4 <= bytes.size(); ++at) {
        for (const quint32 count : Counts) {
            QDataStream stream(withNumber(bytes, at, count));
            const SOutcome outcome = readFrom<T>(stream, QDataStream::Qt_1_0);
            const QByteArray where =
                "byte " + QByteArray::number(at) + ", count " + QByteArray::number(count, 16);
            QVERIFY2(outcome.isUsable, where);
            QVERIFY2(outcome.isModest(bytes.size()),
                     where + ": " + QByteArray::number(outcome.peakBytes));
        }
    }
}

/** Counts that are believed as long as something comes: behind them stands a lot of one byte. */
template <typename T>
void checkCountsWithMuchBehind()
{
    const QByteArray bytes = sampleBytes<T>();
    for (int at = 0; at + 4 <= bytes.size(); ++at) {
        // Only what can be a count is one: all others would but cost time.
        if (numberAt(bytes, at) > 64) {
            continue;
        }
        for (const char filling : {'\0', '\xff', '\x01'}) {
            const QByteArray much =
                withNumber(bytes, at, 0x7ffffffeu).left(at + 4) + QByteArray(16384, filling);
            const QByteArray where = "byte " + QByteArray::number(at);
            const SOutcome outcome = readFrom<T>(much);
            QVERIFY2(outcome.isUsable, where);
            QVERIFY2(outcome.isModest(much.size()),
                     where + ": " + QByteArray::number(outcome.peakBytes));
        }
    }
}

template <typename T>
void checkSequential()
{
    // A device may hand out less than it was asked for; what is missing then has not come yet.
    const QByteArray bytes = sampleBytes<T>();
    for (const int atATime : {1, 3, 4, 7, 64, std::numeric_limits<int>::max()}) {
        ScriptedDevice device(bytes, atATime, ScriptedDevice::End::Reached);
        QDataStream stream(&device);
        const SOutcome outcome = readFrom<T>(stream);
        const QByteArray where = QByteArray::number(atATime) + " bytes at a time";
        QVERIFY2(outcome.isUsable, where);
        QVERIFY2(outcome.isSample || outcome.status != QDataStream::Ok, where);
        QVERIFY2(device.calls() <= 2 * bytes.size() + 10, where);
        if (atATime >= bytes.size()) {
            QVERIFY2(outcome.isSample, where);
            QVERIFY2(outcome.status == QDataStream::Ok, where);
        }
    }
}

template <typename T>
void checkFailingDevice()
{
    const QByteArray bytes = sampleBytes<T>();
    for (int size = 0; size < bytes.size(); ++size) {
        ScriptedDevice device(bytes.left(size), std::numeric_limits<int>::max(),
                              ScriptedDevice::End::Failure);
        QDataStream stream(&device);
        const SOutcome outcome = readFrom<T>(stream);
        const QByteArray where = "size " + QByteArray::number(size);
        QVERIFY2(outcome.status != QDataStream::Ok, where);
        QVERIFY2(outcome.isUsable, where);
        QVERIFY2(device.calls() <= bytes.size() + 100, where);
    }
}

template <typename T>
void checkNoDevice()
{
    QDataStream without;
    QVERIFY(readFrom<T>(without).isUsable);

    QByteArray bytes = sampleBytes<T>();
    QDataStream broken(bytes);
    broken.setStatus(QDataStream::ReadCorruptData);
    const SOutcome outcome = readFrom<T>(broken);
    QCOMPARE(outcome.status, QDataStream::ReadCorruptData);
    QVERIFY(outcome.isUsable);
}

#define ROWS(check) rowsOf(CHECK_OF(check), StreamClasses())

} // namespace

class tst_hostilestreams : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyClassIsListed();

    void whole_data() { ROWS(checkWhole); }
    void whole() { run(); }
    void truncated_data() { ROWS(checkTruncated); }
    void truncated() { run(); }
    void flipped_data() { ROWS(checkFlipped); }
    void flipped() { run(); }
    void counts_data() { ROWS(checkCounts); }
    void counts() { run(); }
    void countsInVersion1_data() { ROWS(checkCountsInVersion1); }
    void countsInVersion1() { run(); }
    void countsWithMuchBehind_data() { ROWS(checkCountsWithMuchBehind); }
    void countsWithMuchBehind() { run(); }
    void sequential_data() { ROWS(checkSequential); }
    void sequential() { run(); }
    void failingDevice_data() { ROWS(checkFailingDevice); }
    void failingDevice() { run(); }
    void noDevice_data() { ROWS(checkNoDevice); }
    void noDevice() { run(); }
};

void tst_hostilestreams::initTestCase()
{
    if (!AllocationCounter::isAvailable()) {
        qInfo("The heap cannot be watched here: how much memory is taken is not tested.");
    }
}

void tst_hostilestreams::everyClassIsListed()
{
    QStringList declared;
    const QRegularExpression reading(
        u"QDataStream &operator>>\\(QDataStream &stream,\\s*(\\w+) &\\w+\\);"_s);
    for (const char *folder : {"elements", "settings", "devicefiles", "imported", "configfile"}) {
        const QDir directory(Places::source("src/%1").arg(QString::fromLatin1(folder)));
        for (const QFileInfo &header : directory.entryInfoList({u"*.h"_s}, QDir::Files)) {
            const QString text = QString::fromUtf8(Files::read(header.filePath()));
            QRegularExpressionMatchIterator matches = reading.globalMatch(text);
            while (matches.hasNext()) {
                declared << matches.next().captured(1);
            }
        }
    }
    declared.removeDuplicates();
    QStringList listed = classNames(StreamClasses());
    declared.sort();
    listed.sort();
    QCOMPARE(listed, declared);
}

REGISTER_APPLESS_TEST(tst_hostilestreams)
#include "tst_hostilestreams.moc"
