#pragma once

#include "commissioning/CConfigurationOverview.h"
#include "commissioning/CItemFindings.h"
#include "commissioning/report/DeviceDrawing.h"
#include "commissioning/report/HtmlWriter.h"
#include "configfile/ShownItems.h"

/** A text, or a dash where it is empty. */
QString orDash(const QString &text);

/**
 * Writes one page; the functions stand in the order of its sections: those of the page itself in
 * ReportPage.cpp, the others in ReportFindings.cpp, ReportDevice.cpp, ReportFiles.cpp and
 * ReportPlugins.cpp.
 */
class ReportPage
{
public:
    /** @param overview must outlive the page */
    ReportPage(const CConfigurationOverview &overview,
               const QList<SConfigurationFinding> &findings);

    QByteArray write();

private:
    using SFile = CConfigurationOverview::SFile;
    using SDrive = CConfigurationOverview::SDrive;

    /** A row of a table of files; @p item is empty when the row above is of the same entry. */
    struct SRow {
        QString item;
        QString kind;
        CFileElement file;
        QString badge;
        /** Items of the entry that no column shows. */
        QVector<SShownItem> others;
    };

    void writeHead();
    QString title() const;

    void writePageHeader();
    void writeNavigation();
    void writeTile(const QString &label, int number, const char *cssClass);
    void writeTiles();

    void writeFindings();
    void writeSummary();
    void writeSummary(int first, int end);
    void writeFindingsOfWhole();
    QString place(const SConfigurationFinding &finding) const;
    void writeSeverity(const SConfigurationFinding &finding);
    void writeFinding(int index);
    void writeFindings(const QStringList &items);
    bool hasFindings(const QStringList &items) const;

    void writeDrawing();
    DeviceDrawing::EMark mark(const QStringList &items) const;
    DeviceDrawing::SModule module(const SDrive &drive) const;

    void writeDevice();
    void writeDescription();
    void writeDrives();
    void writeDrive(const SDrive &drive);

    void writeFiles();
    void writeSingleFiles();
    QList<SRow> rows(const QList<SFile> &files) const;
    QList<SRow> parameterRows() const;
    QList<SRow> fpgaRows() const;
    void writeGroup(const QString &heading, const QStringList &items, const QList<SRow> &rows,
                    const QString &badge = QString());
    void writeFileTable(const QList<SRow> &rows);
    void writeFileRow(const SRow &row);
    void writeDirectory(const QString &label, const QString &directory);
    void writeFindingsRow(const QString &item, int columns);

    void writePlugins();
    void writePlugin(const CConfigurationOverview::SPlugin &plugin);
    void writeOptions();

    void writeFact(const QString &name, const QString &value, bool isCode = false);
    void writeFact(const SShownItem &item);
    void writeOthers(const QVector<SShownItem> &items);
    void writeComment(const QString &comment);
    void writeHeading(const QString &text, const QString &id);
    void writeColumnHeads(const QStringList &heads);

    const CConfigurationOverview &m_overview;
    const CItemFindings m_findings;
    HtmlWriter m_out;
};
