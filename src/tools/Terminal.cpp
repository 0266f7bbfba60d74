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

QString styled(const QString &text, EStyle style, bool wanted)
{
    if (!wanted) {
        return text;
    }
    const auto code = [style] {
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
    };
    return QStringLiteral("\x1b[%1m%2\x1b[0m").arg(QString::number(code()), text);
}

QString printable(const QString &text)
{
    QString result;
    for (const QChar c : text) {
        if (c == QLatin1Char('\n')) {
            result += QLatin1String("\\n");
        } else if (c.category() == QChar::Other_Control) {
            result += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
        } else {
            result += c;
        }
    }
    return result;
}

} // namespace Terminal
