#pragma once

#include "elements/CFileElement.h"

#include <QList>
#include <QPair>
#include <QSet>

/**
 * Collects files in the order in which they come: those without a name are left out, and so is a
 * file that is already there, which is one of the same name in the same two directories.
 */
class FileCollector
{
public:
    void add(const CFileElement &file)
    {
        if (file.fileName().isEmpty()) {
            return;
        }
        const Place place(file.deviceFilePath(), file.projectFilePath());
        if (!m_places.contains(place)) {
            m_places.insert(place);
            m_files.append(file);
        }
    }

    void add(const QList<CFileElement> &files)
    {
        for (const CFileElement &file : files) {
            add(file);
        }
    }

    QList<CFileElement> files() const { return m_files; }

private:
    using Place = QPair<QString, QString>;

    QList<CFileElement> m_files;
    QSet<Place> m_places;
};
