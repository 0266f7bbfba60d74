#include "configfile/ItemValue.h"

#include "elements/CFileElement.h"
#include "elements/CPluginElement.h"
#include "elements/DriveNumbers.h"
#include "elements/StartOptions.h"
#include "imported/CDeviceHardwareId.h"
#include "storage/XmlCharacters.h"
#include "vocabulary/DriveTypes.h"
#include "vocabulary/NVornXmlTags.h"
#include "vocabulary/Texts.h"
#include "vocabulary/TextTables.h"

#include <QDate>

#include <algorithm>
#include <limits>

using NVornXmlTags::VALUE_FALSE;
using NVornXmlTags::VALUE_TRUE;

namespace ItemValue {

namespace {

using ItemValueTexts::Texts;

const QLatin1Char Space(' ');

/** The texts of a table, but for its first row, which stands for everything else. */
template <typename Value>
QStringList definedTexts(const TextTables::Table<Value> &table)
{
    QStringList texts;
    for (const auto &row : table.mid(1)) {
        texts.append(row.text);
    }
    return texts;
}

/** The text as it stands when it is one of the enumeration, else what leaves the value open. */
QString choice(EValue kind, const QString &text)
{
    return choices(kind).contains(text) ? text : undefined(kind);
}

/** In the one form of numbers; empty for any other text. */
template <typename Number>
QString number(const QString &text, Number (QString::*parse)(bool *, int) const)
{
    bool isNumber = false;
    const Number value = (text.*parse)(&isNumber, 10);
    return isNumber ? QString::number(value) : QString();
}

QString signedNumber(const QString &text)
{
    return number(text, &QString::toInt);
}

QString unsignedNumber(const QString &text)
{
    return number(text, &QString::toUInt);
}

/** The priority that stands for none is read like an absent one. */
QString priority(const QString &text)
{
    static const QString unset = QString::number(CPluginElement().priority());
    const QString value = signedNumber(text);
    return value == unset ? QString() : value;
}

QString date(const QString &text)
{
    return QDate::fromString(text, Qt::ISODate).toString(Qt::ISODate);
}

QString deviceDirectory(const QString &text)
{
    CFileElement file;
    file.setDevicePath(text);
    return file.devicePath();
}

QString projectDirectory(const QString &text)
{
    CFileElement file;
    file.setProjectPath(text);
    return file.projectPath();
}

bool isOption(const QString &text)
{
    const auto isSpace = [](QChar c) { return c.isSpace(); };
    return StartOptions::isOption(text) && text.size() > 1
        && std::none_of(text.cbegin(), text.cend(), isSpace);
}

/** Single spaces between the words, none of which would begin another option. */
bool isArgument(const QString &text)
{
    const QStringList words = text.split(Space);
    return text == text.simplified()
        && std::none_of(words.cbegin(), words.cend(), &StartOptions::isOption);
}

bool isDriveNumber(const QString &text)
{
    const int number = DriveNumbers::read(text);
    return number >= 0 && number <= DriveNumbers::Highest;
}

/** Whether readers take it for a value; @p text is neither empty nor leaves the value open. */
bool isValue(EValue kind, const QString &text)
{
    switch (kind) {
    case EValue::DATE:
        return !date(text).isEmpty();
    case EValue::HARDWARE_ID:
        return !CDeviceHardwareId(text).isNull();
    case EValue::BOOLEAN:
    case EValue::DEVICE_CLASS:
    case EValue::PARAMETER_FILE_TYPE:
    case EValue::DRIVE_TYPE:
        return choices(kind).contains(text);
    case EValue::UNSIGNED_NUMBER:
        return !unsignedNumber(text).isEmpty();
    case EValue::SIGNED_NUMBER:
        return !signedNumber(text).isEmpty();
    case EValue::KEY_DRIVE_NUMBER:
        return isDriveNumber(text);
    case EValue::KEY_OPTION:
        return isOption(text);
    case EValue::TEXT:
    case EValue::KEY_NAME:
    case EValue::OPTION_ARGUMENT:
    case EValue::DEVICE_DIRECTORY:
    case EValue::PROJECT_DIRECTORY:
    case EValue::ACTIVE_FPGA_FILE:
        break;
    }
    return true;
}

bool isUndefined(EValue kind, const QString &text)
{
    return kind == EValue::KEY_DRIVE_NUMBER ? DriveNumbers::read(text) == DriveNumbers::None
                                            : text == undefined(kind);
}

} // namespace

EReading reading(EValue kind, const QString &text)
{
    if (text.isEmpty()) {
        return EReading::EMPTY;
    }
    if (isUndefined(kind, text)) {
        return EReading::UNDEFINED;
    }
    return isValue(kind, text) ? EReading::VALUE : EReading::INVALID;
}

QString read(EValue kind, const QString &text)
{
    switch (kind) {
    case EValue::KEY_DRIVE_NUMBER:
        return DriveNumbers::key(text);
    case EValue::DATE:
        return date(text);
    case EValue::DEVICE_CLASS:
    case EValue::PARAMETER_FILE_TYPE:
        return choice(kind, text);
    case EValue::HARDWARE_ID:
        return CDeviceHardwareId(text).hardwareId();
    case EValue::BOOLEAN:
        return text == VALUE_TRUE ? VALUE_TRUE : VALUE_FALSE;
    case EValue::UNSIGNED_NUMBER:
        return QString::number(text.toUInt());
    case EValue::SIGNED_NUMBER:
        return priority(text);
    case EValue::DRIVE_TYPE:
        return DriveTypes::read(text);
    case EValue::OPTION_ARGUMENT:
        return text.simplified();
    case EValue::DEVICE_DIRECTORY:
        return deviceDirectory(text);
    case EValue::PROJECT_DIRECTORY:
        return projectDirectory(text);
    case EValue::TEXT:
    case EValue::KEY_NAME:
    case EValue::KEY_OPTION:
    case EValue::ACTIVE_FPGA_FILE:
        break;
    }
    return text;
}

QString absentValue(const ConfigurationShape::SItem &item)
{
    return item.absent.isEmpty() ? read(item.value, QString()) : item.absent;
}

bool accepts(EValue kind, const QString &text)
{
    if (!unwritableText(text).isEmpty()) {
        return false;
    }
    switch (kind) {
    case EValue::DATE:
        return date(text) == text;
    case EValue::HARDWARE_ID:
        return text.isEmpty() || isValue(kind, text);
    case EValue::DEVICE_CLASS:
    case EValue::PARAMETER_FILE_TYPE:
        return choice(kind, text) == text;
    case EValue::UNSIGNED_NUMBER:
        return !text.isEmpty() && unsignedNumber(text) == text;
    case EValue::SIGNED_NUMBER:
        return !text.isEmpty() && signedNumber(text) == text;
    case EValue::KEY_DRIVE_NUMBER:
        return isDriveNumber(text) && DriveNumbers::key(text) == text;
    case EValue::OPTION_ARGUMENT:
        return isArgument(text);
    case EValue::BOOLEAN:
    case EValue::DRIVE_TYPE:
    case EValue::KEY_OPTION:
        return isValue(kind, text);
    case EValue::KEY_NAME:
    case EValue::ACTIVE_FPGA_FILE:
        return !text.isEmpty();
    case EValue::TEXT:
    case EValue::DEVICE_DIRECTORY:
    case EValue::PROJECT_DIRECTORY:
        break;
    }
    return true;
}

QString stored(EValue kind, const QString &text)
{
    const bool isDirectory = kind == EValue::DEVICE_DIRECTORY || kind == EValue::PROJECT_DIRECTORY;
    return isDirectory ? read(kind, text) : text;
}

QStringList choices(EValue kind)
{
    switch (kind) {
    case EValue::DEVICE_CLASS:
        return definedTexts(TextTables::deviceClasses());
    case EValue::PARAMETER_FILE_TYPE:
        return definedTexts(TextTables::paramFileTypes());
    case EValue::DRIVE_TYPE:
        return DriveTypes::all();
    case EValue::BOOLEAN:
        return {VALUE_TRUE, VALUE_FALSE};
    default:
        return {};
    }
}

QString undefined(EValue kind)
{
    switch (kind) {
    case EValue::DEVICE_CLASS:
        return TextTables::deviceClasses().constFirst().text;
    case EValue::PARAMETER_FILE_TYPE:
        return TextTables::paramFileTypes().constFirst().text;
    case EValue::DRIVE_TYPE:
        return DriveTypes::unknown();
    default:
        return QString();
    }
}

QString expected(EValue kind)
{
    const auto range = [](qint64 least, qint64 largest) {
        return Texts::tr("a number from %1 to %2")
            .arg(QString::number(least), QString::number(largest));
    };
    switch (kind) {
    case EValue::DATE:
        return Texts::tr("a date such as 2026-11-21");
    case EValue::HARDWARE_ID:
        return QStringLiteral("PREFIX:NAME:PLATFORM:VERSION:REVISION");
    case EValue::UNSIGNED_NUMBER:
        return range(0, std::numeric_limits<quint32>::max());
    case EValue::SIGNED_NUMBER:
        return range(std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max());
    case EValue::KEY_DRIVE_NUMBER:
        return range(0, DriveNumbers::Highest);
    case EValue::KEY_OPTION:
        return Texts::tr("a word that begins with '-'");
    case EValue::OPTION_ARGUMENT:
        return Texts::tr("words that do not begin with '-', with one space between each two");
    case EValue::KEY_NAME:
    case EValue::ACTIVE_FPGA_FILE:
        return Texts::tr("a name");
    default:
        return choices(kind).join(QStringLiteral(", "));
    }
}

QString invalidText(EValue kind, const QString &shown)
{
    switch (kind) {
    case EValue::DATE:
        return Texts::tr("'%1' is not a valid date.").arg(shown);
    case EValue::DEVICE_CLASS:
        return Texts::tr("'%1' is not a valid device class.").arg(shown);
    case EValue::HARDWARE_ID:
        return Texts::tr("'%1' is not a valid hardware identity.").arg(shown);
    case EValue::BOOLEAN:
        return Texts::tr("'%1' is neither true nor false.").arg(shown);
    case EValue::UNSIGNED_NUMBER:
    case EValue::SIGNED_NUMBER:
        return Texts::tr("'%1' is not a valid number.").arg(shown);
    case EValue::PARAMETER_FILE_TYPE:
        return Texts::tr("'%1' is not a valid type of a parameter file.").arg(shown);
    case EValue::DRIVE_TYPE:
        return Texts::tr("'%1' is not a valid type of a drive.").arg(shown);
    case EValue::KEY_DRIVE_NUMBER:
        return Texts::tr("'%1' is not a valid drive number.").arg(shown);
    case EValue::KEY_OPTION:
        return Texts::tr("'%1' is not a valid start option.").arg(shown);
    case EValue::OPTION_ARGUMENT:
        return Texts::tr("'%1' is not a valid argument of a start option.").arg(shown);
    case EValue::KEY_NAME:
    case EValue::ACTIVE_FPGA_FILE:
        return Texts::tr("The name is empty.");
    default:
        return QString();
    }
}

QString unwritableText(const QString &text)
{
    const int index = XmlCharacters::indexOfIllegal(text);
    if (index < 0) {
        return QString();
    }
    const QString code = QString::number(text.at(index).unicode(), 16).toUpper();
    return Texts::tr("The character U+%1 cannot be stored in a configuration.")
        .arg(code.rightJustified(4, QLatin1Char('0')));
}

} // namespace ItemValue
