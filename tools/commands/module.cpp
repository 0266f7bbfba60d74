#include "devicefiles/COptionModuleFileName.h"
#include "tools/Command.h"
#include "tools/Output.h"

#include <QJsonArray>

namespace {

/** One part of a name: what it is called, what it looks like, and who knows whether it is one. */
struct SPart {
    QString title;
    QString form;
    bool (COptionModuleFileName::*set)(const QString &);
};

QList<SPart> parts()
{
    using Name = COptionModuleFileName;
    return {
        {QStringLiteral("slot"), QStringLiteral("OM and a number, such as OM1"), &Name::setSlot},
        {QStringLiteral("interface"), QStringLiteral("two letters or more, such as EC"),
         &Name::setInterface},
        {QStringLiteral("hardware version"), QStringLiteral("H and a number, such as H2"),
         &Name::setHardwareVersion},
        {QStringLiteral("software version"), QStringLiteral("V and two numbers, such as V1_3"),
         &Name::setSoftwareVersion},
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
            return QStringLiteral("The %1 is missing: %2.").arg(part.title, part.form);
        }
        if (!(name.*part.set)(text)) {
            return QStringLiteral("'%1' is no %2: %3.").arg(text, part.title, part.form);
        }
        ++index;
    }
    if (dot < 0 || dot == fileName.size() - 1) {
        return QStringLiteral("The suffix is missing, such as .%1.")
            .arg(COptionModuleFileName::standardSuffix());
    }
    return QStringLiteral(
        "Behind the versions there may be '_' and a text, and then '.' and a suffix, both of "
        "letters, digits and '_'.");
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
                      QStringLiteral("File name of option-module firmware, also with directories; "
                                     "the file need not be there."));
    line.addExample(QStringLiteral("OM1_EC_H2_V1_3.bin"));
}

int run(const CommandLine &line)
{
    QJsonArray array;
    QList<QStringList> rows = {{QStringLiteral("FILE"), QStringLiteral("SLOT"),
                                QStringLiteral("INTERFACE"), QStringLiteral("HARDWARE"),
                                QStringLiteral("SOFTWARE"), QStringLiteral("TEXT")}};
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

const CommandRegistration Registration(
    "module",
    QT_TRANSLATE_NOOP("vrndevice", "Tell what a firmware file for an option module is for."),
    describe, run);

} // namespace
