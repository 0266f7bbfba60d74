#include "support/Files.h"
#include "support/Literals.h"
#include "support/TestProgram.h"
#include "support/Tool.h"

#include <QTemporaryDir>
#include <QTest>

using Tool::SResult;

/** Which language the tool speaks, and what stays the same in all of them. */
class tst_vrndevice_language : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void language_data();
    void language();
    void everythingIsGerman();
    void movedInstallation();
    void withoutCatalogues();
    void jsonIsTheSame_data();
    void jsonIsTheSame();
    void columnsFitTheLanguage();

private:
    SResult run(const QStringList &arguments, const QProcessEnvironment &environment) const
    {
        return Tool::run(m_directory->path(), arguments, environment);
    }

    QScopedPointer<QTemporaryDir> m_directory;
};

namespace {

/** The variables in @p settings, "NAME=VALUE", and no others that tell a language. */
QProcessEnvironment environment(const QStringList &settings)
{
    QProcessEnvironment result = QProcessEnvironment::systemEnvironment();
    for (const QString &name : {u"LANGUAGE"_s, u"LC_ALL"_s, u"LC_MESSAGES"_s, u"LANG"_s}) {
        result.remove(name);
    }
    for (const QString &setting : settings) {
        result.insert(setting.section(u'=', 0, 0), setting.section(u'=', 1));
    }
    return result;
}

// The second needs no locale to be generated.
const QStringList German = {u"LANGUAGE=de"_s, u"LC_ALL=C.UTF-8"_s};
const QStringList English = {u"LC_ALL=C"_s};

} // namespace

void tst_vrndevice_language::init()
{
    m_directory.reset(new QTemporaryDir);
    QVERIFY(m_directory->isValid());
}

void tst_vrndevice_language::language_data()
{
    QTest::addColumn<bool>("isGerman");

    const auto row = [](const char *settings, bool isGerman) {
        QTest::newRow(settings) << isGerman;
    };
    row("", false);
    row("LC_ALL=C", false);
    row("LANG=de_DE.UTF-8", true);
    row("LC_MESSAGES=de_DE.UTF-8", true);
    row("LC_ALL=de_DE.UTF-8", true);
    row("LANG=de_AT.UTF-8", true);
    row("LANG=de_CH@euro", true);
    row("LANG=de", true);
    row("LANG=tr_TR.UTF-8", false);
    row("LANG=xx_YY", false);
    row("LC_ALL=en_US.UTF-8 LANG=de_DE.UTF-8", false);
    row("LC_ALL=de_DE.UTF-8 LANG=en_US.UTF-8", true);
    row("LC_ALL=C LANG=de_DE.UTF-8", false);
    row("LANGUAGE=de LC_ALL=C", false);
    row("LANGUAGE=de LC_ALL=POSIX", false);
    row("LANGUAGE=de", false);
    row("LANGUAGE=de LC_ALL=C.UTF-8", true);
    row("LANGUAGE=de LANG=en_US.UTF-8", true);
    row("LANGUAGE=en LANG=de_DE.UTF-8", false);
    row("LANGUAGE=en:de LANG=de_DE.UTF-8", false);
    row("LANGUAGE=en_GB:de LANG=de_DE.UTF-8", false);
    row("LANGUAGE=fr:de:en LANG=fr_FR.UTF-8", true);
    row("LANGUAGE=fr:en:de LANG=fr_FR.UTF-8", false);
    row("LANGUAGE=../../de LANG=fr_FR.UTF-8", false);
}

void tst_vrndevice_language::language()
{
    QFETCH(bool, isGerman);
    const QProcessEnvironment settings =
        environment(QString::fromLatin1(QTest::currentDataTag()).split(u' ', Qt::SkipEmptyParts));

    const SResult help = run({u"--help"_s}, settings);
    QCOMPARE(help.exitCode, 0);
    QVERIFY2(help.output.startsWith(isGerman ? u"Aufruf: vrndevice BEFEHL"_s
                                             : u"Usage: vrndevice COMMAND"_s),
             qPrintable(help.output));
    // The libraries have a catalogue of their own.
    const SResult message = run({u"message"_s, u"1097"_s}, settings);
    QVERIFY2(message.output.contains(isGerman ? u"Benutzerdefiniertes"_s : u"User-defined"_s),
             qPrintable(message.output));
    const SResult error = run({u"shwo"_s}, settings);
    QCOMPARE(error.exitCode, 2);
    QCOMPARE(error.errors,
             isGerman ? u"vrndevice: error: Unbekannter Befehl 'shwo'. Meinten Sie 'show'?\n"_s
                      : u"vrndevice: error: Unknown command 'shwo'. Did you mean 'show'?\n"_s);
}

void tst_vrndevice_language::everythingIsGerman()
{
    const QProcessEnvironment german = environment(German);
    QVERIFY(Tool::copyExample(u"DeviceConfiguration.3deco"_s, m_directory->path()));
    const SResult help = run({u"add-drive"_s, u"--help"_s}, german);
    for (const QString &text : {u"Aufruf: vrndevice add-drive [Optionen] FILE\n"_s,
                                u"Einen Antrieb"_s, u"\nOptionen:\n"_s, u"Diese Hilfe"_s,
                                u"Baureihe"_s, u"\nArgumente:\n"_s, u"\nBeispiel:\n"_s}) {
        QVERIFY2(help.output.contains(text), qPrintable(text));
    }
    QCOMPARE(
        run({u"add-drive"_s, u"DeviceConfiguration.3deco"_s, u"--type=KD3_drive"_s}, german).output,
        u"Antrieb 3 hinzugefügt: DRIVE-3, KD3_drive\n"_s);
    QCOMPARE(run({u"add-drive"_s, u"x"_s, u"--type=KD4"_s}, german).errors,
             u"vrndevice: error: add-drive: --type muss KD2_drive oder KD3_drive sein. Siehe "
             "'vrndevice add-drive --help'.\n"_s);
    // What QT_TRANSLATE_NOOP marks.
    QVERIFY(run({u"place"_s, u"DeviceConfiguration.3deco"_s}, german)
                .output.contains(u"\nObjektverzeichnis  "_s));
    QVERIFY(Files::write(m_directory->filePath(u"n"_s), "MODE=STATIC\n"));
    QCOMPARE(run({u"network"_s, u"check"_s, u"n"_s}, german).output,
             u"n: ADDRESS: Die Betriebsart STATIC braucht eine Adresse.\n"_s);
}

void tst_vrndevice_language::movedInstallation()
{
    const QDir directory(m_directory->path());
    const QString translations = u"moved/share/vrnDeviceCore/translations"_s;
    QVERIFY(directory.mkpath(u"moved/bin"_s));
    QVERIFY(directory.mkpath(translations));
    const QString tool = directory.filePath(u"moved/bin/vrndevice"_s);
    QVERIFY(QFile::copy(Tool::program(), tool));
    const auto usage = [&tool]() {
        QProcess process;
        process.setProcessEnvironment(environment(German));
        process.start(tool, {u"--help"_s});
        process.waitForFinished();
        return QString::fromUtf8(process.readAllStandardError() + process.readAllStandardOutput());
    };
    // Nothing beside it: English, and not a word about it.
    QVERIFY(usage().startsWith(u"Usage: "_s));

    const QDir built(QFileInfo(Tool::program())
                         .absoluteDir()
                         .filePath(u"../share/vrnDeviceCore/translations"_s));
    const QString catalogue = translations + u"/vrndevice_de.qm"_s;
    QVERIFY(QFile::copy(built.filePath(u"vrndevice_de.qm"_s), directory.filePath(catalogue)));
    QVERIFY(usage().startsWith(u"Aufruf: "_s));

    QVERIFY(Files::write(directory.filePath(catalogue), "no catalogue"));
    QVERIFY(usage().startsWith(u"Usage: "_s));
}

void tst_vrndevice_language::withoutCatalogues()
{
    // A directory of that name in which the tool happens to run is none of its own.
    QVERIFY(QDir(m_directory->path()).mkpath(u"share/vrnDeviceCore/translations"_s));
    QVERIFY(Files::write(m_directory->filePath(u"vrndevice_fr.qm"_s), "x"));
    const SResult result = run({u"--help"_s}, environment({u"LANG=fr_FR.UTF-8"_s}));
    QVERIFY(result.output.startsWith(u"Usage: "_s));
    QVERIFY(result.errors.isEmpty());
}

void tst_vrndevice_language::jsonIsTheSame_data()
{
    QTest::addColumn<QStringList>("arguments");
    for (const char *arguments :
         {"show DeviceConfiguration.3deco", "place DeviceConfiguration.3deco",
          "settings show settings.3conf", "network show network.conf", "os-release show os-release",
          "network check network.conf"}) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments).split(u' ');
    }
}

void tst_vrndevice_language::jsonIsTheSame()
{
    QFETCH(QStringList, arguments);
    QVERIFY(Tool::copyExample(arguments.last(), m_directory->path()));
    arguments.append(u"--json"_s);
    const SResult english = run(arguments, environment(English));
    QCOMPARE(english.exitCode, 0);
    QVERIFY(!english.json().isEmpty());
    QCOMPARE(run(arguments, environment(German)).output, english.output);
}

void tst_vrndevice_language::columnsFitTheLanguage()
{
    QVERIFY(Tool::copyExample(u"DeviceConfiguration.3deco"_s, m_directory->path()));
    for (const QStringList &settings : {English, German}) {
        const QStringList lines =
            run({u"place"_s, u"DeviceConfiguration.3deco"_s}, environment(settings))
                .output.split(u'\n', Qt::SkipEmptyParts);
        const int column = lines.at(1).indexOf(u"DeviceConfiguration.3deco"_s);
        QVERIFY(column > 0);
        for (const QString &line : lines) {
            QVERIFY2(line.at(column) != u' ' && line.mid(column - 2, 2) == u"  "_s,
                     qPrintable(line));
        }
        const QStringList help = run({u"--help"_s}, environment(settings)).output.split(u'\n');
        for (const QString &line : help) {
            QVERIFY2(line.size() <= 80, qPrintable(line));
        }
    }
}

REGISTER_GUILESS_TEST(tst_vrndevice_language)
#include "tst_vrndevice_language.moc"
