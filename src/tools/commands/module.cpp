#include "devicefiles/COptionModuleFileName.h"
#include "tools/Command.h"
#include "tools/Output.h"

#include <QJsonArray>

namespace {

/** One part of a name: how to check a text, and the message for an invalid one. */
struct SPart {
    bool (COptionModuleFileName::*set)(const QString &);
    QString missing;
    /** With a place for the text. */
    QString wrong;
};

QList<SPart> parts()
{
    using Name = COptionModuleFileName;
    return {
        {&Name::setSlot, Texts::tr("The slot is missing; write OM and a number, such as OM1."),
         Texts::tr("'%1' is not a valid slot; write OM and a number, such as OM1.")},
        {&Name::setInterface,
         Texts::tr("The interface is missing; write two letters or more, such as EC."),
         Texts::tr("'%1' is not a valid interface; write two letters or more, such as EC.")},
        {&Name::setHardwareVersion,
         Texts::tr("The hardware version is missing; write H and a number, such as H2."),
         Texts::tr("'%1' is not a valid hardware version; write H and a number, such as H2.")},
        {&Name::setSoftwareVersion,
         Texts::tr("The software version is missing; write V and two numbers, such as V1_3."),
         Texts::tr("'%1' is not a valid software version; write V and two numbers, such as V1_3.")},
    };
}

/** Why @p path is not valid: the first part that is missing or wrong. */
QString reasonAgainst(const QString &path)
{
    const QString fileName = path.section(QLatin1Char('/'), -1);
    const int dot = fileName.lastIndexOf(QLatin1Char('.'));
    QStringList given = fileName.left(dot).split(QLatin1Char('_'));
    if (given.size() > 4) {
        const QString minor = given.takeAt(4);
        given[3] += QLatin1Char('_') + minor;
    }
    COptionModuleFileName name;
    int index = 0;
    for (const SPart &part : parts()) {
        const QString text = given.value(index);
        if (text.isEmpty()) {
            return part.missing;
        }
        if (!(name.*part.set)(text)) {
            return part.wrong.arg(text);
        }
        ++index;
    }
    if (dot < 0 || dot == fileName.size() - 1) {
        return Texts::tr("The suffix is missing, such as .%1.")
            .arg(COptionModuleFileName::standardSuffix());
    }
    return Texts::tr("After the versions only '_' and a text may follow, then '.' and a suffix; "
                     "text and suffix consist of letters, digits and '_'.");
}

QJsonObject toJson(const COptionModuleFileName &name)
{
    return {{QStringLiteral("slot"), name.slot()},
            {QStringLiteral("slotDescription"), name.slotDescription()},
            {QStringLiteral("interface"), name.interface()},
            {QStringLiteral("interfaceDescription"), name.interfaceDescription()},
            {QStringLiteral("hardwareVersion"), name.hardwareVersion()},
            {QStringLiteral("softwareVersion"), name.softwareVersion()},
            {QStringLiteral("text"), name.text()},
            {QStringLiteral("suffix"), name.suffix()}};
}

QStringList toRow(const COptionModuleFileName &name)
{
    return {name.fileName(),
            QStringLiteral("%1, %2").arg(name.slot(), name.slotDescription()),
            QStringLiteral("%1, %2").arg(name.interface(), name.interfaceDescription()),
            name.hardwareVersion(),
            name.softwareVersion(),
            name.text()};
}

void describe(CommandLine &line)
{
    line.addArguments(QStringLiteral("NAME"),
                      Texts::tr("File name of option-module firmware, with or without directories; "
                                "the file does not have to exist."));
    line.setFileNames({QStringLiteral("OM*")});
    line.addExample(QStringLiteral("OM1_EC_H2_V1_3.bin"));
}

int run(const CommandLine &line)
{
    QJsonArray array;
    QList<QStringList> rows = {{Texts::tr("FILE"), Texts::tr("SLOT"), Texts::tr("INTERFACE"),
                                Texts::tr("HARDWARE"), Texts::tr("SOFTWARE"), Texts::tr("TEXT")}};
    QStringList errors;
    for (const QString &path : line.arguments(0)) {
        const COptionModuleFileName name(path);
        const bool isValid = !name.isEmpty();
        QJsonObject object = {{QStringLiteral("name"), path}, {QStringLiteral("valid"), isValid}};
        if (isValid) {
            rows.append(toRow(name));
            object.insert(QStringLiteral("parts"), toJson(name));
        } else {
            const QString reason = reasonAgainst(path);
            errors.append(QStringLiteral("%1: %2").arg(path, reason));
            object.insert(QStringLiteral("reason"), reason);
        }
        array.append(object);
    }
    Output out;
    if (line.wantsJson()) {
        out.print({{QStringLiteral("modules"), array}});
    } else if (rows.size() > 1) {
        out.printColumns(rows);
    }
    const int exitCode = out.finish();
    for (const QString &error : errors) {
        printError(error);
    }
    return errors.isEmpty() ? exitCode : EXIT_NOT_DONE;
}

const CommandRegistration
    Registration("module",
                 QT_TRANSLATE_NOOP("vrndevice", "Show which option module a firmware file is for."),
                 describe, run);

} // namespace
