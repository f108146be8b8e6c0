#pragma once

#include <QtGlobal>

#include <gtest/gtest.h>
#include <unistd.h>

namespace schedules::testing {

/// Someone who may not read and write everything, as long as it lives.
class OrdinaryUser
{
public:
    OrdinaryUser() : m_before(::geteuid()) { EXPECT_TRUE(m_before != 0 || ::seteuid(kNobody) == 0); }
    ~OrdinaryUser() { EXPECT_TRUE(m_before != 0 || ::seteuid(m_before) == 0); }
    Q_DISABLE_COPY_MOVE(OrdinaryUser)

private:
    static constexpr uid_t kNobody = 65534;

    uid_t m_before;
};

} // namespace schedules::testing
