#include "host/Session.h"

namespace schedules::host {

Session::Session(const CommandLine& commandLine) : m_language(std::make_unique<LanguageModule>(commandLine.language))
{
    m_router.Answers(QStringLiteral("GetResourceModule"), [this](const Message&) { return m_language->Reply(); });
    if (commandLine.messages.isEmpty())
        return;
    m_messageFile.emplace(commandLine.messages);
    QObject::connect(&m_router, &HostRouter::Crossed, &m_router,
                     [this](const Crossing& crossing) { m_messageFile->Append(crossing); });
}

void Session::UseLanguage(const QString& language)
{
    m_language.reset(); // closing it takes it out of use, whatever is in use by then
    m_language = std::make_unique<LanguageModule>(language);
}

void Session::RequireCompleteMessages() const
{
    if (m_messageFile)
        m_messageFile->RequireComplete();
}

} // namespace schedules::host
