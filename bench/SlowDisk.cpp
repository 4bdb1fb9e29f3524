// A slow disk, loaded before the C library into a benchmark: what is written to files takes its time by 10 MB
// a second, and each sync 100 milliseconds more, as on a USB stick. There is one such disk: threads wait for
// one another.
#include <algorithm>
#include <chrono>
#include <dlfcn.h>
#include <mutex>
#include <sys/stat.h>
#include <sys/uio.h>
#include <thread>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::nanoseconds PerByte{100};
constexpr std::chrono::milliseconds PerSync{100};

bool IsOnDisk(int descriptor) {
  struct stat entry {};
  return fstat(descriptor, &entry) == 0 && (S_ISREG(entry.st_mode) || S_ISDIR(entry.st_mode));
}

// Waits until the disk has done this behind all that it was given before.
void Take(int descriptor, Clock::duration time) {
  static std::mutex mutex;
  static Clock::time_point free;
  if (!IsOnDisk(descriptor)) return;
  std::unique_lock lock(mutex);
  const Clock::time_point end = free = std::max(free, Clock::now()) + time;
  lock.unlock();
  std::this_thread::sleep_until(end);
}

template <class Function>
Function* Real(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

ssize_t Written(int descriptor, ssize_t bytes) {
  if (bytes > 0) Take(descriptor, bytes * PerByte);
  return bytes;
}

}  // namespace

// Each stands in for the C library's function of its name. It has a name of its own, since the headers know
// the other.
extern "C" int SlowFsync(int descriptor) asm("fsync");
int SlowFsync(int descriptor) {
  static auto* const real = Real<int(int)>("fsync");
  const int result = real(descriptor);
  Take(descriptor, PerSync);
  return result;
}

extern "C" ssize_t SlowWrite(int descriptor, const void* bytes, std::size_t size) asm("write");
ssize_t SlowWrite(int descriptor, const void* bytes, std::size_t size) {
  static auto* const real = Real<ssize_t(int, const void*, std::size_t)>("write");
  return Written(descriptor, real(descriptor, bytes, size));
}

extern "C" ssize_t SlowWritev(int descriptor, const iovec* pieces, int count) asm("writev");
ssize_t SlowWritev(int descriptor, const iovec* pieces, int count) {
  static auto* const real = Real<ssize_t(int, const iovec*, int)>("writev");
  return Written(descriptor, real(descriptor, pieces, count));
}
