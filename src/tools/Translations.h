#pragma once

/**
 * Makes the texts of the tool and of the libraries come in the language of the user, as the
 * environment selects it: LANGUAGE, LC_ALL, LC_MESSAGES, LANG. Where no catalogue fits they stay
 * English. To be called once, after the application object was made.
 */
void installTranslations();
