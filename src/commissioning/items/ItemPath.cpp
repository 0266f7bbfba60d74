#include "commissioning/items/ItemPath.h"

#include "commissioning/Texts.h"

namespace {

using ConfigurationItemsTexts::Texts;

const QLatin1Char KeyBegin('[');
const QLatin1Char KeyEnd(']');
const QLatin1Char Escape('\\');
const QLatin1Char Dot('.');

QString escaped(const QString &key)
{
    QString text;
    text.reserve(key.size());
    for (const QChar c : key) {
        if (c == KeyEnd || c == Escape) {
            text += Escape;
        }
        text += c;
    }
    return text;
}

/** Takes a path apart. */
class PathReader
{
public:
    explicit PathReader(const QString &path) : m_path(path) { }

    /** @return false for a text that is no path; errorText() says why */
    bool read(QList<SItemPathStep> &steps)
    {
        steps.clear();
        do {
            SItemPathStep step;
            if (!readStep(step)) {
                return false;
            }
            steps.append(step);
        } while (take(Dot));
        return m_index == m_path.size() || fail(Texts::tr("a '.' is missing"));
    }

    QString errorText() const { return m_errorText; }

private:
    bool readStep(SItemPathStep &step)
    {
        const int begin = m_index;
        while (m_index < m_path.size() && isWordUnit(m_path.at(m_index))) {
            ++m_index;
        }
        step.word = m_path.mid(begin, m_index - begin);
        if (step.word.isEmpty()) {
            return fail(Texts::tr("a word is missing"));
        }
        if (!take(KeyBegin)) {
            return true;
        }
        step.hasKey = true;
        return readKey(step.key) && (!take(KeyBegin) || readOccurrence(step.occurrence));
    }

    bool readKey(QString &key)
    {
        while (!take(KeyEnd)) {
            if (m_index == m_path.size()) {
                return fail(Texts::tr("a ']' is missing"));
            }
            if (take(Escape)
                && (m_index == m_path.size()
                    || (m_path.at(m_index) != KeyEnd && m_path.at(m_index) != Escape))) {
                return fail(Texts::tr("only ']' and '\\' can follow a '\\'"));
            }
            key += m_path.at(m_index);
            ++m_index;
        }
        return true;
    }

    bool readOccurrence(int &occurrence)
    {
        const int end = m_path.indexOf(KeyEnd, m_index);
        if (end < 0) {
            return fail(Texts::tr("a ']' is missing"));
        }
        const QString text = m_path.mid(m_index, end - m_index);
        bool isNumber = false;
        occurrence = text.toInt(&isNumber);
        if (!isNumber || occurrence < 2 || QString::number(occurrence) != text) {
            return fail(Texts::tr("after a key, brackets can only contain a number from 2 on"));
        }
        m_index = end + 1;
        return true;
    }

    static bool isWordUnit(QChar c) { return c != Dot && c != KeyBegin && c != KeyEnd; }

    bool take(QChar c)
    {
        if (m_index < m_path.size() && m_path.at(m_index) == c) {
            ++m_index;
            return true;
        }
        return false;
    }

    bool fail(const QString &reason)
    {
        m_errorText = Texts::tr("'%1' is not a valid path: %2 at character %3")
                          .arg(m_path, reason, QString::number(m_index + 1));
        return false;
    }

    const QString m_path;
    int m_index = 0;
    QString m_errorText;
};

} // namespace

QString SItemPathStep::text() const
{
    QString text = word;
    if (hasKey) {
        text += KeyBegin + escaped(key) + KeyEnd;
    }
    if (occurrence > 1) {
        text += KeyBegin + QString::number(occurrence) + KeyEnd;
    }
    return text;
}

bool ItemPath::parse(const QString &path, QList<SItemPathStep> &steps, QString &errorText)
{
    PathReader reader(path);
    const bool isPath = reader.read(steps);
    errorText = reader.errorText();
    return isPath;
}

QString ItemPath::joined(const QString &outer, const QString &inner)
{
    if (outer.isEmpty() || inner.isEmpty()) {
        return outer + inner;
    }
    return outer + Dot + inner;
}
