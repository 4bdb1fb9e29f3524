// Process start to the first window on the screen, and the resident memory three seconds later: the program
// beside a bare window of the same toolkit, in turns, in one run.
//
//   bench_start PROGRAM FLOOR [WITH [ROUNDS]]      needs an X server; scripts/bench brings one
//
// PROGRAM is started in its own folder, with whatever diary lies there, of which WITH is the name behind
// those of the figures. FLOOR may be the program with another diary. The medians go out in the form of the
// benchmarks, for scripts/bench.
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>
#include <xcb/xcb.h>

#include "bench/Beside.h"

namespace {

using Clock = std::chrono::steady_clock;

struct Figures {
  double startMs;
  double residentMb;
};

double ResidentMb(pid_t process) {
  std::ifstream status("/proc/" + std::to_string(process) + "/status");
  for (std::string line; std::getline(status, line);)
    if (line.rfind("VmRSS:", 0) == 0) return std::stod(line.substr(6)) / 1024;
  return 0;
}

// The first map of a top-level window that is larger than an icon.
void WaitForWindow(xcb_connection_t* connection) {
  while (xcb_generic_event_t* event = xcb_wait_for_event(connection)) {
    const auto* mapped = reinterpret_cast<xcb_map_notify_event_t*>(event);
    const bool isMap = (event->response_type & 0x7f) == XCB_MAP_NOTIFY;
    const xcb_window_t window = mapped->window;
    std::free(event);
    if (!isMap) continue;
    auto* geometry = xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr);
    const bool isLarge = geometry && geometry->width > 100;
    std::free(geometry);
    if (isLarge) return;
  }
}

Figures Start(const char* program) {
  xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
  const uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
  xcb_change_window_attributes(connection, root, XCB_CW_EVENT_MASK, &mask);
  std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
  const auto begin = Clock::now();
  const pid_t process = fork();
  if (process == 0) {
    execl(program, program, nullptr);
    _exit(127);
  }
  WaitForWindow(connection);
  const double startMs = std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
  std::this_thread::sleep_for(std::chrono::seconds(3));
  const double residentMb = ResidentMb(process);
  kill(process, SIGKILL);
  waitpid(process, nullptr, 0);
  xcb_disconnect(connection);
  return {startMs, residentMb};
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) return std::fprintf(stderr, "usage: bench_start PROGRAM FLOOR [WITH [ROUNDS]]\n"), 2;
  const char* with = argc > 3 ? argv[3] : "";
  const int rounds = argc > 4 ? std::atoi(argv[4]) : 15;
  std::vector<double> starts[2], memory[2];
  for (int round = 0; round <= rounds; ++round) {
    for (int which : {0, 1}) {
      const Figures figures = Start(argv[1 + which]);
      if (round == 0) continue;  // the first round warms the file cache
      starts[which].push_back(figures.startMs);
      memory[which].push_back(figures.residentMb);
    }
  }
  const auto figure = [with](const char* name, const char* unit, const std::vector<double>* values) {
    const double work = bench::MedianOf(values[0]), floor = bench::MedianOf(values[1]);
    std::printf("{\"name\": \"%s%s\", \"work_%s\": %.1f, \"floor_%s\": %.1f, \"times_floor\": %.3f}", name,
                with, unit, work, unit, floor, work / floor);
  };
  std::printf("{\"benchmarks\": [\n");
  figure("StartToFirstWindow", "ms", starts);
  std::printf(",\n");
  figure("ResidentAtRest", "MB", memory);
  std::printf("]}\n");
  return 0;
}
