#include "commissioning/check/ValueChecks.h"

#include "commissioning/rules/Texts.h"
#include "elements/CanonicalPaths.h"
#include "elements/CPluginElement.h"
#include "elements/DriveNumbers.h"
#include "imported/CDeviceHardwareId.h"
#include "imported/CStr.h"
#include "vocabulary/DriveTypes.h"
#include "vocabulary/NVornXmlTags.h"

#include <QDate>
#include <QRegExp>

#include <algorithm>

using namespace ConfigurationRules;
using namespace FaultTexts;

namespace {

bool isDottedNumber(const QString &text)
{
    const QStringList parts = text.split(QLatin1Char('.'));
    return std::all_of(parts.cbegin(), parts.cend(), [](const QString &part) {
        return !part.isEmpty() && std::all_of(part.cbegin(), part.cend(), [](QChar c) {
            return c >= QLatin1Char('0') && c <= QLatin1Char('9');
        });
    });
}

/** The hint for a text that is none of @p allowed; empty when it is not like any of them. */
QString hintFor(const QString &text, const QStringList &allowed)
{
    const QString wanted = meant(text, allowed);
    return wanted.isEmpty() ? QString() : caseHint(wanted);
}

/** The texts of all types of parameter files that can be read. */
QStringList parameterTypes(const CDeviceConfigurationFile10 &texts)
{
    QStringList types;
    for (int value = NvrnGlobal::PARAM_FILE_KC2_PARAMETERS;
         value <= NvrnGlobal::PARAM_FILE_OPTION_MODULE_DATABASE; ++value) {
        const auto type = static_cast<NvrnGlobal::EParamFileType>(value);
        const QString name = texts.typeToStr(type);
        if (texts.strToType(name) == type) {
            types.append(name);
        }
    }
    return types;
}

} // namespace

namespace ValueChecks {

Fault version(const QString &version, const QString &required)
{
    bool isRevision = false;
    const quint32 revision = CStr::stringToRevision(version, &isRevision);
    const quint32 requiredRevision = CStr::stringToRevision(required);
    const QString hint =
        Texts::tr("The document is read as one of version %1; save it anew with this version.")
            .arg(required);
    if (version.isEmpty()) {
        return SFault{
            VERSION_MISSING,
            {Texts::tr("The document does not tell its version."), QString(), required, hint}};
    }
    if (!isRevision) {
        return SFault{
            VERSION_INVALID,
            {Texts::tr("'%1' is no version.").arg(shown(version)), version, required, hint}};
    }
    if (revision == requiredRevision) {
        return {};
    }
    const QString message = revision < requiredRevision
        ? Texts::tr("The document was created with a previous version.")
        : Texts::tr("The document was created with a later version.");
    return SFault{VERSION_OTHER, {message, version, required, hint}};
}

Fault date(const QString &text)
{
    if (text.isEmpty() || QDate::fromString(text, Qt::ISODate).isValid()) {
        return {};
    }
    return SFault{DATE_INVALID,
                  {Texts::tr("'%1' is no date.").arg(shown(text)), text,
                   Texts::tr("a date like 2026-11-21"), QString()}};
}

Fault hardwareId(const QString &text)
{
    if (text.isEmpty() || !CDeviceHardwareId(text).isNull()) {
        return {};
    }
    return SFault{HARDWARE_ID_INVALID,
                  {Texts::tr("'%1' is no hardware identity.").arg(shown(text)), text,
                   QStringLiteral("PREFIX:NAME:PLATFORM:VERSION:REVISION"),
                   Texts::tr("The last three are numbers from 0 to 65535; it is read as empty.")}};
}

Fault deviceClass(const QString &text, const CDeviceConfigurationFile10 &texts)
{
    const QStringList classes = {texts.deviceClassToStr(NDeviceConf::DEVICE_CLASS_KC2),
                                 texts.deviceClassToStr(NDeviceConf::DEVICE_CLASS_KD3)};
    const QString undefined = texts.deviceClassToStr(NDeviceConf::DEVICE_CLASS_UNDEFINED);
    if (classes.contains(text)) {
        return {};
    }
    if (text.isEmpty()) {
        return SFault{
            DEVICE_CLASS_MISSING,
            {Texts::tr("The device has no class."), QString(), inWords(classes), QString()}};
    }
    if (text == undefined) {
        return SFault{DEVICE_CLASS_UNDEFINED,
                      {Texts::tr("The class of the device is left open."), text, inWords(classes),
                       QString()}};
    }
    return SFault{DEVICE_CLASS_UNKNOWN,
                  {Texts::tr("There is no device class '%1'; it is read as '%2'.")
                       .arg(shown(text), undefined),
                   text, inWords(classes), hintFor(text, classes)}};
}

Fault configurationName(const QString &name)
{
    const QString allowed =
        Texts::tr("letters, digits, '_', '-' and '+'; a number in parentheses may follow");
    if (name.isEmpty()) {
        return SFault{CONFIGURATION_NAME_EMPTY,
                      {Texts::tr("The name of the configuration is empty."), QString(), allowed,
                       Texts::tr("Without a name it has no directories on the device.")}};
    }
    // Expressions of our own: those of NDeviceConf are for one thread alone. What is too long for a
    // directory is not given to them.
    const bool isTooLong = name.toUtf8().size() > CanonicalPaths::LongestName;
    if (!isTooLong && QRegExp(NDeviceConf::NAME_CHECK_PATTERN).exactMatch(name)) {
        return SFault{CONFIGURATION_NAME_RESERVED,
                      {Texts::tr("'%1' is a name that the device keeps for itself.").arg(name),
                       name, Texts::tr("a name without 'setup', 'failsafe' and 'mount error'"),
                       QString()}};
    }
    if (!isTooLong && QRegExp(NDeviceConf::NAME_INPUT_PATTERN).exactMatch(name)) {
        return {};
    }
    return SFault{CONFIGURATION_NAME_INVALID,
                  {Texts::tr("'%1' cannot be the name of a configuration.").arg(shown(name)), name,
                   allowed, QString()}};
}

Fault opcUaFlag(const QString &text)
{
    const QStringList allowed = {NVornXmlTags::VALUE_TRUE, NVornXmlTags::VALUE_FALSE};
    if (text.isEmpty() || allowed.contains(text)) {
        return {};
    }
    return SFault{
        OPC_UA_FLAG_INVALID,
        {Texts::tr("'%1' is neither true nor false; it is read as false.").arg(shown(text)), text,
         inWords(allowed), hintFor(text, allowed)}};
}

Fault parameterType(const QString &text, const CDeviceConfigurationFile10 &texts)
{
    const QStringList types = parameterTypes(texts);
    const QString undefined = texts.typeToStr(NvrnGlobal::PARAM_FILE_UNDEFINED);
    if (types.contains(text)) {
        return {};
    }
    if (text.isEmpty()) {
        return SFault{
            PARAMETER_TYPE_MISSING,
            {Texts::tr("The parameter file has no type."), QString(), inWords(types), QString()}};
    }
    if (text == undefined) {
        return SFault{PARAMETER_TYPE_UNDEFINED,
                      {Texts::tr("The type of the parameter file is left open."), text,
                       inWords(types), QString()}};
    }
    return SFault{PARAMETER_TYPE_UNKNOWN,
                  {Texts::tr("There is no type '%1' of parameter files; it is read as '%2'.")
                       .arg(shown(text), undefined),
                   text, inWords(types), hintFor(text, types)}};
}

Fault pluginVersion(const CPluginElement &plugin)
{
    const QString expected = Texts::tr("numbers with dots between them, like 1.3");
    const QString hint = Texts::tr("Its file would be '%1'.").arg(shown(plugin.fileName()));
    if (plugin.version().isEmpty()) {
        return SFault{PLUGIN_VERSION_MISSING,
                      {Texts::tr("The plug-in '%1' has no version.").arg(shown(plugin.name())),
                       QString(), expected, hint}};
    }
    if (isDottedNumber(plugin.version())) {
        return {};
    }
    return SFault{PLUGIN_VERSION_INVALID,
                  {Texts::tr("'%1' is no version of a plug-in.").arg(shown(plugin.version())),
                   plugin.version(), expected, hint}};
}

Fault priority(const QString &text)
{
    bool isNumber = true;
    text.toInt(&isNumber);
    if (text.isEmpty() || isNumber) {
        return {};
    }
    return SFault{PRIORITY_INVALID,
                  {Texts::tr("'%1' is no priority.").arg(shown(text)), text,
                   Texts::tr("a number from -2147483648 to 2147483647"),
                   Texts::tr("The plug-in is read without a priority.")}};
}

Fault driveType(const QString &text)
{
    const QStringList types = DriveTypes::all();
    if (types.contains(text)) {
        return {};
    }
    const QString readAs = DriveTypes::read(text);
    if (text.isEmpty()) {
        return SFault{DRIVE_TYPE_MISSING,
                      {Texts::tr("The drive has no type; it is read as '%1'.").arg(readAs),
                       QString(), inWords(types), QString()}};
    }
    if (text == DriveTypes::unknown()) {
        return SFault{
            DRIVE_TYPE_UNDEFINED,
            {Texts::tr("The type of the drive is left open; it is read as '%1'.").arg(readAs), text,
             inWords(types), QString()}};
    }
    return SFault{DRIVE_TYPE_UNKNOWN,
                  {Texts::tr("There is no type '%1' of drives; the drive is read as '%2'.")
                       .arg(shown(text), readAs),
                   text, inWords(types), hintFor(text, types)}};
}

Fault driveNumber(const QString &text)
{
    const QString expected =
        Texts::tr("a number from 0 to %1").arg(QString::number(DriveNumbers::Highest));
    const int number = DriveNumbers::read(text);
    if (text.isEmpty()) {
        return SFault{
            DRIVE_NUMBER_MISSING,
            {Texts::tr("The drive has no number."), QString(), expected, nextFreeNumber()}};
    }
    if (number >= 0 && number <= DriveNumbers::Highest) {
        return {};
    }
    return SFault{DRIVE_NUMBER_INVALID,
                  {Texts::tr("'%1' is no number of a drive.").arg(shown(text)), text, expected,
                   number == DriveNumbers::None
                       ? Texts::tr("This number means that no number is assigned.")
                       : nextFreeNumber()}};
}

Fault busId(const QString &text)
{
    bool isNumber = false;
    text.toUInt(&isNumber);
    if (isNumber || text.isEmpty()) {
        return {};
    }
    return SFault{BUS_ID_INVALID,
                  {Texts::tr("'%1' is no bus identifier; it is read as 0.").arg(shown(text)), text,
                   Texts::tr("a number from 0 to 4294967295"), QString()}};
}

QString nextFreeNumber()
{
    return Texts::tr("The drive is read with the next number that no other drive has.");
}

} // namespace ValueChecks
