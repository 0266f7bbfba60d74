#include "tools/Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QTranslator>

namespace {

/**
 * Loads the catalogue @p name, such as "vrndevice", for @p language, such as "de_AT"; the one for
 * the language alone will do.
 */
bool install(const QString &name, const QString &language)
{
    // The catalogues lie beside the program, wherever both were moved to.
    const QDir programs(QCoreApplication::applicationDirPath());
    auto *const translator = new QTranslator(QCoreApplication::instance());
    return translator->load(QStringLiteral("%1_%2").arg(name, language),
                            programs.filePath(QStringLiteral(VRN_TRANSLATIONS)))
        && QCoreApplication::installTranslator(translator);
}

/** @return whether there is a catalogue, even if it is only that of the tool or of the libraries */
bool install(const QString &language)
{
    const bool hasLibraries = install(QStringLiteral("vrnDeviceCore"), language);
    return install(QStringLiteral("vrndevice"), language) || hasLibraries;
}

} // namespace

void installTranslations()
{
    // In the locale "C" everything is English whatever LANGUAGE contains; Qt's list does not know
    // that.
    if (QLocale::system().language() == QLocale::C) {
        return;
    }
    for (QString language : QLocale::system().uiLanguages()) {
        language.replace(QLatin1Char('-'), QLatin1Char('_'));
        // The texts are English by themselves: what the user likes less must not replace them.
        if (language.section(QLatin1Char('_'), 0, 0) == QLatin1String("en") || install(language)) {
            return;
        }
    }
}
