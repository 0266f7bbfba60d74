#include "commissioning/check/DocumentCheck.h"

#include "commissioning/CConfigurationItems.h"
#include "devicefiles/CDeviceFileSystem.h"
#include "imported/CDomDoc.h"
#include "imported/CStr.h"
#include "vocabulary/NVornXmlTags.h"

#include <QCoreApplication>
#include <QDir>
#include <QRegExp>

#include <algorithm>
#include <tuple>

using namespace ConfigurationRules;
using namespace DocumentStructure;
using namespace NVornXmlTags;

namespace {

/** The texts of this class, under the context in which they are translated. */
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(CConfigurationCheck)
};

const QLatin1Char Separator('/');
const QLatin1Char Blank(' ');
const QLatin1Char Hyphen('-');
const QString OptionList = QStringLiteral("device.options");
const QString OpcUaOption = QStringLiteral("-opc");
const QString Kd2Type = QStringLiteral("KD2_drive");
const QString Kd3Type = QStringLiteral("KD3_drive");
const QString UnknownType = QStringLiteral("UNKNOWN_drive");
const uint HighestDriveNumber = 254;
const uint UnassignedDriveNumber = 255;
/** No name of a file or directory can be longer; in bytes. */
const int LongestName = 255;
/** UTF-16 units. A longer key is no help for anybody, and may stand in many findings. */
const int LongestKey = 1000;
const int LongestShownText = 200;
/** More than anybody reads, and no more than memory holds. */
const int MostFindings = 100000;

/** @p text as it is told in messages. */
QString shown(const QString &text)
{
    return text.size() <= LongestShownText ? text : text.left(LongestShownText) + QChar(0x2026);
}

bool isSameIgnoringCase(const QString &left, const QString &right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

bool isBlank(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.isSpace(); });
}

QStringList components(const QString &path)
{
    return path.split(Separator, Qt::SkipEmptyParts);
}

bool isName(const QString &name)
{
    const auto isForbidden = [](QChar c) {
        return c == Separator || c == QLatin1Char('\\') || c.category() == QChar::Other_Control;
    };
    return name != QLatin1String(".") && name != QLatin1String("..")
        && std::none_of(name.cbegin(), name.cend(), isForbidden);
}

bool isDottedNumber(const QString &text)
{
    const QStringList parts = text.split(QLatin1Char('.'));
    return std::all_of(parts.cbegin(), parts.cend(), [](const QString &part) {
        return !part.isEmpty() && std::all_of(part.cbegin(), part.cend(), [](QChar c) {
            return c >= QLatin1Char('0') && c <= QLatin1Char('9');
        });
    });
}

bool isAbsolute(const QString &path)
{
    const bool hasDrive =
        path.size() >= 2 && path.at(0).isLetter() && path.at(1) == QLatin1Char(':');
    return path.startsWith(Separator) || hasDrive;
}

/** Names that belong to XML itself: name spaces, and where a schema is found. */
bool isOfXml(const QString &attribute)
{
    return attribute.startsWith(QLatin1String("xml"), Qt::CaseInsensitive)
        || attribute.startsWith(QLatin1String("xsi:"));
}

QString inWords(const QStringList &texts)
{
    return texts.join(QStringLiteral(", "));
}

QString caseHint(const QString &rightText)
{
    return Texts::tr("Write '%1'; upper and lower case are distinguished.").arg(rightText);
}

/** Of the texts that are allowed, the one meant by @p text; empty when there is none. */
QString meant(const QString &text, const QStringList &allowed)
{
    const auto found =
        std::find_if(allowed.cbegin(), allowed.cend(), [&text](const QString &candidate) {
            return isSameIgnoringCase(candidate, text);
        });
    return found == allowed.cend() ? QString() : *found;
}

/** The key of a drive: its number as it is read, and the text where that is none. */
QString driveKey(const QString &text)
{
    bool isNumber = false;
    const uint number = text.toUInt(&isNumber);
    return isNumber && number <= UnassignedDriveNumber ? QString::number(number) : text;
}

} // namespace

/** An element, and of each child that it may have, the first one: that is what is read. */
class DocumentCheck::Fields
{
public:
    Fields(const QDomElement &parent, const SElement &type)
        : m_parent(parent), m_type(type), m_children(type.children.size())
    {
        for (QDomElement child = parent.firstChildElement(); !child.isNull();
             child = child.nextSiblingElement()) {
            const int index = indexOf(child.tagName());
            if (index >= 0 && m_children.at(index).isNull()) {
                m_children[index] = child;
            }
        }
    }

    const QDomElement &parent() const { return m_parent; }
    const SElement &type() const { return m_type; }

    int indexOf(const QString &tag) const
    {
        const auto isOfThatTag = [&tag](const SChild &child) { return child.element->tag == tag; };
        const auto found =
            std::find_if(m_type.children.cbegin(), m_type.children.cend(), isOfThatTag);
        return found == m_type.children.cend()
            ? -1
            : static_cast<int>(std::distance(m_type.children.cbegin(), found));
    }

    /** Null when there is none. */
    QDomElement element(const QString &tag) const { return m_children.value(indexOf(tag)); }
    bool contains(const QString &tag) const { return !element(tag).isNull(); }
    QString text(const QString &tag) const { return CDomDoc::text(element(tag)); }
    /** The child, or where it would stand. */
    QDomElement place(const QString &tag) const
    {
        const QDomElement child = element(tag);
        return child.isNull() ? m_parent : child;
    }

private:
    const QDomElement m_parent;
    const SElement &m_type;
    QVector<QDomElement> m_children;
};

DocumentCheck::DocumentCheck(const CDeviceConfigurationFile10 &file, const QString &version,
                             ProjectFiles *project)
    : m_file(file), m_version(version), m_project(project)
{
}

QList<SConfigurationFinding> DocumentCheck::run()
{
    QString errorText;
    if (m_project != nullptr && !m_project->readManifest(errorText)) {
        report(MANIFEST_INVALID, SPlace(),
               {Texts::tr("The manifest of the project cannot be read: %1").arg(errorText),
                CDeviceManifest::fileName(), Texts::tr("a manifest written by staging"),
                Texts::tr("Create the manifest again; the files are not compared with this one.")});
    }
    visit(m_file.domDocument().documentElement(), root(), QString());
    return m_findings;
}

void DocumentCheck::report(ERule rule, const SPlace &place, const SText &text)
{
    if (m_findings.size() < MostFindings) {
        append(rule, place, text);
    } else if (m_findings.size() == MostFindings) {
        append(FINDINGS_LEFT_OUT, place,
               {Texts::tr("Too many findings; the remaining ones are left out."), QString(),
                QString(), Texts::tr("Correct the reported findings, then check again.")});
    }
}

void DocumentCheck::append(ERule rule, const SPlace &place, const SText &text)
{
    SConfigurationFinding finding;
    finding.rule = id(rule);
    finding.severity = severity(rule);
    finding.item = place.item;
    finding.position = m_file.position(place.element);
    finding.message = text.message;
    finding.found = shown(text.found);
    finding.expected = text.expected;
    finding.hint = text.hint.isEmpty() ? hint(rule) : text.hint;
    m_findings.append(finding);
}

void DocumentCheck::visit(const QDomElement &element, const SElement &type, const QString &path)
{
    const Fields fields(element, type);
    const QString item = itemOf(type, fields, path);
    checkStructure(fields, item);
    checkMeaning(fields, item);
    for (QDomElement child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        const int index = fields.indexOf(child.tagName());
        if (index < 0) {
            if (type.isReadDeep) {
                visitDeep(child, type, item);
            }
            continue;
        }
        const SChild &known = type.children.at(index);
        if (known.isRepeated || child == fields.element(known.element->tag)) {
            const bool isBelow = known.item.isEmpty() || known.item.startsWith(QLatin1Char('.'));
            visit(child, *known.element, isBelow ? item + known.item : known.item);
        }
    }
    if (type.meaning == MEANING_CONFIG) {
        checkConfig(fields, item);
    }
}

void DocumentCheck::visitDeep(const QDomElement &element, const SElement &list, const QString &path)
{
    const SElement &entry = *list.children.constFirst().element;
    for (QDomElement child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        if (child.tagName() == entry.tag) {
            visit(child, entry, path);
        } else {
            visitDeep(child, list, path);
        }
    }
}

QString DocumentCheck::itemOf(const SElement &type, const Fields &fields, const QString &path)
{
    if (type.keyTag.isEmpty()) {
        return path;
    }
    const QString text = fields.text(type.keyTag);
    return entryPath(path, type.meaning == MEANING_DRIVE ? driveKey(text) : text);
}

QString DocumentCheck::entryPath(const QString &list, const QString &key)
{
    if (key.size() > LongestKey) {
        return list;
    }
    const int occurrence = ++m_entryCounts[CConfigurationItems::entryPath(list, key)];
    return CConfigurationItems::entryPath(list, key, occurrence);
}

void DocumentCheck::checkStructure(const Fields &fields, const QString &item)
{
    const QDomElement &element = fields.parent();
    const SElement &type = fields.type();
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.size(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        if (type.attributes.contains(attribute.name()) || isOfXml(attribute.name())) {
            continue;
        }
        const QString wanted = meant(attribute.name(), type.attributes);
        report(ATTRIBUTE_UNKNOWN, {element, item},
               {Texts::tr("Unknown attribute '%2' of the element '%1'; it is ignored.")
                    .arg(type.tag, attribute.name()),
                QStringLiteral("%1=\"%2\"").arg(attribute.name(), attribute.value()),
                inWords(type.attributes),
                wanted.isEmpty() ? Texts::tr("Remove the attribute.") : caseHint(wanted)});
    }

    QString strayText;
    for (QDomNode node = element.firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (node.isElement()) {
            const QDomElement child = node.toElement();
            const int index = fields.indexOf(child.tagName());
            if (index < 0) {
                reportStray(child, type, item);
            } else if (!type.children.at(index).isRepeated
                       && child != fields.element(child.tagName())) {
                report(ELEMENT_REPEATED, {child, item},
                       {Texts::tr("'%1' occurs more than once in '%2'; only the first one is read.")
                            .arg(child.tagName(), type.tag),
                        child.tagName(), Texts::tr("one '%1'").arg(child.tagName()),
                        Texts::tr("Remove all but one.")});
            }
        } else if (!type.hasText && strayText.isEmpty() && (node.isText() || node.isCDATASection())
                   && !isBlank(node.nodeValue())) {
            strayText = node.nodeValue().trimmed();
        }
    }
    if (!strayText.isEmpty()) {
        report(TEXT_UNEXPECTED, {element, item},
               {Texts::tr("'%1' contains text, which is ignored.").arg(type.tag), strayText,
                Texts::tr("only elements"),
                Texts::tr("Remove the text, or move it into the element for which it is meant.")});
    }
}

void DocumentCheck::reportStray(const QDomElement &child, const SElement &parent,
                                const QString &item)
{
    const QString tag = child.tagName();
    QStringList allowed;
    for (const SChild &candidate : parent.children) {
        allowed.append(candidate.element->tag);
    }
    const QStringList places = parents(tag);
    if (!places.isEmpty() || tag == root().tag) {
        report(ELEMENT_MISPLACED, {child, item},
               {Texts::tr("'%1' does not belong in '%2'; it is ignored.").arg(tag, parent.tag), tag,
                places.isEmpty() ? Texts::tr("at the top of the document")
                                 : Texts::tr("in %1").arg(inWords(places)),
                Texts::tr("Move the element to where it belongs, or remove it.")});
        return;
    }
    const QString known = similar(tag);
    report(ELEMENT_UNKNOWN, {child, item},
           {Texts::tr("Unknown element '%1'; it is ignored.").arg(shown(tag)), tag,
            allowed.isEmpty() ? Texts::tr("only text") : inWords(allowed),
            known.isEmpty() ? Texts::tr("Remove the element, or correct its name.")
                            : caseHint(known)});
}

void DocumentCheck::checkMeaning(const Fields &fields, const QString &item)
{
    switch (fields.type().meaning) {
    case MEANING_NONE:
        break;
    case MEANING_ROOT:
        checkRoot(fields);
        break;
    case MEANING_HEAD:
        checkDate(fields, TAG_DATE, QString());
        break;
    case MEANING_DESCRIPTION:
        checkDescription(fields);
        break;
    case MEANING_DEVICE:
        checkDevice(fields, item);
        break;
    case MEANING_CONFIG:
        checkOptions(fields);
        break;
    case MEANING_OPC_UA:
        checkOpcUa(fields);
        break;
    case MEANING_ETHERCAT_MASTER:
        if (!CDomDoc::text(fields.element(TAG_FILE).firstChildElement(TAG_NAME)).isEmpty()) {
            m_etherCatFile = {fields.parent(), item};
        }
        break;
    case MEANING_PARAMETER_FILE:
        checkParameterFile(fields, item);
        break;
    case MEANING_FPGA_FILE:
        checkFpgaFile(fields, item);
        break;
    case MEANING_PLUGIN:
        checkPlugin(fields, item);
        break;
    case MEANING_FILE:
        checkFile(fields, item, false);
        break;
    case MEANING_FILE_OF_DEVICE:
        checkFile(fields, item, true);
        break;
    case MEANING_DRIVE:
        checkDrive(fields, item);
        break;
    }
}

void DocumentCheck::checkRoot(const Fields &fields)
{
    const SPlace place = {fields.parent(), QString()};
    const QString required = m_file.requiredFileVersion();
    bool isRevision = false;
    const quint32 revision = CStr::stringToRevision(m_version, &isRevision);
    const quint32 requiredRevision = CStr::stringToRevision(required);
    const QString hint =
        Texts::tr("The document is read as version %1; save it again with this version.")
            .arg(required);
    if (m_version.isEmpty()) {
        report(VERSION_MISSING, place,
               {Texts::tr("The version of the document is missing."), QString(), required, hint});
    } else if (!isRevision) {
        report(VERSION_INVALID, place,
               {Texts::tr("'%1' is not a valid version.").arg(shown(m_version)), m_version,
                required, hint});
    } else if (revision != requiredRevision) {
        const QString message = revision < requiredRevision
            ? Texts::tr("The document was created with a previous version.")
            : Texts::tr("The document was created with a later version.");
        report(VERSION_OTHER, place, {message, m_version, required, hint});
    }
    if (!fields.contains(TAG_DEVICE)) {
        report(DEVICE_MISSING, place,
               {Texts::tr("The document has no device."), QString(),
                Texts::tr("an element '%1'").arg(TAG_DEVICE),
                Texts::tr("A configuration without a device cannot be commissioned.")});
    }
}

void DocumentCheck::checkDate(const Fields &fields, const QString &tag, const QString &item)
{
    const QString text = fields.text(tag);
    if (!text.isEmpty() && !QDate::fromString(text, Qt::ISODate).isValid()) {
        report(DATE_INVALID, {fields.element(tag), item},
               {Texts::tr("'%1' is not a valid date.").arg(shown(text)), text,
                Texts::tr("a date such as 2026-11-21"), QString()});
    }
}

void DocumentCheck::checkDescription(const Fields &fields)
{
    const QString revisionItem = QStringLiteral("description.revisionDate");
    checkDate(fields, TAG_CREATIONDATE, QStringLiteral("description.creationDate"));
    checkDate(fields, TAG_REVISIONDATE, revisionItem);
    const QDate creation = QDate::fromString(fields.text(TAG_CREATIONDATE), Qt::ISODate);
    const QDate revision = QDate::fromString(fields.text(TAG_REVISIONDATE), Qt::ISODate);
    if (creation.isValid() && revision.isValid() && revision < creation) {
        report(DATE_ORDER, {fields.element(TAG_REVISIONDATE), revisionItem},
               {Texts::tr("The revision date is earlier than the creation date."),
                fields.text(TAG_REVISIONDATE),
                Texts::tr("%1 or later").arg(creation.toString(Qt::ISODate)), QString()});
    }
}

void DocumentCheck::checkDevice(const Fields &fields, const QString &item)
{
    const SPlace place = {fields.parent(), item};
    m_device.setHardwareId(checkHardwareId(fields, item));
    checkDeviceClass(fields, item);
    m_device.setName(fields.text(TAG_NAME));
    if (m_device.name().isEmpty()) {
        report(DEVICE_NAME_MISSING, {fields.place(TAG_NAME), item + QStringLiteral(".name")},
               {Texts::tr("The device has no name."), QString(), Texts::tr("a name"),
                Texts::tr("The directory of the device in the project has the same name.")});
    }
    checkConfigurationName(fields, item);
    if (!fields.contains(TAG_CONFIG)) {
        report(CONFIG_MISSING, place,
               {Texts::tr("The device has no configuration block."), QString(),
                Texts::tr("an element '%1'").arg(TAG_CONFIG),
                Texts::tr("The device is read without options, files or plug-ins.")});
    }
    claim(m_device.configurationFile(), place);
}

void DocumentCheck::checkDeviceClass(const Fields &fields, const QString &item)
{
    const QStringList classes = {m_file.deviceClassToStr(NDeviceConf::DEVICE_CLASS_KC2),
                                 m_file.deviceClassToStr(NDeviceConf::DEVICE_CLASS_KD3)};
    const QString undefined = m_file.deviceClassToStr(NDeviceConf::DEVICE_CLASS_UNDEFINED);
    const SPlace place = {fields.place(TAG_CLASS), item + QStringLiteral(".class")};
    const QString text = fields.text(TAG_CLASS);
    if (classes.contains(text)) {
        m_device.setDeviceClass(m_file.strToDeviceClass(text));
    } else if (text.isEmpty()) {
        report(DEVICE_CLASS_MISSING, place,
               {Texts::tr("The device class is missing."), QString(), inWords(classes), QString()});
    } else if (text == undefined) {
        report(DEVICE_CLASS_UNDEFINED, place,
               {Texts::tr("The device class is 'Undefined'."), text, inWords(classes), QString()});
    } else {
        const QString wanted = meant(text, classes);
        report(DEVICE_CLASS_UNKNOWN, place,
               {Texts::tr("Unknown device class '%1'; it is read as '%2'.")
                    .arg(shown(text), undefined),
                text, inWords(classes), wanted.isEmpty() ? QString() : caseHint(wanted)});
    }
}

void DocumentCheck::checkConfigurationName(const Fields &fields, const QString &item)
{
    const SPlace place = {fields.place(TAG_CONFIGNAME),
                          item + QStringLiteral(".configurationName")};
    if (!fields.contains(TAG_CONFIGNAME)) {
        report(CONFIGURATION_NAME_MISSING, place,
               {Texts::tr("The configuration name is missing."), QString(), Texts::tr("a name"),
                Texts::tr("It is read as '%1'.").arg(m_device.configurationName())});
        return;
    }
    const QString name = fields.text(TAG_CONFIGNAME);
    m_device.setConfigurationName(name);
    const QString allowed =
        Texts::tr("letters, digits, '_', '-' and '+'; a number in parentheses may follow");
    if (name.isEmpty()) {
        report(CONFIGURATION_NAME_EMPTY, place,
               {Texts::tr("The configuration name is empty."), QString(), allowed,
                Texts::tr("The directories on the device are named after it.")});
        return;
    }
    // Expressions of our own: those of NDeviceConf are for one thread alone. What is too long for a
    // directory is not given to them.
    const bool isTooLong = name.toUtf8().size() > LongestName;
    if (!isTooLong && QRegExp(NDeviceConf::NAME_CHECK_PATTERN).exactMatch(name)) {
        report(CONFIGURATION_NAME_RESERVED, place,
               {Texts::tr("The configuration name '%1' is reserved by the device.").arg(name), name,
                Texts::tr("a name without 'setup', 'failsafe' and 'mount error'"), QString()});
    } else if (isTooLong || !QRegExp(NDeviceConf::NAME_INPUT_PATTERN).exactMatch(name)) {
        report(CONFIGURATION_NAME_INVALID, place,
               {Texts::tr("'%1' is not a valid configuration name.").arg(shown(name)), name,
                allowed, QString()});
    }
}

CDeviceHardwareId DocumentCheck::checkHardwareId(const Fields &fields, const QString &item)
{
    const QString text = fields.text(TAG_HARDWAREID);
    CDeviceHardwareId hardwareId(text);
    if (hardwareId.isNull() && !text.isEmpty()) {
        report(HARDWARE_ID_INVALID,
               {fields.element(TAG_HARDWAREID), item + QStringLiteral(".hardwareId")},
               {Texts::tr("'%1' is not a valid hardware identity.").arg(shown(text)), text,
                QStringLiteral("PREFIX:NAME:PLATFORM:VERSION:REVISION"),
                Texts::tr("The last three are numbers from 0 to 65535; an invalid hardware "
                          "identity is read as empty.")});
    }
    return hardwareId;
}

void DocumentCheck::checkOptions(const Fields &fields)
{
    const QDomElement element = fields.element(TAG_OPTIONS);
    const QStringList words = CDomDoc::text(element).split(Blank, Qt::SkipEmptyParts);
    const QString expected = Texts::tr("options such as -trace, separated by single spaces");
    // What stands before the first option is none, but is listed as one.
    QList<QStringList> options;
    for (const QString &word : words) {
        if (word.startsWith(Hyphen) || options.isEmpty()) {
            options.append(QStringList());
        }
        options.last().append(word);
    }
    const auto hasSpace = [](const QString &word) {
        return std::any_of(word.cbegin(), word.cend(), [](QChar c) { return c.isSpace(); });
    };
    const auto badWord = std::find_if(words.cbegin(), words.cend(), hasSpace);
    if (badWord != words.cend()) {
        report(OPTION_INVALID, {element, OptionList},
               {Texts::tr("Options are separated by something other than a space."), *badWord,
                expected, Texts::tr("The device reads this as one word.")});
    }
    QSet<QStringList> known;
    for (const QStringList &option : qAsConst(options)) {
        const SPlace place = {element, entryPath(OptionList, option.constFirst())};
        const QString text = option.join(Blank);
        if (option.constFirst() == OpcUaOption && m_opcUaOption.element.isNull()) {
            m_opcUaOption = place;
        }
        if (option.constFirst() == Hyphen) {
            report(OPTION_INVALID, place,
                   {Texts::tr("An option has a hyphen but no name."), text, expected, QString()});
        } else if (!option.constFirst().startsWith(Hyphen) && !isBlank(text)) {
            report(OPTION_INVALID, place,
                   {Texts::tr("'%1' is neither an option nor the value of one.").arg(shown(text)),
                    text, expected,
                    Texts::tr(
                        "An option begins with a hyphen; the words after it are its argument.")});
        } else if (known.contains(option)) {
            report(OPTION_TWICE, place,
                   {Texts::tr("The option '%1' occurs more than once.").arg(shown(text)), text,
                    QString(), Texts::tr("Remove all but one.")});
        }
        known.insert(option);
    }
}

void DocumentCheck::checkOpcUa(const Fields &fields)
{
    const QString text = fields.text(TAG_OPCUA_ENABLED);
    m_opcUaFlag = {fields.element(TAG_OPCUA_ENABLED), QStringLiteral("device.opcUaEnabled")};
    m_isOpcUaEnabled = text == VALUE_TRUE;
    const QStringList allowed = {VALUE_TRUE, VALUE_FALSE};
    if (!text.isEmpty() && !allowed.contains(text)) {
        m_isOpcUaFlagValid = false;
        const QString wanted = meant(text, allowed);
        report(OPC_UA_FLAG_INVALID, m_opcUaFlag,
               {Texts::tr("'%1' is neither true nor false; it is read as false.").arg(shown(text)),
                text, inWords(allowed), wanted.isEmpty() ? QString() : caseHint(wanted)});
    }
}

void DocumentCheck::checkConfig(const Fields &fields, const QString &item)
{
    const bool hasOpcUaOption = !m_opcUaOption.element.isNull();
    if (m_isOpcUaFlagValid && m_isOpcUaEnabled && !hasOpcUaOption) {
        report(OPC_UA_MISMATCH, m_opcUaFlag,
               {Texts::tr("The OPC UA server is enabled, but the option %1 is missing.")
                    .arg(OpcUaOption),
                VALUE_TRUE, VALUE_FALSE,
                Texts::tr("Add the option %1, or disable the server.").arg(OpcUaOption)});
    } else if (m_isOpcUaFlagValid && !m_isOpcUaEnabled && hasOpcUaOption) {
        report(OPC_UA_MISMATCH, m_opcUaOption,
               {Texts::tr("The option %1 is present, but the OPC UA server is not enabled.")
                    .arg(OpcUaOption),
                OpcUaOption, QString(),
                Texts::tr("Enable the server, or remove the option %1.").arg(OpcUaOption)});
    }
    const QString executionPlugin = fields.text(TAG_EXECUTIONPLUGIN);
    if (!executionPlugin.isEmpty() && !m_plugins.contains(executionPlugin)) {
        report(EXECUTION_PLUGIN_UNKNOWN,
               {fields.element(TAG_EXECUTIONPLUGIN), item + QStringLiteral(".executionPlugin")},
               {Texts::tr("The execution plug-in '%1' is not in the list of plug-ins.")
                    .arg(shown(executionPlugin)),
                executionPlugin, Texts::tr("the name of a plug-in"),
                Texts::tr("Add the plug-in, or choose another one.")});
    }
    const bool hasPlugin = !m_etherCatPlugin.element.isNull();
    const bool hasFile = !m_etherCatFile.element.isNull();
    if (hasPlugin && !hasFile) {
        report(ETHERCAT_FILE_MISSING, m_etherCatPlugin,
               {Texts::tr("The plug-in '%1' has no bus configuration.")
                    .arg(NDeviceConf::PLUGIN_NAME_ETHERCAT_MASTER),
                QString(), Texts::tr("a file in '%1'").arg(TAG_ETHERCATMASTER), QString()});
    } else if (hasFile && !hasPlugin) {
        report(ETHERCAT_PLUGIN_MISSING, m_etherCatFile,
               {Texts::tr("The bus configuration needs the plug-in '%1', which is missing.")
                    .arg(NDeviceConf::PLUGIN_NAME_ETHERCAT_MASTER),
                QString(),
                Texts::tr("a plug-in '%1'").arg(NDeviceConf::PLUGIN_NAME_ETHERCAT_MASTER),
                QString()});
    }
}

void DocumentCheck::checkParameterFile(const Fields &fields, const QString &item)
{
    const NvrnGlobal::EParamFileType type = checkParameterType(fields, item);
    if (!checkFileName(fields, item)) {
        return;
    }
    CParamFileElement file;
    file.setName(fields.text(TAG_NAME));
    file.setType(type);
    const SPlace place = {fields.parent(), item};
    const QPair<QString, int> key(file.name(), type);
    if (m_parameterFiles.contains(key)) {
        report(
            PARAMETER_FILE_TWICE, {fields.place(TAG_NAME), item},
            {Texts::tr("The parameter file '%1' is listed more than once.").arg(shown(file.name())),
             file.name(), QString(), Texts::tr("Remove all but one.")});
        return;
    }
    m_parameterFiles.insert(key);
    if (!m_placedTypes.contains(type)) {
        CDeviceElement device = m_device;
        device.setParameterFiles({file});
        CParamFileElement directories;
        const QList<CFileElement> placed =
            device.parameterFiles(NvrnDeviceCore::DEVICE_FILE_PARAMETER);
        directories.setDevicePath(placed.value(0).devicePath());
        directories.setProjectPath(placed.value(0).projectPath());
        m_placedTypes.insert(type, directories);
    }
    file.setDevicePath(m_placedTypes.value(type).devicePath());
    file.setProjectPath(m_placedTypes.value(type).projectPath());
    checkPlacedFiles({file.valueFile(), file.defFile()}, place);
}

NvrnGlobal::EParamFileType DocumentCheck::checkParameterType(const Fields &fields,
                                                             const QString &item)
{
    QStringList types;
    for (int value = NvrnGlobal::PARAM_FILE_KC2_PARAMETERS;
         value <= NvrnGlobal::PARAM_FILE_OPTION_MODULE_DATABASE; ++value) {
        const auto type = static_cast<NvrnGlobal::EParamFileType>(value);
        const QString name = m_file.typeToStr(type);
        if (m_file.strToType(name) == type) {
            types.append(name);
        }
    }
    const SPlace place = {fields.parent(), item + QStringLiteral(".type")};
    const QString text = fields.parent().attribute(ATTR_TYPE);
    if (types.contains(text)) {
        return m_file.strToType(text);
    }
    const QString undefined = m_file.typeToStr(NvrnGlobal::PARAM_FILE_UNDEFINED);
    if (text.isEmpty()) {
        report(
            PARAMETER_TYPE_MISSING, place,
            {Texts::tr("The parameter file has no type."), QString(), inWords(types), QString()});
    } else if (text == undefined) {
        report(PARAMETER_TYPE_UNDEFINED, place,
               {Texts::tr("The type of the parameter file is 'Undefined'."), text, inWords(types),
                QString()});
    } else {
        const QString wanted = meant(text, types);
        report(PARAMETER_TYPE_UNKNOWN, place,
               {Texts::tr("Unknown parameter file type '%1'; it is read as '%2'.")
                    .arg(shown(text), undefined),
                text, inWords(types), wanted.isEmpty() ? QString() : caseHint(wanted)});
    }
    return NvrnGlobal::PARAM_FILE_UNDEFINED;
}

void DocumentCheck::checkFpgaFile(const Fields &fields, const QString &item)
{
    const QString name = fields.text(TAG_NAME);
    if (!checkFileName(fields, item)) {
        return;
    }
    if (m_fpgaFiles.contains(name)) {
        report(FPGA_FILE_TWICE, {fields.place(TAG_NAME), item},
               {Texts::tr("The FPGA image '%1' is listed more than once.").arg(shown(name)), name,
                QString(), Texts::tr("Remove all but one; the first image is the active one.")});
        return;
    }
    m_fpgaFiles.insert(name);
    if (m_placedFpgaFile.isNull()) {
        CDeviceElement device = m_device;
        device.setFpgaFiles({name});
        m_placedFpgaFile = device.fpgaFileElement(0);
    }
    CFileElement file = m_placedFpgaFile;
    file.setFileName(name);
    checkPlacedFiles({file}, {fields.parent(), item});
}

void DocumentCheck::checkPlugin(const Fields &fields, const QString &item)
{
    CPluginElement plugin;
    plugin.setName(fields.text(TAG_NAME));
    plugin.setVersion(fields.text(TAG_VERSION));
    const SPlace place = {fields.parent(), item};
    bool isPlaced = true;
    if (plugin.name().isEmpty()) {
        isPlaced = false;
        report(PLUGIN_NAME_MISSING, {fields.place(TAG_NAME), item},
               {Texts::tr("The plug-in has no name."), QString(), Texts::tr("a name"), QString()});
    } else if (!isName(plugin.name())) {
        isPlaced = false;
        checkFileName(fields, item);
    } else if (m_plugins.contains(plugin.name())) {
        isPlaced = false;
        report(PLUGIN_TWICE, {fields.place(TAG_NAME), item},
               {Texts::tr("The plug-in '%1' is listed more than once.").arg(shown(plugin.name())),
                plugin.name(), QString(), Texts::tr("Remove all but one.")});
    }
    m_plugins.insert(plugin.name());
    if (plugin.name() == NDeviceConf::PLUGIN_NAME_ETHERCAT_MASTER
        && m_etherCatPlugin.element.isNull()) {
        m_etherCatPlugin = place;
    }
    const SPlace version = {fields.place(TAG_VERSION), item + QStringLiteral(".version")};
    const QString expected = Texts::tr("numbers separated by dots, such as 1.3");
    if (plugin.version().isEmpty()) {
        isPlaced = false;
        report(PLUGIN_VERSION_MISSING, version,
               {Texts::tr("The plug-in '%1' has no version.").arg(shown(plugin.name())), QString(),
                expected,
                Texts::tr("The file name of the plug-in would be '%1'.")
                    .arg(shown(plugin.fileName()))});
    } else if (!isDottedNumber(plugin.version())) {
        isPlaced = false;
        report(PLUGIN_VERSION_INVALID, version,
               {Texts::tr("'%1' is not a valid plug-in version.").arg(shown(plugin.version())),
                plugin.version(), expected,
                Texts::tr("The file name of the plug-in would be '%1'.")
                    .arg(shown(plugin.fileName()))});
    }
    const QString priority = fields.text(TAG_PRIORITY);
    bool isNumber = true;
    priority.toInt(&isNumber);
    if (!priority.isEmpty() && !isNumber) {
        report(PRIORITY_INVALID, {fields.element(TAG_PRIORITY), item + QStringLiteral(".priority")},
               {Texts::tr("'%1' is not a valid priority.").arg(shown(priority)), priority,
                Texts::tr("a number from -2147483648 to 2147483647"),
                Texts::tr("The plug-in is read without a priority.")});
    }
    if (isPlaced) {
        if (m_placedPlugin.isNull()) {
            CDeviceElement device = m_device;
            device.setPlugins({plugin});
            m_placedPlugin = device.pluginFileElements().value(0);
        }
        CFileElement file = m_placedPlugin;
        file.setFileName(plugin.fileName());
        checkPlacedFiles({file}, place);
    }
}

void DocumentCheck::checkDrive(const Fields &fields, const QString &item)
{
    checkDriveType(fields, item);
    const CDeviceHardwareId hardwareId = checkHardwareId(fields, item);
    if (!hardwareId.isNull() && !m_device.hardwareId().isNull()
        && !m_device.isParameterHardwareIdCompatible(hardwareId,
                                                     NvrnGlobal::PARAM_FILE_PARAMETERS)) {
        report(HARDWARE_ID_MISMATCH,
               {fields.element(TAG_HARDWAREID), item + QStringLiteral(".hardwareId")},
               {Texts::tr("The hardware identity '%1' does not match that of the device.")
                    .arg(shown(hardwareId.hardwareId())),
                hardwareId.hardwareId(),
                Texts::tr("prefix, name and platform of '%1'").arg(shown(m_device.hardwareIdStr())),
                QString()});
    }
    checkDriveNumber(fields, item);
    checkDriveName(fields, item);
    checkBusId(fields, item);
}

void DocumentCheck::checkDriveType(const Fields &fields, const QString &item)
{
    const QStringList types = {Kd2Type, Kd3Type};
    const SPlace place = {fields.parent(), item + QStringLiteral(".type")};
    const QString text = fields.parent().attribute(ATTR_TYPE);
    if (text == Kd3Type) {
        for (const QString &tag : {TAG_KD2_PARAM, TAG_KD2_LOGIC, TAG_KD2_FIRMWARE}) {
            if (fields.element(tag).hasChildNodes()) {
                report(DRIVE_TYPE_MISMATCH, {fields.element(tag), item},
                       {Texts::tr("'%1' is ignored: the type of the drive is '%2'.").arg(tag, text),
                        text, Kd2Type,
                        Texts::tr("Remove the file, or correct the type of the drive.")});
            }
        }
    } else if (text.isEmpty()) {
        report(DRIVE_TYPE_MISSING, place,
               {Texts::tr("The drive has no type; it is read as '%1'.").arg(Kd3Type), QString(),
                inWords(types), QString()});
    } else if (text == UnknownType) {
        report(DRIVE_TYPE_UNDEFINED, place,
               {Texts::tr("The type of the drive is 'Undefined'; it is read as '%1'.").arg(Kd3Type),
                text, inWords(types), QString()});
    } else if (text != Kd2Type) {
        const QString wanted = meant(text, types);
        report(DRIVE_TYPE_UNKNOWN, place,
               {Texts::tr("Unknown drive type '%1'; the drive is read as '%2'.")
                    .arg(shown(text), Kd3Type),
                text, inWords(types), wanted.isEmpty() ? QString() : caseHint(wanted)});
    }
}

void DocumentCheck::checkDriveNumber(const Fields &fields, const QString &item)
{
    const SPlace place = {fields.place(TAG_DRIVE_NO), item + QStringLiteral(".driveNo")};
    const QString text = fields.text(TAG_DRIVE_NO);
    const QString expected =
        Texts::tr("a number from 0 to %1").arg(QString::number(HighestDriveNumber));
    const QString nextFree = Texts::tr("The drive is read with the next free number.");
    bool isNumber = false;
    const uint number = text.toUInt(&isNumber);
    if (text.isEmpty()) {
        report(DRIVE_NUMBER_MISSING, place,
               {Texts::tr("The drive number is missing."), QString(), expected, nextFree});
    } else if (!isNumber || number > HighestDriveNumber) {
        const bool isNone = isNumber && number == UnassignedDriveNumber;
        report(DRIVE_NUMBER_INVALID, place,
               {Texts::tr("'%1' is not a valid drive number.").arg(shown(text)), text, expected,
                isNone ? Texts::tr("This number means that no number is assigned.") : nextFree});
    } else if (m_driveNumbers.contains(number)) {
        report(DRIVE_NUMBER_TWICE, place,
               {Texts::tr("The drive number %1 is already used by %2.")
                    .arg(QString::number(number), m_driveNumbers.value(number)),
                text, Texts::tr("a unique number"), nextFree});
    } else {
        m_driveNumbers.insert(number, item);
    }
}

void DocumentCheck::checkDriveName(const Fields &fields, const QString &item)
{
    const SPlace place = {fields.place(TAG_NAME), item + QStringLiteral(".name")};
    const QString name = fields.text(TAG_NAME);
    if (name.isEmpty()) {
        report(DRIVE_NAME_MISSING, place,
               {Texts::tr("The drive has no name."), QString(), Texts::tr("a name"),
                Texts::tr("The drive is read with a name made from its number.")});
    } else if (m_driveNames.contains(name)) {
        report(DRIVE_NAME_TWICE, place,
               {Texts::tr("The name '%1' is already used by %2.")
                    .arg(shown(name), m_driveNames.value(name)),
                name, Texts::tr("a unique name"), QString()});
    } else {
        m_driveNames.insert(name, item);
    }
}

void DocumentCheck::checkBusId(const Fields &fields, const QString &item)
{
    const SPlace place = {fields.place(TAG_BUS_ID), item + QStringLiteral(".busId")};
    const QString text = fields.text(TAG_BUS_ID);
    bool isNumber = false;
    const uint busId = text.toUInt(&isNumber);
    if (!isNumber && !text.isEmpty()) {
        report(BUS_ID_INVALID, place,
               {Texts::tr("'%1' is not a valid bus identifier; it is read as 0.").arg(shown(text)),
                text, Texts::tr("a number from 0 to 4294967295"), QString()});
    } else if (busId != 0 && m_busIds.contains(busId)) {
        report(BUS_ID_TWICE, place,
               {Texts::tr("The bus identifier %1 is already used by %2.")
                    .arg(QString::number(busId), m_busIds.value(busId)),
                text, Texts::tr("a unique bus identifier"), QString()});
    } else if (busId != 0) {
        m_busIds.insert(busId, item);
    }
}

void DocumentCheck::checkFile(const Fields &fields, const QString &item, bool isOfDevice)
{
    CFileElement file;
    m_file.fileElement(file, fields.parent());
    const SPlace place = {fields.parent(), item};
    const bool isNamed = checkFileName(fields, item);
    if (!file.devicePath().isEmpty()) {
        checkDevicePath(file, {fields.element(TAG_DEVICE_DIR), item + QStringLiteral(".deviceDir")},
                        fields.text(TAG_DEVICE_DIR));
    } else if (isNamed) {
        report(
            DEVICE_PATH_MISSING,
            {fields.place(TAG_DEVICE_DIR), item + QStringLiteral(".deviceDir")},
            {Texts::tr("The file '%1' has no directory on the device.").arg(shown(file.fileName())),
             QString(),
             Texts::tr("a directory below %1 or %2")
                 .arg(CDeviceFileSystem::smPath(), CDeviceFileSystem::optSMPath()),
             QString()});
    }
    const bool isInProject = checkProjectPath(
        file, {fields.element(TAG_PROJECT_DIR), item + QStringLiteral(".projectDir")}, isOfDevice);
    if (isNamed) {
        claim(file, place);
        if (isInProject) {
            checkInProject(file, place);
        }
    }
}

bool DocumentCheck::checkFileName(const Fields &fields, const QString &item)
{
    const QString name = fields.text(TAG_NAME);
    const SPlace place = {fields.place(TAG_NAME), item};
    if (name.isEmpty()) {
        report(FILE_NAME_MISSING, place,
               {Texts::tr("The file has no name."), QString(), Texts::tr("a name"),
                Texts::tr("Remove the entry if no file is meant.")});
        return false;
    }
    if (!isName(name)) {
        report(FILE_NAME_INVALID, place,
               {Texts::tr("'%1' is not a valid file name.").arg(shown(name)), name,
                Texts::tr("a name without directories, slashes and line breaks"), QString()});
        return false;
    }
    return true;
}

void DocumentCheck::checkDevicePath(const CFileElement &file, const SPlace &place,
                                    const QString &text)
{
    const QString path = QDir::cleanPath(file.devicePath()) + Separator;
    const QString expected = Texts::tr("a directory below %1 or %2")
                                 .arg(CDeviceFileSystem::smPath(), CDeviceFileSystem::optSMPath());
    if (components(file.devicePath()).contains(QLatin1String(".."))) {
        report(DEVICE_PATH_CLIMBS, place,
               {Texts::tr("The directory '%1' contains '..'.").arg(shown(text)), text,
                Texts::tr("a directory without '..'"), QString()});
        return;
    }
    if (CFTPath::fromPath(path) == CFTPath::ENTRY_POINT_UNKNOWN) {
        report(DEVICE_PATH_OUTSIDE, place,
               {Texts::tr("The directory '%1' is outside the directory trees of the device.")
                    .arg(shown(text)),
                text, expected, QString()});
        return;
    }
    if (!text.startsWith(Separator) && !text.startsWith(QLatin1Char('\\'))) {
        report(DEVICE_PATH_RELATIVE, place,
               {Texts::tr("The directory '%1' does not begin with a slash.").arg(shown(text)), text,
                shown(file.devicePath()),
                Texts::tr("It is read as '%1'.").arg(shown(file.devicePath()))});
    }
    const QString own = m_device.configurationName();
    for (const QString &configurations : {CDeviceFileSystem::smConfigurationsPath(),
                                          CDeviceFileSystem::optSMConfigurationsPath()}) {
        if (!path.startsWith(configurations) || own.isEmpty()) {
            continue;
        }
        const QString name = path.mid(configurations.size()).section(Separator, 0, 0);
        if (!name.isEmpty() && name != own) {
            report(DEVICE_PATH_OTHER_CONFIGURATION, place,
                   {Texts::tr("The directory '%1' belongs to the configuration '%2'.")
                        .arg(shown(text), shown(name)),
                    text, Texts::tr("a directory of '%1'").arg(shown(own)), QString()});
        }
    }
}

bool DocumentCheck::checkProjectPath(const CFileElement &file, const SPlace &place, bool isOfDevice)
{
    const QString path = file.projectPath();
    const QString clean = QDir::cleanPath(path);
    if (isAbsolute(path)) {
        report(PROJECT_PATH_ABSOLUTE, place,
               {Texts::tr("The directory '%1' is an absolute path.").arg(shown(path)), path,
                Texts::tr("a directory relative to the project"), QString()});
        return false;
    }
    if (clean == QLatin1String("..") || clean.startsWith(QLatin1String("../"))) {
        report(PROJECT_PATH_OUTSIDE, place,
               {Texts::tr("The directory '%1' is outside the project.").arg(shown(path)), path,
                Texts::tr("a directory in the project"), QString()});
        return false;
    }
    const QString own = m_device.name() + Separator;
    if (isOfDevice && !path.isEmpty() && !m_device.name().isEmpty() && !path.startsWith(own)) {
        report(PROJECT_PATH_IGNORED, place,
               {Texts::tr("The directory '%1' is not below the directory of the device.")
                    .arg(shown(path)),
                path, Texts::tr("a directory below '%1'").arg(shown(own)),
                Texts::tr("It is removed when the device is read.")});
    }
    return true;
}

void DocumentCheck::checkPlacedFiles(const QList<CFileElement> &files, const SPlace &place)
{
    bool isClaimed = true;
    for (const CFileElement &file : files) {
        if (!file.fileName().isEmpty()) {
            // Two entries of one name have all their files in common; once is enough.
            isClaimed = isClaimed && claim(file, place);
            // Without the names of device and configuration the directories are not known.
            if (!m_device.name().isEmpty() && !file.devicePath().isEmpty()) {
                checkInProject(file, place);
            }
        }
    }
}

bool DocumentCheck::claim(const CFileElement &file, const SPlace &place)
{
    const QString onDevice =
        file.devicePath().isEmpty() ? QString() : QDir::cleanPath(file.deviceFilePath());
    const QPair<QString, QString> key(onDevice, QDir::cleanPath(file.projectFilePath()));
    const QString name = shown(file.fileName());
    if (m_files.contains(key)) {
        report(FILE_TWICE, place,
               {Texts::tr("The file '%1' is listed more than once with the same directories.")
                    .arg(name),
                file.fileName(), QString(), Texts::tr("Remove all but one.")});
        return false;
    }
    m_files.insert(key);
    const QString other = m_claims.value(onDevice);
    if (!onDevice.isEmpty() && !other.isEmpty()) {
        report(DEVICE_FILE_CONFLICT, place,
               {Texts::tr("The file '%1' has the same place on the device as the file of %2.")
                    .arg(name, other),
                onDevice, Texts::tr("a unique place"),
                Texts::tr("The file that is transferred last overwrites the other one.")});
        return false;
    }
    m_claims.insert(onDevice, place.item);
    return true;
}

void DocumentCheck::checkInProject(const CFileElement &file, const SPlace &place)
{
    if (m_project == nullptr) {
        return;
    }
    const QString path = QDir::cleanPath(file.projectFilePath());
    const ProjectFiles::SFile inProject = m_project->find(path);
    const QString name = shown(path);
    switch (inProject.state) {
    case ProjectFiles::STATE_PRESENT:
        break;
    case ProjectFiles::STATE_MISSING:
        report(PROJECT_FILE_MISSING, place,
               {Texts::tr("The file '%1' is not in the project.").arg(name), inProject.found, path,
                inProject.found.isEmpty()
                    ? QString()
                    : Texts::tr("The symbolic link of that name points to a missing file.")});
        break;
    case ProjectFiles::STATE_OTHER_CASE:
        report(PROJECT_FILE_OTHER_CASE, place,
               {Texts::tr("The file '%1' is named '%2' in the project.")
                    .arg(name, shown(inProject.found)),
                inProject.found, path, Texts::tr("File names on the device are case-sensitive.")});
        break;
    case ProjectFiles::STATE_OUTSIDE:
        report(PROJECT_FILE_OUTSIDE, place,
               {Texts::tr("A symbolic link on the path '%1' leads out of the project.").arg(name),
                inProject.found, Texts::tr("a file in the project"),
                Texts::tr("A copy of the project does not contain the file.")});
        break;
    case ProjectFiles::STATE_NOT_REGULAR:
        report(PROJECT_FILE_NOT_REGULAR, place,
               {Texts::tr("'%1' is not a regular file.").arg(name), path,
                Texts::tr("a regular file"), QString()});
        break;
    case ProjectFiles::STATE_UNREADABLE:
        report(PROJECT_FILE_UNREADABLE, place,
               {Texts::tr("The file '%1' cannot be read.").arg(name), inProject.found,
                Texts::tr("a readable file"), QString()});
        break;
    case ProjectFiles::STATE_EMPTY:
        report(PROJECT_FILE_EMPTY, place,
               {Texts::tr("The file '%1' is empty.").arg(name), Texts::tr("0 bytes"), QString(),
                QString()});
        break;
    case ProjectFiles::STATE_CHANGED: {
        const auto &[measured, recorded] = std::tie(inProject.measured, inProject.recorded);
        const bool isSize = measured.size != recorded.size;
        const auto inBytes = [](qint64 size) {
            return Texts::tr("%1 bytes").arg(QString::number(size));
        };
        const auto sum = [](const QByteArray &sha256) {
            return QStringLiteral("SHA-256 ") + QString::fromLatin1(sha256);
        };
        report(PROJECT_FILE_CHANGED, place,
               {Texts::tr("The file '%1' differs from the manifest.").arg(name),
                isSize ? inBytes(measured.size) : sum(measured.sha256),
                isSize ? inBytes(recorded.size) : sum(recorded.sha256),
                Texts::tr("Restore the file, or create the manifest again.")});
        break;
    }
    }
}
