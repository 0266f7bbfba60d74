#include "elements/CBaseElement.h"
#include "elements/CDeviceElement.h"
#include "elements/CSubDeviceKD2Element.h"
#include "elements/CSubDeviceKD3Element.h"
#include "support/Literals.h"
#include "support/StreamBytes.h"
#include "support/TestProgram.h"

#include <QTest>

#include <memory>

using Change = void (*)(CBaseElement &);
using ElementPointer = std::shared_ptr<const CBaseElement>;
Q_DECLARE_METATYPE(CBaseElement)
Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(ElementPointer)

namespace {

const QString IdText = QStringLiteral("KD3:Servo:513:2:1");

void addChange(const char *name, Change change)
{
    QTest::newRow(name) << change;
}

/** One change of each field, also through the hardware identity. */
void addChanges()
{
    QTest::addColumn<Change>("change");

    addChange("name", [](CBaseElement &e) { e.setName(u"n"_s); });
    addChange("comment", [](CBaseElement &e) { e.setComment(u"c"_s); });
    addChange("identity as text", [](CBaseElement &e) { e.setHardwareId(IdText); });
    addChange("identity", [](CBaseElement &e) { e.setHardwareId(CDeviceHardwareId(IdText)); });
    addChange("product id", [](CBaseElement &e) { e.setProductId(1); });
    addChange("product version", [](CBaseElement &e) { e.setProductVersion(1); });
    addChange("product revision", [](CBaseElement &e) { e.setProductRevision(1); });
    addChange("product name", [](CBaseElement &e) { e.setProductName(u"p"_s); });
    addChange("configuration name", [](CBaseElement &e) { e.setConfigurationName(u"X"_s); });
    addChange("configuration name in another case",
              [](CBaseElement &e) { e.setConfigurationName(u"Std"_s); });
    addChange("empty configuration name",
              [](CBaseElement &e) { e.setConfigurationName(QString()); });
    addChange("drive number 0", [](CBaseElement &e) { e.setDriveId(0); });
    addChange("drive number 254", [](CBaseElement &e) { e.setDriveId(254); });
}

} // namespace

class tst_cbaseelement : public QObject
{
    Q_OBJECT

private slots:
    void defaults();
    void changedField_data() { addChanges(); }
    void changedField();
    void sharing_data() { addChanges(); }
    void sharing();
    void readingDoesNotDetach();
    void emptyTextsLeaveItNull();
    void settersStoreAsGiven_data();
    void settersStoreAsGiven();
    void productIdentity();
    void hardwareIdentityText_data();
    void hardwareIdentityText();
    void driveIdDefaultIsStillNull();
    void equalityIsExact();
    void equalityOfDerivedClassesIsOfTheBaseFields();
    void casts_data();
    void casts();
    void castsOfValuesCopy();
    void replacePartOfFilePath_data();
    void replacePartOfFilePath();
    void streamForm_data();
    void streamForm();
    void shortStream_data();
    void shortStream();
    void readingDetaches();
};

void tst_cbaseelement::defaults()
{
    const CBaseElement element;
    QCOMPARE(element.type(), NvrnDeviceCore::ELEMENT_UNKNOWN);
    QVERIFY(element.isNull());
    QVERIFY(element.name().isNull());
    QVERIFY(element.comment().isNull());
    QVERIFY(element.hardwareId() == CDeviceHardwareId());
    QVERIFY(element.hardwareIdStr().isEmpty());
    QCOMPARE(element.productId(), quint16(0));
    QCOMPARE(element.productVersion(), quint16(0));
    QCOMPARE(element.productRevision(), quint16(0));
    QVERIFY(element.productName().isEmpty());
    QCOMPARE(element.configurationName(), u"STD"_s);
    QCOMPARE(element.driveId(), quint8(255));
}

void tst_cbaseelement::changedField()
{
    QFETCH(Change, change);

    CBaseElement element;
    change(element);
    QVERIFY(!element.isNull());
    QVERIFY(element != CBaseElement());
    QVERIFY(!(element == CBaseElement()));

    CBaseElement same;
    change(same);
    QVERIFY(element == same);
    QVERIFY(!(element != same));

    const CBaseElement copy(element);
    element.clear();
    QVERIFY(element.isNull());
    QVERIFY(element == CBaseElement());
    QVERIFY(copy == same);
}

void tst_cbaseelement::sharing()
{
    QFETCH(Change, change);

    const CBaseElement original;
    CBaseElement copy(original);
    // The reference leads into the data, so that it shows who shares with whom.
    QCOMPARE(&copy.hardwareId(), &original.hardwareId());

    change(copy);
    QVERIFY(&copy.hardwareId() != &original.hardwareId());
    QVERIFY(original.isNull());
    QVERIFY(copy != original);
}

void tst_cbaseelement::readingDoesNotDetach()
{
    CBaseElement original;
    original.setHardwareId(IdText);
    CBaseElement copy;
    copy = original;

    // Deliberately called on an object that is not constant.
    copy.type();
    copy.isNull();
    copy.name();
    copy.comment();
    copy.hardwareIdStr();
    copy.productId();
    copy.productVersion();
    copy.productRevision();
    copy.productName();
    copy.configurationName();
    copy.driveId();
    copy.replacePartOfFilePath(u"a/b"_s, u"a"_s, u"c"_s);
    QVERIFY(copy == original);
    StreamBytes::toBytes(copy);

    QCOMPARE(&copy.hardwareId(), &original.hardwareId());
}

void tst_cbaseelement::emptyTextsLeaveItNull()
{
    CBaseElement element;
    element.setName(u""_s);
    element.setComment(u""_s);
    element.setConfigurationName(u"STD"_s);
    element.setHardwareId(QString());
    QVERIFY(element.isNull());
}

void tst_cbaseelement::settersStoreAsGiven_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("blanks") << u"  a b  "_s;
    QTest::newRow("control characters") << u"\t\n"_s;
    QTest::newRow("separators") << u"a/b\\c:d"_s;
    QTest::newRow("outside the basic plane") << u"\U0001F600"_s;
    QTest::newRow("very long") << QString(100000, QLatin1Char('x'));
}

void tst_cbaseelement::settersStoreAsGiven()
{
    QFETCH(QString, text);

    CBaseElement element;
    element.setName(text);
    element.setComment(text + QLatin1Char('c'));
    element.setConfigurationName(text + QLatin1Char('n'));
    element.setProductName(text + QLatin1Char('p'));
    QCOMPARE(element.name(), text);
    QCOMPARE(element.comment(), text + QLatin1Char('c'));
    QCOMPARE(element.configurationName(), text + QLatin1Char('n'));
    QCOMPARE(element.productName(), text + QLatin1Char('p'));
}

void tst_cbaseelement::productIdentity()
{
    CBaseElement element;
    element.setHardwareId(IdText);
    QCOMPARE(element.productName(), u"Servo"_s);
    QCOMPARE(element.productId(), quint16(513));
    QCOMPARE(element.productId(), CDeviceHardwareId(IdText).platform());
    QCOMPARE(element.productVersion(), quint16(2));
    QCOMPARE(element.productRevision(), quint16(1));

    element.setProductName(u"Other"_s);
    element.setProductId(65535);
    element.setProductVersion(7);
    element.setProductRevision(8);
    QCOMPARE(element.hardwareId().prefix(), u"KD3"_s);
    QCOMPARE(element.hardwareId().name(), u"Other"_s);
    QCOMPARE(element.hardwareId().platform(), quint16(65535));
    QCOMPARE(element.hardwareId().version(), quint16(7));
    QCOMPARE(element.hardwareId().revision(), quint16(8));
    QCOMPARE(element.hardwareIdStr(), element.hardwareId().hardwareId());
}

void tst_cbaseelement::hardwareIdentityText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");

    QTest::newRow("identity") << IdText << true;
    QTest::newRow("empty") << u""_s << false;
    QTest::newRow("no identity") << u"nonsense"_s << false;
}

void tst_cbaseelement::hardwareIdentityText()
{
    QFETCH(QString, text);
    QFETCH(bool, valid);

    CBaseElement element;
    element.setHardwareId(u"KD2:Old:1:2:3"_s);
    element.setHardwareId(text);
    QVERIFY(element.hardwareId() == CDeviceHardwareId(text));
    QCOMPARE(element.hardwareIdStr(), valid ? text : QString());
}

void tst_cbaseelement::driveIdDefaultIsStillNull()
{
    CBaseElement element;
    element.setDriveId(255);
    QVERIFY(element.isNull());
    element.setDriveId(0);
    QVERIFY(!element.isNull());
    element.setDriveId(255);
    QVERIFY(element.isNull());
}

void tst_cbaseelement::equalityIsExact()
{
    CBaseElement lower;
    lower.setName(u"drive"_s);
    CBaseElement upper;
    upper.setName(u"DRIVE"_s);
    QVERIFY(lower != upper);
    upper.setName(u"drive "_s);
    QVERIFY(lower != upper);
    upper.setName(u"drive"_s);
    QVERIFY(lower == upper);
}

void tst_cbaseelement::equalityOfDerivedClassesIsOfTheBaseFields()
{
    CDeviceElement device;
    device.setSerial(5);
    CSubDeviceKD2Element subDevice;
    subDevice.setBusId(3);
    const CBaseElement &first = device;
    const CBaseElement &second = subDevice;
    QVERIFY(first == second);
    subDevice.setName(u"n"_s);
    QVERIFY(first != second);
}

void tst_cbaseelement::casts_data()
{
    QTest::addColumn<ElementPointer>("element");
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("device");
    QTest::addColumn<bool>("concreteDevice");
    QTest::addColumn<bool>("subDevice");
    QTest::addColumn<bool>("kd2");
    QTest::addColumn<bool>("kd3");

    const auto row = [](const char *name, const auto &element, int type, bool device,
                        bool concreteDevice, bool subDevice, bool kd2, bool kd3) {
        using Element = std::decay_t<decltype(element)>;
        auto named = std::make_shared<Element>(element);
        named->setName(u"n"_s);
        QTest::newRow(name) << ElementPointer(named) << type << device << concreteDevice
                            << subDevice << kd2 << kd3;
    };
    row("element", CBaseElement(), 0, false, false, false, false, false);
    row("base device", CDeviceBaseElement(), 0, true, false, false, false, false);
    row("device", CDeviceElement(), 1, true, true, false, false, false);
    row("base sub-device", CSubDeviceBaseElement(), 0, false, false, true, false, false);
    row("KD2", CSubDeviceKD2Element(), 2, false, false, true, true, false);
    row("KD3", CSubDeviceKD3Element(), 3, false, false, true, false, true);
}

void tst_cbaseelement::casts()
{
    QFETCH(ElementPointer, element);
    QFETCH(int, type);
    QFETCH(bool, device);
    QFETCH(bool, concreteDevice);
    QFETCH(bool, subDevice);
    QFETCH(bool, kd2);
    QFETCH(bool, kd3);

    QCOMPARE(static_cast<int>(element->type()), type);
    QCOMPARE(element->isDevice(), device);
    QCOMPARE(element->isSubDevice(), subDevice);
    QCOMPARE(element->isKD2SubDevice(), kd2);
    QCOMPARE(element->isKD3SubDevice(), kd3);

    const auto ifIt = [&element](bool is) { return is ? element.get() : nullptr; };
    QCOMPARE(static_cast<const CBaseElement *>(element->toDevicePtr()), ifIt(concreteDevice));
    QCOMPARE(static_cast<const CBaseElement *>(element->toBaseDevicePtr()), ifIt(device));
    QCOMPARE(static_cast<const CBaseElement *>(element->toBaseSubDevicePtr()), ifIt(subDevice));
    QCOMPARE(static_cast<const CBaseElement *>(element->toKD2SubDevicePtr()), ifIt(kd2));
    QCOMPARE(static_cast<const CBaseElement *>(element->toKD3SubDevicePtr()), ifIt(kd3));

    QCOMPARE(element->toDevice().isNull(), !concreteDevice);
    QCOMPARE(element->toBaseDevice().isNull(), !device);
    QCOMPARE(element->toBaseSubDevice().isNull(), !subDevice);
    QCOMPARE(element->toKD2SubDevice().isNull(), !kd2);
    QCOMPARE(element->toKD3SubDevice().isNull(), !kd3);
    const auto nameIf = [](bool is) { return is ? u"n"_s : QString(); };
    QCOMPARE(element->toDevice().name(), nameIf(concreteDevice));
    QCOMPARE(element->toBaseDevice().name(), nameIf(device));
    QCOMPARE(element->toBaseSubDevice().name(), nameIf(subDevice));
    QCOMPARE(element->toKD2SubDevice().name(), nameIf(kd2));
    QCOMPARE(element->toKD3SubDevice().name(), nameIf(kd3));
}

void tst_cbaseelement::castsOfValuesCopy()
{
    CSubDeviceKD2Element kd2;
    kd2.setName(u"a"_s);
    CSubDeviceKD2Element cast = kd2.toKD2SubDevice();
    cast.setName(u"b"_s);
    QCOMPARE(kd2.name(), u"a"_s);

    kd2.toKD2SubDevicePtr()->setName(u"c"_s);
    QCOMPARE(kd2.name(), u"c"_s);
}

void tst_cbaseelement::replacePartOfFilePath_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("oldPart");
    QTest::addColumn<QString>("newPart");
    QTest::addColumn<QString>("result");

    const auto row = [](const char *name, const QString &path, const QString &oldPart,
                        const QString &newPart, const QString &result) {
        QTest::newRow(name) << path << oldPart << newPart << result;
    };
    row("null path", QString(), u"a"_s, u"b"_s, QString());
    row("empty path", u""_s, u"a"_s, u"b"_s, u""_s);
    row("example", u"proj/DRIVE-1/params/a.par"_s, u"params"_s, u"p2"_s, u"proj/DRIVE-1/p2"_s);
    row("not there", u"proj/x/a.par"_s, u"y"_s, u"z"_s, u"proj/x/a.par"_s);
    row("file name is dropped", u"a/b/c.txt"_s, u"b"_s, u"x"_s, u"a/x"_s);
    row("file name is not searched", u"a/b/c.txt"_s, u"c.txt"_s, u"x"_s, u"a/b/c.txt"_s);
    row("directory without file name", u"a/b/"_s, u"b"_s, u"x"_s, u"a/x"_s);
    row("directory behind the last separator is the file name", u"a/b"_s, u"b"_s, u"x"_s, u"a/b"_s);
    row("first component", u"a/b/c.txt"_s, u"a"_s, u"x"_s, u"x/b"_s);
    row("the last of two", u"b/a/b/c.txt"_s, u"b"_s, u"x"_s, u"b/a/x"_s);
    row("the last of two neighbours", u"b/b/c.txt"_s, u"b"_s, u"x"_s, u"b/x"_s);
    row("components behind are kept", u"a/b/d/e/c.txt"_s, u"b"_s, u"x"_s, u"a/x/d/e"_s);
    row("absolute", u"/a/b/c.txt"_s, u"a"_s, u"x"_s, u"/x/b"_s);
    row("empty components are kept", u"a//b/c.txt"_s, u"b"_s, u"x"_s, u"a//x"_s);
    row("part of a component", u"a/bb/c.txt"_s, u"b"_s, u"x"_s, u"a/bb/c.txt"_s);
    row("another case", u"a/B/c.txt"_s, u"b"_s, u"x"_s, u"a/B/c.txt"_s);
    row("dot in the pattern", u"a/b1/f"_s, u"b."_s, u"x"_s, u"a/x"_s);
    row("dot needs a character", u"a/b/f"_s, u"b."_s, u"x"_s, u"a/b/f"_s);
    row("character class", u"a/b7/f"_s, u"b[0-9]+"_s, u"x"_s, u"a/x"_s);
    row("escaped pattern", u"a/b1/b./f"_s, u"b\\."_s, u"x"_s, u"a/b1/x"_s);
    row("two components in the old part", u"a/b/c/f"_s, u"a/b"_s, u"x"_s, u"a/b/c/f"_s);
    row("two components in the new part", u"a/b/c/f"_s, u"b"_s, u"x/y"_s, u"a/x/y/c"_s);
    row("empty new part", u"a/b/c/f"_s, u"b"_s, u""_s, u"a//c"_s);
    row("empty old part", u"a/b/f"_s, u""_s, u"x"_s, u"a/b/f"_s);
    row("place marker in the old part", u"a/%1/f"_s, u"%1"_s, u"x"_s, u"a/x"_s);
    row("place marker in the new part", u"a/b/f"_s, u"b"_s, u"%1"_s, u"a/%1"_s);
    row("back reference in the new part", u"a/b/f"_s, u"(b)"_s, u"\\1"_s, u"a/\\1"_s);
    row("same name", u"a/b/f"_s, u"b"_s, u"b"_s, u"a/b"_s);
    row("no directory", u"c.txt"_s, u"c.txt"_s, u"x"_s, u"c.txt"_s);
    row("no directory counts as the current one", u"c.txt"_s, u"\\."_s, u"x"_s, u"x"_s);
}

void tst_cbaseelement::replacePartOfFilePath()
{
    QFETCH(QString, path);
    QFETCH(QString, oldPart);
    QFETCH(QString, newPart);
    QFETCH(QString, result);

    const CBaseElement element;
    QCOMPARE(element.replacePartOfFilePath(path, oldPart, newPart), result);
    QCOMPARE(element.adaptFilePathToDeviceName(path, oldPart, newPart), result);
    QCOMPARE(element.adaptFilePathToConfigurationName(path, oldPart, newPart), result);
}

void tst_cbaseelement::streamForm_data()
{
    QTest::addColumn<CBaseElement>("element");
    QTest::addColumn<QByteArray>("bytes");

    const CBaseElement null;
    QTest::newRow("null") << null
                          << QByteArray::fromHex("ffffffff ffffffff"
                                                 "ffffffff ffffffff 0000 0000 0000"
                                                 "00000006 0053 0054 0044"
                                                 "ff");
    CBaseElement empty;
    empty.setName(u""_s);
    empty.setComment(u""_s);
    empty.setProductName(u""_s);
    empty.setConfigurationName(u""_s);
    QTest::newRow("empty but not null") << empty
                                        << QByteArray::fromHex("00000000 00000000"
                                                               "ffffffff 00000000 0000 0000 0000"
                                                               "00000000"
                                                               "ff");
    CBaseElement full;
    full.setName(u"N\u00e4"_s);
    full.setComment(u"C"_s);
    full.setHardwareId(u"P:Q:513:772:65535"_s);
    full.setConfigurationName(u"X"_s);
    full.setDriveId(128);
    QTest::newRow("all fields") << full
                                << QByteArray::fromHex("00000004 004e 00e4"
                                                       "00000002 0043"
                                                       "00000002 0050 00000002 0051 0201 0304 ffff"
                                                       "00000002 0058"
                                                       "80");
    CBaseElement first;
    first.setDriveId(0);
    QTest::newRow("drive number 0") << first
                                    << QByteArray::fromHex("ffffffff ffffffff"
                                                           "ffffffff ffffffff 0000 0000 0000"
                                                           "00000006 0053 0054 0044"
                                                           "00");
}

void tst_cbaseelement::streamForm()
{
    QFETCH(CBaseElement, element);
    QFETCH(QByteArray, bytes);

    QCOMPARE(StreamBytes::toBytes(element).toHex(' '), bytes.toHex(' '));

    CBaseElement read;
    QCOMPARE(StreamBytes::read(bytes + "rest", read), qint64(bytes.size()));
    QVERIFY(read == element);
    QCOMPARE(read.driveId(), element.driveId());
    QCOMPARE(read.name().isNull(), element.name().isNull());
    QCOMPARE(read.configurationName().isNull(), element.configurationName().isNull());
}

void tst_cbaseelement::shortStream_data()
{
    QTest::addColumn<int>("size");

    CBaseElement full;
    full.setName(u"N"_s);
    full.setHardwareId(IdText);
    const int size = StreamBytes::toBytes(full).size();
    for (int i = 0; i < size; ++i) {
        QTest::addRow("%d bytes", i) << i;
    }
}

void tst_cbaseelement::shortStream()
{
    QFETCH(int, size);

    CBaseElement full;
    full.setName(u"N"_s);
    full.setHardwareId(IdText);
    CBaseElement read;
    QCOMPARE(StreamBytes::read(StreamBytes::toBytes(full).left(size), read), qint64(-1));
    read.setName(u"still usable"_s);
    QCOMPARE(read.name(), u"still usable"_s);
}

void tst_cbaseelement::readingDetaches()
{
    CBaseElement original;
    original.setName(u"original"_s);
    CBaseElement read(original);
    StreamBytes::read(StreamBytes::toBytes(CBaseElement()), read);
    QVERIFY(read.isNull());
    QCOMPARE(original.name(), u"original"_s);
}

REGISTER_APPLESS_TEST(tst_cbaseelement)
#include "tst_cbaseelement.moc"
