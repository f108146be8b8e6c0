#pragma once

#include "host/tools/HostRouter.h"
#include "host/tools/LanguageModule.h"
#include "host/tools/MessageFile.h"

#include <QTranslator>

#include <memory>
#include <optional>

namespace schedules::host {

/// How a run of the host is set up.
struct SessionOptions
{
    QString language = QStringLiteral("en");
    QString messages; ///< the file that every message is appended to; empty for none

    bool operator==(const SessionOptions&) const = default;
};

/// What a run of the host has exactly one of: the router with its answers, the language and the message file.
/// It must outlive the tools that are connected to it.
class Session
{
public:
    /// Throws `HostError` when the message file cannot be written.
    explicit Session(const SessionOptions& options);

    /// The language of this host's windows at once, and of all tools created from now on. Before that those that there
    /// are must be gone.
    void UseLanguage(const QString& language);

    HostRouter& Router() { return m_router; }

    /// Throws `HostError` when a message is missing in the message file.
    void RequireCompleteMessages() const;

private:
    void Translate(const QString& language);

    std::unique_ptr<LanguageModule> m_language;
    QTranslator m_texts; ///< of this host's own windows
    std::optional<MessageFile> m_messageFile;
    HostRouter m_router;
};

} // namespace schedules::host
