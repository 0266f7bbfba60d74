#pragma once

#include "support/Files.h"
#include "support/Tool.h"

#include <QObject>
#include <QProcess>
#include <QScopedPointer>
#include <QString>
#include <QTemporaryDir>
#include <QTest>

/** Files with a configuration, as the commands on items need them. */
namespace ItemCommands {

const QString FileName = QStringLiteral("DeviceConfiguration.3deco");

inline QString toJson(const QString &path, const QString &value)
{
    return path + u'=' + value;
}

/** A directory with the configuration of the example. */
class ItemCommandTest : public QObject
{
protected:
    /** Called before each test. */
    void prepare()
    {
        m_directory.reset(new QTemporaryDir);
        QVERIFY(m_directory->isValid());
        QVERIFY(Tool::copyExample(FileName, m_directory->path()));
        m_example = bytes();
        QVERIFY(!m_example.isEmpty());
    }

    Tool::SResult run(const QStringList &arguments, const QByteArray &input = QByteArray()) const
    {
        QProcess process;
        process.setWorkingDirectory(m_directory->path());
        process.start(Tool::program(), arguments);
        process.write(input);
        process.closeWriteChannel();
        Tool::SResult result;
        if (process.waitForFinished() && process.exitStatus() == QProcess::NormalExit) {
            result.exitCode = process.exitCode();
        }
        result.output = QString::fromUtf8(process.readAllStandardOutput());
        result.errors = QString::fromUtf8(process.readAllStandardError());
        return result;
    }

    QString path(const QString &name = FileName) const { return m_directory->filePath(name); }

    QByteArray bytes() const { return Files::read(path()); }

    QScopedPointer<QTemporaryDir> m_directory;
    QByteArray m_example;
};

} // namespace ItemCommands
