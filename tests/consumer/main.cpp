// A program as a user of the library writes it: it makes a configuration, saves it, and reads it.

#include "configfile/ICDeviceConfigurationFile.h"
#include "devicefiles/CDeviceFileSystem.h"
#include "elements/CDeviceElement.h"

#include <cstdio>
#include <memory>

int main(int argc, char *argv[])
{
    if (argc != 2) {
        return 2;
    }
    const QString path = QString::fromLocal8Bit(argv[1]);

    CDeviceElement device;
    device.setName(QStringLiteral("Consumer"));
    device.setDeviceClass(NDeviceConf::DEVICE_CLASS_KC2);
    device.insertSubDevice(CSubDeviceKD3Element());

    const std::unique_ptr<ICDeviceConfigurationFile> file(
        ICDeviceConfigurationFile::instance(nullptr));
    CDeviceElement read;
    const bool done = file->createNewDocument() && file->setConfiguration(device)
        && file->save(path) && file->open(path) && file->configuration(read);
    std::printf("%s %s\n", qPrintable(read.subDevice(0).name()),
                qPrintable(CDeviceFileSystem(read).smDevicePath()));
    return done && read == device ? 0 : 1;
}
