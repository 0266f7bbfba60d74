#include "commissioning/CConfigurationCheck.h"
#include "commissioning/CConfigurationItems.h"
#include "configfile/CDeviceConfigurationFile10.h"
#include "support/BrokenDocuments.h"
#include "support/CheckedDocuments.h"
#include "support/ConfigurationTexts.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/MessageCatcher.h"
#include "support/Places.h"
#include "support/TestProgram.h"

#include <QRegularExpression>
#include <QSet>
#include <QtTest>

using namespace CheckedDocuments;

namespace {

QStringList rulesIn(const QList<const char *> &findings)
{
    QStringList rules;
    for (const char *finding : findings) {
        rules << QString::fromUtf8(finding).section(QLatin1Char(' '), 1, 1);
    }
    return rules;
}

} // namespace

/** The rules: their texts, severities and pages. */
class tst_cconfigurationcheck_rules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyRuleHasAnExample();
    void rulesAreWellFormed();
    void severities_data();
    void severities();
    void documentsOfTheRules();
    void itemsAreThoseOfTheDocument();
    void entriesAreCountedAsTheItems();
    void nullSingleFileIsNone();
    void texts_data();
    void texts();
};

void tst_cconfigurationcheck_rules::everyRuleHasAnExample()
{
    // The two that need more than a table.
    QSet<QString> shown = {u"project-file-unreadable"_s, u"findings-left-out"_s};
    for (const SInvalid &invalid : InvalidFiles) {
        for (const QString &rule : rulesIn(invalid.findings)) {
            shown.insert(rule);
        }
    }
    for (const SProjectFault &fault : ProjectFaults) {
        for (const QString &rule : rulesIn(fault.findings)) {
            shown.insert(rule);
        }
    }
    QStringList listed;
    for (const CConfigurationCheck::SRule &rule : CConfigurationCheck::rules()) {
        listed << rule.id;
    }
    listed.sort();
    QStringList sortedShown = shown.values();
    sortedShown.sort();
    QCOMPARE(sortedShown, listed);
}

void tst_cconfigurationcheck_rules::rulesAreWellFormed()
{
    static const QRegularExpression words(u"\\A[a-z0-9]+(-[a-z0-9]+)+\\z"_s);
    const QList<CConfigurationCheck::SRule> rules = CConfigurationCheck::rules();
    QVERIFY(rules.size() > 60);
    QSet<QString> ids;
    QSet<QString> descriptions;
    for (const CConfigurationCheck::SRule &rule : rules) {
        QVERIFY2(words.match(rule.id).hasMatch(), qPrintable(rule.id));
        QVERIFY2(rule.description.endsWith(QLatin1Char('.')), qPrintable(rule.description));
        QVERIFY2(!rule.hint.isEmpty(), qPrintable(rule.id));
        ids.insert(rule.id);
        descriptions.insert(rule.description);
    }
    QCOMPARE(ids.size(), rules.size());
    QCOMPARE(descriptions.size(), rules.size());
}

void tst_cconfigurationcheck_rules::severities_data()
{
    QTest::addColumn<QString>("rule");
    const QSet<QString> warnings = {
        u"version-other"_s,
        u"date-order"_s,
        u"configuration-name-missing"_s,
        u"ethercat-file-missing"_s,
        u"ethercat-plugin-missing"_s,
        u"drive-name-missing"_s,
        u"bus-id-twice"_s,
        u"device-path-missing"_s,
        u"device-path-relative"_s,
        u"device-path-other-configuration"_s,
    };
    QTest::addColumn<bool>("isWarning");
    for (const CConfigurationCheck::SRule &rule : CConfigurationCheck::rules()) {
        QTest::newRow(qPrintable(rule.id)) << rule.id << warnings.contains(rule.id);
    }
}

void tst_cconfigurationcheck_rules::severities()
{
    QFETCH(QString, rule);
    QFETCH(bool, isWarning);
    const auto expected = isWarning ? SConfigurationFinding::WARNING : SConfigurationFinding::ERROR;
    for (const CConfigurationCheck::SRule &candidate : CConfigurationCheck::rules()) {
        if (candidate.id == rule) {
            QCOMPARE(candidate.severity, expected);
        }
    }
    // The findings tell the same.
    for (const SInvalid &invalid : InvalidFiles) {
        if (rulesIn(invalid.findings).contains(rule)) {
            CConfigurationCheck check;
            QVERIFY(check.open(BrokenDocuments::path(QString::fromUtf8(invalid.name))));
            for (const SConfigurationFinding &finding : check.findings()) {
                QVERIFY(finding.rule != rule || finding.severity == expected);
            }
        }
    }
}

void tst_cconfigurationcheck_rules::documentsOfTheRules()
{
    const QString page = QString::fromUtf8(Files::read(Places::source("docs/rules.md")));
    static const QRegularExpression heading(
        u"^### ([a-z0-9-]+)\\n\\n(Error|Warning)\\. ([^\\n]+(?:\\n[^\\n]+)*)\\n\\n"
        u"```xml\\n[^`]+```\\n\\n\\*\\*Hint:\\*\\* "
        u"([^\\n]+(?:\\n[^\\n]+)*)\\n"_s,
        QRegularExpression::MultilineOption);
    QStringList documented;
    auto matches = heading.globalMatch(page);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        documented << u"%1 %2 %3 %4"_s.arg(
            match.captured(1), match.captured(2), match.captured(3).simplified(),
            match.captured(4).simplified().replace(QLatin1Char('`'), QLatin1Char('\'')));
    }
    QStringList expected;
    for (const CConfigurationCheck::SRule &rule : CConfigurationCheck::rules()) {
        const bool isError = rule.severity == SConfigurationFinding::ERROR;
        expected << u"%1 %2 %3 %4"_s.arg(rule.id, isError ? u"Error"_s : u"Warning"_s,
                                         rule.description, rule.hint);
    }
    QCOMPARE(documented, expected);
    QCOMPARE(page.count(u"\n### "_s), expected.size());
}

void tst_cconfigurationcheck_rules::itemsAreThoseOfTheDocument()
{
    for (const SInvalid &invalid : InvalidFiles) {
        CDeviceConfigurationFile10 file(nullptr);
        const MessageCatcher catcher;
        QVERIFY(file.open(BrokenDocuments::path(QString::fromUtf8(invalid.name))));
        const CConfigurationItems items(file);
        const QStringList lists = {u"device"_s, u"device.options"_s, u"device.plugins"_s,
                                   u"files"_s, u"device.class"_s};
        for (const QString &finding : ::texts(invalid.findings)) {
            const QString item = finding.section(QLatin1Char(' '), 2);
            const QString entry = item.section(QLatin1Char('.'), 0, -2);
            // An item that is missing is one that its entry can have.
            QVERIFY2(item.isEmpty() || lists.contains(item) || items.contains(item)
                         || items.contains(entry) || item.startsWith(u"device."_s)
                         || item.contains(u"[]"_s),
                     qPrintable(u"%1: %2"_s.arg(QString::fromUtf8(invalid.name), item)));
        }
    }
}

void tst_cconfigurationcheck_rules::entriesAreCountedAsTheItems()
{
    // Readers pass over the first one, and take the others for files without a name.
    const QByteArray bytes =
        document("<Files><File/><File><Comment>a</Comment></File><File><Comment>b</Comment></File>"
                 "</Files>");
    CConfigurationCheck check;
    QVERIFY(check.load(bytes));
    QStringList found;
    for (const SConfigurationFinding &finding : check.findings()) {
        if (finding.rule == u"file-name-missing"_s) {
            found << finding.item;
        }
    }
    QCOMPARE(found, QStringList({u"files"_s, u"files[]"_s, u"files[][2]"_s}));
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(bytes));
    QCOMPARE(CConfigurationItems(file).entries(), found.mid(1));
}

void tst_cconfigurationcheck_rules::nullSingleFileIsNone()
{
    CDeviceConfigurationFile10 file(nullptr);
    QVERIFY(file.load(document("<Files/>")));
    CConfigurationCheck check;
    QVERIFY(check.load(ConfigurationTexts::bytesOf(file)));
    const int before = check.findings().size();
    QVERIFY(file.setOdictFile(CFileElement()));
    QVERIFY(file.setFaultTextFile(CFileElement()));
    QVERIFY(file.setEtherCatMasterFile(CFileElement()));
    QVERIFY(check.load(ConfigurationTexts::bytesOf(file)));
    QCOMPARE(check.findings().size(), before);
    // With anything in it, it is a file that has no name.
    CFileElement nameless;
    nameless.setComment(u"c"_s);
    QVERIFY(file.setOdictFile(nameless));
    QVERIFY(check.load(ConfigurationTexts::bytesOf(file)));
    QCOMPARE(check.findings().size(), before + 1);
}

void tst_cconfigurationcheck_rules::texts_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("found");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("hint");
    const auto row = [](const char *name, const QString &message, const QString &found,
                        const QString &expected, const QString &hint) {
        QTest::newRow(name) << message << found << expected << hint;
    };
    row("drive-type-in-lower-case",
        u"'kd2_drive' is not a valid type of a drive. It is read as 'KD3_drive'."_s, u"kd2_drive"_s,
        u"KD2_drive, KD3_drive"_s, u"Write 'KD2_drive'; upper and lower case are distinguished."_s);
    row("drive-type-undefined", u"The type of the drive is undefined. It is read as 'KD3_drive'."_s,
        u"UNKNOWN_drive"_s, u"KD2_drive, KD3_drive"_s,
        u"Write 'KD2_drive' or 'KD3_drive'; the drive is read as 'KD3_drive'."_s);
    row("drive-number-too-high", u"'256' is not a valid drive number."_s, u"256"_s,
        u"a number from 0 to 254"_s, u"The drive is read with the next free number."_s);
    row("drive-number-unassigned", u"'255' is not a valid drive number."_s, u"255"_s,
        u"a number from 0 to 254"_s,
        u"255 means that no number is assigned: the drive is read with the next free number."_s);
    row("drive-number-twice", u"The drive number 0 is already used by drive[0]."_s, u"00"_s,
        u"a unique number"_s, u"The drive is read with the next free number."_s);
    row("class-in-capitals", u"'KD3' is not a valid device class. It is read as 'Undefined'."_s,
        u"KD3"_s, u"kc2, kd3"_s, u"Write 'kd3'; upper and lower case are distinguished."_s);
    row("class-unknown", u"'kd4' is not a valid device class. It is read as 'Undefined'."_s,
        u"kd4"_s, u"kc2, kd3"_s,
        u"Write 'kc2' or 'kd3' in lower case; anything else is read as 'Undefined'."_s);
    row("version-later", u"The document was created with a later version."_s, u"1.10"_s, u"1.0"_s,
        u"The document is read as version 1.0; save it again with this version."_s);
    row("version-previous", u"The document was created with a previous version."_s, u"0.9"_s,
        u"1.0"_s, u"The document is read as version 1.0; save it again with this version."_s);
    row("element-in-other-case", u"Unknown element 'busId'; it is ignored."_s, u"busId"_s,
        u"HardwareId, Name, Comment, DriveNo, BusId, Param, KD2Param, KD2Logic, KD2Firmware"_s,
        u"Write 'BusId'; upper and lower case are distinguished."_s);
    row("element-in-a-text", u"Unknown element 'b'; it is ignored."_s, u"b"_s, u"only text"_s,
        u"Remove the element, or correct its name."_s);
    row("element-misplaced", u"'Options' does not belong in 'Device'; it is ignored."_s,
        u"Options"_s, u"in Config"_s, u"Move the element to where it belongs, or remove it."_s);
    row("root-in-root",
        u"'VornDeviceConfig' does not belong in 'VornDeviceConfig'; it is ignored."_s,
        u"VornDeviceConfig"_s, u"at the top of the document"_s,
        u"Move the element to where it belongs, or remove it."_s);
    row("text-between-elements", u"'Config' contains text, which is ignored."_s, u"-trace"_s,
        u"only elements"_s,
        u"Remove the text, or move it into the element for which it is meant."_s);
    row("attribute-unknown", u"Unknown attribute 'mode' of the element 'Config'; it is ignored."_s,
        u"mode=\"fast\""_s, u""_s, u"Remove the attribute."_s);
    row("opc-ua-flag-in-capitals", u"'TRUE' is neither true nor false. It is read as 'false'."_s,
        u"TRUE"_s, u"true, false"_s, u"Write 'true'; upper and lower case are distinguished."_s);
    row("plugin-without-version", u"The plug-in 'motion' has no version."_s, u""_s,
        u"numbers separated by dots, such as 1.3"_s,
        u"The file name of the plug-in would be 'pi_motion.so.'."_s);
    row("device-path-without-slash",
        u"The directory 'velkor/recipes/' does not begin with a slash."_s, u"velkor/recipes/"_s,
        u"/velkor/recipes/"_s, u"It is read as '/velkor/recipes/'."_s);
    row("device-path-of-other-configuration",
        u"The directory '/velkor/configurations/production/conf/' belongs to the configuration "
        "'production'."_s,
        u"/velkor/configurations/production/conf/"_s, u"a directory of 'production(2)'"_s,
        u"If the configuration was renamed, change the directory accordingly."_s);
    row("two-files-in-one-place",
        u"The file 'recipes.csv' has the same place on the device as files[recipes.csv]."_s,
        u"/velkor/recipes/recipes.csv"_s, u"a unique place"_s,
        u"The file that is transferred last overwrites the other one."_s);
    row("hardware-id-other-platform",
        u"The hardware identity 'KD3:Controller 8A:4:7:9' does not match that of the device."_s,
        u"KD3:Controller 8A:4:7:9"_s, u"prefix, name and platform of 'KD3:Controller 8A:3:2:1'"_s,
        u"A drive must have the prefix, name and platform of its device; version and revision "
        u"may differ. Check whether the drive was copied from another device."_s);
    row("options-on-lines", u"Options are separated by something other than a space."_s, u"\n"_s,
        u"options such as -trace, separated by single spaces"_s,
        u"The device reads this as one word."_s);
}

void tst_cconfigurationcheck_rules::texts()
{
    CConfigurationCheck check;
    QVERIFY(check.open(BrokenDocuments::path(QString::fromUtf8(QTest::currentDataTag()))));
    QCOMPARE(check.findings().size(), 1);
    const SConfigurationFinding finding = check.findings().constFirst();
    QTEST(finding.message, "message");
    QTEST(finding.found, "found");
    QTEST(finding.expected, "expected");
    QTEST(finding.hint, "hint");
}

REGISTER_GUILESS_TEST(tst_cconfigurationcheck_rules)

#include "tst_cconfigurationcheck_rules.moc"
