#include "commissioning/check/DeviceCheck.h"

#include "commissioning/check/ValueChecks.h"
#include "commissioning/Texts.h"
#include "vocabulary/NVornXmlTags.h"

using ConfigurationCheckTexts::Texts;

using namespace ConfigurationRules;
using namespace NVornXmlTags;
using ConfigurationShape::EValue;

void DeviceCheck::checkRoot(const Fields &fields, const QString &version)
{
    const SPlace place = {fields.parent(), QString()};
    m_context.findings.report(ValueChecks::version(version, m_context.file.requiredFileVersion()),
                              place);
    if (!fields.contains(TAG_DEVICE)) {
        m_context.findings.report(
            DEVICE_MISSING, place,
            {Texts::tr("The document has no device."), QString(),
             Texts::tr("an element '%1'").arg(TAG_DEVICE),
             Texts::tr("A configuration without a device cannot be commissioned.")});
    }
}

void DeviceCheck::checkHead(const Fields &fields)
{
    checkDate(fields, TAG_DATE, QString());
}

void DeviceCheck::checkDescription(const Fields &fields)
{
    const QString revisionItem = QStringLiteral("description.revisionDate");
    checkDate(fields, TAG_CREATIONDATE, QStringLiteral("description.creationDate"));
    checkDate(fields, TAG_REVISIONDATE, revisionItem);
    const QDate creation = QDate::fromString(fields.text(TAG_CREATIONDATE), Qt::ISODate);
    const QDate revision = QDate::fromString(fields.text(TAG_REVISIONDATE), Qt::ISODate);
    if (creation.isValid() && revision.isValid() && revision < creation) {
        m_context.findings.report(
            DATE_ORDER, {fields.element(TAG_REVISIONDATE), revisionItem},
            {Texts::tr("The revision date is earlier than the creation date."),
             fields.text(TAG_REVISIONDATE),
             Texts::tr("%1 or later").arg(creation.toString(Qt::ISODate)), QString()});
    }
}

void DeviceCheck::checkDate(const Fields &fields, const QString &tag, const QString &item)
{
    m_context.findings.report(ValueChecks::of(EValue::DATE, fields.text(tag)),
                              {fields.element(tag), item});
}

void DeviceCheck::checkDevice(const Fields &fields, const QString &item)
{
    CDeviceElement &device = m_context.device;
    const QString hardwareId = fields.text(TAG_HARDWAREID);
    device.setHardwareId(CDeviceHardwareId(hardwareId));
    m_context.findings.report(
        ValueChecks::of(EValue::HARDWARE_ID, hardwareId),
        {fields.element(TAG_HARDWAREID), item + QStringLiteral(".hardwareId")});
    const QString deviceClass = fields.text(TAG_CLASS);
    device.setDeviceClass(m_context.file.strToDeviceClass(deviceClass));
    m_context.findings.report(ValueChecks::of(EValue::DEVICE_CLASS, deviceClass),
                              {fields.place(TAG_CLASS), item + QStringLiteral(".class")});
    device.setName(fields.text(TAG_NAME));
    if (device.name().isEmpty()) {
        m_context.findings.report(
            DEVICE_NAME_MISSING, {fields.place(TAG_NAME), item + QStringLiteral(".name")},
            {Texts::tr("The device has no name."), QString(), Texts::tr("a name"),
             Texts::tr("The directory of the device in the project has the same name.")});
    }
    checkConfigurationName(fields, item);
    if (!fields.contains(TAG_CONFIG)) {
        m_context.findings.report(
            CONFIG_MISSING, {fields.parent(), item},
            {Texts::tr("The device has no configuration block."), QString(),
             Texts::tr("an element '%1'").arg(TAG_CONFIG),
             Texts::tr("The device is read without options, files or plug-ins.")});
    }
}

void DeviceCheck::checkConfigurationName(const Fields &fields, const QString &item)
{
    const SPlace place = {fields.place(TAG_CONFIGNAME),
                          item + QStringLiteral(".configurationName")};
    CDeviceElement &device = m_context.device;
    if (!fields.contains(TAG_CONFIGNAME)) {
        m_context.findings.report(
            CONFIGURATION_NAME_MISSING, place,
            {Texts::tr("The configuration name is missing."), QString(), Texts::tr("a name"),
             Texts::tr("It is read as '%1'.").arg(device.configurationName())});
        return;
    }
    const QString name = fields.text(TAG_CONFIGNAME);
    device.setConfigurationName(name);
    m_context.findings.report(ValueChecks::configurationName(name), place);
}
