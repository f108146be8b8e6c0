// The parser of messages: what it reads comes back from the message's own text, and any text survives as a value.

#include "framework/Message.h"
#include "fuzz/Input.h"

#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

namespace {

/// What a text reads as once XML has replaced what it cannot hold.
QString Held(const QString& text)
{
    QString held;
    for (const char32_t character : text.toUcs4()) {
        const bool isForbidden = (character < 0x20 && character != '\t' && character != '\n' && character != '\r') ||
                                 (character >= 0xD800 && character < 0xE000) || character == 0xFFFE ||
                                 character == 0xFFFF;
        held += QChar::fromUcs4(isForbidden ? QChar::ReplacementCharacter : character);
    }
    return held;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString text = Input(data, size).Text();
    if (const auto message = ParseMessage(text))
        EXPECT_EQ(ParseMessage(message->Text()), message);

    Message carrier{text, 1, -2, {}};
    carrier.parameters.Add(ParameterType::Xml, text, text);
    const auto carried = ParseMessage(carrier.Text());
    EXPECT_TRUE(carried);
    EXPECT_EQ(carried->name, Held(text));
    EXPECT_EQ(carried->parameters.Items().constFirst().value.toString(), Held(text));
    return 0;
}
