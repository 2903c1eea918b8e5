#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// What the fuzzers share. Each defines LLVMFuzzerTestOneInput(), which libFuzzer calls with each
/// input. A property that does not hold ends the process; libFuzzer then keeps the input.
namespace fuzzing {

inline void expect(bool holds, const char *text)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken: %s\n", text);
    std::abort();
}

/// The bytes of an input. They are copied, so that reading past their end is noticed.
inline QByteArray bytesOf(const std::uint8_t *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)};
}

/// The first byte of an input for a choice, and the rest.
inline std::uint8_t takeByte(const std::uint8_t *&data, std::size_t &size)
{
    if (size == 0)
        return 0;
    --size;
    return *data++;
}

} // namespace fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
