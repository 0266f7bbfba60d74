#pragma once

#include "elements/CDeviceBaseElement.h"
#include "elements/CSubDeviceElement.h"
#include "fuzz/Check.h"
#include "settings/CDeviceSettings.h"
#include "support/SampleConfiguration.h"
#include "support/StreamBytes.h"

#include <algorithm>
#include <type_traits>

namespace Fuzz {

/**
 * Whether @p value is written as a whole, and so comes back from a stream equal. An empty container
 * for a sub-device has no stream form.
 */
template <typename T>
bool isWrittenWhole(const T &value)
{
    if constexpr (std::is_base_of_v<CSubDeviceElement, T>) {
        return value.type() != NvrnDeviceCore::ELEMENT_UNKNOWN;
    } else if constexpr (std::is_base_of_v<CDeviceBaseElement, T>) {
        const QList<CSubDeviceElement> subDevices = value.subDevices();
        return std::all_of(subDevices.begin(), subDevices.end(),
                           [](const CSubDeviceElement &sub) { return isWrittenWhole(sub); });
    } else {
        return true;
    }
}

/** A cleared container keeps a null sub-device. */
template <typename T>
bool isCleared(const T &value)
{
    if constexpr (std::is_base_of_v<CSubDeviceElement, T>) {
        return value.isNull();
    } else {
        return value == T();
    }
}

/** A value of which nothing may be left when another is read over it: lists and maps are filled. */
template <typename T>
T usedValue()
{
    T used;
    if constexpr (std::is_base_of_v<CDeviceBaseElement, T>) {
        used = SampleConfiguration::device();
    } else if constexpr (std::is_base_of_v<CDeviceSettings, T>) {
        used.setSubDeviceName(QStringLiteral("used"), 9);
    }
    return used;
}

/**
 * Reads a value, however broken the bytes are, and demands that it can be used: it is copied,
 * compared, cleared, written, read back, and read over other values.
 */
template <typename T>
void fuzzStream(const QByteArray &bytes)
{
    using StreamBytes::toBytes;

    T value;
    StreamBytes::read(bytes, value);
    const QByteArray written = toBytes(value);
    const bool isWhole = isWrittenWhole(value);

    T copy(value);
    FUZZ_CHECK(!isWhole || (copy == value && !(copy != value)));
    FUZZ_CHECK(toBytes(copy) == written);
    copy.clear();
    FUZZ_CHECK(isCleared(copy));
    FUZZ_CHECK(toBytes(value) == written);

    if (isWhole) {
        T again;
        FUZZ_CHECK(StreamBytes::read(written, again) == written.size());
        FUZZ_CHECK(again == value);
        FUZZ_CHECK(toBytes(again) == written);
    }

    for (T used : {value, usedValue<T>()}) {
        StreamBytes::read(bytes, used);
        FUZZ_CHECK(!isWhole || used == value);
        FUZZ_CHECK(toBytes(used) == written);
    }
}

} // namespace Fuzz
