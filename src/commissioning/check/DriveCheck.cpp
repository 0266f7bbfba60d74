#include "commissioning/check/DriveCheck.h"

#include "commissioning/check/ValueChecks.h"
#include "commissioning/Texts.h"
#include "elements/DriveNumbers.h"
#include "vocabulary/DriveTypes.h"
#include "vocabulary/NVornXmlTags.h"

using ConfigurationCheckTexts::Texts;

using namespace ConfigurationRules;
using namespace FaultTexts;
using namespace NVornXmlTags;
using ConfigurationShape::EValue;

void DriveCheck::check(const Fields &fields, const QString &item)
{
    checkType(fields, item);
    checkHardwareId(fields, item);
    checkNumber(fields, item);
    checkName(fields, item);
    checkBusId(fields, item);
}

void DriveCheck::checkType(const Fields &fields, const QString &item)
{
    const QString text = fields.parent().attribute(ATTR_TYPE);
    m_context.findings.report(ValueChecks::of(EValue::DRIVE_TYPE, text),
                              {fields.parent(), item + QStringLiteral(".type")});
    if (text != DriveTypes::kd3()) {
        return;
    }
    for (const QString &tag : {TAG_KD2_PARAM, TAG_KD2_LOGIC, TAG_KD2_FIRMWARE}) {
        if (fields.element(tag).hasChildNodes()) {
            m_context.findings.report(
                DRIVE_TYPE_MISMATCH, {fields.element(tag), item},
                {Texts::tr("'%1' is ignored: the type of the drive is '%2'.").arg(tag, text), text,
                 DriveTypes::kd2(),
                 Texts::tr("Remove the file, or correct the type of the drive.")});
        }
    }
}

void DriveCheck::checkHardwareId(const Fields &fields, const QString &item)
{
    const SPlace place = {fields.element(TAG_HARDWAREID), item + QStringLiteral(".hardwareId")};
    const QString text = fields.text(TAG_HARDWAREID);
    m_context.findings.report(ValueChecks::of(EValue::HARDWARE_ID, text), place);
    const CDeviceHardwareId own(text);
    const CDeviceElement &device = m_context.device;
    const bool fits = own.isNull() || device.hardwareId().isNull()
        || device.isParameterHardwareIdCompatible(own, NvrnGlobal::PARAM_FILE_PARAMETERS);
    if (!fits) {
        m_context.findings.report(
            HARDWARE_ID_MISMATCH, place,
            {Texts::tr("The hardware identity '%1' does not match that of the device.")
                 .arg(shown(own.hardwareId())),
             own.hardwareId(),
             Texts::tr("prefix, name and platform of '%1'").arg(shown(device.hardwareIdStr())),
             QString()});
    }
}

void DriveCheck::checkNumber(const Fields &fields, const QString &item)
{
    const SPlace place = {fields.place(TAG_DRIVE_NO), item + QStringLiteral(".driveNo")};
    const QString text = fields.text(TAG_DRIVE_NO);
    const std::optional<SFault> fault = ValueChecks::of(EValue::KEY_DRIVE_NUMBER, text);
    const int number = DriveNumbers::read(text);
    if (fault) {
        m_context.findings.report(fault, place);
    } else if (m_numbers.contains(number)) {
        m_context.findings.report(DRIVE_NUMBER_TWICE, place,
                                  {Texts::tr("The drive number %1 is already used by %2.")
                                       .arg(QString::number(number), m_numbers.value(number)),
                                   text, Texts::tr("a unique number"),
                                   ValueChecks::nextFreeNumber()});
    } else {
        m_numbers.insert(number, item);
    }
}

void DriveCheck::checkName(const Fields &fields, const QString &item)
{
    const SPlace place = {fields.place(TAG_NAME), item + QStringLiteral(".name")};
    const QString name = fields.text(TAG_NAME);
    if (name.isEmpty()) {
        m_context.findings.report(
            DRIVE_NAME_MISSING, place,
            {Texts::tr("The drive has no name."), QString(), Texts::tr("a name"),
             Texts::tr("The drive is read with a name made from its number.")});
    } else if (m_names.contains(name)) {
        m_context.findings.report(DRIVE_NAME_TWICE, place,
                                  {Texts::tr("The name '%1' is already used by %2.")
                                       .arg(shown(name), m_names.value(name)),
                                   name, Texts::tr("a unique name"), QString()});
    } else {
        m_names.insert(name, item);
    }
}

void DriveCheck::checkBusId(const Fields &fields, const QString &item)
{
    const SPlace place = {fields.place(TAG_BUS_ID), item + QStringLiteral(".busId")};
    const QString text = fields.text(TAG_BUS_ID);
    m_context.findings.report(ValueChecks::of(EValue::UNSIGNED_NUMBER, text), place);
    const uint busId = text.toUInt();
    if (busId != 0 && m_busIds.contains(busId)) {
        m_context.findings.report(BUS_ID_TWICE, place,
                                  {Texts::tr("The bus identifier %1 is already used by %2.")
                                       .arg(QString::number(busId), m_busIds.value(busId)),
                                   text, Texts::tr("a unique bus identifier"), QString()});
    } else if (busId != 0) {
        m_busIds.insert(busId, item);
    }
}
