#pragma once

#include "HostedTool.h"
#include "OddValues.h"
#include "framework/IMsgRouter.h"
#include "support/FakeHost.h"

#include <algorithm>
#include <exception>

namespace schedules::testing {

/// What becomes of a tool by a deed.
enum class ToolAfter
{
    Lives,
    LosesCatalogue,   ///< an editor, until it asks for its templates again
    MayBeDeactivated, ///< which is the end of an editor
    IsGone
};

/// What a host does within a message before it answers, and what it answers then.
struct Deed
{
    using Act = QString (*)(HostedTool& tool, IMsgRouter& router, const QString& answer);

    const char* name;
    Act act;
    ToolAfter after = ToolAfter::Lives;
    bool takesEdits = false; ///< of a view, by another text
};

inline void PrintTo(const Deed& deed, std::ostream* out)
{
    *out << deed.name;
}

inline QString Megabytes()
{
    return QStringLiteral("<Templates>") + QString(5 * 1024 * 1024, u'x');
}

inline QString Rubbish()
{
    QString rubbish;
    for (int code = 0; code < 0x10000; ++code)
        rubbish += QChar(code); // nulls, halves of characters and what is no character at all
    return rubbish;
}

/// All that XML allows of the first plane, as the texts of a list.
inline QString AllCharacters()
{
    QString all = QStringLiteral("\t\n\r");
    for (int code = u' '; code < 0xFFFE; ++code) {
        if (!QChar::isSurrogate(static_cast<char32_t>(code)))
            all += QChar(code);
    }
    return QStringLiteral("<Templates><Template name='%1' filename='pumps.xml' category='%1'/>"
                          "<Template name='fans' filename='fans.xml' category='%1'/>"
                          "<Category name='%1' displayname='%1'/></Templates>")
        .arg(EscapedXml(all));
}

/// `tool` lives when any of these is called.
inline const Deed kDeeds[] = {
    {"Throw", [](HostedTool&, IMsgRouter&, const QString&) -> QString { throw std::runtime_error("no"); }},
    {"ThrowAnything", [](HostedTool&, IMsgRouter&, const QString&) -> QString { throw 1; }},
    {"Initialize",
     [](HostedTool& tool, IMsgRouter& router, const QString& answer) {
         tool.Ui().IToolUI_Initialize(&router, QStringLiteral("Other"));
         return answer;
     },
     ToolAfter::LosesCatalogue},
    {"Activate",
     [](HostedTool& tool, IMsgRouter&, const QString& answer) { return tool.Ui().IToolUI_Activate(), answer; }},
    {"GiveOtherText",
     [](HostedTool& tool, IMsgRouter&, const QString& answer) { return tool.Ui().IToolUI_XML(kOtherSchedule), answer; },
     ToolAfter::Lives, true},
    {"GiveOtherTextAndActivate",
     [](HostedTool& tool, IMsgRouter&, const QString& answer) {
         return tool.Ui().IToolUI_XML(kOtherSchedule), tool.Ui().IToolUI_Activate(), answer;
     },
     ToolAfter::Lives, true},
    {"GiveBrokenTextAndActivate",
     [](HostedTool& tool, IMsgRouter&, const QString& answer) {
         return tool.Ui().IToolUI_XML(kBroken), tool.Ui().IToolUI_Activate(), answer;
     },
     ToolAfter::Lives, true},
    {"Deactivate",
     [](HostedTool& tool, IMsgRouter&, const QString& answer) { return tool.Ui().IToolUI_Deactivate(true), answer; },
     ToolAfter::MayBeDeactivated},
    {"DeactivateAndActivate",
     [](HostedTool& tool, IMsgRouter&, const QString& answer) {
         return tool.Ui().IToolUI_Deactivate(false), tool.Ui().IToolUI_Activate(), answer;
     },
     ToolAfter::MayBeDeactivated},
    {"Close", [](HostedTool& tool, IMsgRouter&, const QString& answer) { return tool.Widget().close(), answer; }},
    {"Delete", [](HostedTool& tool, IMsgRouter&, const QString& answer) { return tool.Delete(), answer; },
     ToolAfter::IsGone},
    {"DeleteAndThrow",
     [](HostedTool& tool, IMsgRouter&, const QString&) -> QString {
         tool.Delete();
         throw std::runtime_error("no");
     },
     ToolAfter::IsGone},
    {"DeleteLater",
     [](HostedTool& tool, IMsgRouter&, const QString& answer) { return tool.Widget().deleteLater(), answer; },
     ToolAfter::IsGone},
    {"SetEmptyProperties", [](HostedTool& tool, IMsgRouter&,
                              const QString& answer) { return SetProperties(tool.Widget(), EmptyValues()), answer; }},
    {"SetNegativeProperties",
     [](HostedTool& tool, IMsgRouter&, const QString& answer) {
         return SetProperties(tool.Widget(), NegativeValues()), answer;
     }},
    {"SetHugeProperties", [](HostedTool& tool, IMsgRouter&,
                             const QString& answer) { return SetProperties(tool.Widget(), HugeValues()), answer; }},
    {"SetPropertiesOfOtherKinds",
     [](HostedTool& tool, IMsgRouter&, const QString& answer) {
         return SetProperties(tool.Widget(), ValuesOfOtherKinds()), answer;
     }},
    {"AnswerMegabytes", [](HostedTool&, IMsgRouter&, const QString&) { return Megabytes(); }},
    {"AnswerRubbish", [](HostedTool&, IMsgRouter&, const QString&) { return Rubbish(); }},
    {"AnswerAllCharacters", [](HostedTool&, IMsgRouter&, const QString&) { return AllCharacters(); }},
    {"AnswerAnUnterminatedElement",
     [](HostedTool&, IMsgRouter&, const QString&) { return QStringLiteral("<Templates><Template name='x"); }},
};

/// Lives each life with something hostile in each of its messages, one after the other. `liveWith` gets the number of
/// the message, and tells whether there were so many.
template <class Lives, class LiveWith>
void LiveWithEachMessage(const Lives& lives, LiveWith liveWith)
{
    for (const auto& life : lives) {
        SCOPED_TRACE(life.name);
        int messages = 0;
        while (liveWith(life, messages + 1))
            ++messages;
        EXPECT_GE(messages, 1);
    }
}

/// For sets that are compared.
inline std::string Sorted(const QSet<QString>& names)
{
    QStringList sorted = names.values();
    sorted.sort();
    return sorted.join(u' ').toStdString();
}

inline const QSet<QString> kMessagesOfView{"ContinueButton",     "ErrorMessage",    "GetResourceModule",
                                           "InitializeSchedule", "PrintSelections", "ProcessSubscriberEvent",
                                           "ShowOptions",        "UnloadSchedule",  "UpdateTagScheduleData"};
inline const QSet<QString> kMessagesOfEditor{"ErrorMessage",           "GETBUILDERPATH",    "GETCURRENTSCHEDTEMPLATE",
                                             "GETTEMPLATECATEGORIES",  "GETTEMPLATELIST",   "GetResourceModule",
                                             "INITIALIZESCHEDOPTIONS", "REMOVECONFIGENTRY", "SETCURRENTSCHEDTEMPLATE",
                                             "UnloadScheduleOptions",  "UPDATESCHEDCONFIG"};

/// A host that answers from a script but for one message, in which it does a deed first.
class HostileHost : public FakeHost
{
public:
    QString Send(const Envelope& envelope) override
    {
        const bool isIt = ++m_count == m_at;
        QString answer;
        std::exception_ptr failure;
        try {
            answer = FakeHost::Send(envelope);
        } catch (...) {
            failure = std::current_exception();
        }
        const Sent heard = sent.back();
        if (isIt)
            answer = Done(heard.message ? heard.message->name : QString(), answer);
        if (failure)
            std::rethrow_exception(failure);
        if (heard.message)
            delivered.push_back(*heard.message);
        return answer;
    }

    /// Does the deed in the message of that number, counted from now on.
    void Arm(int at, const Deed& deed, HostedTool& tool)
    {
        m_count = 0;
        m_at = at;
        m_deed = &deed;
        m_tool = &tool;
        m_wasDone = false;
        m_doneIn.clear();
        m_isSpoiled = false;
    }

    /// Is a good host again. Whether the deed was done since it was armed.
    bool Disarm()
    {
        m_at = 0;
        return m_wasDone;
    }

    /// In which message it was, and whether that was left without its answer.
    QString DoneIn() const { return m_doneIn; }
    bool IsSpoiled() const { return m_isSpoiled; }

    /// Whether it has got the text of an edited cell.
    bool Handed(const char* text) const
    {
        return std::ranges::any_of(delivered, [&](const Message& message) {
            return message.name == QLatin1String("UpdateTagScheduleData") &&
                   message.parameters.Items()[1].value.toString().contains(u'>' + QLatin1String(text) + u'<');
        });
    }

    std::vector<Message> delivered; ///< in which nothing was thrown

private:
    QString Done(const QString& name, const QString& answer)
    {
        m_wasDone = true;
        m_doneIn = name;
        m_isSpoiled = true; // also when it throws
        const QString given = m_deed->act(*m_tool, *this, answer);
        m_isSpoiled = given != answer;
        return given;
    }

    int m_count = 0;
    int m_at = 0;
    const Deed* m_deed = nullptr;
    HostedTool* m_tool = nullptr;
    bool m_wasDone = false;
    QString m_doneIn;
    bool m_isSpoiled = false;
};

} // namespace schedules::testing
