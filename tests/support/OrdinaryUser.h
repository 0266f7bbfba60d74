#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QStringList>

#include <unistd.h>

/**
 * While it lives, a program that runs as the super-user has the rights of an ordinary one, for whom
 * permissions mean something. A directory and its files that are given become that user's.
 */
class OrdinaryUser
{
public:
    explicit OrdinaryUser(const QString &directory = QString(), const QStringList &fileNames = {})
        : m_isSuperUser(geteuid() == 0)
    {
        if (!m_isSuperUser) {
            return;
        }
        m_ok = directory.isEmpty() || give(directory);
        for (const QString &fileName : fileNames) {
            m_ok = m_ok && give(directory + QLatin1Char('/') + fileName);
        }
        // The real user, too: access() asks for that one. The saved one is the way back.
        m_ok = m_ok && setresuid(Nobody, Nobody, 0) == 0;
    }

    ~OrdinaryUser()
    {
        if (m_isSuperUser && setresuid(0, 0, 0) != 0) {
            qFatal("The rights of the super-user cannot be taken back.");
        }
    }

    bool isOk() const { return m_ok; }
    bool wasSuperUser() const { return m_isSuperUser; }

private:
    Q_DISABLE_COPY(OrdinaryUser)

    static const uid_t Nobody = 65534;

    static bool give(const QString &path)
    {
        return chown(QFile::encodeName(path).constData(), Nobody, static_cast<gid_t>(-1)) == 0;
    }

    const bool m_isSuperUser;
    bool m_ok = true;
};
