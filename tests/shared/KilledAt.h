#pragma once

#include <gtest/gtest.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>
#include <set>

/// Runs the work in a child process that is killed right before its operation number n (from 0) on
/// the file system: a write, rename, removal and the like. True if it was killed, false if it came
/// to its end before.
inline bool KilledAt(int n, const std::function<void()> &work) {
  static const std::set<long> operations{
      SYS_write,  SYS_pwrite64, SYS_writev,    SYS_rename, SYS_renameat, SYS_renameat2,
      SYS_unlink, SYS_unlinkat, SYS_ftruncate, SYS_fsync,  SYS_fchmod,   SYS_chmod,
      SYS_openat, SYS_link,     SYS_linkat,    SYS_mkdir,  SYS_symlink,  SYS_symlinkat};
  const pid_t child = fork();
  if (child == 0) {
    ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    raise(SIGSTOP);
    work();
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_EQ(ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_EXITKILL | PTRACE_O_TRACESYSGOOD),
            0);
  for (bool entering = true;; entering = !entering) {
    ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
    waitpid(child, &status, 0);
    if (WIFEXITED(status)) {
      EXPECT_EQ(WEXITSTATUS(status), 0);
      return false;
    }
    if (WIFSIGNALED(status)) {
      ADD_FAILURE() << "the work ended by signal " << WTERMSIG(status);
      return false;
    }
    user_regs_struct registers{};
    ptrace(PTRACE_GETREGS, child, nullptr, &registers);
    if (entering && operations.contains(long(registers.orig_rax)) && n-- == 0) {
      kill(child, SIGKILL);
      waitpid(child, &status, 0);
      return true;
    }
  }
}
