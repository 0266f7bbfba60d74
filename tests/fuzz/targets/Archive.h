#pragma once

#include "commissioning/CStagedTree.h"
#include "fuzz/Check.h"
#include "fuzz/MemoryFile.h"

namespace Fuzz {

/** An archive is compared to its end, or something is told. */
inline void fuzzArchive(const QByteArray &bytes)
{
    const MemoryFile file(bytes);
    FUZZ_CHECK(file.isOk());
    CStagedTree tree;
    FUZZ_CHECK(tree.verify(file.name()));
    FUZZ_CHECK(tree.errorText().isEmpty());
    for (const CStagedTree::SDifference &difference : tree.differences()) {
        FUZZ_CHECK(!difference.message.isEmpty());
    }
    // Without a manifest nothing can be as it should.
    FUZZ_CHECK(!tree.differences().isEmpty() || bytes.startsWith("\x1F\x8B"));
}

} // namespace Fuzz
