#include "host/tools/Session.h"

#include "host/base/DataFolder.h"

#include <QCoreApplication>
#include <QDir>

namespace schedules::host {

Session::Session(const SessionOptions& options) : m_language(std::make_unique<LanguageModule>(options.language))
{
    Translate(options.language);
    m_router.Answers(QStringLiteral("GetResourceModule"), [this](const Message&) { return m_language->Reply(); });
    if (options.messages.isEmpty())
        return;
    m_messageFile.emplace(options.messages);
    QObject::connect(&m_router, &HostRouter::Crossed, &m_router,
                     [this](const Crossing& crossing) { m_messageFile->Append(crossing); });
}

void Session::UseLanguage(const QString& language)
{
    m_language.reset(); // closing it takes it out of use, whatever is in use by then
    m_language = std::make_unique<LanguageModule>(language);
    Translate(language);
}

void Session::Translate(const QString& language)
{
    const QDir languages(DataFolder(QStringLiteral("languages")));
    QCoreApplication::removeTranslator(&m_texts);
    if (m_texts.load(languages.filePath(QStringLiteral("schedhost_%1.qm").arg(language))))
        QCoreApplication::installTranslator(&m_texts);
}

void Session::RequireCompleteMessages() const
{
    if (m_messageFile)
        m_messageFile->RequireComplete();
}

} // namespace schedules::host
