#pragma once

#include "imported/SXmlPosition.h"

#include <QString>

/** One thing that is wrong with a configuration, or may be. */
struct SConfigurationFinding {
    enum ESeverity {
        /** The device or a tool would not do what is meant. */
        ERROR,
        /** It works, but is probably not intended. */
        WARNING
    };

    /** Stable name of the rule, lower-case words joined by hyphens: "drive-number-twice". */
    QString rule;
    ESeverity severity = ERROR;
    /** The item that it concerns, as CConfigurationItems names it; empty for the whole document. */
    QString item;
    /** Where it stands in the document; unknown for what is not in it. */
    SXmlPosition position;
    /** One sentence for the user. */
    QString message;
    /** What stands there; may be empty. */
    QString found;
    /** What should stand there, in words; may be empty. */
    QString expected;
    /** How to correct it, in a sentence or two. */
    QString hint;
};
