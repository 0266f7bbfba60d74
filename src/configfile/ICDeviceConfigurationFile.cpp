#include "configfile/ICDeviceConfigurationFile.h"

#include "configfile/CDeviceConfigurationFile10.h"
#include "vocabulary/NvrFileNames.h"

ICDeviceConfigurationFile *ICDeviceConfigurationFile::instance(ICLogfile *logfile)
{
    return new CDeviceConfigurationFile10(logfile);
}

QString ICDeviceConfigurationFile::defaultFileName()
{
    return NvrFileNames::DEVICE_CONFIG_FILENAME;
}

ICDeviceConfigurationFile::ICDeviceConfigurationFile(ICLogfile *logfile)
    : CXmlAbstractVornFile(logfile)
{
}

ICDeviceConfigurationFile::~ICDeviceConfigurationFile() = default;
