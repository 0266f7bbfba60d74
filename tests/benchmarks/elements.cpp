#include "benchmarks/Measurements.h"
#include "support/LargeConfiguration.h"

#include <QDataStream>

namespace {

template <typename Value>
QByteArray streamed(const Value &value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << value;
    return bytes;
}

template <typename Value>
bool readStream(const QByteArray &bytes, Value &value)
{
    QDataStream stream(bytes);
    stream >> value;
    return stream.status() == QDataStream::Ok;
}

void appendTexts(const CFileElement &file, QStringList &texts)
{
    texts << file.fileName() << file.devicePath() << file.projectPath() << file.comment();
}

/** The texts of the device, as a program without this library would keep them. */
QStringList texts(const CDeviceElement &device)
{
    QStringList result;
    for (const CFileElement &file : device.additionalFiles()) {
        appendTexts(file, result);
    }
    for (const CSubDeviceElement &subDevice : device.subDevices()) {
        result << subDevice.name() << subDevice.comment() << subDevice.hardwareIdStr();
        appendTexts(subDevice.parameterFile(), result);
    }
    return result;
}

/** Everything that is stored in the device itself. */
bool readAll(const CDeviceElement &device)
{
    return !device.name().isNull() && !device.hardwareId().isNull()
        && device.additionalFiles().size() == device.additionalFileCount()
        && device.options().isEmpty() && device.parameterFiles().isEmpty()
        && device.fpgaFiles().isEmpty() && device.plugins().isEmpty()
        && device.opcUaFiles().isEmpty() && device.odictFile().isNull();
}

} // namespace

void Operations::registerElements(const SSize &size)
{
    const CDeviceElement device = LargeConfiguration::device(size.files, size.subDevices);
    const CDeviceElement sharing = device;
    const CDeviceElement equal = LargeConfiguration::device(size.files, size.subDevices);

    measure("copy a device", size, [=] {
        CDeviceElement copy = device;
        benchmark::DoNotOptimize(copy);
        return true;
    });
    measure("read a const device", size, [=] { return readAll(device); });
    measure("compare devices that share data", size, [=] { return device == sharing; });
    measure("without shared data", size, [=] { return device == equal; });

    const QByteArray bytes = streamed(device);
    const QStringList list = texts(device);
    const QByteArray listBytes = streamed(list);
    measure("write a device to a stream", size, [=] { return !streamed(device).isEmpty(); });
    measure("write its texts as QStringList", size, [=] { return !streamed(list).isEmpty(); });
    const auto newDevice = [] { return CDeviceElement(); };
    measure("read a device from a stream", size, newDevice,
            [=](CDeviceElement &read) { return readStream(bytes, read); });
    const auto newList = [] { return QStringList(); };
    measure("read its texts as QStringList", size, newList,
            [=](QStringList &read) { return readStream(listBytes, read); });
}
