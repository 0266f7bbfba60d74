#include "tools/Command.h"
#include "tools/Help.h"
#include "tools/Output.h"

#include <QCoreApplication>

// The manual page in the language of man(7). Everything that it says about commands comes from the
// table of which the help is made, too.

namespace {

/** What roff and those who read it expect of a source line. */
const int LineLength = 80;

/** @p text as roff prints it as it stands: no character means anything, or is another one. */
QString escaped(const QString &text)
{
    QString result;
    for (const uint character : text.toUcs4()) {
        switch (character) {
        case '\\':
            result += QStringLiteral("\\e");
            break;
        case '-':
            result += QStringLiteral("\\-");
            break;
        case '\'':
            result += QStringLiteral("\\(aq");
            break;
        case '"':
            result += QStringLiteral("\\(dq");
            break;
        case '^':
            result += QStringLiteral("\\(ha");
            break;
        case '~':
            result += QStringLiteral("\\(ti");
            break;
        case '`':
            result += QStringLiteral("\\(ga");
            break;
        case '\n':
            result += QLatin1Char(' ');
            break;
        default:
            result += character < 0x80
                ? QString(QChar(character))
                : QStringLiteral("\\[u%1]").arg(QString::number(character, 16).toUpper(), 4,
                                                QLatin1Char('0'));
        }
    }
    return result;
}

QString bold(const QString &text)
{
    return QStringLiteral("\\fB%1\\fR").arg(escaped(text));
}

QString italic(const QString &text)
{
    return QStringLiteral("\\fI%1\\fR").arg(escaped(text));
}

/** Writes requests and lines of text; each text is escaped, but for what bold() and italic() made.
 */
class Page
{
public:
    explicit Page(QTextStream &stream) : m_stream(stream) { }

    void section(const QString &title) { m_stream << ".SH " << escaped(title.toUpper()) << '\n'; }
    void subsection(const QString &title) { m_stream << ".SS " << escaped(title) << '\n'; }
    void nextParagraph() { m_stream << ".PP\n"; }
    void text(const QString &text)
    {
        for (const QString &line : wrapped(escaped(text), LineLength)) {
            printTextLine(line);
        }
    }
    /** @p formatted is roff already. */
    void line(const QString &formatted) { m_stream << formatted << '\n'; }
    /** @p formattedTerm is roff already. */
    void item(const QString &formattedTerm, const QString &explanation)
    {
        m_stream << ".TP\n" << formattedTerm << '\n';
        text(explanation);
    }
    /** Command lines, as they are typed. */
    void example(const QStringList &lines)
    {
        m_stream << ".PP\n.RS\n.nf\n";
        for (const QString &line : lines) {
            printTextLine(escaped(line));
        }
        m_stream << ".fi\n.RE\n";
    }

private:
    /** At the beginning of a line a full stop makes a request of it. */
    void printTextLine(const QString &line)
    {
        m_stream << (line.startsWith(QLatin1Char('.')) ? "\\&" : "") << line << '\n';
    }

    QTextStream &m_stream;
};

QString formatted(const CommandLine::SOption &option)
{
    QStringList names;
    for (const QString &name : option.names) {
        names.append(bold((name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + name));
    }
    QString term = names.join(QStringLiteral(", "));
    if (!option.choices.isEmpty()) {
        QStringList choices;
        for (const QString &choice : option.choices) {
            choices.append(bold(choice));
        }
        term += QLatin1Char(' ') + choices.join(QLatin1Char('|'));
    } else if (!option.valueName.isEmpty()) {
        term += QLatin1Char(' ') + italic(option.valueName);
    }
    return term;
}

QString synopsis(const CommandLine &line)
{
    QString result = bold(QStringLiteral("vrndevice ") + line.name());
    result += QStringLiteral(" [%1]").arg(italic(Texts::tr("options")));
    for (const CommandLine::SArgument &argument : line.describedArguments()) {
        const QString name =
            italic(argument.name) + (argument.isRepeated ? QStringLiteral(" ...") : QString());
        result +=
            QLatin1Char(' ') + (argument.isOptional ? QStringLiteral("[%1]").arg(name) : name);
    }
    return result;
}

void describeCommand(const SCommand &command, Page &page)
{
    const CommandLine line(command);
    page.subsection(line.name());
    page.line(synopsis(line));
    page.nextParagraph();
    page.text(line.summary());
    for (const CommandLine::SArgument &argument : line.describedArguments()) {
        page.item(italic(argument.name), argument.description);
    }
    for (const CommandLine::SOption &option : line.describedOptions()) {
        // Once for all commands is enough.
        if (option.names.last() != QLatin1String("help")) {
            page.item(formatted(option), option.description);
        }
    }
    page.example(line.examples());
}

struct STerm {
    const char *term;
    QString explanation;
};

QList<STerm> environment()
{
    return {
        {"LANGUAGE",
         Texts::tr("The preferred languages of messages, separated by colons; not used in the "
                   "locale C.")},
        {"LC_ALL, LC_MESSAGES, LANG",
         Texts::tr("The locale: the first variable that is set. In a language without a "
                   "catalogue and in the locale C, all texts are English. Numbers and dates are "
                   "the same in every locale.")},
        {"NO_COLOR", Texts::tr("If it is set and not empty, nothing is printed in colour.")},
    };
}

QList<STerm> files()
{
    return {
        {"DeviceConfiguration.3deco",
         Texts::tr("A configuration: the device, its drives and "
                   "plug-ins, and all files that belong to it.")},
        {"settings.3conf", Texts::tr("The names of a device and its drives.")},
        {"network.conf", Texts::tr("The Ethernet settings of a device.")},
        {"os-release", Texts::tr("The product and the versions of a device's operating system.")},
        {"../share/vrnDeviceCore/translations",
         Texts::tr(
             "The catalogues of translated texts, relative to the directory of the program.")},
    };
}

void describe(CommandLine &line)
{
    line.withoutJson();
    line.addExample(QStringLiteral("> vrndevice.1"));
}

void printStart(Page &page)
{
    page.line(QStringLiteral(".TH VRNDEVICE 1 %1 \"vrndevice %2\" \"%3\"")
                  .arg(QStringLiteral(VRN_RELEASE_DATE),
                       escaped(QCoreApplication::applicationVersion()),
                       escaped(Texts::tr("User Commands"))));
    page.section(Texts::tr("Name"));
    page.line(QStringLiteral("vrndevice \\- ")
              + escaped(Texts::tr("configurations of servo drives and motion controllers")));

    page.section(Texts::tr("Synopsis"));
    page.line(QStringLiteral("%1 %2 [%3]")
                  .arg(bold(QStringLiteral("vrndevice")), italic(Texts::tr("command")),
                       italic(Texts::tr("arguments"))));

    page.section(Texts::tr("Description"));
    page.text(purpose());
    page.nextParagraph();
    page.text(Texts::tr("Results go to standard output, diagnostics to standard error. Programs "
                        "should use --json: only the sentences in it depend on the language."));
}

void printOptionsAndCommands(Page &page)
{
    page.section(Texts::tr("Options"));
    for (const CommandLine::SOption &option : optionsOfTool()) {
        page.item(formatted(option), option.description);
    }

    page.section(Texts::tr("Commands"));
    for (const SCommand &command : commands()) {
        describeCommand(command, page);
    }
}

void printSurroundings(Page &page)
{
    page.section(Texts::tr("Exit status"));
    for (const SExitCode &exitCode : exitCodes()) {
        page.item(bold(QString::number(exitCode.code)), exitCode.meaning);
    }

    page.section(Texts::tr("Environment"));
    for (const STerm &variable : environment()) {
        page.item(bold(QString::fromLatin1(variable.term)), variable.explanation);
    }

    page.section(Texts::tr("Files"));
    for (const STerm &file : files()) {
        page.item(italic(QString::fromLatin1(file.term)), file.explanation);
    }
}

void printExamples(Page &page)
{
    page.section(Texts::tr("Examples"));
    page.text(Texts::tr("A new configuration with two drives, and a look at it:"));
    page.example(
        {QStringLiteral("vrndevice new DeviceConfiguration.3deco --class kd3 --name Wrapper"),
         QStringLiteral("vrndevice add-drive DeviceConfiguration.3deco --type KD3_drive"),
         QStringLiteral("vrndevice add-drive DeviceConfiguration.3deco --type KD3_drive"),
         QStringLiteral("vrndevice show DeviceConfiguration.3deco")});
    page.nextParagraph();
    page.text(Texts::tr("A fixed address, and a check of what the device will read:"));
    page.example({QStringLiteral("vrndevice network set network.conf MODE=STATIC "
                                 "ADDRESS=192.168.1.10"),
                  QStringLiteral("vrndevice network check network.conf")});
}

int run(const CommandLine & /*line*/)
{
    Output out;
    Page page(out.exact());
    printStart(page);
    printOptionsAndCommands(page);
    printSurroundings(page);
    printExamples(page);
    page.section(Texts::tr("See also"));
    page.line(QStringLiteral(".BR bash (1),\n.BR os\\-release (5)"));
    return out.finish();
}

const CommandRegistration
    Registration("manual",
                 QT_TRANSLATE_NOOP("vrndevice", "Print the manual page in the format of man(1)."),
                 describe, run);

} // namespace
