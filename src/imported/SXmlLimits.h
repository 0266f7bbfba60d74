#pragma once

#include <QtGlobal>

/**
 * How much a document may ask for: one that asks for more is refused while it is read, so that a
 * broken or hostile file costs neither the process nor the machine. The defaults take the document
 * of a device with 100,000 files, of some 25 million bytes, several times over.
 */
struct SXmlLimits {
    /** Bytes of the file or buffer. */
    qint64 fileSize = Q_INT64_C(128) * 1024 * 1024;
    /**
     * Elements inside each other, the root included; MaximumDepth at most, whatever is set. The
     * document tree is copied and destroyed recursively, and so needs stack for each level.
     */
    int depth = 256;
    /** Attributes of one element. */
    int attributes = 256;
    /**
     * Elements, attributes, texts, comments, CDATA sections and processing instructions together:
     * each takes some hundred bytes of memory, however short it is in the file.
     */
    int nodes = 5 * 1000 * 1000;
    /** UTF-16 units of the name of an element, attribute or processing instruction. */
    int nameLength = 1024;

    static constexpr int MaximumDepth = 1000;
};
