#pragma once

#include "common/UserInterface.h"

#include <QPointer>
#include <QStringView>
#include <QVariant>
#include <QWidget>

#include <concepts>
#include <functional>
#include <initializer_list>

namespace schedules {

/// Ends whatever was under way in a view that the host has deleted meanwhile.
struct ViewGone
{
};

/// Makes a call in which the host, or a user at a dialog, may delete the view; throws `ViewGone` when that happened.
template <std::invocable Call>
void RequireOutlived(QObject& part, Call&& call)
{
    const QPointer<QObject> alive(&part);
    std::invoke(call);
    if (!alive)
        throw ViewGone();
}

/// What the rooms of the view need of the view itself: its place on the screen, its user and its host.
struct ViewLink
{
    using Values = std::initializer_list<QVariant>;
    using Body = std::function<void()>;

    QWidget& view;
    UserInterface& user;
    std::function<void(QStringView name, Values values)> event; ///< throws when it cannot be sent
    std::function<void(QStringView name, Values values)> request;
    std::function<void(const char* procedure, const Body& body)> tellingHost; ///< see `ToolControl`
    std::function<void(const char* procedure, const Body& body)> tellingUser;
};

} // namespace schedules
