#include "tools/Terminal.h"

#include <QByteArray>

#include <unistd.h>

namespace Terminal {

bool isTerminal(FILE *stream)
{
    return isatty(fileno(stream)) == 1;
}

bool wantsColours(FILE *stream)
{
    const QByteArray terminal = qgetenv("TERM");
    return isTerminal(stream) && qEnvironmentVariableIsEmpty("NO_COLOR") && !terminal.isEmpty()
        && terminal != "dumb";
}

int code(EStyle style)
{
    switch (style) {
    case STYLE_BOLD:
        return 1;
    case STYLE_RED:
        return 31;
    case STYLE_GREEN:
        return 32;
    case STYLE_YELLOW:
        return 33;
    case STYLE_CYAN:
        return 36;
    }
    return 0;
}

} // namespace Terminal
