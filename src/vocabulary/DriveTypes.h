#pragma once

#include "vocabulary/NvrnDeviceCore.h"

#include <QString>
#include <QStringList>

/**
 * The types of drives as texts, from TextTables::subDeviceTypes(). In a document capital and small
 * letters matter: every text but that of a KD2 drive is read as that of a KD3 drive.
 */
namespace DriveTypes {

QString text(NvrnDeviceCore::EElementType type);

QString kd2();
QString kd3();
/** Leaves the type open. */
QString unknown();
/** The types that a drive can have: kd2() and kd3(). */
QStringList all();

/** Whether a document with @p text means a KD2 drive. */
bool isKd2(const QString &text);
/** The type as which @p text is read: kd2() or kd3(). */
QString read(const QString &text);

} // namespace DriveTypes
