#pragma once

#include "imported/VrnImportedExport.h"

#include <QString>

/** Helpers for texts. All members are static and may be used from any thread. */
class VRNCORE_EXPORT CStr
{
public:
    CStr() = delete;

    /**
     * The revision number of a version text, for ordering: "1.9" comes before "1.10".
     *
     * A revision is one to three decimal numbers with dots between them; those left out count as
     * 0. The first is at most 4293, the others at most 999. The number is first * 1000000 +
     * second * 1000 + third, so "1.10" gives 1010000.
     *
     * @param ok if not null, set to whether @p text is a revision; signs, spaces, empty parts and
     *           any other text are not
     * @return 0 when it is not one
     */
    static quint32 stringToRevision(const QString &text, bool *ok = nullptr);
};
