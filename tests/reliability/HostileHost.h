#pragma once

#include "HostedTool.h"
#include "framework/IMsgRouter.h"
#include "support/FakeHost.h"

namespace schedules::testing {

/// What a host does within a message before it answers, and what it answers then.
struct Deed
{
    using Act = QString (*)(HostedTool& tool, IMsgRouter& router, const QString& answer);

    const char* name;
    Act act;
    bool takesEdits = false; ///< another text, or the end of the template that is edited
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
    for (int code = 0; code < 0x10000; code += 7)
        rubbish += QChar(code); // nulls, halves of characters and what is no character at all
    return rubbish;
}

/// `tool` lives when any of these is called.
inline const Deed kDeeds[] = {
    {"Throw", [](HostedTool&, IMsgRouter&, const QString&) -> QString { throw std::runtime_error("no"); }},
    {"ThrowAnything", [](HostedTool&, IMsgRouter&, const QString&) -> QString { throw 1; }},
    {"Initialize",
     [](HostedTool& tool, IMsgRouter& router, const QString& answer) {
         tool.Ui().IToolUI_Initialize(&router, QStringLiteral("Other"));
         return answer;
     }},
    {"Activate",
     [](HostedTool& tool, IMsgRouter&, const QString& answer) { return tool.Ui().IToolUI_Activate(), answer; }},
    {"GiveOtherText",
     [](HostedTool& tool, IMsgRouter&, const QString& answer) { return tool.Ui().IToolUI_XML(kOtherSchedule), answer; },
     true},
    {"GiveOtherTextAndActivate",
     [](HostedTool& tool, IMsgRouter&, const QString& answer) {
         return tool.Ui().IToolUI_XML(kOtherSchedule), tool.Ui().IToolUI_Activate(), answer;
     },
     true},
    {"GiveBrokenTextAndActivate",
     [](HostedTool& tool, IMsgRouter&, const QString& answer) {
         return tool.Ui().IToolUI_XML(kBroken), tool.Ui().IToolUI_Activate(), answer;
     },
     true},
    {"Deactivate",
     [](HostedTool& tool, IMsgRouter&, const QString& answer) { return tool.Ui().IToolUI_Deactivate(true), answer; }},
    {"DeactivateAndActivate",
     [](HostedTool& tool, IMsgRouter&, const QString& answer) {
         return tool.Ui().IToolUI_Deactivate(false), tool.Ui().IToolUI_Activate(), answer;
     }},
    {"Close", [](HostedTool& tool, IMsgRouter&, const QString& answer) { return tool.Widget().close(), answer; }},
    {"Delete", [](HostedTool& tool, IMsgRouter&, const QString& answer) { return tool.Delete(), answer; }},
    {"DeleteAndThrow",
     [](HostedTool& tool, IMsgRouter&, const QString&) -> QString {
         tool.Delete();
         throw std::runtime_error("no");
     }},
    {"DeleteLater",
     [](HostedTool& tool, IMsgRouter&, const QString& answer) { return tool.Widget().deleteLater(), answer; }},
    {"AnswerMegabytes", [](HostedTool&, IMsgRouter&, const QString&) { return Megabytes(); }},
    {"AnswerRubbish", [](HostedTool&, IMsgRouter&, const QString&) { return Rubbish(); }},
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

/// A host that answers from a script but for one message, in which it does a deed.
class HostileHost : public FakeHost
{
public:
    QString Send(const Envelope& envelope) override
    {
        const int number = ++m_count;
        const QString answer = FakeHost::Send(envelope);
        const Sent heard = sent.back();
        const QString given = number == m_at && m_tool->Lives() ? m_deed->act(*m_tool, *this, answer) : answer;
        if (heard.message)
            delivered.push_back(*heard.message);
        return given;
    }

    /// Does the deed in the message of that number, counted from now on.
    void Arm(int at, const Deed& deed, HostedTool& tool)
    {
        m_count = 0;
        m_at = at;
        m_deed = &deed;
        m_tool = &tool;
    }

    /// Is a good host again. How many messages it was sent since it was armed.
    int Disarm()
    {
        m_at = 0;
        return m_count;
    }

    std::vector<Message> delivered; ///< in which nothing was thrown

private:
    int m_count = 0;
    int m_at = 0;
    const Deed* m_deed = nullptr;
    HostedTool* m_tool = nullptr;
};

} // namespace schedules::testing
