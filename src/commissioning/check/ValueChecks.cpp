#include "commissioning/check/ValueChecks.h"

#include "commissioning/Texts.h"
#include "elements/CPluginElement.h"
#include "elements/FilePlaces.h"
#include "imported/CStr.h"

#include <QRegExp>

#include <algorithm>

using namespace ConfigurationRules;
using namespace FaultTexts;
using ConfigurationShape::EValue;

namespace {

using ConfigurationCheckTexts::Texts;

bool isDottedNumber(const QString &text)
{
    const QStringList parts = text.split(QLatin1Char('.'));
    return std::all_of(parts.cbegin(), parts.cend(), [](const QString &part) {
        return !part.isEmpty() && std::all_of(part.cbegin(), part.cend(), [](QChar c) {
            return c >= QLatin1Char('0') && c <= QLatin1Char('9');
        });
    });
}

/** A rule that finds nothing. */
const ERule NoRule = RULE_COUNT;

/** How the check reports one kind of value. */
struct SRow {
    EValue kind;
    /** Nothing is there. */
    ERule missing;
    const char *missingText;
    /** The value is left open. Without a text of its own it is reported as invalid. */
    ERule undefined;
    /** Readers cannot read it. */
    ERule invalid;
    const char *undefinedText;
    const char *undefinedHint;
    const char *hint;
};

const char *const NextFreeNumber =
    QT_TRANSLATE_NOOP("CConfigurationCheck", "The drive is read with the next free number.");

/** A kind of which nothing needs to be there, and which cannot be left open. */
constexpr SRow optional(EValue kind, ERule invalid, const char *hint = nullptr)
{
    return {kind, NoRule, nullptr, NoRule, invalid, nullptr, nullptr, hint};
}

/** An enumeration, which has a text that leaves its value open. */
constexpr SRow enumeration(EValue kind, ERule missing, const char *missingText, ERule undefined,
                           const char *undefinedText, ERule invalid)
{
    return {kind, missing, missingText, undefined, invalid, undefinedText, nullptr, nullptr};
}

const SRow Rows[] = {
    optional(EValue::DATE, DATE_INVALID),
    optional(EValue::HARDWARE_ID, HARDWARE_ID_INVALID,
             QT_TRANSLATE_NOOP("CConfigurationCheck",
                               "The last three are numbers from 0 to 65535; an invalid hardware "
                               "identity is read as empty.")),
    optional(EValue::BOOLEAN, OPC_UA_FLAG_INVALID),
    optional(EValue::SIGNED_NUMBER, PRIORITY_INVALID,
             QT_TRANSLATE_NOOP("CConfigurationCheck", "The plug-in is read without a priority.")),
    optional(EValue::UNSIGNED_NUMBER, BUS_ID_INVALID),
    enumeration(EValue::DEVICE_CLASS, DEVICE_CLASS_MISSING,
                QT_TRANSLATE_NOOP("CConfigurationCheck", "The device class is missing."),
                DEVICE_CLASS_UNDEFINED,
                QT_TRANSLATE_NOOP("CConfigurationCheck", "The device class is 'Undefined'."),
                DEVICE_CLASS_UNKNOWN),
    enumeration(
        EValue::PARAMETER_FILE_TYPE, PARAMETER_TYPE_MISSING,
        QT_TRANSLATE_NOOP("CConfigurationCheck", "The parameter file has no type."),
        PARAMETER_TYPE_UNDEFINED,
        QT_TRANSLATE_NOOP("CConfigurationCheck", "The type of the parameter file is 'Undefined'."),
        PARAMETER_TYPE_UNKNOWN),
    enumeration(EValue::DRIVE_TYPE, DRIVE_TYPE_MISSING,
                QT_TRANSLATE_NOOP("CConfigurationCheck", "The drive has no type."),
                DRIVE_TYPE_UNDEFINED,
                QT_TRANSLATE_NOOP("CConfigurationCheck", "The type of the drive is undefined."),
                DRIVE_TYPE_UNKNOWN),
    {EValue::KEY_DRIVE_NUMBER, DRIVE_NUMBER_MISSING,
     QT_TRANSLATE_NOOP("CConfigurationCheck", "The drive number is missing."), DRIVE_NUMBER_INVALID,
     DRIVE_NUMBER_INVALID, nullptr,
     QT_TRANSLATE_NOOP("CConfigurationCheck",
                       "255 means that no number is assigned: the drive is read with the "
                       "next free number."),
     NextFreeNumber},
};

QString translated(const char *text)
{
    return text == nullptr ? QString() : QCoreApplication::translate("CConfigurationCheck", text);
}

/** What readers make of a text, where they make anything of it; as a sentence. */
QString readAs(EValue kind, const QString &text)
{
    const QString value = ItemValue::read(kind, text);
    return value.isEmpty() || value == text ? QString()
                                            : Texts::tr("It is read as '%1'.").arg(value);
}

std::optional<SFault> fault(const SRow &row, const QString &text)
{
    const QString expected = ItemValue::expected(row.kind);
    const auto sentences = [&](const QString &first) {
        return (first + QLatin1Char(' ') + readAs(row.kind, text)).trimmed();
    };
    const QString invalid = ItemValue::invalidText(row.kind, shown(text));
    const QString similar = meant(text, ItemValue::choices(row.kind));
    const bool isNamed = row.undefinedText != nullptr;
    switch (ItemValue::reading(row.kind, text)) {
    case ItemValue::EReading::EMPTY:
        return SFault{
            row.missing,
            {sentences(translated(row.missingText)), QString(), expected, translated(row.hint)}};
    case ItemValue::EReading::UNDEFINED:
        return SFault{row.undefined,
                      {sentences(isNamed ? translated(row.undefinedText) : invalid), text, expected,
                       translated(row.undefinedHint)}};
    case ItemValue::EReading::INVALID:
        return SFault{row.invalid,
                      {sentences(invalid), text, expected,
                       similar.isEmpty() ? translated(row.hint) : caseHint(similar)}};
    case ItemValue::EReading::VALUE:
        break;
    }
    return {};
}

} // namespace

namespace ValueChecks {

Fault of(EValue kind, const QString &text)
{
    for (const SRow &row : Rows) {
        if (row.kind == kind) {
            const Fault found = fault(row, text);
            return found && found->rule == NoRule ? Fault() : found;
        }
    }
    return {};
}

Fault version(const QString &version, const QString &required)
{
    bool isRevision = false;
    const quint32 revision = CStr::stringToRevision(version, &isRevision);
    const quint32 requiredRevision = CStr::stringToRevision(required);
    const QString hint =
        Texts::tr("The document is read as version %1; save it again with this version.")
            .arg(required);
    if (version.isEmpty()) {
        return SFault{
            VERSION_MISSING,
            {Texts::tr("The version of the document is missing."), QString(), required, hint}};
    }
    if (!isRevision) {
        return SFault{VERSION_INVALID,
                      {Texts::tr("'%1' is not a valid version.").arg(shown(version)), version,
                       required, hint}};
    }
    if (revision == requiredRevision) {
        return {};
    }
    const QString message = revision < requiredRevision
        ? Texts::tr("The document was created with a previous version.")
        : Texts::tr("The document was created with a later version.");
    return SFault{VERSION_OTHER, {message, version, required, hint}};
}

Fault configurationName(const QString &name)
{
    const QString allowed =
        Texts::tr("letters, digits, '_', '-' and '+'; a number in parentheses may follow");
    if (name.isEmpty()) {
        return SFault{CONFIGURATION_NAME_EMPTY,
                      {Texts::tr("The configuration name is empty."), QString(), allowed,
                       Texts::tr("The directories on the device are named after it.")}};
    }
    // Expressions of our own: those of NDeviceConf are for one thread alone. What is too long for a
    // directory is not given to them.
    const bool isTooLong = name.toUtf8().size() > FilePlaces::LongestName;
    if (!isTooLong && QRegExp(NDeviceConf::NAME_CHECK_PATTERN).exactMatch(name)) {
        return SFault{
            CONFIGURATION_NAME_RESERVED,
            {Texts::tr("The configuration name '%1' is reserved by the device.").arg(name), name,
             Texts::tr("a name without 'setup', 'failsafe' and 'mount error'"), QString()}};
    }
    if (!isTooLong && QRegExp(NDeviceConf::NAME_INPUT_PATTERN).exactMatch(name)) {
        return {};
    }
    return SFault{CONFIGURATION_NAME_INVALID,
                  {Texts::tr("'%1' is not a valid configuration name.").arg(shown(name)), name,
                   allowed, QString()}};
}

Fault pluginVersion(const CPluginElement &plugin)
{
    const QString expected = Texts::tr("numbers separated by dots, such as 1.3");
    const QString hint =
        Texts::tr("The file name of the plug-in would be '%1'.").arg(shown(plugin.fileName()));
    if (plugin.version().isEmpty()) {
        return SFault{PLUGIN_VERSION_MISSING,
                      {Texts::tr("The plug-in '%1' has no version.").arg(shown(plugin.name())),
                       QString(), expected, hint}};
    }
    if (isDottedNumber(plugin.version())) {
        return {};
    }
    return SFault{PLUGIN_VERSION_INVALID,
                  {Texts::tr("'%1' is not a valid plug-in version.").arg(shown(plugin.version())),
                   plugin.version(), expected, hint}};
}

QString nextFreeNumber()
{
    return translated(NextFreeNumber);
}

} // namespace ValueChecks
