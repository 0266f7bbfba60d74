#include "support/Files.h"
#include "support/Literals.h"
#include "support/TestProgram.h"
#include "support/Tool.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

#include <signal.h>
#include <sys/stat.h>

class tst_vrndevice_staging : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_directory;

    QString at(const QString &path) const { return m_directory->filePath(path); }

    static QString project() { return Tool::exampleDirectory().path(); }
    static QString document()
    {
        return Tool::exampleDirectory().filePath(u"DeviceConfiguration.3deco"_s);
    }

    Tool::SResult run(const QStringList &arguments) const
    {
        return Tool::run(m_directory->path(), arguments);
    }
    Tool::SResult stage(const QStringList &more) const
    {
        return run(QStringList({u"stage"_s, document(), u"--project"_s, project()}) + more);
    }

    /** A project with one large file, and its configuration beside it. */
    bool makeLargeProject(int size) const
    {
        const QByteArray text = Files::read(document());
        const int start = text.indexOf("<Config>");
        const int end = text.indexOf("</Device>");
        const QByteArray files = "<Config><Files><File><Name>large</Name>"
                                 "<DeviceDir>/velkor/configurations/STD/conf/</DeviceDir>"
                                 "<ProjectDir>p/</ProjectDir></File></Files></Config>";
        return QDir().mkpath(at(u"project/p"_s))
            && Files::write(at(u"large.3deco"_s), text.left(start) + files + text.mid(end))
            && Files::write(at(u"project/p/large"_s), QByteArray(size, 'x'));
    }

private slots:
    void init() { m_directory = std::make_unique<QTemporaryDir>(); }

    void stagesTheExampleAsPlaceTells()
    {
        const Tool::SResult staged = stage({u"--to"_s, u"root"_s});
        QCOMPARE(staged.errors, QString());
        QCOMPARE(staged.exitCode, 0);
        QVERIFY(staged.output.contains(u"29 files"_s));

        const QJsonArray places =
            run({u"place"_s, document(), u"--json"_s}).json().value(u"files"_s).toArray();
        QStringList expected = {u"manifest.json"_s};
        for (const QJsonValue &place : places) {
            const QString path = place[u"deviceDir"_s].toString() + place[u"name"_s].toString();
            const bool isDocument = place[u"kind"_s] == u"configuration"_s;
            const QString source = isDocument ? document()
                                              : project() + u'/' + place[u"projectDir"_s].toString()
                    + place[u"name"_s].toString();
            QVERIFY2(QFileInfo(source).isFile(), qPrintable(source));
            QCOMPARE(Files::read(at(u"root"_s + path)), Files::read(source));
            expected << path.mid(1);
        }
        QCOMPARE(expected.size(), 30);
        QStringList found;
        QDirIterator it(at(u"root"_s), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            found << it.next().mid(at(u"root/"_s).size());
        }
        expected.sort();
        found.sort();
        QCOMPARE(found, expected);
        QVERIFY(QFileInfo(at(u"root/velkor/configurations/STD/subdevices/2/firmware"_s)).isDir());
    }

    void refusesByTheRulesOfTheCheck()
    {
        QProcess copy;
        copy.start(u"cp"_s, {u"-r"_s, project(), at(u"copy"_s)});
        QVERIFY(copy.waitForFinished());
        QStringList files;
        QDirIterator found(at(u"copy"_s), {u"*.3param"_s}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (found.hasNext()) {
            files << found.next();
        }
        // Each has another fault.
        QVERIFY(files.size() >= 4);
        QVERIFY(QFile::remove(files.at(0)));
        QVERIFY(Files::write(files.at(1), QByteArray()));
        QVERIFY(QFile::rename(files.at(2), files.at(2).chopped(7) + u".3PARAM"_s));
        QVERIFY(QFile::remove(files.at(3)));
        QCOMPARE(mkfifo(QFile::encodeName(files.at(3)).constData(), 0600), 0);

        const auto sortedRules = [](const QJsonArray &array) {
            QStringList rules;
            for (const QJsonValue &value : array) {
                rules << value[u"rule"_s].toString();
            }
            rules.sort();
            return rules;
        };
        const QStringList arguments = {u"copy/DeviceConfiguration.3deco"_s, u"--project"_s,
                                       u"copy"_s, u"--json"_s};
        const Tool::SResult checked = run(QStringList{u"check"_s} + arguments);
        const Tool::SResult staged =
            run(QStringList{u"stage"_s} + arguments + QStringList{u"--to"_s, u"root"_s});
        const QStringList rules = sortedRules(staged.json().value(u"problems"_s).toArray());
        QCOMPARE(rules,
                 QStringList({u"project-file-empty"_s, u"project-file-missing"_s,
                              u"project-file-not-regular"_s, u"project-file-other-case"_s}));
        QCOMPARE(
            sortedRules(checked.json().value(u"files"_s).toArray().at(0)[u"findings"_s].toArray()),
            rules);
        QVERIFY(!QFileInfo::exists(at(u"root"_s)));
    }

    void stagesTreeAndArchiveAndRecord()
    {
        QVERIFY(QDir().mkpath(at(u"copy"_s)));
        QProcess copy;
        copy.start(u"cp"_s, {u"-r"_s, project() + u"/."_s, at(u"copy"_s)});
        QVERIFY(copy.waitForFinished());
        const QStringList arguments = {u"stage"_s,     u"copy/DeviceConfiguration.3deco"_s,
                                       u"--project"_s, u"copy"_s,
                                       u"--to"_s,      u"root"_s,
                                       u"--archive"_s, u"out.tar.gz"_s,
                                       u"--record"_s,  u"--json"_s};
        const Tool::SResult staged = run(arguments);
        QCOMPARE(staged.errors, QString());
        QCOMPARE(staged.exitCode, 0);
        const QByteArray manifest = Files::read(at(u"root/manifest.json"_s));
        QVERIFY(!manifest.isEmpty());
        QCOMPARE(Files::read(at(u"copy/manifest.json"_s)), manifest);
        QVERIFY(manifest.contains("\"projectPath\": \"DeviceConfiguration.3deco\""));
        QCOMPARE(staged.json().value(u"manifestSha256"_s).toString().toLatin1(),
                 QCryptographicHash::hash(manifest, QCryptographicHash::Sha256).toHex());
        QCOMPARE(staged.json().value(u"staged"_s).toBool(), true);
        QCOMPARE(staged.json().value(u"files"_s).toInt(), 29);
        QVERIFY(staged.json().value(u"size"_s).toInt() > 10000);
        QCOMPARE(staged.json().value(u"directories"_s).toInt(), 30);
        QVERIFY(staged.json().value(u"problems"_s).isArray());

        const Tool::SResult verified = run({u"verify"_s, u"root"_s, u"out.tar.gz"_s});
        QCOMPARE(verified.exitCode, 0);
        QCOMPARE(verified.output.count(u"29 files"_s), 2);

        // The record is replaced when it is ours.
        QCOMPARE(run(arguments + QStringList{u"--replace"_s}).exitCode, 0);
        QVERIFY(Files::write(at(u"copy/manifest.json"_s), "{\"name\": \"something else\"}"));
        const Tool::SResult refused = run(arguments + QStringList{u"--replace"_s});
        QCOMPARE(refused.exitCode, 1);
        QVERIFY(refused.errors.contains(u"copy/manifest.json"_s));
        QVERIFY(refused.json().value(u"error"_s).toString().contains(u"manifest.json"_s));
        QCOMPARE(Files::read(at(u"copy/manifest.json"_s)),
                 QByteArray("{\"name\": \"something else\"}"));
    }

    void readsStandardInput()
    {
        QProcess process;
        process.setWorkingDirectory(m_directory->path());
        process.setStandardInputFile(document());
        process.start(Tool::program(),
                      {u"stage"_s, u"-"_s, u"--project"_s, project(), u"--to"_s, u"root"_s});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 0);
        QCOMPARE(
            Files::read(at(u"root/velkor/configurations/STD/conf/DeviceConfiguration.3deco"_s)),
            Files::read(document()));
        QVERIFY(
            !Files::read(at(u"root/manifest.json"_s)).contains(".3deco\", \"projectPath\": \"D"));
        QCOMPARE(run({u"verify"_s, u"root"_s}).exitCode, 0);
    }

    void isTheSameUnderEveryUmaskAndLocale()
    {
        QCOMPARE(stage({u"--archive"_s, u"first"_s}).exitCode, 0);
        for (const QString &locale : {u"C"_s, u"C.UTF-8"_s, u"tr_TR.UTF-8"_s}) {
            QProcess process;
            process.setWorkingDirectory(m_directory->path());
            process.start(u"sh"_s,
                          {u"-c"_s, u"umask 077; LC_ALL=$1; export LC_ALL; shift; exec \"$@\""_s,
                           u"sh"_s, locale, Tool::program(), u"stage"_s, document(), u"--project"_s,
                           project(), u"--archive"_s, u"second"_s});
            QVERIFY(process.waitForFinished());
            QCOMPARE(process.exitCode(), 0);
            QCOMPARE(Files::read(at(u"second"_s)), Files::read(at(u"first"_s)));
        }
    }

    void tellsAllProblemsAndWritesNothing()
    {
        QVERIFY(QDir().mkpath(at(u"empty"_s)));
        const QStringList arguments = {u"stage"_s,     document(), u"--project"_s,
                                       u"empty"_s,     u"--to"_s,  u"root"_s,
                                       u"--archive"_s, u"out"_s,   u"--record"_s};
        const Tool::SResult plain = run(arguments);
        QCOMPARE(plain.exitCode, 1);
        QCOMPARE(plain.output, QString());
        QCOMPARE(plain.errors.count(u'\n'), 28);
        const Tool::SResult json = run(arguments + QStringList{u"--json"_s});
        QCOMPARE(json.exitCode, 1);
        const QJsonArray problems = json.json().value(u"problems"_s).toArray();
        QCOMPARE(problems.size(), 28);
        QCOMPARE(problems.at(0).toObject().keys(),
                 QStringList({u"devicePath"_s, u"message"_s, u"projectPath"_s, u"rule"_s}));
        QCOMPARE(json.json().value(u"staged"_s).toBool(true), false);
        QCOMPARE(Files::names(m_directory->path()), QStringList{u"empty"_s});
        QCOMPARE(Files::names(at(u"empty"_s)), QStringList());
    }

    void existingRoot()
    {
        QCOMPARE(stage({u"--to"_s, u"root"_s}).exitCode, 0);
        const Tool::SResult refused = stage({u"--to"_s, u"root"_s});
        QCOMPARE(refused.exitCode, 1);
        QVERIFY(refused.errors.contains(u"root"_s));
        QCOMPARE(stage({u"--to"_s, u"root"_s, u"--replace"_s}).exitCode, 0);
        QCOMPARE(Files::names(m_directory->path()), QStringList{u"root"_s});
    }

    void badUsage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        const QString file = document();
        QTest::newRow("no project") << QStringList({u"stage"_s, file, u"--to"_s, u"root"_s}) << 2;
        QTest::newRow("no target") << QStringList({u"stage"_s, file, u"--project"_s, u"."_s}) << 2;
        QTest::newRow("nothing to replace") << QStringList(
            {u"stage"_s, file, u"--project"_s, u"."_s, u"--archive"_s, u"a"_s, u"--replace"_s})
                                            << 2;
        QTest::newRow("no file") << QStringList{u"stage"_s} << 2;
        QTest::newRow("missing file")
            << QStringList({u"stage"_s, u"none"_s, u"--project"_s, u"."_s, u"--to"_s, u"root"_s})
            << 3;
        QTest::newRow("no configuration") << QStringList(
            {u"stage"_s, u"/etc/passwd"_s, u"--project"_s, u"."_s, u"--to"_s, u"root"_s})
                                          << 3;
        QTest::newRow("nothing to verify") << QStringList{u"verify"_s} << 2;
        QTest::newRow("missing tree") << QStringList({u"verify"_s, u"none"_s}) << 3;
    }

    void badUsage()
    {
        QFETCH(const QStringList, arguments);
        QFETCH(const int, exitCode);
        const Tool::SResult result = run(arguments);
        QCOMPARE(result.exitCode, exitCode);
        QVERIFY(!result.errors.isEmpty());
        QCOMPARE(Files::names(m_directory->path()), QStringList());
    }

    void verifyNamesDifferences()
    {
        QCOMPARE(stage({u"--to"_s, u"root"_s, u"--archive"_s, u"whole"_s}).exitCode, 0);
        const QString path = u"velkor/configurations/STD/conf/recipes.csv"_s;
        QVERIFY(QFile::remove(at(u"root/"_s + path)));
        QVERIFY(Files::write(at(u"root/opt/x"_s), "x"));
        const Tool::SResult plain = run({u"verify"_s, u"root"_s});
        QCOMPARE(plain.exitCode, 1);
        QCOMPARE(plain.output,
                 u"root: opt/x is not in the manifest.\nroot: "_s + path + u" is missing.\n"_s);
        const Tool::SResult json = run({u"verify"_s, u"--json"_s, u"whole"_s, u"root"_s});
        QCOMPARE(json.exitCode, 1);
        const QJsonArray trees = json.json().value(u"trees"_s).toArray();
        QCOMPARE(trees.size(), 2);
        QCOMPARE(trees.at(0)[u"path"_s].toString(), u"whole"_s);
        QCOMPARE(trees.at(0)[u"files"_s].toInt(), 29);
        QCOMPARE(trees.at(0)[u"differences"_s].toArray().size(), 0);
        const QJsonArray differences = trees.at(1)[u"differences"_s].toArray();
        QCOMPARE(differences.size(), 2);
        QCOMPARE(differences.at(0)[u"kind"_s].toString(), u"surplus"_s);
        QCOMPARE(differences.at(1)[u"kind"_s].toString(), u"missing"_s);
        QCOMPARE(differences.at(1)[u"path"_s].toString(), path);

        // What cannot be read counts more, wherever it stands.
        QCOMPARE(run({u"verify"_s, u"none"_s, u"root"_s}).exitCode, 3);
        QCOMPARE(run({u"verify"_s, u"root"_s, u"none"_s}).exitCode, 3);
        const QByteArray archive = Files::read(at(u"whole"_s));
        QVERIFY(Files::write(at(u"whole"_s), archive.chopped(100)));
        const Tool::SResult broken = run({u"verify"_s, u"whole"_s});
        QCOMPARE(broken.exitCode, 1);
        QVERIFY(broken.output.startsWith(u"whole: The archive is damaged: "_s));
    }

    void signalRemovesWhatIsHalfDone_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("SIGINT") << SIGINT;
        QTest::newRow("SIGTERM") << SIGTERM;
    }

    void signalRemovesWhatIsHalfDone()
    {
        QFETCH(const int, signal);
        QVERIFY(makeLargeProject(64 * 1024 * 1024));
        QProcess process;
        process.setWorkingDirectory(m_directory->path());
        process.start(Tool::program(),
                      {u"stage"_s, u"large.3deco"_s, u"--project"_s, u"project"_s, u"--to"_s,
                       u"root"_s, u"--archive"_s, u"out"_s});
        // As soon as the tree is being written.
        const auto isWriting = [&] {
            for (const QString &name : Files::names(m_directory->path())) {
                if (name.startsWith(u".vrn-stage-"_s)) {
                    return true;
                }
            }
            return process.state() == QProcess::NotRunning;
        };
        QTRY_VERIFY_WITH_TIMEOUT(isWriting(), 60000);
        kill(static_cast<pid_t>(process.processId()), signal);
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 1);
        QCOMPARE(Files::names(m_directory->path()), QStringList({u"large.3deco"_s, u"project"_s}));
    }

    void killedAtAnyTimeLeavesAllOrNothing()
    {
        QVERIFY(makeLargeProject(4 * 1024 * 1024));
        int killed = 0;
        int stages = 0;
        // Later and later, until it is done before.
        for (int delay = 0; delay < 60000 && killed == stages; delay += 1 + delay / 8) {
            QVERIFY(QDir(at(u"root"_s)).removeRecursively());
            QFile::remove(at(u"out"_s));
            QProcess process;
            process.setWorkingDirectory(m_directory->path());
            process.start(Tool::program(),
                          {u"stage"_s, u"large.3deco"_s, u"--project"_s, u"project"_s, u"--to"_s,
                           u"root"_s, u"--archive"_s, u"out"_s});
            QVERIFY(process.waitForStarted());
            process.waitForFinished(delay);
            process.kill();
            QVERIFY(process.state() == QProcess::NotRunning || process.waitForFinished());
            ++stages;
            killed += process.exitStatus() == QProcess::CrashExit ? 1 : 0;
            for (const QString &made : {u"root"_s, u"out"_s}) {
                if (QFileInfo::exists(at(made))) {
                    QCOMPARE(run({u"verify"_s, made}).exitCode, 0);
                }
            }
        }
        QVERIFY(killed > 5);
        QVERIFY(stages > killed);
        // The last one has removed what the others left behind.
        QCOMPARE(Files::names(m_directory->path()),
                 QStringList({u"large.3deco"_s, u"out"_s, u"project"_s, u"root"_s}));
    }
};

REGISTER_GUILESS_TEST(tst_vrndevice_staging)
#include "tst_vrndevice_staging.moc"
