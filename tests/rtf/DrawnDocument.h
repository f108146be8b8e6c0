#pragma once

#include <QString>

#include <string>

class QTextDocument;

namespace schedules::rtf {

/// A document as text: a line for each paragraph, how it is set in front, if that says anything, and its runs with what
/// they look like: "<centre li=48> plain [b]bold[/] [i size=8 colour=#ff0000]small, slanted and red[/]". Tabs are
/// drawn as arrows, line breaks inside of paragraphs as hooks.
std::string Drawn(const QTextDocument& document);

/// What is drawn of a whole message.
std::string DrawnMessage(const QString& message);

/// What is drawn of what stands in the root group.
std::string Shown(const QString& body);
inline std::string Shown(const char* body)
{
    return Shown(QString::fromUtf8(body));
}

} // namespace schedules::rtf
