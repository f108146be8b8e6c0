#pragma once

#include <QtGlobal>

#include <gtest/gtest.h>
#include <unistd.h>

namespace schedules::testing {

constexpr uid_t kNobody = 65534;

/// Makes this process someone's who may not read and write everything, for good.
inline void BecomeOrdinaryUser()
{
    if (::getuid() == 0 && ::setuid(kNobody) != 0)
        ::_exit(127);
}

/// Someone who may not read and write everything, as long as it lives.
class OrdinaryUser
{
public:
    OrdinaryUser() : m_before(::geteuid()) { EXPECT_TRUE(m_before != 0 || ::seteuid(kNobody) == 0); }
    ~OrdinaryUser() { EXPECT_TRUE(m_before != 0 || ::seteuid(m_before) == 0); }
    Q_DISABLE_COPY_MOVE(OrdinaryUser)

private:
    uid_t m_before;
};

} // namespace schedules::testing
