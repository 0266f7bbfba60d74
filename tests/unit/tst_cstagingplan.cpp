#include "commissioning/CConfigurationCheck.h"
#include "commissioning/CDeviceManifest.h"
#include "commissioning/CStagingPlan.h"
#include "configfile/CDeviceConfigurationFile10.h"
#include "devicefiles/CDeviceFileSystem.h"
#include "elements/CSubDeviceKD3Element.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/OrdinaryUser.h"
#include "support/TestProgram.h"

#include <QTemporaryDir>
#include <QtTest>

#include <unistd.h>

#include <sys/stat.h>

namespace {

CFileElement file(const QString &name, const QString &deviceDirectory,
                  const QString &projectDirectory)
{
    CFileElement element;
    element.setFileName(name);
    element.setDevicePath(deviceDirectory);
    element.setProjectPath(projectDirectory);
    return element;
}

const QString DeviceDirectory = u"/velkor/configurations/STD/conf/"_s;
const QString DocumentPath = u"velkor/configurations/STD/conf/DeviceConfiguration.3deco"_s;

CDeviceElement device(const QList<CFileElement> &files = {}, const QString &name = u"STD"_s)
{
    CDeviceElement element;
    element.setName(u"Line"_s);
    element.setConfigurationName(name);
    element.setAdditionalFiles(files);
    return element;
}

QStringList devicePaths(const CStagingPlan &plan)
{
    QStringList paths;
    for (const CStagingPlan::SFile &planned : plan.files()) {
        paths << planned.devicePath;
    }
    return paths;
}

QStringList rules(const CStagingPlan &plan)
{
    QStringList result;
    for (const CStagingPlan::SProblem &problem : plan.problems()) {
        result << problem.rule;
    }
    return result;
}

QStringList relativePaths(const QStringList &paths)
{
    QStringList result;
    for (const QString &path : paths) {
        result << path.mid(1, path.size() - 2);
    }
    return result;
}

/** A file as a document has it. */
struct SEntry {
    QString name = u"a.xml"_s;
    QString deviceDirectory = u"/velkor/x/"_s;
    QString projectDirectory = u"Line/"_s;
};

/** A document with no faults but those of its files. */
QByteArray documentWith(const QList<SEntry> &entries)
{
    QString files;
    for (const SEntry &entry : entries) {
        const QString device = entry.deviceDirectory.isNull()
            ? QString()
            : u"<DeviceDir>%1</DeviceDir>"_s.arg(entry.deviceDirectory);
        files += u"<File><Name>%1</Name>%2<ProjectDir>%3</ProjectDir></File>"_s.arg(
            entry.name, device, entry.projectDirectory);
    }
    return u"<VornDeviceConfig version=\"1.0\"><Device><Class>kd3</Class><Name>Line</Name>"
           "<ConfigurationName>STD</ConfigurationName><Config><Files>%1</Files></Config></Device>"
           "</VornDeviceConfig>"_s.arg(files)
               .toUtf8();
}

} // namespace

Q_DECLARE_METATYPE(SEntry)

class tst_cstagingplan : public QObject
{
    Q_OBJECT

    // A project with one file, "Line/a.xml", and beside it a file that does not belong to it.
    std::unique_ptr<QTemporaryDir> m_directory;

    QString project() const { return m_directory->filePath(u"project"_s); }
    QString inProject(const QString &path) const { return project() + u'/' + path; }

    CStagingPlan plan(const CDeviceElement &element) const
    {
        return CStagingPlan(element, {"<document/>", QString()}, project());
    }
    CStagingPlan plan(const QList<CFileElement> &files) const { return plan(device(files)); }

    bool link(const QString &target, const QString &name) const
    {
        return symlink(QFile::encodeName(target).constData(),
                       QFile::encodeName(inProject(name)).constData())
            == 0;
    }

    bool makeFaultyProject() const
    {
        CDeviceManifest::SEntry recorded;
        recorded.devicePath = u"velkor/x/changed.xml"_s;
        recorded.projectPath = u"Line/changed.xml"_s;
        recorded.size = 100;
        recorded.sha256 = QByteArray(64, '0');
        CDeviceManifest manifest;
        manifest.setEntries({recorded});
        return QDir().mkpath(inProject(u"Other"_s))
            && Files::write(inProject(u"Other/a.xml"_s), "x")
            && Files::write(inProject(u"Line/empty.xml"_s), QByteArray())
            && Files::write(inProject(u"Line/changed.xml"_s), "x")
            && Files::write(inProject(CDeviceManifest::fileName()), manifest.toJson())
            && link(u"a.xml"_s, u"Line/link.xml"_s) && link(u"Line"_s, u"LinkedLine"_s)
            && link(u".."_s, u"Out"_s) && link(u"../../outside.xml"_s, u"Line/out.xml"_s)
            && link(u"nothing"_s, u"Line/dangling.xml"_s) && link(u"loop.xml"_s, u"Line/loop.xml"_s)
            && link(u"/dev/null"_s, u"null"_s)
            && mkfifo(QFile::encodeName(inProject(u"pipe"_s)).constData(), 0600) == 0;
    }

private slots:
    void init()
    {
        m_directory = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir().mkpath(inProject(u"Line"_s)));
        QVERIFY(Files::write(inProject(u"Line/a.xml"_s), "12345"));
        QVERIFY(Files::write(m_directory->filePath(u"outside.xml"_s), "outside"));
    }

    void plansNothingAtFirst()
    {
        const CStagingPlan nothing;
        QVERIFY(nothing.problems().isEmpty());
        QVERIFY(nothing.directories().isEmpty());
        QVERIFY(nothing.files().isEmpty());
        QCOMPARE(nothing.totalSize(), 0);
    }

    void plansDocumentAndFiles()
    {
        const CStagingPlan made = plan({file(u"a.xml"_s, DeviceDirectory, u"Line"_s)});
        QCOMPARE(rules(made), QStringList());
        QCOMPARE(devicePaths(made),
                 QStringList({DocumentPath, u"velkor/configurations/STD/conf/a.xml"_s}));

        const CStagingPlan::SFile document = made.files().at(0);
        QCOMPARE(document.content, QByteArray("<document/>"));
        QCOMPARE(document.projectPath, QString());
        QCOMPARE(document.source, QByteArray());
        QCOMPARE(document.size, 11);

        const CStagingPlan::SFile planned = made.files().at(1);
        QVERIFY(planned.content.isNull());
        QCOMPARE(planned.projectPath, u"Line/a.xml"_s);
        QCOMPARE(planned.source,
                 QFile::encodeName(QFileInfo(inProject(u"Line/a.xml"_s)).canonicalFilePath()));
        QCOMPARE(planned.size, 5);
        QCOMPARE(made.totalSize(), 16);
    }

    void plansEveryKindOfFile()
    {
        CDeviceElement element = device({file(u"1"_s, DeviceDirectory, u"Line"_s)});
        element.setOdictFile(file(u"2"_s, DeviceDirectory, u"Line"_s));
        element.setFaultTextFile(file(u"3"_s, DeviceDirectory, u"Line"_s));
        element.appendOpcUaFile(file(u"4"_s, DeviceDirectory, u"Line"_s));
        element.setEtherCatMasterFile(file(u"5"_s, DeviceDirectory, u"Line"_s));
        element.appendFpgaFile(u"6"_s);
        element.addParameterFile(u"7"_s, NvrnGlobal::PARAM_FILE_PARAMETERS);
        const CStagingPlan made = plan(element);
        QStringList missing;
        for (const CStagingPlan::SProblem &problem : made.problems()) {
            QCOMPARE(problem.rule, u"project-file-missing"_s);
            missing << problem.devicePath.section(u'/', -1);
        }
        missing.sort();
        QCOMPARE(missing,
                 QStringList({u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7.3param"_s,
                              u"7.3pdef"_s}));
    }

    void documentOfTheProjectIsNamed()
    {
        const QString path = inProject(u"Line/a.xml"_s);
        const CStagingPlan made(device(), {"12345", path}, project());
        QCOMPARE(made.files().at(0).projectPath, u"Line/a.xml"_s);
        const CStagingPlan other(device(), {"x", m_directory->filePath(u"outside.xml"_s)},
                                 project());
        QCOMPARE(other.files().at(0).projectPath, QString());
        // A directory whose name begins like the project's is another one.
        QVERIFY(QDir().mkpath(project() + u"-2"_s));
        QVERIFY(Files::write(project() + u"-2/b"_s, "x"));
        const CStagingPlan third(device(), {"x", project() + u"-2/b"_s}, project());
        QCOMPARE(third.files().at(0).projectPath, QString());
    }

    void directoriesAreThoseOfTheLayout()
    {
        CDeviceElement element = device();
        element.insertSubDevice(CSubDeviceKD3Element(), 0);
        element.insertSubDevice(CSubDeviceKD3Element(), 1);
        QStringList expected = relativePaths(CDeviceFileSystem(element).smPathList()
                                             + CDeviceFileSystem(element).optSMPathList());
        expected << u"opt"_s;
        expected.sort();
        QStringList directories = plan(element).directories();
        QCOMPARE(directories, expected);
        QVERIFY(directories.contains(u"velkor/configurations/STD/subdevices/1/logic"_s));
    }

    void drivesHaveDirectoriesOfTheirNumbers()
    {
        CDeviceElement element = device();
        element.insertSubDevice(CSubDeviceKD3Element(), 7);
        const QStringList directories = plan(element).directories();
        for (const QString &name : {u""_s, u"/firmware"_s, u"/logic"_s, u"/param"_s}) {
            QVERIFY(directories.contains(u"velkor/configurations/STD/subdevices/7"_s + name));
            QVERIFY(directories.contains(u"velkor/configurations/STD/subdevices/0"_s + name));
        }
    }

    void filesBringTheirDirectories()
    {
        const QStringList directories =
            plan({file(u"a.xml"_s, u"/opt/velkor/x//y/"_s, u"Line"_s)}).directories();
        QVERIFY(directories.contains(u"opt/velkor/x"_s));
        QVERIFY(directories.contains(u"opt/velkor/x/y"_s));
        QVERIFY(!directories.contains(u"opt/velkor/x/y/a.xml"_s));
        QVERIFY(!directories.contains(u""_s));
    }

    void nameOfTheConfiguration_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("rule");
        QTest::newRow("none") << QString() << u"no-configuration-name"_s;
        QTest::newRow("slash") << u"a/b"_s << u"bad-configuration-name"_s;
        QTest::newRow("back-slash") << u"a\\b"_s << u"bad-configuration-name"_s;
        QTest::newRow("up") << u".."_s << u"bad-configuration-name"_s;
        QTest::newRow("dot") << u"."_s << u"bad-configuration-name"_s;
        QTest::newRow("too long") << QString(256, u'a') << u"bad-configuration-name"_s;
        QTest::newRow("brackets") << u"a ]\n"_s << QString();
        QTest::newRow("not ASCII") << u"İstanbul"_s << QString();
    }

    void nameOfTheConfiguration()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, rule);
        const QString missing = u"project-file-missing"_s;
        const CStagingPlan made = plan(device({file(u"b.xml"_s, u"/velkor/x"_s, u"Line"_s)}, name));
        // What else is wrong is told, too.
        QCOMPARE(rules(made), rule.isEmpty() ? QStringList{missing} : QStringList({rule, missing}));
    }

    void sources_data()
    {
        QTest::addColumn<QString>("projectDirectory");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("rule");
        QTest::addColumn<QString>("projectPath");
        const auto row = [](const char *name, const QString &directory, const QString &file,
                            const QString &rule, const QString &path) {
            QTest::newRow(name) << directory << file << rule << path;
        };
        const QString good;
        row("there", u"Line"_s, u"a.xml"_s, good, u"Line/a.xml"_s);
        row("with detours", u"./Line//."_s, u"a.xml"_s, good, u"Line/a.xml"_s);
        row("without a directory", QString(), u"top.xml"_s, good, u"top.xml"_s);
        row("link in the project", u"Line"_s, u"link.xml"_s, good, u"Line/link.xml"_s);
        row("linked directory", u"LinkedLine"_s, u"a.xml"_s, good, u"LinkedLine/a.xml"_s);
        row("link out of the project", u"Line"_s, u"out.xml"_s, u"project-file-outside"_s,
            QString());
        row("link to nothing", u"Line"_s, u"dangling.xml"_s, u"project-file-missing"_s, QString());
        row("link to itself", u"Line"_s, u"loop.xml"_s, u"project-file-missing"_s, QString());
        row("up", u".."_s, u"outside.xml"_s, u"project-path-outside"_s, QString());
        row("up and down", u"Line/../Line"_s, u"a.xml"_s, u"project-path-outside"_s, QString());
        row("absolute", u"/etc"_s, u"passwd"_s, u"project-path-absolute"_s, QString());
        row("missing", u"Line"_s, u"b.xml"_s, u"project-file-missing"_s, QString());
        row("in a file", u"Line/a.xml"_s, u"b.xml"_s, u"project-file-missing"_s, QString());
        row("a directory", QString(), u"Line"_s, u"project-file-not-regular"_s, QString());
        row("a pipe", QString(), u"pipe"_s, u"project-file-not-regular"_s, QString());
        row("a path for a name", QString(), u"Line/a.xml"_s, u"file-name-invalid"_s, QString());
        row("dots for a name", u"Line"_s, u".."_s, u"file-name-invalid"_s, QString());
        row("a long name", u"Line"_s, QString(256, u'a'), u"file-name-invalid"_s, QString());
        row("a long directory", u"a/"_s.repeated(3000), u"b.xml"_s, u"project-file-missing"_s,
            QString());
    }

    void sources()
    {
        QFETCH(const QString, projectDirectory);
        QFETCH(const QString, name);
        QFETCH(const QString, rule);
        QFETCH(const QString, projectPath);
        QVERIFY(Files::write(inProject(u"top.xml"_s), "top"));
        QVERIFY(link(u"a.xml"_s, u"Line/link.xml"_s));
        QVERIFY(link(u"Line"_s, u"LinkedLine"_s));
        QVERIFY(link(u"../../outside.xml"_s, u"Line/out.xml"_s));
        QVERIFY(link(u"nothing"_s, u"Line/dangling.xml"_s));
        QVERIFY(link(u"loop.xml"_s, u"Line/loop.xml"_s));
        QCOMPARE(mkfifo(QFile::encodeName(inProject(u"pipe"_s)).constData(), 0600), 0);

        const CStagingPlan made = plan({file(name, DeviceDirectory, projectDirectory)});
        QCOMPARE(rules(made), rule.isEmpty() ? QStringList() : QStringList{rule});
        if (rule.isEmpty()) {
            QCOMPARE(made.files().at(1).projectPath, projectPath);
        } else {
            QVERIFY(made.problems().at(0).message.size() > qMin(name.size(), 200));
        }
    }

    void unreadableSource()
    {
        QVERIFY(Files::write(inProject(u"secret"_s), "secret"));
        QCOMPARE(chmod(QFile::encodeName(inProject(u"secret"_s)).constData(), 0), 0);
        QCOMPARE(chmod(QFile::encodeName(m_directory->path()).constData(), 0755), 0);
        const OrdinaryUser user;
        QVERIFY(user.isOk());
        const CStagingPlan made = plan({file(u"secret"_s, DeviceDirectory, QString())});
        QCOMPARE(rules(made), QStringList{u"project-file-unreadable"_s});
        QVERIFY(made.problems().at(0).message.contains(qt_error_string(EACCES)));
    }

    void places_data()
    {
        QTest::addColumn<QString>("directory");
        QTest::addColumn<QString>("rule");
        QTest::newRow("none") << QString() << u"device-path-missing"_s;
        QTest::newRow("sm tree") << u"/velkor/"_s << QString();
        QTest::newRow("opt tree") << u"/opt/velkor/etc/conf/"_s << QString();
        QTest::newRow("superfluous slashes") << u"//velkor//a/"_s << QString();
        QTest::newRow("root") << u"/"_s << u"device-path-outside"_s;
        QTest::newRow("etc") << u"/etc/"_s << u"device-path-outside"_s;
        QTest::newRow("opt") << u"/opt/"_s << u"device-path-outside"_s;
        QTest::newRow("like the sm tree") << u"/velkor2/"_s << u"device-path-outside"_s;
        QTest::newRow("in another case") << u"/Velkor/"_s << u"device-path-outside"_s;
        QTest::newRow("up") << u"/velkor/../etc/"_s << u"device-path-climbs"_s;
        QTest::newRow("up and down") << u"/velkor/a/../b"_s << u"device-path-climbs"_s;
        QTest::newRow("dots in a name") << u"/velkor/v1..2/..a/b../..."_s << QString();
        QTest::newRow("dot") << u"/velkor/./a"_s << QString();
        QTest::newRow("too long") << u"/velkor/"_s + QString(256, u'a') << u"device-path-outside"_s;
    }

    void places()
    {
        QFETCH(const QString, directory);
        QFETCH(const QString, rule);
        const CStagingPlan made = plan({file(u"a.xml"_s, directory, u"Line"_s)});
        QCOMPARE(rules(made), rule.isEmpty() ? QStringList() : QStringList{rule});
    }

    void oneFileTwiceIsOneFile()
    {
        QVERIFY(link(u"a.xml"_s, u"Line/link.xml"_s));
        CFileElement again = file(u"a.xml"_s, u"/velkor//configurations/STD/conf"_s, u"./Line"_s);
        const CStagingPlan made = plan({file(u"a.xml"_s, DeviceDirectory, u"Line"_s), again});
        QCOMPARE(rules(made), QStringList());
        QCOMPARE(made.files().size(), 2);
    }

    void twoFilesForOnePlace_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<QStringList>("expected");
        const QString taken = u"device-file-conflict"_s;
        const QString missing = u"project-file-missing"_s;
        QTest::newRow("two files") << u"Line"_s << u"Other"_s << QStringList{taken};
        QTest::newRow("one is missing") << u"Line"_s << u"None"_s << QStringList({missing, taken});
        QTest::newRow("both are missing")
            << u"None"_s << u"None2"_s << QStringList({missing, missing, taken});
    }

    void twoFilesForOnePlace()
    {
        QFETCH(const QString, first);
        QFETCH(const QString, second);
        QFETCH(const QStringList, expected);
        QVERIFY(QDir().mkpath(inProject(u"Other"_s)));
        QVERIFY(Files::write(inProject(u"Other/a.xml"_s), "12345"));
        const CStagingPlan made = plan(
            {file(u"a.xml"_s, DeviceDirectory, first), file(u"a.xml"_s, DeviceDirectory, second)});
        QCOMPARE(rules(made), expected);
    }

    void documentHasItsPlaceForItself()
    {
        const QString name = u"DeviceConfiguration.3deco"_s;
        QVERIFY(Files::write(inProject(name), "other"));
        const CDeviceElement element = device({file(name, DeviceDirectory, QString())});
        QCOMPARE(rules(plan(element)), QStringList{u"device-file-conflict"_s});
        // Unless it is the document.
        const CStagingPlan made(element, {"<document/>", inProject(name)}, project());
        QCOMPARE(rules(made), QStringList());
        QCOMPARE(made.files().at(0).content, QByteArray("<document/>"));
    }

    void fileAndDirectory()
    {
        QVERIFY(Files::write(inProject(u"conf"_s), "x"));
        QVERIFY(Files::write(inProject(u"inner"_s), "x"));
        // One of the layout.
        QCOMPARE(rules(plan({file(u"conf"_s, u"/velkor/configurations/STD"_s, QString())})),
                 QStringList{u"file-and-directory"_s});
        // That of another file.
        QCOMPARE(rules(plan({file(u"conf"_s, u"/velkor/x"_s, QString()),
                             file(u"inner"_s, u"/velkor/x/conf/y"_s, QString())})),
                 QStringList{u"file-and-directory"_s});
    }

    void judgesAsTheCheck_data()
    {
        QTest::addColumn<QList<SEntry>>("entries");
        // Those of both, and those that concern the check alone.
        QTest::addColumn<QStringList>("common");
        QTest::addColumn<QStringList>("ofCheck");
        const auto rows = [](const char *name, const QList<SEntry> &entries,
                             const QStringList &common, const QStringList &ofCheck) {
            QTest::newRow(name) << entries << common << ofCheck;
        };
        const auto row = [&](const char *name, const SEntry &entry, const QString &rule) {
            rows(name, {entry}, rule.isEmpty() ? QStringList() : QStringList{rule}, {});
        };
        const QString good;
        const QString x = u"/velkor/x/"_s;
        const QString line = u"Line/"_s;
        const QString a = u"a.xml"_s;
        row("fit", {a, x, line}, good);
        row("other case of the name", {u"A.xml"_s, x, line}, u"project-file-other-case"_s);
        row("other case of the directory", {a, x, u"line"_s}, u"project-file-other-case"_s);
        row("missing", {u"b.xml"_s, x, line}, u"project-file-missing"_s);
        row("missing directory", {a, x, u"None/"_s}, u"project-file-missing"_s);
        row("in a file", {a, x, u"Line/a.xml/"_s}, u"project-file-missing"_s);
        row("link to nothing", {u"dangling.xml"_s, x, line}, u"project-file-missing"_s);
        row("link to itself", {u"loop.xml"_s, x, line}, u"project-file-missing"_s);
        row("link in the project", {u"link.xml"_s, x, line}, good);
        row("linked directory", {a, x, u"LinkedLine"_s}, good);
        row("link out of the project", {u"out.xml"_s, x, line}, u"project-file-outside"_s);
        row("directory linked out", {u"outside.xml"_s, x, u"Out"_s}, u"project-file-outside"_s);
        row("directory", {u"Line"_s, x, {}}, u"project-file-not-regular"_s);
        row("pipe", {u"pipe"_s, x, {}}, u"project-file-not-regular"_s);
        row("device", {u"null"_s, x, {}}, u"project-file-outside"_s);
        row("empty", {u"empty.xml"_s, x, line}, u"project-file-empty"_s);
        row("absolute", {u"passwd"_s, x, u"/etc"_s}, u"project-path-absolute"_s);
        row("absolute in the project", {a, x, inProject(u"Line"_s)}, u"project-path-absolute"_s);
        row("drive of Windows", {a, x, u"C:/Line"_s}, u"project-path-absolute"_s);
        row("out of the project", {u"outside.xml"_s, x, u".."_s}, u"project-path-outside"_s);
        row("out and in", {a, x, u"../project/Line"_s}, u"project-path-outside"_s);
        row("up and down", {a, x, u"Line/../Line"_s}, u"project-path-outside"_s);
        row("detours in the project", {a, x, u"./Line//."_s}, good);
        row("backslashes in the project", {a, x, u".\\Line"_s}, good);
        row("no directory on the device", {a, QString(), line}, u"device-path-missing"_s);
        row("outside the device", {a, u"/etc/"_s, line}, u"device-path-outside"_s);
        row("root of the device", {a, u"/"_s, line}, u"device-path-outside"_s);
        row("like a tree of the device", {a, u"/velkor2/"_s, line}, u"device-path-outside"_s);
        row("up on the device", {a, u"/velkor/../etc/"_s, line}, u"device-path-climbs"_s);
        row("up and down on the device", {a, u"/velkor/a/../b"_s, line}, u"device-path-climbs"_s);
        row("detours on the device", {a, u"/velkor//./x"_s, line}, good);
        row("long name on the device", {a, u"/velkor/"_s + QString(256, u'x'), line},
            u"device-path-outside"_s);
        row("long path on the device", {a, u"/velkor/"_s + u"x/"_s.repeated(2100), line},
            u"device-path-outside"_s);
        row("path for a name", {u"Line/a.xml"_s, x, {}}, u"file-name-invalid"_s);
        row("backslash in a name", {u"Line\\a.xml"_s, x, {}}, u"file-name-invalid"_s);
        row("line break in a name", {u"a\n.xml"_s, x, line}, u"file-name-invalid"_s);
        row("dots for a name", {u".."_s, x, line}, u"file-name-invalid"_s);
        row("long name", {QString(256, u'a'), x, line}, u"file-name-invalid"_s);
        rows("two files in one place", {{a, x, line}, {a, x, u"Other"_s}},
             {u"device-file-conflict"_s}, {});
        rows("one file by two paths", {{a, x, line}, {a, x, u"LinkedLine"_s}},
             {u"device-file-conflict"_s}, {});
        rows("two files in one place, one missing", {{a, x, line}, {a, x, u"None"_s}},
             {u"device-file-conflict"_s, u"project-file-missing"_s}, {});
        rows("one file twice", {{a, x, line}, {a, u"/velkor//x"_s, u"./Line"_s}}, {},
             {u"file-twice"_s});
        rows("relative on the device", {{a, u"velkor/x"_s, line}}, {}, {u"device-path-relative"_s});
        rows("other configuration", {{a, u"/velkor/configurations/B/conf"_s, line}}, {},
             {u"device-path-other-configuration"_s});
        rows("without a name", {{QString(), x, line}}, {}, {u"file-name-missing"_s});
        rows("changed", {{u"changed.xml"_s, x, line}}, {}, {u"project-file-changed"_s});
    }

    void judgesAsTheCheck()
    {
        QFETCH(const QList<SEntry>, entries);
        QFETCH(const QStringList, common);
        QFETCH(const QStringList, ofCheck);
        QVERIFY(makeFaultyProject());
        const QByteArray content = documentWith(entries);
        CDeviceConfigurationFile10 document(nullptr);
        CDeviceElement element;
        QVERIFY(document.load(content) && document.configuration(element));
        const CStagingPlan made(element, {content, QString()}, project());
        QStringList staged = rules(made);
        staged.sort();
        QCOMPARE(staged, common);

        CConfigurationCheck check;
        QVERIFY(check.setProjectDirectory(project()));
        QVERIFY(check.load(content));
        QStringList found;
        QSet<QString> messages;
        for (const SConfigurationFinding &finding : check.findings()) {
            found << finding.rule;
            messages.insert(finding.message);
        }
        found.sort();
        QCOMPARE(found, common + ofCheck);
        for (const CStagingPlan::SProblem &problem : made.problems()) {
            // The check names directories as they are written, and other files by their items.
            QVERIFY2(messages.contains(problem.message) || problem.rule.startsWith(u"device-"_s),
                     qPrintable(problem.message));
        }
    }

    void unreadableAsForTheCheck_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("directory");
        QTest::newRow("file") << u"Line/a.xml"_s << u"Line"_s;
        QTest::newRow("directory") << u"Line"_s << u"Line"_s;
        QTest::newRow("directory above") << u"Line"_s << u"Line/deep"_s;
    }

    void unreadableAsForTheCheck()
    {
        QFETCH(const QString, path);
        QFETCH(const QString, directory);
        QVERIFY(QDir().mkpath(inProject(u"Line/deep"_s)));
        QVERIFY(Files::write(inProject(u"Line/deep/a.xml"_s), "x"));
        const QByteArray name = QFile::encodeName(inProject(path));
        QCOMPARE(chmod(name.constData(), 0), 0);
        QCOMPARE(chmod(QFile::encodeName(m_directory->path()).constData(), 0755), 0);
        const QByteArray content = documentWith({{u"a.xml"_s, u"/velkor/x/"_s, directory}});
        {
            const OrdinaryUser user;
            QVERIFY(user.isOk());
            CDeviceConfigurationFile10 document(nullptr);
            CDeviceElement element;
            QVERIFY(document.load(content) && document.configuration(element));
            const CStagingPlan made(element, {content, QString()}, project());
            QCOMPARE(rules(made), QStringList{u"project-file-unreadable"_s});
            CConfigurationCheck check;
            QVERIFY(check.setProjectDirectory(project()));
            QVERIFY(check.load(content));
            QCOMPARE(check.findings().size(), 1);
            QCOMPARE(check.findings().at(0).rule, u"project-file-unreadable"_s);
            QCOMPARE(check.findings().at(0).message, made.problems().at(0).message);
        }
        QCOMPARE(chmod(name.constData(), 0755), 0);
    }

    void noProject_data()
    {
        QTest::addColumn<QString>("project");
        QTest::newRow("not there") << u"/nowhere"_s;
        QTest::newRow("empty") << QString();
    }

    void noProject()
    {
        QFETCH(const QString, project);
        const CStagingPlan made(device({file(u"a.xml"_s, u"/etc"_s, u"Line"_s)}), {"x", QString()},
                                project);
        QCOMPARE(rules(made), QStringList({u"no-project"_s, u"device-path-outside"_s}));
    }

    void tellsAllProblemsAtOnce()
    {
        const CStagingPlan made =
            plan({file(u"a.xml"_s, QString(), u"Line"_s), file(u"b.xml"_s, u"/etc"_s, u"Line"_s),
                  file(u"c.xml"_s, DeviceDirectory, u"Line"_s)});
        QCOMPARE(rules(made),
                 QStringList({u"device-path-missing"_s, u"device-path-outside"_s,
                              u"project-file-missing"_s, u"project-file-missing"_s}));
        QCOMPARE(made.problems().at(1).devicePath, u"/etc/b.xml"_s);
        QCOMPARE(made.problems().at(1).projectPath, u"Line/b.xml"_s);
    }

    void manyFiles()
    {
        QList<CFileElement> files;
        const int count = 10000;
        for (int i = 0; i < count; ++i) {
            files << file(u"a.xml"_s, u"/velkor/%1/%2"_s.arg(i / 100).arg(i), u"Line"_s);
        }
        const CStagingPlan made = plan(files);
        QCOMPARE(rules(made), QStringList());
        QCOMPARE(made.files().size(), count + 1);
    }
};

REGISTER_GUILESS_TEST(tst_cstagingplan)
#include "tst_cstagingplan.moc"
