// The fast reader of plain documents: whatever it reads, the full parser reads alike.

#include "common/PlainXml.h"

#include "common/XmlRecorder.h"
#include "fuzz/Input.h"

#include <gtest/gtest.h>

using namespace schedules;
using namespace schedules::testing;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto utf8 = XmlUtf8(Input(data, size).Text());
    if (!utf8 || ToldBy(ReadPlainXml, *utf8) == "refused")
        return 0;
    EXPECT_EQ(ToldBy(ReadPlainXml, *utf8), ToldBy(ReadXml, *utf8));
    EXPECT_EQ(ElementsBy(ReadPlainXml, *utf8), ElementsBy(ReadXml, *utf8));
    return 0;
}
