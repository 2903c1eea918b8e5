#pragma once

#include <QtGlobal>

#include <algorithm>

/// @p count divided by SWEEPWISE_BENCH_DIVISOR, which shows on a small input that the benchmarks
/// run.
inline int benchSize(int count)
{
    return count / std::max(1, qEnvironmentVariableIntValue("SWEEPWISE_BENCH_DIVISOR"));
}
