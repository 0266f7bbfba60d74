#pragma once

#include "configfile/CDeviceConfigurationFile10.h"
#include "elements/CDeviceElement.h"
#include "imported/CXmlAbstractVornFile.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/SampleConfiguration.h"

#include <QByteArray>
#include <QString>

/** Documents around a part of a configuration. */
namespace ConfigurationTexts {

inline QByteArray bytesOf(CXmlAbstractVornFile &file)
{
    QByteArray bytes;
    QString error;
    return file.save(bytes, error) ? bytes : QByteArray();
}

/** A whole document around what stands below its root. */
inline QByteArray document(const QByteArray &content)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<VornDeviceConfig version=\"1.0\">\n"
        + content + "</VornDeviceConfig>\n";
}

inline QByteArray deviceDocument(const QByteArray &content)
{
    return document(" <Device>\n" + content + " </Device>\n");
}

inline QByteArray configDocument(const QByteArray &content)
{
    return deviceDocument("  <Config>\n" + content + "  </Config>\n");
}

/** What a document with that content tells of its device. */
inline CDeviceElement deviceIn(const QByteArray &bytes)
{
    CDeviceConfigurationFile10 file(nullptr);
    CDeviceElement device;
    if (!file.load(bytes) || !file.configuration(device)) {
        device.setName(u"not read"_s);
    }
    return device;
}

} // namespace ConfigurationTexts
