#pragma once

#include "configfile/CDeviceConfigurationFile10.h"
#include "imported/CXmlAbstractVornFile.h"
#include "support/Files.h"
#include "support/Literals.h"
#include "support/MessageCatcher.h"
#include "support/Places.h"
#include "support/SampleConfiguration.h"

#include <QByteArray>
#include <QString>

/** The reference document and an empty one. */
namespace FullDocument {

const QString Previous =
    QStringLiteral("The configuration file was created with a previous version");

const QString Later = QStringLiteral("The configuration file was created with a later version");

inline QByteArray bytesOf(CXmlAbstractVornFile &file)
{
    QByteArray bytes;
    QString error;
    return file.save(bytes, error) ? bytes : QByteArray();
}

inline QString dataPath(const QString &name)
{
    return Places::data("configuration/") + name;
}

inline QByteArray fullDocument()
{
    return Files::read(dataPath(u"valid/full.3deco"_s));
}

inline QByteArray emptyDocument()
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<VornDeviceConfig version=\"1.0\"/>\n";
}

inline QByteArray documentOfVersion(const QByteArray &attribute)
{
    return "<VornDeviceConfig" + attribute
        + "><Device><Name>Press</Name></Device></VornDeviceConfig>";
}

/** Whether the file holds no document, and says so in every way it can. */
inline bool isWithoutDocument(CDeviceConfigurationFile10 &file)
{
    CDeviceConfigurationFile10 fresh(nullptr);
    const MessageCatcher catcher;
    return !file.domDocument().hasChildNodes() && bytesOf(file).isEmpty()
        && file.currentFileVersion().isEmpty() && file.metaData().isNull()
        && ConfigurationItems::read(file) == ConfigurationItems::read(fresh);
}

} // namespace FullDocument
