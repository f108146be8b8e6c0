// The page docs/message-reference.md, which is made from the message table: scripts/message-reference writes it anew.

#include "framework/MessageTable.h"

#include <QFile>
#include <QHash>
#include <QStringList>
#include <QVariant>

#include <gtest/gtest.h>

namespace {

using namespace schedules;

const QString kPage = QStringLiteral(SCHEDULES_SOURCE_DIR "/docs/message-reference.md");

const char* kIntroduction = R"(# Messages

<!-- Made by scripts/message-reference from src/framework/MessageTable.cpp. Change that. -->

Every message that the tools send, with an example. What the parameters hold, what the text form is, and what a host
answers is told in [host-protocol.md](host-protocol.md).
)";

/// What a parameter may hold, by its name.
const QHash<QString, QVariant> kValues{
    {"BuilderPdsg", "PDSG-10"},
    {"Caller", ""},
    {"Cancel", true},
    {"ConfigXML", R"(<Templates><Template name="Pumps" filename="Pumps.xml" pdsg="" readonly="0" category="PUMPS" )"
                  R"(defaultforcategory="-1"/></Templates>)"},
    {"ContextID", "20"},
    {"ErrorDescription", "The host does not listen to GetResourceModule"},
    {"ErrorNumber", 51},
    {"ErrorSource", "Schedules.ctlSchedule.SendRequestToOwner"},
    {"EventObjectName", "cmdHelp"},
    {"Form", "ctlSchedule"},
    {"ProcName", "Schedules.ctlSchedule.SendRequestToOwner"},
    {"ScheduleXml", R"(<TABLE><TR><TH>Tag</TH><TH>Flow</TH></TR>)"
                    R"(<TR><TH>P-101A</TH><TD AllowEdit="-1" Dirty="-1">415.5</TD></TR></TABLE>)"},
    {"SelectedTags", "<Tags><Tag><Id>P-101A</Id></Tag><Tag><Id>P-101B</Id></Tag></Tags>"},
    {"TemplateFile", "Pumps.xml"},
    {"TemplateXML", R"(<Template Name="Pumps" Category="PUMPS"/>)"},
};

const char* NameOf(ParameterType type)
{
    switch (type) {
    case ParameterType::Number:
        return "number";
    case ParameterType::Xml:
        return "XML";
    case ParameterType::Flag:
        return "flag";
    default:
        return "text";
    }
}

QString ParameterRows(const MessageForm& form)
{
    QString rows = QStringLiteral("\n| parameter | type |\n|---|---|\n");
    for (const ParameterForm& parameter : form.parameters)
        rows += QStringLiteral("| `%1` | %2, %3 |\n")
                    .arg(parameter.name)
                    .arg(static_cast<int>(parameter.type))
                    .arg(NameOf(parameter.type));
    return rows;
}

QString Example(const MessageForm& form)
{
    Message message{QLatin1String(form.name), form.firstCode, form.secondCode, {}};
    for (const ParameterForm& parameter : form.parameters)
        message.parameters.Add(parameter.type, QLatin1String(parameter.name), kValues.value(parameter.name));
    return message.Text();
}

QString Section(const MessageForm& form)
{
    return QStringLiteral("\n## %1\n\n%2, with the codes %3 and %4, to %5. Sent when %6.\n%7\n```xml\n%8\n```\n")
        .arg(form.name, form.kind == MessageKind::Event ? "An event" : "A request")
        .arg(form.firstCode)
        .arg(form.secondCode)
        .arg(form.recipient ? QStringLiteral("`%1`").arg(form.recipient) : QStringLiteral("the owner of the tool"),
             form.sentWhen, form.parameters.empty() ? QStringLiteral("It has no parameters.\n") : ParameterRows(form),
             Example(form));
}

QString Reference()
{
    QString page = QString::fromUtf8(kIntroduction);
    for (const MessageForm& form : MessageTable())
        page += Section(form);
    return page;
}

} // namespace

TEST(MessageReference, IsWhatTheTableSays)
{
    if (qEnvironmentVariableIsSet("SCHEDULES_WRITE_DOCS")) {
        QFile page(kPage);
        ASSERT_TRUE(page.open(QFile::WriteOnly)) << page.errorString().toStdString();
        page.write(Reference().toUtf8());
    }
    QFile page(kPage);
    ASSERT_TRUE(page.open(QFile::ReadOnly)) << page.errorString().toStdString();
    EXPECT_EQ(QString::fromUtf8(page.readAll()).toStdString(), Reference().toStdString())
        << "write it anew with scripts/message-reference";
}

TEST(MessageReference, HasASectionForEachMessage)
{
    EXPECT_EQ(Reference().count("\n## "), std::ssize(MessageTable()));
}

TEST(MessageReference, HasAValueForEachParameter)
{
    for (const MessageForm& form : MessageTable()) {
        for (const ParameterForm& parameter : form.parameters)
            EXPECT_TRUE(kValues.contains(parameter.name)) << parameter.name;
    }
}
