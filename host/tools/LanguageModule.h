#pragma once

#include <QStringList>

namespace schedules::host {

/// The codes of the languages that there are; the first one is used when none is chosen.
inline const QStringList kLanguageCodes{"en", "de", "fr"};

/// The component's texts in one language, open as long as this object lives.
class LanguageModule
{
public:
    /// `language` is a code like "en". A language without a table gives an empty reply.
    explicit LanguageModule(const QString& language);
    ~LanguageModule();
    Q_DISABLE_COPY_MOVE(LanguageModule)

    /// What a tool is told that asks for the module: its handle as decimal text.
    QString Reply() const;

    /// Gives the component these texts at once, for what of it asks for none.
    void Use() const;

private:
    int m_handle;
};

} // namespace schedules::host
