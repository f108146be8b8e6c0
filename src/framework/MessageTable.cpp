#include "framework/MessageTable.h"

#include <QString>

#include <algorithm>
#include <array>
#include <stdexcept>

namespace schedules {

namespace {

constexpr auto kEvent = MessageKind::Event;
constexpr auto kRequest = MessageKind::Request;
constexpr const char* kOwner = nullptr;

constexpr ParameterForm kCaller[] = {{ParameterType::Text, "Caller"}};
constexpr ParameterForm kSelectedTags[] = {{ParameterType::Xml, "SelectedTags"}};
constexpr ParameterForm kBuilder[] = {{ParameterType::Text, "BuilderPdsg"}};
constexpr ParameterForm kCancel[] = {{ParameterType::Flag, "Cancel"}};
constexpr ParameterForm kTagsAndBuilder[] = {{ParameterType::Xml, "SelectedTags"},
                                             {ParameterType::Text, "BuilderPdsg"}};
constexpr ParameterForm kBuilderAndSchedule[] = {{ParameterType::Text, "BuilderPdsg"},
                                                 {ParameterType::Xml, "ScheduleXml"}};
constexpr ParameterForm kHelp[] = {
    {ParameterType::Text, "EventObjectName"}, {ParameterType::Text, "ContextID"}, {ParameterType::Text, "Form"}};
constexpr ParameterForm kError[] = {{ParameterType::Text, "ErrorDescription"},
                                    {ParameterType::Text, "ErrorSource"},
                                    {ParameterType::Number, "ErrorNumber"},
                                    {ParameterType::Text, "ProcName"}};

constexpr ParameterForm kTemplateXml[] = {{ParameterType::Xml, "TemplateXML"}, {ParameterType::Text, "TemplateFile"}};
constexpr ParameterForm kTemplateFile[] = {{ParameterType::Text, "TemplateFile"}};
constexpr ParameterForm kConfigXml[] = {{ParameterType::Xml, "ConfigXML"}};

constexpr std::array kTable{
    MessageForm{"ContinueButton", kEvent, 8, 9, kOwner, "Continue is pressed and at least one tag is selected",
                kSelectedTags},
    MessageForm{"ErrorMessage", kEvent, 20, 9, "Framework", "a procedure of a tool has failed", kError},
    MessageForm{"GETBUILDERPATH", kRequest, 0, 0, kOwner, "the options editor loads the templates", kCaller},
    MessageForm{"GETCURRENTSCHEDTEMPLATE", kRequest, 0, 0, kOwner, "the options editor loads the templates", {}},
    MessageForm{"GetResourceModule",
                kRequest,
                0,
                3,
                kOwner,
                "a tool is initialised and the component has no resource module yet",
                {}},
    MessageForm{"GETTEMPLATECATEGORIES",
                kRequest,
                0,
                0,
                kOwner,
                "the options editor loads the templates, and before it asks for the name of a new one",
                {}},
    MessageForm{"GETTEMPLATELIST", kRequest, 0, 0, kOwner,
                "the options editor loads the templates, and twice while it saves one", kCaller},
    MessageForm{"INITIALIZESCHEDOPTIONS", kRequest, 0, 0, kOwner, "the options editor is initialised", kCaller},
    MessageForm{"InitializeSchedule", kRequest, 0, 0, kOwner, "the schedule view is initialised", kCaller},
    MessageForm{"PrintSelections", kEvent, 8, 9, kOwner,
                "Print is pressed in the selector view and at least one tag is selected", kTagsAndBuilder},
    MessageForm{"ProcessSubscriberEvent", kRequest, 8, 0, kOwner, "Help is pressed", kHelp},
    MessageForm{"REMOVECONFIGENTRY", kRequest, 0, 0, kOwner, "the file of a template has been deleted", kTemplateFile},
    MessageForm{"SETCURRENTSCHEDTEMPLATE", kRequest, 0, 0, kOwner,
                "Apply or OK is pressed, after a changed template has been saved", kTemplateXml},
    MessageForm{"ShowOptions", kEvent, 8, 9, kOwner, "Customize is pressed", kBuilder},
    MessageForm{"UnloadSchedule", kEvent, 8, 9, kOwner,
                "Cancel is pressed, after the question whether to save edited values", kCancel},
    MessageForm{"UnloadScheduleOptions", kEvent, 8, 9, kOwner, "OK or Cancel closes the options editor", kCancel},
    MessageForm{"UPDATESCHEDCONFIG", kRequest, 0, 0, kOwner, "the file of a template has been written", kConfigXml},
    MessageForm{"UpdateTagScheduleData", kEvent, 8, 9, kOwner,
                "Save is pressed, or Cancel and then Yes to the question whether to save", kBuilderAndSchedule},
};

} // namespace

std::span<const MessageForm> MessageTable()
{
    return kTable;
}

const MessageForm& MessageFormOf(QStringView name)
{
    const auto form =
        std::ranges::find_if(kTable, [&](const MessageForm& each) { return name == QLatin1String(each.name); });
    if (form == kTable.end())
        throw std::logic_error("No such message: " + name.toString().toStdString());
    return *form;
}

Message BuildMessage(const MessageForm& form, std::initializer_list<QVariant> values)
{
    if (values.size() != form.parameters.size())
        throw std::logic_error(std::string("Wrong number of values for the message ") + form.name);
    Message message{QLatin1String(form.name), form.firstCode, form.secondCode, {}};
    auto parameter = form.parameters.begin();
    for (const auto& value : values) {
        message.parameters.Add(parameter->type, QLatin1String(parameter->name), value);
        ++parameter;
    }
    return message;
}

} // namespace schedules
