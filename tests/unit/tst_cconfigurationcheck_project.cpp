#include "commissioning/CConfigurationCheck.h"
#include "configfile/CDeviceConfigurationFile10.h"
#include "support/CheckedDocuments.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/OrdinaryUser.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace CheckedDocuments;

namespace {

/** Creates every file that the valid document "complete" refers to, with one byte in it. */
bool createProject(const QDir &project)
{
    CDeviceConfigurationFile10 file(nullptr);
    CDeviceElement device;
    if (!file.open(validFile(u"complete.3deco"_s)) || !file.configuration(device)) {
        return false;
    }
    const QList<CFileElement> files = device.allFiles(NvrnDeviceCore::DEVICE_FILE_ALL);
    return files.size() == 20
        && std::all_of(files.cbegin(), files.cend(), [&project](const CFileElement &element) {
               return project.mkpath(element.projectPath())
                   && Files::write(project.filePath(element.projectFilePath()), "x");
           });
}

} // namespace

/** What the check finds in the directory of a project. */
class tst_cconfigurationcheck_project : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void project_data();
    void project();
    void unreadableFileInTheProject();
    void unreadableDirectoryInTheProject();
    void projectDirectory();
    void namelessDeviceInAProject();
};

void tst_cconfigurationcheck_project::project_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < ProjectFaults.size(); ++i) {
        QTest::newRow(ProjectFaults.at(i).name) << i;
    }
}

void tst_cconfigurationcheck_project::project()
{
    QFETCH(int, index);
    const SProjectFault &fault = ProjectFaults.at(index);
    const QTemporaryDir directory;
    const QDir project(directory.filePath(u"project"_s));
    QVERIFY(createProject(project));
    QVERIFY(fault.spoil(project));
    CConfigurationCheck check;
    QVERIFY(check.setProjectDirectory(project.path()));
    QVERIFY(check.open(validFile(u"complete.3deco"_s)));
    QCOMPARE(told(check), ::texts(fault.findings));
}

void tst_cconfigurationcheck_project::unreadableFileInTheProject()
{
    const QTemporaryDir directory;
    QVERIFY(createProject(directory.path()));
    const QString path = directory.filePath(Recipes);
    QVERIFY(QFile::setPermissions(path, QFileDevice::Permissions()));
    QVERIFY(QFile::setPermissions(directory.path(), QFileDevice::Permissions(0x7755)));
    const OrdinaryUser user;
    QVERIFY(user.isOk());
    CConfigurationCheck check;
    QVERIFY(check.setProjectDirectory(directory.path()));
    QVERIFY(check.open(validFile(u"complete.3deco"_s)));
    QCOMPARE(told(check), {u"82:5 project-file-unreadable files[recipes.csv]"_s});
}

void tst_cconfigurationcheck_project::unreadableDirectoryInTheProject()
{
    const QTemporaryDir directory;
    QVERIFY(createProject(directory.path()));
    QVERIFY(QFile::remove(directory.filePath(Recipes)));
    const QString recipes = directory.filePath(u"Common/recipes"_s);
    QVERIFY(QFile::setPermissions(directory.path(), QFileDevice::Permissions(0x7755)));
    // Nobody may list it, but who knows a name may use it.
    QVERIFY(QFile::setPermissions(recipes, QFileDevice::Permissions(0x1111)));
    {
        const OrdinaryUser user;
        QVERIFY(user.isOk());
        CConfigurationCheck check;
        QVERIFY(check.setProjectDirectory(directory.path()));
        QVERIFY(check.open(validFile(u"complete.3deco"_s)));
        QCOMPARE(told(check), {u"82:5 project-file-missing files[recipes.csv]"_s});
        QVERIFY(!check.setProjectDirectory(recipes));
        QCOMPARE(check.errorText(), recipes + u": The directory cannot be read."_s);
    }
    QVERIFY(QFile::setPermissions(recipes, QFileDevice::Permissions(0x7777)));
}

void tst_cconfigurationcheck_project::projectDirectory()
{
    const QTemporaryDir directory;
    CConfigurationCheck check;
    QCOMPARE(check.projectDirectory(), QString());
    QVERIFY(!check.setProjectDirectory(directory.filePath(u"none"_s)));
    QCOMPARE(check.errorText(), directory.filePath(u"none"_s) + u": There is no such directory."_s);
    QVERIFY(!check.setProjectDirectory(validFile(u"complete.3deco"_s)));
    QCOMPARE(check.projectDirectory(), QString());
    QVERIFY(check.setProjectDirectory(directory.path()));
    QCOMPARE(check.errorText(), QString());
    QCOMPARE(check.projectDirectory(), directory.path());

    // Of what is not there, everything is missing; without a directory nobody looks.
    QVERIFY(check.open(validFile(u"complete.3deco"_s)));
    QCOMPARE(check.findings().size(), 20);
    QVERIFY(check.setProjectDirectory(QString()));
    QVERIFY(check.open(validFile(u"complete.3deco"_s)));
    QCOMPARE(check.findings().size(), 0);
}

void tst_cconfigurationcheck_project::namelessDeviceInAProject()
{
    // Where files lie that have no directories of their own follows from both names.
    const QByteArray config = "<ParameterFiles><File type=\"VornParameters\"><Name>P</Name></File>"
                              "</ParameterFiles><FPGA_FileNames><File><Name>F</Name></File>"
                              "</FPGA_FileNames>";
    const QTemporaryDir project;
    CConfigurationCheck check;
    QVERIFY(check.setProjectDirectory(project.path()));
    QVERIFY(check.load(document(config)));
    QCOMPARE(check.findings().size(), 3);
    QVERIFY(check.load(document(config).replace("<Name>N</Name>", "")));
    QCOMPARE(check.findings().size(), 1);
    QCOMPARE(check.findings().constFirst().rule, u"device-name-missing"_s);
    QVERIFY(check.load(document(config).replace("STD", "")));
    QCOMPARE(rules(check), QStringList({u"configuration-name-empty"_s, u"project-file-missing"_s}));
    QCOMPARE(check.findings().constLast().item, u"device.fpgaFiles[F]"_s);
}

QTEST_GUILESS_MAIN(tst_cconfigurationcheck_project)

#include "tst_cconfigurationcheck_project.moc"
