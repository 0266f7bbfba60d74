#include "fuzz/RunTarget.h"

#include "fuzz/Targets.h"

#include <cstring>

void Fuzz::runTarget(const char *name, const QByteArray &bytes)
{
    static const STarget *const target = [name] {
        silenceMessageBoard();
        return std::find_if(std::begin(Targets), std::end(Targets), [name](const STarget &row) {
            return std::strcmp(row.name, name) == 0;
        });
    }();
    FUZZ_CHECK(target != std::end(Targets));
    target->run(bytes);
}
