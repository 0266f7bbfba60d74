#include "elements/StartOptions.h"

#include <algorithm>

namespace {

const QLatin1Char Hyphen('-');
const QLatin1Char Space(' ');

} // namespace

QString StartOptions::SOption::text() const
{
    return words.join(Space);
}

StartOptions::StartOptions(const QString &text, ESeparator separator)
    : m_text(text), m_separator(separator)
{
    int index = skipSeparators(0);
    while (index < text.size()) {
        SOption option;
        option.begin = index;
        int argument = text.size();
        do {
            option.end = wordEnd(index);
            option.words.append(text.mid(index, option.end - index));
            index = skipSeparators(option.end);
            argument = option.words.size() == 1 ? index : argument;
        } while (index < text.size() && text.at(index) != Hyphen);
        option.argument = text.mid(argument, std::max(0, option.end - argument));
        m_options.append(option);
    }
}

QStringList StartOptions::deviceWords(const QString &text)
{
    return text.split(Space, Qt::SkipEmptyParts);
}

QList<StartOptions::SOption> StartOptions::options() const
{
    return m_options;
}

QString StartOptions::with(const QString &option) const
{
    return m_text.isEmpty() ? option : m_text + Space + option;
}

QString StartOptions::replaced(const SOption &option, const QString &name,
                               const QString &argument) const
{
    const QString text = argument.isEmpty() ? name : name + Space + argument;
    return m_text.left(option.begin) + text + m_text.mid(option.end);
}

QString StartOptions::without(const SOption &option) const
{
    // With the separators on one side, so that the others stand as they stood.
    const int next = skipSeparators(option.end);
    if (next < m_text.size()) {
        return m_text.left(option.begin) + m_text.mid(next);
    }
    int before = option.begin;
    while (before > 0 && isSeparator(m_text.at(before - 1))) {
        --before;
    }
    return m_text.left(before);
}

bool StartOptions::isOption(const QString &word)
{
    return word.startsWith(Hyphen);
}

QString StartOptions::opcUa()
{
    return QStringLiteral("-opc");
}

bool StartOptions::isSeparator(QChar c) const
{
    return m_separator == SEPARATOR_SPACE ? c == Space : c.isSpace();
}

int StartOptions::skipSeparators(int index) const
{
    while (index < m_text.size() && isSeparator(m_text.at(index))) {
        ++index;
    }
    return index;
}

int StartOptions::wordEnd(int index) const
{
    while (index < m_text.size() && !isSeparator(m_text.at(index))) {
        ++index;
    }
    return index;
}
