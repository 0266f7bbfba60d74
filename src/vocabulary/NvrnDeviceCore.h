#pragma once

#include "vocabulary/VrnDeviceCoreExport.h"

#include <QFlags>
#include <QString>

/**
 * What belongs to this library alone: element types, kinds of device files, and the keys of the
 * text files that describe a device.
 *
 * Every constant is one immutable string that the library builds when it is loaded; reading it is
 * safe from any thread.
 */
namespace NvrnDeviceCore {

/** @name Keys of the file device.txt */
///@{
extern VRNDEVICECORE_EXPORT const QString DEVICETXT_PRODUCT;
extern VRNDEVICECORE_EXPORT const QString DEVICETXT_PLATFORM;
extern VRNDEVICECORE_EXPORT const QString DEVICETXT_PTXDIST_VERSION;
extern VRNDEVICECORE_EXPORT const QString DEVICETXT_PTXDIST_BSP;
extern VRNDEVICECORE_EXPORT const QString DEVICETXT_QT_VERSION;
extern VRNDEVICECORE_EXPORT const QString DEVICETXT_PRODUCT_NAME;
extern VRNDEVICECORE_EXPORT const QString DEVICETXT_PRODUCT_ID;
extern VRNDEVICECORE_EXPORT const QString DEVICETXT_HW_VERSION;
extern VRNDEVICECORE_EXPORT const QString DEVICETXT_PRODUCT_VERSION;
extern VRNDEVICECORE_EXPORT const QString DEVICETXT_PRODUCT_REVISION;
///@}

/** @name Keys of the file device_hook.txt */
///@{
extern VRNDEVICECORE_EXPORT const QString DEVICEHOOKTXT_REMOUNT_RW;
extern VRNDEVICECORE_EXPORT const QString DEVICEHOOKTXT_PRE_UPDATE_SCRIPT;
extern VRNDEVICECORE_EXPORT const QString DEVICEHOOKTXT_POST_UPDATE_SCRIPT;
///@}

/** What a configuration element is; see CBaseElement::type(). */
enum EElementType : qint32 {
    /** A plain element, or a sub-device whose series is not known. */
    ELEMENT_UNKNOWN = 0,
    ELEMENT_DEVICE = 1,
    ELEMENT_KD2_SUB_DEVICE = 2,
    ELEMENT_KD3_SUB_DEVICE = 3
};

/** The kinds of files that belong to a device, one bit each; see CDeviceBaseElement::allFiles(). */
enum EDeviceFile : quint32 {
    DEVICE_FILE_NONE = 0,
    DEVICE_FILE_PARAMETER_VALUES = 1u << 0,
    DEVICE_FILE_PARAMETER_DEFINITION = 1u << 1,
    DEVICE_FILE_OBJECT_DICTIONARY = 1u << 2,
    DEVICE_FILE_FAULT_TEXTS = 1u << 3,
    DEVICE_FILE_ADDITIONAL = 1u << 4,
    DEVICE_FILE_PLUGIN = 1u << 5,
    DEVICE_FILE_FPGA = 1u << 6,
    DEVICE_FILE_OPC_UA = 1u << 7,
    DEVICE_FILE_ETHERCAT_MASTER = 1u << 8,
    DEVICE_FILE_SUB_DEVICE_PARAMETERS = 1u << 9,
    DEVICE_FILE_KD2_FIRMWARE = 1u << 10,
    DEVICE_FILE_KD2_LOGIC = 1u << 11,
    DEVICE_FILE_KD2_PARAMETERS = 1u << 12,

    /** Both files of the device's parameter files. */
    DEVICE_FILE_PARAMETER = DEVICE_FILE_PARAMETER_VALUES | DEVICE_FILE_PARAMETER_DEFINITION,
    /** Every file of the device's sub-devices. */
    DEVICE_FILE_SUB_DEVICE = DEVICE_FILE_SUB_DEVICE_PARAMETERS | DEVICE_FILE_KD2_FIRMWARE
        | DEVICE_FILE_KD2_LOGIC | DEVICE_FILE_KD2_PARAMETERS,
    DEVICE_FILE_ALL = (1u << 13) - 1
};
Q_DECLARE_FLAGS(EDeviceFiles, EDeviceFile)
Q_DECLARE_OPERATORS_FOR_FLAGS(EDeviceFiles)

} // namespace NvrnDeviceCore
