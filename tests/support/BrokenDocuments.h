#pragma once

#include "support/Files.h"
#include "support/Places.h"

#include <QHash>
#include <QTemporaryDir>

/**
 * The documents with faults of tests/data/check: the files in invalid/, and those that broken.txt
 * describes as changes of valid/complete.3deco.
 */
namespace BrokenDocuments {

/** One document while broken.txt is read: each change is made as soon as it is complete. */
class Maker
{
public:
    explicit Maker(const QByteArray &complete) : m_complete(complete) { }

    /** @return what is wrong with the table */
    QStringList make(const QList<QByteArray> &lines)
    {
        for (const QByteArray &line : lines) {
            if (line.startsWith('[') && line.endsWith(']')) {
                end();
                m_name = QString::fromUtf8(line.mid(1, line.size() - 2));
                m_content = m_complete;
            } else if (line == "...") {
                change();
            } else if (line.startsWith('-') || line.startsWith('+') || line.startsWith(' ')) {
                m_before += line.startsWith('+') ? QByteArray() : line.mid(1) + '\n';
                m_after += line.startsWith('-') ? QByteArray() : line.mid(1) + '\n';
            } else if (!line.isEmpty() && !line.startsWith('#')) {
                m_problems << QStringLiteral("broken.txt has the line ") + QString::fromUtf8(line);
            }
        }
        end();
        return m_problems;
    }

    QHash<QString, QByteArray> documents() const { return m_documents; }

private:
    void end()
    {
        if (m_name.isEmpty()) {
            return;
        }
        change();
        if (m_documents.contains(m_name)) {
            m_problems << m_name + QStringLiteral(": broken.txt has the name twice");
        }
        m_documents.insert(m_name, m_content);
    }

    void change()
    {
        // Whole lines only; the first one of a document never changes.
        const QByteArray found = '\n' + m_before;
        const int matches = m_before.isEmpty() ? 0 : m_content.count(found);
        if (matches != 1 || m_before == m_after) {
            m_problems << QStringLiteral("%1: the document has these lines %2 times: %3")
                              .arg(m_name, QString::number(matches), QString::fromUtf8(m_before));
        }
        m_content.replace(found, '\n' + m_after);
        m_before.clear();
        m_after.clear();
    }

    const QByteArray m_complete;
    QString m_name;
    QByteArray m_content;
    QByteArray m_before;
    QByteArray m_after;
    QHash<QString, QByteArray> m_documents;
    QStringList m_problems;
};

struct SMade {
    SMade()
    {
        const QString data = Places::data("check/");
        Maker maker(Files::read(data + QStringLiteral("valid/complete.3deco")));
        problems = maker.make(Files::read(data + QStringLiteral("broken.txt")).split('\n'));
        QHash<QString, QByteArray> documents = maker.documents();
        const QString invalid = data + QStringLiteral("invalid/");
        for (const QString &file : Files::names(invalid)) {
            const QString name = file.section(QLatin1Char('.'), 0, 0);
            if (documents.contains(name)) {
                problems << name + QStringLiteral(": broken.txt and invalid/ both have it");
            }
            documents.insert(name, Files::read(invalid + file));
        }
        for (auto it = documents.cbegin(); it != documents.cend(); ++it) {
            const QString path = directory.filePath(it.key() + QStringLiteral(".3deco"));
            if (it.value().isEmpty() || !Files::write(path, it.value())) {
                problems << path + QStringLiteral(" cannot be written");
            }
        }
    }

    const QTemporaryDir directory;
    QStringList problems;
};

/** Made at the first call, removed when the program ends. */
inline const SMade &made()
{
    static const SMade documents;
    return documents;
}

/** What is wrong with broken.txt; a test must find nothing here. */
inline QStringList problems()
{
    return made().problems;
}

/** A directory that holds each of the documents as NAME.3deco, and nothing else. */
inline QString directory()
{
    return made().directory.path();
}

inline QString path(const QString &name)
{
    return made().directory.filePath(name + QStringLiteral(".3deco"));
}

} // namespace BrokenDocuments
