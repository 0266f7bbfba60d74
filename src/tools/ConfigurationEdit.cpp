#include "tools/ConfigurationEdit.h"

#include "tools/Input.h"

int editConfiguration(const CommandLine &line,
                      const std::function<bool(CConfigurationItems &)> &change,
                      const std::function<void(PrintedText &)> &report,
                      const std::function<QJsonObject()> &reportJson)
{
    const QString path = line.argument(0);
    if (isStandardStream(path) && line.wantsJson()) {
        return line.badUsage(
            Texts::tr("--json cannot be combined with the document on standard output."));
    }
    CDeviceConfigurationFile10 file(nullptr);
    if (!openConfiguration(path, file, EAccess::CHANGE)) {
        return EXIT_UNREADABLE_INPUT;
    }
    CConfigurationItems items(file);
    if (!change(items)) {
        return reportFailure(path, items);
    }
    const int saved = saveConfiguration(path, file);
    if (saved != EXIT_DONE || isStandardStream(path)) {
        return saved;
    }
    Output out;
    if (line.wantsJson()) {
        out.print(reportJson());
    } else {
        report(out.text());
    }
    return out.finish();
}

bool setItems(CConfigurationItems &items, const QStringList &pairs,
              QList<CConfigurationItems::SItem> &done)
{
    for (int i = 0; i + 1 < pairs.size(); i += 2) {
        CConfigurationItems::SItem item = {pairs.at(i), pairs.at(i + 1)};
        if (!items.setValue(item.path, item.value)) {
            return false;
        }
        // An entry that has been renamed is not found under its old path.
        items.value(item.path, item.value);
        done.append(item);
    }
    return true;
}

int reportFailure(const QString &path, const CConfigurationItems &items)
{
    printError(QStringLiteral("%1: %2").arg(shownName(path), items.errorText()));
    return EXIT_NOT_DONE;
}

void print(const QList<CConfigurationItems::SItem> &items, PrintedText &stream)
{
    for (const CConfigurationItems::SItem &item : items) {
        const QStringList lines = item.value.split(QLatin1Char('\n'));
        stream << item.path << " = " << lines.constFirst();
        for (const QString &further : lines.mid(1)) {
            stream << "\n\t" << further;
        }
        stream << '\n';
    }
}

QJsonArray toJson(const QList<CConfigurationItems::SItem> &items)
{
    QJsonArray array;
    for (const CConfigurationItems::SItem &item : items) {
        array.append(QJsonObject{{QStringLiteral("path"), item.path},
                                 {QStringLiteral("value"), item.value}});
    }
    return array;
}
