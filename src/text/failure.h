#pragma once

#include <cstdint>
#include <exception>

#include "text/text.h"

namespace swiftroll {

/// What run-time checks report. The numbers appear in boxes and in the log, so they never change.
enum class FailureKind : std::int32_t {
    InvalidArgument = 5,
    Overflow = 6,
    OutOfMemory = 7,
    IndexOutOfRange = 9,
    TypeMismatch = 13,
    KeyNotFound = 35,
    Internal = 51,
    FileNotFound = 53,
    FileAccess = 57,
    DuplicateKey = 457,
    Printer = 482,
};

/// The French description of a kind of failure.
TextView Description(FailureKind kind);

/// A failed run-time check: it leaves the procedure, and the error trail reports it.
class Failure : public std::exception {
  public:
    explicit Failure(FailureKind kind, std::uint32_t line = __builtin_LINE())
        : kind_(kind), description_(Description(kind)), line_(line) {}
    /// With `detail` (a file, a key) behind the description.
    Failure(FailureKind kind, TextView detail, std::uint32_t line = __builtin_LINE());

    FailureKind Kind() const { return kind_; }
    std::int32_t Number() const { return static_cast<std::int32_t>(kind_); }
    const Text& What() const { return description_; }
    /// Source line of the failed check, 0 where it is not known.
    std::uint32_t Line() const { return line_; }
    const char* what() const noexcept override { return description_.c_str(); }

  private:
    FailureKind kind_;
    Text description_;
    std::uint32_t line_;
};

/// Throws an IndexOutOfRange failure. Apart from its callers, so that a check costs them a comparison.
[[noreturn]] void ThrowIndexOutOfRange(std::uint32_t line = __builtin_LINE());

/// The exception being handled, as a Failure: memory exhaustion and faults of the standard library too.
/// Call it in a catch block only; what is no std::exception is thrown on.
Failure CurrentFailure();

}  // namespace swiftroll
