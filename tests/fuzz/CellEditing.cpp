// The schedule view under a user and a host who do anything in any order.

#include "fuzz/EditingWalk.h"
#include "fuzz/Input.h"

using namespace schedules::testing;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    EditingWalk(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size))).Run();
    return 0;
}
