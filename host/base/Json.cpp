#include "host/base/Json.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace schedules::host {

namespace {

QString WithoutLoneSurrogates(QString text)
{
    if (text.isValidUtf16())
        return text;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const bool isPair = text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
        if (isPair)
            ++at;
        else if (text[at].isSurrogate())
            text[at] = QChar::ReplacementCharacter;
    }
    return text;
}

} // namespace

QByteArray JsonText(const QString& text)
{
    const QJsonArray array{WithoutLoneSurrogates(text)};
    const QByteArray json = QJsonDocument(array).toJson(QJsonDocument::Compact);
    return json.sliced(1, json.size() - 2);
}

QByteArray JsonFlag(bool value)
{
    return value ? "true" : "false";
}

QByteArray JsonObject(std::initializer_list<std::pair<const char*, QByteArray>> members)
{
    QByteArray json("{");
    for (const auto& [name, value] : members) {
        if (json.size() > 1)
            json += ',';
        json.append('"').append(name).append("\":").append(value);
    }
    return json + '}';
}

QByteArray JsonArray(const QByteArrayList& values)
{
    return '[' + values.join(',') + ']';
}

QByteArray JsonLines(const QByteArrayList& values)
{
    return values.isEmpty() ? QByteArray("[]") : "[\n" + values.join(",\n") + "\n]";
}

} // namespace schedules::host
