#include "configfile/CDeviceConfigurationFile10.h"
#include "imported/SXmlLimits.h"
#include "support/AccessWatch.h"
#include "support/AllocationCounter.h"
#include "support/Files.h"
#include "support/HostileDocuments.h"
#include "support/MarkedText.h"
#include "support/MessageCatcher.h"
#include "support/TestProgram.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>
#include <memory>

using namespace HostileDocuments;

/** Content that is made only when its row runs: some of it is large. */
using Maker = std::function<QByteArray()>;

Q_DECLARE_METATYPE(Maker)
using Change = void (*)(SXmlLimits &);
Q_DECLARE_METATYPE(Change)

class tst_hostileinput : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void accepted_data();
    void accepted();
    void encodings_data();
    void encodings();
    void markInside_data();
    void markInside();
    void externalEntities_data();
    void externalEntities();
    void limits_data();
    void limits();
    void limitsOfFiles();
    void memory_data();
    void memory();
    void longLists_data();
    void longLists();

private:
    QString path(const QString &name = u"a"_s) const { return m_directory->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_hostileinput::initTestCase()
{
    if (!AllocationCounter::isAvailable()) {
        qInfo("The heap cannot be watched here: how much memory is taken is not tested.");
    }
}

void tst_hostileinput::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
}

void tst_hostileinput::accepted_data()
{
    QTest::addColumn<Maker>("make");
    QTest::addColumn<int>("size");

    const auto row = [](const char *name, int size, const Maker &make) {
        QTest::newRow(name) << make << size;
    };
    row("256 elements deep", 0, []() { return nested(256); });
    row("256 attributes", 0, []() { return document(attributes(256, " a%=\"\"")); });
    row("attribute of 10 MB", 0, []() { return attribute(QByteArray(10 * Megabyte, 'a')); });
    row("text of 100 MB", 100 * Megabyte, []() { return named(QByteArray(100 * Megabyte, 'a')); });
    row("text of 10 MB of blanks", 10 * Megabyte,
        []() { return named(QByteArray(10 * Megabyte, ' ')); });
    row("text of 10 MB of line feeds", 10 * Megabyte,
        []() { return named(QByteArray(10 * Megabyte, '\n')); });
    row("10 MB of blanks between elements", 1,
        []() { return document(QByteArray(10 * Megabyte, ' ') + "<Name>a</Name>"); });
    row("text of 2,000,000 references", 2000000,
        []() { return named(QByteArray("&lt;").repeated(2000000)); });
    row("text of 1,000,000 three-byte characters", 1000000,
        []() { return named(QByteArray("\xE2\x82\xAC").repeated(1000000)); });
    row("section of 10 MB", 10 * Megabyte,
        []() { return named("<![CDATA[" + QByteArray(10 * Megabyte, ']') + "]]>"); });
    row("comment of 10 MB", 1,
        []() { return document("<!--" + QByteArray(10 * Megabyte, 'c') + "--><Name>a</Name>"); });
    row("instruction of 10 MB", 1,
        []() { return document("<?p " + QByteArray(10 * Megabyte, '?') + " ?><Name>a</Name>"); });
    row("document type with an identifier of 1 MB", 0, []() {
        return document(
            "", "<!DOCTYPE VornDeviceConfig SYSTEM \"" + QByteArray(Megabyte, 'x') + "\">\n");
    });
    row("version of 1 MB", 0,
        []() { return "<VornDeviceConfig version=\"" + QByteArray(Megabyte, '1') + "\"/>"; });
}

void tst_hostileinput::accepted()
{
    QFETCH(Maker, make);
    QFETCH(int, size);
    const QByteArray bytes = make();

    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QElapsedTimer time;
    time.start();
    AllocationCounter::start();
    const bool loaded = file.load(bytes);
    const qint64 peak = AllocationCounter::counts().peakBytes;
    qDebug("%d bytes: %lld ms, %lld bytes of heap", bytes.size(), time.elapsed(), peak);
    QVERIFY2(loaded, qPrintable(catcher.criticals().join(u'\n')));
    QCOMPARE(file.openResult(), NvrnGlobal::FILE_RESULT_SUCCESS);
    QCOMPARE(file.getNodeValue(u"Name"_s, QDomElement()).size(), size);
    QVERIFY2(peak <= qint64(MemoryFactor) * bytes.size() + SmallChange,
             QByteArray::number(peak).constData());
}

void tst_hostileinput::encodings_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("name");

    const QString all = u"\u00e9\u20ac\u201e \U0001F600"_s;
    const QByteArray allUtf8 = all.toUtf8();
    QTest::newRow("UTF-8") << named(allUtf8) << all;
    QTest::newRow("UTF-8 with a mark") << "\xEF\xBB\xBF" + named(allUtf8) << all;
    QTest::newRow("UTF-8 with a mark, declared")
        << "\xEF\xBB\xBF" + declared("UTF-8", allUtf8) << all;
    QTest::newRow("UTF-8 in other case") << declared("utf-8", allUtf8) << all;
    QTest::newRow("UTF-16LE") << utf16Document(all, ByteOrder::Little) << all;
    QTest::newRow("UTF-16BE") << utf16Document(all, ByteOrder::Big) << all;
    for (const ByteOrder order : {ByteOrder::Little, ByteOrder::Big}) {
        const char *const name =
            order == ByteOrder::Little ? "UTF-16LE, declared" : "UTF-16BE, declared";
        const QString text = QString::fromLatin1(declared("UTF-16", "%")).replace(u"%"_s, all);
        QTest::newRow(name) << utf16(QChar(QChar::ByteOrderMark) + text, order) << all;
    }
    QTest::newRow("ISO-8859-1") << declared("ISO-8859-1", "\xE9\xA4") << u"\u00e9\u00a4"_s;
    QTest::newRow("ISO-8859-1 in lower case") << declared("iso-8859-1", "\xE9") << u"\u00e9"_s;
    QTest::newRow("windows-1252") << declared("windows-1252", "\xE9\x80\x84\x9F\xFF")
                                  << u"\u00e9\u20ac\u201e\u0178\u00ff"_s;
    QTest::newRow("windows-1252, its own part")
        << declared("windows-1252",
                    "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E"
                    "\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F")
        << u"\u20ac\u201a\u0192\u201e\u2026\u2020\u2021\u02c6\u2030\u0160\u2039\u0152\u017d"
           "\u2018\u2019\u201c\u201d\u2022\u2013\u2014\u02dc\u2122\u0161\u203a\u0153\u017e\u0178"_s;
    QByteArray upper;
    for (int byte = 0xA0; byte <= 0xFF; ++byte) {
        upper += static_cast<char>(byte);
    }
    QTest::newRow("windows-1252, the part of ISO-8859-1")
        << declared("windows-1252", upper) << QString::fromLatin1(upper);
    QTest::newRow("windows-1252 in capitals") << declared("WINDOWS-1252", "\x80") << u"\u20ac"_s;
    QTest::newRow("US-ASCII") << declared("US-ASCII", "abc") << u"abc"_s;
    QTest::newRow("characters beyond the encoding")
        << declared("ISO-8859-1", "&#8364;&#x1F600;") << u"\u20ac\U0001F600"_s;
    QTest::newRow("U+007F, U+0085, U+009F, U+FFFD, U+10FFFF")
        << named("\x7F\xC2\x85\xC2\x9F\xEF\xBF\xBD\xF4\x8F\xBF\xBF")
        << u"\u007f\u0085\u009f\ufffd\U0010FFFF"_s;
    QTest::newRow("references to the outermost characters")
        << named("&#9;&#10;&#13;&#x20;&#xD7FF;&#xE000;&#xFFFD;&#x10000;&#x10FFFF;")
        << u"\t\n\r \ud7ff\ue000\ufffd\U00010000\U0010FFFF"_s;
    QTest::newRow("reference with leading zeros") << named("&#0000000000000000065;") << u"A"_s;
    QTest::newRow("entities of XML") << named("&lt;&gt;&amp;&quot;&apos;") << u"<>&\"'"_s;
    QTest::newRow("entities of XML with an external document type")
        << "<!DOCTYPE VornDeviceConfig SYSTEM \"x.dtd\">\n" + named("&lt;&#65;") << u"<A"_s;
}

void tst_hostileinput::encodings()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);

    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY2(file.load(bytes), qPrintable(catcher.criticals().join(u'\n')));
    QCOMPARE(file.getNodeValue(u"Name"_s, QDomElement()), name);
    QVERIFY(catcher.messages().isEmpty());

    // What is saved is UTF-8, whatever it was.
    QByteArray saved;
    QString error;
    QVERIFY2(file.save(saved, error), qPrintable(error));
    CDeviceConfigurationFile10 other(nullptr);
    QVERIFY(other.load(saved));
    QCOMPARE(other.getNodeValue(u"Name"_s, QDomElement()), name);
}

void tst_hostileinput::markInside_data()
{
    QTest::addColumn<QByteArray>("content");

    // The character is a byte order mark only where the document begins.
    const QByteArray mark = "\xEF\xBB\xBF";
    QTest::newRow("text") << "<Name>" + mark + mark + "x</Name>";
    QTest::newRow("mark alone") << "<Name>" + mark + "</Name>";
    QTest::newRow("long text") << "<Name>" + mark + mark + QByteArray(1000, 'x') + "</Name>";
    QTest::newRow("section") << "<Name><![CDATA[" + mark + mark + "]]></Name>";
    QTest::newRow("attribute") << "<Name a=\"" + mark + mark + "x\"/>";
    QTest::newRow("comment") << "<!--" + mark + mark + "x-->";
    QTest::newRow("instruction") << "<?p " + mark + mark + "x?>";
}

void tst_hostileinput::markInside()
{
    QFETCH(QByteArray, content);

    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load("\xEF\xBB\xBF" + document(content)));
    QByteArray saved;
    QString error;
    QVERIFY2(file.save(saved, error), qPrintable(error));
    QVERIFY2(saved.contains(content), saved.constData());
}

void tst_hostileinput::externalEntities_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isRead");

    const auto row = [](const char *name, const QByteArray &before, const QByteArray &content,
                        bool isRead = false) {
        QTest::newRow(name) << before << content << isRead;
    };
    row("general entity", "<!DOCTYPE VornDeviceConfig [<!ENTITY e SYSTEM \"file://%\">]>",
        "<Name>&e;</Name>");
    row("general entity by its path", "<!DOCTYPE VornDeviceConfig [<!ENTITY e SYSTEM \"%\">]>",
        "<Name>&e;</Name>");
    row("general entity with a public identifier",
        "<!DOCTYPE VornDeviceConfig [<!ENTITY e PUBLIC \"p\" \"%\">]>", "<Name>&e;</Name>");
    row("general entity in an attribute", "<!DOCTYPE VornDeviceConfig [<!ENTITY e SYSTEM \"%\">]>",
        "<Name a=\"&e;\"/>");
    row("parameter entity", "<!DOCTYPE VornDeviceConfig [<!ENTITY % p SYSTEM \"file://%\"> %p;]>",
        "");
    row("document type with entity", "<!DOCTYPE VornDeviceConfig SYSTEM \"file://%\">",
        "<Name>&e;</Name>");
    row("document type with entity in an attribute", "<!DOCTYPE VornDeviceConfig SYSTEM \"%\">",
        "<Name a=\"&e;\"/>");
    row("document type and no entity", "<!DOCTYPE VornDeviceConfig SYSTEM \"file://%\">",
        "<Name>a</Name>", true);
    row("document type with a public identifier and no entity",
        "<!DOCTYPE VornDeviceConfig PUBLIC \"p\" \"%\">", "<Name>a</Name>", true);
    row("standalone document",
        "<?xml version=\"1.0\" standalone=\"yes\"?>"
        "<!DOCTYPE VornDeviceConfig SYSTEM \"%\">",
        "<Name>a</Name>", true);
    row("schema", "",
        "<Name xsi:schemaLocation=\"u file://%\" "
        "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\">a</Name>",
        true);
    row("inclusion", "",
        "<xi:include href=\"file://%\" xmlns:xi=\"http://www.w3.org/2001/XInclude\"/>"
        "<Name>a</Name>",
        true);
    row("style sheet", "<?xml-stylesheet href=\"file://%\"?>", "<Name>a</Name>", true);
}

void tst_hostileinput::externalEntities()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, content);
    QFETCH(bool, isRead);

    const QString secret = path(u"secret"_s);
    QVERIFY(Files::write(secret, "<!ENTITY e \"content of the secret\">"));
    const AccessWatch watch(secret);
    QVERIFY(watch.isOk());
    QByteArray bytes = document(content, before);
    bytes.replace("file://%", "file://" + QFile::encodeName(secret));
    bytes.replace("\"%\"", '"' + QFile::encodeName(secret) + '"');
    QVERIFY(bytes.contains(QFile::encodeName(secret)));

    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    QCOMPARE(file.load(bytes), isRead);
    if (isRead) {
        QCOMPARE(file.getNodeValue(u"Name"_s, QDomElement()), u"a"_s);
        QByteArray saved;
        QString error;
        QVERIFY(file.save(saved, error));
        QVERIFY(!saved.contains("content of the secret"));
    }
    QVERIFY(!watch.wasOpened());
    QVERIFY(!catcher.criticals().join(u' ').contains(u"content"_s));
    QCOMPARE(Files::read(secret).isEmpty(), false);
    QVERIFY(watch.wasOpened());
}

void tst_hostileinput::limits_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QByteArray>("accepted");
    QTest::addColumn<QByteArray>("refused");
    QTest::addColumn<QString>("place");
    QTest::addColumn<QString>("number");

    const auto row = [](const char *name, Change change, const QByteArray &accepted,
                        const QByteArray &refused, const char16_t *number,
                        const QString &place = QString()) {
        QString where = place;
        QByteArray refusedBytes = refused;
        if (place.isNull()) {
            const MarkedText marked(refused);
            where = u"%1:%2: "_s.arg(marked.first().line).arg(marked.first().column);
            refusedBytes = marked.bytes();
        }
        QTest::newRow(name) << change << accepted << refusedBytes << where
                            << QString::fromUtf16(number);
    };
    const QByteArray small = document("");
    row(
        "file size", [](SXmlLimits &l) { l.fileSize = 100; },
        small + QByteArray(100 - small.size(), ' '), small + QByteArray(101 - small.size(), ' '),
        u"100", u""_s);
    row(
        "root alone", [](SXmlLimits &l) { l.depth = 1; }, document(""), document(" |<A/>"), u"1");
    row(
        "depth", [](SXmlLimits &l) { l.depth = 3; }, document("<A><B/>\n<B/></A><A/>\n"),
        document("<A><B/>\n<B/></A><A>\n<B>|<C/></B></A>"), u"3");
    const QByteArray deeper =
        document(QByteArray("<A>").repeated(999) + "|<B/>" + QByteArray("</A>").repeated(999));
    row(
        "greatest depth", [](SXmlLimits &l) { l.depth = SXmlLimits::MaximumDepth; }, nested(1000),
        deeper, u"1000 deep");
    row(
        "more than the greatest depth", [](SXmlLimits &l) { l.depth = Megabyte; }, nested(1000),
        deeper, u"1000 deep");
    row(
        "no attribute", [](SXmlLimits &l) { l.attributes = 1; }, document("<A a=\"\"/>"),
        document("<A a=\"\"/>\n |<A a=\"\" b=\"\"/>"), u"1");
    row(
        "attributes", [](SXmlLimits &l) { l.attributes = 3; },
        document("<A a=\"\" b=\"\" c=\"\"><A a=\"\" b=\"\" c=\"\"/></A>"),
        document("<A a=\"\" b=\"\" c=\"\">\n|<A a=\"\" b=\"\" c=\"\" d=\"\"/></A>"), u"3");
    row(
        "more attributes", [](SXmlLimits &l) { l.attributes = 1000; },
        document(attributes(1000, " a%=\"\"")), document("|" + attributes(1001, " a%=\"\"")),
        u"1000");
    row(
        "nodes", [](SXmlLimits &l) { l.nodes = 5; }, document("<A b=\"\">c</A>\n "),
        document("<A b=\"\">c</A>\n |<!--d-->"), u"5 nodes");
    row(
        "nodes that are blank texts", [](SXmlLimits &l) { l.nodes = 5; }, document("<A> </A> <A/>"),
        document("<A> </A><A> |</A>"), u"5 nodes");
    row(
        "name", [](SXmlLimits &l) { l.nameLength = 20; }, document("<abcdefghijklmnopqrst/>"),
        document("\n  |<abcdefghijklmnopqrstu/>"), u"20");
    row(
        "name of an attribute", [](SXmlLimits &l) { l.nameLength = 20; },
        document("<A abcdefghijklmnopqrst=\"\"/>"),
        document("\n  |<A abcdefghijklmnopqrstu=\"\"/>"), u"20");
    row(
        "name of an instruction", [](SXmlLimits &l) { l.nameLength = 20; },
        document("<?abcdefghijklmnopqrst?>"), document("\n  |<?abcdefghijklmnopqrstu?>"), u"20");
    row(
        "name in UTF-16 units", [](SXmlLimits &l) { l.nameLength = 20; },
        document("<" + QByteArray("\xC3\xA4").repeated(20) + "/>"),
        document("|<" + QByteArray("\xC3\xA4").repeated(21) + "/>"), u"20");
}

void tst_hostileinput::limits()
{
    QFETCH(Change, change);
    QFETCH(QByteArray, accepted);
    QFETCH(QByteArray, refused);
    QFETCH(QString, place);
    QFETCH(QString, number);

    const MessageCatcher catcher;
    CDeviceConfigurationFile10 file(nullptr);
    SXmlLimits limits;
    change(limits);
    file.setLimits(limits);
    QVERIFY2(file.load(accepted), qPrintable(catcher.criticals().join(u'\n')));
    QVERIFY(catcher.messages().isEmpty());

    QString error;
    QVERIFY(!file.open(refused, Type, Version, error));
    QVERIFY2(error.startsWith(place), qPrintable(error));
    QVERIFY2(error.mid(place.size()).contains(number), qPrintable(error));
    QVERIFY(file.domDocument().isNull());

    QVERIFY(Files::write(path(), refused));
    QString fileError;
    QVERIFY(!file.open(path(), Type, Version, fileError));
    const QString prefix = path() + (place.isEmpty() ? u": "_s : u":"_s);
    QCOMPARE(fileError, prefix + error);
    QVERIFY(Files::write(path(), accepted));
    QVERIFY(file.open(path(), Type, Version, fileError));

    // It is the limit alone that refuses it, unless there is a greater one that nobody can lift.
    limits.fileSize = Megabyte;
    limits.depth = SXmlLimits::MaximumDepth;
    limits.attributes = Megabyte;
    limits.nodes = Megabyte;
    limits.nameLength = Megabyte;
    file.setLimits(limits);
    QCOMPARE(file.load(refused), place.isEmpty() || !number.startsWith(u"1000 d"_s));
}

void tst_hostileinput::limitsOfFiles()
{
    CDeviceConfigurationFile10 file(nullptr);
    const SXmlLimits defaults = file.limits();
    QCOMPARE(defaults.fileSize, SXmlLimits().fileSize);
    QCOMPARE(defaults.depth, 256);
    QCOMPARE(defaults.attributes, 256);
    QCOMPARE(defaults.nameLength, 1024);

    // A file that is larger is not even read: one without blocks on the disk costs nothing.
    const MessageCatcher catcher;
    QFile large(path());
    QVERIFY(large.open(QIODevice::WriteOnly));
    QVERIFY(large.resize(defaults.fileSize + 1));
    AllocationCounter::start();
    QVERIFY(!file.open(path()));
    QVERIFY(AllocationCounter::counts().peakBytes < SmallChange);
    QVERIFY(catcher.criticals().constFirst().startsWith(path() + u": "_s));
}

void tst_hostileinput::memory_data()
{
    QTest::addColumn<QByteArray>("part");

    const auto row = [](const char *name, const QByteArray &part) { QTest::newRow(name) << part; };
    row("empty elements", "<A/>");
    row("elements", "<A>a</A>");
    row("elements with attribute", "<A a=\"b\"/>");
    row("elements with their own names", "<A%/>");
    row("comments", "<!---->");
    row("instructions", "<?p?>");
    row("sections", "<![CDATA[]]>");
    row("sections of a letter", "<![CDATA[a]]>");
    row("texts between elements", "a<A/>");
    row("blanks between elements", " <A/>");
    row("references", "&lt;");
}

void tst_hostileinput::memory()
{
    QFETCH(QByteArray, part);

    // Many small parts: what the document tree keeps of each is told, and grows with their number
    // alone.
    const auto read = [&](int count) {
        QByteArray content;
        for (int i = 0; i < count; ++i) {
            content += QByteArray(part).replace("%", QByteArray::number(100000 + i));
        }
        const QByteArray bytes = document(content);
        CDeviceConfigurationFile10 file(nullptr);
        QElapsedTimer time;
        time.start();
        AllocationCounter::start();
        const bool ok = file.load(bytes);
        const AllocationCounter::SCounts counts = AllocationCounter::counts();
        qDebug("%d bytes: %lld ms, %lld bytes of heap", bytes.size(), time.elapsed(),
               counts.peakBytes);
        return ok ? counts : AllocationCounter::SCounts{-1, -1, -1};
    };
    const int count = 20000;
    const AllocationCounter::SCounts once = read(count);
    const AllocationCounter::SCounts fourTimes = read(4 * count);
    QVERIFY(once.allocations >= 0);
    QVERIFY(fourTimes.allocations <= 5 * once.allocations);
    QVERIFY(fourTimes.peakBytes <= 5 * once.peakBytes + SmallChange);
}

void tst_hostileinput::longLists_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("part");
    QTest::addColumn<QByteArray>("behind");

    const auto row = [](const char *name, const char *before, const char *part,
                        const char *behind) {
        QTest::newRow(name) << QByteArray(before) << QByteArray(part) << QByteArray(behind);
    };
    row("devices", "", "<Device><Name>a</Name></Device>", "");
    row("sub-devices without number", "<Device>", "<SubDevice type=\"KD3_drive\"/>", "</Device>");
    row("sub-devices of one number", "<Device>", "<SubDevice><DriveNo>1</DriveNo></SubDevice>",
        "</Device>");
    row("options", "<Device><Config><Options>", "-a ", "</Options></Config></Device>");
    row("parameter files", "<Device><Config><ParameterFiles>", "<File><Name>a</Name></File>",
        "</ParameterFiles></Config></Device>");
    row("lists of parameter files", "<Device><Config>",
        "<ParameterFiles><File><Name>a</Name></File></ParameterFiles>", "</Config></Device>");
    row("plug-ins", "<Device><Config><Plugins>", "<Plugin><Name>a</Name></Plugin>",
        "</Plugins></Config></Device>");
    row("FPGA files", "<Device><Config><FPGA_FileNames>", "<File><Name>a</Name></File>",
        "</FPGA_FileNames></Config></Device>");
    row("additional files", "<Device><Config><Files>", "<File><Name>a</Name></File>",
        "</Files></Config></Device>");
    row("names of a device", "<Device>", "<Name>a</Name>", "</Device>");
    row("sections of a name", "<Device><Name>", "<![CDATA[a]]>", "</Name></Device>");
    row("comments in a name", "<Device><Name>", "a<!-- -->", "</Name></Device>");
    row("comments and blanks in a name", "<Device><Name>", " <!-- -->", "</Name></Device>");
}

void tst_hostileinput::longLists()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, part);
    QFETCH(QByteArray, behind);

    // To read, ask and save: the work grows with the number alone.
    const auto workFor = [&](int count) {
        const MessageCatcher catcher;
        const QByteArray bytes = document(before + part.repeated(count) + behind);
        CDeviceConfigurationFile10 file(nullptr);
        QElapsedTimer time;
        time.start();
        AllocationCounter::start();
        const bool loaded = file.load(bytes);
        CDeviceElement device;
        file.configuration(device);
        QByteArray saved;
        QString error;
        const bool isSaved = file.save(saved, error);
        qDebug("%d parts: %lld ms", count, time.elapsed());
        return loaded && isSaved ? AllocationCounter::counts().allocations : qint64(-1);
    };
    const qint64 once = workFor(5000);
    const qint64 fourTimes = workFor(20000);
    QVERIFY(once >= 0);
    QVERIFY(fourTimes <= 5 * once);
}

REGISTER_GUILESS_TEST(tst_hostileinput)
#include "tst_hostileinput.moc"
