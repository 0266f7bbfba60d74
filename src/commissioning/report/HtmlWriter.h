#pragma once

#include <QPair>
#include <QString>
#include <QStringList>

#include <initializer_list>

/**
 * Writes HTML that is XML, too: every element that is opened is closed, and every text is escaped.
 * What neither can carry is shown by a sign that stands for it.
 */
class HtmlWriter
{
public:
    /** One whose value is null is left out. */
    using Attributes = std::initializer_list<QPair<const char *, QString>>;

    /** An element that is open as long as the object lives. Tags and attribute names are ASCII. */
    class Element
    {
    public:
        Element(HtmlWriter &writer, const char *tag, Attributes attributes = {});
        ~Element();

    private:
        Q_DISABLE_COPY(Element)

        HtmlWriter &m_writer;
        const QLatin1String m_tag;
    };

    /** Text of one line: line breaks are shown by a sign. */
    void text(const QString &text);
    /** Text whose line breaks and tabs are kept. */
    void lines(const QString &text);
    /** A path, which may be wrapped behind each separator. */
    void path(const QString &path);
    /** An element with a text of one line. */
    void element(const char *tag, const QString &content, Attributes attributes = {});
    /** An element that has no content. */
    void empty(const char *tagName, Attributes attributes = {});
    /** What stands in the page as it is. */
    void raw(const QString &html) { m_html += html; }
    void lineBreak() { m_html += QLatin1Char('\n'); }

    QString html() const { return m_html; }

private:
    void tag(const char *name, Attributes attributes, const char *end);

    QString m_html;
};
