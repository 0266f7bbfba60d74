#include "commissioning/check/StructureCheck.h"

#include "commissioning/Texts.h"

#include <algorithm>

using namespace ConfigurationRules;
using namespace DocumentStructure;
using namespace FaultTexts;

namespace {

using ConfigurationCheckTexts::Texts;

/** Names that belong to XML itself: name spaces, and where a schema is found. */
bool isOfXml(const QString &attribute)
{
    return attribute.startsWith(QLatin1String("xml"), Qt::CaseInsensitive)
        || attribute.startsWith(QLatin1String("xsi:"));
}

/** The text that @p node has in an element that is to have none; empty for white space. */
QString strayText(const QDomNode &node)
{
    return node.isText() || node.isCDATASection() ? node.nodeValue().trimmed() : QString();
}

} // namespace

void StructureCheck::check(const Fields &fields, const QString &item)
{
    const SElement &type = fields.type();
    checkAttributes(fields, item);
    QString stray;
    for (QDomNode node = fields.parent().firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (node.isElement()) {
            checkChild(node.toElement(), fields, item);
        } else if (!type.hasText && stray.isEmpty()) {
            stray = strayText(node);
        }
    }
    if (!stray.isEmpty()) {
        m_findings.report(
            TEXT_UNEXPECTED, {fields.parent(), item},
            {Texts::tr("'%1' contains text, which is ignored.").arg(type.tag), stray,
             Texts::tr("only elements"),
             Texts::tr("Remove the text, or move it into the element for which it is meant.")});
    }
}

void StructureCheck::checkAttributes(const Fields &fields, const QString &item)
{
    const SElement &type = fields.type();
    const QDomNamedNodeMap attributes = fields.parent().attributes();
    for (int i = 0; i < attributes.size(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        if (type.attributes.contains(attribute.name()) || isOfXml(attribute.name())) {
            continue;
        }
        const QString wanted = meant(attribute.name(), type.attributes);
        m_findings.report(
            ATTRIBUTE_UNKNOWN, {fields.parent(), item},
            {Texts::tr("Unknown attribute '%2' of the element '%1'; it is ignored.")
                 .arg(type.tag, attribute.name()),
             QStringLiteral("%1=\"%2\"").arg(attribute.name(), attribute.value()),
             inWords(type.attributes),
             wanted.isEmpty() ? Texts::tr("Remove the attribute.") : caseHint(wanted)});
    }
}

void StructureCheck::checkChild(const QDomElement &child, const Fields &fields, const QString &item)
{
    const SElement &type = fields.type();
    const QString tag = child.tagName();
    const int index = fields.indexOf(tag);
    if (index < 0) {
        reportStray(child, type, item);
    } else if (!type.children.at(index).isRepeated && child != fields.element(tag)) {
        m_findings.report(
            ELEMENT_REPEATED, {child, item},
            {Texts::tr("'%1' occurs more than once in '%2'; only the first one is read.")
                 .arg(tag, type.tag),
             tag, Texts::tr("one '%1'").arg(tag), Texts::tr("Remove all but one.")});
    }
}

void StructureCheck::reportStray(const QDomElement &child, const SElement &parent,
                                 const QString &item)
{
    const QString tag = child.tagName();
    const QStringList places = parents(tag);
    if (!places.isEmpty() || tag == root().tag) {
        m_findings.report(
            ELEMENT_MISPLACED, {child, item},
            {Texts::tr("'%1' does not belong in '%2'; it is ignored.").arg(tag, parent.tag), tag,
             places.isEmpty() ? Texts::tr("at the top of the document")
                              : Texts::tr("in %1").arg(inWords(places)),
             Texts::tr("Move the element to where it belongs, or remove it.")});
        return;
    }
    QStringList allowed;
    for (const SChild &candidate : parent.children) {
        allowed.append(candidate.element->tag);
    }
    const QString known = similar(tag);
    m_findings.report(ELEMENT_UNKNOWN, {child, item},
                      {Texts::tr("Unknown element '%1'; it is ignored.").arg(shown(tag)), tag,
                       allowed.isEmpty() ? Texts::tr("only text") : inWords(allowed),
                       known.isEmpty() ? Texts::tr("Remove the element, or correct its name.")
                                       : caseHint(known)});
}
