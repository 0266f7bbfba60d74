#include "support/Files.h"
#include "support/Literals.h"
#include "support/TestProgram.h"
#include "support/Tool.h"

#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using Tool::SResult;

namespace {

const QString Document = u"DeviceConfiguration.3deco"_s;

/** Prints text, and JSON with --json. */
const QStringList Commands = {
    u"add F device.options[-verbose]"_s,
    u"add-drive F --type KD3_drive"_s,
    u"apply patch.json F"_s,
    u"apply --check patch.json F"_s,
    u"check F"_s,
    u"fmt loose.3deco"_s,
    u"get F"_s,
    u"get F device.name"_s,
    u"merge F F new.3deco --output merged.3deco"_s,
    u"message 1024"_s,
    u"module OM1_EC_H2_V1_3.bin"_s,
    u"network set network.conf MODE=DHCP"_s,
    u"network show network.conf"_s,
    u"new wrapper.3deco --class kd3 --name Wrapper"_s,
    u"new --list-templates"_s,
    u"os-release show os-release"_s,
    u"place F"_s,
    u"remove F drive[2]"_s,
    u"report F -o report.html"_s,
    u"rules"_s,
    u"set F drive[1].name Wrapper"_s,
    u"settings set settings.3conf --name Wrapper"_s,
    u"settings show settings.3conf"_s,
    u"show F"_s,
    u"stage F --project P --to other"_s,
    u"tree F"_s,
    u"verify TREE"_s,
};

/** Prints in one form alone, or nothing in another one. */
const QStringList CommandsOfOneForm = {
    u"--help"_s,
    u"--version"_s,
    u"apply patch.json F -o -"_s,
    u"completion bash"_s,
    u"diff F F --json"_s,
    u"fmt -"_s,
    u"manual"_s,
    u"merge F F new.3deco -o -"_s,
    u"network --help"_s,
    u"network check network.conf --json"_s,
    u"report F"_s,
    u"set - drive[1].name Wrapper"_s,
    u"show --help"_s,
};

} // namespace

/** Every command tells when it cannot print. */
class tst_vrndevice_output : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void everyCommandIsTried();
    void fullOutput_data();
    void fullOutput();

private:
    QString at(const QString &name) const { return m_made.filePath(name); }
    /** In a new copy of the example; with @p isFull nothing can be printed. */
    SResult run(const QString &invocation, bool isFull) const;

    QTemporaryDir m_made;
};

void tst_vrndevice_output::initTestCase()
{
    QVERIFY(m_made.isValid());
    const QString document = Tool::exampleDirectory().filePath(Document);
    const QByteArray content = Files::read(document);
    QVERIFY(Files::write(at(u"loose.3deco"_s), content + '\n'));
    QVERIFY(Files::write(at(u"new.3deco"_s), content));
    QCOMPARE(Tool::run(m_made.path(), {u"set"_s, u"new.3deco"_s, u"drive[1].name"_s, u"Wrapper"_s})
                 .exitCode,
             0);
    const SResult patch =
        Tool::run(m_made.path(), {u"diff"_s, u"--json"_s, document, u"new.3deco"_s});
    QCOMPARE(patch.exitCode, 1);
    QVERIFY(Files::write(at(u"patch.json"_s), patch.output.toUtf8()));
    QCOMPARE(Tool::run(m_made.path(),
                       {u"stage"_s, document, u"--project"_s, Tool::exampleDirectory().path(),
                        u"--to"_s, u"tree"_s})
                 .exitCode,
             0);
}

SResult tst_vrndevice_output::run(const QString &invocation, bool isFull) const
{
    const QTemporaryDir directory;
    for (const QString &name :
         {Document, u"network.conf"_s, u"os-release"_s, u"settings.3conf"_s}) {
        if (!Tool::copyExample(name, directory.path())) {
            return {};
        }
    }
    for (const QString &name : {u"loose.3deco"_s, u"new.3deco"_s, u"patch.json"_s}) {
        if (!QFile::copy(at(name), directory.filePath(name))) {
            return {};
        }
    }
    QStringList arguments = invocation.split(u' ');
    arguments.replaceInStrings(QRegularExpression(u"^F$"_s), Document);
    arguments.replaceInStrings(QRegularExpression(u"^P$"_s), Tool::exampleDirectory().path());
    arguments.replaceInStrings(QRegularExpression(u"^TREE$"_s), at(u"tree"_s));
    QProcess process;
    process.setStandardInputFile(directory.filePath(Document));
    if (isFull) {
        process.setStandardOutputFile(u"/dev/full"_s);
    }
    return Tool::run(process, directory.path(), arguments);
}

void tst_vrndevice_output::everyCommandIsTried()
{
    const QStringList all = Commands + CommandsOfOneForm;
    const QStringList names = Tool::commandNames();
    QVERIFY(names.size() > 20);
    for (const QString &name : names) {
        const auto isTried = [&name](const QString &invocation) {
            return (invocation + u' ').startsWith(name + u' ');
        };
        QVERIFY2(std::any_of(all.begin(), all.end(), isTried), qPrintable(name));
    }
}

void tst_vrndevice_output::fullOutput_data()
{
    QTest::addColumn<QString>("invocation");
    const auto row = [](const QString &invocation) {
        QTest::newRow(qPrintable(invocation)) << invocation;
    };
    for (const QString &invocation : Commands) {
        row(invocation);
        row(invocation + u" --json"_s);
    }
    for (const QString &invocation : CommandsOfOneForm) {
        row(invocation);
    }
}

void tst_vrndevice_output::fullOutput()
{
    QFETCH(const QString, invocation);
    const SResult printed = run(invocation, false);
    QCOMPARE(printed.exitCode, 0);
    QVERIFY(!printed.output.isEmpty());
    const SResult full = run(invocation, true);
    QCOMPARE(full.exitCode, 1);
    QVERIFY2(full.errors.contains(u"error: Cannot write to standard output."_s),
             qPrintable(full.errors));
}

REGISTER_GUILESS_TEST(tst_vrndevice_output)
#include "tst_vrndevice_output.moc"
