#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "tests/support/TestEnvironment.h"

namespace coregui::test {

/// While it lives, the program has no more rights than an ordinary user, also when the superuser started it.
class OrdinaryUser {
 public:
  OrdinaryUser() : m_user(::geteuid()), m_group(::getegid()) {
    constexpr id_t kNobody = 65534;
    if (m_user != 0) return;
    // The folder of the tests must stay open to that user.
    std::filesystem::permissions(ScratchFolder(), std::filesystem::perms::all);
    EXPECT_EQ(::setegid(kNobody), 0);
    EXPECT_EQ(::seteuid(kNobody), 0);
  }
  ~OrdinaryUser() {
    EXPECT_EQ(::seteuid(m_user), 0);
    EXPECT_EQ(::setegid(m_group), 0);
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;

 private:
  uid_t m_user;
  gid_t m_group;
};

}  // namespace coregui::test
