#include "host/Commands.h"

#include "host/ConsoleUserInterface.h"
#include "host/GridJson.h"
#include "host/HostError.h"
#include "host/MainWindow.h"
#include "host/OwnSample.h"
#include "host/Palettes.h"
#include "host/Picture.h"
#include "host/ScheduleTool.h"
#include "host/ScheduleUser.h"
#include "host/Session.h"
#include "host/XmlFile.h"

#include <QApplication>
#include <QFileInfo>

#include <cstdio>
#include <optional>

namespace schedules::host {

namespace {

/// What a command writes must not be what it reads.
void KeepInput(const QString& input, const QStringList& outputs)
{
    const QString path = QFileInfo(input).canonicalFilePath();
    for (const QString& output : outputs) {
        if (!path.isEmpty() && QFileInfo(output).canonicalFilePath() == path)
            throw HostError(QStringLiteral("%1 is the file to be read, and is not written").arg(output));
    }
}

/// A schedule view that has loaded its file and has nobody to talk to.
class LoadedTool
{
public:
    explicit LoadedTool(const CommandLine& commandLine)
        : m_session(commandLine), m_tool(m_session.Router(), &m_user, commandLine.view)
    {
        m_session.Router().Answers(QStringLiteral("UpdateTagScheduleData"), [this](const Message& message) {
            m_handedOver = ParameterText(message, QStringLiteral("ScheduleXml"));
            return QString();
        });
        m_tool.Load(ReadXmlFile(commandLine.file));
        ThrowFailure();
        if (commandLine.view.transpose)
            m_tool.Transpose();
        ThrowFailure();
        if (commandLine.actions != UserActions())
            Perform(commandLine.actions);
    }

    const ScheduleTool& Tool() const { return m_tool; }

private:
    void Perform(const UserActions& actions)
    {
        ScheduleUser user(m_tool);
        for (const CellText& edit : actions.edits)
            user.Edit(edit);
        for (const QString& tag : actions.ticks)
            user.Tick(tag);
        if (actions.sort)
            user.Sort(*actions.sort);
        if (actions.pressContinue)
            user.PressContinue();
        if (!actions.save.isEmpty())
            user.PressSave();
        ThrowFailure();
        if (m_handedOver)
            WriteXmlFile(actions.save, *m_handedOver);
    }

    void ThrowFailure() const
    {
        if (const auto failure = m_user.Failure())
            throw HostError(*failure);
        m_session.RequireCompleteMessages();
    }

    ConsoleUserInterface m_user;
    std::optional<QString> m_handedOver; ///< by a press on Save
    Session m_session;
    ScheduleTool m_tool;
};

void Print(const QByteArray& text)
{
    const auto size = static_cast<std::size_t>(text.size());
    if (std::fwrite(text.constData(), 1, size, stdout) != size || std::fflush(stdout) != 0)
        throw HostError(QStringLiteral("cannot write to standard output"));
}

} // namespace

int RunWindow(const CommandLine& commandLine)
{
    KeepInput(commandLine.file, {commandLine.messages});
    Session session(commandLine);
    const QString file = commandLine.file.isEmpty() ? OwnSample() : commandLine.file;
    ReadXmlFile(file); // what cannot be read is told before there is a window
    UsePalette(commandLine.palette);
    MainWindow window(session.Router(), commandLine.view);
    window.show();
    window.Open(file);
    const int result = QApplication::exec();
    session.RequireCompleteMessages();
    return result;
}

int RunDump(const CommandLine& commandLine)
{
    KeepInput(commandLine.file, {commandLine.messages, commandLine.actions.save});
    const LoadedTool loaded(commandLine);
    const ScheduleTool& tool = loaded.Tool();
    Print(GridJson(tool.Grid(), tool.Orientation(), tool.Transposed()));
    return kDone;
}

int RunRender(const CommandLine& commandLine)
{
    const QString named = QFileInfo(commandLine.file).completeBaseName() + QStringLiteral(".png");
    const QString png = commandLine.png.isEmpty() ? named : commandLine.png;
    KeepInput(commandLine.file, {commandLine.messages, commandLine.actions.save, png});
    UsePalette(commandLine.palette);
    const LoadedTool loaded(commandLine);
    WritePng(PictureOf(loaded.Tool().Widget(), commandLine.title), png);
    Print(png.toLocal8Bit() + '\n');
    return kDone;
}

} // namespace schedules::host
