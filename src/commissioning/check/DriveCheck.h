#pragma once

#include "commissioning/check/CheckContext.h"
#include "commissioning/check/Fields.h"

/** Checks the drives, but for their files. */
class DriveCheck
{
public:
    explicit DriveCheck(CheckContext &context) : m_context(context) { }

    void check(const Fields &fields, const QString &item);

private:
    void checkType(const Fields &fields, const QString &item);
    void checkHardwareId(const Fields &fields, const QString &item);
    void checkNumber(const Fields &fields, const QString &item);
    void checkName(const Fields &fields, const QString &item);
    void checkBusId(const Fields &fields, const QString &item);

    CheckContext &m_context;
    // The item of the first drive with each.
    QHash<int, QString> m_numbers;
    QHash<QString, QString> m_names;
    QHash<uint, QString> m_busIds;
};
