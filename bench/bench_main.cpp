// The one entry of morvane-bench: every benchmark file of this folder registers into it.
#include <benchmark/benchmark.h>

BENCHMARK_MAIN();
