// Long because most of it are tables of names that are accepted and refused.
#include "devicefiles/COptionModuleFileName.h"
#include "support/Literals.h"
#include "support/MarkingTranslator.h"
#include "support/StreamBytes.h"
#include "support/TestProgram.h"

#include <QRandomGenerator>
#include <QTest>

#include <new>
#include <type_traits>

// A sanitizer brings an allocator of its own, which must not be replaced.
#if defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer) \
    || __has_feature(memory_sanitizer)
#define TEST_UNDER_SANITIZER
#endif
#endif
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) \
    && !defined(TEST_UNDER_SANITIZER)
#define TEST_CAN_RUN_SHORT_OF_MEMORY
#endif

Q_DECLARE_METATYPE(COptionModuleFileName)

namespace {

/** While it lives, one large allocation of this thread fails: the one behind @p successes others.
 */
class ShortOfMemory
{
public:
    /** Smaller ones are not concerned: not every place in Qt gets over their failure. */
    static const std::size_t Large = 50000;

    explicit ShortOfMemory(int successes)
    {
        m_hasFailed = false;
        m_successes = successes;
    }

    ~ShortOfMemory() { m_successes = Off; }

    static bool hasFailed() { return m_hasFailed; }

    static bool fails(std::size_t size)
    {
        if (m_successes == Off || size < Large) {
            return false;
        }
        if (m_successes > 0) {
            --m_successes;
            return false;
        }
        m_successes = Off;
        m_hasFailed = true;
        return true;
    }

private:
    Q_DISABLE_COPY(ShortOfMemory)

    static const int Off = -1;

    static thread_local int m_successes;
    static thread_local bool m_hasFailed;
};

thread_local int ShortOfMemory::m_successes = ShortOfMemory::Off;
thread_local bool ShortOfMemory::m_hasFailed = false;

} // namespace

#ifdef TEST_CAN_RUN_SHORT_OF_MEMORY

extern "C" {

void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *memory, std::size_t size);

void *malloc(std::size_t size)
{
    return ShortOfMemory::fails(size) ? nullptr : __libc_malloc(size);
}

void *calloc(std::size_t count, std::size_t size)
{
    return ShortOfMemory::fails(count * size) ? nullptr : __libc_calloc(count, size);
}

void *realloc(void *memory, std::size_t size)
{
    return ShortOfMemory::fails(size) ? nullptr : __libc_realloc(memory, size);
}
}

#endif

namespace {

struct Parts {
    QString slot;
    QString interface;
    QString hardwareVersion;
    QString softwareVersion;
    QString text;
    QString suffix;
};

/** Read from a stream, which takes parts as they come. */
COptionModuleFileName nameOf(const Parts &parts)
{
    QByteArray bytes;
    for (const QString &part : {parts.slot, parts.interface, parts.hardwareVersion,
                                parts.softwareVersion, parts.text, parts.suffix}) {
        bytes += StreamBytes::toBytes(part);
    }
    return StreamBytes::fromBytes<COptionModuleFileName>(bytes);
}

const Parts FullParts = {u"OM2"_s, u"AI"_s, u"H1"_s, u"V10_0"_s, u"special"_s, u"hex"_s};

COptionModuleFileName full()
{
    return nameOf(FullParts);
}

struct NamedPart {
    const char *name;
    QString Parts::*part;
};

const NamedPart AllParts[] = {
    {"slot", &Parts::slot},
    {"interface", &Parts::interface},
    {"hardware version", &Parts::hardwareVersion},
    {"software version", &Parts::softwareVersion},
    {"text", &Parts::text},
    {"suffix", &Parts::suffix},
};

QStringList partsOf(const COptionModuleFileName &name)
{
    return {name.slot(), name.interface(), name.hardwareVersion(), name.softwareVersion(),
            name.text(), name.suffix()};
}

bool isCleared(const COptionModuleFileName &name)
{
    return name.isEmpty() && name.isNull() && partsOf(name).join(QString()).isEmpty();
}

struct SetterAndGetter {
    const char *name;
    bool (COptionModuleFileName::*set)(const QString &);
    QString (COptionModuleFileName::*get)() const;
};

using Name = COptionModuleFileName;

const SetterAndGetter Slot = {"slot", &Name::setSlot, &Name::slot};
const SetterAndGetter Interface = {"interface", &Name::setInterface, &Name::interface};
const SetterAndGetter Hardware = {"hardware version", &Name::setHardwareVersion,
                                  &Name::hardwareVersion};
const SetterAndGetter Software = {"software version", &Name::setSoftwareVersion,
                                  &Name::softwareVersion};

} // namespace

Q_DECLARE_METATYPE(Parts)
Q_DECLARE_METATYPE(SetterAndGetter)

class tst_coptionmodulefilename : public QObject
{
    Q_OBJECT

private slots:
    void defaults();
    void grammar();
    void accepted_data();
    void accepted();
    void rejected_data();
    void rejected();
    void roundTrips();
    void setFileNameReplaces();

    void setters_data();
    void setters();
    void setText_data();
    void setText();
    void setSuffix_data();
    void setSuffix();
    void clear();

    void equality_data();
    void equality();
    void copies();

    void numbers_data();
    void numbers();
    void descriptionForSlot_data();
    void descriptionForSlot();
    void descriptionForInterface_data();
    void descriptionForInterface();
    void descriptionsAreTranslated();

    void fileName_data();
    void fileName();

    void streamForm_data();
    void streamForm();
    void truncatedStream();
    void randomStream();

    void shortOfMemory_data();
    void shortOfMemory();
    void longNames_data();
    void longNames();
};

void tst_coptionmodulefilename::defaults()
{
    const COptionModuleFileName name;
    QVERIFY(isCleared(name));
    QVERIFY(!name.isValid());
    QCOMPARE(name.fileName(), QString());
    QCOMPARE(name.hardwareVersionAsInt(), -1);
    QCOMPARE(name.softwareMajorVersionAsInt(), -1);
    QCOMPARE(name.softwareMinorVersionAsInt(), -1);
    QVERIFY(std::has_virtual_destructor<COptionModuleFileName>::value);
}

void tst_coptionmodulefilename::grammar()
{
    const QRegExp grammar = COptionModuleFileName::fullRegExp();
    QCOMPARE(
        grammar.pattern(),
        QStringLiteral(
            "^(OM\\d+_){1}([a-zA-Z]{2,}_){1}(H\\d+_){1}(V\\d+_\\d+){1}(_{1}\\w+)?(\\.\\w+){1}$"));
    QCOMPARE(grammar.caseSensitivity(), Qt::CaseSensitive);
    QCOMPARE(grammar.patternSyntax(), QRegExp::RegExp);
    QVERIFY(!grammar.isMinimal());
    QVERIFY(grammar.isValid());
    QCOMPARE(COptionModuleFileName::standardSuffix(), u"bin"_s);
}

void tst_coptionmodulefilename::accepted_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("parts");

    const auto row = [](const char *rowName, const QString &path, const QStringList &parts) {
        QTest::newRow(rowName) << path << parts;
    };
    const QStringList plain = {u"OM1"_s, u"EC"_s, u"H2"_s, u"V1_3"_s, QString(), u"bin"_s};
    const auto withText = [plain](const QString &text) {
        QStringList result = plain;
        result[4] = text;
        return result;
    };
    row("without text", u"OM1_EC_H2_V1_3.bin"_s, plain);
    row("with text", u"OM2_AI_H1_V10_0_special.bin"_s,
        {u"OM2"_s, u"AI"_s, u"H1"_s, u"V10_0"_s, u"special"_s, u"bin"_s});
    row("text with a separator", u"OM1_EC_H2_V1_3_a_b.bin"_s, withText(u"a_b"_s));
    row("text with many separators", u"OM1_EC_H2_V1_3_a_b__c_.bin"_s, withText(u"a_b__c_"_s));
    row("text that begins with a separator", u"OM1_EC_H2_V1_3__a.bin"_s, withText(u"_a"_s));
    row("text of a separator", u"OM1_EC_H2_V1_3__.bin"_s, withText(u"_"_s));
    row("text of separators", u"OM1_EC_H2_V1_3___.bin"_s, withText(u"__"_s));
    row("text of one letter", u"OM1_EC_H2_V1_3_a.bin"_s, withText(u"a"_s));
    row("text of one digit", u"OM1_EC_H2_V1_3_4.bin"_s, withText(u"4"_s));
    row("text that looks like parts", u"OM1_EC_H2_V1_3_OM2_AI_H3_V4_5.bin"_s,
        withText(u"OM2_AI_H3_V4_5"_s));
    row("text with letters of any language", u"OM1_EC_H2_V1_3_gr\u00f6\u00dfe.bin"_s,
        withText(u"gr\u00f6\u00dfe"_s));
    row("many digits", u"OM123_EC_H45_V67_89.bin"_s,
        {u"OM123"_s, u"EC"_s, u"H45"_s, u"V67_89"_s, QString(), u"bin"_s});
    row("zeros", u"OM0_EC_H0_V0_0.bin"_s,
        {u"OM0"_s, u"EC"_s, u"H0"_s, u"V0_0"_s, QString(), u"bin"_s});
    row("leading zeros", u"OM01_EC_H002_V0001_03.bin"_s,
        {u"OM01"_s, u"EC"_s, u"H002"_s, u"V0001_03"_s, QString(), u"bin"_s});
    row("more digits than a number has", u"OM99999999999_EC_H99999999999_V9_99999999999.bin"_s,
        {u"OM99999999999"_s, u"EC"_s, u"H99999999999"_s, u"V9_99999999999"_s, QString(), u"bin"_s});
    row("interface in lower case", u"OM1_ec_H2_V1_3.bin"_s,
        {u"OM1"_s, u"ec"_s, u"H2"_s, u"V1_3"_s, QString(), u"bin"_s});
    row("unknown interface", u"OM1_XY_H2_V1_3.bin"_s,
        {u"OM1"_s, u"XY"_s, u"H2"_s, u"V1_3"_s, QString(), u"bin"_s});
    row("long interface", u"OM1_ethercatAZaz_H2_V1_3.bin"_s,
        {u"OM1"_s, u"ethercatAZaz"_s, u"H2"_s, u"V1_3"_s, QString(), u"bin"_s});
    row("another suffix", u"OM1_EC_H2_V1_3.hex"_s,
        {u"OM1"_s, u"EC"_s, u"H2"_s, u"V1_3"_s, QString(), u"hex"_s});
    row("suffix in upper case", u"OM1_EC_H2_V1_3.BIN"_s,
        {u"OM1"_s, u"EC"_s, u"H2"_s, u"V1_3"_s, QString(), u"BIN"_s});
    row("short suffix", u"OM1_EC_H2_V1_3.b"_s,
        {u"OM1"_s, u"EC"_s, u"H2"_s, u"V1_3"_s, QString(), u"b"_s});
    row("suffix with a separator", u"OM1_EC_H2_V1_3.b_1"_s,
        {u"OM1"_s, u"EC"_s, u"H2"_s, u"V1_3"_s, QString(), u"b_1"_s});
    row("suffix of digits", u"OM1_EC_H2_V1_3.007"_s,
        {u"OM1"_s, u"EC"_s, u"H2"_s, u"V1_3"_s, QString(), u"007"_s});
    row("absolute path", u"/OM1_EC_H2_V1_3.bin"_s, plain);
    row("deep path", u"/velkor/firmware/options/OM1_EC_H2_V1_3.bin"_s, plain);
    row("relative path", u"options/OM1_EC_H2_V1_3.bin"_s, plain);
    row("from the directory above", u"../OM1_EC_H2_V1_3.bin"_s, plain);
    row("empty directory names", u"a//OM1_EC_H2_V1_3.bin"_s, plain);
    row("directories with dots and separators", u"a.b_c/_d.e_/OM1_EC_H2_V1_3.bin"_s, plain);
    row("directory named like a file", u"OM9_AI_H9_V9_9_x.hex/OM1_EC_H2_V1_3.bin"_s, plain);
    row("directory with blanks and line feed", u" a\n/OM1_EC_H2_V1_3.bin"_s, plain);
}

void tst_coptionmodulefilename::accepted()
{
    QFETCH(QString, path);
    QFETCH(QStringList, parts);

    QVERIFY(COptionModuleFileName::isValid(path));
    const QString fileName = path.mid(path.lastIndexOf(u"/"_s) + 1);

    const COptionModuleFileName constructed(path);
    QCOMPARE(partsOf(constructed), parts);
    QVERIFY(constructed.isValid());
    QVERIFY(!constructed.isEmpty());
    QVERIFY(!constructed.isNull());
    QCOMPARE(constructed.fileName(), fileName);
    const QString converted = constructed;
    QCOMPARE(converted, fileName);

    COptionModuleFileName set;
    set.setFileName(path);
    QVERIFY(set == constructed);

    COptionModuleFileName assigned;
    QCOMPARE(&(assigned = path), &assigned);
    QVERIFY(assigned == constructed);
}

void tst_coptionmodulefilename::rejected_data()
{
    QTest::addColumn<QString>("path");

    const auto row = [](const char *rowName, const QString &path) {
        QTest::newRow(rowName) << path;
    };
    row("null", QString());
    row("empty", u""_s);
    row("slot without number", u"OM_EC_H2_V1_3.bin"_s);
    row("slot without letters", u"1_EC_H2_V1_3.bin"_s);
    row("slot with one letter", u"O1_EC_H2_V1_3.bin"_s);
    row("slot with three letters", u"OMM1_EC_H2_V1_3.bin"_s);
    row("slot with a letter behind", u"OM1a_EC_H2_V1_3.bin"_s);
    row("slot with a letter before", u"XOM1_EC_H2_V1_3.bin"_s);
    row("slot in lower case", u"om1_EC_H2_V1_3.bin"_s);
    row("slot in mixed case", u"Om1_EC_H2_V1_3.bin"_s);
    row("negative slot", u"OM-1_EC_H2_V1_3.bin"_s);
    row("no slot", u"EC_H2_V1_3.bin"_s);
    row("empty slot", u"_EC_H2_V1_3.bin"_s);
    row("two slots", u"OM1_OM2_EC_H2_V1_3.bin"_s);
    row("interface of one letter", u"OM1_E_H2_V1_3.bin"_s);
    row("interface with a digit", u"OM1_EC1_H2_V1_3.bin"_s);
    row("interface with a separator", u"OM1_E_C_H2_V1_3.bin"_s);
    row("interface with an umlaut", u"OM1_E\u00dc_H2_V1_3.bin"_s);
    row("interface with a hyphen", u"OM1_E-C_H2_V1_3.bin"_s);
    row("no interface", u"OM1_H2_V1_3.bin"_s);
    row("empty interface", u"OM1__H2_V1_3.bin"_s);
    row("hardware version without number", u"OM1_EC_H_V1_3.bin"_s);
    row("hardware version without letter", u"OM1_EC_2_V1_3.bin"_s);
    row("hardware version in lower case", u"OM1_EC_h2_V1_3.bin"_s);
    row("hardware version with two numbers", u"OM1_EC_H2_1_V1_3.bin"_s);
    row("hardware version with a letter behind", u"OM1_EC_H2a_V1_3.bin"_s);
    row("no hardware version", u"OM1_EC_V1_3.bin"_s);
    row("empty hardware version", u"OM1_EC__V1_3.bin"_s);
    row("software version in lower case", u"OM1_EC_H2_v1_3.bin"_s);
    row("software version without minor number", u"OM1_EC_H2_V1.bin"_s);
    row("software version with an empty minor number", u"OM1_EC_H2_V1_.bin"_s);
    row("software version without major number", u"OM1_EC_H2_V_3.bin"_s);
    row("software version without letter", u"OM1_EC_H2_1_3.bin"_s);
    row("software version with a dot", u"OM1_EC_H2_V1.3.bin"_s);
    row("software version with a letter in place of a number", u"OM1_EC_H2_V1_x.bin"_s);
    row("software version with a letter behind", u"OM1_EC_H2_V1_3a.bin"_s);
    row("no software version", u"OM1_EC_H2.bin"_s);
    row("versions in the other order", u"OM1_EC_V1_3_H2.bin"_s);
    row("empty text", u"OM1_EC_H2_V1_3_.bin"_s);
    row("text with a hyphen", u"OM1_EC_H2_V1_3_a-b.bin"_s);
    row("text with a blank", u"OM1_EC_H2_V1_3_a b.bin"_s);
    row("text with a dot", u"OM1_EC_H2_V1_3_a.b.bin"_s);
    row("text behind a hyphen", u"OM1_EC_H2_V1_3-a.bin"_s);
    row("no suffix", u"OM1_EC_H2_V1_3"_s);
    row("no suffix behind a text", u"OM1_EC_H2_V1_3_text"_s);
    row("empty suffix", u"OM1_EC_H2_V1_3."_s);
    row("two suffixes", u"OM1_EC_H2_V1_3.tar.gz"_s);
    row("two dots", u"OM1_EC_H2_V1_3..bin"_s);
    row("suffix with a hyphen", u"OM1_EC_H2_V1_3.b-n"_s);
    row("suffix alone", u".bin"_s);
    row("leading blank", u" OM1_EC_H2_V1_3.bin"_s);
    row("trailing blank", u"OM1_EC_H2_V1_3.bin "_s);
    row("trailing line feed", u"OM1_EC_H2_V1_3.bin\n"_s);
    row("trailing carriage return", u"OM1_EC_H2_V1_3.bin\r"_s);
    row("trailing null character", u"OM1_EC_H2_V1_3.bin\0"_s);
    row("leading line", u"a\nOM1_EC_H2_V1_3.bin"_s);
    row("trailing line", u"OM1_EC_H2_V1_3.bin\nx"_s);
    row("blank inside", u"OM1 _EC_H2_V1_3.bin"_s);
    row("hyphens in place of separators", u"OM1-EC-H2-V1-3.bin"_s);
    row("leading separator", u"_OM1_EC_H2_V1_3.bin"_s);
    row("trailing directory separator", u"OM1_EC_H2_V1_3.bin/"_s);
    row("directory alone", u"/velkor/firmware/"_s);
    row("root", u"/"_s);
    row("valid directory and another file", u"OM1_EC_H2_V1_3.bin/x.bin"_s);
    row("other directory separators", u"options\\OM1_EC_H2_V1_3.bin"_s);
    row("parts joined by directories", u"OM1_EC/H2_V1_3.bin"_s);
    row("the grammar itself", COptionModuleFileName::fullRegExp().pattern());
}

void tst_coptionmodulefilename::rejected()
{
    QFETCH(QString, path);

    QVERIFY(!COptionModuleFileName::isValid(path));
    const COptionModuleFileName constructed(path);
    QVERIFY(isCleared(constructed));
    QVERIFY(!constructed.isValid());
    QCOMPARE(constructed.fileName(), QString());

    COptionModuleFileName set = full();
    set.setFileName(path);
    QVERIFY(isCleared(set));

    COptionModuleFileName assigned = full();
    assigned = path;
    QVERIFY(isCleared(assigned));
}

void tst_coptionmodulefilename::roundTrips()
{
    for (const QString &slot : {u"OM0"_s, u"OM1"_s, u"OM42"_s}) {
        for (const QString &interface : {u"AI"_s, u"ca"_s, u"OM"_s, u"Hv"_s}) {
            for (const QString &hardware : {u"H0"_s, u"H17"_s}) {
                for (const QString &software : {u"V0_0"_s, u"V10_234"_s}) {
                    for (const QString &text : {u""_s, u"x"_s, u"_"_s, u"a_b"_s, u"V1_2"_s}) {
                        for (const QString &suffix : {u"bin"_s, u"x"_s, u"V1_2"_s}) {
                            COptionModuleFileName name;
                            QVERIFY(name.setSlot(slot));
                            QVERIFY(name.setInterface(interface));
                            QVERIFY(name.setHardwareVersion(hardware));
                            QVERIFY(name.setSoftwareVersion(software));
                            name.setText(text);
                            name.setSuffix(suffix);
                            QVERIFY(name.isValid());
                            const COptionModuleFileName again(u"/a/"_s + name.fileName());
                            QVERIFY2(again == name, qPrintable(name.fileName()));
                            QCOMPARE(again.fileName(), name.fileName());
                        }
                    }
                }
            }
        }
    }
}

void tst_coptionmodulefilename::setFileNameReplaces()
{
    COptionModuleFileName name = full();
    name.setFileName(u"OM1_EC_H2_V1_3.bin"_s);
    QCOMPARE(partsOf(name),
             (QStringList{u"OM1"_s, u"EC"_s, u"H2"_s, u"V1_3"_s, QString(), u"bin"_s}));
    name = name.fileName();
    QCOMPARE(name.fileName(), u"OM1_EC_H2_V1_3.bin"_s);
}

void tst_coptionmodulefilename::setters_data()
{
    QTest::addColumn<SetterAndGetter>("field");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("accepted");

    const auto rows = [](const SetterAndGetter &field, bool accepted, const QStringList &values) {
        for (const QString &value : values) {
            QString rowName = u"%1 '%2' %3"_s.arg(QString::fromLatin1(field.name), value,
                                                  accepted ? u"accepted"_s : u"rejected"_s);
            rowName.replace(u"\n"_s, u"\\n"_s);
            QTest::newRow(qPrintable(rowName)) << field << value << accepted;
        }
    };
    rows(Slot, true, {u"OM1"_s, u"OM0"_s, u"OM12"_s, u"OM007"_s, u"OM99999999999"_s});
    rows(Slot, false, {u""_s,      u"OM"_s,   u"O1"_s,       u"1"_s,    u"X1"_s,    u"om1"_s,
                       u"Om1"_s,   u"oM1"_s,  u" OM1"_s,     u"OM1 "_s, u"OM1\n"_s, u"OM 1"_s,
                       u"OM1x"_s,  u"OM1_"_s, u"OM-1"_s,     u"OM+1"_s, u"OM1.0"_s, u"OMx"_s,
                       u"OMOM1"_s, u"xOM1"_s, u"OM1\nOM2"_s, u"(OM1)"_s});
    rows(Interface, true,
         {u"EC"_s, u"AI"_s, u"ec"_s, u"Ec"_s, u"XY"_s, u"az"_s, u"AZ"_s, u"ethercat"_s});
    rows(Interface, false,
         {u""_s, u"E"_s, u"E1"_s, u"1E"_s, u"12"_s, u"E_C"_s, u"EC_"_s, u"_EC"_s, u"EC "_s,
          u" EC"_s, u"E C"_s, u"EC\n"_s, u"E-C"_s, u"E\u00c4"_s, u"\u0130O"_s, u"[]"_s, u"^_"_s});
    rows(Hardware, true, {u"H2"_s, u"H0"_s, u"H10"_s, u"H007"_s, u"H99999999999"_s});
    rows(Hardware, false,
         {u""_s, u"H"_s, u"2"_s, u"h2"_s, u"H2 "_s, u" H2"_s, u"H2\n"_s, u"H 2"_s, u"H2a"_s,
          u"H2_"_s, u"H2_1"_s, u"H-2"_s, u"HH2"_s, u"V2"_s, u"H2.0"_s});
    rows(Software, true, {u"V1_3"_s, u"V0_0"_s, u"V10_20"_s, u"V001_002"_s, u"V9_99999999999"_s});
    rows(Software, false, {u""_s,      u"V"_s,     u"V1"_s,     u"V1_"_s,   u"V_3"_s,  u"1_3"_s,
                           u"v1_3"_s,  u"V1_3_"_s, u"V1_3_5"_s, u"V1__3"_s, u"V1.3"_s, u"V1-3"_s,
                           u"V1_3 "_s, u" V1_3"_s, u"V1_3\n"_s, u"V1 _3"_s, u"V1_x"_s, u"Vx_3"_s,
                           u"V1_3a"_s, u"VV1_3"_s, u"H1_3"_s,   u"V1_V3"_s, u"V1_-3"_s});
}

void tst_coptionmodulefilename::setters()
{
    QFETCH(SetterAndGetter, field);
    QFETCH(QString, value);
    QFETCH(bool, accepted);

    for (const COptionModuleFileName &start : {COptionModuleFileName(), full()}) {
        COptionModuleFileName name(start);
        QCOMPARE((name.*field.set)(value), accepted);
        QCOMPARE((name.*field.get)(), accepted ? value : (start.*field.get)());

        // Only this field has changed.
        QStringList expected = partsOf(start);
        const int index = partsOf(full()).indexOf((full().*field.get)());
        expected[index] = (name.*field.get)();
        QCOMPARE(partsOf(name), expected);
    }
}

void tst_coptionmodulefilename::setText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");

    QTest::newRow("letters") << u"special"_s << true;
    QTest::newRow("separators") << u"_a__b_"_s << true;
    QTest::newRow("empty") << u""_s << true;
    QTest::newRow("blank") << u" "_s << false;
    QTest::newRow("dot") << u"a.b"_s << false;
    QTest::newRow("hyphen") << u"a-b"_s << false;
    QTest::newRow("line feed") << u"a\n"_s << false;
    QTest::newRow("place marker") << u"%2"_s << false;
    // Without its directories this would look valid.
    QTest::newRow("directory separator") << u"a/OM1_EC_H2_V1_3"_s << false;
}

void tst_coptionmodulefilename::setText()
{
    QFETCH(QString, text);

    COptionModuleFileName name(u"OM1_EC_H2_V1_3_old.bin"_s);
    name.setText(text);
    QCOMPARE(name.text(), text);
    QTEST(name.isValid(), "valid");
    QCOMPARE(name.fileName(),
             text.isEmpty() ? u"OM1_EC_H2_V1_3.bin"_s : u"OM1_EC_H2_V1_3_"_s + text + u".bin"_s);
}

void tst_coptionmodulefilename::setSuffix_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("suffix");

    QTest::newRow("without dot") << u"bin"_s << u"bin"_s;
    QTest::newRow("leading dot") << u".bin"_s << u"bin"_s;
    QTest::newRow("one dot") << u"a.b"_s << u"b"_s;
    QTest::newRow("two dots") << u"a.b.c"_s << u"c"_s;
    QTest::newRow("trailing dot") << u"bin."_s << u""_s;
    QTest::newRow("dot alone") << u"."_s << u""_s;
    QTest::newRow("file name") << u"OM1_EC_H2_V1_3.hex"_s << u"hex"_s;
    QTest::newRow("unchecked") << u" %1-/ "_s << u" %1-/ "_s;
    QTest::newRow("unchecked behind a dot") << u".a/b "_s << u"a/b "_s;
    QTest::newRow("empty") << u""_s << u""_s;
}

void tst_coptionmodulefilename::setSuffix()
{
    QFETCH(QString, given);
    QFETCH(QString, suffix);

    COptionModuleFileName name(u"OM1_EC_H2_V1_3.old"_s);
    name.setSuffix(given);
    QCOMPARE(name.suffix(), suffix);
    QCOMPARE(name.fileName(), u"OM1_EC_H2_V1_3."_s + (suffix.isEmpty() ? u"bin"_s : suffix));
}

void tst_coptionmodulefilename::clear()
{
    COptionModuleFileName name = full();
    const COptionModuleFileName copy(name);
    name.clear();
    QVERIFY(isCleared(name));
    QVERIFY(name == COptionModuleFileName());
    QVERIFY(copy == full());
}

void tst_coptionmodulefilename::equality_data()
{
    QTest::addColumn<Parts>("parts");

    for (const NamedPart &part : AllParts) {
        const QByteArray rowName = part.name;
        Parts parts = FullParts;
        (parts.*part.part).clear();
        QTest::newRow((rowName + " missing").constData()) << parts;
        parts = FullParts;
        parts.*part.part = (parts.*part.part).toLower() + u"x"_s;
        QTest::newRow((rowName + " longer").constData()) << parts;
    }
    Parts parts = FullParts;
    parts.interface = u"ai"_s;
    QTest::newRow("case of the interface") << parts;
    parts = FullParts;
    parts.text = u"Special"_s;
    QTest::newRow("case of the text") << parts;
    parts = FullParts;
    parts.suffix = u"HEX"_s;
    QTest::newRow("case of the suffix") << parts;
    parts = FullParts;
    parts.slot = u"OM02"_s;
    QTest::newRow("same number") << parts;
}

void tst_coptionmodulefilename::equality()
{
    QFETCH(Parts, parts);

    const COptionModuleFileName left = full();
    const COptionModuleFileName right = nameOf(parts);
    QVERIFY(!(left == right));
    QVERIFY(!(right == left));
    QVERIFY(left != right);
    QVERIFY(right == nameOf(parts));
    QVERIFY(!(right != nameOf(parts)));
}

void tst_coptionmodulefilename::copies()
{
    COptionModuleFileName original = full();
    COptionModuleFileName copy(original);
    COptionModuleFileName assigned(u"OM1_EC_H2_V1_3.bin"_s);
    QCOMPARE(&(assigned = original), &assigned);
    QVERIFY(copy == original);
    QVERIFY(assigned == original);
    original.setText(u"other"_s);
    QVERIFY(copy == full());
    copy.clear();
    QVERIFY(assigned == full());
    const COptionModuleFileName &self = assigned;
    assigned = self;
    QVERIFY(assigned == full());

    // The standard suffix is not the same as none, though both give the same file name.
    COptionModuleFileName bin(u"OM1_EC_H2_V1_3.bin"_s);
    COptionModuleFileName none(bin);
    none.setSuffix(QString());
    QCOMPARE(none.fileName(), bin.fileName());
    QVERIFY(none != bin);
    QVERIFY(none.isValid());
}

void tst_coptionmodulefilename::numbers_data()
{
    QTest::addColumn<QString>("hardwareVersion");
    QTest::addColumn<QString>("softwareVersion");
    QTest::addColumn<int>("hardware");
    QTest::addColumn<int>("major");
    QTest::addColumn<int>("minor");

    const auto row = [](const char *rowName, const QString &hardwareVersion,
                        const QString &softwareVersion, int hardware, int major, int minor) {
        QTest::newRow(rowName) << hardwareVersion << softwareVersion << hardware << major << minor;
    };
    row("empty", u""_s, u""_s, -1, -1, -1);
    row("one digit", u"H2"_s, u"V1_3"_s, 2, 1, 3);
    row("more digits", u"H10"_s, u"V200_3000"_s, 10, 200, 3000);
    row("zero", u"H0"_s, u"V0_0"_s, 0, 0, 0);
    row("leading zeros are not octal", u"H010"_s, u"V007_0010"_s, 10, 7, 10);
    row("highest", u"H2147483647"_s, u"V2147483647_2147483647"_s, 2147483647, 2147483647,
        2147483647);
    row("too high", u"H2147483648"_s, u"V2147483648_2147483648"_s, -1, -1, -1);
    row("much too high", u"H18446744073709551618"_s, u"V99999999999_4294967297"_s, -1, -1, -1);
    row("major alone too high", u"H1"_s, u"V2147483648_1"_s, 1, -1, 1);
    row("minor alone too high", u"H1"_s, u"V1_2147483648"_s, 1, 1, -1);
    // No setter takes these, but a stream does.
    row("without letters", u"2"_s, u"1_3"_s, 2, 1, 3);
    row("lower case", u"h2"_s, u"v1_3"_s, -1, -1, 3);
    row("letter twice", u"HH2"_s, u"VV1_3"_s, -1, -1, 3);
    row("letter behind", u"2H"_s, u"1V_3V"_s, -1, -1, -1);
    row("letter inside", u"1H2"_s, u"1V2_3V4"_s, -1, -1, -1);
    row("letter alone", u"H"_s, u"V_"_s, -1, -1, -1);
    row("three numbers", u"H1"_s, u"V1_2_3"_s, 1, 1, 3);
    row("letters", u"Habc"_s, u"Vabc_def"_s, -1, -1, -1);
    row("hexadecimal", u"H0x10"_s, u"V0x1_0x2"_s, -1, -1, -1);
    row("fraction", u"H1.5"_s, u"V1.5_2.5"_s, -1, -1, -1);
}

void tst_coptionmodulefilename::numbers()
{
    QFETCH(QString, hardwareVersion);
    QFETCH(QString, softwareVersion);

    const COptionModuleFileName name =
        nameOf({QString(), QString(), hardwareVersion, softwareVersion, QString(), QString()});
    QTEST(name.hardwareVersionAsInt(), "hardware");
    QTEST(name.softwareMajorVersionAsInt(), "major");
    QTEST(name.softwareMinorVersionAsInt(), "minor");
}

void tst_coptionmodulefilename::descriptionForSlot_data()
{
    QTest::addColumn<QString>("slot");
    QTest::addColumn<bool>("isSlot");
    QTest::addColumn<QString>("description");

    const QString unknown = u"Unknown"_s;
    QTest::newRow("one digit") << u"OM1"_s << true << u"Option Modul slot 1"_s;
    QTest::newRow("two digits") << u"OM12"_s << true << u"Option Modul slot 12"_s;
    QTest::newRow("zero") << u"OM0"_s << true << u"Option Modul slot 0"_s;
    QTest::newRow("leading zeros") << u"OM007"_s << true << u"Option Modul slot 7"_s;
    QTest::newRow("no group separators") << u"OM12345"_s << true << u"Option Modul slot 12345"_s;
    QTest::newRow("highest") << u"OM2147483647"_s << true << u"Option Modul slot 2147483647"_s;
    QTest::newRow("too high") << u"OM2147483648"_s << true << unknown;
    QTest::newRow("number alone") << u"3"_s << false << u"Option Modul slot 3"_s;
    QTest::newRow("letter in place of the number") << u"OMx"_s << false << unknown;
    QTest::newRow("letter behind the number") << u"OM1x"_s << false << unknown;
    QTest::newRow("lower case") << u"om1"_s << false << unknown;
    QTest::newRow("letters twice") << u"OMOM1"_s << false << unknown;
    QTest::newRow("letters behind") << u"1OM"_s << false << unknown;
    QTest::newRow("letter before") << u"XOM1"_s << false << unknown;
    QTest::newRow("one letter") << u"O1"_s << false << unknown;
    QTest::newRow("letters alone") << u"OM"_s << false << unknown;
    QTest::newRow("hexadecimal") << u"OM0x1"_s << false << unknown;
    QTest::newRow("empty") << u""_s << false << unknown;
    QTest::newRow("null") << QString() << false << unknown;
}

void tst_coptionmodulefilename::descriptionForSlot()
{
    QFETCH(QString, slot);
    QFETCH(bool, isSlot);
    QFETCH(QString, description);

    QCOMPARE(COptionModuleFileName::descriptionForSlot(slot), description);
    QCOMPARE(COptionModuleFileName::slotDescription(slot), isSlot ? description : QString());
    Parts parts;
    parts.slot = slot;
    QCOMPARE(nameOf(parts).slotDescription(), description);
}

void tst_coptionmodulefilename::descriptionForInterface_data()
{
    QTest::addColumn<QString>("interface");
    QTest::addColumn<bool>("isInterface");
    QTest::addColumn<QString>("description");

    const auto row = [](const QString &interface, bool isInterface, const QString &description) {
        QTest::newRow(qPrintable(u"'%1'"_s.arg(interface)))
            << interface << isInterface << description;
    };
    for (const QString &interface : {u"AI"_s, u"Ai"_s, u"aI"_s, u"ai"_s}) {
        row(interface, true, u"Analog interface"_s);
    }
    for (const QString &interface : {u"IO"_s, u"Io"_s, u"iO"_s, u"io"_s}) {
        row(interface, true, u"Expansion IO modul"_s);
    }
    for (const QString &interface : {u"EC"_s, u"Ec"_s, u"eC"_s, u"ec"_s}) {
        row(interface, true, u"EtherCAT"_s);
    }
    for (const QString &interface : {u"CA"_s, u"Ca"_s, u"cA"_s, u"ca"_s}) {
        row(interface, true, u"CAN-Bus"_s);
    }
    const QString unknown = u"Unknown interface"_s;
    for (const QString &interface :
         {u"XY"_s, u"IA"_s, u"OI"_s, u"CE"_s, u"AC"_s, u"ECX"_s, u"XEC"_s, u"CAN"_s, u"AIIO"_s}) {
        row(interface, true, unknown);
    }
    for (const QString &interface : {u""_s, u"E"_s, u"A1"_s, u" EC"_s, u"EC "_s, u"EC_"_s, u"OM1"_s,
                                     u"a\u0131"_s, u"\u0130O"_s}) {
        row(interface, false, unknown);
    }
}

void tst_coptionmodulefilename::descriptionForInterface()
{
    QFETCH(QString, interface);
    QFETCH(bool, isInterface);
    QFETCH(QString, description);

    QCOMPARE(COptionModuleFileName::descriptionForInterface(interface), description);
    QCOMPARE(COptionModuleFileName::interfaceDescription(interface),
             isInterface ? description : QString());
    Parts parts;
    parts.interface = interface;
    QCOMPARE(nameOf(parts).interfaceDescription(), description);
}

void tst_coptionmodulefilename::descriptionsAreTranslated()
{
    const MarkingTranslator translator("COptionModuleFileName");
    QCOMPARE(COptionModuleFileName::descriptionForSlot(u"OM12"_s), u"<Option Modul slot 12>"_s);
    QCOMPARE(COptionModuleFileName::descriptionForSlot(u"OMx"_s), u"<Unknown>"_s);
    QCOMPARE(COptionModuleFileName::slotDescription(u"OM12"_s), u"<Option Modul slot 12>"_s);
    QCOMPARE(COptionModuleFileName::slotDescription(u"OMx"_s), QString());
    QCOMPARE(COptionModuleFileName().slotDescription(), u"<Unknown>"_s);
    QCOMPARE(COptionModuleFileName::descriptionForInterface(u"AI"_s), u"<Analog interface>"_s);
    QCOMPARE(COptionModuleFileName::descriptionForInterface(u"IO"_s), u"<Expansion IO modul>"_s);
    QCOMPARE(COptionModuleFileName::descriptionForInterface(u"EC"_s), u"<EtherCAT>"_s);
    QCOMPARE(COptionModuleFileName::descriptionForInterface(u"CA"_s), u"<CAN-Bus>"_s);
    QCOMPARE(COptionModuleFileName::descriptionForInterface(u"XY"_s), u"<Unknown interface>"_s);
    QCOMPARE(COptionModuleFileName::interfaceDescription(u"ec"_s), u"<EtherCAT>"_s);
    QCOMPARE(COptionModuleFileName::interfaceDescription(u"E"_s), QString());
    QCOMPARE(COptionModuleFileName().interfaceDescription(), u"<Unknown interface>"_s);

    // Names are none of the user's language.
    QCOMPARE(full().fileName(), u"OM2_AI_H1_V10_0_special.hex"_s);
}

void tst_coptionmodulefilename::fileName_data()
{
    QTest::addColumn<Parts>("parts");
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<bool>("valid");

    const QString none;
    const auto row = [](const char *rowName, const Parts &parts, const QString &fileName,
                        bool valid) { QTest::newRow(rowName) << parts << fileName << valid; };
    row("all parts", FullParts, u"OM2_AI_H1_V10_0_special.hex"_s, true);
    row("without text", {u"OM1"_s, u"EC"_s, u"H2"_s, u"V1_3"_s, none, u"hex"_s},
        u"OM1_EC_H2_V1_3.hex"_s, true);
    row("without suffix", {u"OM1"_s, u"EC"_s, u"H2"_s, u"V1_3"_s, u"t"_s, none},
        u"OM1_EC_H2_V1_3_t.bin"_s, true);
    row("without both", {u"OM1"_s, u"EC"_s, u"H2"_s, u"V1_3"_s, none, none},
        u"OM1_EC_H2_V1_3.bin"_s, true);
    row("slot alone", {u"OM1"_s, none, none, none, none, none}, u"OM1___.bin"_s, false);
    row("interface alone", {none, u"EC"_s, none, none, none, none}, u"_EC__.bin"_s, false);
    row("hardware version alone", {none, none, u"H2"_s, none, none, none}, u"__H2_.bin"_s, false);
    row("software version alone", {none, none, none, u"V1_3"_s, none, none}, u"___V1_3.bin"_s,
        false);
    row("text alone", {none, none, none, none, u"t"_s, none}, u"____t.bin"_s, false);
    row("suffix alone", {none, none, none, none, none, u"hex"_s}, u"___.hex"_s, false);
    row("without slot", {none, u"EC"_s, u"H2"_s, u"V1_3"_s, none, none}, u"_EC_H2_V1_3.bin"_s,
        false);
    row("without software version", {u"OM1"_s, u"EC"_s, u"H2"_s, none, none, none},
        u"OM1_EC_H2_.bin"_s, false);
    row("place markers in the text", {u"OM1"_s, u"EC"_s, u"H2"_s, u"V1_3"_s, u"%1%2%5"_s, none},
        u"OM1_EC_H2_V1_3_%1%2%5.bin"_s, false);
    row("place marker in the suffix", {u"OM1"_s, u"EC"_s, u"H2"_s, u"V1_3"_s, none, u"%2"_s},
        u"OM1_EC_H2_V1_3.%2"_s, false);
    row("place markers everywhere", {u"%4"_s, u"%3"_s, u"%2"_s, u"%1"_s, u"%2"_s, u"%1"_s},
        u"%4_%3_%2_%1_%2.%1"_s, false);
    row("invalid part", {u"X1"_s, u"EC"_s, u"H2"_s, u"V1_3"_s, none, none}, u"X1_EC_H2_V1_3.bin"_s,
        false);
    row("parts that are valid only together", {u"OM1"_s, u"EC"_s, u"H2"_s, u"V1_3_4"_s, none, none},
        u"OM1_EC_H2_V1_3_4.bin"_s, true);
    row("directories", {u"a/OM1"_s, u"EC"_s, u"H2"_s, u"V1_3"_s, none, none},
        u"a/OM1_EC_H2_V1_3.bin"_s, false);
    row("nothing", {none, none, none, none, none, none}, none, false);
    row("nothing, not null", {u""_s, u""_s, u""_s, u""_s, u""_s, u""_s}, none, false);
}

void tst_coptionmodulefilename::fileName()
{
    QFETCH(Parts, parts);
    QFETCH(QString, fileName);
    QFETCH(bool, valid);

    const COptionModuleFileName name = nameOf(parts);
    QCOMPARE(name.fileName(), fileName);
    const QString converted = name;
    QCOMPARE(converted, fileName);
    QCOMPARE(name.isValid(), valid);
    QCOMPARE(name.isEmpty(), fileName.isEmpty());
    QCOMPARE(name.isNull(), fileName.isEmpty());
}

void tst_coptionmodulefilename::streamForm_data()
{
    QTest::addColumn<COptionModuleFileName>("name");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("default") << COptionModuleFileName()
                             << QByteArray::fromHex("ffffffff ffffffff ffffffff"
                                                    "ffffffff ffffffff ffffffff");
    QTest::newRow("empty, not null")
        << nameOf({u""_s, u""_s, u""_s, u""_s, u""_s, u""_s})
        << QByteArray::fromHex("00000000 00000000 00000000 00000000 00000000 00000000");
    QTest::newRow("all parts") << full()
                               << QByteArray::fromHex("00000006 004f 004d 0032"
                                                      "00000004 0041 0049"
                                                      "00000004 0048 0031"
                                                      "0000000a 0056 0031 0030 005f 0030"
                                                      "0000000e 0073 0070 0065 0063 0069 0061 006c"
                                                      "00000006 0068 0065 0078");
    QTest::newRow("invalid parts stay")
        << nameOf({u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e.f"_s, u"g.h"_s})
        << QByteArray::fromHex("00000002 0061 00000002 0062 00000002 0063 00000002 0064"
                               "00000006 0065 002e 0066 00000006 0067 002e 0068");
}

void tst_coptionmodulefilename::streamForm()
{
    QFETCH(COptionModuleFileName, name);
    QFETCH(QByteArray, bytes);

    QCOMPARE(StreamBytes::toBytes(name).toHex(' '), bytes.toHex(' '));
    for (const COptionModuleFileName &before : {COptionModuleFileName(), full()}) {
        COptionModuleFileName read(before);
        QCOMPARE(StreamBytes::read(bytes + "rest", read), qint64(bytes.size()));
        QVERIFY(read == name);
        QCOMPARE(StreamBytes::toBytes(read).toHex(' '), bytes.toHex(' '));
    }
}

void tst_coptionmodulefilename::truncatedStream()
{
    const QByteArray bytes = StreamBytes::toBytes(full());
    for (int size = 0; size < bytes.size(); ++size) {
        COptionModuleFileName read = full();
        QCOMPARE(StreamBytes::read(bytes.left(size), read), qint64(-1));
        read = full();
        QVERIFY(read == full());
    }
}

void tst_coptionmodulefilename::randomStream()
{
    QRandomGenerator random(20260131);
    const QByteArray fullBytes = StreamBytes::toBytes(full());
    for (int i = 0; i < 1000; ++i) {
        QByteArray bytes = fullBytes;
        for (int change = 0; change <= i % 8; ++change) {
            bytes[random.bounded(bytes.size())] = static_cast<char>(random.bounded(256));
        }
        COptionModuleFileName read;
        StreamBytes::read(bytes, read);
        // Whatever was read can be used.
        QCOMPARE(read.isValid(), COptionModuleFileName::fullRegExp().exactMatch(read.fileName()));
        QVERIFY(read.hardwareVersionAsInt() >= -1);
        QVERIFY(!read.slotDescription().isEmpty());
        QVERIFY(!read.interfaceDescription().isEmpty());
    }
}

void tst_coptionmodulefilename::shortOfMemory_data()
{
    QTest::addColumn<QString>("path");

    const QString much(30000, QLatin1Char('x'));
    QVERIFY(static_cast<std::size_t>(much.size()) * sizeof(QChar) > ShortOfMemory::Large);
    QTest::newRow("long text") << u"OM1_EC_H2_V1_3_%1.bin"_s.arg(much);
    QTest::newRow("long suffix") << u"OM1_EC_H2_V1_3_text.%1"_s.arg(much);
}

void tst_coptionmodulefilename::shortOfMemory()
{
#ifdef TEST_CAN_RUN_SHORT_OF_MEMORY
    QFETCH(QString, path);

    const COptionModuleFileName expected(path);
    QVERIFY(expected.isValid());
    int failures = 0;
    for (bool hasFailed = true; hasFailed; ++failures) {
        COptionModuleFileName name = full();
        bool hasThrown = false;
        {
            const ShortOfMemory shortOfMemory(failures);
            try {
                name.setFileName(path);
            } catch (const std::bad_alloc &) {
                hasThrown = true;
            }
            hasFailed = ShortOfMemory::hasFailed();
        }
        QCOMPARE(hasThrown, hasFailed);
        QVERIFY(hasFailed ? isCleared(name) : name == expected);
    }
    QVERIFY2(failures > 1, "no allocation was large enough");
#else
    QSKIP("The allocator cannot be replaced here.", 0);
#endif
}

void tst_coptionmodulefilename::longNames_data()
{
    QTest::addColumn<QString>("directory");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("suffix");

    // Longer than any file system takes, up to where a position no longer fits into 16 bits, and
    // where it becomes one of the first again.
    for (const int size : {250, 32768, 65535, 100000, 65525}) {
        const QByteArray length = QByteArray::number(size);
        const QString much(size, QLatin1Char('x'));
        const auto row = [](const QByteArray &rowName, const QString &directory,
                            const QString &text, const QString &suffix) {
            QTest::newRow(rowName.constData()) << directory << text << suffix;
        };
        row("directory " + length, much + u"/"_s, u"text"_s, u"bin"_s);
        row("suffix " + length, QString(), u"text"_s, much);
        row("text " + length, QString(), much, u"bin"_s);
    }
}

void tst_coptionmodulefilename::longNames()
{
    QFETCH(QString, directory);
    QFETCH(QString, text);
    QFETCH(QString, suffix);

    const QString fileName = u"OM1_EC_H2_V1_3_"_s + text + u"."_s + suffix;
    QVERIFY(COptionModuleFileName::isValid(directory + fileName));
    const COptionModuleFileName name(directory + fileName);
    QVERIFY(name.isValid());
    QVERIFY(name.fileName() == fileName);
    QVERIFY(name.text() == text);
    QVERIFY(name.suffix() == suffix);
    QCOMPARE(name.softwareVersion(), u"V1_3"_s);
}

REGISTER_GUILESS_TEST(tst_coptionmodulefilename)
#include "tst_coptionmodulefilename.moc"
