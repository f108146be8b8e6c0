#pragma once

#include "framework/Message.h"

#include <QStringView>

#include <initializer_list>
#include <span>

namespace schedules {

struct ParameterForm
{
    ParameterType type;
    const char* name;
};

/// What is fixed about a message: everything but the values of its parameters.
struct MessageForm
{
    const char* name;
    MessageKind kind;
    int firstCode;
    int secondCode;
    const char* recipient; ///< a fixed recipient; null for the owner of the tool
    const char* sentWhen;
    std::span<const ParameterForm> parameters;
};

/// Every message that a tool of this component sends, in alphabetical order.
std::span<const MessageForm> MessageTable();

/// The form of that name. Asking for a name that is not in the table is a programming error and throws.
const MessageForm& MessageFormOf(QStringView name);

/// A message of that form with its parameters in order. The number of values must be the form's.
Message BuildMessage(const MessageForm& form, std::initializer_list<QVariant> values);

} // namespace schedules
