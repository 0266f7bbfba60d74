#pragma once

#include "configfile/CDeviceConfigurationFile10.h"
#include "elements/CFileElement.h"
#include "support/Literals.h"
#include "support/SampleConfiguration.h"
#include "vocabulary/NVornXmlTags.h"

#include <QByteArray>
#include <QDomDocument>
#include <QDomElement>
#include <QString>
#include <QTextStream>

/** A file class that shows the helpers of its base. */
namespace HelperFiles {

const QByteArray Document = "<VornDeviceConfig version=\"1.0\">"
                            "<Description id=\"description\"/>"
                            "<Device id=\"device\">"
                            "<Config id=\"config\">"
                            "<ParameterFiles id=\"params\"/>"
                            "<Files id=\"files\"/>"
                            "<Plugins id=\"plugins\"/>"
                            "<OpcUa id=\"opcua\"/>"
                            "<EtherCatMaster id=\"ethercat\"/>"
                            "</Config>"
                            "<Config id=\"second config\"/>"
                            "</Device>"
                            "<Device id=\"second device\">"
                            "<Config id=\"config of second\">"
                            "<ParameterFiles id=\"params of second\"/>"
                            "<Files id=\"files of second\"/>"
                            "<Plugins id=\"plugins of second\"/>"
                            "<OpcUa id=\"opcua of second\"/>"
                            "<EtherCatMaster id=\"ethercat of second\"/>"
                            "</Config>"
                            "</Device>"
                            "<Group id=\"group\">"
                            "<Device id=\"device of group\"/>"
                            "<Description id=\"description of group\"/>"
                            "</Group>"
                            "</VornDeviceConfig>";

/** A file with the document above. */
class HelperFile : public CDeviceConfigurationFile10
{
public:
    HelperFile() : CDeviceConfigurationFile10(nullptr) { load(Document); }

    QDomElement root() const { return domDocument().documentElement(); }

    QDomElement byId(const QString &id) const { return byId(id, root()); }

    QByteArray bytes()
    {
        QByteArray result;
        QString error;
        return save(result, error) ? result : QByteArray();
    }

    /** A new element with that content, at the end of the root. */
    QDomElement append(const QByteArray &xml)
    {
        QDomDocument fragment;
        fragment.setContent(xml);
        return root()
            .appendChild(domDocument().importNode(fragment.documentElement(), true))
            .toElement();
    }

private:
    static QDomElement byId(const QString &id, const QDomElement &element)
    {
        if (element.attribute(u"id"_s) == id) {
            return element;
        }
        QDomElement found;
        for (QDomElement e = element.firstChildElement(); !e.isNull() && found.isNull();
             e = e.nextSiblingElement()) {
            found = byId(id, e);
        }
        return found;
    }
};

/** An element and what is in it, on one line. */
inline QString text(const QDomElement &element)
{
    QString result;
    QTextStream stream(&result);
    element.save(stream, -1);
    return result.remove(QLatin1Char('\n'));
}

inline CFileElement sampleFile()
{
    return SampleConfiguration::file(u"n"_s, u"c"_s, u"/d/"_s, u"p/"_s);
}

} // namespace HelperFiles
