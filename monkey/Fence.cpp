// The calls of the C library by which the toolkit changes files, lists folders and reads the clock.
// A program's own functions take precedence over the library's.

#include "monkey/Fence.h"

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdint>
#include <ctime>
#include <filesystem>

namespace {

std::string fence;
int refused = 0;
std::atomic<std::int64_t> nanoseconds = 1'000'000'000;

bool IsBelow(const std::string &path, const std::string &folder) {
  return path == folder || path.starts_with(folder + '/');
}

std::string Cleaned(const char *path) {
  std::string cleaned = std::filesystem::absolute(path).lexically_normal();
  if (cleaned.size() > 1 && cleaned.ends_with('/')) cleaned.pop_back();
  return cleaned;
}

bool Refuse() {
  ++refused;
  errno = EACCES;
  return false;
}

bool MayChange(const char *path) {
  if (fence.empty()) return true;
  const std::string cleaned = Cleaned(path);
  return IsBelow(cleaned, fence) || IsBelow(cleaned, "/dev") || Refuse();
}

bool MayList(const char *path) {
  if (fence.empty()) return true;
  const std::string cleaned = Cleaned(path);
  return cleaned == "/" || IsBelow(cleaned, fence) || IsBelow(cleaned, "/usr") ||
         IsBelow(cleaned, "/etc") || Refuse();
}

template <class Function>
Function *Next(Function *, const char *name) {
  return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

int Open(const char *path, int flags, mode_t mode) {
  if ((flags & (O_WRONLY | O_RDWR | O_CREAT | O_TRUNC)) && !MayChange(path)) return -1;
  return int(syscall(SYS_openat, AT_FDCWD, path, flags | O_LARGEFILE, mode));
}

}  // namespace

void FenceIn(const std::string &folder) {
  fence = folder;
}

int RefusedCalls() {
  return refused;
}

void PassTime(int milliseconds) {
  nanoseconds += milliseconds * std::int64_t(1'000'000);
}

extern "C" {

int open(const char *path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = va_arg(rest, mode_t);
  va_end(rest);
  return Open(path, flags, mode);
}

int open64(const char *path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = va_arg(rest, mode_t);
  va_end(rest);
  return Open(path, flags, mode);
}

int mkdir(const char *path, mode_t mode) noexcept {
  return MayChange(path) ? int(syscall(SYS_mkdir, path, mode)) : -1;
}
int rmdir(const char *path) noexcept {
  return MayChange(path) ? int(syscall(SYS_rmdir, path)) : -1;
}
int unlink(const char *path) noexcept {
  return MayChange(path) ? int(syscall(SYS_unlink, path)) : -1;
}
int chmod(const char *path, mode_t mode) noexcept {
  return MayChange(path) ? int(syscall(SYS_chmod, path, mode)) : -1;
}
int truncate64(const char *path, off64_t size) noexcept {
  return MayChange(path) ? int(syscall(SYS_truncate, path, size)) : -1;
}
int rename(const char *from, const char *to) noexcept {
  return MayChange(from) && MayChange(to) ? int(syscall(SYS_rename, from, to)) : -1;
}
int renameat2(int, const char *from, int, const char *to, unsigned flags) noexcept {
  if (!MayChange(from) || !MayChange(to)) return -1;
  return int(syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, flags));
}
int link(const char *from, const char *to) noexcept {
  return MayChange(to) ? int(syscall(SYS_link, from, to)) : -1;
}
int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags) noexcept {
  return MayChange(to) ? int(syscall(SYS_linkat, fromFolder, from, toFolder, to, flags)) : -1;
}
int symlink(const char *target, const char *path) noexcept {
  return MayChange(path) ? int(syscall(SYS_symlink, target, path)) : -1;
}

DIR *opendir(const char *path) {
  static const auto next = Next(&opendir, "opendir");
  return MayList(path) ? next(path) : nullptr;
}

int clock_gettime(clockid_t clock, timespec *time) noexcept {
  if (clock != CLOCK_MONOTONIC) return int(syscall(SYS_clock_gettime, clock, time));
  const std::int64_t now = nanoseconds += 1000;
  time->tv_sec = now / 1'000'000'000;
  time->tv_nsec = now % 1'000'000'000;
  return 0;
}
}
