#include "devicefiles/CDeviceSystemMessage.h"
#include "tools/Command.h"
#include "tools/Output.h"

#include <QJsonArray>

namespace {

/** The number that @p text is, in decimal, or in hexadecimal behind "0x". */
int toCode(const QString &text, bool &isCode)
{
    const bool isHexadecimal = text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive);
    return text.toInt(&isCode, isHexadecimal ? 16 : 10);
}

void print(int code, const QString &message, const QString &description, PrintedText &out)
{
    out << code << " (0x" << QString::number(code, 16) << "): " << message << '\n';
    for (const QString &line : description.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        out << "  " << line << '\n';
    }
}

void describe(CommandLine &line)
{
    line.addArguments(QStringLiteral("CODE"),
                      Texts::tr("Code of a system message, 1024 to 1151 (0x400 to 0x47f)."));
    line.addExample(QStringLiteral("1098 0x400"));
}

int run(const CommandLine &line)
{
    QList<int> codes;
    for (const QString &text : line.arguments(0)) {
        bool isCode = false;
        codes.append(toCode(text, isCode));
        if (!isCode) {
            return line.badUsage(Texts::tr("'%1' is not a valid code.").arg(text));
        }
    }
    Output out;
    QJsonArray array;
    QStringList errors;
    for (const int code : codes) {
        if (!CDeviceSystemMessage::isSystemMessage(code)) {
            errors.append(
                Texts::tr(
                    "%1 is not the code of a system message; write a number from 1024 to 1151.")
                    .arg(code));
            continue;
        }
        QString message;
        QString description;
        CDeviceSystemMessage::text(message, description, code);
        array.append(QJsonObject{{QStringLiteral("code"), code},
                                 {QStringLiteral("message"), message},
                                 {QStringLiteral("description"), description}});
        if (!line.wantsJson()) {
            print(code, message, description, out.text());
        }
    }
    if (line.wantsJson()) {
        out.print({{QStringLiteral("messages"), array}});
    }
    const int exitCode = out.finish();
    for (const QString &error : errors) {
        printError(error);
    }
    return errors.isEmpty() ? exitCode : EXIT_NOT_DONE;
}

const CommandRegistration
    Registration("message",
                 QT_TRANSLATE_NOOP("vrndevice", "Show the meaning of system messages of a device."),
                 describe, run);

} // namespace
