#include "support/Files.h"
#include "support/HostileDocuments.h"
#include "support/Literals.h"
#include "support/TestProgram.h"
#include "support/Tool.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <sys/stat.h>

using Tool::SResult;

namespace {

const QString Configuration = QStringLiteral("DeviceConfiguration.3deco");
const QStringList Names = {Configuration, QStringLiteral("settings.3conf"),
                           QStringLiteral("network.conf"), QStringLiteral("os-release")};

QStringList words(const QString &text)
{
    return text.split(QLatin1Char(' '));
}

/** What is printed of a pipe, as if it were of the file. */
QString shown(QString text, const QString &file)
{
    return text.replace(QRegularExpression(u"/dev/(fd/[0-9]+|stdin)"_s), file);
}

/** A command that only reads, with the file in place of %1. */
struct SReader {
    const char *arguments;
    QString file;
};

const SReader Readers[] = {
    {"show %1", Configuration},
    {"show --json %1", Configuration},
    {"tree %1", Configuration},
    {"get %1", Configuration},
    {"report %1", Configuration},
    {"check %1", Configuration},
    {"diff %1 changed.3deco", Configuration},
    {"diff changed.3deco %1", Configuration},
    {"place %1", Configuration},
    {"fmt --check %1", Configuration},
    {"new --template %1 --name N -", Configuration},
    {"apply --check change.json %1", Configuration},
    {"merge %1 changed.3deco DeviceConfiguration.3deco --output -", Configuration},
    {"merge DeviceConfiguration.3deco %1 changed.3deco --output -", Configuration},
    {"settings show %1", Names.at(1)},
    {"network show %1", Names.at(2)},
    {"network check %1", Names.at(2)},
    {"os-release show %1", Names.at(3)},
};

} // namespace

/** What commands take as a file: pipes and devices where they only read, and the names of Qt. */
class tst_vrndevice_input : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void readsPipes_data();
    void readsPipes();
    void comparesTwoPipes();
    void pipeThatComesInParts();
    void stagesPipes();
    void placesInPipes();
    void endlessDevices_data();
    void endlessDevices();
    void changesNoPipes_data();
    void changesNoPipes();
    void names_data();
    void names();
    void encodings_data();
    void encodings();

private:
    SResult run(const QString &arguments) const
    {
        return Tool::run(m_directory->path(), words(arguments));
    }
    /** The locale is the tool's alone: a shell warns of one that is not installed. */
    SResult runShell(QString line) const
    {
        const QString locale = u"LC_ALL"_s;
        QProcessEnvironment environment = Tool::englishEnvironment();
        environment.insert(u"TOOL_LOCALE"_s, environment.value(locale));
        environment.remove(locale);
        line.replace(u"TOOL "_s, u"env LC_ALL=\"$TOOL_LOCALE\" \"$0\" "_s);
        return Tool::runCommand(m_directory->path(), {u"bash"_s, u"-c"_s, line, Tool::program()},
                                environment);
    }
    QString path(const QString &name) const { return m_directory->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_vrndevice_input::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
    for (const QString &name : Names) {
        QVERIFY(Tool::copyExample(name, m_directory->path()));
    }
    QVERIFY(QFile::copy(path(Configuration), path(u"changed.3deco"_s)));
    QCOMPARE(run(u"set changed.3deco device.name Other"_s).exitCode, 0);
    const SResult patch = run(u"diff --json DeviceConfiguration.3deco changed.3deco"_s);
    QVERIFY(Files::write(path(u"change.json"_s), patch.output.toUtf8()));
}

void tst_vrndevice_input::readsPipes_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("file");

    for (const SReader &reader : Readers) {
        QTest::newRow(reader.arguments) << QString::fromLatin1(reader.arguments) << reader.file;
    }
    QTest::newRow("apply --check %1 DeviceConfiguration.3deco")
        << u"apply --check %1 DeviceConfiguration.3deco"_s << u"change.json"_s;
}

void tst_vrndevice_input::readsPipes()
{
    QFETCH(QString, arguments);
    QFETCH(QString, file);
    const SResult expected = run(arguments.arg(file));
    QVERIFY2(expected.exitCode == 0 || expected.exitCode == 1, qPrintable(expected.errors));

    const SResult substituted = runShell(u"TOOL "_s + arguments.arg(u"<(cat %1)"_s.arg(file)));
    QCOMPARE(shown(substituted.errors, file), expected.errors);
    QCOMPARE(shown(substituted.output, file), expected.output);
    QCOMPARE(substituted.exitCode, expected.exitCode);

    const SResult piped = runShell(u"cat %1 | TOOL "_s.arg(file) + arguments.arg(u"/dev/stdin"_s));
    QCOMPARE(shown(piped.errors, file), expected.errors);
    QCOMPARE(shown(piped.output, file), expected.output);
    QCOMPARE(piped.exitCode, expected.exitCode);
}

void tst_vrndevice_input::comparesTwoPipes()
{
    const SResult expected = run(u"diff DeviceConfiguration.3deco changed.3deco"_s);
    const SResult result =
        runShell(u"TOOL diff <(cat DeviceConfiguration.3deco) <(cat changed.3deco)"_s);
    QCOMPARE(result.exitCode, 1);
    QVERIFY(!result.output.isEmpty());
    QCOMPARE(result.output, expected.output);
    QCOMPARE(result.errors, QString());
}

void tst_vrndevice_input::pipeThatComesInParts()
{
    const SResult result = runShell(
        u"TOOL show <(for i in $(seq 0 99); do dd if=DeviceConfiguration.3deco bs=100 count=1 "
        "skip=$i status=none; done)"_s);
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.output, run(u"show DeviceConfiguration.3deco"_s).output);
}

void tst_vrndevice_input::stagesPipes()
{
    const QString options = u" --to root --project "_s + Tool::exampleDirectory().path();
    const SResult result = runShell(u"TOOL stage <(cat DeviceConfiguration.3deco)"_s + options);
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.exitCode, 0);
    QVERIFY(QFileInfo(path(u"root"_s)).isDir());
}

void tst_vrndevice_input::placesInPipes()
{
    const SResult result = runShell(u"TOOL check <(printf '<a>\\n<b></c>')"_s);
    QCOMPARE(result.exitCode, 3);
    QVERIFY2(result.errors.contains(QRegularExpression(u"/dev/fd/[0-9]+:2:[0-9]+: "_s)),
             qPrintable(result.errors));
}

void tst_vrndevice_input::endlessDevices_data()
{
    QTest::addColumn<QString>("arguments");

    for (const QString &arguments :
         {u"show /dev/zero"_s, u"check /dev/zero"_s, u"settings show /dev/zero"_s,
          u"network show /dev/zero"_s, u"network check /dev/zero"_s,
          u"os-release show /dev/zero"_s}) {
        QTest::newRow(qPrintable(arguments)) << arguments;
    }
}

void tst_vrndevice_input::endlessDevices()
{
    QFETCH(QString, arguments);
    const SResult result = run(arguments);
    QCOMPARE(result.exitCode, 3);
    QVERIFY(result.output.isEmpty());
    QVERIFY2(result.errors.contains(
                 QRegularExpression(u"/dev/zero: The file is larger than [0-9]+ bytes\\."_s)),
             qPrintable(result.errors));
}

void tst_vrndevice_input::changesNoPipes_data()
{
    QTest::addColumn<QString>("arguments");

    for (const QString &arguments :
         {u"set pipe device.name N"_s, u"add pipe drive[3] drive[3].name N"_s,
          u"remove pipe files[0]"_s, u"add-drive pipe --type KD3_drive --name N"_s, u"fmt pipe"_s,
          u"apply change.json pipe"_s, u"merge DeviceConfiguration.3deco pipe changed.3deco"_s,
          u"settings set pipe --name N"_s, u"network set pipe MODE=DHCP"_s}) {
        QTest::newRow(qPrintable(arguments)) << arguments;
    }
}

void tst_vrndevice_input::changesNoPipes()
{
    // Nobody writes into it: whoever waits for content waits for ever.
    QFETCH(QString, arguments);
    QCOMPARE(mkfifo(QFile::encodeName(path(u"pipe"_s)).constData(), 0600), 0);
    const SResult result = run(arguments);
    QCOMPARE(result.exitCode, 3);
    QVERIFY2(result.errors.contains(u"not a regular file"_s), qPrintable(result.errors));
}

void tst_vrndevice_input::names_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("exitCode");

    QTest::newRow("resource") << u"show :/vrndevice/templates/kd3-drive.3deco"_s << 0;
    QTest::newRow("missing resource") << u"show :/missing"_s << 3;
    QTest::newRow("colon") << u"show :configuration"_s << 3;
    QTest::newRow("release file, colon") << u"os-release show :configuration"_s << 3;
    QTest::newRow("network file, colon") << u"network show :configuration"_s << 3;
    QTest::newRow("colon behind a directory") << u"show ./:configuration"_s << 0;
    QTest::newRow("no search path") << u"show other:configuration"_s << 0;
    QTest::newRow("a resource is not changed")
        << u"set :/vrndevice/templates/kd3-drive.3deco device.name N"_s << 1;
}

void tst_vrndevice_input::names()
{
    QFETCH(QString, arguments);
    QFETCH(int, exitCode);
    for (const QString &name : {u"/:configuration"_s, u"/other:configuration"_s}) {
        QVERIFY(QFile::copy(path(Configuration), m_directory->path() + name));
    }
    const QStringList before = Files::names(m_directory->path());
    const SResult result = run(arguments);
    QCOMPARE(result.exitCode, exitCode);
    QCOMPARE(result.errors.isEmpty(), exitCode == 0);
    QCOMPARE(Files::names(m_directory->path()), before);
}

void tst_vrndevice_input::encodings_data()
{
    QTest::addColumn<QByteArray>("encoding");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("output");

    QTest::newRow("utf8") << QByteArray("utf8") << QByteArray("\xC3\xA9") << u"\u00e9\n"_s;
    QTest::newRow("latin1") << QByteArray("latin1") << QByteArray("\xE9") << u"\u00e9\n"_s;
    QTest::newRow("cp1252") << QByteArray("cp1252") << QByteArray("\x80") << u"\u20ac\n"_s;
    QTest::newRow("windows-1250") << QByteArray("windows-1250") << QByteArray("\x9E")
                                  << u"\u017e\n"_s;
    QTest::newRow("none") << QByteArray() << QByteArray("\xE9") << QString();
}

void tst_vrndevice_input::encodings()
{
    QFETCH(QByteArray, encoding);
    QFETCH(QByteArray, name);
    QFETCH(QString, output);
    const QByteArray content = HostileDocuments::document("<Device name=\"" + name + "\"><Name>"
                                                          + name + "</Name></Device>\n");
    const QByteArray declaration = encoding.isEmpty()
        ? QByteArray()
        : "<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>\n";
    QVERIFY(Files::write(path(Configuration), declaration + content));
    const SResult result = run(u"get DeviceConfiguration.3deco device.name"_s);
    QCOMPARE(result.output, output);
    QCOMPARE(result.exitCode, output.isEmpty() ? 3 : 0);
    QCOMPARE(result.errors.contains(u"is not valid UTF-8 text"_s), output.isEmpty());
}

REGISTER_GUILESS_TEST(tst_vrndevice_input)
#include "tst_vrndevice_input.moc"
