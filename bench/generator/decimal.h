#pragma once

#include <array>
#include <charconv>
#include <cstddef>
#include <string>

namespace bench {

inline void AppendNumber(std::string& out, int number) {
    std::array<char, 12> digits;
    const std::to_chars_result end = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    out.append(digits.data(), static_cast<std::size_t>(end.ptr - digits.data()));
}

}  // namespace bench
