#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/**
 * The start options of a device in their one text, taken apart without losing how they stand there:
 * each begins at the first word or at one with a "-" in front, and reaches to the next.
 */
class StartOptions
{
public:
    /** What stands between two words. */
    enum ESeparator {
        /** Spaces alone, as on the device: there a tab or a line break is part of a word. */
        SEPARATOR_SPACE,
        /** All white space, as people write. */
        SEPARATOR_WHITE_SPACE
    };

    struct SOption {
        /** Name and argument; never empty. */
        QStringList words;
        /** What follows the name, as it stands in the text. */
        QString argument;
        /** The name begins here, and all that belongs to the option ends there. */
        int begin = 0;
        int end = 0;

        QString name() const { return words.constFirst(); }
        /** Name and argument, with one space between each two words. */
        QString text() const;
    };

    StartOptions(const QString &text, ESeparator separator);

    /** The words of @p text as the device takes them. */
    static QStringList deviceWords(const QString &text);

    QList<SOption> options() const;

    /** The text with @p option behind the others. */
    QString with(const QString &option) const;
    /** The text with @p name and @p argument in the place of @p option. */
    QString replaced(const SOption &option, const QString &name, const QString &argument) const;
    /** The text without @p option and the separators on one side of it. */
    QString without(const SOption &option) const;

    /** Whether @p word begins like an option; what does not is the argument of the one before. */
    static bool isOption(const QString &word);
    /** The option that enables the OPC UA server. */
    static QString opcUa();

private:
    bool isSeparator(QChar c) const;
    int skipSeparators(int index) const;
    int wordEnd(int index) const;

    const QString m_text;
    const ESeparator m_separator;
    QList<SOption> m_options;
};
