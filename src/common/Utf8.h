#pragma once

#include <QString>
#include <QStringDecoder>

#include <string_view>

namespace schedules {

/// A piece of a text that is UTF-8. U+FEFF at its start belongs to it.
inline QString FromUtf8(std::string_view utf8)
{
    if (!utf8.starts_with("\xEF\xBB\xBF"))
        return QString::fromUtf8(utf8.data(), std::ssize(utf8));
    QStringDecoder decoder(QStringConverter::Utf8,
                           QStringConverter::Flag::Stateless | QStringConverter::Flag::ConvertInitialBom);
    return decoder(QByteArrayView(utf8.data(), std::ssize(utf8)));
}

} // namespace schedules
