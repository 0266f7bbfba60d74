#pragma once

#include "commissioning/check/Fields.h"
#include "commissioning/check/Findings.h"

/** Checks that an element has no attributes, texts and children but those that are read. */
class StructureCheck
{
public:
    explicit StructureCheck(Findings &findings) : m_findings(findings) { }

    void check(const Fields &fields, const QString &item);

private:
    void checkAttributes(const Fields &fields, const QString &item);
    void checkChild(const QDomElement &child, const Fields &fields, const QString &item);
    void reportStray(const QDomElement &child, const DocumentStructure::SElement &parent,
                     const QString &item);

    Findings &m_findings;
};
