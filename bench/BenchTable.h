#pragma once

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

// The one table that all programs of this folder print together: a line for each workload.

/// What a peer needed for the same work in the same run.
struct BenchPeer {
  const char* name;
  double figure;
};

/// One line of the table.
struct BenchRow {
  std::string workload;
  double ours;
  const char* unit;
  BenchPeer peer;     ///< the best one; its name is null where no other does such work
  double target = 0;  ///< the largest ratio that is wanted; 0 for none
};

inline BenchPeer BestOf(const BenchPeer& a, const BenchPeer& b) {
  return b.figure < a.figure ? b : a;
}

/// The table's head; left out where the environment says that another program has printed it.
inline void PrintBenchHead() {
  if (std::getenv("COREGUI_BENCH_NO_HEAD") != nullptr) return;
  std::printf("%-52s %11s %-6s %-22s %11s %8s %7s\n", "workload", "ours", "", "best peer", "peer's", "ratio",
              "target");
}

inline void PrintBenchRow(const BenchRow& row) {
  std::printf("%-52s %11.3f %-6s", row.workload.c_str(), row.ours, row.unit);
  if (row.peer.name == nullptr) {
    std::printf(" %-22s\n", "none");
  } else {
    const double ratio = row.ours / row.peer.figure;
    std::printf(" %-22s %11.3f %8.3f", row.peer.name, row.peer.figure, ratio);
    if (row.target > 0) std::printf(" %7.2f  %s", row.target, ratio <= row.target ? "met" : "NOT MET");
    std::printf("\n");
  }
  std::fflush(stdout);
}
