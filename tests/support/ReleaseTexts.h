#pragma once

#include "devicefiles/CDeviceOSReleaseFile.h"

#include <QByteArray>

/** Release files as they are written and read. */
namespace ReleaseTexts {

const int Success = 0;
const QByteArray Content = "PRODUCT=a\nOTHER=b\nPLATFORM=c\n";
const QByteArray SavedContent = "PRODUCT=aOTHER=bPLATFORM=c";

inline QByteArray saved(CDeviceOSReleaseFile &file)
{
    QByteArray result;
    return file.saveToBuffer(result) == Success ? result : QByteArray("cannot be saved");
}

} // namespace ReleaseTexts
