#pragma once

#include "vocabulary/VrnDeviceCoreExport.h"

#include <QFileDevice>
#include <QString>

/**
 * What the whole tool chain shares: MIME types, log level names, address patterns, permission
 * sets, one-letter prefixes, and the enumerations for parameter files, file results and
 * connections.
 *
 * Every constant is one immutable object that the library builds when it is loaded; reading it is
 * safe from any thread.
 */
namespace NvrnGlobal {

/** @name MIME types of drag-and-drop and clipboard payloads */
///@{
extern VRNDEVICECORE_EXPORT const QString CAPPOBJECT_MIME_TYPE;
extern VRNDEVICECORE_EXPORT const QString CAPPONLINEOBJECT_MIME_TYPE;
extern VRNDEVICECORE_EXPORT const QString COBJECTBROWSEROBJECT_MIME_TYPE;
extern VRNDEVICECORE_EXPORT const QString CSCOPEOBJECT_MIME_TYPE;
extern VRNDEVICECORE_EXPORT const QString CPROJECTOBJECT_MIME_TYPE;
extern VRNDEVICECORE_EXPORT const QString CPROJECTGUI_TREEITEM_MIME_TYPE;
extern VRNDEVICECORE_EXPORT const QString CDEVICEDATABASEGUI_DEVICE_MIME_TYPE;
extern VRNDEVICECORE_EXPORT const QString CDEVICEDATABASEGUI_FIRMWARE_MIME_TYPE;
extern VRNDEVICECORE_EXPORT const QString CDEVICEDATABASEGUI_FPGA_MIME_TYPE;
extern VRNDEVICECORE_EXPORT const QString CFILETRANSFER_TARGETFILE_MIME_TYPE;
///@}

/** @name Log level names, from the most to the least severe, and result marks of log entries */
///@{
extern VRNDEVICECORE_EXPORT const QString SYSLOG_EMERG_STR;
extern VRNDEVICECORE_EXPORT const QString SYSLOG_ALERT_STR;
extern VRNDEVICECORE_EXPORT const QString SYSLOG_CRIT_STR;
extern VRNDEVICECORE_EXPORT const QString SYSLOG_ERR_STR;
extern VRNDEVICECORE_EXPORT const QString SYSLOG_WARNING_STR;
extern VRNDEVICECORE_EXPORT const QString SYSLOG_NOTICE_STR;
extern VRNDEVICECORE_EXPORT const QString SYSLOG_INFO_STR;
extern VRNDEVICECORE_EXPORT const QString SYSLOG_DEBUG_STR;
extern VRNDEVICECORE_EXPORT const QString RESULT_ENTRY_OK;
extern VRNDEVICECORE_EXPORT const QString RESULT_ENTRY_FAILED;
///@}

/**
 * @name Address patterns
 * Regular expressions in QRegExp syntax, case-sensitive. The plain patterns are anchored, so that
 * a search validates as well as an exact match does; the input patterns are for validators of
 * input fields, which anchor by themselves, and accept what a user may type.
 */
///@{
/** Six pairs of hexadecimal digits, separated by colons. */
extern VRNDEVICECORE_EXPORT const QString MAC_PATTERN;
/** As MAC_PATTERN; the separator is a colon or a hyphen throughout, or left out throughout. */
extern VRNDEVICECORE_EXPORT const QString MAC_INPUT_PATTERN;
/** Four numbers 0..255, separated by dots; leading zeros up to three digits ("000.000.000.000"). */
extern VRNDEVICECORE_EXPORT const QString IPV4_PATTERN;
/** As IPV4_PATTERN; white space may surround the address. */
extern VRNDEVICECORE_EXPORT const QString IPV4_INPUT_PATTERN;
/** An IPv4 mask: one bits, then zero bits only, /0 to /32; leading zeros as in IPV4_PATTERN. */
extern VRNDEVICECORE_EXPORT const QString IPV4_SUBNET_PATTERN;
/**
 * An IPv6 address without scope: eight groups of one to four hexadecimal digits, at most one run
 * of groups shortened to "::", the last two groups possibly as an IPv4 address.
 */
extern VRNDEVICECORE_EXPORT const QString IPV6_PATTERN;
///@}

/** @name Permission sets */
///@{
/** Files that the tools write: the owner reads and writes, everybody else reads (0644). */
extern VRNDEVICECORE_EXPORT const QFileDevice::Permissions FILE_PERMISSIONS;
/** Directories that the tools create: as FILE_PERMISSIONS, and everybody may enter (0755). */
extern VRNDEVICECORE_EXPORT const QFileDevice::Permissions PATH_PERMISSIONS;
///@}

/**
 * @name One-letter prefixes
 * Each letter is the initial of the files it marks: (I)nitialisation, (C)onfiguration, (U)nit,
 * (S)lot extension, (F)irmware, (L)ogic, (O)ption module, (D)rive parameters.
 */
///@{
extern VRNDEVICECORE_EXPORT const QString PREFIX_CONFIG_PARAMS;
extern VRNDEVICECORE_EXPORT const QString PREFIX_DEVICE_CONFIGURATION;
extern VRNDEVICECORE_EXPORT const QString PREFIX_DEVICE_DATABASE;
extern VRNDEVICECORE_EXPORT const QString PREFIX_EXTENSION_CONTROLLER;
extern VRNDEVICECORE_EXPORT const QString PREFIX_FIRMWARE_DATABASE;
extern VRNDEVICECORE_EXPORT const QString PREFIX_LOGIC_DATABASE;
extern VRNDEVICECORE_EXPORT const QString PREFIX_OPTIONMODUL_DATABASE;
extern VRNDEVICECORE_EXPORT const QString PREFIX_PARAMETER;
///@}

/**
 * Kind of a parameter file. The text forms stand in documents; see
 * CAbstractDeviceConfigurationFile::typeToStr(). Documents and streams may carry other numbers;
 * they are kept as they are.
 */
enum EParamFileType : qint32 {
    PARAM_FILE_UNDEFINED = -1,
    PARAM_FILE_KC2_PARAMETERS = 0,
    PARAM_FILE_KC2_COMPENSATION = 1,
    PARAM_FILE_PARAMETERS = 2,
    PARAM_FILE_CONFIG_PARAMETERS = 3,
    PARAM_FILE_DEVICE_DATABASE = 4,
    PARAM_FILE_PLUGIN_PARAMETERS = 5,
    PARAM_FILE_FIRMWARE_DATABASE = 6,
    PARAM_FILE_LOGIC_DATABASE = 7,
    PARAM_FILE_OEM_PARAMETERS = 8,
    PARAM_FILE_MOTOR_PARAMETERS = 9,
    /** Has a number but no text form: it is written as "Undefined" and so does not come back. */
    PARAM_FILE_RESERVED = 10,
    PARAM_FILE_OPTION_MODULE_DATABASE = 11
};

/** Result of opening, reading or writing a file. */
enum EFileResult : qint32 {
    FILE_RESULT_SUCCESS = 0,
    /** The file is missing, cannot be opened, or does not hold what was asked for. */
    FILE_RESULT_FAILURE = 1,
    /** A settings file carries another version than the one asked for. */
    FILE_RESULT_VERSION_MISMATCH = 4,
    /** One of the small device files could not be written. */
    FILE_RESULT_WRITE_FAILURE = 5,
    /** One of the small device files could not be read. */
    FILE_RESULT_READ_FAILURE = 6
};

/** Whether a tool is connected with a device; see CDeviceCommData::connectionState(). */
enum EConnectionState : qint32 {
    /** The device does not answer, or was not called. */
    CONNECTION_STATE_DISCONNECTED = 0,
    CONNECTION_STATE_CONNECTED = 1,
    /** Nothing is known; the state of a record without a device. */
    CONNECTION_STATE_UNKNOWN = 2
};

} // namespace NvrnGlobal
