#include "elements/CSubDeviceElement.h"
#include "support/Literals.h"
#include "support/StreamBytes.h"
#include "support/TestProgram.h"

#include <QTest>

#include <type_traits>

Q_DECLARE_METATYPE(CSubDeviceElement)

namespace {

const QString IdText = QStringLiteral("KD3:Servo:1:2:3");

template <typename SubDevice>
SubDevice make(const QString &name = u"n"_s, unsigned char driveId = 1)
{
    SubDevice result;
    result.setName(name);
    result.setDriveId(driveId);
    return result;
}

CFileElement file(const QString &name)
{
    CFileElement result;
    result.setFileName(name);
    return result;
}

void checkEmpty(const CSubDeviceElement &container)
{
    QVERIFY(container.isNull());
    QVERIFY(!container.isKD2());
    QVERIFY(!container.isKD3());
    QVERIFY(container.toKD2().isNull());
    QVERIFY(container.toKD3().isNull());
    QCOMPARE(static_cast<int>(container.type()), 0);
    QCOMPARE(container.deviceSerial(), 0u);
    QVERIFY(container.deviceName().isEmpty());
    QVERIFY(container.name().isEmpty());
    QVERIFY(container.comment().isEmpty());
    QVERIFY(container.configurationName().isEmpty());
    QVERIFY(container.hardwareId() == CDeviceHardwareId());
    QVERIFY(container.hardwareIdStr().isEmpty());
    QCOMPARE(container.driveId(), quint8(0));
    QVERIFY(container.parameterFileName().isEmpty());
    QVERIFY(container.parameterFile().isNull());
    QVERIFY(container.allFiles().isEmpty());
    QCOMPARE(container.busId(), 0u);
}

void addFilled()
{
    QTest::addColumn<CSubDeviceElement>("container");

    QTest::newRow("KD2") << CSubDeviceElement(make<CSubDeviceKD2Element>());
    QTest::newRow("KD3") << CSubDeviceElement(make<CSubDeviceKD3Element>());
}

} // namespace

class tst_csubdeviceelement : public QObject
{
    Q_OBJECT

private slots:
    void empty();
    void emptySettersDoNothing();
    void holds_data();
    void holds();
    void forwards_data() { addFilled(); }
    void forwards();
    void clearKeepsTheSeries_data() { addFilled(); }
    void clearKeepsTheSeries();
    void copyingCopies_data() { addFilled(); }
    void copyingCopies();
    void assignment();
    void selfAssignment_data() { addFilled(); }
    void selfAssignment();
    void assigningOwnContent();
    void equality_data();
    void equality();
    void streamForm_data();
    void streamForm();
    void emptyWritesNothing();
    void otherTypesReadOnlyTheNumber_data();
    void otherTypesReadOnlyTheNumber();
    void streamChangesTheSeries();
    void isNoElement();
};

void tst_csubdeviceelement::empty()
{
    checkEmpty(CSubDeviceElement());
}

void tst_csubdeviceelement::emptySettersDoNothing()
{
    CSubDeviceElement container;
    container.setDeviceSerial(1);
    container.setDeviceName(u"x"_s);
    container.setDeviceNameAndAdaptPaths(u"x"_s);
    container.adaptProjectPaths(u"x"_s);
    container.setName(u"x"_s);
    container.setComment(u"x"_s);
    container.setConfigurationName(u"x"_s);
    container.setConfigurationNameAndAdaptPaths(u"x"_s);
    container.setHardwareId(IdText);
    container.setHardwareId(CDeviceHardwareId(IdText));
    container.setDriveId(1);
    container.setParameterFileName(u"x"_s);
    container.setParameterFile(file(u"x"_s));
    container.setBusId(1);
    container.clear();
    checkEmpty(container);
    QVERIFY(StreamBytes::toBytes(container).isEmpty());
}

void tst_csubdeviceelement::holds_data()
{
    QTest::addColumn<CSubDeviceElement>("container");
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isNull");

    const auto row = [](const char *name, const CSubDeviceElement &container, int type,
                        bool isNull) { QTest::newRow(name) << container << type << isNull; };
    row("empty", CSubDeviceElement(), 0, true);
    row("KD2", make<CSubDeviceKD2Element>(), 2, false);
    row("KD3", make<CSubDeviceKD3Element>(), 3, false);
    row("null KD2", CSubDeviceKD2Element(), 2, true);
    row("null KD3", CSubDeviceKD3Element(), 3, true);
}

void tst_csubdeviceelement::holds()
{
    QFETCH(CSubDeviceElement, container);
    QFETCH(int, type);
    QFETCH(bool, isNull);

    QCOMPARE(static_cast<int>(container.type()), type);
    QCOMPARE(container.isKD2(), type == 2);
    QCOMPARE(container.isKD3(), type == 3);
    QCOMPARE(container.isNull(), isNull);
    QCOMPARE(container.toKD2().name(), type == 2 ? container.name() : QString());
    QCOMPARE(container.toKD3().name(), type == 3 ? container.name() : QString());
}

void tst_csubdeviceelement::forwards()
{
    QFETCH(CSubDeviceElement, container);

    container.setDeviceSerial(0xffffffff);
    container.setDeviceName(u"dev"_s);
    container.setName(u"name"_s);
    container.setComment(u"comment"_s);
    container.setConfigurationName(u"conf"_s);
    container.setHardwareId(IdText);
    container.setDriveId(200);
    container.setParameterFile(file(u"p"_s));
    container.setBusId(77);
    QCOMPARE(container.deviceSerial(), 0xffffffffu);
    QCOMPARE(container.deviceName(), u"dev"_s);
    QCOMPARE(container.name(), u"name"_s);
    QCOMPARE(container.comment(), u"comment"_s);
    QCOMPARE(container.configurationName(), u"conf"_s);
    QCOMPARE(container.hardwareIdStr(), IdText);
    QVERIFY(container.hardwareId() == CDeviceHardwareId(IdText));
    QCOMPARE(container.driveId(), quint8(200));
    QVERIFY(container.parameterFile() == file(u"p"_s));
    QCOMPARE(container.parameterFileName(), u"p"_s);
    QCOMPARE(container.busId(), 77u);
    QVERIFY(container.allFiles() == QList<CFileElement>{file(u"p"_s)});

    container.setParameterFileName(u"q"_s);
    QCOMPARE(container.parameterFileName(), u"q"_s);
    container.setHardwareId(CDeviceHardwareId());
    QVERIFY(container.hardwareIdStr().isEmpty());

    CFileElement moving = file(u"m"_s);
    moving.setProjectPath(u"dev/conf"_s);
    container.setParameterFile(moving);
    container.adaptProjectPaths(u"dev2"_s);
    QCOMPARE(container.parameterFile().projectPath(), u"dev2/conf/"_s);
    QCOMPARE(container.deviceName(), u"dev"_s);
    container.setParameterFile(moving);
    container.setDeviceNameAndAdaptPaths(u"dev3"_s);
    QCOMPARE(container.parameterFile().projectPath(), u"dev3/conf/"_s);
    QCOMPARE(container.deviceName(), u"dev3"_s);
    container.setConfigurationNameAndAdaptPaths(u"conf2"_s);
    QCOMPARE(container.parameterFile().projectPath(), u"dev3/conf2/"_s);
    QCOMPARE(container.configurationName(), u"conf2"_s);
}

void tst_csubdeviceelement::clearKeepsTheSeries()
{
    QFETCH(CSubDeviceElement, container);

    const auto type = container.type();
    container.clear();
    QVERIFY(container.isNull());
    QCOMPARE(container.type(), type);
    QCOMPARE(container.driveId(), quint8(255));
    QCOMPARE(container.configurationName(), u"STD"_s);
    container.setName(u"again"_s);
    QCOMPARE(container.name(), u"again"_s);
}

void tst_csubdeviceelement::copyingCopies()
{
    QFETCH(CSubDeviceElement, container);

    CSubDeviceElement copy(container);
    QVERIFY(copy == container);
    QCOMPARE(copy.type(), container.type());
    copy.setName(u"copy"_s);
    QCOMPARE(container.name(), u"n"_s);
    CSubDeviceElement assigned;
    assigned = container;
    assigned.setName(u"assigned"_s);
    QCOMPARE(container.name(), u"n"_s);

    CSubDeviceKD2Element kd2 = make<CSubDeviceKD2Element>();
    CSubDeviceElement holder(kd2);
    kd2.setName(u"changed"_s);
    QCOMPARE(holder.name(), u"n"_s);
    CSubDeviceKD2Element out = holder.toKD2();
    out.setName(u"out"_s);
    QCOMPARE(holder.name(), u"n"_s);
}

void tst_csubdeviceelement::assignment()
{
    CSubDeviceElement container(make<CSubDeviceKD2Element>());
    container = CSubDeviceElement(make<CSubDeviceKD3Element>());
    QVERIFY(container.isKD3());
    container = make<CSubDeviceKD2Element>(u"m"_s);
    QVERIFY(container.isKD2());
    QCOMPARE(container.name(), u"m"_s);
    container = make<CSubDeviceKD3Element>(u"o"_s);
    QVERIFY(container.isKD3());
    QCOMPARE(container.name(), u"o"_s);
    container = CSubDeviceElement();
    QCOMPARE(static_cast<int>(container.type()), 0);
    QVERIFY(StreamBytes::toBytes(container).isEmpty());
}

void tst_csubdeviceelement::selfAssignment()
{
    QFETCH(CSubDeviceElement, container);

    const CSubDeviceElement before(container);
    const CSubDeviceElement &self = container;
    container = self;
    QVERIFY(container == before);
    QCOMPARE(container.name(), u"n"_s);
}

void tst_csubdeviceelement::assigningOwnContent()
{
    CSubDeviceElement container(make<CSubDeviceKD2Element>());
    container = container.toKD2();
    QCOMPARE(container.name(), u"n"_s);
    // The other series has nothing to offer but a null sub-device.
    container = container.toKD3();
    QVERIFY(container.isKD3());
    QVERIFY(container.isNull());
}

void tst_csubdeviceelement::equality_data()
{
    QTest::addColumn<CSubDeviceElement>("left");
    QTest::addColumn<CSubDeviceElement>("right");
    QTest::addColumn<bool>("equal");

    const auto row = [](const char *name, const CSubDeviceElement &left,
                        const CSubDeviceElement &right,
                        bool equal) { QTest::newRow(name) << left << right << equal; };
    const auto kd2 = make<CSubDeviceKD2Element>();
    const auto kd3 = make<CSubDeviceKD3Element>();
    auto kd2WithLogic = kd2;
    kd2WithLogic.setKd2LogicFile(file(u"l"_s));
    auto kd3OnBus = kd3;
    kd3OnBus.setBusId(1);
    row("two empty ones are unequal", CSubDeviceElement(), CSubDeviceElement(), false);
    row("empty and KD2", CSubDeviceElement(), kd2, false);
    row("empty and null KD2", CSubDeviceElement(), CSubDeviceKD2Element(), false);
    row("empty and null KD3", CSubDeviceElement(), CSubDeviceKD3Element(), false);
    row("equal KD2", kd2, kd2, true);
    row("equal KD3", kd3, kd3, true);
    row("two series, same name and number", kd2, kd3, false);
    row("two series, null", CSubDeviceKD2Element(), CSubDeviceKD3Element(), false);
    row("null KD2", CSubDeviceKD2Element(), CSubDeviceKD2Element(), true);
    row("null KD3", CSubDeviceKD3Element(), CSubDeviceKD3Element(), true);
    row("KD2 of another name", kd2, make<CSubDeviceKD2Element>(u"N"_s), false);
    row("KD3 of another number", kd3, make<CSubDeviceKD3Element>(u"n"_s, 2), false);
    row("KD2 with another file", kd2, kd2WithLogic, false);
    row("KD3 at another place", kd3, kd3OnBus, false);
}

void tst_csubdeviceelement::equality()
{
    QFETCH(CSubDeviceElement, left);
    QFETCH(CSubDeviceElement, right);
    QFETCH(bool, equal);

    QCOMPARE(left == right, equal);
    QCOMPARE(right == left, equal);
    QCOMPARE(left != right, !equal);
    QCOMPARE(right != left, !equal);
}

void tst_csubdeviceelement::streamForm_data()
{
    QTest::addColumn<CSubDeviceElement>("container");
    QTest::addColumn<QByteArray>("bytes");

    const QByteArray common = QByteArray::fromHex("00000002 006e ffffffff"
                                                  "ffffffff ffffffff 0000 0000 0000"
                                                  "00000006 0053 0054 0044"
                                                  "01"
                                                  "00000000"
                                                  "ffffffff"
                                                  "ffffffff ffffffff ffffffff ffffffff"
                                                  "00000000");
    const QByteArray noFile = QByteArray::fromHex("ffffffff ffffffff ffffffff ffffffff");
    QTest::newRow("KD2") << CSubDeviceElement(make<CSubDeviceKD2Element>())
                         << QByteArray(QByteArray::fromHex("00000002") + common + noFile + noFile
                                       + noFile);
    QTest::newRow("KD3") << CSubDeviceElement(make<CSubDeviceKD3Element>())
                         << QByteArray(QByteArray::fromHex("00000003") + common);
}

void tst_csubdeviceelement::streamForm()
{
    QFETCH(CSubDeviceElement, container);
    QFETCH(QByteArray, bytes);

    QCOMPARE(StreamBytes::toBytes(container).toHex(' '), bytes.toHex(' '));
    CSubDeviceElement read;
    QCOMPARE(StreamBytes::read(bytes + "rest", read), qint64(bytes.size()));
    QVERIFY(read == container);
}

void tst_csubdeviceelement::emptyWritesNothing()
{
    QCOMPARE(StreamBytes::toBytes(CSubDeviceElement()), QByteArray());
    // Deliberately not symmetric: the reader always takes the number.
    CSubDeviceElement container(make<CSubDeviceKD2Element>());
    QCOMPARE(StreamBytes::read(QByteArray(), container), qint64(-1));
    QCOMPARE(container.name(), u"n"_s);
}

void tst_csubdeviceelement::otherTypesReadOnlyTheNumber_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("unknown") << QByteArray::fromHex("00000000");
    QTest::newRow("device") << QByteArray::fromHex("00000001");
    QTest::newRow("behind the last") << QByteArray::fromHex("00000004");
    QTest::newRow("7") << QByteArray::fromHex("00000007");
    QTest::newRow("negative") << QByteArray::fromHex("fffffffe");
    QTest::newRow("2 in the other byte order") << QByteArray::fromHex("02000000");
}

void tst_csubdeviceelement::otherTypesReadOnlyTheNumber()
{
    QFETCH(QByteArray, bytes);

    CSubDeviceElement empty;
    QCOMPARE(StreamBytes::read(bytes + QByteArray(100, '\0'), empty), qint64(4));
    QCOMPARE(static_cast<int>(empty.type()), 0);

    CSubDeviceElement filled(make<CSubDeviceKD3Element>());
    QCOMPARE(StreamBytes::read(bytes + QByteArray(100, '\0'), filled), qint64(4));
    QVERIFY(filled == CSubDeviceElement(make<CSubDeviceKD3Element>()));
}

void tst_csubdeviceelement::streamChangesTheSeries()
{
    CSubDeviceElement container(make<CSubDeviceKD2Element>());
    StreamBytes::read(StreamBytes::toBytes(CSubDeviceElement(make<CSubDeviceKD3Element>())),
                      container);
    QVERIFY(container.isKD3());
    StreamBytes::read(StreamBytes::toBytes(CSubDeviceElement(make<CSubDeviceKD2Element>())),
                      container);
    QVERIFY(container.isKD2());
}

void tst_csubdeviceelement::isNoElement()
{
    QVERIFY((!std::is_base_of<CBaseElement, CSubDeviceElement>::value));
    QVERIFY(std::has_virtual_destructor<CSubDeviceElement>::value);
    QCOMPARE(sizeof(CSubDeviceElement), 2 * sizeof(void *));
}

REGISTER_APPLESS_TEST(tst_csubdeviceelement)
#include "tst_csubdeviceelement.moc"
