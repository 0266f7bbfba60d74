#pragma once

#include "commissioning/check/CheckContext.h"
#include "commissioning/check/Fields.h"

/** Checks what the document says of itself and of the device, without lists and drives. */
class DeviceCheck
{
public:
    explicit DeviceCheck(CheckContext &context) : m_context(context) { }

    /** @param version of the document as it was read */
    void checkRoot(const Fields &fields, const QString &version);
    void checkHead(const Fields &fields);
    void checkDescription(const Fields &fields);
    /** Also sets CheckContext::device. */
    void checkDevice(const Fields &fields, const QString &item);

private:
    void checkDate(const Fields &fields, const QString &tag, const QString &item);
    void checkConfigurationName(const Fields &fields, const QString &item);

    CheckContext &m_context;
};
