#pragma once

#include "commissioning/CConfigurationOverview.h"
#include "commissioning/CConfigurationReport.h"
#include "commissioning/SConfigurationFinding.h"
#include "configfile/CDeviceConfigurationFile10.h"
#include "elements/CDeviceElement.h"
#include "support/LargeConfiguration.h"
#include "support/Literals.h"
#include "support/SampleConfiguration.h"

#include <QByteArray>
#include <QDomDocument>
#include <QDomElement>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

/** The page of a report, as its reader finds his way in it. */
namespace ReportPages {

inline SConfigurationFinding
finding(const QString &item,
        SConfigurationFinding::ESeverity severity = SConfigurationFinding::ERROR)
{
    SConfigurationFinding result;
    result.rule = u"some-rule"_s;
    result.severity = severity;
    result.item = item;
    result.position.line = 12;
    result.position.column = 34;
    result.message = u"What is wrong with '%1'."_s.arg(item);
    result.found = u"found <this>"_s;
    result.expected = u"expected & that"_s;
    result.hint = u"Do \"it\" again."_s;
    return result;
}

/** A page, as XML. */
class Page
{
public:
    Page(const CDeviceConfigurationFile10 &file, const QList<SConfigurationFinding> &findings = {})
    {
        const CConfigurationOverview overview(file);
        m_html = CConfigurationReport(overview, findings).toHtml();
        QString error;
        if (!m_document.setContent(m_html, &error)) {
            qWarning("%s", qPrintable(error));
        }
    }

    QByteArray html() const { return m_html; }
    QDomElement root() const { return m_document.documentElement(); }
    bool isWellFormed() const { return root().tagName() == u"html"_s; }

    using Visit = std::function<void(const QDomElement &)>;

    void visit(const Visit &visit) const { visitBelow(root(), visit); }

    static void visitBelow(const QDomElement &element, const Visit &visit)
    {
        visit(element);
        for (QDomElement child = element.firstChildElement(); !child.isNull();
             child = child.nextSiblingElement()) {
            visitBelow(child, visit);
        }
    }

    static QList<QDomElement> all(const QDomElement &element, const QString &tag,
                                  const QString &cssClass = QString())
    {
        QList<QDomElement> result;
        visitBelow(element, [&](const QDomElement &candidate) {
            const QStringList classes = candidate.attribute(u"class"_s).split(QLatin1Char(' '));
            if (candidate.tagName() == tag && (cssClass.isEmpty() || classes.contains(cssClass))) {
                result.append(candidate);
            }
        });
        return result;
    }

    QList<QDomElement> all(const QString &tag, const QString &cssClass = QString()) const
    {
        return all(root(), tag, cssClass);
    }

    QDomElement byId(const QString &id) const
    {
        QDomElement result;
        visit([&](const QDomElement &candidate) {
            if (candidate.attribute(u"id"_s) == id) {
                result = candidate;
            }
        });
        return result;
    }

    /** The rows in which a file of that name stands. */
    QList<QDomElement> rows(const QString &fileName) const
    {
        QList<QDomElement> result;
        for (const QDomElement &row : all(u"tr"_s)) {
            const QList<QDomElement> names = all(row, u"bdi"_s, u"file"_s);
            if (!names.isEmpty() && names.first().text() == fileName) {
                result.append(row);
            }
        }
        return result;
    }

private:
    QByteArray m_html;
    QDomDocument m_document;
};

inline bool isInside(QDomElement element, const std::function<bool(const QDomElement &)> &matches)
{
    for (; !element.isNull(); element = element.parentNode().toElement()) {
        if (matches(element)) {
            return true;
        }
    }
    return false;
}

/** The heading of the card or section in which @p element stands. */
inline QString headingAbove(QDomElement element)
{
    for (; !element.isNull(); element = element.parentNode().toElement()) {
        for (const char *tag : {"h3", "h2"}) {
            const QDomElement heading = element.firstChildElement(QString::fromLatin1(tag));
            if (!heading.isNull()) {
                return heading.text();
            }
        }
    }
    return QString();
}

/** The first row that stands above the row in which @p element stands and shows an entry. */
inline QString rowAbove(QDomElement element)
{
    while (!element.isNull() && element.tagName() != u"tr"_s) {
        element = element.parentNode().toElement();
    }
    return Page::all(element.previousSiblingElement(), u"bdi"_s, u"file"_s).value(0).text();
}

inline double number(const QDomElement &element, const char *attribute)
{
    return element.attribute(QString::fromLatin1(attribute)).toDouble();
}

inline bool setDevice(CDeviceConfigurationFile10 &file, const CDeviceElement &device)
{
    return file.createNewDocument() && file.setConfiguration(device);
}

inline bool setSample(CDeviceConfigurationFile10 &file)
{
    return setDevice(file, SampleConfiguration::device())
        && file.setDescription(SampleConfiguration::description());
}

} // namespace ReportPages
