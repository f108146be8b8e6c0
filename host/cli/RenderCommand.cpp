#include "host/cli/RenderCommand.h"

#include "host/base/Console.h"
#include "host/base/HostError.h"
#include "host/cli/ExitCodes.h"
#include "host/cli/LoadedTool.h"
#include "host/cli/Outputs.h"
#include "host/files/InputFiles.h"
#include "host/files/XmlFile.h"
#include "host/window/Palettes.h"

#include <QDir>
#include <QFileInfo>

#include <concepts>

namespace schedules::host {

namespace {

void MakeFolder(const QString& folder)
{
    if (!folder.isEmpty() && !QDir().mkpath(folder))
        throw HostError(QStringLiteral("cannot make the folder %1").arg(folder));
}

/// Writes all outputs of all files. What fails is told in a line, and the rest done.
class Renderer
{
public:
    explicit Renderer(const CommandLine& commandLine) : m_commandLine(commandLine), m_options(commandLine.render) {}

    int Run()
    {
        for (const QString& file : m_commandLine.files)
            Guarded(file, [&] { Render(file); });
        return m_failed ? kFailed : kDone;
    }

private:
    void Render(const QString& file)
    {
        Show(file, QStringLiteral("reading"));
        KeepInputs(m_commandLine.files, {m_commandLine.session.messages, m_commandLine.actions.save});
        LoadedTool loaded(m_commandLine, ReadXmlFile(file));
        for (const Output& output : m_options.OutputsOf(file)) {
            Show(file, output.format);
            Guarded(file, [&] { Write(loaded, output); });
        }
    }

    void Write(LoadedTool& loaded, const Output& output)
    {
        KeepInputs(m_commandLine.files, {output.fileName});
        WriteOutput(loaded, output, m_options, m_progress);
    }

    template <std::invocable Step>
    void Guarded(const QString& file, Step&& step)
    {
        try {
            step();
        } catch (const HostError& error) {
            m_failed = true;
            m_progress.Clear();
            PrintError(Several() ? file + QStringLiteral(": ") + error.Line() : error.Line());
        }
    }

    void Show(const QString& file, const QString& step)
    {
        const auto place = QString::number(m_commandLine.files.indexOf(file) + 1);
        const auto count = QString::number(m_commandLine.files.size());
        m_progress.Show(QStringLiteral("[%1/%2] %3: %4").arg(place, count, QFileInfo(file).fileName(), step));
    }

    bool Several() const { return m_commandLine.files.size() > 1; }

    const CommandLine& m_commandLine;
    const RenderOptions& m_options;
    ProgressLine m_progress;
    bool m_failed = false;
};

} // namespace

int RunRender(const CommandLine& commandLine)
{
    UsePalette(commandLine.palette);
    MakeFolder(commandLine.render.folder);
    return Renderer(commandLine).Run();
}

} // namespace schedules::host
