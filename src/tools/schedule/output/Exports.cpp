#include "tools/schedule/output/Exports.h"

#include "common/Error.h"
#include "common/FileReplacement.h"
#include "common/StringNumbers.h"
#include "common/modResource.h"
#include "tools/schedule/table/ShownTable.h"

#include <QScopeGuard>

namespace schedules {

namespace {

constexpr SourceName kSource("ctlSchedule");
const QString kTwoLines = QStringLiteral("\r\n\r\n");

} // namespace

Exports::Exports(const ViewLink& link, ShownTable& table) : m_link(link), m_table(table), m_copy(new Sheet(&link.view))
{
    m_copy->setObjectName(QStringLiteral("vaSpread2"));
}

void Exports::ExportToExcel()
{
    Export(*FormatOfName(QStringLiteral("xls")));
}

void Exports::ExportToHTML()
{
    Export(*FormatOfName(QStringLiteral("html")));
}

void Exports::ExportBy(const QString& entry)
{
    if (const ExportFormat* format = FormatOfEntry(entry))
        Export(*format);
}

void Exports::Export(const ExportFormat& format)
{
    QString fileName;
    RequireOutlived(m_link.view, [&] { fileName = m_link.user.AskSaveFileName(format.Question()); });
    if (fileName.isEmpty())
        return;
    const QString failure = FailureOfWriting(format, fileName);
    if (format.tellsResult)
        TellResult(fileName, failure);
    else if (!failure.isEmpty())
        Trace(QString(kSource.In("ExportToExcel")) + QStringLiteral(": ") + failure);
}

void Exports::TellResult(const QString& fileName, const QString& failure)
{
    if (failure.isEmpty()) {
        m_link.user.Show({LoadResString(kExported) + kTwoLines + LoadResString(kExportedFile) + u' ' + fileName,
                          kInformation, LoadResString(kExportTitle)});
        return;
    }
    const QString logName = fileName + QStringLiteral(".LOG");
    IgnoringErrors([&] { ReplaceFile(logName, (fileName + QStringLiteral(": ") + failure + u'\n').toUtf8()); });
    m_link.user.Show({LoadResString(kNotExported) + kTwoLines + LoadResString(kExportLogFile) + u' ' + logName,
                      kExclamation, LoadResString(kExportTitle)});
}

QString Exports::WriteFile(const QString& format, const QString& fileName)
{
    if (const ExportFormat* known = FormatOfName(format))
        return FailureOfWriting(*known, fileName);
    return QStringLiteral("There is no format \"%1\".").arg(format);
}

QString Exports::FailureOfWriting(const ExportFormat& format, const QString& fileName)
{
    const auto emptied = qScopeGuard([this] { m_copy->Reset(); });
    const CSchedule& engine = m_table.Engine();
    return FailureOf([&] {
        format.write({*engine.Sched(), *m_copy, engine.Title(), m_link.view.locale(), m_link.view.layoutDirection()},
                     fileName);
    });
}

} // namespace schedules
