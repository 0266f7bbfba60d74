#pragma once

#include <QtGlobal>

/** A place in a document; both numbers count from 1, in characters, and are 0 when unknown. */
struct SXmlPosition {
    qint64 line = 0;
    qint64 column = 0;

    bool isKnown() const { return line > 0; }
};
