#include "host/cli/Outputs.h"

#include "host/base/Console.h"
#include "host/base/HostError.h"
#include "host/cli/LoadedTool.h"
#include "host/cli/Picture.h"

namespace schedules::host {

namespace {

/// A failure to write a file, told with the file's name once.
HostError NotWritten(const QString& fileName, const QString& failure)
{
    const QString named = fileName + QStringLiteral(": ");
    const QString reason = failure.startsWith(named) ? failure.sliced(named.size()) : failure;
    return HostError(QStringLiteral("cannot write %1%2").arg(named, reason.simplified()));
}

/// What went wrong.
QString Written(HostedSchedule& tool, const Output& output, const RenderOptions& options)
{
    if (output.format == QLatin1String("pdf"))
        return tool.WritePdf(output.fileName, options.smartPrint, options.paper);
    if (output.format != QLatin1String("png"))
        return tool.WriteFile(output.format, output.fileName);
    WritePng(PictureOf(tool, options.title), output.fileName);
    return {};
}

} // namespace

void WriteOutput(LoadedTool& loaded, const Output& output, const RenderOptions& options, ProgressLine& progress)
{
    const QString failure = Written(loaded.Tool(), output, options);
    const auto told = loaded.TakeFailure();
    if (!failure.isEmpty() || told)
        throw NotWritten(output.fileName, told.value_or(failure));
    progress.Clear();
    PrintOut(output.fileName.toLocal8Bit() + '\n');
}

} // namespace schedules::host
