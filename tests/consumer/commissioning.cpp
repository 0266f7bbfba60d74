// A program on a PC as a user of both libraries writes it: it tells the names of the main files.

#include "commissioning/CDeviceManifest.h"
#include "configfile/ICDeviceConfigurationFile.h"

#include <cstdio>
#include <memory>

int main()
{
    const std::unique_ptr<ICDeviceConfigurationFile> file(
        ICDeviceConfigurationFile::instance(nullptr));
    std::printf("%s %s\n", qPrintable(file->defaultFileName()),
                qPrintable(CDeviceManifest::fileName()));
    return CDeviceManifest().entries().isEmpty() ? 0 : 1;
}
