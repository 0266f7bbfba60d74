#pragma once

#include <QtGlobal>

/** What has to hold whatever the bytes are. Ends the program when it does not, with a message. */
#define FUZZ_CHECK(condition) \
    ((condition) ? static_cast<void>(0) \
                 : qFatal("%s:%d: does not hold: %s", __FILE__, __LINE__, #condition))
