#include "vocabulary/DriveTypes.h"

#include "vocabulary/TextTables.h"

using namespace NvrnDeviceCore;

namespace DriveTypes {

QString text(EElementType type)
{
    return TextTables::text(TextTables::subDeviceTypes(), type);
}

QString kd2()
{
    return text(ELEMENT_KD2_SUB_DEVICE);
}

QString kd3()
{
    return text(ELEMENT_KD3_SUB_DEVICE);
}

QString unknown()
{
    return text(ELEMENT_UNKNOWN);
}

QStringList all()
{
    return {kd2(), kd3()};
}

bool isKd2(const QString &text)
{
    return text == kd2();
}

QString read(const QString &text)
{
    return isKd2(text) ? kd2() : kd3();
}

} // namespace DriveTypes
