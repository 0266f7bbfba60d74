#pragma once

#include "vocabulary/VrnDeviceCoreExport.h"

#include <QString>

/**
 * The texts of the system messages, by which a device reports that it could not start (codes 1024
 * to 1027) or which signal ended its application (code 1087 + number of the signal): a message of
 * one line, and a description for a view of details.
 *
 * The texts are translated when they are asked for, in the context "CDeviceSystemMessage". They are
 * the keys of the catalogues: with a corrected "Too much errors", its translations would be lost.
 * All operations are static and may be used from any thread.
 */
class VRNDEVICECORE_EXPORT CDeviceSystemMessage
{
public:
    CDeviceSystemMessage();
    virtual ~CDeviceSystemMessage();

    /** Whether @p code lies in the block of system messages, 1024 to 1151. */
    static bool isSystemMessage(int code);

    /**
     * Message and description of @p code. Codes without text, 1028 to 1087 among them, get the code
     * in decimal as message and an empty description.
     *
     * The messages of the real-time signals between the first and the last all begin with
     * "Signal 32", the number of the first, and count from there: code 1125 is
     * "Signal 32: SIGRTMIN+6". A reader of the message must not take its number for the signal's.
     */
    static void text(QString &message, QString &description, int code);
    static QString message(int code);
    static QString description(int code);

    /**
     * The same for a hexadecimal number, with or without "0x", whatever it looks like: "400" is the
     * code 1024. Empty if @p code is not a number.
     */
    static QString message(const QString &code);
    static QString description(const QString &code);
};
