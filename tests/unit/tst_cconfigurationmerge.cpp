#include "commissioning/CConfigurationComparison.h"
#include "commissioning/CConfigurationMerge.h"
#include "support/ComparedDocuments.h"
#include "support/RandomConfiguration.h"
#include "support/TestProgram.h"

#include <QTest>

using namespace ComparedDocuments;
using SConflict = CConfigurationMerge::SConflict;

namespace {

QStringList described(const QList<SConflict> &conflicts)
{
    QStringList lines;
    for (const SConflict &conflict : conflicts) {
        lines << CConfigurationMerge::describe(conflict);
    }
    return lines;
}

/** The conflicts as they are told when the sides are swapped; sorted. */
QStringList swapped(const QList<SConflict> &conflicts)
{
    QStringList lines;
    for (SConflict conflict : conflicts) {
        std::swap(conflict.ours, conflict.theirs);
        if (conflict.conflict == CConfigurationMerge::REMOVED_BY_OURS) {
            conflict.conflict = CConfigurationMerge::REMOVED_BY_THEIRS;
        } else if (conflict.conflict == CConfigurationMerge::REMOVED_BY_THEIRS) {
            conflict.conflict = CConfigurationMerge::REMOVED_BY_OURS;
        }
        lines << CConfigurationMerge::describe(conflict).join(QLatin1Char('\n'));
    }
    lines.sort();
    return lines;
}

QStringList sorted(const QList<SConflict> &conflicts)
{
    QStringList lines;
    for (const SConflict &conflict : conflicts) {
        lines << CConfigurationMerge::describe(conflict).join(QLatin1Char('\n'));
    }
    lines.sort();
    return lines;
}

using Bytes = QList<QByteArray>;

const QByteArray SecondFile = "    </File>\n   </Files>|    </File>\n    <File>\n     "
                              "<Name>%</Name>\n     <Comment>@</Comment>\n"
                              "    </File>\n   </Files>";

QByteArray newFile(const char *name, const char *comment = "")
{
    return QByteArray(SecondFile).replace("%", name).replace("@", comment);
}

QByteArray newDrive(const char *name, const char *type = "KD3_drive")
{
    return QByteArray(" </Device>|<SubDevice type=\"") + type + "\"><Name>" + name
        + "</Name><DriveNo>3</DriveNo><BusId>9</BusId></SubDevice> </Device>";
}

/** A replacement that removes what lies between two texts of the example, both included. */
QByteArray without(const char *from, const char *to)
{
    const QByteArray text = example();
    const int begin = text.indexOf(from);
    const int end = text.indexOf(to, begin) + static_cast<int>(qstrlen(to));
    return text.mid(begin, end - begin) + "|";
}

QByteArray withoutDrive2()
{
    return without("  <SubDevice type=\"KD2_drive\">", "</SubDevice>\n");
}

QByteArray withoutImage11()
{
    return without("    <File>\n     <Name>kd3_motion_v11.bit", "</File>\n");
}

const QByteArray Image11First = "kd3_motion_v12.bit</Name>\n    </File>\n    <File>\n     <Name>"
                                "kd3_motion_v11.bit|kd3_motion_v11.bit</Name>\n    </File>\n"
                                "    <File>\n     <Name>kd3_motion_v12.bit";

} // namespace

/** Three-way merges: what is taken, what stays, and what is told. */
class tst_cconfigurationmerge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void merge_data();
    void merge();
    void restOfOursStays();
    void whatCannotBeStoredIsAConflict();
    void drivesWithoutValidNumbers();
    void entriesOfOneKey();
    void entriesOfOneKeyAddedByBoth();
    void conflictHasItsParts();
    void oursAloneIsOurs();
    void theirsAloneIsTheirs();
    void sameChangesAreOne();
    void conflictsAreSymmetrical();
    void cleanMergesAreSymmetrical();
};

void tst_cconfigurationmerge::merge_data()
{
    QTest::addColumn<Bytes>("ours");
    QTest::addColumn<Bytes>("theirs");
    QTest::addColumn<QString>("taken");
    QTest::addColumn<QString>("conflicts");

    const auto row = [](const char *name, const Bytes &ours, const Bytes &theirs, const char *taken,
                        const char *conflicts) {
        QTest::newRow(name) << ours << theirs << QString::fromUtf8(taken)
                            << QString::fromUtf8(conflicts);
    };
    row("nothing", {}, {}, "", "");
    row("ours", {">Gluer<|>A<"}, {}, "", "");
    row("theirs", {}, {">Gluer<|>A<"}, "drive 2: name Gluer -> A", "");
    row("the same", {">Gluer<|>A<", newFile("a")}, {">Gluer<|>A<", newFile("a")}, "", "");
    row("different items", {">Gluer<|>A<"}, {"Old drive|My drive", ">Infeed<|>B<"},
        "drive 0: name Infeed -> B\n"
        "drive 2: comment Old drive, kept from line 2 -> My drive, kept from line 2",
        "");
    row("one item", {">Gluer<|>GRIPPER<"}, {">Gluer<|>CLAMP<"}, "",
        "drive 2: name: base Gluer, ours GRIPPER, theirs CLAMP");
    row("one item, ours is gone", {"<Name>Gluer</Name>|"}, {">Gluer<|>CLAMP<"}, "",
        "drive 2: name: base Gluer, ours (empty), theirs CLAMP");
    row("one item and another", {">Gluer<|>A<"}, {">Gluer<|>B<", ">Infeed<|>C<"},
        "drive 0: name Infeed -> C", "drive 2: name: base Gluer, ours A, theirs B");
    row("description and device", {"<Version>1.2|<Version>1.3"}, {"<Class>kd3|<Class>kc2"},
        "device: class kd3 -> kc2", "");
    row("one item of the device", {"<Class>kd3|<Class>Undefined"}, {"<Class>kd3|<Class>kc2"}, "",
        "device: class: base kd3, ours Undefined, theirs kc2");
    row("files in one place", {newFile("a")}, {newFile("b")}, "file b added", "");
    row("file added by both in different ways", {newFile("a", "1")}, {newFile("a", "2")}, "",
        "file a: comment: base (empty), ours 1, theirs 2");
    row("file added by both, one has more", {newFile("a")}, {newFile("a", "2")}, "",
        "file a: comment: base (empty), ours (empty), theirs 2");
    row("drive added by both", {newDrive("A")}, {newDrive("B")}, "",
        "drive 3: name: base (empty), ours A, theirs B");
    row("drive of another type added by both", {newDrive("A")}, {newDrive("A", "KD2_drive")}, "",
        "drive 3: type: base KD3_drive, ours KD3_drive, theirs KD2_drive");
    row("removed by theirs", {}, {withoutDrive2()},
        "drive 2 (Gluer) removed\n    type KD2_drive\n"
        "    hardware identity KD3:KD3 Controller 8A:3:2:1\n    comment Old drive, kept from line "
        "2\n"
        "    bus identifier 7\n    parameter file: name Gluer.3param\n"
        "    parameter file: device directory /velkor/configurations/STD/subdevices/2/param/\n"
        "    parameter file: project directory PackagingLine/velkor/subdevices/2/param/\n"
        "    KD2 parameter file: name kd2_params.xml\n"
        "    KD2 parameter file: device directory /velkor/configurations/STD/subdevices/2/param/\n"
        "    KD2 parameter file: project directory PackagingLine/velkor/subdevices/2/param/\n"
        "    KD2 logic: name kd2_logic_2_1.bit\n"
        "    KD2 logic: device directory /velkor/configurations/STD/subdevices/2/logic/\n"
        "    KD2 logic: project directory PackagingLine/velkor/subdevices/2/logic/\n"
        "    KD2 firmware: name kd2_fw_4_7.bin\n"
        "    KD2 firmware: device directory /velkor/configurations/STD/subdevices/2/firmware/\n"
        "    KD2 firmware: project directory PackagingLine/velkor/subdevices/2/firmware/",
        "");
    row("removed by ours", {withoutDrive2()}, {}, "", "");
    row("removed by both", {withoutDrive2()}, {withoutDrive2()}, "", "");
    row("removed by ours, changed by theirs", {withoutDrive2()}, {">Gluer<|>A<"}, "",
        "drive 2: removed by ours, but changed by theirs\n    drive 2: name Gluer -> A");
    row("changed by ours, removed by theirs", {">Gluer<|>A<"}, {withoutDrive2()}, "",
        "drive 2: changed by ours, but removed by theirs\n    drive 2: name Gluer -> A");
    row("option", {"-trace|-trace 1"}, {"-trace|-trace 2"}, "",
        "option -trace: argument: base (empty), ours 1, theirs 2");
    row("options", {"-trace |"}, {"-opc|-opc -v"}, "option -v added", "");
    row("single file removed by theirs", {}, {without("   <Dictionary>", "</Dictionary>\n")},
        "object dictionary (KD3_Dictionary_V1.xml) removed\n"
        "    device directory /opt/velkor/configurations/STD/conf/\n"
        "    project directory PackagingLine/opt/velkor/conf/",
        "");
    row("single file changed by ours, removed by theirs", {"KD3_Dictionary_V1|KD3_Dictionary_V2"},
        {without("   <Dictionary>", "</Dictionary>\n")}, "",
        "object dictionary: changed by ours, but removed by theirs\n"
        "    object dictionary: name KD3_Dictionary_V1.xml -> KD3_Dictionary_V2.xml");
    row("single file removed by ours, changed by theirs",
        {without("   <Dictionary>", "</Dictionary>\n")}, {"KD3_Dictionary_V1|KD3_Dictionary_V2"},
        "",
        "object dictionary: removed by ours, but changed by theirs\n"
        "    object dictionary: name KD3_Dictionary_V1.xml -> KD3_Dictionary_V2.xml");
    row("active FPGA image by theirs", {}, {Image11First},
        "device: active FPGA image kd3_motion_v12.bit -> kd3_motion_v11.bit", "");
    row("active FPGA image by ours", {Image11First}, {newFile("a")}, "file a added", "");
    row("active FPGA image in different ways", {Image11First},
        {"<FPGA_FileNames>|<FPGA_FileNames><File><Name>new.bit</Name></File>"},
        "FPGA image new.bit added",
        "device: active FPGA image: base kd3_motion_v12.bit, ours kd3_motion_v11.bit, theirs "
        "new.bit");
    row("new active FPGA image by theirs", {withoutImage11()},
        {"<FPGA_FileNames>|<FPGA_FileNames><File><Name>new.bit</Name></File>"},
        "FPGA image new.bit added\ndevice: active FPGA image kd3_motion_v12.bit -> new.bit", "");
    row("FPGA image activated by ours, removed by theirs", {Image11First}, {withoutImage11()}, "",
        "FPGA image kd3_motion_v11.bit: changed by ours, but removed by theirs\n"
        "    device: active FPGA image kd3_motion_v12.bit -> kd3_motion_v11.bit");
    row("FPGA image removed by ours, activated by theirs", {withoutImage11()}, {Image11First}, "",
        "FPGA image kd3_motion_v11.bit: removed by ours, but changed by theirs\n"
        "    device: active FPGA image kd3_motion_v12.bit -> kd3_motion_v11.bit");
    row("FPGA images removed by ours, replaced by theirs",
        {without("   <FPGA_FileNames>", "</FPGA_FileNames>\n")},
        {without("   <FPGA_FileNames>", "</FPGA_FileNames>\n"),
         "<Plugins>|<FPGA_FileNames><File><Name>new.bit</Name></File></FPGA_FileNames><Plugins>"},
        "FPGA image new.bit added", "");
    row("KD2 drive becomes a KD3 drive by theirs", {">Gluer<|>A<"},
        {"type=\"KD2_drive|type=\"KD3_drive"},
        "drive 2: KD2 parameter file (kd2_params.xml) removed\n"
        "    device directory /velkor/configurations/STD/subdevices/2/param/\n"
        "    project directory PackagingLine/velkor/subdevices/2/param/\n"
        "drive 2: KD2 logic (kd2_logic_2_1.bit) removed\n"
        "    device directory /velkor/configurations/STD/subdevices/2/logic/\n"
        "    project directory PackagingLine/velkor/subdevices/2/logic/\n"
        "drive 2: KD2 firmware (kd2_fw_4_7.bin) removed\n"
        "    device directory /velkor/configurations/STD/subdevices/2/firmware/\n"
        "    project directory PackagingLine/velkor/subdevices/2/firmware/\n"
        "drive 2: type KD2_drive -> KD3_drive",
        "");
    row("KD2 file changed by ours, KD3 drive by theirs", {"kd2_fw_4_7|kd2_fw_4_8"},
        {"type=\"KD2_drive|type=\"KD3_drive", ">Gluer<|>A<"}, "drive 2: name Gluer -> A",
        "drive 2: KD2 firmware: changed by ours, but removed by theirs\n"
        "    drive 2: KD2 firmware: name kd2_fw_4_7.bin -> kd2_fw_4_8.bin");
    row("KD3 drive by ours, KD2 file changed by theirs",
        {"type=\"KD2_drive|type=\"KD3_drive", ">Gluer<|>A<"}, {"kd2_fw_4_7|kd2_fw_4_8"}, "",
        "drive 2: KD2 firmware: removed by ours, but changed by theirs\n"
        "    drive 2: KD2 firmware: name kd2_fw_4_7.bin -> kd2_fw_4_8.bin");
    row("KD3 drive by ours, KD2 file removed by theirs", {"type=\"KD2_drive|type=\"KD3_drive"},
        {without("   <KD2Logic>", "</KD2Logic>\n")}, "",
        "drive 2: KD2 logic: removed by ours, but changed by theirs\n"
        "    drive 2: KD2 logic (kd2_logic_2_1.bit) removed\n"
        "        device directory /velkor/configurations/STD/subdevices/2/logic/\n"
        "        project directory PackagingLine/velkor/subdevices/2/logic/");
    row("KD3 drive becomes a KD2 drive by theirs", {">Infeed<|>A<"},
        {"type=\"KD3_drive|type=\"KD2_drive",
         "</Param>\n|</Param><KD2Logic><File><Name>l.bit</Name></File></KD2Logic>\n"},
        "drive 0: type KD3_drive -> KD2_drive\ndrive 0: KD2 logic (l.bit) added", "");
}

void tst_cconfigurationmerge::merge()
{
    QFETCH(Bytes, ours);
    QFETCH(Bytes, theirs);
    QFETCH(QString, taken);
    QFETCH(QString, conflicts);
    const File base = load(example());
    const File left = load(changed(example(), ours));
    const File right = load(changed(example(), theirs));
    QVERIFY(base && left && right);
    const QByteArray before = saved(*left);
    const CConfigurationMerge merge(*base, *left, *right);
    QCOMPARE(merge.patch().describe().join(QLatin1Char('\n')), taken);
    QCOMPARE(described(merge.conflicts()).join(QLatin1Char('\n')), conflicts);
    QCOMPARE(saved(*left), before);
    QCOMPARE(saved(*base), example());
    QStringList mismatches;
    QVERIFY2(merge.patch().apply(*left, mismatches),
             qPrintable(mismatches.join(QLatin1Char('\n'))));
    const File read = load(saved(*left));
    QVERIFY(read && CConfigurationComparison::compare(*read, *left).isEmpty());
    // The same conflicts, whoever merges.
    const File swappedOurs = load(changed(example(), theirs));
    const File swappedTheirs = load(changed(example(), ours));
    const CConfigurationMerge back(*base, *swappedOurs, *swappedTheirs);
    QCOMPARE(swapped(back.conflicts()), sorted(merge.conflicts()));
    QVERIFY(back.patch().apply(*swappedOurs, mismatches));
    if (merge.conflicts().isEmpty()) {
        const QStringList rest = CConfigurationComparison::compare(*left, *swappedOurs).describe();
        QCOMPARE(rest, QStringList());
    }
}

void tst_cconfigurationmerge::restOfOursStays()
{
    const File base = load(example());
    const File ours = load(changed(
        example(), {"<Device>|<!--mine--><Device mark=\"1\"><Mine>x</Mine>", ">Gluer<|>A<"}));
    const File theirs = load(
        changed(example(),
                {"<Device>|<!--yours--><Device mark=\"2\"><Yours/>", "<Priority>20|<Priority>30"}));
    const QByteArray before = saved(*ours);
    const CConfigurationMerge merge(*base, *ours, *theirs);
    QStringList mismatches;
    QVERIFY(merge.patch().apply(*ours, mismatches));
    QCOMPARE(saved(*ours), changed(before, {"<Priority>20|<Priority>30"}));
}

void tst_cconfigurationmerge::whatCannotBeStoredIsAConflict()
{
    const File base = load(example());
    const File ours = load(changed(example(), {">Gluer<|>A<"}));
    const File theirs = load(changed(
        example(), {newFile("recipes.csv", "again"), "<Priority>20|<Priority>30", newFile("")}));
    const CConfigurationMerge merge(*base, *ours, *theirs);
    QCOMPARE(merge.patch().describe(), QStringList{u"plug-in motion: priority 20 -> 30"_s});
    QCOMPARE(merge.conflicts().size(), 1);
    const SConflict conflict = merge.conflicts().constFirst();
    QCOMPARE(int(conflict.conflict), int(CConfigurationMerge::NOT_POSSIBLE));
    QCOMPARE(conflict.path, u"files[recipes.csv][2]"_s);
    QCOMPARE(
        CConfigurationMerge::describe(conflict),
        QStringList(
            {u"files[recipes.csv][2]: the change of theirs cannot be stored"_s,
             u"    files[recipes.csv][2]: a second entry with the same key cannot be added"_s}));
    QStringList mismatches;
    QVERIFY(merge.patch().apply(*ours, mismatches));
}

void tst_cconfigurationmerge::drivesWithoutValidNumbers()
{
    const QByteArray start =
        changed(example(), {"<DriveNo>1<|<DriveNo>left<", "<DriveNo>2<|<DriveNo>0300<"});
    const File base = load(start);
    const File ours = load(changed(start, {">Infeed<|>B<"}));
    const File theirs =
        load(changed(start, {">Gluer<|>A<", newDrive("C").replace("<DriveNo>3", "<DriveNo>x")}));
    QVERIFY(base && ours && theirs);
    const CConfigurationMerge merge(*base, *ours, *theirs);
    QCOMPARE(merge.patch().describe(), QStringList{u"drive 0300: name Gluer -> A"_s});
    QCOMPARE(described(merge.conflicts()).value(0),
             u"drive[x]: the change of theirs cannot be stored"_s);
    QStringList mismatches;
    QVERIFY(merge.patch().apply(*ours, mismatches));
}

void tst_cconfigurationmerge::entriesOfOneKey()
{
    const Bytes three = {newFile("a", "1"), newFile("a", "2"), newFile("a", "3")};
    const QByteArray start = changed(example(), three);
    const File base = load(start);
    const File ours = load(changed(start, {">2<|>two<"}));
    const File theirs = load(changed(example(), {newFile("a", "2"), newFile("a", "three")}));
    QVERIFY(base && ours && theirs);
    const CConfigurationMerge merge(*base, *ours, *theirs);
    QCOMPARE(described(merge.conflicts()), QStringList());
    QStringList mismatches;
    QVERIFY2(merge.patch().apply(*ours, mismatches),
             qPrintable(mismatches.join(QLatin1Char('\n'))));
    QStringList comments;
    for (const CFileElement &file : ours->additionalFiles()) {
        comments << file.comment();
    }
    QCOMPARE(comments.size(), 3);
    QVERIFY(comments.contains(u"two"_s));
    QVERIFY(comments.contains(u"three"_s));
}

void tst_cconfigurationmerge::entriesOfOneKeyAddedByBoth()
{
    // The first and the last one of ours are equally near to the last one of theirs.
    const auto document = [](const Bytes &commentsAndDirectories) {
        QByteArray content;
        for (const QByteArray &text : commentsAndDirectories) {
            content += "<File><Name>a</Name><Comment>" + text.left(1) + "</Comment><DeviceDir>/"
                + text.mid(1) + "/</DeviceDir></File>";
        }
        return load("<VornDeviceConfig version=\"1.0\"><Device><Config><Files>" + content
                    + "</Files></Config></Device></VornDeviceConfig>");
    };
    const auto values = [](const QList<SConflict> &conflicts, bool isSwapped) {
        QStringList result;
        for (const SConflict &conflict : conflicts) {
            result << (isSwapped ? conflict.theirs + u"|"_s + conflict.ours
                                 : conflict.ours + u"|"_s + conflict.theirs);
        }
        result.sort();
        return result;
    };
    const File base = document({});
    const File ours = document({"1X", "2Y", "3Z", "4X"});
    const File theirs = document({"5V", "6W", "7X"});
    const CConfigurationMerge merge(*base, *ours, *theirs);
    const CConfigurationMerge back(*base, *theirs, *ours);
    const QStringList conflicts = values(merge.conflicts(), false);
    QVERIFY(conflicts.contains(u"1|7"_s));
    QStringList others = values(back.conflicts(), true);
    // What theirs have less than ours cannot be added beside the others of its key.
    others.removeAll(u"|"_s);
    QCOMPARE(others, conflicts);
}

void tst_cconfigurationmerge::conflictHasItsParts()
{
    const File base = load(example());
    const File ours = load(changed(example(), {">Gluer<|>A<"}));
    const File theirs = load(changed(example(), {">Gluer<|>B<"}));
    const QList<SConflict> conflicts = CConfigurationMerge(*base, *ours, *theirs).conflicts();
    QCOMPARE(conflicts.size(), 1);
    const SConflict conflict = conflicts.constFirst();
    QCOMPARE(int(conflict.conflict), int(CConfigurationMerge::DIFFERENT_VALUES));
    QCOMPARE(conflict.path, u"drive[2].name"_s);
    QCOMPARE(conflict.base, u"Gluer"_s);
    QCOMPARE(conflict.ours, u"A"_s);
    QCOMPARE(conflict.theirs, u"B"_s);
    QVERIFY(conflict.details.isEmpty());
}

void tst_cconfigurationmerge::oursAloneIsOurs()
{
    for (quint32 seed = 0; seed < 25; ++seed) {
        RandomConfiguration random(seed);
        const File base = random.document();
        const File ours = random.document();
        const CConfigurationMerge merge(*base, *ours, *base);
        QVERIFY(merge.patch().isEmpty());
        QVERIFY(merge.conflicts().isEmpty());
    }
}

void tst_cconfigurationmerge::theirsAloneIsTheirs()
{
    for (quint32 seed = 0; seed < 25; ++seed) {
        RandomConfiguration random(seed);
        const CDescriptionElement description = random.description();
        const CDeviceElement device = random.device();
        const File base = RandomConfiguration::document(description, device);
        const File ours = RandomConfiguration::document(description, device);
        const File theirs = random.document();
        const CConfigurationMerge merge(*base, *ours, *theirs);
        QVERIFY2(merge.conflicts().isEmpty(),
                 qPrintable(described(merge.conflicts()).join(QLatin1Char('\n'))));
        QStringList mismatches;
        QVERIFY(merge.patch().apply(*ours, mismatches));
        const QStringList rest = CConfigurationComparison::compare(*ours, *theirs).describe();
        QVERIFY2(rest.isEmpty(), qPrintable(rest.join(QLatin1Char('\n'))));
    }
}

void tst_cconfigurationmerge::sameChangesAreOne()
{
    for (quint32 seed = 0; seed < 25; ++seed) {
        RandomConfiguration random(seed);
        const File base = random.document();
        const CDescriptionElement description = random.description();
        const CDeviceElement device = random.device();
        const File ours = RandomConfiguration::document(description, device);
        const File theirs = RandomConfiguration::document(description, device);
        const CConfigurationMerge merge(*base, *ours, *theirs);
        QVERIFY(merge.patch().isEmpty());
        QVERIFY(merge.conflicts().isEmpty());
    }
}

void tst_cconfigurationmerge::conflictsAreSymmetrical()
{
    int conflicts = 0;
    for (quint32 seed = 0; seed < 60; ++seed) {
        RandomConfiguration random(seed);
        CDeviceElement device = random.device();
        const CDescriptionElement description = random.description();
        const File base = RandomConfiguration::document(description, device);
        const CDeviceElement start = device;
        random.change(device, 3);
        const File ours = RandomConfiguration::document(description, device);
        device = start;
        random.change(device, 3);
        const File theirs = RandomConfiguration::document(description, device);
        const CConfigurationMerge merge(*base, *ours, *theirs);
        const CConfigurationMerge back(*base, *theirs, *ours);
        QCOMPARE(swapped(back.conflicts()), sorted(merge.conflicts()));
        for (const SConflict &conflict : merge.conflicts()) {
            QVERIFY(conflict.conflict != CConfigurationMerge::NOT_POSSIBLE);
        }
        conflicts += merge.conflicts().size();
        QStringList mismatches;
        QVERIFY(merge.patch().apply(*ours, mismatches));
        // What was taken is there now, and what is in conflict still is.
        const CConfigurationMerge again(*base, *ours, *theirs);
        QVERIFY(again.patch().isEmpty());
        QCOMPARE(sorted(again.conflicts()), sorted(merge.conflicts()));
    }
    QVERIFY(conflicts > 60);
}

void tst_cconfigurationmerge::cleanMergesAreSymmetrical()
{
    int clean = 0;
    for (quint32 seed = 0; seed < 100; ++seed) {
        RandomConfiguration random(seed);
        CDeviceElement device = random.device();
        const CDescriptionElement description = random.description();
        const File base = RandomConfiguration::document(description, device);
        const CDeviceElement start = device;
        random.change(device, 8);
        const File ours = RandomConfiguration::document(description, device);
        device = start;
        random.change(device, 8);
        const File theirs = RandomConfiguration::document(description, device);
        const CConfigurationMerge merge(*base, *ours, *theirs);
        const CConfigurationMerge back(*base, *theirs, *ours);
        if (merge.conflicts().isEmpty()) {
            ++clean;
            QStringList mismatches;
            QVERIFY(merge.patch().apply(*ours, mismatches));
            QVERIFY(back.patch().apply(*theirs, mismatches));
            const QStringList rest = CConfigurationComparison::compare(*ours, *theirs).describe();
            QVERIFY2(rest.isEmpty(), qPrintable(rest.join(QLatin1Char('\n'))));
        }
    }
    QVERIFY(clean > 25);
}

REGISTER_GUILESS_TEST(tst_cconfigurationmerge)
#include "tst_cconfigurationmerge.moc"
