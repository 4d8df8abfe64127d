#pragma once

#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>

/// Takes the superuser's rights away for its lifetime, since no permission stops a superuser. Does
/// nothing for any other user.
class WithoutSuperuser {
 public:
  WithoutSuperuser() { EXPECT_EQ(superuser_ ? setresuid(nobody, nobody, 0) : 0, 0); }
  ~WithoutSuperuser() {
    if (!superuser_) return;
    EXPECT_EQ(setresuid(0, 0, 0), 0);
    prctl(PR_SET_DUMPABLE, 1);  // lost with the rights, and the leak checker needs it
  }

 private:
  static constexpr uid_t nobody = 65534;
  const bool superuser_ = geteuid() == 0;
};

/// For its lifetime no file grows beyond so many bytes: a write then stops short and the next one
/// fails, as on a full disk.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &before_), 0);
    const rlimit limit{bytes, before_.rlim_max};
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
  }
  ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }

 private:
  rlimit before_{};
};
