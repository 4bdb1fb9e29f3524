#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <filesystem>
#include <mutex>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <sys/uio.h>
#include <thread>
#include <unistd.h>

#include "tools/faults/Faults.h"

namespace {

std::string Setting(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

struct Plan {
  const std::string folder = Setting("FAULTS_FOLDER") + "/", versions = Setting("FAULTS_VERSIONS");
  const std::string how = Setting("FAULTS_HOW"), record = Setting("FAULTS_RECORD");
  const std::string met = Setting("FAULTS_OF").empty() ? "window" : Setting("FAULTS_OF");
  const int at = std::atoi(Setting("FAULTS_CALL").c_str());
  const std::chrono::milliseconds slow{std::atoi(Setting("FAULTS_SLOW").c_str())};
  const std::chrono::milliseconds slowFile{std::atoi(Setting("FAULTS_SLOW_FILE").c_str())};
  // Not by open(), which is one of ours and asks for the plan.
  const long log = syscall(SYS_open, Setting("FAULTS_LOG").c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
  std::mutex mutex;
  int calls = 0;
  std::atomic<int> versionsKept = 0;
  bool felt = false, mended = false;
};

Plan& ThePlan() {
  static auto* plan = new Plan;  // calls come after all destructors, too
  return *plan;
}

[[noreturn]] void Die() {
  faults::Log("died " + faults::Milliseconds());
  for (;;) kill(getpid(), SIGKILL);
}

void KeepVersion(const std::filesystem::path& path) {
  Plan& plan = ThePlan();
  if (plan.versions.empty() || !path.has_extension() || !is_regular_file(path)) return;
  const auto version = path.filename().string() + "@" + std::to_string(++plan.versionsKept);
  copy_file(path, plan.versions + "/" + version, std::filesystem::copy_options::overwrite_existing);
}

// Whose call it is. The log of what is not stored is written when the clock says so, by a thread of its own,
// and so is a long journal's file while the player goes on: their calls have no number that a second run
// would give them again, and so they are counted apart. A call for the folder is for the thread's last file.
std::string Caller(const std::string& path) {
  static thread_local std::string caller = "log";
  if (syscall(SYS_gettid) == getpid()) return "window";
  if (path.find(".tqf") != std::string::npos) caller = "file";
  if (path.find("/journal.tql") != std::string::npos) caller = "log";
  return caller;
}

// The time, the call, what it was for ("." is the folder), and all names in the folder, each with its file's
// number, between strokes, since no name has any; and a copy of what the file holds now. What the call has
// changed is the difference.
void Record(const std::string& name, const std::filesystem::path& path) {
  const Plan& plan = ThePlan();
  if (plan.record.empty()) return;
  const std::string call = std::to_string(plan.calls);
  const std::string changed = path / "" == plan.folder ? "." : path.filename().string();
  std::string line = faults::Milliseconds() + "/" + call + "/" + name + "/" + changed;
  for (const auto& entry : std::filesystem::directory_iterator(plan.folder)) {
    struct stat file {};
    if (stat(entry.path().c_str(), &file) != 0 || !S_ISREG(file.st_mode)) continue;
    line += "/" + entry.path().filename().string() + "/" + std::to_string(file.st_ino);
  }
  faults::Log("disk " + line);
  if (is_regular_file(path)) copy_file(path, plan.record + "/" + call);
}

// Carries out `call(half)`, lets it fail, or ends the process in it, as the plan says.
template <class Call>
auto Meet(const std::string& name, const std::string& path, Call&& call) -> decltype(call(false)) {
  Plan& plan = ThePlan();
  if (!(path + "/").starts_with(plan.folder)) return call(false);
  const std::string caller = Caller(path);
  if (name == "fsync" && caller == "file") std::this_thread::sleep_for(plan.slowFile);
  if (plan.record.empty() && caller != plan.met) {  // a record has them all
    faults::Log("by-" + caller + " " + name + " " + path);
    const auto result = call(false);
    if (name == "rename" || name == "linkat") KeepVersion(path);
    return result;
  }
  std::unique_lock lock(plan.mutex, std::defer_lock);
  if (!plan.record.empty()) lock.lock();  // a call, what it did and its line in the log belong together
  const bool isOver = plan.mended || (plan.felt && plan.how.ends_with("once"));
  const bool isDue = ++plan.calls >= plan.at && plan.at > 0 && !isOver;
  const int error = isDue ? std::atoi(plan.how.c_str()) : 0;
  const bool kills = isDue && error == 0, fails = error != 0;
  const bool half = plan.how == "half" ? kills : error < 0 && !plan.felt;
  if (kills && plan.how == "before") Die();
  faults::Log((fails ? "fault " : "call ") + name + " " + path);
  plan.felt |= fails;
  errno = std::abs(error);
  if (fails && !half) return -1;
  if (name == "fsync") std::this_thread::sleep_for(plan.slow);
  const auto result = call(half);
  if (kills) Die();
  if (name == "rename" || name == "linkat") KeepVersion(path);
  if (result >= 0) Record(name, path);
  return result;
}

// Empty for one that is only read from, where such ones do not count.
std::string PathOf(int descriptor, bool readToo = false) {
  std::array<char, 4096> path{};
  const auto link = "/proc/self/fd/" + std::to_string(descriptor);
  const bool counts = readToo || (fcntl(descriptor, F_GETFL) & O_ACCMODE) != O_RDONLY;
  return counts && readlink(link.c_str(), path.data(), path.size() - 1) > 0 ? path.data() : "";
}

const iovec* HalfOf(iovec piece) {
  static iovec half;
  half = {piece.iov_base, piece.iov_len / 2};
  return &half;
}

}  // namespace

void faults::Log(const std::string& line) {
  syscall(SYS_write, ThePlan().log, (line + "\n").data(), line.size() + 1);
}

std::string faults::Milliseconds() {
  const auto since = std::chrono::steady_clock::now().time_since_epoch();
  return std::to_string(std::chrono::duration_cast<std::chrono::milliseconds>(since).count());
}

bool faults::IsBroken() {
  return ThePlan().felt && !ThePlan().mended;
}

void faults::Mend() {
  ThePlan().mended = true;
  for (const auto& entry : std::filesystem::directory_iterator(ThePlan().folder)) KeepVersion(entry.path());
}

// Each stands in for the C library's function of its name. It has a name of its own, since the headers know
// the other.
#define STAND_IN(result, name, parameters)                                                             \
  extern "C" result my_##name parameters asm(#name);                                                   \
  const auto real_##name = [](auto... arguments) {                                                     \
    static auto* real = reinterpret_cast<result (*)(decltype(arguments)...)>(dlsym(RTLD_NEXT, #name)); \
    return real(arguments...);                                                                         \
  };                                                                                                   \
  result my_##name parameters
#define PASS_ON(result, name, parameters, path, ...)                                                \
  STAND_IN(result, name, parameters) {                                                              \
    return Meet(#name, path, [&]([[maybe_unused]] bool half) { return real_##name(__VA_ARGS__); }); \
  }

PASS_ON(int, mkdir, (const char* path, mode_t mode), path, path, mode)
PASS_ON(int, unlink, (const char* path), path, path)
PASS_ON(int, rename, (const char* from, const char* to), to, from, to)
PASS_ON(int, fsync, (int fd), PathOf(fd, true), fd)
PASS_ON(int, fchmod, (int fd, mode_t mode), PathOf(fd), fd, mode)
PASS_ON(int, close, (int fd), PathOf(fd), fd)
PASS_ON(ssize_t, write, (int fd, const void* bytes, size_t n), PathOf(fd), fd, bytes, half ? n / 2 : n)
PASS_ON(ssize_t, pwrite, (int fd, const void* bytes, size_t n, off_t at), PathOf(fd), fd, bytes,
        half ? n / 2 : n, at)
PASS_ON(ssize_t, writev, (int fd, const iovec* all, int n), PathOf(fd), fd, half ? HalfOf(*all) : all,
        half ? 1 : n)

STAND_IN(int, open, (const char* path, int flags, ...)) {
  va_list rest;
  va_start(rest, flags);
  const auto mode = va_arg(rest, mode_t);
  va_end(rest);
  const bool isRead = (flags & O_ACCMODE) == O_RDONLY;
  return Meet("open", isRead ? "" : path, [&](bool) { return real_open(path, flags, mode); });
}

STAND_IN(int, linkat, (int a, const char* from, int b, const char* to, int flags)) {
  if (!Setting("FAULTS_PLAIN").empty()) return errno = EPERM, -1;
  return Meet("linkat", to, [&](bool) { return real_linkat(a, from, b, to, flags); });
}

// The same moment in every run, so that the same script writes the same bytes.
STAND_IN(int, clock_gettime, (clockid_t clock, timespec* time)) {
  if (clock != CLOCK_REALTIME) return real_clock_gettime(clock, time);
  *time = {1'800'000'000, 0};
  return 0;
}
extern "C" int my_gettimeofday(timeval* time, void*) asm("gettimeofday");
int my_gettimeofday(timeval* time, void*) {
  *time = {1'800'000'000, 0};
  return 0;
}
