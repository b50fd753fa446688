// From the start of a process to the first frame of an empty grid of 16384 x 256, and its memory, seen from
// outside: small programs say when their frame is there. Medians of several starts, by turns. An empty window
// of the toolkit shows how little any program over it can come to.

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <string>
#include <vector>

#include "bench/BenchTable.h"

namespace {

constexpr int STARTS = 15;

struct Program {
  const char* name;
  std::string file;
  std::vector<double> milliseconds;
  std::vector<double> megabytes;
};

/// Starts the program once; false when it does not say that its frame is there.
bool Start(Program& program) {
  int ends[2];
  if (pipe(ends) != 0) return false;
  const auto start = std::chrono::steady_clock::now();
  const pid_t child = fork();
  if (child == 0) {
    dup2(ends[1], STDOUT_FILENO);
    // What toolkits grumble without a desktop around them is of no interest here.
    dup2(open("/dev/null", O_WRONLY), STDERR_FILENO);
    close(ends[0]);
    close(ends[1]);
    execl(program.file.c_str(), program.file.c_str(), static_cast<char*>(nullptr));
    std::_Exit(127);
  }
  close(ends[1]);
  char first = 0;
  const bool shown = child > 0 && read(ends[0], &first, 1) == 1;
  const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
  close(ends[0]);
  int status = 0;
  rusage usage{};
  if (child > 0) wait4(child, &status, 0, &usage);
  if (!shown) return false;
  program.milliseconds.push_back(time.count());
  program.megabytes.push_back(static_cast<double>(usage.ru_maxrss) / 1024.0);
  return true;
}

double Median(std::vector<double>& values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

}  // namespace

int main(int /*argc*/, char** argv) {
  std::string folder = argv[0];
  folder.resize(folder.rfind('/') + 1);
  std::vector<Program> programs{{"ours", folder + "start_ours", {}, {}},
                                {"empty toolkit window", folder + "start_window", {}, {}},
                                {"table view, lean model", folder + "start_peer", {}, {}}};
  constexpr std::size_t firstPeer = 2;
  // The other toolkit's programs need a display.
  const std::string other = folder + "start_wx";
  if (access(other.c_str(), X_OK) == 0 && std::getenv("DISPLAY") != nullptr)
    programs.push_back({"wxGrid", other, {}, {}});
  for (int start = 0; start < STARTS; ++start) {
    for (Program& program : programs) {
      if (Start(program)) continue;
      std::fprintf(stderr, "start_bench: %s shows no frame\n", program.file.c_str());
      return 1;
    }
  }
  PrintBenchHead();
  BenchPeer time{nullptr, INFINITY};
  BenchPeer memory{nullptr, INFINITY};
  for (std::size_t i = firstPeer; i < programs.size(); ++i) {
    time = BestOf(time, {programs[i].name, Median(programs[i].milliseconds)});
    memory = BestOf(memory, {programs[i].name, Median(programs[i].megabytes)});
  }
  const double ourTime = Median(programs[0].milliseconds);
  const double ourMemory = Median(programs[0].megabytes);
  Program& floor = programs[1];
  PrintBenchRow({"process start to first frame, empty 16384 x 256", ourTime, "ms", time, 0.5});
  PrintBenchRow(
      {"  beside a window with nothing in it", ourTime, "ms", {floor.name, Median(floor.milliseconds)}});
  PrintBenchRow({"its peak memory", ourMemory, "MB", memory, 0.5});
  PrintBenchRow(
      {"  beside a window with nothing in it", ourMemory, "MB", {floor.name, Median(floor.megabytes)}});
  return 0;
}
