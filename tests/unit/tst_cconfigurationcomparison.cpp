#include "commissioning/CConfigurationComparison.h"
#include "support/ComparedDocuments.h"
#include "support/LargeConfiguration.h"
#include "support/MessageCatcher.h"
#include "support/RandomConfiguration.h"

#include <QTest>

using namespace ComparedDocuments;

namespace {

QStringList difference(const QByteArray &before, const QByteArray &after)
{
    const File left = load(before);
    const File right = load(after);
    return left && right ? CConfigurationComparison::compare(*left, *right).describe()
                         : QStringList{u"unreadable"_s};
}

/** A document with @p config in its configuration block, and @p drives behind it. */
QByteArray document(const QByteArray &config, const QByteArray &drives = QByteArray())
{
    return "<VornDeviceConfig version=\"1.0\"><Device><Name>D</Name><Config>" + config + "</Config>"
        + drives + "</Device></VornDeviceConfig>";
}

QByteArray file(const QByteArray &name, const QByteArray &comment, const QByteArray &directory = "")
{
    return "<File><Name>" + name + "</Name><Comment>" + comment + "</Comment><DeviceDir>"
        + directory + "</DeviceDir></File>";
}

QByteArray files(const QByteArray &content)
{
    return document("<Files>" + content + "</Files>");
}

QByteArray images(const QList<QByteArray> &names)
{
    QByteArray content;
    for (const QByteArray &name : names) {
        content += "<File><Name>" + name + "</Name></File>";
    }
    return document("<FPGA_FileNames>" + content + "</FPGA_FileNames>");
}

QByteArray drive(const QByteArray &number, const QByteArray &name,
                 const QByteArray &type = "KD3_drive")
{
    return "<SubDevice type=\"" + type + "\"><Name>" + name + "</Name><DriveNo>" + number
        + "</DriveNo></SubDevice>";
}

} // namespace

/** Differences that mean something, and none of the others. */
class tst_cconfigurationcomparison : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equal_data();
    void equal();
    void different_data();
    void different();
    void documentsStayAsTheyAre();
    void nothingIsPosted();
    void withoutDocument();
    void differencesMakeTheOther_data();
    void differencesMakeTheOther();
    void orderOfListsMeansNothing();
    void manyFiles_data();
    void manyFiles();
    void manyFilesOfOneNameThatAllDiffer();
};

void tst_cconfigurationcomparison::equal_data()
{
    QTest::addColumn<QByteArray>("left");
    QTest::addColumn<QByteArray>("right");

    const QByteArray a = file("a", "1");
    const QByteArray b = file("b", "2");
    QTest::newRow("itself") << example() << example();
    QTest::newRow("white space between elements")
        << files(a + b) << files("\n\t" + a + "\n\n" + b + "  ");
    QTest::newRow("comments") << files(a) << files("<!-- mine -->" + a + "<!-- too -->");
    QTest::newRow("files in another order") << files(a + b) << files(b + a);
    QTest::newRow("files of one name in another order")
        << files(file("a", "1") + file("a", "2")) << files(file("a", "2") + file("a", "1"));
    QTest::newRow("OPC UA files in another order")
        << document("<OpcUa><OpcUaFiles>" + a + b + "</OpcUaFiles></OpcUa>")
        << document("<OpcUa><OpcUaFiles>" + b + a + "</OpcUaFiles></OpcUa>");
    QTest::newRow("parameter files in another order")
        << document("<ParameterFiles>" + a + b + "</ParameterFiles>")
        << document("<ParameterFiles>" + b + a + "</ParameterFiles>");
    QTest::newRow("plug-ins in another order")
        << document("<Plugins><Plugin><Name>a</Name></Plugin><Plugin><Name>b</Name></Plugin>"
                    "</Plugins>")
        << document("<Plugins><Plugin><Name>b</Name></Plugin><Plugin><Name>a</Name></Plugin>"
                    "</Plugins>");
    QTest::newRow("options in another order")
        << document("<Options>-a 1 -b -c</Options>") << document("<Options>-c -b -a 1</Options>");
    QTest::newRow("blanks between options")
        << document("<Options>-a 1 2</Options>") << document("<Options>  -a  1\n2 </Options>");
    QTest::newRow("spare FPGA images in another order")
        << images({"a", "b", "c"}) << images({"a", "c", "b"});
    QTest::newRow("drives in another order") << document("", drive("1", "A") + drive("2", "B"))
                                             << document("", drive("2", "B") + drive("1", "A"));
    QTest::newRow("drive number in another spelling")
        << document("", drive("1", "A")) << document("", drive("01", "A"));
    QTest::newRow("elements in another order")
        << files("<File><Name>a</Name><Comment>1</Comment></File>")
        << files("<File><Comment>1</Comment><Name>a</Name></File>");
    QTest::newRow("empty elements and none")
        << files("<File><Name>a</Name><Comment/><DeviceDir/></File>")
        << files("<File><Name>a</Name></File>");
    QTest::newRow("empty lists and none")
        << document("<Files/><Options/><Dictionary><File/></Dictionary>") << document("");
    QTest::newRow("empty single file and none")
        << document("<Dictionary>" + file("", "") + "</Dictionary>") << document("");
    QTest::newRow("empty device and none")
        << QByteArray("<VornDeviceConfig version=\"1.0\"><Device/></VornDeviceConfig>")
        << QByteArray("<VornDeviceConfig version=\"1.0\"/>");
    QTest::newRow("OPC UA off and not told")
        << document("<OpcUa><OpcUaEnabled>false</OpcUaEnabled></OpcUa>") << document("");
    QTest::newRow("OPC UA off in other words")
        << document("<OpcUa><OpcUaEnabled>TRUE</OpcUaEnabled></OpcUa>") << document("");
    QTest::newRow("KD3 drives of other types")
        << document("", drive("1", "A", "KD3_drive") + drive("2", "B", "kd2_drive"))
        << document("", drive("1", "A", "UNKNOWN_drive") + drive("2", "B", "KD3_drive"));
    QTest::newRow("directory in another spelling")
        << files(file("a", "", "velkor\\conf")) << files(file("a", "", "/velkor/conf/"));
    QTest::newRow("bus identifier 0 and none")
        << document("", "<SubDevice><DriveNo>1</DriveNo><BusId>0</BusId></SubDevice>")
        << document("", "<SubDevice><DriveNo>1</DriveNo></SubDevice>");
    QTest::newRow("class Undefined and none")
        << document("").replace("<Config>", "<Class>Undefined</Class><Config>") << document("");
    QTest::newRow("unknown content")
        << files(a) << files("<File x=\"1\"><Name>a</Name><Comment>1</Comment><Mine/></File>");
    QTest::newRow("meta data") << example()
                               << changed(example(),
                                          {"<Author>Commissioning|<Author>Somebody",
                                           "<Date>2026-09-14|<Date>2026-09-15"});
}

void tst_cconfigurationcomparison::equal()
{
    QFETCH(QByteArray, left);
    QFETCH(QByteArray, right);
    QCOMPARE(difference(left, right), QStringList());
    QCOMPARE(difference(right, left), QStringList());
}

void tst_cconfigurationcomparison::different_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *name, const QList<QByteArray> &replacements,
                        const char *expected) {
        QTest::newRow(name) << example() << changed(example(), replacements)
                            << QString::fromUtf8(expected);
    };
    row("description", {"<Version>1.2<|<Version>1.3<"}, "description: version 1.2 -> 1.3");
    row("date", {"<RevisionDate>2026-09-14|<RevisionDate>2026-09-15"},
        "description: revision date 2026-09-14 -> 2026-09-15");
    row("class", {"<Class>kd3|<Class>kc2"}, "device: class kd3 -> kc2");
    row("name is gone", {"<Name>PackagingLine</Name>|"}, "device: name PackagingLine -> (empty)");
    row("comment is empty", {"<Comment>Folding box line 4, hall B</Comment>|<Comment/>"},
        "device: comment Folding box line 4, hall B -> (empty)");
    row("execution plug-in", {"<ExecutionPlugin>motion|<ExecutionPlugin>other"},
        "device: execution plug-in motion -> other");
    row("OPC UA", {"<OpcUaEnabled>true|<OpcUaEnabled>false"},
        "device: OPC UA enabled true -> false");
    row("option with argument", {"-trace |-trace 4 "}, "option -trace: argument (empty) -> 4");
    row("options", {"-trace |", "-opc|-opc -log 4"},
        "option -trace removed\noption -log added\n    argument 4");
    row("parameter file", {"<File type=\"VornLogicDataBase\">|<File type=\"VornMotorParameters\">"},
        "parameter file FpgaParams: type VornLogicDataBase -> VornMotorParameters");
    row("single file", {"KD3_Dictionary_V1|KD3_Dictionary_V2"},
        "object dictionary: name KD3_Dictionary_V1.xml -> KD3_Dictionary_V2.xml");
    row("OPC UA file",
        {"<Name>kd3NodeSet.xml</Name>\n      <Comment/>|"
         "<Name>kd3NodeSet.xml</Name>\n      <Comment>x</Comment>"},
        "OPC UA file kd3NodeSet.xml: comment (empty) -> x");
    row("plug-in", {"<Priority>20|<Priority>30"}, "plug-in motion: priority 20 -> 30");
    row("drive", {"<Name>Gluer|<Name>GRIPPER"}, "drive 2: name Gluer -> GRIPPER");
    row("file of a drive",
        {"Infeed.3param</Name>\n     <Comment/>|"
         "Infeed.3param</Name>\n     <Comment>x</Comment>"},
        "drive 0: parameter file: comment (empty) -> x");
    row("file", {"Box formats|All"}, "file recipes.csv: comment Box formats -> All");
    row("file that was renamed", {"<Name>recipes.csv|<Name>r.csv"},
        "file recipes.csv removed\n"
        "    comment Box formats\n"
        "    device directory /velkor/configurations/STD/conf/\n"
        "    project directory PackagingLine/velkor/conf/\n"
        "file r.csv added\n"
        "    comment Box formats\n"
        "    device directory /velkor/configurations/STD/conf/\n"
        "    project directory PackagingLine/velkor/conf/");

    const auto documents = [](const char *name, const QByteArray &before, const QByteArray &after,
                              const char *expected) {
        QTest::newRow(name) << before << after << QString::fromUtf8(expected);
    };
    documents("drives", document("", drive("1", "A") + drive("10", "B")),
              document("", drive("10", "B") + drive("3", "Stacker")),
              "drive 1 (A) removed\n    type KD3_drive\n"
              "drive 3 (Stacker) added\n    type KD3_drive");
    documents("active FPGA image", images({"a", "b"}), images({"b", "a"}),
              "device: active FPGA image a -> b");
    documents("active FPGA image is new", images({"a"}), images({"b", "a"}),
              "FPGA image b added\ndevice: active FPGA image a -> b");
    documents("active FPGA image is gone", images({"a", "b"}), images({"b"}),
              "device: active FPGA image a -> b\nFPGA image a removed");
    documents("first FPGA image", images({}), images({"a", "b"}),
              "FPGA image a added\nFPGA image b added");
    documents("last FPGA image", images({"a"}), images({}), "FPGA image a removed");
    documents("single file is gone", document("<Dictionary>" + file("d", "x") + "</Dictionary>"),
              document(""), "object dictionary (d) removed\n    comment x");
    documents("single file is new", document(""),
              document("<EtherCatMaster>" + file("e", "") + "</EtherCatMaster>"),
              "EtherCAT master file (e) added");
    documents("one name, the least differs",
              files(file("a", "1", "/x/") + file("a", "2", "/y/") + file("a", "3", "/z/")),
              files(file("a", "3", "/z/") + file("a", "4", "/y/")),
              "file a [2]: comment 2 -> 4\n"
              "file a removed\n    comment 1\n    device directory /x/");
    documents("one name, two are gone", files(file("a", "1") + file("a", "2") + file("a", "3")),
              files(file("a", "2")),
              "file a [3] removed\n    comment 3\nfile a removed\n    comment 1");
    documents("one name, one is new", files(file("a", "1")), files(file("a", "2") + file("a", "1")),
              "file a [2] added\n    comment 2");
    documents("names with brackets", files(file("a[2]", "1")), files(file("a[2]", "2")),
              "file a[2]: comment 1 -> 2");
    documents("KD2 becomes KD3",
              document("",
                       drive("1", "A", "KD2_drive")
                           .replace("</SubDevice>",
                                    "<KD2Logic>" + file("l", "") + "</KD2Logic></SubDevice>")),
              document("", drive("1", "A")),
              "drive 1: KD2 logic (l) removed\ndrive 1: type KD2_drive -> KD3_drive");
    documents("KD3 becomes KD2", document("", drive("1", "A")),
              document("",
                       drive("1", "A", "KD2_drive")
                           .replace("</SubDevice>",
                                    "<KD2Logic>" + file("l", "") + "</KD2Logic></SubDevice>")),
              "drive 1: type KD3_drive -> KD2_drive\ndrive 1: KD2 logic (l) added");
    documents("priority is gone",
              document("<Plugins><Plugin><Name>a</Name><Priority>0</Priority></Plugin></Plugins>"),
              document("<Plugins><Plugin><Name>a</Name></Plugin></Plugins>"),
              "plug-in a: priority 0 -> (empty)");
}

void tst_cconfigurationcomparison::different()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QString, expected);
    QCOMPARE(difference(before, after).join(QLatin1Char('\n')), expected);
}

void tst_cconfigurationcomparison::documentsStayAsTheyAre()
{
    const QByteArray other = changed(example(), {"<Name>Gluer|<Name>GRIPPER"});
    const File left = load(example());
    const File right = load(other);
    const QByteArray before = saved(*left);
    QVERIFY(!CConfigurationComparison::compare(*left, *right).isEmpty());
    QCOMPARE(saved(*left), before);
    QCOMPARE(saved(*right), other);
}

void tst_cconfigurationcomparison::nothingIsPosted()
{
    const File left = load(document("", drive("x", "A") + drive("", "B")));
    const File right = load(example());
    const MessageCatcher catcher;
    CConfigurationComparison::compare(*left, *right);
    QVERIFY(catcher.messages().isEmpty());
}

void tst_cconfigurationcomparison::withoutDocument()
{
    CDeviceConfigurationFile10 nothing(nullptr);
    const File empty = load("<VornDeviceConfig version=\"1.0\"/>");
    QVERIFY(CConfigurationComparison::compare(nothing, *empty).isEmpty());
    QVERIFY(CConfigurationComparison::compare(*empty, nothing).isEmpty());
}

void tst_cconfigurationcomparison::differencesMakeTheOther_data()
{
    QTest::addColumn<uint>("rarity");
    QTest::newRow("nothing in common") << 1u;
    QTest::newRow("much in common") << 4u;
}

void tst_cconfigurationcomparison::differencesMakeTheOther()
{
    QFETCH(uint, rarity);
    const quint32 runs = 80;
    int differentPairs = 0;
    for (quint32 seed = 0; seed < runs; ++seed) {
        RandomConfiguration random(seed);
        CDeviceElement device = random.device();
        const File before = RandomConfiguration::document(random.description(), device);
        random.change(device, rarity);
        const File after = RandomConfiguration::document(random.description(), device);
        QVERIFY(before && after);
        const CConfigurationPatch patch = CConfigurationComparison::compare(*before, *after);
        differentPairs += patch.isEmpty() ? 0 : 1;

        QStringList mismatches;
        const bool isApplied = patch.apply(*before, mismatches);
        QVERIFY2(isApplied,
                 qPrintable(u"%1: %2"_s.arg(seed).arg(mismatches.join(QLatin1Char('\n')))));
        const QStringList rest = CConfigurationComparison::compare(*before, *after).describe();
        QVERIFY2(rest.isEmpty(),
                 qPrintable(u"%1: %2\n%3"_s.arg(seed).arg(
                     rest.join(QLatin1Char('\n')), patch.describe().join(QLatin1Char('\n')))));
        QVERIFY(CConfigurationComparison::compare(*after, *before).isEmpty());
        // Also for those who read the document in the other way.
        CDeviceElement made;
        CDeviceElement meant;
        const MessageCatcher catcher;
        QVERIFY(before->configuration(made) && after->configuration(meant));
        QCOMPARE(made.name(), meant.name());
        QCOMPARE(made.activeFpgaFile(), meant.activeFpgaFile());
        QCOMPARE(made.subDevices().size(), meant.subDevices().size());
        for (const CSubDeviceElement &drive : meant.subDevices()) {
            QCOMPARE(made.subDevice(drive.driveId()), drive);
        }
    }
    QVERIFY(differentPairs > static_cast<int>(runs) * 9 / 10);
}

void tst_cconfigurationcomparison::orderOfListsMeansNothing()
{
    for (quint32 seed = 0; seed < 50; ++seed) {
        RandomConfiguration random(seed);
        const CDescriptionElement description = random.description();
        CDeviceElement device = random.device();
        const File before = RandomConfiguration::document(description, device);
        const auto reversed = [](auto list) {
            std::reverse(list.begin(), list.end());
            return list;
        };
        device.setAdditionalFiles(reversed(device.additionalFiles()));
        device.setOpcUaFiles(reversed(device.opcUaFiles()));
        device.setPlugins(reversed(device.plugins()));
        device.setParameterFiles(reversed(device.parameterFiles()));
        device.setOptions(reversed(device.options()));
        device.setSubDevices(reversed(device.subDevices()));
        const File after = RandomConfiguration::document(description, device);
        const QStringList rest = CConfigurationComparison::compare(*before, *after).describe();
        QVERIFY2(rest.isEmpty(), qPrintable(rest.join(QLatin1Char('\n'))));
    }
}

void tst_cconfigurationcomparison::manyFiles_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("names of their own") << QByteArray("%.csv");
    QTest::newRow("one name") << QByteArray("a.csv");
}

/** Nothing to tell which of them belong together, and too many to try all. */
void tst_cconfigurationcomparison::manyFilesOfOneNameThatAllDiffer()
{
    const int count = 10000;
    QByteArray before;
    QByteArray after;
    for (int i = 0; i < count; ++i) {
        before += file("a", QByteArray::number(i));
        after += file("a", QByteArray::number(i + count));
    }
    const QStringList lines = difference(files(before), files(after));
    QCOMPARE(lines.size(), count);
    QCOMPARE(lines.constFirst(), u"file a: comment 0 -> 10000"_s);
    QCOMPARE(lines.constLast(), u"file a [10000]: comment 9999 -> 19999"_s);
}

void tst_cconfigurationcomparison::manyFiles()
{
    QFETCH(QByteArray, name);
    const int count = 10000;
    QByteArray forward;
    QByteArray backward;
    for (int i = 0; i < count; ++i) {
        const QByteArray number = QByteArray::number(i);
        const QByteArray ownName = QByteArray(name).replace("%", number);
        forward += file(ownName, number);
        backward.prepend(file(ownName, i == 17 ? QByteArray("changed") : number));
    }
    const QString which = name == "a.csv" ? u"a.csv [18]"_s : u"17.csv"_s;
    QCOMPARE(difference(files(forward), files(backward)),
             QStringList{u"file %1: comment 17 -> changed"_s.arg(which)});
}

QTEST_GUILESS_MAIN(tst_cconfigurationcomparison)
#include "tst_cconfigurationcomparison.moc"
